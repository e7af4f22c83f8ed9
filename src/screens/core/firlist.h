// firlist ("Firma Listesi"): all companies of the data path. `PencereTip` "pen" makes it a picker, which leaves the
// company in `SeciliKod`: Enter or a double click chooses, Esc leaves without one. Otherwise it is a list to read,
// print (F8) and send to a spreadsheet (F9), and of its companies the chosen ones (F6) or all that it shows (Shift+F6)
// have their month prepared.
#pragma once

#include "core/session/sirketlistesi.h"
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
  void Hazirla(const std::vector<int>& satirlar);

  bool secici_;
  bool secildi_ = false;
  QLineEdit* aranan_;
  dclist* liste_;
  std::vector<SirketSatiri> sirketler_;  // as they stand in the list
};

}  // namespace belvani
