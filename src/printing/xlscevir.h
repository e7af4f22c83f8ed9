// Workbooks of the old form (.xls), turned into .xlsx by the office program of this computer.
#pragma once

#include <string>
#include <string_view>

#include "core/sonuc.h"

namespace belvani {

// Whether these are the bytes of a workbook of the old form.
bool XlsMi(std::string_view baytlar);

// The bytes of the file as .xlsx. `program`: "soffice", or the path of a program that takes its arguments
// (--headless --convert-to xlsx --outdir DIRECTORY FILE). Waits a minute at most. Fails when the program is not there
// or leaves no workbook; the file itself stays as it is.
Sonuc<std::string> XlsxeCevir(const std::string& dosya, const std::string& program = "soffice");

}  // namespace belvani
