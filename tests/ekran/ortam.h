// A session on a fresh company, for tests that open screens and type into them key by key.
//
//   EkranOrtami ortam;
//   auto& kart = ortam.Ac<perkart>(ortam.parametreler);
//   ortam.Yaz("001\nIşıl\nÇağlar\n");           // Enter goes from field to field
//   ortam.Bas(Qt::Key_F5);
#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>
#include <vector>

#include "bildirim.h"
#include "gecici.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/mevzuat.h"
#include "printing/sahtekuyruk.h"
#include "printing/sahteport.h"
#include "printing/yazdir.h"
#include "ui/form.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani::test {

// What the file, folder, colour and font dialogs answer: what the test has put here.
struct BetikDialoglari final : Dialoglar {
  std::optional<std::string> dosya, dizin;
  std::optional<std::uint32_t> renk;
  std::optional<QFont> font;

  std::optional<std::string> DosyaAc(const std::string&, const std::string&, const std::string&) override {
    return dosya;
  }
  std::optional<std::string> DosyaKaydet(const std::string&, const std::string&, const std::string&) override {
    return dosya;
  }
  std::optional<std::string> DizinSec(const std::string&, const std::string&) override { return dizin; }
  std::optional<std::uint32_t> RenkSec(std::uint32_t) override { return renk; }
  std::optional<QFont> FontSec(const QFont&) override { return font; }
};

// Screens as bare windows, kept until the test ends.
struct PencereGosterici final : FormGosterici {
  std::vector<std::unique_ptr<Form>> formlar;

  void SerbestGoster(std::unique_ptr<Form> form) override {
    form->show();
    form->activateWindow();
    QApplication::setActiveWindow(form.get());
    formlar.push_back(std::move(form));
    QCoreApplication::processEvents();
  }
  QWidget* ModalUst() override { return nullptr; }
  void FirmaDegisti() {
    for (const auto& form : formlar) form->FirmaDegisti();
  }
};

inline void TusGonder(QWidget* hedef, int tus, Qt::KeyboardModifiers degistirici, const QString& metin) {
  for (const QEvent::Type tur : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent olay(tur, tus, degistirici, metin);
    QCoreApplication::sendEvent(hedef, &olay);
    QCoreApplication::processEvents();
    hedef = QApplication::focusWidget();
    if (hedef == nullptr) return;
  }
}

// What screens work with; no company is open.
struct EkranParcalari {
  EkranParcalari() {
    parametreler.firma.Degisti = [this] { gosterici.FirmaDegisti(); };
  }
  EkranParcalari(const EkranParcalari&) = delete;
  EkranParcalari& operator=(const EkranParcalari&) = delete;
  ~EkranParcalari() { gosterici.formlar.clear(); }

  // The company's working month, in the store and in the session.
  void DonemYaz(int yil, int ay) {
    oturum.depo.firma.IlkKayit();
    oturum.depo.firma.KayitDuzelt();
    oturum.depo.firma.AlanYaz("firmayil", std::int64_t(yil));
    oturum.depo.firma.AlanYaz("firmaay", std::int64_t(ay));
    EXPECT_TRUE(oturum.depo.firma.KayitYaz());
    FirmaYukle(oturum);
  }

  bool Acildi(const std::string& dosya) {
    acilanlar.push_back(dosya);
    return dosyaAcilir;
  }

  GeciciDizin dizin;
  ToplayanBildirim bildirim;
  Oturum oturum;
  ParametreDeposu parametreler{oturum};
  BetikDialoglari dialoglar;
  PencereGosterici gosterici;
  SahteKuyruk kuyruk;
  SahtePort port;
  std::vector<std::string> acilanlar;  // files and addresses handed to the user's programs
  bool dosyaAcilir = true;
  BaskiOrtami baski{.kuyruk = kuyruk,
                    .port = port,
                    .programDizini = dizin.Yol(),
                    .dosyaAc = [this](const std::string& dosya) { return Acildi(dosya); },
                    .adresAc = [this](const std::string& adres) { return Acildi(adres); }};
  EkranBaglami ekran{oturum, bildirim, dialoglar, gosterici, baski};
};

