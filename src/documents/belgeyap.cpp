#include "documents/belgeyap.h"

#include "documents/defter.h"
#include "documents/secimalanlari.h"

namespace belvani {
namespace {

bool AyiSecilir(const BelgeTanimi& tanim) {
  for (const auto& sutun : tanim.alanlar)
    for (const AlanGrubu& grup : sutun)
      for (const Alan& alan : grup.alanlar)
        if (alan.tanim.ad == SecimAyi.ad) return true;
  return false;
}

// "2009-07"; "2009" of a paper that is of a year.
std::string DonemMetni(const BelgeTanimi& tanim, const DefterSecim& secim) {
  const std::string yil = std::to_string(secim.yil);
  if (!AyiSecilir(tanim)) return yil;
  return yil + (secim.ay < 10 ? "-0" : "-") + std::to_string(secim.ay);
}

bool AgiOdenmis(Motor& motor, const DefterSecim& secim) {
  const auto komut = motor.Hazirla("select 1 from brd where yil = ? and ay = ? and ogv <> 0 limit 1");
  komut->TamBagla(1, secim.yil);
  komut->TamBagla(2, secim.ay);
  return komut->Adim();
}

// The heading of what was found, without the list of all figures: few of them stand on a paper.
std::string BaskaAySozu(const MevzuatGorusu& gorus, const MevzuatRakami& rakam) {
  std::string soz = gorus.baslik;
  soz.erase(soz.find_last_not_of(" :") + 1);
  return soz + ".\nBu belgede ondan gelen: " + std::string(rakam.ad);
}

}  // namespace

std::unique_ptr<Belge> BelgeYap(const BelgeTanimi& tanim, BelgeSecimi& secim, const BelgeKaynagi& kaynak) {
  auto belge = secim.BelgeYap(kaynak);
  if (const auto* donem = secim.Bul<DefterSecim>()) belge->Donem(DonemMetni(tanim, *donem));
  return belge;
}

std::string BelgeMevzuatSozu(const BelgeTanimi& tanim, BelgeSecimi& secim, Motor& motor, const MevzuataBakan& bak) {
  const auto* donem = secim.Bul<DefterSecim>();
  if (donem == nullptr || tanim.mevzuat.ad.empty()) return {};
  if (tanim.mevzuat.agiOdenmisse && !AgiOdenmis(motor, *donem)) return {};
  const MevzuatGorusu gorus = bak({donem->yil, donem->ay});
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
