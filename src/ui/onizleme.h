// onizleme ("Önizleme"): the pages of a document as they will print, one at a time.
//
//   Page Up, Page Down  page      Home, End  first, last page      + -  larger, smaller      arrow keys  move
#pragma once

#include <QScrollArea>
#include <memory>

#include "printing/cizilenbelge.h"
#include "ui/form.h"

namespace belvani {

class ResimTuvali;

class onizleme : public Form {
 public:
  onizleme(EkranBaglami& baglam, std::unique_ptr<CizilenBelge> sayfalar);

  int Sayfa() const { return sayfa_; }  // from 1; 0 without pages
  const CizilenBelge& Sayfalar() const { return *sayfalar_; }

 private:
  void SayfayaGit(int no);
  void Buyut(int adim);
  void Kaydir(Qt::Key tus);
  double SiganDpi() const;
  void Ciz();

  std::unique_ptr<CizilenBelge> sayfalar_;
  int sayfa_ = 0;
  int buyukluk_ = 0;
  QScrollArea* alan_;
  QLabel* resim_;
  QLabel* durum_;
};

// What was drawn on a page, as a picture; null when nothing was.
QImage NoktaResmi(const ResimTuvali& tuval);

// A page of a document as a picture; null when it has no such page.
QImage SayfaResmi(const CizilenBelge& belge, int sayfa, double dpi);

}  // namespace belvani
