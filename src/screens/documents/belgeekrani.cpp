#include "screens/documents/belgeekrani.h"

#include <QFont>
#include <QHideEvent>

#include "core/store/koru.h"
#include "documents/belgeyap.h"
#include "documents/defter.h"
#include "screens/documents/brdicmal.h"
#include "ui/basim.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {

BelgeEkrani::BelgeEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim)
    : Form(baglam, Yazi(tanim.ekran), Yazi(tanim.pencereBasligi)),
      parametreler_(parametreler),
      tanim_(tanim),
      secim_(tanim.secim()) {
  AlanlariDiz(tanim.alanlar);
  RehberleriBagla();
  KomutlariKur();
  if (auto* secim = secim_->Bul<DefterSecim>()) {
    secim->yil = Oturumu().firma.firmayil;
    secim->ay = Oturumu().firma.firmaay;
  }
  if (tanim.ayar.oku != nullptr) tanim.ayar.oku(Oturumu().FirmaDizini, *secim_);
  AlanlariYukle();
}

void BelgeEkrani::AlanlariYukle() {
  for (const auto& d : Denetimler()) d->Koy(d->Satir().oku(secim_->Kayit(d->Satir().kayitTuru)));
}

void BelgeEkrani::RehberleriBagla() {
  for (const auto& denetim : Denetimler()) {
    if (!denetim->Satir().ek.rehber) continue;
    xtext* kod = denetim->YaziKutusu();
    connect(kod, &xtext::Lookup, this, [this, kod] {
      if (const auto secilen = PersonelSec(Baglam(), Utf8(kod->text()))) kod->DegerKoy(*secilen);
      kod->setFocus();
    });
  }
}

void BelgeEkrani::KomutlariKur() {
  const auto listele = [this] {
    if (const std::shared_ptr<Belge> belge = VerilecekBelge()) BelgeEkranaListele(Baglam(), belge);
  };
  const auto yazdir = [this] {
    if (const auto belge = VerilecekBelge()) BelgeBas(Baglam(), *belge);
  };
  const auto gonder = [this] {
    if (const auto belge = VerilecekBelge()) BelgeExceleGonder(Baglam(), *belge);
  };
  Komutlar({{.tus = Qt::Key_F6, .dugme = " Ekrana Listele", .simge = "liste", .islev = listele},
            {.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır", .simge = "yazici", .islev = yazdir},
            {.tus = Qt::Key_F9, .dugme = " Excel'e Gönder", .simge = "tablo", .islev = gonder}});
  if (auto* yazi = secim_->Bul<BelgeYazisi>())
    Komutlar({{.dugme = "Yazıcı Fontu ", .simge = "duzelt", .islev = [this, yazi] { FontSec(*yazi); }}});
}

void BelgeEkrani::FontSec(BelgeYazisi& yazi) {
  const auto font = Baglam().dialoglar.FontSec(QFont(Yazi(yazi.yaziTipi), yazi.punto));
  if (!font) return;
  yazi.yaziTipi = Utf8(font->family());
  if (font->pointSize() > 0) yazi.punto = font->pointSize();
}

BelgeSecimi* BelgeEkrani::Secilen() {
  for (const auto& d : Denetimler())
    if (!AlanlarSaglam(d->Satir().kayitTuru)) return nullptr;
  for (const auto& d : Denetimler()) d->Satir().yaz(secim_->Kayit(d->Satir().kayitTuru), d->Oku());
  return secim_.get();
}

BelgeKaynagi BelgeEkrani::Kaynak(Ilerleme* ilerleme) const {
  return {.motor = Oturumu().depo.db.IcMotor(),
          .yasal = parametreler_.yasal,
          .firma = Oturumu().firma,
          .sirket = Oturumu().FirmaDizini,
          .ilerleme = ilerleme};
}

std::unique_ptr<Belge> BelgeEkrani::BelgeYap() {
  BelgeSecimi* secim = Secilen();
  if (secim == nullptr) return nullptr;
  // First: where the files have changed, the paper is made with the law that they hold now.
  const auto bak = [this](MevzuatAyi ay) { return parametreler_.MevzuataBak(Oturumu(), ay); };
  const auto soz = Koru([&] { return BelgeMevzuatSozu(tanim_, *secim, Oturumu().depo.db.IcMotor(), bak); });
  if (!Oldu(soz)) return nullptr;
  auto belge = UzunIs(Baglam(), QStringLiteral("Liste hazırlanıyor…"), [&](Ilerleme& ilerleme) {
    return Koru([&] { return belvani::BelgeYap(tanim_, *secim, Kaynak(&ilerleme)); });
  });
  if (!belge || !Oldu(*belge)) return nullptr;
  MevzuatSozu(*soz);
  return std::move(**belge);
}

std::unique_ptr<Belge> BelgeEkrani::VerilecekBelge() {
  auto belge = BelgeYap();
  if (belge && belge->Kayitsiz() && !tanim_.kayitYok.empty()) Baglam().bildirim.Bilgi(tanim_.kayitYok);
  return belge;
}

void BelgeEkrani::MevzuatSozu(const std::string& soz) {
  if (soz.empty() || std::exchange(soylenenSoz_, soz) == soz) return;
  Baglam().bildirim.Uyari(soz);
}

// A field that cannot be read does not keep the others from being saved.
void BelgeEkrani::hideEvent(QHideEvent* olay) {
  Form::hideEvent(olay);
  if (olay->spontaneous() || tanim_.ayar.yaz == nullptr) return;
  for (const auto& d : Denetimler())
    if (!d->Kusuru()) d->Satir().yaz(secim_->Kayit(d->Satir().kayitTuru), d->Oku());
  Oldu(tanim_.ayar.yaz(Oturumu().FirmaDizini, *secim_));
}

std::unique_ptr<Form> BelgeEkraniYap(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim) {
  if (tanim.ekran == "brdicmal") return std::make_unique<brdicmal>(baglam, parametreler, tanim);
  return std::make_unique<BelgeEkrani>(baglam, parametreler, tanim);
}

}  // namespace belvani
