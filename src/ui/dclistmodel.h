// The rows of a dclist: texts in typed columns, what of them is shown (filter, order), and which rows changed.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "core/deger.h"

namespace belvani {

// What a cell is checked for when it is left. The numbers are those of the lists' declarations.
enum class HucreDenetimi : std::uint8_t {
  Yok = 0,
  TarihGerek = 1,
  MetinGerek = 3,
  TarihGerekTatilUyar = 4,
  TarihTatilUyar = 5,
  SayiGerek = 6,
  TarihYaDaBos = 7,  // what is no date is refused, not emptied
};

struct dclistKolonu {
  enum class Tip { Metin, Sayi, Tarih, Secim };

  Tip tip = Tip::Metin;
  bool salt = false;  // filled by the owner, not typed into
  bool gizli = false;
  QString ad;
  QString baslik;
  int genislik = 80;  // pixels at 96 dpi
  double enCok = 0;   // length of a text, largest number; 0: no limit
  int ondalik = 0;
  int grup = 3;
  HucreDenetimi denetim = HucreDenetimi::Yok;
  QStringList secenekler;
};

struct HucreRengi {
  QColor zemin, yazi;
};

class dclistModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  using QAbstractTableModel::QAbstractTableModel;

  void KolonlariSil();
  void KolonEkle(dclistKolonu kolon);
  const std::vector<dclistKolonu>& Kolonlar() const { return kolonlar_; }
  int KolonBul(QStringView ad) const;  // -1 when there is none
  dclistKolonu& KolonAyari(int kolon) { return kolonlar_[std::size_t(kolon)]; }

  // Rows count from 0 in the order in which they were added, whatever is shown.
  int SatirSayisi() const { return int(degisti_.size()); }
  int SatirEkle();
  void SatirSil(int satir);
  void SatirlariSil();
  const QString& Metin(int satir, int kolon) const { return hucreler_[Yer(satir, kolon)]; }
  void MetinKoy(int satir, int kolon, const QString& metin);
  bool DegistiMi(int satir) const { return degisti_[std::size_t(satir)] != 0; }
  void Degisti(int satir, bool degisti) { degisti_[std::size_t(satir)] = degisti ? 1 : 0; }

  // The owner's number of a row, 0 until he gives one. It stays with the row whatever is sorted, hidden or deleted.
  int Kimlik(int satir) const { return kimlikler_[std::size_t(satir)]; }
  void KimlikKoy(int satir, int kimlik) { kimlikler_[std::size_t(satir)] = kimlik; }

  // Cells of another colour than the list, by row and column.
  std::function<std::optional<HucreRengi>(int, int)> Renk = [](int, int) { return std::nullopt; };

  // Between these two, additions and changes are not shown one by one.
  void TopluBasla();
  void TopluBitir();

  // What is shown: rows with `aranan` in a visible column, in the order of `kolon`; -1 is the order of addition.
  void Filtrele(const QString& aranan);
  void Sirala(int kolon, Qt::SortOrder yon);
  int SiraKolonu() const { return siraKolonu_; }
  Qt::SortOrder SiraYonu() const { return siraYonu_; }
  int GosterilenSatir(int sira) const { return gorunen_[std::size_t(sira)]; }  // shown position to row
  int GosterilenSira(int satir) const;                                         // -1 when filtered out

  int rowCount(const QModelIndex& ust = {}) const override;
  int columnCount(const QModelIndex& ust = {}) const override;
  QVariant data(const QModelIndex& yer, int rol) const override;
  QVariant headerData(int bolum, Qt::Orientation yon, int rol) const override;
  Qt::ItemFlags flags(const QModelIndex& yer) const override;
  void sort(int kolon, Qt::SortOrder yon) override { Sirala(kolon, yon); }

 private:
  std::size_t Yer(int satir, int kolon) const { return std::size_t(satir) * kolonlar_.size() + std::size_t(kolon); }
  bool Uyar(int satir) const;
  void GorunenleriKur();
  void Yerlestir();
  void GorunumuYenile();

  std::vector<dclistKolonu> kolonlar_;
  std::vector<QString> hucreler_;  // row after row
  std::vector<char> degisti_;
  std::vector<int> kimlikler_;
  std::vector<int> gorunen_;
  QString aranan_;  // folded
  int siraKolonu_ = -1;
  Qt::SortOrder siraYonu_ = Qt::AscendingOrder;
  int toplu_ = 0;
};

// Lower case by the Turkish alphabet: I gives ı, İ gives i.
QString TurkceKucuk(const QString& metin);

}  // namespace belvani
