#include "ui/ekran.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include "ui/form.h"

namespace belvani {
namespace {

constexpr QSize PencereKenari(16, 64);  // frame and title, with room for a bar of the desktop

// Whatever closes the window, typed work is asked about. It is as large as its screen asks for, where the display is.
class ModalPencere final : public QDialog {
 public:
  ModalPencere(Form& form, QWidget* ust) : QDialog(ust), form_(form) {}
  void reject() override {
    if (form_.KapanabilirMi()) QDialog::reject();
  }

 protected:
  void showEvent(QShowEvent* olay) override {
    if (!olay->spontaneous()) resize(sizeHint().boundedTo(screen()->availableSize() - PencereKenari));
    QDialog::showEvent(olay);
  }

 private:
  Form& form_;
};

}  // namespace

void FormGoster(EkranBaglami& baglam, std::unique_ptr<Form> form, FormModu mod) {
  if (mod == FormModu::Serbest) return baglam.gosterici.SerbestGoster(std::move(form));
  ModalPencere kutu(*form, baglam.gosterici.ModalUst());
  kutu.setWindowTitle(form->windowTitle());
  auto* duzen = new QVBoxLayout(&kutu);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSizeConstraint(QLayout::SetMinimumSize);
  duzen->addWidget(form.get());
  const QPointer<QWidget> onceki = QApplication::focusWidget();
  kutu.exec();
  duzen->removeWidget(form.get());
  form->setParent(nullptr);
  if (!onceki) return;
  onceki->activateWindow();
  onceki->setFocus();
}

}  // namespace belvani
