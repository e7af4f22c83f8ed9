#include "screens/declarations/yaylikcikti.h"

#include "core/store/koru.h"
#include "declarations/bildirgeformu.h"
#include "declarations/bildirgetablosu.h"
#include "printing/yazdir.h"
#include "screens/declarations/yzckopy.h"
#include "ui/basim.h"
#include "ui/uzunis.h"
#include "ui/yzcsetup.h"

namespace belvani {
namespace {

using Cikti = AylikBildirge::Cikti;
using CiktiKarari = AylikBildirge::CiktiKarari;

const QString SayfalarHazirlaniyor = QStringLiteral("Sayfalar hazırlanıyor…");

// Runs `is` on the paper's values.
template <class Is>
Durum KagitIle(EkranBaglami& baglam, AylikBildirge& bildirge, Cikti cikti, Is is) {
  const auto karar = bildirge.KagitKosullari(cikti);
  if (!karar) return karar.Kusuru();
  if (*karar == CiktiKarari::Yok) return Tamam();
  return Koru([&] { return is(KagitHazirla(bildirge, baglam.oturum)); });
}

// Before the dialog's decision is carried out: a text print asks for its pre-printed sheet, a drawn one shows the form.
bool BaskidanOnce(EkranBaglami& baglam, const BildirgeKagidi& kagit, YzcKarar karar, const YzcAyarlari& ayar) {
  if (karar != YzcKarar::Yazdir) return false;
  if (ayar.YzcDosMod) return !baglam.bildirim.Soru(MatbuUyarisi);
  auto sayfalar =
      UzunIs(baglam, SayfalarHazirlaniyor, [&](Ilerleme& ilerleme) { return BildirgeSayfalari(kagit, &ilerleme); });
  if (sayfalar) FormGoster(baglam, std::make_unique<yzckopy>(baglam, std::move(*sayfalar), ayar));
  return true;
}

}  // namespace

Durum BildirgeYazdir(EkranBaglami& baglam, AylikBildirge& bildirge) {
  return KagitIle(baglam, bildirge, Cikti::Kagit, [&](const BildirgeKagidi& kagit) {
    const auto belge =
        UzunIs(baglam, SayfalarHazirlaniyor, [&](Ilerleme& ilerleme) { return BildirgeBelgesi(kagit, &ilerleme); });
    if (!belge) return Tamam();
    BelgeBas(baglam, **belge,
             [&](YzcKarar karar, const YzcAyarlari& ayar) { return BaskidanOnce(baglam, kagit, karar, ayar); });
    return Tamam();
  });
}

Durum BildirgeExceleGonder(EkranBaglami& baglam, AylikBildirge& bildirge) {
  return KagitIle(baglam, bildirge, Cikti::Tablo, [&](const BildirgeKagidi& kagit) -> Durum {
    const auto yapilan =
        UzunIs(baglam, QStringLiteral("Tablo hazırlanıyor…"), [&](Ilerleme& ilerleme) -> Sonuc<std::string> {
          auto sablon = TabloSablonu(baglam.oturum);
          if (!sablon) return sablon.Kusuru();
          return BildirgeTablosuYap(std::move(*sablon), kagit, &ilerleme);
        });
    if (!yapilan) return Tamam();
    const auto& tablo = *yapilan;
    if (!tablo) return tablo.Kusuru();
    TabloyuAc(baglam, "aylik", *tablo);
    return Tamam();
  });
}

}  // namespace belvani
