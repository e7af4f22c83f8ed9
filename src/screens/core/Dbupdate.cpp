#include "screens/core/Dbupdate.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QShowEvent>

#include "ui/metin.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {

Dbupdate::Dbupdate(EkranBaglami& baglam, const ParametreDeposu& parametreler)
    : Form(baglam, "Dbupdate", QStringLiteral("Database Update")), parametreler_(parametreler) {
  Govde()->addWidget(UyariYap());
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  yatay->addWidget(VersiyonlariYap());
  yatay->addWidget(AdimlariYap(), 1);
  Govde()->addLayout(yatay);
  Komutlar({{.dugme = "Tamam", .simge = "yukselt", .islev = [this] { Calistir(); }, .ad = "tamam"},
            {.komut = FormKomutu::Kapat, .dugme = "Vazgeç"},
            {.tus = Qt::CTRL | Qt::ALT | Qt::Key_F9, .islev = [this] { HepsiniAc(); }}});
  const auto ilk = std::ranges::find_if(kutular_, [](const QCheckBox* k) { return k->isEnabled(); });
  if (ilk != kutular_.end()) IlkOdak(*ilk);
}

QWidget* Dbupdate::VersiyonlariYap() {
  auto* grup = new QGroupBox(QStringLiteral("Versiyonlar"), this);
  auto* izgara = new QGridLayout(grup);
  const std::array<std::pair<const char*, Tek>, 2> satirlar{
      {{"Program Versiyonu", Oturumu().Versiyon}, {"Database Versiyonu", Oturumu().depo.Versiyon()}}};
  for (int i = 0; i < 2; ++i) {
    const auto& [etiket, versiyon] = satirlar[std::size_t(i)];
    auto* kutu = new xtext(grup);
    kutu->setObjectName(QStringLiteral("Text1(%1)").arg(i));
    kutu->DegerKoy(VersiyonMetni(versiyon));
    kutu->setReadOnly(true);  // it takes the focus all the same
    kutu->setFixedWidth(kutu->fontMetrics().horizontalAdvance('0') * 10 + 18);
    Izle(kutu);
    auto* yazi = new QLabel(etiket, grup);
    yazi->setBuddy(kutu);
    izgara->addWidget(yazi, i, 0);
    izgara->addWidget(kutu, i, 1);
    versiyonlar_[std::size_t(i)] = kutu;
  }
  izgara->setRowStretch(2, 1);
  return grup;
}

QWidget* Dbupdate::AdimlariYap() {
  auto* grup = new QGroupBox(QStringLiteral("Geçişler"), this);
  auto* duzen = new QVBoxLayout(grup);
  const AdimIsaretleri acik = AcikAdimlar(Oturumu().depo);
  for (std::size_t i = 0; i < AdimSayisi; ++i) {
    auto* kutu = new QCheckBox(Yazi(AdimBasligi(i)), grup);
    kutu->setObjectName(QStringLiteral("Check1(%1)").arg(i));
    kutu->setEnabled(acik[i]);
    Izle(kutu);
    duzen->addWidget(kutu);
    kutular_[i] = kutu;
  }
  return grup;
}

QWidget* Dbupdate::UyariYap() {
  auto* uyari = new QLabel(this);
  uyari->setProperty("hata", true);
  uyari->setWordWrap(true);
  uyari->setText(QStringLiteral(
      "Teknik Servis Tarafından Çalıştırılması Tavsiye Edilir..\n\n"
      "Bu Programı Çalıştırmadan Önce Bütün Terminaller Programdan Çıkmalı ve İşlem Tamamlanmadan Programa "
      "Girmemelidir.."));
  return uyari;
}

void Dbupdate::HepsiniAc() {
  if (std::ranges::find(versiyonlar_, focusWidget()) == versiyonlar_.end()) return;
  for (QCheckBox* kutu : kutular_) kutu->setEnabled(true);
}

void Dbupdate::Calistir() {
  AdimIsaretleri isaretli{};
  for (std::size_t i = 0; i < AdimSayisi; ++i) isaretli[i] = kutular_[i]->isChecked();
  if (const auto onay = SigortaTuruOnayi(Oturumu(), isaretli, Bildirimi()); !Oldu(onay) || !*onay) return;
  auto sonuc = UzunIs(Baglam(), QStringLiteral("Database güncelleniyor…"), [&](Ilerleme& ilerleme) {
    return AdimlariYurut(Oturumu(), isaretli, parametreler_.yasal.oranlar.SskTaban, &ilerleme);
  });
  if (!sonuc) return;
  sonuc_ = Soyle(std::move(*sonuc));
  if (sonuc_ != GuncellemeSonucu::IsaretYok) Kapat();
}

GuncellemeSonucu VeritabaniGuncelleGoster(EkranBaglami& baglam, const ParametreDeposu& parametreler) {
  return ModalCevap(baglam, std::make_unique<Dbupdate>(baglam, parametreler), &Dbupdate::Sonuc);
}

}  // namespace belvani
