// One person's severance out of the store, and what follows from each change on the screen.
#include "severance/kidemhesabi.h"

#include "core/saat.h"
#include "core/sinamalar.h"
#include "core/turkce.h"
#include "payroll/parametre/dosyalar.h"
#include "printing/xlsxoku.h"
#include "severance/kidembelgesi.h"
#include "severance/sirket.h"

namespace belvani {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct KidemTesti : test::KidemSirketi {
  void SetUp() override {
    KidemSirketi::SetUp();
    Ekle(Kisi("001", 1800, Tarih(2008, 8, 2), Tarih(2009, 8, 1)));
    // The months before August; that month itself, the year before and another person do not count.
    Bordro("001", 2009, 6, 6000, 900);
    Bordro("001", 2009, 7, 6600, 1185);
    Bordro("001", 2009, 8, 1000, 200);
    Bordro("001", 2008, 12, 5000, 700);
    Bordro("002", 2009, 7, 3000, 450);
  }
  KidemHesabi Hesap() { return {motor(), KidemKosullariYukle(Kaynak())}; }
  static std::string Tutar_(const KidemHesabi& h, std::string_view ad) {
    const auto tutar = KidemTutariBul(h.Cizelge(), ad);
    return tutar ? OndalikMetin(*tutar) : "null";
  }
};

TEST_F(KidemTesti, ThePersonComesWithHisDaysWageAndTheYearsBase) {
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  EXPECT_EQ(h.Form().girtar, Tarih(2008, 8, 2));
  EXPECT_EQ(h.Form().ciktar, Tarih(2009, 8, 1));
  EXPECT_EQ(h.Form().AylikUcret, Tutar(1800));
  EXPECT_EQ(h.Form().CalismaGunu, 360);
  EXPECT_EQ(h.Form().IhbarGun, 30);
  const test::Sinamalar<std::string_view, std::string> durumlar{
      {"dvgvmatrah", "12600.00"}, {"dvgvtutar", "2085.00"},        {"kidemTavan", "2365.16"}, {"gunlukEsas", "60.00"},
      {"netKidem", "1789.20"},    {"ihbarGelirVergisi", "360.00"}, {"netIhbar", "1429.20"},   {"netToplam", "3218.40"}};
  for (const auto& [ad, tutar] : durumlar) EXPECT_EQ(Tutar_(h, ad), tutar) << ad;
  EXPECT_THAT(h.Cizelge().notlar, testing::IsEmpty());
  EXPECT_FALSE(h.IzYap().empty());

  EXPECT_FALSE(h.KisiBul("yok"));
  EXPECT_EQ(h.Form().kod, "");
  EXPECT_FALSE(h.Sonuc().tutarlar);
  EXPECT_TRUE(h.IzYap().empty());
  h.GirisKoy({});  // without a person nothing goes wrong
  h.CikisKoy({});
  h.UcretKoy(Tutar(5));
  EXPECT_FALSE(h.Sonuc().tutarlar);
}

TEST_F(KidemTesti, ADateThatIsNoneIsToday) {
  const SabitGun bugun(Tarih(2009, 9, 15));
  Ekle(Kisi("003", 900, {}, {}));
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("003"));
  EXPECT_EQ(h.Form().girtar, Tarih::Bugun());
  EXPECT_EQ(h.Form().ciktar, Tarih::Bugun());
  h.CikisKoy(Tarih(2010, 1, 1));
  h.CikisKoy({});
  EXPECT_EQ(h.Form().ciktar, Tarih::Bugun());
  h.GirisKoy(Tarih(2001, 1, 1));
  h.GirisKoy({});
  EXPECT_EQ(h.Form().girtar, Tarih::Bugun());
}

