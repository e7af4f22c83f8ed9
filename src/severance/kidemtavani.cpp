#include "severance/kidemtavani.h"

#include "core/sayi.h"
#include "payroll/parametre/mevzuatdenetimi.h"

namespace belvani {
namespace {

constexpr int KurusOndaligi = 2;

std::string YariyilMetni(Tarih gun) {
  return std::to_string(gun.Yil()) + (gun.Ay() <= 6 ? " yılının ilk yarısı" : " yılının ikinci yarısı");
}

}  // namespace

Tutar KidemTavaniGorusu::Secilen(KidemTavaniSecimi secim) const {
  switch (secim) {
    case KidemTavaniSecimi::Kurulu:
      return kurulu;
    case KidemTavaniSecimi::Yariyil:
      return yariyilin.value_or(kurulu);
  }
  return kurulu;
}

std::string KidemTavaniGorusu::Soz(KidemTavaniSecimi secim) const {
  const std::string kuruluMetni = TutarMetni(kurulu, KurusOndaligi);
  if (!alindigiAy.empty())
    return "Kurulu yasal oranlar " + alindigiAy + " ayınındır: kıdem tavanı " + kuruluMetni + ". " + yariyil +
           " için programda tavan yok.";
  if (!yariyilin) return {};
  const std::string yariyilinMetni = TutarMetni(*yariyilin, KurusOndaligi);
  switch (secim) {
    case KidemTavaniSecimi::Kurulu:
      return "Kıdem tavanı kurulu yasal oranlardan alındı: " + kuruluMetni + ". " + yariyil +
             " için yayımlanan: " + yariyilinMetni + ".";
    case KidemTavaniSecimi::Yariyil:
      return "Kıdem tavanı " + yariyil + " için yayımlanandır: " + yariyilinMetni +
             ". Öteki oranlar kurulu olanlardır; onlarda tavan " + kuruluMetni + ".";
  }
  return {};
}

KidemTavaniGorusu KidemTavaninaBak(const YasalParametreler& kurulu, Tarih gun) {
  const Tutar tavan = kurulu.oranlar.KidemTavan;
  KidemTavaniGorusu gorus{.kurulu = tavan, .yariyilin = {}, .yariyil = YariyilMetni(gun), .alindigiAy = {}};
  if (const auto yayimlanan = YayimlananRakamlar(kurulu, {gun.Yil(), gun.Ay()})) {
    if (yayimlanan->oranlar.KidemTavan != tavan) gorus.yariyilin = yayimlanan->oranlar.KidemTavan;
  } else if (const auto ay = IlkUyanAy(kurulu, [&](const auto& p) { return p.oranlar.KidemTavan == tavan; })) {
    gorus.alindigiAy = ay->Metin();
  }
  return gorus;
}

}  // namespace belvani
