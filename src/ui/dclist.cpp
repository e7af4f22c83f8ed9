#include "ui/dclist.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <map>

#include "core/tables/alan.h"
#include "ui/dclistdenetim.h"
#include "ui/dclisthucre.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct KolonHarfi {
  QChar harf;
  dclistKolonu::Tip tip;
  bool salt;
};

constexpr std::array<KolonHarfi, 8> KolonHarfleri{{
    {u'a', dclistKolonu::Tip::Metin, false},
    {u'n', dclistKolonu::Tip::Sayi, false},
    {u't', dclistKolonu::Tip::Tarih, false},
    {u's', dclistKolonu::Tip::Secim, false},
    {u'm', dclistKolonu::Tip::Metin, true},
    {u'b', dclistKolonu::Tip::Sayi, true},
    {u'v', dclistKolonu::Tip::Metin, false},
    {u'e', dclistKolonu::Tip::Metin, false},
}};

bool EnterMi(const QKeyEvent& olay) {
  return olay.key() == Qt::Key_Return || olay.key() == Qt::Key_Enter;
}

}  // namespace

dclist::dclist(Bildirim& bildirim, QWidget* ust) : QTableView(ust), bildirim_(bildirim), model_(new dclistModel(this)) {
  setModel(model_);
  setItemDelegate(new dclistHucre(*this));
  setAlternatingRowColors(true);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSortIndicatorShown(false);
  horizontalHeader()->setSectionsClickable(true);
  ensurePolished();
  horizontalHeader()->ensurePolished();
  YaziyaUydur();
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int kolon) {
    const bool ters = model_->SiraKolonu() == kolon && model_->SiraYonu() == Qt::AscendingOrder;
    if (OkUpdateData()) {  // the order is made of what the cells hold
      BosSatiriSil();
      const int satir = CurSat();
      horizontalHeader()->setSortIndicatorShown(true);
      model_->Sirala(kolon, ters ? Qt::DescendingOrder : Qt::AscendingOrder);
      ChngSat(satir);
    }
    horizontalHeader()->setSortIndicator(model_->SiraKolonu(), model_->SiraYonu());  // the click has turned it already
  });
}

// Rows as high and columns as wide as the fonts of the list need.
void dclist::YaziyaUydur() {
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 10);
  const QFontMetrics baslik = horizontalHeader()->fontMetrics();
  for (int kolon = 0; kolon < model_->columnCount(); ++kolon) {
    const int en = baslik.horizontalAdvance(model_->Kolonlar()[std::size_t(kolon)].baslik) + 20;
    if (!isColumnHidden(kolon) && columnWidth(kolon) < en) setColumnWidth(kolon, en);
  }
}

void dclist::changeEvent(QEvent* olay) {
  QTableView::changeEvent(olay);
  if (olay->type() == QEvent::FontChange || olay->type() == QEvent::StyleChange) YaziyaUydur();
}

// A cell that is open while the window goes takes no leave of the list.
dclist::~dclist() {
  delete itemDelegate();
}

void dclist::SahibiGitti() {
  SatirGuncelle = [](int) { return true; };
  SatirSil = [](int) { return false; };
  Dogrula = [](int, const QString&, QString&) { return true; };
  YeniSatir = SatirSecildi = Secildi = [](int) {};
  HucreDegisti = [](int, const QString&) {};
  Tus = [](const QKeyEvent&) { return false; };
}

void dclist::CreateNewCaption(char tip, const QString& ad, const QString& baslik, int genislik, double enCok,
                              int ondalik, int grup, HucreDenetimi denetim) {
  const QChar kucuk = QChar::fromLatin1(tip).toLower();
  const auto tanim = std::ranges::find_if(KolonHarfleri, [&](const KolonHarfi& k) { return k.harf == kucuk; });
  if (tanim == KolonHarfleri.end()) return;
  model_->KolonEkle({.tip = tanim->tip,
                     .salt = tanim->salt,
                     .gizli = false,
                     .ad = ad,
                     .baslik = baslik,
                     .genislik = genislik,
                     .enCok = enCok,
                     .ondalik = ondalik,
                     .grup = grup,
                     .denetim = denetim,
                     .secenekler = {}});
  const int baslikEni = horizontalHeader()->fontMetrics().horizontalAdvance(baslik) + 20;
  setColumnWidth(model_->columnCount() - 1, std::max(genislik * logicalDpiX() / 96, baslikEni));
}

void dclist::SecenekKoy(const QString& ad, const QStringList& secenekler) {
  model_->KolonAyari(model_->KolonBul(ad)).secenekler = secenekler;
}

