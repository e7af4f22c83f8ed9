// The list of companies, and the deletion of one.
//
// The list reads each store through a handle of its own, so that it can run while the session has one open.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/asama.h"
#include "core/session/firmabilgi.h"
#include "core/silme.h"
#include "core/veriyolu.h"

namespace belvani {

struct SirketSatiri {
  std::string ad;     // of the directory, the company's code
  std::string unvan;  // title, or "Database'e Ulaşılamadı"
  int yil = 0;        // working month; without a year where the store could not be read
  int ay = 0;
  std::vector<Icerdeki> icerde = {};  // who is in, this program too

  std::string Donem() const { return CalismaAyiMetni(yil, ay); }
  bool operator==(const SirketSatiri&) const = default;
};

// Every company below the data path, in Turkish order of the names. Throws Vazgecilmis when `ilerleme` stops it.
std::vector<SirketSatiri> SirketListesi(const VeriYolu& veri, Ilerleme* ilerleme = nullptr);

// Whether that place is the open company's, also where a link or another spelling leads to it.
bool AcikSirketMi(const Oturum& o, const VeriYolu& sirket);

// Names of places in which a company was being made when its program ended, and which nobody is at. They begin with a
// point.
std::vector<std::string> YarimSirketler(const VeriYolu& veri);

// Names of the directories that may be deleted: all real ones (no links) but that of the session's company, then the
// half ones.
std::vector<std::string> SilinebilirSirketler(const VeriYolu& veri, const Oturum& o);

// Asks, then deletes the directory `ad`, as SilinebilirSirketler names it, with every file in it. Refused, with nothing
// deleted, are a name that is not in that list, a directory with a subdirectory, a company that someone is in, and a
// company of which no backup can be made first. It goes in one step; what could not be removed then is one of the
// half ones.
Sonuc<Silme> SirketSil(const VeriYolu& veri, std::string_view ad, const Oturum& o, Bildirim& bildirim,
                       const Yurutucu& yurut = HemenYurut);

}  // namespace belvani
