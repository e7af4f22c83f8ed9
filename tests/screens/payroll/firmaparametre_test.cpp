// Screens of the company's parameters, typed key by key.
#include "core/dosya.h"
#include "ekran/ortam.h"
#include "payroll/parametre/ekrankurallari.h"
#include "screens/payroll/fazmes.h"
#include "screens/payroll/indfrm.h"
#include "screens/payroll/kykm.h"
#include "screens/payroll/puantaj.h"
#include "screens/payroll/sabpu.h"
#include "screens/payroll/sendtan.h"
#include "screens/payroll/yrdisim.h"

namespace belvani::test {
namespace {

TEST(Kykm, FlagsOfANewGroupAndTheProtectedDefault) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<kykm>(ortam.parametreler);
  EXPECT_EQ(ortam.Odak(), "gruplar");
  EXPECT_EQ(AlanMetni(form, "grup"), "Personel");
  AlanBul(form, "grup").Odak()->setFocus();
  ortam.Yaz("İşçi\n");
  EXPECT_EQ(ortam.Odak(), "kazanclar");
  ortam.Bas(Qt::Key_Space);  // "Normal Gün" is no longer open
  ortam.Bas(Qt::Key_Down);
  ortam.Bas(Qt::Key_Right);
  ortam.Bas(Qt::Key_Space);  // "Hafta Tatili" leaves the SSK base
  ortam.Bas(Qt::Key_Return);
  EXPECT_EQ(ortam.Odak(), "yardimlar");
  for (int i = 0; i < 4; ++i) ortam.Bas(Qt::Key_Right);
  ortam.Bas(Qt::Key_Space);
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  const KazancBayraklari isci = KazancGrupYukle(ortam.parametreler.firma.Parametreler(), "işçi");
  EXPECT_EQ(isci.k[0], 14);
  EXPECT_EQ(isci.k[1], 13);
  EXPECT_EQ(isci.k[2], 14);
  EXPECT_EQ(isci.y[0], 16);
  EXPECT_EQ(KazancGrupYukle(ortam.parametreler.firma.Parametreler(), "Personel").k[0], 15);

  ortam.Bas(Qt::Key_F7);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: İşçi Grubu\nKazanç Tanımlamalarını Silmek İstiyormusunuz ?"});
  EXPECT_EQ(KazancGruplari(ortam.parametreler.firma.Parametreler()), std::vector<std::string>{"Personel"});
  EXPECT_EQ(ortam.Odak(), "gruplar");
  ortam.Bas(Qt::Key_F7);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Varsayılan Hesap Silinemez\nYeniden Düzenlenir"});
}

// A newcomer's first payroll with overtime is right, and ticks are not lost to another group.
TEST(Kykm, ProposesFlagsAndAsksBeforeTicksAreLost) {
  EkranOrtami ortam;
  ASSERT_TRUE(KazancGrubuKaydet({ortam.oturum, ortam.parametreler, ortam.bildirim}, "Memur", {}));
  auto& form = ortam.Ac<kykm>(ortam.parametreler);
  EXPECT_EQ(AlanMetni(form, "grup"), "Personel");
  ortam.Bas(Qt::Key_F9);
  ortam.bildirim.yazilan = YazilanKarari::Kal;
  auto* gruplar = form.findChild<dclist*>("gruplar");
  gruplar->ChngSat(0);
  QCoreApplication::processEvents();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Yazılan: Ekrandaki Değişiklikler Kaydedilmedi\nKazanç, Yardım Tanımları, "
                                          "Personel\nKaydedilsin mi ?"});
  EXPECT_EQ(AlanMetni(form, "grup"), "Personel");
  EXPECT_EQ(gruplar->CurSat(), 1);
  ortam.Bas(Qt::Key_F5);
  const KazancBayraklari b = KazancGrupYukle(ortam.parametreler.firma.Parametreler(), "Personel");
  EXPECT_EQ(b, OnerilenBayraklar());
  EXPECT_EQ(b.k[6], 15) << "overtime is open, insured and taxed";
  EXPECT_EQ(b.y[10], 9) << "severance pays stamp duty alone";
  gruplar->ChngSat(0);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "what is saved is not asked about";
  EXPECT_EQ(AlanMetni(form, "grup"), "Memur");
  EXPECT_EQ(KazancGrupYukle(ortam.parametreler.firma.Parametreler(), "Memur"), KazancBayraklari{});
}

