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
  // The card comes up and is saved as it is given.
  bool Kaydet(const Sicil& kart, const std::string& resim = {}) {
    const auto sonuc = KartKaydet(o, {.ilk = KartBul(o, kart.kod), .simdi = kart}, resim);
    if (sonuc)
      for (const Kusur& uyari : sonuc->uyarilar) bildirim.KusuruGoster(uyari);
    return Bildir(sonuc);
  }
  bool Sil(Sonuc<Silme> (*sil)(Oturum&, std::string_view, Bildirim&), const char* kod) {
    const auto silme = sil(o, kod, bildirim);
    return Bildir(silme) && *silme == Silme::Silindi;
  }
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
  ASSERT_TRUE(Kaydet(degisen, o.FirmaDizini + DepoDosyasi)) << "any file may be the picture";
  EXPECT_TRUE(FotoOku(o, "A1"));
  ASSERT_TRUE(Kaydet(degisen, "/yok.jpg"));
  EXPECT_EQ(bildirim.Al(), Iletiler{"Uyarı: Resim Kaydedilemedi\n/yok.jpg"}) << "the card is saved all the same";
  EXPECT_TRUE(FotoSil(o, "A1"));
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
  const std::tuple<Sonuc<Silme> (*)(Oturum&, std::string_view, Bildirim&), std::string, std::string> ekranlar[] = {
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
    EXPECT_FALSE(Sil(sil, "1"));
    bildirim.cevap = true;
    for (const char* tablo : {"delete on sicil", "delete on kimlik"}) {
      Engelle(tablo);
      EXPECT_FALSE(Sil(sil, "1"));
    }
    EXPECT_EQ(KayitSayisi(), 2u);
    Engelle("");
    EXPECT_TRUE(Sil(sil, " 1"));
    EXPECT_EQ(KayitSayisi(), 0u);
    EXPECT_FALSE(Sil(sil, "1"));
    const std::string adli = soru + "\n1 Ali Veli";
    EXPECT_EQ(bildirim.Al(), (Iletiler{adli, adli, silinemedi, adli, silinemedi, adli, soru + "\n1",
                                       "Bilgi: Silinecek Personel Bulunamadı"}));
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
    const auto kart = KartGit(o, yon, simdiki);
    EXPECT_EQ(kart ? kart->kod : "-", beklenen) << int(yon) << " from " << simdiki;
  }
  EXPECT_FALSE(KartGit(o, Yon::Sonraki, "d5"));
  KisiSil(o, "c3");
  EXPECT_EQ(KartGit(o, Yon::Sonraki, "c3")->kod, "ç1") << "who is gone keeps his place";
}

TEST_F(PersonelKarti, AnIdentityStandsWithoutACardAndIsEdited) {
  Kimlik kimlik;
  EXPECT_FALSE(Bildir(KimlikKaydet(o, {.simdi = kimlik})));
  EXPECT_EQ(bildirim.Al(), Iletiler{"Uyarı: Personel Kodu Bulunamadı.."});
  kimlik.kod = "k1";
  ASSERT_TRUE(KimlikKaydet(o, {.simdi = kimlik}));
  kimlik.dogtar = Tarih(1970, 5, 5);
  ASSERT_TRUE(KimlikKaydet(o, {.ilk = KimlikBul(o, "K1"), .simdi = kimlik}));
  EXPECT_EQ(KisiAdi(o, "k1"), "");
  ASSERT_TRUE(Kaydet(Kart("k1", "Işıl", "Öz")));
  EXPECT_EQ(Hepsi<Kimlik>(), std::vector{kimlik}) << "the card leaves an identity that is there alone";
  EXPECT_EQ(KisiAdi(o, "K1"), "Işıl Öz");
}

// Two desks on one company.
struct IkiKullanici : PersonelKarti {
  Oturum obur;

  void SetUp() override {
    PersonelKarti::SetUp();
    obur.DataPath = o.DataPath;
    ASSERT_TRUE(SirketAc(obur, "DENEME"));
    ASSERT_TRUE(Kaydet(Kart("A1")));
  }
  Okunan<Sicil> Getir(Oturum& kullanici) {
    const auto kart = KartBul(kullanici, "a1");
    return {.ilk = kart, .simdi = kart.value_or(Sicil{})};
  }
};

TEST_F(IkiKullanici, KeepBothTheirChangesOrAreToldWhereTheyMeet) {
  auto benim = Getir(o), onun = Getir(obur);
  onun.simdi.verda = "Konak";
  onun.simdi.ucret = Tutar(1100);
  ASSERT_TRUE(KartKaydet(obur, onun));
  benim.simdi.adi = "Işıl";
  ASSERT_TRUE(KartKaydet(o, benim));
  EXPECT_EQ(KartBul(o, "a1")->adi + KartBul(o, "a1")->verda, "IşılKonak") << "different fields";

  benim.simdi.ucret = Tutar(1200);
  const auto engel = KartKaydet(o, benim);
  ASSERT_TRUE(!engel && engel.Kusuru().cakisma);
  EXPECT_EQ(engel.KusurMetni(), "Kayıt bu arada başka bir kullanıcı tarafından değiştirilmiş: A1 (Ücreti)");
  EXPECT_EQ(engel.Kusuru().alan, AlanTutamagi(sicil::ucret));
  EXPECT_EQ(engel.Kusuru().cakisma->onunki.ucret, Tutar(1100));
  EXPECT_EQ(KartBul(o, "a1")->ucret, Tutar(1100)) << "nothing is written";
}

TEST_F(IkiKullanici, ADeletedPersonIsNotAddedUnseenNorANewCodeOverwritten) {
  auto benim = Getir(o);
  benim.simdi.adi = "Işıl";
  ASSERT_TRUE(KisiSil(obur, "A1"));
  const auto silinmis = KartKaydet(o, benim);
  ASSERT_TRUE(!silinmis && silinmis.Kusuru().cakisma);
  EXPECT_EQ(silinmis.Kusuru().cakisma->tur, CakismaTuru::Silinmis);
  EXPECT_EQ(KayitSayisi(), 0u) << "nor an identity alone";

  ASSERT_TRUE(KartKaydet(obur, {.simdi = Kart("A1", "Can")}));
  const auto eklenmis = KartKaydet(o, {.simdi = Kart("a1", "Ali")});
  ASSERT_TRUE(!eklenmis && eklenmis.Kusuru().cakisma);
  EXPECT_EQ(eklenmis.Kusuru().cakisma->tur, CakismaTuru::Eklenmis);
  EXPECT_EQ(KartBul(o, "a1")->adi, "Can");
}

}  // namespace
}  // namespace belvani
