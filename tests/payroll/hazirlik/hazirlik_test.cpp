// A month prepared and kept: who is saved with what, and that it is saved whole or not at all.
#include "payroll/hazirlik/hazirlik.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <thread>

#include "core/asama.h"
#include "core/session/yukseltme.h"
#include "sirket.h"
#include "surec.h"

namespace belvani {
namespace {

using test::Giris;
using test::Sirket;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> Metinler(const HazirlikSonucu& s) {
  std::vector<std::string> metinler;
  for (const Kusur& x : s.sorunlar)
    metinler.push_back((x.derece == Derece::Hata ? "H " : "U ") + x.kod + ": " + x.metin);
  return metinler;
}

TEST(TopluHazirla, SavesWhoBelongsToThePeriodAndEarns) {
  Sirket sirket;
  sirket.Kisi("1", 666);
  sirket.Kisi("2", 666, Tarih(2009, 3, 1));                      // not yet
  sirket.Kisi("3", 666, Tarih(2005, 1, 1), Tarih(2009, 1, 31));  // no more
  sirket.Kisi("4", 666, Tarih(2009, 2, 17));                     // 12 days
  sirket.Kisi("5", 0);                                           // earns nothing
  sirket.Kisi("6", 666, Tarih());                                // no hire date
  const auto s = sirket.Hazirla(2009, 2);
  EXPECT_TRUE(s.kaydedildi);
  EXPECT_EQ(s.kaydedilen, 2);
  EXPECT_EQ(s.donemDisi, 2);
  EXPECT_EQ(s.netsiz, 1);
  EXPECT_THAT(
      Metinler(s),
      ElementsAre("U 5: Net sıfırın üstünde değil, bordrosu kaydedilmedi: Personel kartında ücreti yazılı değil",
                  "U 6: Personel Giriş Tarihi Hatalı"));
  const Brd b = sirket.Kayit("4", 2009, 2);
  EXPECT_EQ(b.ng, 12);
  EXPECT_EQ(b.no, 1);
  EXPECT_EQ(b.brutkaz, Tutar(266.40));
  EXPECT_EQ(b.ucretsizizin, 0);
  EXPECT_EQ(b.agimatrah, Tutar(666));
}

TEST(TopluHazirla, GivesEveryoneTheRecordOfHisOwnCalculation) {
  Sirket sirket;
  for (int i = 0; i < 40; ++i) sirket.Kisi(std::to_string(i), 600 + i * 123.45, Tarih(2008, 1 + i % 12, 1 + i % 28));
  for (int ay = 1; ay <= 12; ++ay) {
    const Kosullar k = sirket.Kosul(2008, ay);
    std::vector<BordroSonucu> beklenen;
    KisileriOku(sirket.motor(), k.donem, [&](KisiVerisi& kisi) {
      const CalismaGunu gun = GunSayisiBul(k.donem, kisi.sicil.girtar, kisi.sicil.ciktar);
      if (gun.uygunluk == DonemUygunlugu::Uygun)
        beklenen.push_back(BordroHesapla(PersonelYukle(kisi, k, gun.CalismaGun), &k.firma.sablon));
      return true;
    });
    sirket.Hazirla(2008, ay);
    auto kayitlar = sirket.Kayitlar(2008, ay);
    ASSERT_EQ(kayitlar.size(), beklenen.size());
    for (std::size_t i = 0; i < kayitlar.size(); ++i) {
      kayitlar[i].oto = 0;
      EXPECT_EQ(kayitlar[i], beklenen[i].brd) << ay << " " << kayitlar[i].kod;
    }
  }
}

TEST(TopluHazirla, AgainKeepsEntriesRatesAndCarriedBaseOfTheSavedMonth) {
  Sirket sirket;
  sirket.Kisi("1", 4000);
  sirket.Hazirla(2009, 1);
  auto giris = Giris("1", 25);
  giris.deger.ht = 5;
  giris.deger.yrd01 = Tutar(100);
  giris.verilen.insert("yrd01");
  sirket.Hazirla(2009, 2, {giris});
  const Brd ilk = sirket.Kayit("1", 2009, 2);
  EXPECT_EQ(ilk.devgvmatrah, Tutar(3400));

  // Rates change, January grows, and what was typed beside the calculation stays.
  sirket.motor().Calistir("update brd set gocindir = 70000 where ay = 2; update brd set gvmatrah = 1 where ay = 1");
  Kosullar k = sirket.Kosul(2009, 2);
  k.yasal.oranlar.IsciOran[0].has = Tek(50);
  k.yasal.oranlar.DamgaOran = Tek(60);
  ASSERT_TRUE(TopluHazirla(sirket.o, k));
  Brd yine = sirket.Kayit("1", 2009, 2);
  EXPECT_EQ(yine.gocindir, Tutar(7));
  yine.gocindir = Tutar();
  EXPECT_EQ(yine, ilk) << "saved records keep what they were calculated with, and their number";
}

TEST(TopluHazirla, TakesEnteredDaysAndAsksForTheReason) {
  Sirket sirket;
  for (const char* kod : {"1", "2", "3"}) sirket.Kisi(kod, 666);
  auto sebepli = Giris("2", 20);
  sebepli.deger.eksiksebebi = 1;
  sebepli.verilen.insert("eksiksebebi");
  EXPECT_TRUE(sirket.Hazirla(2009, 1, {Giris("1", 30), sebepli}).kaydedildi);
  EXPECT_EQ(sirket.Kayit("1", 2009, 1).ucretsizizin, 0);
  EXPECT_EQ(sirket.Kayit("2", 2009, 1).ucretsizizin, 11) << "January has 31 days";
  EXPECT_EQ(sirket.Kayit("2", 2009, 1).eksiksebebi, 1);
  EXPECT_EQ(sirket.Kayit("3", 2009, 1).ng, 26) << "who is not in the list follows the template";

  struct Durum {
    GirisSatiri giris;
    const char* neden;
  };
  auto cok = Giris("1", 30);
  cok.deger.ht = 1;
  auto listedeYok = Giris("1", 20);
  listedeYok.deger.eksiksebebi = 14;
  listedeYok.verilen.insert("eksiksebebi");
  const Durum durumlar[] = {{Giris("1", 20), "Eksik Gün Sebebini giriniz"},
                            {cok, "Bu Personel 30 Gün Çalışmış, Çalışma Gününü Fazla Girmişiniz (31 gün)"},
                            {listedeYok, "Eksik gün sebebi listede yok"},
                            {Giris("9", 30), "bu kodla personel yok"}};
  for (const auto& d : durumlar) {
    const auto s = sirket.Hazirla(2009, 2, {d.giris});
    EXPECT_FALSE(s.kaydedildi);
    EXPECT_THAT(Metinler(s), ElementsAre(HasSubstr(d.neden)));
    EXPECT_EQ(s.sorunlar[0].satir, d.giris.satirNo);
    EXPECT_TRUE(sirket.Kayitlar(2009, 2).empty()) << "one fault, and nothing is saved: " << d.neden;
  }
  EXPECT_THAT(Metinler(sirket.Hazirla(2009, 2, {Giris("3", 30), Giris("1", 30), Giris("3", 30)})),
              ElementsAre("H 3: bu kişi listede iki kez var"));
}

TEST(TopluHazirla, TellsWhatItCannotCalculateAndGoesOn) {
  Sirket sirket;
  sirket.Kisi("1", 666);
  sirket.Kisi("2", 9e13);
  sirket.Kisi("3", 666);
  sirket.Kisi("4", 666);
  sirket.Kisi("5", 666);
  sirket.motor().Calistir(
      "update sicil set ucretags = 2 where kod = '2'; update sicil set sakatdrc = 4 where kod = '3';"
      "update sicil set sskdurum = 32 where kod = '4'; update sicil set hesap = 'yok' where kod = '5'");
  const auto s = sirket.Hazirla(2009, 1);
  EXPECT_TRUE(s.kaydedildi);
  EXPECT_EQ(s.kaydedilen, 1);
  EXPECT_THAT(Metinler(s),
              ElementsAre("U 2: Hesaplanan bir tutar sınırı aşıyor", "U 3: Sakatlık derecesi 0 ile 3 arasında olmalı",
                          HasSubstr("U 4: SSK durumu 32 için prim oranı yok"),
                          HasSubstr("U 5: Hesap grubu tanımlı değil"), HasSubstr("U 5: Net sıfırın üstünde değil")));
}

struct Iptalci : Ilerleme {
  explicit Iptalci(std::size_t n) : sinir(n) {}
  bool Adim(std::size_t biten, std::size_t toplam) override {
    EXPECT_LE(biten, toplam);
    return biten < sinir;
  }
  std::size_t sinir;
};

TEST(TopluHazirla, CancelledChangesNothing) {
  Sirket sirket;
  for (int i = 0; i < 600; ++i) sirket.Kisi(std::to_string(i), 700);
  Iptalci iptalci(500);
  EXPECT_THAT(TopluHazirla(sirket.o, sirket.Kosul(2009, 1), {}, &iptalci).KusurMetni(), HasSubstr("iptal edildi"));
  EXPECT_TRUE(sirket.Kayitlar(2009, 1).empty());
}

TEST(TopluHazirla, OfNobodyIsNoFailure) {
  test::Sirket s;
  const HazirlikSonucu sonuc = s.Hazirla(2009, 7);
  EXPECT_TRUE(sonuc.kaydedildi);
  EXPECT_EQ(sonuc.kaydedilen + sonuc.donemDisi + sonuc.netsiz, 0u);
}

TEST(BordroSil, DeletesTheMonthAndNoOther) {
  Sirket sirket;
  sirket.Kisi("1", 700);
  sirket.Kisi("2", 700);
  for (const int ay : {1, 2, 3}) sirket.Hazirla(2009, ay);
  struct : Ilerleme {
    bool Adim(std::size_t, std::size_t) override { return true; }
    bool Kesin() override { return false; }
  } kesilen;
  EXPECT_THROW((void)BordroSil(sirket.o, 2009, 2, &kesilen), Vazgecilmis);
  EXPECT_EQ(sirket.Kayitlar(2009, 2).size(), 2u) << "given up, all of it is there";
  EXPECT_EQ(*BordroSil(sirket.o, 2009, 2), 2);
  EXPECT_EQ(*BordroSil(sirket.o, 2009, 2), 0);
  EXPECT_EQ(sirket.Kayitlar(2009, 1).size(), 2u);
  EXPECT_EQ(sirket.Kayitlar(2009, 3).size(), 2u);
}

TEST(BordroKaydet, SavesWholeOrNotAtAllOnceAnotherUserHasBeenThere) {
  Sirket sirket;
  sirket.Kisi("1", 700);
  sirket.Hazirla(2009, 1);
  const Brd ilk = sirket.Kayit("1", 2009, 1);
  Okunan<Brd> okunan{.ilk = ilk, .simdi = ilk};
  okunan.simdi.borckes = Tutar(5);
  const auto yazilan = BordroKaydet(sirket.motor(), okunan);
  ASSERT_TRUE(yazilan);
  EXPECT_EQ(sirket.Kayit("1", 2009, 1), *yazilan);
  const auto engellenir = [&](const char* olan) {
    const auto engel = BordroKaydet(sirket.motor(), okunan);
    ASSERT_FALSE(engel);
    EXPECT_EQ(engel.KusurMetni(),
              "Kayıt bu arada başka bir kullanıcı tarafından " + std::string(olan) + ": 1, Ocak.2009 bordrosu");
  };
  okunan.simdi.fm1 = Tek(7);  // another column than the one that was changed meanwhile
  engellenir("değiştirilmiş");
  EXPECT_EQ(sirket.Kayit("1", 2009, 1), *yazilan);
  ASSERT_TRUE(BordroSil(sirket.o, 2009, 1));
  engellenir("silinmiş");
  okunan.ilk.reset();
  ASSERT_TRUE(BordroKaydet(sirket.motor(), okunan));
  engellenir("eklenmiş");
  EXPECT_EQ(sirket.Kayit("1", 2009, 1).fm1, Tek(7));
}

// What a store lacks reads as zero, and the month would pay it so.
TEST(BordroKaydet, NoMonthIsSavedInAHalfUpgradedStore) {
  Sirket sirket;
  sirket.Kisi("1", 700);
  sirket.Hazirla(2009, 7);
  const Brd tam = sirket.Kayit("1", 2009, 7);
  EXPECT_EQ(tam.ogv, Tutar(49.95));
  sirket.motor().Calistir("alter table sicil drop column agi");
  const Kosullar k = sirket.Kosul(2009, 8);
  const auto eksik = HasSubstr("2003.6' den 2003.7 ' ye Geçiş (sicil.agi yok)");
  EXPECT_THAT(TopluHazirla(sirket.o, k).KusurMetni(), eksik);
  Okunan<Brd> okunan{.ilk = tam, .simdi = tam};
  okunan.simdi.ogv = Tutar();
  EXPECT_THAT(BordroKaydet(sirket.motor(), okunan).KusurMetni(), eksik);
  EXPECT_EQ(sirket.Kayit("1", 2009, 7), tam) << "records are read as before, and none is written";
  EXPECT_TRUE(sirket.Kayitlar(2009, 8).empty());
  ASSERT_EQ(VeritabaniGuncelle(sirket.o, 6, Tutar(693)).hal, GuncellemeSonucu::Tamam);
  sirket.Hazirla(2009, 8);
  EXPECT_EQ(sirket.Kayit("1", 2009, 8).ogv, Tutar(49.95));
}

// Opens the company in this process and prepares a month; 0 when it went well.
int AyriHazirla(const std::string& dataPath, int ay) {
  Oturum o;
  o.DataPath = dataPath;
  if (!SirketAc(o, "DENEME") || !FirmaYukle(o)) return 1;
  const auto k = KosullariYukle(o, test::Yasal(2009, ay), 2009, ay);
  if (!k) return 2;
  return TopluHazirla(o, *k) ? 0 : 3;
}

TEST(Surecler, TwoPreparingTheSameMonthNeitherFailNorDoubleARow) {
  Sirket sirket;
  for (int i = 0; i < 1500; ++i) sirket.Kisi(std::to_string(i), 700 + i);
  sirket.o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  for (int kez = 0; kez < 3; ++kez) {
    std::vector<test::Surec> surecler;
    for (int i = 0; i < 3; ++i) surecler.emplace_back([&] { return AyriHazirla(sirket.o.DataPath, 1); });
    for (auto& s : surecler) EXPECT_EQ(s.Bekle(), 0);
  }
  ASSERT_TRUE(SirketAc(sirket.o, "DENEME"));
  EXPECT_EQ(sirket.Kayitlar(2009, 1).size(), 1500u);
}

TEST(Surecler, KilledAtAnyMomentTheMonthIsThereWholeOrNotAtAll) {
  Sirket sirket;
  constexpr int Kisi = 400;
  for (int i = 0; i < Kisi; ++i) sirket.Kisi(std::to_string(i), 700 + i);
  std::mt19937 rastgele(20090101);
  int butun = 0;
  for (int ay = 1; ay <= 12; ++ay) {
    sirket.o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
    test::Surec surec([&] { return AyriHazirla(sirket.o.DataPath, ay); });
    std::this_thread::sleep_for(std::chrono::milliseconds(rastgele() % 90));
    surec.Oldur();
    ASSERT_TRUE(SirketAc(sirket.o, "DENEME"));
    EXPECT_EQ(sirket.motor().ButunlukKusuru(), "");
    const std::size_t n = sirket.Kayitlar(2009, ay).size();
    EXPECT_TRUE(n == 0 || n == Kisi) << n;
    butun += n == Kisi;
  }
  RecordProperty("butun", butun);
}

// Who else works in the company, before or after him in the list, changes nobody's record.
TEST(TopluHazirla, OfAPersonDoesNotDependOnTheOthers) {
  Sirket hepsi;
  for (int i = 0; i < 30; ++i) hepsi.Kisi(std::to_string(i), 500 + i * 311.7);
  for (const int ay : {9, 10, 11}) hepsi.Hazirla(2008, ay);
  for (const int i : {0, 13, 29}) {
    Sirket tek;
    tek.Kisi(std::to_string(i), 500 + i * 311.7);
    for (const int ay : {9, 10, 11}) {
      tek.Hazirla(2008, ay);
      Brd a = hepsi.Kayit(std::to_string(i), 2008, ay);
      Brd b = tek.Kayit(std::to_string(i), 2008, ay);
      a.oto = b.oto = 0;
      EXPECT_EQ(a, b) << i << " " << ay;
    }
  }
}

}  // namespace
}  // namespace belvani
