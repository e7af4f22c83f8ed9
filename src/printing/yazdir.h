// A report on its way to paper or into a file, whichever the print settings say.
#pragma once

#include "printing/grafikyazici.h"
#include "printing/kuyruk.h"
#include "printing/yaprak.h"
#include "printing/yzcayar.h"

namespace belvani {

struct YazdirmaSonucu {
  bool gonderildi = false;  // not, when the dialog was given up or the report has no rows
  std::string uyari;        // too wide a list, a printer that waits for paper; else empty
};

// The way that YolSec tells. `duzen` without its orientation, which is that of the settings.
Sonuc<YazdirmaSonucu> RaporYazdir(const Rapor& rapor, const YzcAyarlari& ayar, GrafikDuzeni duzen, Kuyruk& kuyruk);

// The drawn report as a PDF file.
Sonuc<YazdirmaSonucu> RaporPdf(const Rapor& rapor, const GrafikDuzeni& duzen, const std::string& dosya);

// The text report as the dot-matrix printer takes it; empty without rows. Lines of over 80 letters are condensed.
std::string RaporDosBelgesi(const Rapor& rapor, const SayfaDuzeni& duzen);

// Slips in the same two forms.
Sonuc<YazdirmaSonucu> YapraklarPdf(const YaprakBelgesi& belge, const std::string& dosya);
std::string YapraklarDosBelgesi(const YaprakBelgesi& belge, const SayfaDuzeni& duzen);

}  // namespace belvani
