#include "screens/payroll/agifrm.h"

namespace belvani {
namespace {

std::vector<AlanGrubu> Gruplar() {
  const AlanEki yuzde{.enCok = 100};
  return {{"Asgari Geçim İndirimi",
           {{Uye("AgiKendisi", &AgiTablosu::AgiKendisi), "A.G.İ İndirim Oranı (Kendisi)", yuzde},
            {Uye("AgiEsi", &AgiTablosu::AgiEsi), "A.G.İ İndirim Oranı (Eşi)", yuzde},
            {Uye("AgiCocuk12", &AgiTablosu::AgiCocuk12), "A.G.İ İndirim Oranı (1 ve 2. Çocuk)", yuzde},
            {Uye("AgiCocuk3", &AgiTablosu::AgiCocuk3), "A.G.İ İndirim Oranı (3. Çocuk)", yuzde},
            {Uye("AgiCocuk4", &AgiTablosu::AgiCocuk4), "A.G.İ İndirim Oranı (4 ve diğer Çocuklar)", yuzde},
            {Uye("AgiTaban", &AgiTablosu::AgiTaban), "Asgari Geçim İndirim Tabanı"}}}};
}

}  // namespace

agifrm::agifrm(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "agifrm", QStringLiteral("A.G.İ. Parametresi")) {
  AlanlariDiz({Gruplar()});
  IndirDugmesi(ParametreDosyasi::Agi, [this] { Goster(); });
  Komut(
      FormKomutu::Kaydet, [this] { Kaydet(); }, QStringLiteral("Kaydet"));
  Goster();
}

void agifrm::Goster() {
  ParametreEkrani::Goster(Parametreler().yasal.agi);
}

void agifrm::Kaydet() {
  AgiTablosu agi = Parametreler().yasal.agi;
  if (DegisenleriOku(agi) && YasalYazildi(AgiTablosuKaydet(Oturumu().DataPath, agi))) Goster();
}

}  // namespace belvani
