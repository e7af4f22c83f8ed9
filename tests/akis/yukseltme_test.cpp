// A company of the oldest version: login, upgrade, and a day's work in it, by keys.
#include "app/anaortam.h"
#include "core/session/eskidepo.h"
#include "core/session/sirketyedegi.h"
#include "core/store/satirlar.h"
#include "personnel/kart.h"
#include "screens/core/Dbupdate.h"
#include "screens/personnel/perkart.h"

namespace belvani::test {
namespace {

TEST(Yukseltme, AnOldCompanyIsWorkedInAfterItsUpgrade) {
  AnaOrtam o;
  Sicil eski;
  eski.kod = "001";
  eski.adi = "Işıl";
  eski.soyadi = "Çağlar";
  eski.ucret = Tutar(1250);
  eski.girtar = Tarih(2007, 3, 1);
  ASSERT_TRUE(KartKaydet(o.oturum, {.simdi = eski}));
  DepoyuYaslandir(o.oturum);
  o.oturum.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);

  ASSERT_TRUE(SirketAc(o.oturum, "TEST"));
  ASSERT_TRUE(OturumAc(o.oturum, "TEST", "ayse", "gizli"));
  ASSERT_TRUE(o.parametreler.firma.Yukle());
  o.Yeniden();
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});
  EXPECT_FALSE(VersiyonKontrol(o.oturum));
  EkranOrtami::ModaldaYap([&] {
    for (int adim = 0; adim < 7; ++adim) o.Yaz(" \n");
    EXPECT_EQ(o.Odak(), "tamam");
    o.Yaz("\n");
  });
  ASSERT_EQ(VeritabaniGuncelleGoster(o.baglam, o.parametreler), GuncellemeSonucu::Tamam);
  EXPECT_EQ(o.bildirim.Al(),
            Iletiler{"Bilgi: Yükseltmeden önceki yedek: " + SirketYedekleri(o.oturum.DataPath, "TEST").at(0).yol});
  o.OneAl();

  o.pencere->Ac(AnaOrtam::Kayit("perkart"));
  o.Yaz("001\n");
  EXPECT_EQ(AlanMetni(*o.Onde<perkart>(), "soyadi"), "Çağlar");
  EXPECT_TRUE(std::get<bool>(AlanBul(*o.Onde<perkart>(), "agi").Oku())) << "the upgrade has ticked it";
  AlanBul(*o.Onde<perkart>(), "tahsisno").Odak()->setFocus();
  o.Yaz("T-7");
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{});
  EXPECT_EQ(KartBul(o.oturum, "001")->tahsisno, "T-7");

  o.pencere->Ac(AnaOrtam::Kayit("brdhazir"));
  o.Yaz("001\n");
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Bordro Hazırlık Sona Erdi"});
  const auto kayitlar = KayitlariOku<Brd>(o.oturum.depo.db.IcMotor(), "");
  ASSERT_EQ(kayitlar.size(), 1u);
  EXPECT_GT(kayitlar[0].ogv, Tutar()) << "a column that the upgrade has brought";
}

}  // namespace
}  // namespace belvani::test
