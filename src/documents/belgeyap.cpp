#include "documents/belgeyap.h"

#include "documents/defter.h"
#include "documents/secimalanlari.h"

namespace belvani {
namespace {

bool Secilir(const BelgeTanimi& tanim, const AlanTutamagi& aranan) {
  for (const auto& sutun : tanim.alanlar)
    for (const AlanGrubu& grup : sutun)
      for (const Alan& alan : grup.alanlar)
        if (alan.Tutamak() == aranan) return true;
  return false;
}

bool AgiOdenmis(Motor& motor, const BelgeZamani& zaman) {
  const auto komut = motor.Hazirla("select 1 from brd where yil = ? and ay = ? and ogv <> 0 limit 1");
  komut->TamBagla(1, zaman.yil);
  komut->TamBagla(2, zaman.ay);
  return komut->Adim();
}

// The heading of what was found, without the list of all figures: few of them stand on a paper.
std::string BaskaAySozu(const MevzuatGorusu& gorus, const MevzuatRakami& rakam) {
  std::string soz = gorus.baslik;
  soz.erase(soz.find_last_not_of(" :") + 1);
  return soz + ".\nBu belgede ondan gelen: " + std::string(rakam.ad);
}

}  // namespace

std::string BelgeDonemi(const BelgeTanimi& tanim, BelgeSecimi& secim) {
  const auto zaman = secim.Zaman();
  if (!zaman) return {};
  const bool yilin = Secilir(tanim, SecimYili) && !Secilir(tanim, SecimAyi);
  return yilin ? std::to_string(zaman->yil) : zaman->metin;
}

std::unique_ptr<Belge> BelgeYap(const BelgeTanimi& tanim, BelgeSecimi& secim, const BelgeKaynagi& kaynak) {
  auto belge = secim.BelgeYap(kaynak);
  if (std::string donem = BelgeDonemi(tanim, secim); !donem.empty()) belge->Donem(std::move(donem));
  return belge;
}

std::string BelgeMevzuatSozu(const BelgeTanimi& tanim, BelgeSecimi& secim, Motor& motor, const MevzuataBakan& bak) {
  const auto zaman = secim.Zaman();
  if (!zaman || tanim.mevzuat.ad.empty()) return {};
  if (tanim.mevzuat.agiOdenmisse && !AgiOdenmis(motor, *zaman)) return {};
  const MevzuatGorusu gorus = bak({zaman->yil, zaman->ay});
  switch (gorus.hal) {
    case MevzuatHali::Uygun:
    case MevzuatHali::Kullanici:  // the user's own for this month: another question, asked where it is calculated
      return {};
    case MevzuatHali::BaskaAy:
      return BaskaAySozu(gorus, tanim.mevzuat);
    case MevzuatHali::Kullanilamaz:
      return gorus.Metin();
  }
  return {};
}

}  // namespace belvani
