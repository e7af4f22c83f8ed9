// ListeDoldur: a list anew, a row for each value.
//
//   ListeDoldur(*liste_, kisiler, [](const Kisi& k) { return std::array{k.kod, k.adi}; });
#pragma once

#include "ui/dclist.h"
#include "ui/metin.h"

namespace belvani {

// `hucreler` gives the texts of a row in the order of the columns. The cursor stands on the first row afterwards.
template <class Satirlar, class Hucreler>
void ListeDoldur(dclist& liste, const Satirlar& satirlar, Hucreler hucreler) {
  liste.Model().TopluBasla();
  liste.Clear();
  for (const auto& satir : satirlar) {
    const int sira = liste.Add();
    int kolon = 0;
    for (const std::string& metin : hucreler(satir)) liste.Text(sira, kolon++, Yazi(metin));
  }
  liste.Model().TopluBitir();
  liste.ChngSat(0);
}

}  // namespace belvani
