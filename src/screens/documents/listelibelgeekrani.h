// ListeliBelgeEkrani: the screen of a paper that shows its rows (BelgeTanimi::liste): the paper's table as a list below
// the fields, its columns under the names that other programs know them by, its sums below it.
//
//   F5 lists, and goes to the rows    Ctrl+F: search box    the rest as on every screen of a paper
//
// The list follows the fields a moment after the last change, where its row says so. One that is not of what stands in
// the fields says that, in red above it; so does a paper that leaves someone out, or has a figure of another month's
// law.
#pragma once

#include "screens/documents/belgeekrani.h"
#include "screens/documents/listetoplami.h"

class QTimer;

namespace belvani {

class dclist;

class ListeliBelgeEkrani : public BelgeEkrani {
 public:
  ListeliBelgeEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim);

  void FirmaDegisti() override;

 protected:
  void BelgeSozu(const std::string& soz) override;
  void Listelet() override;

 private:
  // False: the choices cannot be read, or the work was stopped; the rows stay.
  bool Listele();
  void Goster(const Belge& belge);
  void KolonlariKur(const Rapor& rapor);
  void SecimDegisti();
  void SozleriYaz();

  QLabel* sozler_;
  dclist* liste_;
  ListeToplami* toplam_;
  QTimer* bekleyen_;  // runs between the last change and the listing
  std::string belgeSozu_;
  std::string kayitSozu_;  // the paper is made of no records
  bool eski_ = false;      // the rows are of other choices
};

}  // namespace belvani
