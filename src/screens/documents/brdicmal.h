// brdicmal ("Bordro Özeti"): the totals of a month, employee and employer side by side, with the chart of the twelve
// months up to it. A change of year or month works them out again.
#pragma once

#include "documents/icmalserisi.h"
#include "screens/documents/belgeekrani.h"

class QLabel;
class QTableWidget;

namespace belvani {

class brdicmal : public BelgeEkrani {
 public:
  brdicmal(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim);

 private:
  void BelgeSozu(const std::string& soz) override;
  void Goster();
  void AyiOku(int surum, std::size_t sira);
  void GrafikCiz();

  QLabel* mevzuat_;
  QLabel* satirlar_;
  QLabel* sayilar_;
  QLabel* grafik_;
  IcmalSerisi seri_;    // of the chart
  int seriSurumu_ = 0;  // grows with each choice of a month: what is still being read for another one stops
};

}  // namespace belvani
