// The window of faults: what a work over many people has found, told at once. Enter goes to the person and the field.
//
//   KusurlariGoster(Baglam(), sonuc->sorunlar, "1500 kişi kaydedildi");
#pragma once

#include <QString>
#include <vector>

#include "ui/ekran.h"

namespace belvani {

// A window beside the others, so that the user can go to and fro; without faults there is none. `ozet`: how the work
// has ended, above the list.
void KusurlariGoster(EkranBaglami& baglam, const Kusurlar& kusurlar, const QString& ozet = {});

// The same of work over many companies, with a column of theirs. Enter goes to people of the open company alone.
struct SirketKusuru {
  std::string sirket;
  Kusur kusur;
};
void KusurlariGoster(EkranBaglami& baglam, std::vector<SirketKusuru> kusurlar, const QString& ozet);

}  // namespace belvani
