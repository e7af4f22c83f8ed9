#include "screens/personnel/vizite3.h"

#include "core/tables/esco.h"

namespace belvani {

vizite3::vizite3(EkranBaglami& baglam)
    : YakinVizitesi(baglam, "vizite3", QStringLiteral("Altı Aylık Sağlık Belgesi"), ViziteTuru::AltiAylik,
                    {{Uye("soyadi", &ViziteYakini::soyadi, esco::soyadi.boyut), "Soyadı"},
                     {Uye("adi", &ViziteYakini::adi, esco::adi.boyut), "Adı"}}) {}

}  // namespace belvani
