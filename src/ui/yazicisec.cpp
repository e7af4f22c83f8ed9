#include "ui/yazicisec.h"

#include "printing/yazdir.h"
#include "ui/listedoldur.h"

namespace belvani {
namespace {

class yazicisec : public Form {
 public:
  yazicisec(EkranBaglami& baglam, const std::vector<YaziciBilgisi>& yazicilar, const std::string& simdiki)
      : Form(baglam, "yazicisec", QStringLiteral("Yazıcı Seç")), liste_(new dclist(baglam.bildirim, this)) {
    liste_->setObjectName("liste");
    liste_->CreateNewCaption('m', "ad", "Yazıcı", 180);
    liste_->CreateNewCaption('m', "aciklama", "Açıklama", 220);
    liste_->CreateNewCaption('m', "durum", "Durum", 200);
    liste_->GenisKolon("aciklama");
    liste_->TercihBoyu(620, 260);
    ListeDoldur(*liste_, yazicilar, [](const YaziciBilgisi& y) {
      return std::array{y.ad, y.aciklama, y.isAliyor ? y.bekleyen : "Yeni iş kabul etmiyor"};
    });
    liste_->FindByName("ad", Yazi(simdiki));
    liste_->Secildi = [this](int) { Sec(); };
    Govde()->addWidget(liste_, 1);
    Izle(liste_);
    Komutlar({{.tus = Qt::Key_Return, .ipucu = "Seç", .islev = [this] { Sec(); }}});
    IlkOdak(liste_);
  }

  std::optional<std::string> Secilen() const { return secilen_; }

 private:
  void Sec() {
    if (liste_->CurSat() < 0) return;
    secilen_ = Utf8(liste_->TextByName(liste_->CurSat(), "ad"));
    Kapat();
  }

  dclist* liste_;
  std::optional<std::string> secilen_;
};

}  // namespace

std::optional<std::string> YaziciSecimi(EkranBaglami& baglam, const std::string& simdiki) {
  const auto yazicilar = YaziciListesi(baglam.baski);
  if (!yazicilar || yazicilar->empty()) {
    baglam.bildirim.KusuruGoster(yazicilar ? Kusur{YaziciYok} : yazicilar.Kusuru());
    return std::nullopt;
  }
  return ModalCevap(baglam, std::make_unique<yazicisec>(baglam, *yazicilar, simdiki), &yazicisec::Secilen);
}

}  // namespace belvani
