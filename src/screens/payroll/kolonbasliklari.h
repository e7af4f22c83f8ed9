// KolonBasliklari: a line of headings above a list, each over a run of its columns.
#pragma once

#include <QLabel>

#include "ui/dclist.h"

namespace belvani {

class KolonBasliklari : public QWidget {
 public:
  KolonBasliklari(dclist& liste, QWidget* ust);

  // Over the columns from `ilk` to `son`.
  void Ekle(const QString& metin, const QString& ilk, const QString& son);

 private:
  struct Baslik {
    QLabel* etiket;
    int ilk, son;
  };
  void Yerlestir();

  dclist& liste_;
  std::vector<Baslik> basliklar_;
};

}  // namespace belvani
