// The list of companies, the deletion of one, the installation's paths and the upgrade of a store.
#include <gmock/gmock.h>

#include "altin/kayit.h"
#include "altin/kitapmetni.h"
#include "altin/sayfametni.h"
#include "core/ayarlar.h"
#include "core/ortam.h"
#include "core/session/eskidepo.h"
#include "core/session/muhasebecibilgi.h"
#include "core/session/sirket.h"
#include "core/session/sirketyedegi.h"
#include "core/store/satirlar.h"
#include "core/tables/brd.h"
#include "core/tables/sicil.h"
#include "ekran/sirayla.h"
#include "screens/core/Dbupdate.h"
#include "screens/core/firlist.h"
#include "screens/core/firsil.h"
#include "screens/core/muhbil.h"
#include "screens/core/yapifrm.h"
#include "ui/onizleme.h"

namespace belvani::test {
namespace {

TEST(Firlist, ReadsOnAndChoosesNothing) {
  EkranOrtami ortam;
  std::filesystem::create_directories(ortam.oturum.DataPath + "BOZUK");
  IcerdeYaz(ortam.oturum, "Ayşe");
  auto& form = ortam.Ac<firlist>();
  const auto& liste = *form.findChild<dclist*>();
  ASSERT_EQ(liste.ListCount(), 2);
  EXPECT_TRUE(liste.Text(0, 3).isEmpty() && Utf8(liste.Text(1, 3)).starts_with("Ayşe (")) << Utf8(liste.Text(1, 3));
  EXPECT_EQ(Utf8(liste.Text(0, 0) + "|" + liste.Text(0, 1) + "|" + liste.Text(0, 2)), "BOZUK|Database'e Ulaşılamadı|");
  EXPECT_EQ(Utf8(liste.Text(1, 2)), "07-2009");
  ortam.Yaz("\n");  // to the rows
  ortam.Bas(Qt::Key_Down);
  ortam.Yaz("\n");
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(ortam.oturum.SeciliKod, "");
  EXPECT_TRUE(ortam.oturum.depo.sicil.AcikMi()) << "the session's store is left alone";
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

TEST(Firlist, WalksItsRowsFromTheSearchBoxToBothEnds) {
  EkranOrtami ortam;
  std::filesystem::create_directories(ortam.oturum.DataPath + "BOZUK");
  ortam.oturum.PencereTip = "pen";
  auto& form = ortam.Ac<firlist>();
  const auto& liste = *form.findChild<dclist*>();
  for (const auto tus : {Qt::Key_Up, Qt::Key_Up, Qt::Key_PageUp}) ortam.Bas(tus);
  EXPECT_EQ(liste.CurSat(), 0);
  for (const auto tus : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Down, Qt::Key_PageDown}) ortam.Bas(tus);
  EXPECT_EQ(liste.CurSat(), 1);
  ortam.Yaz("yok");
  for (const auto tus : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown}) ortam.Bas(tus);
  EXPECT_EQ(ortam.Odak(), "aranan");
}

// The month of the chosen companies, and one window that says what became of each.
TEST(Firlist, PreparesTheMonthOfCompanies) {
  EkranOrtami ortam;
  std::filesystem::create_directories(ortam.oturum.DataPath + "BOZUK");
  Sicil kisi;
  kisi.kod = "001";
  kisi.ucret = Tutar(1000.0);
  kisi.girtar = Tarih(2009, 1, 1);
  KayitYazici<Sicil>(ortam.oturum.depo.db.IcMotor()).Ekle(kisi);
  auto& form = ortam.Ac<firlist>();
  const auto sonuc = [&] {
    const Form& pencere = *ortam.gosterici.formlar.back();
    EXPECT_EQ(Utf8(pencere.Kelime()), "kusurlar");
    const auto& liste = *pencere.findChild<dclist*>();
    std::vector<std::string> satirlar;
    for (int i = 0; i < liste.ListCount(); ++i)
      satirlar.push_back(Utf8(liste.TextByName(i, "derece") + "|" + liste.TextByName(i, "sirket") + "|" +
                              liste.TextByName(i, "metin").section(u'\n', 0, 0)));
    return satirlar;
  };
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_THAT(ortam.bildirim.Al().at(0), testing::HasSubstr("Soru: 2 şirketin bordrosu"));
  EXPECT_EQ(ortam.gosterici.formlar.size(), 1u);

  ortam.bildirim.cevap = true;
  ortam.Bas(Qt::Key_F6, Qt::ShiftModifier);
  EXPECT_THAT(sonuc(), testing::ElementsAre(testing::StartsWith("Hata|BOZUK|Yapılamadı: Database Açılamadı"),
                                            testing::StartsWith("Bilgi|TEST|Hazırlandı: 1 kişi kaydedildi")));
  EXPECT_EQ(KayitlariOku<Brd>(ortam.oturum.depo.db.IcMotor()).size(), 1u);
  ortam.Bas(Qt::Key_Escape);

  QApplication::setActiveWindow(&form);
  form.findChild<dclist*>()->setFocus();
  ortam.bildirim.Al();
  ortam.Bas(Qt::Key_Down);
  ortam.Bas(Qt::Key_F6);
  EXPECT_THAT(ortam.bildirim.Al().at(0), testing::HasSubstr("Soru: 1 şirketin bordrosu"));
  EXPECT_THAT(sonuc(), testing::ElementsAre(testing::StartsWith("Bilgi|TEST|")));
  ortam.Bas(Qt::Key_Escape);
  QApplication::setActiveWindow(&form);
  form.findChild<dclist*>()->setFocus();
  ortam.Bas(Qt::Key_A, Qt::ControlModifier);
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(sonuc().size(), 2u);
}

// On paper and in a spreadsheet.
TEST(Firlist, IsAsApproved) {
  EkranOrtami ortam;
  auto& firma = ortam.oturum.depo.firma;
  firma.KayitDuzelt();
  firma.AlanYaz("unvan", std::string("Çınar Şişe ve Cam Sanayi"));
  ASSERT_TRUE(firma.KayitYaz());
  std::filesystem::create_directories(ortam.oturum.DataPath + "BOZUK");
  ortam.Ac<firlist>();
  ortam.Bas(Qt::Key_F9);
  ASSERT_EQ(ortam.acilanlar.size(), 1u);
  EXPECT_TRUE(KayittakiGibi("ekran/firmalar.xlsx.txt", KitapMetni(DosyaOku(ortam.acilanlar[0]).value_or(""))));
  SiraylaYap({[] { EkranOrtami::Bas(Qt::Key_F6); },
              [] {
                const auto& ekran = *QApplication::activeModalWidget()->findChild<onizleme*>();
                EXPECT_TRUE(KayittakiGibi("ekran/firmalar.cizim.txt", BugunsuzMetin(CizimMetni(ekran.Sayfalar()))));
                EkranOrtami::Bas(Qt::Key_Escape);
              },
              [] { EkranOrtami::Bas(Qt::Key_Escape); }});
  ortam.Bas(Qt::Key_F8);
}

TEST(Firsil, DeletesWhatWasChosenAndNothingElse) {
  EkranOrtami ortam;
  const std::string veri = ortam.oturum.DataPath;
  {
    Oturum diger;
    diger.DataPath = veri;
    for (const char* ad : {"ESKİ", "KALAN"}) ASSERT_TRUE(SirketOlustur(diger, ad, "ali", "x"));
  }
  auto& form = ortam.Ac<firsil>();
  const auto& sil = *form.findChild<xButton*>("Command2");
  const auto& secilen = *form.findChild<xtext*>("Text1");
  EXPECT_EQ(form.findChild<dclist*>()->ListCount(), 2) << "the open company is not offered";
  ortam.Bas(Qt::Key_F7);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "nothing is chosen yet";
  EXPECT_FALSE(sil.isEnabled());
  ortam.Yaz("\n");
  EXPECT_EQ(Utf8(secilen.text()), veri + "ESKİ");
  EXPECT_EQ(ortam.Odak(), "Command2");

  ortam.bildirim.cevap = false;
  ortam.Yaz("\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Firmayı Silmeye Eminmisiniz ?\nESKİ"});
  EXPECT_EQ(Sirketler(veri).size(), 3u);
  EXPECT_TRUE(secilen.Bos());
  EXPECT_EQ(ortam.Odak(), "dclist1");

