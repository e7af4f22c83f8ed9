#include "screens/notices/dizipusu.h"

#include "core/store/koru.h"
#include "notices/dizikagidi.h"
#include "ui/basim.h"
#include "ui/uzunis.h"

namespace belvani {

dizipusu::dizipusu(EkranBaglami& baglam)
    : Form(baglam, "dizipusu", QStringLiteral("Dizi Pusulası")), yuvalar_(new DiziYuvalari(this)) {
  Govde()->addWidget(GrupYap(TarihAraligiAlanlari("Başlangıç Tarih", "Bitiş Tarih")));
  Govde()->addWidget(yuvalar_);
  Govde()->addStretch(1);
  for (QWidget* yuva : yuvalar_->Yuvalar()) Izle(yuva);
  yuvalar_->Degisti = [this] { yazildi_ = true; };
  const auto listele = [this] { BelgeEkranaListele(Baglam(), BelgeYap()); };
  const auto yazdir = [this] { BelgeBas(Baglam(), *BelgeYap()); };
  const auto gonder = [this] { BelgeExceleGonder(Baglam(), *BelgeYap()); };
  Komutlar({{.tus = Qt::Key_F5, .dugme = "Listele", .simge = "calistir", .islev = [this] { Listele(); }},
            {.tus = Qt::Key_F6, .dugme = " Ekrana Listele", .simge = "liste", .islev = listele},
            {.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır", .simge = "yazici", .islev = yazdir},
            {.tus = Qt::Key_F9, .dugme = " Excel'e Gönder", .simge = "tablo", .islev = gonder},
            {.tus = Qt::Key_PageUp, .islev = [this] { yuvalar_->Kaydir(-DiziYuvalari::GorunenSatir); }},
            {.tus = Qt::Key_PageDown, .islev = [this] { yuvalar_->Kaydir(DiziYuvalari::GorunenSatir); }}});
  TarihAraligi aralik;
  aralik.AyKoy(Oturumu().firma.firmayil, Oturumu().firma.firmaay);
  Yukle(aralik);
}

bool dizipusu::KendiligindenKaydet() {
  return !yazildi_ || Bildirimi().Soru("Pusulaya yazılanlar saklanmaz.\nEkran Kapatılsın mı ?");
}

// What the dates lack in the words of the paper, before what the fields say.
std::optional<TarihAraligi> dizipusu::Aralik() {
  TarihAraligi aralik;
  for (const auto& d : Denetimler()) d->Satir().yaz(&aralik, d->Oku());
  if (const auto kusur = aralik.Kusuru()) {
    Bildir(*kusur);
    return std::nullopt;
  }
  return aralik;
}

void dizipusu::Listele() {
  const auto aralik = Aralik();
  if (!aralik) return;
  if (yazildi_ && !Bildirimi().Soru("Pusulaya yazılanlar silinecek.\nYeniden Listelensin mi ?")) return;
  const auto pusula = UzunIs(Baglam(), QStringLiteral("Liste hazırlanıyor…"), [&](Ilerleme& ilerleme) {
    return Koru([&] { return DiziPusulasiOku(Oturumu().depo.db.IcMotor(), *aralik, &ilerleme); });
  });
  if (!pusula || !Oldu(*pusula)) return;
  yuvalar_->Koy(**pusula);
  listelenen_ = *aralik;
  yazildi_ = false;
  if (const std::string uyari = DiziSinirUyarisi(**pusula); !uyari.empty()) Bildirimi().Uyari(uyari);
}

std::unique_ptr<Belge> dizipusu::BelgeYap() {
  return DiziPusulasiBelgesi(Oturumu().firma, listelenen_, yuvalar_->Oku());
}

}  // namespace belvani
