// What the tests of the second engine stand on: a server that nothing outlives, and a network before it.
#include <filesystem>
#include <gtest/gtest.h>
#include <libpq-fe.h>

#include "core/ortam.h"
#include "sunucu/aktarici.h"
#include "sunucu/sablon.h"
#include "sunucu/turlar.h"
#include "surec.h"
#include "veriyeri.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using test::Aktarici;
using test::OzelSunucu;
using Saat = std::chrono::steady_clock;

// One for all cases; what they do to it they put right.
OzelSunucu& Sunucu() {
  static const auto sunucu = [] {
    auto yeni = std::make_unique<OzelSunucu>();
    test::SablonHazirla(
        *yeni,
        [&](const std::string&) {
          test::YoneticiSql(
              yeni->Dizin(), "belvani_bos",
              "create table t (a int); create role sahip; alter database belvani_bos owner to sahip;"
              "grant create on database belvani_bos to sahip; alter database belvani_bos set work_mem = '5MB'");
        },
        "sahip");
    return yeni;
  }();
  return *sunucu;
}

struct Istemci {
  explicit Istemci(const std::string& adres) : bag(PQconnectdb(adres.c_str())) {}
  ~Istemci() { PQfinish(bag); }
  bool Bagli() const { return PQstatus(bag) == CONNECTION_OK; }
  // The first value; the error's beginning when there is none.
  std::string Sor(const char* sql) {
    PGresult* sonuc = PQexec(bag, sql);
    std::string metin = PQntuples(sonuc) > 0 ? PQgetvalue(sonuc, 0, 0) : PQresultErrorMessage(sonuc);
    PQclear(sonuc);
    return metin.substr(0, metin.find('\n'));
  }
  PGconn* bag;
};

std::string Yonetici(std::string adres) {
  return adres.insert(adres.find(":///") + 3, std::string(test::SunucuYoneticisi) + "@");
}

TEST(TurSayaci, CountsWhatAsksForAnAnswer) {
  const auto mesaj = [](char harf, const std::string& govde) {
    const auto boy = char(4 + govde.size());
    return (harf == 0 ? std::string() : std::string(1, harf)) + std::string({'\0', '\0', '\0', boy}) + govde;
  };
  const std::string acilis = mesaj(0, "Q S Q"), hazirla = mesaj('P', "S"), calistir = mesaj('E', ""),
                    sonra = mesaj('S', "");
  const std::string hepsi = acilis + mesaj('Q', "select 'Q'") + hazirla + calistir + hazirla + calistir + sonra +
                            mesaj('d', "QQQQQQQ") + mesaj('c', "") + sonra + mesaj('c', "") + mesaj('X', "");
  test::TurSayaci butun, parcali;
  EXPECT_EQ(butun.Say(hepsi), 4);
  int tur = 0;
  for (const char c : hepsi) tur += parcali.Say({&c, 1});
  EXPECT_EQ(tur, 4);
}

TEST(OzelSunucu, ACopyOfTheEmptyDataPathHasItsOwnerAndSettings) {
  const std::string dizin = Sunucu().Dizin();
  const auto ortam = test::OrtamKoy("BELVANI_TEST_SUNUCU", dizin.c_str());
  std::string eski;
  for (int kez = 0; kez < 2; ++kez) {
    const test::VeriYeri yer;
    EXPECT_EQ(yer.Yer(), yer.Adres() + "#");
    EXPECT_NE(yer.Adres(), eski);
    eski = yer.Adres();
    Istemci kullanici(yer.Adres()), yonetici(Yonetici(yer.Adres()));
    EXPECT_EQ(kullanici.Sor("show work_mem"), "5MB");
    EXPECT_EQ(kullanici.Sor("select rolsuper from pg_roles where rolname = current_user"), "f");
    EXPECT_EQ(yonetici.Sor("select count(*) from t"), "0") << "what the one before has written is not there";
    EXPECT_EQ(yonetici.Sor("insert into t values (1) returning a"), "1");
    EXPECT_EQ(yonetici.Sor("select pg_get_userbyid(datdba) from pg_database where datname = current_database()"),
              "sahip");
    EXPECT_EQ(yonetici.Sor("select has_database_privilege('sahip', current_database(), 'create')"), "t");
  }
  EXPECT_FALSE(Istemci(eski).Bagli()) << "gone with its test, whoever was in it";
}

