// The declaration of fields that a user fills in: one row a field. A screen makes its editors of the rows, the command
// line its options, and both check by them what they were given.
//
//   const std::vector<AlanGrubu> gruplar{
//       {"Kimlik", {{sicil::kod, "Sicil No", {.anahtar = true}},
//                   {sicil::adi, "Adı"},
//                   {sicil::ucrettipi, "Ücret Tipi", {.liste = UcretTipleri}}}}};
//
// A row names the column; from its type and size follow the editor, the longest text, the decimals, the width. What
// differs stands in AlanEki. A value that is in no table is bound the same way: Uye("AgiEsi", &AgiTablosu::AgiEsi), and
// one that lies deeper by its path: YolAlani<DefterSecim>("kodBas", [](auto& s) -> auto& { return s.kod.bas; }, …).
#pragma once

#include <algorithm>
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
  double enAz = 0;      // smallest number; with one, a number outside of enAz to enCok is a fault of the field
  double enCok = 0;     // largest number, where the screen takes less than the column
  int harf = 0;         // width in letters; 0: follows from the type
  bool kapali = false;  // shown, not typed into
  bool sifre = false;   // masked
  bool rehber = false;  // has a lookup list (F2)
  bool kayitDisi = false;  // a choice of the moment and no part of what is saved: it may go unasked
  const char* ipucu = "";
  int no = 0;  // by which the rules of its screen know the field: a value of their enum
  // The option of the command line that asks for it, with its line of help: "--yil". Rows that follow each other with
  // one option are its values. None: the command line does not ask.
  const char* komut = "";
  const char* komutYardimi = "";
  std::span<const std::string_view> komutSozcukleri = {};  // words of the choices there; none: their numbers
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
  if constexpr (std::is_enum_v<U>)
    return AlanTipi::Byte;
  else if constexpr (std::is_same_v<U, Tutar>)
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

// A choice is stored by its number.
template <class Secim>
requires std::is_enum_v<Secim> Deger UyeDegeri(Secim d) {
  return std::int64_t(d);
}
template <class Secim>
requires std::is_enum_v<Secim>
void UyeyeYaz(Secim& uye, const Deger& d) {
  uye = Secim(TamDegeri(d));
}

// The value that `yol` reaches in a record.
template <class Kayit, class Yol>
Alan YolAlani(std::string_view ad, Yol yol, const char* etiket, AlanEki ek = {}, int harf = 0) {
  using U = std::remove_cvref_t<std::invoke_result_t<Yol, Kayit&>>;
  return Alan(
      AlanTanimi{ad, TipiBul<U>(), harf, AlanNiteligi::Serbest}, typeid(Kayit),
      [yol](const void* k) { return UyeDegeri(yol(*static_cast<const Kayit*>(k))); },
      [yol](void* k, const Deger& d) { UyeyeYaz(yol(*static_cast<Kayit*>(k)), d); }, etiket, ek);
}

// The element `sira` of an array member.
template <class Kayit, class U, std::size_t N>
Alan DiziAlani(std::string_view ad, std::array<U, N> Kayit::*uye, std::size_t sira, const char* etiket, AlanEki ek = {},
               int harf = 0) {
  const auto yol = [=](auto& kayit) -> auto& {
    return (kayit.*uye)[sira];
  };
  return YolAlani<Kayit>(ad, yol, etiket, ek, harf);
}

// A choice among `degerler`, in the order of the row's list, where their own numbers are in another.
template <class Kayit, class Yol, class U, std::size_t N>
Alan DegerlerdenAlan(std::string_view ad, Yol yol, const U (&degerler)[N], const char* etiket, AlanEki ek) {
  return Alan(
      AlanTanimi{ad, AlanTipi::Byte, 0, AlanNiteligi::Serbest}, typeid(Kayit),
      [yol, &degerler](const void* k) {
        const auto yer = std::ranges::find(degerler, yol(*static_cast<const Kayit*>(k)));
        return Deger(std::int64_t(yer - std::begin(degerler)));
      },
      [yol, &degerler](void* k, const Deger& d) {
        yol(*static_cast<Kayit*>(k)) = degerler[std::size_t(TamDegeri(d)) % N];
      },
      etiket, ek);
}

// Fields that stand together under a heading, in `sutun` columns of label and editor, row by row.
struct AlanGrubu {
  std::string baslik;
  std::vector<Alan> alanlar;
  int sutun = 1;
};

// All fields of a screen: groups one below the other, these columns side by side.
using AlanSutunlari = std::vector<std::vector<AlanGrubu>>;

// Why a value cannot stand in the field: the reasons of its column, and the range that its row names; "" when it can.
// What is in no list is left alone: a stored value that the list does not know stays as it is.
std::string AlanKusuru(const Alan& alan, const Deger& deger);

// The place of a value in a field's list of `sayi` choices, whatever number the column holds it as; -1 when it is none
// of them.
int SecenekSirasi(const Alan& alan, const Deger& deger, std::size_t sayi);

}  // namespace belvani