void dclist::Gizle(const QString& ad) {
  const int kolon = model_->KolonBul(ad);
  model_->KolonAyari(kolon).gizli = true;
  setColumnHidden(kolon, true);
}

void dclist::GenisKolon(const QString& ad) {
  horizontalHeader()->setSectionResizeMode(model_->KolonBul(ad), QHeaderView::Stretch);
}

void dclist::Reset() {
  mod_ = Mod::Gezinme;
  model_->KolonlariSil();
}

int dclist::Add() {
  return model_->SatirEkle();
}

void dclist::Clear() {
  mod_ = Mod::Gezinme;
  bosSatir_ = QPersistentModelIndex();
  YazilaniUnut();
  model_->SatirlariSil();
}

QString dclist::Text(int satir, int kolon) const {
  const bool var = satir >= 0 && satir < ListCount() && kolon >= 0 && kolon < model_->columnCount();
  return var ? model_->Metin(satir, kolon) : QString();
}

QString dclist::TextByName(int satir, const QString& ad) const {
  return Text(satir, model_->KolonBul(ad));
}

void dclist::TextByName(int satir, const QString& ad, const QString& metin) {
  if (const int kolon = model_->KolonBul(ad); kolon >= 0) model_->MetinKoy(satir, kolon, metin);
}

QString dclist::CaptionByName(const QString& ad) const {
  const int kolon = model_->KolonBul(ad);
  return kolon < 0 ? QString() : model_->Kolonlar()[std::size_t(kolon)].baslik;
}

int dclist::FindByName(const QString& ad, const QString& metin, int ilk) {
  const int kolon = model_->KolonBul(ad);
  const QString aranan = TurkceKucuk(metin);
  for (int satir = ilk; kolon >= 0 && satir < ListCount(); ++satir) {
    if (TurkceKucuk(model_->Metin(satir, kolon)) != aranan) continue;
    ChngSat(satir);
    return satir;
  }
  return -1;
}

int dclist::CurSat() const {
  return currentIndex().isValid() ? model_->GosterilenSatir(currentIndex().row()) : -1;
}

int dclist::CurrentCol() const {
  return currentIndex().isValid() ? currentIndex().column() : -1;
}

void dclist::ChngSat(int satir) {
  const int sira = satir < 0 || satir >= ListCount() ? -1 : model_->GosterilenSira(satir);
  if (sira < 0) return;
  int kolon = std::max(CurrentCol(), 0);
  while (kolon + 1 < model_->columnCount() && isColumnHidden(kolon)) ++kolon;
  setCurrentIndex(model_->index(sira, kolon));
}

bool dclist::MoveNext() {
  const int sira = currentIndex().row() + 1;
  if (sira >= model_->rowCount()) return false;
  setCurrentIndex(model_->index(sira, std::max(CurrentCol(), 0)));
  return true;
}

bool dclist::MovePre() {
  const int sira = currentIndex().row() - 1;
  if (sira < 0) return false;
  setCurrentIndex(model_->index(sira, CurrentCol()));
  return true;
}

void dclist::HucreyeGit(int satir, const QString& ad) {
  const int sira = model_->GosterilenSira(satir);
  if (sira >= 0) setCurrentIndex(model_->index(sira, model_->KolonBul(ad)));
}

void dclist::Editable(bool duzenlenir) {
  duzenlenir_ = duzenlenir;
  setSelectionBehavior(duzenlenir ? SelectItems : SelectRows);
  setShowGrid(duzenlenir);
  setEditTriggers(duzenlenir ? QAbstractItemView::EditTriggers(AnyKeyPressed | DoubleClicked) : NoEditTriggers);
}

void dclist::tazele(int satir) {
  model_->Degisti(satir, false);
  mod_ = Mod::Gezinme;
  bosSatir_ = QPersistentModelIndex();
  viewport()->update();
}

void dclist::Filtrele(const QString& aranan) {
  if (!OkUpdateData()) return;
  BosSatiriSil();
  model_->Filtrele(aranan);
  if (model_->rowCount() > 0) ChngSat(model_->GosterilenSatir(0));
}

QLineEdit* dclist::AramaKutusu(QWidget* ust) {
  auto* kutu = new xtext(ust);
  kutu->setPlaceholderText(QStringLiteral("Ara (Ctrl+F)"));
  kutu->setClearButtonEnabled(true);
  connect(kutu, &QLineEdit::textChanged, this, &dclist::Filtrele);
  arama_ = kutu;
  return kutu;
}

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
  if (!model_->DegistiMi(satir)) model_->SatirSil(satir);
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
  if (silindi && satir < ListCount()) {
    model_->SatirSil(satir);
    YazilanSatirlariKaydir(satir);
  }
  mod_ = Mod::Gezinme;
}

