#include "screens/personnel/perkart.h"

#include <QComboBox>
#include <QImage>

#include "core/session/sirket.h"
#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"
#include "screens/personnel/kaydetve.h"
#include "screens/personnel/resimkutusu.h"

namespace belvani::test {
namespace {

Sicil Kisi(const std::string& kod, const std::string& adi = "Ali", const std::string& soyadi = "Veli") {
  Sicil s;
  s.kod = kod;
  s.adi = adi;
  s.soyadi = soyadi;
  s.girtar = Tarih(2005, 1, 1);
  s.ucret = Tutar(1000);
  return s;
}

struct Perkart : testing::Test {
  EkranOrtami ortam;
  perkart* form = nullptr;

  void Ekle(const Sicil& kisi) { ASSERT_TRUE(KartKaydet(ortam.oturum, {.simdi = kisi})); }
  void Ac() { form = &ortam.Ac<perkart>(ortam.parametreler); }
  std::string Metin(std::string_view ad) { return AlanMetni(*form, ad); }
  int Sira(std::string_view ad) { return int(TamDegeri(AlanBul(*form, ad).Oku())); }
  std::size_t Sayi(const char* tablo) {
    auto komut = ortam.oturum.depo.db.IcMotor().Hazirla(std::string("select count(*) from ") + tablo);
    komut->Adim();
    return std::size_t(komut->Tam(0));
  }
  std::string ResimDosyasi() {
    const std::string yol = ortam.dizin.Yol() + "resim.bmp";
    QImage resim(40, 20, QImage::Format_RGB32);
    resim.fill(Qt::red);
    EXPECT_TRUE(resim.save(Yazi(yol)));
    return yol;
  }
};

TEST_F(Perkart, PeopleAreEnteredOneAfterTheOtherByKeysAlone) {
  Ac();
  EXPECT_EQ(ortam.Odak(), "kod");
  ortam.Yaz("001\nIşıl\nÇağlar\n\n1234\n02\nNet\n2500.5\n\n \n\n05032005\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(ortam.Odak(), "kod");
  EXPECT_EQ(Metin("adi"), "");
  EXPECT_EQ(Sira("ucrettipi"), 0);
  ortam.Yaz("002\nÖmer\n");
  AlanBul(*form, "girtar").Odak()->setFocus();
  ortam.Yaz("01022006");
  ortam.Bas(Qt::Key_F5);

  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(Sayi("sicil"), 2u);
  EXPECT_EQ(Sayi("kimlik"), 2u);
  const auto kart = KartBul(ortam.oturum, "001");
  ASSERT_TRUE(kart);
  EXPECT_EQ(kart->adi, "Işıl");
  EXPECT_EQ(kart->sskdurum, 1);
  EXPECT_EQ(kart->ucrettipi, 1);
  EXPECT_EQ(kart->ucret, Tutar(2500.5));
  EXPECT_TRUE(kart->agi);
  EXPECT_EQ(kart->girtar, Tarih(2005, 3, 5));
  EXPECT_EQ(KimlikBul(ortam.oturum, "002")->uyruk, "T.C.");

  ortam.Yaz("001\nIşılay");  // found: the second save edits
  EXPECT_EQ(Metin("soyadi"), "Çağlar");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Sayi("sicil"), 2u);
  EXPECT_EQ(KartBul(ortam.oturum, "001")->adi, "Işılay");
}

TEST_F(Perkart, ARefusedSaveKeepsWhatWasTyped) {
  Ac();
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Personel Sicil Kodu Hatalı"});
  ortam.Yaz("001\nIşıl\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Giriş Tarihi Hatalı"});
  EXPECT_EQ(ortam.Odak(), "girtar");
  ortam.Yaz("31022005\n");  // no such day
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Giriş Tarihi Hatalı"});
  EXPECT_EQ(Metin("adi"), "Işıl");
  EXPECT_EQ(Sayi("sicil"), 0u);
}

TEST_F(Perkart, TheMinimumWageIsShownClosedAndStored) {
  Sicil asgarili = Kisi("001");
  asgarili.ucrettipi = AsgariUcretSirasi;
  asgarili.ucret = Tutar(500);
  Ekle(asgarili);
  Ac();
  ortam.Yaz("001\n");
  EXPECT_EQ(Metin("ucret"), "693.00");
  AlanBul(*form, "ucrettipi").Odak()->setFocus();
  ortam.Yaz("B");
  EXPECT_EQ(Metin("ucret"), "500.00");
  EXPECT_FALSE(YaziBul(*form, "ucret").isReadOnly());
  ortam.Yaz("\n700");
  AlanBul(*form, "ucrettipi").Odak()->setFocus();
  ortam.Bas(Qt::Key_End);
  EXPECT_EQ(Metin("ucret"), "693.00");
  EXPECT_TRUE(YaziBul(*form, "ucret").isReadOnly());
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(KartBul(ortam.oturum, "001")->ucret, Tutar(693));
  EXPECT_FALSE(YaziBul(*form, "ucret").isReadOnly()) << "the next person's wage could not be typed";
}

TEST_F(Perkart, MovesStopAtTheEnds) {
  for (const char* kod : {"001", "002", "003"}) Ekle(Kisi(kod));
  Ac();
  const auto git = [&](Qt::Key tus, Qt::KeyboardModifiers degistirici = Qt::NoModifier) {
    ortam.Bas(tus, degistirici);
    return Metin("kod");
  };
  EXPECT_EQ(git(Qt::Key_PageUp), "");
  EXPECT_EQ(git(Qt::Key_PageDown), "001");
  EXPECT_EQ(git(Qt::Key_End, Qt::ControlModifier), "003");
  EXPECT_EQ(git(Qt::Key_PageDown), "003");
  EXPECT_EQ(git(Qt::Key_PageUp), "002");
  EXPECT_EQ(git(Qt::Key_Home, Qt::ControlModifier), "001");
}

TEST_F(Perkart, DeleteLeavesPayRecordsAndLooksAtTheTypedCodeFirst) {
  Ekle(Kisi("001"));
  Ekle(Kisi("002", "Can"));
  ortam.oturum.depo.db.IcMotor().Calistir("insert into brd (yil, ay, no, kod) values (2009, 7, 1, '001')");
  Ac();
  ortam.Yaz("002\n");
  AlanBul(*form, "kod").Odak()->setFocus();
  ortam.Yaz("001");
  ortam.Bas(Qt::Key_F7);  // 002 is still on the screen
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(Metin("adi"), "Ali");
  ortam.Bas(Qt::Key_F7);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Personel Kaydını Silmek İstiyormusunuz ?\n001 Ali Veli"});
  EXPECT_EQ(Sayi("sicil"), 1u);
  EXPECT_EQ(Sayi("kimlik"), 1u);
  EXPECT_EQ(Sayi("brd"), 1u);
  EXPECT_EQ(Metin("kod"), "");
  EXPECT_EQ(ortam.Odak(), "kod");
}

TEST_F(Perkart, APictureIsStoredByTheSaveAlone) {
  Ekle(Kisi("001"));
  ortam.dialoglar.dosya = ResimDosyasi();
  Ac();
  auto& kutu = *dynamic_cast<ResimKutusu*>(form->findChild<QFrame*>("kart"));
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_R, Qt::ControlModifier);
  EXPECT_FALSE(kutu.Bos());
  ortam.Bas(Qt::Key_Escape);
  EXPECT_EQ(ortam.bildirim.Al().size(), 1u) << "asked about";
  EXPECT_EQ(Sayi("foto"), 0u) << "abandoned";

