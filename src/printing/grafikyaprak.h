// Slips drawn on pages: one below the other, as many whole ones on an A4 sheet as fit.
//
//                     ÜCRET PUSULASI
//                   Ocak 2008 Dönemi
//   Firma İsmi   Çınar Tekstil
//   -------------------------------------------------------------------------------------------
//   Ücreti    608.40   Ssk Matrahı    608.40   SSK Muafiyet   0.00   Sendika             0.00
//   -------------------------------------------------------------------------------------------
//   Ücret hesap pusulasını, …
//
// Unlike the text form it has room for `ek`, in two more blocks. All slips have the same columns and size of letters:
// 8 points, or as small as the widest and the tallest slip need; nothing is cut.
#pragma once

#include <string>

#include "printing/tuval.h"
#include "printing/yaprak.h"

namespace belvani {

struct GrafikYaprakSonucu {
  int sayfaSayisi = 0;  // 0 without slips
  std::string uyari;    // of letters too small to be read with ease; else empty
};

GrafikYaprakSonucu GrafikYapraklari(const YaprakBelgesi& belge, Tuval& tuval);

}  // namespace belvani
