// How the commands of the papers give what they made: the form and the file are the user's choice, one for all papers.
#pragma once

#include <optional>
#include <string>

#include "cli/jsonkayit.h"
#include "cli/ortak.h"
#include "printing/grafikyazici.h"
#include "printing/kagit.h"
#include "printing/rapor.h"
#include "printing/yaprak.h"

namespace belvani::cli {

struct BelgeCiktisi {
  std::string bicim = "metin";
  std::string dosya;  // empty: standard output, for the forms that are text
};

// --bicim, -o
void CiktiSecenekleri(CLI::App& komut, BelgeCiktisi& cikti);

struct Belge {
  Rapor tablo;
  std::optional<YaprakBelgesi> yapraklar = std::nullopt;  // of a paper of slips: all its forms but csv and json
  SayfaDuzeni duzen = {};
  GrafikDuzeni grafik = {};  // the PDF of `tablo`
};

// A report too wide for its pages is told on standard error. Without records there is no PDF: KomutHatasi.
void BelgeYaz(const Belge& belge, const BelgeCiktisi& cikti);

}  // namespace belvani::cli
