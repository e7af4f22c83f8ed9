// YakinVizitesi: what the papers of a relative share: the relative, sought when another kinship is chosen, and the days
// of twelve months. Both may be typed over.
#pragma once

#include <array>

#include "screens/personnel/viziteekrani.h"

namespace belvani {

class YakinVizitesi : public ViziteEkrani {
 protected:
  // `adlar`: the fields of the relative's name.
  YakinVizitesi(EkranBaglami& baglam, const QString& kelime, const QString& baslik, ViziteTuru tur,
                std::vector<belvani::Alan> adlar);

 private:
  QWidget* GunleriYap();
  void AylariGoster(const ViziteAylari& aylar, bool ayniKisi) override;
  void KisiDegisti() override { YakiniGoster(); }
  bool KagidaYaz(ViziteKagidi& kagit) override;
  void YakiniGoster();
  void ToplamiGoster();

  ViziteAylari aylar_{};  // as they were read
  std::array<QLabel*, 12> ayAdlari_{};
};

}  // namespace belvani