  ortam.bildirim.cevap = true;
  ortam.Yaz("\n");
  ortam.Bas(Qt::Key_F7);
  EXPECT_EQ(Sirketler(veri), (std::vector<std::string>{"KALAN", "TEST"}));
  EXPECT_FALSE(sil.isEnabled());
}

TEST(MuhbilYapifrm, AreKept) {
  EkranOrtami ortam;
  const Sonunda makine = OrtamKoy("BELVANI_MAKINE_AYAR", (ortam.dizin.Yol() + "makine.ini").c_str());
  ortam.Ac<muhbil>();
  ortam.Yaz("Işıl Çağlar\n10000000146\nM-7\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(MuhasebeciOku(ortam.oturum), (Muhasebeci{"Işıl Çağlar", "10000000146", "M-7"}));

  auto& yapi = ortam.Ac<yapifrm>();
  const std::string eski = ortam.oturum.DataPath;
  ortam.dialoglar.dizin = "/srv/belvani";
  ortam.Yaz("\n");
  ortam.Bas(Qt::Key_F2);
  EXPECT_EQ(AlanMetni(yapi, "DataPath"), "/srv/belvani");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(),
            Iletiler{"Bilgi: Yeni Ayarlar Kaydedildi\nGeçerli Olabilmesi İçin Programdan Çıkıp Girmelisiniz.."});
  EXPECT_EQ(MakineAyari("DataPath"), "/srv/belvani/");
  EXPECT_EQ(ortam.oturum.DataPath, eski) << "until the next start";
  const auto adresVer = [&](const char* adres) {
    AlanBul(yapi, "DataPath").YaziKutusu()->DegerKoy(std::string(adres));
    Q_EMIT AlanBul(yapi, "DataPath").YaziKutusu()->Change();
    ortam.Bas(Qt::Key_F5);
    return ortam.bildirim.Al().at(0);
  };
  EXPECT_TRUE(adresVer("postgresql://ayse:gizli@s/b").starts_with("Uyarı: Adreste şifre bulunamaz"));
  EXPECT_EQ(EkranOrtami::Odak(), "DataPath");
  EXPECT_EQ(MakineAyari("DataPath"), "/srv/belvani/");
  EXPECT_TRUE(adresVer("postgresql://s/b/").starts_with("Bilgi: Yeni Ayarlar Kaydedildi"));
  EXPECT_EQ(MakineAyari("DataPath"), "postgresql://s/b");
}

