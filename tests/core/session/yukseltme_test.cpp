// The upgrade: which steps are open, and a store of the oldest program brought through all of them.
#include "core/session/yukseltme.h"

#include "core/session/eskidepo.h"
#include "core/session/ornekoturum.h"
#include "core/session/sirket.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "core/tablo.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Tablo;

const AdimIsaretleri Hepsi{true, true, true, true, true, true, true};
const Tutar Taban(444.15);

struct Yukseltme : test::OrnekOturum {
  Yukseltme() { Kur(); }

  void Yaslandir() {
    test::DepoyuYaslandir(o);
    ASSERT_TRUE(SirketAc(o, "deneme", b));
  }
  GuncellemeSonucu Adim(std::size_t no) { return VeritabaniGuncelle(o, no, Taban, b); }
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
  for (const auto& [versiyon, ilk] : Tablo<double, std::size_t>{
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
  Sql("insert into sicil (kod, sskdurum, tur, tahsisno, kanun) values ('1', 2, 18, '7', '05084'), ('2', 2, 19, '', "
      "'')");
  Sql("insert into brd (kod, ogv, katki, sskmatrahisveren, sendika) values ('1', 5, 6, 9000000, 8)");
  const char* donemIndeksleri =
      "select count(*) from sqlite_master where type = 'index' and name like 'brd!_%' escape '!'";
  const std::string ilk = Satir(donemIndeksleri);
  Sql("drop index brd_ay");  // an earlier version knew nothing of it
  ASSERT_EQ(AdimlariYurut(o, {true, true, true, true, true, true, false}, Taban, b), GuncellemeSonucu::Tamam);
  EXPECT_EQ(Satir(donemIndeksleri), ilk);
  EXPECT_EQ(Satir("select epos || kanun, tersfirma, versiyon from firma"), "00000 0 2003.6");
  EXPECT_EQ(Satir("select tur, tahsisno || kanun from sicil order by kod"), "18 705084 15 ");
  EXPECT_EQ(Satir("select ogv, katki, sendika from brd"), "5 0 8");
  EXPECT_EQ(b.iletiler, Iletiler{});
}

TEST_F(Yukseltme, ChainStopsAtTheFirstFailure) {
  EXPECT_EQ(AdimlariYurut(o, {}, Taban, b), GuncellemeSonucu::IsaretYok);
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: İşaretleme Yapılmamış.."});
  Sql("delete from firma; insert into sicil (kod, tur) values ('1', 5)");
  EXPECT_EQ(AdimlariYurut(o, Hepsi, Taban, b), GuncellemeSonucu::Basarisiz);
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: 2003.2' den 2003.3 ' ye Geçiş\nyapılamadı: firma kaydı yok, versiyon yazılamadı"});
  EXPECT_EQ(Satir("select tur, agi from sicil"), "5 -") << "later steps have not run";
  // A step that fails half way leaves neither its filling nor its stamp.
  Sql("insert into firma (versiyon) values (2003.1); insert into brd (kod, katki) values ('1', 7)");
  Sql("create trigger t before update of versiyon on firma begin select raise(abort, 'x'); end");
  EXPECT_EQ(Adim(1), GuncellemeSonucu::Basarisiz);
  EXPECT_EQ(Satir("select katki from brd"), "7");
}

TEST_F(Yukseltme, StoreThatCannotBeOpenedAgain) {
  Sql("drop table kimlik");
  EXPECT_EQ(Adim(3), GuncellemeSonucu::Basarisiz);
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: Sicil SQL Tablosu Açılamadı"});
  EXPECT_EQ(Adim(0), GuncellemeSonucu::ProgramBitsin);
  EXPECT_EQ(b.Al().back(), "Uyarı: Database Tekrar Açılamadı");
  std::filesystem::remove(o.FirmaDizini + DepoDosyasi);
  EXPECT_EQ(AdimlariYurut(o, Hepsi, Taban, b), GuncellemeSonucu::ProgramBitsin);
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: Dosyalar Güvenli Kapatılıp Açılamadı.."});
}

}  // namespace
}  // namespace belvani
