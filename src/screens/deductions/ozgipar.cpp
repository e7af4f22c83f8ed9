#include "screens/deductions/ozgipar.h"

#include "deductions/ogikosullari.h"
#include "screens/payroll/parametrealani.h"
#include "ui/metin.h"

namespace belvani {
namespace {

// The month by its name; its number is what is stored.
std::vector<AlanGrubu> ParametreGruplari() {
  AlanGrubu grup{"Özel Gider İndirimi", {}};
  HerUye<OzelGiderParametreleri>([&](const auto& uye) { grup.alanlar.push_back(ParametreAlani(uye)); });
  for (Alan& alan : grup.alanlar)
    if (alan.Tutamak() == AlanTutamagi(Uye("mahay", &OzelGiderParametreleri::mahay)))
      alan.ek = {.liste = AyAdlari, .listeTabani = 1};
  return {std::move(grup)};
}

}  // namespace

ozgipar::ozgipar(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "ozgipar", QStringLiteral("Özel Gider İndirimi Ayarları")) {
  AlanlariDiz({ParametreGruplari()});
  YaziEkle(
      QStringLiteral("İade, başlangıç ayından başlayarak altı ayda ödenir. Damga vergisi binde, indirim yüzde olarak "
                     "yazılır."),
      "soluk")
      ->setWordWrap(true);
  const auto yukleme = OgiParametreleriYukle(Oturumu());
  kayitli_ = yukleme.deger;
  for (const std::string& uyari : yukleme.uyarilar) YaziEkle(Yazi(uyari), "hata")->setWordWrap(true);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  Goster(kayitli_);
}

void ozgipar::Kaydet() {
  OzelGiderParametreleri yeni = kayitli_;
  if (!DegisenleriOku(yeni) || !Yazildi(OzelGiderKaydet(Oturumu().FirmaDizini, yeni))) return;
  kayitli_ = yeni;
  Goster(kayitli_);
}

}  // namespace belvani
