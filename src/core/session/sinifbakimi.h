// Whether somebody has looked at the company's hazard class since a save of the card could last change it unasked. The
// mark is kept with the company (`bordro.ini`): a store of those days is asked about once, and the control report names
// a class of 1 until the card has been saved.
#pragma once

#include "core/sonuc.h"
#include "core/veriyolu.h"

namespace belvani {

enum class SinifBakimi { Sorulmadi, Soruldu, Bakildi };

SinifBakimi SinifBakimiOku(const VeriYolu& sirket);
Durum SinifBakimiYaz(const VeriYolu& sirket, SinifBakimi bakim);

}  // namespace belvani
