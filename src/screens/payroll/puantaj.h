// puantaj ("Standart Puantaj Girişi"): the timesheet of a month. Period and list only.
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class puantaj : public Form {
 public:
  explicit puantaj(EkranBaglami& baglam);
};

}  // namespace belvani
