// The month as it was: before a mass run writes over a month's pay records, and before all of them are deleted, they
// are kept beside them in the store, in the same transaction; so a kill keeps neither without the other. One state a
// month is kept, the last one. Bringing it back keeps what stood there, so that this too can be taken back.
//
// The records are kept as they are stored, column by column, with their numbers and checksums: what comes back is what
// was there, damage included.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/asama.h"
#include "core/session/oturum.h"

namespace belvani {

inline constexpr std::string_view TopluHazirliktanOnce = "toplu hazırlıktan önce";
inline constexpr std::string_view SilinmedenOnce = "silinmeden önce";

struct SaklananAy {
  int yil = 0;
  int ay = 0;
  std::int64_t an = 0;  // when it was kept, seconds since 1970
  std::string neden;    // "silinmeden önce"
  int kayit = 0;
};

// Keeps the month's records in the transaction that is open; a month without any keeps what was kept before. The table
// for it (core/store/yantablolar.h) is to be made before theirs is read. Throws MotorHatasi.
void AyiSakla(Motor& motor, int yil, int ay, std::string_view neden);

// The months that have a kept state, the latest month first.
Sonuc<std::vector<SaklananAy>> SaklananAylar(Oturum& o);

// Asks, naming both states, then puts the kept one in the place of the month's records. Gives the number of records
// that came back; nothing when the answer was no, or the work was given up.
Sonuc<std::optional<int>> AyiGeriAl(Oturum& o, int yil, int ay, Bildirim& bildirim, const Yurutucu& yurut = HemenYurut);

// Kept records that have this code; case is ignored.
std::vector<std::int64_t> SaklananlarinNumaralari(Motor& motor, std::string_view kod);
// What is kept of a person goes along with his code, so that a month that is brought back later finds him under the new
// one; checksums as in core/store/bordrokodu.h. In the open transaction. Both throw MotorHatasi.
void SaklananlardaKodDegistir(Motor& motor, std::string_view eski, std::string_view yeni);

}  // namespace belvani
