#include "screens/payroll/agifrm.h"

#include "payroll/parametre/dosyalar.h"
#include "payroll/parametre/indir.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

std::vector<AlanGrubu> Gruplar() {
  AlanGrubu grup{"Asgari Geçim İndirimi", {}};
  HerUye<AgiTablosu>([&](const auto& uye) { grup.alanlar.push_back(ParametreAlani(uye)); });
  return {std::move(grup)};
}

}  // namespace

agifrm::agifrm(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "agifrm", QStringLiteral("A.G.İ. Parametresi")) {
  AlanlariDiz({Gruplar()});
  IndirDugmesi(ParametreDosyasi::Agi, [this] { Goster(); });
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
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
