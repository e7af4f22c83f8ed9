// The four-month premium payroll: whose days and earnings it holds, and where its pages and sums break.
#include "declarations/dortaylik.h"

#include <gmock/gmock.h>
#include <random>

#include "bol.h"
#include "core/store/ornekdepo.h"
#include "core/turkce.h"
#include "declarations/dortaylikkagidi.h"

namespace belvani {
namespace {

using test::Bol;
using testing::ElementsAre;

std::string DortAylikDegeri(const FormSayfasi& sayfa, const std::string& ad) {
  const auto alan = std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad);
  return alan == sayfa.alanlar.end() ? "-" : alan->deger;
}

Sicil Kisi(const std::string& kod, const std::string& sskno, Tarih girtar = {}, Tarih ciktar = {}) {
  Sicil s;
  s.kod = kod;
  s.sskno = sskno;
  s.adi = "Işıl";
  s.soyadi = "Çağ" + kod;
  s.girtar = girtar;
  s.ciktar = ciktar;
  return s;
}

Brd Kayit(const std::string& kod, int yil, int ay, int gun, double matrah) {
  Brd b;
  b.kod = kod;
  b.yil = std::int16_t(yil);
  b.ay = std::uint8_t(ay);
  b.no = 1;
  b.ng = std::uint8_t(gun);
  b.sskmatrah = Tutar(matrah);
  b.sskmatrahisveren = Tutar(matrah + 0.5);
  b.katki = Tutar(7.25);
  return b;
}

struct Sirket : test::OrnekDepo {
  Motor& motor = db.IcMotor();
  template <class K>
  void Yaz(const K& kayit) {
    KayitYazici<K>(motor).Ekle(kayit);
  }
  std::int64_t Sayi(const std::string& sql) {
    const auto komut = motor.Hazirla(sql);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
};

TEST(DortAylik, MonthsOfAPerson) {
  Sirket s;
  s.Yaz(Kisi("002", "999", Tarih(2009, 8, 31), Tarih(2009, 9, 1)));
  s.Yaz(Kisi("001", "1000", Tarih(2009, 4, 30), Tarih(2009, 5, 1)));
  Sicil emekli = Kisi("003", "1");
  emekli.sskdurum = 1;
  s.Yaz(emekli);
  for (const auto& [kod, ay, gun] :
       {std::tuple("001", 4, 9), {"001", 5, 30}, {"001", 7, 26}, {"002", 8, 1}, {"003", 6, 30}})
    s.Yaz(Kayit(kod, 2009, ay, gun, 1000));
  const auto satirlar = DortAyHesapla(s.motor, {2009, 2});
  ASSERT_EQ(satirlar.size(), 2u) << "pensioners have another paper";
  EXPECT_EQ(satirlar[0].sskno, "999") << "the shorter number first";
  EXPECT_EQ(satirlar[0].girtar, Tarih(2009, 8, 31)) << "the period's last day";
  EXPECT_EQ(satirlar[0].ciktar, Tarih()) << "the day after it";
  EXPECT_EQ(satirlar[1].girtar, Tarih()) << "the day before it";
  EXPECT_EQ(satirlar[1].ciktar, Tarih(2009, 5, 1));
  const GunVeKazanc bos, mayis{30, Tutar(1000.0)}, temmuz{26, Tutar(1000.0)};
  EXPECT_THAT(satirlar[1].aylar, ElementsAre(mayis, bos, temmuz, bos));
  EXPECT_EQ(satirlar[1].aylar.Toplam(), (GunVeKazanc{56, Tutar(2000.0)}));
}

// In 2004 alone the premium is reckoned on the employer's base with the top-up to the floor.
TEST(DortAylik, TheBaseOf2004) {
  Sirket s;
  s.Yaz(Kisi("001", "1"));
  for (const int yil : {2003, 2004, 2005}) s.Yaz(Kayit("001", yil, 12, 30, 444));
  EXPECT_EQ(DortAyHesapla(s.motor, {2003, 3}).at(0).aylar[3].kazanc, Tutar(444.0));
  EXPECT_EQ(DortAyHesapla(s.motor, {2004, 3}).at(0).aylar[3].kazanc, Tutar(444 + 0.5 + 7.25));
  EXPECT_EQ(DortAyHesapla(s.motor, {2005, 3}).at(0).aylar[3].kazanc, Tutar(444.0));
}

// People of all kinds with records of every day column, some of them twice a month, some without a card.
struct RastgeleSirket : Sirket {
  std::mt19937 rastgele;
  int Sayi(int enCok) { return std::uniform_int_distribution(0, enCok)(rastgele); }
  using Sirket::Sayi;

