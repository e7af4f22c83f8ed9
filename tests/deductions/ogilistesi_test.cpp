// The lists of the refund: who is on them, what they add up, held against SQL of this file on random companies.
#include "deductions/ogilistesi.h"

#include <random>

#include "deductions/ogibelgeleri.h"
#include "deductions/sirket.h"
#include "documents/belgetanimi.h"

namespace belvani {
namespace {

using test::OgiSirketi;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

struct OgiListesi : testing::Test {
  OgiSirketi s;
  DefterSecim secim{.yil = 2005, .ay = 2, .kod = {}, .grup = {}, .tip = {}, .ozel = {}};

  BelgeKaynagi Kaynak() {
    return {.motor = s.motor(), .yasal = s.yasal, .firma = s.o.firma, .sirket = s.o.FirmaDizini};
  }
  std::shared_ptr<const Rapor> Bordro(OgiTuru tur = OgiTuru::Calisan, OgiUrunu urun = OgiUrunu::Bordro) {
    return OgiBordroBelgesi(Kaynak(), secim, {tur, urun}, {}, {})->Tablo();
  }
  std::shared_ptr<const Rapor> Mahsup() { return OgiMahsupBelgesi(Kaynak(), secim, {})->Tablo(); }
  std::shared_ptr<const Rapor> Kalan() { return OgiKalanBelgesi(Kaynak(), secim, {})->Tablo(); }

