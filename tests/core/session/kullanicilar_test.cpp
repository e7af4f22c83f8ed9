// Users: every way through saving and deleting one.
#include "core/session/kullanicilar.h"

#include "core/session/ornekoturum.h"
#include "core/tablo.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Tablo;
using KullanicilarTest = test::OrnekOturum;

TEST_F(KullanicilarTest, Saving) {
  Kur();
  using M = const char*;
  const std::string kayit = "KAYIT";
  // {name, old, new, confirmation, what is told; KAYIT: saved, empty: refused in silence}
  // clang-format off
  for (const auto& [ad, eski, yeni, onay, sonuc] : Tablo<M, M, M, M, std::string>{
           {"", "gizli'", "a", "a", "Bilgi: Kullanıcı Adı Yok"},
           {"  ", "", "a", "a", "Bilgi: Kullanıcı Adı Yok"},
           {"ayşe", "Gizli'", "a", "a", "Bilgi: Eski Şifre Hatalı"},
           {"ayşe", "", "a", "b", "Bilgi: Eski Şifre Hatalı"},
           {"ayşe", "gizli'", "a", "b", "Bilgi: Yeni Şifre ile Onay Şifre Aynı Olmalı"},
           {"ayşe", "gizli'", "123456789", "123456789", "Bilgi: Şifre: en çok 8 harf olabilir"},
           {"AYŞE", "gizli'", "ığşçöü12", "ığşçöü12", kayit},
           {"Ayşe", "ığşçöü12", "", "", kayit},
           {"Ali", "", "", "x", "Bilgi: Yeni Şifre ve Onay Şifreyi Girmelisiniz"},
           {"Ali", "", "x", "", "Bilgi: Yeni Şifre ve Onay Şifreyi Girmelisiniz"},
           {"Ali", "", "x", "y", ""},
           {"dokuzharf", "", "x", "x", "Bilgi: Kullanıcı adı: en çok 8 harf olabilir"},
           {"Ali", "", "123456789", "123456789", "Bilgi: Şifre: en çok 8 harf olabilir"},
           {"' or 1=1", "", "x", "x", kayit},
           {"Ali", "önemsiz", "x", "x", kayit}}) {
    // clang-format on
    SCOPED_TRACE(std::string(ad) + "/" + yeni);
    EXPECT_EQ(KullaniciKaydet(o, ad, eski, yeni, onay, b), sonuc == kayit);
    EXPECT_EQ(b.Al(), sonuc == kayit || sonuc.empty() ? Iletiler{} : Iletiler{sonuc});
  }
  EXPECT_EQ(Kullanicilar(o), (std::vector<Peruser>{{"' or 1=1", "x", true}, {"Ali", "x", true}, {"Ayşe", "", true}}));
  Sql("create trigger t before update on peruser begin select raise(abort, 'x'); end");
  EXPECT_FALSE(KullaniciKaydet(o, "ali", "x", "y", "y", b));
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: Kullanıcı Tanımları Yazılamıyor"});
}

TEST_F(KullanicilarTest, Deleting) {
  Kur();
  Sql("insert into peruser (kod) values ('Ali')");
  const std::string soru = "Soru: Kullanıcıyı Silmek İstiyormusunuz";
  const std::string son = "Soru: Son Kullanıcı da Silinirse Giriş Yapamazsınız\nEminmisiniz";
  EXPECT_FALSE(KullaniciSil(o, "", b));
  EXPECT_EQ(b.Al(), Iletiler{});
  EXPECT_FALSE(KullaniciSil(o, "yok", b));
  EXPECT_EQ(b.Al(), (Iletiler{soru, "Bilgi: Kullanıcı Bulunamadı"}));
  EXPECT_TRUE(KullaniciSil(o, "ali", b));
  EXPECT_EQ(b.Al(), Iletiler{soru});
  b.cevap = false;
  EXPECT_FALSE(KullaniciSil(o, "ayşe", b));
  EXPECT_EQ(b.Al(), Iletiler{soru});
  EXPECT_EQ(Kullanicilar(o).size(), 1u);
  b.cevap = true;
  EXPECT_TRUE(KullaniciSil(o, "ayşe", b));
  EXPECT_EQ(b.Al(), (Iletiler{soru, son}));
  EXPECT_TRUE(Kullanicilar(o).empty());
}

}  // namespace
}  // namespace belvani
