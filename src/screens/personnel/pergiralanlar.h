// The fields of pergir, group by group in the numbered order of the declaration.
#pragma once

#include <array>

#include "core/tables/alansatiri.h"
#include "personnel/isegiris.h"

namespace belvani {

AlanGrubu GirisBasligi();     // the person's code and number, kind of entry
AlanGrubu GirisKimligi();     // 1 to 11
AlanGrubu GirisNufusKaydi();  // place in the civil registry
AlanGrubu GirisAdresi();      // and 12
AlanGrubu GirisEskiIsyeri();  // 14
AlanGrubu GirisBilgileri();   // 15, the dates, the branch of insurance

// 13: a body that the person may belong to, its number of him, its pension.
struct SandikAlanlari {
  Alan uye;
  Alan no;
  Alan aylik;
};
inline constexpr const char* SandikBasligi = "13-Diğer Sosyal Güvenlik Bilgileri";
SandikAlanlari SandikSatiri(std::size_t sandik);

}  // namespace belvani
