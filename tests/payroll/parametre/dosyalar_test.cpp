// Which file is read, replaced or left at which size, and what the user hears of it.
#include "payroll/parametre/dosyalar.h"

#include <gmock/gmock.h>

#include "core/sinamalar.h"
#include "dizinli.h"
#include "payroll/parametre/kayitlar.h"

namespace belvani {
namespace {

using test::Sinamalar;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

class Dosyalar : public test::Dizinli {};

AgiTablosu OrnekAgi(double taban) {
  return {Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(4), Tutar(taban)};
}

YasalParametreler Ornek() {
  YasalParametreler p;
  p.oranlar.AsgariUcret = Tutar(693.0);
  p.oranlar.DamgaOran = Tek(6);
  p.oranlar.Ayrilmis.fill(0xAB);
  p.gv.GvLimit[0] = Tutar(8700.0);
  p.gv.GvOran[0] = Tek(15);
  p.agi = OrnekAgi(666);
  p.hesapTurleri[4] = {5, "Yeraltı Gruplu Çalışanlar", 1};
  for (int i = 0; i < 5; ++i) p.kanunlar.push_back({Tarih(2003 + i, 1, 1), Tarih(2004 + i, 1, 1), std::int16_t(i)});
  return p;
}

TEST_F(Dosyalar, FirstRunWithNoFiles) {
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_EQ(y.deger.oranlar, YasalOranlar());
  EXPECT_EQ(y.deger.gv, GvTablosu());
  EXPECT_EQ(y.deger.agi, (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(0), Tutar()}));
  EXPECT_EQ(y.deger.hesapTurleri, VarsayilanHesapTurleri());
  EXPECT_EQ(y.deger.kanunlar, VarsayilanKanunlar());
  EXPECT_EQ(DosyaSayisi(), 3);
  EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(y.deger.agi));
  EXPECT_EQ(Oku("hestur.dat"), KayitBaytlari<HesapTurKaydi>(VarsayilanHesapTurleri()));
  EXPECT_EQ(Oku("kanun.dat").size(), 72u);
  EXPECT_THAT(y.uyarilar, ElementsAre("yasal2.dat yok ya da boş: yasal oranlar sıfır alındı.", HasSubstr("gvtbl.dat"),
                                      HasSubstr("agitbl.dat"), HasSubstr("hestur.dat")));
  EXPECT_THAT(YasalDosyalariYukle(Dizin(), {}).uyarilar, SizeIs(2)) << "what was written is found again";
}

TEST_F(Dosyalar, ABatchRunLeavesBrokenFilesAsTheyAreAndWritesWhatNobodySends) {
  const auto kalir = BozukDosya::Kalir;
  YasalDosyalariYukle(Dizin(), {}, kalir);
  SablonYukle(Dizin(), kalir);
  EXPECT_EQ(Oku("agitbl.dat") + Oku("hestur.dat"), "<none><none>");
  EXPECT_EQ(Oku("kanun.dat").size() + Oku("sablon.dat").size(), 72u + 135u);
  const char* const adlar[] = {"agitbl.dat", "hestur.dat", "kanun.dat", "sablon.dat"};
  for (const char* ad : adlar) Yaz(ad, "bozuk");
  EXPECT_THAT(YasalDosyalariYukle(Dizin(), {}, kalir).uyarilar, SizeIs(5));
  EXPECT_THAT(SablonYukle(Dizin(), kalir).uyarilar, SizeIs(1));
  for (const char* ad : adlar) EXPECT_EQ(Oku(ad), "bozuk");
}

TEST_F(Dosyalar, WhatIsSavedIsLoaded) {
  const YasalParametreler p = Ornek();
  ASSERT_TRUE(YasalOranlarKaydet(Dizin(), p.oranlar) && GvTablosuKaydet(Dizin(), p.gv) &&
              AgiTablosuKaydet(Dizin(), p.agi) && HesapTurleriKaydet(Dizin(), p.hesapTurleri) &&
              KanunlarKaydet(Dizin(), p.kanunlar) && OzelGvKaydet(Dizin(), p.gv));
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_THAT(y.uyarilar, SizeIs(0));
  EXPECT_EQ(y.deger.oranlar, p.oranlar);
  EXPECT_EQ(y.deger.gv, p.gv);
  EXPECT_EQ(y.deger.agi, p.agi);
  EXPECT_EQ(y.deger.hesapTurleri, p.hesapTurleri);
  EXPECT_EQ(y.deger.kanunlar, p.kanunlar);
  EXPECT_EQ(OzelGvYukle(Dizin()).deger, p.gv);
  const OzelGiderParametreleri ozel{Tek(35), 8, 2005, Tek(6)};
  ASSERT_TRUE(OzelGiderKaydet(Dizin(), ozel));
  EXPECT_EQ(OzelGiderYukle(Dizin(), {}).deger, ozel);

  KazancBayraklari bayraklar;
  bayraklar.k.fill(6);
  bayraklar.y[10] = 31;
  const FazlaMesailer mesailer{{{Tek(1.6), Tek(41)}, {Tek(2.1), Tek(42)}, {Tek(2.6), Tek(43)}}};
  Sablon sablon;
  sablon.SablonYardim[10] = Tutar(99.9999);
  Yaz("kazanc.dat", KayitBaytlari<KazancKaydi>(bayraklar.k));
  Yaz("yardim.dat", KayitBaytlari<YardimKaydi>(bayraklar.y));
  ASSERT_TRUE(FazlaMesaiKaydet(Dizin(), mesailer) && SablonKaydet(Dizin(), sablon));
  EXPECT_EQ(KazancBayraklariYukle(Dizin()).deger, bayraklar);
  EXPECT_EQ(FazlaMesaiYukle(Dizin()).deger, mesailer);
  EXPECT_EQ(SablonYukle(Dizin()).deger, sablon);
  EXPECT_EQ(SablonOku(Dizin()).deger, sablon);
}

