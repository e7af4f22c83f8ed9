// belvani-cli hesapla: JSON in, the pay record out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::Cikti;
using test::CliKomutu;
using testing::HasSubstr;

constexpr const char* TamAy =
    R"({"donem":{"yil":2009,"ay":7},"sicil":{"ucret":1000,"agi":true},"giris":{"ng":26,"ht":4}})";

TEST(Hesapla, GivesEveryAmountByItsStoredName) {
  const CliKomutu komut;
  const Cikti c = komut("hesapla", TamAy);
  EXPECT_EQ(c.durum, 0) << c.mesaj;
  const auto j = c.Json();
  // 1000 − 140 − 10 = 850 taxed at 15 %; allowance 666 × 50 % × 15 %; duty 6 per thousand.
  const std::pair<const char*, const char*> beklenen[] = {{"brutkaz", "1000.00"},    {"sskkesinti", "140.00"},
                                                          {"issizisci", "10.00"},    {"gvmatrah", "850.00"},
                                                          {"gvtutar", "127.50"},     {"dvtutar", "6.00"},
                                                          {"ogv", "49.95"},          {"NetOdenen", "766.45"},
                                                          {"issizisveren", "20.00"}, {"sskkesintiisveren", "195.00"}};
  for (const auto& [ad, deger] : beklenen) EXPECT_EQ(j.at(ad), deger) << ad;
  EXPECT_EQ(j.at("sskisverenor"), 19.5);
  EXPECT_EQ(j.at("SskGun"), 30);
  EXPECT_FALSE(j.contains("iz"));
}

TEST(Hesapla, ReadsAllThatMayBeGiven) {
  const CliKomutu komut;
  struct Durum {
    const char* ad;
    const char* girdi;
    const char* alan;
    const char* deger;
  };
  const Durum durumlar[] = {
      {"amount as text", R"("sicil":{"ucret":"1,250.50"},"giris":{"ng":30})", "brutkaz", "1250.50"},
      {"carried base", R"("sicil":{"ucret":1000},"giris":{"ng":30},"devgvmatrah":"8700")", "gvtutar", "170.00"},
      {"family",
       R"("sicil":{"ucret":1000,"agi":1},"giris":{"ng":30},"esco":[{"yakinlik":1,"agiok":1},{"yakinlik":4,"agiok":1}])",
       "ogv", "67.43"},
      {"daily hours", R"("sicil":{"ucret":4,"ucretags":2},"giris":{"ng":30},"firma":{"issaati":7.5})", "brutkaz",
       "900.00"},
      {"hazard", R"("sicil":{"ucret":1000},"giris":{"ng":30},"firma":{"tehlike":2,"sinif":1})", "sskkesintiisveren",
       "202.00"},
      {"decimals", R"("sicil":{"ucret":1000.4},"giris":{"ng":30},"firma":{"paraonda":0})", "sskkesinti", "140.00"},
      {"flags", R"("sicil":{"ucret":1000},"giris":{"ng":30,"yrd03":100},"kaztan":{"y3":2})", "sskmatrah", "1100.00"},
      {"exemption",
       R"("sicil":{"ucret":1000},"giris":{"ng":30,"yrd03":100},"kaztan":{"y3":18},"muaf":[{"no":3,"indtip":5,"sabit":40}])",
       "sskmatrah", "1060.00"},
      {"deduction",
       R"("sicil":{"ucret":1000,"indirim2":true,"indtut2":70},"giris":{"ng":30},"indir":[{"no":2,"indtip":2}])",
       "indirim2", "50.00"},
      {"year's ceiling",
       R"("sicil":{"ucret":1000,"indirim2":true,"indtut2":50},"giris":{"ng":30},"indir":[{"no":2,"indtip":2}],"toind2":8150)",
       "indirim2", "0.00"},
      {"union", R"("sicil":{"ucret":1000,"tasno":"x"},"giris":{"ng":30},"sendika":[{"kod":"X","yer":3,"oran":1.5}])",
       "sendika", "15.00"},
      {"debt", R"("sicil":{"ucret":1000},"giris":{"ng":30,"borckes":16.5})", "NetOdenen", "700.00"},
      {"own figures", R"("sicil":{"ucrettipi":2},"giris":{"ng":30},"parametre":{"AsgariUcret":"700.00"})", "brutkaz",
       "700.00"},
      {"own rates", R"("sicil":{"ucret":1000},"giris":{"ng":30},"parametre":{"IsciOran":{"1":{"has":4}}})",
       "sskkesinti", "130.00"},
      {"old lira", R"("sicil":{"ucrettipi":2},"giris":{"ng":30},"eskilira":true)", "brutkaz", "693000000.00"},
      {"hire date", R"("sicil":{"ucret":900,"girtar":"17.07.2009"},"giris":{"ng":15})", "brutkaz", "450.00"},
      {"hire date, ISO", R"("sicil":{"ucret":900,"girtar":"2009-07-17"},"giris":{"ng":15})", "brutkaz", "450.00"},
  };
  for (const auto& d : durumlar) {
    const Cikti c = komut("hesapla", std::string(R"({"donem":{"yil":2009,"ay":7},)") + d.girdi + "}");
    ASSERT_EQ(c.durum, 0) << d.ad << ": " << c.mesaj;
    EXPECT_EQ(c.Json().at(d.alan), d.deger) << d.ad;
  }
}

