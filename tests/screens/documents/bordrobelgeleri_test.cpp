// The screens of the payroll papers, by keys.
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "ekran/ortam.h"
#include "registry/belgeler.h"
#include "screens/documents/belgeekrani.h"
#include "ui/perekr.h"
#include "ui/yzcsetup.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Two people with a month of pay, who come and leave in it.
struct BordroluOrtam : EkranOrtami {
  BordroluOrtam() {
    for (const auto& [kod, ad, ui] : {std::tuple("001", "Işıl", 2), std::tuple("002", "Şükrü", 0)}) {
      Imlec& sicil = oturum.depo.sicil;
      sicil.KayitEkle();
      sicil.AlanYaz("kod", std::string(kod));
      sicil.AlanYaz("adi", std::string(ad));
      sicil.AlanYaz("girtar", Tarih(2009, 7, 1));
      sicil.AlanYaz("ciktar", Tarih(2009, 7, 31));
      EXPECT_TRUE(sicil.KayitYaz());
      Imlec& kimlik = oturum.depo.kimlik;
      kimlik.KayitEkle();
      kimlik.AlanYaz("kod", std::string(kod));
      EXPECT_TRUE(kimlik.KayitYaz());
      Imlec& brd = oturum.depo.brd;
      brd.KayitEkle();
      brd.AlanYaz("kod", std::string(kod));
      brd.AlanYaz("yil", std::int64_t(2009));
      brd.AlanYaz("ay", std::int64_t(7));
      brd.AlanYaz("no", std::int64_t(1));
      brd.AlanYaz("ng", std::int64_t(30 - ui));
      brd.AlanYaz("ui", std::int64_t(ui));
      brd.AlanYaz("brutkaz", Tutar(1000.0));
      brd.AlanYaz("eksiksebebi", std::int64_t(ui));
      EXPECT_TRUE(brd.KayitYaz());
    }
  }
  Form& BelgeAc(std::string_view kelime) {
    gosterici.SerbestGoster(BelgeEkraniYap(ekran, parametreler, *BelgeBul(kelime)));
    return *gosterici.formlar.back();
  }
  const Rapor& AcilanListe() {
    auto* izleme = dynamic_cast<perekr*>(gosterici.formlar.back().get());
    EXPECT_NE(izleme, nullptr);
    return izleme->Belgesi();
  }
};

TEST(Brdbas, ChoicesColumnsAndSettingsFile) {
  BordroluOrtam ortam;
  const std::string ayar = ortam.oturum.FirmaDizini + "bordro.ini";
  ASSERT_TRUE(DosyaYaz(ayar, "[Bordro]\r\nBrdizin=0\r\nBrdfsize=9\r\n"));
  auto& form = ortam.BelgeAc("brdbas");
  EXPECT_EQ(ortam.Odak(), "yil");
  EXPECT_EQ(AlanMetni(form, "kodBit"), "ZZZZ");
  EXPECT_EQ(std::get<bool>(AlanBul(form, "kolon1").Oku()), false);
  EXPECT_EQ(std::get<bool>(AlanBul(form, "kolon22").Oku()), true) << "a row that is too short is completed with on";
  YaziBul(form, "kodBas").setFocus();
  ortam.Yaz("002\n");
  AlanBul(form, "kolon2").Odak()->setFocus();
  ortam.Bas(Qt::Key_Space);
  AlanBul(form, "sskSirasi").Odak()->setFocus();
  ortam.Bas(Qt::Key_Space);
  ortam.Bas(Qt::Key_F6);
  const Rapor& rapor = ortam.AcilanListe();
  EXPECT_EQ(rapor.ekranBasligi, "Ücret Bordrosu");
  EXPECT_EQ(rapor.Satirlar().size(), 1u);
  EXPECT_EQ(rapor.Kolonlar().front().kisaBaslik, "T.C. No");
  ortam.gosterici.formlar.back()->Kapat();
  form.Kapat();
  EXPECT_THAT(DosyaOku(ayar).value_or(""), HasSubstr("Brdizin=0011111111111111111111"));
  EXPECT_THAT(DosyaOku(ayar).value_or(""), HasSubstr("Brdfsize=9"));
}

