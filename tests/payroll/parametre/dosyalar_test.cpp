// Which file is read, replaced or left at which size, and what the user hears of it.
#include "payroll/parametre/dosyalar.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sstream>

#include "gecici.h"
#include "payroll/parametre/kayitlar.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Dosyalar : public testing::Test {
 protected:
  std::string Yol(const std::string& ad) const { return dizin_.Yol() + ad; }
  void Yaz(const std::string& ad, const std::string& baytlar) const {
    std::ofstream(Yol(ad), std::ios::binary) << baytlar;
  }
  // "<none>" for a file that does not exist.
  std::string Oku(const std::string& ad) const {
    std::ifstream dosya(Yol(ad), std::ios::binary);
    if (!dosya) return "<none>";
    std::ostringstream icerik;
    icerik << dosya.rdbuf();
    return icerik.str();
  }
  const std::string& Dizin() const { return dizin_.Yol(); }

 private:
  test::GeciciDizin dizin_;
};

YasalOranlar OrnekOranlar() {
  YasalOranlar o;
  o.AsgariUcret = Tutar(693.0);
  o.DamgaOran = Tek(6);
  o.IsciOran[0].mal = Tek(9);
  o.Ayrilmis.fill(0xAB);
  return o;
}

AgiTablosu OrnekAgi(double taban) {
  return {Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(5), Tutar(taban)};
}

TEST_F(Dosyalar, FirstRunWithNoFiles) {
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_EQ(y.deger.oranlar, YasalOranlar());
  EXPECT_EQ(y.deger.gv, GvTablosu());
  EXPECT_EQ(y.deger.agi, (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(0), Tutar()}));
  EXPECT_EQ(y.deger.hesapTurleri, VarsayilanHesapTurleri());
  EXPECT_EQ(y.deger.kanunlar, VarsayilanKanunlar());
  EXPECT_EQ(Oku("yasal2.dat"), "<none>");
  EXPECT_EQ(Oku("gvtbl.dat"), "<none>");
  EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(y.deger.agi));
  EXPECT_EQ(Oku("hestur.dat"), KayitBaytlari<HesapTurKaydi>(VarsayilanHesapTurleri()));
  EXPECT_EQ(Oku("kanun.dat").size(), 72u);
  EXPECT_THAT(y.uyarilar, ElementsAre("yasal2.dat yok ya da boş: yasal oranlar sıfır alındı.",
                                      "gvtbl.dat yok ya da boş: gelir vergisi tablosu değişmedi.",
                                      "agitbl.dat yok ya da boş: hazır oranlar yazıldı.",
                                      "hestur.dat yok ya da boş: hazır sigorta kolları yazıldı."));
  EXPECT_THAT(YasalDosyalariYukle(Dizin(), {}).uyarilar, testing::SizeIs(2)) << "what was written is found again";
}

TEST_F(Dosyalar, ABatchRunLeavesBrokenFilesAsTheyAre) {
  const std::vector<std::string> adlar{"agitbl.dat", "hestur.dat", "kanun.dat"};
  for (const auto& ad : adlar) Yaz(ad, "bozuk");
  for (int kez = 0; kez < 2; ++kez)
    EXPECT_THAT(YasalDosyalariYukle(Dizin(), {}, BozukDosya::Kalir).uyarilar, testing::SizeIs(5)) << kez;
  for (const auto& ad : adlar) EXPECT_EQ(Oku(ad), "bozuk");
}

