#include "screens/payroll/brckes.h"

#include "ui/metin.h"

namespace belvani {
namespace {

struct Kesinti {
  Tutar tutar;
};

}  // namespace

brckes::brckes(EkranBaglami& baglam, BordroGirisi& giris)
    : Form(baglam, "brckes", QStringLiteral("-Borç Kesintisi-")), giris_(giris) {
  AlanlariDiz({{{"Borç Kesintisi", {{Uye("tutar", &Kesinti::tutar), "Kesinti Tutarı"}}}}});
  YaziEkle("En fazla " + Yazi(TutarMetni(giris.BorcLimiti(), Oturumu().firma.paraonda)), "soluk");
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Tamam", .islev = [this] { Onayla(); }},
            {.komut = FormKomutu::Kapat, .dugme = "Vazgeç"},
            {.tus = Qt::Key_Return, .islev = [this] { Onayla(); }}});
  Yukle(Kesinti{giris.Giris().borckes});
}

void brckes::Onayla() {
  Kesinti kesinti;
  if (!Oku(kesinti)) return;
  if (Oldu(giris_.BorcAyarla(kesinti.tutar))) return Kapat();
  Yukle(kesinti);  // the next key types over it
}

}  // namespace belvani
