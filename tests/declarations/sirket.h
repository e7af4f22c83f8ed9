// A company for the tests of the declaration: its card is complete, its people are the test's own.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "declarations/aylikbildirge.h"
#include "payroll/hazirlik/sirket.h"

namespace belvani::test {

// Whole month on 1,000.00, employed before it.
struct Sigortali {
  Sicil sicil;
  Brd brd;
  std::string tcno = "10000000146";

  explicit Sigortali(const std::string& kod, int yil = 2009, int ay = 7) {
    sicil.kod = brd.kod = kod;
    sicil.adi = "Işıl";
    sicil.soyadi = "Çağ" + kod;
    sicil.sskno = "34010" + kod;
    sicil.kanun = "05510";
    sicil.girtar = Tarih(2001, 1, 1);
    brd.yil = std::int16_t(yil);
    brd.ay = std::uint8_t(ay);
    brd.no = 1;
    brd.ng = 26;
    brd.ht = 4;
    brd.sskmatrah = brd.sskmatrahisveren = Tutar(1000.0);
  }
};

// A row by the names of its cells, typed in one by one: Satir("sigkol=01|adi=Işıl|gun=30").
inline BildirgeSatiri Satir(std::string_view metin) {
  BildirgeSatiri satir;
  while (!metin.empty()) {
    const std::string_view hucre = metin.substr(0, metin.find('|'));
    metin.remove_prefix(std::min(metin.size(), hucre.size() + 1));
    const auto esit = hucre.find('=');
    const BildirgeKolonu* kolon = BildirgeKolonuBul(hucre.substr(0, esit));
    EXPECT_TRUE(kolon != nullptr && HucreYaz(satir, *kolon, hucre.substr(esit + 1))) << hucre;
  }
  return satir;
}

struct BildirgeSirketi : Sirket {
  YasalParametreler yasal = Yasal(2009, 7);
  AylikBildirge bildirge{o, yasal, bildirim};

  BildirgeSirketi() {
    motor().Calistir(
        "update firma set unvan = 'Şık Örgü Ltd. Şti.', adr1 = 'Organize Sanayi', adr2 = '4. Cadde 17', "
        "semt = 'Dudullu', adrilce = 'Ümraniye', adril = 'İstanbul', sektor = '2', meslek = '1721', sube = '0101', "
        "dosya = '1034567', il = '34', ilce = '12', kontrol = '07', verno = '1234567890', kanun = '05510', "
        "firmayil = 2009, firmaay = 7");
    FirmaYukle(o);
  }
  void Ekle(const Sigortali& s) {
    Yaz(s.sicil);
    Kimlik kimlik;
    kimlik.kod = s.sicil.kod;
    kimlik.tcno = s.tcno;
    Yaz(kimlik);
    Yaz(s.brd);
  }
  const Bildirge& Hesapla() {
    EXPECT_TRUE(bildirge.Ac());
    EXPECT_TRUE(bildirge.Hesapla());
    return bildirge.Tamami();
  }
  // One column of all rows.
  template <class Deger>
  std::vector<Deger> Kolon(Deger BildirgeSatiri::*hucre) {
    std::vector<Deger> hucreler;
    for (const auto& satir : bildirge.Tamami().satirlar) hucreler.push_back(satir.*hucre);
    return hucreler;
  }
};

}  // namespace belvani::test
