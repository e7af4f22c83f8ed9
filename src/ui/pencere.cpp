#include "ui/pencere.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>

#include "ui/listedoldur.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct TurAdi {
  AramaTuru tur;
  const char* ad;
};
constexpr std::array<TurAdi, 5> Turler{{{AramaTuru::KodBastan, "Kod (baştan)"},
                                        {AramaTuru::KodIcinde, "Kod (içinde)"},
                                        {AramaTuru::AdBastan, "Ad Soyad (baştan)"},
                                        {AramaTuru::AdIcinde, "Ad Soyad (içinde)"},
                                        {AramaTuru::Hepsi, "Kod, Ad, Soyad"}}};

}  // namespace

pencere::pencere(EkranBaglami& baglam)
    : Form(baglam, "pencere", QStringLiteral("Personel Rehberi")),
      kisiler_(KisiListesi::Oku(baglam.oturum)),
      tur_(new QComboBox(this)),
      aranan_(new xtext(this)),
      liste_(new dclist(baglam.bildirim, this)) {
  Oldu(kisiler_);
  for (const TurAdi& t : Turler) tur_->addItem(t.ad);
  tur_->setCurrentIndex(std::clamp(Oturumu().ListeSirasi - 1, 0, int(Turler.size()) - 1));
  auto* ust = new QHBoxLayout;
  ust->addWidget(tur_);
  ust->addWidget(aranan_, 1);
  Govde()->addLayout(ust);
  Govde()->addWidget(liste_, 1);
  liste_->CreateNewCaption('m', "kod", "Kod", 90);
  liste_->CreateNewCaption('m', "adi", "Adı", 170);
  liste_->CreateNewCaption('m', "soyadi", "Soyadı", 170);
  liste_->CreateNewCaption('m', "ciktar", "Çıkış Tarihi", 100);
  liste_->GenisKolon("soyadi");
  liste_->TercihBoyu(580, 360);
  liste_->setFocusPolicy(Qt::NoFocus);  // its rows are walked from the search box
  liste_->Secildi = [this](int satir) { Sec(satir); };
  Izle(tur_);
  Izle(aranan_);
  aranan_->setPlaceholderText(QStringLiteral("Aranan"));
  ListedeGezin(*liste_);
  Komutlar({{.tus = Qt::Key_Return, .ipucu = "Seç", .islev = [this] { Sec(liste_->CurSat()); }}});
  connect(aranan_, &QLineEdit::textChanged, this, &pencere::ListeyiDoldur);
  connect(tur_, &QComboBox::currentIndexChanged, this, [this](int sira) {
    Oturumu().ListeSirasi = sira + 1;
    ListeyiDoldur();
  });
  ListeyiDoldur();
  liste_->FindByName("kod", Yazi(Oturumu().SeciliKod));
  Oturumu().SeciliKod.clear();
  IlkOdak(aranan_);
}

void pencere::ListeyiDoldur() {
  if (!kisiler_) return;
  const AramaTuru tur = Turler[std::size_t(tur_->currentIndex())].tur;
  ListeDoldur(*liste_, kisiler_->Ara(tur, Utf8(aranan_->text())), [this](std::size_t sira) {
    const KisiSatiri& kisi = kisiler_->Kisiler()[sira];
    return std::array{kisi.kod, kisi.adi, kisi.soyadi, kisi.ciktar.Metin()};
  });
}

void pencere::Sec(int satir) {
  if (satir < 0) return;
  Oturumu().SeciliKod = Utf8(liste_->Text(satir, 0));
  Kapat();
}

std::optional<std::string> PersonelSec(EkranBaglami& baglam, const std::string& simdikiKod) {
  baglam.oturum.SeciliKod = simdikiKod;
  FormGoster(baglam, std::make_unique<pencere>(baglam), FormModu::Modal);
  const std::string secilen = std::exchange(baglam.oturum.SeciliKod, {});
  return secilen.empty() ? std::nullopt : std::optional(secilen);
}

}  // namespace belvani
