#include "ui/uzunis.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QPointer>
#include <QStyleOption>
#include <QTimer>
#include <QWindow>
#include <algorithm>

#include "ui/ilerlemekarti.h"
#include "ui/metin.h"
#include "ui/ondeki.h"

namespace belvani {
namespace {

constexpr int GostermeGecikmesi = 400;  // ms, until the card shows
constexpr int TurAraligi = 40;          // ms, between two turns of the event loop
constexpr int EnUzunTur = 20;           // ms
constexpr int EnUzunBosaltma = 100;     // ms

// What comes from mouse, keyboard, pen and finger, and what would end a window or the program.
constexpr QEvent::Type Girdiler[] = {QEvent::MouseButtonPress,
                                     QEvent::MouseButtonRelease,
                                     QEvent::MouseButtonDblClick,
                                     QEvent::MouseMove,
                                     QEvent::NonClientAreaMouseButtonPress,
                                     QEvent::NonClientAreaMouseButtonRelease,
                                     QEvent::NonClientAreaMouseButtonDblClick,
                                     QEvent::KeyPress,
                                     QEvent::KeyRelease,
                                     QEvent::Shortcut,
                                     QEvent::ShortcutOverride,
                                     QEvent::InputMethod,
                                     QEvent::Wheel,
                                     QEvent::ContextMenu,
                                     QEvent::DragEnter,
                                     QEvent::DragMove,
                                     QEvent::Drop,
                                     QEvent::TabletMove,
                                     QEvent::TabletPress,
                                     QEvent::TabletRelease,
                                     QEvent::TouchBegin,
                                     QEvent::TouchUpdate,
                                     QEvent::TouchEnd,
                                     QEvent::TouchCancel,
                                     QEvent::NativeGesture,
                                     QEvent::Gesture,
                                     QEvent::GestureOverride,
                                     QEvent::HelpRequest,
                                     QEvent::Close,
                                     QEvent::Quit};

// A tooltip or an open list may go; a window that someone works in may not.
bool GecidiPencere(const QObject* nesne) {
  const auto* parca = qobject_cast<const QWidget*>(nesne);
  const auto* pencere = qobject_cast<const QWindow*>(nesne);
  const Qt::WindowType tur = parca != nullptr ? parca->windowType() : pencere != nullptr ? pencere->type() : Qt::Widget;
  return tur == Qt::ToolTip || tur == Qt::Popup;
}

bool GirdiMi(const QObject* nesne, const QEvent& olay) {
  if (olay.type() == QEvent::Close) return !GecidiPencere(nesne);
  // Going to another program is no leaving of a field, which might look its key up.
  if (olay.type() == QEvent::FocusOut)
    return static_cast<const QFocusEvent&>(olay).reason() == Qt::ActiveWindowFocusReason;
  return std::ranges::find(Girdiler, olay.type()) != std::end(Girdiler);
}

// A window inside the main window draws its close button itself.
bool KapatmaDugmesi(const QWidget& ust, const QMouseEvent& olay) {
  const QPoint nokta = olay.globalPosition().toPoint();
  const auto* pencere = qobject_cast<QMdiSubWindow*>(ust.childAt(ust.mapFromGlobal(nokta)));
  if (pencere == nullptr) return false;
  QStyleOptionTitleBar baslik;
  baslik.initFrom(pencere);
  baslik.subControls = QStyle::SC_All;
  baslik.titleBarFlags = pencere->windowFlags();
  baslik.rect.setHeight(pencere->style()->pixelMetric(QStyle::PM_TitleBarHeight, &baslik, pencere));
  return pencere->style()->hitTestComplexControl(QStyle::CC_TitleBar, &baslik, pencere->mapFromGlobal(nokta),
                                                 pencere) == QStyle::SC_TitleBarCloseButton;
}

// The watch over one work: keeps the user out, the windows painted, and shows the card.
class Nobet final : public QObject, public Ilerleme {
 public:
  Nobet(const QString& ad, QWidget* ust) : ad_(ad), ust_(ust), modal_(QApplication::activeModalWidget()) {
    calisan_ = this;
    gecen_.start();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    qApp->installEventFilter(this);
  }

  ~Nobet() override {
    qApp->removeEventFilter(this);
    delete kart_;
    QApplication::restoreOverrideCursor();
    calisan_ = nullptr;
  }

  static bool Var() { return calisan_ != nullptr; }

  bool Adim(std::size_t biten, std::size_t toplam) override {
    biten_ = biten;
    toplam_ = toplam;
    if (!sonTur_.isValid() || sonTur_.elapsed() >= TurAraligi) Tur();
    return Surer();
  }

  void Asama(std::string_view metin) override {
    asama_ = Yazi(metin);
    if (kart_ != nullptr) kart_->Asama(asama_);
    Tur();
  }

  bool Kesin() override {
    Tur();  // the last moment to give up
    if (!Surer()) return false;
    kesin_ = true;
    if (kart_ != nullptr) kart_->VazgecmeyiKapat();
    return true;
  }

  bool Vazgecildi() const override { return soylendi_; }

