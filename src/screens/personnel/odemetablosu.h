// The payments of a release: five kinds in five columns of amounts, typed, and under each column its sum, which follows
// every change. Delete empties a cell.
#pragma once

#include "personnel/istencikis.h"
#include "ui/satirtablosu.h"

namespace belvani {

class OdemeTablosu : public QWidget {
 public:
  OdemeTablosu(Bildirim& bildirim, int paraonda, QWidget* ust);

  // Takes the cell that is being typed into; false when it cannot stand.
  bool Bitir() { return liste_->OkUpdateData(); }
  IbranameOdemeleri Oku() const;
  void Bosalt();
  // Amounts of a kind of payment, in the place of what stands there.
  void Koy(std::size_t satir, const OdemeSatiri& odeme);

 private:
  void HucreyiBosalt(int satir);
  void ToplamiAltaDiz();
  void ToplamiGoster();

  dclist* liste_;
  dclist* toplam_;  // its one row stands below the others, where nobody types or sorts
  SatirTablosu<OdemeSatiri> odemeler_;
  SatirTablosu<OdemeSatiri> toplamlar_;
};

}  // namespace belvani
