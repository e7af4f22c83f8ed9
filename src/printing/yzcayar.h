// The print settings: what a document asks for before its print dialog, and what the user made of it. They live for the
// program's run and are kept nowhere; most documents set all of them again before each print.
//
// After the dialog a document does nothing when it was given up, else it writes by text or by drawing:
//
//   switch (YolSec(ayar)) { case BaskiYolu::Yok: return; case BaskiYolu::Metin: …; case BaskiYolu::Grafik: …; }
#pragma once

#include <array>
#include <string>

#include "printing/tuval.h"

namespace belvani {

struct YzcAyarlari {
  std::string YzcBaslik;      // of the document; also the name of its job
  bool YzcBaslikYaz = true;   // "Başlık Yazılsın"
  bool YzcTarihYaz = true;    // "Tarih Yazılsın"
  bool YzcSayfaNoYaz = true;  // "Sayfa No Yazılsın"
  bool YzcSirketYaz = true;   // "Şirket Adı Yazılsın"
  KagitYonu YzcYon = KagitYonu::Dikey;
  int YzcSatir = 66;          // lines of a page, at most 255
  int YzcKopya = 1;           // copies
  bool YzcTamam = false;      // closed by "&Tamam"
  bool YzcDosMod = false;     // "Dot Matrix (Dos Mod)", not "Grafik (Windows Mod)"
  bool YzcGrafikAcik = true;  // the document can be drawn
  bool YzcDosAcik = true;     // the document has a text form
  std::string yazici;         // the selected printer; empty: the system's own choice
};

// The settings that change a paper; the dialog offers no others. What every job has (the title as its name, way,
// copies, printer) is not among them.
struct YzcDestegi {
  bool baslik = false;   // the title stands on the paper and can be left out
  bool tarih = false;    // the day of printing
  bool sayfaNo = false;  // the page number
  bool sirket = false;   // the company's name
  bool yon = false;      // the sheet may lie either way
  bool satir = false;    // a text page has as many lines as asked for

  friend bool operator==(const YzcDestegi&, const YzcDestegi&) = default;
};

// What the dialog offers.
inline constexpr std::array YzcSatirSecenekleri{22, 33, 44, 66, 70};
constexpr int YzcEnCokKopya = 5;

enum class BaskiYolu { Yok, Metin, Grafik };

constexpr BaskiYolu YolSec(const YzcAyarlari& ayar) {
  if (!ayar.YzcTamam) return BaskiYolu::Yok;
  return ayar.YzcDosMod ? BaskiYolu::Metin : BaskiYolu::Grafik;
}

// The kind for prnx::OpenPrinter.
constexpr int prnxTuru(const YzcAyarlari& ayar) {
  return ayar.YzcDosMod ? 2 : 1;
}

}  // namespace belvani
