#include "screens/payroll/fazmes.h"

#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

constexpr std::string_view MesaiAdlari[] = {"Fazla Mesai", "Tatil Mesai", "Tatil Fazla Mesai"};

}  // namespace

fazmes::fazmes(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "fazmes", QStringLiteral("Fazla Mesai Ayarlamaları"),
                  {AdKolonu<FazlaMesai>("Mesai", 170, MesaiAdlari), ParametreKolonu<&FazlaMesai::oran>(130),
                   ParametreKolonu<&FazlaMesai::limit>(110)}) {
  Ac(3);
}

std::vector<FazlaMesai> fazmes::Satirlar() const {
  const FazlaMesailer& mesailer = Parametreler().firma.Parametreler().mesailer;
  return {mesailer.begin(), mesailer.end()};
}

bool fazmes::Yaz(const std::vector<FazlaMesai>& satirlar) {
  FazlaMesailer mesailer;
  std::ranges::copy(satirlar, mesailer.begin());
  return FirmaYazildi(FazlaMesaiKaydet(Oturumu().FirmaDizini, mesailer));
}

}  // namespace belvani
