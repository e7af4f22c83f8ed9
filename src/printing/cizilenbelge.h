// CizilenBelge: a document laid out on pages that can be drawn one at a time, in any order: a preview draws the page
// that is looked at, a PDF draws them all.
#pragma once

#include <string>

#include "core/bildirim.h"
#include "printing/tuval.h"

namespace belvani {

class CizilenBelge {
 public:
  virtual ~CizilenBelge() = default;
  virtual int SayfaSayisi() const = 0;  // 0: nothing to print
  // Page `no`, from 1, from SayfaBasla to SayfaBitir.
  virtual void SayfaCiz(int no, Tuval& tuval) const = 0;
  // What its user should know about it (letters too small to read); else empty.
  virtual std::string Uyari() const { return {}; }
};

// All pages. `ilerleme` is asked before each; stopped it throws Vazgecilmis.
void SayfalariCiz(const CizilenBelge& belge, Tuval& tuval, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
