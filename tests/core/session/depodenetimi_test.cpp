// What the check of a store finds in one that was damaged in each way.
#include "core/store/depodenetimi.h"

#include "core/session/ornekoturum.h"
#include "core/store/satirlar.h"
#include "core/tables/brd.h"

namespace belvani {
namespace {

struct DepoDenetimi : test::OrnekOturum {
  DepoDenetimi() { Kur(); }
  // Each with the person in front, one a line; remarks are marked.
  std::string Bulunan() {
    std::string metin;
    for (const Kusur& k : DepoKusurlari(o.depo.db.IcMotor()))
      metin += (k.derece == Derece::Uyari ? "? " : "") + k.kod + "|" + k.metin + "\n";
    return metin;
  }
  void Yaz(std::initializer_list<Brd> kayitlar) {
    for (const Brd& kayit : kayitlar) KayitYazici<Brd>(o.depo.db.IcMotor()).Ekle(kayit);
  }
};

TEST_F(DepoDenetimi, NewAndFullStoresAreSound) {
  Sql("insert into sicil (kod, adi, ucret, girtar, agi, tur) values ('1', '', 10000, '2009-02-28', 1, 255)");
  Yaz({{.yil = 2009, .ay = 1, .kod = "1", .fm1 = Tek(2)}, {.yil = 2009, .ay = 2, .kod = "1", .fm1 = Tek(1.5)}});
  EXPECT_EQ(Bulunan(), "");
}

TEST_F(DepoDenetimi, EveryDamageIsNamedOnce) {
  YALNIZ_DIZINDE("a server's columns take values of their type alone");
  Sql("insert into sicil (kod, ucret, girtar, agi) values ('1', 'çok', '2009-02-29', 2), ('2', 1.5, 'dün', 0),"
      "('3', 5, '2009-1-1', null)");
  Sql("insert into kimlik (kod, cins) values ('1', 256)");
  Sql("drop index brd_ay");
  Sql("insert into brd (yil, ay, kod) values (2009, 1, 'A'), (2009, 1, 'a'), (2009, 2, 'A'), (40000, 3, 'A')");
  Sql("insert into firma (unvan) values ('ikinci')");
  Sql("drop index kimlik_kod; insert into kimlik (kod) values ('1')");
  Sql("alter table esco drop column adr; drop table cari");
  EXPECT_EQ(Bulunan(), R"(|firma: aynı kayıt 2 kez var
1|sicil.ucret: 2 kayıtta alanın türünden olmayan bir değer var
1|sicil.girtar: 3 kayıtta alanın türünden olmayan bir değer var
1|sicil.agi: 1 kayıtta alanın türünden olmayan bir değer var
1|kimlik.cins: 1 kayıtta alanın türünden olmayan bir değer var
|kimlik: kimlik_kod indeksi yok
1|kimlik: aynı kayıt 2 kez var (kod)
A|brd.yil: 1 kayıtta alanın türünden olmayan bir değer var
|brd: brd_ay indeksi yok
A|brd: aynı kayıt 2 kez var (yil, ay, kod, no)
? A|brd: 4 kayıt özetsiz (önceki sürümden), bozulsa anlaşılmaz
|esco.adr: alan yok
|cari: tablo yok
)");
}

}  // namespace
}  // namespace belvani
