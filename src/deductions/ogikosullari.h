// What the personal-expense refund of a year is calculated with: the tax table of the installation (ozgvtbl.dat), the
// parameters of the company (ozgvpar.dat), and what there is to say about both.
#pragma once

#include <string>
#include <vector>

#include "core/session/oturum.h"
#include "payroll/hesap/ozelgider.h"
#include "payroll/parametre/dosyalar.h"

namespace belvani {

struct OgiKosullari {
  int yil = 0;
  GvTablosu tablo;
  OzelGiderParametreleri parametreler;
  Yuvarlayici yuvarla{2};
  std::vector<std::string> uyarilar;

  // Why no refund may be calculated and stored: an empty table would give the whole tax back.
  std::optional<Kusur> Engel() const;
};

// The parameters of the open company; `bozuk`: what becomes of a file of another size.
Yukleme<OzelGiderParametreleri> OgiParametreleriYukle(const Oturum& o, BozukDosya bozuk = BozukDosya::Onarilir);

OgiKosullari OgiKosullariYukle(const Oturum& o, int yil, BozukDosya bozuk = BozukDosya::Onarilir);

// Where a table differs from the one that was published for the year, or none was; "" where it does not.
std::string OzelGvTablosuSozu(const GvTablosu& tablo, int yil);

}  // namespace belvani
