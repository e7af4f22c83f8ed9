// Who entered and who left between two days: the rows of the lists that the labour office and the insurance unit get
// (EK-1, EK-2).
//
// A person without an identity record is in neither list: half of a row would be missing. Throws MotorHatasi.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "documents/tariharaligi.h"

namespace belvani {

// "01.01.2009 - 31.12.2009"
std::string AralikMetni(const TarihAraligi& aralik);

struct GirenSatiri {
  std::string adsoy{};
  std::string baba{};
  std::string dogyer{};
  Tarih dogtar{};
  std::uint8_t cins = 0;  // 0 male, 1 female
  Tarih girtar{};
  std::string sskno{};
};

struct CikanSatiri {
  std::string adi{};
  std::string soyadi{};
  std::string baba{};
  Tarih dogtar{};
  Tarih ciktar{};
  std::uint8_t cikiskodu = 0;
  std::string cikissebebi{};
  std::string sskno{};

  std::string AdSoyadi() const;
  std::string CikisKodu() const;    // two digits: "04"
  std::string CikisNedeni() const;  // with the words behind it: "04 İstifa"
};

// In the order of their days, then of the codes of the people.
std::vector<GirenSatiri> GirenleriOku(Motor& motor, const TarihAraligi& aralik, Ilerleme* ilerleme = nullptr);
std::vector<CikanSatiri> CikanlariOku(Motor& motor, const TarihAraligi& aralik, Ilerleme* ilerleme = nullptr);

// The body that the person is insured with, by its number in the key of the forms: the institution of this program (1),
// of which his number is. Someone without a number is left to the pen.
std::string KurulusKodu(const std::string& sskno);

}  // namespace belvani
