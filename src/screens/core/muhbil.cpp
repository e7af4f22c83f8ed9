#include "screens/core/muhbil.h"

#include "core/session/muhasebecibilgi.h"
#include "core/tckimlik.h"

namespace belvani {
namespace {

const AlanGrubu MuhasebeciGrubu{"Muhasebeci",
                                {{Uye("adsoyad", &Muhasebeci::adsoyad, 50), "Adı Soyadı"},
                                 {Uye("tcno", &Muhasebeci::tcno, 15), "T.C. No"},
                                 {Uye("sicil", &Muhasebeci::sicil, 30), "Sicil"}}};

}  // namespace

muhbil::muhbil(EkranBaglami& baglam) : Form(baglam, "muhbil", QStringLiteral("Muhasebeci Bilgileri")) {
  AlanlariDiz({{MuhasebeciGrubu}});
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Kapat, .dugme = "Vazgeç"}});
  Yukle(MuhasebeciOku(baglam.oturum));
}

void muhbil::Kaydet() {
  Muhasebeci muhasebeci;
  if (!Oku(muhasebeci) || !Oldu(MuhasebeciKaydet(Oturumu(), muhasebeci))) return;
  if (const std::string uyari = TcUyarisi(muhasebeci.tcno); !uyari.empty()) Bildirimi().Uyari(uyari);
  Kapat();
}

}  // namespace belvani
