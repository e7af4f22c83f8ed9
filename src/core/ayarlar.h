// Settings that outlive a run, in two places.
//
// Machine-wide values (`PrgPath`, `DataPath`, `ServerName`, `ParametreAdresi`): /etc/belvani/personel.ini, which an
// installation may share; where that file does not exist and cannot be made, makine.ini in the user's directory.
// Per-user values (`lastfirm`, `lastuser`; grid fonts in a section of their own): personel.ini in
// $XDG_CONFIG_HOME/belvani, ~/.config/belvani by default.
// The environment moves both, for tests and unusual installations: BELVANI_MAKINE_AYAR names the machine-wide file,
// BELVANI_KULLANICI_DIZIN the user's directory.
#pragma once

#include <string>
#include <string_view>

#include "core/sonuc.h"

namespace belvani {

std::string MakineAyari(std::string_view anahtar);
Durum MakineAyariYaz(std::string_view anahtar, std::string_view deger);

inline constexpr std::string_view AnaBolum = "personel";

std::string KullaniciAyari(std::string_view anahtar, std::string_view varsayilan, std::string_view bolum = AnaBolum);
Durum KullaniciAyariYaz(std::string_view anahtar, std::string_view deger, std::string_view bolum = AnaBolum);

// The user's own directories, with a separator at the end: settings, data. An account without HOME (a service) has
// those of its entry in the list of accounts.
std::string KullaniciDizini();
std::string KullaniciVeriDizini();

}  // namespace belvani
