// The screens of the payroll papers, by keys.
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "ekran/ortam.h"
#include "screens/documents/agibrd.h"
#include "screens/documents/brdbas.h"
#include "screens/documents/brdicmal.h"
#include "screens/documents/brdui.h"
#include "screens/documents/brdzarf.h"
#include "screens/documents/setbrd.h"
#include "ui/perekr.h"
#include "ui/yzcsetup.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

// Two people with a month of pay.
struct BordroluOrtam : EkranOrtami {
  BordroluOrtam() {
    for (const auto& [kod, ad, ui] : {std::tuple("001", "Işıl", 2), std::tuple("002", "Şükrü", 0)}) {
      Imlec& sicil = oturum.depo.sicil;
      sicil.KayitEkle();
      sicil.AlanYaz("kod", std::string(kod));
      sicil.AlanYaz("adi", std::string(ad));
      sicil.AlanYaz("girtar", Tarih(2008, 1, 1));
      EXPECT_TRUE(sicil.KayitYaz());
      Imlec& brd = oturum.depo.brd;
      brd.KayitEkle();
      brd.AlanYaz("kod", std::string(kod));
      brd.AlanYaz("yil", std::int64_t(2009));
      brd.AlanYaz("ay", std::int64_t(7));
      brd.AlanYaz("no", std::int64_t(1));
      brd.AlanYaz("ng", std::int64_t(30 - ui));
      brd.AlanYaz("ui", std::int64_t(ui));
      brd.AlanYaz("brutkaz", Tutar(1000.0));
      EXPECT_TRUE(brd.KayitYaz());
    }
  }
  const Rapor& AcilanListe() {
    auto* izleme = dynamic_cast<perekr*>(gosterici.formlar.back().get());
    EXPECT_NE(izleme, nullptr);
    return izleme->Belgesi();
  }
};

TEST(Brdbas, SecimKolonlarVeAyarDosyasi) {
  BordroluOrtam ortam;
  const std::string ayar = ortam.oturum.FirmaDizini + "bordro.ini";
  ASSERT_TRUE(DosyaYaz(ayar, "[Bordro]\r\nBrdizin=0\r\nBrdfsize=9\r\n"));
  auto& form = ortam.Ac<brdbas>(ortam.parametreler);
  EXPECT_EQ(ortam.Odak(), "yil");
  EXPECT_EQ(AlanMetni(form, "kodBit"), "ZZZZ");
  EXPECT_EQ(std::get<bool>(form.Denetim("kolon1").Oku()), false);
  EXPECT_EQ(std::get<bool>(form.Denetim("kolon22").Oku()), true) << "a row that is too short is completed with on";
  form.YaziKutusu("kodBas").setFocus();
  ortam.Yaz("002\n");
  form.Denetim("kolon2").Odak()->setFocus();
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

TEST(Brdzarf, EkranFormuYokKagitVar) {
  BordroluOrtam ortam;
  ortam.Ac<brdzarf>(ortam.parametreler);
  ortam.Bas(Qt::Key_F6);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Bu Liste Sadece Yazıcıdan Alınabilir."));
  EkranOrtami::ModaldaYap([&] {
    EXPECT_EQ(AlanMetni(*QApplication::activeModalWidget()->findChild<yzcsetup*>(), "YzcBaslik"), "ÜCRET PUSULASI");
    ortam.Bas(Qt::Key_F8);
  });
  ortam.Bas(Qt::Key_F8);
  EXPECT_EQ(ortam.kuyruk.isler.size(), 1u);
}

TEST(Agibrd, MetinYoluKapali) {
  BordroluOrtam ortam;
  ortam.Ac<agibrd>(ortam.parametreler);
  EkranOrtami::ModaldaYap([&] {
    auto& form = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
    const auto modlar = form.Denetim("mod").Odaklar();
    EXPECT_TRUE(modlar[0]->isEnabled());
    EXPECT_FALSE(modlar[1]->isEnabled());
    ortam.Bas(Qt::Key_Escape);
  });
  ortam.Bas(Qt::Key_F8);
  EXPECT_TRUE(ortam.kuyruk.isler.empty());
}

TEST(Brdicmal, DonemDegisinceHesaplanir) {
  BordroluOrtam ortam;
  auto& form = ortam.Ac<brdicmal>(ortam.parametreler);
  for (int i = 0; i < 15; ++i) QCoreApplication::processEvents();  // the chart comes month by month
  EXPECT_TRUE(form.findChild<QLabel*>("sayilar")->text().contains("2,000.00"));
  EXPECT_FALSE(form.findChild<QLabel*>("grafik")->pixmap(Qt::ReturnByValue).isNull());
  ortam.Yaz("2008\n");
  EXPECT_FALSE(form.findChild<QLabel*>("sayilar")->text().contains("2,000.00"));
}

TEST(BelgeEkranlari, ListelerEkrana) {
  BordroluOrtam ortam;
  ortam.Ac<setbrd>(ortam.parametreler);
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(ortam.AcilanListe().Satirlar().size(), 2u);
  auto& izin = ortam.Ac<brdui>(ortam.parametreler);
  izin.Denetim("tip").Odak()->setFocus();
  ortam.Yaz("P");  // "Personel İzinleri"
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(ortam.AcilanListe().Satirlar().size(), 1u) << "one had leave";
}

}  // namespace
}  // namespace belvani::test
