// Commands that bring a file into a company: KOD DOSYA.csv, --dene, --ondalik, --sorunlar.
#pragma once

#include <functional>

#include "cli/ortak.h"
#include "personnel/aktarim.h"

namespace belvani::cli {

using DosyaAktaran = std::function<Sonuc<AktarimSonucu>(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip)>;

// All rows of the file or none: every fault ends the command with its row, warnings go to standard error.
void AktarimKomutu(CLI::App& app, Genel& genel, const char* ad, const char* aciklama, const DosyaAktaran& aktar);

}  // namespace belvani::cli
