#include "personnel/ucretduzenle.h"

#include "core/store/koru.h"
#include "personnel/kart.h"

namespace belvani {

Sonuc<std::vector<Sicil>> UcretliKisiler(Oturum& o, std::uint8_t ucretags) {
  return Koru(
      [&] {
        return KayitlariOku<Sicil>(o.depo.db.IcMotor(), "where ucretags = ? and cikiskodu = 0 order by kod",
                                   {std::int64_t(ucretags)});
      },
      "Personel listesi okunamadı: ");
}

Yazim<Sicil> UcretDuzenleme::Yaz(const Okunan<Sicil>& kart) {
  auto yazilan = KayitYaz(o_, kart, "Personel Kartı Kaydedilemiyor");
  const Sicil ilk = kart.ilk.value_or(kart.simdi);  // of one who was deleted meanwhile nothing is taken back
  const bool degisti = ilk.ucret != kart.simdi.ucret || ilk.ucrettipi != kart.simdi.ucrettipi;
  if (yazilan && degisti)
    yazilanlar_.push_back({ilk.kod, ilk.ucret, kart.simdi.ucret, ilk.ucrettipi, kart.simdi.ucrettipi});
  return yazilan;
}

Sonuc<Sicil> UcretDuzenleme::GeriAl() {
  if (yazilanlar_.empty()) return KuralKusuru("Geri alınacak değişiklik yok");
  const Yazilan son = std::move(yazilanlar_.back());
  yazilanlar_.pop_back();
  auto kart = KartBul(o_, son.kod);
  if (!kart) return KuralKusuru("Personel Bulunamadı: " + son.kod);
  // As this user has left it: what another one has changed in these fields since stands against it.
  Okunan<Sicil> geri{.ilk = *kart, .simdi = *kart};
  geri.ilk->ucret = son.ucret;
  geri.ilk->ucrettipi = son.tip;
  geri.simdi.ucret = son.ilkUcret;
  geri.simdi.ucrettipi = son.ilkTip;
  auto yazilan = KayitYaz(o_, geri, "Personel Kartı Kaydedilemiyor");
  if (yazilan) return *std::move(yazilan);
  if (!yazilan.Kusuru().cakisma) yazilanlar_.push_back(son);
  return Kusur(yazilan.Kusuru());
}

}  // namespace belvani
