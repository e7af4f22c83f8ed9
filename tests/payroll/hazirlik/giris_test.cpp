// The payroll screen without the screen: who comes up, what closes and is saved; and that the shipped sample company,
// typed in person by person, has the records of the mass run.
#include "payroll/hazirlik/giris.h"

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>

#include "core/csv.h"
#include "core/store/engel.h"
#include "core/tables/uye.h"
#include "payroll/hazirlik/mahsupkaybi.h"
#include "sirket.h"

namespace belvani {
namespace {

using testing::ElementsAre;

struct Ekran : test::Sirket {
  ParametreDeposu depo{o};
  BordroGirisi giris{o, depo, bildirim};

  void Ac(int yil, int ay) {
    test::Al(depo.MevzuatiGetir(o, {yil, ay}));
    ASSERT_TRUE(FirmaYukle(o));
    test::Al(depo.firma.Yukle());
    o.firma.firmayil = std::int16_t(yil);
    o.firma.firmaay = std::uint8_t(ay);
    ASSERT_TRUE(giris.Ac());
  }
};

// Rows of a file of the sample company; columns of other tables are passed over.
template <class Kayit>
std::vector<GirisSatiri> OrnekOku(const std::string& ad, std::vector<Kayit>& kayitlar) {
  std::ifstream dosya(test::KaynakYolu("data/ornek/" + ad), std::ios::binary);
  const CsvTablosu csv = test::Al(CsvOku(std::string(std::istreambuf_iterator<char>(dosya), {})));
  std::vector<GirisSatiri> girisler;
  std::string kusur;
  for (const CsvSatiri& satir : csv.satirlar) {
    Kayit& kayit = kayitlar.emplace_back();
    GirisSatiri& giris = girisler.emplace_back();
    for (std::size_t i = 0; i < csv.basliklar.size(); ++i)
      Kayit::HerKolon([&](const auto& kolon) {
        if (kolon.ad != csv.basliklar[i]) return;
        UyeyeYaz(kayit.*kolon.uye, MetindenDeger(kolon, satir.hucreler[i], kusur));
        if (kolon.ad != "kod") giris.verilen.insert(kolon.ad);
      });
  }
  return girisler;
}

template <class Kayit>
void OrnekTablo(Ekran& e, const std::string& ad) {
  std::vector<Kayit> kayitlar;
  OrnekOku(ad, kayitlar);
  e.motor().Calistir("delete from " + std::string(Kayit::TabloAdi));
  for (const Kayit& k : kayitlar) e.Yaz(k);
}

std::vector<GirisSatiri> OrnekGirisleri(int yil, int ay) {
  std::vector<Brd> degerler;
  auto girisler =
      OrnekOku("giris/" + std::to_string(yil) + (ay < 10 ? "-0" : "-") + std::to_string(ay) + ".csv", degerler);
  for (std::size_t i = 0; i < girisler.size(); ++i) {
    girisler[i].deger = degerler[i];
    girisler[i].kod = degerler[i].kod;
  }
  return girisler;
}

// Types the month as a user would, from the first person to the last.
void AyiGir(BordroGirisi& giris, const std::vector<GirisSatiri>& girisler) {
  auto ilk = giris.Git(Yon::Ilk);
  while (ilk == KodSonucu::DonemDisi) ilk = giris.Git(Yon::Sonraki);
  auto sonuc = KapanisSonucu::SonrakiVar;
  while (sonuc == KapanisSonucu::SonrakiVar) {
    giris.KodAl(giris.Kod());
    for (const GirisSatiri& g : girisler) {
      if (g.kod != giris.Kod()) continue;
      Brd::HerKolon([&](const auto& kolon) {
        if (g.verilen.contains(kolon.ad) && kolon.ad != "eksiksebebi" && kolon.ad != "borckes")
          giris.Giris().*kolon.uye = g.deger.*kolon.uye;
      });
      giris.Hesapla();
      if (g.deger.eksiksebebi != 0) giris.SebepSec(EksikSebepSec(g.deger.eksiksebebi));
      test::Al(giris.BorcAyarla(g.deger.borckes));
    }
    const auto& panel = giris.Toplamlar().panel;
    EXPECT_EQ(panel.toplam, panel.muaf + panel.indirim) << giris.Kod();
    giris.AlanaGirildi(BordroAlani::NormalGun);
    sonuc = giris.Kapat();
  }
  EXPECT_EQ(sonuc, KapanisSonucu::Bitti) << giris.Kod();
}

TEST(BordroGirisi, GivesTheSampleCompanyTheRecordsOfTheMassRun) {
  Ekran e;
  if (!test::SunucudaMi()) e.motor().Calistir("pragma synchronous = off");
  OrnekTablo<Firma>(e, "firma.csv");
  OrnekTablo<Sicil>(e, "personel.csv");
  OrnekTablo<Esco>(e, "aile.csv");
  OrnekTablo<Kaztan>(e, "kaztan.csv");
  OrnekTablo<Muaf>(e, "muaf.csv");
  OrnekTablo<Indir>(e, "indir.csv");
  OrnekTablo<Sendika>(e, "sendika.csv");
  std::size_t sayi = 0;
  for (const int yil : {2006, 2008, 2009}) {
    Sablon sablon = VarsayilanSablon();
    sablon.SablonYardim = {Tutar(30), Tutar(78), Tutar(33.33)};
    sablon.SablonYardimTip = {0, std::uint8_t(yil - 2007), 1};  // each kind in turn; that of 2006 is none
    ASSERT_TRUE(SablonKaydet(e.o.FirmaDizini, sablon));
    for (int ay = 1; ay <= 12; ++ay) {
      e.Ac(yil, ay);
      const auto girisler = OrnekGirisleri(yil, ay);
      AyiGir(e.giris, girisler);
      const auto ekrandan = e.Kayitlar(yil, ay);
      ASSERT_TRUE(BordroSil(e.o, yil, ay));
      ASSERT_TRUE(test::Al(TopluHazirla(e.o, e.Kosul(yil, ay), girisler)).kaydedildi);
      auto topludan = e.Kayitlar(yil, ay);
      ASSERT_EQ(ekrandan.size(), topludan.size()) << yil << "-" << ay;
      for (std::size_t i = 0; i < topludan.size(); ++i) {
        topludan[i].oto = ekrandan[i].oto;
        EXPECT_EQ(ekrandan[i], topludan[i]) << yil << "-" << ay << " " << topludan[i].kod;
      }
      sayi += topludan.size();
    }
  }
  EXPECT_GT(sayi, 700u);
}

// A payroll is never a mixture: whose entry stands is asked.
TEST(BordroGirisi, ARecordThatAnotherUserHasSavedIsNotOverwritten) {
  Ekran e;
  e.Kisi("A", 900);
  e.Ac(2009, 1);
  ASSERT_EQ(e.giris.KodAl("A"), KodSonucu::Yuklendi);
  e.Hazirla(2009, 1);
  const Brd onunki = e.Kayit("A", 2009, 1);
  test::Al(e.giris.BorcAyarla(Tutar(5)));
  const std::string soru =
      "Soru: Kayıt bu arada başka bir kullanıcı tarafından eklenmiş: A, Ocak.2009 bordrosu\n"
      "Ekrandaki Giriş Bırakılsın ve Kişi Yeniden Getirilsin mi ?";
  e.bildirim.Al();
  e.bildirim.cevap = false;
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaydetmeHatasi);
  EXPECT_EQ(e.giris.Giris().borckes, Tutar(5)) << "what was typed is kept";
  e.bildirim.cevap = true;
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::YenidenGeldi);
  EXPECT_EQ(e.bildirim.Al(), (test::Iletiler{soru, soru}));
  EXPECT_EQ(e.Kayit("A", 2009, 1), onunki);
  EXPECT_TRUE(e.giris.KayitVar() && e.giris.Giris().borckes == Tutar());
}

