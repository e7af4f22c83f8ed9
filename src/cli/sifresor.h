// The password of a database server, asked for on the terminal.
#pragma once

#include <optional>
#include <string>

namespace belvani::cli {

// Nothing is shown while it is typed. Nothing comes back where nobody sits at standard input, and after Ctrl+C or the
// end of the input.
std::optional<std::string> TerminaldeSifreSor(const std::string& sunucu, const std::string& kullanici);

}  // namespace belvani::cli
