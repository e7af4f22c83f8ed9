// The steps of the upgrade as a table, and which of them a store lacks.
//
// A store's version says less than its fields: steps 0 to 4 stamp the program's version, so one of them alone makes a
// store that calls itself new. What a step has brought is therefore asked of the fields: they are there, and where the
// step fills them they are not empty in every record. What a store lacks reads as zero, and a month that is calculated
// so pays wrong; so such a store is told at its opening and read, but no month is saved in it.
//
// Example: a store of 2003.1 with step 1 alone is stamped 2003.7. `sicil.agi` is not there, and an allowance of 49.95
// would be paid as 0.00; steps 2 to 6 are named.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/kusur.h"
#include "core/store/motor.h"

namespace belvani {

inline constexpr std::size_t AdimSayisi = 7;
inline constexpr std::size_t SigortaTuruAdimi = 6;  // writes everybody's kind of insurance anew
using AdimIsaretleri = std::array<bool, AdimSayisi>;

struct AdimAlanlari {
  std::string_view tablo;
  std::vector<std::string_view> alanlar;
};

struct YukseltmeAdimi {
  std::string_view baslik;
  std::string_view versiyon;  // the step is open to stores before it
  std::vector<AdimAlanlari> eklenen;
  void (*doldur)(Motor& motor, Tutar sskTaban);
  double damga = 0;         // 0: the program's version
  AdimAlanlari dolan = {};  // one field that the step fills in every record; none where it fills nothing
};

const std::array<YukseltmeAdimi, AdimSayisi>& YukseltmeAdimlari();

struct EksikAdim {
  std::size_t adim = 0;
  std::vector<std::string> alanlar;  // that are not there; none: they are, but the step has not filled them
};

// In ascending order. Tables that are not there at all are not asked: the opening makes them whole. Throws MotorHatasi.
std::vector<EksikAdim> EksikAdimlar(Motor& motor);

// Names them and tells what to do; nothing where the store has all. Throws MotorHatasi.
std::optional<Kusur> YarimYukseltmeKusuru(Motor& motor);

}  // namespace belvani
