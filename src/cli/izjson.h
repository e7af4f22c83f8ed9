// The steps of a calculation as JSON: [{"alan", "kural", "girdiler", "sonuc"}].
#pragma once

#include "cli/jsonkayit.h"
#include "payroll/hesap/iz.h"

namespace belvani::cli {

inline Json IzJson(const Iz& iz) {
  Json dizi = Json::array();
  for (const IzAdimi& adim : iz) {
    Json girdiler = Json::object();
    for (const auto& g : adim.girdiler) girdiler[g.ad] = g.deger;
    dizi.push_back({{"alan", adim.alan}, {"kural", adim.kural}, {"girdiler", girdiler}, {"sonuc", adim.sonuc}});
  }
  return dizi;
}

}  // namespace belvani::cli
