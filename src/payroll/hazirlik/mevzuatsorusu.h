// MevzuatSorusu: what stands between the user and a month paid under another month's law. Asked when a month is chosen
// and before each save and mass run; what he has answered for a month and its law is not asked again while the screen
// is open.
//
//   no law, or a broken one   "… getirilsin mi ?"; without it nothing is calculated
//   another month's           "… getirilsin mi ?"; no: he goes on with what is installed
//   his own figures           listed, "… devam edilsin mi ?"; yes is remembered with the figures, for good
//
// Fetching over figures of his own lists them and asks first; they are kept, and come back with their month.
#pragma once

#include <set>

#include "core/asama.h"
#include "core/gelisme.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "payroll/parametre/mevzuatkumesi.h"

namespace belvani {

class MevzuatSorusu {
 public:
  MevzuatSorusu(Oturum& oturum, ParametreDeposu& parametreler, Bildirim& bildirim)
      : o_(oturum), parametreler_(parametreler), bildirim_(bildirim) {}

  // Whether the month may be calculated with what is installed now.
  Gelisme<bool> Uygun(MevzuatAyi ay);

  // Fetches the month's law, or one file of it, after the questions that it takes; true when it has come.
  Gelisme<bool> Getir(MevzuatAyi ay, std::optional<ParametreDosyasi> yalniz = {});

  // How the fetching is run: a screen shows that it takes time.
  Yurutucu yurut = HemenYurut;

 private:
  Gelisme<bool> Indir(MevzuatAyi ay, MevzuatIstegi istek);

  Oturum& o_;
  ParametreDeposu& parametreler_;
  Bildirim& bildirim_;
  std::set<std::pair<std::string, std::uint64_t>> sorulanlar_;  // month, and version of the law
};

}  // namespace belvani
