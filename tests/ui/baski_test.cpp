// From the print command to the printer, the preview and the file, by keys.
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "ekran/ortam.h"
#include "ekran/sirayla.h"
#include "printing/form/formbelgesi.h"
#include "printing/kolonlar.h"
#include "ui/basim.h"
#include "ui/onizleme.h"
#include "ui/perekr.h"
#include "ui/yzcsetup.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

struct Kisi {
  std::string ad;
  Tutar tutar;
};

std::shared_ptr<RaporBelgesi> Liste(int satir = 1) {
  static const Kolonlar<Kisi> kolonlar{
      {"Adı", 20, [](auto& k) { return k.ad; }},
      {"Tutar", 10, [](auto& k) { return k.tutar; }, KolonNiteligi::Toplanir},
  };
  Rapor rapor = RaporYap(kolonlar, std::vector<Kisi>(std::size_t(satir), {"Işıl Öğütçü", Tutar(1.5)}), 2);
  rapor.baslik = rapor.ekranBasligi = "LİSTE";
  YzcAyarlari ayar;
  ayar.YzcBaslik = "LİSTE";
  return std::make_shared<RaporBelgesi>(std::move(rapor), ayar);
}

const auto bas = [](Qt::Key tus) { return [tus] { EkranOrtami::Bas(tus); }; };

TEST(Basim, SettingsGoToThePrinter) {
  EkranOrtami ortam;
  const auto belge = Liste();
  EkranOrtami::ModaldaYap([&] {
    auto& form = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
    EXPECT_EQ(ortam.Odak(), "YzcBaslik");
    EXPECT_EQ(form.findChild<QLabel*>("yazici")->text(), "matris");
    ortam.Yaz("AYLIK ");  // the title is selected: typing replaces it
    AlanBul(form, "YzcKopya").Odak()->setFocus();
    ortam.Yaz("3");
    ortam.Bas(Qt::Key_F8);
  });
  BelgeBas(ortam.ekran, *belge);
  ASSERT_EQ(ortam.kuyruk.isler.size(), 1u);
  EXPECT_THAT(ortam.kuyruk.isler[0].ad, StartsWith("AYLIK"));
  EXPECT_EQ(ortam.kuyruk.isler[0].kopya, 3);
  EXPECT_THAT(ortam.kuyruk.isler[0].icerik, StartsWith("%PDF"));
}

// The preview comes back to the dialog; a PDF that cannot be written too, and nothing is lost.
TEST(Basim, PreviewAndPdf) {
  EkranOrtami ortam;
  const auto belge = Liste(200);
  const auto pdfBas = [] {
    QPushButton* dugme = nullptr;
    for (auto* d : QApplication::activeModalWidget()->findChildren<QPushButton*>())
      if (d->text().contains("PDF")) dugme = d;
    ASSERT_NE(dugme, nullptr);
    dugme->click();
  };
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "yok/liste";
  SiraylaYap({bas(Qt::Key_F6),
              [&] {
                auto& ekran = *QApplication::activeModalWidget()->findChild<onizleme*>();
                EXPECT_EQ(ekran.Sayfa(), 1);
                ortam.Bas(Qt::Key_PageDown);
                EXPECT_EQ(ekran.Sayfa(), 2);
                ortam.Bas(Qt::Key_End);
                EXPECT_EQ(ekran.findChild<QLabel*>("durum")->text(), QString("Sayfa %1 / %1").arg(ekran.Sayfa()));
                ortam.Bas(Qt::Key_Escape);
              },
              pdfBas,
              [&] {
                EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("dosya yazılamadı")));
                ortam.dialoglar.dosya = ortam.dizin.Yol() + "liste";
                pdfBas();
              }});
  BelgeBas(ortam.ekran, *belge);
  const std::string pdf = ortam.dizin.Yol() + "liste.pdf";
  EXPECT_THAT(DosyaOku(pdf).value_or(""), StartsWith("%PDF"));
  EXPECT_THAT(ortam.acilanlar, ElementsAre(pdf));
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Soru: Dosya kaydedildi:\n" + pdf + "\nAçılsın mı?"));
  EXPECT_TRUE(ortam.kuyruk.isler.empty());
}

TEST(Basim, TextPathAndNoPrinter) {
  EkranOrtami ortam;
  ortam.kuyruk.yazicilar.clear();
  const auto belge = Liste();
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "liste";
  SiraylaYap({[&] {
                auto& form = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
                EXPECT_EQ(form.findChild<QLabel*>("yazici")->text(), QString::fromUtf8(YaziciYok));
                ortam.Bas(Qt::Key_F8);
              },
              [&] {
                EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Uyarı: " + std::string(YaziciYok)));
                auto& form = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
                EXPECT_TRUE(AlanBul(form, "YzcYon").Odak()->isEnabled());
                AlanBul(form, "mod").Odak()->setFocus();
                ortam.Bas(Qt::Key_Right);
                EXPECT_FALSE(AlanBul(form, "YzcYon").Odak()->isEnabled());
                for (auto* d : form.findChildren<QPushButton*>())
                  if (d->text().contains("Dosyaya")) return d->click();
              }});
  BelgeBas(ortam.ekran, *belge);
  EXPECT_THAT(DosyaOku(ortam.dizin.Yol() + "liste.prn").value_or(""), HasSubstr("\r\nI\x9F\x8Dl "));
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Dosya kaydedildi:\n" + ortam.dizin.Yol() + "liste.prn"));
  BelgeBas(ortam.ekran, *std::make_shared<RaporBelgesi>(Rapor({})));
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Basılacak kayıt yok"));
}

