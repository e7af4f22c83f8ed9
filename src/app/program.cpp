#include "app/program.h"

#include <QEventLoop>
#include <QTimer>

#include "app/cikisyedegi.h"
#include "app/gosterici.h"
#include "app/sifrekutusu.h"
#include "app/yardim.h"
#include "core/sunucuadresi.h"
#include "screens/core/Dbupdate.h"
#include "screens/core/startfrm.h"
#include "ui/bildirimkutusu.h"
#include "ui/metin.h"
#include "ui/stil.h"

namespace belvani {
namespace {

class Program : ProgramParcalari<BildirimKutusu, SistemDialoglari> {
 public:
  explicit Program(QApplication& uygulama) : uygulama_(uygulama) {}

  int Yurut() {
    while (true) {
      const QString programDizini = QCoreApplication::applicationDirPath();
      const QString komutSatiri = QCoreApplication::arguments().mid(1).join(' ');
      const auto basladi = Baslat(oturum, Utf8(programDizini), Utf8(komutSatiri), bildirim);
      if (!basladi) bildirim.KusuruGoster(basladi.Kusuru());
      if (!basladi || !*basladi) return 1;
      for (const Kusur& soz : **basladi) bildirim.KusuruGoster(soz);
      StilKur(uygulama_, GecerliRenkler(oturum));
      if (GirisYap(ekran) == GirisSonucu::Cikis) return 0;
      parametreler.YasalYukle(oturum.DataPath);
      // A company whose parameters cannot be read is not opened: the login comes back.
      if (const Durum d = parametreler.firma.Yukle(); !d) {
        bildirim.KusuruGoster(d.Kusuru());
        SirketKapat(oturum);
        continue;
      }
      const bool yeniden = AnaPencere();
      SirketKapat(oturum);
      if (!yeniden) return 0;
    }
  }

 private:
  // True when another company was asked for.
  bool AnaPencere() {
    anamenu pencere(ekran, parametreler);
    gosterici.pencere = &pencere;
    pencere.Birakilirken = [this] { CikisYedegiAl(ekran); };
    QEventLoop dongu;
    QObject::connect(&pencere, &anamenu::Kapandi, &dongu, &QEventLoop::quit);
    pencere.showMaximized();
    QTimer nabiz;
    QObject::connect(&nabiz, &QTimer::timeout, [this] {
      if (oturum.icerde) (void)oturum.icerde->Yenile();  // a share that is away comes back, or its user notices it
    });
    nabiz.start(std::chrono::seconds(IcerdeYenilemeSaniyesi));
    bool devam = true;
    QTimer::singleShot(0, &pencere, [&] {  // with the window behind its messages
      const Durum yapi = YapiKontrol(oturum);
      if (!yapi) bildirim.KusuruGoster(yapi.Kusuru());
      devam = yapi || VeritabaniGuncelleGoster(ekran, parametreler) != GuncellemeSonucu::ProgramBitsin;
      devam ? pencere.TehlikeSinifiniSor() : dongu.quit();
    });
    dongu.exec();
    pencere.EkranlariKapat();
    gosterici.pencere = nullptr;
    return devam && pencere.FirmaDegissinMi();
  }

  QApplication& uygulama_;
};

}  // namespace

bool MasaustuUygulamasi::notify(QObject* alici, QEvent* olay) {
  try {
    return QApplication::notify(alici, olay);
  } catch (const std::exception& hata) {
    BildirimKutusu().Uyari("Beklenmeyen bir hata oldu; yapılan iş kaydedilmemiş olabilir.\n" +
                           std::string(hata.what()));
    return true;
  }
}

int ProgramiYurut(MasaustuUygulamasi& uygulama) {
  QApplication::setApplicationName(QStringLiteral("belvani"));
  QApplication::setApplicationDisplayName(QStringLiteral("Belvani"));
  QApplication::setQuitOnLastWindowClosed(false);
  CeviriYukle(uygulama);
  YardimTusuKur(uygulama);
  StilKur(uygulama, AcikRenkler());
  SifreSorucuKoy(SifreKutusu);
  return Program(uygulama).Yurut();
}

}  // namespace belvani
