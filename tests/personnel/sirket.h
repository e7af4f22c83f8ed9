// A new company for the tests of the personnel room, without people.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "bildirim.h"
#include "core/session/oturum.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "gecici.h"

namespace belvani::test {

struct SirketTesti : testing::Test {
  GeciciDizin dizin;
  ToplayanBildirim bildirim;
  Oturum o;

  void SetUp() override {
    o.DataPath = o.PrgPath = dizin.Yol();
    ASSERT_TRUE(SirketOlustur(o, "DENEME", "a", ""));
    ASSERT_TRUE(FirmaYukle(o));
  }
  template <class Kayit>
  std::vector<Kayit> Hepsi() {
    return KayitlariOku<Kayit>(o.depo.db.IcMotor());
  }
  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(o.depo.db.IcMotor()).Ekle(kayit);
  }
  // What a screen does with a result: its fault is told.
  template <class S>
  bool Bildir(const S& sonuc) {
    if (!sonuc) bildirim.KusuruGoster(sonuc.Kusuru());
    return bool(sonuc);
  }
  // Until the next call the engine refuses `islem` ("insert on esco"); "" refuses nothing.
  void Engelle(const std::string& islem) {
    o.depo.db.IcMotor().Calistir("drop trigger if exists engel");
    if (!islem.empty())
      o.depo.db.IcMotor().Calistir("create trigger engel before " + islem + " begin select raise(abort, 'x'); end");
  }
};

inline Sicil Kart(const std::string& kod, const std::string& adi = "Ali", const std::string& soyadi = "Veli") {
  Sicil s;
  s.kod = kod;
  s.adi = adi;
  s.soyadi = soyadi;
  s.girtar = Tarih(2005, 1, 1);
  return s;
}

}  // namespace belvani::test
