#include "screens/core/yapifrm.h"

#include <QGridLayout>

#include "core/session/datayolu.h"
#include "core/session/yapiayari.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

const AlanGrubu DizinGrubu{
    "Dizinler", {{yapiayari::prg, "Program Dizini", {.harf = 52}}, {yapiayari::data, "Data Dizini", {.harf = 52}}}};

}  // namespace

yapifrm::yapifrm(EkranBaglami& baglam) : Form(baglam, "yapifrm", QStringLiteral("Yapı Ayarları")) {
  QWidget* kutu = GrupYap(DizinGrubu);
  auto* izgara = static_cast<QGridLayout*>(kutu->layout());
  for (int satir = 0; satir < int(Denetimler().size()); ++satir) {
    xtext& alan = *Denetimler()[std::size_t(satir)]->YaziKutusu();
    auto* dugme = DugmeYap("?", {}, [this, &alan] { DizinSec(alan); });
    dugme->setFocusPolicy(Qt::NoFocus);  // Enter goes from field to field; F2 is its key
    dugme->setToolTip(QStringLiteral("Dizin seç (F2)"));
    izgara->addWidget(dugme, satir, 2, Qt::AlignLeft);
  }
  Govde()->addWidget(kutu);
  const auto dizinSec = [this] {
    if (auto* alan = dynamic_cast<xtext*>(focusWidget())) DizinSec(*alan);
  };
  Komutlar({{.tus = Qt::Key_F2, .ipucu = "Dizin Seç", .islev = dizinSec},
            {.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }}});
  YaziKutusu(yapiayari::data)
      .setToolTip(QStringLiteral("Bir dizin ya da sunucu adresi: postgresql://sunucu/belvani (şifre adreste bulunmaz, "
                                 "girişte sorulur)"));
  Yukle(YapiAyari{Oturumu().PrgPath, DataYoluMetni(Oturumu().DataPath)});
}

void yapifrm::DizinSec(xtext& alan) {
  if (const auto dizin = Baglam().dialoglar.DizinSec("Dizin Seçiniz", Utf8(alan.text()))) {
    alan.DegerKoy(*dizin);
    Q_EMIT alan.Change();  // as if it had been typed
  }
  alan.setFocus();
}

void yapifrm::Kaydet() {
  YapiAyari ayar;
  if (!Oku(ayar) || !Oldu(YapiAyariKaydet(ayar))) return;
  YazilaniUnut();
  Bildirimi().Bilgi("Yeni Ayarlar Kaydedildi\nGeçerli Olabilmesi İçin Programdan Çıkıp Girmelisiniz..");
  IlkAlanaGit();
}

}  // namespace belvani
