// A report without sums as the plain column printer writes it: on each page title, company, day and page number as the
// print settings say, heads, a rule of "-" under each column, rows. The text form of the screen's lists.
#pragma once

#include <string>

#include "core/bildirim.h"
#include "printing/rapor.h"
#include "printing/yzcayar.h"

namespace belvani {

// Lines end in "\n", pages are parted by "\f".
std::string KolonMetni(const Rapor& rapor, const YzcAyarlari& ayar, Tarih bugun, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
