// Bringing records in from CSV files: people with their identity, families, and the company's definitions.
//
// The header row names stored fields. Every cell is checked first, and every fault names its person, row and column;
// when there is one, nothing is saved. All rows are one transaction.
#pragma once

#include <string>
#include <string_view>

#include "core/okunus.h"
#include "core/session/oturum.h"
#include "core/sonuc.h"

namespace belvani {

enum class AktarimKipi { Kaydet, YalnizDene };

// The file's text, and how its numbers are to be read.
struct AktarilanCsv {
  AktarilanCsv(std::string_view metin, OndalikImi im = OndalikImi::Belirsiz)  // NOLINT: a text is a file
      : icerik(metin), ondalik(im) {}
  AktarilanCsv(const char* metin) : AktarilanCsv(std::string_view(metin)) {}         // NOLINT
  AktarilanCsv(const std::string& metin) : AktarilanCsv(std::string_view(metin)) {}  // NOLINT

  std::string_view icerik;
  OndalikImi ondalik;
};

struct AktarimSonucu {
  int eklenen = 0;
  int degisen = 0;
  Kusurlar sorunlar;  // not empty: nothing was saved
  // Saved, but to be looked at: codes that the company does not define, check digits of an identity number.
  Kusurlar uyarilar;
};

// Fields of `sicil` and `kimlik`, key `kod`. A person who is known already is changed in the columns of the file alone;
// a new one needs a hire date and gets his identity record (nationality "T.C." unless told).
Sonuc<AktarimSonucu> PersonelAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

// `ucret`, `ucrettipi` and `ucretags` of people who are there, by `kod`; other fields are not taken, and no cell may be
// empty.
Sonuc<AktarimSonucu> UcretAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

// Fields of `esco`, `kod` being the employee, who must exist. The file is the whole family of each person in it: what
// the store had for him goes.
Sonuc<AktarimSonucu> AileAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

// Fields of one definition table: `firma` (its one record), `muaf`, `indir`, `sendika` or `kaztan` (by their key).
Sonuc<AktarimSonucu> TanimAktar(Oturum& o, std::string_view tablo, const AktarilanCsv& csv, AktarimKipi kip);

}  // namespace belvani
