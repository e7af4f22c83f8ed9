// The fixed choices of the personnel screens, in their order, which is part of the data: a record keeps the position.
//
// The lists of the family screen show their code, which starts at 1 for the kinship, and the code alone is stored:
// KodSayisi("4-1.Çocuk") == 4, KodluMetin(Yakinliklar, 4) == "4-1.Çocuk".
#pragma once

#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>

namespace belvani {

using Liste = std::span<const std::string_view>;

// `sicil`
inline constexpr std::string_view UcretTipleri[] = {"Brüt Ücret", "Net Ücret", "Asgari Ücret"};
inline constexpr std::uint8_t AsgariUcretSirasi = 2;
inline constexpr std::string_view UcretEsaslari[] = {"Aylık", "Günlük", "Saatlik"};
inline constexpr std::string_view SakatlikDereceleri[] = {"0. Sağlam", "1. Derece", "2. Derece", "3. Derece"};

// `kimlik`
inline constexpr std::string_view Cinsiyetler[] = {"Erkek", "Kadın"};
inline constexpr std::string_view MedeniHaller[] = {"Bekar", "Evli", "Dul"};
inline constexpr std::string_view Dinler[] = {"Yok", "Müslüman", "Hristiyan", "Yahudi", "Hindu", "Diğer"};
inline constexpr std::string_view KanGruplari[] = {"?",      "A Rh+",  "A Rh-", "B Rh+", "B Rh-",
                                                   "AB Rh+", "AB Rh-", "0 Rh+", "0 Rh-"};
inline constexpr std::string_view Tahsiller[] = {"Yok", "İlk", "Orta", "Lise", "Yüksek", "OkurYazar"};

// `esco`
inline constexpr std::string_view Yakinliklar[] = {"1-Eş",      "2-Anne",    "3-Baba",    "4-1.Çocuk", "5-2.Çocuk",
                                                   "6-3.Çocuk", "7-4.Çocuk", "8-5.Çocuk", "9-6.Çocuk"};
inline constexpr std::string_view KodluCinsiyetler[] = {"0-Erkek", "1-Kadın"};
inline constexpr std::string_view AgiDurumlari[] = {"0-Hariç", "1-Dahil"};

// The number that a coded cell stores: its first character. 0 when that is no digit.
constexpr std::uint8_t KodSayisi(std::string_view hucre) {
  return hucre.empty() || hucre.front() < '0' || hucre.front() > '9' ? std::uint8_t(0)
                                                                     : std::uint8_t(hucre.front() - '0');
}

// The cell of a stored code; a number that the list does not know shows as it is.
inline std::string KodluMetin(Liste liste, std::uint8_t kod) {
  for (const std::string_view secenek : liste)
    if (KodSayisi(secenek) == kod) return std::string(secenek);
  return std::to_string(kod);
}

}  // namespace belvani