// The year's base follows the leaving day; what the user has typed does not go without his doing.
TEST_F(KidemTesti, WhatFollowsFromAChange) {
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  h.CikisKoy(Tarih(2009, 7, 31));
  EXPECT_EQ(Tutar_(h, "dvgvmatrah"), "6000.00");
  h.CikisKoy(Tarih(2010, 7, 31));
  EXPECT_EQ(Tutar_(h, "dvgvmatrah"), "0.00");
  EXPECT_EQ(h.Form().IhbarGun, 45);
  h.IhbarGunKoy(3);
  h.UcretKoy(Tutar(3000));
  EXPECT_EQ(h.Form().IhbarGun, 3) << "typed days stand while nothing but the wage changes";
  EXPECT_EQ(Tutar_(h, "brutIhbar"), "300.00");
  EXPECT_EQ(Tutar_(h, "gunlukEsas"), "78.84") << "cut at the ceiling";
  h.CikisKoy(Tarih(2009, 8, 1));
  EXPECT_EQ(h.Form().IhbarGun, 30);
  EXPECT_EQ(h.Form().AylikUcret, Tutar(3000)) << "a typed wage stands";
  h.GirisKoy(Tarih(2009, 7, 1));
  EXPECT_EQ(h.Form().IhbarGun, 15);
  ASSERT_TRUE(h.KisiBul("001"));
  EXPECT_EQ(h.Form().AylikUcret, Tutar(1800)) << "brought up again he is as on his card";
}

TEST_F(KidemTesti, ExcludedSidesAndNoWageAreBlank) {
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  h.HaricKoy(true, false);
  for (const char* ad : {"kidemKazanci", "brutKidem", "kidemDamga", "netKidem"}) EXPECT_EQ(Tutar_(h, ad), "null") << ad;
  EXPECT_EQ(Tutar_(h, "netToplam"), "1429.20");
  EXPECT_EQ(Tutar_(h, "gunlukEsas"), "60.00");
  h.HaricKoy(true, true);
  for (const char* ad : {"brutIhbar", "ihbarGelirVergisi", "ihbarDamga", "netIhbar"})
    EXPECT_EQ(Tutar_(h, ad), "null") << ad;
  EXPECT_EQ(Tutar_(h, "netToplam"), "0.00");
  h.HaricKoy(false, false);
  h.UcretKoy(Tutar());
  for (const char* ad : {"kidemTavan", "gunlukEsas", "gunlukUcret", "netKidem", "netIhbar", "netToplam"})
    EXPECT_EQ(Tutar_(h, ad), "null") << ad;
  EXPECT_EQ(Tutar_(h, "AylikUcret"), "0.00");
  EXPECT_EQ(h.Form().CalismaGunu, 360);
  EXPECT_EQ(h.Form().IhbarGun, 30);
}

// Tax by the byte at the place of severance, for notice too; the place of notice is not read.
TEST_F(KidemTesti, FlagsOfThePersonsGroup) {
  KidemKosullari k = KidemKosullariYukle(Kaynak());
  Kaztan isci;
  isci.grup = "İşçi";
  isci.y11 = bayrak::Gv;
  Yaz(isci);
  Sicil s = Kisi("004", 1800);
  EXPECT_EQ(k.Bayraklar(s), bayrak::Gv | bayrak::Dv);
  s.hesap = "işçi";
  k = KidemKosullariYukle(Kaynak());
  EXPECT_EQ(k.Bayraklar(s), 0);
  k.kidem.KidemPuantajYeri = 10;
  EXPECT_EQ(k.Bayraklar(s), bayrak::Gv);
  s.hesap = "bilinmez";
  EXPECT_EQ(k.Bayraklar(s), 0);
  s.hesap = "";
  k.kidem.KidemPuantajYeri = 255;
  EXPECT_EQ(k.Bayraklar(s), 0);

  ASSERT_TRUE(KidemParKaydet(o.FirmaDizini, {360, 0, 9}));
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  EXPECT_THAT(h.Cizelge().notlar,
              ElementsAre(HasSubstr("gelir vergisi alınmadı"), HasSubstr("damga vergisi alınmadı")));
  EXPECT_EQ(Tutar_(h, "netToplam"), "3600.00");
}

