// DiziYuvalari: the two lists of the series sheet in slots that are typed into, number and name of each side by side,
// with a scroll bar over all 500 rows of them.
//
//   Enter: next slot; from the last one on the rows go on    Down, Up: rows above and below    wheel, Page Up, Page
//   Down
#pragma once

#include <QWidget>
#include <array>
#include <functional>

#include "notices/dizipusulasi.h"

class QLabel;
class QScrollBar;

namespace belvani {

class xtext;

class DiziYuvalari : public QWidget {
 public:
  static constexpr int GorunenSatir = 14;

  explicit DiziYuvalari(QWidget* ust);

  void Koy(const DiziPusulasi& pusula);
  // Without the empty rows behind the last one that holds something.
  DiziPusulasi Oku() const;

  // Every slot, for the keys of the screen.
  std::vector<QWidget*> Yuvalar() const;
  void Kaydir(int satir);  // by so many rows
  std::function<void()> Degisti = [] {};

 protected:
  bool eventFilter(QObject* nesne, QEvent* olay) override;
  void wheelEvent(QWheelEvent* olay) override;

 private:
  struct Kolon {
    std::vector<DiziSatiri> DiziYuvalari::*liste;
    std::string DiziSatiri::*uye;
    const char* ad;  // of the slots
    int harf;
    int en;  // in letters
  };
  static const std::array<Kolon, 4> Kolonlar;

  void SatirYap(int satir);
  void Goster();
  bool TusuAl(int satir, std::size_t kolon, int tus);

  std::vector<DiziSatiri> ilk_;
  std::vector<DiziSatiri> tekrar_;
  std::array<QLabel*, GorunenSatir> siralar_{};
  std::array<std::array<xtext*, 4>, GorunenSatir> yuvalar_{};
  QScrollBar* dik_;
};

}  // namespace belvani
