// The rows of an xgrid: a view of a report, page by page. Texts are made when they are asked for; nothing of the report
// is copied. Behind the rows of the last page stand the sums and the end block.
//
// A record is a row of the report, counted from 0 in the report's order. A row ("sira") is one of the page on show.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

#include "printing/rapor.h"

namespace belvani {

class xgridModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum class SatirTuru { Kayit, Toplam, Bosluk, Blok };

  // Behind the caption by which the rows are sorted.
  static inline const QString ArtanIsareti = QStringLiteral(" ▲");
  static inline const QString AzalanIsareti = QStringLiteral(" ▼");

  using QAbstractTableModel::QAbstractTableModel;

  // `basliklar`: one for each column; a line break makes two caption rows.
  void RaporKoy(std::shared_ptr<const Rapor> rapor, QStringList basliklar);
  const Rapor& Belgesi() const { return *rapor_; }

  int SayfaSayisi() const { return int(sayfaBaslari_.size()); }
  int Sayfa() const { return sayfa_; }
  void SayfaKoy(int sayfa);
  int SayfaninIlki(int sayfa) const { return sayfaBaslari_[std::size_t(sayfa)]; }
  int SayfaninSonu(int sayfa) const;  // one behind its last record
  int KayittakiSayfa(int kayit) const;

  // Within each page, so that pages keep their rows. Nothing: the report's order.
  void Sirala(int kolon, std::optional<Qt::SortOrder> yon);
  int SiraKolonu() const { return siraKolonu_; }  // -1 in the report's order
  Qt::SortOrder SiraYonu() const { return siraYonu_; }

  // Records in the order in which all pages show them; the record on that place, and its place.
  int YerdekiKayit(int yer) const { return siralanan_.empty() ? yer : siralanan_[std::size_t(yer)]; }
  int KaydinYeri(int kayit) const;

  SatirTuru Turu(int sira) const;
  int Kayit(int sira) const;  // -1 for sums and block
  int BlokSirasi(int sira) const { return sira - KayitAdedi() - ToplamSatiri() - 1; }
  int BlokBasi() const { return KayitAdedi() + ToplamSatiri() + 1; }

  // The values of the block stand in this column, the labels in those before it.
  void BlokKolonu(int kolon) { blokKolonu_ = kolon; }

  // Of the row of sums.
  void ToplamRenkleri(const QColor& arka, const QColor& yazi);
  // Of an amount below zero.
  void EksiRenkleri(const QColor& arka, const QColor& yazi);

  QString Metin(int sira, int kolon) const;
  QString Baslik(int kolon) const { return basliklar_[kolon]; }

  int rowCount(const QModelIndex& ust = {}) const override;
  int columnCount(const QModelIndex& ust = {}) const override;
  QVariant data(const QModelIndex& yer, int rol) const override;
  QVariant headerData(int bolum, Qt::Orientation yon, int rol) const override;

 private:
  bool SonSayfa() const { return sayfa_ + 1 == SayfaSayisi(); }
  int KayitAdedi() const { return SayfaSayisi() == 0 ? 0 : SayfaninSonu(sayfa_) - SayfaninIlki(sayfa_); }
  int ToplamSatiri() const;
  Qt::Alignment Hiza(int sira, int kolon) const;
  bool Eksi(int sira, int kolon) const;

  std::shared_ptr<const Rapor> rapor_ = std::make_shared<Rapor>(std::vector<RaporKolonu>());
  QStringList basliklar_;
  std::vector<Hucre> toplam_;
  std::vector<int> sayfaBaslari_;
  std::vector<int> siralanan_;  // empty in the report's order
  int sayfa_ = 0;
  int siraKolonu_ = -1;
  Qt::SortOrder siraYonu_ = Qt::AscendingOrder;
  int blokKolonu_ = 1;
  QColor toplamArka_, toplamYazi_;
  QColor eksiArka_, eksiYazi_;
};

}  // namespace belvani