TEST_F(Dosyalar, WhatIsSavedIsLoaded) {
  YasalParametreler p;
  p.oranlar = OrnekOranlar();
  p.gv.GvLimit[0] = Tutar(8700.0);
  p.gv.GvOran[0] = Tek(15);
  p.agi = OrnekAgi(666);
  p.hesapTurleri[4] = {5, "Yeraltı Gruplu Çalışanlar", 1};
  for (int i = 0; i < 5; ++i) p.kanunlar.push_back({Tarih(2003 + i, 1, 1), Tarih(2004 + i, 1, 1), std::int16_t(i)});
  ASSERT_TRUE(YasalOranlarKaydet(Dizin(), p.oranlar) && GvTablosuKaydet(Dizin(), p.gv) &&
              AgiTablosuKaydet(Dizin(), p.agi) && HesapTurleriKaydet(Dizin(), p.hesapTurleri) &&
              KanunlarKaydet(Dizin(), p.kanunlar) && OzelGvKaydet(Dizin(), p.gv));
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_THAT(y.uyarilar, IsEmpty());
  EXPECT_EQ(y.deger.oranlar, p.oranlar);
  EXPECT_EQ(y.deger.gv, p.gv);
  EXPECT_EQ(y.deger.agi, p.agi);
  EXPECT_EQ(y.deger.hesapTurleri, p.hesapTurleri);
  EXPECT_EQ(y.deger.kanunlar, p.kanunlar);
  EXPECT_EQ(Oku("kanun.dat").size(), 90u);
  EXPECT_EQ(OzelGvYukle(Dizin()).deger, p.gv);

  KazancBayraklari bayraklar;
  bayraklar.k.fill(6);
  bayraklar.y[10] = 31;
  const FazlaMesailer mesailer{{{Tek(1.6), Tek(41)}, {Tek(2.1), Tek(42)}, {Tek(2.6), Tek(43)}}};
  Sablon sablon;
  sablon.SablonGun[8] = Tek(12.5);
  sablon.SablonYardim[10] = Tutar(99.9999);
  sablon.SablonYardimTip[0] = 2;
  ASSERT_TRUE(KazancKaydet(Dizin(), bayraklar) && YardimKaydet(Dizin(), bayraklar) &&
              FazlaMesaiKaydet(Dizin(), mesailer) && SablonKaydet(Dizin(), sablon));
  EXPECT_EQ(KazancBayraklariYukle(Dizin()).deger, bayraklar);
  EXPECT_EQ(FazlaMesaiYukle(Dizin()).deger, mesailer);
  EXPECT_EQ(SablonYukle(Dizin()).deger, sablon);
  EXPECT_EQ(SablonOku(Dizin()).deger, sablon);
}

TEST_F(Dosyalar, WrongSizesOfStatutoryFiles) {
  YasalParametreler simdiki;
  simdiki.oranlar = OrnekOranlar();
  simdiki.gv.GvLimit[0] = Tutar(7800.0);
  simdiki.agi.AgiCocuk4 = Tek(4);
  for (const int fark : {-1, 1}) {
    const auto boyda = [&](std::size_t boy) { return std::string(boy + std::size_t(fark), '\x11'); };
    Yaz("yasal2.dat", boyda(1368));
    Yaz("gvtbl.dat", boyda(96));
    Yaz("agitbl.dat", boyda(28));
    Yaz("hestur.dat", boyda(4050));
    const auto y = YasalDosyalariYukle(Dizin(), simdiki);
    EXPECT_EQ(y.deger.oranlar, YasalOranlar()) << "not what memory held";
    EXPECT_EQ(y.deger.gv, simdiki.gv);
    EXPECT_EQ(y.deger.agi, (AgiTablosu{Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(4), Tutar()}));
    EXPECT_EQ(y.deger.hesapTurleri, VarsayilanHesapTurleri());
    EXPECT_EQ(Oku("yasal2.dat"), boyda(1368));
    EXPECT_EQ(Oku("gvtbl.dat"), boyda(96));
    EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(y.deger.agi));
    EXPECT_EQ(Oku("hestur.dat").size(), 4050u);
    EXPECT_EQ(y.uyarilar[0],
              "yasal2.dat " + std::to_string(1368 + fark) + " bayt, 1368 bayt olmalıydı: yasal oranlar sıfır alındı.");
    EXPECT_EQ(y.uyarilar[2],
              "agitbl.dat " + std::to_string(28 + fark) + " bayt, 28 bayt olmalıydı: hazır oranlar yazıldı.");
  }
}