  static std::size_t Yeri(const Rapor& rapor, std::string_view baslik) {
    const auto yer = std::ranges::find(rapor.Kolonlar(), baslik, &RaporKolonu::kisaBaslik);
    EXPECT_NE(yer, rapor.Kolonlar().end()) << baslik;
    return std::size_t(yer - rapor.Kolonlar().begin());
  }
  static Hucre Hucresi(const Rapor& rapor, std::size_t satir, std::string_view baslik) {
    return rapor.Satirlar().Hucresi(satir, Yeri(rapor, baslik));
  }
  static std::vector<std::string> Kolon(const Rapor& rapor, std::string_view baslik) {
    std::vector<std::string> metinler;
    for (std::size_t i = 0; i < rapor.Satirlar().size(); ++i) metinler.push_back(DuzMetin(Hucresi(rapor, i, baslik)));
    return metinler;
  }
  static std::int64_t Toplam(const Rapor& rapor, std::string_view baslik) {
    return std::get<Tutar>(rapor.Toplam().at(Yeri(rapor, baslik))).Ham();
  }
  std::string Soz(const char* ekran = "ogibrd") {
    const auto tanim = std::ranges::find(OgiBelgeleri(), std::string_view(ekran), &BelgeTanimi::ekran);
    const auto secenek = tanim->secim();
    *secenek->Bul<DefterSecim>() = secim;
    return tanim->soz(Kaynak(), *secenek);
  }
};

TEST_F(OgiListesi, WhoLeavesWithinTheMonthIsStillInWork) {
  s.Kisi("1");
  s.Kisi("2", Tarih(2005, 2, 1));
  s.Kisi("3", Tarih(2005, 2, 28));
  s.Kisi("4", Tarih(2005, 1, 31));
  s.Kisi("5", Tarih(2009, 1, 1));
  for (const char* kod : {"1", "2", "3", "4", "5", "kartsız"}) s.Devir(kod, 2004, 5000, 1000, 80);
  s.Kisi("6");
  s.Devir("6", 2004, 5000, 0, 80);  // a refund without an expense
  EXPECT_THAT(Kolon(*Mahsup(), "Sicil No"), ElementsAre("1", "2", "3", "4", "5"));
  const auto odeme = [&](OgiTuru tur) { return Kolon(*Bordro(tur, OgiUrunu::OdemeListesi), "Sicil No"); };
  EXPECT_THAT(odeme(OgiTuru::Calisan), ElementsAre("1", "2", "3", "5"));
  EXPECT_THAT(odeme(OgiTuru::Ayrilan), ElementsAre("4"));
  secim.ay = 3;
  EXPECT_THAT(odeme(OgiTuru::Ayrilan), ElementsAre("2", "3", "4"));
  EXPECT_THAT(Kolon(*Kalan(), "Sicil No"), ElementsAre("1", "2", "3", "4", "5", "6")) << "by the refund";
  secim.kod = {"2", "4"};
  EXPECT_THAT(odeme(OgiTuru::Calisan), ElementsAre());
  EXPECT_TRUE(OgiBordroBelgesi(Kaynak(), secim, {}, {}, {})->Kayitsiz());
}

// With the people go their payments.
TEST_F(OgiListesi, StandsInTheOrderOfSskNumbersWhereThatIsChosen) {
  for (const char* kod : {"1", "2", "3"}) {
    s.Kisi(kod);
    s.Devir(kod, 2004, 5000, 1000, 80);
    s.Odeme(kod, 2005, 2, double(*kod - '0'));
  }
  s.motor().Calistir("update sicil set sskno = case kod when '1' then '9' when '2' then '7' else '8' end");
  const auto kolon = [&](const char* baslik) {
    return Kolon(*Bordro(OgiTuru::Calisan, OgiUrunu::OdemeListesi), baslik);
  };
  const auto odenen = kolon("Mahsup Edilen");
  secim.sira = DefterSirasi::SskNo;
  EXPECT_THAT(kolon("Sicil No"), ElementsAre("2", "3", "1"));
  EXPECT_THAT(kolon("Mahsup Edilen"), ElementsAre(odenen.at(1), odenen.at(2), odenen.at(0)));
  EXPECT_NE(odenen.at(0), odenen.at(1));
}

TEST_F(OgiListesi, ColumnsAndTheirSums) {
  s.Kisi("1", {}, "A");
  s.Kisi("2", {}, "B");
  s.Devir("1", 2004, 900, 1000, 72, 30);
  s.Devir("2", 2004, 5000, 1000, -12.5, 0);
  s.Odeme("1", 2005, 1, 10);
  s.Odeme("1", 2005, 2, 20);
  s.Odeme("1", 2005, 2, 0.25, 2);
  s.Odeme("1", 2005, 6, 5);
  s.Odeme("1", 2005, 7, 99);
  s.Odeme("1", 2004, 2, 99);
  s.Odeme("3", 2005, 2, 99);
  const auto bordro = Bordro();
  EXPECT_EQ(bordro->baslik, "ÖZEL GİDER İNDİRİMİNE AİT BORDRO (Çalışan)");
  EXPECT_THAT(Kolon(*bordro, "H.Esas Tutar"), ElementsAre("900.00", "1000.00"));
  EXPECT_THAT(Kolon(*bordro, "İade Tutar"), ElementsAre("72.00", "-12.50")) << "nothing is cut";
  EXPECT_THAT(Kolon(*bordro, "Şubat"), ElementsAre("20.25", "0.00"));
  EXPECT_THAT(Kolon(*bordro, "Haziran"), ElementsAre("5.00", "0.00"));
  const auto mahsup = Mahsup();
  EXPECT_EQ(Hucresi(*mahsup, 0, "Mart"), Hucre(Null{})) << "no record: empty, not 0";
  EXPECT_THAT(Kolon(*mahsup, "Ödenen"), ElementsAre("35.25", "0.00"));
  EXPECT_THAT(Kolon(*mahsup, "Kalan"), ElementsAre("36.75", "-12.50"));
  EXPECT_THAT(Kolon(*Kalan(), "Toplam Kalan"), ElementsAre("42.00")) << "only refunds above zero";

  const auto odeme = Bordro(OgiTuru::Calisan, OgiUrunu::OdemeListesi);
  EXPECT_EQ(odeme->ekranBasligi, "Özel Gider İndirim Aylık Tablosu (Çalışan)");
  EXPECT_THAT(Kolon(*odeme, "Mahsup Edilen"), ElementsAre("20.25", "0.00"));
  EXPECT_THAT(Kolon(*odeme, "Damga Vergisi"), ElementsAre("0.12", "0.00"));
  EXPECT_THAT(Kolon(*odeme, "Net Ödenen"), ElementsAre("20.13", "0.00"));
  secim.noBit = 1;
  EXPECT_THAT(Kolon(*Bordro(OgiTuru::Calisan, OgiUrunu::OdemeListesi), "Mahsup Edilen"), ElementsAre("20.00", "0.00"));
  secim.grup = {"B", "B"};
  EXPECT_THAT(Kolon(*Bordro(), "GV Matrahı"), ElementsAre("5000.00"));
}

TEST_F(OgiListesi, MonthsPastDecemberAreEmptyAndNumbered) {
  s.Kisi("1");
  s.Devir("1", 2004, 5000, 1000, 80);
  s.Parametreler({Tek(35), 9, 2005, Tek(6)});
  s.Odeme("1", 2005, 12, 7);
  s.Odeme("1", 2006, 1, 9);
  const auto bordro = Bordro();
  EXPECT_EQ(Toplam(*bordro, "Aralık"), Tutar(7).Ham());
  EXPECT_EQ(Toplam(*bordro, "13") + Toplam(*bordro, "14"), 0);
  EXPECT_EQ(HucreMetni(Hucresi(*bordro, 0, "13"), bordro->Kolonlar().back()), "");
  EXPECT_THAT(Mahsup()->ustSatirlar[0].sol, "Dönem : Eylül 2005 - Aralık 2005");
}

TEST_F(OgiListesi, OldLiraComesDownToTheUnitOfThePayYear) {
  s.o.firma.paraonda = 2;
  s.Kisi("1");
  s.Devir("1", 2003, 3'000'000'000, 900'000'000, 80'500'000);
  s.Odeme("1", 2004, 1, 10'000'000);
  secim.yil = 2004;
  const auto mahsup = Mahsup();
  EXPECT_THAT(Kolon(*mahsup, "Toplam İade"), ElementsAre("80.50"));
  EXPECT_THAT(Kolon(*mahsup, "Ödenen"), ElementsAre("10.00"));
  EXPECT_THAT(Kolon(*Kalan(), "Toplam İade"), ElementsAre("80500000.00")) << "as it is stored";
  s.motor().Calistir("update dvr set yil = 2002");
  s.motor().Calistir("update brd set yil = 2003");
  secim.yil = 2003;
  EXPECT_THAT(Kolon(*Mahsup(), "Ödenen"), ElementsAre("10000000.00"));
}

TEST_F(OgiListesi, SaysWhatIsToKnowBesideIt) {
  EXPECT_EQ(Soz(), "");
  secim.yil = 2006;
  EXPECT_THAT(Soz(), HasSubstr("Mahsup yılı 2005 olarak ayarlı"));
  EXPECT_EQ(Soz("topode"), "");
  secim.yil = 2008;
  EXPECT_THAT(Soz(), HasSubstr("asgari geçim indirimidir"));
  EXPECT_THAT(Soz("topode"), HasSubstr("asgari geçim indirimidir"));
  for (const auto& liste : {Bordro(), Mahsup(), Kalan()})
    EXPECT_THAT(liste->ustSatirlar.back().sol, HasSubstr("asgari geçim indirimidir"));
  secim.yil = 2005;
  EXPECT_THAT(Bordro()->ustSatirlar.back().sol, Not(HasSubstr("asgari")));
  ASSERT_TRUE(DosyaYaz(s.o.FirmaDizini + "ozgvpar.dat", "kısa"));
  EXPECT_THAT(Soz(), HasSubstr("12 bayt olmalıydı: hazır değerler alındı."));
  EXPECT_EQ(DosyaOku(s.o.FirmaDizini + "ozgvpar.dat"), "kısa") << "a list writes nothing";
}

// The sums of each list over random companies, by the store's own adding.
TEST_F(OgiListesi, AgreesWithTheStore) {
  std::mt19937 rastgele(20050214);
  const auto sayi = [&](int enCok) { return std::uniform_int_distribution(0, enCok)(rastgele); };
  s.motor().IslemBaslat({});
  for (int kisi = 0; kisi < 200; ++kisi) {
    const std::string kod = (sayi(1) ? "p" : "P") + std::to_string(100 + kisi);
    const Tarih ciktar = sayi(2) ? Tarih() : Tarih(2004 + sayi(1), 1 + sayi(11), 1 + sayi(27));
    if (sayi(9)) s.Kisi(kod, ciktar, std::string(1, char('A' + sayi(3))));
    if (sayi(9))
      s.Devir(kod, 2003 + sayi(1), sayi(900'000) / 100.0, sayi(4) * 1000, (sayi(90'000) - 20'000) / 100.0, sayi(9));
    for (int ay = 1; ay <= 12; ++ay)
      if (sayi(3))
        for (int no = 1; no <= 1 + sayi(1); ++no) s.Odeme(kod, 2004 + sayi(1), ay, sayi(9'000) / 100.0, no);
  }
  s.motor().IslemOnayla();
  s.Parametreler({Tek(35), 4, 2005, Tek(6)});
  secim.ay = 5;
  secim.grup = {"B", "C"};
  const std::string kosul =
      "from sicil s join dvr d on d.kod = s.kod where d.yil = 2004 and d.ogimatrah > 0 "
      "and s.grup in ('B', 'C') ";
  const std::string icinde = "in (select s.kod " + kosul;
  const std::string calisan = "and (s.ciktar is null or s.ciktar >= '2005-05-01')";
  const std::string ayrilan = "and s.ciktar < '2005-05-01'";
  for (const auto& [tur, sart] : {std::pair(OgiTuru::Calisan, calisan), {OgiTuru::Ayrilan, ayrilan}}) {
    const auto bordro = Bordro(tur);
    EXPECT_GT(bordro->Satirlar().size(), 5u);
    EXPECT_EQ(std::int64_t(bordro->Satirlar().size()), s.Sql("select count(*) " + kosul + sart));
    EXPECT_EQ(Toplam(*bordro, "İade Tutar"), s.Sql("select sum(d.ogitutar) " + kosul + sart));
    EXPECT_EQ(Toplam(*bordro, "H.Esas Tutar"), s.Sql("select sum(min(d.gvmatrah, d.ogimatrah)) " + kosul + sart));
    for (const auto& [ad, ay] : {std::pair("Nisan", 4), {"Mayıs", 5}, {"Eylül", 9}})
      EXPECT_EQ(Toplam(*bordro, ad), s.Sql("select sum(ogv) from brd where yil = 2005 and ay = " + std::to_string(ay) +
                                           " and kod " + icinde + sart + ")"));
    const auto odeme = Bordro(tur, OgiUrunu::OdemeListesi);
    EXPECT_EQ(Toplam(*odeme, "Mahsup Edilen"), Toplam(*bordro, "Mayıs"));
    EXPECT_EQ(Toplam(*odeme, "Net Ödenen"), Toplam(*odeme, "Mahsup Edilen") - Toplam(*odeme, "Damga Vergisi"));
  }
  const auto mahsup = Mahsup();
  EXPECT_EQ(Toplam(*mahsup, "Ödenen"),
            s.Sql("select sum(ogv) from brd where yil = 2005 and ay between 4 and 9 and kod " + icinde + ")"));
  EXPECT_EQ(Toplam(*mahsup, "Kalan"), Toplam(*mahsup, "Toplam İade") - Toplam(*mahsup, "Ödenen"));
  secim.grup = {};
  EXPECT_EQ(Toplam(*Kalan(), "Toplam Kalan"), s.Sql("select sum(d.ogitutar - d.ogiodenen) from sicil s join dvr d on "
                                                    "d.kod = s.kod where d.yil = 2004 and d.ogitutar > 0"));
}

}  // namespace
}  // namespace belvani
