// What is told besides where others keep the open company's store locked: who else is in, for one of them is at it.
//
//   Bordro Kayıtları Güncellenemiyor: Veritabanı başka bir kullanıcı tarafından kilitli, biraz sonra yeniden deneyiniz
//   Şirkette çalışanlar:
//   Ayşe (MASA3, 22.11.2026 09:15)
#pragma once

#include <string>

#include "core/session/oturum.h"
#include "core/store/motor.h"

namespace belvani {

// The fault's words, with the others in the company where it is a lock.
std::string KilitliMetin(const Oturum& o, const MotorHatasi& hata);

// Does the work; a lock that it meets is thrown on with those words.
template <class Is>
auto KilitliyseSoyle(const Oturum& o, Is&& is) {
  try {
    return is();
  } catch (const MotorHatasi& hata) {
    throw MotorHatasi(hata.tur, KilitliMetin(o, hata));
  }
}

}  // namespace belvani
