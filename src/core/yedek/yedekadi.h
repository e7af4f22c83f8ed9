// YedekAdi: the name of a kept backup, which says when and why it was made: "2026-11-22-061011-gunluk.zip", a second
// one of the same second "2026-11-22-061011-2-gunluk.zip". And which of the kept ones have had their time.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/tarih.h"
#include "core/yedek/kunye.h"

namespace belvani {

struct YedekAdi {
  Tarih gun;
  std::string saat;  // "061011"
  int sira = 1;      // among those of one second
  YedekTuru tur = YedekTuru::Elle;

  std::string Metin() const;
  std::string Zaman() const;  // "22.11.2026 06:10"
  static std::optional<YedekAdi> Oku(std::string_view ad);

  friend bool operator==(const YedekAdi&, const YedekAdi&) = default;
};

// Earlier or later; of one second by number.
bool DahaEski(const YedekAdi& a, const YedekAdi& b);

// Now, local time; the day as Tarih::Bugun() has it.
YedekAdi SimdikiYedekAdi(YedekTuru tur);
std::string KunyeZamani(const YedekAdi& ad);  // "2026-11-22 06:10:11"

// Which of these go. Of the daily ones stay the last of each of the last ten days that have one, and before those the
// last of each month, for twelve months. What was made before an upgrade, a deletion or another backup's return stays a
// year. What somebody has made by hand stays.
std::vector<YedekAdi> SuresiDolanlar(std::vector<YedekAdi> adlar, Tarih bugun);

}  // namespace belvani
