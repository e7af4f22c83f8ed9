// Pay records that stand twice: a new store takes none, an earlier one works with them, is told, and is mended by
// choice.
#include "core/store/depoonarimi.h"

#include <gtest/gtest.h>

#include "core/sayi.h"
#include "core/store/depodenetimi.h"
#include "core/store/engel.h"
#include "core/store/islem.h"
#include "core/store/ornekdepo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

struct DepoOnarimiTest : testing::Test, test::OrnekDepo {
  Motor& motor() { return db.IcMotor(); }
  void Sql(const std::string& sql) { ASSERT_NO_THROW(motor().Calistir(sql)) << sql; }
  void Yaz(const std::string& kod, int no, double brut) {
    Brd b{.yil = 2009, .ay = 7, .no = std::uint8_t(no), .kod = kod};
    b.brutkaz = Tutar(brut);
    KayitYazici<Brd>(motor()).Ekle(b);
  }
  // As an earlier version has made it.
  void Eskit() { Sql("drop index brd_ay; create index brd_ay on brd (yil, ay, kod)"); }
  // One a line; remarks are marked. Of doubles that differ in case alone either may be named.
  std::string Bulunan() {
    std::string metin;
    for (const Kusur& k : DepoKusurlari(motor()))
      metin += (k.derece == Derece::Uyari ? "? " : "") + KucukHarf(k.kod) + "|" + k.metin + "\n";
    return metin;
  }
  std::string Kayitlar(const std::string& tablo) {
    const auto komut = motor().Hazirla("select oto, kod, brutkaz from " + tablo + " order by oto");
    std::string metin;
    while (komut->Adim())
      metin += std::to_string(komut->Tam(0)) + " " + std::string(komut->Metin(1)) + " " +
               TutarMetni(Tutar::Hamdan(komut->Tam(2)), 2) + "\n";
    return metin;
  }
};

const char* const TekilDegil = "? |brd: brd_ay indeksi tekil değil (önceki sürümden), aynı kayıt iki kez yazılabilir\n";

TEST_F(DepoOnarimiTest, ARecordStandsOnce) {
  Yaz("a", 1, 10);
  Yaz("a", 2, 10);
  for (const auto& [kod, no] : {std::pair("A", 1), {"a", 0}, {"A", 2}})
    EXPECT_THROW(Yaz(kod, no, 20), MotorHatasi) << kod << no << ": in any case, and an empty number is 1";
  EXPECT_THROW(motor().Calistir("insert into brd (yil, ay, kod) values (2009, 7, 'a')"), MotorHatasi);
  EXPECT_EQ(Bulunan(), "");
}

TEST_F(DepoOnarimiTest, AnEarlierStoreGetsItsIndexByTheMendingAlone) {
  Eskit();
  Yaz("a", 1, 10);
  EXPECT_EQ(Bulunan(), TekilDegil) << "a remark: the store is sound";
  const auto onarim = DepoyuOnar(motor(), {});
  ASSERT_TRUE(onarim);
  EXPECT_TRUE(onarim->ayrilan.empty() && onarim->secilmeyen.empty());
  EXPECT_EQ(Bulunan(), "");
  EXPECT_THROW(Yaz("A", 0, 20), MotorHatasi);
}

TEST_F(DepoOnarimiTest, OfDoublesTheChosenOneStays) {
  Eskit();
  {
    Islem islem(motor());  // of one turn, the numbers follow one another on every engine
    Yaz("a", 1, 10);
    Yaz("A", 0, 20);
    Yaz("b", 1, 30);
    Yaz("b", 1, 40);
    Yaz("b", 2, 50);
    islem.Onayla();
  }
  Sql("drop index sicil_kod");
  const std::string ciftler =
      "a|brd: aynı kayıt 2 kez var (yil, ay, kod, no)\nb|brd: aynı kayıt 2 kez var (yil, ay, kod, no)\n";
  EXPECT_EQ(Bulunan(), "|sicil: sicil_kod indeksi yok\n" + std::string(TekilDegil) + ciftler);
  const auto ilk = DepoyuOnar(motor(), {});
  ASSERT_TRUE(ilk);
  ASSERT_EQ(ilk->secilmeyen.size(), 2u) << "shown, and nothing is chosen";
  EXPECT_EQ(ilk->secilmeyen[1][1].brutkaz, Tutar(40));
  EXPECT_EQ(Bulunan(), TekilDegil + ciftler);

  // What cannot be meant changes nothing.
  for (const std::vector<std::int64_t>& kalan : {std::vector<std::int64_t>{2, 5}, {1, 2}, {2, 99}})
    EXPECT_FALSE(DepoyuOnar(motor(), kalan));
  EXPECT_EQ(Bulunan(), TekilDegil + ciftler);

  ASSERT_TRUE(DepoyuOnar(motor(), {2}));
  EXPECT_EQ(Kayitlar("brdayrilan"), "1 a 10.00\n");
  Sql("alter table brd add column yeni integer");
  const auto son = DepoyuOnar(motor(), {3});
  ASSERT_TRUE(son);
  ASSERT_EQ(son->ayrilan.size(), 1u);
  EXPECT_EQ(son->ayrilan[0].oto, 4);
  EXPECT_EQ(Kayitlar("brd"), "2 A 20.00\n3 b 30.00\n5 b 50.00\n");
  EXPECT_EQ(Kayitlar("brdayrilan"), "1 a 10.00\n4 b 40.00\n");
  EXPECT_EQ(Bulunan(), "") << "unique now, and what was filed is missed by nobody";
}

TEST_F(DepoOnarimiTest, DamagedRecordsStayByChoiceOnly) {
  Yaz("a", 1, 10);
  Yaz("b", 1, 10);
  test::TetigiKaldir(motor(), "brdozet_degisti", "brd");
  Sql("update brd set brutkaz = 11 where oto = 1");
  const std::string bozuk = Bulunan();
  EXPECT_EQ(bozuk, "a|brd: 2009/7 kaydı (1) bozulmuş, değerleri özetini tutmuyor\n");
  ASSERT_TRUE(DepoyuOnar(motor(), {}));
  EXPECT_EQ(Bulunan(), bozuk) << "damage is not blessed by itself";
  EXPECT_FALSE(DepoyuOnar(motor(), {2})) << "that one is whole";
  EXPECT_EQ(DepoyuOnar(motor(), {1})->kabulEdilen, std::vector<std::int64_t>{1});
  EXPECT_EQ(Bulunan(), "");
}

}  // namespace
}  // namespace belvani
