// The people of the refund's lists, out of the store: what was carried over of their year, and what the pay records of
// some months have paid (`ogv`). Two queries, however many people and months there are.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "documents/defter.h"

namespace belvani {

struct OgiKisisi {
  std::string kod;
  std::string adSoyad;
  std::string sskno;
  Tarih ciktar;
  Tutar gvmatrah, ogimatrah, ogitutar, ogiodenen;
  std::vector<std::optional<Tutar>> aylar;  // of the months asked for; none: no pay record
};

// Which payments: `sayi` months of the pay year from `ilk` on. Months past December have no records.
struct OgiAyAraligi {
  int yil = 0;
  int ilk = 1;
  int sayi = 0;
};

enum class OgiKosulu { HarcamaliOlanlar, HakEdenler };  // an expense above zero, a refund above zero

// Of the selection's ranges, in its order, from the year before `aylar.yil`. Throws MotorHatasi.
std::vector<OgiKisisi> OgiKisileriOku(Motor& motor, const DefterSecim& secim, const OgiAyAraligi& aylar,
                                      OgiKosulu kosul, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
