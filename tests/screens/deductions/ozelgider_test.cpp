// The screens of the personal-expense refund, typed key by key.
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "ekran/ortam.h"
#include "screens/deductions/ozgipar.h"
#include "screens/deductions/ozgvharc.h"
#include "screens/payroll/gvtablo.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct HarcamaOrtami : EkranOrtami {
  HarcamaOrtami() {
    DonemYaz(2004, 12);
    TabloKur(2004);
    Motor& motor = oturum.depo.db.IcMotor();
    for (const char* kod : {"001", "002", "003"}) {
      Sicil s;
      s.kod = kod;
      s.adi = "Işıl";
      s.soyadi = kod;
      KayitYazici<Sicil>(motor).Ekle(s);
    }
    for (const char* kod : {"001", "002"})
      for (const int yil : {2003, 2004}) {
        Dvr d;
        d.yilkod = std::to_string(yil) + kod;
        d.kod = kod;
        d.yil = std::int16_t(yil);
        d.gvmatrah = Tutar(12000);
        d.gvtutar = Tutar(1000);
        KayitYazici<Dvr>(motor).Ekle(d);
      }
    bildirim.Al();
  }
  void TabloKur(int yil) {
    EXPECT_TRUE(OzelGvKaydet(oturum.DataPath, *OzelGvMevzuati(KaynakYolu("data/mevzuat/"), yil)));
  }
  Dvr Kayit(const std::string& yilkod) {
    const auto kayitlar = KayitlariOku<Dvr>(oturum.depo.db.IcMotor(), "where yilkod = ?", {yilkod});
    return kayitlar.empty() ? Dvr{} : kayitlar[0];
  }
  dclist& Liste(Form& form) { return *form.findChild<dclist*>("liste"); }
  void ListeyeGec(Form& form, int satir, const char* kolon) {
    Liste(form).setFocus();
    Liste(form).HucreyeGit(satir, kolon);
  }
  static bool Kirmizi(dclist& liste, int satir) {
    return liste.Model().Renk(satir, liste.Model().KolonBul(u"hakedis")).has_value();
  }
};

TEST(Ozgvharc, ARowIsSavedWithItsRefundAndTheListMovesOn) {
  HarcamaOrtami ortam;
  auto& form = ortam.Ac<ozgvharc>();
  dclist& liste = ortam.Liste(form);
  ASSERT_EQ(liste.ListCount(), 2);
  EXPECT_EQ(liste.TextByName(0, "adsoy"), "Işıl 001");
  ortam.ListeyeGec(form, 0, "harcama");
  ortam.Yaz("3500\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(liste.TextByName(0, "hakedis"), "270.00");
  EXPECT_EQ(liste.CurSat(), 1);
  EXPECT_EQ(liste.CurrentCol(), liste.Model().KolonBul(u"harcama")) << "expenses are typed one below the other";
  EXPECT_EQ(ortam.Kayit("2004001").ogitutar, Tutar(270));

  // A new row: the person's name comes up; unknown codes and people of the list are refused.
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("yok\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Personel Kodu Bulunamadı"});
  ortam.Bas(Qt::Key_A, Qt::ControlModifier);
  ortam.Yaz("001\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Bu personel listede var: 001")));
  ortam.Bas(Qt::Key_A, Qt::ControlModifier);
  ortam.Yaz("003\n");
  EXPECT_EQ(liste.TextByName(2, "adsoy"), "Işıl 003");
  ortam.Yaz("1000\n");
  ortam.Bas(Qt::Key_Escape);
  liste.HucreyeGit(2, "kod");
  ortam.Yaz("003\n");
  EXPECT_EQ(liste.TextByName(2, "gvmatrah"), "1,000.00") << "the code typed again takes nothing away";
  ortam.Yaz("\n250\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(ortam.Kayit("2004003").gvmatrah, Tutar(1000));
  EXPECT_EQ(ortam.Kayit("2004003").ogitutar, Tutar(20));

  // Deletion leaves person and refund in the list.
  ortam.ListeyeGec(form, 0, "harcama");
  ortam.Bas(Qt::Key_Delete);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Kayıt Silinecek Eminmisiniz ?")));
  EXPECT_EQ(liste.ListCount(), 3);
  EXPECT_EQ(liste.TextByName(0, "harcama") + liste.TextByName(0, "hakedis"), "270.00");
  EXPECT_EQ(ortam.Kayit("2004001").ogimatrah, Tutar());
}

