// The list of companies, and what a deletion may and may not reach.
#include "core/session/sirketlistesi.h"

#include "core/dosya.h"
#include "core/session/ornekoturum.h"
#include "core/sinamalar.h"
#include "surec.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::Iletiler;
using test::Sinamalar;
using Adlar = std::vector<std::string>;

struct SirketListesiTest : test::OrnekOturum {
  void Dosya(const std::string& yol) { ASSERT_TRUE(DosyaYaz(o.DataPath + yol, "x")); }
  void Dizin(const std::string& yol) { ASSERT_TRUE(DizinYarat(o.DataPath + yol)); }
};

TEST_F(SirketListesiTest, BrokenStoresDoNotStopIt) {
  Kur("bos");
  Sql("delete from firma");
  Kur("ölü");
  Sql("drop table firma");
  Kur("deneme");
  Sql("update firma set unvan = 'Örgü', firmaay = 7, firmayil = 2009");
  const auto yok = [](const char* ad) { return SirketSatiri{ad, "Database'e Ulaşılamadı"}; };
  std::vector<SirketSatiri> beklenen{yok("BOS"), {"DENEME", "Örgü", 2009, 7}, yok("ÖLÜ")};
  if (!test::SunucudaMi()) {
    Dizin("COP");
    Dosya("COP/tolu.dat");
    Dizin("HİÇ/tolu.dat");
    beklenen = {yok("BOS"), yok("COP"), {"DENEME", "Örgü", 2009, 7}, yok("HİÇ"), yok("ÖLÜ")};
  }
  EXPECT_EQ(SirketListesi(o.DataPath), beklenen);
  EXPECT_EQ(SirketListesi(o.DataPath), beklenen);
  EXPECT_TRUE(FirmaYukle(o) && o.depo.cari.AcikMi()) << "the session's own store stays open";
}

TEST_F(SirketListesiTest, OnlyWhatIsListedCanBeDeleted) {
  YALNIZ_DIZINDE("what else may stand in a directory");
  Kur("izmir");
  Dizin("izmir");  // made by hand: another place than the company that is open
  Dizin(".kurulan-YARIM-AbCdEf");
  Dosya(".kurulan-YARIM-AbCdEf/tolu.dat-wal");
  Dizin(".baska");
  Dizin("SİL");
  Dosya("SİL/kazanc.dat");
  Dizin("../disarida");
  Dosya("../disarida/onemli");
  Dosya("DOSYA");
  fs::create_directory_symlink(d.Yol() + "disarida", o.DataPath + "BAĞ");
  fs::create_directory_symlink(d.Yol() + "disarida", o.DataPath + "SİL/bag");
  EXPECT_EQ(SilinebilirSirketler(o.DataPath, o), (Adlar{"izmir", "SİL", ".kurulan-YARIM-AbCdEf"}));
  for (const char* ad : {"İZMİR", "İzmir", "BAĞ", "DOSYA", ".baska", ".kurulan-yok", "", ".", "..", "../disarida",
                         "SİL/", "sil", "SİL/../İZMİR"}) {
    const auto silinen = SirketSil(o.DataPath, ad, o, b);
    ASSERT_FALSE(silinen) << ad;
    EXPECT_EQ(silinen.KusurMetni(), std::string("Silinebilecek şirketler arasında yok: ") + ad);
  }
  b.cevap = false;
  EXPECT_EQ(*SirketSil(o.DataPath, "SİL", o, b), Silme::Silinmedi);
  EXPECT_EQ(b.Al(), Iletiler{"Soru: Firmayı Silmeye Eminmisiniz ?\nSİL"});
  EXPECT_TRUE(fs::exists(o.DataPath + "SİL/kazanc.dat"));
  b.cevap = true;
  for (const char* ad : {"SİL", "izmir", ".kurulan-YARIM-AbCdEf"}) {
    EXPECT_TRUE(SirketSil(o.DataPath, ad, o, b));
    EXPECT_FALSE(fs::exists(o.DataPath + ad));
  }
  EXPECT_TRUE(fs::exists(d.Yol() + "disarida/onemli") && fs::exists(o.DataPath + "DOSYA") && FirmaYukle(o));
}

// Nothing at all is deleted while something could not be: {a subdirectory, another program, another session here}.
TEST_F(SirketListesiTest, DeletedWholeOrNotAtAll) {
  Kur("eski");
  Kur("deneme");
  o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  const auto silinmez = [&](const std::string& neden) {
    EXPECT_EQ(SirketSil(o.DataPath, "ESKİ", o, b).KusurMetni(), neden);
  };
  if (!test::SunucudaMi()) {
    Dizin("ESKİ/yedek");
    silinmez("Şirket dizininde alt dizin var, hiçbir dosya silinmedi:\n" + o.DataPath + "ESKİ/yedek");
    fs::remove(o.DataPath + "ESKİ/yedek");
  }
  const std::string kullanimda =
      "Bu şirket şu anda kullanılıyor, hiçbir dosya silinmedi:\n" + o.DataPath + "ESKİ/tolu.dat";
  test::Kapi acildi;
  test::Surec baskasi([&] {
    (void)SirketAc(o, "eski");
    acildi.Ac();
    return ::pause();
  });
  acildi.Bekle();
  silinmez(kullanimda);
  baskasi.Oldur();
  Oturum diger;
  diger.DataPath = o.DataPath;
  ASSERT_TRUE(SirketAc(diger, "eski"));
  silinmez(kullanimda);
  EXPECT_EQ(diger.depo.peruser.KayitSayisi(), 1);
  diger.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  EXPECT_TRUE(SirketSil(o.DataPath, "ESKİ", o, b));
  test::BosSirket(o.DataPath, "ESKİ");
  if (!test::SunucudaMi()) Dosya("ESKİ/tolu.dat");  // no store at all
  EXPECT_TRUE(SirketSil(o.DataPath, "ESKİ", o, b));
}

}  // namespace
}  // namespace belvani