TEST_F(KidemTesti, CompanyWithoutHoursCountsEight) {
  Sicil s = Kisi("005", 4);
  s.ucretags = 2;
  Ekle(s);
  for (const auto& [saat, ucret, yazili] :
       test::Sinamalar<double, double, bool>{{7.5, 900, true}, {1, 120, true}, {0.5, 960, false}, {0, 960, false}}) {
    o.firma.issaati = Tek(saat);
    KidemHesabi h = Hesap();
    ASSERT_TRUE(h.KisiBul("005"));
    EXPECT_EQ(h.Form().AylikUcret, Tutar(ucret)) << saat;
    EXPECT_EQ(h.Kosullar().IsSaatiYazili, yazili) << saat;
  }
}

// Another half year's ceiling is told and offered; what the user chooses is taken.
TEST_F(KidemTesti, CeilingOfAnotherHalfYear) {
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  h.UcretKoy(Tutar(5000));
  h.CikisKoy(Tarih(2009, 6, 30));
  EXPECT_EQ(Tutar_(h, "kidemTavan"), "2365.16");
  EXPECT_THAT(h.Cizelge().notlar, ElementsAre("Kıdem tavanı kurulu yasal oranlardan alındı: 2,365.16. 2009 yılının ilk "
                                              "yarısı için yayımlanan: 2,260.05."));
  h.TavanKoy(KidemTavaniSecimi::Yariyil);
  EXPECT_EQ(Tutar_(h, "kidemTavan"), "2260.05");
  EXPECT_EQ(Tutar_(h, "gunlukEsas"), "75.34");
  EXPECT_THAT(h.Cizelge().notlar, ElementsAre(HasSubstr("yayımlanandır: 2,260.05")));
  h.CikisKoy(Tarih(2009, 7, 1));
  EXPECT_EQ(Tutar_(h, "kidemTavan"), "2365.16");
  EXPECT_THAT(h.Cizelge().notlar, testing::IsEmpty());
  h.CikisKoy(Tarih(2012, 1, 1));  // never published
  EXPECT_EQ(Tutar_(h, "kidemTavan"), "2365.16");
  EXPECT_THAT(h.Cizelge().notlar, ElementsAre(HasSubstr("Temmuz 2009")));
  yasal.oranlar.KidemTavan = Tutar(2805.04);  // the user's own, of a year that nobody ships
  KidemHesabi kendi = Hesap();
  ASSERT_TRUE(kendi.KisiBul("001"));
  kendi.CikisKoy(Tarih(2012, 1, 1));
  EXPECT_THAT(kendi.Cizelge().notlar, testing::IsEmpty());
}

// ---- the sheet

TEST_F(KidemTesti, TheSheetAsText) {
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  const std::string cizgi(63, '-');
  EXPECT_EQ(KidemMetni(h.Cizelge()), "\n                  TAZMİNAT HESAPLAMA TABLOSU\n" + cizgi +
                                         "\n"
                                         "Personel Kodu :                                    001\n"
                                         "SSK Sicil No  :                          1234567890123\n"
                                         "Adı           :                                   Işıl\n"
                                         "Soyadı        :                                 Öğütçü\n"
                                         "Giriş Tarihi  :                             02.08.2008\n"
                                         "Çıkış Tarihi  :                             01.08.2009\n"
                                         "Ücreti        :                               1,800.00\n" +
                                         cizgi +
                                         "\n"
                                         "Kıdem Tazminat Tavanı     :                   2,365.16\n"
                                         "Günlük Kıdem Tazminat     :                       5.00\n"
                                         "Günlük Ücret              :                      60.00\n"
                                         "Günlük Kıdem'e Esas Ücret :                      60.00\n"
                                         "Toplam Çalışma Günü       :                        360\n"
                                         "Kıdeme Esas Gün           :                       1.00\n"
                                         "İhbar Günü                :                         30\n" +
                                         cizgi + "\n                        KIDEM TAZMİNATI\n" + cizgi +
                                         "\n"
                                         "Kıdem'e Esas Kazanç       :                      60.00 (Günlük)\n"
                                         "Brüt Tutar                :                   1,800.00\n"
                                         "Damga Vergisi             :                      10.80\n" +
                                         cizgi + "\nNET KIDEM TAZMİNATI       :                   1,789.20\n" + cizgi +
                                         "\n                        İHBAR TAZMİNATI\n" + cizgi +
                                         "\n"
                                         "Brüt Tutar                :                   1,800.00\n"
                                         "Gelir Vergisi             :                     360.00\n"
                                         "Damga Vergisi             :                      10.80\n" +
                                         cizgi + "\nNET İHBAR TAZMİNATI       :                   1,429.20\n" + cizgi +
                                         "\n                      NET TOPLAM TAZMİNAT\n" + cizgi +
                                         "\nNET ÖDENECEK              :                   3,218.40\n" + cizgi + "\n");
}

