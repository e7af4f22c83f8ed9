#include "ui/ilerlemekarti.h"

#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "ui/xbutton.h"

namespace belvani {
namespace {

constexpr int EnAzEn = 340;
constexpr int Bolum = 1000;  // of the bar: a count may be larger than the bar's own numbers

}  // namespace

IlerlemeKarti::IlerlemeKarti(const QString& is, QWidget* ust)
    : QFrame(ust),
      asama_(new QLabel(this)),
      cubuk_(new QProgressBar(this)),
      vazgec_(new xButton(QStringLiteral("Vazgeç"), "kapat", this)) {
  setObjectName("ilerleme");
  setWindowTitle(QStringLiteral("Belvani"));
  setMinimumWidth(EnAzEn);
  auto* duzen = new QVBoxLayout(this);
  duzen->setContentsMargins(20, 16, 20, 14);
  duzen->setSpacing(8);
  auto* baslik = new QLabel(is, this);
  baslik->setProperty("baslik", true);
  asama_->setProperty("soluk", true);
  asama_->hide();
  cubuk_->setTextVisible(false);
  vazgec_->setFocusPolicy(Qt::NoFocus);
  vazgec_->setToolTip(QStringLiteral("Vazgeç (Esc)"));
  connect(vazgec_, &QPushButton::clicked, this, [this] { Vazgecildi(); });
  duzen->addWidget(baslik);
  duzen->addWidget(asama_);
  duzen->addWidget(cubuk_);
  duzen->addWidget(vazgec_, 0, Qt::AlignRight);
}

void IlerlemeKarti::Asama(const QString& metin) {
  asama_->setText(metin);
  asama_->setVisible(!metin.isEmpty());
  Ortala();
}

void IlerlemeKarti::Goster(std::size_t biten, std::size_t toplam) {
  cubuk_->setMaximum(toplam == 0 ? 0 : Bolum);
  if (toplam != 0) cubuk_->setValue(int(double(biten) / double(toplam) * Bolum));
}

void IlerlemeKarti::VazgecmeyiKapat() {
  vazgec_->setEnabled(false);
  vazgec_->repaint();  // the next turn may be far away
}

void IlerlemeKarti::Ortala() {
  adjustSize();
  if (parentWidget() != nullptr)
    move((parentWidget()->width() - width()) / 2, (parentWidget()->height() - height()) / 2);
}

}  // namespace belvani
