#include "screens/payroll/devkon.h"

#include "payroll/devir/yillikdevir.h"
#include "ui/kusurlistesi.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

struct KontrolYili {
  std::int16_t yil;
};

// The year that was closed last.
KontrolYili KapananYil(const Firma& firma) {
  return {std::int16_t(firma.firmaay == 1 ? firma.firmayil - 1 : firma.firmayil)};
}

}  // namespace

devkon::devkon(EkranBaglami& baglam) : Form(baglam, "devkon", QStringLiteral("Yıllık Devir Bilgileri Kontrolu")) {
  AlanlariDiz({{{"Yıl", {{Uye("yil", &KontrolYili::yil), "Kontrol Yılı", {.enCok = 9999, .kayitDisi = true}}}}}});
  YaziEkle(QStringLiteral("2004 ve Öncesi İçin Firma Bilgilerindeki Tutar Ondalık Hanesini '0' Yapınız.."), "soluk");
  ondalik_ = YaziEkle({}, "baslik");
  Komutlar({{.tus = Qt::Key_F5, .dugme = "Kontrol Et", .simge = "kontrol", .islev = [this] { Calistir(); }}});
  FirmaDegisti();
  Yukle(KapananYil(Oturumu().firma));
}

void devkon::FirmaDegisti() {
  Form::FirmaDegisti();
  ondalik_->setText("Tutar Ondalık Hanesi: " + QString::number(Oturumu().firma.paraonda));
}

// Messages come after the run: nothing is asked inside its transaction.
void devkon::Calistir() {
  KontrolYili secilen{};
  if (!Oku(secilen)) return;
  const auto sonuc = UzunIs(Baglam(), QStringLiteral("Yıllık devir bilgileri toplanıyor…"),
                            [&](Ilerleme& ilerleme) { return YillikDevir(Oturumu(), secilen.yil, &ilerleme); });
  if (!sonuc || !Oldu(*sonuc)) return;
  const Kusurlar& kalanlar = (*sonuc)->yazilamayanlar;
  if (kalanlar.size() == 1) Bildir(kalanlar.front());
  Bildirimi().Bilgi("Kontrol Tamamlandı..");
  if (kalanlar.size() > 1)
    KusurlariGoster(Baglam(), kalanlar, QString::number(kalanlar.size()) + QStringLiteral(" kişi yazılamadı"));
}

}  // namespace belvani
