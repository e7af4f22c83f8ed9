#include "screens/core/firsil.h"

#include "core/session/sirketlistesi.h"
#include "ui/metin.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {

firsil::firsil(EkranBaglami& baglam)
    : Form(baglam, "firsil", QStringLiteral("Firma Silme")),
      liste_(new dclist(baglam.bildirim, this)),
      dizin_(new xtext(this)) {
  liste_->CreateNewCaption('m', "kod", "Firma", 320);
  liste_->setObjectName("dclist1");
  liste_->GenisKolon("kod");
  liste_->TercihBoyu(420, 240);
  liste_->Secildi = [this](int satir) { Sec(satir); };
  connect(liste_, &QTableView::clicked, this, [this] { Sec(liste_->CurSat()); });
  dizin_->setObjectName("Text1");
  dizin_->setReadOnly(true);
  dizin_->setFocusPolicy(Qt::NoFocus);
  dizin_->setPlaceholderText(QStringLiteral("Silinecek firmayı listeden Enter ile seçiniz"));

  Govde()->addWidget(UyariYap());
  Govde()->addWidget(liste_, 1);
  auto* secim = new QHBoxLayout;
  auto* etiket = new QLabel(QStringLiteral("Silinecek Dizin"), this);
  etiket->setBuddy(dizin_);
  secim->addWidget(etiket);
  secim->addWidget(dizin_, 1);
  Govde()->addLayout(secim);

  Komutlar(
      {{.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }, .ad = "Command2", .dugmesi = &sil_}});
  connect(dizin_, &QLineEdit::textChanged, this, [this] { sil_->setEnabled(!dizin_->text().trimmed().isEmpty()); });
  sil_->setEnabled(false);
  ListeyiDoldur();
  IlkOdak(liste_);
}

QWidget* firsil::UyariYap() {
  auto* uyari = new QLabel(this);
  uyari->setProperty("hata", true);
  uyari->setTextFormat(Qt::RichText);
  uyari->setText(
      QStringLiteral("<b>D İ K K A T !!!</b><br>1-Bu Alanda Şirket Silmeden Önce Yedeklerinizi Alınız<br>"
                     "2-Eğer Eminseniz Siliniz. "));
  return uyari;
}

void firsil::ListeyiDoldur() {
  secilen_.clear();
  dizin_->clear();
  liste_->Clear();
  for (const std::string& ad : SilinebilirSirketler(Oturumu().DataPath, Oturumu()))
    liste_->TextByName(liste_->Add(), "kod", Yazi(ad));
  liste_->ChngSat(0);
}

// Walking through the list chooses nothing yet.
void firsil::Sec(int satir) {
  if (satir < 0) return;
  secilen_ = Utf8(liste_->TextByName(satir, "kod"));
  dizin_->DegerKoy(VeriYolu(Oturumu().DataPath).Adres(secilen_));
  sil_->setFocus();
}

void firsil::Sil() {
  if (secilen_.empty()) return;
  Oldu(SirketSil(Oturumu().DataPath, secilen_, Oturumu(), Bildirimi(),
                 UzunYurutucu(Baglam(), QStringLiteral("Firma yedeklenip siliniyor…"))));
  liste_->setFocus();
  ListeyiDoldur();
}

}  // namespace belvani
