// A company for the tests of severance: the law of July 2009, flags that tax both pays, and people of every kind.
#pragma once

#include <gmock/gmock.h>

#include "core/session/oturum.h"
#include "core/store/satirlar.h"
#include "core/tables/kaztan.h"
#include "core/tables/kimlik.h"
#include "core/tables/tablolar.h"
#include "gecici.h"
#include "payroll/parametre/mevzuat.h"
#include "severance/kidemkosullari.h"

namespace belvani::test {

struct KidemSirketi : testing::Test {
  GeciciDizin dizin;
  Oturum o;
  YasalParametreler yasal = *MevzuatYukle(KaynakYolu("data/mevzuat/"), 2009, 7);

  void SetUp() override {
    o.DataPath = o.PrgPath = dizin.Yol();
    ASSERT_TRUE(SirketOlustur(o, "DENEME", "a", ""));
    o.firma.issaati = Tek(7.5);
    o.firma.ondeger = "Personel";
    o.firma.paraonda = 2;
    Grup("Personel", bayrak::Gv | bayrak::Dv);
  }

  Motor& motor() { return o.depo.db.IcMotor(); }
  BelgeKaynagi Kaynak() { return {.motor = motor(), .yasal = yasal, .firma = o.firma, .sirket = o.FirmaDizini}; }

  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(motor()).Ekle(kayit);
  }
  // All other lines are untaxed, so that a wrong place shows.
  void Grup(const std::string& ad, std::uint8_t y10) {
    Kaztan k;
    k.grup = ad;
    k.y10 = y10;
    motor().Hazirla("delete from kaztan where grup = 'Personel'")->Adim();
    Yaz(k);
  }
  Sicil Kisi(const std::string& kod, double ucret, Tarih girtar = Tarih(2008, 8, 2), Tarih ciktar = {}) {
    Sicil s;
    s.kod = kod;
    s.adi = "Işıl";
    s.soyadi = "Öğütçü";
    s.sskno = "1234567890123";
    s.ucret = Tutar(ucret);
    s.girtar = girtar;
    s.ciktar = ciktar;
    return s;
  }
  void Ekle(const Sicil& s) {
    Yaz(s);
    Kimlik k;
    k.kod = s.kod;
    k.tcno = "10000000146";
    Yaz(k);
  }
  void Bordro(const std::string& kod, int yil, int ay, double matrah, double vergi, int no = 1) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = std::uint8_t(no);
    b.gvmatrah = Tutar(matrah);
    b.gvtutar = Tutar(vergi);
    Yaz(b);
  }
};

}  // namespace belvani::test
