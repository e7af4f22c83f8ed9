#include "screens/notices/diziyuvalari.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

#include "core/tables/sicil.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int AdHarfi = sicil::adi.boyut + 1 + sicil::soyadi.boyut;
constexpr int NoHarfi = sicil::sskno.boyut;
constexpr int TekerlekSatiri = 3;
constexpr int BaslikSatiri = 2;

}  // namespace

const std::array<DiziYuvalari::Kolon, 4> DiziYuvalari::Kolonlar{
    {{&DiziYuvalari::ilk_, &DiziSatiri::sskno, "xtext2", NoHarfi, 16},
     {&DiziYuvalari::ilk_, &DiziSatiri::adsoy, "xtext3", AdHarfi, 28},
     {&DiziYuvalari::tekrar_, &DiziSatiri::sskno, "xtext4", NoHarfi, 16},
     {&DiziYuvalari::tekrar_, &DiziSatiri::adsoy, "xtext5", AdHarfi, 28}}};

DiziYuvalari::DiziYuvalari(QWidget* ust)
    : QWidget(ust), ilk_(DiziSiniri), tekrar_(DiziSiniri), dik_(new QScrollBar(Qt::Vertical, this)) {
  auto* izgara = new QGridLayout(this);
  izgara->setContentsMargins(0, 0, 0, 0);
  izgara->setHorizontalSpacing(6);
  izgara->setVerticalSpacing(2);
  izgara->addWidget(new QLabel(QStringLiteral("Sigortalı ise İlk Defa İşe Girenler"), this), 0, 1, 1, 2);
  izgara->addWidget(new QLabel(QStringLiteral("Sigortalı ise Tekrar İşe Girenler"), this), 0, 3, 1, 2);
  const QStringList basliklar{"Sıra", "SSK No", "Adı Soyadı", "SSK No", "Adı Soyadı"};
  for (int k = 0; k < basliklar.size(); ++k) izgara->addWidget(new QLabel(basliklar[k], this), 1, k);
  for (int satir = 0; satir < GorunenSatir; ++satir) SatirYap(satir);
  dik_->setObjectName("dik");
  dik_->setRange(0, int(DiziSiniri) - GorunenSatir);
  dik_->setPageStep(GorunenSatir);
  izgara->addWidget(dik_, BaslikSatiri, int(basliklar.size()), GorunenSatir, 1);
  connect(dik_, &QScrollBar::valueChanged, this, [this] { Goster(); });
  Goster();
}

void DiziYuvalari::SatirYap(int satir) {
  auto* izgara = static_cast<QGridLayout*>(layout());
  QLabel*& sira = siralar_[std::size_t(satir)];
  sira = new QLabel(this);
  sira->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  izgara->addWidget(sira, BaslikSatiri + satir, 0);
  for (std::size_t k = 0; k < Kolonlar.size(); ++k) {
    const Kolon& kolon = Kolonlar[k];
    auto* yuva = yuvalar_[std::size_t(satir)][k] = new xtext(this);
    yuva->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(kolon.ad)).arg(satir));
    yuva->xTextBicim(xtext::Tip::Metin, kolon.harf, Qt::AlignLeft, true);
    yuva->setMinimumWidth(fontMetrics().averageCharWidth() * kolon.en + 12);
    yuva->installEventFilter(this);
    connect(yuva, &xtext::Change, this, [this, satir, &kolon, yuva] {
      (this->*kolon.liste)[std::size_t(dik_->value() + satir)].*kolon.uye = Utf8(yuva->text());
      Degisti();
    });
    izgara->addWidget(yuva, BaslikSatiri + satir, int(k) + 1);
  }
}

void DiziYuvalari::Koy(const DiziPusulasi& pusula) {
  ilk_ = pusula.ilk;
  tekrar_ = pusula.tekrar;
  ilk_.resize(DiziSiniri);
  tekrar_.resize(DiziSiniri);
  dik_->setValue(0);
  Goster();
}

DiziPusulasi DiziYuvalari::Oku() const {
  DiziPusulasi pusula{.ilk = ilk_, .tekrar = tekrar_};
  for (auto* liste : {&pusula.ilk, &pusula.tekrar})
    while (!liste->empty() && liste->back().Bos()) liste->pop_back();
  return pusula;
}

std::vector<QWidget*> DiziYuvalari::Yuvalar() const {
  std::vector<QWidget*> hepsi;
  for (const auto& satir : yuvalar_) hepsi.insert(hepsi.end(), satir.begin(), satir.end());
  return hepsi;
}

void DiziYuvalari::Kaydir(int satir) {
  dik_->setValue(dik_->value() + satir);
}

void DiziYuvalari::Goster() {
  for (int satir = 0; satir < GorunenSatir; ++satir) {
    const auto sira = std::size_t(dik_->value() + satir);
    siralar_[std::size_t(satir)]->setText(QString::number(sira + 1));
    for (std::size_t k = 0; k < Kolonlar.size(); ++k)
      yuvalar_[std::size_t(satir)][k]->DegerKoy((this->*Kolonlar[k].liste)[sira].*Kolonlar[k].uye);
  }
  if (auto* yuva = qobject_cast<xtext*>(focusWidget())) yuva->selectAll();
}

// The rows move under the keyboard where it would leave them.
bool DiziYuvalari::TusuAl(int satir, std::size_t kolon, int tus) {
  const bool enter = tus == Qt::Key_Return || tus == Qt::Key_Enter;
  const bool asagi = tus == Qt::Key_Down, yukari = tus == Qt::Key_Up;
  const bool sonKolon = kolon + 1 == Kolonlar.size();
  const auto git = [this](int yeni, std::size_t k) { yuvalar_[std::size_t(yeni)][k]->setFocus(Qt::TabFocusReason); };
  if (asagi || (enter && sonKolon)) {
    if (satir + 1 == GorunenSatir && dik_->value() == dik_->maximum()) return asagi;
    if (satir + 1 == GorunenSatir) Kaydir(1);
    git(std::min(satir + 1, GorunenSatir - 1), enter ? 0 : kolon);
    return true;
  }
  if (!yukari || (satir == 0 && dik_->value() == 0)) return false;
  if (satir == 0) Kaydir(-1);
  git(std::max(satir - 1, 0), kolon);
  return true;
}

bool DiziYuvalari::eventFilter(QObject* nesne, QEvent* olay) {
  if (olay->type() != QEvent::KeyPress) return QWidget::eventFilter(nesne, olay);
  const auto& tus = *static_cast<QKeyEvent*>(olay);
  if ((tus.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return QWidget::eventFilter(nesne, olay);
  for (int satir = 0; satir < GorunenSatir; ++satir)
    for (std::size_t k = 0; k < Kolonlar.size(); ++k)
      if (yuvalar_[std::size_t(satir)][k] == nesne) return TusuAl(satir, k, tus.key());
  return QWidget::eventFilter(nesne, olay);
}

void DiziYuvalari::wheelEvent(QWheelEvent* olay) {
  const int adim = olay->angleDelta().y();
  if (adim != 0) Kaydir(adim > 0 ? -TekerlekSatiri : TekerlekSatiri);
  olay->accept();
}

}  // namespace belvani
