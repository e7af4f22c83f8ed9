// Leaving: the day, code and reason on a person's card, and taking them back. Pay records stay as they are; the payroll
// of the last month reads the day.
//
// Also the payments of the release paper ("İBRANAME"), which are typed for it and kept nowhere. Faults are as in
// personnel/kart.h.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/session/oturum.h"
#include "core/sonuc.h"
#include "core/store/cakisma.h"
#include "core/tables/sicil.h"
#include "core/tarih.h"
#include "core/tutar.h"
#include "personnel/cikiskodlari.h"

namespace belvani {

struct CikisFormu {
  std::string kod{};
  std::string adSoyad{};  // this and the next are shown, not typed
  std::string sskno{};
  Tarih girtar{};
  Tarih ciktar{};
  std::uint8_t cikiskodu = 0;  // position in CikisKodlari
  std::string cikissebebi{};
  std::string adr1{};  // where he will be found; from his identity, and for the paper alone
  std::string adr2{};
  std::string tel{};
  std::optional<Sicil> kart{};  // as it was read; nothing: whatever stands in the store is changed
};

// Its fields, as far as the rules know them.
namespace cikisformu {
// clang-format off
inline constexpr Kolon<CikisFormu, std::string> kod{sicil::kod, &CikisFormu::kod};
inline constexpr Kolon<CikisFormu, Tarih> girtar{sicil::girtar, &CikisFormu::girtar};
inline constexpr Kolon<CikisFormu, Tarih> ciktar{sicil::ciktar, &CikisFormu::ciktar};
inline constexpr Kolon<CikisFormu, std::uint8_t> cikiskodu{sicil::cikiskodu, &CikisFormu::cikiskodu};
inline constexpr Kolon<CikisFormu, std::string> cikissebebi{sicil::cikissebebi, &CikisFormu::cikissebebi};
// clang-format on
}  // namespace cikisformu

std::optional<CikisFormu> CikisBul(Oturum& o, std::string_view kod);

// The person's card with the leaving that the form records; a second time overwrites the first. He may leave on the
// day of his hiring. The first check that fails is the fault.
Sonuc<Okunan<Sicil>> CikisHazirla(Oturum& o, const CikisFormu& form);
Yazim<Sicil> CikisYaz(Oturum& o, const Okunan<Sicil>& kart);

// Makes the person employed again, without a question. False: there is no such person.
Sonuc<bool> CikisGeriAl(Oturum& o, std::string_view kod);

// The payments of the release, as the screen's grid shows them; its last row is "TOPLAM".
inline constexpr std::string_view OdemeSatirlari[] = {"Ücretler+ Fazla Mesai", "Kull. İzin Ücretleri", "Sosyal Haklar",
                                                      "İhbar Tazminatı", "Kıdem Tazminatı"};
inline constexpr std::string_view OdemeKolonlari[] = {"Brüt Kazanç", "Yasal Kesinti", "Net Kazanç", "Özel Kesinti",
                                                      "Net Ödenen"};
inline constexpr std::string_view OdemeToplamEtiketi = "TOPLAM";

using OdemeSatiri = std::array<Tutar, std::size(OdemeKolonlari)>;

struct IbranameOdemeleri {
  std::array<OdemeSatiri, std::size(OdemeSatirlari)> satirlar{};

  // The sum of each column. Throws TutarTasmasi.
  OdemeSatiri Toplam() const;
};

}  // namespace belvani
