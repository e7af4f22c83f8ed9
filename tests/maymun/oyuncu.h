// Plays: one move at each turn of whatever event loop is running, so also inside of dialogs, message boxes and slow
// work. Each move is written into the journal before it is made, and judged after it.
#pragma once

#include <QClipboard>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <deque>

#include "maymun/denetci.h"
#include "maymun/gunluk.h"
#include "maymun/sahneler.h"

namespace belvani::test {

// A move that was chosen.
struct Hamle {
  std::string ad;
  Yazma yazma = Yazma::Yazmaz;
  std::function<void()> yap;
};

class Oyuncu {
 public:
  Oyuncu(MaymunOrtami& ortam, Gunluk& gunluk) : ortam_(ortam), gunluk_(gunluk), denetci_(ortam.VeriYeri()) {}
  Oyuncu(const Oyuncu&) = delete;
  Oyuncu& operator=(const Oyuncu&) = delete;

  // That many random moves; the scene is opened again whenever it was left.
  void Oyna(const Sahne& sahne, unsigned tohum, int adet);
  // These moves and no others, from the scene's opening on.
  void Oyna(const Sahne& sahne, std::deque<Hamle> hamleler);

  static Hamle TusHamlesi(const char* ad, Yazma yazma = Yazma::Yazmaz) {
    return {ad, yazma, [vurus = AdliVurus(ad)] { Vur(vurus); }};
  }
  static Hamle HarfHamlesi(QChar harf) {
    return {Utf8(harf), harf == ' ' ? Yazma::Dugmede : Yazma::Yazmaz, [=] { Vur(HarfVurusu(harf)); }};
  }

 private:
  struct Cerceve {
    std::string ad;
    bool yazabilir;
  };
  static constexpr int EnCokCikis = 400;  // moves until every window is left
  static constexpr std::size_t EnDerin = 24;

  void Ac(const Sahne& sahne);
  void Surdur(const Sahne& sahne);
  void SonraTik();
  void Tik();
  bool Dipte() const;
  bool Bitti() const { return kalan_ <= 0 && bekleyen_.empty(); }
  Hamle Sec();
  Hamle RastgeleHamle(Rastgele& rastgele);
  Hamle FareHamlesi(Rastgele& rastgele, const HamleSatiri& satir);
  Hamle CikisHamlesi();
  void Yap(const Hamle& hamle);
  void YazmayiDenetle(const std::string& hamle, bool yazabilir);
  void Dur(const std::string& kusur);

  static QWidget* Onde();
  static void PencereYonet(QWidget* ana);
  static void Vur(const TusVurusu& vurus);
  static void Tikla(QWidget* parca, QPoint yer, Qt::MouseButton dugme, bool cift);
  static std::string Durum();

