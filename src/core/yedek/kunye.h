// YedekKunyesi: what a backup says of itself: whose it is, when and why it was made, and its files with size and
// digest. It stands in the archive as lines "key: value", first of all entries, under a name that no file of a company
// has.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"

namespace belvani {

enum class YedekTuru {
  Elle,       // somebody wanted it
  Gunluk,     // at leaving
  Yukseltme,  // before the store's upgrade
  Silme,      // before the company's deletion
  Donus,      // before another backup took the company's place
};
inline constexpr std::array<YedekTuru, 5> YedekTurleri{YedekTuru::Elle, YedekTuru::Gunluk, YedekTuru::Yukseltme,
                                                       YedekTuru::Silme, YedekTuru::Donus};

// The word in names and in the archive ("gunluk"), and what the user reads ("günlük").
std::string_view TurSozu(YedekTuru tur);
std::string_view TurMetni(YedekTuru tur);

struct YedekDosyasi {
  std::string ad;
  std::uint64_t boy = 0;
  std::string ozet;
};

struct YedekKunyesi {
  std::string sirket;    // the company's code
  std::string unvan;     // its title
  std::string zaman;     // local time, "2026-11-22 06:10:11"
  std::string tur;       // TurSozu
  std::string versiyon;  // of the store, "2003.7"
  std::string iz;        // what the company's files looked like from outside; equal: nothing has changed since
  std::vector<YedekDosyasi> dosyalar = {};
};

inline constexpr std::string_view KunyeAdi = ".kunye";

// A name that may be a file's in a backup: of this place, not hidden, in letters that every reader of archives knows.
bool YedeklenirAd(std::string_view ad);

std::string KunyeMetni(const YedekKunyesi& kunye);
// Refuses another format, a name that is none and a file that stands twice.
Sonuc<YedekKunyesi> KunyeOku(std::string_view metin);

}  // namespace belvani
