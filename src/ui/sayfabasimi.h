// The print command of a paper whose text form goes out page by page: each page is a job of its own, and before each
// but the first its user makes the printer ready.
#pragma once

#include "ui/ekran.h"

namespace belvani {

class Belge;

struct MetinBasimi {
  // Told where the file of the job cannot be opened.
  const char* acilamadi;
  // What stands before each page but the first; "%" is its number. Null: all pages are one job.
  const char* hazirlik = nullptr;
};

// As BelgeBas (ui/basim.h) otherwise.
void BelgeBasSayfaSayfa(EkranBaglami& baglam, Belge& belge, const MetinBasimi& basim);

}  // namespace belvani
