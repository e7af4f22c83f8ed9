#include "cli/jsonkayit.h"

#include <charconv>

#include "cli/ortak.h"

namespace belvani::cli {
namespace {

// The number in the form in which the checks read it. An exponent has no place in an amount.
std::string SayininMetni(const Json& json) {
  if (json.is_number_integer()) return json.dump();
  char metin[64];
  const auto yazilan = std::to_chars(metin, metin + sizeof metin, json.get<double>(), std::chars_format::fixed);
  return yazilan.ec == std::errc() ? std::string(metin, yazilan.ptr) : "sınır dışı";
}

}  // namespace

Json DegerJson(const Deger& deger) {
  if (NullMu(deger)) return nullptr;
  if (const auto* n = std::get_if<std::int64_t>(&deger)) return *n;
  if (const auto* s = std::get_if<double>(&deger)) return *s;
  if (const auto* b = std::get_if<bool>(&deger)) return *b;
  return MetinDegeri(deger);
}

Deger JsonDegeri(const AlanTanimi& alan, const Json& json, const std::string& yer, std::vector<std::string>& kusurlar) {
  std::string metin;
  if (json.is_string())
    metin = json.get<std::string>();
  else if (json.is_boolean())
    metin = json.get<bool>() ? "1" : "0";
  else if (json.is_number())
    metin = SayininMetni(json);
  else if (!json.is_null()) {
    kusurlar.push_back(yer + ": metin veya sayı olmalı");
    return Null{};
  }
  if (alan.tip == AlanTipi::Tarih)
    if (const Tarih iso = Tarih::IsoOku(metin); !iso.Bos()) return iso;
  std::string kusur;
  Deger deger = MetindenDeger(alan, metin, kusur);
  if (!kusur.empty()) kusurlar.push_back(yer + ": " + kusur);
  return deger;
}

}  // namespace belvani::cli
