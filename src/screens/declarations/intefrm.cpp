#include "screens/declarations/intefrm.h"

#include "core/turkce.h"
#include "declarations/ebildirgeadresi.h"
#include "printing/yazdir.h"

namespace belvani {
namespace {

struct Baglanti {
  std::string adres;
  std::string dosya;
};

constexpr int AdresHarfi = 200;
constexpr int YolHarfi = 400;
constexpr int AlanHarfi = 64;

}  // namespace

intefrm::intefrm(EkranBaglami& baglam, const std::string& dosya)
    : Form(baglam, "intefrm", QStringLiteral("İnternet İşlemleri")), dosya_(dosya) {
  AlanlariDiz(
      {{{"Gönderim",
         {{Uye("adres", &Baglanti::adres, AdresHarfi), "Adres", {.harf = AlanHarfi}},
          {Uye("dosya", &Baglanti::dosya, YolHarfi), "Bildirge Dosyası", {.harf = AlanHarfi, .kapali = true}}}}}});
  YaziEkle(
      QStringLiteral("Adres internet tarayıcınızda açılır. Bildirge dosyasını oradaki sayfaya kendiniz yüklersiniz;\n"
                     "program hiçbir şey göndermez."),
      "soluk");
  Komutlar({{.tus = Qt::Key_F5, .dugme = "Sayfayı &Aç", .simge = "calistir", .islev = [this] { AdresAc(); }},
            {.dugme = "&Dizini Aç", .simge = "klasor", .islev = [this] { DizinAc(); }}});
  Yukle(Baglanti{EBildirgeAdresi(Oturumu().DataPath), dosya_});
}

void intefrm::AdresAc() {
  Baglanti baglanti;
  if (!Oku(baglanti)) return;
  const std::string adres(Kirp(baglanti.adres));
  if (adres != EBildirgeAdresi(Oturumu().DataPath) && !Oldu(EBildirgeAdresiYaz(Oturumu().DataPath, adres))) return;
  if (!Baglam().baski.adresAc(adres))
    Bildirimi().Uyari("Bilgisayarda adresi açacak bir internet tarayıcısı bulunamadı");
}

void intefrm::DizinAc() {
  const std::string dizin = dosya_.substr(0, dosya_.rfind('/') + 1);
  if (!Baglam().baski.dosyaAc(dizin)) Bildirimi().Uyari(dizin + ": dizin açılamadı");
}

}  // namespace belvani
