// The colour table of the product: 42 colours by which every screen is painted, kept in `renk.dat` as 42 little-endian
// 32-bit numbers 0x00BBGGRR (0x00F5F7F8 is the RGB colour F8F7F5). The order of the indexes is part of the file.
//
// Two tables come with the program; every text colour of them stands out from its background by 4.5 : 1 or more
// (WCAG 2.1, level AA). Example: white on white is 1 : 1, black on white 21 : 1.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/session/oturum.h"

namespace belvani {

using RenkTablosu = decltype(Oturum::Renkler);

// Index in the table. Slots that have no name here are reserved, and are kept as they are read.
enum class Renk {
  FormArka = 0,
  GridBaslik = 1,
  GridBaslikText = 2,
  GridZebra = 3,
  GridZebraText = 4,
  GridSecili = 5,
  GridSeciliText = 6,
  GridAktif = 7,
  GridAktifText = 8,
  TextArka = 9,
  TextOdakArka = 10,
  Sorgu = 11,
  SorguBaslik = 12,
  SorguBaslikText = 13,
  SorguText = 14,
  PencereArka = 15,
  Yazi = 16,
  SolukYazi = 17,
  Cerceve = 18,
  Vurgu = 19,
  VurguText = 20,
  GridArka = 21,
  GridText = 22,
  GridCizgi = 23,
  PasifArka = 24,
  PasifText = 25,
  HataArka = 26,
  HataText = 27,
  MenuArka = 28,
  MenuText = 29,
  IpucuArka = 30,
  IpucuText = 31,
  ToplamArka = 32,
  ToplamText = 33,
};

// What the appearance screen calls each colour.
struct RenkSecimi {
  Renk renk;
  std::string_view baslik;
};
inline constexpr RenkSecimi RenkSecimleri[] = {
    {Renk::FormArka, "Form Arka Plan Rengi"},
    {Renk::GridBaslik, "Grid Başlık"},
    {Renk::GridBaslikText, "Grid Başlık Text"},
    {Renk::GridZebra, "Grid Zebra"},
    {Renk::GridZebraText, "Grid Zebra Text"},
    {Renk::GridSecili, "Grid Seçili"},
    {Renk::GridSeciliText, "Grid Seçili Text"},
    {Renk::GridAktif, "Grid Aktif"},
    {Renk::GridAktifText, "Grid Aktif Text"},
    {Renk::TextArka, "Text Arka Plan"},
    {Renk::Sorgu, "Sorgu Rengi"},
    {Renk::SorguBaslik, "Sorgu Başlık"},
    {Renk::SorguText, "Sorgu Text"},
    {Renk::PencereArka, "Pencere Arka Plan Rengi"},
    {Renk::TextOdakArka, "Text Odak Arka Plan"},
    {Renk::SorguBaslikText, "Sorgu Başlık Text"},
    {Renk::Yazi, "Yazı Rengi"},
    {Renk::SolukYazi, "Açıklama Yazısı"},
    {Renk::Cerceve, "Çerçeve"},
    {Renk::Vurgu, "Vurgu"},
    {Renk::VurguText, "Vurgu Text"},
    {Renk::GridArka, "Grid Arka Plan"},
    {Renk::GridText, "Grid Text"},
    {Renk::GridCizgi, "Grid Çizgi"},
    {Renk::PasifArka, "Pasif Arka Plan"},
    {Renk::PasifText, "Pasif Text"},
    {Renk::HataArka, "Hata Arka Plan"},
    {Renk::HataText, "Hata Text"},
    {Renk::MenuArka, "Menü Arka Plan"},
    {Renk::MenuText, "Menü Text"},
    {Renk::IpucuArka, "İpucu Arka Plan"},
    {Renk::IpucuText, "İpucu Text"},
    {Renk::ToplamArka, "Toplam Arka Plan"},
    {Renk::ToplamText, "Toplam Text"},
};

// Near-white warm grey surfaces, and dark slate ones; both with a blue-green accent.
RenkTablosu AcikRenkler();
RenkTablosu KoyuRenkler();

constexpr std::uint32_t RenkAl(const RenkTablosu& tablo, Renk renk) {
  return tablo[std::size_t(renk)];
}

// The session's table; the light one while that is nothing but zeros.
RenkTablosu GecerliRenkler(const Oturum& o);

// The table of `<PrgPath><ResimYolu>renk.dat`, or of the user's own copy, into the session; a missing file is made
// empty and gives zeros.
void RenkYukle(Oturum& o);

// Writes the session's table whole: 168 bytes, to where it is read from or, failing that, to the user's directory.
Durum RenkKaydet(const Oturum& o);

}  // namespace belvani