TEST_F(Dosyalar, ABaseOfTheAllowanceBelowAHundredIsTheMinimumWageInMemory) {
  ASSERT_TRUE(YasalOranlarKaydet(Dizin(), OrnekOranlar()));
  const struct {
    double diskte, bellekte;
  } durumlar[] = {{0, 693}, {99.99, 693}, {99.9999, 693}, {100, 100}, {100.01, 100.01}, {-5, 693}};
  for (const auto& d : durumlar) {
    ASSERT_TRUE(AgiTablosuKaydet(Dizin(), OrnekAgi(d.diskte)));
    EXPECT_EQ(YasalDosyalariYukle(Dizin(), {}).deger.agi, OrnekAgi(d.bellekte)) << d.diskte;
    EXPECT_EQ(Oku("agitbl.dat"), KayitBaytlari<AgiKaydi>(OrnekAgi(d.diskte))) << d.diskte;
  }
  // The defaults that are written carry the minimum wage just read.
  Yaz("agitbl.dat", "");
  EXPECT_EQ(YasalDosyalariYukle(Dizin(), {}).deger.agi.AgiTaban, Tutar(693.0));
  EXPECT_EQ(KayitCoz<AgiKaydi>(Oku("agitbl.dat")).deger.AgiTaban, Tutar(693.0));
}

TEST_F(Dosyalar, ErasShorterThanFourRowsBecomeTheBuiltInOnes) {
  const std::string satir = KayitBaytlari<KanunKaydi>({Tarih(2003, 1, 1), Tarih(2010, 1, 1), 9});
  const auto satirlar = [&](int n) {
    std::string s;
    while (n-- > 0) s += satir;
    return s;
  };
  const struct {
    const char* ad;
    std::string baytlar;
    std::size_t okunan;  // rows; 0: the built-in ones, written
    bool uyari;
  } durumlar[] = {{"54 bytes", satirlar(3), 0, true},
                  {"71 bytes", satirlar(4).substr(1), 0, true},
                  {"72 bytes", satirlar(4), 4, false},
                  {"half a row behind", satirlar(5) + "yarım", 5, true},
                  {"seven rows", satirlar(7), 7, false}};
  for (const auto& d : durumlar) {
    Yaz("kanun.dat", d.baytlar);
    YasalDosyalariYukle(Dizin(), {});  // settles the other files
    Yaz("kanun.dat", d.baytlar);
    const auto y = YasalDosyalariYukle(Dizin(), {});
    EXPECT_EQ(y.deger.kanunlar.size(), d.okunan == 0 ? 4 : d.okunan) << d.ad;
    EXPECT_EQ(UygulamaBul(y.deger.kanunlar, 10, 2008), d.okunan == 0 ? 4 : 9) << d.ad;
    EXPECT_EQ(Oku("kanun.dat").size(), d.okunan == 0 ? 72 : d.baytlar.size()) << d.ad;
    EXPECT_EQ(y.uyarilar.size(), d.uyari ? 3u : 2u) << d.ad << ", two of them about absent files";
  }
}

TEST_F(Dosyalar, AnEraWithoutADayIsNotSaved) {
  Yaz("kanun.dat", "eski");
  EXPECT_EQ(KanunlarKaydet(Dizin(), {{Tarih(), Tarih(2008, 1, 1), 1}}).HataMetni(), "Kanun Başlangıç Tarihi Hatalı");
  EXPECT_EQ(KanunlarKaydet(Dizin(), {{Tarih(2008, 1, 1), Tarih(), 1}}).HataMetni(), "Kanun Bitiş Tarihi Hatalı");
  EXPECT_EQ(Oku("kanun.dat"), "eski");
}

TEST_F(Dosyalar, FlagsOfTheCompany) {
  const KazancBayraklari hazir = VarsayilanKazancBayraklari();
  const auto ilk = KazancBayraklariYukle(Dizin());
  EXPECT_EQ(ilk.deger, hazir);
  EXPECT_THAT(ilk.uyarilar, IsEmpty()) << "a new company has no such files";
  EXPECT_EQ(Oku("kazanc.dat"), std::string("\x0f\x0f\x0e\x0e\x0e\x0e\x0e\x0e\x0e"));
  EXPECT_EQ(Oku("yardim.dat"), "<none>");

  for (const std::size_t boy : {1u, 8u, 10u}) {
    Yaz("kazanc.dat", std::string(boy, '\2'));
    Yaz("yardim.dat", std::string(boy + 2, '\3'));
    const auto y = KazancBayraklariYukle(Dizin());
    EXPECT_EQ(y.deger, hazir) << boy;
    EXPECT_THAT(y.uyarilar, ElementsAre(HasSubstr("kazanc.dat"), HasSubstr("yardim.dat"))) << boy;
    EXPECT_EQ(Oku("kazanc.dat"), std::string(boy, '\2'));
  }
  Yaz("kazanc.dat", std::string(9, '\4'));
  Yaz("yardim.dat", std::string(11, '\5'));
  EXPECT_EQ(KazancBayraklariYukle(Dizin()).deger.k[8], 4);
  EXPECT_EQ(KazancBayraklariYukle(Dizin()).deger.y[10], 5);
}

