// The declaration over a store: which records, in which order, and what editing does.
#include "sirket.h"

namespace belvani {
namespace {

using test::BildirgeSirketi;
using test::Sigortali;
using testing::ElementsAre;
using testing::HasSubstr;

TEST(AylikBildirge, ChoiceOrderAndWhoIsLeftOut) {
  BildirgeSirketi s;
  const auto ekle = [&](const char* kod, const char* sskno, const char* kanun, int durum) -> Sigortali {
    Sigortali p(kod);
    p.sicil.sskno = sskno;
    p.sicil.kanun = kanun;
    p.sicil.sskdurum = std::uint8_t(durum);
    s.Ekle(p);
    return p;
  };
  ekle("a", "1000", "05510", 0);
  ekle("b", "999", "05510", 0);
  ekle("c", "5", "05510", 1);
  ekle("d", "77777", "", 0);
  Sigortali ikinciBordro = ekle("e", "998", "05510", 0);
  ikinciBordro.brd.no = 2;
  s.Yaz(ikinciBordro.brd);
  Sigortali kurul("f"), kimliksiz("g"), kartsiz("h");
  kurul.sicil.tur = 1;
  s.Ekle(kurul);
  s.Yaz(kimliksiz.sicil);
  s.Yaz(kimliksiz.brd);
  s.Yaz(kartsiz.brd);
  s.Ekle(Sigortali("i", 2009, 8));

  const Bildirge& b = s.Hesapla();
  EXPECT_THAT(s.Kolon(&BildirgeSatiri::sskno), ElementsAre("77777", "998", "998", "999", "1000", "5"));
  EXPECT_THAT(b.kimliksizler, ElementsAre("g"));
  EXPECT_EQ(b.toplamlar.sigortali, 6);
  EXPECT_EQ(b.toplamlar.gun, 180);
  EXPECT_THAT(s.bildirge.KanunSecenekleri(), ElementsAre("Tümü", "", "05510"));
  EXPECT_EQ(s.bildirge.BelgeTurleri()[2], "02-S.G.D.P. Tabi Çalışanlar");
  EXPECT_EQ(s.bildirge.BelgeTurleri().size(), 34u);

  s.bildirge.Secim().kanun = 1;
  ASSERT_TRUE(s.bildirge.Hesapla());
  EXPECT_THAT(s.Kolon(&BildirgeSatiri::sskno), ElementsAre("77777"));
  s.bildirge.Secim().kanun = 2;
  s.bildirge.Secim().belgeTuru = 2;
  ASSERT_TRUE(s.bildirge.Hesapla());
  EXPECT_THAT(s.Kolon(&BildirgeSatiri::sskno), ElementsAre("5"));
  EXPECT_EQ(s.bildirge.OranMetni(4), "30");
  s.bildirge.Secim().ay = 6;
  ASSERT_TRUE(s.bildirge.Hesapla());
  EXPECT_TRUE(b.satirlar.empty());
  EXPECT_EQ(b.toplamlar, BildirgeToplamlari());
}

TEST(AylikBildirge, ComparesWithTheMonthBefore) {
  BildirgeSirketi s;
  const auto onceki = [&](const char* kod, int yil, int ay, double matrah, int gun, int no = 1) {
    Sigortali p(kod, yil, ay);
    p.brd.no = std::uint8_t(no);
    p.brd.sskmatrahisveren = Tutar(matrah);
    p.brd.ng = std::uint8_t(gun - p.brd.ht);
    s.Yaz(p.brd);
  };
  for (const char* kod : {"1ayni", "2gun", "3matrah", "4yok", "5ilk", "6kod", "7para"}) {
    Sigortali p(kod, 2009, 1);
    p.sicil.sskno = std::string(1, kod[0]);
    if (p.sicil.kod == "7para") p.brd.sskmatrahisveren = Tutar(2'000'000.0);
    s.Ekle(p);
  }
  onceki("1ayni", 2008, 12, 1000, 30);
  onceki("2gun", 2008, 12, 1000, 29);
  onceki("3matrah", 2008, 12, 1000.01, 30);
  onceki("4yok", 2008, 11, 1000, 30);
  onceki("4yok", 2009, 12, 1000, 30);
  onceki("5ilk", 2008, 12, 1000, 30);
  onceki("5ilk", 2008, 12, 900, 15, 2);
  onceki("6KOD", 2008, 12, 1000, 30);
  onceki("7para", 2008, 12, 2, 30);
  ASSERT_TRUE(s.bildirge.Ac());
  s.bildirge.Secim().ay = 1;
  ASSERT_TRUE(s.bildirge.Hesapla());
  EXPECT_THAT(s.Kolon(&BildirgeSatiri::farkmivar), ElementsAre(0, 1, 1, 1, 0, 0, 1));
  EXPECT_EQ(s.Kolon(&BildirgeSatiri::primkazanc)[6], Tutar(2.0)) << "compared as stored, shown converted";
}

TEST(AylikBildirge, ReversedPeriodAndRateOfDanger) {
  BildirgeSirketi s;
  s.o.firma.tersfirma = true;
  s.o.firma.tehlike = 1;
  s.o.firma.sinif = Tek(1);
  Sigortali p("1");
  p.sicil.girtar = Tarih(2009, 8, 14);
  s.Ekle(p);
  EXPECT_EQ(s.Hesapla().toplamlar.giren, 1);
  EXPECT_EQ(s.bildirge.OranMetni(0), "1.3");
  EXPECT_EQ(s.bildirge.PrimMetni(0), "13.00");
  EXPECT_EQ(s.bildirge.PrimMetni(1), "");
  EXPECT_EQ(s.bildirge.GenelToplamMetni(), "168.00") << "13 + 125 + 0 + 30";
}

TEST(AylikBildirge, RowsAreEditedAndDeleted) {
  BildirgeSirketi s;
  Sigortali p("1");
  p.brd.katki = Tutar(50.0);
  s.Ekle(p);
  s.Ekle(Sigortali("2"));
  const Bildirge& b = s.Hesapla();
  BildirgeSatiri satir = b.satirlar[0];
  satir.gun = 29;
  satir.primkazanc = Tutar(2000.0);
  EXPECT_TRUE(s.bildirge.SatirYaz(satir));
  EXPECT_EQ(b.satirlar[0], satir);
  EXPECT_EQ(b.toplamlar.gun, 59);
  EXPECT_EQ(s.bildirge.PrimMetni(0), "30.00");
  EXPECT_TRUE(s.bildirge.SatirSil(b.satirlar[1].no));
  EXPECT_EQ(b.toplamlar.sigortali, 1);
  EXPECT_EQ(s.bildirge.PrimMetni(1), "-50.00") << "of the records that were read";

  BildirgeToplamlari t = b.toplamlar;
  t.kisaVade = Tutar(100.0);
  EXPECT_TRUE(s.bildirge.ToplamYaz(t));
  EXPECT_EQ(s.bildirge.PrimMetni(0), "1.00");
  EXPECT_TRUE(s.bildirge.SatirYaz(satir));
  EXPECT_EQ(b.toplamlar, t) << "a row as it was is no edit";

  const auto yeni = s.bildirge.SatirEkle(test::Satir("sigkol=01|adi=Ada|primkazanc=900000000000000|gun=30"));
  ASSERT_TRUE(yeni);
  EXPECT_EQ(s.bildirge.Satir(*yeni)->adi, "Ada");
  const BildirgeToplamlari once = b.toplamlar;
  satir.primkazanc = Tutar(900'000'000'000'000.0);
  EXPECT_EQ(s.bildirge.SatirYaz(satir).KusurMetni(), "Tutar sınırı aşıldı");
  EXPECT_FALSE(s.bildirge.SatirEkle(satir));
  EXPECT_EQ(b.toplamlar, once) << "a refused edit changes nothing";
  EXPECT_EQ(b.satirlar.size(), 2u);
  EXPECT_EQ(b.satirlar[0].primkazanc, Tutar(2000.0));
  EXPECT_TRUE(s.bildirge.Hesapla());
  EXPECT_EQ(b.toplamlar.gun, 60) << "calculated anew, the edits are gone";
}

// Rows keep their numbers whatever is deleted, and a number is never given twice.
TEST(AylikBildirge, DeletingDoesNotRenumberRows) {
  BildirgeSirketi s;
  for (const char* kod : {"1", "2", "3"}) s.Ekle(Sigortali(kod));
  const Bildirge& b = s.Hesapla();
  EXPECT_THAT(s.Kolon(&BildirgeSatiri::kod), ElementsAre("1", "2", "3"));
  const std::vector<int> nolar = s.Kolon(&BildirgeSatiri::no);
  ASSERT_TRUE(s.bildirge.SatirSil(nolar[2]) && s.bildirge.SatirSil(nolar[0]));
  const auto yeni = s.bildirge.SatirEkle({});
  EXPECT_THAT(nolar, testing::Not(testing::Contains(*yeni)));
  BildirgeSatiri kalan = *s.bildirge.Satir(nolar[1]);
  kalan.gun = 7;
  ASSERT_TRUE(s.bildirge.SatirYaz(kalan));
  EXPECT_EQ(b.satirlar[0].kod, "2");
  EXPECT_EQ(b.toplamlar.gun, 7);
  EXPECT_EQ(s.bildirge.Satir(nolar[0]), nullptr);
  kalan.no = nolar[0];
  ASSERT_TRUE(s.bildirge.SatirYaz(kalan)) << "of a row that is gone: nothing";
  EXPECT_EQ(b.satirlar.size(), 2u);
}

TEST(AylikBildirge, AnUnreadableStoreIsTold) {
  BildirgeSirketi s;
  s.Ekle(Sigortali("1"));
  s.Hesapla();
  s.motor().Calistir("drop table kimlik");
  const Durum okunmadi = s.bildirge.Hesapla();
  ASSERT_FALSE(okunmadi);
  EXPECT_THAT(okunmadi.KusurMetni(), testing::AnyOf(HasSubstr("Veritabanı işlemi yapılamadı"),
                                                    HasSubstr("Şirketin tabloları sunucuda bulunamadı")));
  EXPECT_TRUE(s.bildirge.Tamami().satirlar.empty());
  s.o.firmaVar = false;
  const auto acildi = s.bildirge.Ac();
  ASSERT_TRUE(acildi);
  ASSERT_EQ(acildi->size(), 1u);
  EXPECT_EQ(acildi->front().metin, "İşyeri Tanımlamaları Yapılmamış");
  EXPECT_EQ(acildi->front().derece, Derece::Bilgi);
}

TEST(AylikBildirge, ConditionsOfThePaper) {
  using Karar = AylikBildirge::CiktiKarari;
  using enum AylikBildirge::Cikti;
  BildirgeSirketi s;
  const auto karar = [&](AylikBildirge::Cikti cikti) { return s.bildirge.KagitKosullari(cikti); };
  s.Hesapla();
  EXPECT_EQ(*karar(Kagit), Karar::BosForm);
  s.bildirim.cevap = false;
  EXPECT_EQ(*karar(Kagit), Karar::Yok);
  EXPECT_EQ(s.bildirge.XmlKosullari().KusurMetni(), "Bildirge Hesaplatılmamış");
  const std::string bos = "Soru: Bildirge HesaplatılmamışBoş Bildirge Basılsın mı ?";
  EXPECT_THAT(s.bildirim.Al(), ElementsAre(bos, bos));
  for (const char* kod : {"1", "2", "3", "4", "5"}) s.Ekle(Sigortali(kod));
  s.Hesapla();
  EXPECT_TRUE(s.bildirge.XmlKosullari());
  const std::string kollar = "\nSigorta Kollarına Göre Alınız";
  EXPECT_EQ(karar(Kagit).KusurMetni(), "Bildirge Yazılımında Tümünü Birden Alamazsınız" + kollar);
  s.bildirge.Secim().belgeTuru = 1;
  EXPECT_EQ(karar(Kagit).KusurMetni(), "Bildirge Yazılımında kanunların Tümünü Birden Alamazsınız" + kollar);
  EXPECT_EQ(s.bildirge.XmlKosullari().KusurMetni(), "Bildirgeyi  Tüm Sigorta Kolları İçin Hesaplatın");
  EXPECT_EQ(karar(Kagit).Kusuru().derece, Derece::Bilgi);
  s.bildirge.Secim().kanun = 1;
  EXPECT_EQ(*karar(Tablo), Karar::Bildirge);
  s.Ekle(Sigortali("6"));
  ASSERT_TRUE(s.bildirge.Hesapla());
  EXPECT_EQ(*karar(Tablo), Karar::Bildirge);
  EXPECT_EQ(*karar(Kagit), Karar::Bildirge);
  EXPECT_THAT(s.bildirim.Al(),
              ElementsAre("Bilgi: 5 veya Daha Fazla Personel için E-Bildirge Kullanma Zorunluluğu Vardır.."));
}

// Faults come as values that know their row; what may be let through is asked in its place.
TEST(AylikBildirge, TheCheckTellsPersonAndRow) {
  BildirgeSirketi s;
  for (const char* kod : {"1", "2", "3"}) {
    Sigortali p(kod);
    if (p.brd.kod == "1") p.tcno = "";
    if (p.brd.kod != "1") p.brd.sskmatrahisveren = {};
    s.Ekle(p);
  }
  s.Hesapla();
  const auto karar = s.bildirge.BildirgeKontrol();
  ASSERT_FALSE(karar);
  EXPECT_EQ(karar.KusurMetni(), "Kazanç Hanesinde Tutar Olmalı\nIşıl Çağ2");
  EXPECT_EQ(std::tuple(karar.Kusuru().kod, karar.Kusuru().satir, karar.Kusuru().alan.ad),
            std::tuple("2", 2, "primkazanc"));
  EXPECT_THAT(s.bildirim.Al(), ElementsAre(HasSubstr("Soru: T.C. Kimlik No 11 Rakamdan Oluşmalıdır\nIşıl Çağ1\nBu")));
  s.bildirim.cevap = false;
  EXPECT_EQ(*s.bildirge.BildirgeKontrol(), AylikBildirge::Karar::Vazgecildi) << "a no ends the check without a fault";
}

}  // namespace
}  // namespace belvani