// Long names and huge wages stay within the sheet; notes are broken at its width.
TEST_F(KidemTesti, NothingLeavesTheSheet) {
  Sicil s = Kisi("006", 99'999'999'999.0);
  s.adi = std::string(20, 'W');
  s.sskno = std::string(25, '9');
  Ekle(s);
  ASSERT_TRUE(KidemParKaydet(o.FirmaDizini, {360, 0, 9}));
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("006"));
  h.CikisKoy(Tarih(2009, 6, 30));
  ASSERT_EQ(h.Cizelge().notlar.size(), 3u);
  std::istringstream satirlar(KidemMetni(h.Cizelge()));
  for (std::string satir; std::getline(satirlar, satir);) EXPECT_LE(HarfSayisi(satir), 63u) << satir;
  EXPECT_THAT(KidemMetni(h.Cizelge()), HasSubstr("99,999,999,999.00"));
}

// Text, drawing and spreadsheet show the same amounts.
TEST_F(KidemTesti, AllFormsAgree) {
  KidemHesabi h = Hesap();
  ASSERT_TRUE(h.KisiBul("001"));
  h.UcretKoy(Tutar(1234.57));
  h.HaricKoy(false, true);
  const auto belge = KidemBelgesi(h.Cizelge());
  EXPECT_EQ(belge->DosyaBasligi(), "TAZMİNAT HESAPLAMA TABLOSU 001 2009-08-01");
  const auto xlsx = belge->Xlsx();
  ASSERT_TRUE(xlsx);
  std::map<std::string, std::string> tablo;
  const auto hucreler = test::XlsxOku(*xlsx);
  for (const auto& [adres, hucre] : hucreler)
    if (adres[0] == 'A') {
      const auto yan = hucreler.find("B" + adres.substr(1));
      tablo[adres] = hucre.deger + "=" + (yan == hucreler.end() ? "" : yan->second.deger);
    }
  EXPECT_EQ(tablo["A1"], "TAZMİNAT HESAPLAMA TABLOSU=");
  EXPECT_EQ(tablo["A2"], "Personel Kodu=001");
  EXPECT_EQ(tablo["A8"], "Ücreti=1234.57");
  EXPECT_EQ(tablo["A11"], "Günlük Ücret=41.15");
  EXPECT_EQ(tablo["A13"], "Toplam Çalışma Günü=360");
  EXPECT_EQ(tablo["A14"], "İhbar Günü=30") << "the years of service are not in the spreadsheet";
  EXPECT_EQ(tablo["A15"], "KIDEM TAZMİNATI=");
  EXPECT_EQ(tablo["A19"], "Net Kıdem Tazminatı=1227.16");
  EXPECT_EQ(tablo["A21"], "Brüt Tutar=");
  EXPECT_EQ(tablo["A26"], "Net Ödenecek Tazminat=1227.16");
  EXPECT_THAT(belge->Metin(), HasSubstr("NET ÖDENECEK              :                   1,227.16\n"));
  EXPECT_THAT(BelgePdf(*belge)->baytlar, testing::StartsWith("%PDF"));
}

}  // namespace
}  // namespace belvani
