// ozgvharc ("Özel Gider İndirimi Harcama Girişi"): the declared expenses of a year, a row for each person. A row is
// saved with its refund when it is left, and the list moves on.
#pragma once

#include <map>

#include "deductions/ogiharcama.h"
#include "ui/form.h"
#include "ui/satirtablosu.h"

namespace belvani {

class ozgvharc : public Form {
 public:
  explicit ozgvharc(EkranBaglami& baglam);

 protected:
  bool KendiligindenKaydet() override;

 private:
  void ListeyiKur();
  void YilaGec(const std::string& yil);
  void Doldur();
  void KosullariTazele();
  void SatiriKoy(int satir, const OgiHarcamasi& harcama);
  void SatiriAnlat(int satir);
  // The row is for this person from now on; his base comes up. False: it cannot be, which is told.
  bool KisiyiKoy(int satir, const std::string& kod);
  void KisiBul();
  int KisininSatiri(std::string_view kod, int haric) const;
  OgiHarcamasi& Satiri(int satir) { return satirlar_[liste_->Model().Kimlik(satir)]; }
  bool SatirKaydet(int satir);
  void HarcamayaGec();
  bool SatirSil(int satir);
  bool ListeTusu(const QKeyEvent& olay);

  dclist* liste_;
  SatirTablosu<OgiHarcamasi> tablo_;
  QLabel* uyari_;
  QLabel* anlatim_;
  OgiKosullari kosullar_;
  std::map<int, OgiHarcamasi> satirlar_;  // as they are stored, by the list's numbers of its rows
  int sonKimlik_ = 0;
};

}  // namespace belvani
