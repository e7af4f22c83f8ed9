// belvani-resimler DATA_PATH COMPANY USER PASSWORD OUTPUT_DIRECTORY [WORD …]
//
// Opens every screen of the registry (or those whose words are given) on a company and writes a picture of each. Meant
// for the documentation and for looking at the screens after a change; needs no display.
#include <QApplication>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <clocale>
#include <iostream>

#include "app/anamenu.h"
#include "ui/metin.h"
#include "ui/stil.h"

namespace belvani {
namespace {

// Messages go to the terminal; every question is answered with no.
class MetinBildirimi final : public Bildirim {
 public:
  void Bilgi(std::string_view metin) override { std::cerr << metin << "\n"; }
  void Uyari(std::string_view metin) override { std::cerr << metin << "\n"; }
  bool Soru(std::string_view metin) override {
    std::cerr << metin << "\n";
    return false;
  }
};

class DialogYok final : public Dialoglar {
 public:
  std::optional<std::string> DosyaAc(const std::string&, const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> DosyaKaydet(const std::string&, const std::string&, const std::string&) override {
    return {};
  }
  std::optional<std::string> DizinSec(const std::string&, const std::string&) override { return {}; }
  std::optional<std::uint32_t> RenkSec(std::uint32_t) override { return {}; }
  std::optional<QFont> FontSec(const QFont&) override { return {}; }
};

// The main window comes after the context that it is part of.
struct AracidanGosterici final : FormGosterici {
  anamenu* hedef = nullptr;
  void SerbestGoster(std::unique_ptr<Form> form) override { hedef->SerbestGoster(std::move(form)); }
  QWidget* ModalUst() override { return hedef; }
};

int ResimleriYap(const QStringList& arg) {
  MetinBildirimi bildirim;
  DialogYok dialoglar;
  AracidanGosterici gosterici;
  Oturum oturum;
  oturum.DataPath = Utf8(arg[1]) + "/";
  oturum.PrgPath = oturum.DataPath;
  if (const Durum d = SirketAc(oturum, Utf8(arg[2]), bildirim); !d) {
    std::cerr << d.HataMetni() << "\n";
    return 1;
  }
  if (!OturumAc(oturum, Utf8(arg[2]), Utf8(arg[3]), Utf8(arg[4]), bildirim)) return 1;
  ParametreDeposu parametreler;
  parametreler.YasalYukle(oturum.DataPath);
  if (const Durum d = parametreler.FirmaYukle(oturum); !d) std::cerr << d.HataMetni() << "\n";
  EkranBaglami ekran{oturum, bildirim, dialoglar, gosterici};
  anamenu pencere(ekran, parametreler);
  gosterici.hedef = &pencere;
  pencere.resize(1366, 728);
  pencere.show();
  QDir().mkpath(arg[5]);
  const QStringList istenen = arg.mid(6);
  QCoreApplication::processEvents();
  if (istenen.isEmpty()) pencere.grab().save(arg[5] + "/anamenu.png");
  for (const EkranKaydi& kayit : Ekranlar()) {
    const QString kelime = Yazi(kayit.kelime);
    if (kayit.yap == nullptr || (!istenen.isEmpty() && !istenen.contains(kelime))) continue;
    pencere.SerbestGoster(kayit.yap({ekran, parametreler}));
    QCoreApplication::processEvents();
    pencere.findChild<QMdiArea*>()->activeSubWindow()->grab().save(arg[5] + "/" + kelime + ".png");
    pencere.EkranlariKapat();
  }
  return 0;
}

}  // namespace
}  // namespace belvani

int main(int argc, char** argv) {
  // The user's own settings stay out of the pictures, and the pictures out of them.
  const QTemporaryDir ayarlar;
  qputenv("BELVANI_KULLANICI_DIZIN", ayarlar.path().toUtf8());
  qputenv("BELVANI_MAKINE_AYAR", (ayarlar.path() + "/makine.ini").toUtf8());
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication uygulama(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  if (uygulama.arguments().size() < 6) {
    std::cerr << "kullanım: belvani-resimler VERİ_DİZİNİ ŞİRKET KULLANICI ŞİFRE ÇIKTI_DİZİNİ [EKRAN …]\n";
    return 2;
  }
  belvani::CeviriYukle(uygulama);
  belvani::StilKur(uygulama, belvani::AcikRenkler());
  return belvani::ResimleriYap(uygulama.arguments());
}
