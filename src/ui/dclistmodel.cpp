#include "ui/dclistmodel.h"

#include <QSize>
#include <algorithm>
#include <numeric>

#include "core/sayi.h"
#include "core/turkce.h"
#include "ui/metin.h"

namespace belvani {
namespace {

QChar TurkceKucukHarf(QChar harf) {
  if (harf == u'I') return u'ı';
  if (harf == u'İ') return u'i';
  return harf.toLower();
}

}  // namespace

QString TurkceKucuk(const QString& metin) {
  QString kucuk(metin.size(), Qt::Uninitialized);
  std::transform(metin.begin(), metin.end(), kucuk.begin(), TurkceKucukHarf);
  return kucuk;
}

void dclistModel::KolonlariSil() {
  beginResetModel();
  kolonlar_.clear();
  hucreler_.clear();
  degisti_.clear();
  kimlikler_.clear();
  gorunen_.clear();
  siraKolonu_ = -1;
  endResetModel();
}

void dclistModel::KolonEkle(dclistKolonu kolon) {
  beginInsertColumns({}, int(kolonlar_.size()), int(kolonlar_.size()));
  kolonlar_.push_back(std::move(kolon));
  endInsertColumns();
}

int dclistModel::KolonBul(QStringView ad) const {
  const auto yer = std::ranges::find_if(kolonlar_, [&](const dclistKolonu& k) { return k.ad == ad; });
  return yer == kolonlar_.end() ? -1 : int(yer - kolonlar_.begin());
}

int dclistModel::SatirEkle() {
  const int satir = SatirSayisi();
  if (toplu_ == 0) beginInsertRows({}, int(gorunen_.size()), int(gorunen_.size()));
  hucreler_.resize(hucreler_.size() + kolonlar_.size());
  degisti_.push_back(0);
  kimlikler_.push_back(0);
  gorunen_.push_back(satir);  // at the end until the order is made anew
  if (toplu_ == 0) endInsertRows();
  return satir;
}

void dclistModel::SatirSil(int satir) {
  const int sira = GosterilenSira(satir);
  if (sira >= 0) beginRemoveRows({}, sira, sira);
  const auto ilk = hucreler_.begin() + std::ptrdiff_t(Yer(satir, 0));
  hucreler_.erase(ilk, ilk + std::ptrdiff_t(kolonlar_.size()));
  degisti_.erase(degisti_.begin() + satir);
  kimlikler_.erase(kimlikler_.begin() + satir);
  if (sira >= 0) gorunen_.erase(gorunen_.begin() + sira);
  for (int& g : gorunen_)
    if (g > satir) --g;
  if (sira >= 0) endRemoveRows();
}

void dclistModel::SatirlariSil() {
  beginResetModel();
  hucreler_.clear();
  degisti_.clear();
  kimlikler_.clear();
  gorunen_.clear();
  endResetModel();
}

void dclistModel::MetinKoy(int satir, int kolon, const QString& metin) {
  hucreler_[Yer(satir, kolon)] = metin;
  if (toplu_ > 0) return;
  const int sira = GosterilenSira(satir);
  if (sira >= 0) Q_EMIT dataChanged(index(sira, kolon), index(sira, kolon));
}

void dclistModel::TopluBasla() {
  if (toplu_++ == 0) beginResetModel();
}

void dclistModel::TopluBitir() {
  if (--toplu_ > 0) return;
  GorunenleriKur();
  endResetModel();
}

bool dclistModel::Uyar(int satir) const {
  for (int k = 0; k < int(kolonlar_.size()); ++k) {
    if (kolonlar_[std::size_t(k)].gizli) continue;
    const QString& metin = Metin(satir, k);
    const auto yer = std::search(metin.begin(), metin.end(), aranan_.begin(), aranan_.end(),
                                 [](QChar a, QChar b) { return TurkceKucukHarf(a) == b; });
    if (yer != metin.end()) return true;
  }
  return false;
}

void dclistModel::GorunenleriKur() {
  gorunen_.resize(degisti_.size());
  std::iota(gorunen_.begin(), gorunen_.end(), 0);
  if (!aranan_.isEmpty()) std::erase_if(gorunen_, [this](int satir) { return !Uyar(satir); });
  Yerlestir();
}

// Puts the shown rows in order. Numbers and dates go by their value, texts by the Turkish alphabet.
void dclistModel::Yerlestir() {
  if (siraKolonu_ < 0) return;
  const auto tip = kolonlar_[std::size_t(siraKolonu_)].tip;
  std::vector<std::pair<Deger, int>> sirali;
  sirali.reserve(gorunen_.size());
  for (const int satir : gorunen_) {
    const std::string metin = Utf8(Metin(satir, siraKolonu_));
    switch (tip) {
      case dclistKolonu::Tip::Sayi:
        sirali.emplace_back(TutarOku(metin).value_or(Tutar()), satir);
        break;
      case dclistKolonu::Tip::Tarih:
        sirali.emplace_back(Tarih::MetinOku(metin), satir);
        break;
      case dclistKolonu::Tip::Metin:
      case dclistKolonu::Tip::Secim:
        sirali.emplace_back(metin, satir);
        break;
    }
  }
  const auto once = [](const auto& a, const auto& b) {
    if (const auto* metin = std::get_if<std::string>(&a.first))
      return TurkceKarsilastir(*metin, std::get<std::string>(b.first)) < 0;
    if (const auto* tutar = std::get_if<Tutar>(&a.first)) return *tutar < std::get<Tutar>(b.first);
    return std::get<Tarih>(a.first) < std::get<Tarih>(b.first);
  };
  if (siraYonu_ == Qt::AscendingOrder)
    std::stable_sort(sirali.begin(), sirali.end(), once);
  else
    std::stable_sort(sirali.begin(), sirali.end(), [&](const auto& a, const auto& b) { return once(b, a); });
  std::ranges::transform(sirali, gorunen_.begin(), [](const auto& s) { return s.second; });
}

void dclistModel::GorunumuYenile() {
  if (toplu_ > 0) return;
  beginResetModel();
  GorunenleriKur();
  endResetModel();
}

void dclistModel::Filtrele(const QString& aranan) {
  aranan_ = TurkceKucuk(aranan);
  GorunumuYenile();
}

void dclistModel::Sirala(int kolon, Qt::SortOrder yon) {
  siraKolonu_ = kolon;
  siraYonu_ = yon;
  GorunumuYenile();
}

int dclistModel::GosterilenSira(int satir) const {
  if (std::size_t(satir) < gorunen_.size() && gorunen_[std::size_t(satir)] == satir) return satir;
  const auto yer = std::ranges::find(gorunen_, satir);
  return yer == gorunen_.end() ? -1 : int(yer - gorunen_.begin());
}

int dclistModel::rowCount(const QModelIndex& ust) const {
  return ust.isValid() ? 0 : int(gorunen_.size());
}

int dclistModel::columnCount(const QModelIndex& ust) const {
  return ust.isValid() ? 0 : int(kolonlar_.size());
}

QVariant dclistModel::data(const QModelIndex& yer, int rol) const {
  const dclistKolonu& kolon = kolonlar_[std::size_t(yer.column())];
  if (rol == Qt::DisplayRole || rol == Qt::EditRole) return Metin(GosterilenSatir(yer.row()), yer.column());
  if (rol == Qt::TextAlignmentRole)
    return int((kolon.tip == dclistKolonu::Tip::Sayi ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  if (rol != Qt::BackgroundRole && rol != Qt::ForegroundRole) return {};
  const auto renk = Renk(GosterilenSatir(yer.row()), yer.column());
  return renk ? QVariant(rol == Qt::BackgroundRole ? renk->zemin : renk->yazi) : QVariant();
}

QVariant dclistModel::headerData(int bolum, Qt::Orientation yon, int rol) const {
  if (yon == Qt::Vertical) return rol == Qt::DisplayRole ? QVariant(bolum + 1) : QVariant();
  const dclistKolonu& kolon = kolonlar_[std::size_t(bolum)];
  if (rol == Qt::DisplayRole) return kolon.baslik;
  if (rol == Qt::TextAlignmentRole)
    return int((kolon.tip == dclistKolonu::Tip::Sayi ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  return {};
}

Qt::ItemFlags dclistModel::flags(const QModelIndex& yer) const {
  const Qt::ItemFlags taban = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
  return kolonlar_[std::size_t(yer.column())].salt ? taban : taban | Qt::ItemIsEditable;
}

}  // namespace belvani