// The extension that is put behind a name may lead to a file that is there: it is replaced after a question only.
TEST(Basim, NothingIsReplacedUnasked) {
  EkranOrtami ortam;
  const std::string yol = ortam.dizin.Yol() + "liste.xlsx";
  ASSERT_TRUE(DosyaYaz(yol, "benim"));
  ortam.dosyaAcilir = false;
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "liste";
  ortam.bildirim.cevap = false;
  BelgeExceleGonder(ortam.ekran, *Liste());
  EXPECT_EQ(DosyaOku(yol), "benim");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Uyarı: Excell Yüklü Değil veya Desteklenmeyen Versiyon",
                                               "Soru: " + yol + "\nBu dosya var. Üzerine yazılsın mı?"));
}

// The list on the screen goes to paper and spreadsheet in the order in which it stands.
TEST(Basim, ASortedGridPrintsAsItStands) {
  EkranOrtami ortam;
  Rapor rapor({{.baslik = "Adı", .kisaBaslik = "Adı", .en = 10}});
  for (const char* ad : {"Çınar", "Ali", "Işıl"}) rapor.Ekle({{std::string(ad)}});
  const auto belge = std::make_shared<RaporBelgesi>(std::move(rapor));
  BelgeEkranaListele(ortam.ekran, belge);
  auto& izleme = dynamic_cast<perekr&>(*ortam.gosterici.formlar.back());
  izleme.Xgrid1().Sirala(0);
  izleme.Xgrid1().yazexcell();
  ASSERT_EQ(ortam.acilanlar.size(), 1u);
  std::filesystem::remove_all(std::filesystem::path(ortam.acilanlar[0]).parent_path());
  EXPECT_THAT(belge->Metin(), HasSubstr("Ali\nÇınar\nIşıl\n"));
}

// What changes nothing on the paper is off and closed.
TEST(Basim, AStatutoryFormClosesItsSettings) {
  EkranOrtami ortam;
  YzcAyarlari ilk;
  ilk.YzcBaslik = "FORM";
  FormBelgesi form(ilk, {FormKurucu(A4(KagitYonu::Dikey)).Sayfa()}, "metin\n");
  EkranOrtami::ModaldaYap([&] {
    auto& ekran = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
    for (const char* ad : {"YzcBaslikYaz", "YzcTarihYaz", "YzcSayfaNoYaz", "YzcSirketYaz"}) {
      EXPECT_FALSE(AlanBul(ekran, ad).Odak()->isEnabled()) << ad;
      EXPECT_FALSE(std::get<bool>(AlanBul(ekran, ad).Oku())) << ad;
    }
    EXPECT_FALSE(AlanBul(ekran, "YzcYon").Odak()->isEnabled());
    AlanBul(ekran, "mod").Odak()->setFocus();
    ortam.Bas(Qt::Key_Right);
    EXPECT_FALSE(AlanBul(ekran, "YzcSatir").Odak()->isEnabled());
    EXPECT_TRUE(AlanBul(ekran, "YzcKopya").Odak()->isEnabled());
    ortam.Bas(Qt::Key_Left);
    ortam.Bas(Qt::Key_F8);
  });
  BelgeBas(ortam.ekran, form);
  EXPECT_EQ(ortam.kuyruk.isler.size(), 1u);
}

TEST(Basim, ASpreadsheetOpensOrTheFileStays) {
  EkranOrtami ortam;
  BelgeExceleGonder(ortam.ekran, *Liste());
  ASSERT_EQ(ortam.acilanlar.size(), 1u);
  EXPECT_THAT(ortam.acilanlar[0], testing::EndsWith(" LİSTE.xlsx"));
  EXPECT_THAT(DosyaOku(ortam.acilanlar[0]).value_or(""), StartsWith("PK"));
  std::filesystem::remove_all(std::filesystem::path(ortam.acilanlar[0]).parent_path());
  ortam.dosyaAcilir = false;
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "liste.xlsx";
  BelgeExceleGonder(ortam.ekran, *Liste());
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Uyarı: Excell Yüklü Değil veya Desteklenmeyen Versiyon",
                                               "Bilgi: Dosya kaydedildi:\n" + *ortam.dialoglar.dosya));
  EXPECT_THAT(DosyaOku(*ortam.dialoglar.dosya).value_or(""), StartsWith("PK"));
}

}  // namespace
}  // namespace belvani::test
