// The medical papers: every value in its place on both routes, frames whole, nothing cut.
#include "ozluk/vizitekagidi.h"

#include <gmock/gmock.h>

#include "bol.h"
#include "ozluk/kagit.h"
#include "printing/form/formbelgesi.h"
#include "printing/rapor.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using enum ViziteTuru;

constexpr ViziteTuru Turler[] = {Sigortali, EsVeCocuk, AltiAylik};

// The longest text that the store takes in every field; the digits in cells are as the law has them.
ViziteKagidi DoluKagit(ViziteTuru tur) {
  ViziteKagidi k{.tur = tur, .kimlik = DoluKayit<Kimlik>(), .firma = DoluKayit<Firma>(), .araciKodu = "007"};
  k.firma.sektor = "2";
  k.firma.il = "34";
  k.firma.paraonda = 2;
  k.form = {.kod = "001",
            .bugun = Tarih(2009, 5, 4),
            .sskno = "3401200412345",
            .adSoyad = Doldur(ViziteFormu::AdSoyadHarfi),
            .girtar = Tarih(2004, 3, 15),
            .vizite = Tarih(2009, 5, 4),
            .saat = "09:15",
            .dogtar = Tarih(1975, 12, 31),
            .tcno = "10000000146"};
  k.yakin = {.yakinlik = 4,
             .adi = Doldur(20),
             .soyadi = Doldur(20),
             .adSoyad = Doldur(41),
             .cins = 2,
             .dogyer = Doldur(15),
             .dogtar = Tarih(2001, 2, 3),
             .tcno = "20000000292",
             .adr = Doldur(40)};
  k.aylar = OnIkiAy(k.form.vizite);
  for (std::size_t i = 0; i < k.aylar.size(); ++i) {
    k.aylar[i].gun = 11 + int(i);
    k.aylar[i].ucret = Tutar(1000.25 + double(i));
  }
  return k;
}

FormSayfasi Cizim(const ViziteKagidi& k) {
  return ViziteCiz(k)->at(0);
}

// Of each paper, what must stand on it somewhere.
std::vector<std::string> Degerler(const ViziteKagidi& k) {
  const Firma& f = k.firma;
  std::vector<std::string> d{k.form.adSoyad, "15.03.2004", "31.12.1975", "Devam Ediyor", f.unvan, f.adr1,
                             f.adr2,         f.semt,       f.adrilce,    f.adril,        f.dosya, f.meslek};
  if (k.tur == Sigortali) {
    d.insert(d.end(), {"04.05.2009", "09:15", "1,000.25", "binbir TL yirmibeş KR", "22"});
    return d;
  }
  d.insert(d.end(), {k.kimlik->baba, k.kimlik->dogyer, k.kimlik->adr1, k.kimlik->adr2, k.kimlik->tel, "1.ÇOCUĞU",
                     k.yakin.dogyer, "03.02.2001", k.yakin.adr, "2008/MAYIS", "2009/NİSAN", "198"});
  if (k.tur == EsVeCocuk) d.push_back(k.yakin.adSoyad);
  if (k.tur == AltiAylik) d.insert(d.end(), {k.yakin.adi + " " + k.yakin.soyadi, "04.11.2009"});
  return d;
}

TEST(ViziteKagidi, BothFormsHoldTheLongestValues) {
  for (const ViziteTuru tur : Turler) {
    const ViziteKagidi k = DoluKagit(tur);
    const std::string metin = ViziteYazdir(k);
    EXPECT_TRUE(KodSayfasinaSigar(metin, KodSayfasi::Dos857));
    const FormSayfasi sayfa = Cizim(k);
    SayfayiDenetle(sayfa);
    std::string cizim;
    for (const auto& alan : sayfa.alanlar) cizim += alan.deger + "\n";
    for (const std::string& deger : Degerler(k)) {
      EXPECT_THAT(metin, HasSubstr(deger)) << int(tur);
      EXPECT_THAT(cizim, HasSubstr(deger)) << int(tur);
    }
    for (const auto& sayfaMetni : Bol(metin, "\f")) {
      const auto satirlar = Harfler(sayfaMetni);
      EXPECT_LE(satirlar.size(), 66u);
      for (const auto& satir : satirlar) EXPECT_EQ(satir.size(), tur == Sigortali ? 131u : 97u);
    }
  }
}

TEST(ViziteKagidi, NobodyLeavesEverythingToThePen) {
  for (const ViziteTuru tur : Turler) {
    ViziteKagidi k{.tur = tur};
    EXPECT_EQ(bool(ViziteCiz(k)), tur != AltiAylik);
    EXPECT_THAT(ViziteYazdir(k), HasSubstr("Devam Ediyor"));
    k.form.vizite = Tarih(2009, 5, 4);
    for (const auto& alan : Cizim(k).alanlar) EXPECT_NE(alan.deger, "X") << alan.ad;
  }
  const auto belge = ViziteBelgesi({.tur = AltiAylik});
  EXPECT_FALSE(belge->Ayar().YzcGrafikAcik) << "without a day the certificate is text alone";
}

