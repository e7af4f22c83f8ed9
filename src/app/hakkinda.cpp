#include "app/hakkinda.h"

#include <QApplication>
#include <QClipboard>
#include <QGridLayout>
#include <curl/curl.h>
#include <unicode/uversion.h>

#include "core/session/datayolu.h"
#include "core/store/motor.h"
#include "ui/metin.h"
#include "ui/simge.h"

namespace belvani {
namespace {

constexpr int SimgeBoyu = 56;

struct Satir {
  const char* ad;
  QString deger;
};

QString IcuSurumu() {
  UVersionInfo surum;
  u_getVersion(surum);
  char metin[U_MAX_VERSION_STRING_LENGTH];
  u_versionToString(surum, metin);
  return QString::fromLatin1(metin);
}

std::vector<Satir> HakkindaSatirlari(const Oturum& o) {
  return {{"Sürüm", Yazi(VersiyonMetni(o.Versiyon))},
          {"Qt", QString::fromLatin1(qVersion())},
          {"SQLite", Yazi(MotorSurumleri().dosya)},
          {"libpq", Yazi(MotorSurumleri().sunucu)},
          {"ICU", IcuSurumu()},
          {"curl", QString::fromLatin1(curl_version_info(CURLVERSION_NOW)->version)},
          {"Veri dizini", Yazi(DataYoluMetni(o.DataPath))},
          {"Program dizini", Yazi(o.PrgPath)},
          {"Bilgisayar", Yazi(o.BilgisayarAdi)},
          {"Lisans", "Apache License 2.0"}};
}

}  // namespace

frmAbout::frmAbout(EkranBaglami& baglam) : Form(baglam, "frmAbout", QStringLiteral("Hakkında")) {
  auto* tepe = new QHBoxLayout;
  auto* simge = new QLabel(this);
  simge->setPixmap(Simge("belvani").pixmap(SimgeBoyu));
  auto* ad = new QLabel(QStringLiteral("Belvani"), this);
  QFont iri = font();
  iri.setPointSize(iri.pointSize() * 2);
  ad->setFont(iri);
  ad->setProperty("baslik", true);
  tepe->addWidget(simge);
  tepe->addWidget(ad);
  tepe->addStretch(1);
  Govde()->addLayout(tepe);
  Govde()->addWidget(new QLabel(QStringLiteral("Personel ve bordro programı, 2003-2009 mevzuatı"), this));

  auto* izgara = new QGridLayout;
  izgara->setHorizontalSpacing(18);
  izgara->setColumnStretch(1, 1);
  QString kopya = "Belvani\n";
  for (const Satir& satir : HakkindaSatirlari(Oturumu())) {
    const int sira = izgara->rowCount();
    auto* etiket = new QLabel(QString::fromUtf8(satir.ad), this);
    etiket->setProperty("soluk", true);
    auto* deger = new QLabel(satir.deger, this);
    deger->setTextFormat(Qt::PlainText);
    deger->setTextInteractionFlags(Qt::TextSelectableByMouse);
    izgara->addWidget(etiket, sira, 0);
    izgara->addWidget(deger, sira, 1);
    kopya += QString::fromUtf8(satir.ad) + ": " + satir.deger + "\n";
  }
  Govde()->addLayout(izgara);
  Govde()->addStretch(1);
  Komutlar({{.dugme = "Kopyala", .simge = "liste", .islev = [kopya] { QApplication::clipboard()->setText(kopya); }},
            {.dugme = "Tamam", .islev = [this] { Kapat(); }, .ilkOdak = true}});
}

}  // namespace belvani
