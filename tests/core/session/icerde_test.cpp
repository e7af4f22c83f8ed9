// Who is in a company, and what is refused meanwhile.
#include "core/session/icerde.h"

#include <algorithm>
#include <ctime>

#include "core/saat.h"
#include "core/session/kilitnotu.h"
#include "core/session/ornekoturum.h"
#include "core/session/paylasim.h"
#include "core/session/sirketlistesi.h"
#include "core/session/yukseltme.h"
#include "surec.h"

namespace belvani {
namespace {

using test::Iletiler;

struct IcerdeTest : test::OrnekOturum {
  test::Sonunda dilim = test::OrtamKoy("TZ", "UTC");
  VeriYolu yer = VeriYolu(o.DataPath).Alt("DENEME");

  IcerdeTest() { ::tzset(); }
  std::string Kimler(const IcerdeIsareti* kendim = nullptr) const {
    return IcerdekiSatirlari(Icerdekiler(yer, kendim));
  }
  // A mark as another computer lays it, whose processes cannot be seen from here.
  void BaskaBilgisayarinki(const std::string& ad) const {
    const auto kendi = IcerdeIsareti::Koy(yer, {.kullanici = "Çağrı", .bilgisayar = "MASA2"});
    const auto isaretler = yer.Isaretler();
    const auto i = std::ranges::find_if(isaretler, [](const AdliDosya& a) { return a.baytlar.starts_with("Çağrı"); });
    ASSERT_NE(i, isaretler.end());
    std::string baytlar = i->baytlar;
    const std::size_t uzay = baytlar.find("pid:");
    ASSERT_NE(uzay, std::string::npos) << baytlar;
    ASSERT_TRUE(yer.IsaretKoy(ad, baytlar.replace(uzay, 4, "PID:")));
  }
};

TEST_F(IcerdeTest, AMarkIsThereUntilItIsVoid) {
  test::BosSirket(o.DataPath, "DENEME");
  SabitAn an(1'000'000'000);
  const auto ben = IcerdeIsareti::Koy(yer, {.kullanici = "Ayşe\n", .bilgisayar = "MASA1"});
  ASSERT_NE(ben, nullptr);
  an.Gec(60);
  BaskaBilgisayarinki("oteki");
  EXPECT_EQ(Kimler(), "\nAyşe  (MASA1, 09.09.2001 01:46)\nÇağrı (MASA2, 09.09.2001 01:47)");
  EXPECT_EQ(Kimler(ben.get()), "\nÇağrı (MASA2, 09.09.2001 01:47)");
  an.Gec(240);
  ASSERT_TRUE(ben->Yenile());
  an.Gec(60);
  EXPECT_EQ(Icerdekiler(yer).size(), 2u);
  an.Gec(1);
  EXPECT_EQ(Kimler(), "\nAyşe  (MASA1, 09.09.2001 01:46)");
  EXPECT_EQ(yer.Isaretler().size(), 1u) << "what is void is swept";
  an.Gec(1000);
  EXPECT_TRUE(Icerdekiler(yer).empty() && yer.Isaretler().empty());
  EXPECT_TRUE(ben->Yenile()) << "the computer has slept";
  EXPECT_EQ(Icerdekiler(yer).size(), 1u);
  for (const char* bozuk : {"", "x", "a\nb\n1\nm\n1\n1\nx\n"}) ASSERT_TRUE(yer.IsaretKoy("bozuk", bozuk));
  EXPECT_EQ(Icerdekiler(yer).size(), 1u);
  EXPECT_TRUE(yer.Dosyalar().empty()) << "no file of the company";
  EXPECT_EQ(IcerdeIsareti::Koy(VeriYolu(o.DataPath).Alt("YOK"), {}), nullptr);
}

// The list of companies tells it of all places at once, a locked store of one's own.
TEST_F(IcerdeTest, ListAndLockNameWhoIsIn) {
  SabitAn an(1'000'000'000);
  Kur("bos");
  Kur();
  o.BilgisayarAdi = "MASA1";
  ASSERT_TRUE(OturumAc(o, "deneme", "Ayşe", "gizli'"));
  an.Gec(60);
  BaskaBilgisayarinki("oteki");
  const VeriYolu veri(o.DataPath);
  ASSERT_TRUE((test::SunucudaMi() || veri.IsaretKoy("kok", "x")) && veri.Alt("BOS").IsaretKoy("bozuk", "x"));
  const auto liste = SirketListesi(o.DataPath);
  ASSERT_EQ(liste.size(), 2u);
  EXPECT_TRUE(liste[0].icerde.empty());
  const std::string ben = "Ayşe (MASA1, 09.09.2001 01:46)", oteki = "Çağrı (MASA2, 09.09.2001 01:47)";
  EXPECT_EQ(IcerdekiMetni(liste[1].icerde), ben + "; " + oteki);
  const auto metin = [&](MotorKusuru tur) { return KilitliMetin(o, MotorHatasi(tur, "Olmadı")); };
  EXPECT_EQ(metin(MotorKusuru::Kilitli), "Olmadı\nŞirkette çalışanlar:\n" + oteki) << "but for oneself";
  EXPECT_EQ(metin(MotorKusuru::DiskDolu), "Olmadı");
  an.Gec(301);
  EXPECT_EQ(metin(MotorKusuru::Kilitli), "Olmadı");
  EXPECT_TRUE(AltIcerdekiler(o.DataPath).empty() && yer.Isaretler().empty()) << "what is void is swept here too";
}

TEST_F(IcerdeTest, AKilledProgramIsOutAtOnce) {
  test::BosSirket(o.DataPath, "DENEME");
  const test::Kapi kondu;
  test::Surec oteki([&] {
    const auto isaret = IcerdeIsareti::Koy(yer, {.kullanici = "Ayşe", .bilgisayar = "MASA1"});
    kondu.Ac();
    return ::pause();
  });
  kondu.Bekle();
  EXPECT_EQ(Icerdekiler(yer).size(), 1u);
  oteki.Oldur();
  EXPECT_TRUE(Icerdekiler(yer).empty());
}

TEST_F(IcerdeTest, FromLoginToLeaving) {
  Kur();
  EXPECT_TRUE(Icerdekiler(yer).empty());
  EXPECT_FALSE(OturumAc(o, "deneme", "Ayşe", "yanlış"));
  EXPECT_TRUE(Icerdekiler(yer).empty());
  ASSERT_TRUE(OturumAc(o, "deneme", "Ayşe", "gizli'"));
  EXPECT_EQ(Icerdekiler(yer).at(0).kullanici, "Ayşe");
  EXPECT_TRUE(Icerdekiler(yer, o.icerde.get()).empty());
  SirketKapat(o);
  EXPECT_TRUE(yer.Isaretler().empty());
}

// A store on a share does not tell of its idle users: the marks do.
TEST_F(IcerdeTest, DeletionAndUpgradeNameWhoIsIn) {
  Kur();
  const SabitAn an(1'000'000'000);
  BaskaBilgisayarinki("oteki");
  const std::string cagri = "\nÇağrı (MASA2, 09.09.2001 01:46)";
  ASSERT_TRUE(OturumAc(o, "deneme", "Ayşe", "gizli'"));
  AdimIsaretleri isaretli{};
  isaretli[2] = true;
  const auto yukseltme = AdimlariYurut(o, isaretli, Tutar());
  EXPECT_EQ(yukseltme.hal, GuncellemeSonucu::IsaretYok);
  ASSERT_EQ(yukseltme.sozler.size(), 1u);
  EXPECT_EQ(yukseltme.sozler[0].metin, "Bu şirkette başka kullanıcılar var, güncelleme yapılmadı:" + cagri);
  SirketKapat(o);
  o.FirmaDizini.clear();
  const std::string depo = "\n" + yer.Adres("tolu.dat");
  EXPECT_EQ(SirketSil(o.DataPath, "DENEME", o, b).KusurMetni(),
            "Bu şirket şu anda kullanılıyor, hiçbir dosya silinmedi:" + depo + cagri);
  const auto yerDegisimi = DepoYeriDegistir(o.DataPath, "DENEME", DepoYeri::Paylasilan);
  ASSERT_FALSE(yerDegisimi);
  EXPECT_TRUE(test::SunucudaMi() ||
              yerDegisimi.KusurMetni() == "Bu şirket şu anda kullanılıyor, değiştirilmedi:" + depo + cagri)
      << yerDegisimi.KusurMetni();
  ASSERT_TRUE(yer.IsaretKaldir("oteki"));
  EXPECT_EQ(bool(DepoYeriDegistir(o.DataPath, "DENEME", DepoYeri::Paylasilan)), !test::SunucudaMi());
  EXPECT_TRUE(SirketSil(o.DataPath, "DENEME", o, b));
}

}  // namespace
}  // namespace belvani
