#include "ui/perekr.h"

#include <QComboBox>
#include <QLineEdit>
#include <QScreen>

#include "core/sayi.h"
#include "ui/metin.h"

namespace belvani {
namespace {

constexpr double EkranEni = 0.97, EkranBoyu = 0.83;  // of the desktop
constexpr int AramaHarfi = 24;

}  // namespace

perekr::perekr(EkranBaglami& baglam, std::shared_ptr<const Rapor> rapor, const PerekrIslevleri& islevler)
    : Form(baglam, "perekr", QStringLiteral("Ekran İzleme")), xgrid1_(new xgrid(this)) {
  if (!rapor->ekranBasligi.empty()) setWindowTitle(Yazi(rapor->ekranBasligi));
  xgrid1_->RaporKoy(std::move(rapor));
  xgrid1_->setMinimumSize(480, 240);
  Govde()->setSpacing(8);
  Govde()->addWidget(UstSatirlar());
  Govde()->addLayout(AramaSatiri());
  Govde()->addWidget(xgrid1_, 1);
  Izle(xgrid1_);
  TuslariBagla(islevler);
  IlkOdak(xgrid1_);
}

QWidget* perekr::UstSatirlar() {
  auto* kutu = new QWidget(this);
  auto* duzen = new QVBoxLayout(kutu);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSpacing(0);
  for (const UstSatir& satir : Belgesi().ustSatirlar) {
    const QString metin = Yazi(UstEkranMetni(satir));
    if (metin.isEmpty()) continue;
    auto* etiket = new QLabel(metin, kutu);
    etiket->setTextFormat(Qt::PlainText);
    etiket->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);  // a long address does not widen the screen
    duzen->addWidget(etiket);
  }
  kutu->setVisible(duzen->count() > 0);
  return kutu;
}

QLayout* perekr::AramaSatiri() {
  auto* satir = new QHBoxLayout;
  QLineEdit* arama = xgrid1_->AramaKutusu(this);
  arama->setFixedWidth(fontMetrics().averageCharWidth() * AramaHarfi);
  auto* bulunamadi = new QLabel(QStringLiteral("Bulunamadı"), this);
  bulunamadi->setProperty("hata", true);
  bulunamadi->hide();
  xgrid1_->Arandi = [bulunamadi](bool bulundu) { bulunamadi->setVisible(!bulundu); };
  auto* adet = new QLabel(Yazi(TutarMetni(Tutar(double(Belgesi().Satirlar().size())), 0)) + " satır", this);
  adet->setProperty("soluk", true);
  QComboBox* secici = xgrid1_->SayfaSecici(this);
  satir->addWidget(arama);
  satir->addWidget(bulunamadi);
  satir->addStretch(1);
  satir->addWidget(adet);
  satir->addWidget(secici);
  Izle(arama);
  Izle(secici);
  return satir;
}

std::vector<int> perekr::GosterilenSira() const {
  std::vector<int> sira;
  for (int yer = 0; yer < int(Belgesi().Satirlar().size()); ++yer) sira.push_back(xgrid1_->Model().YerdekiKayit(yer));
  return sira;
}

void perekr::TuslariBagla(const PerekrIslevleri& islevler) {
  const auto siraliyla = [this, sirala = islevler.sirala](const std::function<void()>& islev) {
    return [this, sirala, islev] {
      sirala(GosterilenSira());
      islev();
    };
  };
  xgrid1_->YazdirIslevi = siraliyla(islevler.yazdir);
  xgrid1_->ExcelIslevi = siraliyla(islevler.excel);
  Komutlar(
      {{.tus = Qt::Key_F8, .dugme = " Yazıcıya Yazdır", .simge = "yazici", .islev = [this] { xgrid1_->yazdosprint(); }},
       {.tus = Qt::Key_F9, .dugme = " Excel'e Gönder", .simge = "tablo", .islev = [this] { xgrid1_->yazexcell(); }},
       {.tus = Qt::CTRL | Qt::Key_F, .ipucu = "Bul", .islev = [this] { xgrid1_->AramayaGit(); }},
       {.tus = Qt::Key_F3, .ipucu = "Sonraki", .islev = [this] { xgrid1_->SonrakiniBul(xgrid::Yon::Ileri); }},
       {.tus = Qt::CTRL | Qt::Key_S, .ipucu = "Sırala", .islev = [this] { xgrid1_->Sirala(xgrid1_->CurrentColon()); }},
       {.komut = FormKomutu::Kapat, .dugme = "Kapat"}});
}

// As large as the main window lets it be.
QSize perekr::sizeHint() const {
  const QSize ekran = screen()->availableSize();
  return {int(ekran.width() * EkranEni), int(ekran.height() * EkranBoyu)};
}

}  // namespace belvani
