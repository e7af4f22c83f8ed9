#include "screens/documents/belgeekrani.h"

#include <QFont>
#include <QHideEvent>

#include "core/store/koru.h"
#include "documents/belgeyap.h"
#include "documents/defter.h"
#include "screens/documents/brdicmal.h"
#include "screens/documents/listelibelgeekrani.h"
#include "ui/basim.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

// Those of them that say something, apart from each other.
std::string Birlestir(const std::vector<std::string>& sozler) {
  std::string metin;
  for (const std::string& soz : sozler)
    if (!soz.empty()) metin += (metin.empty() ? "" : "\n\n") + soz;
  return metin;
}

}  // namespace

BelgeEkrani::BelgeEkrani(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim)
    : Form(baglam, Yazi(tanim.ekran), Yazi(tanim.pencereBasligi)),
      parametreler_(parametreler),
      tanim_(tanim),
      secim_(tanim.secim()) {
  GirisiSec();
  AlanlariDiz(tanim.alanlar);
  RehberleriBagla();
  KomutlariKur();
  secim_->AyKoy(Oturumu().firma.firmayil, Oturumu().firma.firmaay);
  secim_->FirmaKoy(Oturumu().firma);
  if (tanim.ayar.oku != nullptr) tanim.ayar.oku(Oturumu().FirmaDizini, *secim_);
  AlanlariYukle();
}

// The product of the menu's entry that was gone through.
void BelgeEkrani::GirisiSec() {
  if (tanim_.girisler.empty()) return;
  const std::string tip = std::exchange(Oturumu().PencereTip, {});
  const auto giris = std::ranges::find(tanim_.girisler, std::string_view(tip), &BelgeGirisi::pencereTip);
  if (giris == tanim_.girisler.end()) return;
  giris->sec(*secim_);
  setWindowTitle(Yazi(giris->pencereBasligi));
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
  if (*tanim_.liste.komut != '\0')
    Komutlar({{.tus = Qt::Key_F5, .dugme = tanim_.liste.komut, .simge = "calistir", .islev = [this] { Listelet(); }}});
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

// A field that cannot be read leaves its choice alone; a text that is no date is none.
void BelgeEkrani::AlanlariOku() {
  for (const auto& d : Denetimler())
    if (!d->Kusuru()) d->Satir().yaz(secim_->Kayit(d->Satir().kayitTuru), d->Oku());
}

// What the paper itself says of its choices comes before what its fields say.
BelgeSecimi* BelgeEkrani::Secilen() {
  AlanlariOku();
  if (const auto kusur = secim_->Kusuru()) {
    Bildir(*kusur);
    return nullptr;
  }
  for (const auto& d : Denetimler())
    if (!AlanlarSaglam(d->Satir().kayitTuru)) return nullptr;
  return secim_.get();
}

bool BelgeEkrani::Secilebilir() {
  AlanlariOku();
  const auto okunur = [](const auto& d) {
    const xtext* yazi = d->YaziKutusu();
    return !d->Kusuru() && (yazi == nullptr || !yazi->HataliTarih());
  };
  return !secim_->Kusuru() && std::ranges::all_of(Denetimler(), okunur);
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
  std::string soz, ayrica;
  auto belge = UzunIs(Baglam(), QStringLiteral("Liste hazırlanıyor…"), [&](Ilerleme& ilerleme) {
    return Koru([&] {
      soz = BelgeMevzuatSozu(tanim_, *secim, Oturumu().depo.db.IcMotor(), bak);
      if (tanim_.soz != nullptr) ayrica = tanim_.soz(Kaynak(&ilerleme), *secim);
      return belvani::BelgeYap(tanim_, *secim, Kaynak(&ilerleme));
    });
  });
  if (!belge || !Oldu(*belge)) return nullptr;
  BelgeSozu(Birlestir({soz, ayrica, (**belge)->Eksikler()}));
  return std::move(**belge);
}

std::unique_ptr<Belge> BelgeEkrani::VerilecekBelge() {
  auto belge = BelgeYap();
  if (belge && belge->Kayitsiz() && !tanim_.kayitYok.empty()) Baglam().bildirim.Bilgi(tanim_.kayitYok);
  return belge;
}

void BelgeEkrani::BelgeSozu(const std::string& soz) {
  if (soz.empty() || std::exchange(soylenenSoz_, soz) == soz) return;
  Baglam().bildirim.Uyari(soz);
}

void BelgeEkrani::hideEvent(QHideEvent* olay) {
  Form::hideEvent(olay);
  if (olay->spontaneous() || tanim_.ayar.yaz == nullptr) return;
  AlanlariOku();
  Oldu(tanim_.ayar.yaz(Oturumu().FirmaDizini, *secim_));
}

std::unique_ptr<Form> BelgeEkraniYap(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim) {
  if (tanim.ekran == "brdicmal") return std::make_unique<brdicmal>(baglam, parametreler, tanim);
  if (*tanim.liste.komut != '\0') return std::make_unique<ListeliBelgeEkrani>(baglam, parametreler, tanim);
  return std::make_unique<BelgeEkrani>(baglam, parametreler, tanim);
}

}  // namespace belvani
