#include "screens/payroll/fazmes.h"

#include "payroll/parametre/dosyalar.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {
namespace {

constexpr std::string_view MesaiAdlari[] = {"Fazla Mesai", "Tatil Mesai", "Tatil Fazla Mesai"};

}  // namespace

fazmes::fazmes(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "fazmes", QStringLiteral("Fazla Mesai Ayarlamaları"),
                  {AdKolonu<FazlaMesai>("Mesai", 170, MesaiAdlari), ParametreKolonu<&FazlaMesai::oran>(130),
                   ParametreKolonu<&FazlaMesai::limit>(110)}) {
  Ac(
      3, [this] { return Satirlar(Parametreler().firma.Parametreler().mesailer); },
      [this](const auto& satirlar) {
        return FirmaYazildi(FazlaMesaiKaydet(Oturumu().FirmaDizini, Dizide<FazlaMesailer>(satirlar)));
      });
}

}  // namespace belvani