TEST_F(Dosyalar, OvertimeLinesThatTheFileHoldsWhole) {
  const FazlaMesailer hazir = VarsayilanFazlaMesailer();
  const FazlaMesai baska{Tek(3), Tek(7)};
  const std::string satir = KayitBaytlari<FazlaMesaiKaydi>(baska);
  const struct {
    const char* ad;
    std::string baytlar;
    int okunan;
  } durumlar[] = {{"empty", "", 0},
                  {"8 bytes", satir, 0},
                  {"9 bytes", satir + "x", 1},
                  {"16 bytes", satir + satir, 2},
                  {"24 bytes", satir + satir + satir, 3},
                  {"more", satir + satir + satir + satir, 3}};
  for (const auto& d : durumlar) {
    Yaz("fmesai.dat", d.baytlar);
    const auto y = FazlaMesaiYukle(Dizin());
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(y.deger[std::size_t(i)], i < d.okunan ? baska : hazir[std::size_t(i)]) << d.ad << " " << i;
    EXPECT_EQ(Oku("fmesai.dat"), d.baytlar) << d.ad;
    EXPECT_EQ(y.uyarilar.empty(), d.baytlar.empty() || d.baytlar.size() == 24) << d.ad;
  }
}

TEST_F(Dosyalar, OnlyThePayrollScreenWritesTheBuiltInTemplate) {
  const std::string hazir = KayitBaytlari<SablonKaydi>(VarsayilanSablon());
  for (const std::size_t boy : {0u, 134u, 136u}) {
    Yaz("sablon.dat", std::string(boy, 'x'));
    EXPECT_EQ(SablonOku(Dizin()).deger, VarsayilanSablon());
    EXPECT_EQ(Oku("sablon.dat"), std::string(boy, 'x'));
    EXPECT_EQ(SablonYukle(Dizin()).deger, VarsayilanSablon());
    EXPECT_EQ(Oku("sablon.dat"), hazir);
  }
  EXPECT_EQ(hazir.substr(0, 8), std::string("\0\0\xd0\x41\0\0\x80\x40", 8)) << "26 and 4";
}

TEST_F(Dosyalar, ANumberThatIsNoneIsToldOnce) {
  std::string baytlar = KayitBaytlari<YasalKaydi>(OrnekOranlar());
  baytlar.replace(1312, 4, "\xff\xff\xff\x7f");
  baytlar.replace(0, 4, std::string("\0\0\x80\x7f", 4));
  Yaz("yasal2.dat", baytlar);
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_EQ(y.uyarilar[0], "yasal2.dat 2 alanı sayı değil: boş sayıldı.");
  EXPECT_EQ(y.deger.oranlar.DamgaOran.Sayi(), 0);
  EXPECT_EQ(y.deger.oranlar.AsgariUcret, Tutar(693.0));
}

TEST_F(Dosyalar, WhatCannotBeReadIsNotWrittenOver) {
  for (const char* ad :
       {"yasal2.dat", "gvtbl.dat", "agitbl.dat", "hestur.dat", "kanun.dat", "kazanc.dat", "sablon.dat"})
    fs::create_directory(Yol(ad));
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_THAT(y.uyarilar, testing::Each(HasSubstr("okunamadı")));
  EXPECT_EQ(y.deger.hesapTurleri, VarsayilanHesapTurleri());
  EXPECT_EQ(y.deger.kanunlar, VarsayilanKanunlar());
  EXPECT_EQ(KazancBayraklariYukle(Dizin()).deger, VarsayilanKazancBayraklari());
  EXPECT_EQ(SablonYukle(Dizin()).deger, VarsayilanSablon());
  EXPECT_TRUE(fs::is_directory(Yol("hestur.dat")) && fs::is_directory(Yol("sablon.dat")));
}