  RastgeleSirket(unsigned tohum, int yil) : rastgele(tohum) {
    motor.IslemBaslat({});
    KayitYazici<Sicil> kartlar(motor);
    KayitYazici<Brd> kayitlar(motor);
    const int kisiler = 20 + Sayi(60);
    for (int kisi = 0; kisi < kisiler; ++kisi) {
      const std::string kod = "P" + std::to_string(kisi);
      Sicil sicil = Kisi(kod, std::to_string(Sayi(3000)), Tarih(yil, 1 + Sayi(11), 1 + Sayi(27)));
      sicil.sskdurum = std::uint8_t(Sayi(2));
      if (kisi % 11 != 5) kartlar.Ekle(sicil);
      for (int ay = 1; ay <= 12; ++ay)
        for (int no = 1; Sayi(3) > 0 && no <= 2; ++no) {
          Brd b = Kayit(kod, yil, ay, 0, Sayi(900'000) / 100.0);
          b.no = std::uint8_t(no);
          b.katki = Tutar(Sayi(9000) / 100.0);
          for (const auto gun : {&Brd::ng, &Brd::ht, &Brd::ui, &Brd::rt, &Brd::ha, &Brd::mi})
            b.*gun = std::uint8_t(Sayi(5));
          b.ucretsizizin = std::uint8_t(Sayi(5));
          kayitlar.Ekle(b);
        }
    }
    motor.IslemOnayla();
  }
};

constexpr const char* Listelenen =
    " and exists (select 1 from sicil where sicil.kod = brd.kod and coalesce(sicil.sskdurum, 0) = 0)";

TEST(DortAylik, SumsAreThoseOfTheRecords) {
  unsigned tohum = 1;
  for (const int yil : {2003, 2004, 2006, 2008, 2009})
    for (int donem = 1; donem <= 3; ++donem) {
      SCOPED_TRACE(std::to_string(yil) + "/" + std::to_string(donem));
      RastgeleSirket s(tohum++, yil);
      const DortAySecimi secim{yil, donem};
      DortAylikKagidi kagit{.secim = secim, .satirlar = DortAyHesapla(s.motor, secim)};
      Firma firma;
      firma.paraonda = 2;
      const YasalParametreler yasal;
      const auto belge =
          DortAylikBelgesi({.motor = s.motor, .yasal = yasal, .firma = firma, .sirket = s.sirket}, secim);
      const auto toplam = belge->Tablo()->Toplam();
      const auto sayfalar = DortAylikSayfalari(std::make_shared<const DortAylikKagidi>(kagit));
      const DonemAylari dahil = DortAylikBol(kagit.satirlar).back().dahil;
      for (int i = 0; i < DonemAyi; ++i) {
        const std::string kosul = " from brd where yil = " + std::to_string(yil) +
                                  " and ay = " + std::to_string(4 * (donem - 1) + 1 + i) + Listelenen;
        const std::int64_t gun = s.Sayi("select sum(ng + ht + rt + ui + mi + ha)" + kosul);
        const std::int64_t kazanc =
            s.Sayi(std::string("select sum(") + (yil == 2004 ? "sskmatrahisveren + katki" : "sskmatrah") + ")" + kosul);
        EXPECT_EQ(dahil[std::size_t(i)], (GunVeKazanc{int(gun), Tutar::Hamdan(kazanc)}));
        EXPECT_EQ(toplam[std::size_t(7 + 2 * i)], Hucre(gun));
        EXPECT_EQ(toplam[std::size_t(8 + 2 * i)], Hucre(Tutar::Hamdan(kazanc)));
        EXPECT_EQ(DortAylikDegeri(sayfalar[sayfalar.size() - 1], "toplam.gun" + std::to_string(i + 1)),
                  gun == 0 ? "" : std::to_string(gun));
      }
      EXPECT_EQ(std::int64_t(kagit.satirlar.size()),
                s.Sayi("select count(distinct kod) from brd where yil = " + std::to_string(yil) + " and ay between " +
                       std::to_string(secim.IlkAy()) + " and " + std::to_string(secim.SonAy()) + Listelenen));
    }
}

// The n-th person has 30 days and 1000 + n in the first month, 10 days and 2.50 in the fourth.
DortAylikKagidi DortAylikKagidiYap(int kisi) {
  DortAylikKagidi k{.secim = {2009, 3}};
  k.firma.unvan = "Şık Örgü Ltd. Şti.";
  k.firma.il = "34";
  k.firma.dosya = "1034567";
  k.firma.iskodu = 1721;
  k.arac.kod = "000";
  k.muhasebeci.adsoyad = "Ömer Güneş";
  for (int n = 1; n <= kisi; ++n) {
    DortAylikSatir s{.sskno = "1601200254336",
                     .adi = "Abdurrahman Gazi",
                     .soyadi = "Karaosmanoğulları",
                     .girtar = Tarih(2009, 9, 5),
                     .ciktar = {}};
    s.aylar[0] = {30, Tutar(1000.0 + n)};
    s.aylar[3] = {10, Tutar(2.5)};
    k.satirlar.push_back(s);
  }
  return k;
}

TEST(DortAylik, PagesAndTheRecapitulation) {
  const struct {
    int kisi, sayfa, icmal;
  } ornekler[] = {{0, 1, 0}, {1, 1, 1}, {25, 1, 1}, {26, 2, 1}, {50, 2, 1}, {51, 3, 1}, {500, 20, 1}, {501, 21, 2}};
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.kisi);
    const DortAylikKagidi kagit = DortAylikKagidiYap(o.kisi);
    const auto sayfalar = DortAylikSayfalari(std::make_shared<const DortAylikKagidi>(kagit));
    const std::string metin = DortAyYazdir(kagit);
    ASSERT_EQ(int(sayfalar.size()), o.sayfa + o.icmal);
    EXPECT_EQ(int(Bol(metin, "\f").size()), o.sayfa + o.icmal);
    EXPECT_EQ(DortAylikSayfaSozu(kagit, o.sayfa),
              std::to_string(o.sayfa) + ". Sayfa İçin\nA4 Kağıdınızı yazıcınıza yatay olarak koyunuz");
    EXPECT_THAT(DortAylikSayfaSozu(kagit, o.sayfa + 1), testing::StartsWith("İ C M A L Sayfası İçin\n"));
    DonemAylari onceki;
    for (const DortAylikSayfasi& s : DortAylikBol(kagit.satirlar)) {
      EXPECT_EQ(s.devir, onceki);
      onceki = s.dahil;
      EXPECT_EQ(s.sayfa[0].gun, 30 * int(s.son - s.ilk));
    }
    EXPECT_EQ(onceki[0].kazanc, Tutar(1000.0 * o.kisi + o.kisi * (o.kisi + 1) / 2));
    EXPECT_EQ(onceki.Toplam().gun, 40 * o.kisi);
  }
  const auto sayfalar = DortAylikSayfalari(std::make_shared<const DortAylikKagidi>(DortAylikKagidiYap(26)));
  EXPECT_EQ(DortAylikDegeri(sayfalar[0], "satir25.sira") + DortAylikDegeri(sayfalar[0], "satir26.sira"), "25-");
  EXPECT_EQ(DortAylikDegeri(sayfalar[1], "satir26.gun1"), "30");
  EXPECT_EQ(DortAylikDegeri(sayfalar[1], "satir26.gun2"), "") << "a month without records";
  EXPECT_EQ(DortAylikDegeri(sayfalar[1], "satir26.girtar"), "05 - 09");
  EXPECT_EQ(DortAylikDegeri(sayfalar[1], "sayfa.kazanc1"), "1,026.00");
  EXPECT_EQ(DortAylikDegeri(sayfalar[1], "devir.kazanc1"), "25,325.00");
  EXPECT_EQ(DortAylikDegeri(sayfalar[1], "dahil.kazanc1"), "26,351.00");
  EXPECT_EQ(DortAylikDegeri(sayfalar[2], "icmal1.gun4"), "250");
  EXPECT_EQ(DortAylikDegeri(sayfalar[2], "icmal2.topkazanc"), "1,028.50");
  EXPECT_EQ(DortAylikDegeri(sayfalar[2], "toplam.topkazanc"), "26,416.00");
  EXPECT_EQ(DortAylikDegeri(sayfalar[2], "muhasebeci.adsoyad"), "Ömer Güneş");
}

TEST(DortAylik, TextOfPrinters) {
  DortAylikKagidi kagit = DortAylikKagidiYap(26);
  kagit.satirlar[0].aylar[1] = {31, Tutar(123'456'789.5)};
  kagit.satirlar[1].aylar[1] = {31, Tutar(999'999'999'999.0)};
  const std::string metin = DortAyYazdir(kagit);
  EXPECT_TRUE(KodSayfasinaSigar(metin, KodSayfasi::Dos857)) << "the printer has every letter";
  for (const std::string& sayfa : Bol(metin, "\f"))
    for (const std::string& satir : Bol(sayfa, "\n")) {
      EXPECT_LE(HarfSayisi(satir), std::size_t(DortAylikEni)) << satir;
      EXPECT_EQ(satir.starts_with("│"), satir.ends_with("│")) << satir;
    }
  for (const char* parca : {"│    EYLÜL      │    EKİM       │    KASIM      │    ARALIK     │",
                            "│    1│1601200254336│Abdurrahman Gazi Kara│05 09│     │30│    1,001.00│31│123456789.50│",
                            "│05 09│     │30│    1,002.00│31│############│",  // an amount is never cut
                            "ÖNCEKİ SAYFALARDAN DEVİR │      25,325.00│"})
    EXPECT_NE(metin.find(parca), std::string::npos) << parca;
}

}  // namespace
}  // namespace belvani
