// What a user should know of a person before he pays him, and why nobody is paid: for the payroll screen and the mass
// run alike, in the same words. Nothing here changes an amount.
#pragma once

#include <string>

#include "payroll/hazirlik/kisi.h"
#include "payroll/hesap/bordro.h"

namespace belvani {

// Codes of the card that the company does not define, and the group that stands for one that is not written. Each is a
// warning at its field, with the person's code.
Kusurlar TanimUyarilari(const Kosullar& kosullar, const Sicil& sicil);

// Where the entry's rates are not those of the tables: a saved month keeps its own, and the user may overtype them.
// "Kayıttaki oranlar kullanılıyor; tablodakiler: SSK İşçi % 14"; "" where they agree.
std::string OranFarki(const Kosullar& kosullar, const Sicil& sicil, const Brd& giris);

// What a paper says of the amount instead, by rule: the ledger takes the duty of the allowance out of the allowance.
// `alan`: stored name of the amount, or the screen's net or sum of taxes. "" where they agree.
std::string KagittakiTutar(const Kosullar& kosullar, const BordroSonucu& sonuc, std::string_view alan);

// Why the net is not above zero: no wage, no days, nothing that enters the gross, or deductions above it.
std::string NetsizNedeni(const BordroGirdi& girdi, const BordroSonucu& sonuc);

}  // namespace belvani
