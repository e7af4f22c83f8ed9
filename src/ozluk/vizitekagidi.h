// The medical papers: "VİZİTE KAĞIDI" of the insured person (EK:4), of his spouse and children (EK:5), and the
// "SAĞLIK BELGESİ" for six months (EK:6). Each as a drawn page and as lines for a text printer; the text of the last
// has two pages.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/tables/firma.h"
#include "core/tables/kimlik.h"
#include "ozluk/vizite.h"
#include "printing/form/formbelgesi.h"

namespace belvani {

struct ViziteKagidi {
  ViziteTuru tur = ViziteTuru::Sigortali;
  ViziteFormu form{};
  std::optional<Kimlik> kimlik{};
  ViziteYakini yakin{};  // of the two papers for relatives
  ViziteAylari aylar{};
  Firma firma{};
  std::string araciKodu{};
  std::string paraBirimi = "TL";
  std::string kurusBirimi = "KR";
};

// With what the open company says of itself; person, relative and months are the caller's.
ViziteKagidi BosViziteKagidi(Oturum& o, ViziteTuru tur);

// What the print dialog calls the paper: "Sigortalı Vizite Kağıdı".
std::string_view ViziteBaskiAdi(ViziteTuru tur);

// One page, A4 upright. The certificate fails without a day to count from: "Hatalı Tarih Hesaplama".
Sonuc<std::vector<FormSayfasi>> ViziteCiz(const ViziteKagidi& kagit);

// Pages of at most 66 lines, UTF-8, parted by form feeds.
std::string ViziteYazdir(const ViziteKagidi& kagit);

// Both, to be printed, and the twelve months as rows for other programs. A paper that cannot be drawn is text alone.
// Throws TutarTasmasi.
std::unique_ptr<Belge> ViziteBelgesi(const ViziteKagidi& kagit);

}  // namespace belvani