  MaymunOrtami& ortam_;
  Gunluk& gunluk_;
  Denetci denetci_;
  QEventLoop dongu_;
  Rastgele rastgele_{0};
  Rastgele gurultu_{0};  // for keys that slow work drops: how many they are depends on the clock
  std::deque<Hamle> bekleyen_;
  std::vector<Cerceve> cerceveler_;  // moves that have not come back yet: a window stands in each
  Cerceve son_{"", true};
  bool birakilmaz_ = false;
  int kalan_ = 0;
  int cikis_ = 0;
};

inline void Oyuncu::Oyna(const Sahne& sahne, unsigned tohum, int adet) {
  rastgele_ = Rastgele(tohum);
  gurultu_ = Rastgele(tohum);
  kalan_ = adet;
  Surdur(sahne);
}

inline void Oyuncu::Oyna(const Sahne& sahne, std::deque<Hamle> hamleler) {
  bekleyen_ = std::move(hamleler);
  kalan_ = 0;
  Surdur(sahne);
}

inline void Oyuncu::Surdur(const Sahne& sahne) {
  cikis_ = 0;
  do {
    // As the program does, the login comes when its main window was left.
    Ac(ortam_.kapandi ? Sahne{"startfrm", GirisSahnesi} : sahne);
    dongu_.exec();
  } while (!Bitti() || ortam_.kapandi);
  SonraTik();  // a screen may have something to say while it closes
  son_ = {"closing", true};
  ortam_.pencere->EkranlariKapat();
  dongu_.exec();
}

inline void Oyuncu::Ac(const Sahne& sahne) {
  gunluk_.Yaz("== " + sahne.ad);
  son_ = {"opening " + sahne.ad, true};
  const QStringList ilk = QString(sahne.ilkTuslar).split(' ', Qt::SkipEmptyParts);
  for (auto ad = ilk.rbegin(); ad != ilk.rend(); ++ad)
    bekleyen_.push_front(TusHamlesi(ad->toUtf8().constData(), Yazma::Yazar));
  birakilmaz_ = sahne.birakilmaz;
  SonraTik();
  sahne.ac(ortam_);
}

// No window stands above the main one, and nothing is being done.
inline bool Oyuncu::Dipte() const {
  return dongu_.isRunning() && cerceveler_.empty() && QApplication::activeModalWidget() == nullptr &&
         QApplication::activePopupWidget() == nullptr;
}

// A timer and no posted event, which would keep paint and focus waiting; a new one, as one whose slot has not come back
// is not called again.
inline void Oyuncu::SonraTik() {
  auto* tik = new QTimer(qApp);
  tik->setSingleShot(true);
  QObject::connect(tik, &QTimer::timeout, qApp, [this, tik] {
    tik->deleteLater();
    Tik();
  });
  tik->start(MesgulMu() ? 5 : 0);
}

inline void Oyuncu::Tik() {
  gunluk_.Ilerledi();
  const bool acildi = son_.ad.starts_with("opening");  // at least one move is made in it
  const bool birakildi = !acildi && !birakilmaz_ && !ortam_.EkranVar() && bekleyen_.empty();
  if (Dipte() && (Bitti() || ortam_.kapandi || birakildi)) return dongu_.quit();
  SonraTik();
  if (MesgulMu()) return Yap(RastgeleHamle(gurultu_));
  PencereYonet(ortam_.pencere.get());
  const bool disardan = cerceveler_.empty();
  YazmayiDenetle(son_.ad, son_.yazabilir || (!disardan && cerceveler_.back().yazabilir));
  if (const std::string kusur = Denetci::Kusur(); !kusur.empty()) Dur("after " + son_.ad + ": " + kusur);
  Yap(Bitti() || cerceveler_.size() > EnDerin ? CikisHamlesi() : Sec());
}

inline void Oyuncu::Yap(const Hamle& hamle) {
  gunluk_.Yaz(Durum() + ": " + hamle.ad);
  // What is pressed while slow work runs is dropped; that work saves when it will.
  const bool yazabilir = MesgulMu() || Denetci::YazabilirMi(hamle.yazma);
  if (yazabilir)  // what waits below goes on when this window is left
    for (Cerceve& c : cerceveler_) c.yazabilir = true;
  cerceveler_.push_back({hamle.ad, yazabilir});
  hamle.yap();
  son_ = cerceveler_.back();
  cerceveler_.pop_back();
  if (!MesgulMu()) YazmayiDenetle(son_.ad, son_.yazabilir);
}

inline void Oyuncu::YazmayiDenetle(const std::string& hamle, bool yazabilir) {
  const std::string dosya = denetci_.Degisen();
  if (!dosya.empty() && !yazabilir) Dur(hamle + " has changed " + dosya + ", and is no key that saves");
}

// Nothing can be trusted any more after a fault.
inline void Oyuncu::Dur(const std::string& kusur) {
  gunluk_.KusurYaz(kusur);
  ::_exit(1);
}

inline Hamle Oyuncu::Sec() {
  if (!bekleyen_.empty()) {
    const Hamle hamle = std::move(bekleyen_.front());
    bekleyen_.pop_front();
    return hamle;
  }
  --kalan_;
  return RastgeleHamle(rastgele_);
}

// Out of everything: Esc, and any answer to what is asked then.
inline Hamle Oyuncu::CikisHamlesi() {
  if (++cikis_ > EnCokCikis) Dur("Esc does not leave " + Durum());
  const auto* soru = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  const bool soruldu = soru != nullptr;
  // Typed work goes only when its user says so: sooner or later, however many keys lie between two questions.
  for (QAbstractButton* dugme : soruldu ? soru->buttons() : QList<QAbstractButton*>())
    if (soru->buttonRole(dugme) == QMessageBox::DestructiveRole && cikis_ % 5 < 2)
      return {"drops what was typed", Yazma::Yazar, [dugme] { dugme->click(); }};
  return soruldu && cikis_ % 3 == 0 ? TusHamlesi("Return", Yazma::Yazar) : TusHamlesi("Esc");
}

inline Hamle Oyuncu::RastgeleHamle(Rastgele& rastgele) {
  const HamleSatiri& satir = rastgele.Hamle();
  switch (satir.tur) {
    case HamleTuru::Tus:
      return TusHamlesi(satir.tus, satir.yazma);
    case HamleTuru::AltHarfi: {
      const QChar harf = rastgele.Biri(Harfler);
      return {"Alt+" + Utf8(harf), satir.yazma, [=] { Vur(HarfVurusu(harf, Qt::AltModifier)); }};
    }
    case HamleTuru::Harf:
      return HarfHamlesi(rastgele.Biri(Harfler));
    case HamleTuru::Metin: {
      const QString metin = rastgele.Biri(Metinler);
      if (&rastgele == &rastgele_) {  // letter by letter, as windows may come up between them
        for (const QChar harf : metin) bekleyen_.push_back(HarfHamlesi(harf));
        bekleyen_.push_back(TusHamlesi("Return", Yazma::Dugmede));
      }
      return {"types " + Utf8(metin), satir.yazma, [] {}};
    }
    case HamleTuru::Yapistir: {
      const unsigned sira = rastgele.Sayi(9);
      return {"pastes text " + std::to_string(sira), satir.yazma, [=] {
                QApplication::clipboard()->setText(DusmanMetin(sira));
                Vur(AdliVurus("Ctrl+V"));
              }};
    }
    case HamleTuru::Tikla:
    case HamleTuru::CiftTikla:
    case HamleTuru::SagTikla:
    case HamleTuru::Tekerlek:
    case HamleTuru::Boyut:
      return FareHamlesi(rastgele, satir);
  }
  return {};
}

inline Hamle Oyuncu::FareHamlesi(Rastgele& rastgele, const HamleSatiri& satir) {
  QWidget* pencere = Onde();
  const unsigned a = rastgele.Sayi(1000), b = rastgele.Sayi(1000), c = rastgele.Sayi(10'000);
  if (satir.tur == HamleTuru::Boyut) {
    const QSize boy(240 + int(a) * 2, 160 + int(b));
    return {"resizes to " + std::to_string(boy.width()) + "x" + std::to_string(boy.height()), satir.yazma, [=] {
              if (pencere != nullptr && pencere->windowType() != Qt::Popup) pencere->resize(boy);
            }};
  }
  QList<QWidget*> parcalar;
  if (pencere != nullptr)
    for (QWidget* parca : pencere->findChildren<QWidget*>())
      if (parca->isVisible() && parca->window() == pencere && !parca->size().isEmpty()) parcalar += parca;
  if (parcalar.isEmpty()) return {"nothing to click on", Yazma::Yazmaz, [] {}};
  QWidget* parca = parcalar[c % parcalar.size()];
  const QPoint yer(int(a) * parca->width() / 1000, int(b) * parca->height() / 1000);
  const std::string uzerinde =
      " on " + ParcaAdi(parca) + " at " + std::to_string(yer.x()) + "," + std::to_string(yer.y());
  if (satir.tur == HamleTuru::Tekerlek)
    return {"turns the wheel" + uzerinde, satir.yazma, [=] {
              QWheelEvent olay(yer, parca->mapToGlobal(yer), {}, {0, a % 2 == 0 ? 120 : -120}, Qt::NoButton,
                               Qt::NoModifier, Qt::NoScrollPhase, false);
              QCoreApplication::sendEvent(parca, &olay);
            }};
  const Qt::MouseButton dugme = satir.tur == HamleTuru::SagTikla ? Qt::RightButton : Qt::LeftButton;
  const bool cift = satir.tur == HamleTuru::CiftTikla;
  return {(cift                       ? "double click"
           : dugme == Qt::RightButton ? "right click"
                                      : "click") +
              uzerinde,
          satir.yazma, [=] { Tikla(parca, yer, dugme, cift); }};
}

inline QWidget* Oyuncu::Onde() {
  QWidget* acilan = QApplication::activePopupWidget();
  return acilan != nullptr ? acilan : QApplication::activeWindow();
}

// What a window manager does when a window has come or gone.
inline void Oyuncu::PencereYonet(QWidget* ana) {
  if (QApplication::activePopupWidget() != nullptr) return;
  QWidget* etkin = QApplication::activeWindow();
  QWidget* modal = QApplication::activeModalWidget();
  QWidget* olmali = modal != nullptr ? modal : ana;
  const bool iyi =
      etkin != nullptr && etkin->isVisible() && (modal == nullptr || etkin == modal || modal->isAncestorOf(etkin));
  if (!iyi && olmali != nullptr) QApplication::setActiveWindow(olmali);
}

// The way of a real key: through the window, its shortcuts and whatever holds the keyboard.
inline void Oyuncu::Vur(const TusVurusu& vurus) {
  const QWidget* onde = Onde();
  const QPointer<QWindow> pencere = onde == nullptr ? nullptr : onde->windowHandle();
  if (pencere) qt_handleKeyEvent(pencere, QEvent::KeyPress, vurus.tus, vurus.degistirici, vurus.metin);
  if (pencere) qt_handleKeyEvent(pencere, QEvent::KeyRelease, vurus.tus, vurus.degistirici, vurus.metin);
}

inline void Oyuncu::Tikla(QWidget* parca, QPoint yer, Qt::MouseButton dugme, bool cift) {
  const QPointer<QWindow> pencere = parca->window()->windowHandle();
  const QPoint yerel = parca->mapTo(parca->window(), yer), genel = parca->mapToGlobal(yer);
  static int zaman = 0;
  zaman += cift ? 0 : 10'000;  // apart, unless a double click is meant
  const auto olay = [&](QEvent::Type tur, Qt::MouseButtons basili) {
    if (pencere) qt_handleMouseEvent(pencere, yerel, genel, basili, dugme, tur, Qt::NoModifier, ++zaman);
  };
  for (int i = 0; i < (cift ? 2 : 1); ++i) {
    olay(QEvent::MouseButtonPress, dugme);
    olay(QEvent::MouseButtonRelease, Qt::NoButton);
  }
}

inline std::string Oyuncu::Durum() {
  const QWidget* odak = QApplication::focusWidget();
  std::string ekran;
  for (const QWidget* ust = odak; ust != nullptr; ust = ust->parentWidget())
    if (qobject_cast<const Form*>(ust) != nullptr || ust->isWindow()) {
      ekran = ParcaAdi(ust);
      break;
    }
  return ekran + "/" + ParcaAdi(odak) + (MesgulMu() ? " (busy)" : "");
}

}  // namespace belvani::test
