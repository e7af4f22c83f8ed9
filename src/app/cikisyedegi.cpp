#include "app/cikisyedegi.h"

#include "core/session/sirketyedegi.h"
#include "ui/uzunis.h"

namespace belvani {

void CikisYedegiAl(EkranBaglami& baglam) {
  Oturum& o = baglam.oturum;
  if (!o.depo.db.AcikMi() || o.SaltOkunur) return;
  SirketKapat(o);  // all that was saved is in the files now
  const auto alinan = UzunIs(baglam, QStringLiteral("Günün yedeği alınıyor…"),
                             [&](Ilerleme& ilerleme) { return GunlukYedekAl(o.DataPath, o.FirmaKod, &ilerleme); });
  if (!alinan) return;
  if (!*alinan) return baglam.bildirim.Uyari("Günün yedeği alınamadı.\n" + alinan->KusurMetni());
  if (!**alinan) return;
  for (const Kusur& uyari : (**alinan)->uyarilar) baglam.bildirim.KusuruGoster(uyari);
}

}  // namespace belvani
