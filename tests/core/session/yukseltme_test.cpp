// The upgrade: which steps are open, and a store of the oldest version brought through all of them.
#include "core/session/yukseltme.h"

#include <gmock/gmock.h>

#include "core/session/eskidepo.h"
#include "core/session/ornekoturum.h"
#include "core/session/sirket.h"
#include "core/session/sirketyedegi.h"
#include "core/session/yedektendon.h"
#include "core/sinamalar.h"
#include "core/store/depodenetimi.h"
#include "core/store/engel.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Sinamalar;

const AdimIsaretleri Hepsi{true, true, true, true, true, true, true};
const Tutar Taban(444.15);

struct Yukseltme : test::OrnekOturum {
  Yukseltme() { Kur(); }

  std::string SonYedek() { return SirketYedekleri(o.DataPath, o.FirmaKod).at(0).yol; }
  std::string YedekIletisi() { return "Bilgi: Yükseltmeden önceki yedek: " + SonYedek(); }

  void Yaslandir() {
    test::DepoyuYaslandir(o);
    ASSERT_TRUE(SirketAc(o, "deneme"));
  }
  GuncellemeSonucu Soyle(const Gelisme<GuncellemeSonucu>& gelisme) {
    for (const Kusur& soz : gelisme.sozler) b.KusuruGoster(soz);
    return gelisme.hal;
  }
  GuncellemeSonucu Adim(std::size_t no) { return Soyle(VeritabaniGuncelle(o, no, Taban)); }
  GuncellemeSonucu Yurut(const AdimIsaretleri& isaretli) { return Soyle(AdimlariYurut(o, isaretli, Taban)); }
  std::vector<std::size_t> Eksik() {
    std::vector<std::size_t> adimlar;
    for (const EksikAdim& e : EksikAdimlar(o.depo.db.IcMotor())) adimlar.push_back(e.adim);
    return adimlar;
  }
  // One row of a query as text, columns parted by blanks; Null as "-".
  std::string Satir(const std::string& sql) {
    const auto komut = o.depo.db.IcMotor().Hazirla(sql);
    std::string metin;
    while (komut->Adim())
      for (int i = 0; i < komut->KolonSayisi(); ++i)
        metin += (metin.empty() ? "" : " ") + (komut->Turu(i) == Komut::Tur::Null ? "-" : std::string(komut->Metin(i)));
    return metin;
  }
};

TEST(AcikAdimlar, ThoseTheStoreHasNotReached) {
  // {version of the store, first open step}
  for (const auto& [versiyon, ilk] : Sinamalar<double, std::size_t>{
           {0, 0}, {1, 0}, {2003, 0}, {2003.1, 1}, {2003.15, 1}, {2003.4, 4}, {2003.6, 6}, {2003.7, 7}, {2004, 7}}) {
    const auto acik = AcikAdimlar(Tek(versiyon));
    for (std::size_t i = 0; i < AdimSayisi; ++i) EXPECT_EQ(acik[i], i >= ilk) << versiyon << " " << i;
  }
}

TEST_F(Yukseltme, OldestStoreThroughAllSteps) {
  Yaslandir();
  Sql("insert into sicil (kod, sskdurum) values ('0', 0), ('1', 1), ('2', 2), ('3', 3), ('4', 4), ('5', 9), ('6', "
      "null)");
  Sql("insert into brd (kod, sskmatrahisveren) values ('az', 4000000), ('esit', 4441500), ('cok', 9000000), "
      "('null', null)");
  EXPECT_EQ(VersiyonMetni(o.depo.Versiyon()), "1");  // the field is not there
  const auto yurut = [&](std::size_t no, const std::string& versiyon) {
    EXPECT_EQ(Adim(no), GuncellemeSonucu::Tamam) << no;
    EXPECT_EQ(VersiyonMetni(o.depo.Versiyon()), versiyon) << no;
  };
  yurut(0, "2003.7");
  EXPECT_EQ(Satir("select tckimlik || epos || semt || adrilce || adril || pk || kanun from firma"), "00000");
  EXPECT_EQ(Satir("select sum(ucretsizizin), sum(ogv), count(ogv) from brd"), "0 0 4");
  EXPECT_EQ(Satir("select count(tahsisno) from sicil"), "0");
  yurut(1, "2003.7");
  EXPECT_EQ(
      Satir("select katki, ucrizmatrah + indirim1 + indirim2 + indirim3 + sakindir + gocindir from brd order by kod"),
      "441500 0 0 0 0 0 4441500 0");
  yurut(2, "2003.7");
  EXPECT_EQ(Satir("select tersfirma from firma"), "0");
  yurut(3, "2003.7");
  yurut(4, "2003.7");
  EXPECT_EQ(Satir("select count(kanun) from sicil"), "0");
  yurut(5, "2003.6");
  EXPECT_EQ(Satir("select tur from sicil order by kod"), "1 2 15 7 0 - 1");
  EXPECT_FALSE(VersiyonKontrol(o));
  yurut(6, "2003.7");
  EXPECT_EQ(Satir("select tur, sskdurum, agi from sicil order by kod"), "0 0 1 0 0 1 0 0 1 0 0 1 1 4 1 0 0 1 0 0 1");
  EXPECT_TRUE(VersiyonKontrol(o));
  for (const auto& t : Tablolar())
    for (const auto& alan : t.alanlar) EXPECT_TRUE(o.depo.db.AlanVarMi(t.ad, alan.ad)) << t.ad << "." << alan.ad;
  EXPECT_EQ(b.iletiler, Iletiler{});
}

