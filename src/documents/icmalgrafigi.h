// The chart of the payroll summary: for each of twelve months the gross pay, the net pay and the employer's cost as
// bars side by side, and below them the number of people. Drawn on the page of the PDF and on the screen alike.
#pragma once

#include "documents/icmalserisi.h"
#include "printing/tuval.h"

namespace belvani {

constexpr double IcmalGrafigiBoyu = 80;  // millimetres that it needs on a page

// Months without pay have no bar; a series without any is an empty frame with a word.
void IcmalGrafigi(const IcmalSerisi& seri, Tuval& tuval, const Dikdortgen& yer);

// The upper end of an axis that holds `enBuyuk`, so that its five steps are round numbers. 6,840 -> 7,500; 0 -> 1.
double EksenUcu(double enBuyuk);

}  // namespace belvani
