#include "ui/xtext.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include "core/store/imlec.h"
#include "ui/metin.h"
#include "ui/simge.h"

namespace belvani {
namespace {

bool DuzenlemeTusu(const QKeyEvent& olay) {
  return olay.matches(QKeySequence::Copy) || olay.matches(QKeySequence::SelectAll) || olay.key() == Qt::Key_Home ||
         olay.key() == Qt::Key_End || olay.key() == Qt::Key_Left || olay.key() == Qt::Key_Right;
}

// Alt with a letter is a menu's or a button's; one that is nobody's types nothing.
bool AltHarfiMi(const QKeyEvent& olay) {
  const auto degistirici = olay.modifiers() & (Qt::AltModifier | Qt::ControlModifier);
  return degistirici == Qt::AltModifier && !olay.text().isEmpty() && olay.text().at(0).isPrint();
}

void SekmeGonder(QWidget* alan, int tus) {
  QKeyEvent bas(QEvent::KeyPress, tus, tus == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
  QApplication::sendEvent(alan, &bas);
}

}  // namespace

xtext::xtext(QWidget* ust) : QLineEdit(ust) {
  connect(this, &QLineEdit::textEdited, this, [this] {
    if (tip_ == Tip::Metin) Q_EMIT Change();
  });
}

void xtext::xTextBicim(Tip tip, double enCok, Qt::Alignment hiza, bool tumunuSec, int ondalik, int grup) {
  tip_ = tip;
  enCok_ = enCok;
  ondalik_ = ondalik;
  tumunuSec_ = tumunuSec || tip != Tip::Metin;
  setAlignment((tip == Tip::Sayi ? Qt::AlignRight : hiza) | Qt::AlignVCenter);
  switch (tip) {
    case Tip::Sayi:
      girdi_ = std::make_unique<SayiGirdisi>(SayiGirdisi::Bicim{enCok, ondalik, grup});
      break;
    case Tip::Tarih:
      girdi_ = std::make_unique<TarihGirdisi>();
      break;
    case Tip::Metin:
      girdi_.reset();
      break;
  }
  setMaxLength(tip == Tip::Metin && enCok > 0 ? int(enCok) : 32767);
  setContextMenuPolicy(tip == Tip::Metin ? Qt::DefaultContextMenu : Qt::NoContextMenu);
  setAcceptDrops(tip == Tip::Metin);
}

Deger xtext::Value() const {
  return girdi_ ? girdi_->Oku() : Utf8(text());
}

void xtext::DegerKoy(const Deger& deger) {
  if (girdi_) {
    girdi_->Yukle(deger);
    return GirdiyiGoster();
  }
  setText(Yazi(MetinDegeri(deger)));
  setCursorPosition(0);
}

bool xtext::HataliTarih() const {
  return tip_ == Tip::Tarih && !Bos() && NullMu(Value());
}

void xtext::GetRecord(Imlec& rs) {
  if (!alan_.empty()) DegerKoy(rs.AlanOku(alan_));
}

bool xtext::SetRecord(Imlec& rs) {
  if (alan_.empty() || HataliTarih()) return false;
  rs.AlanYaz(alan_, Value());
  return true;
}

void xtext::xReset() {
  if (girdi_) girdi_->Bosalt();
  clear();
  setToolTip({});
}

void xtext::ButonKoy(const QString& ipucu) {
  buton_ = new QToolButton(this);
  buton_->setIcon(Simge("ara"));
  buton_->setCursor(Qt::ArrowCursor);
  buton_->setFocusPolicy(Qt::NoFocus);
  buton_->setAutoRaise(true);
  buton_->setToolTip(ipucu + " (F2)");
  connect(buton_, &QToolButton::clicked, this, &xtext::Lookup);
  setTextMargins(0, 0, fontMetrics().height() + 6, 0);
}

// The picture takes the text colour of the look in force.
void xtext::changeEvent(QEvent* olay) {
  QLineEdit::changeEvent(olay);
  if (olay->type() == QEvent::PaletteChange && buton_ != nullptr) buton_->setIcon(Simge("ara"));
}

void xtext::resizeEvent(QResizeEvent* olay) {
  QLineEdit::resizeEvent(olay);
  if (buton_ == nullptr) return;
  const int boy = height() - 4;
  buton_->setGeometry(width() - boy - 2, 2, boy, boy);
}

bool xtext::OrtakTus(const QKeyEvent& olay) {
  switch (olay.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
      SekmeGonder(this, Qt::Key_Tab);
      return true;
    case Qt::Key_Up:
      SekmeGonder(this, Qt::Key_Backtab);
      return true;
    case Qt::Key_F2:
      if (buton_ == nullptr || olay.modifiers() != Qt::NoModifier) return false;
      Q_EMIT Lookup();
      return true;
    default:
      return false;
  }
}

void xtext::keyPressEvent(QKeyEvent* olay) {
  if (OrtakTus(*olay)) return;
  if (AltHarfiMi(*olay)) return olay->ignore();
  if (!girdi_) return QLineEdit::keyPressEvent(olay);
  if (DuzenlemeTusu(*olay)) {
    girdi_->Gezildi();
    return QLineEdit::keyPressEvent(olay);
  }
  const bool yazilabilir = !isReadOnly();
  if (yazilabilir && olay->matches(QKeySequence::Paste)) return Yapistir();
  if (yazilabilir && olay->matches(QKeySequence::Undo)) return GeriAl();
  if (yazilabilir && olay->key() == Qt::Key_Delete) return Bosalt();
  if (yazilabilir && olay->key() == Qt::Key_Backspace) return Uygula(girdi_->GeriSil(HepsiSecili()));
  const bool yaziTusu = !olay->text().isEmpty() && olay->text().at(0).isPrint() &&
                        (olay->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
  if (!yaziTusu) {
    olay->ignore();  // to the screen
    return;
  }
  if (yazilabilir) HarflerYaz(olay->text());
}

void xtext::inputMethodEvent(QInputMethodEvent* olay) {
  if (!girdi_) return QLineEdit::inputMethodEvent(olay);
  if (!isReadOnly()) HarflerYaz(olay->commitString());
}

void xtext::HarflerYaz(const QString& harfler) {
  for (const QChar harf : harfler) Uygula(girdi_->Yaz(harf.unicode(), HepsiSecili()));
}

void xtext::Uygula(TusSonucu sonuc) {
  switch (sonuc) {
    case TusSonucu::Alindi:
      GirdiyiGoster();
      Q_EMIT Change();
      return;
    case TusSonucu::Reddedildi:
      return QApplication::beep();
    case TusSonucu::Gecildi:
      return;
  }
}

bool xtext::HepsiSecili() const {
  return !text().isEmpty() && selectedText() == text();
}

void xtext::Yapistir() {
  Uygula(girdi_->Yapistir(Utf8(QApplication::clipboard()->text().trimmed())));
}

// Whole, so that the next key begins anew as it would have done then.
void xtext::GeriAl() {
  const TusSonucu sonuc = girdi_->GeriAl();
  Uygula(sonuc);
  if (sonuc == TusSonucu::Alindi) selectAll();
}

void xtext::Bosalt() {
  xReset();
  Q_EMIT Change();
}

void xtext::GirdiyiGoster() {
  setText(Yazi(girdi_->Metin()));
  setCursorPosition(int(text().size()));
}

void xtext::focusInEvent(QFocusEvent* olay) {
  QLineEdit::focusInEvent(olay);
  if (girdi_) girdi_->Girildi();
  if (tumunuSec_ || olay->reason() == Qt::TabFocusReason || olay->reason() == Qt::BacktabFocusReason) selectAll();
}

void xtext::focusOutEvent(QFocusEvent* olay) {
  QLineEdit::focusOutEvent(olay);
  if (olay->reason() == Qt::PopupFocusReason) return;
  Bitir();
  Q_EMIT Ayrildi();
}

void xtext::Bitir() {
  if (!girdi_) return;
  girdi_->Birakildi();
  GirdiyiGoster();
  if (tip_ != Tip::Tarih || Bos()) return;
  const Tarih tarih = TarihDegeri(Value());
  setToolTip(tarih.Bos() ? QStringLiteral(" Hatalı Tarih ") : Yazi(" " + tarih.UzunMetin() + " "));
}

}  // namespace belvani
