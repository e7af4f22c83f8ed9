// dosprint: the raw spool behind `belprn` and `prnx`: a document of bytes for one printer, sent when it is closed.
#pragma once

#include "printing/kuyruk.h"

namespace belvani {

class dosprint {
 public:
  explicit dosprint(Kuyruk& kuyruk) : kuyruk_(kuyruk) {}

  Durum Ac(const std::string& yazici, const std::string& isAdi, int kopya = 1);
  bool Yaz(std::string_view baytlar);  // false while no document is open
  Durum Kapat();                       // sends; a document without a byte is dropped

  bool Acik() const { return acik_; }

 private:
  Kuyruk& kuyruk_;
  BaskiIsi is_;
  bool acik_ = false;
};

}  // namespace belvani
