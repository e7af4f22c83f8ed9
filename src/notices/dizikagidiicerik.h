// The words of the series sheet, for its two forms.
#pragma once

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/tables/firma.h"
#include "notices/dizipusulasi.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

inline constexpr std::string_view DiziBasligi[] = {"İ Ş E        G İ R İ Ş      B İ L D İ R G E L E R İ",
                                                   "D İ Z İ     P U S U L A S I"};
inline constexpr std::string_view DiziSiraBasligi = "Sıra";
inline constexpr std::string_view DiziNoBasligi = "SSK No";
inline constexpr std::string_view DiziAdBasligi = "Adı Soyadı";
inline constexpr std::string_view DiziIlkBasligi = "Sigortalı ise İlk Defa İşe Girenler";
inline constexpr std::string_view DiziTekrarBasligi = "Sigortalı ise Tekrar İşe Girenler";
inline constexpr std::string_view DiziNotu =
    "(x) İLK Girenler için Üçer, TEKRAR Girenler İçin Birer Nüsha Bildirge Eklenecektir.";
inline constexpr std::string_view DiziDevami = "Devamı sonraki sayfadadır.";
inline constexpr std::string_view DiziTeslimEden = "İŞVEREN / VEKİLİ";
inline constexpr std::string_view DiziTeslimEdenSatirlari[] = {"Adı Soyadı :", "Tarih :", "Kaşe - İmza :"};
inline constexpr std::string_view DiziTeslimAlan = "TESLİM ALAN";
inline constexpr std::string_view DiziTeslimAlanSatirlari[] = {"Adı Soyadı :", "Tarih - Kayıt No :", "Mühür - İmza :"};

// A sheet of one of the forms.
struct DiziSayfasi {
  const Firma& firma;
  const TarihAraligi& aralik;
  const DiziPusulasi& pusula;
  int no = 1;
  int sayfaSayisi = 1;
  std::size_t ilk = 0;  // the row that it begins with

  bool Son() const { return no == sayfaSayisi; }
};

inline std::size_t DiziSatirSayisi(const DiziPusulasi& pusula) {
  return std::max(pusula.ilk.size(), pusula.tekrar.size());
}

// Row `sira` of a list; an empty one behind its end.
inline DiziSatiri DizininSatiri(const std::vector<DiziSatiri>& liste, std::size_t sira) {
  return sira < liste.size() ? liste[sira] : DiziSatiri();
}

// "" for a sheet without a person or without days.
inline std::string DiziAraligi(const TarihAraligi& aralik) {
  return aralik.bas.Bos() || aralik.bit.Bos() ? std::string() : AralikMetni(aralik);
}

// The sentence above the signatures: "Yukarıda yazılı 3 ilk ve 12 tekrar …".
std::string DiziBeyani(const DiziPusulasi& pusula);
std::string DiziAlindisi(const DiziPusulasi& pusula);

FormSayfasi DiziSayfasiCiz(const DiziSayfasi& sayfa);
std::string DiziSayfasiMetni(const DiziSayfasi& sayfa);

}  // namespace belvani
