// Codes, laws, wages and companies of people, by keys.
#include <QScrollBar>

#include "core/session/sirket.h"
#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "screens/personnel/koddeg.h"
#include "screens/personnel/pertrans.h"
#include "screens/personnel/tkanfrm.h"
#include "screens/personnel/ucrdeg.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

struct TopluEkranlar : testing::Test {
  EkranOrtami ortam;

  void Kisi(const std::string& kod, double ucret = 0) {
    Sicil s;
    s.kod = kod;
    s.adi = "Ali";
    s.soyadi = kod;
    s.ucret = Tutar(ucret);
    s.girtar = Tarih(2005, 1, 1);
    ASSERT_TRUE(KartKaydet(ortam.oturum, {.simdi = s}));
  }
  Sicil Kart(const std::string& kod) { return KartBul(ortam.oturum, kod).value_or(Sicil()); }
  static void Beklet() { QCoreApplication::processEvents(); }
};

TEST_F(TopluEkranlar, ACodeIsChanged) {
  Kisi("001");
  Kisi("002");
  auto& form = ortam.Ac<koddeg>();
  ortam.Yaz("001\n");
  EXPECT_EQ(AlanMetni(form, "adsoyad"), "Ali 001");
  EXPECT_EQ(ortam.Odak(), "yeni");
  ortam.Yaz("002");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Seçtiğiniz Kodda Zaten Bir Kişi var\nYeni Bir Kod Seçiniz"});
  EXPECT_EQ(ortam.Odak(), "yeni");
  ortam.Yaz("101");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Değiştirme İşlemi Tamamlandı"});
  EXPECT_EQ(Kart("101").soyadi, "001");
  EXPECT_EQ(AlanMetni(form, "eski") + AlanMetni(form, "yeni") + AlanMetni(form, "adsoyad"), "");
  EXPECT_EQ(ortam.Odak(), "eski");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Değişecek Kodu Yazınız"});
}

TEST_F(TopluEkranlar, TheListIsWhoChanges) {
  for (const char* kod : {"1", "2", "3"}) Kisi(kod);
  ortam.oturum.depo.db.IcMotor().Calistir(
      "update sicil set kanun = '05510' where kod = '2'; delete from kimlik where kod = '3'");
  auto& form = ortam.Ac<tkanfrm>();
  auto& liste = *form.findChild<dclist*>("liste");
  EXPECT_EQ(liste.ListCount(), 2);
  ortam.Bas(Qt::Key_Space);
  ortam.Yaz("\n5510");
  ASSERT_EQ(liste.ListCount(), 1);
  EXPECT_EQ(Utf8(liste.TextByName(0, "kod") + liste.TextByName(0, "kanun")), "205510");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Kanun No Hatalı"});
  EXPECT_EQ(ortam.Odak(), "yenikanun");
  ortam.Yaz("5084");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Değiştirme Tamamlandı"});
  EXPECT_EQ(Kart("2").kanun, "05084");
  EXPECT_EQ(Kart("1").kanun, "");
  EXPECT_EQ(liste.ListCount(), 0);
}

struct Ucretler : TopluEkranlar {
  ucrdeg* form = nullptr;

  void SetUp() override {
    for (int i = 10; i < 23; ++i) Kisi(std::to_string(i), i);
    form = &ortam.Ac<ucrdeg>();
  }
  QScrollBar& Cubuk() { return *form->findChild<QScrollBar*>("dikey"); }
  void Git(const char* alan) { AlanBul(*form, alan).Odak()->setFocus(Qt::TabFocusReason); }
};