TEST(BordroGirisi, WalksOverWhoDoesNotBelongToThePeriod) {
  Ekran e;
  e.Kisi("a1", 900);
  e.Kisi("B", 900, Tarih(2009, 5, 1));
  e.Kisi("C", 900, Tarih());
  e.Kisi("D", 900, Tarih(2009, 1, 20));
  e.motor().Calistir("update firma set issaati = 0");
  e.Ac(2009, 1);
  EXPECT_EQ(e.giris.KodAl(" A1 "), KodSonucu::Yuklendi);
  EXPECT_TRUE(e.giris.AlanAcik(BordroAlani::HaftaTatili));
  EXPECT_FALSE(e.giris.AlanAcik(BordroAlani::UcretliIzin)) << "the built-in group opens the first two lines alone";
  e.giris.AlanaGirildi(BordroAlani::NormalGun);
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::SonrakiVar);
  EXPECT_EQ(e.giris.Kod(), "D");
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Kapanmadi) << "who is saved is closed";
  EXPECT_EQ(e.giris.KodAl("d"), KodSonucu::Yuklendi);
  EXPECT_EQ(e.giris.CalismaPaneli()->gun, 12);
  e.giris.Giris().ng = 7;
  e.giris.KodAl("D");
  EXPECT_EQ(e.giris.Giris().ng, 7) << "who is being entered is not read again";
  EXPECT_EQ(e.giris.KodAl("B"), KodSonucu::DonemDisi);
  EXPECT_FALSE(e.giris.AlanAcik(BordroAlani::NormalGun));
  EXPECT_EQ(e.giris.KodAl("yok"), KodSonucu::Bilinmiyor);
  EXPECT_THAT(e.bildirim.Al(),
              ElementsAre("Bilgi: Firma Bilgilerinde İş Saati Yazılmamış", "Bilgi: Personel Giriş Tarihi Hatalı",
                          "Bilgi: Bu İşçinin Giriş veya Çıkış Tarihleri Döneme Uygun Değil",
                          "Bilgi: Bu kodla personel yok: YOK"));
  e.motor().Calistir("delete from firma");
  EXPECT_FALSE(FirmaYukle(e.o));
  EXPECT_FALSE(e.giris.Ac());
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
  Ekran e;
  e.Kisi("1", 900);
  for (const Durum& d : durumlar) {
    e.Ac(2009, 1);
    e.giris.KodAl("1");
    e.giris.Giris().ht = 0;
    e.giris.Giris().ng = std::uint8_t(d.ng);
    e.giris.Hesapla();
    e.giris.SebepSec(d.sebep);
    if (d.ucretsizizin >= 0) e.giris.Giris().ucretsizizin = std::uint8_t(d.ucretsizizin);
    e.giris.AlanaGirildi(d.alan);
    EXPECT_EQ(e.giris.Kapat(), d.sonuc) << d.ng;
    EXPECT_EQ(e.bildirim.Al(), d.iletiler);
    EXPECT_EQ(e.Kayitlar(2009, 1).size(), d.sonuc == Bitti ? 1u : 0u) << d.ng;
    EXPECT_EQ(e.giris.Giris().ng, d.ng) << "what was typed stays";
    test::Al(BordroSil(e.o, 2009, 1));
  }
}