TEST(DbupdateEkrani, BringsAnOldStoreUp) {
  EkranOrtami ortam;
  DepoyuYaslandir(ortam.oturum);
  ASSERT_TRUE(SirketAc(ortam.oturum, "TEST"));
  EkranOrtami::ModaldaYap([&] {
    auto& form = *QApplication::activeModalWidget()->findChild<Dbupdate*>();
    EXPECT_EQ(ortam.Odak(), "Check1(0)");
    form.findChild<xButton*>("tamam")->click();
    EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: İşaretleme Yapılmamış.."});
    for (int adim = 0; adim < 7; ++adim) {
      ortam.Bas(Qt::Key_Space);
      ortam.Yaz("\n");
    }
    EXPECT_EQ(ortam.Odak(), "tamam");
    ortam.Yaz("\n");
  });
  EXPECT_EQ(VeritabaniGuncelleGoster(ortam.ekran, ortam.parametreler), GuncellemeSonucu::Tamam);
  EXPECT_EQ(ortam.bildirim.Al(),
            Iletiler{"Bilgi: Yükseltmeden önceki yedek: " + SirketYedekleri(ortam.oturum.DataPath, "TEST").at(0).yol});
  EXPECT_TRUE(VersiyonKontrol(ortam.oturum));
  EXPECT_TRUE(ortam.oturum.depo.db.AlanVarMi("brd", "brdkanun"));
}

TEST(DbupdateEkrani, OpensWhatTheStoreHasNotReachedAndAllToTheTechnician) {
  EkranOrtami ortam;
  ortam.oturum.depo.db.IcMotor().Calistir("update firma set versiyon = 2003.6");
  auto& form = ortam.Ac<Dbupdate>(ortam.parametreler);
  const auto acik = [&] {
    std::string metin;
    for (int i = 0; i < 7; ++i)
      metin += form.findChild<QCheckBox*>(QStringLiteral("Check1(%1)").arg(i))->isEnabled() ? '1' : '0';
    return metin;
  };
  const auto hepsi = [&] { ortam.Bas(Qt::Key_F9, Qt::ControlModifier | Qt::AltModifier); };
  EXPECT_EQ(acik(), "0000001");
  hepsi();
  EXPECT_EQ(acik(), "0000001") << "only on a version box";
  form.findChild<xtext*>("Text1(1)")->setFocus();
  hepsi();
  EXPECT_EQ(acik(), "1111111");
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.Sonuc(), GuncellemeSonucu::IsaretYok);
  EXPECT_EQ(VersiyonMetni(ortam.oturum.depo.Versiyon()), "2003.6");
}

}  // namespace
}  // namespace belvani::test
