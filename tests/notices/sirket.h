// A store with people who enter and leave, for the tests of the notices.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/store/ornekdepo.h"
#include "core/store/satirlar.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "documents/belgetanimi.h"

namespace belvani::test {

struct BildirimTesti : testing::Test, OrnekDepo {
  YasalParametreler yasal;
  Firma firma;
  BelgeKaynagi kaynak{.motor = db.IcMotor(), .yasal = yasal, .firma = firma, .sirket = sirket};

  BildirimTesti() {
    firma.unvan = "Şık Örgü Ltd. Şti.";
    firma.isi = "Örme Kumaş";
    firma.iskodu = 1721;
    firma.bolcal = "34/5566";
    firma.paraonda = 2;
  }
  Motor& motor() { return db.IcMotor(); }
  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(motor()).Ekle(kayit);
  }
  // With an identity record, of a woman where `cins` is 1; none where it is -1.
  Sicil Kisi(const std::string& kod, Tarih girtar, Tarih ciktar = {}, int cins = 0, const std::string& sskno = {}) {
    Sicil s;
    s.kod = kod;
    s.adi = "Işıl " + kod;
    s.soyadi = "Çağ";
    s.girtar = girtar;
    s.ciktar = ciktar;
    s.sskno = sskno;
    Yaz(s);
    if (cins >= 0) {
      Kimlik k;
      k.kod = kod;
      k.baba = "Ömer";
      k.dogyer = "Muş";
      k.dogtar = Tarih(1980, 2, 29);
      k.cins = std::uint8_t(cins);
      Yaz(k);
    }
    return s;
  }
};

}  // namespace belvani::test
