#include "ui/formyuzeyi.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "printing/cairotuval.h"
#include "ui/metin.h"
#include "ui/onizleme.h"

namespace belvani {
namespace {

constexpr double IncMm = 25.4;
constexpr double YuzeyBuyuklukleri[] = {70, 95, 120, 150, 190};  // dots per inch
constexpr int IlkYuzeyBuyuklugu = 1;
constexpr double KucukAdim = 0.5;  // millimetres
constexpr double BuyukAdim = 5;

}  // namespace

FormYuzeyi::FormYuzeyi(std::vector<FormSayfasi> sayfalar, QWidget* ust)
    : QWidget(ust), sayfalar_(std::move(sayfalar)), buyukluk_(IlkYuzeyBuyuklugu), duzenleyici_(new QLineEdit(this)) {
  if (sayfalar_.empty()) sayfalar_.emplace_back().boy = A4(KagitYonu::Dikey);
  setObjectName("yuzey");
  setFocusPolicy(Qt::StrongFocus);
  duzenleyici_->setObjectName("Text1");
  duzenleyici_->hide();
  duzenleyici_->installEventFilter(this);
  Sec(Alanlar().empty() ? -1 : 0);
  Yenile();
}

double FormYuzeyi::Olcek() const {
  return YuzeyBuyuklukleri[buyukluk_] / IncMm;
}

QRectF FormYuzeyi::Yer(const FormAlani& alan) const {
  return {alan.yer.x * Olcek(), alan.yer.y * Olcek(), alan.yer.en * Olcek(), alan.yer.boy * Olcek()};
}

void FormYuzeyi::Yenile() {
  resim_ = {};
  const KagitBoyu boy = sayfalar_[std::size_t(sayfa_)].boy;
  setFixedSize(int(boy.en * Olcek()), int(boy.boy * Olcek()));
  update();
}

void FormYuzeyi::SayfayaGit(int sayfa) {
  const int yeni = std::clamp(sayfa, 0, int(sayfalar_.size()) - 1);
  if (yeni == sayfa_) return;
  DuzenlemeyiBitir(true);
  sayfa_ = yeni;
  Yenile();
  Sec(Alanlar().empty() ? -1 : 0);
}

void FormYuzeyi::Buyut(int adim) {
  buyukluk_ = std::clamp(buyukluk_ + adim, 0, int(std::size(YuzeyBuyuklukleri)) - 1);
  Yenile();
}

void FormYuzeyi::Sec(int alan) {
  secili_ = alan;
  update();
  if (alan >= 0) Gorunsun(Yer(Alanlar()[std::size_t(alan)]).toAlignedRect());
}

void FormYuzeyi::paintEvent(QPaintEvent*) {
  if (resim_.isNull()) {
    ResimTuvali tuval(YuzeyBuyuklukleri[buyukluk_] * devicePixelRatioF(), 1);
    FormCiz(sayfalar_[std::size_t(sayfa_)], tuval);
    resim_ = NoktaResmi(tuval);
    resim_.setDevicePixelRatio(devicePixelRatioF());
  }
  QPainter cizici(this);
  cizici.drawImage(0, 0, resim_);
  if (secili_ < 0) return;
  cizici.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 2 : 1));
  cizici.drawRect(Yer(Alanlar()[std::size_t(secili_)]).adjusted(-1, -1, 1, 1));
}

int FormYuzeyi::AlanBul(QPointF nokta) {
  const auto& alanlar = Alanlar();
  for (std::size_t i = alanlar.size(); i-- > 0;)
    if (Yer(alanlar[i]).contains(nokta)) return int(i);
  return -1;
}

void FormYuzeyi::mousePressEvent(QMouseEvent* olay) {
  DuzenlemeyiBitir(true);
  setFocus();
  Sec(AlanBul(olay->position()));
  if (secili_ >= 0) tutulan_ = olay->position() - Yer(Alanlar()[std::size_t(secili_)]).topLeft();
}