  Ac();
  auto& yeniKutu = *dynamic_cast<ResimKutusu*>(form->findChild<QFrame*>("kart"));
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_R, Qt::ControlModifier);
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Sayi("foto"), 1u);
  EXPECT_TRUE(yeniKutu.Bos());
  ortam.Yaz("001\n");
  EXPECT_FALSE(yeniKutu.Bos());
  ortam.dialoglar.dosya = KaynakYolu("CMakeLists.txt");
  ortam.Bas(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Resim Dosyası Okunamadı\n" + *ortam.dialoglar.dosya});
  EXPECT_FALSE(yeniKutu.Bos());
  ortam.Bas(Qt::Key_R, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Sayi("foto"), 0u);
  EXPECT_TRUE(yeniKutu.Bos());
}

// Another computer, with a handle of its own on the store.
struct PerkartIki : Perkart {
  std::unique_ptr<Motor> obur;

  void SetUp() override {
    Ekle(Kisi("001"));
    obur = MotorAc(ortam.oturum.FirmaDizini + DepoDosyasi);
    Ac();
    ortam.Yaz("001\nIşıl\nÇağlar\n");
  }
  std::string Kaydet(const char* karar) { return KaydetVe(ortam, *form, karar); }
  Sicil Kayit() { return KartBul(ortam.oturum, "001").value(); }
};

