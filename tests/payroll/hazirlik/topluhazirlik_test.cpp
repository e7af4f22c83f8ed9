// The working month of many companies in one go: what becomes of each, and that a failing or stopped one stays as it
// was.
#include "payroll/hazirlik/topluhazirlik.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "core/session/sirket.h"
#include "payroll/parametre/indir.h"
#include "payroll/parametre/mevzuatkumesi.h"
#include "sirket.h"

namespace belvani::test {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

// The open company DENEME, and others beside it, all working in July 2009, whose law is installed.
struct Sirketlerin : Sirket {
  Sirketlerin() {
    Al(MevzuatKur(o.DataPath, {2009, 7}, Al(ParametreAdresi(2009, 7))));
    Ay(o, 2009, 7);
    FirmaYukle(o);
    Kisi("001", 1000);
  }
  static void Ay(Oturum& sirket, int yil, int ay) {
    sirket.depo.db.IcMotor().Calistir("update firma set firmayil = " + std::to_string(yil) +
                                      ", firmaay = " + std::to_string(ay));
  }
  void Ekle(const std::string& ad, const std::function<void(Motor&)>& doldur = {}, int yil = 2009, int ay = 7) {
    Oturum yeni;
    yeni.DataPath = o.DataPath;
    Al(SirketOlustur(yeni, ad, "a", ""));
    Ay(yeni, yil, ay);
    if (doldur) doldur(yeni.depo.db.IcMotor());
  }
  static void BirKisi(Motor& motor) {
    Sicil s;
    s.kod = "001";
    s.ucret = Tutar(1000.0);
    s.girtar = Tarih(2005, 1, 1);
    KayitYazici<Sicil>(motor).Ekle(s);
  }
  std::vector<SirketAyi> Hepsi() const { return CalismaAylari(o, SirketListesi(o.DataPath)); }
  std::size_t KayitSayisi(const std::string& ad) {
    Oturum diger;
    diger.DataPath = o.DataPath;
    Al(SirketAc(diger, ad));
    return KayitlariOku<Brd>(diger.depo.db.IcMotor()).size();
  }
};

std::vector<std::string> Haller(const std::vector<SirketHazirligi>& olanlar) {
  std::vector<std::string> metinler;
  for (const auto& olan : olanlar) metinler.push_back(olan.sirket.ad + std::to_string(int(olan.hal)) + ": " + olan.soz);
  return metinler;
}

TEST(TopluHazirlik, EachCompanyHasItsWorkingMonth) {
  Sirketlerin s;
  s.Ekle("AĞUSTOS", Sirketlerin::BirKisi, 2009, 8);
  s.Ekle("BOŞ");
  s.Ekle(
      "MAHSUP",
      [](Motor& motor) {
        Sirketlerin::BirKisi(motor);
        Brd b;
        b.kod = "001";
        b.yil = 2006;
        b.ay = 12;
        b.no = 1;
        b.ogv = Tutar(50.0);
        KayitYazici<Brd>(motor).Ekle(b);
      },
      2006, 12);
  test::BosSirket(s.o.DataPath, "YABANCI");

  const auto sirketler = s.Hepsi();
  EXPECT_THAT(sirketler,
              ElementsAre(SirketAyi{"AĞUSTOS", 2009, 8}, SirketAyi{"BOŞ", 2009, 7}, SirketAyi{"DENEME", 2009, 7},
                          SirketAyi{"MAHSUP", 2006, 12}, SirketAyi{"YABANCI", 0, 0}));
  EXPECT_THAT(Al(TopluHazirlikSorusu(s.o, sirketler)),
              AllOf(HasSubstr("5 şirketin"), HasSubstr("Temmuz 2009: 2 şirket\n\nAğustos 2009: 1 şirket\n\nHaz"),
                    HasSubstr("Aralık 2006: 1 şirket\nKurulu yasal parametreler Aralık 2006 döneminin değil")));

  const auto olanlar = SirketleriHazirla(s.o, sirketler);
  EXPECT_THAT(Haller(olanlar),
              ElementsAre(HasSubstr("3: 1 kişi kaydedildi"), HasSubstr("2: Bu ayda çalışan personel yok"),
                          HasSubstr("3: 1 kişi kaydedildi"), HasSubstr("2: Aralık 2006 bordrosunda 1 kişinin elle"),
                          HasSubstr("0: Database Açılamadı")));
  EXPECT_EQ(TopluHazirlikOzeti(olanlar), "5 şirket: 2 hazırlandı, 2 atlandı, 1 yapılamadı");
  EXPECT_EQ(s.Kayitlar(2009, 7).size(), 1u) << "the open company, through its own store";
  EXPECT_TRUE(s.o.depo.sicil.AcikMi());
  EXPECT_EQ(s.KayitSayisi("AĞUSTOS"), 1u);
}

TEST(TopluHazirlik, AMonthThatMovedMeanwhileIsNotTouched) {
  Sirketlerin s;
  s.Ekle("ÖTEKİ", Sirketlerin::BirKisi, 2009, 8);
  auto sirketler = s.Hepsi();
  sirketler.at(1).ay = 7;
  EXPECT_THAT(SirketleriHazirla(s.o, sirketler).at(1).soz, HasSubstr("Çalışma ayı bu arada Ağustos 2009 olmuş"));
  EXPECT_EQ(s.KayitSayisi("ÖTEKİ"), 0u);
}

TEST(TopluHazirlik, AnotherMonthsLawIsToldAndBrokenLawStopsAll) {
  Sirketlerin s;
  Sirketlerin::Ay(s.o, 2009, 6);
  FirmaYukle(s.o);
  const auto olanlar = SirketleriHazirla(s.o, s.Hepsi());
  ASSERT_EQ(olanlar.at(0).sorunlar.size(), 1u);
  EXPECT_THAT(olanlar[0].sorunlar[0].metin, AllOf(HasSubstr("Haziran 2009 döneminin değil"), Not(HasSubstr(":"))))
      << "the figures were asked about";
  ASSERT_TRUE(VeriYolu(s.o.DataPath).Sil("yasal2.dat"));
  EXPECT_FALSE(TopluHazirlikSorusu(s.o, s.Hepsi()));
  EXPECT_EQ(SirketleriHazirla(s.o, s.Hepsi()).at(0).hal, SirketHali::Yapilamadi);
}

// Gives up when this company is about to be saved.
struct Vazgecen final : Ilerleme {
  std::string istenen, simdiki;
  bool vazgecti = false;
  bool Adim(std::size_t, std::size_t) override { return !Vazgecildi(); }
  void Asama(std::string_view ad) override { simdiki = ad; }
  bool Vazgecildi() const override { return simdiki == istenen; }
};

TEST(TopluHazirlik, StoppedItKeepsWhatIsDone) {
  Sirketlerin s;
  s.Ekle("A", Sirketlerin::BirKisi);
  s.Ekle("Z", Sirketlerin::BirKisi);
  Vazgecen ilerleme;
  ilerleme.istenen = "DENEME";
  const auto olanlar = SirketleriHazirla(s.o, s.Hepsi(), &ilerleme);
  EXPECT_EQ(TopluHazirlikOzeti(olanlar), "3 şirket: 1 hazırlandı, 0 atlandı, 0 yapılamadı, 2 başlanmadı");
  EXPECT_EQ(s.KayitSayisi("A"), 1u);
  EXPECT_EQ(s.Kayitlar(2009, 7).size(), 0u);
  EXPECT_EQ(s.KayitSayisi("Z"), 0u);
}

}  // namespace
}  // namespace belvani::test
