// How an entry of the payroll screen closes: what is saved, asked, deleted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/store/engel.h"
#include "girisekrani.h"
#include "payroll/hazirlik/mahsupkaybi.h"

namespace belvani {
namespace {

using test::GirisEkrani;
using testing::ElementsAre;

// A payroll is never a mixture: whose entry stands is asked.
TEST(BordroGirisi, ARecordThatAnotherUserHasSavedIsNotOverwritten) {
  GirisEkrani e;
  e.Kisi("A", 900);
  e.Ac(2009, 1);
  ASSERT_EQ(e.KodAl("A"), KodSonucu::Yuklendi);
  e.Hazirla(2009, 1);
  const Brd onunki = e.Kayit("A", 2009, 1);
  test::Al(e.giris.BorcAyarla(Tutar(5)));
  const std::string soru =
      "Soru: Kayıt bu arada başka bir kullanıcı tarafından eklenmiş: A, Ocak.2009 bordrosu\n"
      "Ekrandaki Giriş Bırakılsın ve Kişi Yeniden Getirilsin mi ?";
  e.bildirim.Al();
  e.bildirim.cevap = false;
  EXPECT_EQ(e.Kapat(), KapanisSonucu::KaydetmeHatasi);
  EXPECT_EQ(e.giris.Giris().borckes, Tutar(5)) << "what was typed is kept";
  e.bildirim.cevap = true;
  EXPECT_EQ(e.Kapat(), KapanisSonucu::YenidenGeldi);
  EXPECT_EQ(e.bildirim.Al(), (test::Iletiler{soru, soru}));
  EXPECT_EQ(e.Kayit("A", 2009, 1), onunki);
  EXPECT_TRUE(e.giris.KayitVar() && e.giris.Giris().borckes == Tutar());
}

TEST(BordroGirisi, ClosesOnlyOverCompleteDays) {
  using enum KapanisSonucu;
  const std::string sor = "Bilgi: Eksik Gün Bildirildi\nEksik Gün Sebebini giriniz";
  const std::string son = "Bilgi: Bordro Hazırlık Sona Erdi";
  struct Durum {
    int ng, sebep, ucretsizizin;  // ucretsizizin -1: as choosing the reason fills it
    BordroAlani alan;
    KapanisSonucu sonuc;
    test::Iletiler iletiler;
  };
  const Durum durumlar[] = {
      {30, 0, -1, BordroAlani::NormalGun, Bitti, {son}},
      {20, 0, -1, BordroAlani::NormalGun, KaldiEksikGun, {sor}},
      {20, 1, -1, BordroAlani::UcretsizIzin, Bitti, {sor, son}},  // 11 of January's 31
      {20,
       1,
       10,
       BordroAlani::UcretsizIzin,
       KaldiEksikGun,
       {"Bilgi: Eksik Gün Bildirildi\nÜcretsiz İzin ile Toplam Gün birlikte 31 olmalı"}},
      {31,
       0,
       -1,
       BordroAlani::NormalGun,
       KaldiGunFazla,
       {"Bilgi: Bu Personel 30 Gün Çalışmış\nÇalışma Gününü Fazla Girmişiniz"}},
      {0,
       1,
       -1,
       BordroAlani::UcretsizIzin,
       KaldiNetsiz,
       {sor, "Bilgi: Net Ödenen Sıfırın Üstünde Değil, Bordrosu Kaydedilmedi\nÇalışılan gün girilmemiş"}},
  };
  GirisEkrani e;
  e.Kisi("1", 900);
  for (const Durum& d : durumlar) {
    e.Ac(2009, 1);
    e.KodAl("1");
    e.giris.Giris().ht = 0;
    e.giris.Giris().ng = std::uint8_t(d.ng);
    e.giris.Hesapla();
    e.giris.SebepSec(d.sebep);
    if (d.ucretsizizin >= 0) e.giris.Giris().ucretsizizin = std::uint8_t(d.ucretsizizin);
    e.giris.AlanaGirildi(d.alan);
    EXPECT_EQ(e.Kapat(), d.sonuc) << d.ng;
    EXPECT_EQ(e.bildirim.Al(), d.iletiler);
    EXPECT_EQ(e.Kayitlar(2009, 1).size(), d.sonuc == Bitti ? 1u : 0u) << d.ng;
    EXPECT_EQ(e.giris.Giris().ng, d.ng) << "what was typed stays";
    test::Al(BordroSil(e.o, 2009, 1));
  }
}

// What tells of the days worked makes room for the missing days, and stays beside who is giving them.
TEST(BordroGirisi, ThePanelOfTheDaysGoesWhereTheyAreMissing) {
  GirisEkrani e;
  e.Kisi("1", 900, Tarih(2009, 1, 11));
  for (const auto& [alan, kalir] : {std::pair(BordroAlani::NormalGun, false),
                                    {BordroAlani::Yardim11, false},
                                    {BordroAlani::EksikSebep, true},
                                    {BordroAlani::UcretsizIzin, true}}) {
    e.Ac(2009, 1);
    e.KodAl("1");
    EXPECT_TRUE(e.giris.CalismaPaneli().has_value());
    e.giris.Giris().ng = 10;
    e.giris.AlanaGirildi(alan);
    EXPECT_EQ(e.Kapat(), KapanisSonucu::KaldiEksikGun);
    EXPECT_EQ(e.giris.CalismaPaneli().has_value(), kalir) << int(alan);
  }
}

// Whatever had the focus last, an entry that someone was in closes, and one that nobody touched stays open.
TEST(BordroGirisi, ClosesWhatWasVisitedOrChanged) {
  GirisEkrani e;
  for (const char* kod : {"1", "2", "3"}) e.Kisi(kod, 900);
  Sablon sablon = VarsayilanSablon();
  sablon.SablonYardim[0] = Tutar(30);
  sablon.SablonYardimTip[0] = 1;  // by the day: spread when the person comes up
  ASSERT_TRUE(SablonKaydet(e.o.FirmaDizini, sablon));
  e.Ac(2009, 1);
  EXPECT_EQ(e.Kapat(), KapanisSonucu::Kapanmadi);
  e.giris.AlanaGirildi(BordroAlani::NormalGun);  // nobody is selected yet
  e.KodAl("1");
  for (const BordroAlani alan : {BordroAlani::Kod, BordroAlani::Sonuc}) {
    e.giris.AlanaGirildi(alan);
    e.giris.Hesapla();
    EXPECT_EQ(e.Kapat(), KapanisSonucu::Kapanmadi);
  }
  e.giris.AlanaGirildi(YardimAlani(3));
  e.giris.AlanaGirildi(BordroAlani::Sonuc);
  EXPECT_EQ(e.giris.SonGirisAlani(), YardimAlani(3));
  EXPECT_EQ(e.Kapat(), KapanisSonucu::SonrakiVar);

  e.KodAl("2");
  EXPECT_EQ(e.Kapat(), KapanisSonucu::Kapanmadi) << "the visit was to the one before";
  test::Al(e.giris.BorcAyarla(Tutar(10)));
  EXPECT_EQ(e.Kapat(), KapanisSonucu::SonrakiVar);
  e.KodAl("3");
  e.giris.Giris().ng = 20;
  e.giris.Giris().ht = 0;
  EXPECT_EQ(e.Kapat(), KapanisSonucu::KaldiEksikGun);
  e.giris.AlanaGirildi(BordroAlani::Kod);
  EXPECT_EQ(e.Kapat(), KapanisSonucu::KaldiEksikGun) << "a refused closing is tried again";
  EXPECT_EQ(e.Kayitlar(2009, 1).size(), 2u);
}

TEST(BordroGirisi, SavedAgainKeepsTheRatesAndAsks) {
  GirisEkrani e;
  e.Kisi("1", 900);
  e.Hazirla(2009, 1);
  const Brd ilk = e.Kayit("1", 2009, 1);
  e.Ac(2009, 1);
  e.depo.yasal.oranlar.IsciOran[0].has = Tek(50);
  ++e.depo.yasalSurumu;
  for (const bool cevap : {false, true}) {
    e.bildirim.cevap = cevap;
    e.KodAl("1");
    e.giris.Giris().fm1 = Tek(10);
    EXPECT_EQ(e.Kapat(), KapanisSonucu::Bitti);
    EXPECT_EQ(e.bildirim.Al()[0], "Soru: Puantaj Yeniden Kaydedilecek ?");
    EXPECT_EQ(e.Kayit("1", 2009, 1) == ilk, !cevap);
  }
  const Brd yeni = e.Kayit("1", 2009, 1);
  EXPECT_EQ(yeni.oto, ilk.oto);
  EXPECT_EQ(yeni.sskiscior, ilk.sskiscior);
  EXPECT_EQ(yeni.brutkaz, ilk.brutkaz + Tutar(56.25)) << "10 hours × 1.5 × 900 / 30 / 8";
}

// Why there is no pay is told, and that an earlier record stands.
TEST(BordroGirisi, WithoutAPayTellsWhyAndWhatWasKept) {
  GirisEkrani e;
  e.Kisi("1", 0);
  e.Kisi("2", 900);
  e.Kisi("3", 900);
  e.motor().Calistir("update sicil set hesap = 'YOK' where kod = '2'");
  e.Hazirla(2009, 1);
  const Brd ucuncu = e.Kayit("3", 2009, 1);
  e.Ac(2009, 1);
  const std::string kaydedilmedi = "Bilgi: Net Ödenen Sıfırın Üstünde Değil, Bordrosu Kaydedilmedi\n";
  const auto kapanir = [&](const char* kod, double borc, const std::string& neden) {
    ASSERT_EQ(e.KodAl(kod), KodSonucu::Yuklendi);
    e.giris.AlanaGirildi(BordroAlani::NormalGun);
    e.giris.Giris().borckes = Tutar(borc);
    e.bildirim.Al();
    EXPECT_EQ(e.Kapat(), KapanisSonucu::KaldiNetsiz);
    EXPECT_EQ(e.bildirim.Al(), test::Iletiler{kaydedilmedi + neden});
  };
  kapanir("1", 0, "Personel kartında ücreti yazılı değil");
  kapanir("2", 0, "Girilen satırlardan hiçbiri hesap grubunda SSK matrahına girmiyor, brüt kazanç yok");
  EXPECT_EQ(e.giris.KisiUyarisi(), "Hesap grubu tanımlı değil: YOK");
  kapanir("3", 5000,
          "Kesintiler kazancı aşıyor: brüt kazanç 900.00, yasal kesinti 255.15, özel kesinti 5,000.00\nDaha önce "
          "kaydedilen bordrosu olduğu gibi duruyor");
  EXPECT_EQ(e.Kayit("3", 2009, 1), ucuncu);
}

TEST(BordroGirisi, DeletesAndDoublesNothing) {
  GirisEkrani e;
  for (const char* kod : {"1", "2"}) e.Kisi(kod, 900);
  e.Ac(2009, 2);
  e.KodAl("2");
  e.giris.Giris().fm1 = Tek(5);
  test::Engelle(e.motor(), "insert", "brd");
  EXPECT_EQ(e.Kapat(), KapanisSonucu::KaydetmeHatasi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::StartsWith("Uyarı: Bordro Kayıtları Güncellenemiyor: ")));
  test::EngeliKaldir(e.motor(), "brd");
  e.Hazirla(2009, 2);  // another computer was quicker
  EXPECT_EQ(e.Kapat(), KapanisSonucu::YenidenGeldi) << "a failed save keeps the entry open";
  e.giris.AlanaGirildi(BordroAlani::NormalGun);
  e.giris.Giris().fm1 = Tek(5);
  EXPECT_EQ(e.Kapat(), KapanisSonucu::Bitti);
  EXPECT_EQ(e.Kayit("2", 2009, 2).fm1, Tek(5));

