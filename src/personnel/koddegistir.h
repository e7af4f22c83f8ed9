// Another code for a person: card, identity, photograph and pay records bear it afterwards, months that are kept as
// they were included. All of it happens in one transaction or nothing does.
//
// Family, sums of closed years and account stay with the old code, unless they are asked for; their numbers are told.
// Example: 0012 -> 1012 with `bagli`: the row "20080012" of `dvr` becomes "20081012".
#pragma once

#include "core/session/oturum.h"
#include "core/tables/alansatiri.h"
#include "core/tables/sicil.h"
#include "personnel/kodkayitlari.h"

namespace belvani {

struct KodDegisikligi {
  std::string eski{};
  std::string yeni{};
  bool bagli = false;  // family, closed years and account go along
};

// Its fields, as the rules know them.
namespace koddegisikligi {
// clang-format off
inline constexpr auto eski = Uye("eski", &KodDegisikligi::eski, sicil::kod.boyut);
inline constexpr auto yeni = Uye("yeni", &KodDegisikligi::yeni, sicil::kod.boyut);
inline constexpr auto bagli = Uye("bagli", &KodDegisikligi::bagli);
// clang-format on
}  // namespace koddegisikligi

struct KodDegisimi {
  std::size_t bordro = 0;
  std::vector<KodKaydi> kalan{};  // records that stay with the old code

  // "Değiştirme İşlemi Tamamlandı", and a line for what stays.
  std::string Metin() const;
};

// Every record that could not be changed is a fault of its own; with any of them nothing has changed.
Sonuc<KodDegisimi, Kusurlar> KodDegistir(Oturum& o, const KodDegisikligi& degisiklik);

}  // namespace belvani
