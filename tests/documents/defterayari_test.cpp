#include "documents/defterayari.h"

#include <gtest/gtest.h>

#include "core/veriyolu.h"
#include "veriyeri.h"

namespace belvani {
namespace {

TEST(DefterAyari, ReadsTheFile) {
  const struct {
    const char* ad;
    const char* icerik;
    const char* kolonlar;
    const char* yaziTipi;
    int punto;
  } ornekler[] = {
      {"empty file", "", "1110011011111101100101", "tahoma", 7},
      {"all told", "[Bordro]\r\nBrdizin=0000000000000000000001\r\nBrdfont=Arial\r\nBrdfsize=9\r\n",
       "0000000000000000000001", "Arial", 9},
      {"short switches", "[Bordro]\nBrdizin=01\n", "0111111111111111111111", "tahoma", 7},
      {"no switches", "[Bordro]\nBrdizin=\n", "1111111111111111111111", "tahoma", 7},
      {"too many switches", "[Bordro]\nBrdizin=000000000000000000000011111\n", "0000000000000000000000", "tahoma", 7},
      {"other sections do not count", "[Başka]\nBrdfsize=9\n", "1110011011111101100101", "tahoma", 7},
      {"sizes that are none", "[Bordro]\nBrdfont=\nBrdfsize=büyük\n", "1110011011111101100101", "tahoma", 7},
      {"a size beyond reason", "[Bordro]\nBrdfsize=99999999999\n", "1110011011111101100101", "tahoma", 7},
  };
  const test::VeriYeri yer;
  const VeriYolu sirket(test::BosSirket(yer.Yer(), "DENEME"));
  EXPECT_EQ(DefterAyariOku(sirket), DefterAyari{});
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    ASSERT_TRUE(sirket.Yaz("bordro.ini", o.icerik));
    const DefterAyari ayar = DefterAyariOku(sirket);
    EXPECT_EQ(DefterAnahtarMetni(ayar.kolonlar), o.kolonlar);
    EXPECT_EQ(ayar.yaziTipi, o.yaziTipi);
    EXPECT_EQ(ayar.punto, o.punto);
  }
}

TEST(DefterAyari, WhatIsWrittenIsReadBack) {
  const test::VeriYeri yer;
  const VeriYolu sirket(test::BosSirket(yer.Yer(), "DENEME"));
  ASSERT_TRUE(sirket.Yaz("bordro.ini", "[Ozel]\nKalan=1\n"));
  const DefterAyari ayar{.kolonlar = DefterAnahtarlariOku("0110"), .yaziTipi = "Çizgi Sans", .punto = 12};
  ASSERT_TRUE(DefterAyariYaz(ayar, sirket));
  EXPECT_EQ(DefterAyariOku(sirket), ayar);
  EXPECT_NE(sirket.Oku("bordro.ini")->find("Kalan=1"), std::string::npos);
  EXPECT_FALSE(DefterAyariYaz(ayar, yer.Yer() + "YOK/"));
}

}  // namespace
}  // namespace belvani
