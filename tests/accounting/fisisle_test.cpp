// Posting: what is written where, that a failure leaves nothing, and several users at once.
#include "accounting/fisisle.h"

#include <fstream>
#include <set>
#include <sys/stat.h>

#include "accounting/entegrasyonayari.h"
#include "accounting/hesapplani.h"
#include "accounting/kardestablolar.h"
#include "core/saat.h"
#include "core/store/satirlar.h"
#include "muhasebe.h"
#include "surec.h"

namespace belvani {
namespace {

using test::Kayit;
using test::Satir;
using testing::HasSubstr;
using testing::StartsWith;

Fis OrnekFis() {
  return test::FisYap({{"A", Kayit("1", 1000)}},
                      {Satir("A", 0, 5, 0, "770"), Satir("A", 1, 16, 1, "Ş'3%_"), Satir("A", 2, 5, 1, "Ş'3%_")});
}
const FisIstegi Istek{.tarih = Tarih(2009, 8, 31)};

struct FisIsleme : test::KardesTesti {
  std::shared_ptr<Motor> muhasebe = Kur(KardesTuru::Muhasebe);

  std::string Bosluk() {
    return std::to_string(Sayi(*muhasebe, "select count(*) from fisgen")) + " " +
           std::to_string(Sayi(*muhasebe, "select count(*) from fistra")) + " " +
           std::to_string(Sayi(*muhasebe, "select count(*) from hestoplam"));
  }
};

TEST_F(FisIsleme, HeadLinesAndTotals) {
  const SabitAn an(1'250'000'000);
  const Fis fis = OrnekFis();
  EXPECT_EQ(*FisIsle(*muhasebe, fis, Istek), 1);
  EXPECT_EQ(*FisIsle(*muhasebe, fis, {.tarih = Tarih(2009, 8, 1), .fisno = 70}), 70);
  const auto baslar = KayitlariOku<Fisgen>(*muhasebe, "order by fisno");
  EXPECT_TRUE(baslar[0] == (Fisgen{.fisno = 1,
                                   .fistip = 3,
                                   .tarih = Tarih(2009, 8, 31),
                                   .yevno = 0,
                                   .ack = "Aralık 2009 Ücret Tahakkuku",
                                   .psw = "",
                                   .lastuser = "",
                                   .borc = Tutar(1000),
                                   .alacak = Tutar(2000)}));
  auto satirlar = KayitlariOku<Fistra>(*muhasebe, "order by fisno, sira");
  ASSERT_EQ(satirlar.size(), 4u);
  std::set<Baytlar> referler;
  for (Fistra& s : satirlar) {
    ASSERT_EQ(s.refer.size(), 8u);
    referler.insert(std::exchange(s.refer, {}));
  }
  EXPECT_EQ(referler.size(), 4u);
  EXPECT_TRUE(satirlar[3] == (Fistra{.kod = "Ş'3%_",
                                     .fisno = 70,
                                     .ba = 1,
                                     .tutar = Tutar(2000),
                                     .oto = 255,
                                     .mik = {},
                                     .sira = 2,
                                     .yenino = 70,
                                     .aciklama = "Aralık 2009 Ücret Tahakkuku",
                                     .refer = {}}));
  const auto toplamlar = KayitlariOku<Hestoplam>(*muhasebe, "order by kod");
  Hestoplam borc{.kod = "770"}, alacak{.kod = "Ş'3%_"};
  borc.bagu = Tutar(2000);
  alacak.aagu = Tutar(4000);
  EXPECT_TRUE(toplamlar == (std::vector{borc, alacak})) << "in the month of the voucher's day";
  EXPECT_EQ(*SiradakiFisNo(*muhasebe), 71);
}

TEST_F(FisIsleme, ReferenceTellsTheMoment) {
  const SabitAn an(1'250'000'000);
  std::tm t{};
  const std::time_t zaman = SimdikiAn();
  ::localtime_r(&zaman, &t);
  const Baytlar refer = ReferansYap(zaman, [](int n) { return n - 1; });
  EXPECT_EQ(refer, (Baytlar{std::uint8_t(t.tm_mday + 1), std::uint8_t(t.tm_mon + 2), std::uint8_t(t.tm_hour + 1),
                            std::uint8_t(t.tm_min + 1), std::uint8_t(t.tm_sec + 1), 254, 254, 254}));
  EXPECT_EQ(ReferansYap(zaman, [](int) { return 0; }).back(), 1);
}

TEST_F(FisIsleme, RefusedBeforeAnythingIsWritten) {
  const Fis fis = OrnekFis();
  EXPECT_EQ(FisIsle(*muhasebe, test::FisYap({}, {}), Istek).KusurMetni(), "Entegre Edilecek Hesap Yok...");
  EXPECT_EQ(FisIsle(*muhasebe, fis, {}).KusurMetni(), "Hatalı Tarih");
  EXPECT_EQ(*FisIsle(*muhasebe, fis, Istek), 1);
  const auto sorulan = [&](std::vector<std::int32_t> bilinenler) {
    return FisIsle(*muhasebe, fis, {.tarih = Istek.tarih, .fisno = 1, .bilinenler = std::move(bilinenler)});
  };
  EXPECT_THAT(sorulan({}).KusurMetni(), StartsWith("Bu ayın fişini bu arada"));
  const auto ayni = sorulan({1});
  EXPECT_EQ(ayni.KusurMetni(), "Bu Fiş Kullanılmış Yeni Bir Fiş No Seçiniz");
  EXPECT_TRUE(ayni.Kusuru().alan == fisgen::fisno);
  EXPECT_EQ(Bosluk(), "1 2 2");
  EXPECT_THAT(AyniFisSorusu(AyniFisler(*muhasebe, fis.ack), fis.ack), HasSubstr("fiş no 1\n"));
  EXPECT_EQ(AyniFisSorusu(AyniFisler(*muhasebe, "Ocak"), "Ocak"), "");
}

// Whatever write fails, its message is told and nothing of the voucher stays.
TEST_F(FisIsleme, AFailureLeavesNothing) {
  const struct {
    const char* islem;
    const char* mesaj;
  } engeller[] = {{"insert on fisgen", "Fis Başlık Bilgileri Kaydedilemiyor.\n"},
                  {"insert on fistra when new.sira = 2", "Hareket Güncellenemiyor..\n"},
                  {"insert on hestoplam", "Hareket Güncellenemiyor..\n"}};
  for (const auto& [islem, mesaj] : engeller) {
    const std::string ad(islem);
    const auto kosul = ad.find(" when");
    muhasebe->Calistir("create trigger engel before " + ad.substr(0, kosul) +
                       (kosul == ad.npos ? "" : ad.substr(kosul)) + " begin select raise(abort, 'x'); end");
    EXPECT_THAT(FisIsle(*muhasebe, OrnekFis(), Istek).KusurMetni(), StartsWith(mesaj)) << islem;
    muhasebe->Calistir("drop trigger engel");
    EXPECT_EQ(Bosluk(), "0 0 0") << islem;
  }
  muhasebe->Calistir("insert into hestoplam (kod, bagu) values ('770', 9223372036854775807)");
  EXPECT_FALSE(FisIsle(*muhasebe, OrnekFis(), Istek)) << "a total beyond all amounts";
  EXPECT_EQ(Bosluk(), "0 0 1");
}

// Numbers are distinct and the totals hold all of them.
TEST_F(FisIsleme, TwoUsersAtOnce) {
  constexpr int isleyen = 4, fis = 12;
  muhasebe.reset();
  {
    std::vector<test::Surec> surecler;
    for (int i = 0; i < isleyen; ++i)
      surecler.emplace_back([&] {
        const auto motor = KardesAc(KardesTuru::Muhasebe, dizin.Yol());
        for (int n = 0; n < fis; ++n)
          if (!motor || !FisIsle(**motor, OrnekFis(), Istek)) return 1;
        return 0;
      });
    for (test::Surec& s : surecler) EXPECT_EQ(s.Bekle(), 0);
  }
  muhasebe = Ac(KardesTuru::Muhasebe);
  EXPECT_EQ(Sayi(*muhasebe, "select count(distinct fisno) from fisgen"), isleyen * fis);
  EXPECT_EQ(Sayi(*muhasebe, "select max(fisno) from fisgen"), isleyen * fis);
  EXPECT_EQ(Sayi(*muhasebe, "select count(distinct refer) from fistra"), 2 * isleyen * fis);
  EXPECT_EQ(Sayi(*muhasebe, "select bagu from hestoplam where kod = '770'"), isleyen * fis * Tutar(1000).Ham());
}

struct KardesDepo : test::KardesTesti {
  void Sql(KardesTuru tur, const char* sql) { MotorAc(KardesDosyasi(tur, dizin.Yol()))->Calistir(sql); }
  std::string Kusur(KardesTuru tur, KardesErisimi erisim = KardesErisimi::Yazilir) {
    const auto motor = KardesAc(tur, dizin.Yol(), erisim);
    return motor ? "" : motor.KusurMetni();
  }
};

TEST_F(KardesDepo, MadeOnceWithItsAccounts) {
  const auto plan = HesapPlani::Oku(*Kur(KardesTuru::Muhasebe));
  EXPECT_EQ(plan.Adi("335"), "Personele Borçlar");
  EXPECT_EQ(plan.Adi("368"), "Vadesi Geçmiş, Ertelenmiş veya Taksitlendirilmiş Vergi ve Diğer Yükümlülükler");
  EXPECT_EQ(plan.Adi("999"), "");
  for (const char* kod :
       {"100", "102", "196", "336", "360", "361", "369", "381", "720", "730", "740", "750", "760", "770"})
    EXPECT_NE(plan.Adi(kod), "") << kod;
  Kur(KardesTuru::Isletme);
  EXPECT_THAT(KardesYarat(KardesTuru::Muhasebe, dizin.Yol()).KusurMetni(), StartsWith("Bu dizinde zaten var: "));
  std::set<std::string> dosyalar;
  for (const auto& d : std::filesystem::directory_iterator(dizin.Yol())) dosyalar.insert(d.path().filename());
  EXPECT_EQ(dosyalar, (std::set<std::string>{"belisl.dat", "belmuh.dat"})) << "nothing half stays";
}

TEST_F(KardesDepo, OneThatIsNoneIsTold) {
  EXPECT_THAT(Kusur(KardesTuru::Muhasebe), StartsWith("Muhasebe Şirketi Bulunamadı..\n"));
  EXPECT_THAT(KardesAc(KardesTuru::Muhasebe, "").KusurMetni(), StartsWith("Muhasebe Şirketi Bulunamadı..\n"));
  EXPECT_THAT(Kusur(KardesTuru::Isletme), StartsWith("İşletme Defteri Dosyası Açılamıyor..\n"));
  std::ofstream(dizin.Yol() + "belmuh.dat") << std::string(5000, 'x');
  EXPECT_THAT(Kusur(KardesTuru::Muhasebe), StartsWith("Muhasebe Dosyaları Açılamıyor..\n"));
}

// A relative path is meant from the company's place, which is no directory on a server.
TEST_F(KardesDepo, BooksBesideAServerNeedAWholePath) {
  Oturum o;
  o.FirmaDizini = "postgresql://s/b#ORNEK/";
  const std::string yer = KardesDizini(o, "defter");
  for (const auto& kusur : {KardesAc(KardesTuru::Isletme, yer).KusurMetni(),
                            KardesAc(KardesTuru::Muhasebe, yer, KardesErisimi::YalnizBakis).KusurMetni(),
                            KardesYarat(KardesTuru::Muhasebe, yer).KusurMetni()})
    EXPECT_THAT(kusur, HasSubstr("dizinin tam yolunu veriniz: postgresql://s/b#ORNEK/defter"));
  EXPECT_FALSE(std::filesystem::exists("postgresql:"));
}

TEST_F(KardesDepo, AnotherShapeIsNotOpened) {
  Kur(KardesTuru::Muhasebe);
  Sql(KardesTuru::Muhasebe, "alter table fistra rename column oto to otomatik");
  EXPECT_EQ(Kusur(KardesTuru::Muhasebe), "Muhasebe Dosyaları Açılamıyor..\nalan yok: fistra.oto");
  EXPECT_EQ(Kusur(KardesTuru::Muhasebe, KardesErisimi::YalnizBakis), "") << "the chart is as it should be";
  Sql(KardesTuru::Muhasebe,
      "alter table fistra drop column tutar; alter table fistra add column tutar real; "
      "alter table fistra rename column otomatik to oto");
  EXPECT_EQ(Kusur(KardesTuru::Muhasebe), "Muhasebe Dosyaları Açılamıyor..\nalanın türü başka: fistra.tutar (real)");
  Kur(KardesTuru::Isletme);
  Sql(KardesTuru::Isletme, "drop table islgrup");
  EXPECT_EQ(Kusur(KardesTuru::Isletme), "İşletme Grup Recordset Açılamıyor..\ntablo yok: islgrup");
  Sql(KardesTuru::Isletme, "drop table isltra");
  EXPECT_EQ(Kusur(KardesTuru::Isletme), "İşletme Hareket Recordset Açılamıyor..\ntablo yok: isltra");
}

TEST_F(KardesDepo, LockedBySomebodyElse) {
  const auto o = Kur(KardesTuru::Muhasebe);
  const auto ben = Ac(KardesTuru::Muhasebe);
  o->IslemBaslat({});
  EXPECT_THAT(FisIsle(*ben, OrnekFis(), Istek).KusurMetni(), HasSubstr("kilitli"));
  o->IslemGeriAl();
  EXPECT_EQ(*FisIsle(*ben, OrnekFis(), Istek), 1);
}

TEST_F(KardesDepo, ReadOnlyIsReadAndNotWritten) {
  Kur(KardesTuru::Muhasebe)->SaltOkunurYap();
  const auto motor = Ac(KardesTuru::Muhasebe);
  motor->SaltOkunurYap();
  EXPECT_EQ(HesapPlani::Oku(*motor).Adi("100"), "Kasa");
  EXPECT_FALSE(FisIsle(*motor, OrnekFis(), Istek));
  EXPECT_EQ(Sayi(*motor, "select count(*) from fisgen"), 0);
}

}  // namespace
}  // namespace belvani
