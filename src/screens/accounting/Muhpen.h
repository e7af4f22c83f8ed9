// Muhpen ("Hesap Penceresi"): the lookup window over the chart of an accounting store. The list narrows with every key;
// the chosen code goes to the session's SeciliKod.
#pragma once

#include "accounting/hesapplani.h"
#include "ui/dclist.h"
#include "ui/form.h"

class QCheckBox;
class QComboBox;

namespace belvani {

class Muhpen : public Form {
 public:
  Muhpen(EkranBaglami& baglam, HesapPlani plan);

 private:
  void ListeyiDoldur();
  void Sec(int satir);

  HesapPlani plan_;
  QComboBox* alan_;
  xtext* aranan_;
  QCheckBox* bastan_;
  dclist* liste_;
};

// Opens the window over the books in `dizin`, at the account `simdiki`; the chosen code, or nothing.
std::optional<std::string> HesapSec(EkranBaglami& baglam, const std::string& dizin, const std::string& simdiki);

}  // namespace belvani
