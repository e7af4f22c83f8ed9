// The login, key by key.
#include <QComboBox>

#include "core/ayarlar.h"
#include "core/saat.h"
#include "core/session/kullanicilar.h"
#include "core/session/sirket.h"
#include "ekran/ortam.h"
#include "screens/core/startfrm.h"

namespace belvani::test {
namespace {

struct GirisEkrani : testing::Test {
  EkranOrtami ortam;
  std::unique_ptr<startfrm> form;

  // The screen as it comes up after a start, with the settings of the last login.
  void Ac(const std::string& sirket, const std::string& kullanici) {
    ortam.oturum.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
    EXPECT_TRUE(KullaniciAyariYaz("lastfirm", sirket) && KullaniciAyariYaz("lastuser", kullanici));
    form = std::make_unique<startfrm>(ortam.ekran);
    form->show();
    QApplication::setActiveWindow(form.get());
  }
  void Rehber() {
    ortam.Bas(Qt::Key_F2);
    QApplication::setActiveWindow(form.get());  // as a window manager does after a dialog
  }
  bool GirisAcik() const { return form->findChild<xButton*>("xbutton1")->isEnabled(); }
  std::string Sirket() const { return Utf8(form->findChild<QComboBox*>()->currentText()); }
};

TEST_F(GirisEkrani, FirstRunMakesACompanyAndItsFirstUser) {
  ortam.oturum.DataPath = ortam.dizin.Yol() + "yeni/";
  EkranOrtami::ModaldaYap([&] {
    EXPECT_EQ(ortam.Odak(), "ComboBox1");
    ortam.Yaz("ışıl örgü\n");
    EXPECT_EQ(ortam.Odak(), "textbox1");
    ortam.Yaz("Çağlar\nşifre\n");
  });
  EXPECT_TRUE(KullaniciAyariYaz("lastfirm", "") && KullaniciAyariYaz("lastuser", "BELVANI"));
  const SabitGun gun(Tarih(2007, 11, 30));
  ASSERT_EQ(GirisYap(ortam.ekran), GirisSonucu::Girildi);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Şirket Bulunamadı\nYeni Şirket Açılacak ?"});
  EXPECT_EQ(ortam.oturum.FirmaKod, "IŞIL ÖRGÜ");
  EXPECT_EQ(ortam.oturum.Kullanici, "Çağlar");
  EXPECT_EQ(ortam.oturum.firma.firmaay, 11);
  EXPECT_EQ(KullaniciAyari("lastfirm", ""), "IŞIL ÖRGÜ");
  const auto kullanicilar = Kullanicilar(ortam.oturum);
  ASSERT_EQ(kullanicilar.size(), 1u);
  EXPECT_EQ(kullanicilar[0].pasw, "şifre");
}

TEST_F(GirisEkrani, WrongPasswordKeepsTheScreenWithThePasswordSelected) {
  Ac("TEST", "ayse");
  EXPECT_EQ(ortam.Odak(), "TextBox2") << "company and user are those of the last time";
  ortam.Yaz("yanlış\n");
  const Iletiler hatali{"Bilgi: Kullanıcı Adı veya Kullanıcı Şifresi\n           HATALI"};
  EXPECT_EQ(ortam.bildirim.Al(), hatali);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(ortam.Odak(), "TextBox2");
  ortam.Yaz("gizli\n");  // over the selected one
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(form->result(), QDialog::Accepted);
  EXPECT_EQ(ortam.oturum.firma.firmaay, 7);
}

TEST_F(GirisEkrani, CompaniesThatCannotBeOpenedOrMade) {
  std::filesystem::create_directories(ortam.oturum.DataPath + "BOŞ");
  Ac("boş", "ayse");
  ortam.Yaz("gizli\n");
  auto iletiler = ortam.bildirim.Al();
  ASSERT_EQ(iletiler.size(), 1u);
  EXPECT_TRUE(iletiler[0].starts_with("Uyarı: Database Açılamadı")) << iletiler[0];
  EXPECT_FALSE(std::filesystem::exists(ortam.oturum.DataPath + "BOŞ/tolu.dat"));
  EXPECT_EQ(ortam.Odak(), "ComboBox1");

  ortam.Yaz("../KAÇAK\n\ngizli\n");
  iletiler = ortam.bildirim.Al();
  ASSERT_EQ(iletiler.size(), 1u);
  EXPECT_TRUE(iletiler[0].starts_with("Bilgi: Şirket adında kullanılamayan bir harf var")) << iletiler[0];

  ortam.bildirim.cevap = false;
  ortam.Yaz("YOK\n\ngizli\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Şirket Bulunamadı\nYeni Şirket Açılacak ?"});
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(Sirketler(ortam.oturum.DataPath), (std::vector<std::string>{"BOŞ", "TEST"}));
}

// Two directories that one text means: the user chooses, and nothing opens when he does not.
TEST_F(GirisEkrani, OfTwoCompaniesOneIsChosen) {
  std::filesystem::copy(ortam.oturum.DataPath + "TEST", ortam.oturum.DataPath + "test");
  Ac("Test", "ayse");
  const Iletiler sorulan{"Bilgi: Bu ada uyan birden çok şirket var, adı dizininki gibi yazınız:\nTEST\ntest"};
  EkranOrtami::ModaldaYap([&] { ortam.Bas(Qt::Key_Escape); });
  ortam.Yaz("gizli\n");
  EXPECT_EQ(ortam.bildirim.Al(), sorulan);
  EXPECT_FALSE(ortam.oturum.depo.db.AcikMi());
  EXPECT_EQ(Sirket(), "Test");
  form->findChild<xtext*>("TextBox2")->setFocus();
  EkranOrtami::ModaldaYap([&] {
    EXPECT_EQ(ortam.oturum.SeciliKod, "TEST");
    ortam.Bas(Qt::Key_Down);
    ortam.Bas(Qt::Key_Return);
  });
  ortam.Yaz("\n");
  EXPECT_EQ(ortam.bildirim.Al(), sorulan);
  EXPECT_EQ(form->result(), QDialog::Accepted);
  EXPECT_EQ(ortam.oturum.FirmaDizini, ortam.oturum.DataPath + "test/");
  EXPECT_EQ(KullaniciAyari("lastfirm", "") + "|" + ortam.oturum.FirmaKod, "test|test");
  Ac("test", "ayse");
  EkranOrtami::ModaldaYap([&] { ortam.Bas(Qt::Key_Return); });
  Rehber();
  EXPECT_EQ(Sirket(), "test") << "the list opens on the company of the screen, not on its neighbour";
  Ac("TEST", " ayse ");
  ortam.Yaz("gizli\n");
  EXPECT_EQ(ortam.oturum.FirmaDizini, ortam.oturum.DataPath + "TEST/") << "the exact name goes first";
  EXPECT_EQ(ortam.oturum.Kullanici, "ayse");
}

TEST_F(GirisEkrani, AcceptNeedsCompanyAndUserButNoPassword) {
  Ac("", "");
  EXPECT_FALSE(GirisAcik());
  ortam.Yaz("t\n");
  EXPECT_FALSE(GirisAcik());
  ortam.Yaz("a");
  EXPECT_TRUE(GirisAcik());
  ortam.Bas(Qt::Key_Backspace);
  EXPECT_FALSE(GirisAcik());
  ortam.Yaz("\n\n");  // Enter in the password of an unfinished login
  EXPECT_EQ(ortam.Odak(), "textbox1");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(GirisEkrani, PickerFillsTheCompanyFromEveryField) {
  EXPECT_TRUE(SirketOlustur(ortam.oturum, "ÖRGÜ", "ali", "x"));
  Ac("", "ayse");
  EkranOrtami::ModaldaYap([&] {
    ortam.Yaz("tes");
    ortam.Bas(Qt::Key_Return);
  });
  Rehber();
  EXPECT_EQ(Sirket(), "TEST");
  EXPECT_EQ(ortam.oturum.SeciliKod + ortam.oturum.PencereTip, "");
  EXPECT_EQ(ortam.Odak(), "TextBox2");
  EkranOrtami::ModaldaYap([&] {
    EXPECT_EQ(ortam.oturum.SeciliKod, "TEST") << "the list opens on the company of the screen";
    ortam.Bas(Qt::Key_Up);
    EXPECT_EQ(ortam.oturum.SeciliKod, "ÖRGÜ");
    ortam.Bas(Qt::Key_Escape);
  });
  Rehber();
  EXPECT_EQ(Sirket(), "TEST");
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(form->result(), QDialog::Rejected);
}

}  // namespace
}  // namespace belvani::test
