// "İBRANAME", the release that a leaving employee signs: who leaves whom and why, what was paid to him, and that
// nothing is owed any more. As a drawn page and as lines for a text printer, with the same words.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/tables/firma.h"
#include "core/tarih.h"
#include "personnel/istencikis.h"
#include "printing/form/formbelgesi.h"

namespace belvani {

struct Ibraname {
  CikisFormu form;
  Firma firma;
  IbranameOdemeleri odemeler;
  Tarih tarih;  // of signing
  int paraonda = 2;
};

// The frames of the text form: box-drawing letters, or "+---" and "|" for printers that have none.
enum class CerceveTuru { KutuHarfleri, Duz };

// One page, A4 upright. Throws TutarTasmasi when a sum of payments leaves its range.
std::vector<FormSayfasi> IbranameSayfalari(const Ibraname& ibraname);

// One page of at most 66 lines, UTF-8; the lines of its sentences are 100 letters long. Columns of the payments grow
// with their amounts. Throws TutarTasmasi.
std::string IbranameMetni(const Ibraname& ibraname, CerceveTuru cerceve = CerceveTuru::KutuHarfleri);

// Both, to be printed. Throws TutarTasmasi.
std::unique_ptr<Belge> IbranameBelgesi(const Ibraname& ibraname, CerceveTuru cerceve = CerceveTuru::KutuHarfleri);

}  // namespace belvani
