// Numbers as text: "." before the decimals, "," between thousands, whatever the computer's locale says.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/tutar.h"

namespace belvani {

// The number in `metin`, or nothing when it is none: digits, thousands commas (before the point only), a point, a
// leading sign; blanks around it are passed over. More than four decimals round half away from zero.
// "1,234.5" -> 1234.5; "12,5", "0,125", "", "1e3" -> none.
std::optional<Tutar> TutarOku(std::string_view metin);

// The same for a plain number, and for a whole one.
std::optional<double> SayiOku(std::string_view metin);
std::optional<long long> TamSayiOku(std::string_view metin);

// The digits at the front of a text, as a whole number; 0 when there are none ("05510" -> 5510, "07-Puantaj" -> 7).
int BastakiSayi(std::string_view metin);

// "1,234.50": exactly `ondalik` decimals (0 to 4), rounded half away from zero; grouped by thousands.
std::string TutarMetni(Tutar tutar, int ondalik);

// "1234.50": the whole amount for exchange files: no grouping, at least two decimals and all that it has.
std::string OndalikMetin(Tutar tutar);

// The shortest text of a number that reads back as the same: "7.5", "30", "0.1", never with an exponent.
std::string SayiMetni(double sayi);

// The format of printed forms: `ondalik` decimals, groups of `gruplama` digits, no zero before the point (".50"), a
// minus sign directly before the number. Empty for zero and for a text that is no number, so zero lines stay empty.
// SayiFormat("1234.5", 2, 3) -> "1,234.50".
std::string SayiFormat(std::string_view metin, int ondalik, int gruplama);

}  // namespace belvani
