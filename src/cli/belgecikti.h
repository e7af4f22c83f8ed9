// How the commands of the papers give what they made: the form and the file are the user's choice, one for all papers.
#pragma once

#include <string>

#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "printing/belge.h"

namespace belvani::cli {

struct BelgeCiktisi {
  std::string bicim = "metin";
  std::string dosya;         // empty: standard output, for the forms that are text
  std::string ekMetin = {};  // one more form that is text, which its command writes itself
};

// --bicim, -o; `bicimler` where a paper has fewer of them, `ekMetin`: see BelgeCiktisi.
void CiktiSecenekleri(CLI::App& komut, BelgeCiktisi& cikti, std::vector<std::string> bicimler = {},
                      const char* ekMetin = "");

// A file's name by its form: "bordro-2009-07" as text ends in ".txt".
std::string BelgeDosyaAdi(const std::string& ad, const std::string& bicim);

// A report too wide for its pages is told on standard error. Without records there is no PDF: KomutHatasi.
void BelgeYaz(const Belge& belge, const BelgeCiktisi& cikti);

}  // namespace belvani::cli