// Fields that are there pass unnoticed; what a step fills is filled again.
TEST_F(Yukseltme, RepeatedSteps) {
  Sql("update firma set epos = 'a@b', kanun = '05510', tersfirma = 1");
  Sql("insert into sicil (kod, sskdurum, tur, tahsisno, kanun, agi) values ('1', 2, 18, '7', '05084', 1), ('2', 2, 19, "
      "'', '', 1)");
  Sql("insert into brd (kod, ogv, katki, sskmatrahisveren, sendika) values ('1', 5, 6, 9000000, 8)");
  Sql("drop index brd_ay");  // an earlier version knew nothing of it
  ASSERT_EQ(Yurut({true, true, true, true, true, true, false}), GuncellemeSonucu::Tamam);
  EXPECT_THAT(DepoKusurlari(o.depo.db.IcMotor()), testing::Each(testing::Field(&Kusur::derece, Derece::Uyari)))
      << "no index is missing";
  EXPECT_EQ(Satir("select epos || kanun, tersfirma, versiyon from firma"), "00000 0 2003.6");
  EXPECT_EQ(Satir("select tur, tahsisno || kanun from sicil order by kod"), "18 705084 15 ");
  EXPECT_EQ(Satir("select ogv, katki, sendika from brd"), "5 0 8");
  EXPECT_EQ(b.iletiler, Iletiler{YedekIletisi()});
}

// Each step by itself is missing in a store that says it is of this version; the step mends it.
TEST_F(Yukseltme, HalfStoresNameTheStepThatIsMissing) {
  Sql("insert into sicil (kod, agi, tur) values ('1', 1, 0); insert into brd (kod, ogv, katki) values ('1', 5, 6)");
  EXPECT_EQ(Eksik(), std::vector<std::size_t>{});
  EXPECT_TRUE(YapiKontrol(o));
  Sql("drop index brd_yil; drop index esco_kod");  // they hold columns of the steps
  for (std::size_t i = 0; i < AdimSayisi; ++i) {
    const YukseltmeAdimi& adim = YukseltmeAdimlari()[i];
    const std::string baslik(AdimBasligi(i));
    for (const auto& [tablo, alanlar] : adim.eklenen)
      Sql("alter table " + std::string(tablo) + " drop column " + std::string(alanlar.back()));
    EXPECT_EQ(Eksik(), std::vector<std::size_t>{i});
    EXPECT_TRUE(AcikAdimlar(o.depo)[i]) << baslik;
    EXPECT_THAT(YarimYukseltmeKusuru(o.depo.db.IcMotor())->metin, testing::HasSubstr("\n" + baslik + " ("));
    EXPECT_FALSE(YapiKontrol(o)) << "told at the opening";
    EXPECT_EQ(Adim(i), GuncellemeSonucu::Tamam) << baslik << o.depo.db.SonHata();
    EXPECT_EQ(Eksik(), std::vector<std::size_t>{}) << baslik;
    Sql("update firma set versiyon = 2003.7");
  }
  // Added, and never filled.
  for (const auto& [sql, adim] : Sinamalar<std::string, std::size_t>{{"update brd set ogv = null", 0},
                                                                     {"update brd set katki = null", 1},
                                                                     {"update firma set tersfirma = null", 2},
                                                                     {"update sicil set agi = null", 6}}) {
    Sql(sql);
    EXPECT_EQ(Eksik(), std::vector<std::size_t>{adim}) << sql;
    EXPECT_THAT(YapiKontrol(o).KusurMetni(), testing::HasSubstr("alanları doldurulmamış")) << sql;
    EXPECT_EQ(Adim(adim), GuncellemeSonucu::Tamam);
  }
  EXPECT_EQ(b.Al(), Iletiler{});
}

