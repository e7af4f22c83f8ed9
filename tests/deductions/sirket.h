// A company for the tests of the refund: the law of a year installed, people to be added.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bildirim.h"
#include "core/dosya.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "deductions/ogiharcama.h"
#include "gecici.h"
#include "payroll/parametre/mevzuat.h"

namespace belvani::test {

struct OgiSirketi {
  GeciciDizin dizin;
  ToplayanBildirim bildirim;
  Oturum o;
  YasalParametreler yasal;

  OgiSirketi() {
    o.DataPath = o.PrgPath = dizin.Yol();
    EXPECT_TRUE(SirketOlustur(o, "DENEME", "a", ""));
    FirmaYukle(o);
    o.firma.unvan = "Çınar Tekstil";
    o.firma.firmayil = 2004;
    yasal.oranlar.DamgaOran = Tek(6);
    Parametreler({Tek(35), 1, 2005, Tek(6)});
    TabloKur(2004);
  }
  Motor& motor() { return o.depo.db.IcMotor(); }
  void Parametreler(const OzelGiderParametreleri& p) { ASSERT_TRUE(OzelGiderKaydet(o.FirmaDizini, p)); }
  void TabloKur(int yil) { ASSERT_TRUE(OzelGvKaydet(o.DataPath, *OzelGvMevzuati(KaynakYolu("data/mevzuat/"), yil))); }

  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(motor()).Ekle(kayit);
  }
  void Kisi(const std::string& kod, Tarih ciktar = {}, const std::string& grup = "") {
    Sicil s;
    s.kod = kod;
    s.adi = "Işıl";
    s.soyadi = "Çağlar";
    s.girtar = Tarih(2003, 1, 1);
    s.ciktar = ciktar;
    s.grup = grup;
    Yaz(s);
  }
  void Devir(const std::string& kod, int yil, double matrah, double harcama, double iade, double odenen = 0) {
    Dvr d;
    d.yilkod = std::to_string(yil) + kod;
    d.kod = kod;
    d.yil = std::int16_t(yil);
    d.gvmatrah = Tutar(matrah);
    d.ogimatrah = Tutar(harcama);
    d.ogitutar = Tutar(iade);
    d.ogiodenen = Tutar(odenen);
    Yaz(d);
  }
  void Odeme(const std::string& kod, int yil, int ay, double ogv, int no = 1) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = std::uint8_t(no);
    b.ogv = Tutar(ogv);
    Yaz(b);
  }
  // What SQL says of its first column, with four decimals in amounts.
  std::int64_t Sql(const std::string& sorgu) {
    const auto komut = motor().Hazirla(sorgu);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
};

}  // namespace belvani::test
