// Users: every way through saving and deleting one.
#include "core/session/kullanicilar.h"

#include "core/session/ornekoturum.h"
#include "core/sinamalar.h"
#include "core/store/engel.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Sinamalar;
using KullanicilarTest = test::OrnekOturum;

TEST_F(KullanicilarTest, Saving) {
  Kur();
  using M = const char*;
  const std::string kayit = "KAYIT";
  // {name, old, new, confirmation, the fault at its field; KAYIT: saved, empty: passed over in silence}
  // clang-format off
  for (const auto& [ad, eski, yeni, onay, sonuc] : Sinamalar<M, M, M, M, std::string>{
           {"", "gizli'", "a", "a", "ad: Kullanıcı Adı Yok"},
           {"  ", "", "a", "a", "ad: Kullanıcı Adı Yok"},
           {"ayşe", "Gizli'", "a", "a", "eski: Eski Şifre Hatalı"},
           {"ayşe", "", "a", "b", "eski: Eski Şifre Hatalı"},
           {"ayşe", "gizli'", "a", "b", "onay: Yeni Şifre ile Onay Şifre Aynı Olmalı"},
           {"ayşe", "gizli'", "123456789", "123456789", "yeni: Şifre: en çok 8 harf olabilir"},
           {"AYŞE", "gizli'", "ığşçöü12", "ığşçöü12", kayit},
           {"Ayşe", "ığşçöü12", "", "", kayit},
           {"Ali", "", "", "x", "yeni: Yeni Şifre ve Onay Şifreyi Girmelisiniz"},
           {"Ali", "", "x", "", "onay: Yeni Şifre ve Onay Şifreyi Girmelisiniz"},
           {"Ali", "", "x", "y", ""},
           {"dokuzharf", "", "x", "x", "ad: Kullanıcı adı: en çok 8 harf olabilir"},
           {"Ali", "", "123456789", "123456789", "yeni: Şifre: en çok 8 harf olabilir"},
           {"' or 1=1", "", "x", "x", kayit},
           {"Ali", "önemsiz", "x", "x", kayit}}) {
    // clang-format on
    SCOPED_TRACE(std::string(ad) + "/" + yeni);
    const auto kaydedilen = KullaniciKaydet(o, {ad, eski, yeni, onay});
    if (kaydedilen)
      EXPECT_EQ(*kaydedilen ? kayit : "", sonuc);
    else
      EXPECT_EQ(std::string(kaydedilen.Kusuru().alan.ad) + ": " + kaydedilen.KusurMetni(), sonuc);
  }
  EXPECT_EQ(Kullanicilar(o), (std::vector<Peruser>{{"' or 1=1", "x", true}, {"Ali", "x", true}, {"Ayşe", "", true}}));
  test::Engelle(o.depo.db.IcMotor(), "update", "peruser");
  const auto yazilamayan = KullaniciKaydet(o, {"ali", "x", "y", "y"});
  ASSERT_FALSE(yazilamayan);
  EXPECT_EQ(yazilamayan.KusurMetni(), "Kullanıcı Tanımları Yazılamıyor");
}

TEST_F(KullanicilarTest, Deleting) {
  Kur();
  Sql("insert into peruser (kod) values ('Ali')");
  const std::string soru = "Soru: Kullanıcıyı Silmek İstiyormusunuz";
  const std::string son = "Soru: Son Kullanıcı da Silinirse Giriş Yapamazsınız\nEminmisiniz";
  const auto sil = [&](const char* ad) { return *KullaniciSil(o, ad, b) == Silme::Silindi; };
  EXPECT_FALSE(sil(""));
  EXPECT_EQ(b.Al(), Iletiler{});
  EXPECT_EQ(KullaniciSil(o, "yok", b).KusurMetni(), "Kullanıcı Bulunamadı");
  EXPECT_EQ(b.Al(), Iletiler{soru + "\nyok"});
  EXPECT_TRUE(sil("ali"));
  EXPECT_EQ(b.Al(), Iletiler{soru + "\nali"});
  b.cevap = false;
  EXPECT_FALSE(sil("ayşe"));
  EXPECT_EQ(b.Al(), Iletiler{soru + "\nayşe"});
  EXPECT_EQ(Kullanicilar(o).size(), 1u);
  b.cevap = true;
  EXPECT_TRUE(sil("ayşe"));
  EXPECT_EQ(b.Al(), (Iletiler{soru + "\nayşe", son}));
  EXPECT_TRUE(Kullanicilar(o).empty());
}

}  // namespace
}  // namespace belvani
