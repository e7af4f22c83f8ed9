// Two people for screens that show people.
#pragma once

#include <gtest/gtest.h>

#include "core/tables/sicil.h"
#include "personnel/kart.h"

namespace belvani::test {

// 001, of that name, and 002, Can; both since 01.01.2005.
inline void IkiKisiKaydet(Oturum& oturum, const std::string& adi = "Işıl", const std::string& soyadi = "Öz") {
  for (const char* kod : {"001", "002"}) {
    Sicil s;
    s.kod = kod;
    s.adi = kod[2] == '1' ? adi : "Can";
    s.soyadi = soyadi;
    s.girtar = Tarih(2005, 1, 1);
    EXPECT_TRUE(KartKaydet(oturum, {.simdi = s}));
  }
}

}  // namespace belvani::test
