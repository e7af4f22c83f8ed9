// Three people of a small company in January 2008.
#pragma once

#include <vector>

#include "documents/defter.h"

namespace belvani::test {

inline Tutar operator""_tl(long double lira) {
  return Tutar(double(lira));
}

inline BordroSatiri Kisi(Brd brd, const char* adi, const char* soyadi, Tarih girtar) {
  BordroSatiri satir;
  satir.sicil.kod = brd.kod;
  satir.sicil.adi = adi;
  satir.sicil.soyadi = soyadi;
  satir.sicil.sskno = "3401200412345";
  satir.sicil.girtar = girtar;
  satir.tcno = "10000000146";
  satir.brd = std::move(brd);
  return satir;
}

// Minimum wage, single: 608.40, premium 14 %, unemployment 1 %, tax 15 % of 517.14, duty 6 per thousand, allowance
// 608.40 × 50 % × 15 %.
inline BordroSatiri AsgariUcretli() {
  const Brd brd{.yil = 2008,
                .ay = 1,
                .no = 1,
                .kod = "0001",
                .ng = 26,
                .ht = 4,
                .ogv = 45.63_tl,
                .brutkaz = 608.40_tl,
                .sskmatrah = 608.40_tl,
                .sskmatrahisveren = 608.40_tl,
                .sskkesinti = 85.18_tl,
                .sskkesintiisveren = 118.64_tl,
                .gvmatrah = 517.14_tl,
                .gvtutar = 77.57_tl,
                .dvtutar = 3.65_tl,
                .issizisci = 6.08_tl,
                .issizisveren = 12.17_tl};
  return Kisi(brd, "Işıl", "Güneş", Tarih(2004, 3, 15));
}

// Left on the 20th, with paid leave and a holiday; disabled, with three deductions, a union and a debt; no allowance.
// Has no identity record.
inline BordroSatiri Ayrilan() {
  const Brd brd{.yil = 2008,
                .ay = 1,
                .no = 1,
                .kod = "0002",
                .ng = 13,
                .ht = 3,
                .ui = 3,
                .rt = 1,
                .brutkaz = 1000.00_tl,
                .sskmatrah = 1000.00_tl,
                .sskmatrahisveren = 1000.00_tl,
                .sskkesinti = 140.00_tl,
                .sskkesintiisveren = 195.00_tl,
                .devgvmatrah = 1234.56_tl,
                .gvmatrah = 850.00_tl,
                .gvtutar = 99.75_tl,
                .dvtutar = 6.00_tl,
                .issizisci = 10.00_tl,
                .issizisveren = 20.00_tl,
                .katki = 50.00_tl,
                .indirim1 = 50.00_tl,
                .indirim2 = 10.00_tl,
                .indirim3 = 5.00_tl,
                .sakindir = 120.00_tl,
                .sendika = 12.50_tl,
                .borckes = 150.00_tl};
  BordroSatiri satir = Kisi(brd, "Şükrüye Nur", "Büyükçelebioğulları", Tarih(2001, 9, 1));
  satir.sicil.ciktar = Tarih(2008, 1, 20);
  satir.tcno.clear();
  return satir;
}

// Earns more than the columns were made for.
inline BordroSatiri CokKazanan() {
  const Brd brd{.yil = 2008,
                .ay = 1,
                .no = 1,
                .kod = "YÖN-0003",
                .ng = 26,
                .ht = 4,
                .ogv = 45.63_tl,
                .brutkaz = 1250000.00_tl,
                .sskmatrah = 3954.60_tl,
                .sskmatrahisveren = 3954.60_tl,
                .sskkesinti = 553.64_tl,
                .sskkesintiisveren = 771.15_tl,
                .devgvmatrah = 11000000.00_tl,
                .gvmatrah = 1249406.81_tl,
                .gvtutar = 437292.38_tl,
                .dvtutar = 7500.00_tl,
                .issizisci = 39.55_tl,
                .issizisveren = 79.09_tl};
  return Kisi(brd, "İbrahim", "Çağ", Tarih(1999, 12, 31));
}

inline DefterBaslik OrnekBaslik() {
  DefterBaslik baslik{.yil = 2008, .ay = 1, .firma = {}, .damgaOran = Tek(6)};
  Firma& firma = baslik.firma;
  firma.unvan = "Çınar Tekstil San. ve Tic. A.Ş.";
  firma.verda = "Büyük Mükellefler";
  firma.verno = "1234567890";
  firma.sektor = "2";
  firma.meslek = "1721";
  firma.sube = "01";
  firma.dosya = "1034567";
  firma.il = "034";
  firma.ilce = "12";
  firma.kontrol = "77";
  firma.adr1 = "Organize Sanayi Bölgesi 4. Cadde 17";
  firma.adr2 = "Ümraniye İstanbul";
  return baslik;
}

}  // namespace belvani::test
