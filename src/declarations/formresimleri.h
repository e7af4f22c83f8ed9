// The missing-days form, "ek10": drawn pages whose values its user may move and edit before they are printed, by their
// names: "isveren.unvan", "kisi3.tcno", "muhasebeci.adsoyad". The other form of this kind, "ek9", is the monthly
// declaration (bildirgeformu.h).
#pragma once

#include <string>
#include <vector>

#include "declarations/bildirgekagidi.h"
#include "printing/form/formsayfasi.h"

namespace belvani {

// A person who was paid for fewer days than the month has.
struct EksikGunKisisi {
  std::string sskno{};
  std::string tcno{};
  std::string adi{};
  std::string soyadi{};
  int gun = 0;
  int eksikGun = 0;
  int sebep = 0;  // code
};

struct EksikGunFormu {
  int yil = 0;
  int ay = 1;
  Firma firma{};
  Arac arac{};
  Muhasebeci muhasebeci{};
  std::vector<EksikGunKisisi> kisiler{};
};

constexpr std::size_t EksikGunSayfaKisisi = 20;

// Twenty people a page, at least one page.
std::vector<FormSayfasi> Ek10Resmi(const EksikGunFormu& form);

}  // namespace belvani
