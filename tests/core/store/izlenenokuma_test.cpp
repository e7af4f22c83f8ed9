// Reading that somebody watches: it stops in the middle of the engine's work too, and the store goes on.
#include "core/store/izlenenokuma.h"

#include <gtest/gtest.h>

#include "core/store/depodenetimi.h"
#include "core/store/ornekdepo.h"

namespace belvani {
namespace {

struct Duran final : Ilerleme {
  explicit Duran(int adim) : kalan(adim) {}
  bool Adim(std::size_t, std::size_t) override { return kalan-- > 0; }
  int kalan;
};

// Its one row comes when the engine has counted for a minute.
constexpr const char* Uzun =
    "with recursive s(x) as (select 1 union all select x + 1 from s where x < 1000000000) select count(*) from s";

TEST(IzlenenOkuma, StopsBeforeTheFirstRowAndLeavesTheTransactionAsItIs) {
  YALNIZ_DIZINDE("a server is not asked in the middle of a statement");
  test::OrnekDepo d;
  Motor& motor = d.db.IcMotor();
  const auto sayi = [&] {
    const auto komut = motor.Hazirla("select count(*) from sendika");
    return komut->Adim() ? komut->Tam(0) : -1;
  };
  {
    Islem islem(motor);
    motor.Calistir("insert into sendika (kod) values ('A')");
    const auto komut = motor.Hazirla(Uzun);
    Duran duran(3);
    EXPECT_THROW(IzlenenOkuma(*komut, &duran).Adim(), Vazgecilmis);
    EXPECT_EQ(duran.kalan, -1) << "asked until the first no";
    motor.Calistir("insert into sendika (kod) values ('B')");
    islem.Onayla();
  }
  EXPECT_EQ(sayi(), 2) << "nobody asks any more, and what was written stands";
}

TEST(IzlenenOkuma, TheCheckOfAStoreCanBeGivenUpAnywhere) {
  YALNIZ_DIZINDE("a server is not asked in the middle of a statement");
  test::OrnekDepo d;
  Motor& motor = d.db.IcMotor();
  const std::size_t saglam = DepoKusurlari(motor).size();
  motor.Calistir(
      "insert into cari (kod) with recursive s(x) as (select 1 union all select x + 1 from s where x < 3000) select x "
      "from s");
  const auto soran = [](Ilerleme& i) { return [&i] { Asama(&i).Sor(); }; };
  for (const int adim : {0, 3, 20}) {
    Duran butun(adim), depo(adim);
    EXPECT_THROW(motor.ButunlukKusuru(soran(butun)), Vazgecilmis) << adim;
    EXPECT_THROW(DepoKusurlari(motor, &depo), Vazgecilmis) << adim;
  }
  EXPECT_EQ(DepoKusurlari(motor).size(), saglam);
}

}  // namespace
}  // namespace belvani