TEST_F(Dosyalar, SpecialExpenseParametersOfAnotherSize) {
  const OzelGiderParametreleri hazir = VarsayilanOzelGider(2004, Tek(6));
  EXPECT_EQ(hazir, (OzelGiderParametreleri{Tek(35), 1, 2005, Tek(6)}));
  EXPECT_THAT(OzelGiderYukle(Dizin(), hazir).uyarilar, SizeIs(0)) << "a new company has none";
  EXPECT_EQ(Oku("ozgvpar.dat"), KayitBaytlari<OzelGiderKaydi>(hazir));
  for (const std::size_t boy : {1u, 11u, 13u, 96u}) {
    Yaz("ozgvpar.dat", std::string(boy, '\x11'));
    EXPECT_THAT(OzelGiderYukle(Dizin(), hazir, BozukDosya::Dokunulmaz).uyarilar, SizeIs(1));
    EXPECT_EQ(Oku("ozgvpar.dat").size(), boy) << "papers write nothing";
    const auto y = OzelGiderYukle(Dizin(), hazir);
    EXPECT_EQ(y.deger, hazir);
    EXPECT_THAT(y.uyarilar, ElementsAre(HasSubstr("bayt, 12 bayt olmalıydı: hazır değerler yazıldı.")));
    EXPECT_EQ(Oku("ozgvpar.dat").size(), 12u);
  }
  for (const OzelGiderParametreleri& p : {OzelGiderParametreleri{Tek(101), 1, 2005, Tek(6)},
                                          {Tek(35), 0, 2005, Tek(6)},
                                          {Tek(35), 13, 2005, Tek(6)},
                                          {Tek(35), 1, 5, Tek(6)},
                                          {Tek(35), 1, 2005, Tek(-1)}}) {
    EXPECT_THAT(OzelGiderKaydet(Dizin(), p).KusurMetni(), HasSubstr("arasında olmalı"));
  }
  EXPECT_EQ(OzelGiderYukle(Dizin(), {}).deger, hazir) << "nothing of it was stored";
}

TEST_F(Dosyalar, WrongSizesOfStatutoryFiles) {
  const YasalParametreler simdiki = Ornek();
  for (const int fark : {-1, 1}) {
    const auto boyda = [&](int boy) { return std::string(std::size_t(boy + fark), '\x11'); };
    for (const auto& [ad, boy] :
         Sinamalar<const char*, int>{{"yasal2.dat", 1368}, {"gvtbl.dat", 96}, {"agitbl.dat", 28}, {"hestur.dat", 4050}})
      Yaz(ad, boyda(boy));
    const auto y = YasalDosyalariYukle(Dizin(), simdiki);
    EXPECT_EQ(y.deger.oranlar, YasalOranlar()) << "not what memory held";
    EXPECT_EQ(y.deger.gv, simdiki.gv);
    EXPECT_EQ(y.deger.agi, OrnekAgi(0)) << "the fourth child of memory";
    EXPECT_EQ(y.deger.hesapTurleri, VarsayilanHesapTurleri());
    EXPECT_EQ(Oku("yasal2.dat"), boyda(1368));
    EXPECT_EQ(Oku("gvtbl.dat"), boyda(96));
    EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(y.deger.agi));
    EXPECT_EQ(Oku("hestur.dat").size(), 4050u);
    EXPECT_EQ(y.uyarilar[2],
              "agitbl.dat " + std::to_string(28 + fark) + " bayt, 28 bayt olmalıydı: hazır oranlar yazıldı.");
  }
}

