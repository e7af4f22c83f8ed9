#include "screens/severance/ihbsure.h"

#include "payroll/parametre/dosyalar.h"
#include "screens/payroll/parametrealani.h"

namespace belvani {

ihbsure::ihbsure(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeEkrani(baglam, parametreler, "ihbsure", QStringLiteral("İhbar Süreleri"),
                  {ParametreKolonu<&IhbarSuresi::ay>(150), ParametreKolonu<&IhbarSuresi::gun>(150)}),
      sureler_(IhbarSureOku(baglam.oturum.FirmaDizini).deger) {
  Ac(
      int(IhbarSatirSayisi), [this] { return Satirlar(sureler_); },
      [this](const auto& satirlar) {
        const auto sureler = Dizide<IhbarSureleri>(satirlar);
        if (!FirmaYazildi(IhbarSureKaydet(Oturumu().FirmaDizini, sureler))) return false;
        sureler_ = sureler;
        Kapat();
        return true;
      });
}

}  // namespace belvani
