// What is shipped with the program and only read: figures of the law, pages of the user guide.
#pragma once

#include <string>
#include <string_view>

namespace belvani {

// Where the shipped folder lies ("mevzuat", "yardim"), with a separator at the end: in the directory that the
// environment names (BELVANI_VERI_DIZIN), else in the installed one, else, in development builds, in the source tree.
std::string VeriDizini(std::string_view klasor);

}  // namespace belvani
