// The list of professions, `meskod.dat` in the data path: it is fetched as the parameter server has it, and kept. None
// is shipped with the program.
#pragma once

#include "payroll/parametre/indir.h"

namespace belvani {

// Fetches it from the server of the setting `ParametreAdresi`; a failure leaves the file as it was.
Durum MeslekDosyasiIndir(const VeriYolu& veri, const IndirmeSiniri& sinir = {});

}  // namespace belvani