void FormYuzeyi::mouseMoveEvent(QMouseEvent* olay) {
  if (secili_ < 0 || !(olay->buttons() & Qt::LeftButton)) return;
  const QPointF yer = (olay->position() - tutulan_) / Olcek();
  Tasi(yer.x(), yer.y());
}

void FormYuzeyi::mouseDoubleClickEvent(QMouseEvent* olay) {
  Sec(AlanBul(olay->position()));
  if (secili_ >= 0) Duzenle(Yazi(Alanlar()[std::size_t(secili_)].deger));
}

// To a place on the sheet; it cannot leave it.
void FormYuzeyi::Tasi(double x, double y) {
  FormAlani& alan = Alanlar()[std::size_t(secili_)];
  const KagitBoyu boy = sayfalar_[std::size_t(sayfa_)].boy;
  alan.yer.x = std::clamp(x, 0.0, std::max(0.0, boy.en - alan.yer.en));
  alan.yer.y = std::clamp(y, 0.0, std::max(0.0, boy.boy - alan.yer.boy));
  resim_ = {};
  Sec(secili_);
}

bool FormYuzeyi::focusNextPrevChild(bool ileri) {
  DuzenlemeyiBitir(true);
  const int sonraki = secili_ + (ileri ? 1 : -1);
  if (sonraki < 0 || sonraki >= int(Alanlar().size())) return QWidget::focusNextPrevChild(ileri);
  Sec(sonraki);
  return true;
}

void FormYuzeyi::keyPressEvent(QKeyEvent* olay) {
  if (secili_ < 0) return QWidget::keyPressEvent(olay);
  FormAlani& alan = Alanlar()[std::size_t(secili_)];
  const double adim = olay->modifiers() & Qt::ShiftModifier ? BuyukAdim : KucukAdim;
  switch (olay->key()) {
    case Qt::Key_Left:
      return Tasi(alan.yer.x - adim, alan.yer.y);
    case Qt::Key_Right:
      return Tasi(alan.yer.x + adim, alan.yer.y);
    case Qt::Key_Up:
      return Tasi(alan.yer.x, alan.yer.y - adim);
    case Qt::Key_Down:
      return Tasi(alan.yer.x, alan.yer.y + adim);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_F2:
      return Duzenle(Yazi(alan.deger));
    case Qt::Key_Delete:
      alan.deger.clear();
      return Yenile();
  }
  const QString harf = olay->text();
  if (!harf.isEmpty() && harf[0].isPrint()) return Duzenle(harf);
  QWidget::keyPressEvent(olay);
}

void FormYuzeyi::Duzenle(const QString& ilkMetin) {
  constexpr int enDar = 60;
  constexpr int enAlcak = 22;
  const QRect yer = Yer(Alanlar()[std::size_t(secili_)]).toAlignedRect();
  const QSize boy(std::max(enDar, yer.width()), std::max(enAlcak, yer.height()));
  duzenleyici_->setGeometry({QPoint(std::min(yer.x(), width() - boy.width()), yer.y()), boy});
  duzenleyici_->setText(ilkMetin);
  duzenleyici_->show();
  duzenleyici_->setFocus();
  duzenleyici_->end(false);
}

void FormYuzeyi::DuzenlemeyiBitir(bool alinsin) {
  if (!duzenleyici_->isVisible()) return;
  if (alinsin && secili_ >= 0) Alanlar()[std::size_t(secili_)].deger = Utf8(duzenleyici_->text());
  duzenleyici_->hide();
  setFocus();
  Yenile();
}

bool FormYuzeyi::eventFilter(QObject* nesne, QEvent* olay) {
  if (nesne != duzenleyici_) return QWidget::eventFilter(nesne, olay);
  if (olay->type() == QEvent::FocusOut) DuzenlemeyiBitir(true);
  if (olay->type() != QEvent::KeyPress) return false;
  const int tus = static_cast<QKeyEvent*>(olay)->key();
  const bool biter = tus == Qt::Key_Return || tus == Qt::Key_Enter || tus == Qt::Key_Escape;
  if (biter) DuzenlemeyiBitir(tus != Qt::Key_Escape);
  return biter;
}

}  // namespace belvani