  e.KodAl("2");
  e.bildirim.cevap = false;
  EXPECT_EQ(test::Al(e.giris.KayitSil()), Silme::Silinmedi);
  EXPECT_EQ(test::Al(e.giris.AyinBordrosunuSil()), Silme::Silinmedi);
  EXPECT_EQ(e.giris.AyiGeriAl().KusurMetni(), "Saklanan bordro yok: Şubat 2009");
  EXPECT_EQ(e.Kayitlar(2009, 2).size(), 2u);
  e.bildirim.cevap = true;
  e.bildirim.Al();
  EXPECT_EQ(test::Al(e.giris.KayitSil()), Silme::Silindi);
  e.KodAl("2");
  EXPECT_EQ(test::Al(e.giris.KayitSil()), Silme::Silinmedi) << "no record, no question";
  EXPECT_EQ(e.Kayitlar(2009, 2).size(), 1u);
  EXPECT_THAT(e.giris.BordroNolari(), ElementsAre("1", "Yeni"));
  // Given up before the records go: `is` is never run, or thrown out of.
  EXPECT_EQ(test::Al(e.giris.AyinBordrosunuSil([](const auto&) { return false; })), Silme::Silinmedi);
  EXPECT_EQ(e.Kayitlar(2009, 2).size(), 1u);
  EXPECT_EQ(test::Al(e.giris.AyinBordrosunuSil()), Silme::Silindi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::StartsWith("Soru: Kayıt Silinecek Eminmisiniz ?\n2 "),
                                           "Soru: Bordro Tamamen Silinecek Eminmisiniz ?\nŞubat 2009, 1 kişi",
                                           "Soru: Bordro Tamamen Silinecek Eminmisiniz ?\nŞubat 2009, 1 kişi"));
  EXPECT_TRUE(e.Kayitlar(2009, 2).empty());
}

