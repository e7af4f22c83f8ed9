// Saving the parameters that lie in tables of the company: earning groups (`kaztan`), tax-base deductions (`indir`),
// names and exemptions of the allowances (`muaf`), unions (`sendika`).
//
// On success the session's parameters are as they now are in the store. A value that does not fit its column is a fault
// at it, and nothing is written. Deleting is asked first.
// Example: deleting "personel" in a company whose default class is "Personel" is refused.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/silme.h"
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
Durum KazancGrubuKaydet(TanimOrtami ortam, std::string_view grup, const KazancBayraklari& bayraklar);
Sonuc<Silme> KazancGrubuSil(TanimOrtami ortam, std::string_view grup);

// The three rows, numbered by their places.
Durum IndirimleriKaydet(TanimOrtami ortam, const std::array<Indir, 3>& satirlar);

// The eleven lines.
Durum YardimlariKaydet(TanimOrtami ortam, const YardimTanimlari& yardimlar);

// By its code. One is found by SendikaBul.
Durum SendikaKaydet(TanimOrtami ortam, const Sendika& sendika);
Sonuc<Silme> SendikaSil(TanimOrtami ortam, std::string_view kod);

}  // namespace belvani
