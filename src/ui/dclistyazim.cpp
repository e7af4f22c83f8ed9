// Typing into a list: the editor of a cell, what it takes and refuses, rows that come and go, and what is not saved
// yet.
#include <QComboBox>
#include <QLineEdit>

#include "core/tables/alan.h"
#include "ui/dclist.h"
#include "ui/dclistdenetim.h"
#include "ui/dclisthucre.h"
#include "ui/xtext.h"

namespace belvani {

// A row that the owner has not taken yet is offered to him.
bool dclist::OkUpdateData() {
  const int satir = CurSat();
  if (satir < 0 || bitiriliyor_) return true;
  if (state() == EditingState) {
    QWidget* duzenleyici = indexWidget(currentIndex());
    if (duzenleyici != nullptr && !HucreBitir(duzenleyici)) return false;
  }
  if (!model_->DegistiMi(satir)) return true;
  bitiriliyor_ = true;
  const bool alindi = SatirGuncelle(satir);
  bitiriliyor_ = false;
  if (alindi && satir < ListCount()) tazele(satir);
  return alindi;
}

bool dclist::Yazildi() const {
  const auto* acik = state() == EditingState ? qobject_cast<QLineEdit*>(indexWidget(currentIndex())) : nullptr;
  if (acik != nullptr && acik->text() != Text(CurSat(), CurrentCol())) return true;
  for (int satir = 0; satir < ListCount(); ++satir)
    if (model_->DegistiMi(satir)) return true;
  return std::ranges::any_of(gelen_, [this](const auto& g) { return Text(g.first.first, g.first.second) != g.second; });
}

void dclist::YazilaniUnut() {
  gelen_.clear();
}

void dclist::YazilaniBirak() {
  YazilaniUnut();
  for (int satir = 0; satir < ListCount(); ++satir) model_->Degisti(satir, false);
}

QWidget* dclist::DuzenleyiciYap(QWidget* ust, int kolon) const {
  const dclistKolonu& k = model_->Kolonlar()[std::size_t(kolon)];
  if (k.tip == dclistKolonu::Tip::Secim && !k.secenekler.isEmpty()) {
    auto* liste = new QComboBox(ust);
    liste->addItems(k.secenekler);
    return liste;
  }
  auto* yazi = new xtext(ust);
  switch (k.tip) {
    case dclistKolonu::Tip::Sayi:
      yazi->xTextBicim(xtext::Tip::Sayi, k.enCok > 0 ? k.enCok : sinir::EnCokTutar, Qt::AlignRight, true, k.ondalik,
                       k.grup);
      break;
    case dclistKolonu::Tip::Tarih:
      yazi->xTextBicim(xtext::Tip::Tarih, 0, Qt::AlignLeft, true);
      break;
    case dclistKolonu::Tip::Metin:
    case dclistKolonu::Tip::Secim:
      yazi->xTextBicim(xtext::Tip::Metin, k.enCok, Qt::AlignLeft, true);
      break;
  }
  yazi->setFrame(false);
  return yazi;
}

bool dclist::HucreBitir(QWidget* duzenleyici) {
  const int satir = CurSat();
  const int kolon = CurrentCol();
  const auto* liste = qobject_cast<QComboBox*>(duzenleyici);
  const auto* yazi = qobject_cast<QLineEdit*>(duzenleyici);
  QString metin = liste != nullptr ? liste->currentText() : yazi != nullptr ? yazi->text() : QString();
  // What the cell held may read otherwise in its editor (a zero as nothing): opened and left, it is as it was.
  if (yazi != nullptr && metin == yazi->property(IlkMetin).toString()) metin = model_->Metin(satir, kolon);
  const dclistKolonu& tanim = model_->Kolonlar()[std::size_t(kolon)];
  const QPointer<QWidget> duran(duzenleyici);
  bitiriliyor_ = true;  // a message box takes the focus; that does not complete the row
  const bool alinir = HucreDenetle(tanim, metin, bildirim_) && Dogrula(satir, tanim.ad, metin);
  bitiriliyor_ = false;
  if (!alinir) {
    if (duran && duran->isVisible()) duran->setFocus();  // a screen that is going takes the keyboard from nobody
    return false;
  }
  if (metin != model_->Metin(satir, kolon)) {
    gelen_.try_emplace({satir, kolon}, model_->Metin(satir, kolon));
    model_->MetinKoy(satir, kolon, metin);
    model_->Degisti(satir, true);
    bosSatir_ = QPersistentModelIndex();
    if (mod_ == Mod::Gezinme) mod_ = Mod::Duzeltme;
    HucreDegisti(satir, tanim.ad);
  }
  if (duran) {
    closeEditor(duran, QAbstractItemDelegate::NoHint);
    setFocus();
  }
  return true;
}

// Opens the next cell of the row that can be typed into; behind the last one the row is complete.
void dclist::SonrakiHucre() {
  const QModelIndex yer = currentIndex();
  for (int kolon = yer.column() + 1; kolon < model_->columnCount(); ++kolon) {
    const QModelIndex sonraki = yer.siblingAtColumn(kolon);
    if (isColumnHidden(kolon) || !(sonraki.flags() & Qt::ItemIsEditable)) continue;
    setCurrentIndex(sonraki);
    edit(sonraki);
    return;
  }
  if (!OkUpdateData()) return;
  mod_ = Mod::Gezinme;
  MoveNext();
  const QModelIndex ilk = currentIndex().siblingAtColumn(0);
  for (int kolon = 0; kolon < model_->columnCount(); ++kolon) {
    const QModelIndex hucre = ilk.siblingAtColumn(kolon);
    if (isColumnHidden(kolon) || !(hucre.flags() & Qt::ItemIsEditable)) continue;
    setCurrentIndex(hucre);
    return;
  }
}

// Opens the cell before this one that can be typed into; before the first the row is walked again.
void dclist::OncekiHucre() {
  const QModelIndex yer = currentIndex();
  for (int kolon = yer.column() - 1; kolon >= 0; --kolon) {
    const QModelIndex onceki = yer.siblingAtColumn(kolon);
    if (isColumnHidden(kolon) || !(onceki.flags() & Qt::ItemIsEditable)) continue;
    setCurrentIndex(onceki);
    edit(onceki);
    return;
  }
}

// The fresh row was left as it came. It goes when whatever has left it is done.
void dclist::BosSatiriBirak() {
  QMetaObject::invokeMethod(
      this,
      [this] {
        const QWidget* odak = QApplication::focusWidget();
        const bool uzerinde = bosSatir_.isValid() && bosSatir_.row() == currentIndex().row();
        if (!uzerinde || odak == nullptr || (odak != this && !isAncestorOf(odak))) BosSatiriSil();
      },
      Qt::QueuedConnection);
}

void dclist::BosSatiriSil() {
  const int sira = bosSatir_.isValid() ? bosSatir_.row() : -1;
  bosSatir_ = QPersistentModelIndex();
  if (sira < 0) return;
  const int satir = model_->GosterilenSatir(sira);
  if (!model_->DegistiMi(satir)) SatiriCikar(satir);
  mod_ = Mod::Gezinme;
}

void dclist::DuzenlemeyeBasla() {
  if (!currentIndex().isValid()) return YeniSatirAc();
  if (currentIndex().flags() & Qt::ItemIsEditable)
    edit(currentIndex());
  else
    SonrakiHucre();
}

void dclist::YeniSatirAc() {
  if (!duzenlenir_ || !yeniSatirli_ || !OkUpdateData()) return;
  BosSatiriSil();
  const int satir = Add();
  YeniSatir(satir);
  setCurrentIndex(model_->index(model_->GosterilenSira(satir), 0));
  mod_ = Mod::Ekleme;
  bosSatir_ = currentIndex();
  const bool gizli = isColumnHidden(0) || !(currentIndex().flags() & Qt::ItemIsEditable);
  gizli ? SonrakiHucre() : static_cast<void>(edit(currentIndex()));
}

void dclist::SimdikiSatiriSil() {
  const int satir = CurSat();
  if (satir < 0) return;
  bitiriliyor_ = true;
  const bool silindi = SatirSil(satir);
  bitiriliyor_ = false;
  if (silindi && satir < ListCount()) SatiriCikar(satir);
  mod_ = Mod::Gezinme;
}

// What was typed into it goes with it, and is asked about no more; what stands below moves up.
void dclist::SatiriCikar(int satir) {
  model_->SatirSil(satir);
  std::map<std::pair<int, int>, QString> kalan;
  for (const auto& [yer, metin] : gelen_)
    if (yer.first != satir) kalan[{yer.first - (yer.first > satir ? 1 : 0), yer.second}] = metin;
  gelen_ = std::move(kalan);
}

}  // namespace belvani
