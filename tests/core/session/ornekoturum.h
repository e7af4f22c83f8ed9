// A session with settings and companies in a directory of the test.
#pragma once

#include <gtest/gtest.h>

#include "bildirim.h"
#include "core/ortam.h"
#include "core/session/oturum.h"
#include "gecici.h"

namespace belvani::test {

struct OrnekOturum : testing::Test {
  GeciciDizin d;
  Sonunda makine = OrtamKoy("BELVANI_MAKINE_AYAR", (d.Yol() + "makine.ini").c_str());
  Sonunda kullanici = OrtamKoy("BELVANI_KULLANICI_DIZIN", (d.Yol() + "ayar").c_str());
  ToplayanBildirim b;
  Oturum o;

  OrnekOturum() { o.DataPath = d.Yol() + "veri/"; }

  // A new company, open, with the administrator Ayşe.
  void Kur(const char* ad = "deneme") {
    const auto sonuc = SirketOlustur(o, ad, "Ayşe", "gizli'", b);
    ASSERT_TRUE(sonuc) << sonuc.KusurMetni();
  }
  void Sql(const std::string& sql) { ASSERT_NO_THROW(o.depo.db.IcMotor().Calistir(sql)) << sql; }
};

}  // namespace belvani::test
