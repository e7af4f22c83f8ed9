// The values of a drawn form as lines for a text printer: no frame and no words, to be printed onto a sheet that has
// them already. Each value stands on the line and at the letter where its box is drawn (satirliform.h).
#pragma once

#include <string>
#include <vector>

#include "core/bildirim.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

// UTF-8, as many lines as the sheet has. A text that is longer than its box is cut; a number at the right end of its
// box is not, for it would be another one: "#" stands in all of it instead.
// Example: digits in three cells of 5 mm: "  4   0   7".
std::string FormMetni(const FormSayfasi& sayfa);

// The pages, parted by form feeds.
std::string FormMetni(const std::vector<FormSayfasi>& sayfalar, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
