// Comma-separated files as spreadsheets write them: UTF-8 with or without a mark at the front, fields parted by "," or
// ";" (the header row decides), quotes around fields, CRLF or LF.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"

namespace belvani {

struct CsvSatiri {
  int satirNo = 0;  // line of the file on which the row starts, from 1
  std::vector<std::string> hucreler;
};

struct CsvTablosu {
  std::vector<std::string> basliklar;  // trimmed
  std::vector<CsvSatiri> satirlar;     // rows that are not blank
};

// Fails on text that is not UTF-8, an unclosed quote, a missing or repeated caption, a row with more fields than there
// are captions. A row with fewer is completed with empty ones.
Sonuc<CsvTablosu> CsvOku(std::string_view metin);

}  // namespace belvani
