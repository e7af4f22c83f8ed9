// Wages of a group, field by field: each is written as soon as it is left, and the last writes can be taken back.
#pragma once

#include <string>
#include <vector>

#include "core/session/oturum.h"
#include "core/store/cakisma.h"
#include "core/tables/sicil.h"

namespace belvani {

// Everybody employed whose wage is agreed on this basis (a place in UcretEsaslari), by code.
Sonuc<std::vector<Sicil>> UcretliKisiler(Oturum& o, std::uint8_t ucretags);

class UcretDuzenleme {
 public:
  explicit UcretDuzenleme(Oturum& oturum) : o_(oturum) {}

  // Writes what differs from what was read in `ucret` and `ucrettipi`; gives the card as it is stored now.
  Yazim<Sicil> Yaz(const Okunan<Sicil>& kart);

  // Takes the last write back that is not taken back yet, and gives the card. Where somebody has changed the same field
  // since, his value stays: that is the fault, and the write before comes next.
  Sonuc<Sicil> GeriAl();

 private:
  struct Yazilan {
    std::string kod;
    Tutar ilkUcret, ucret;  // before and after
    std::uint8_t ilkTip, tip;
  };

  Oturum& o_;
  std::vector<Yazilan> yazilanlar_;
};

}  // namespace belvani
