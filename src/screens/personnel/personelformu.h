// PersonelFormu: what the screens of one person share. The person is found by his code when the code field is left, by
// the guide (F2), or by a move through the people. A screen begins with the person who was shown last on any of them.
#pragma once

#include "personnel/etiket.h"
#include "personnel/kayit.h"
#include "ui/form.h"

namespace belvani {

// A row of a person's table under the label that the system has for the field.
template <class Kayit, class U>
Alan EtiketliAlan(Kolon<Kayit, U> kolon, AlanEki ek = {}) {
  return Alan(kolon, std::string(AlanEtiketi(Kayit::TabloAdi, kolon.ad)).c_str(), ek);
}

// The person's name, shown beside his code.
struct KisiBasligi {
  std::string adsoy;
};
inline Alan AdSoyAlani() {
  return Alan(Uye("adsoy", &KisiBasligi::adsoy), "", {.harf = 34, .kapali = true});
}

// The word of the screen on which this field of a person is entered; the card's for a person as such.
QString KisiEkrani(AlanTutamagi alan);

class PersonelFormu : public Form {
 public:
  // Brings the person up as if his code had been typed, unless he is there already; the cursor goes to the field where
  // this screen has it.
  void KisiyeGit(const std::string& kod, AlanTutamagi alan);

 protected:
  using Form::Form;

  // Binds the code field, the moves and the guide. The other commands are bound before it, the fields first.
  void PersonelKomutlari(AlanTutamagi kod);

  // Shows the person; false when there is none, and the screen is then empty but for the code, ready for a new one.
  virtual bool Bul(const std::string& kod) = 0;
  // Shows the neighbour of the person on the screen; stays when there is none.
  virtual void Git(Yon yon) = 0;
  // F2 on a field whose codes have a list of their own; false: the people's guide opens.
  virtual bool AlanRehberi() { return false; }

  // A code that was typed and not left yet is looked up first, so that no command meets another person than the one on
  // the screen. False: a person came up that the user has not seen yet.
  bool EkrandakiMi();
  void AdiGoster(const std::string& kod);
  void KoddanBasla();  // the next person may be typed
  void showEvent(QShowEvent* olay) override;
  // After another record has come under the cursor: what is typed replaces the field's text.
  void AlaniSec();

 private:
  void RehberAc();
  void GitVeTut(Yon yon);
  // The next screen of one person begins with him.
  void KisiyiTut();

  bool bulundu_ = false;  // by the last lookup of a typed code
};

}  // namespace belvani
