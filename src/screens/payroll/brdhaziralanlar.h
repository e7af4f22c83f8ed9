// The fields of the payroll screen: one row a field.
#pragma once

#include "core/tables/alansatiri.h"
#include "payroll/hazirlik/giris.h"

namespace belvani {

// What the screen holds besides record and sums.
struct BordroSecimi {
  std::string kod;
  int sebep = 0;  // position in EksikSebepleri
};

// The fields that the screen knows by name, besides the columns of the record.
namespace bordroalani {
inline constexpr auto kod = Uye("kod", &BordroSecimi::kod, brd::kod.boyut);
inline constexpr auto sebep = Uye("sebep", &BordroSecimi::sebep);
inline constexpr auto brut = Uye("brut", &EkranToplamlari::brut);
inline constexpr auto net = Uye("net", &EkranToplamlari::net);
}  // namespace bordroalani

// Entered: they edit the record, reason and code the struct above.
Alan KodAlani();
AlanGrubu GunGrubu();
AlanGrubu YardimGrubu(const YardimTanimlari& yardimlar);
AlanGrubu EksikGunGrubu();

// Shown: the sums of the entry, and amounts of the calculated record.
std::vector<AlanGrubu> OzetGruplari();
std::vector<AlanGrubu> AyrintiGruplari();

// As the rules know the declared field.
inline BordroAlani BordroAlaniBul(const Alan& alan) {
  return BordroAlani(alan.ek.no);
}

// Walked through with F4: what the calculation gives, and the rates it has used.
inline bool SonucAlani(const Alan& alan) {
  return alan.ek.kapali || OranMi(BordroAlaniBul(alan));
}

}  // namespace belvani
