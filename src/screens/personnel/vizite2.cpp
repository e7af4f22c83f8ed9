#include "screens/personnel/vizite2.h"

namespace belvani {

vizite2::vizite2(EkranBaglami& baglam)
    : YakinVizitesi(baglam, "vizite2", QStringLiteral("Eş ve Çocuklar için Vizite Kağıdı"), ViziteTuru::EsVeCocuk,
                    {{Uye("yakinAdSoyad", &ViziteYakini::adSoyad, ViziteFormu::AdSoyadHarfi), "Adı Soyadı"}}) {}

}  // namespace belvani
