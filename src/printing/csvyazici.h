// The report as comma-separated values, for other programs.
#pragma once

#include <string>

#include "printing/metinalici.h"
#include "printing/rapor.h"

namespace belvani {

// One line of short heads, then a line for each body row; no totals, which the reader of a table adds up himself.
// UTF-8 without a byte-order mark, RFC 4180: "," between fields, CRLF, quotes where a field holds a comma or a quote.
// Amounts "1234.50" with all their decimals, ungrouped, zero too; dates dd.MM.yyyy, Null empty.
//
// A spreadsheet runs a text that starts with = + - @ as a formula, so a person named "=cmd|…" could start a program on
// the accountant's computer: such a text gets an apostrophe in front, also where blanks precede the sign. A text that
// reads as a plain number ("-5") cannot run and stays as it is; "+90 312" has a blank inside and gets one.
std::string CsvRaporu(const Rapor& rapor);
// Its parts: the line of heads, and the rows, one by one.
std::string CsvBasligi(const Rapor& rapor);
void CsvSatirlariniVer(const Rapor& rapor, const MetinAlici& al);

}  // namespace belvani
