// Comma-separated files as spreadsheets write them: UTF-8 with or without a mark at the front, or code page 1254;
// fields parted by "," or ";" (the header row decides), quotes around fields, CRLF or LF.
//
// A spreadsheet takes a text for a formula that begins with "=", "+", "-" or "@". Our files put an apostrophe before
// it, here it is taken off again.
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

// Fails on text of neither code, an unclosed quote, a missing or repeated caption, a row with more fields than there
// are captions, more columns, rows or cells than any file of people has. A row with fewer fields is completed with
// empty ones.
Sonuc<CsvTablosu> CsvOku(std::string_view metin);

// A text field of ours, before its quotes. Programs of Turkish computers part fields at ";", so what follows one is
// looked at as a field too: "x;=1+2" -> "x;'=1+2".
std::string CsvKorumali(std::string_view metin);
std::string CsvKorumasiz(std::string_view metin);

}  // namespace belvani
