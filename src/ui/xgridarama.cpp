#include "ui/xgridarama.h"

#include <algorithm>

#include "core/turkce.h"

namespace belvani {

xgridArama::xgridArama(const Rapor& rapor, const std::string& aranan)
    : rapor_(rapor),
      aranan_(KucukHarf(aranan)),
      gruplama_(aranan.find(',') == std::string::npos ? 0 : BinlikGruplama),
      harfli_(aranan_.find_first_not_of("0123456789.,-") != std::string::npos) {
  for (const RaporKolonu& kolon : rapor.Kolonlar()) bakilir_.push_back(Bakilir(kolon));
}

bool xgridArama::Bakilir(const RaporKolonu& kolon) const {
  if (aranan_.empty() || kolon.tur == KolonTuru::Bos) return false;
  return !harfli_ || kolon.tur == KolonTuru::Metin || kolon.tur == KolonTuru::UzunTarih;
}

bool xgridArama::Uyar(int kayit, int kolon) const {
  const auto k = std::size_t(kolon);
  if (!bakilir_[k]) return false;
  const std::string metin =
      HucreMetni(rapor_.Satirlar().Hucresi(std::size_t(kayit), k), rapor_.Kolonlar()[k], gruplama_);
  return metin.size() >= aranan_.size() && (harfli_ ? KucukHarf(metin) : metin).find(aranan_) != std::string::npos;
}

}  // namespace belvani