class EkranOrtami : public EkranParcalari {
 public:
  // The company TEST with the user "ayse", password "gizli", the law of July 2009, working month July 2009.
  EkranOrtami() {
    oturum.PrgPath = dizin.Yol() + "prg/";
    oturum.DataPath = dizin.Yol() + "veri/";
    oturum.BilgisayarAdi = "MASA1";
    std::filesystem::create_directories(oturum.PrgPath);
    std::filesystem::create_directories(oturum.DataPath);
    const auto yasal = MevzuatYukle(KaynakYolu("data/mevzuat/"), 2009, 7);
    EXPECT_TRUE(yasal);
    EXPECT_TRUE(YasalOranlarKaydet(oturum.DataPath, yasal->oranlar));
    EXPECT_TRUE(GvTablosuKaydet(oturum.DataPath, yasal->gv));
    EXPECT_TRUE(AgiTablosuKaydet(oturum.DataPath, yasal->agi));
    EXPECT_TRUE(SirketOlustur(oturum, "TEST", "ayse", "gizli"));
    EXPECT_TRUE(OturumAc(oturum, "TEST", "ayse", "gizli"));
    DonemYaz(2009, 7);
    parametreler.YasalYukle(oturum.DataPath);
    EXPECT_TRUE(parametreler.firma.Yukle());
    bildirim.Al();
  }

  // Opens a screen and gives it the keyboard.
  template <class Ekran, class... Arg>
  Ekran& Ac(Arg&&... arg) {
    gosterici.SerbestGoster(std::make_unique<Ekran>(ekran, std::forward<Arg>(arg)...));
    return static_cast<Ekran&>(*gosterici.formlar.back());
  }

  // Types into whatever has the focus; "\n" is Enter.
  static void Yaz(const char* metin) {
    for (const QChar harf : QString::fromUtf8(metin)) {
      QWidget* odak = QApplication::focusWidget();
      ASSERT_NE(odak, nullptr) << "the focus is lost before '" << QString(harf).toStdString() << "'";
      if (harf == '\n')
        TusGonder(odak, Qt::Key_Return, Qt::NoModifier, "\r");
      else
        TusGonder(odak, harf.toUpper().unicode(), Qt::NoModifier, QString(harf));
    }
  }
  static void Bas(Qt::Key tus, Qt::KeyboardModifiers degistirici = Qt::NoModifier) {
    QWidget* odak = QApplication::focusWidget();
    ASSERT_NE(odak, nullptr) << "the focus is lost";
    TusGonder(odak, tus, degistirici, {});
  }
  // Name of the field that has the focus.
  static std::string Odak() {
    const QWidget* odak = QApplication::focusWidget();
    return odak == nullptr ? "" : odak->objectName().toStdString();
  }
  // Runs `is` inside the next modal window that opens; slow work before it turns the event loop as well.
  static void ModaldaYap(std::function<void()> is) {
    ModaliBekle(std::move(is), QApplication::activeModalWidget(), 400);
  }

 private:
  static void ModaliBekle(std::function<void()> is, const QWidget* onceki, int deneme) {
    QTimer::singleShot(deneme == 400 ? 0 : 5, qApp, [is = std::move(is), onceki, deneme] {
      QWidget* modal = QApplication::activeModalWidget();
      if (modal == nullptr || modal == onceki) {
        ASSERT_GT(deneme, 0) << "no modal window came up";
        return ModaliBekle(is, onceki, deneme - 1);
      }
      QApplication::setActiveWindow(modal);
      is();
      if (modal != QApplication::activeModalWidget()) return;
      ADD_FAILURE() << "the modal window was not left";
      modal->close();
    });
  }
};

// The first field of that name, which a screen knows by its column.
inline AlanDenetimi& AlanBul(const Form& form, std::string_view ad) {
  for (const auto& d : form.Denetimler())
    if (d->Satir().tanim.ad == ad) return *d;
  throw std::out_of_range("no such field: " + std::string(ad));
}
inline xtext& YaziBul(const Form& form, std::string_view ad) {
  return *AlanBul(form, ad).YaziKutusu();
}

// The text of a field of a screen.
inline std::string AlanMetni(const Form& form, std::string_view ad) {
  return Utf8(YaziBul(form, ad).text());
}

}  // namespace belvani::test
