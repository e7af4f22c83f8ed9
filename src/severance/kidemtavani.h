// The ceiling of severance pay is that of the half year in which a person leaves; the installed law may be another
// half year's.
//
// Example: law of July 2009, leaving on 31.12.2008: the installed ceiling is 2,365.16, that of the second half of 2008
// was 2,173.18. It is told, and the user chooses.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "core/tarih.h"
#include "payroll/parametre/parametreler.h"

namespace belvani {

enum class KidemTavaniSecimi : std::uint8_t { Kurulu = 0, Yariyil = 1 };
inline constexpr std::array<std::string_view, 2> KidemTavaniAdlari{"Kurulu yasal oranların", "Çıkışın yarıyılının"};
inline constexpr std::array<std::string_view, 2> KidemTavaniSozcukleri{"kurulu", "yariyil"};

struct KidemTavaniGorusu {
  Tutar kurulu;
  std::optional<Tutar> yariyilin;  // of the day, where it was published and is another one
  std::string yariyil;             // "2008 yılının ikinci yarısı"
  std::string alindigiAy;          // "Temmuz 2009": of the installed ceiling, where the day's was never published

  // The ceiling of the user's choice: the installed one where there is no other.
  Tutar Secilen(KidemTavaniSecimi secim) const;
  // What a sheet made with it has to say; "" where the installed ceiling is the day's.
  std::string Soz(KidemTavaniSecimi secim) const;
};

// Reads the shipped figures.
KidemTavaniGorusu KidemTavaninaBak(const YasalParametreler& kurulu, Tarih gun);

}  // namespace belvani
