// ListeToplami: the sums below the list of a paper, under their heads, and the number of its rows.
#pragma once

#include <QWidget>

#include "documents/belgetanimi.h"

class QGridLayout;

namespace belvani {

class ListeToplami : public QWidget {
 public:
  ListeToplami(const BelgeListesi& tanim, QWidget* ust);

  // Sums of the paper's own; nothing is added up here.
  void Goster(const Rapor& rapor);

 private:
  const BelgeListesi& tanim_;
  QGridLayout* izgara_;
};

}  // namespace belvani
