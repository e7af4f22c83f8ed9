#include "screens/personnel/perbul.h"

#include <QKeyEvent>

#include "core/turkce.h"
#include "personnel/firmalardaara.h"
#include "ui/bildirimkutusu.h"
#include "ui/metin.h"

namespace belvani {
namespace {

struct Aranan {
  std::string adsoy;
};

// The box looks at every 64th step; companies are few, and each may take its time.
class SirketIlerlemesi final : public Ilerleme {
 public:
  explicit SirketIlerlemesi(QWidget* ust) : kutu_(QStringLiteral("Şirketlerde aranıyor…"), ust) {}
  bool Adim(std::size_t biten, std::size_t toplam) override {
    kesildi_ = !kutu_.Adim(biten * 64, toplam * 64);
    return !kesildi_;
  }
  bool Kesildi() const { return kesildi_; }

 private:
  IlerlemeKutusu kutu_;
  bool kesildi_ = false;
};

}  // namespace

perbul::perbul(EkranBaglami& baglam)
    : Form(baglam, "perbul", QStringLiteral("Personel Bul")), liste_(new dclist(baglam.bildirim, this)) {
  AlanlariDiz({{{"Aranan", {{Uye("adsoy", &Aranan::adsoy, 41), "Adı Soyadı", {.harf = 40}}}}}});
  liste_->CreateNewCaption('m', "adsoy", "Adı Soyadı", 240);
  liste_->CreateNewCaption('m', "firma", "Firma", 300);
  liste_->CreateNewCaption('m', "donem", "Dönem", 90);
  liste_->GenisKolon("firma");
  liste_->setMinimumSize(680, 320);
  liste_->setEnabled(false);
  setTabOrder(&YaziKutusu("adsoy"), liste_);
  Govde()->addWidget(liste_, 1);
  sonuc_ = new QLabel(this);
  sonuc_->setProperty("soluk", true);
  Govde()->addWidget(sonuc_);
  DugmeEkle(QStringLiteral("Bul"), "ara", [this] { Ara(); });
  for (const Qt::Key tus : {Qt::Key_Return, Qt::Key_Enter})
    TusBagla(QKeySequence(tus), tus == Qt::Key_Return ? QStringLiteral("Bul") : QString(), [this] { Ara(); });
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
  SirketIlerlemesi ilerleme(this);
  const auto bulunanlar = FirmalardaAra(Oturumu().DataPath, aranan.adsoy, ilerleme);
  liste_->Model().TopluBasla();
  liste_->Clear();
  for (const BulunanKisi& kisi : bulunanlar) {
    const int satir = liste_->Add();
    liste_->Text(satir, 0, Yazi(kisi.adsoy));
    liste_->Text(satir, 1, Yazi(kisi.firma));
    liste_->Text(satir, 2, Yazi(kisi.donem));
  }
  liste_->Model().TopluBitir();
  const QString sayi = bulunanlar.empty() ? QStringLiteral("Kayıt bulunamadı.")
                                          : QString::number(bulunanlar.size()) + QStringLiteral(" kayıt bulundu.");
  sonuc_->setText(ilerleme.Kesildi() ? sayi + QStringLiteral(" Arama yarıda kesildi.") : sayi);
  liste_->ChngSat(0);
  if (!bulunanlar.empty()) liste_->setFocus();
}

}  // namespace belvani