TEST_F(Dosyalar, AbsurdlyLargeFiles) {
  const std::string dev(2u << 20, '\x11');
  Yaz("agitbl.dat", dev);
  Yaz("kanun.dat", dev);
  const auto y = YasalDosyalariYukle(Dizin(), {});
  EXPECT_EQ(Oku("agitbl.dat").size(), 28u);
  EXPECT_EQ(Oku("kanun.dat").size(), dev.size()) << "many rows, perhaps: not shorter than 72 bytes";
  EXPECT_EQ(y.deger.kanunlar, VarsayilanKanunlar());
}

TEST_F(Dosyalar, AMissingDirectoryIsAWarningNotAFailure) {
  const auto y = YasalDosyalariYukle(Dizin() + "yok", {});
  EXPECT_EQ(y.deger.hesapTurleri, VarsayilanHesapTurleri());
  EXPECT_THAT(y.uyarilar, testing::Contains(HasSubstr("dosya yazılamadı")));
  EXPECT_FALSE(YasalOranlarKaydet(Dizin() + "yok", {}));
}

// A size that is 0, near the right one, exactly it, or anything.
std::string RastgeleBaytlar(std::size_t boy) {
  const auto n = *rc::gen::oneOf(rc::gen::just(boy), rc::gen::inRange<std::size_t>(0, boy + 20),
                                 rc::gen::element<std::size_t>(0, 1, boy - 1, boy + 1));
  return *rc::gen::container<std::string>(n, rc::gen::arbitrary<char>());
}

RC_GTEST_PROP(DosyalarCop, NoBytesBreakALoaderAndFilesStayUnlessReplacedByRule, ()) {
  const test::GeciciDizin dizin;
  const struct {
    const char* ad;
    std::size_t boy;
    std::function<bool(std::size_t)> degisir;
  } dosyalar[] = {
      {"yasal2.dat", 1368, [](std::size_t) { return false; }},
      {"gvtbl.dat", 96, [](std::size_t) { return false; }},
      {"agitbl.dat", 28, [](std::size_t n) { return n != 28; }},
      {"hestur.dat", 4050, [](std::size_t n) { return n != 4050; }},
      {"kanun.dat", 90, [](std::size_t n) { return n < 72; }},
      {"ozgvtbl.dat", 96, [](std::size_t) { return false; }},
      {"kazanc.dat", 9, [](std::size_t n) { return n == 0; }},
      {"yardim.dat", 11, [](std::size_t) { return false; }},
      {"fmesai.dat", 24, [](std::size_t) { return false; }},
      {"sablon.dat", 135, [](std::size_t n) { return n != 135; }},
  };
  std::vector<std::string> icerik;
  for (const auto& d : dosyalar) {
    icerik.push_back(RastgeleBaytlar(d.boy));
    std::ofstream(dizin.Yol() + d.ad, std::ios::binary) << icerik.back();
  }
  const auto y = YasalDosyalariYukle(dizin.Yol(), {});
  for (int ay = 1; ay <= 12; ++ay) UygulamaBul(y.deger.kanunlar, ay, 2008);
  OzelGvYukle(dizin.Yol());
  KazancBayraklariYukle(dizin.Yol());
  FazlaMesaiYukle(dizin.Yol());
  SablonYukle(dizin.Yol());
  for (std::size_t i = 0; i < icerik.size(); ++i) {
    std::ifstream dosya(dizin.Yol() + dosyalar[i].ad, std::ios::binary);
    const std::string simdi{std::istreambuf_iterator<char>(dosya), {}};
    if (!dosyalar[i].degisir(icerik[i].size())) RC_ASSERT(simdi == icerik[i]);
  }
  RC_ASSERT(std::distance(fs::directory_iterator(dizin.Yol()), {}) == 10);
}

}  // namespace
}  // namespace belvani
