// belvani-resimler DATA_PATH COMPANY USER PASSWORD OUTPUT_DIRECTORY [WORD …]
//
// Opens every screen (or those whose words are given) on a company, fills it as a user would, and writes a picture of
// each. Meant for the documentation and for looking at the screens after a change; needs no display.
#include <QDir>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QTemporaryDir>
#include <QTimer>
#include <clocale>
#include <iostream>

#include "app/gosterici.h"
#include "app/program.h"
#include "app/yardim.h"
#include "screens/core/startfrm.h"
#include "screens/payroll/brckes.h"
#include "ui/dialogyok.h"
#include "ui/kusurlistesi.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/stil.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr int EkranSuresi = 50;  // ms, for a screen to come to rest

// Messages go to the terminal; every question is answered with no.
class MetinBildirimi final : public Bildirim {
 public:
  void Bilgi(std::string_view metin) override { std::cerr << metin << "\n"; }
  void Uyari(std::string_view metin) override { std::cerr << metin << "\n"; }
  bool Soru(std::string_view metin) override {
    std::cerr << metin << "\n";
    return false;
  }
  YazilanKarari YazilanSorusu(std::string_view) override { return YazilanKarari::Birak; }
};

// What is pressed before the picture is taken: keys by name, separated by blanks; other words are typed.
struct Doldurma {
  const char* kelime;
  const char* tuslar;
};
constexpr Doldurma Doldurmalar[] = {
    {"perkart", "Ctrl+Home PgDown"},
    {"nufus", "Ctrl+Home PgDown"},
    {"escofrm", "Ctrl+Home PgDown PgDown PgDown"},
    {"pergir", "Ctrl+Home PgDown"},
    {"percik", "Ctrl+Home PgDown"},
    {"yaylik", "F5"},
    {"kidemhes", "Ctrl+Home PgDown F4"},
    {"brdhazir", "Home PgDown PgDown PgDown Return F4"},
    {"sendtan", "F2 Return"},
    {"perbul", "Ay Return"},
    {"perdev", "Ctrl+Home"},
    {"kartxfrm", "Ctrl+Home"},
    {"percari", "Ctrl+Home PgDown"},
};

class Resimler : ProgramParcalari<MetinBildirimi, DialogYok> {
 public:
  Resimler(const QStringList& arg, QApplication& uygulama) : arg_(arg), uygulama_(uygulama) {}

  int Yap() {
    oturum.DataPath = Utf8(arg_[1]) + "/";
    oturum.PrgPath = oturum.DataPath;
    oturum.BilgisayarAdi = "MUHASEBE";
    QDir().mkpath(arg_[5]);
    if (Istenen("startfrm")) GirisResmi();
    if (!Gir()) return 1;
    anamenu pencere(ekran, parametreler);
    gosterici.pencere = &pencere;
    pencere.resize(1366, 728);
    pencere.show();
    if (Istenen("anamenu")) Kaydet(pencere, "anamenu");
    for (const EkranKaydi& kayit : Ekranlar())
      if (kayit.yap != nullptr && Istenen(Yazi(GirisAdi(kayit)))) EkranResmi(pencere, kayit);
    if (Istenen("pencere")) ModalResmi("pencere", [this] { PersonelSec(ekran, ""); });
    if (Istenen("brckes")) BorcResmi();
    if (Istenen("gorun")) {
      pencere.Islem(MenuIslemi::Gorunum);
      Kaydet(*pencere.findChild<QMdiArea*>()->activeSubWindow(), "gorun");
      pencere.EkranlariKapat();
    }
    if (Istenen("kusurlar")) KusurResmi(pencere);
    if (Istenen("frmAbout")) ModalResmi("frmAbout", [&] { pencere.Islem(MenuIslemi::Hakkinda); });
    if (Istenen("yardim")) {
      yardim guide(&pencere);
      guide.Ac("brdhazir");
      guide.show();
      Kaydet(guide, "yardim");
    }
    if (Istenen("anamenu-koyu")) {
      pencere.Ac(*KisayolEkrani("Personel Kartları"));
      Bas("Ctrl+Home");
      StilKur(uygulama_, KoyuRenkler());
      Kaydet(pencere, "anamenu-koyu");
      StilKur(uygulama_, AcikRenkler());
    }
    pencere.EkranlariKapat();
    gosterici.pencere = nullptr;
    return 0;
  }

 private:
  bool Istenen(const QString& kelime) const { return arg_.size() == 6 || arg_.mid(6).contains(kelime); }