TEST(Ozgvharc, AnotherYearsListComesWithItsRule) {
  HarcamaOrtami ortam;
  ortam.TabloKur(2003);
  auto& form = ortam.Ac<ozgvharc>();
  dclist& liste = ortam.Liste(form);
  EXPECT_EQ(ortam.Odak(), "yil");
  EXPECT_EQ(AlanMetni(form, "yil"), "2004");
  ortam.Yaz("203\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("1990 ile 2100 arasında olmalı")));
  EXPECT_EQ(AlanMetni(form, "yil"), "2004") << "the list is still of this year";
  ortam.Bas(Qt::Key_A, Qt::ControlModifier);
  ortam.Yaz("2003\n");
  EXPECT_EQ(AlanMetni(form, "yil"), "2003");
  ASSERT_EQ(liste.ListCount(), 2);
  ortam.ListeyeGec(form, 0, "harcama");
  ortam.Yaz("300\n");
  EXPECT_LT(ortam.Kayit("2003001").ogitutar, Tutar());
  EXPECT_TRUE(HarcamaOrtami::Kirmizi(liste, 0)) << "below zero, in the colour of warnings";
  EXPECT_FALSE(HarcamaOrtami::Kirmizi(liste, 1));
  ASSERT_TRUE(OzelGvKaydet(ortam.oturum.DataPath, {}));
  ortam.Yaz("400\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("GV Tablosu boş")));
  EXPECT_EQ(ortam.Kayit("2003002").ogimatrah, Tutar()) << "nothing is stored without a table";
  EXPECT_EQ(liste.TextByName(1, "harcama"), "400.00") << "what was typed is kept";
}

TEST(Ozgipar, SavesTheRecordAndTellsABrokenOne) {
  HarcamaOrtami ortam;
  const std::string dosya = ortam.oturum.FirmaDizini + "ozgvpar.dat";
  ASSERT_TRUE(DosyaYaz(dosya, "kısa"));
  auto& form = ortam.Ac<ozgipar>(ortam.parametreler);
  QStringList yazilar;
  for (const auto* yazi : form.findChildren<QLabel*>()) yazilar += yazi->text();
  EXPECT_TRUE(yazilar.join(' ').contains("12 bayt olmalıydı: hazır değerler yazıldı."));
  EXPECT_EQ(DosyaOku(dosya)->size(), 12u);
  ortam.Yaz("40\n");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(OzelGiderYukle(ortam.oturum.FirmaDizini, {}).deger, (OzelGiderParametreleri{Tek(40), 1, 2005, Tek(6)}));
}

TEST(Gvtablo, ThePublishedTableOfAYearComesIntoItsFile) {
  HarcamaOrtami ortam;
  ASSERT_TRUE(OzelGvKaydet(ortam.oturum.DataPath, {}));
  auto& form = ortam.Ac<gvtablo>(ortam.parametreler);
  const auto al = [&](const char* yil) {
    form.findChild<QWidget*>("yil")->setFocus();
    ortam.Bas(Qt::Key_A, Qt::ControlModifier);
    ortam.Yaz(yil);
    for (auto* dugme : form.findChildren<QPushButton*>())
      if (dugme->text() == "Yayımlanan Tabloyu Al") dugme->click();
    return OzelGvYukle(ortam.oturum.DataPath).deger.GvLimit[0];
  };
  EXPECT_EQ(al("2006"), Tutar(3600));
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "over an empty table unasked";
  EXPECT_EQ(al("2007"), Tutar(3600));
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("2007 yılı için özel gider indirimi tablosu yok")));
  ortam.bildirim.cevap = false;
  EXPECT_EQ(al("2005"), Tutar(3600));
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("yerine yazılsın mı ?")));
}

}  // namespace
}  // namespace belvani::test