// What tells of the days worked makes room for the missing days, and stays beside who is giving them.
TEST(BordroGirisi, ThePanelOfTheDaysGoesWhereTheyAreMissing) {
  Ekran e;
  e.Kisi("1", 900, Tarih(2009, 1, 11));
  for (const auto& [alan, kalir] : {std::pair(BordroAlani::NormalGun, false),
                                    {BordroAlani::Yardim11, false},
                                    {BordroAlani::EksikSebep, true},
                                    {BordroAlani::UcretsizIzin, true}}) {
    e.Ac(2009, 1);
    e.giris.KodAl("1");
    EXPECT_TRUE(e.giris.CalismaPaneli().has_value());
    e.giris.Giris().ng = 10;
    e.giris.AlanaGirildi(alan);
    EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaldiEksikGun);
    EXPECT_EQ(e.giris.CalismaPaneli().has_value(), kalir) << int(alan);
  }
}

// Whatever had the focus last, an entry that someone was in closes, and one that nobody touched stays open.
TEST(BordroGirisi, ClosesWhatWasVisitedOrChanged) {
  Ekran e;
  for (const char* kod : {"1", "2", "3"}) e.Kisi(kod, 900);
  Sablon sablon = VarsayilanSablon();
  sablon.SablonYardim[0] = Tutar(30);
  sablon.SablonYardimTip[0] = 1;  // by the day: spread when the person comes up
  ASSERT_TRUE(SablonKaydet(e.o.FirmaDizini, sablon));
  e.Ac(2009, 1);
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Kapanmadi);
  e.giris.AlanaGirildi(BordroAlani::NormalGun);  // nobody is selected yet
  e.giris.KodAl("1");
  for (const BordroAlani alan : {BordroAlani::Kod, BordroAlani::Sonuc}) {
    e.giris.AlanaGirildi(alan);
    e.giris.Hesapla();
    EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Kapanmadi);
  }
  e.giris.AlanaGirildi(YardimAlani(3));
  e.giris.AlanaGirildi(BordroAlani::Sonuc);
  EXPECT_EQ(e.giris.SonGirisAlani(), YardimAlani(3));
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::SonrakiVar);

  e.giris.KodAl("2");
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Kapanmadi) << "the visit was to the one before";
  test::Al(e.giris.BorcAyarla(Tutar(10)));
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::SonrakiVar);
  e.giris.KodAl("3");
  e.giris.Giris().ng = 20;
  e.giris.Giris().ht = 0;
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaldiEksikGun);
  e.giris.AlanaGirildi(BordroAlani::Kod);
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaldiEksikGun) << "a refused closing is tried again";
  EXPECT_EQ(e.Kayitlar(2009, 1).size(), 2u);
}