TEST(OzelSunucu, StoppedOrKilledItComesBack) {
  OzelSunucu& sunucu = Sunucu();
  for (const auto durus : {OzelSunucu::Durus::Kibar, OzelSunucu::Durus::Ani}) {
    Istemci once(Yonetici(sunucu.Adres("postgres")));
    ASSERT_TRUE(once.Bagli());
    sunucu.Durdur(durus);
    // The processes of a killed server notice it a moment later.
    const auto son = Saat::now() + 20s;
    while (once.Sor("select 1") == "1" && Saat::now() < son) std::this_thread::sleep_for(10ms);
    EXPECT_FALSE(once.Bagli());
    EXPECT_FALSE(Istemci(Yonetici(sunucu.Adres("postgres"))).Bagli());
    sunucu.Baslat();
    EXPECT_EQ(Istemci(Yonetici(sunucu.Adres("postgres"))).Sor("select 1"), "1");
  }
}

TEST(OzelSunucu, EndsWithTheProcessThatIsKilledAndIsSwept) {
  const test::GeciciDizin d;
  const std::string haber = d.Yol() + "dizin";
  const test::Kapi basladi;
  test::Surec sahip([&] {
    const OzelSunucu sunucu;
    fs::create_symlink(sunucu.Dizin(), haber);
    basladi.Ac();
    return ::pause();
  });
  basladi.Bekle();
  const std::string dizin = fs::read_symlink(haber);
  const std::string adres = "postgresql://" + std::string(test::SunucuYoneticisi) + "@/postgres?host=" + dizin;
  EXPECT_TRUE(Istemci(adres).Bagli());
  sahip.Oldur();
  const auto son = Saat::now() + 20s;
  while (Istemci(adres).Bagli() && Saat::now() < son) std::this_thread::sleep_for(20ms);
  EXPECT_FALSE(Istemci(adres).Bagli());
  fs::last_write_time(dizin + "/sahip", fs::file_time_type::clock::now() - 2min);
  ASSERT_TRUE(fs::exists(Sunucu().Dizin()));
  const OzelSunucu sonraki;
  EXPECT_FALSE(fs::exists(dizin));
  EXPECT_TRUE(fs::exists(Sunucu().Dizin())) << "somebody is at that one";
}

TEST(Aktarici, DelaysBothWaysAndCounts) {
  Aktarici ag(Sunucu().Dizin());
  Istemci istemci(Yonetici(ag.Adres("postgres")));
  ASSERT_TRUE(istemci.Bagli());
  EXPECT_EQ(ag.Turlar(), 0);
  ag.SureKoy(10ms);
  const auto once = Saat::now();
  for (int i = 0; i < 5; ++i) EXPECT_EQ(istemci.Sor("select 1"), "1");
  const auto gecen = Saat::now() - once;
  EXPECT_TRUE(gecen >= 100ms && gecen < 400ms) << gecen / 1ms;
  EXPECT_EQ(ag.Turlar(), 5);
  ag.SureKoy({});
  EXPECT_EQ(istemci.Sor("select length(repeat('x', 3000000))"), "3000000");
  EXPECT_EQ(istemci.Sor("select repeat('x', 3000000)").size(), 3'000'000u);
  EXPECT_EQ(istemci.Sor(("select length('" + std::string(3'000'000, 'y') + "')").c_str()), "3000000");
}

TEST(Aktarici, BreaksAndFallsSilent) {
  Aktarici ag(Sunucu().Dizin());
  Istemci istemci(Yonetici(ag.Adres("postgres")));
  ag.Kes();
  EXPECT_NE(istemci.Sor("select 1"), "1");
  EXPECT_FALSE(istemci.Bagli());
  Istemci yeni(Yonetici(ag.Adres("postgres")));
  ASSERT_TRUE(yeni.Bagli());
  ag.Sustur(true);
  ASSERT_EQ(PQsendQuery(yeni.bag, "select 1"), 1);
  std::this_thread::sleep_for(100ms);
  EXPECT_TRUE(PQconsumeInput(yeni.bag) == 1 && PQisBusy(yeni.bag) == 1) << "not a word, and no error either";
  ag.Sustur(false);
  PGresult* sonuc = PQgetResult(yeni.bag);
  EXPECT_STREQ(PQgetvalue(sonuc, 0, 0), "1");
  PQclear(sonuc);
}

}  // namespace
}  // namespace belvani
