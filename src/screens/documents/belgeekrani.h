// BelgeEkrani: the screen of a paper, made of its row in the registry: the fields of its choices, and the commands that
// make the paper out of them.
//
//   F6 " Ekrana Listele"    F8 " Yazıcıya Yazdır"    F9 " Excel'e Gönder"    F2 in a code field: lookup
//   "Yazıcı Fontu " for a paper that takes a font    F5 for one that shows its rows: listelibelgeekrani.h
//
// Choices that outlive a run are read when it opens and written when it closes.
#pragma once

#include "documents/belgetanimi.h"
#include "payroll/hazirlik/parametredeposu.h"
#include "ui/form.h"

namespace belvani {

class BelgeEkrani : public Form {
 public:
  BelgeEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim);

 protected:
  // The choices as the fields say; null when one of them cannot be read, which is told.
  BelgeSecimi* Secilen();
  // The paper of these choices; null when it cannot be made, which is told.
  std::unique_ptr<Belge> BelgeYap();
  // The same for a command that gives it away; one that is made of no records is told as such.
  std::unique_ptr<Belge> VerilecekBelge();
  BelgeKaynagi Kaynak(Ilerleme* ilerleme = nullptr) const;

  // Whether Secilen would find nothing to tell.
  bool Secilebilir();

  // Tells what its user must know of the paper, once for each text: a figure of it is another month's law, someone is
  // left out. "": there is nothing to tell.
  virtual void BelgeSozu(const std::string& soz);

  // The command of a paper that shows its rows.
  virtual void Listelet() {}

  const BelgeTanimi& Tanim() const { return tanim_; }

  void hideEvent(QHideEvent* olay) override;

 private:
  void GirisiSec();
  void AlanlariYukle();
  void AlanlariOku();
  void RehberleriBagla();
  void KomutlariKur();
  void FontSec(BelgeYazisi& yazi);

  ParametreDeposu& parametreler_;
  const BelgeTanimi& tanim_;
  std::unique_ptr<BelgeSecimi> secim_;
  std::string soylenenSoz_;
};

// The screen of the paper: its own where it has a view, else this one.
std::unique_ptr<Form> BelgeEkraniYap(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim);

}  // namespace belvani
