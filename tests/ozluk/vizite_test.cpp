// The rules of the medical papers: the twelve months and their sums, the relative, the lines that follow from dates.
#include "ozluk/vizite.h"

#include <gmock/gmock.h>
#include <random>

#include "core/tables/brd.h"
#include "core/tables/esco.h"
#include "personnel/sirket.h"

namespace belvani::test {
namespace {

TEST(ViziteAylari, TwelveMonthsBeforeTheVisit) {
  const struct {
    Tarih vizite;
    const char *ilk, *son;
  } ornekler[] = {{Tarih(2004, 5, 20), "2003/MAYIS", "2004/NİSAN"},
                  {Tarih(2004, 12, 15), "2004/OCAK", "2004/ARALIK"},  // December holds its own month
                  {Tarih(2005, 1, 1), "2004/OCAK", "2004/ARALIK"},
                  {Tarih(2004, 11, 30), "2003/KASIM", "2004/EKİM"}};
  for (const auto& o : ornekler) {
    const ViziteAylari aylar = OnIkiAy(o.vizite);
    EXPECT_EQ(std::pair(aylar.front().Adi(), aylar.back().Adi()), std::pair(std::string(o.ilk), std::string(o.son)));
    for (std::size_t i = 1; i < aylar.size(); ++i)
      EXPECT_EQ(aylar[i].yil * 12 + aylar[i].ay, aylar[i - 1].yil * 12 + aylar[i - 1].ay + 1);
  }
  EXPECT_EQ(ViziteAyi{.ay = 13}.Adi() + ViziteAyi{}.Adi(), "");
}

TEST(Vizite, LastDayOfTheCertificate) {
  const struct {
    Tarih vizite;
    const char *metinde, *cizimde;
  } ornekler[] = {{Tarih(2004, 8, 31), "28.02.2005", "28.02.2005"},
                  {Tarih(2007, 8, 31), "29.02.2008", "29.02.2008"},
                  {Tarih(2004, 12, 31), "30.06.2005", "30.06.2005"},
                  {Tarih(2004, 6, 15), "15.12.2004", "15.12.2004"},
                  {Tarih(2004, 7, 1), "01.01.2005", "01.01.2005"},
                  {Tarih(2004, 3, 31), "30.09.2004", "30.09.2004"},
                  // The drawn paper knows no exception of the centuries.
                  {Tarih(2099, 8, 30), "28.02.2100", "29.02.2100"},
                  {Tarih(9999, 12, 31), "30.06.10000", "30.06.10000"}};
  for (const auto& o : ornekler) {
    EXPECT_EQ(MetindeSonGecerlilik(o.vizite), o.metinde);
    EXPECT_EQ(*CizimdeSonGecerlilik(o.vizite), o.cizimde);
  }
  EXPECT_EQ(MetindeSonGecerlilik({}), "");
  EXPECT_EQ(CizimdeSonGecerlilik({}).KusurMetni(), "Hatalı Tarih Hesaplama");
}

TEST(Vizite, WhetherPremiumsArePaid) {
  using enum ViziteTuru;
  const Tarih giris(2004, 1, 10);
  for (const auto tur : {Sigortali, EsVeCocuk, AltiAylik}) EXPECT_EQ(PrimDurumu(tur, giris, {}), PrimDevamEdiyor);
  EXPECT_EQ(PrimDurumu(Sigortali, giris, Tarih(2009, 3, 5)), "05.03.2009");
  EXPECT_EQ(PrimDurumu(EsVeCocuk, giris, Tarih(2009, 3, 5)), "05.03.2009");
  EXPECT_EQ(PrimDurumu(AltiAylik, giris, Tarih(2009, 3, 5)), PrimDevamEdiyor) << "05… is below 10…, as texts";
  EXPECT_EQ(PrimDurumu(AltiAylik, giris, Tarih(2003, 3, 15)), "15.03.2003") << "15… is above 10…, as texts";
  EXPECT_EQ(PrimDurumu(AltiAylik, giris, giris), PrimDevamEdiyor);
}

TEST(ViziteAylari, TypedAmountsFollowTheirMonth) {
  ViziteAylari eski = OnIkiAy(Tarih(2009, 5, 1));
  eski[0].ekodeme = Tutar(5);
  eski[11].ekodeme = Tutar(7);
  eski[11].prim = Tutar(9);
  ViziteAylari yeni = OnIkiAy(Tarih(2009, 7, 1));
  YazilaniTasi(eski, yeni);
  EXPECT_EQ(yeni[9].ekodeme, Tutar(7));
  EXPECT_EQ(Topla(yeni).Tutarlar(), Tutar(16)) << "that of a month that is gone is not";
}

struct ViziteKayitlari : SirketTesti {
  void SetUp() override {
    SirketTesti::SetUp();
    o.firma.firmayil = 2009;
    Yaz(Kart("001"));
  }
  void AyYaz(const char* kod, int yil, int ay, int no, std::uint8_t gun, std::uint8_t izin, Tutar matrah) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = std::uint8_t(no);
    b.ng = gun;
    b.ui = izin;
    b.sskmatrahisveren = matrah;
    Yaz(b);
  }
  ViziteFormu Form(Tarih vizite, const char* kod = "001") {
    return {.kod = kod, .girtar = Tarih(2005, 1, 1), .vizite = vizite};
  }
  std::int64_t Sql(const std::string& ifade, const std::string& kosul) {
    const auto komut = o.depo.db.IcMotor().Hazirla("select coalesce(sum(" + ifade + "), 0) from brd where " + kosul);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
};

TEST_F(ViziteKayitlari, RecordsOfAMonthAreAddedUpInTheUnitOfToday) {
  AyYaz("001", 2009, 1, 1, 20, 3, Tutar(800));
  AyYaz("001", 2009, 1, 2, 5, 0, Tutar(150.25));
  AyYaz("001", 2008, 6, 1, 30, 0, Tutar(700'000'000));  // old lira
  AyYaz("001", 2008, 4, 1, 30, 0, Tutar(1));            // before the first month
  AyYaz("001", 2009, 5, 1, 30, 0, Tutar(1));            // the visit's own
  AyYaz("002", 2009, 1, 1, 30, 0, Tutar(1));            // another person's
  const auto aylar = GunTablosuYap(o, Form(Tarih(2009, 5, 4)));
  ASSERT_TRUE(aylar);
  const ViziteAyi& ocak = (*aylar)[8];
  EXPECT_EQ(std::tuple(ocak.Adi(), ocak.gun, ocak.izin, ocak.ucret), std::tuple("2009/OCAK", 28, 3, Tutar(950.25)));
  EXPECT_EQ((*aylar)[1].ucret, Tutar(700));
  EXPECT_FALSE((*aylar)[2].kayitli);
  const ViziteToplami t = Topla(*aylar);
  EXPECT_EQ(std::tuple(t.gun, t.izin, t.Tutarlar()), std::tuple(58, 3, Tutar(1650.25)));
}

TEST_F(ViziteKayitlari, DatesThatAreNoneStopTheTable) {
  ViziteFormu form = Form({});
  form.girtar = {};
  const auto vizitesiz = GunTablosuYap(o, form);
  EXPECT_EQ(std::pair(vizitesiz.KusurMetni(), vizitesiz.Kusuru().alan),
            std::pair(std::string("Vizite  Tarihi Hatalı"), AlanTutamagi(viziteformu::vizite)));
  form.vizite = Tarih(2009, 5, 4);
  const auto girissiz = GunTablosuYap(o, form);
  EXPECT_EQ(std::pair(girissiz.KusurMetni(), girissiz.Kusuru().alan),
            std::pair(std::string("İşe Giriş  Tarihi Hatalı"), AlanTutamagi(viziteformu::girtar)));
  EXPECT_EQ(Topla(*GunTablosuYap(o, Form(Tarih(2009, 5, 4), "yok"))).gun, 0);
}

TEST_F(ViziteKayitlari, SumsAreThoseOfTheRecords) {
  std::mt19937 rastgele(77);
  const auto sayi = [&](int enCok) { return std::uniform_int_distribution(0, enCok)(rastgele); };
  for (int yil = 2006; yil <= 2009; ++yil)
    for (int ay = 1; ay <= 12; ++ay)
      for (int no = 1; no <= 1 + sayi(1); ++no)
        if (sayi(4) > 0)
          AyYaz("001", yil, ay, no, std::uint8_t(sayi(15)), std::uint8_t(sayi(5)),
                Tutar::Hamdan(100 * std::int64_t(sayi(500'000))));
  for (int ay = 1; ay <= 12; ++ay) {
    const Tarih vizite(2009, ay, 28);
    const std::string kosul = ay == 12 ? std::string("yil = 2009")
                                       : "(yil = 2008 and ay >= " + std::to_string(ay) + ") or (yil = 2009 and ay < " +
                                             std::to_string(ay) + ")";
    const ViziteToplami t = Topla(*GunTablosuYap(o, Form(vizite)));
    EXPECT_EQ(std::tuple(t.gun, t.izin, t.ucret.Ham()),
              std::tuple(Sql("ng + ht + ui + rt + mi + ha", kosul), Sql("ui", kosul), Sql("sskmatrahisveren", kosul)));
  }
}

TEST_F(ViziteKayitlari, PersonAndRelativeComeFromTheirRecords) {
  const Tarih bugun(2009, 5, 4);
  EXPECT_FALSE(KisiDoldur(o, "999", bugun));
  const auto kimliksiz = KisiDoldur(o, " 001 ", bugun);
  ASSERT_TRUE(kimliksiz);
  EXPECT_FALSE(kimliksiz->kimlik);
  EXPECT_EQ(std::tuple(kimliksiz->form.adSoyad, kimliksiz->form.vizite, kimliksiz->form.saat.size()),
            std::tuple("Ali Veli", bugun, 5u));
  Kimlik k;
  k.kod = "001";
  k.tcno = "10000000146";
  k.dogtar = Tarih(1975, 12, 31);
  Yaz(k);
  const auto kisi = KisiDoldur(o, "001", bugun);
  EXPECT_EQ(std::pair(kisi->form.tcno, kisi->form.dogtar), std::pair(k.tcno, k.dogtar));

  Esco cocuk;
  cocuk.kod = "001";
  cocuk.yakinlik = 4;
  cocuk.adi = "Efe";
  cocuk.soyadi = "Veli";
  cocuk.cins = 1;
  Yaz(cocuk);
  cocuk.adi = "Ece";
  Yaz(cocuk);
  EXPECT_EQ(YakinBul(o, "001", 4).adSoyad, "Efe Veli") << "the first of two";
  EXPECT_EQ(YakinCinsiyetleri[YakinBul(o, "001", 4).cins], "Kadın");
  EXPECT_EQ(YakinBul(o, "001", 5), ViziteYakini{.yakinlik = 5});
  EXPECT_EQ(YakinBul(o, "001", 0), ViziteYakini{});
}

}  // namespace
}  // namespace belvani::test
