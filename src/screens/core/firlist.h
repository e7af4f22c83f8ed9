// firlist ("Firma Listesi"): all companies of the data path. `PencereTip` "pen" makes it a picker, which leaves the
// company in `SeciliKod`: Enter or a double click chooses, Esc leaves without one. Otherwise it is a list to read,
// print (F8) and send to a spreadsheet (F9).
#pragma once

#include "ui/dclist.h"
#include "ui/form.h"

namespace belvani {

class firlist : public Form {
 public:
  explicit firlist(EkranBaglami& baglam);

 protected:
  void hideEvent(QHideEvent* olay) override;

 private:
  void ListeyiDoldur();
  void SeciciYap();
  void CiktiKomutlari();
  void Sec();

  bool secici_;
  bool secildi_ = false;
  QLineEdit* aranan_;
  dclist* liste_;
};

}  // namespace belvani
