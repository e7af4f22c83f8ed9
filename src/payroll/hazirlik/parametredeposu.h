// ParametreDeposu: the parameters that a desktop session holds, of the law and of the open company. Loaded at the login
// and again after whatever changes them; screens read them from here, never from the files.
#pragma once

#include "payroll/hazirlik/firmadurumu.h"
#include "payroll/parametre/indir.h"

namespace belvani {

struct ParametreDeposu {
  explicit ParametreDeposu(Oturum& oturum) : firma(oturum) {}

  YasalParametreler yasal;
  FirmaDurumu firma;

  // Grows with every load of either: who keeps a copy sees that it is old.
  std::uint64_t Surum() const { return yasalSurumu + firma.Surum(); }

  // The installation's files, at the start and after each save or download of one. Absent and broken files act as
  // their loaders tell, in silence.
  void YasalYukle(const std::string& dataPath);

  // The download button of a parameter screen: one file, unchecked, over that of the data path; then all are loaded
  // again. On failure nothing has changed.
  Durum DosyaIndir(const Oturum& o, ParametreDosyasi dosya, const IndirmeSiniri& sinir = {});

  std::uint64_t yasalSurumu = 0;
};

}  // namespace belvani
