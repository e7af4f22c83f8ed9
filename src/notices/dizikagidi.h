// The paper of the series sheet: both lists side by side in numbered rows, 32 a page on the drawn form and 38 in text,
// and the closing part below the last of them: what is handed in, by whom, and who has received it.
#pragma once

#include <memory>

#include "documents/belgetanimi.h"
#include "notices/dizipusulasi.h"

namespace belvani {

constexpr std::size_t DiziSayfaSatiri = 32;
constexpr std::size_t DiziMetinSatiri = 38;

// Of these lists, as they stand in the slots of the screen. `aralik` may be empty.
std::unique_ptr<Belge> DiziPusulasiBelgesi(const Firma& firma, const TarihAraligi& aralik, DiziPusulasi pusula);

// From the store. Throws MotorHatasi.
std::unique_ptr<Belge> DiziPusulasiBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik);

}  // namespace belvani