// Another month's law is asked about once and may stay, the user's own figures are confirmed for good, and without law
// nobody comes up.
TEST(BordroGirisi, NoMonthIsPaidUnderAnotherMonthsLawWithoutAWord) {
  Ekran e;
  for (const char* kod : {"1", "2"}) e.Kisi(kod, 900);
  e.Ac(2009, 1);
  const auto kur = [&](MevzuatAyi ay) { test::Al(MevzuatKur(e.o.DataPath, ay, *ParametreAdresi(ay.yil, ay.ay))); };
  kur({2009, 7});  // a colleague has fetched another month meanwhile
  e.bildirim.cevap = false;
  EXPECT_EQ(e.giris.KodAl("1"), KodSonucu::Yuklendi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::AllOf(testing::StartsWith("Soru: Kurulu yasal parametreler Ocak"),
                                                          testing::HasSubstr("(Temmuz 2009)"),
                                                          testing::HasSubstr("693.00 (yayımlanan 666.00)"))));
  EXPECT_EQ(e.depo.yasal.oranlar.AsgariUcret, Tutar(693)) << "what is installed holds here too";
  EXPECT_EQ(e.giris.KodAl("2"), KodSonucu::Yuklendi);
  EXPECT_THAT(e.bildirim.Al(), testing::IsEmpty()) << "answered once";

  e.bildirim.cevap = true;
  kur({2009, 7});
  e.depo.YasalYukle(e.o.DataPath);
  EXPECT_TRUE(e.giris.MevzuatUygun());
  EXPECT_EQ(e.depo.yasal.oranlar.AsgariUcret, Tutar(666)) << "fetched";
  EXPECT_EQ(e.bildirim.Al().size(), 2u);

  YasalOranlar kendi = e.depo.yasal.oranlar;
  kendi.KidemTavan = Tutar(3000);
  ASSERT_TRUE(YasalOranlarKaydet(e.o.DataPath, kendi));
  EXPECT_TRUE(e.giris.MevzuatUygun());
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::HasSubstr("Kıdem T. Tavan: 3,000.00 (yayımlanan 2,260.05)")));
  EXPECT_TRUE(e.giris.MevzuatUygun());
  EXPECT_THAT(e.bildirim.Al(), testing::IsEmpty()) << "confirmed";

  ASSERT_TRUE(VeriYolu(e.o.DataPath).Sil("gvtbl.dat"));
  e.bildirim.cevap = false;
  EXPECT_EQ(e.giris.KodAl("1"), KodSonucu::Yuklenemedi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::HasSubstr("gvtbl.dat yok")));
  EXPECT_FALSE(e.giris.SablondanHazirla());
  EXPECT_TRUE(e.Kayitlar(2009, 1).empty());
}