TEST_F(PerkartIki, TheOnesWhoMeetInAFieldAreAskedAndTheRestIsKeptOfBoth) {
  obur->Calistir("update sicil set adi = 'Can', sskdurum = 2, verda = 'Konak'");
  const std::string gosterilen = Kaydet("Bak");
  EXPECT_NE(gosterilen.find("Adı|Can|Işıl"), gosterilen.npos) << gosterilen;
  EXPECT_EQ(gosterilen.find("Veli"), gosterilen.npos) << "the surname is nobody's quarrel";
  EXPECT_EQ(Metin("adi") + Metin("soyadi"), "IşılÇağlar") << "what was typed stays";
  EXPECT_EQ(Kayit().adi + Kayit().soyadi, "CanVeli");
  Kaydet("Onunki");
  EXPECT_EQ(Kayit().adi + Kayit().soyadi + Kayit().verda, "CanÇağlarKonak");
  EXPECT_EQ(Kayit().sskdurum, 2);
  EXPECT_EQ(ortam.Odak(), "kod");

  ortam.Yaz("001\nIşılay");
  obur->Calistir("update sicil set adi = 'Cem'");
  Kaydet("Benimki");
  EXPECT_EQ(Kayit().adi + Kayit().verda, "IşılayKonak");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(PerkartIki, ADeletedPersonComesBackOnlyWhenAskedFor) {
  obur->Calistir("delete from sicil");
  Kaydet("Onunki");
  EXPECT_EQ(Sayi("sicil"), 0u);
  Kaydet("Benimki");
  EXPECT_EQ(Kayit().adi, "Işıl");
}

TEST_F(Perkart, TheGuidePicksAPerson) {
  Ekle(Kisi("001"));
  Ekle(Kisi("002", "Can", "Öz"));
  Ac();
  ortam.ModaldaYap([&] {
    ortam.Yaz("002");
    ortam.Bas(Qt::Key_Return);
  });
  ortam.Bas(Qt::Key_F2);
  QApplication::setActiveWindow(form);
  EXPECT_EQ(Metin("kod"), "002");
  EXPECT_EQ(Metin("adi"), "Can");
  EXPECT_EQ(ortam.Odak(), "kod");
}

// The list leaves out what is not in use, and a person keeps the row of the table all the same.
TEST_F(Perkart, TheBranchIsTheRowOfItsTable) {
  HesapTurleri turler = VarsayilanHesapTurleri();
  turler[2] = {};
  ASSERT_TRUE(HesapTurleriKaydet(ortam.oturum.DataPath, turler));
  ortam.parametreler.YasalYukle(ortam.oturum.DataPath);
  Sicil kisi = Kisi("001");
  kisi.sskdurum = 3;
  Ekle(kisi);
  Ac();
  ortam.Yaz("001\n");
  auto& liste = dynamic_cast<QComboBox&>(*AlanBul(*form, "sskdurum").Odak());
  EXPECT_EQ(Utf8(liste.currentText().left(3)), "04-");
  liste.setFocus();
  ortam.Bas(Qt::Key_Up);
  EXPECT_EQ(Utf8(liste.currentText().left(3)), "02-") << "a row that is not in use is passed over";
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(KartBul(ortam.oturum, "001")->sskdurum, 1);
}

// A group that nobody has defined would leave the person without pay.
TEST_F(Perkart, GroupsAreChosenFromTheirOwnListAndUnknownOnesRefused) {
  Ekle(Kisi("001"));
  Ac();
  ortam.Yaz("001\n");
  AlanBul(*form, "hesap").Odak()->setFocus();
  QCoreApplication::processEvents();
  ortam.Yaz("YOK");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Hesap grubu tanımlı değil: YOK"});
  EXPECT_EQ(ortam.Odak(), "hesap");
  ortam.ModaldaYap([&] { ortam.Bas(Qt::Key_Return); });
  ortam.Bas(Qt::Key_F2);
  QApplication::setActiveWindow(form);
  EXPECT_EQ(Metin("hesap"), "Personel");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(KartBul(ortam.oturum, "001")->hesap, "Personel");
}

}  // namespace
}  // namespace belvani::test