  bool Gir() {
    if (const Durum d = SirketAc(oturum, Utf8(arg_[2])); !d) {
      std::cerr << d.KusurMetni() << "\n";
      return false;
    }
    if (!OturumAc(oturum, Utf8(arg_[2]), Utf8(arg_[3]), Utf8(arg_[4]))) return false;
    parametreler.YasalYukle(oturum.DataPath);
    if (const Durum d = parametreler.firma.Yukle(); !d) std::cerr << d.KusurMetni() << "\n";
    return true;
  }

  void Kaydet(QWidget& parca, const QString& kelime) {
    OlaylariIsle(EkranSuresi);
    parca.grab().save(arg_[5] + "/" + kelime + ".png");
  }

  static void Bas(const char* tuslar) {
    for (const QString& ad : QString::fromUtf8(tuslar).split(' ', Qt::SkipEmptyParts)) {
      const QKeySequence dizi(ad);
      const bool tusMu = ad.size() > 1 && dizi.count() == 1 && dizi[0].key() != Qt::Key_unknown;
      for (const QChar harf : tusMu ? QString("?") : ad) {
        QWidget* odak = QApplication::focusWidget();
        if (odak == nullptr) return;
        QKeyEvent olay(QEvent::KeyPress, tusMu ? int(dizi[0].key()) : harf.unicode(),
                       tusMu ? dizi[0].keyboardModifiers() : Qt::KeyboardModifiers(),
                       tusMu ? QString() : QString(harf));
        QCoreApplication::sendEvent(odak, &olay);
        OlaylariIsle(EkranSuresi);
      }
    }
  }

  void EkranResmi(anamenu& pencere, const EkranKaydi& kayit) {
    oturum.PencereTip = kayit.pencereTip;
    pencere.SerbestGoster(kayit.yap({ekran, parametreler}));
    OlaylariIsle(EkranSuresi);
    for (const Doldurma& d : Doldurmalar)
      if (GirisAdi(kayit) == d.kelime) Bas(d.tuslar);
    Kaydet(*pencere.findChild<QMdiArea*>()->activeSubWindow(), Yazi(GirisAdi(kayit)));
    pencere.EkranlariKapat();
  }

  // A window that stays until it is left: the picture is taken from inside, and Esc leaves it.
  void ModalResmi(const QString& kelime, const std::function<void()>& ac) {
    QTimer::singleShot(100, &uygulama_, [this, kelime] {
      QWidget* modal = QApplication::activeModalWidget();
      if (modal == nullptr) return;
      Kaydet(*modal, kelime);
      modal->close();
    });
    ac();
  }

  void GirisResmi() {
    ModalResmi("startfrm", [this] { startfrm(ekran).exec(); });
  }

  void BorcResmi() {
    BordroGirisi giris(oturum, parametreler, bildirim);
    for (const Kusur& soz : giris.Ac() ? giris.Git(Yon::Ilk).sozler : Kusurlar()) bildirim.KusuruGoster(soz);
    ModalResmi("brckes", [&] { FormGoster(ekran, std::make_unique<brckes>(ekran, giris), FormModu::Modal); });
  }

  void KusurResmi(anamenu& pencere) {
    KusurlariGoster(
        ekran,
        {{.metin = "Personel Giriş Tarihi Hatalı", .kod = "004", .derece = Derece::Uyari},
         {.metin = "Net sıfırın üstünde değil, bordrosu kaydedilmedi", .kod = "007", .derece = Derece::Uyari}},
        QStringLiteral("12 kişi kaydedildi, 1 kişi dönem dışı, 1 kişi netsiz"));
    Kaydet(*pencere.findChild<QMdiArea*>()->activeSubWindow(), "kusurlar");
    pencere.EkranlariKapat();
  }

  QStringList arg_;
  QApplication& uygulama_;
};

}  // namespace
}  // namespace belvani

int main(int argc, char** argv) {
  // The user's own settings stay out of the pictures, and the pictures out of them.
  const QTemporaryDir ayarlar;
  qputenv("BELVANI_KULLANICI_DIZIN", ayarlar.path().toUtf8());
  qputenv("BELVANI_MAKINE_AYAR", (ayarlar.path() + "/makine.ini").toUtf8());
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  belvani::MasaustuUygulamasi uygulama(argc, argv);
  std::setlocale(LC_NUMERIC, "C");
  const QStringList arg = QCoreApplication::arguments();
  if (arg.size() < 6) {
    std::cerr << "kullanım: belvani-resimler VERİ_DİZİNİ ŞİRKET KULLANICI ŞİFRE ÇIKTI_DİZİNİ [EKRAN …]\n";
    return 2;
  }
  belvani::CeviriYukle(uygulama);
  belvani::StilKur(uygulama, belvani::AcikRenkler());
  return belvani::Resimler(arg, uygulama).Yap();
}
