// What the check of a company names, and what it leaves alone.
#include "payroll/hazirlik/sirketdenetimi.h"

#include <gtest/gtest.h>

#include "core/session/sinifbakimi.h"
#include "payroll/hazirlik/sirket.h"

namespace belvani {
namespace {

struct SirketDenetimi : testing::Test, test::Sirket {
  // "person|field|text", one a line.
  std::string Bulunan() {
    EXPECT_TRUE(FirmaYukle(o));
    const auto bulunan = SirketDenetle(o);
    EXPECT_TRUE(bulunan);
    std::string metin;
    for (const Kusur& k : *bulunan) {
      EXPECT_EQ(k.derece, Derece::Uyari);
      metin += k.kod + "|" + std::string(k.alan.ad) + "|" + k.metin + "\n";
    }
    return metin;
  }
};

TEST_F(SirketDenetimi, MonthsOfTheirOwnLawAreInOrder) {
  Kisi("1", 1000);
  Kisi("2", 9000);
  for (const auto& [yil, ay] : {std::pair(2004, 3), {2005, 12}, {2008, 9}, {2008, 10}, {2009, 1}, {2009, 7}})
    Hazirla(yil, ay);
  EXPECT_EQ(Bulunan(), "");
}

TEST_F(SirketDenetimi, NamesTheMonthOfAnotherLawOnce) {
  Kisi("1", 1000);
  Kisi("2", 9000);
  ASSERT_TRUE(TopluHazirla(o, test::Al(KosullariYukle(o, test::Yasal(2008, 1), 2009, 1)), {}));
  EXPECT_EQ(Bulunan(),
            "||Ocak 2009 bordrosunda 2 kayıt başka bir ayın mevzuatıyla hesaplanmış (asgari geçim indirimi tabanı)\n");
  motor().Calistir("update brd set ogv = 0");
  EXPECT_EQ(Bulunan(), "") << "the ceiling of 2008 lies below that of 2009";
  motor().Calistir("update brd set damgaveror = 7.5, dvtutar = round(dvmatrah * 0.0075) where kod = '1'");
  motor().Calistir("update brd set sskiscior = 13.7, sskkesinti = round(sskmatrah * 0.137) where kod = '2'");
  EXPECT_EQ(Bulunan(),
            "||Ocak 2009 bordrosunda 2 kayıt başka bir ayın mevzuatıyla hesaplanmış (damga vergisi oranı)\n");
  for (const char* zaman : {"yil = 2009, ay = 0", "yil = 2009, ay = 13", "yil = 2002, ay = 1"}) {
    motor().Calistir("update brd set " + std::string(zaman));
    EXPECT_EQ(Bulunan(), "") << "a month without a law: " << zaman;
  }
}

TEST_F(SirketDenetimi, RecordsThatDoNotAddUp) {
  Kisi("1", 1000);
  Hazirla(2009, 7);
  for (const auto& [kolon, metin] : {std::pair("topyardim", "yardımlar toplamı"),
                                     {"borckes", "özel kesintiler toplamı"},
                                     {"sskkesinti", "SSK işçi primi"},
                                     {"issizisci", "işsizlik işçi primi"},
                                     {"dvtutar", "damga vergisi"},
                                     {"ogv", "asgari geçim indirimi"}}) {
    const std::string ad = kolon;
    motor().Calistir("update brd set " + ad + " = " + ad + " + 2000000");
    EXPECT_EQ(Bulunan(), std::string("1||Temmuz 2009 bordrosunda tutmayan tutar: ") + metin + "\n");
    motor().Calistir("update brd set " + ad + " = " + ad + " - 2000000");
  }
}

TEST_F(SirketDenetimi, CardAndOrphans) {
  Kisi("2", 1000);
  motor().Calistir("insert into esco (kod) values ('9'), ('9'), ('2'); insert into kimlik (kod) values ('8')");
  EXPECT_EQ(Bulunan(),
            "8|kod|Kartı olmayan personelin 1 kimlik kaydı var\n"
            "9|kod|Kartı olmayan personelin 2 eş ve çocuk kaydı var\n");
  motor().Calistir("delete from esco; delete from kimlik; update firma set ondeger = ' ', firmayil = 0");
  ASSERT_TRUE(SinifBakimiYaz(o.FirmaDizini, SinifBakimi::Soruldu));
  EXPECT_EQ(Bulunan(),
            "|sinif|İşyeri tehlike sınıfı 1 görünüyor; eski sürümlerde kart kaydedilirken sınıf kaybolabiliyordu, "
            "kontrol ediniz\n"
            "|ondeger|Öndeğer Hesap boş: hesap kodu olmayan personelin kazanç grubu yok\n"
            "|firmayil|Çalışma dönemi hatalı\n");
}

}  // namespace
}  // namespace belvani
