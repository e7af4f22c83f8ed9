#include "core/sunucuadresi.h"

#include <gtest/gtest.h>

namespace belvani {
namespace {

TEST(SunucuAdresi, ConnectionAndPlaceAreToldApart) {
  struct {
    const char *adres, *baglanti, *yol, *yer, *ad;
  } const ornekler[] = {
      {"postgresql://sunucu/belvani", "postgresql://sunucu/belvani", "", "postgresql://sunucu/belvani#",
       "sunucu/belvani"},
      {" postgresql://sunucu/belvani/ ", "postgresql://sunucu/belvani", "", "postgresql://sunucu/belvani#",
       "sunucu/belvani"},
      {"postgresql://ayse@s:5433/b?sslmode=verify-full/", "postgresql://ayse@s:5433/b?sslmode=verify-full", "",
       "postgresql://ayse@s:5433/b?sslmode=verify-full#", "s:5433/b"},
      {"postgres:///b?host=/run/pg#", "postgres:///b?host=/run/pg", "", "postgres:///b?host=/run/pg#", "b"},
      {"postgresql://s/b#ŞIK #1/", "postgresql://s/b", "ŞIK #1", "postgresql://s/b#ŞIK #1/", "s/b"},
      {"postgresql://s/b#ÖRNEK/tolu.dat", "postgresql://s/b", "ÖRNEK/tolu.dat", "postgresql://s/b#ÖRNEK/tolu.dat/",
       "s/b"},
  };
  for (const auto& ornek : ornekler) {
    const auto adres = SunucuAdresiCoz(ornek.adres);
    ASSERT_TRUE(adres) << ornek.adres << ": " << adres.KusurMetni();
    EXPECT_EQ(adres->baglanti, ornek.baglanti) << ornek.adres;
    EXPECT_EQ(adres->yol, ornek.yol) << ornek.adres;
    EXPECT_EQ(adres->Yer(), ornek.yer) << ornek.adres;
    EXPECT_EQ(adres->Ad(), ornek.ad) << ornek.adres;
    EXPECT_TRUE(SunucuAdresiMi(ornek.adres));
  }
}

TEST(SunucuAdresi, PasswordsAndHalfAddressesAreRefused) {
  for (const char* adres : {"postgresql://ayse:gizli@s/b", "postgresql://s/b?password=gizli",
                            "postgresql://s/b?sslmode=require&sslpassword=x#ORNEK", "postgresql://a:@s/b"}) {
    const auto sonuc = SunucuAdresiCoz(adres);
    ASSERT_FALSE(sonuc) << adres;
    EXPECT_NE(sonuc.KusurMetni().find("şifre"), std::string::npos) << adres;
    EXPECT_EQ(sonuc.KusurMetni().find("gizli"), std::string::npos) << adres;
  }
  for (const char* adres : {"postgresql://sunucu", "postgresql://sunucu/", "postgresql://s/b/c", "postgresql://", ""})
    EXPECT_FALSE(SunucuAdresiCoz(adres)) << adres;
  EXPECT_FALSE(SunucuAdresiMi("/srv/belvani/"));
  EXPECT_FALSE(SunucuAdresiMi("postgresql:/srv"));
}

}  // namespace
}  // namespace belvani
