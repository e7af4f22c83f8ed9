#include "app/anamenu.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QMenuBar>

#include "core/session/firmabilgi.h"
#include "ui/metin.h"
#include "ui/simge.h"

namespace belvani {

anamenu::anamenu(EkranBaglami& ekran, ParametreDeposu& parametreler)
    : ekran_(ekran), parametreler_(parametreler), alan_(new QMdiArea(this)) {
  setObjectName("anamenu");
  setCentralWidget(alan_);
  alan_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  alan_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  alan_->setActivationOrder(QMdiArea::ActivationHistoryOrder);
  MenuYap();
  BaslikDegisti();
  resize(1280, 740);
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
    QAction* giris = AltMenu(kayit.menu)->addAction(Simge(Yazi(kayit.simge)), Yazi(kayit.baslik));
    giris->setObjectName("mnu" + Yazi(kayit.kelime));
    giris->setEnabled(kayit.yap != nullptr || kayit.islem != MenuIslemi::Yok);
    connect(giris, &QAction::triggered, this, [this, &kayit] { Ac(kayit); });
  }
}

void anamenu::Ac(const EkranKaydi& kayit) {
  if (kayit.islem != MenuIslemi::Yok) return Islem(kayit.islem);
  if (kayit.yap == nullptr) return;
  for (QMdiSubWindow* pencere : alan_->subWindowList()) {
    if (pencere->widget() == nullptr || pencere->widget()->objectName() != Yazi(kayit.kelime)) continue;
    alan_->setActiveSubWindow(pencere);
    return;
  }
  FormGoster(ekran_, kayit.yap({ekran_, parametreler_}), kayit.mod);
}

void anamenu::Islem(MenuIslemi islem) {
  switch (islem) {
    case MenuIslemi::FirmaDegistir:
      firmaDegissin_ = true;
      close();
      break;
    case MenuIslemi::Cikis:
      close();
      break;
    case MenuIslemi::Yardim:
    case MenuIslemi::Hakkinda:
    case MenuIslemi::Gorunum:
    case MenuIslemi::Yok:
      break;
  }
}

void anamenu::SerbestGoster(std::unique_ptr<Form> form) {
  Form* ekran = form.release();
  ekran->setAttribute(Qt::WA_DeleteOnClose);
  QMdiSubWindow* pencere = alan_->addSubWindow(ekran, Qt::SubWindow | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                                                          Qt::WindowCloseButtonHint);
  pencere->setAttribute(Qt::WA_DeleteOnClose);
  pencere->setWindowIcon({});
  ekran->show();
  pencere->adjustSize();
  pencere->show();
  alan_->setActiveSubWindow(pencere);
}

void anamenu::BaslikDegisti() {
  setWindowTitle(Yazi(AnaPencereBasligi(ekran_.oturum)));
}

void anamenu::EkranlariKapat() {
  QList<QMdiSubWindow*> acik = alan_->subWindowList();
  while (!acik.isEmpty()) delete acik.takeLast();
}

void anamenu::closeEvent(QCloseEvent* olay) {
  EkranlariKapat();
  olay->accept();
  Q_EMIT Kapandi();
}

bool anamenu::eventFilter(QObject* nesne, QEvent* olay) {
  return QMainWindow::eventFilter(nesne, olay);
}

}  // namespace belvani
