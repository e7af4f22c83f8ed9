// "İşgücü Çizelgesi": the month's workforce for the employment agency, by sex: who was there at the end of the last
// month, who was hired, who left, who is there at its end; and a second block that splits some of the last.
//
// The chart is typed. What the store knows of it can be filled in: everyone under " Belirsiz Süreli", the disabled also
// under " Özürlü".
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/kusur.h"
#include "core/store/motor.h"
#include "core/tables/firma.h"

namespace belvani {

inline constexpr std::array<std::string_view, 4> IsgucuGruplari{
    "Geçen Ay Sonu Çalışanlar", " Ay  İçinde  İşe  Alınanlar ", "Ay İçinde İşten Ayrılanlar",
    "Ay Sonu İtibari İle Çalışanlar"};
inline constexpr std::array<std::string_view, 6> IsgucuSatirlari{
    " Belirsiz Süreli", " Belirli Süreli", " Kısmi Zamanlı", " Özürlü", " Eski Hükümlü", " Terör Kapsamında"};
constexpr std::size_t BelirsizSureliSirasi = 0;
constexpr std::size_t OzurluSirasi = 3;

// The second block.
inline constexpr std::string_view IsgucuAyrimBasligi = " AY SONU İTİBARİ İLE ÇALIŞANLARDAN";
inline constexpr std::array<std::string_view, 4> IsgucuAyrimGruplari{"Normal", "Özürlü", "E.Hükümlü", "Terör M."};
inline constexpr std::array<std::string_view, 2> IsgucuAyrimSatirlari{" Kısmi Süreli Çalışan", " Yer Altında Çalışan"};

// "Erkek", "Kadın", "Toplam". People whose sex is not known are in the total alone.
struct IsgucuSayisi {
  std::int32_t erkek = 0;
  std::int32_t kadin = 0;
  std::int32_t toplam = 0;

  bool operator==(const IsgucuSayisi&) const = default;
};

// A row of either block, by its groups.
using IsgucuSatiri = std::array<IsgucuSayisi, 4>;

struct IsgucuBasligi {
  std::string isyeriNo{};
  std::int16_t yil = 0;
  std::uint8_t ay = 1;  // 1 to 12
  std::string adres{};
  std::string telefon{};
  std::string faks{};
  std::string eposta{};
  std::string web{};
};

struct IsgucuCizelgesi {
  std::string unvan{};
  IsgucuBasligi baslik{};
  std::array<IsgucuSatiri, IsgucuSatirlari.size()> satirlar{};
  std::array<IsgucuSatiri, IsgucuAyrimSatirlari.size()> ayrimlar{};
};

// The heading as the company's card has it, for its working month; nothing counted yet.
IsgucuCizelgesi BosCizelge(const Firma& firma);

// Counts the people of the chart's month into the rows that the store knows; the others stay. What it could not know is
// told: people without an identity record, and those without a hire date, who count as there from before. One who
// leaves on the last day of a month is not there at its end. Throws MotorHatasi.
Kusurlar CizelgeyiDoldur(Motor& motor, IsgucuCizelgesi& cizelge);

}  // namespace belvani
