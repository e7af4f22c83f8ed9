#include "screens/core/araci.h"

#include "core/tckimlik.h"
#include "ui/cakisma.h"

namespace belvani {

araci::araci(EkranBaglami& baglam)
    : Form(baglam, "araci", QStringLiteral("Aracı Bilgileri")), araci_(AraciDuzenle(baglam.oturum)) {
  AlanlariDiz({{{"Aracı",
                 {{arac::kod, "Aracı Kodu"},
                  {arac::isim1, "Ad Soyad (Ünvan)"},
                  {arac::isim2, "Ünvan (devam)"},
                  {arac::tcno, "T.C. No"},
                  {arac::vergi, "Vergi No"}}},
                {"Adres",
                 {{arac::adr1, "Adres"},
                  {arac::adr2, "Adres (devam)"},
                  {arac::semt, "Semt"},
                  {arac::ilce, "İlçe"},
                  {arac::il, "İl"},
                  {arac::pk, "Posta Kodu"},
                  {arac::tel, "Telefon"},
                  {arac::epos, "E-posta"}}}}});
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  Yukle(araci_.simdi);
}

void araci::Kaydet() {
  if (!Oku(araci_.simdi)) return;
  const auto kaydedilen =
      SorarakKaydet(Baglam(), *this, araci_, [this](const Okunan<Arac>& a) { return AraciKaydet(Oturumu(), a); });
  if (!kaydedilen) return;
  if (const std::string uyari = TcUyarisi(araci_.simdi.tcno); !uyari.empty()) Bildirimi().Uyari(uyari);
  Kapat();
}

}  // namespace belvani
