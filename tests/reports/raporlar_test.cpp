// Designed reports: their files byte for byte, what is refused, and their rows against queries of the test's own.
#include <gmock/gmock.h>
#include <random>

#include "core/store/ornekdepo.h"
#include "reports/hazirraporlar.h"
#include "reports/raporalani.h"
#include "reports/rapordosyalari.h"

namespace belvani {
namespace {

using testing::Contains;
using testing::HasSubstr;

OzlukKolonlari Ornek() {
  return {{.alan = "sicil.kod", .baslik = "Sicil No", .en = 8},
          {.alan = "kimlik.dogtar", .baslik = "Doğuşu", .en = 10, .baslangic = "01.01.1960", .bitis = "31.12.1969"},
          {.alan = "sicil.ucret", .baslik = "Ücret", .en = 12, .baslangic = "900,5", .bitis = {}, .isaret = -1}};
}

TEST(RaporDosyasi, HasTheLayoutOfItsRecords) {
  const std::string o = OzlukRaporuBaytlari(Ornek());
  ASSERT_EQ(o.size(), 4150u);
  EXPECT_EQ(o.substr(0, 20), "sicil.kod           ");
  EXPECT_EQ(o[40], 8);
  EXPECT_EQ(o.substr(83 + 20, 8), "Do\xf0u\xfeu  ");
  EXPECT_EQ(o.substr(83 + 41, 20), "01.01.1960          ");
  EXPECT_EQ(o.substr(2 * 83 + 81, 2), "\xff\xff");
  EXPECT_EQ(o.substr(49 * 83, 40), std::string(40, ' '));
  EXPECT_EQ(*OzlukRaporuCoz(o), Ornek());

  const BordroKolonlari kolonlar{{.alan = "*adsoy", .baslik = "İşçi", .en = 25},
                                 {.alan = "katkı", .baslik = "Katkı", .en = 12, .ondalik = 2, .toplanir = true}};
  const std::string b = BordroRaporuBaytlari(kolonlar);
  ASSERT_EQ(b.size(), 3u * 48);
  EXPECT_EQ(b.substr(0, 46), std::string(40, ' ') + std::string(6, '\0'));
  EXPECT_EQ(b.substr(46, 2), std::string("\x02\0", 2));
  EXPECT_EQ(b.substr(96, 5), "katk\xfd");
  EXPECT_EQ(b.substr(96 + 44, 2), "\xff\xff");
  EXPECT_EQ(*BordroRaporuCoz(b), kolonlar);
}

TEST(RaporDosyasi, RefusesWhatCouldNotHaveBeenMadeHere) {
  const std::string saglam = OzlukRaporuBaytlari(Ornek());
  for (const std::size_t boy : {std::size_t(0), std::size_t(83), saglam.size() - 1, saglam.size() + 1})
    EXPECT_EQ(OzlukRaporuCoz(std::string(saglam + "x").substr(0, boy)).KusurMetni(), BozukRapor) << boy;
  const auto bozuk = [&](std::size_t yer, const std::string& baytlar) {
    return OzlukRaporuCoz(std::string(saglam).replace(yer, baytlar.size(), baytlar));
  };
  EXPECT_THAT(bozuk(0, "sicil.kod;drop     ").KusurMetni(), HasSubstr("1. kolon"));
  EXPECT_THAT(bozuk(40, std::string(1, '\0')).KusurMetni(), HasSubstr("Uzunluğu"));
  EXPECT_THAT(bozuk(40, "\x29").KusurMetni(), HasSubstr("en çok 40"));
  EXPECT_THAT(bozuk(83 + 41, "1 or 1=1  ").KusurMetni(), HasSubstr("2. kolon"));
  EXPECT_THAT(bozuk(2 * 83 + 41, "abc  ").KusurMetni(), HasSubstr("3. kolon"));

  const std::string b = BordroRaporuBaytlari({{.alan = "ng", .baslik = "Gün", .en = 4}});
  EXPECT_EQ(BordroRaporuCoz("").KusurMetni(), BozukRapor);
  EXPECT_EQ(BordroRaporuCoz(b.substr(0, 95)).KusurMetni(), BozukRapor);
  EXPECT_EQ(BordroRaporuCoz(b.substr(48)).KusurMetni(), BozukRapor);
  EXPECT_EQ(BordroRaporuCoz(b.substr(0, 48) + std::string(48 * 201, ' ')).KusurMetni(), BozukRapor);
  EXPECT_THAT(BordroRaporuCoz(std::string(b).replace(48, 2, "xx")).KusurMetni(), HasSubstr("1. kolon"));

  std::mt19937 rastgele(5);
  for (int i = 0; i < 3000; ++i) {
    std::string s = i % 2 == 0 ? saglam : b;
    for (int n = 1 + int(rastgele() % 6); n > 0; --n) s[rastgele() % s.size()] = char(rastgele());
    if (i % 2 == 0) {
      if (const auto k = OzlukRaporuCoz(s); k) {
        EXPECT_EQ(*OzlukRaporuCoz(OzlukRaporuBaytlari(*k)), *k);
      }
    } else if (const auto k = BordroRaporuCoz(s); k) {
      EXPECT_EQ(*BordroRaporuCoz(BordroRaporuBaytlari(*k)), *k);
    }
  }
}

TEST(RaporDosyasi, NamesStayInTheirPlaceAndShippedReportsComeBack) {
  test::GeciciDizin dizin;
  const VeriYolu veri = dizin.Yol();
  EXPECT_EQ(RaporAdiKusuru(" ")->metin, "Rapor Adının Yazınız.");
  EXPECT_EQ(RaporAdiKusuru("a.b")->metin, "Rapor İsminde Noktalama Kullanmayınız");
  for (const char* ad : {"../x", "a/b", "a\\b", "a\nb", "c:"}) EXPECT_TRUE(RaporAdiKusuru(ad)) << ad;
  const auto hazir = OzlukRaporuAl(veri, "Dönemde Girenler", Tarih(2008, 1, 1), Tarih(2008, 12, 31));
  ASSERT_TRUE(hazir);
  ASSERT_TRUE(OzlukRaporuKaydet(veri, "Dönemde Girenler", Ornek()));
  ASSERT_TRUE(OzlukRaporuKaydet(veri, "Şubem", Ornek()));
  EXPECT_THAT(OzlukRaporlari(veri), Contains("Şubem"));
  EXPECT_EQ(OzlukRaporlari(veri).size(), 7u);
  EXPECT_EQ(*OzlukRaporuAl(veri, "Dönemde Girenler", Tarih(2008, 1, 1), Tarih(2008, 12, 31)), Ornek());
  ASSERT_TRUE(RaporSil(veri, "Dönemde Girenler", OzlukUzantisi));
  EXPECT_EQ(*OzlukRaporuAl(veri, "Dönemde Girenler", Tarih(2008, 1, 1), Tarih(2008, 12, 31)), *hazir);
  EXPECT_EQ(BordroRaporuKaydet(veri, "Boş", {}).KusurMetni(), "Kaydedilecek Bilgi Bulunamadı...");
  EXPECT_FALSE(BordroRaporuAl(veri, "Yok"));
}

// What comes with the program can be saved and read again.
TEST(HazirRapor, IsSound) {
  for (const auto& rapor : HazirOzlukRaporlari(Tarih(2008, 1, 1), Tarih(2008, 12, 31))) {
    EXPECT_EQ(*OzlukRaporuCoz(OzlukRaporuBaytlari(rapor.kolonlar)), rapor.kolonlar) << rapor.ad;
    EXPECT_FALSE(RaporAdiKusuru(rapor.ad));
  }
  for (const auto& rapor : HazirBordroRaporlari())
    EXPECT_EQ(*BordroRaporuCoz(BordroRaporuBaytlari(rapor.kolonlar)), rapor.kolonlar) << rapor.ad;
}

// People with cards and identities, some of them incomplete, and records of six months in two years.
struct Sirket : test::OrnekDepo {
  std::mt19937 rastgele{2009};