TEST(Sabpu, WritesTheWholeRecordAndCloses) {
  EkranOrtami ortam;
  std::filesystem::remove(ortam.oturum.FirmaDizini + "sablon.dat");
  auto& form = ortam.Ac<sabpu>(ortam.parametreler);
  EXPECT_EQ(AlanMetni(form, "ng"), "26");
  ortam.Yaz("25\n5\n");
  AlanBul(form, "yrd02").Odak()->setFocus();
  ortam.Yaz("110.5\nF");  // "Fiili Gün"
  ortam.Bas(Qt::Key_F5);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(std::filesystem::file_size(ortam.oturum.FirmaDizini + "sablon.dat"), 135u);
  const Sablon sablon = SablonOku(ortam.oturum.FirmaDizini).deger;
  EXPECT_EQ(sablon, ortam.parametreler.firma.Parametreler().sablon);
  EXPECT_EQ(sablon.SablonGun[0], Tek(25));
  EXPECT_EQ(sablon.SablonGun[1], Tek(5));
  EXPECT_EQ(sablon.SablonYardim[1], Tutar(110.5));
  EXPECT_EQ(sablon.SablonYardimTip[1], 2);
}

TEST(Puantaj, StandsInTheWorkingMonthWithItsColumns) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<puantaj>();
  EXPECT_EQ(TamDegeri(AlanBul(form, "ay").Oku()), 7);
  EXPECT_EQ(TamDegeri(AlanBul(form, "yil").Oku()), 2009);
  std::string kolonlar;
  for (const auto& kolon : form.findChild<dclist*>()->Model().Kolonlar()) kolonlar += Utf8(kolon.ad) + " ";
  EXPECT_EQ(kolonlar, "kod adsoy ucr ng ht rt ui ig is fm1 fm2 fm3 ");
  EXPECT_EQ(form.findChild<dclist*>()->ListCount(), 0);
}

TEST(Sendtan, AddsChangesAndDeletesAUnion) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<sendtan>(ortam.parametreler);
  ortam.Yaz("10\nTeksif\n\n1.25\n");
  AlanBul(form, "yer").Odak()->setFocus();
  ortam.Yaz("B");  // "Brüt Kazanç"
  ortam.Bas(Qt::Key_F5);
  ASSERT_NE(SendikaBul(ortam.parametreler.firma.Parametreler(), "10"), nullptr);
  EXPECT_EQ(SendikaBul(ortam.parametreler.firma.Parametreler(), "10")->yer, 3);
  EXPECT_EQ(ortam.Odak(), "kod");
  EXPECT_EQ(AlanMetni(form, "adi"), "");

  ortam.Yaz("10");
  ortam.Bas(Qt::Key_F5);  // without having left the code
  EXPECT_EQ(SendikaBul(ortam.parametreler.firma.Parametreler(), "10")->adi, "Teksif");
  ortam.Bas(Qt::Key_F2);
  ortam.Bas(Qt::Key_Return);
  EXPECT_EQ(ortam.Odak(), "adi");
  ortam.Yaz("Öz İplik\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(SendikaBul(ortam.parametreler.firma.Parametreler(), "10")->adi, "Öz İplik");
  EXPECT_EQ(SendikaBul(ortam.parametreler.firma.Parametreler(), "10")->oran, Tek(1.25));

  ortam.Yaz("10\n");
  ortam.Bas(Qt::Key_F7);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Kaydı Silmek İstiyormusunuz ?\n10"});
  EXPECT_TRUE(ortam.parametreler.firma.Parametreler().sendikalar.empty());
  EXPECT_EQ(ortam.Odak(), "kod");
}

TEST(CompanyLists, RowsReachTheFilesAndTables) {
  EkranOrtami ortam;
  ortam.Ac<fazmes>(ortam.parametreler);
  ortam.Yaz("1.75\n\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.parametreler.firma.Parametreler().mesailer[0].oran, Tek(1.75));
  EXPECT_EQ(std::filesystem::file_size(ortam.oturum.FirmaDizini + "fmesai.dat"), 24u);

  ortam.Ac<indfrm>(ortam.parametreler);
  ortam.Yaz("Hayat Sig.\n50\n\nÖ");
  ortam.Bas(Qt::Key_Down);  // "Özel Sigorta"
  ortam.Yaz("\n");
  ortam.Bas(Qt::Key_F5);
  ASSERT_TRUE(ortam.parametreler.firma.Parametreler().indirimler[0]);
  EXPECT_EQ(ortam.parametreler.firma.Parametreler().indirimler[0]->adi, "Hayat Sig.");
  EXPECT_EQ(ortam.parametreler.firma.Parametreler().indirimler[0]->sabit, Tutar(50));
  EXPECT_EQ(ortam.parametreler.firma.Parametreler().indirimler[0]->indtip, 2);

  ortam.Ac<yrdisim>(ortam.parametreler);
  ortam.Bas(Qt::Key_Down);
  ortam.Yaz("Yemek\nF\n6\n\n");
  ortam.Bas(Qt::Key_F5);
  const Muaf& yemek = ortam.parametreler.firma.Parametreler().yardimlar[1];
  EXPECT_EQ(yemek.adi, "Yemek");
  EXPECT_EQ(yemek.indtip, 1);
  EXPECT_EQ(yemek.oran, Tek(6));
  EXPECT_EQ(ortam.parametreler.firma.Parametreler().yardimlar[0].adi, "Prim/İkramiye");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

}  // namespace
}  // namespace belvani::test
