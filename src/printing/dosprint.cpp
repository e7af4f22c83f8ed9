#include "printing/dosprint.h"

namespace belvani {

Durum dosprint::Ac(const std::string& yazici, const std::string& isAdi, int kopya) {
  acik_ = false;
  const auto secilen = YaziciSec(kuyruk_, yazici);
  if (!secilen) return secilen.Kusuru();
  is_ = {.tur = IsTuru::Ham, .yazici = secilen->ad, .ad = isAdi, .icerik = {}, .kopya = kopya};
  acik_ = true;
  return Tamam();
}

bool dosprint::Yaz(std::string_view baytlar) {
  if (acik_) is_.icerik += baytlar;
  return acik_;
}

Durum dosprint::Kapat() {
  if (!acik_) return Tamam();
  acik_ = false;
  if (is_.icerik.empty()) return Tamam();
  const auto sonuc = kuyruk_.Gonder(is_);
  is_.icerik.clear();
  if (!sonuc) return sonuc.Kusuru();
  return Tamam();
}

}  // namespace belvani
