// Small files, read and written whole.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"

namespace belvani {

// False for a path that does not exist or is no directory.
bool DizinVar(const std::string& yol);

// Makes every missing level of the path, open to owner and group only.
Durum DizinYarat(const std::string& yol);

// The whole file; nothing when it cannot be read or is larger than `enCokBayt`.
std::optional<std::string> DosyaOku(const std::string& yol, std::size_t enCokBayt = 64u << 20);

// Replaces the file in one step: a reader, a full disk or a power cut sees the old content or the new, never a half.
// The file is open to owner and group only.
Durum DosyaYaz(const std::string& yol, std::string_view icerik);

struct AdliDosya {
  std::string ad;
  std::string baytlar;
};

// Replaces several files of a directory together, over a kill and a power cut too: they are written into a directory
// whose name begins with a point, and the moment that it gets its last name they all hold. From then on
// BekleyenDosya finds them there until each has moved to its place; a writer that comes after a kill moves the rest.
// One writer at a time: whoever calls holds the directory's lock.
Durum DosyalariYaz(const std::string& dizin, const std::vector<AdliDosya>& dosyalar);
// Moves what such a writer left behind; a success when nothing waits.
Durum BekleyenleriYerlestir(const std::string& dizin);
// Where the file lies while its set has not moved to its place; it need not exist.
std::string BekleyenDosya(const std::string& dizin, std::string_view ad);

// The name of a new, empty file in the system's temporary directory, with the prefix "prn"; "" when it cannot be made.
std::string GeciciDosya();

// With exactly one separator at the end; the working directory for an empty path, never the root.
std::string DizinSonu(std::string yol);

std::string BilgisayarAdiBul();

}  // namespace belvani