TEST(ViziteKagidi, DigitsAndMarksOfThePerson) {
  ViziteKagidi k = DoluKagit(Sigortali);
  k.kimlik->tahsil = 4;
  k.kimlik->cins = 1;
  k.kimlik->uyruk = " t.c.";
  const auto isaretliler = [&] {
    std::vector<std::string> isaretli;
    for (const auto& alan : Cizim(k).alanlar)
      if (alan.deger == "X") isaretli.push_back(alan.ad);
    return isaretli;
  };
  EXPECT_THAT(isaretliler(), ElementsAre("cins1", "uyruk.tc", "tahsil4"));
  k.kimlik->uyruk = "Almanya";
  k.kimlik->tahsil = 0;
  EXPECT_THAT(isaretliler(), ElementsAre("cins1")) << "an education that nobody has entered ticks nothing";
  EXPECT_EQ(Alan(Cizim(k), "uyruk").deger, "Almanya");
  EXPECT_EQ(std::pair(Alan(Cizim(k), "tcno").hucre, Alan(Cizim(k), "sskno").hucre), std::pair(11, 13));
  EXPECT_EQ(Alan(Cizim(k), "firma.il").deger, "034");
}

TEST(ViziteKagidi, TypedAmountsAndTheirSums) {
  ViziteKagidi k = DoluKagit(Sigortali);
  k.aylar[0].ekodeme = Tutar(50.5);
  k.aylar[1].prim = Tutar(999'999'999.99);
  k.aylar[2].prim = Tutar(999'999'999.99);
  k.aylar[3].izin = 4;
  k.aylar[4].izin = 3;
  const FormSayfasi s = Cizim(k);
  EXPECT_EQ(Alan(s, "ay1.ekodeme").deger, "50.50");
  EXPECT_EQ(Alan(s, "ay2.prim").deger, "999,999,999.99");
  EXPECT_EQ(Alan(s, "toplam.prim").deger, "1,999,999,999.98");
  EXPECT_EQ(Alan(s, "izin").deger, "7");
  const std::string metin = ViziteYazdir(k);
  EXPECT_THAT(metin, HasSubstr("│  1999999999.98 │")) << "marks go, digits stay";
  EXPECT_THAT(metin, HasSubstr("Tutarların Toplamı : 2,000,012,119.48"));
  EXPECT_THAT(metin, HasSubstr("İzin Gün Sayısı : 7 "));
}

TEST(ViziteKagidi, WordsThatAreTooLongGoOnBelow) {
  ViziteKagidi k = DoluKagit(Sigortali);
  k.aylar[0].ucret = Tutar(789'789.89);
  const std::string metin = ViziteYazdir(k);
  EXPECT_THAT(metin, HasSubstr("│ yediyüzseksendokuzbinyediyüzseksendokuz TL       │"));
  EXPECT_THAT(
      metin,
      HasSubstr("│              │        │                    │ seksendokuz KR                                   │"));
}

TEST(ViziteKagidi, WordsOfTheRelative) {
  ViziteKagidi k = DoluKagit(AltiAylik);
  const auto metin = [&](std::uint8_t yakinlik) {
    k.yakin.yakinlik = yakinlik;
    return ViziteYazdir(k);
  };
  for (const std::uint8_t yakinlik : std::initializer_list<std::uint8_t>{0, 1, 4, 9})
    EXPECT_THAT(metin(yakinlik), testing::AllOf(HasSubstr("(Sigortalının Eş ve Çocukları için)"),
                                                HasSubstr("Eş veya Çocuğun"), Not(HasSubstr("Ana veya"))));
  for (const std::uint8_t yakinlik : {AnneYakinligi, BabaYakinligi})
    EXPECT_THAT(metin(yakinlik), testing::AllOf(HasSubstr("(Sigortalının Anne ve Babası  için)"),
                                                HasSubstr("Ana veya Babanın"), Not(HasSubstr("Eş veya"))));
  EXPECT_THAT(metin(1), HasSubstr("yüzyirmi (120) gün yazılır"));
  EXPECT_EQ(Bol(metin(1), "\f").size(), 2u);
  k.tur = EsVeCocuk;
  EXPECT_THAT(metin(AnneYakinligi), testing::AllOf(HasSubstr("Eş veya Çocuğun"), Not(HasSubstr("(120)"))));
  EXPECT_EQ(Bol(metin(1), "\f").size(), 1u);
}

TEST(ViziteKagidi, RowsForOtherPrograms) {
  ViziteKagidi k = DoluKagit(Sigortali);
  k.aylar[0].kayitli = true;
  k.aylar[0].gun = 0;
  k.aylar[1].gun = 0;
  const auto belge = ViziteBelgesi(k);
  const auto veri = belge->Veri();
  ASSERT_NE(veri, nullptr);
  EXPECT_EQ(belge->Tablo(), nullptr);
  std::vector<std::string> adlar;
  for (const auto& kolon : veri->Kolonlar()) adlar.push_back(kolon.kisaBaslik);
  EXPECT_THAT(adlar, ElementsAre("yil", "ay", "gun", "ucret", "ekodeme", "prim", "izin"));
  EXPECT_EQ(veri->Satirlar().size(), 12u);
  EXPECT_EQ(veri->Satirlar()[0].hucreler[2], Hucre(std::int64_t(0)));
  EXPECT_EQ(veri->Satirlar()[1].hucreler[2], Hucre(Null{})) << "no record";
  EXPECT_EQ(belge->Baslik(), "Sigortalı Vizite Kağıdı");
}

}  // namespace
}  // namespace belvani::test