TEST(BordroGirisi, SavedAgainKeepsTheRatesAndAsks) {
  Ekran e;
  e.Kisi("1", 900);
  e.Hazirla(2009, 1);
  const Brd ilk = e.Kayit("1", 2009, 1);
  e.Ac(2009, 1);
  e.depo.yasal.oranlar.IsciOran[0].has = Tek(50);
  ++e.depo.yasalSurumu;
  for (const bool cevap : {false, true}) {
    e.bildirim.cevap = cevap;
    e.giris.KodAl("1");
    e.giris.Giris().fm1 = Tek(10);
    EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Bitti);
    EXPECT_EQ(e.bildirim.Al()[0], "Soru: Puantaj Yeniden Kaydedilecek ?");
    EXPECT_EQ(e.Kayit("1", 2009, 1) == ilk, !cevap);
  }
  const Brd yeni = e.Kayit("1", 2009, 1);
  EXPECT_EQ(yeni.oto, ilk.oto);
  EXPECT_EQ(yeni.sskiscior, ilk.sskiscior);
  EXPECT_EQ(yeni.brutkaz, ilk.brutkaz + Tutar(56.25)) << "10 hours × 1.5 × 900 / 30 / 8";
}

TEST(BordroGirisi, TotalsDebtAndNetToGross) {
  Ekran e;
  e.Kisi("1", 693);
  e.Ac(2009, 7);
  e.giris.KodAl("1");
  const EkranToplamlari& t = e.giris.Toplamlar();
  EXPECT_EQ(t.yasalKesinti, Tutar(189.54)) << "premium, income tax, stamp duty";
  EXPECT_EQ(t.isciToplam, Tutar(196.47)) << "and unemployment";
  EXPECT_EQ(t.isverenToplam, Tutar(149));
  EXPECT_EQ(t.net, Tutar(546.48));
  EXPECT_EQ(e.giris.BorcAyarla(Tutar(546.49)).KusurMetni(), "Kesinti Limit Aşıldı \n En fazla 546.48 Kesebilirsiniz.");
  EXPECT_TRUE(e.giris.BorcAyarla(Tutar(46.48)));
  EXPECT_EQ(t.net, Tutar(500));
  EXPECT_EQ(e.giris.BorcLimiti(), Tutar(546.48));

  e.giris.Giris().yrd02 = Tutar(477);
  e.giris.NettenBruteCevir(YardimAlani(1));
  EXPECT_EQ(e.giris.Giris().yrd02, Tutar(665.73));
  e.giris.Giris().fm1 = Tek(241);
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaldiHesapsiz);
  EXPECT_TRUE(e.giris.HesapKusuru()->alan == brd::fm1);
  EXPECT_EQ(t.net, Tutar());
}

