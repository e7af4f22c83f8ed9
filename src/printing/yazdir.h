// A document on its way to a printer.
//
// Drawn pages go to the print server as a PDF. Text goes byte by byte: through a temporary file that the small program
// belprn hands to the print server as it is, or straight to a parallel port of this computer.
#pragma once

#include <functional>
#include <string>

#include "core/bildirim.h"
#include "printing/belge.h"
#include "printing/kuyruk.h"
#include "printing/paralelport.h"

namespace belvani {

// The printers that a program works with, and what it needs for them.
struct BaskiOrtami {
  Kuyruk& kuyruk;
  ParalelPort& port;
  std::string programDizini;  // where belprn lies
  // Opens a file in the program that the user has for it; false when there is none.
  std::function<bool(const std::string& dosya)> dosyaAc;
  std::function<bool(const std::string& adres)> adresAc;  // a page of the web, in the user's browser
  std::string yazici = {};                                // as chosen in this run; empty: the system's own choice
};

struct YazdirmaSonucu {
  bool gonderildi = false;  // not, when the dialog was given up, the print stopped, or there is nothing to print
  std::string uyari;        // too wide a list, a printer that waits for paper; else empty
};

// Everything that can print: the printers of the print server, then the parallel ports of this computer, named "LPT1:"
// and so on. A print server that does not answer is a failure only where there is no port either.
Sonuc<std::vector<YaziciBilgisi>> YaziciListesi(BaskiOrtami& ortam);

// By the way that the document's settings tell (YolSec). `ilerleme` shows it and stops it: a drawn print between two
// pages, a text print at any letter. What the user must answer while a port prints goes through `bildirim`.
Sonuc<YazdirmaSonucu> BelgeYazdir(const Belge& belge, BaskiOrtami& ortam, Bildirim& bildirim,
                                  Ilerleme* ilerleme = nullptr);

}  // namespace belvani
