// A company goes from one data path to another one, a directory or a server each, on the road of its backup: it is
// backed up, comes up at the other end, and every row and file there is held against where it comes from. Only then it
// goes out of its old place, where the backup stays.
#pragma once

#include <string>
#include <string_view>

#include "core/asama.h"
#include "core/veriyolu.h"

namespace belvani {

struct TasimaIstegi {
  std::string kod;
  bool kaynakKalsin = false;  // it is copied; who works in both places works in two companies
};

struct Tasima {
  std::string ad;     // of the company
  std::string yedek;  // the backup on the road
  Kusurlar uyarilar = {};
};

// Refused are a company that somebody is in, and a target that has one of this name. Whole or not at all: after a fault
// the target has nothing of it.
Sonuc<Tasima> SirketTasi(const VeriYolu& kaynak, const VeriYolu& hedef, const TasimaIstegi& istek,
                         Ilerleme* ilerleme = nullptr);

}  // namespace belvani
