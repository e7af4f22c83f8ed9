// yzckopy ("Form Yazdırma"): a statutory form as it will print, its values over the drawn form, to be moved and changed
// by hand before it goes to the printer. What is changed here changes nothing else.
#pragma once

#include <QScrollArea>
#include <QScrollBar>

#include "printing/form/formsayfasi.h"
#include "printing/yzcayar.h"
#include "ui/form.h"
#include "ui/formyuzeyi.h"

namespace belvani {

class yzckopy : public Form {
 public:
  yzckopy(EkranBaglami& baglam, std::vector<FormSayfasi> sayfalar, YzcAyarlari ayar);

  FormYuzeyi& Yuzey() { return *yuzey_; }

 private:
  void Git(int adim);
  void Yazdir();

  YzcAyarlari ayar_;
  FormYuzeyi* yuzey_;
  QScrollArea* alan_;
  QLabel* durum_;
};

}  // namespace belvani
