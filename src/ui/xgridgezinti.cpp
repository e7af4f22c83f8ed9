// The report grid under the hand: pages, order, search, copies.
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <algorithm>

#include "ui/metin.h"
#include "ui/tus.h"
#include "ui/xgrid.h"
#include "ui/xgridarama.h"

namespace belvani {
namespace {

bool CtrlIle(const QKeyEvent& olay, Qt::Key tus, Qt::KeyboardModifiers ek = Qt::NoModifier) {
  return olay.key() == tus && (olay.modifiers() & ~Qt::KeypadModifier) == (Qt::ControlModifier | ek);
}

}  // namespace

QComboBox* xgrid::SayfaSecici(QWidget* ust) {
  secici_ = new QComboBox(ust);
  connect(secici_, &QComboBox::activated, this, [this](int sayfa) { SayfaGoster(sayfa, 0); });
  SayfalariYaz();
  return secici_;
}

void xgrid::SayfalariYaz() {
  if (secici_ == nullptr) return;
  const int adet = model_->SayfaSayisi();
  secici_->clear();
  for (int s = 1; s <= adet; ++s) secici_->addItem(QStringLiteral("Sayfa %1 / %2").arg(s).arg(adet));
  secici_->setCurrentIndex(model_->Sayfa());
  secici_->setVisible(adet > 1);
}

void xgrid::SayfaGoster(int sayfa, int sira) {
  if (sayfa < 0 || sayfa >= model_->SayfaSayisi()) return;
  const int kolon = std::max(currentIndex().column(), 0);
  model_->SayfaKoy(sayfa);
  BloguYerlestir();
  if (secici_ != nullptr) secici_->setCurrentIndex(sayfa);
  setCurrentIndex(model_->index(sira < 0 ? model_->rowCount() - 1 : sira, kolon));
}

// The row is selected also where the cursor stands on it already: its record may have come there.
void xgrid::KaydaGit(int kayit, int kolon) {
  const int sayfa = model_->KayittakiSayfa(kayit);
  const int sira = model_->KaydinYeri(kayit) - model_->SayfaninIlki(sayfa);
  if (sayfa != model_->Sayfa()) SayfaGoster(sayfa, sira);
  selectionModel()->setCurrentIndex(model_->index(sira, kolon),
                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void xgrid::Sirala(int kolon) {
  if (kolon < 0 || kolon >= model_->columnCount()) return;
  const int kayit = model_->Kayit(currentIndex().row());
  std::optional<Qt::SortOrder> yon = Qt::AscendingOrder;
  if (model_->SiraKolonu() == kolon)
    yon = model_->SiraYonu() == Qt::AscendingOrder ? std::optional(Qt::DescendingOrder) : std::nullopt;
  model_->Sirala(kolon, yon);
  if (kayit >= 0) KaydaGit(kayit, kolon);
}

void xgrid::Kopyala(bool basliklarla) const {
  QModelIndexList secilen = selectionModel()->selectedRows();
  if (secilen.isEmpty() && currentIndex().isValid()) secilen = {currentIndex()};
  if (secilen.isEmpty()) return;
  std::ranges::sort(secilen, {}, &QModelIndex::row);
  const auto satir = [this](const auto& metin) {
    QStringList hucreler;
    for (int k = 0; k < model_->columnCount(); ++k) hucreler += metin(k);
    return hucreler.join('\t');
  };
  QStringList satirlar;
  if (basliklarla) satirlar += satir([this](int k) { return model_->Baslik(k).replace('\n', ' '); });
  for (const QModelIndex& yer : secilen) satirlar += satir([&](int k) { return model_->Metin(yer.row(), k); });
  QApplication::clipboard()->setText(satirlar.join('\n'));
}

QLineEdit* xgrid::AramaKutusu(QWidget* ust) {
  arama_ = new QLineEdit(ust);
  arama_->setPlaceholderText(QStringLiteral("Bul (Ctrl+F)"));
  arama_->setClearButtonEnabled(true);
  arama_->installEventFilter(this);
  connect(arama_, &QLineEdit::textChanged, this,
          [this](const QString& metin) { Arandi(metin.isEmpty() || Bul(metin, Yon::Ileri, true)); });
  return arama_;
}

void xgrid::AramayaGit() {
  if (arama_ == nullptr) return;
  arama_->setFocus(Qt::ShortcutFocusReason);
  arama_->selectAll();
}

void xgrid::SonrakiniBul(Yon yon) {
  if (arama_ == nullptr) return;
  if (arama_->text().isEmpty()) return AramayaGit();
  Arandi(Bul(arama_->text(), yon));
}

bool xgrid::Bul(const QString& aranan, Yon yon, bool simdikiDahil) {
  const Rapor& rapor = model_->Belgesi();
  const auto kolonSayisi = std::int64_t(rapor.Kolonlar().size());
  const std::int64_t adet = std::int64_t(rapor.Satirlar().size()) * kolonSayisi;
  if (adet == 0) return false;
  const xgridArama arama(rapor, Utf8(aranan));
  const int kayit = model_->Kayit(currentIndex().row());
  const std::int64_t adim = yon == Yon::Ileri ? 1 : -1;
  // From the sums below a page on: forth from the next page, back from the page's end.
  std::int64_t yer = kayit >= 0 ? model_->KaydinYeri(kayit) * kolonSayisi + currentIndex().column()
                                : model_->SayfaninSonu(model_->Sayfa()) * kolonSayisi - (adim > 0 ? 1 : 0);
  if (simdikiDahil && kayit >= 0) yer -= adim;
  for (std::int64_t i = 0; i < adet; ++i) {
    yer = (yer + adim + adet) % adet;
    const int aday = model_->YerdekiKayit(int(yer / kolonSayisi));
    if (!arama.Uyar(aday, int(yer % kolonSayisi))) continue;
    KaydaGit(aday, int(yer % kolonSayisi));
    return true;
  }
  return false;
}

void xgrid::keyboardSearch(const QString& harfler) {
  if (arama_ == nullptr) return QTableView::keyboardSearch(harfler);
  arama_->setFocus(Qt::OtherFocusReason);
  arama_->setText(harfler);
}

bool xgrid::SayfaTusu(const QKeyEvent& olay) {
  const bool geri = olay.key() == Qt::Key_PageUp;
  if (!geri && olay.key() != Qt::Key_PageDown) return false;
  const auto degistirici = olay.modifiers() & ~Qt::KeypadModifier;
  const int komsu = model_->Sayfa() + (geri ? -1 : 1);
  if (komsu < 0 || komsu >= model_->SayfaSayisi()) return degistirici == Qt::ControlModifier;
  if (degistirici == Qt::ControlModifier) {
    SayfaGoster(komsu, 0);
    return true;
  }
  const bool ucta = currentIndex().row() == (geri ? 0 : model_->rowCount() - 1);
  if (degistirici != Qt::NoModifier || !ucta) return false;
  SayfaGoster(komsu, geri ? -1 : 0);
  return true;
}

bool xgrid::AramaTusu(const QKeyEvent& olay) {
  if (olay.matches(QKeySequence::Find)) {
    AramayaGit();
    return true;
  }
  if (olay.key() != Qt::Key_F3) return false;
  SonrakiniBul(olay.modifiers() & Qt::ShiftModifier ? Yon::Geri : Yon::Ileri);
  return true;
}

void xgrid::keyPressEvent(QKeyEvent* olay) {
  if (Tus(*olay) || AramaTusu(*olay) || SayfaTusu(*olay)) return;
  if (olay->matches(QKeySequence::Copy)) return Kopyala(false);
  if (CtrlIle(*olay, Qt::Key_C, Qt::ShiftModifier)) return Kopyala(true);
  if (CtrlIle(*olay, Qt::Key_S)) return Sirala(currentIndex().column());
  if (olay->key() == Qt::Key_Escape || (olay->key() >= Qt::Key_F1 && olay->key() <= Qt::Key_F12)) {
    olay->ignore();  // to the screen
    return;
  }
  QTableView::keyPressEvent(olay);
}

// Ctrl+Home and Ctrl+End select the row that they go to, as all other steps do.
QItemSelectionModel::SelectionFlags xgrid::selectionCommand(const QModelIndex& yer, const QEvent* olay) const {
  if (olay != nullptr && olay->type() == QEvent::KeyPress) {
    const auto& tus = *static_cast<const QKeyEvent*>(olay);
    if (CtrlIle(tus, Qt::Key_Home) || CtrlIle(tus, Qt::Key_End))
      return QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;
  }
  return QTableView::selectionCommand(yer, olay);
}

// Keys of the search box: Enter goes to the next place, Down back to the rows.
bool xgrid::eventFilter(QObject* nesne, QEvent* olay) {
  if (nesne != arama_ || olay->type() != QEvent::KeyPress) return QTableView::eventFilter(nesne, olay);
  const auto& tus = *static_cast<QKeyEvent*>(olay);
  if (EnterMi(tus)) {
    SonrakiniBul(tus.modifiers() & Qt::ShiftModifier ? Yon::Geri : Yon::Ileri);
    return true;
  }
  if (tus.key() == Qt::Key_Down) {
    setFocus(Qt::OtherFocusReason);
    return true;
  }
  return AramaTusu(tus) || QTableView::eventFilter(nesne, olay);
}

}  // namespace belvani