TEST_F(Dosyalar, ABaseOfTheAllowanceBelowAHundredIsTheMinimumWageInMemory) {
  ASSERT_TRUE(YasalOranlarKaydet(Dizin(), Ornek().oranlar));
  for (const auto& [diskte, bellekte] : Sinamalar<double, double>{{99.9999, 693}, {100, 100}, {-5, 693}}) {
    ASSERT_TRUE(AgiTablosuKaydet(Dizin(), OrnekAgi(diskte)));
    EXPECT_EQ(YasalDosyalariYukle(Dizin(), {}).deger.agi, OrnekAgi(bellekte)) << diskte;
    EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(OrnekAgi(diskte))) << diskte;
  }
  Yaz("agitbl.dat", "");
  EXPECT_EQ(YasalDosyalariYukle(Dizin(), Ornek()).deger.agi, OrnekAgi(693));
  EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(OrnekAgi(693))) << "carries the wage just read";
}

TEST_F(Dosyalar, ErasShorterThanFourRowsBecomeTheBuiltInOnes) {
  const std::string satir = KayitBaytlari<KanunKaydi>({Tarih(2003, 1, 1), Tarih(2010, 1, 1), 9});
  const std::string dort = satir + satir + satir + satir;
  // Rows that are read; 0: the built-in ones, written.
  for (const auto& [baytlar, okunan, uyari] : Sinamalar<std::string, std::size_t, std::size_t>{
           {dort.substr(1), 0, 1}, {dort, 4, 0}, {dort + satir + "yarım", 5, 1}, {dort + dort, 8, 0}}) {
    YasalDosyalariYukle(Dizin(), {});  // settles the other files
    Yaz("kanun.dat", baytlar);
    const auto y = YasalDosyalariYukle(Dizin(), {});
    EXPECT_EQ(y.deger.kanunlar.size(), okunan == 0 ? 4 : okunan);
    EXPECT_EQ(UygulamaBul(y.deger.kanunlar, 10, 2008), okunan == 0 ? 4 : 9) << okunan;
    EXPECT_EQ(Oku("kanun.dat").size(), okunan == 0 ? 72 : baytlar.size());
    EXPECT_EQ(y.uyarilar.size(), 2 + uyari) << okunan << ", two of them about absent files";
  }
  const std::string once(2u << 20, '\x11');  // many rows, perhaps
  Yaz("kanun.dat", once);
  EXPECT_EQ(YasalDosyalariYukle(Dizin(), {}).deger.kanunlar, VarsayilanKanunlar());
  EXPECT_EQ(KanunlarKaydet(Dizin(), {{Tarih(), Tarih(2008, 1, 1), 1}}).KusurMetni(), "Kanun Başlangıç Tarihi Hatalı");
  EXPECT_EQ(KanunlarKaydet(Dizin(), {{Tarih(2008, 1, 1), Tarih(), 1}}).KusurMetni(), "Kanun Bitiş Tarihi Hatalı");
  EXPECT_EQ(Oku("kanun.dat"), once);
}

TEST_F(Dosyalar, FlagsOfTheCompany) {
  const KazancBayraklari hazir = VarsayilanKazancBayraklari();
  const auto ilk = KazancBayraklariYukle(Dizin());
  EXPECT_EQ(ilk.deger, hazir);
  EXPECT_THAT(ilk.uyarilar, SizeIs(0)) << "a new company has no such files";
  EXPECT_EQ(Oku("kazanc.dat"), "\x0f\x0f\x0e\x0e\x0e\x0e\x0e\x0e\x0e");
  EXPECT_EQ(Oku("yardim.dat"), "<none>");
  for (const std::size_t boy : {8u, 10u}) {
    Yaz("kazanc.dat", std::string(boy, '\2'));
    Yaz("yardim.dat", std::string(boy + 2, '\3'));
    const auto y = KazancBayraklariYukle(Dizin());
    EXPECT_EQ(y.deger, hazir) << boy;
    EXPECT_THAT(y.uyarilar, ElementsAre(HasSubstr("kazanc.dat"), HasSubstr("yardim.dat"))) << boy;
    EXPECT_EQ(Oku("kazanc.dat"), std::string(boy, '\2'));
  }
}

TEST_F(Dosyalar, OvertimeLinesThatTheFileHoldsWhole) {
  const FazlaMesai baska{Tek(3), Tek(7)};
  const std::string satir = KayitBaytlari<FazlaMesaiKaydi>(baska);
  const std::string uc = satir + satir + satir;
  // 8 bytes are no line yet.
  for (const auto& [baytlar, okunan] : Sinamalar<std::string, std::size_t>{
           {"", 0}, {satir, 0}, {satir + "x", 1}, {satir + satir, 2}, {uc, 3}, {uc + satir, 3}}) {
    Yaz("fmesai.dat", baytlar);
    const auto y = FazlaMesaiYukle(Dizin());
    FazlaMesailer beklenen = VarsayilanFazlaMesailer();
    std::fill_n(beklenen.begin(), okunan, baska);
    EXPECT_EQ(y.deger, beklenen) << baytlar.size();
    EXPECT_EQ(Oku("fmesai.dat"), baytlar);
    EXPECT_EQ(y.uyarilar.empty(), baytlar.empty() || baytlar.size() == 24) << baytlar.size();
  }
}

