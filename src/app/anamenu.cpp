#include "app/anamenu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QShortcut>
#include <QTimer>

#include "app/gorun.h"
#include "app/hakkinda.h"
#include "app/menuharfi.h"
#include "app/yardim.h"
#include "core/session/firmabilgi.h"
#include "core/session/sinifbakimi.h"
#include "screens/core/Dbupdate.h"
#include "screens/core/yedekfrm.h"
#include "screens/personnel/personelformu.h"
#include "ui/metin.h"
#include "ui/simge.h"
#include "ui/stil.h"

namespace belvani {
namespace {

constexpr const char* GirisOzelligi = "giris";  // of a screen: the name of the entry that opened it
constexpr int BasamakAdimi = 26;                // between windows that open one after the other

QWidget* IlkOdak(QWidget* ekran) {
  for (QWidget* parca = ekran->nextInFocusChain(); parca != ekran; parca = parca->nextInFocusChain()) {
    const bool olur = ekran->isAncestorOf(parca) && parca->isVisibleTo(ekran) && parca->isEnabled();
    if (olur && (parca->focusPolicy() & Qt::TabFocus)) return parca;
  }
  return ekran;
}

// A menu in which nothing is seen is not seen either; true when something is.
bool BoslariGizle(const QWidget& menu) {
  bool dolu = false;
  for (QAction* giris : menu.actions()) {
    if (giris->menu() != nullptr) giris->setVisible(BoslariGizle(*giris->menu()));
    dolu = dolu || giris->isVisible();
  }
  return dolu;
}

}  // namespace

anamenu::anamenu(EkranBaglami& ekran, ParametreDeposu& parametreler)
    : ekran_(ekran), parametreler_(parametreler), alan_(new QMdiArea(this)), durum_(new DurumCubugu(this)) {
  setObjectName("anamenu");
  setCentralWidget(alan_);
  setStatusBar(durum_);
  alan_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  alan_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  alan_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  alan_->setFrameShape(QFrame::NoFrame);
  GorunumuUygula();
  MasaustuYap();
  MenuYap();
  TuslariBagla();
  YardimTusuKur(*qApp);
  FirmaDegisti();
  parametreler_.firma.Degisti = [this] { FirmaDegisti(); };
  resize(1280, 740);
}

anamenu::~anamenu() {
  parametreler_.firma.Degisti = [] {};
  hide();  // nobody is there to be asked any more, nor told
  qDeleteAll(alan_->subWindowList());
}

// What this computer shows for the company.
void anamenu::GorunumuUygula() {
  Oturum& o = ekran_.oturum;
  const GorunumAyari ayar = GorunumOku(o);
  const std::string eskiYol = o.ResimYolu;
  GorunumUygula(o, ayar);
  if (o.ResimYolu != eskiYol) RenkYukle(o);
  SimgelerKullanilsin(o.ResimKullan);
  SimgeSetiKoy(Yazi(o.PrgPath + o.ResimYolu));
  StilKur(*qApp, GecerliRenkler(o, ayar));
}

void anamenu::MasaustuYap() {
  masaustu_ = new Form1(ekran_, alan_->viewport());
  masaustu_->lower();
  masaustu_->Calistirilacak = [this](const Kisayol& k) { Calistir(k); };
  masaustu_->Islem = [this](MenuIslemi islem) { Islem(islem); };
  alan_->viewport()->installEventFilter(this);
  masaustu_->installEventFilter(this);
  connect(alan_, &QMdiArea::subWindowActivated, this, [this](const QMdiSubWindow* pencere) {
    if (masaustu_ == nullptr) return;
    masaustu_->lower();
    if (pencere == nullptr && alan_->subWindowList().isEmpty()) masaustu_->OdakAl();
  });
}

QMenu* anamenu::AltMenu(std::string_view yol) {
  QMenu* menu = nullptr;
  for (const QString& ad : Yazi(yol).split('/')) {
    QWidget* ust = menu == nullptr ? static_cast<QWidget*>(menuBar()) : menu;
    auto* var = ust->findChild<QMenu*>(ad, Qt::FindDirectChildrenOnly);
    if (var == nullptr) {
      var = menu == nullptr ? menuBar()->addMenu(ad) : menu->addMenu(ad);
      var->setObjectName(ad);
    }
    menu = var;
  }
  return menu;
}

void anamenu::MenuYap() {
  for (const EkranKaydi& kayit : Ekranlar()) {
    QAction* giris = AltMenu(kayit.menu)->addAction(Yazi(kayit.baslik));
    giris->setObjectName("mnu" + Yazi(GirisAdi(kayit)));
    giris->setVisible(Acilir(kayit));
    connect(giris, &QAction::triggered, this, [this, &kayit] { Ac(kayit); });
    girisler_.emplace_back(giris, &kayit);
  }
  BoslariGizle(*menuBar());
  MenuHarfleriKoy(*menuBar());
  SimgeleriKoy();
}

// Pictures take the text colour of the look in force.
void anamenu::SimgeleriKoy() {
  for (const auto& [giris, kayit] : girisler_)
    giris->setIcon(ekran_.oturum.ResimKullan ? MenuSimgesi(Yazi(kayit->simge)) : QIcon());
}

void anamenu::TuslariBagla() {
  const auto bagla = [this](const QKeySequence& tus, auto islev) {
    auto* kisayol = new QShortcut(tus, this);
    connect(kisayol, &QShortcut::activated, this, islev);
  };
  bagla(QKeySequence(Qt::CTRL | Qt::Key_D), [this] { MasaustuneGit(); });
  bagla(QKeySequence(Qt::CTRL | Qt::Key_PageUp), [this] { AyaGec(Yon::Onceki); });
  bagla(QKeySequence(Qt::CTRL | Qt::Key_PageDown), [this] { AyaGec(Yon::Sonraki); });
  bagla(Qt::Key_F10, [this] { menuBar()->setActiveAction(menuBar()->actions().value(0)); });
  bagla(QKeySequence(Qt::CTRL | Qt::Key_Tab), [this] { alan_->activateNextSubWindow(); });
  bagla(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab), [this] { alan_->activatePreviousSubWindow(); });
}

