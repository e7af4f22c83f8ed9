#include "screens/declarations/eksikgun.h"

#include "core/store/koru.h"
#include "declarations/eksikgun.h"
#include "declarations/sigortabelgeleri.h"
#include "printing/form/formbelgesi.h"
#include "screens/declarations/yzckopy.h"
#include "ui/basim.h"
#include "ui/uzunis.h"
#include "ui/yzcsetup.h"

namespace belvani {
namespace {

constexpr const char* BosSorusu = "Eksik gün raporu boş\nBoş rapor yazılsın mı?";

}  // namespace

eksikgun::eksikgun(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ListeliBelgeEkrani(baglam, parametreler, EksikGunTanimi()) {
  Komutlar({{.tus = Qt::Key_F11, .dugme = " EK-10 Formu", .simge = "duzelt", .islev = [this] { Ek10(); }}});
}

// A drawn print shows the form first; preview, PDF and text are the dialog's own.
void eksikgun::Ek10() {
  BelgeSecimi* secim = Secilen();
  if (secim == nullptr) return;
  const BelgeZamani zaman = secim->Zaman().value();
  const auto kagit = UzunIs(Baglam(), QStringLiteral("Form hazırlanıyor…"), [&](Ilerleme& ilerleme) {
    return Koru([&] { return EksikGunKagidiYap(Kaynak(&ilerleme), zaman.yil, zaman.ay); });
  });
  if (!kagit || !Oldu(*kagit)) return;
  const EksikGunFormu& form = (*kagit)->form;
  if (form.kisiler.empty() && !Bildirimi().Soru(BosSorusu)) return;
  YzcAyarlari ayar;
  ayar.YzcBaslik = EksikGunBasligi;
  FormBelgesi belge(ayar, Ek10Resmi(form), {});
  belge.Donem(zaman.metin);
  BelgeBas(Baglam(), belge, [&](YzcKarar karar, const YzcAyarlari& secilen) {
    if (karar != YzcKarar::Yazdir) return false;
    FormGoster(Baglam(), std::make_unique<yzckopy>(Baglam(), belge.Sayfalar(), secilen));
    return true;
  });
}

}  // namespace belvani