// Until 2007 the payment of a refund is typed into the saved record: who would take it away is told first.
TEST(BordroGirisi, TypedPaymentsOfTheRefundAreToldBeforeTheyGo) {
  for (const auto& [yil, sorulur] : {std::pair(2005, true), {2008, false}}) {
    GirisEkrani e;
    e.Kisi("A1", 1000);
    ASSERT_TRUE(e.Hazirla(yil, 3).sorunlar.empty());
    e.motor().Calistir("update brd set ogv = 123400");
    e.Ac(yil, 3);
    e.bildirim.Al();
    ASSERT_EQ(e.KodAl("A1"), KodSonucu::Yuklendi);
    EXPECT_EQ(e.giris.KisiUyarisi().starts_with("Kayıttaki özel gider indirimi ödemesi (12.34)"), sorulur);
    e.bildirim.Al();
    e.bildirim.cevap = false;
    EXPECT_EQ(test::Al(e.giris.MahsupSilinsinMi()), !sorulur);
    EXPECT_EQ(e.bildirim.Al().size(), sorulur ? 1u : 0u);
    e.giris.AlanaGirildi(BordroAlani::NormalGun);
    e.Kapat();
    const test::Iletiler sorulan = e.bildirim.Al();
    ASSERT_FALSE(sorulan.empty());
    EXPECT_EQ(sorulan[0].find("elle yazılmış") != std::string::npos, sorulur) << sorulan[0];
    EXPECT_EQ(e.Kayitlar(yil, 3)[0].ogv, Tutar(12.34)) << "the answer was no";
    const auto sonuc = e.Hazirla(yil, 3);
    EXPECT_EQ(sonuc.sorunlar.size(), sorulur ? 1u : 0u);
    if (sorulur) {
      EXPECT_EQ(sonuc.sorunlar[0].derece, Derece::Uyari);
      EXPECT_EQ(e.Kayitlar(yil, 3)[0].ogv, Tutar());
    }
    EXPECT_FALSE(AyinMahsupKaybi(e.motor(), yil, 4, 2));
  }
}

}  // namespace
}  // namespace belvani
