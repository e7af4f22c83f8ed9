// xtext: the one-line field of every screen. It holds a text, a number or a date, formats while the user types, moves
// on with Enter, and loads and stores itself from a named field of a record.
//
//   Enter, Down    next field           Delete      empties a number or date wherever the caret stands
//   Up             previous field       "+"         three zeros at the end of a number
//   F2             lookup, where the field has the picture button
//   Ctrl+Z         a number or date becomes what it was when the field was entered
//
// A number of zero shows as an empty field. Digits beyond the field's decimals or above its largest value are refused
// with a beep and change nothing, so what is shown is always what is stored. A text that is no date becomes
// "??.??.????" when the field is left; an empty date stays empty. What a key makes of a number or date is decided by
// core/girdi.h; this is its view.
#pragma once

#include <QLineEdit>
#include <QToolButton>
#include <memory>

#include "core/girdi.h"

namespace belvani {

class Imlec;

class xtext : public QLineEdit {
  Q_OBJECT
 public:
  enum class Tip { Metin = 0, Sayi = 1, Tarih = 2 };

  explicit xtext(QWidget* ust = nullptr);

  // The kind: for a text `enCok` is its longest length, for a number the largest value.
  void xTextBicim(Tip tip, double enCok, Qt::Alignment hiza = Qt::AlignLeft, bool tumunuSec = false, int ondalik = 0,
                  int grup = 3);

  Tip TextTip() const { return tip_; }
  int Onda() const { return ondalik_; }
  double MaxLenght() const { return enCok_; }

  // The value: a text, a number, a date or Null. Loading does not count as a change, and what was loaded and not typed
  // over comes back as it was, with decimals that the field does not show.
  Deger Value() const;
  void DegerKoy(const Deger& deger);
  bool Bos() const { return text().isEmpty(); }
  // A date field that holds something which is none.
  bool HataliTarih() const;

  // A name of the record's field binds the two below; without one they do nothing.
  void RecordField(std::string alan) { alan_ = std::move(alan); }
  void GetRecord(Imlec& rs);
  bool SetRecord(Imlec& rs);  // true when written

  void xReset();
  void Maskele() { setEchoMode(QLineEdit::Password); }
  void ButonKoy(const QString& ipucu);

 Q_SIGNALS:
  void Change();   // after every accepted key
  void Lookup();   // F2, or a press of the picture button
  void Ayrildi();  // focus has gone

 protected:
  void keyPressEvent(QKeyEvent* olay) override;
  void focusInEvent(QFocusEvent* olay) override;
  void focusOutEvent(QFocusEvent* olay) override;
  void inputMethodEvent(QInputMethodEvent* olay) override;
  void resizeEvent(QResizeEvent* olay) override;
  void changeEvent(QEvent* olay) override;

 private:
  bool OrtakTus(const QKeyEvent& olay);
  void HarflerYaz(const QString& harfler);
  void Uygula(TusSonucu sonuc);
  bool HepsiSecili() const;
  void Yapistir();
  void GeriAl();
  void Bosalt();
  void GirdiyiGoster();
  void Bitir();

  Tip tip_ = Tip::Metin;
  double enCok_ = 0;
  int ondalik_ = 0;
  bool tumunuSec_ = false;
  std::unique_ptr<Girdi> girdi_;  // of a number or date; a text is typed by the line editor's own rules
  std::string alan_;
  QToolButton* buton_ = nullptr;
};

}  // namespace belvani
