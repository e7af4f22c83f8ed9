#include "screens/accounting/Muhpen.h"

#include <QCheckBox>
#include <QComboBox>

#include "accounting/kardesdepo.h"
#include "core/store/koru.h"
#include "ui/listedoldur.h"
#include "ui/xtext.h"

namespace belvani {

Muhpen::Muhpen(EkranBaglami& baglam, HesapPlani plan)
    : Form(baglam, "Muhpen", QStringLiteral("Hesap Penceresi")),
      plan_(std::move(plan)),
      alan_(new QComboBox(this)),
      aranan_(new xtext(this)),
      bastan_(new QCheckBox(QStringLiteral("Baştan"), this)),
      liste_(new dclist(baglam.bildirim, this)) {
  alan_->setObjectName("ComboBox1");
  aranan_->setObjectName("textbox1");
  bastan_->setObjectName("CheckBox1");
  liste_->setObjectName("dclist1");
  alan_->addItems({QStringLiteral("Hesap Kodu"), QStringLiteral("Hesap Adı"), QStringLiteral("İkinci Adı")});
  bastan_->setChecked(true);
  auto* ust = new QHBoxLayout;
  ust->addWidget(alan_);
  ust->addWidget(aranan_, 1);
  ust->addWidget(bastan_);
  Govde()->addLayout(ust);
  Govde()->addWidget(liste_, 1);
  liste_->CreateNewCaption('m', "kod", "Hesap Kodu", 130);
  liste_->CreateNewCaption('m', "isim", "Hesap Adı", 380);
  liste_->GenisKolon("isim");
  liste_->TercihBoyu(560, 360);
  liste_->setFocusPolicy(Qt::NoFocus);  // its rows are walked from the search box
  liste_->Secildi = [this](int satir) { Sec(satir); };
  for (QWidget* parca : {static_cast<QWidget*>(alan_), static_cast<QWidget*>(aranan_), static_cast<QWidget*>(bastan_)})
    Izle(parca);
  aranan_->setPlaceholderText(QStringLiteral("Aranan"));
  ListedeGezin(*liste_);
  Komutlar({{.tus = Qt::Key_Return, .ipucu = "Seç", .islev = [this] { Sec(liste_->CurSat()); }}});
  connect(aranan_, &QLineEdit::textChanged, this, &Muhpen::ListeyiDoldur);
  connect(alan_, &QComboBox::currentIndexChanged, this, &Muhpen::ListeyiDoldur);
  connect(bastan_, &QCheckBox::toggled, this, &Muhpen::ListeyiDoldur);
  ListeyiDoldur();
  liste_->FindByName("kod", Yazi(Oturumu().SeciliKod));
  Oturumu().SeciliKod.clear();
  IlkOdak(aranan_);
}

void Muhpen::ListeyiDoldur() {
  const auto alan = HesapAramaAlani(alan_->currentIndex());
  const auto bulunan = plan_.Ara(alan, Utf8(aranan_->text()), !bastan_->isChecked());
  ListeDoldur(*liste_, bulunan, [alan](const Hesplan* hesap) {
    return std::array{hesap->kod, alan == HesapAramaAlani::Yisim ? hesap->yisim : hesap->isim};
  });
}

void Muhpen::Sec(int satir) {
  if (satir < 0) return;
  Oturumu().SeciliKod = Utf8(liste_->Text(satir, 0));
  Kapat();
}

std::optional<std::string> HesapSec(EkranBaglami& baglam, const std::string& dizin, const std::string& simdiki) {
  const auto muhasebe = KardesAc(KardesTuru::Muhasebe, dizin, KardesErisimi::YalnizBakis);
  if (!muhasebe) {
    baglam.bildirim.KusuruGoster(muhasebe.Kusuru());
    return std::nullopt;
  }
  auto plan = Koru([&] { return HesapPlani::Oku(**muhasebe); }, "Sql Yaratılamıyor\n");
  if (!plan) {
    baglam.bildirim.KusuruGoster(plan.Kusuru());
    return std::nullopt;
  }
  baglam.oturum.SeciliKod = simdiki;
  FormGoster(baglam, std::make_unique<Muhpen>(baglam, std::move(*plan)), FormModu::Modal);
  const std::string secilen = std::exchange(baglam.oturum.SeciliKod, {});
  return secilen.empty() ? std::nullopt : std::optional(secilen);
}

}  // namespace belvani
