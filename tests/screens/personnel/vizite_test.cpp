// The medical papers' screens, by keys.
#include <QComboBox>
#include <gmock/gmock.h>

#include "core/saat.h"
#include "core/store/satirlar.h"
#include "core/tables/brd.h"
#include "core/tables/esco.h"
#include "screens/personnel/metinbas.h"
#include "screens/personnel/vizite1.h"
#include "screens/personnel/vizite2.h"
#include "screens/personnel/vizite3.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

using testing::HasSubstr;
using testing::Not;

struct ViziteEkranlari : testing::Test {
  const SabitGun gun{Tarih(2009, 5, 15)};
  EkranOrtami ortam;

  void SetUp() override {
    for (const char* kod : {"001", "002"}) {
      Sicil s;
      s.kod = kod;
      s.adi = kod[2] == '1' ? "Ali" : "Can";
      s.soyadi = "Veli";
      s.girtar = kod[2] == '1' ? Tarih(2005, 1, 1) : Tarih();
      Yaz(s);
      Esco es;
      es.kod = kod;
      es.yakinlik = 1;
      es.adi = s.adi + "'ın eşi";
      es.soyadi = "Veli";
      Yaz(es);
    }
    for (int ay = 1; ay <= 5; ++ay) {
      Brd b;
      b.kod = "001";
      b.yil = 2009;
      b.ay = std::uint8_t(ay);
      b.no = 1;
      b.ng = 25;
      b.ui = std::uint8_t(ay);
      b.sskmatrahisveren = Tutar(1000);
      Yaz(b);
    }
  }
  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(ortam.oturum.depo.db.IcMotor()).Ekle(kayit);
  }
  void TarihYaz(Form& form, const char* tarih) {
    YaziBul(form, "vizite").setFocus();
    ortam.Yaz((std::string(tarih) + "\n").c_str());
  }
  void YakinSec(Form& form, int sira) {
    auto* liste = qobject_cast<QComboBox*>(AlanBul(form, "yakinlik").Odak());
    liste->setFocus();
    for (int i = liste->currentIndex(); i < sira; ++i) ortam.Bas(Qt::Key_Down);
    ASSERT_EQ(liste->currentIndex(), sira);
  }
  std::string Gun(const Form& form, int no) { return AlanMetni(form, "gun" + std::to_string(no)); }
};

TEST_F(ViziteEkranlari, TheMonthsFollowTheVisitAndKeepWhatWasTyped) {
  auto& form = ortam.Ac<vizite1>();
  auto& liste = *form.findChild<dclist*>("dclist1");
  ortam.Yaz("001\n");
  EXPECT_EQ(AlanMetni(form, "adSoyad") + AlanMetni(form, "vizite") + AlanMetni(form, "girtar"),
            "Ali Veli15.05.200901.01.2005");
  const auto hucre = [&](int satir, const char* ad) { return Utf8(liste.TextByName(satir, ad)); };
  EXPECT_EQ(hucre(0, "yil") + "/" + hucre(0, "ay") + hucre(0, "gun"), "2008/5") << "no record";
  EXPECT_EQ(hucre(11, "ay") + " " + hucre(11, "gun") + " " + hucre(11, "ucret") + " " + hucre(11, "izin"),
            "4 29 1,000.00 4");
  liste.setFocus();
  liste.HucreyeGit(11, "ekodeme");
  ortam.Yaz("50.25\n12\n");
  EXPECT_EQ(hucre(11, "ekodeme") + " " + hucre(11, "prim"), "50.25 12.00");
  ortam.Bas(Qt::Key_Tab);
  TarihYaz(form, "01062009");
  EXPECT_EQ(hucre(11, "ay") + hucre(11, "ekodeme"), "5");
  EXPECT_EQ(hucre(10, "ay") + " " + hucre(10, "ekodeme"), "4 50.25");
  const std::string metin = KodSayfasindan(MetinBas(ortam, "Sigortalı Vizite Kağıdı"), KodSayfasi::Dos857);
  for (const char* parca :
       {"01.06.2009", "2009/MAYIS", "bin TL", "50.25", "Toplamı : 5,062.25", "İzin Gün Sayısı : 15"})
    EXPECT_THAT(metin, HasSubstr(parca));
  ortam.bildirim.Al();
}