// Why there is no pay is told, and that an earlier record stands.
TEST(BordroGirisi, WithoutAPayTellsWhyAndWhatWasKept) {
  Ekran e;
  e.Kisi("1", 0);
  e.Kisi("2", 900);
  e.Kisi("3", 900);
  e.motor().Calistir("update sicil set hesap = 'YOK' where kod = '2'");
  e.Hazirla(2009, 1);
  const Brd ucuncu = e.Kayit("3", 2009, 1);
  e.Ac(2009, 1);
  const std::string kaydedilmedi = "Bilgi: Net Ödenen Sıfırın Üstünde Değil, Bordrosu Kaydedilmedi\n";
  const auto kapanir = [&](const char* kod, double borc, const std::string& neden) {
    ASSERT_EQ(e.giris.KodAl(kod), KodSonucu::Yuklendi);
    e.giris.AlanaGirildi(BordroAlani::NormalGun);
    e.giris.Giris().borckes = Tutar(borc);
    e.bildirim.Al();
    EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaldiNetsiz);
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

// The rates on the screen are those of the calculation, and the record keeps them.
TEST(BordroGirisi, OvertypedRatesAreCalculatedSavedAndComeBack) {
  Ekran e;
  e.Kisi("1", 900);
  e.Ac(2009, 1);
  e.giris.KodAl("1");
  EXPECT_EQ(e.giris.KisiUyarisi(), "");
  Brd& b = e.giris.Giris();
  b.sskiscior = Tek(9);
  b.sskisverenor = Tek(10);
  b.issiziscior = Tek(2);
  b.issizisverenor = Tek(3);
  b.damgaveror = Tek(7);
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Bitti) << "a changed rate alone is an entry";
  const Brd k = e.Kayit("1", 2009, 1);
  EXPECT_EQ(k.sskkesinti, Tutar(81));
  EXPECT_EQ(k.sskkesintiisveren, Tutar(90));
  EXPECT_EQ(k.issizisci, Tutar(18));
  EXPECT_EQ(k.issizisveren, Tutar(27));
  EXPECT_EQ(k.dvtutar, Tutar(6.3));
  e.giris.KodAl("1");
  for (const OranKolonu& oran : OranKolonlari) EXPECT_EQ(e.giris.Giris().*oran.kolon.uye, k.*oran.kolon.uye) << oran.ad;
  EXPECT_EQ(e.giris.KisiUyarisi(),
            "Kayıttaki oranlar kullanılıyor; tablodakiler: SSK İşçi % 14, SSK İşveren % 19.5, İşsizlik İşçi % 1, "
            "İşsizlik İşvr. % 2, Damga V. Binde 6");
  b.sskiscior = Tek(101);
  EXPECT_TRUE(e.giris.Hesapla()->alan == brd::sskiscior);
}

// Nobody goes without pay because the company's card names no group, and nothing of another company is calculated with.
TEST(BordroGirisi, CompanyWithoutADefaultGroupOrReadableParameters) {
  Ekran e;
  e.Kisi("1", 900);
  e.motor().Calistir("update firma set ondeger = ''");
  e.motor().Calistir("delete from kaztan");
  ASSERT_TRUE(e.o.firma.ondeger.empty() || FirmaYukle(e.o));
  const HazirlikSonucu toplu = e.Hazirla(2009, 1);
  EXPECT_EQ(toplu.kaydedilen, 1);
  ASSERT_EQ(toplu.sorunlar.size(), 1u);
  EXPECT_EQ(toplu.sorunlar[0].metin,
            "Hesap Kodu boş, Firma Bilgilerinde Öndeğer Hesap da yazılmamış: \"Personel\" grubuyla hesaplanır");
  e.Ac(2009, 1);
  e.giris.KodAl("1");
  EXPECT_EQ(e.giris.KisiUyarisi(), toplu.sorunlar[0].metin);
  EXPECT_GT(e.giris.Toplamlar().net, Tutar());

  const std::string dizin = e.o.FirmaDizini;
  e.o.FirmaDizini = dizin + "baska/";
  EXPECT_FALSE(e.depo.firma.Gecerli());
  e.motor().Calistir("alter table kaztan rename to kaztan2");
  e.bildirim.Al();
  EXPECT_FALSE(e.giris.Ac());
  EXPECT_EQ(e.bildirim.Al().size(), 1u);
  EXPECT_TRUE(e.depo.firma.Parametreler().gruplar.empty()) << "those of the company before are gone";
}

