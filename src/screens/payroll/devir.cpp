#include "screens/payroll/devir.h"

#include "core/tarih.h"

namespace belvani {
namespace {

struct Donemler {
  std::string simdiki, gecilecek;
};

// " Aralık 2008 "
std::string DonemMetni(int yil, int ay) {
  const std::string ayAdi(ay < 1 || ay > 12 ? "?" : AyAdi(ay));
  return " " + ayAdi + " " + std::to_string(yil) + " ";
}

}  // namespace

devir::devir(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : Form(baglam, "devir", QStringLiteral("Devir İşlemleri")), parametreler_(parametreler) {
  const AlanEki gosterilen{.harf = 20, .kapali = true};
  AlanlariDiz({{{"Şirket Dönemi",
                 {Alan(Uye("simdiki", &Donemler::simdiki), "Şimdiki Dönem", gosterilen),
                  Alan(Uye("gecilecek", &Donemler::gecilecek), "Geçilecek  Dönem", gosterilen)}}}});
  YaziEkle(QStringLiteral("Dönem bir ay ileri alınır; bordro kayıtları değişmez."), "soluk");
  Komutlar({{.tus = Qt::Key_F5,
             .dugme = "Dönemi Değiştir",
             .simge = "sonraki",
             .islev = [this] { Gec(); },
             .ilkOdak = true}});
  FirmaDegisti();
}

void devir::FirmaDegisti() {
  Form::FirmaDegisti();
  const Firma& kart = Oturumu().firma;
  const auto sonraki = parametreler_.firma.KomsuDonem(Yon::Sonraki);
  Yukle(Donemler{DonemMetni(kart.firmayil, kart.firmaay), DonemMetni(sonraki.yil, sonraki.ay)});
}

void devir::Gec() {
  if (!Bildirimi().Soru("Şirket Dönemini Değiştirmeye Eminmisiniz ?")) return;
  if (Oldu(parametreler_.firma.DonemKaydir(Yon::Sonraki))) Kapat();
}

}  // namespace belvani
