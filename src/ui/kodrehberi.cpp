#include "ui/kodrehberi.h"

#include "ui/listedoldur.h"

namespace belvani {

kodrehberi::kodrehberi(EkranBaglami& baglam, const char* baslik, const std::vector<KodSecenegi>& secenekler,
                       const std::string& simdiki)
    : Form(baglam, "kodrehberi", QString::fromUtf8(baslik)), liste_(new dclist(baglam.bildirim, this)) {
  liste_->setObjectName("liste");
  liste_->CreateNewCaption('m', "kod", "Kod", 140);
  liste_->CreateNewCaption('m', "adi", "Adı", 200);
  liste_->GenisKolon("adi");
  liste_->TercihBoyu(380, 260);
  Govde()->addWidget(liste_, 1);
  ListeDoldur(*liste_, secenekler, [](const KodSecenegi& s) { return std::array{s.kod, s.ad}; });
  liste_->FindByName("kod", Yazi(simdiki));
  liste_->Secildi = [this](int satir) { Sec(satir); };
  Komutlar({{.tus = Qt::Key_Return, .ipucu = "Seç", .islev = [this] { Sec(liste_->CurSat()); }}});
  IlkOdak(liste_);
}

void kodrehberi::Sec(int satir) {
  if (satir < 0) return;
  secilen_ = Utf8(liste_->Text(satir, 0));
  Kapat();
}

std::optional<std::string> KodSec(EkranBaglami& baglam, const char* baslik, const std::vector<KodSecenegi>& secenekler,
                                  const std::string& simdiki) {
  if (secenekler.empty()) {
    baglam.bildirim.Bilgi(std::string(baslik) + ": tanımlı kod yok");
    return std::nullopt;
  }
  return ModalCevap(baglam, std::make_unique<kodrehberi>(baglam, baslik, secenekler, simdiki), &kodrehberi::Secilen);
}

}  // namespace belvani
