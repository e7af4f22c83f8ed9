// What became of the companies of one run, at its end: what each has said, those that were passed over, those that
// failed, each with the reason, and the counts. What many say in the same words is said once, behind their codes.
#pragma once

#include "cli/topluis.h"

namespace belvani::cli {

// On standard error; gives the last line, that of the counts.
std::string RaporuYaz(const std::vector<TopluSatir>& satirlar);

}  // namespace belvani::cli
