// xgrid: the report grid. A finished report on the screen: pages, one or two caption rows, sums and end block below the
// last page. It is read-only; printer and spreadsheet take the same document from it.
//
//   grid.RaporKoy(rapor);
//
// or, by a writer that knows its columns at run time only, Reset, AddColons for each column, NewPage, then CreateRow
// and Add for each line, at last Refresh (printing/rapordolgusu.h, behind operations of the same names).
//
// Keys: Page Up and Page Down go on to the neighbouring page, Ctrl+Page Up and Ctrl+Page Down jump to it. Ctrl+S sorts
// by the current column, then the other way round, then puts the report's order back; so does a click on a caption.
// Ctrl+C copies the selected rows, Ctrl+Shift+C with captions. Ctrl+F or any letter goes to the search box, F3 and
// Shift+F3 to the next and previous place where the text stands.
//
// Pages, rows and columns count from 0; what does not exist reads as Null or "", and writing it changes nothing.
#pragma once

#include <QTableView>
#include <functional>

#include "core/session/gorunum.h"
#include "printing/rapordolgusu.h"
#include "ui/xgridmodel.h"

class QComboBox;
class QLabel;
class QLineEdit;

namespace belvani {

class xgrid : public QTableView {
  Q_OBJECT
 public:
  enum class Yon { Ileri, Geri };

  explicit xgrid(QWidget* ust = nullptr);

  // The report as a whole; what was filled before goes.
  void RaporKoy(std::shared_ptr<const Rapor> rapor);
  // The document, with what was filled since the last Refresh. Throws TutarTasmasi when a sum of that leaves the range.
  const Rapor& Belgesi() const;

  // Filling, as RaporDolgusu has it.
  void Reset();
  void AddColons(const QString& baslik, DolguTuru tur, const QString& ikinci = {}, int bicim = 0, int en = 0);
  void NewPage();
  void CreateRow(GridSatiri tur, int adet = 1);
  void Add(int kolon, const Hucre& deger);
  void AddbyName(const QString& baslik, const Hucre& deger);
  void data(int sayfa, int satir, int kolon, const Hucre& deger);
  void Basliklar(const QString& baslik, const QStringList& ustSatirlar);  // title, heading lines
  void Refresh();                                                         // shows what was filled

  Hucre data(int sayfa, int satir, int kolon) const;
  // The row being filled; on the screen the cursor. Rows count in the page, in the report's order.
  int CurrentPage() const;
  int CurrentRow() const;
  int CurrentColon() const { return dolduruluyor_ ? dolgu_->Kolon() : currentIndex().column(); }
  void CurrentPage(int sayfa) { KonumaGit(sayfa, 0, CurrentColon()); }
  void CurrentRow(int satir) { KonumaGit(CurrentPage(), satir, CurrentColon()); }
  void CurrentColon(int kolon) { KonumaGit(CurrentPage(), CurrentRow(), kolon); }
  int GetColonCount() const { return int(Belgesi().Kolonlar().size()); }
  int GetListCount() const { return int(YeniSayfalar().size()); }  // of all pages
  QString GetAck1() const { return UstSatirMetni(0); }
  QString GetAck2() const { return UstSatirMetni(1); }
  QString GetBaslikPrint(int kolon) const;
  QString GetFormatData(int satir, int kolon) const;  // row of the whole list

  // Colours; an invalid one, as at first, is that of the program's colour table.
  QColor PassiveColor() const { return renkler_[0]; }
  QColor ZebraColor() const { return renkler_[1]; }
  QColor SelectedColor() const { return renkler_[2]; }
  QColor CaptionColor() const { return renkler_[3]; }
  QColor BorderColor() const { return renkler_[4]; }
  void PassiveColor(const QColor& renk) { RenkKoy(0, renk); }
  void ZebraColor(const QColor& renk) { RenkKoy(1, renk); }
  void SelectedColor(const QColor& renk) { RenkKoy(2, renk); }
  void CaptionColor(const QColor& renk) { RenkKoy(3, renk); }
  void BorderColor(const QColor& renk) { RenkKoy(4, renk); }

  // Room between the rows, pixels at 96 dpi.
  int Aralik() const { return aralik_; }
  void Aralik(int aralik);

  // Fonts of captions and rows (gridbaslikfontname, griddetayfontsize …): kept for the user, and those of all lists.
  static GridYazilari Yazilar() { return GridYazilariOku(); }
  static Durum Yazilar(const GridYazilari& yazilar);

  // Bound by the owner: what prints the document, and what sends it to a spreadsheet.
  std::function<void()> YazdirIslevi = [] {};
  std::function<void()> ExcelIslevi = [] {};
  void yazdosprint() { YazdirIslevi(); }
  void yazexcell() { OpenExcell(); }
  void OpenExcell() { ExcelIslevi(); }  // the spreadsheet program always comes with the document in it

  std::function<bool(const QKeyEvent&)> Tus = [](const QKeyEvent&) { return false; };  // true: eaten

  // Its companions, to be placed by the owner. The selector of pages is there only with more than one of them.
  QLineEdit* AramaKutusu(QWidget* ust);
  QComboBox* SayfaSecici(QWidget* ust);
  std::function<void(bool bulundu)> Arandi = [](bool) {};

  // Goes to the next cell with this text, case ignored as Turkish does, round the end of the report. Amounts are found
  // with and without thousands commas.
  bool Bul(const QString& aranan, Yon yon, bool simdikiDahil = false);
  void SonrakiniBul(Yon yon);
  void AramayaGit();
  void Sirala(int kolon);  // the next of the three orders
  void Kopyala(bool basliklarla) const;

  const xgridModel& Model() const { return *model_; }

 protected:
  void keyPressEvent(QKeyEvent* olay) override;
  void changeEvent(QEvent* olay) override;
  void keyboardSearch(const QString& harfler) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& yer, const QEvent* olay) const override;
  bool eventFilter(QObject* nesne, QEvent* olay) override;

 private:
  template <class Is>
  void Doldur(Is is);
  std::vector<bool> YeniSayfalar() const;  // of each row, also while they are filled in
  int SimdikiSatir() const;
  void KonumaGit(int sayfa, int satir, int kolon);
  // Showing.
  void Goster();
  QString SayfaBasligi(int kolon) const;
  QString UstSatirMetni(std::size_t sira) const;
  void StileUydur();
  void BloguYerlestir();
  void SayfalariYaz();
  void RenkKoy(std::size_t sira, const QColor& renk);
  // Walking.
  void SayfaGoster(int sayfa, int sira);
  void KaydaGit(int kayit, int kolon);
  bool SayfaTusu(const QKeyEvent& olay);
  bool AramaTusu(const QKeyEvent& olay);

  xgridModel* model_;
  QLabel* toplamOrnegi_;                        // never shown: what the style gives to sums
  QLabel* eksiOrnegi_;                          // and to warnings, for amounts below zero
  std::optional<RaporDolgusu> dolgu_;           // nothing when the report came as a whole
  mutable std::shared_ptr<const Rapor> rapor_;  // null while the filling is ahead of it
  bool dolduruluyor_ = true;                    // between the first change and Refresh
  std::array<QColor, 5> renkler_;
  int aralik_ = 10;
  QLineEdit* arama_ = nullptr;
  QComboBox* secici_ = nullptr;
};

}  // namespace belvani
