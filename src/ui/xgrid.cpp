#include "ui/xgrid.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <algorithm>

#include "core/turkce.h"
#include "ui/metin.h"
#include "ui/stil.h"

namespace belvani {
namespace {

constexpr int EnGenisKolon = 60;  // letters
constexpr int HucrePayi = 12;     // pixels at 96 dpi, as the next one
constexpr int BaslikPayi = 8;

// A caption that is wider than `harf` letters in two lines, of which the longer is as short as can be.
QString IkiyeBol(const QString& baslik, int harf) {
  if (baslik.size() <= harf) return baslik;
  const auto boy = [&](qsizetype i) { return std::max(i, baslik.size() - i - 1); };
  qsizetype yer = -1;
  for (qsizetype i = baslik.indexOf(' ', 1); i > 0 && i + 1 < baslik.size(); i = baslik.indexOf(' ', i + 1))
    if (yer < 0 || boy(i) < boy(yer)) yer = i;
  return yer < 0 ? baslik : baslik.left(yer) + '\n' + baslik.mid(yer + 1);
}

// The most letters of a column's cells and sums.
int EnCokHarf(const Rapor& rapor, int kolon) {
  const auto k = std::size_t(kolon);
  const RaporKolonu& tanim = rapor.Kolonlar()[k];
  if (tanim.tur == KolonTuru::Bos) return tanim.en;
  int harf = rapor.GerekliEn(k, BinlikGruplama);
  if (tanim.tur == KolonTuru::Metin && rapor.ToplamVar())
    harf = std::max(harf, int(HarfSayisi(HucreMetni(rapor.AraToplam(0)[k], tanim))));
  return std::min(harf, EnGenisKolon);
}

// The mean width of capitals, in which most texts are written.
double HarfEni(const QFontMetricsF& olcu) {
  const QString harfler = QStringLiteral("ABCÇDEFGĞHIİJKLMNOÖPRSŞTUÜVYZ");
  return olcu.horizontalAdvance(harfler) / double(harfler.size());
}

}  // namespace

xgrid::xgrid(QWidget* ust)
    : QTableView(ust), model_(new xgridModel(this)), toplamOrnegi_(new QLabel(this)), eksiOrnegi_(new QLabel(this)) {
  toplamOrnegi_->setProperty("toplam", true);
  toplamOrnegi_->hide();
  eksiOrnegi_->setProperty("hata", true);
  eksiOrnegi_->hide();
  setModel(model_);
  setAlternatingRowColors(true);
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setShowGrid(false);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setMinimumSectionSize(HucrePayi);
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this, &xgrid::Sirala);
  ensurePolished();
  horizontalHeader()->ensurePolished();
  Reset();
  Goster();
}

void xgrid::Goster() {
  dolduruluyor_ = false;
  QStringList basliklar;
  for (int k = 0; k < GetColonCount(); ++k) basliklar += SayfaBasligi(k);
  model_->RaporKoy(rapor_, basliklar);
  SayfalariYaz();
  StileUydur();
  if (model_->rowCount() > 0 && model_->columnCount() > 0) setCurrentIndex(model_->index(0, 0));
}

QString xgrid::SayfaBasligi(int kolon) const {
  const RaporKolonu& tanim = rapor_->Kolonlar()[std::size_t(kolon)];
  if (!dolgu_) return IkiyeBol(Yazi(tanim.kisaBaslik), EnCokHarf(*rapor_, kolon));
  QString baslik = Yazi(tanim.baslik);
  if (tanim.baslik != tanim.kisaBaslik) baslik[baslik.size() - Yazi(tanim.kisaBaslik).size() - 1] = '\n';
  return baslik;
}

