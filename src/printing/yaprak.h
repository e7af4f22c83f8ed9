// YaprakBelgesi: a document of slips, one for each person: labelled values in two blocks side by side, sentences below.
//
//                     ÜCRET PUSULASI
//                   Ocak 2008 Dönemi
//   Firma İsmi    : Çınar Tekstil
//   İşe Giriş Tarihi   : 15.03.2004   Ssk Matrahı        :   608.40
//   Ücreti             :     608.40   Ssk Kesintisi      :    85.18
//   Ücret hesap pusulasını, …
//
// Like a report it holds values, and writers render them. Unlike in a list, a zero is shown.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "printing/kagit.h"
#include "printing/metinalici.h"
#include "printing/rapor.h"
#include "printing/uretilendizi.h"

namespace belvani {

struct Yaprak {
  std::string altBaslik;  // below the title
  std::vector<BlokSatiri> bas;
  std::vector<BlokSatiri> sol;
  std::vector<BlokSatiri> sag;
  std::vector<BlokSatiri> ek;         // only where there is room: graphic page and spreadsheet
  std::vector<std::string> cumleler;  // read and signed by the person
};

using YaprakDizisi = UretilenDizi<Yaprak>;

struct YaprakBelgesi {
  std::string baslik;
  int paraOndaligi = 2;
  YaprakDizisi yapraklar;
};

// "1,234.50", "0.00", "26", "15.03.2004"; Null is empty.
std::string YaprakMetni(const Hucre& hucre, int paraOndaligi);

// UTF-8 lines for fixed-width printers, as MetinRaporu: as many slips on a page as stay whole on it, at least one; the
// last line of a page is free. `ek` is left out. No slips, no text.
std::string MetinYapraklari(const YaprakBelgesi& belge, const SayfaDuzeni& duzen, Ilerleme* ilerleme = nullptr);
// The same slip by slip.
void MetinYapraklariniVer(const YaprakBelgesi& belge, const SayfaDuzeni& duzen, const MetinAlici& al,
                          Ilerleme* ilerleme = nullptr);

}  // namespace belvani
