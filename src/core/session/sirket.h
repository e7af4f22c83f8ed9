// Companies on the disk: each is a directory below the data path, named after the company, with its store `tolu.dat`.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/veriyolu.h"

namespace belvani {

inline const std::string DepoDosyasi = "tolu.dat";

// The name as it is kept: trimmed and in upper case. Refused are names that would leave the data path or that a
// directory cannot bear: separators, control characters, a leading point, more than 64 letters or 200 bytes.
Sonuc<std::string> SirketAdi(std::string_view metin);

// The company's directory with a separator at its end, found without regard to Turkish case; the failure names it.
Sonuc<std::string> SirketDizini(const VeriYolu& veri, std::string_view ad);

// Names of all company directories, in Turkish order.
std::vector<std::string> Sirketler(const VeriYolu& veri);

// The address of a company's store.
std::string DepoAdresi(const VeriYolu& sirket);

}  // namespace belvani
