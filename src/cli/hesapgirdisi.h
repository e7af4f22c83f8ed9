// The values of one calculation as JSON tells them.
#pragma once

#include <string>
#include <vector>

#include "cli/jsonkayit.h"
#include "payroll/hazirlik/kisi.h"
#include "payroll/hesap/bordro.h"

namespace belvani::cli {

struct HesapGirdisi {
  KisiVerisi kisi;
  Kosullar kosullar;
  Brd giris;                         // entered values
  std::vector<std::string> verilen;  // names of the entered columns
  int CalismaGun = 30;
  std::vector<std::string> kusurlar;  // not empty: nothing can be calculated
  std::vector<std::string> uyarilar;

  // The person as he comes onto the screen, with the entered values. *this must outlive it.
  BordroGirdi Girdi() const;
};

HesapGirdisi HesapGirdisiOku(const Json& json);

}  // namespace belvani::cli
