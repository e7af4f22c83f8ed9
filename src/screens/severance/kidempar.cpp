#include "screens/severance/kidempar.h"

#include "payroll/parametre/dosyalar.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

using K = KidemParametreleri;

// A choice among the allowance lines, by the company's own names.
template <auto uye>
Alan PuantajYeri() {
  constexpr auto tanim = UyeTanimi<uye>();
  return {Uye(tanim.ad, tanim.uye), tanim.etiket, {.liste = SonraDolar, .harf = 24}};
}

AlanGrubu Alanlar() {
  constexpr auto yilGunu = UyeTanimi<&K::KidemYilGun>();
  static const std::string etiket = std::string(yilGunu.etiket) + " (360/365 Gün)";
  return {"Kıdem, İhbar",
          {{Uye(yilGunu.ad, yilGunu.uye), etiket.c_str(), {.harf = 6, .ipucu = "365 dışında her sayı 360 gün sayılır"}},
           PuantajYeri<&K::KidemPuantajYeri>(),
           PuantajYeri<&K::IhbarPuantajYeri>()}};
}

}  // namespace

kidempar::kidempar(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "kidempar", QStringLiteral("Kıdem Parametreleri")),
      kidem_(KidemParOku(baglam.oturum.FirmaDizini).deger) {
  AlanlariDiz({{Alanlar()}});
  std::vector<std::string> adlar;
  for (const Muaf& yardim : parametreler.firma.Parametreler().yardimlar) adlar.push_back(yardim.adi);
  for (const auto& d : Denetimler())
    if (d->YaziKutusu() == nullptr) SecenekleriKoy(*d, adlar);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  Goster(kidem_);
}

void kidempar::Kaydet() {
  if (DegisenleriOku(kidem_) && FirmaYazildi(KidemParKaydet(Oturumu().FirmaDizini, kidem_))) Kapat();
}

}  // namespace belvani