// Colours as the style has them; rows as high and columns as wide as the fonts need: by counts of letters, for there
// may be very many cells.
void xgrid::StileUydur() {
  QFont kalin = font();
  kalin.setBold(true);
  const QFontMetricsF duzOlcu(font());
  const QFontMetricsF kalinOlcu(kalin);
  const QFontMetrics baslikOlcu = horizontalHeader()->fontMetrics();
  const double dpi = logicalDpiX() / 96.0;
  verticalHeader()->setDefaultSectionSize(int(duzOlcu.height() + aralik_ * dpi));
  for (int k = 0; k < model_->columnCount(); ++k) {
    const RaporKolonu& kolon = model_->Belgesi().Kolonlar()[std::size_t(k)];
    const QFontMetricsF& olcu = kolon.toplanir ? kalinOlcu : duzOlcu;
    const double harfEni = kolon.tur == KolonTuru::Metin ? HarfEni(olcu) : olcu.horizontalAdvance('0');
    const double baslikEni =
        baslikOlcu.size(0, model_->Baslik(k) + xgridModel::ArtanIsareti).width() + BaslikPayi * dpi;
    setColumnWidth(k, int(std::max(EnCokHarf(model_->Belgesi(), k) * harfEni + HucrePayi * dpi, baslikEni)));
  }
  BloguYerlestir();
  const auto renkler = [](QLabel& ornek) {
    ornek.ensurePolished();
    return std::pair(ornek.palette().color(ornek.backgroundRole()), ornek.palette().color(ornek.foregroundRole()));
  };
  std::apply([this](auto... renk) { model_->ToplamRenkleri(renk...); }, renkler(*toplamOrnegi_));
  std::apply([this](auto... renk) { model_->EksiRenkleri(renk...); }, renkler(*eksiOrnegi_));
}

// Labels over as many columns as the longest needs, values over as many of the next ones.
void xgrid::BloguYerlestir() {
  clearSpans();
  const auto& blok = model_->Belgesi().sonBlok;
  const int kolonSayisi = model_->columnCount();
  if (kolonSayisi < 2) return;
  int etiketEni = 0;
  int degerEni = 0;
  for (const BlokSatiri& b : blok) {
    etiketEni = std::max(etiketEni, fontMetrics().horizontalAdvance(Yazi(b.etiket)) + HucrePayi);
    degerEni = std::max(degerEni, fontMetrics().horizontalAdvance(Yazi(BlokMetni(b, model_->Belgesi()))) + HucrePayi);
  }
  int kolon = 1;
  for (int en = columnWidth(0); kolon + 1 < kolonSayisi && en < etiketEni; ++kolon) en += columnWidth(kolon);
  int son = kolon + 1;
  for (int en = columnWidth(kolon); son < kolonSayisi && en < degerEni; ++son) en += columnWidth(son);
  model_->BlokKolonu(kolon);
  for (int sira = model_->BlokBasi(); sira < model_->rowCount(); ++sira) {
    if (kolon > 1) setSpan(sira, 0, 1, kolon);
    if (son - kolon > 1) setSpan(sira, kolon, 1, son - kolon);
  }
}

void xgrid::Aralik(int aralik) {
  aralik_ = std::max(aralik, 0);
  StileUydur();
}

Durum xgrid::Yazilar(const GridYazilari& yazilar) {
  QApplication::setFont(FontYap(yazilar.baslik), "QHeaderView");
  QApplication::setFont(FontYap(yazilar.detay), "QTableView");
  return GridYazilariYaz(yazilar);
}

void xgrid::RenkKoy(std::size_t sira, const QColor& renk) {
  renkler_[sira] = renk;
  const auto kural = [&](std::size_t i, const QString& ozellik) {
    return renkler_[i].isValid() ? ozellik.arg(renkler_[i].name()) : QString();
  };
  setStyleSheet("QTableView {" + kural(0, "background: %1;") + kural(1, "alternate-background-color: %1;") +
                kural(2, "selection-background-color: %1;") + kural(4, "border: 1px solid %1; gridline-color: %1;") +
                "} QHeaderView::section {" + kural(3, "background: %1;") + "}");
}

void xgrid::changeEvent(QEvent* olay) {
  QTableView::changeEvent(olay);
  if (olay->type() == QEvent::FontChange || olay->type() == QEvent::StyleChange) StileUydur();
}

}  // namespace belvani
