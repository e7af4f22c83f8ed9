// A person's pay records, against a walk over all of them.
#include "core/store/kisibordrolari.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

#include "core/store/ornekdepo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

struct KisiBordrolari : testing::Test, test::OrnekDepo {
  Motor& motor() { return db.IcMotor(); }
  void Bordro(const std::string& kod, int yil, int ay, int no = 1) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = std::uint8_t(no);
    KayitYazici<Brd>(motor()).Ekle(b);
  }
  // The same by a look at every record.
  std::vector<Brd> Taranan(const std::string& kod, const AyAraligi& a) {
    auto hepsi = KayitlariOku<Brd>(motor());
    std::erase_if(hepsi, [&](const Brd& b) {
      const int ay = b.yil * 12 + b.ay;
      return !TurkceEsit(b.kod, kod) || ay < a.ilkYil * 12 + a.ilkAy || ay > a.sonYil * 12 + a.sonAy;
    });
    const auto sira = [](const Brd& b) { return std::tuple(b.yil, b.ay, b.no == 0 ? 1 : int(b.no)); };
    std::ranges::sort(hepsi, {}, sira);
    return hepsi;
  }
};

TEST_F(KisiBordrolari, AreThoseOfAWalkOverAllRecords) {
  std::mt19937 rastgele(5);
  const std::string kodlar[] = {"ı1", "İ1", "2", "10", "Ş"};
  for (const int yil : {2003, 2004, 2007, 2009})
    for (int ay = 1; ay <= 12; ++ay)
      for (const std::string& kod : kodlar)
        if (rastgele() % 3 != 0) Bordro(kod, yil, ay, int(rastgele() % 2));
  Bordro("2", 2009, 12, 2);

  const AyAraligi araliklar[] = {{},
                                 {2004, 5, 2007, 8},
                                 {2007, 3, 2007, 3},
                                 {2005, 1, 2006, 12},
                                 {2009, 6, 2009, 2},
                                 {.ilkYil = 2009, .ilkAy = 12},
                                 {.sonYil = 2003, .sonAy = 1}};
  for (const char* kod : {"ı1", "i1", "2", "1", "10", "ş", "yok", ""})
    for (const AyAraligi& aralik : araliklar) {
      SCOPED_TRACE(std::string(kod) + " " + std::to_string(aralik.ilkYil) + "-" + std::to_string(aralik.sonYil));
      const auto beklenen = Taranan(kod, aralik);
      EXPECT_TRUE(KisininBordrolari(motor(), kod, aralik) == beklenen);
      std::vector<std::int64_t> numaralar;
      for (const Brd& b : beklenen) numaralar.push_back(b.oto);
      EXPECT_EQ(KisininBordroNumaralari(motor(), kod, aralik), numaralar);
    }
}

TEST_F(KisiBordrolari, ACompanyWithoutRecordsHasNone) {
  EXPECT_TRUE(KisininBordrolari(motor(), "1").empty());
}

}  // namespace
}  // namespace belvani
