#include "screens/payroll/otokes.h"

namespace belvani {

otokes::otokes(EkranBaglami& baglam) : Form(baglam, "otokes", QStringLiteral("Otomatik Kesinti")) {
  YaziEkle(QStringLiteral("Kesintiler kişi kişi girilir:"), "baslik");
  YaziEkle(QStringLiteral("Ayın borç kesintisi, Bordro Hazırlık'ta kişi açıkken Ctrl+B ile.\n"
                          "Avans ve borçların hesabı, Ek Moduller > Personel Cari'de."),
           "");
  Komutlar({{.komut = FormKomutu::Kapat, .dugme = "Kapat", .ilkOdak = true}});
}

}  // namespace belvani
