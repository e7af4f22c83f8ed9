// Series sheet, leaving notice and workforce chart, by keys.
#include <QScrollBar>
#include <gmock/gmock.h>

#include "core/saat.h"
#include "core/store/satirlar.h"
#include "core/tables/kimlik.h"
#include "ekran/ortam.h"
#include "screens/notices/dizipusu.h"
#include "screens/notices/iab.h"
#include "screens/notices/isguc.h"
#include "ui/dclist.h"
#include "ui/perekr.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct BildirimEkranlari : testing::Test {
  EkranOrtami ortam;

  template <class Kayit>
  void Yaz(const Kayit& kayit) {
    KayitYazici<Kayit>(ortam.oturum.depo.db.IcMotor()).Ekle(kayit);
  }
  void Kisi(const std::string& kod, Tarih girtar, Tarih ciktar = {}, const std::string& sskno = {}) {
    Sicil s;
    s.kod = kod;
    s.adi = "Işıl";
    s.soyadi = kod;
    s.girtar = girtar;
    s.ciktar = ciktar;
    s.sskno = sskno;
    Yaz(s);
    Kimlik k;
    k.kod = kod;
    k.cins = 1;
    Yaz(k);
  }
  void Bordro(const std::string& kod, int yil, int ay, double brut) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = 1;
    b.ng = 30;
    b.brutkaz = b.sskmatrah = Tutar(brut);
    Yaz(b);
  }
  const Rapor& AcilanListe() {
    auto* izleme = dynamic_cast<perekr*>(ortam.gosterici.formlar.back().get());
    EXPECT_NE(izleme, nullptr);
    return izleme->Belgesi();
  }
  static std::string Yuva(const Form& form, const char* ad) {
    return Utf8(form.findChild<xtext*>(QString::fromUtf8(ad))->text());
  }
};

TEST_F(BildirimEkranlari, SeriesSheetIsListedTypedAndShown) {
  Kisi("001", Tarih(2009, 7, 1), {}, "34");
  Kisi("002", Tarih(2009, 7, 31));
  Kisi("003", Tarih(2009, 8, 1));
  auto& form = ortam.Ac<dizipusu>();
  EXPECT_EQ(AlanMetni(form, "bas") + AlanMetni(form, "bit"), "01.07.200931.07.2009");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Yuva(form, "xtext3_0") + Yuva(form, "xtext4_0") + Yuva(form, "xtext5_0"), "Işıl 00234Işıl 001");
  // The second row of the first list, and one far below.
  form.findChild<xtext*>("xtext2_1")->setFocus();
  ortam.Yaz("0\nŞule\n");
  EXPECT_EQ(ortam.Odak(), "xtext4_1");
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(form.findChild<QScrollBar*>("dik")->value(), DiziYuvalari::GorunenSatir);
  EXPECT_EQ(Yuva(form, "xtext3_0"), "");
  ortam.Yaz("77");
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(Yuva(form, "xtext3_1"), "Şule") << "what was typed stays with its row";
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(AcilanListe().Satirlar().size(), 4u);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(BildirimEkranlari, SeriesSheetAsksBeforeTypedWorkGoes) {
  auto& form = ortam.Ac<dizipusu>();
  form.findChild<xtext*>("xtext3_0")->setFocus();
  ortam.Yaz("Şule");
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Pusulaya yazılanlar silinecek.")));
  EXPECT_EQ(Yuva(form, "xtext3_0"), "Şule");
  EXPECT_FALSE(form.KapanabilirMi());
  ortam.bildirim.cevap = true;
  EXPECT_TRUE(form.KapanabilirMi());
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(Yuva(form, "xtext3_0"), "");
  ortam.bildirim.Al();
}

