// Fields and columns of the members of parameter records, made of the rows that describe them.
#pragma once

#include "core/tables/alansatiri.h"
#include "payroll/parametre/uyeler.h"
#include "ui/satirtablosu.h"

namespace belvani {

template <class Kayit, class U>
Alan ParametreAlani(const ParametreUyesi<Kayit, U>& uye) {
  return {Uye(uye.ad, uye.uye), uye.etiket, {.enCok = uye.enCok}};
}

template <auto uye>
Alan ParametreAlani() {
  return ParametreAlani(UyeTanimi<uye>());
}

// An element of a member that is an array; numbered from 1 on the screen.
template <auto uye, std::size_t sira>
Alan ParametreAlani() {
  constexpr auto tanim = UyeTanimi<uye>();
  static const std::string ad = tanim.ad + std::to_string(sira + 1);
  static const std::string etiket = tanim.etiket + std::to_string(sira + 1);
  return DiziAlani(ad, uye, sira, etiket.c_str(), {.enCok = tanim.enCok});
}

template <auto uye>
auto ParametreKolonu(int genislik, KolonEki ek = {}) {
  constexpr auto tanim = UyeTanimi<uye>();
  ek.enCok = tanim.enCok > 0 ? tanim.enCok : EnBuyukGirdi(Uye(tanim.ad, uye));
  return UyeKolonu(tanim.ad, tanim.etiket, genislik, uye, ek);
}

}  // namespace belvani
