#include "screens/payroll/sendtan.h"

#include "payroll/hesap/sendikaaidati.h"
#include "ui/listedoldur.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

AlanGrubu Alanlar() {
  return {"Sendika",
          {{sendika::kod, "Sendika No", {.anahtar = true}},
           {sendika::adi, "Sendika Adı"},
           {sendika::sabit, "Sabit Kesinti"},
           {sendika::oran, "Oran Kesinti"},
           {sendika::taban, "Taban"},
           {sendika::tavan, "Tavan"},
           {sendika::yer, "Kesinti Yeri", {.liste = KesintiYerleri}}}};
}

}  // namespace

sendtan::sendtan(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : ParametreEkrani(baglam, parametreler, "sendtan", QStringLiteral("Sendika Tanımları")) {
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  yatay->addWidget(GrupYap(Alanlar()));
  liste_ = new dclist(baglam.bildirim, this);
  liste_->setObjectName("liste");
  liste_->CreateNewCaption('m', "kod", "Sendika No", 90);
  liste_->CreateNewCaption('m', "adi", "Sendika Adı", 220);
  liste_->GenisKolon("adi");
  liste_->TercihBoyu(330, 220);
  liste_->Secildi = [this](int satir) {
    AnahtarAra(Utf8(liste_->Text(satir, 0)));
    OdakVer(sendika::adi);
  };
  yatay->addWidget(liste_, 1);
  Govde()->addLayout(yatay, 1);
  AnahtarBagla(
      sendika::kod, [this](const std::string& kod) { Bul(kod); },
      [this](const std::string& kod) { return SendikaBul(Parametreler().firma.Parametreler(), kod) != nullptr; });
  Komutlar({{.komut = FormKomutu::Rehber, .islev = [this] { liste_->setFocus(); }},
            {.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }}});
  ListeyiGoster();
  Goster(sendika_);
}

void sendtan::ListeyiGoster() {
  ListeDoldur(*liste_, Parametreler().firma.Parametreler().sendikalar, [](const Sendika& s) {
    return std::array{s.kod, s.adi};
  });
}

// Under a code that is not there yet, what stands on the screen becomes the new union.
void sendtan::Bul(const std::string& kod) {
  const Sendika* bulunan = SendikaBul(Parametreler().firma.Parametreler(), kod);
  if (bulunan == nullptr) return;
  sendika_ = *bulunan;
  Goster(sendika_);
}

void sendtan::Kaydet() {
  AnahtariBul();
  Sendika sendika = sendika_;
  if (!DegisenleriOku(sendika) || !Oldu(SendikaKaydet(Tanimlar(), sendika))) return;
  ZoomEfekt();
  Yenile();
}

void sendtan::Sil() {
  const std::string kod = YazilanAnahtar();
  if (SendikaBul(Parametreler().firma.Parametreler(), kod) == nullptr)
    return Bildirimi().Bilgi("Silinecek Kayıt Bulunamadı");
  if (Silindi(SendikaSil(Tanimlar(), kod))) Yenile();
}

// Ready for the next one.
void sendtan::Yenile() {
  ListeyiGoster();
  Temizle();
  sendika_ = {};
  Goster(sendika_);
  IlkAlanaGit();
}

}  // namespace belvani
