// The declaration of a screen's fields: one row a field.
//
//   const std::vector<AlanGrubu> gruplar{
//       {"Kimlik", {{sicil::kod, "Sicil No", {.anahtar = true}},
//                   {sicil::adi, "Adı"},
//                   {sicil::ucrettipi, "Ücret Tipi", {.liste = UcretTipleri}}}}};
//
// A row names the column; from its type and size follow the editor, the longest text, the decimals, the width. What
// differs stands in AlanEki. A value that is in no table is bound the same way: Uye("AgiEsi", &AgiTablosu::AgiEsi).
#pragma once

#include <array>
#include <functional>
#include <span>
#include <string_view>
#include <typeindex>
#include <vector>

#include "core/tables/alan.h"
#include "core/tables/uye.h"

namespace belvani {

constexpr int TipinOndaligi = -2;  // decimals that follow from the type
constexpr int ParaOndalik = -1;    // decimals of money in the company's books

// For a list whose choices are known at run time only (SecenekleriKoy).
inline constexpr std::array<std::string_view, 1> SonraDolar{""};

struct AlanEki {
  bool anahtar = false;                          // the record's key: leaving it looks the record up, F2 its list
  std::span<const std::string_view> liste = {};  // choices; the position is stored
  int listeTabani = 0;                           // number of the first choice
  bool secenek = false;                          // choices as option buttons side by side
  bool kutu = false;                             // a check box for a number: 0 or 1
  int ondalik = TipinOndaligi;
  double enCok = 0;     // largest number, where the screen takes less than the column
  int harf = 0;         // width in letters; 0: follows from the type
  bool kapali = false;  // shown, not typed into
  bool sifre = false;   // masked
  bool rehber = false;  // has a lookup list (F2)
  const char* ipucu = "";
  int no = 0;  // by which the rules of its screen know the field: a value of their enum
};

// A field's row. It reads and writes a record struct through its column.
class Alan {
 public:
  template <class Kayit, class U>
  Alan(Kolon<Kayit, U> kolon, const char* etiketMetni, AlanEki ekler = {})
      : tanim(kolon), etiket(etiketMetni), ek(ekler), kayitTuru(typeid(Kayit)) {
    oku = [uye = kolon.uye](const void* kayit) { return UyeDegeri(static_cast<const Kayit*>(kayit)->*uye); };
    yaz = [uye = kolon.uye](void* kayit, const Deger& d) { UyeyeYaz(static_cast<Kayit*>(kayit)->*uye, d); };
  }

  // A value of an array member: DiziUyesi("k1", &Sablon::SablonGun, 0).
  Alan(AlanTanimi alanTanimi, std::type_index tur, std::function<Deger(const void*)> okuyan,
       std::function<void(void*, const Deger&)> yazan, const char* etiketMetni, AlanEki ekler = {})
      : tanim(alanTanimi),
        etiket(etiketMetni),
        ek(ekler),
        kayitTuru(tur),
        oku(std::move(okuyan)),
        yaz(std::move(yazan)) {}

  AlanTutamagi Tutamak() const { return {kayitTuru, tanim.ad}; }

  AlanTanimi tanim;
  std::string etiket;
  AlanEki ek;
  std::type_index kayitTuru;
  std::function<Deger(const void*)> oku;
  std::function<void(void*, const Deger&)> yaz;
};

// The column type that a C++ type stands for.
template <class U>
constexpr AlanTipi TipiBul() {
  if constexpr (std::is_same_v<U, Tutar>)
    return AlanTipi::Tutar;
  else if constexpr (std::is_same_v<U, Tek>)
    return AlanTipi::Tek;
  else if constexpr (std::is_same_v<U, Tarih>)
    return AlanTipi::Tarih;
  else if constexpr (std::is_same_v<U, bool>)
    return AlanTipi::Mantik;
  else if constexpr (std::is_same_v<U, std::uint8_t>)
    return AlanTipi::Byte;
  else if constexpr (std::is_same_v<U, std::int16_t>)
    return AlanTipi::Kisa;
  else if constexpr (std::is_same_v<U, std::int32_t>)
    return AlanTipi::Uzun;
  else
    return AlanTipi::Metin;
}

// A member of a struct that is no table; `harf` is the longest text.
template <class Kayit, class U>
constexpr Kolon<Kayit, U> Uye(std::string_view ad, U Kayit::*uye, int harf = 0) {
  return {{ad, TipiBul<U>(), harf, AlanNiteligi::Serbest}, uye};
}

// The element `sira` of an array member.
template <class Kayit, class U, std::size_t N>
Alan DiziAlani(std::string_view ad, std::array<U, N> Kayit::*uye, std::size_t sira, const char* etiket, AlanEki ek = {},
               int harf = 0) {
  return Alan(
      AlanTanimi{ad, TipiBul<U>(), harf, AlanNiteligi::Serbest}, typeid(Kayit),
      [=](const void* k) { return UyeDegeri((static_cast<const Kayit*>(k)->*uye)[sira]); },
      [=](void* k, const Deger& d) { UyeyeYaz((static_cast<Kayit*>(k)->*uye)[sira], d); }, etiket, ek);
}

// Fields that stand together under a heading, in `sutun` columns of label and editor, row by row.
struct AlanGrubu {
  std::string baslik;
  std::vector<Alan> alanlar;
  int sutun = 1;
};

}  // namespace belvani