  Sirket() {
    Motor& motor = db.IcMotor();
    motor.IslemBaslat({});
    KayitYazici<Sicil> kartlar(motor);
    KayitYazici<Kimlik> kimlikler(motor);
    KayitYazici<Brd> kayitlar(motor);
    const char* adlar[] = {"Çağla", "Işıl", "İlker", "Şükrü", "Ömer", "ünal"};
    for (int i = 0; i < 60; ++i) {
      Sicil s;
      s.kod = (i % 2 == 0 ? "ı" : "I") + std::to_string(100 + i);
      s.adi = adlar[rastgele() % 6];
      s.soyadi = "Soy" + std::to_string(i);
      s.ucret = Tutar(double(500 + 50 * (i % 20)));
      s.grup = i % 3 == 0 ? "" : "ABC";
      s.cikiskodu = std::uint8_t(i % 5);
      s.girtar = Tarih(2000 + i % 10, 1 + i % 12, 1 + i % 28);
      if (i != 7) kartlar.Ekle(s);
      Kimlik k;
      k.kod = s.kod;
      k.cins = std::uint8_t(i % 2);
      if (i % 4 != 0) k.dogtar = Tarih(1950 + i % 30, 1 + i % 12, 1 + i % 28);
      if (i != 11) kimlikler.Ekle(k);
      for (int ay = 1; ay <= 6; ++ay) {
        Brd b;
        b.yil = std::int16_t(2004 + ay % 2);
        b.ay = std::uint8_t(ay);
        b.no = 1;
        b.kod = "ı" + std::to_string(100 + i);
        b.ng = std::uint8_t(rastgele() % 31);
        b.brutkaz = Tutar::Hamdan(std::int64_t(rastgele() % 90'000'000));
        b.fm1 = Tek(double(rastgele() % 40) / 2);
        kayitlar.Ekle(b);
      }
    }
    motor.IslemOnayla();
  }
  std::int64_t Sor(const std::string& sql) {
    const auto komut = db.IcMotor().Hazirla(sql);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
};

TEST(OzlukRaporu, TakesThoseWithinAllBounds) {
  Sirket sirket;
  Motor& motor = sirket.db.IcMotor();
  const Rapor rapor = OzlukRaporu(motor, Ornek(), {}, {}, 2);
  EXPECT_EQ(std::int64_t(rapor.Satirlar().size()),
            sirket.Sor("select count(*) from sicil s join kimlik k on k.kod = s.kod where k.dogtar >= '1960-01-01' and "
                       "k.dogtar <= '1969-12-31' and s.ucret >= 9005000"));
  ASSERT_GT(rapor.Satirlar().size(), 3u);
  const auto sayisi = [&](std::size_t i) {
    const std::string kod = DuzMetin(rapor.Satirlar()[i].hucreler[0]);
    return kod.substr(kod.size() - 3);
  };
  for (std::size_t i = 1; i < rapor.Satirlar().size(); ++i) EXPECT_LT(sayisi(i - 1), sayisi(i));

  const auto sayi = [&](const char* alan, const char* bas, const char* bit) {
    const OzlukKolonlari kolon{{.alan = alan, .baslik = "x", .en = 3, .baslangic = bas, .bitis = bit}};
    EXPECT_FALSE(KolonKusuru(kolon[0]));
    return std::int64_t(OzlukRaporu(motor, kolon, {}, {}, 2).Satirlar().size());
  };
  EXPECT_EQ(sayi("sicil.adi", "i", "J"),
            sirket.Sor("select count(*) from sicil s join kimlik k on k.kod = s.kod where adi = 'İlker'"));
  EXPECT_EQ(sayi("sicil.cikiskodu", "2", ""), sirket.Sor("select count(*) from sicil s join kimlik k on k.kod = s.kod "
                                                         "where cikiskodu >= 2"));
  EXPECT_EQ(sayi("kimlik.cins", "1", "1"), sirket.Sor("select count(*) from sicil s join kimlik k on k.kod = s.kod "
                                                      "where cins = 1"));
  EXPECT_EQ(sayi("sicil.tasarruf", "5", ""), 58);  // a column that the store lacks
  EXPECT_EQ(
      DuzMetin(
          OzlukRaporu(motor, {{.alan = "sicil.soyadi", .baslik = "x", .en = 4}}, {}, {}, 2).Satirlar()[0].hucreler[0]),
      "Soy0");
  EXPECT_FALSE(KolonKusuru({.alan = "sicil.adi", .baslik = "x", .en = 40, .baslangic = "';--"}));
  EXPECT_EQ(KolonKusuru({.alan = "sicil.girtar", .baslik = "x", .en = 4, .bitis = "2008-01-01"})->alan.ad, "bitis");
}

TEST(BordroRaporu, SumsAreThoseOfTheStore) {
  Sirket sirket;
  Motor& motor = sirket.db.IcMotor();
  const BordroKolonlari kolonlar{{.alan = "*sno", .baslik = "Sıra", .en = 4},
                                 {.alan = "brd.kod", .baslik = "Kod", .en = 8},
                                 {.alan = "*adsoy", .baslik = "Ad", .en = 10},
                                 {.alan = "ng", .baslik = "Gün", .en = 4, .ondalik = 0, .toplanir = true},
                                 {.alan = "brutkaz", .baslik = "Brüt", .en = 12, .ondalik = 2, .toplanir = true},
                                 {.alan = "fm1", .baslik = "FM", .en = 6, .ondalik = 1, .toplanir = true},
                                 {.alan = "ay", .baslik = "Ay", .en = 3},
                                 {.alan = "yrd12", .baslik = "Yok", .en = 3, .ondalik = 2, .toplanir = true},
                                 {.alan = "grup", .baslik = "Grup", .en = 4, .ondalik = 0, .toplanir = true}};
  BordroRaporuSecimi secim{.ilkYil = 2004, .sonYil = 2005, .ilkAy = 1, .sonAy = 3};
  const char* kosul =
      " from brd b join sicil s on s.kod = b.kod join kimlik k on k.kod = b.kod where b.ay between 1 and 3";
  for (const bool kisiBasina : {false, true}) {
    SCOPED_TRACE(kisiBasina);
    secim.kisiBasina = kisiBasina;
    const Rapor rapor = BordroRaporu(motor, kolonlar, secim, {});
    const std::string sayilan = kisiBasina ? "select count(distinct b.kod)" : "select count(*)";
    EXPECT_EQ(std::int64_t(rapor.Satirlar().size()), sirket.Sor(sayilan + kosul));
    const auto toplam = rapor.Toplam();
    EXPECT_EQ(std::get<std::int64_t>(toplam[3]), sirket.Sor(std::string("select sum(b.ng)") + kosul));
    EXPECT_EQ(std::get<Tutar>(toplam[4]).Ham(), sirket.Sor(std::string("select sum(b.brutkaz)") + kosul));
    EXPECT_EQ(std::get<Tutar>(toplam[5]).Ham(),
              sirket.Sor(std::string("select cast(round(sum(b.fm1) * 10000) as integer)") + kosul));
    EXPECT_EQ(std::get<std::int64_t>(rapor.Satirlar().Hucresi(rapor.Satirlar().size() - 1, 0)),
              std::int64_t(rapor.Satirlar().size()));
    EXPECT_EQ(std::get<std::int64_t>(rapor.Satirlar()[0].hucreler[6]), kisiBasina ? 3 : 2);
  }
  secim.kisiler.grup = {.bas = "A", .bit = "B"};
  secim.sonYil = 2004;
  secim.kisiBasina = false;
  EXPECT_EQ(std::int64_t(BordroRaporu(motor, kolonlar, secim, {}).Satirlar().size()),
            sirket.Sor(std::string("select count(*)") + kosul + " and b.yil = 2004 and s.grup = 'ABC'"));
}

}  // namespace
}  // namespace belvani
