// yzckopy ("Form Yazdırma"): a statutory form as it will print, its values over the drawn form, to be moved and changed
// by hand before it goes to the printer. What is changed here changes nothing else. It prints as the dialog that opened
// it was answered; Ctrl+F8 asks anew, and leads to preview and PDF.
#pragma once

#include <QScrollArea>
#include <QScrollBar>

#include "printing/form/formsayfasi.h"
#include "printing/yzcayar.h"
#include "ui/form.h"
#include "ui/formyuzeyi.h"

namespace belvani {

class Belge;

class yzckopy : public Form {
 public:
  yzckopy(EkranBaglami& baglam, std::vector<FormSayfasi> sayfalar, YzcAyarlari ayar);

  FormYuzeyi& Yuzey() { return *yuzey_; }

 private:
  void Git(int adim);
  void Yazdir(void (*bas)(EkranBaglami&, Belge&));

  YzcAyarlari ayar_;
  FormYuzeyi* yuzey_;
  QScrollArea* alan_;
  QLabel* durum_;
};

}  // namespace belvani
