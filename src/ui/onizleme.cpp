#include "ui/onizleme.h"

#include <QGuiApplication>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "printing/cairotuval.h"
#include "ui/metin.h"

namespace belvani {
namespace {

// Of the size at which a sheet is as wide as the window.
constexpr double Buyuklukler[] = {0.5, 0.7, 1, 1.3, 1.7, 2.2};
constexpr int VarsayilanBuyukluk = 2;
constexpr double OlcmeDpi = 24;
constexpr double EnCokDpi = 110;  // an upright sheet is not blown up to the whole width
constexpr int KenarPayi = 24;     // pixels for the scroll bar

}  // namespace

QImage NoktaResmi(const ResimTuvali& tuval) {
  if (tuval.En() == 0) return {};
  const auto* noktalar = reinterpret_cast<const uchar*>(tuval.Noktalar().data());
  return QImage(noktalar, tuval.En(), tuval.Boy(), qsizetype(tuval.En()) * 4, QImage::Format_RGB32).copy();
}

QImage SayfaResmi(const CizilenBelge& belge, int sayfa, double dpi) {
  if (sayfa < 1 || sayfa > belge.SayfaSayisi()) return {};
  ResimTuvali tuval(dpi, 1);
  belge.SayfaCiz(sayfa, tuval);
  return NoktaResmi(tuval);
}

onizleme::onizleme(EkranBaglami& baglam, std::unique_ptr<CizilenBelge> sayfalar)
    : Form(baglam, "onizleme", QStringLiteral("Önizleme")),
      sayfalar_(std::move(sayfalar)),
      buyukluk_(VarsayilanBuyukluk),
      alan_(new QScrollArea(this)),
      resim_(new QLabel),
      durum_(new QLabel(this)) {
  alan_->setWidget(resim_);
  alan_->setWidgetResizable(true);
  alan_->setFocusPolicy(Qt::StrongFocus);
  alan_->setObjectName("sayfa");
  resim_->setAlignment(Qt::AlignCenter);
  durum_->setObjectName("durum");
  durum_->setAlignment(Qt::AlignCenter);
  const QSize ekran = QGuiApplication::primaryScreen()->availableSize();
  alan_->setMinimumSize(std::min(1240, ekran.width() - 100), std::min(680, ekran.height() - 200));
  Govde()->addWidget(durum_);
  Govde()->addWidget(alan_, 1);
  Izle(alan_);
  Komutlar({{.tus = Qt::Key_PageDown, .islev = [this] { SayfayaGit(sayfa_ + 1); }},
            {.tus = Qt::Key_PageUp, .islev = [this] { SayfayaGit(sayfa_ - 1); }},
            {.tus = Qt::Key_Home, .islev = [this] { SayfayaGit(1); }},
            {.tus = Qt::Key_End, .islev = [this] { SayfayaGit(sayfalar_->SayfaSayisi()); }},
            {.tus = Qt::Key_Plus, .ipucu = "Büyüt", .islev = [this] { Buyut(1); }},
            {.tus = Qt::SHIFT | Qt::Key_Plus, .islev = [this] { Buyut(1); }},  // as many keyboards have it
            {.tus = Qt::Key_Minus, .ipucu = "Küçült", .islev = [this] { Buyut(-1); }}});
  for (const Qt::Key ok : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right})
    Komutlar({{.tus = ok, .islev = [this, ok] { Kaydir(ok); }}});
  Komutlar({{.dugme = "Ö&nceki", .simge = "onceki", .islev = [this] { SayfayaGit(sayfa_ - 1); }},
            {.dugme = "&Sonraki", .simge = "sonraki", .islev = [this] { SayfayaGit(sayfa_ + 1); }},
            {.komut = FormKomutu::Kapat, .dugme = "&Kapat"}});
  IlkOdak(alan_);
  SayfayaGit(1);
}

void onizleme::SayfayaGit(int no) {
  sayfa_ = std::clamp(no, std::min(1, sayfalar_->SayfaSayisi()), sayfalar_->SayfaSayisi());
  alan_->verticalScrollBar()->setValue(0);
  Ciz();
}

void onizleme::Buyut(int adim) {
  buyukluk_ = std::clamp(buyukluk_ + adim, 0, int(std::size(Buyuklukler)) - 1);
  Ciz();
}

void onizleme::Kaydir(Qt::Key tus) {
  const bool dikey = tus == Qt::Key_Up || tus == Qt::Key_Down;
  QScrollBar* cubuk = dikey ? alan_->verticalScrollBar() : alan_->horizontalScrollBar();
  const int adim = cubuk->pageStep() / 4;
  cubuk->setValue(cubuk->value() + (tus == Qt::Key_Up || tus == Qt::Key_Left ? -adim : adim));
}

// Dots per inch at which the page is as wide as the window.
double onizleme::SiganDpi() const {
  const int en = SayfaResmi(*sayfalar_, sayfa_, OlcmeDpi).width();
  return en > 0 ? std::min(EnCokDpi, OlcmeDpi * (alan_->minimumWidth() - KenarPayi) / en) : OlcmeDpi;
}

void onizleme::Ciz() {
  const double oran = devicePixelRatioF();
  QImage resim = SayfaResmi(*sayfalar_, sayfa_, SiganDpi() * Buyuklukler[buyukluk_] * oran);
  if (resim.isNull()) {
    durum_->setText(QStringLiteral("Basılacak kayıt yok"));
    return;
  }
  resim.setDevicePixelRatio(oran);
  resim_->setPixmap(QPixmap::fromImage(std::move(resim)));
  durum_->setText(QStringLiteral("Sayfa %1 / %2").arg(sayfa_).arg(sayfalar_->SayfaSayisi()));
}

}  // namespace belvani
