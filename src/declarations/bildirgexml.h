// The electronic declaration: the file that the employer hands to the institution's service.
//
// Plain lines in ISO-8859-9 that end in CR LF and are indented by tabs. Order of attributes, blanks and the spelling of
// the encoding in the first line are part of the format; nothing in a value is escaped. One line a row, in groups of
// the same document type and law:
//
//   <BILDIRGELER BELGETURU="01" KANUN="05510">
//     <SIGORTALILAR>
//       <SIGORTALI SIRA="1" SIGORTALISICIL="3401200412345" … PEK="1250.5" PRIM_IKRAMIYE="0" GUN="30" />
#pragma once

#include <string>

#include "core/bildirim.h"
#include "declarations/bildirgekontrol.h"

namespace belvani {

struct BildirgeDosyasi {
  std::string icerik;  // the bytes of the file
  Kusurlar sorunlar;   // values that make it unreadable, or hold letters that it cannot show
};

// Control characters are left out. The checks of BildirgeKontrol are the caller's. Throws Vazgecilmis when `ilerleme`
// stops it.
BildirgeDosyasi BildirgeXml(const Bildirge& bildirge, const IsyeriBilgileri& isyeri, Yuvarlayici yuvarla,
                            Ilerleme* ilerleme = nullptr);

// "Bordro0072009.xml": position of the law in its list, month, year.
std::string XmlDosyaAdi(const BildirgeSecimi& secim);

}  // namespace belvani
