// "Dizi Pusulası": the sheet that lies on a pile of entry declarations: those who enter insurance for the first time
// and those who enter again, each with number and name.
//
// A number whose value is 0 (none, blanks, letters) means a first entry. Each of the two lists has room for 500 people.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "notices/giriscikis.h"

namespace belvani {

constexpr std::size_t DiziSiniri = 500;

struct DiziSatiri {
  std::string sskno;
  std::string adsoy;

  bool Bos() const { return sskno.empty() && adsoy.empty(); }
  bool operator==(const DiziSatiri&) const = default;
};

struct DiziPusulasi {
  std::vector<DiziSatiri> ilk;     // "Sigortalı ise İlk Defa İşe Girenler"
  std::vector<DiziSatiri> tekrar;  // "Sigortalı ise Tekrar İşe Girenler"
  std::size_t sigmayan = 0;        // people whose list was full
};

bool IlkGirisMi(std::string_view sskno);

// Puts a person into his list, or counts him among those left out.
void DiziyeEkle(DiziPusulasi& pusula, DiziSatiri satir);

// Who was hired between the two days, in the order of their numbers. Throws MotorHatasi.
DiziPusulasi DiziPusulasiOku(Motor& motor, const TarihAraligi& aralik, Ilerleme* ilerleme = nullptr);

// "Dizi Pusula Limiti Doldu" with how many are left out; "" while all have room.
std::string DiziSinirUyarisi(const DiziPusulasi& pusula);

}  // namespace belvani
