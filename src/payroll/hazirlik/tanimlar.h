// Saving the parameters that lie in tables of the company: earning groups (`kaztan`), tax-base deductions (`indir`),
// names and exemptions of the allowances (`muaf`), unions (`sendika`).
//
// Each function tells its user itself, gives whether it was done, and on success leaves the session's parameters as
// they now are in the store. A value that does not fit its field is told and nothing is written.
// Example: deleting "personel" in a company whose default class is "Personel" is refused.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "payroll/hazirlik/parametredeposu.h"

namespace belvani {

struct TanimOrtami {
  Oturum& oturum;
  ParametreDeposu& parametreler;
  Bildirim& bildirim;
};

// Names of the groups, in Turkish order. The flags of one: KazancGrupYukle.
std::vector<std::string> KazancGruplari(const FirmaParametreleri& firma);
// Adds the group, or changes the one of that name, case ignored.
bool KazancGrubuKaydet(TanimOrtami ortam, std::string_view grup, const KazancBayraklari& bayraklar);
bool KazancGrubuSil(TanimOrtami ortam, std::string_view grup);

// The three rows, numbered by their places.
bool IndirimleriKaydet(TanimOrtami ortam, const std::array<Indir, 3>& satirlar);

// The eleven lines.
bool YardimlariKaydet(TanimOrtami ortam, const YardimTanimlari& yardimlar);

// By its code. One is found by SendikaBul.
bool SendikaKaydet(TanimOrtami ortam, const Sendika& sendika);
bool SendikaSil(TanimOrtami ortam, std::string_view kod);

}  // namespace belvani