// F6 is the desktop's only where the screen has no use of its own for it.
void anamenu::keyPressEvent(QKeyEvent* olay) {
  if (olay->key() == Qt::Key_F6 && olay->modifiers() == Qt::NoModifier) return MasaustuneGit();
  QMainWindow::keyPressEvent(olay);
}

// A screen that several entries share may stand open for each of them.
bool anamenu::OneGetir(std::string_view kelime, std::string_view giris) {
  for (QMdiSubWindow* pencere : alan_->subWindowList()) {
    const QWidget* ekran = pencere->widget();
    if (ekran == nullptr || ekran->objectName() != Yazi(kelime)) continue;
    if (ekran->property(GirisOzelligi).toString() != Yazi(giris)) continue;
    masaustu_->lower();
    alan_->setActiveSubWindow(pencere);
    return true;
  }
  return false;
}

void anamenu::Ac(const EkranKaydi& kayit, std::string_view parametre) {
  if (kayit.islem != MenuIslemi::Yok) return Islem(kayit.islem);
  if (kayit.yap == nullptr || OneGetir(kayit.kelime, kayit.ad)) return;
  ekran_.oturum.PencereTip = parametre.empty() ? kayit.pencereTip : parametre;
  auto ekran = kayit.yap({ekran_, parametreler_});
  ekran->setProperty(GirisOzelligi, Yazi(kayit.ad));
  FormGoster(ekran_, std::move(ekran), kayit.mod);
}

void anamenu::Calistir(const Kisayol& kisayol) {
  const std::string_view program = KisayolProgramlari.at(kisayol.program);
  const EkranKaydi* kayit = KisayolEkrani(program);
  if (kayit == nullptr || !Acilir(*kayit))
    return ekran_.bildirim.Bilgi(std::string(program) + "\nBu ekran bu sürümde yok.");
  Ac(*kayit, kisayol.parametre);
}

