// Another code for pay records, which is all of them that changes: a checksum that held holds for the new record, one
// that told of damage goes on telling, and a record without one gets none.
#pragma once

#include <optional>
#include <string_view>

#include "core/store/brdozet.h"

namespace belvani {

// In the open transaction. Throws MotorHatasi.
class BordroKoduYazici {
 public:
  explicit BordroKoduYazici(Motor& motor);

  void Yaz(std::int64_t oto, std::string_view kod);

 private:
  BrdOzetleri ozetler_;
  std::unique_ptr<Komut> oku_;
  std::unique_ptr<Komut> yaz_;
};

// For pay records that lie elsewhere: of the row that stands ready, whose columns of the schema start at `ilk`.
std::int64_t BrdSatirOzeti(const Komut& komut, int ilk, std::optional<std::string_view> kod = {});
// The checksum to be written with the new code over that of column `ozetYeri`; nothing where that is Null.
std::optional<std::int64_t> YeniKodunOzeti(const Komut& komut, int ozetYeri, int ilk, std::string_view kod);

}  // namespace belvani
