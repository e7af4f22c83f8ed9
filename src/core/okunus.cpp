#include "core/okunus.h"

#include <algorithm>
#include <optional>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// The text with this decimal mark, in our own notation; nothing when it is no number so.
std::optional<std::string> Okunusu(std::string metin, char ondalik) {
  if (ondalik == ',')
    for (char& c : metin) c = c == ',' ? '.' : c == '.' ? ',' : c;
  if (!SayiOku(metin)) return std::nullopt;
  std::erase(metin, ',');
  return metin;
}

std::string Virgullu(std::string metin) {
  std::replace(metin.begin(), metin.end(), '.', ',');
  return metin;
}

}  // namespace

std::string SayiyiDuzelt(std::string_view metin, OndalikImi im, std::string& kusur) {
  const std::string yazilan(Kirp(metin));
  if (yazilan.empty()) return {};
  const auto noktali = im == OndalikImi::Virgul ? std::nullopt : Okunusu(yazilan, '.');
  const auto virgullu = im == OndalikImi::Nokta ? std::nullopt : Okunusu(yazilan, ',');
  if (!noktali && !virgullu)
    kusur = "sayı olmalı: " + yazilan;
  else if (noktali && virgullu && SayiOku(*noktali) != SayiOku(*virgullu))
    kusur = yazilan + " iki türlü okunur (" + Virgullu(*noktali) + " ya da " + Virgullu(*virgullu) +
            "): --ondalik nokta ya da --ondalik virgul veriniz";
  return noktali ? *noktali : virgullu.value_or("");
}

}  // namespace belvani
