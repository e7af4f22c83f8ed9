// Fetching the law's figures as a screen does it: shown, and given up with Esc.
#pragma once

#include "payroll/hazirlik/mevzuatsorusu.h"
#include "ui/ekran.h"

namespace belvani {

MevzuatSorusu::Getiren ParametreIndirme(EkranBaglami& baglam, ParametreDeposu& parametreler);

}  // namespace belvani
