#include "screens/personnel/perbul.h"

#include <QKeyEvent>

#include "core/turkce.h"
#include "personnel/firmalardaara.h"
#include "ui/listedoldur.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct Aranan {
  std::string adsoy;
};
constexpr auto ArananAd = Uye("adsoy", &Aranan::adsoy, 41);

}  // namespace

perbul::perbul(EkranBaglami& baglam)
    : Form(baglam, "perbul", QStringLiteral("Personel Bul")), liste_(new dclist(baglam.bildirim, this)) {
  AlanlariDiz({{{"Aranan", {{ArananAd, "Adı Soyadı", {.harf = 40}}}}}});
  liste_->CreateNewCaption('m', "adsoy", "Adı Soyadı", 240);
  liste_->CreateNewCaption('m', "firma", "Firma", 300);
  liste_->CreateNewCaption('m', "donem", "Dönem", 90);
  liste_->GenisKolon("firma");
  liste_->TercihBoyu(680, 320);
  liste_->setEnabled(false);
  setTabOrder(&YaziKutusu(ArananAd), liste_);
  Govde()->addWidget(liste_, 1);
  sonuc_ = YaziEkle({}, "soluk");
  Komutlar({{.dugme = "Bul", .simge = "ara", .islev = [this] { Ara(); }},
            {.tus = Qt::Key_Return, .ipucu = "Bul", .islev = [this] { Ara(); }}});
  AlanDegisti = [this](AlanDenetimi& alan) { liste_->setEnabled(!Kirp(MetinDegeri(alan.Oku())).empty()); };
  liste_->Tus = [this](const QKeyEvent& olay) {
    const bool enter = olay.key() == Qt::Key_Return || olay.key() == Qt::Key_Enter;
    if (enter) Ara();
    return enter;
  };
}

void perbul::Ara() {
  Aranan aranan;
  if (!liste_->isEnabled() || !Oku(aranan)) return;
  bool yarida = false;
  const auto bulunan = UzunIs(Baglam(), QStringLiteral("Şirketlerde aranıyor…"), [&](Ilerleme& ilerleme) {
    auto kisiler = FirmalardaAra(Oturumu().DataPath, aranan.adsoy, ilerleme);
    yarida = ilerleme.Vazgecildi();
    return kisiler;
  });
  if (!bulunan) return;
  const std::vector<BulunanKisi>& bulunanlar = *bulunan;
  ListeDoldur(*liste_, bulunanlar, [](const BulunanKisi& k) { return std::array{k.adsoy, k.firma, k.donem}; });
  const QString sayi = bulunanlar.empty() ? QStringLiteral("Kayıt bulunamadı.")
                                          : QString::number(bulunanlar.size()) + QStringLiteral(" kayıt bulundu.");
  sonuc_->setText(yarida ? sayi + QStringLiteral(" Arama yarıda kesildi.") : sayi);
  if (!bulunanlar.empty()) liste_->setFocus();
}

}  // namespace belvani
