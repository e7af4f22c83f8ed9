// Where a document of bytes goes. dosprint: the raw spool behind `belprn` and `prnx`, for one printer, sent when it is
// closed.
#pragma once

#include "printing/kuyruk.h"

namespace belvani {

class HamCikis {
 public:
  virtual ~HamCikis() = default;
  virtual Durum Ac(const std::string& yazici, const std::string& isAdi, int kopya) = 0;
  virtual bool Yaz(std::string_view baytlar) = 0;  // false while no document is open
  virtual Durum Kapat() = 0;
};

class dosprint final : public HamCikis {
 public:
  explicit dosprint(Kuyruk& kuyruk) : kuyruk_(kuyruk) {}

  Durum Ac(const std::string& yazici, const std::string& isAdi, int kopya = 1) override;
  bool Yaz(std::string_view baytlar) override;
  Durum Kapat() override;  // sends; a document without a byte is dropped

  bool Acik() const { return acik_; }

 private:
  Kuyruk& kuyruk_;
  BaskiIsi is_;
  bool acik_ = false;
};

}  // namespace belvani