void anamenu::Islem(MenuIslemi islem) {
  switch (islem) {
    case MenuIslemi::FirmaDegistir:
      firmaDegissin_ = true;
      close();
      break;
    case MenuIslemi::OncekiAy:
      AyaGec(Yon::Onceki);
      break;
    case MenuIslemi::SonrakiAy:
      AyaGec(Yon::Sonraki);
      break;
    case MenuIslemi::Cikis:
      close();
      break;
    case MenuIslemi::Yardim:
      YardimGoster("index");
      break;
    case MenuIslemi::Hakkinda:
      FormGoster(ekran_, std::make_unique<frmAbout>(ekran_), FormModu::Modal);
      break;
    case MenuIslemi::Gorunum:
      GorunumAc();
      break;
    case MenuIslemi::Guncelle:
      // Without its store the program cannot go on.
      if (VeritabaniGuncelleGoster(ekran_, parametreler_) == GuncellemeSonucu::ProgramBitsin) {
        ekran_.oturum.YazilanSorulsun = false;  // there is nothing left to save into
        close();
      }
      break;
    case MenuIslemi::Yedekler:
      // The company that another one has taken the place of is gone to anew.
      if (const auto yedek = YedekSectir(ekran_);
          yedek && AcikSirketeGetir(ekran_, *yedek, [this] { return EkranlariKapat(); })) {
        firmaDegissin_ = true;
        close();
      }
      break;
    case MenuIslemi::Yok:
      break;
  }
}

// A save of an earlier version could change it unasked. "No" is not asked again; the control report goes on naming it.
void anamenu::TehlikeSinifiniSor() {
  const Oturum& o = ekran_.oturum;
  if (!o.firmaVar || SinifBakimiOku(o.FirmaDizini) != SinifBakimi::Sorulmadi) return;
  if (const Durum d = SinifBakimiYaz(o.FirmaDizini, SinifBakimi::Soruldu); !d) ekran_.bildirim.KusuruGoster(d.Kusuru());
  if (ekran_.bildirim.Soru("İşyeri tehlike sınıfı: " + std::to_string(int(o.firma.sinif.Sayi()) + 1) +
                           "\nEski sürümlerde firma kartı kaydedilirken değişmiş olabilir.\nKarta bakılsın mı ?"))
    KisiyeGit({}, firma::sinif);
}

// Everybody who works in the company works in this month from then on.
void anamenu::AyaGec(Yon yon) {
  const auto donem = parametreler_.firma.KomsuDonem(yon);
  const auto metin = [](int ay, int yil) {
    return (ay < 1 || ay > 12 ? std::string("?") : std::string(AyAdi(ay))) + " " + std::to_string(yil);
  };
  const Firma& kart = ekran_.oturum.firma;
  if (!ekran_.bildirim.Soru("Şirket Dönemini Değiştirmeye Eminmisiniz ?\nŞimdiki Dönem: " +
                            metin(kart.firmaay, kart.firmayil) + "\nGeçilecek Dönem: " + metin(donem.ay, donem.yil)))
    return;
  if (const Durum gecildi = parametreler_.firma.DonemKaydir(yon); !gecildi)
    ekran_.bildirim.KusuruGoster(gecildi.Kusuru());
}

void anamenu::GorunumAc() {
  if (OneGetir("gorun")) return;
  // The desktop may be gone before the screen that takes its changes back.
  const auto goster = [hedef = masaustu_](const GorunumAyari& ayar) {
    if (hedef != nullptr) hedef->GorunumKoy(ayar);
  };
  FormGoster(ekran_, std::make_unique<gorun>(ekran_, goster));
}

void anamenu::MasaustuneGit() {
  QMdiSubWindow* pencere = alan_->currentSubWindow();
  const bool masaustunde = masaustu_->isAncestorOf(QApplication::focusWidget());
  if (!masaustunde) {
    masaustu_->raise();
    masaustu_->OdakAl();
    return;
  }
  masaustu_->lower();
  if (pencere == nullptr || pencere->widget() == nullptr) return;
  QWidget* odak = pencere->widget()->focusWidget();
  (odak != nullptr ? odak : pencere->widget())->setFocus(Qt::ShortcutFocusReason);
}

