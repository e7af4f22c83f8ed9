#include "ui/xgridmodel.h"

#include <QFont>
#include <algorithm>
#include <numeric>

#include "core/turkce.h"
#include "printing/rapordolgusu.h"
#include "ui/metin.h"

namespace belvani {
namespace {

// Empty cells first; texts by the Turkish alphabet, the rest by value.
bool Once(const Hucre& a, const Hucre& b) {
  if (a.index() != b.index()) return a.index() < b.index();
  return std::visit(
      [&]<class T>(const T& deger) {
        if constexpr (std::same_as<T, Null>)
          return false;
        else if constexpr (std::same_as<T, std::string>)
          return TurkceKarsilastir(deger, std::get<T>(b)) < 0;
        else
          return deger < std::get<T>(b);
      },
      a);
}

}  // namespace

void xgridModel::RaporKoy(std::shared_ptr<const Rapor> rapor, QStringList basliklar) {
  beginResetModel();
  rapor_ = std::move(rapor);
  basliklar_ = std::move(basliklar);
  toplam_ = rapor_->Toplam();
  siralanan_.clear();
  siraKolonu_ = -1;
  sayfa_ = 0;
  sayfaBaslari_ = SayfaBaslari(rapor_->Satirlar().YeniSayfalar());
  endResetModel();
}

void xgridModel::SayfaKoy(int sayfa) {
  if (sayfa < 0 || sayfa >= SayfaSayisi() || sayfa == sayfa_) return;
  beginResetModel();
  sayfa_ = sayfa;
  endResetModel();
}

int xgridModel::SayfaninSonu(int sayfa) const {
  return sayfa + 1 < SayfaSayisi() ? SayfaninIlki(sayfa + 1) : int(rapor_->Satirlar().size());
}

int xgridModel::KayittakiSayfa(int kayit) const {
  return int(std::ranges::upper_bound(sayfaBaslari_, kayit) - sayfaBaslari_.begin()) - 1;
}

void xgridModel::Sirala(int kolon, std::optional<Qt::SortOrder> yon) {
  Q_EMIT layoutAboutToBeChanged();
  const RaporSatirlari& satirlar = rapor_->Satirlar();
  siraKolonu_ = yon ? kolon : -1;
  siralanan_.resize(yon ? satirlar.size() : 0);
  std::iota(siralanan_.begin(), siralanan_.end(), 0);
  std::vector<Hucre> degerler;
  for (const int sira : siralanan_) degerler.push_back(satirlar.Hucresi(std::size_t(sira), std::size_t(kolon)));
  const auto once = [&](int a, int b) { return Once(degerler[std::size_t(a)], degerler[std::size_t(b)]); };
  for (int s = 0; yon && s < SayfaSayisi(); ++s) {
    const auto ilk = siralanan_.begin() + SayfaninIlki(s);
    const auto son = siralanan_.begin() + SayfaninSonu(s);
    if (*yon == Qt::AscendingOrder)
      std::stable_sort(ilk, son, once);
    else
      std::stable_sort(ilk, son, [&](int a, int b) { return once(b, a); });
  }
  siraYonu_ = yon.value_or(Qt::AscendingOrder);
  Q_EMIT layoutChanged();
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

int xgridModel::KaydinYeri(int kayit) const {
  if (siralanan_.empty()) return kayit;
  const auto ilk = siralanan_.begin() + SayfaninIlki(KayittakiSayfa(kayit));
  return int(std::find(ilk, siralanan_.end(), kayit) - siralanan_.begin());
}

int xgridModel::ToplamSatiri() const {
  return SonSayfa() && rapor_->ToplamVar() ? 1 : 0;
}

int xgridModel::rowCount(const QModelIndex& ust) const {
  if (ust.isValid() || SayfaSayisi() == 0) return 0;
  const int blok = SonSayfa() && !rapor_->sonBlok.empty() ? int(rapor_->sonBlok.size()) + 1 : 0;
  return KayitAdedi() + ToplamSatiri() + blok;
}

int xgridModel::columnCount(const QModelIndex& ust) const {
  return ust.isValid() ? 0 : int(rapor_->Kolonlar().size());
}

xgridModel::SatirTuru xgridModel::Turu(int sira) const {
  if (sira < KayitAdedi()) return SatirTuru::Kayit;
  if (sira < KayitAdedi() + ToplamSatiri()) return SatirTuru::Toplam;
  return sira < BlokBasi() ? SatirTuru::Bosluk : SatirTuru::Blok;
}

int xgridModel::Kayit(int sira) const {
  if (sira < 0 || sira >= KayitAdedi()) return -1;
  return YerdekiKayit(SayfaninIlki(sayfa_) + sira);
}

void xgridModel::ToplamRenkleri(const QColor& arka, const QColor& yazi) {
  toplamArka_ = arka;
  toplamYazi_ = yazi;
}

void xgridModel::EksiRenkleri(const QColor& arka, const QColor& yazi) {
  eksiArka_ = arka;
  eksiYazi_ = yazi;
}

bool xgridModel::Eksi(int sira, int kolon) const {
  if (Turu(sira) != SatirTuru::Kayit) return false;
  const Hucre hucre = rapor_->Satirlar().Hucresi(std::size_t(Kayit(sira)), std::size_t(kolon));
  const auto* tutar = std::get_if<Tutar>(&hucre);
  return tutar != nullptr && *tutar < Tutar();
}

QString xgridModel::Metin(int sira, int kolon) const {
  const auto k = std::size_t(kolon);
  switch (Turu(sira)) {
    case SatirTuru::Kayit:
      return Yazi(HucreMetni(rapor_->Satirlar().Hucresi(std::size_t(Kayit(sira)), k), rapor_->Kolonlar()[k]));
    case SatirTuru::Toplam:
      return Yazi(HucreMetni(toplam_[k], rapor_->Kolonlar()[k]));
    case SatirTuru::Blok: {
      const BlokSatiri& blok = rapor_->sonBlok[std::size_t(BlokSirasi(sira))];
      if (columnCount() == 1) return Yazi(blok.etiket + " " + BlokMetni(blok, *rapor_));
      return kolon == 0 ? Yazi(blok.etiket) : kolon == blokKolonu_ ? Yazi(BlokMetni(blok, *rapor_)) : QString();
    }
    case SatirTuru::Bosluk:
      break;
  }
  return {};
}

Qt::Alignment xgridModel::Hiza(int sira, int kolon) const {
  const bool saga =
      Turu(sira) == SatirTuru::Blok ? kolon == blokKolonu_ : rapor_->Kolonlar()[std::size_t(kolon)].Sayisal();
  return (saga ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
}

QVariant xgridModel::data(const QModelIndex& yer, int rol) const {
  if (rol == Qt::DisplayRole) return Metin(yer.row(), yer.column());
  if (rol == Qt::TextAlignmentRole) return int(Hiza(yer.row(), yer.column()));
  if ((rol == Qt::BackgroundRole || rol == Qt::ForegroundRole) && Eksi(yer.row(), yer.column()))
    return rol == Qt::BackgroundRole ? eksiArka_ : eksiYazi_;
  if (Turu(yer.row()) != SatirTuru::Toplam) return {};
  if (rol == Qt::BackgroundRole) return toplamArka_;
  if (rol == Qt::ForegroundRole) return toplamYazi_;
  if (rol != Qt::FontRole) return {};
  QFont koyu;
  koyu.setBold(true);
  return koyu;
}

QVariant xgridModel::headerData(int bolum, Qt::Orientation yon, int rol) const {
  if (yon == Qt::Vertical) return {};
  const QString& isaret = siraYonu_ == Qt::AscendingOrder ? ArtanIsareti : AzalanIsareti;
  if (rol == Qt::DisplayRole) return basliklar_[bolum] + (bolum == siraKolonu_ ? isaret : QString());
  if (rol == Qt::TextAlignmentRole)
    return int((rapor_->Kolonlar()[std::size_t(bolum)].Sayisal() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignBottom);
  return {};
}

}  // namespace belvani
