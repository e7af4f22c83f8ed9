// ParametreDeposu: the parameters that a desktop session holds, of the law and of the open company. Loaded at the login
// and again after whatever changes them; screens read them from here, never from the files.
#pragma once

#include "payroll/hazirlik/kosullar.h"
#include "payroll/parametre/indir.h"

namespace belvani {

struct ParametreDeposu {
  YasalParametreler yasal;
  FirmaParametreleri firma;
  std::uint64_t surum = 0;  // grows with every load: who keeps a copy sees that it is old

  // The installation's files, at the start and after each save or download of one. Absent and broken files act as
  // their loaders tell, in silence.
  void YasalYukle(const std::string& dataPath);

  // The company's files and tables, when it is opened and after each save of one. On failure they stay as they were.
  Durum FirmaYukle(Oturum& o);

  // The download button of a parameter screen: one file, unchecked, over that of the data path; then all are loaded
  // again. On failure nothing has changed.
  Durum DosyaIndir(const Oturum& o, ParametreDosyasi dosya, const IndirmeSiniri& sinir = {});
};

}  // namespace belvani