TEST_F(ViziteEkranlari, DatesThatAreNoneAreToldOnce) {
  auto& form = ortam.Ac<vizite2>();
  ortam.Yaz("999\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: İşe Giriş  Tarihi Hatalı"}) << "nobody has this code";
  YaziBul(form, "kod").setFocus();
  ortam.Yaz("001\n");
  EXPECT_EQ(Gun(form, 12) + AlanMetni(form, "toplam"), "29110");
  TarihYaz(form, "31022009");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Vizite  Tarihi Hatalı"});
  EXPECT_EQ(AlanMetni(form, "vizite"), "??.??.????");
  EXPECT_EQ(Gun(form, 12), "29") << "the fields stay";
  YaziBul(form, "sskno").setFocus();
  QCoreApplication::processEvents();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  TarihYaz(form, "15022009");
  EXPECT_EQ(Gun(form, 12) + Gun(form, 11), "26");
  YaziBul(form, "kod").setFocus();
  ortam.Yaz("002\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: İşe Giriş  Tarihi Hatalı"});
  EXPECT_EQ(AlanMetni(form, "adSoyad") + Gun(form, 12), "Can Veli") << "another person's months never stay";
  YaziBul(form, "kod").setFocus();
  ortam.Yaz("888\n");
  ortam.bildirim.Al();
  EXPECT_EQ(AlanMetni(form, "adSoyad"), "Can Veli") << "an unknown code leaves the fields";
}

TEST_F(ViziteEkranlari, TheRelativeIsSoughtAndMayBeTypedOver) {
  auto& form = ortam.Ac<vizite2>();
  ortam.Yaz("001\n");
  YakinSec(form, 1);
  EXPECT_EQ(AlanMetni(form, "yakinAdSoyad"), "Ali'ın eşi Veli");
  YaziBul(form, "yakinAdSoyad").setFocus();
  ortam.Yaz("Ayşe\n");
  EXPECT_THAT(KodSayfasindan(MetinBas(ortam, "Eş ve Çocuklar için Vizite Kağıdı"), KodSayfasi::Dos857),
              testing::AllOf(HasSubstr("10- Adı Soyadı               : Ayşe "), HasSubstr(": EŞİ ")));
  YaziBul(form, "kod").setFocus();
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(AlanMetni(form, "kod") + AlanMetni(form, "yakinAdSoyad"), "002Can'ın eşi Veli") << "the new person's own";
  YakinSec(form, 2);
  EXPECT_EQ(AlanMetni(form, "yakinAdSoyad"), "") << "nobody";
  ortam.bildirim.Al();
}

TEST_F(ViziteEkranlari, TheCertificatesPagesWaitForThePrinter) {
  auto& form = ortam.Ac<vizite3>();
  ortam.port.portSayisi = 1;
  ortam.baski.yazici = "LPT1:";
  ortam.Yaz("001\n");
  YaziBul(form, "gun12").setFocus();
  ortam.Yaz("17\n");
  EXPECT_EQ(AlanMetni(form, "toplam"), "98");
  const auto bas = [&](bool devam) {
    ortam.bildirim.cevap = devam;
    ortam.port.alinan.clear();
    ortam.ModaldaYap([&] {
      auto& ayar = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
      AlanBul(ayar, "mod").Odaklar()[1]->setFocus();
      ortam.Bas(Qt::Key_Space);
      ortam.Bas(Qt::Key_F8);
    });
    ortam.Bas(Qt::Key_F8);
    EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: 2. Sayfa İçin Yazıcınızı Hazırlayınız"});
    return KodSayfasindan(ortam.port.alinan, KodSayfasi::Dos857);
  };
  const std::string ikisi = bas(true);
  for (const char* parca : {"SAĞLIK BELGESİ", "15.11.2009", "D-BEYAN VE TAAHHÜTLER", " 17 "})
    EXPECT_THAT(ikisi, HasSubstr(parca));
  EXPECT_THAT(bas(false), Not(HasSubstr("D-BEYAN")));
}

}  // namespace
}  // namespace belvani::test