  // What was typed and clicked until now belongs to the work that is over.
  void Bosalt() {
    delete kart_;
    kesin_ = true;
    OlaylariIsle(EnUzunBosaltma);
  }

  bool eventFilter(QObject* nesne, QEvent* olay) override {
    if (olay->type() == QEvent::Resize && kart_ != nullptr && nesne == kart_->parentWidget()) kart_->Ortala();
    // A window that came up since, a message, is the user's to answer.
    if (QApplication::activeModalWidget() != modal_) return false;
    if (!GirdiMi(nesne, *olay) || KartaGider(nesne, *olay)) return false;
    if (Vazgecirir(*olay)) Vazgec();
    const bool istek = olay->type() == QEvent::Close || olay->type() == QEvent::Quit ||
                       olay->type() == QEvent::DragEnter || olay->type() == QEvent::DragMove;
    olay->setAccepted(!istek);
    return true;
  }

 private:
  void Tur() {
    if (kart_ == nullptr && ust_ != nullptr && gecen_.elapsed() >= GostermeGecikmesi) KartiAc();
    if (kart_ != nullptr) kart_->Goster(biten_, toplam_);
    OlaylariIsle(EnUzunTur);
    sonTur_.start();
  }

  void KartiAc() {
    kart_ = new IlerlemeKarti(ad_, ust_);
    kart_->Vazgecildi = [this] { Vazgec(); };
    kart_->Asama(asama_);
    if (vazgec_ || kesin_) kart_->VazgecmeyiKapat();
    kart_->show();
    kart_->raise();
    QApplication::changeOverrideCursor(Qt::BusyCursor);  // there is something to click on now
  }

  bool Vazgecirir(const QEvent& olay) const {
    if (olay.type() == QEvent::KeyPress) return static_cast<const QKeyEvent&>(olay).key() == Qt::Key_Escape;
    if (olay.type() == QEvent::MouseButtonPress)
      return ust_ != nullptr && KapatmaDugmesi(*ust_, static_cast<const QMouseEvent&>(olay));
    return olay.type() == QEvent::Close || olay.type() == QEvent::Quit;
  }

  void Vazgec() {
    if (kesin_) return;
    vazgec_ = true;
    if (kart_ != nullptr) kart_->VazgecmeyiKapat();
  }

  bool Surer() {
    if (vazgec_) soylendi_ = true;
    return !soylendi_;
  }

  // The mouse comes to the window first and then to the part below it; where it is pressed, it is also let go.
  bool KartaGider(const QObject* nesne, const QEvent& olay) {
    if (kart_ == nullptr || !olay.isSinglePointEvent()) return false;
    if (const auto* parca = qobject_cast<const QWidget*>(nesne)) return parca == kart_ || kart_->isAncestorOf(parca);
    const QWidget* pencere = kart_->window();
    if (nesne != pencere->windowHandle()) return false;
    const auto& fare = static_cast<const QSinglePointEvent&>(olay);
    const QRect yer(kart_->mapTo(pencere, QPoint()), kart_->size());
    const bool uzerinde = yer.contains(fare.scenePosition().toPoint());
    if (fare.isBeginEvent()) basili_ = uzerinde;
    return uzerinde || basili_;
  }

  static inline const Nobet* calisan_ = nullptr;

  QString ad_, asama_;
  QPointer<QWidget> ust_;
  const QWidget* modal_;
  QPointer<IlerlemeKarti> kart_;
  QElapsedTimer gecen_, sonTur_;
  std::size_t biten_ = 0, toplam_ = 0;
  bool vazgec_ = false;    // asked for
  bool soylendi_ = false;  // and the work was told
  bool kesin_ = false;
  bool basili_ = false;
};

QWidget* IsinPenceresi(EkranBaglami& baglam) {
  QWidget* pencere = OndekiPencere();
  return pencere != nullptr ? pencere : baglam.gosterici.ModalUst();
}

}  // namespace

bool uzunis::Yurut(EkranBaglami& baglam, const QString& ad, const std::function<void(Ilerleme&)>& is) {
  if (Nobet::Var()) return false;
  Nobet nobet(ad, IsinPenceresi(baglam));
  try {
    is(nobet);
  } catch (const Vazgecilmis&) {
    nobet.Bosalt();
    return false;
  } catch (...) {
    nobet.Bosalt();
    throw;
  }
  nobet.Bosalt();
  return true;
}

Yurutucu UzunYurutucu(EkranBaglami& baglam, const QString& ad) {
  return [&baglam, ad](const std::function<void(Ilerleme*)>& is) {
    return uzunis::Yurut(baglam, ad, [&](Ilerleme& ilerleme) { is(&ilerleme); });
  };
}

void IsBitince(QObject* sahip, std::function<void()> is) {
  QTimer::singleShot(Nobet::Var() ? TurAraligi : 0, sahip,
                     [sahip, is = std::move(is)] { Nobet::Var() ? IsBitince(sahip, is) : is(); });
}

void OlaylariIsle(int milisaniye) {
  QCoreApplication::processEvents(QEventLoop::AllEvents, milisaniye);
}

}  // namespace belvani
