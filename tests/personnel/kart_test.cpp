// Card and identity: the steps of saving and deleting with their words, and moves on a cursor that others move too.
#include "personnel/kart.h"

#include "core/session/sirket.h"
#include "personnel/kimlik.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Kart;

struct PersonelKarti : test::SirketTesti {
  bool Kaydet(const Sicil& kart) { return KartKaydet(o, kart, "", bildirim); }
  std::size_t KayitSayisi() { return Hepsi<Sicil>().size() + Hepsi<Kimlik>().size(); }
};

TEST_F(PersonelKarti, ANewCodeGetsCardAndIdentityAndTheSecondSaveEdits) {
  ASSERT_TRUE(Kaydet(Kart(" a1 ", "Işıl")));
  EXPECT_EQ(KimlikBul(o, "A1").value().uyruk, "T.C.");
  o.depo.db.IcMotor().Calistir("update sicil set cikiskodu = 3, cikissebebi = 'istifa', meslekkod = '2411.01'");
  Sicil degisen = Kart("A1", "Işık");
  degisen.ucret = Tutar(1250.5);
  degisen.ciktar = Tarih(2009, 3, 31);
  ASSERT_TRUE(Kaydet(degisen));
  degisen.kod = "a1";
  degisen.cikiskodu = 3;
  degisen.cikissebebi = "istifa";
  degisen.meslekkod = "2411.01";
  EXPECT_EQ(KartBul(o, "a1"), degisen) << "columns that the card does not show stay";
  EXPECT_EQ(KayitSayisi(), 2u);
  ASSERT_TRUE(KartKaydet(o, degisen, o.FirmaDizini + DepoDosyasi, bildirim)) << "any file may be the picture";
  EXPECT_TRUE(FotoOku(o, "A1"));
  EXPECT_TRUE(FotoSil(o, "A1", bildirim));
  EXPECT_FALSE(FotoOku(o, "a1"));
}

TEST_F(PersonelKarti, BrokenCardsAreRefusedInWordsAndNothingIsSaved) {
  Sicil ilkGun = Kart("1");
  ilkGun.girtar = Tarih(1899, 12, 30);  // serial number 0
  const std::pair<Sicil, std::string> satirlar[] = {
      {Kart("  "), "Bilgi: Personel Sicil Kodu Hatalı"},
      {ilkGun, "Bilgi: Giriş Tarihi Hatalı"},
      {Kart("123456789", std::string(21, 'x')),
       "Bilgi: Sicil No: en çok 8 harf olabilir\nAdı: en çok 20 harf olabilir"},
  };
  for (const auto& [kart, ileti] : satirlar) {
    EXPECT_FALSE(Kaydet(kart));
    EXPECT_EQ(bildirim.Al(), Iletiler{ileti});
  }
  Engelle("insert on sicil");
  EXPECT_FALSE(Kaydet(Kart("1")));
  EXPECT_EQ(bildirim.Al(), Iletiler{"Uyarı: Personel Kartı Kaydedilemiyor"});
  EXPECT_EQ(KayitSayisi(), 0u) << "nor an identity alone";
  Engelle("insert on kimlik");
  EXPECT_TRUE(Kaydet(Kart("1"))) << "the card goes on without its identity";
  EXPECT_EQ(bildirim.Al(), Iletiler{"Uyarı: Personel Kimlik Bilgileri Kaydedilemedi"});
  EXPECT_EQ(KayitSayisi(), 1u);
}

TEST_F(PersonelKarti, DeletingOnEitherScreenRemovesBothAndLeavesThePayRecords) {
  const std::tuple<bool (*)(Oturum&, std::string_view, Bildirim&), std::string, std::string> ekranlar[] = {
      {&KartSil, "Soru: Personel Kaydını Silmek İstiyormusunuz ?", "Uyarı: Personel Kartı Silinemedi"},
      {&KimlikSil, "Soru: Personel Kimlik Bilgilerini Silmek İstiyormusunuz ?",
       "Uyarı: Personel Kimlik Bilgisi Silinemedi"},
  };
  Brd brd;
  brd.kod = "1";
  Yaz(brd);
  for (const auto& [sil, soru, silinemedi] : ekranlar) {
    ASSERT_TRUE(Kaydet(Kart("1")));
    bildirim.cevap = false;
    EXPECT_FALSE(sil(o, "1", bildirim));
    bildirim.cevap = true;
    for (const char* tablo : {"delete on sicil", "delete on kimlik"}) {
      Engelle(tablo);
      EXPECT_FALSE(sil(o, "1", bildirim));
    }
    EXPECT_EQ(KayitSayisi(), 2u);
    Engelle("");
    EXPECT_TRUE(sil(o, " 1", bildirim));
    EXPECT_EQ(KayitSayisi(), 0u);
    EXPECT_FALSE(sil(o, "1", bildirim));
    EXPECT_EQ(bildirim.Al(),
              (Iletiler{soru, soru, silinemedi, soru, silinemedi, soru, soru, "Bilgi: Silinecek Personel Bulunamadı"}));
  }
  EXPECT_EQ(Hepsi<Brd>().size(), 1u);
}

TEST_F(PersonelKarti, MovesGoOnFromThePersonOnTheScreen) {
  for (const char* kod : {"c3", "ç1", "d5", "a1"}) ASSERT_TRUE(Kaydet(Kart(kod)));
  const std::tuple<Yon, const char*, const char*> hareketler[] = {
      {Yon::Ilk, "d5", "a1"},    {Yon::Sonraki, "A1", "c3"}, {Yon::Sonraki, "c9", "ç1"}, {Yon::Son, "", "d5"},
      {Yon::Onceki, "c9", "c3"}, {Yon::Onceki, "ç1", "c3"},  {Yon::Onceki, "a1", "-"},
  };
  for (const auto& [yon, simdiki, beklenen] : hareketler) {
    o.depo.sicil.SonKayit();  // another screen
    const auto kart = KartGit(o, yon, simdiki);
    EXPECT_EQ(kart ? kart->kod : "-", beklenen) << int(yon) << " from " << simdiki;
  }
  EXPECT_FALSE(KartGit(o, Yon::Sonraki, "d5"));
  EXPECT_EQ(o.depo.sicil.MetinOku("kod"), "d5") << "the cursor stays with the last person";
}

TEST_F(PersonelKarti, AnIdentityStandsWithoutACardAndIsEdited) {
  Kimlik kimlik;
  EXPECT_FALSE(KimlikKaydet(o, kimlik, bildirim));
  EXPECT_EQ(bildirim.Al(), Iletiler{"Uyarı: Personel Kodu Bulunamadı.."});
  kimlik.kod = "k1";
  ASSERT_TRUE(KimlikKaydet(o, kimlik, bildirim));
  kimlik.dogtar = Tarih(1970, 5, 5);
  ASSERT_TRUE(KimlikKaydet(o, kimlik, bildirim));
  EXPECT_EQ(KisiAdi(o, "k1"), "");
  ASSERT_TRUE(Kaydet(Kart("k1", "Işıl", "Öz")));
  EXPECT_EQ(Hepsi<Kimlik>(), std::vector{kimlik}) << "the card leaves an identity that is there alone";
  EXPECT_EQ(KisiAdi(o, "K1"), "Işıl Öz");
}

}  // namespace
}  // namespace belvani
