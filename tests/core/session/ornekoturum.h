// A session with settings in a directory of the test, and companies in its data path.
#pragma once

#include <gtest/gtest.h>

#include "bildirim.h"
#include "core/ortam.h"
#include "core/session/oturum.h"
#include "gecici.h"
#include "veriyeri.h"

namespace belvani::test {

struct OrnekOturum : testing::Test {
  GeciciDizin d;
  VeriYeri veriYeri{d.Yol() + "veri/"};
  Sonunda makine = OrtamKoy("BELVANI_MAKINE_AYAR", (d.Yol() + "makine.ini").c_str());
  Sonunda kullanici = OrtamKoy("BELVANI_KULLANICI_DIZIN", (d.Yol() + "ayar").c_str());
  ToplayanBildirim b;
  Oturum o;

  OrnekOturum() { o.DataPath = veriYeri.Yer(); }

  // A new company, open, with the administrator Ayşe.
  void Kur(const char* ad = "deneme") {
    const auto sonuc = SirketOlustur(o, ad, "Ayşe", "gizli'");
    ASSERT_TRUE(sonuc) << sonuc.KusurMetni();
  }
  void Sql(const std::string& sql) { ASSERT_NO_THROW(o.depo.db.IcMotor().Calistir(sql)) << sql; }
};

}  // namespace belvani::test
