// Companies: each is a place below the data path (a directory, or one on a server), named after the company, with its
// store `tolu.dat`.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/veriyolu.h"

namespace belvani {

inline const std::string DepoDosyasi = "tolu.dat";

// The name of a new company as it is kept: trimmed, in upper case, its letters composed. Refused are names that would
// leave the data path, that a directory cannot bear on some system (separators, control characters, a point at either
// end, names of devices), that look like another one (letters that nobody sees), and more than 64 letters or 200 bytes.
Sonuc<std::string> SirketAdi(std::string_view metin);

// Names of the directories that a text may mean: the one of exactly this name, else all that differ from it by Turkish
// case or by the form of their letters alone. Directories made by hand may be written in any way.
std::vector<std::string> UyanSirketler(const VeriYolu& veri, std::string_view metin);

// The one directory that the text means, as it is spelled. None and several are faults; the latter names them.
Sonuc<std::string> SirketBul(const VeriYolu& veri, std::string_view metin);

// Names of all company directories, in Turkish order.
std::vector<std::string> Sirketler(const VeriYolu& veri);

// The address of a company's store.
std::string DepoAdresi(const VeriYolu& sirket);
// A directory made by hand may hold none.
bool DepoVar(const VeriYolu& sirket);

}  // namespace belvani
