// FirmaDurumu: the open company as this program knows it: its card, its parameters, and a version that grows with every
// change. The one road of every save of either, so that whoever shows or calculates here sees the new state at once:
// who keeps what it made out of them compares versions.
//
//   open company --Yukle--> card and parameters --KartKaydet, Yukle after a save--> the same, one version on
//
// A change that another computer has saved arrives at the next login.
// Example: the default class goes from "Personel" to "Memur" on the card; people without a group have the flags of
// "Memur" in the next calculation, also of a payroll screen that was open before.
#pragma once

#include <cstdint>
#include <functional>

#include "core/session/oturum.h"
#include "core/store/cakisma.h"
#include "core/store/yon.h"
#include "payroll/hazirlik/firmaparametreleri.h"

namespace belvani {

class FirmaDurumu {
 public:
  // `oturum` must outlive this; it holds the card.
  explicit FirmaDurumu(Oturum& oturum) : o_(oturum) {}

  const Firma& Kart() const { return o_.firma; }
  const FirmaParametreleri& Parametreler() const { return parametreler_; }
  std::uint64_t Surum() const { return surum_; }

  // The company's files and tables, when it is opened and after each save of one. On failure they stay as they were,
  // but those of another company never do.
  Durum Yukle();
  // They are those of the open company: false from its opening until they could be read.
  bool Gecerli() const { return !sirket_.empty() && sirket_ == o_.FirmaDizini; }

  // The card, and the parameters that follow from it (the default class). What the store refuses stays in the session,
  // so that the card can be saved again; another user's change leaves it as it was.
  Yazim<Firma> KartKaydet(const Okunan<Firma>& kart);

  // The working month of all who work in the company, one month on or back: December goes over into January. Neither
  // a pay record nor an open screen changes by it.
  struct Donem {
    int yil = 0;
    int ay = 0;
  };
  Donem KomsuDonem(Yon yon) const;
  Durum DonemKaydir(Yon yon);

  // Something has changed: windows that show it look again.
  std::function<void()> Degisti = [] {};

 private:
  Oturum& o_;
  FirmaParametreleri parametreler_;
  std::string sirket_;  // directory of the company that they were read from
  std::uint64_t surum_ = 0;
};

}  // namespace belvani
