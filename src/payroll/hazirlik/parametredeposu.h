// ParametreDeposu: the parameters that a desktop session holds, of the law and of the open company. Loaded at the login
// and again after whatever changes them; screens read them from here, never from the files.
#pragma once

#include "payroll/hazirlik/firmadurumu.h"
#include "payroll/parametre/mevzuat.h"

namespace belvani {

struct MevzuatAyi;  // payroll/parametre/mevzuatkumesi.h
struct MevzuatGorusu;
struct MevzuatIstegi;
struct MevzuatKurulumu;

// The unit of the company's books of a year: six zeros were dropped on 01.01.2005; books before that in the old lira
// have no decimals.
Lira DefterLirasi(const Oturum& o, int yil);

struct ParametreDeposu {
  explicit ParametreDeposu(Oturum& oturum) : firma(oturum) {}

  YasalParametreler yasal;
  FirmaDurumu firma;

  // Grows with every load of either: who keeps a copy sees that it is old.
  std::uint64_t Surum() const { return yasalSurumu + firma.Surum(); }

  // The installation's files, at the start and after each save or download of one. Absent and broken files act as
  // their loaders tell, in silence.
  void YasalYukle(const std::string& dataPath);

  // What the installed law is to a month. Looks at the files again: a colleague may have fetched another month, which
  // then holds here too.
  MevzuatGorusu MevzuataBak(const Oturum& o, MevzuatAyi ay);

  // Fetches the law of a month in the lira of the company's books, all of it or one file, and loads it. On failure
  // nothing has changed.
  Sonuc<MevzuatKurulumu> MevzuatiGetir(const Oturum& o, MevzuatAyi ay, const MevzuatIstegi& istek);

  std::uint64_t yasalSurumu = 0;
};

}  // namespace belvani
