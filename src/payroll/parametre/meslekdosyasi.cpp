#include "payroll/parametre/meslekdosyasi.h"

namespace belvani {

Durum MeslekDosyasiIndir(const VeriYolu& veri, const IndirmeSiniri& sinir) {
  const std::string sunucu = ParametreSunucusu();
  if (sunucu.empty()) return Kusur{"Parametre sunucusu tanımlı değil; bu dosya programla gelmez"};
  return ParametreIndir(sunucu + "/download/meskod.txt", veri, "meskod.dat", sinir);
}

}  // namespace belvani
