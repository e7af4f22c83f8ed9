#include "screens/documents/brdicmal.h"

#include <QLabel>

#include "core/store/koru.h"
#include "documents/defter.h"
#include "documents/icmal.h"
#include "documents/icmalgrafigi.h"
#include "documents/secimalanlari.h"
#include "printing/cairotuval.h"
#include "ui/metin.h"
#include "ui/onizleme.h"
#include "ui/uzunis.h"

namespace belvani {
namespace {

constexpr double GrafikEniMm = 150;
constexpr double GrafikBoyuMm = 72;
constexpr double GrafikDpi = 96;
constexpr int CerceveNoktasi = 10;  // pixels that the label itself needs
constexpr double KenarPayi = 2;

QString HucreHtml(const std::string& metin, const char* hiza) {
  return QStringLiteral("<td align='%1' style='padding:2px 10px'>%2</td>").arg(hiza, Yazi(metin).toHtmlEscaped());
}

// The report's rows under their heads.
QString SatirTablosu(const Rapor& rapor) {
  QString html = QStringLiteral("<table cellspacing='0'><tr>");
  const auto& kolonlar = rapor.Kolonlar();
  const auto hiza = [&](std::size_t k) { return kolonlar[k].Sayisal() ? "right" : "left"; };
  for (std::size_t k = 0; k < kolonlar.size(); ++k)
    html += HucreHtml(kolonlar[k].kisaBaslik, hiza(k)).replace("<td", "<th").replace("</td", "</th");
  html += "</tr>";
  for (const auto& satir : rapor.Satirlar()) {
    html += "<tr>";
    for (std::size_t k = 0; k < kolonlar.size(); ++k)
      html += HucreHtml(HucreMetni(satir.hucreler[k], kolonlar[k]), hiza(k));
    html += "</tr>";
  }
  return html + "</table>";
}

QString BlokTablosu(const Rapor& rapor) {
  QString html = QStringLiteral("<table cellspacing='0'>");
  for (const auto& satir : rapor.sonBlok)
    html += "<tr>" + HucreHtml(satir.etiket, "left") + HucreHtml(BlokMetni(satir, rapor), "right") + "</tr>";
  return html + "</table>";
}

QLabel* KartYap(QWidget* ust, const char* ad) {
  auto* etiket = new QLabel(ust);
  etiket->setObjectName(ad);
  etiket->setTextFormat(Qt::RichText);
  etiket->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  etiket->setTextInteractionFlags(Qt::TextSelectableByMouse);
  return etiket;
}

}  // namespace

brdicmal::brdicmal(EkranBaglami& baglam, ParametreDeposu& parametreler, const BelgeTanimi& tanim)
    : BelgeEkrani(baglam, parametreler, tanim),
      mevzuat_(KartYap(this, "mevzuat")),
      satirlar_(KartYap(this, "satirlar")),
      sayilar_(KartYap(this, "sayilar")),
      grafik_(new QLabel(this)) {
  auto* yatay = new QHBoxLayout;
  auto* sag = new QVBoxLayout;
  yatay->setSpacing(24);
  yatay->addWidget(satirlar_);
  sag->addWidget(sayilar_);
  sag->addWidget(grafik_);
  sag->addStretch(1);
  yatay->addLayout(sag, 1);
  mevzuat_->setTextFormat(Qt::PlainText);
  mevzuat_->setProperty("hata", true);
  mevzuat_->hide();
  Govde()->addWidget(mevzuat_);
  Govde()->addLayout(yatay, 1);
  grafik_->setObjectName("grafik");
  grafik_->setFixedSize(int(GrafikEniMm / 25.4 * GrafikDpi) + CerceveNoktasi,
                        int(GrafikBoyuMm / 25.4 * GrafikDpi) + CerceveNoktasi);
  AlanDegisti = [this](AlanDenetimi&) { Goster(); };
  Goster();
}

// The figures at once; the chart month by month, so that the keyboard never waits for a year.
void brdicmal::Goster() {
  if (Denetim(SecimYili).Kusuru()) return;  // being typed
  BelgeSecimi* secilen = Secilen();
  if (secilen == nullptr) return;
  if (const auto belge = BelgeYap()) {
    satirlar_->setText(SatirTablosu(*belge->Tablo()));
    sayilar_->setText(BlokTablosu(*belge->Tablo()));
  }
  const DefterSecim& secim = *secilen->Bul<DefterSecim>();
  seri_ = BosIcmalSerisi(secim.yil, secim.ay);
  IsBitince(this, [this, surum = ++seriSurumu_] { AyiOku(surum, 0); });
}

// Beside the figures, which change with every choice of a month.
void brdicmal::BelgeSozu(const std::string& soz) {
  mevzuat_->setText(Yazi(soz));
  mevzuat_->setVisible(!soz.empty());
}

void brdicmal::AyiOku(int surum, std::size_t sira) {
  if (surum != seriSurumu_) return;
  if (sira == seri_.size()) return GrafikCiz();
  const auto ay =
      Koru([&] { return IcmalAyiOku(Kaynak().motor, seri_[sira].yil, seri_[sira].ay, GrafikKosulu(Kaynak())); });
  if (!Oldu(ay)) return;
  seri_[sira] = *ay;
  IsBitince(this, [this, surum, sira] { AyiOku(surum, sira + 1); });
}

void brdicmal::GrafikCiz() {
  const double oran = devicePixelRatioF();
  ResimTuvali tuval(GrafikDpi * oran, 1);
  tuval.SayfaBasla({GrafikEniMm, GrafikBoyuMm});
  IcmalGrafigi(seri_, tuval, {KenarPayi, KenarPayi, GrafikEniMm - 2 * KenarPayi, GrafikBoyuMm - 2 * KenarPayi});
  tuval.SayfaBitir();
  QImage resim = NoktaResmi(tuval);
  resim.setDevicePixelRatio(oran);
  grafik_->setPixmap(QPixmap::fromImage(std::move(resim)));
}

}  // namespace belvani
