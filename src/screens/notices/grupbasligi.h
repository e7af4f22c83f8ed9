// GrupBasligi: captions above the head of a list, each over so many columns of it. It follows the widths of the columns
// and the list's scrolling.
#pragma once

#include <QStringList>
#include <QWidget>
#include <span>
#include <string_view>

namespace belvani {

class dclist;

class GrupBasligi : public QWidget {
 public:
  // The first caption begins at column `ilk`.
  GrupBasligi(dclist& liste, int ilk, int kolonSayisi, std::span<const std::string_view> basliklar, QWidget* ust);

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* olay) override;

 private:
  dclist& liste_;
  int ilk_;
  int kolonSayisi_;
  QStringList basliklar_;
};

}  // namespace belvani
