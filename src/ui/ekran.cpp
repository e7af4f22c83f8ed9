#include "ui/ekran.h"

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QVBoxLayout>

#include "ui/form.h"

namespace belvani {
namespace {

// Whatever closes the window, typed work is asked about.
class ModalPencere final : public QDialog {
 public:
  ModalPencere(Form& form, QWidget* ust) : QDialog(ust), form_(form) {}
  void reject() override {
    if (form_.KapanabilirMi()) QDialog::reject();
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