// What somebody typed into a template is not written over unseen.
TEST(BordroGirisi, ABrokenTemplateIsReplacedOnlyWhenAsked) {
  Ekran e;
  e.Kisi("1", 900);
  const VeriYolu sirket(e.o.FirmaDizini);
  ASSERT_TRUE(sirket.Yaz("sablon.dat", "x"));
  e.bildirim.cevap = false;
  e.Ac(2009, 1);
  EXPECT_EQ(sirket.Oku("sablon.dat").value_or(""), "x");
  EXPECT_EQ(e.giris.Kosul().firma.sablon, VarsayilanSablon());
  e.bildirim.cevap = true;
  e.Ac(2009, 1);
  EXPECT_EQ(e.bildirim.Al().size(), 2u);
  EXPECT_EQ(sirket.Oku("sablon.dat").value_or("").size(), 135u);
}

TEST(BordroGirisi, DeletesAndDoublesNothing) {
  Ekran e;
  for (const char* kod : {"1", "2"}) e.Kisi(kod, 900);
  e.Ac(2009, 2);
  e.giris.KodAl("2");
  e.giris.Giris().fm1 = Tek(5);
  test::Engelle(e.motor(), "insert", "brd");
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::KaydetmeHatasi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre("Uyarı: Bordro Kayıtları Güncellenemiyor"));
  test::EngeliKaldir(e.motor(), "brd");
  e.Hazirla(2009, 2);  // another computer was quicker
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::YenidenGeldi) << "a failed save keeps the entry open";
  e.giris.AlanaGirildi(BordroAlani::NormalGun);
  e.giris.Giris().fm1 = Tek(5);
  EXPECT_EQ(e.giris.Kapat(), KapanisSonucu::Bitti);
  EXPECT_EQ(e.Kayit("2", 2009, 2).fm1, Tek(5));

  e.giris.KodAl("2");
  e.bildirim.cevap = false;
  EXPECT_FALSE(e.giris.KayitSil() || e.giris.AyinBordrosunuSil() || e.giris.AyiGeriAl()) << "refused";
  EXPECT_EQ(e.Kayitlar(2009, 2).size(), 2u);
  e.bildirim.cevap = true;
  e.bildirim.Al();
  EXPECT_TRUE(e.giris.KayitSil());
  e.giris.KodAl("2");
  EXPECT_FALSE(e.giris.KayitSil()) << "no record, no question";
  EXPECT_EQ(e.Kayitlar(2009, 2).size(), 1u);
  EXPECT_THAT(e.giris.BordroNolari(), ElementsAre("1", "Yeni"));
  EXPECT_TRUE(e.giris.AyinBordrosunuSil());
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::StartsWith("Soru: Kayıt Silinecek Eminmisiniz ?\n2 "),
                                           "Soru: Bordro Tamamen Silinecek Eminmisiniz ?\nŞubat 2009, 1 kişi",
                                           "Bilgi: Bordro Tamamen Silindi"));
  EXPECT_TRUE(e.Kayitlar(2009, 2).empty());
}

// Until 2007 the payment of a refund is typed into the saved record: who would take it away is told first.
TEST(BordroGirisi, TypedPaymentsOfTheRefundAreToldBeforeTheyGo) {
  for (const auto& [yil, sorulur] : {std::pair(2005, true), {2008, false}}) {
    Ekran e;
    e.Kisi("A1", 1000);
    ASSERT_TRUE(e.Hazirla(yil, 3).sorunlar.empty());
    e.motor().Calistir("update brd set ogv = 123400");
    e.Ac(yil, 3);
    e.bildirim.Al();
    ASSERT_EQ(e.giris.KodAl("A1"), KodSonucu::Yuklendi);
    EXPECT_EQ(e.giris.KisiUyarisi().starts_with("Kayıttaki özel gider indirimi ödemesi (12.34)"), sorulur);
    e.bildirim.Al();
    e.bildirim.cevap = false;
    EXPECT_EQ(e.giris.MahsupSilinsinMi(), !sorulur);
    EXPECT_EQ(e.bildirim.Al().size(), sorulur ? 1u : 0u);
    e.giris.AlanaGirildi(BordroAlani::NormalGun);
    e.giris.Kapat();
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