TEST(Hesapla, ExplainsEachAmount) {
  const CliKomutu komut;
  const auto j = komut("hesapla --iz", TamAy).Json();
  for (const char* alan : {"brutkaz", "sskkesinti", "gvmatrah", "gvtutar", "dvtutar", "ogv", "NetOdenen"}) {
    nlohmann::json son;
    for (const auto& adim : j["iz"])
      if (adim["alan"] == alan) son = adim;
    EXPECT_EQ(son["sonuc"], j[alan]) << alan;
    EXPECT_FALSE(son["kural"].get<std::string>().empty());
  }
}

TEST(Hesapla, TellsWhatIsWrong) {
  const CliKomutu komut;
  const std::pair<const char*, const char*> durumlar[] = {
      {"{", "Girdi JSON değil"},
      {R"({"donem":1e999})", "sınırı aşan bir sayı"},
      {"7", "Girdi bir JSON nesnesi olmalı"},
      {"{}", "donem"},
      {R"({"donem":{"yil":2009,"ay":13}})", "donem: yil veya ay hatalı"},
      {R"({"donem":{"yil":1999,"ay":1}})", "1999"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"ucrett":5}})", "sicil.ucrett: böyle bir alan yok"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"ucret":"12,5"}})", "sicil.ucret: sayı olmalı"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"girtar":"31.02.2009"}})", "sicil.girtar"},
      {R"({"donem":{"yil":2009,"ay":7},"giris":{"ng":300}})", "giris.ng: 0 ile 255 arasında"},
      {R"({"donem":{"yil":2009,"ay":7},"giris":{"ng":31}})", "giris.ng: en çok 30 olabilir"},
      {R"({"donem":{"yil":2009,"ay":7},"giris":{"ng":20,"ht":11}})", "Çalışma Gününü Fazla Girmişiniz"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"sakatdrc":4}})", "sicil.sakatdrc: 0 ile 3 arasında olmalı"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"ucret":1e300}})", "sicil.ucret"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"ucret":99999999999999,"ucretags":1},"giris":{"ng":30}})",
       "sınırı aşıyor"},
      {R"({"donem":{"yil":2009,"ay":7},"esco":{}})", "esco: dizi olmalı"},
      {R"({"donem":{"yil":2009,"ay":7},"muaf":[{"no":12}]})", "muaf[1].no: 1 ile 11 arasında olmalı"},
      {R"({"donem":{"yil":2009,"ay":7},"indir":[{"adi":"x"}]})", "indir.no: 1 ile 3 arasında olmalı"},
      {R"({"donem":{"yil":2009,"ay":7},"kaztan":{"y3":32}})", "kaztan.y3: en çok 31 olabilir"},
      {R"({"donem":{"yil":2009,"ay":7},"kaztan":{"y12":1}})", "kaztan.y12: böyle bir alan yok"},
      {R"({"donem":{"yil":2009,"ay":7},"sicil":{"girtar":"01.08.2009"}})", "Döneme Uygun Değil"},
  };
  for (const auto& [girdi, mesaj] : durumlar) {
    const Cikti c = komut("hesapla", girdi);
    EXPECT_EQ(c.durum, 1) << girdi;
    EXPECT_THAT(c.mesaj, HasSubstr(mesaj));
    EXPECT_EQ(c.cikti, "");
  }
}

TEST(Hesapla, OfAListGivesAResultForEach) {
  const CliKomutu komut;
  const Cikti c = komut("hesapla", std::string("[") + TamAy + R"(,{"donem":3},)" + TamAy + "]");
  EXPECT_EQ(c.durum, 1);
  EXPECT_THAT(c.mesaj, HasSubstr("2. hesap: donem"));
  const auto j = c.Json();
  ASSERT_EQ(j.size(), 3u);
  EXPECT_TRUE(j[1].contains("hata"));
  EXPECT_EQ(j[0], j[2]);
  EXPECT_EQ(komut("hesapla", "[]").cikti, "[]\n");
}

// A list is looked at as a whole before any of it is calculated, and nests no deeper than people do.
TEST(Hesapla, HostileListsAreRefusedBeforeAnythingIsWritten) {
  const CliKomutu komut;
  const std::string derin = std::string(200'000, '[') + std::string(200'000, ']');
  std::string nesneler;
  for (int i = 0; i < 100'000; ++i) nesneler += R"({"a":)";
  for (const auto& [girdi, mesaj] : {std::pair<std::string, const char*>{derin, "Girdi çok derin: iç içe en çok 64"},
                                     {"[{}," + derin + "]", "Girdi çok derin"},
                                     {nesneler, "Girdi çok derin"},
                                     {"[{},{}", "Girdi JSON değil (7. bayt)"},
                                     {"[{}] x", "Girdi JSON değil (6. bayt)"},
                                     {"[1e999]", "Girdide sınırı aşan bir sayı var"}}) {
    const auto c = komut("hesapla", girdi);
    EXPECT_EQ(c.durum, 1) << mesaj;
    EXPECT_EQ(c.cikti, "") << mesaj;
    EXPECT_THAT(c.mesaj, HasSubstr(mesaj));
  }
  const auto parantezli = komut("hesapla", R"( [ {"x[[{\"":"]},["} , 5 ] )");
  EXPECT_EQ(parantezli.Json().size(), 2u);
  EXPECT_THAT(parantezli.mesaj, HasSubstr("2. hesap: Girdi bir JSON nesnesi olmalı"));
  EXPECT_EQ(komut("hesapla", "[]").cikti, "[]\n");
}

}  // namespace
}  // namespace belvani
