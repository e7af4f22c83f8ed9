// Values of a record that do not fit their columns.
#pragma once

#include "core/tables/alan.h"
#include "core/tables/uye.h"
#include "core/turkce.h"

namespace belvani {

// What a column is called when its user is told: AlanEtiketi of the people's records, or, for want of better, its name.
using EtiketIslevi = std::string_view (*)(std::string_view tablo, std::string_view alan);
inline std::string_view AlanAdi(std::string_view, std::string_view alan) {
  return alan;
}

// A text column keeps no control characters.
template <class Kayit>
void DenetimleriAt(Kayit& kayit) {
  Kayit::HerKolon([&](const auto& kolon) {
    auto& uye = kayit.*kolon.uye;
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(uye)>, std::string>) uye = DenetimsizMetin(uye);
  });
}

// "Adı: en çok 20 harf olabilir" at its field, for every column that differs from `ilk` and does not fit. What stands
// in the store already keeps nobody from saving the rest.
template <class Kayit>
Kusurlar KayitKusurlari(const Kayit& kayit, EtiketIslevi etiket, const Kayit& ilk = {}) {
  Kusurlar kusurlar;
  Kayit::HerKolon([&](const auto& kolon) {
    if (kayit.*kolon.uye == ilk.*kolon.uye) return;
    const std::string neden = TipKusuru(kolon, UyeDegeri(kayit.*kolon.uye));
    if (neden.empty()) return;
    kusurlar.push_back(KuralKusuru(std::string(etiket(Kayit::TabloAdi, kolon.ad)) + ": " + neden, kolon));
  });
  return kusurlar;
}

// Several faults in one box, a line each; the cursor goes to the first. There must be one.
inline Kusur Birlestir(const Kusurlar& kusurlar) {
  Kusur hepsi = kusurlar.front();
  for (std::size_t i = 1; i < kusurlar.size(); ++i) hepsi.metin += "\n" + kusurlar[i].metin;
  return hepsi;
}

}  // namespace belvani
