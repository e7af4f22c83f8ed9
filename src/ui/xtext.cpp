#include "ui/xtext.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>

#include "core/sayi.h"
#include "core/store/imlec.h"
#include "core/turkce.h"
#include "ui/metin.h"
#include "ui/simge.h"

namespace belvani {
namespace {

constexpr int TarihBoyu = 10;

QString Gruplu(Tutar tutar, int ondalik, int grup) {
  std::string metin = TutarMetni(tutar, ondalik);
  if (grup == 0) std::erase(metin, ',');
  return Yazi(metin);
}

// The amount without grouping and without zeros at its end, as it would have been typed.
QString HamMetin(Tutar tutar, int ondalik) {
  std::string metin = TutarMetni(tutar, ondalik);
  std::erase(metin, ',');
  if (metin.find('.') != std::string::npos) {
    metin.erase(metin.find_last_not_of('0') + 1);
    if (metin.back() == '.') metin.pop_back();
  }
  return Yazi(metin);
}

Tutar HamDeger(const QString& ham) {
  QString metin = ham;
  if (metin.endsWith('.')) metin.chop(1);
  return TutarOku(Utf8(metin)).value_or(Tutar());
}

bool DuzenlemeTusu(const QKeyEvent& olay) {
  return olay.matches(QKeySequence::Copy) || olay.matches(QKeySequence::SelectAll) || olay.key() == Qt::Key_Home ||
         olay.key() == Qt::Key_End || olay.key() == Qt::Key_Left || olay.key() == Qt::Key_Right;
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
  grup_ = grup;
  tumunuSec_ = tumunuSec || tip != Tip::Metin;
  setAlignment((tip == Tip::Sayi ? Qt::AlignRight : hiza) | Qt::AlignVCenter);
  // Numbers and dates are typed by their own rules; the line editor only shows them.
  setMaxLength(tip == Tip::Metin && enCok > 0 ? int(enCok) : 32767);
  if (tip == Tip::Tarih) setMaxLength(TarihBoyu);
  setContextMenuPolicy(tip == Tip::Metin ? Qt::DefaultContextMenu : Qt::NoContextMenu);
  setAcceptDrops(tip == Tip::Metin);
}

Deger xtext::Value() const {
  switch (tip_) {
    case Tip::Sayi:
      return yuklenen_ ? *yuklenen_ : HamDeger(ham_);
    case Tip::Tarih: {
      const auto tarih = Tarih::MetinOku(Utf8(text()));
      return tarih.Bos() ? Deger(Null{}) : Deger(tarih);
    }
    case Tip::Metin:
      break;
  }
  return Utf8(text());
}

void xtext::DegerKoy(const Deger& deger) {
  ilkTus_ = true;
  switch (tip_) {
    case Tip::Sayi: {
      const Tutar tutar = TutarDegeri(deger);
      ham_ = tutar == Tutar() ? QString() : HamMetin(tutar, ondalik_);
      yuklenen_ = NullMu(deger) ? Deger(Tutar()) : deger;
      SayiyiGoster();
      break;
    }
    case Tip::Tarih:
      setText(Yazi(TarihDegeri(deger).Metin()));
      break;
    case Tip::Metin:
      setText(Yazi(MetinDegeri(deger)));
      setCursorPosition(0);
      break;
  }
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
  yuklenen_.reset();
  ham_.clear();
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
  if (tip_ == Tip::Metin) {
    QLineEdit::keyPressEvent(olay);
    return;
  }
  if (DuzenlemeTusu(*olay)) {
    ilkTus_ = false;
    QLineEdit::keyPressEvent(olay);
    return;
  }
  const bool yazilabilir = !isReadOnly();
  if (yazilabilir && olay->matches(QKeySequence::Paste)) return Yapistir();
  if (yazilabilir && olay->key() == Qt::Key_Delete) {
    xReset();
    Q_EMIT Change();
    return;
  }
  if (yazilabilir && olay->key() == Qt::Key_Backspace) return GeriSil();
  const bool yaziTusu = !olay->text().isEmpty() && olay->text().at(0).isPrint() &&
                        (olay->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
  if (!yaziTusu) {
    olay->ignore();  // to the screen
    return;
  }
  if (yazilabilir) HarfYaz(olay->text());
}

void xtext::inputMethodEvent(QInputMethodEvent* olay) {
  if (tip_ == Tip::Metin) {
    QLineEdit::inputMethodEvent(olay);
    return;
  }
  if (!isReadOnly()) HarfYaz(olay->commitString());
}

void xtext::HarfYaz(const QString& harfler) {
  yuklenen_.reset();
  for (const QChar harf : harfler) {
    if (std::exchange(ilkTus_, false) || HepsiSecili()) {
      ham_.clear();
      if (tip_ == Tip::Tarih) clear();
    }
    const bool alindi = tip_ == Tip::Sayi ? SayiHarfi(harf) : TarihHarfi(harf);
    if (!alindi) QApplication::beep();
  }
  if (tip_ == Tip::Sayi) SayiyiGoster();
  Q_EMIT Change();
}

bool xtext::HamSigar(const QString& ham) const {
  const qsizetype nokta = ham.indexOf('.');
  if (nokta >= 0 && ham.size() - nokta - 1 > ondalik_) return false;
  const auto deger = TutarOku(Utf8(ham));
  return deger && deger->Sayi() <= enCok_;
}

bool xtext::SayiHarfi(QChar harf) {
  if (harf == '.' || harf == ',') {
    if (ondalik_ == 0 || ham_.contains('.')) return true;  // passed over in silence
    ham_ += ham_.isEmpty() ? "0." : ".";
    return true;
  }
  const QString ek = harf == '+' ? QStringLiteral("000") : QString(harf);
  if ((harf != '+' && (harf < '0' || harf > '9')) || !HamSigar(ham_ + ek)) return false;
  ham_ += ek;
  return true;
}

bool xtext::TarihHarfi(QChar harf) {
  if (harf < '0' || harf > '9') return true;  // passed over in silence
  QString metin = text();
  if (metin.size() >= TarihBoyu) return false;
  metin += harf;
  if (metin.size() == 2 || (metin.size() == 5 && metin.at(2) == '.')) metin += '.';
  setText(metin);
  return true;
}

bool xtext::HepsiSecili() const {
  return !text().isEmpty() && selectedText() == text();
}

void xtext::GeriSil() {
  ilkTus_ = false;
  yuklenen_.reset();
  if (tip_ == Tip::Sayi) {
    HepsiSecili() ? ham_.clear() : ham_.chop(1);
    SayiyiGoster();
  } else {
    QString metin = hasSelectedText() ? QString() : text();
    const bool noktaSonda = metin.size() == 3 || metin.size() == 6;
    metin.chop(noktaSonda ? 2 : 1);
    setText(metin);
  }
  Q_EMIT Change();
}

void xtext::Yapistir() {
  const std::string metin = Utf8(QApplication::clipboard()->text().trimmed());
  if (tip_ == Tip::Sayi) {
    const auto tutar = TutarOku(metin);
    if (!tutar || *tutar < Tutar() || tutar->Sayi() > enCok_) return QApplication::beep();
    yuklenen_.reset();
    ham_ = HamMetin(*tutar, ondalik_);
    SayiyiGoster();
  } else {
    const auto tarih = Tarih::MetinOku(metin);
    if (tarih.Bos()) return QApplication::beep();
    setText(Yazi(tarih.Metin()));
  }
  ilkTus_ = false;
  Q_EMIT Change();
}

void xtext::SayiyiGoster() {
  const Tutar tutar = HamDeger(ham_);
  setText(tutar == Tutar() ? QString() : Gruplu(tutar, ondalik_, grup_));
  setCursorPosition(int(text().size()));
}

void xtext::focusInEvent(QFocusEvent* olay) {
  QLineEdit::focusInEvent(olay);
  ilkTus_ = true;
  if (tumunuSec_ || olay->reason() == Qt::TabFocusReason || olay->reason() == Qt::BacktabFocusReason) selectAll();
}

void xtext::focusOutEvent(QFocusEvent* olay) {
  QLineEdit::focusOutEvent(olay);
  if (olay->reason() == Qt::PopupFocusReason) return;
  Bitir();
  Q_EMIT Ayrildi();
}

void xtext::Bitir() {
  if (tip_ == Tip::Sayi) SayiyiGoster();
  if (tip_ != Tip::Tarih || Bos()) return;
  if (HataliTarih()) {
    setText(TarihMaskesi);
    setToolTip(" Hatalı Tarih ");
    return;
  }
  const Tarih tarih = TarihDegeri(Value());
  setText(Yazi(tarih.Metin()));
  setToolTip(Yazi(" " + tarih.UzunMetin() + " "));
}

}  // namespace belvani
