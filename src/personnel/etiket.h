// What the screens call the stored fields of a person: AlanEtiketi("sicil", "girtar") == "Giriş Tarihi".
#pragma once

#include <string_view>

namespace belvani {

// Tables `sicil`, `kimlik`, `esco`, `brd`, `dvr` and `cari`; a field without a label is called by its own name.
std::string_view AlanEtiketi(std::string_view tablo, std::string_view alan);

}  // namespace belvani
