#include "screens/declarations/yzckopy.h"

#include "printing/form/formbelgesi.h"
#include "ui/basim.h"

namespace belvani {

yzckopy::yzckopy(EkranBaglami& baglam, std::vector<FormSayfasi> sayfalar, YzcAyarlari ayar)
    : Form(baglam, "yzckopy", QStringLiteral("Form Yazdırma")),
      ayar_(std::move(ayar)),
      yuzey_(new FormYuzeyi(std::move(sayfalar))),
      alan_(new QScrollArea(this)),
      durum_(new QLabel(this)) {
  alan_->setWidget(yuzey_);
  alan_->setAlignment(Qt::AlignCenter);
  alan_->setFocusPolicy(Qt::NoFocus);
  alan_->verticalScrollBar()->setObjectName("dik");
  alan_->horizontalScrollBar()->setObjectName("yatay");
  alan_->setMinimumSize(1150, 480);  // an A4 sheet across, whole
  yuzey_->Gorunsun = [this](const QRect& yer) { alan_->ensureVisible(yer.center().x(), yer.center().y(), 120, 90); };
  durum_->setObjectName("durum");
  Govde()->addWidget(durum_);
  Govde()->addWidget(alan_, 1);
  Izle(yuzey_);
  Komutlar({{.tus = Qt::Key_PageDown, .ipucu = "Sonraki Sayfa", .islev = [this] { Git(1); }},
            {.tus = Qt::Key_PageUp, .ipucu = "Önceki Sayfa", .islev = [this] { Git(-1); }},
            {.tus = Qt::CTRL | Qt::Key_Plus, .ipucu = "Büyüt", .islev = [this] { yuzey_->Buyut(1); }},
            {.tus = Qt::CTRL | Qt::SHIFT | Qt::Key_Plus, .islev = [this] { yuzey_->Buyut(1); }},
            {.tus = Qt::CTRL | Qt::Key_Minus, .ipucu = "Küçült", .islev = [this] { yuzey_->Buyut(-1); }},
            {.tus = Qt::Key_F8,
             .dugme = " &Yazdır",
             .simge = "yazici",
             .ipucu = "Seçtiğiniz yazıcıya, seçtiğiniz sayıda basar",
             .islev = [this] { Yazdir(&BelgeBasAyarli); }},
            {.tus = Qt::CTRL | Qt::Key_F8,
             .dugme = "&Başka Yol",
             .simge = "yazici",
             .ipucu = "Başka yazıcı, önizleme ya da PDF",
             .islev = [this] { Yazdir(&BelgeBas); }},
            {.komut = FormKomutu::Kapat, .dugme = "&Kapat"}});
  IlkOdak(yuzey_);
  Git(0);
}

void yzckopy::Git(int adim) {
  yuzey_->SayfayaGit(yuzey_->Sayfa() + adim);
  durum_->setText(
      QStringLiteral("Sayfa %1 / %2    Değerleri Tab ile geziniz; ok tuşları ya da fare taşır, Enter değiştirir.")
          .arg(yuzey_->Sayfa() + 1)
          .arg(yuzey_->Sayfalar().size()));
}

void yzckopy::Yazdir(void (*bas)(EkranBaglami&, Belge&)) {
  FormBelgesi belge(ayar_, yuzey_->Sayfalar(), {});
  bas(Baglam(), belge);
  ayar_ = belge.Ayar();
}

}  // namespace belvani
