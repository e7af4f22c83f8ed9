// Records as JSON objects, member for column: amounts are decimal strings, rates and counts numbers, dates
// "dd.MM.yyyy" (null when there is none).
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "core/sayi.h"
#include "core/tables/uye.h"

namespace belvani::cli {

using Json = nlohmann::ordered_json;

Json DegerJson(const Deger& deger);

template <class Kayit>
void KayitJson(const Kayit& kayit, Json& nesne) {
  Kayit::HerKolon([&](const auto& kolon) { nesne[std::string(kolon.ad)] = DegerJson(UyeDegeri(kayit.*kolon.uye)); });
}

// A JSON value as one of the column; numbers and texts are both taken for numbers, dates also as "yyyy-MM-dd". The
// reason why it is none goes to `kusurlar`, led by `yer` ("sicil.ucret").
Deger JsonDegeri(const AlanTanimi& alan, const Json& json, const std::string& yer, std::vector<std::string>& kusurlar);

// Members that the object names; the others keep what they have.
template <class Kayit>
void JsondanKayit(const Json& nesne, const std::string& yer, Kayit& kayit, std::vector<std::string>& kusurlar) {
  if (!nesne.is_object()) {
    kusurlar.push_back(yer + ": nesne olmalı");
    return;
  }
  for (auto uye = nesne.begin(); uye != nesne.end(); ++uye) {
    const std::string uyeninYeri = yer + "." + uye.key();
    bool bulundu = false;
    Kayit::HerKolon([&](const auto& kolon) {
      if (kolon.ad != uye.key()) return;
      bulundu = true;
      UyeyeYaz(kayit.*kolon.uye, JsonDegeri(kolon, uye.value(), uyeninYeri, kusurlar));
    });
    if (!bulundu) kusurlar.push_back(uyeninYeri + ": böyle bir alan yok");
  }
}

}  // namespace belvani::cli
