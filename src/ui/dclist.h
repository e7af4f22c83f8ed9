// dclist: the editable table of the lists. It holds its rows itself; the screen that owns it fills them, saves a row
// when the list says that it is complete, and deletes on request.
//
//   list.CreateNewCaption('n', "tutar", "Tutar", 100, 1e12, 2, 3, HucreDenetimi::SayiGerek);
//   list.SatirGuncelle = [&](int satir) { return Kaydet(list.TextByName(satir, "tutar")); };
//
// Keys: Enter or Down in a cell checks it and opens the next; behind the last one the row is complete. Enter on a row
// opens it, Insert adds one, Delete asks the owner to delete, any letter starts typing, Ctrl+C copies. Esc takes back
// the cell; on a changed row it first has the row saved. A row is also complete when another row or another field is
// gone to; a fresh one into which nothing was typed goes then. What the owner refuses stays as typed, and is offered
// again.
#pragma once

#include <QTableView>
#include <functional>
#include <map>
#include <vector>

#include "core/bildirim.h"
#include "ui/dclistmodel.h"

class QLineEdit;

namespace belvani {

class dclist : public QTableView {
  Q_OBJECT
 public:
  enum class Mod { Gezinme = 0, Duzeltme = 1, Ekleme = 2 };

  dclist(Bildirim& bildirim, QWidget* ust = nullptr);
  ~dclist() override;

  // Kinds: a text, n number, t date, s fixed choice, m text and b number that the owner fills, v and e text; capitals
  // alike. Any other letter adds no column.
  void CreateNewCaption(char tip, const QString& ad, const QString& baslik, int genislik, double enCok = 0,
                        int ondalik = 0, int grup = 3, HucreDenetimi denetim = HucreDenetimi::Yok);
  void SecenekKoy(const QString& ad, const QStringList& secenekler);  // choices of an "s" column
  void Gizle(const QString& ad);
  void GenisKolon(const QString& ad);  // takes the room that is left
  // The size that it asks for where there is room; without, it scrolls in less.
  void TercihBoyu(int en, int boy);
  QSize sizeHint() const override { return tercih_.isEmpty() ? QTableView::sizeHint() : tercih_; }
  QSize minimumSizeHint() const override;
  void Reset();

  int Add();
  void Clear();
  int ListCount() const { return model_->SatirSayisi(); }
  QString Text(int satir, int kolon) const;
  void Text(int satir, int kolon, const QString& metin) { model_->MetinKoy(satir, kolon, metin); }
  QString TextByName(int satir, const QString& ad) const;
  void TextByName(int satir, const QString& ad, const QString& metin);
  QString CaptionByName(const QString& ad) const;
  // The first row with this text in the column, at or after `ilk`; it becomes the current one. -1 when there is none.
  int FindByName(const QString& ad, const QString& metin, int ilk = 0);
  dclistModel& Model() { return *model_; }

  int CurSat() const;  // current row, -1 without one
  // Several rows can be chosen at once, by Shift, Ctrl and Ctrl+A; of a list to read.
  void CokSecimli() { setSelectionMode(ExtendedSelection); }
  std::vector<int> SeciliSatirlar() const;  // in the order in which they stand
  std::vector<int> GorunenSatirlar() const;
  int CurrentCol() const;
  Mod CurrentMode() const { return mod_; }
  void ChngSat(int satir);
  bool MoveNext();
  bool MovePre();
  void HucreyeGit(int satir, const QString& ad);

  // Rows can be added, changed, deleted; false by default: a list to read.
  void Editable(bool duzenlenir);
  void YeniSatirli(bool olur) { yeniSatirli_ = olur; }  // false: the rows are fixed in number
  // Finishes the row being edited; false when it cannot stand or the owner refuses it.
  bool OkUpdateData();
  // The user has typed texts that differ from those that came up, and nobody has kept them yet.
  bool Yazildi() const;
  void YazilaniUnut();   // kept, or replaced
  void YazilaniBirak();  // given up, rows included that the owner has refused
  void tazele(int satir);

  void Filtrele(const QString& aranan);
  // A search box that filters this list while it is typed into; Down goes to the rows. Ctrl+F goes to it.
  QLineEdit* AramaKutusu(QWidget* ust);

  // The owner's part. Each is called with the row.
  std::function<bool(int)> SatirGuncelle = [](int) { return true; };
  std::function<bool(int)> SatirSil = [](int) { return false; };  // asks and deletes; true removes the row
  std::function<void(int)> YeniSatir = [](int) {};                // fills a fresh row
  // Leaving a cell with a new text: false keeps the cursor. May change the text.
  std::function<bool(int, const QString&, QString&)> Dogrula = [](int, const QString&, QString&) { return true; };
  // A cell has taken a new text.
  std::function<void(int, const QString&)> HucreDegisti = [](int, const QString&) {};
  std::function<void(int)> SatirSecildi = [](int) {};  // another row is current
  std::function<void(int)> Secildi = [](int) {};       // Enter or double click on a row of a list to read
  std::function<bool(const QKeyEvent&)> Tus = [](const QKeyEvent&) { return false; };  // true: eaten

  // One of the keys that walk through rows (arrows, Page Up, Page Down), for lists that are walked from a search box.
  // At the ends of the list it does nothing.
  void Gezin(Qt::Key tus);

  // The owner is being destroyed: nothing is asked of him any more.
  void SahibiGitti();

  // For the cell editor.
  bool HucreBitir(QWidget* duzenleyici);
  bool Bitiriliyor() const { return bitiriliyor_; }
  void SonrakiHucre();
  void OncekiHucre();
  QWidget* DuzenleyiciYap(QWidget* ust, int kolon) const;

 protected:
  void keyPressEvent(QKeyEvent* olay) override;
  void focusOutEvent(QFocusEvent* olay) override;
  void currentChanged(const QModelIndex& simdiki, const QModelIndex& onceki) override;
  void mouseDoubleClickEvent(QMouseEvent* olay) override;
  void changeEvent(QEvent* olay) override;
  void paintEvent(QPaintEvent* olay) override;

 private:
  void YaziyaUydur();
  void YeniSatirAc();
  void SimdikiSatiriSil();
  void SatiriCikar(int satir);
  void Kopyala() const;
  void DuzenlemeyeBasla();
  void BosSatiriBirak();
  void BosSatiriSil();

  Bildirim& bildirim_;
  dclistModel* model_;
  std::map<std::pair<int, int>, QString> gelen_;  // of the cells typed into, by row and column: the text before
  QLineEdit* arama_ = nullptr;
  QSize tercih_;
  Mod mod_ = Mod::Gezinme;
  QPersistentModelIndex bosSatir_;  // added, nothing typed into it yet
  bool duzenlenir_ = false;
  bool yeniSatirli_ = true;
  bool bitiriliyor_ = false;
};

}  // namespace belvani
