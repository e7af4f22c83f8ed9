#include "ui/dclist.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <map>

#include "core/tables/alan.h"
#include "ui/dclistdenetim.h"
#include "ui/dclisthucre.h"
#include "ui/tus.h"
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

void dclist::TercihBoyu(int en, int boy) {
  tercih_ = {en, boy};
  updateGeometry();
}

// A few rows of a few columns.
QSize dclist::minimumSizeHint() const {
  if (tercih_.isEmpty()) return QTableView::minimumSizeHint();
  const int satirlar = horizontalHeader()->sizeHint().height() + 4 * verticalHeader()->defaultSectionSize();
  return tercih_.boundedTo({320, satirlar});
}

// A row that would be cut off at the bottom is left out; it comes with the next step down.
void dclist::paintEvent(QPaintEvent* olay) {
  QTableView::paintEvent(olay);
  const int sira = rowAt(viewport()->height() - 1);
  const int ust = sira < 0 ? 0 : rowViewportPosition(sira);
  if (ust <= 0 || ust + rowHeight(sira) <= viewport()->height()) return;
  QPainter(viewport()).fillRect(0, ust, viewport()->width(), viewport()->height() - ust, palette().base());
}

int dclist::CurSat() const {
  return currentIndex().isValid() ? model_->GosterilenSatir(currentIndex().row()) : -1;
}

std::vector<int> dclist::SeciliSatirlar() const {
  std::vector<int> satirlar;
  for (int sira = 0; sira < model_->rowCount(); ++sira)
    if (selectionModel()->isRowSelected(sira)) satirlar.push_back(model_->GosterilenSatir(sira));
  return satirlar;
}

std::vector<int> dclist::GorunenSatirlar() const {
  std::vector<int> satirlar;
  for (int sira = 0; sira < model_->rowCount(); ++sira) satirlar.push_back(model_->GosterilenSatir(sira));
  return satirlar;
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
    SatiriCikar(CurSat());  // a fresh row into which nothing was typed
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
  // A window that comes up in front (a drop-down list, a message, another program) is no leaving, and no time to ask:
  // it may be gone before it is answered.
  const bool pencere = olay->reason() == Qt::ActiveWindowFocusReason || olay->reason() == Qt::PopupFocusReason;
  if (iceride || state() == EditingState || pencere) return;
  OkUpdateData();
  if (bosSatir_.isValid()) BosSatiriBirak();
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
