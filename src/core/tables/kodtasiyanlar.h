// The tables whose records belong to a person by his code, beside his card; no relation in the store keeps them to it.
#pragma once

#include <string_view>

namespace belvani {

struct KodTasiyanTablo {
  std::string_view tablo;
  std::string_view ad;  // of its records, to the user
};

inline constexpr KodTasiyanTablo KodTasiyanTablolar[] = {
    {"kimlik", "kimlik"}, {"esco", "eş ve çocuk"}, {"brd", "bordro"},
    {"dvr", "devir"},     {"foto", "fotoğraf"},    {"cari", "cari"},
};

}  // namespace belvani
