#include "ui/dclisthucre.h"

#include <QComboBox>
#include <QKeyEvent>

#include "core/sayi.h"
#include "ui/dclist.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

void EditoreKoy(xtext& kutu, const QString& metin) {
  switch (kutu.TextTip()) {
    case xtext::Tip::Sayi:
      kutu.DegerKoy(TutarOku(Utf8(metin)).value_or(Tutar()));
      break;
    case xtext::Tip::Tarih:
      kutu.DegerKoy(Tarih::MetinOku(Utf8(metin)));
      break;
    case xtext::Tip::Metin:
      kutu.DegerKoy(Utf8(metin));
      break;
  }
}

}  // namespace

dclistHucre::dclistHucre(dclist& liste) : QStyledItemDelegate(&liste), liste_(liste) {}

QWidget* dclistHucre::createEditor(QWidget* ust, const QStyleOptionViewItem&, const QModelIndex& yer) const {
  return liste_.DuzenleyiciYap(ust, yer.column());
}

void dclistHucre::setEditorData(QWidget* duzenleyici, const QModelIndex& yer) const {
  const QString metin = yer.data().toString();
  if (auto* secim = qobject_cast<QComboBox*>(duzenleyici)) {
    // "4" alone means the choice whose code it is.
    const int tam = secim->findText(metin);
    secim->setCurrentIndex(std::max(0, tam >= 0 ? tam : secim->findText(metin, Qt::MatchStartsWith)));
    return;
  }
  auto* yazi = static_cast<xtext*>(duzenleyici);
  EditoreKoy(*yazi, metin);
  yazi->setProperty(IlkMetin, yazi->text());
}

bool dclistHucre::eventFilter(QObject* nesne, QEvent* olay) {
  auto* duzenleyici = qobject_cast<QWidget*>(nesne);
  if (duzenleyici == nullptr) return false;
  if (olay->type() == QEvent::FocusOut) {
    // Another cell or field was gone to: what was typed is taken if it can stand. A message box or a drop-down list is
    // no reason to end, and where the window goes nobody is there to be told.
    const auto neden = static_cast<QFocusEvent*>(olay)->reason();
    const bool kutu = neden == Qt::PopupFocusReason || neden == Qt::ActiveWindowFocusReason;
    if (!kutu && !liste_.Bitiriliyor() && liste_.window()->isVisible()) liste_.HucreBitir(duzenleyici);
    return false;
  }
  if (olay->type() != QEvent::KeyPress) return QStyledItemDelegate::eventFilter(nesne, olay);
  const auto& tus = *static_cast<QKeyEvent*>(olay);
  const bool asagi = tus.key() == Qt::Key_Down && qobject_cast<QComboBox*>(nesne) == nullptr;
  switch (tus.key()) {
    case Qt::Key_Escape:
      Q_EMIT closeEditor(duzenleyici, RevertModelCache);
      liste_.setFocus();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Down:
      if (tus.key() == Qt::Key_Down && !asagi) return false;
      if (liste_.HucreBitir(duzenleyici)) liste_.SonrakiHucre();
      return true;
    case Qt::Key_Up:
    case Qt::Key_Backtab:
      if (qobject_cast<QComboBox*>(nesne) != nullptr && tus.key() == Qt::Key_Up) return false;
      if (liste_.HucreBitir(duzenleyici)) liste_.OncekiHucre();
      return true;
    default:
      // Lookup, save and the like belong to the screen.
      if (tus.key() >= Qt::Key_F1 && tus.key() <= Qt::Key_F12) return liste_.Tus(tus);
      return false;
  }
}

}  // namespace belvani
