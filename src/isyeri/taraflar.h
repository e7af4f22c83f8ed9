// Who stands on a statutory paper for the company: the employer, his intermediary, the accountant.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/session/muhasebecibilgi.h"
#include "core/tables/arac.h"
#include "core/tables/firma.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

// Who answers for a paper.
struct TarafBilgisi {
  std::string unvan{};
  std::array<std::string, 2> adres{};
  std::string semt{};
  std::string ilce{};
  std::string sehir{};
  std::string pk{};
  std::string iletisim{};  // telephone, else e-mail
  std::string kimlikNo{};  // tax number, else national number
};
TarafBilgisi Isveren(const Firma& firma);
TarafBilgisi Araci(const Arac& arac);

// Seven lines below a heading, on a ruled page (satirliform.h); gives the line below them.
int Taraf(FormKurucu& f, double x, int satir, double en, std::string_view baslik, const std::string& on,
          const TarafBilgisi& taraf);

// The accountant in the box of his signature: caption, name and number on its first three lines; `ilk` is the first.
void MuhasebeciImzasi(FormKurucu& f, const Dikdortgen& ilk, const Muhasebeci& muhasebeci);

}  // namespace belvani
