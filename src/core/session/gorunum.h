// Appearance: what this computer shows for this company, and which fonts this user's grids have.
//
// The first is kept in the workstation file `<FirmaDizini><BilgisayarAdi>.dat`, section gorunum, one per company and
// computer; the second in the user's settings, section quick. Colours of the workstation file are written as
// "&H00ECFAE4&": hexadecimal 0x00BBGGRR; one with the highest bit set ("&H8000000F") names a colour of the desktop.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/ini.h"
#include "core/session/oturum.h"
#include "core/session/renkler.h"
#include "core/sonuc.h"

namespace belvani {

// The keys as they stand in the file, with their defaults; that of the picture file lies below PrgPath.
struct GorunumAyari {
  std::string backcolor = "&H00ECFAE4&";     // main window
  bool backresimvarmi = true;                // a background picture is shown
  std::string backresim;                     // its file
  std::string formbackcolor = "&H8000000F";  // screens
  std::string imagepath = "image/soft/";     // set of button pictures, below PrgPath
  bool imagekullan = true;                   // pictures are used
  bool yazilansor = true;                    // screens ask before they lose what was typed
  std::string labelback, labelfore;          // the main window's label; empty: as the colour table has it
  std::string labelfont = "Tahoma";
  int labelfontsize = 10;

  bool operator==(const GorunumAyari&) const = default;
};

// The workstation file. A computer that is named like a file of the company ("tolu") gets a name beside it.
IniDosyasi IstasyonDosyasi(const Oturum& o);

// A key that is missing or holds what cannot be (a size of 0, a path that leaves PrgPath) reads as its default.
GorunumAyari GorunumOku(const Oturum& o);
Durum GorunumYaz(const Oturum& o, const GorunumAyari& ayar);

// The sets of pictures to choose from, as `imagepath` has them: the program's two, and the directories below
// `<PrgPath>image/`.
std::vector<std::string> ResimSetleri(const Oturum& o);

// The session's share of it: `ResimYolu`, `ResimKullan` and `YazilanSorulsun`.
void GorunumUygula(Oturum& o, const GorunumAyari& ayar);

// The colours to paint with: the session's table, with this computer's colour of screens where that is a colour and not
// one of the desktop's.
RenkTablosu GecerliRenkler(const Oturum& o, const GorunumAyari& ayar);

// "&H00ECFAE4&" -> 0x00ECFAE4; nothing for a text that is no colour.
std::optional<std::uint32_t> RenkOku(std::string_view metin);
std::string RenkMetni(std::uint32_t renk);

enum class Kalinlik { Normal, Kalin };

struct YaziTipi {
  std::string ad;
  int boyut = 10;  // points
  Kalinlik kalinlik = Kalinlik::Normal;

  bool operator==(const YaziTipi&) const = default;
};

struct GridYazilari {
  YaziTipi baslik{"tahoma", 10, Kalinlik::Kalin};
  YaziTipi detay{"courier", 10, Kalinlik::Normal};

  bool operator==(const GridYazilari&) const = default;
};

GridYazilari GridYazilariOku();
Durum GridYazilariYaz(const GridYazilari& yazilar);

}  // namespace belvani