// Behind a row that is gone.
void dclist::YazilanSatirlariKaydir(int silinen) {
  std::map<std::pair<int, int>, QString> kalan;
  for (const auto& [yer, metin] : gelen_)
    if (yer.first != silinen) kalan[{yer.first - (yer.first > silinen ? 1 : 0), yer.second}] = metin;
  gelen_ = std::move(kalan);
}

void dclist::Kopyala() const {
  QString metin;
  for (int kolon = 0; kolon < model_->columnCount(); ++kolon) {
    if (isColumnHidden(kolon)) continue;
    if (!metin.isEmpty()) metin += '\t';
    metin += Text(CurSat(), kolon);
  }
  QApplication::clipboard()->setText(metin);
}

void dclist::Gezin(Qt::Key tus) {
  static const std::map<Qt::Key, CursorAction> hareketler{
      {Qt::Key_Up, MoveUp}, {Qt::Key_Down, MoveDown}, {Qt::Key_PageUp, MovePageUp}, {Qt::Key_PageDown, MovePageDown}};
  const QModelIndex yer = moveCursor(hareketler.at(tus), Qt::NoModifier);
  if (yer.isValid()) setCurrentIndex(yer);
}

void dclist::keyPressEvent(QKeyEvent* olay) {
  if (Tus(*olay)) return;
  const bool altHarfi = olay->modifiers() == Qt::AltModifier && !olay->text().isEmpty();
  if (altHarfi) return olay->ignore();  // a menu's or a button's; it begins no cell
  if (olay->matches(QKeySequence::Copy)) return Kopyala();
  if (olay->matches(QKeySequence::Find) && arama_ != nullptr) return arama_->setFocus(Qt::ShortcutFocusReason);
  if (olay->key() == Qt::Key_Escape && mod_ == Mod::Ekleme && !model_->DegistiMi(CurSat())) {
    bosSatir_ = QPersistentModelIndex();
    model_->SatirSil(CurSat());  // a fresh row into which nothing was typed
    mod_ = Mod::Gezinme;
    return;
  }
  if (olay->key() == Qt::Key_Escape && !OkUpdateData()) {
    model_->Degisti(CurSat(), false);  // refused and told: the next Esc leaves
    return;
  }
  if (EnterMi(*olay)) {
    if (duzenlenir_) return DuzenlemeyeBasla();
    if (CurSat() >= 0) Secildi(CurSat());
    return;
  }
  if (duzenlenir_ && olay->key() == Qt::Key_Insert) return YeniSatirAc();
  if (duzenlenir_ && olay->key() == Qt::Key_Delete) return SimdikiSatiriSil();
  if (duzenlenir_ && olay->key() == Qt::Key_Down && currentIndex().row() == model_->rowCount() - 1 && yeniSatirli_)
    return YeniSatirAc();
  if (olay->key() == Qt::Key_Escape || (olay->key() >= Qt::Key_F1 && olay->key() <= Qt::Key_F12)) {
    olay->ignore();  // to the screen
    return;
  }
  QTableView::keyPressEvent(olay);
}

void dclist::mouseDoubleClickEvent(QMouseEvent* olay) {
  QTableView::mouseDoubleClickEvent(olay);
  if (!duzenlenir_ && CurSat() >= 0) Secildi(CurSat());
}

void dclist::focusOutEvent(QFocusEvent* olay) {
  QTableView::focusOutEvent(olay);
  const QWidget* yeni = QApplication::focusWidget();
  const bool iceride = yeni != nullptr && isAncestorOf(yeni);
  if (iceride || state() == EditingState || olay->reason() == Qt::PopupFocusReason) return;
  OkUpdateData();
  if (bosSatir_.isValid() && olay->reason() != Qt::ActiveWindowFocusReason) BosSatiriBirak();
}

void dclist::currentChanged(const QModelIndex& simdiki, const QModelIndex& onceki) {
  const bool baskaSatir = simdiki.row() != onceki.row();
  if (baskaSatir && onceki.isValid() && onceki.row() < model_->rowCount() && !bitiriliyor_) {
    const int satir = model_->GosterilenSatir(onceki.row());
    if (model_->DegistiMi(satir)) {
      bitiriliyor_ = true;
      if (SatirGuncelle(satir) && satir < ListCount()) tazele(satir);
      bitiriliyor_ = false;
    }
    mod_ = Mod::Gezinme;
    if (bosSatir_.isValid()) BosSatiriBirak();
  }
  QTableView::currentChanged(simdiki, onceki);
  if (baskaSatir && simdiki.isValid()) SatirSecildi(model_->GosterilenSatir(simdiki.row()));
}

}  // namespace belvani