void anamenu::SerbestGoster(std::unique_ptr<Form> form) {
  Form* ekran = form.release();
  QPointer<QWidget> odak = ekran->focusWidget();  // what the screen has chosen itself
  ekran->setAttribute(Qt::WA_DeleteOnClose);
  QMdiSubWindow* pencere = alan_->addSubWindow(
      ekran, Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
  pencere->setAttribute(Qt::WA_DeleteOnClose);
  pencere->setWindowIcon({});
  pencere->installEventFilter(this);
  ekran->show();
  Yerlestir(*pencere);
  pencere->show();
  alan_->setActiveSubWindow(pencere);
  // The window inside the area gives the keyboard to the screen as a whole.
  if (odak == nullptr && ekran->focusWidget() != ekran) odak = ekran->focusWidget();
  (odak != nullptr ? odak.data() : IlkOdak(ekran))->setFocus(Qt::TabFocusReason);
}

// A field of the company's card is nobody's.
void anamenu::KisiyeGit(const std::string& kod, AlanTutamagi alan) {
  const bool firmanin = alan.kayit == typeid(Firma);
  const std::string kelime = firmanin ? "firbil" : Utf8(KisiEkrani(alan));
  Ac(*std::ranges::find(Ekranlar(), std::string_view(kelime), &EkranKaydi::kelime));
  if (auto* acik = qobject_cast<Form*>(alan_->currentSubWindow()->widget()); firmanin) return acik->OdakVer(alan);
  if (auto* acik = dynamic_cast<PersonelFormu*>(alan_->currentSubWindow()->widget())) acik->KisiyeGit(kod, alan);
}

// Where it stood last, else in the middle and a step aside for every window that is open; always wholly in view.
void anamenu::Yerlestir(QMdiSubWindow& pencere) {
  pencere.adjustSize();
  const QSize alan = alan_->viewport()->size();
  pencere.resize(pencere.size().boundedTo(alan));
  QPoint yer;
  if (const auto son = yerler_.find(pencere.widget()->objectName()); son != yerler_.end()) {
    yer = son->second;
  } else {
    const int basamak = BasamakAdimi * int(alan_->subWindowList().size() - 1);
    yer = QPoint((alan.width() - pencere.width()) / 2 + basamak, (alan.height() - pencere.height()) / 3 + basamak);
  }
  pencere.move(std::clamp(yer.x(), 0, std::max(0, alan.width() - pencere.width())),
               std::clamp(yer.y(), 0, std::max(0, alan.height() - pencere.height())));
}

void anamenu::FirmaDegisti() {
  setWindowTitle(Yazi(AnaPencereBasligi(ekran_.oturum)));
  masaustu_->BaslikYaz();
  durum_->Yaz(ekran_.oturum);
  for (QMdiSubWindow* pencere : alan_->subWindowList())
    if (auto* form = qobject_cast<Form*>(pencere->widget())) form->FirmaDegisti();
}

bool anamenu::EkranlariKapat() {
  QList<QMdiSubWindow*> acik = alan_->subWindowList(QMdiArea::CreationOrder);
  while (!acik.isEmpty()) {
    QMdiSubWindow* son = acik.takeLast();
    if (isVisible()) alan_->setActiveSubWindow(son);  // what it asks is asked in front of it
    if (!son->close()) return false;                  // a screen may have something to take back
    delete son;
  }
  return true;
}

void anamenu::showEvent(QShowEvent* olay) {
  QMainWindow::showEvent(olay);
  if (alan_->subWindowList().isEmpty()) masaustu_->OdakAl();
  QTimer::singleShot(0, masaustu_, &Form1::KusuruBildir);  // with the window behind it
}

void anamenu::closeEvent(QCloseEvent* olay) {
  if (!EkranlariKapat()) {
    firmaDegissin_ = false;
    return olay->ignore();
  }
  Birakilirken();
  olay->accept();
  Q_EMIT Kapandi();
}

void anamenu::changeEvent(QEvent* olay) {
  QMainWindow::changeEvent(olay);
  if (olay->type() == QEvent::PaletteChange || olay->type() == QEvent::StyleChange) SimgeleriKoy();
}

bool anamenu::eventFilter(QObject* nesne, QEvent* olay) {
  const bool alanDegisti = nesne == alan_->viewport() && olay->type() == QEvent::Resize;
  // Scrolling the area moves what is in it, the desktop too.
  const bool kaydi = nesne == masaustu_ && olay->type() == QEvent::Move && !masaustu_->pos().isNull();
  if (masaustu_ != nullptr && (alanDegisti || kaydi)) masaustu_->setGeometry(alan_->viewport()->rect());
  if (const auto* pencere = qobject_cast<QMdiSubWindow*>(nesne);
      pencere != nullptr && olay->type() == QEvent::Close && pencere->widget() != nullptr)
    yerler_[pencere->widget()->objectName()] = pencere->pos();
  return QMainWindow::eventFilter(nesne, olay);
}

}  // namespace belvani