// Papers of the registry by their keys, but for those of modules with records of their own: on the screen, on the
// printer with the settings that it honours, and as a workbook.
TEST(BelgeEkranlari, EveryPaperByItsKeys) {
  BordroluOrtam ortam;
  for (const BelgeTanimi& tanim : Belgeler()) {
    if (tanim.menu.starts_with("Ek Moduller")) continue;
    SCOPED_TRACE(tanim.ekran);
    const Form& form = ortam.BelgeAc(tanim.ekran);
    EXPECT_EQ(Utf8(form.windowTitle()), tanim.pencereBasligi);
    if (tanim.ekran == "brdzarf") {
      ortam.Bas(Qt::Key_F6);
      EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Bu Liste Sadece Yazıcıdan Alınabilir."));
    } else {
      ortam.Bas(Qt::Key_F6);
      EXPECT_FALSE(ortam.AcilanListe().Satirlar().empty());
      ortam.gosterici.formlar.pop_back();
      QApplication::setActiveWindow(ortam.gosterici.formlar.back().get());
    }
    EkranOrtami::ModaldaYap([&] {
      auto& ayar = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
      EXPECT_FALSE(AlanMetni(ayar, "YzcBaslik").empty());
      if (tanim.menu == "Bordro") {  // lists and slips; forms of the law honour nothing but their way
        EXPECT_EQ(AlanBul(ayar, "mod").Odaklar()[1]->isEnabled(), tanim.ekran != "agibrd") << "the text way";
        EXPECT_EQ(AlanBul(ayar, "YzcSayfaNoYaz").Odak()->isEnabled(), tanim.ekran != "brdzarf");
      }
      ortam.Bas(Qt::Key_F8);
    });
    ortam.Bas(Qt::Key_F8);
    EXPECT_EQ(ortam.kuyruk.isler.size(), 1u);
    ortam.Bas(Qt::Key_F9);
    EXPECT_EQ(ortam.acilanlar.size(), 1u);
    for (const std::string& dosya : ortam.acilanlar)
      std::filesystem::remove_all(std::filesystem::path(dosya).parent_path());
    EXPECT_THAT(ortam.bildirim.Al(), ElementsAre());
    ortam.kuyruk.isler.clear();
    ortam.acilanlar.clear();
    ortam.gosterici.formlar.clear();
  }
}

TEST(BelgeEkranlari, DoesNotPassTheLimitOfYears) {
  BordroluOrtam ortam;
  Form& form = ortam.BelgeAc("agibrd");
  ortam.Yaz("1989\n");
  ortam.Bas(Qt::Key_F6);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Bordro Yılı: 1990 ile 2100 arasında olmalı"));
  EXPECT_TRUE(AlanBul(form, "yil").Odak()->hasFocus());
}

TEST(Brdicmal, AnotherPeriodIsCalculated) {
  BordroluOrtam ortam;
  auto& form = ortam.BelgeAc("brdicmal");
  for (int i = 0; i < 15; ++i) QCoreApplication::processEvents();  // the chart comes month by month
  EXPECT_TRUE(form.findChild<QLabel*>("sayilar")->text().contains("2,000.00"));
  EXPECT_FALSE(form.findChild<QLabel*>("grafik")->pixmap(Qt::ReturnByValue).isNull());
  ortam.Yaz("2008\n");
  EXPECT_FALSE(form.findChild<QLabel*>("sayilar")->text().contains("2,000.00"));
  const auto* mevzuat = form.findChild<QLabel*>("mevzuat");
  EXPECT_TRUE(mevzuat->isVisible() && mevzuat->text().contains("Temmuz 2008 döneminin değil")) << Utf8(mevzuat->text());
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre()) << "beside the figures, in no box";
}

TEST(BelgeEkranlari, AnotherMonthsLawIsToldOnce) {
  BordroluOrtam ortam;
  Form& form = ortam.BelgeAc("agibrd");
  ortam.Yaz("2008\n");
  const std::string kayitYok = "Bilgi: Bu dönemde bordro kaydı yok";
  for (const bool ilk : {true, false}) {
    ortam.Bas(Qt::Key_F6);
    const Iletiler iletiler = ortam.bildirim.Al();
    EXPECT_EQ(iletiler.back(), kayitYok);
    EXPECT_EQ(iletiler.size(), ilk ? 2u : 1u);
    EXPECT_THAT(iletiler.front(),
                ilk ? HasSubstr("Uyarı: Kurulu yasal parametreler Temmuz 2008") : HasSubstr(kayitYok));
    ortam.gosterici.formlar.pop_back();
    QApplication::setActiveWindow(&form);
    form.setFocus();
  }
}

TEST(Brdui, KindOfReport) {
  BordroluOrtam ortam;
  auto& izin = ortam.BelgeAc("brdui");
  AlanBul(izin, "tip").Odak()->setFocus();
  ortam.Yaz("P");  // "Personel İzinleri"
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(ortam.AcilanListe().Satirlar().size(), 1u) << "one had leave";
}

}  // namespace
}  // namespace belvani::test