TEST_F(Yukseltme, OneStepAloneLeavesAStoreThatSaysSo) {
  Yaslandir();
  Sql("insert into sicil (kod) values ('1')");
  ASSERT_EQ(Yurut({true}), GuncellemeSonucu::Tamam);
  EXPECT_TRUE(VersiyonKontrol(o)) << "the version alone says that it is new";
  EXPECT_EQ(Eksik(), (std::vector<std::size_t>{1, 2, 3, 4, 5, 6}));
  const Iletiler soylenen = b.Al();
  ASSERT_EQ(soylenen.size(), 2u);
  EXPECT_THAT(soylenen[0], testing::AllOf(testing::HasSubstr("2003.6' den 2003.7 ' ye Geçiş (sicil.agi, esco.agiok"),
                                          testing::HasSubstr("bordro kaydedilmez")));
  EXPECT_EQ(soylenen[1], YedekIletisi());
  // The backup is the store before the first step.
  EXPECT_EQ(SirketYedekleri(o.DataPath, o.FirmaKod).at(0).ad.tur, YedekTuru::Yukseltme);
  ASSERT_TRUE(*YedektenDon(o.DataPath, {.dosya = SonYedek(), .yeniKod = "eski"}, b));
  Veritabani kopya;
  ASSERT_TRUE(kopya.DbAc(VeriYolu(o.DataPath).Alt("ESKİ").Adres("tolu.dat")));
  EXPECT_TRUE(kopya.TabloVarMi("sicil") && !kopya.AlanVarMi("firma", "versiyon"));
}

TEST_F(Yukseltme, TellsHowManyCardsGetAnotherKindOfInsurance) {
  Sql("insert into sicil (kod, sskdurum, tur) values ('1', 0, 0), ('2', 1, 0), ('3', 4, 1), ('4', 4, 0), ('5', 0, 2)");
  b.cevap = false;
  EXPECT_TRUE(*SigortaTuruOnayi(o, {true, true}, b)) << "only that step is asked about";
  EXPECT_EQ(b.Al(), Iletiler{});
  EXPECT_FALSE(*SigortaTuruOnayi(o, Hepsi, b));
  EXPECT_EQ(b.Al(), Iletiler{"Soru: Bütün Kartların SSK Durumu Yeniden Yazılacak Eminmisiniz ?\n"
                             "2003.6' den 2003.7 ' ye Geçiş: 5 karttan 3 kart değişecek"});
  ASSERT_EQ(Adim(6), GuncellemeSonucu::Tamam);
  EXPECT_TRUE(*SigortaTuruOnayi(o, Hepsi, b)) << "nothing is left to change";
}

TEST_F(Yukseltme, ChainStopsAtTheFirstFailure) {
  EXPECT_EQ(Yurut({}), GuncellemeSonucu::IsaretYok);
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: İşaretleme Yapılmamış.."});
  Sql("delete from firma; insert into sicil (kod, tur) values ('1', 5)");
  EXPECT_EQ(Yurut(Hepsi), GuncellemeSonucu::Basarisiz);
  EXPECT_EQ(b.Al(), (Iletiler{"Uyarı: 2003.2' den 2003.3 ' ye Geçiş\nyapılamadı: firma kaydı yok, versiyon yazılamadı",
                              YedekIletisi()}));
  EXPECT_EQ(Satir("select tur, agi from sicil"), "5 -") << "later steps have not run";
  // A step that fails half way leaves neither its fields nor its filling nor its stamp.
  Sql("insert into firma (versiyon) values (2003.1); insert into brd (kod, katki) values ('1', 7)");
  Sql("alter table brd drop column sakindir");
  test::Engelle(o.depo.db.IcMotor(), "update of versiyon", "firma");
  EXPECT_EQ(Adim(1), GuncellemeSonucu::Basarisiz);
  EXPECT_EQ(Satir("select katki from brd"), "7");
  EXPECT_FALSE(o.depo.db.AlanVarMi("brd", "sakindir"));
}

TEST_F(Yukseltme, StoreThatCannotBeOpenedAgain) {
  Sql("drop table kimlik");
  EXPECT_EQ(Adim(3), GuncellemeSonucu::Basarisiz);
  EXPECT_THAT(b.Al(), testing::ElementsAre(testing::StartsWith("Uyarı: Sicil SQL Tablosu Açılamadı\n")));
  EXPECT_EQ(Adim(0), GuncellemeSonucu::ProgramBitsin);
  EXPECT_THAT(b.Al(), testing::ElementsAre(testing::StartsWith("Uyarı: Database Tekrar Açılamadı\nSicil SQL")));
  MotorDosyasiniSil(o.FirmaDizini + DepoDosyasi);
  EXPECT_EQ(Adim(1), GuncellemeSonucu::ProgramBitsin);
  EXPECT_THAT(b.Al(), testing::ElementsAre(testing::StartsWith("Uyarı: Dosyalar Güvenli Kapatılıp Açılamadı..\n")));
  EXPECT_EQ(Yurut(Hepsi), GuncellemeSonucu::Basarisiz) << "no step without a copy";
  EXPECT_THAT(b.Al(), testing::ElementsAre(testing::HasSubstr("yedek alınamadı, hiçbir geçiş yapılmadı")));
}

}  // namespace
}  // namespace belvani