TEST_F(BildirimEkranlari, SeriesSheetWalksThroughAllItsRowsAndTellsItsLimit) {
  ortam.oturum.depo.db.IcMotor().IslemBaslat({});
  for (int i = 1; i <= 501; ++i) Kisi(std::to_string(1000 + i), Tarih(2009, 7, 1));
  ortam.oturum.depo.db.IcMotor().IslemOnayla();
  auto& form = ortam.Ac<dizipusu>();
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Uyarı: Dizi Pusula Limiti Doldu\nPusulaya alınmayan kişi: 1"));
  form.findChild<QScrollBar*>("dik")->setValue(10'000);
  EXPECT_EQ(Yuva(form, "xtext3_13"), "Işıl 1500");
  form.findChild<xtext*>("xtext3_13")->setFocus();
  ortam.Bas(Qt::Key_Down);
  EXPECT_EQ(ortam.Odak(), "xtext3_13") << "there is no row below";
  form.findChild<xtext*>("xtext3_0")->setFocus();
  ortam.Bas(Qt::Key_Up);
  EXPECT_EQ(Yuva(form, "xtext3_0"), "Işıl 1486") << "the rows move, the keyboard stays";
  EXPECT_EQ(ortam.Odak(), "xtext3_0");
  YaziBul(form, "bas").setFocus();
  ortam.Bas(Qt::Key_Delete);
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Başlangıç Tarihi Hatalı"));
  EXPECT_EQ(ortam.Odak(), "bas");
}

TEST_F(BildirimEkranlari, LeavingNoticeFollowsPersonAndDates) {
  const SabitGun gun(Tarih(2009, 12, 15));
  Kisi("001", Tarih(2005, 1, 1), Tarih(2009, 3, 31));
  Kisi("002", Tarih(2005, 1, 1));
  for (int ay = 1; ay <= 6; ++ay) Bordro("001", 2009, ay, 1000 + ay);
  auto& form = ortam.Ac<iab>();
  ortam.Yaz("001\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(AlanMetni(form, "adsoyad") + AlanMetni(form, "sonNet") + AlanMetni(form, "issizlikGunu"),
            "Işıl 0011,003.0090");
  auto* liste = form.findChild<dclist*>("dclist1");
  EXPECT_EQ(liste->ListCount(), 5);
  EXPECT_EQ(Utf8(liste->TextByName(0, "ay") + liste->TextByName(0, "yil")), "Haziran2009");
  YaziBul(form, "ciktar").setFocus();
  ortam.Yaz("30042009\n");
  EXPECT_EQ(AlanMetni(form, "sonNet") + AlanMetni(form, "issizlikGunu"), "1,004.00120") << "counted anew";
  // Nobody of that code: what is on the screen stays, code and all.
  YaziBul(form, "kod").setFocus();
  ortam.Yaz("999\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Bu Kodda Personel Yok: 999"));
  EXPECT_EQ(AlanMetni(form, "kod") + AlanMetni(form, "sonNet"), "0011,004.00");
  YaziBul(form, "kod").setFocus();
  ortam.Yaz("002\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Uyarı: İşçi Çıkış Tarihi Eksik"));
  EXPECT_EQ(AlanMetni(form, "sonNet") + AlanMetni(form, "duzenleme"), "15.12.2009");
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(AlanMetni(form, "kod"), "001");
}

TEST_F(BildirimEkranlari, WorkforceIsFilledTypedAndKeptFromBeingLost) {
  Kisi("001", Tarih(2009, 6, 1));
  Kisi("002", Tarih(2009, 7, 15), Tarih(2009, 7, 20));
  auto& form = ortam.Ac<isguc>();
  auto& liste = *form.findChild<dclist*>("dclist1");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  const auto hucre = [&](const char* ad) { return Utf8(liste.TextByName(0, ad)); };
  EXPECT_EQ(hucre("ack"), " Belirsiz Süreli");
  EXPECT_EQ(hucre("k1") + hucre("k2") + hucre("k3") + hucre("k4") + hucre("t4") + hucre("e4"), "11111");
  EXPECT_TRUE(form.KapanabilirMi()) << "what was counted can be counted again";
  liste.setFocus();
  liste.HucreyeGit(1, "e1");
  ortam.Yaz("7\n");
  ortam.bildirim.cevap = false;
  EXPECT_FALSE(form.KapanabilirMi());
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Çizelgeye yazılanlar saklanmaz.")));
  ortam.bildirim.cevap = true;
  ortam.Bas(Qt::Key_Escape);  // the next cell is open
  YaziBul(form, "yil").setFocus();
  ortam.Bas(Qt::Key_Delete);
  ortam.Yaz("2008\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Belirsiz Süreli ve Özürlü satırları kayıtlardan")));
  EXPECT_EQ(hucre("t1") + Utf8(liste.TextByName(1, "e1")), "7")
      << "nobody was there; what the store does not know stays";
  ortam.Bas(Qt::Key_F9);
  ASSERT_EQ(ortam.acilanlar.size(), 1u);
  std::filesystem::remove_all(std::filesystem::path(ortam.acilanlar[0]).parent_path());
}

}  // namespace
}  // namespace belvani::test