TEST_F(Dosyalar, OnlyThePayrollScreenWritesTheBuiltInTemplate) {
  const std::string hazir = std::string("\0\0\xd0\x41\0\0\x80\x40", 8) + std::string(127, '\0');  // 26 and 4
  for (const std::size_t boy : {0u, 134u, 136u}) {
    Yaz("sablon.dat", std::string(boy, 'x'));
    EXPECT_EQ(SablonOku(Dizin()).deger, VarsayilanSablon());
    EXPECT_EQ(Oku("sablon.dat"), std::string(boy, 'x'));
    EXPECT_EQ(SablonYukle(Dizin()).deger, VarsayilanSablon());
    EXPECT_EQ(Oku("sablon.dat"), hazir);
  }
}

// An absent file is ordinary; one of another size goes, and that is told.
TEST_F(Dosyalar, SeveranceFilesOfAnotherSizeBecomeTheBuiltInOnes) {
  const std::string kidem("\x68\x01\x09\x0a", 4);
  const std::string ihbar = std::string("\6\0\x0f\0\x12\0\x1e\0\x24\0\x2d\0\x0f\x27\x3c\0", 16) + std::string(16, '\0');
  for (const auto& [kidemBoyu, ihbarBoyu] :
       Sinamalar<std::size_t, std::size_t>{{0, 0}, {3, 31}, {5, 33}, {400, 4000}}) {
    if (kidemBoyu > 0) Yaz("kidpar.dat", std::string(kidemBoyu, 'x'));
    if (ihbarBoyu > 0) Yaz("ihbsure.dat", std::string(ihbarBoyu, 'x'));
    const auto k = KidemParOku(Dizin());
    const auto i = IhbarSureOku(Dizin());
    EXPECT_EQ(k.deger, KidemParametreleri());
    EXPECT_EQ(i.deger, VarsayilanIhbarSureleri);
    EXPECT_EQ(Oku("kidpar.dat"), kidem);
    EXPECT_EQ(Oku("ihbsure.dat"), ihbar);
    EXPECT_THAT(k.uyarilar, SizeIs(kidemBoyu == 0 ? 0 : 1));
    EXPECT_THAT(i.uyarilar, SizeIs(ihbarBoyu == 0 ? 0 : 1));
  }
  IhbarSureleri sureler = VarsayilanIhbarSureleri;
  sureler[7] = {12, 7};
  ASSERT_TRUE(KidemParKaydet(Dizin(), {365, 1, 2}) && IhbarSureKaydet(Dizin(), sureler));
  EXPECT_EQ(KidemParOku(Dizin()).deger, (KidemParametreleri{365, 1, 2}));
  EXPECT_EQ(IhbarSureOku(Dizin()).deger, sureler);
}

TEST_F(Dosyalar, ANumberThatIsNoneIsToldOnce) {
  std::string baytlar = KayitBaytlari<YasalKaydi>(Ornek().oranlar);
  baytlar.replace(1312, 4, "\xff\xff\xff\x7f");
  baytlar.replace(0, 4, std::string("\0\0\x80\x7f", 4));
  Yaz("yasal2.dat", baytlar);
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_EQ(y.uyarilar[0], "yasal2.dat 2 alanı sayı değil: boş sayıldı.");
  EXPECT_EQ(y.deger.oranlar.DamgaOran.Sayi(), 0);
  EXPECT_EQ(y.deger.oranlar.AsgariUcret, Tutar(693.0));
}

TEST_F(Dosyalar, WhatCannotBeReadIsNotWrittenOver) {
  for (const char* ad : {"yasal2.dat", "gvtbl.dat", "agitbl.dat", "hestur.dat", "kanun.dat", "kazanc.dat"})
    ASSERT_TRUE(DizinYarat(Yol(ad)));
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_THAT(y.uyarilar, testing::Each(HasSubstr("okunamadı")));
  EXPECT_EQ(y.deger.kanunlar, VarsayilanKanunlar());
  EXPECT_EQ(KazancBayraklariYukle(Dizin()).deger, VarsayilanKazancBayraklari());
  EXPECT_TRUE(DizinVar(Yol("hestur.dat")));
  const auto yok = YasalDosyalariYukle(Yol("yok"), {});
  EXPECT_EQ(yok.deger.hesapTurleri, VarsayilanHesapTurleri());
  EXPECT_THAT(yok.uyarilar, testing::Contains(HasSubstr("dosya yazılamadı")));
}

}  // namespace
}  // namespace belvani
