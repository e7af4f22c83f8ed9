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

bool Var(std::size_t adet, int sira) {
  return sira >= 0 && std::size_t(sira) < adet;
}

}  // namespace

xgrid::xgrid(QWidget* ust) : QTableView(ust), model_(new xgridModel(this)), toplamOrnegi_(new QLabel(this)) {
  toplamOrnegi_->setProperty("toplam", true);
  toplamOrnegi_->hide();
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

void xgrid::RaporKoy(std::shared_ptr<const Rapor> rapor) {
  dolgu_.reset();
  rapor_ = std::move(rapor);
  Goster();
}

const Rapor& xgrid::Belgesi() const {
  if (rapor_ == nullptr) rapor_ = std::make_shared<const Rapor>(dolgu_->Yap());
  return *rapor_;
}

void xgrid::Reset() {
  dolgu_.emplace();
  rapor_ = nullptr;
  dolduruluyor_ = true;
  satir_ = -1;
  kolon_ = 0;
}

// Null for a report that came as a whole: that stays as it is.
RaporDolgusu* xgrid::Doldurulan() {
  if (!dolgu_) return nullptr;
  if (!dolduruluyor_) {
    satir_ = SimdikiSatir();
    kolon_ = std::max(CurrentColon(), 0);
  }
  dolduruluyor_ = true;
  rapor_ = nullptr;
  return &*dolgu_;
}

void xgrid::AddColons(const QString& baslik, DolguTuru tur, const QString& ikinci, int bicim, int en) {
  if (auto* dolgu = Doldurulan())
    dolgu->KolonEkle({.baslik = Utf8(baslik), .ikinciBaslik = Utf8(ikinci), .tur = tur, .bicim = bicim, .en = en});
}

void xgrid::NewPage() {
  if (auto* dolgu = Doldurulan()) dolgu->SayfaAc();
}

void xgrid::CreateRow(GridSatiri tur, int adet) {
  if (tur == GridSatiri::SayfaBasi) NewPage();
  auto* dolgu = Doldurulan();
  for (int i = 0; dolgu != nullptr && i < adet; ++i) dolgu->SatirAc();
  if (dolgu == nullptr || adet < 1) return;
  satir_ = int(dolgu->Satirlar().size()) - 1;
  kolon_ = 0;
}

void xgrid::Add(int kolon, const Hucre& deger) {
  auto* dolgu = Doldurulan();
  if (dolgu != nullptr && satir_ >= 0 && kolon >= 0 && dolgu->Koy(std::size_t(satir_), std::size_t(kolon), deger))
    kolon_ = kolon;
}

void xgrid::AddbyName(const QString& baslik, const Hucre& deger) {
  if (!dolgu_) return;
  const auto& kolonlar = dolgu_->Kolonlar();
  const auto k = std::ranges::find(kolonlar, Utf8(baslik), &DolguKolonu::baslik);
  if (k != kolonlar.end()) Add(int(k - kolonlar.begin()), deger);
}

void xgrid::data(int sayfa, int satir, int kolon, const Hucre& deger) {
  const int no = SatirNo(sayfa, satir);
  if (auto* dolgu = no >= 0 && kolon >= 0 ? Doldurulan() : nullptr)
    dolgu->Koy(std::size_t(no), std::size_t(kolon), deger);
}

void xgrid::Basliklar(const QString& baslik, const QStringList& ustSatirlar) {
  auto* dolgu = Doldurulan();
  if (dolgu == nullptr) return;
  dolgu->baslik = Utf8(baslik);
  dolgu->ustSatirlar.clear();
  for (const QString& satir : ustSatirlar) dolgu->ustSatirlar.push_back(Utf8(satir));
}

void xgrid::Refresh() {
  Belgesi();
  Goster();
}

const std::vector<RaporSatiri>& xgrid::Satirlar() const {
  return dolgu_ ? dolgu_->Satirlar() : rapor_->Satirlar();
}

const std::vector<int>& xgrid::SayfaBaslari() const {
  return dolgu_ ? dolgu_->SayfaBaslari() : model_->SayfaBaslari();
}

int xgrid::SatirNo(int sayfa, int satir) const {
  const auto& baslar = SayfaBaslari();
  if (!Var(baslar.size(), sayfa) || satir < 0) return -1;
  const int son = Var(baslar.size(), sayfa + 1) ? baslar[std::size_t(sayfa) + 1] : int(Satirlar().size());
  const int no = baslar[std::size_t(sayfa)] + satir;
  return no < son ? no : -1;
}

Hucre xgrid::data(int sayfa, int satir, int kolon) const {
  const int no = SatirNo(sayfa, satir);
  if (no < 0 || !Var(Satirlar()[std::size_t(no)].hucreler.size(), kolon)) return Null{};
  return Satirlar()[std::size_t(no)].hucreler[std::size_t(kolon)];
}

int xgrid::SimdikiSatir() const {
  return dolduruluyor_ ? satir_ : model_->Kayit(currentIndex().row());
}

int xgrid::CurrentPage() const {
  if (!dolduruluyor_) return model_->Sayfa();
  const auto& baslar = SayfaBaslari();
  return std::max(int(std::ranges::upper_bound(baslar, satir_) - baslar.begin()) - 1, 0);
}

int xgrid::CurrentRow() const {
  const int satir = SimdikiSatir();
  return satir < 0 ? -1 : satir - SayfaBaslari()[std::size_t(CurrentPage())];
}

void xgrid::KonumaGit(int sayfa, int satir, int kolon) {
  const int no = SatirNo(sayfa, satir);
  if (no < 0 || !Var(Satirlar()[std::size_t(no)].hucreler.size(), kolon)) return;
  if (!dolduruluyor_) return KaydaGit(no, kolon);
  satir_ = no;
  kolon_ = kolon;
}

QString xgrid::GetBaslikPrint(int kolon) const {
  const auto& kolonlar = Belgesi().Kolonlar();
  return Var(kolonlar.size(), kolon) ? Yazi(kolonlar[std::size_t(kolon)].baslik) : QString();
}

QString xgrid::GetFormatData(int satir, int kolon) const {
  const Rapor& rapor = Belgesi();
  if (!Var(rapor.Satirlar().size(), satir) || !Var(rapor.Kolonlar().size(), kolon)) return {};
  return Yazi(HucreMetni(rapor.Satirlar()[std::size_t(satir)].hucreler[std::size_t(kolon)],
                         rapor.Kolonlar()[std::size_t(kolon)]));
}

QString xgrid::UstSatirMetni(std::size_t sira) const {
  const auto& satirlar = Belgesi().ustSatirlar;
  return sira < satirlar.size() ? Yazi(UstEkranMetni(satirlar[sira])) : QString();
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
  const auto k = std::size_t(kolon);
  if (!dolgu_) return IkiyeBol(Yazi(rapor_->Kolonlar()[k].kisaBaslik), EnCokHarf(*rapor_, kolon));
  const DolguKolonu& tanim = dolgu_->Kolonlar()[k];
  return tanim.ikinciBaslik.empty() ? Yazi(tanim.baslik) : Yazi(tanim.ikinciBaslik + "\n" + tanim.baslik);
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
  toplamOrnegi_->ensurePolished();
  const QPalette renkler = toplamOrnegi_->palette();
  model_->ToplamRenkleri(renkler.color(toplamOrnegi_->backgroundRole()),
                         renkler.color(toplamOrnegi_->foregroundRole()));
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
