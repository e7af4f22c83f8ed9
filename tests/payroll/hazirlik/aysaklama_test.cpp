// A month that was written over or deleted comes back as it was, and what stood there is kept in its place.
#include "payroll/hazirlik/aysaklama.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/session/firmabilgi.h"
#include "kesinti.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::Giris;
using test::Iletiler;
using testing::HasSubstr;

// The stored values of a month's rows, whatever their columns mean.
std::string Satirlar(Motor& motor, const std::string& tablo, const std::string& kolonlar = "*") {
  const auto komut =
      motor.Hazirla("select " + kolonlar + " from " + tablo + " where yil = 2009 and ay = 2 order by oto");
  std::string metin;
  while (komut->Adim())
    for (int i = 0; i < komut->KolonSayisi(); ++i)
      metin += std::string(komut->Metin(i)) + (i + 1 < komut->KolonSayisi() ? "|" : "\n");
  return metin;
}

struct AySaklama : testing::Test, test::Sirket {
  AySaklama() {
    for (const char* kod : {"1", "2", "3"}) Kisi(kod, 666);
    Hazirla(2009, 1);
    Hazirla(2009, 2);
  }
  // The month again, with other days for the first person.
  void BaskaHazirla() {
    GirisSatiri giris = Giris("1", 20);
    giris.deger.ht = 10;
    ASSERT_TRUE(Hazirla(2009, 2, {giris}).kaydedildi);
  }
  std::string Ay() { return Satirlar(motor(), "brd"); }
  std::vector<SaklananAy> Saklananlar() { return test::Al(SaklananAylar(o)); }
  int GeriAl() { return test::Al(AyiGeriAl(o, 2009, 2, bildirim)).value_or(-1); }
};

TEST_F(AySaklama, WrittenOverAndDeletedItComesBack) {
  EXPECT_TRUE(Saklananlar().empty()) << "there was nothing before";
  motor().Calistir("update brd set gocindir = 5, sendika = null where kod = '2'");
  const std::string once = Ay();
  BaskaHazirla();
  const std::string sonra = Ay();
  ASSERT_NE(sonra, once);
  ASSERT_EQ(Saklananlar().size(), 1u);
  EXPECT_EQ(Saklananlar()[0].neden, TopluHazirliktanOnce);
  for (const auto& [yil, ay] : {std::pair(2009, 1), {2008, 2}})
    EXPECT_FALSE(AyiGeriAl(o, yil, ay, bildirim)) << "kept is February 2009 alone";
  EXPECT_TRUE(bildirim.Al().empty());

  bildirim.cevap = false;
  EXPECT_EQ(GeriAl(), -1);
  EXPECT_EQ(Ay(), sonra);
  const Iletiler sorulan = bildirim.Al();
  ASSERT_EQ(sorulan.size(), 1u);
  EXPECT_THAT(sorulan[0], testing::AllOf(HasSubstr("Şubat 2009 bordrosunun "), HasSubstr("saklanan 3 kaydı"),
                                         HasSubstr("ayın şimdiki 3 kaydı")));
  bildirim.cevap = true;
  EXPECT_EQ(GeriAl(), 3);
  EXPECT_EQ(Ay(), once);
  const Kusurlar ozetler = BrdOzetKusurlari(motor());
  ASSERT_EQ(ozetler.size(), 1u) << "of the record that was changed by hand, and of no other";
  EXPECT_EQ(ozetler[0].kod, "2");
  EXPECT_EQ(GeriAl(), 3) << "what stood there was kept";
  EXPECT_EQ(Ay(), sonra);

  EXPECT_EQ(test::Al(BordroSil(o, 2009, 2)), 3);
  EXPECT_EQ(Saklananlar()[0].neden, SilinmedenOnce);
  EXPECT_EQ(test::Al(BordroSil(o, 2009, 2)), 0) << "an empty month pushes nothing out";
  EXPECT_EQ(GeriAl(), 3);
  EXPECT_EQ(Ay(), sonra);
  EXPECT_TRUE(Saklananlar().empty());
  EXPECT_EQ(AyiGeriAl(o, 2009, 2, bildirim).KusurMetni(), "Saklanan bordro yok: Şubat 2009");
  EXPECT_EQ(Kayitlar(2009, 1).size(), 3u) << "the other month is as it was";
}

// A run that changes nothing, or is refused, keeps the state that was kept before.
TEST_F(AySaklama, OnlyWhatIsWrittenOverIsKept) {
  Hazirla(2009, 2);
  EXPECT_TRUE(Saklananlar().empty());
  BaskaHazirla();
  const std::string saklanan = Satirlar(motor(), "brdonceki");
  Hazirla(2009, 2);
  EXPECT_FALSE(Hazirla(2009, 2, {Giris("1", 10), Giris("yok", 5)}).kaydedildi);
  EXPECT_EQ(Satirlar(motor(), "brdonceki"), saklanan);
}

// A store that was upgraded after the month was kept.
TEST_F(AySaklama, ColumnsThatCameLaterAreEmpty) {
  BaskaHazirla();
  motor().Calistir("drop index brdonceki_kisi; alter table brdonceki drop column brdkanun");
  EXPECT_EQ(GeriAl(), 3);
  EXPECT_THAT(Satirlar(motor(), "brd", "kod, brdkanun"), testing::StartsWith("1|\n2|\n"));
}

TEST_F(AySaklama, KilledItIsTheOneMonthOrTheOther) {
  YALNIZ_DIZINDE("writes to files are watched");
  BaskaHazirla();
  const std::string kolonlar = [&] {
    std::string liste;
    for (const MotorKolonu& k : motor().Kolonlar("brd")) liste += (liste.empty() ? "" : ", ") + k.ad;
    return liste;
  }();
  const std::string a = Ay(), b = Satirlar(motor(), "brdonceki", kolonlar);
  ASSERT_TRUE(a != b && !b.empty());
  o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  const auto kes = [&](int no) {
    return test::KesilenCagri(
        [&] {
          Oturum yeni;
          yeni.DataPath = o.DataPath;
          if (SirketAc(yeni, "DENEME")) (void)AyiGeriAl(yeni, 2009, 2, bildirim);
        },
        no);
  };
  const int hepsi = kes(1'000'000);
  int degisen = 0;
  std::string simdi = b;
  for (int no = 1; no < hepsi; no += 1 + hepsi / 50) {
    kes(no);
    const auto acik = MotorAc(o.DataPath + "DENEME/tolu.dat");
    const std::string ay = Satirlar(*acik, "brd");
    EXPECT_EQ(Satirlar(*acik, "brdonceki", kolonlar), ay == a ? b : a) << no;
    EXPECT_TRUE(ay == a || ay == b) << no;
    degisen += int(std::exchange(simdi, ay) != ay);
  }
  EXPECT_GT(degisen, 0);
}

}  // namespace
}  // namespace belvani