TEST_F(Ucretler, EachFieldIsWrittenWhenItIsLeft) {
  EXPECT_EQ(Cubuk().maximum(), 1) << "thirteen rows";
  EXPECT_EQ(AlanMetni(*form, "kod1") + AlanMetni(*form, "adsoyad1") + AlanMetni(*form, "ucret1"), "10Ali 1010.00");
  Git("ucret1");
  ortam.Yaz("1500\n");
  Beklet();
  EXPECT_EQ(Kart("10").ucret, Tutar(1500));
  EXPECT_EQ(Kart("11").ucret, Tutar(11));
  Git("ucrettipi2");
  ortam.Bas(Qt::Key_Down);
  Git("ucret2");
  Beklet();
  EXPECT_EQ(Kart("11").ucrettipi, 1);

  // Behind the last line the next person comes up; what was typed on it is written first.
  Git("ucret12");
  ortam.Yaz("777\n");
  EXPECT_EQ(Cubuk().value(), 1);
  EXPECT_EQ(AlanMetni(*form, "kod12"), "22");
  EXPECT_EQ(Kart("21").ucret, Tutar(777));
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(AlanMetni(*form, "kod1"), "10");

  // The last writes come back, the person with them.
  Cubuk().setValue(1);
  Git("ucret5");
  ortam.Bas(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Kart("21").ucret, Tutar(21));
  ortam.Bas(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Kart("11").ucrettipi, 0);
  ortam.Bas(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Kart("10").ucret, Tutar(10));
  EXPECT_EQ(AlanMetni(*form, "kod1") + ":" + ortam.Odak(), "10:ucret1");
  ortam.bildirim.Al();
  ortam.Bas(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Geri alınacak değişiklik yok"});
}

TEST_F(Ucretler, AFieldThatCannotBeWrittenIsAllThatIsLost) {
  Git("ucret1");
  ortam.Yaz("1500\n");
  Beklet();
  ortam.oturum.depo.db.IcMotor().Calistir(
      "create trigger engel before update on sicil begin select raise(abort, 'x'); end");
  Git("ucret2");
  ortam.Yaz("1600\n");
  Beklet();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: Personel Kartı Kaydedilemiyor"});
  EXPECT_EQ(AlanMetni(*form, "ucret1") + AlanMetni(*form, "ucret2"), "1,500.0011.00");
  EXPECT_TRUE(form->KapanabilirMi());
}

TEST_F(Ucretler, FewPeopleHaveFewLines) {
  ortam.oturum.depo.db.IcMotor().Calistir(
      "update sicil set ucretags = 2 where kod = '15'; update sicil set cikiskodu = 3 where kod = '16'");
  Git("tur");
  ortam.Bas(Qt::Key_Down);
  ortam.Bas(Qt::Key_Down);
  EXPECT_EQ(AlanMetni(*form, "kod1"), "15");
  EXPECT_FALSE(Cubuk().isEnabled());
  EXPECT_FALSE(AlanBul(*form, "ucret2").Parca()->isVisible());
}

TEST_F(TopluEkranlar, APersonIsCopiedAndLeaves) {
  Kisi("001");
  {
    Oturum hedef;
    hedef.DataPath = hedef.PrgPath = ortam.oturum.DataPath;
    ASSERT_TRUE(SirketOlustur(hedef, "ÖBÜR", "a", ""));
    SirketKapat(hedef);
  }
  auto& form = ortam.Ac<pertrans>();
  ortam.Yaz("001\n");
  EXPECT_EQ(AlanMetni(form, "soyadi") + AlanMetni(form, "girtar") + AlanMetni(form, "yenikod"), "00101.01.2005001");
  EXPECT_EQ(ortam.Odak(), "hedef");
  ortam.Yaz("T\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: Transfer Şirketi ile Şirketiniz Aynı.."});
  EXPECT_EQ(ortam.Odak(), "hedef");
  ortam.Bas(Qt::Key_Up);
  ortam.Yaz("\n77\n01072009\n");
  EXPECT_FALSE(AlanBul(form, "ciktar").Odak()->focusPolicy() & Qt::TabFocus);
  ortam.Bas(Qt::Key_Space);
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: Çıkış Kodu Seçilmemiş.."});
  ortam.Yaz("16\nNakil");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: Çıkış Tarihi Hatalı.."});
  EXPECT_EQ(ortam.Odak(), "ciktar");
  ortam.Yaz("30062009");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(Kart("001").cikissebebi, "Nakil");
  const auto hedef = MotorAc(ortam.oturum.DataPath + "ÖBÜR/tolu.dat");
  EXPECT_EQ(KayitlariOku<Sicil>(*hedef).at(0).kod, "77");
}

}  // namespace
}  // namespace belvani::test
