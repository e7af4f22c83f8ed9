#include "screens/core/startfrm.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QWindow>

#include "core/ayarlar.h"
#include "core/session/renkler.h"
#include "core/session/sirket.h"
#include "core/tables/peruser.h"
#include "screens/core/firlist.h"
#include "ui/form.h"
#include "ui/metin.h"
#include "ui/renk.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int Revizyon = 0;             // of the program; the store knows the two numbers before it only
constexpr QSize PencereBoyu(580, 300);  // at least
constexpr int MarkaEni = 180;
constexpr QSizeF KoseElipsi(50, 25);

QPainterPath Kenar(const QRectF& alan) {
  QPainterPath yol;
  yol.addRoundedRect(alan, KoseElipsi.width() / 2, KoseElipsi.height() / 2);
  return yol;
}

QLabel* MarkaYazisi(const QString& metin, double buyukluk, bool kalin, QWidget* ust) {
  auto* yazi = new QLabel(metin, ust);
  QFont font = yazi->font();
  font.setPointSizeF(font.pointSizeF() * buyukluk);
  font.setBold(kalin);
  yazi->setFont(font);
  yazi->setForegroundRole(QPalette::HighlightedText);
  yazi->setAlignment(Qt::AlignHCenter);
  return yazi;
}

void AlanEkle(QGridLayout& izgara, int satir, int genislik, const char* etiket, QWidget* alan) {
  auto* yazi = new QLabel(etiket, alan->parentWidget());
  yazi->setBuddy(alan);
  izgara.addWidget(yazi, satir, 0);
  izgara.addWidget(alan, satir, 1, 1, genislik);
}

}  // namespace

startfrm::startfrm(EkranBaglami& baglam)
    : QDialog(nullptr, Qt::Dialog | Qt::FramelessWindowHint),
      baglam_(baglam),
      sirket_(new QComboBox(this)),
      kullanici_(new xtext(this)),
      sifre_(new xtext(this)),
      aciklama_(new QLabel(this)),
      tamam_(new xButton("Giriş", {}, this)),
      vazgec_(new xButton("Vazgeç", {}, this)) {
  setObjectName("startfrm");
  setWindowTitle("Belvani");
  setAttribute(Qt::WA_TranslucentBackground);

  sirket_->setObjectName("ComboBox1");
  sirket_->setEditable(true);
  sirket_->setInsertPolicy(QComboBox::NoInsert);
  sirket_->setCompleter(nullptr);  // a new name may be the beginning of one that is there
  kullanici_->setObjectName("textbox1");
  kullanici_->xTextBicim(xtext::Tip::Metin, peruser::kod.boyut);
  sifre_->setObjectName("TextBox2");
  sifre_->xTextBicim(xtext::Tip::Metin, peruser::pasw.boyut);
  sifre_->Maskele();
  tamam_->setObjectName("xbutton1");
  tamam_->setProperty("birincil", true);
  vazgec_->setObjectName("xbutton2");
  Diz();

  const auto denetle = [this] { tamam_->setEnabled(!Sirket().empty() && !kullanici_->Bos()); };
  connect(sirket_, &QComboBox::editTextChanged, this, denetle);
  connect(kullanici_, &QLineEdit::textChanged, this, denetle);
  connect(tamam_, &QPushButton::clicked, this, &startfrm::Gir);
  connect(vazgec_, &QPushButton::clicked, this, &startfrm::reject);
  const std::array<QWidget*, 5> sira{sirket_, kullanici_, sifre_, tamam_, vazgec_};
  for (std::size_t i = 0; i < sira.size(); ++i) {
    sira[i]->installEventFilter(this);
    if (i > 0) setTabOrder(sira[i - 1], sira[i]);
  }
  DegerleriKoy();
  denetle();
  setFixedSize(sizeHint().expandedTo(PencereBoyu));
}

void startfrm::Diz() {
  auto* duzen = new QHBoxLayout(this);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSpacing(0);
  duzen->addWidget(MarkaYap());
  duzen->addWidget(GirisAlaniYap(), 1);
}

QWidget* startfrm::MarkaYap() {
  auto* marka = new QWidget(this);
  marka->setFixedWidth(MarkaEni);
  auto* duzen = new QVBoxLayout(marka);
  duzen->setContentsMargins(12, 40, 12, 20);
  auto* resim = new QLabel(marka);
  resim->setPixmap(QIcon(":/simgeler/belvani.svg").pixmap(QSize(84, 84), devicePixelRatioF()));
  resim->setAlignment(Qt::AlignHCenter);
  duzen->addWidget(resim);
  duzen->addWidget(MarkaYazisi("Belvani", 1.8, true, marka));
  duzen->addWidget(MarkaYazisi("Personel ve Bordro", 1, false, marka));
  duzen->addStretch(1);
  const std::string surum = VersiyonMetni(baglam_.oturum.Versiyon) + "." + std::to_string(Revizyon);
  duzen->addWidget(MarkaYazisi(Yazi(surum), 0.9, false, marka));
  return marka;
}

QWidget* startfrm::GirisAlaniYap() {
  auto* alan = new QWidget(this);
  for (QWidget* parca : std::initializer_list<QWidget*>{sirket_, kullanici_, sifre_, aciklama_, tamam_, vazgec_})
    parca->setParent(alan);
  auto* rehber = new xButton({}, "ara", alan);
  rehber->setFocusPolicy(Qt::NoFocus);
  rehber->setToolTip("Firma Listesi (F2)");
  connect(rehber, &QPushButton::clicked, this, &startfrm::SirketSec);

  auto* izgara = new QGridLayout;
  izgara->setHorizontalSpacing(8);
  izgara->setVerticalSpacing(10);
  izgara->setColumnStretch(1, 1);
  AlanEkle(*izgara, 0, 1, "Şirket", sirket_);
  izgara->addWidget(rehber, 0, 2);
  AlanEkle(*izgara, 1, 2, "Kullanıcı", kullanici_);
  AlanEkle(*izgara, 2, 2, "Şifre", sifre_);

  aciklama_->setProperty("soluk", true);
  aciklama_->setWordWrap(true);
  aciklama_->setAlignment(Qt::AlignTop);
  auto* ipucu = new QLabel("<b>F2</b>&nbsp;Firma Listesi&nbsp;&nbsp; <b>Esc</b>&nbsp;Çıkış", alan);
  ipucu->setObjectName("ipucu");
  auto* dugmeler = new QHBoxLayout;
  dugmeler->addWidget(ipucu);
  dugmeler->addStretch(1);
  dugmeler->addWidget(tamam_);
  dugmeler->addWidget(vazgec_);

  auto* duzen = new QVBoxLayout(alan);
  duzen->setContentsMargins(26, 34, 24, 18);
  duzen->setSpacing(14);
  duzen->addLayout(izgara);
  duzen->addWidget(aciklama_, 1);
  duzen->addLayout(dugmeler);
  return alan;
}

// The company and the user of the last time.
void startfrm::DegerleriKoy() {
  Oturum& o = baglam_.oturum;
  o.FirmaKod = KullaniciAyari("lastfirm", "");
  o.Kullanici = KullaniciAyari("lastuser", "BELVANI");
  const auto adlar = Sirketler(o.DataPath);
  for (const std::string& ad : adlar) sirket_->addItem(Yazi(ad));
  kullanici_->DegerKoy(o.Kullanici);
  sirket_->setEditText(Yazi(o.FirmaKod));
  if (adlar.empty()) aciklama_->setText("Yeni bir şirket açmak için adını yazıp kullanıcı adı ve şifre veriniz.");
}

std::string startfrm::Sirket() const {
  return Utf8(sirket_->currentText());
}

void startfrm::IlkBosAlanaGit() {
  QWidget* alan = sifre_;
  if (kullanici_->Bos()) alan = kullanici_;
  if (Sirket().empty()) alan = sirket_;
  alan->setFocus(Qt::TabFocusReason);
}

void startfrm::showEvent(QShowEvent* olay) {
  QDialog::showEvent(olay);
  if (olay->spontaneous()) return;
  activateWindow();  // the program's first window: some desktops leave the keyboard where it was
  IlkBosAlanaGit();
}

bool startfrm::TusuIsle(const QObject* alan, int tus) {
  switch (tus) {
    case Qt::Key_F2:
      SirketSec();
      return true;
    case Qt::Key_Escape:
      reject();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (alan == sirket_) kullanici_->setFocus(Qt::TabFocusReason);
      if (alan == sifre_) Gir();
      return alan == sirket_ || alan == sifre_;
    default:
      return false;
  }
}

bool startfrm::eventFilter(QObject* nesne, QEvent* olay) {
  if (olay->type() == QEvent::KeyPress && TusuIsle(nesne, static_cast<QKeyEvent*>(olay)->key())) return true;
  return QDialog::eventFilter(nesne, olay);
}

void startfrm::SirketSec() {
  if (SirketSectir(Sirket())) IlkBosAlanaGit();
}

// What the user chooses from the list, which opens on `simdiki`, is the company now; false when he chooses none.
bool startfrm::SirketSectir(const std::string& simdiki) {
  Oturum& o = baglam_.oturum;
  o.PencereTip = "pen";
  o.SeciliKod = simdiki;
  FormGoster(baglam_, std::make_unique<firlist>(baglam_), FormModu::Modal);
  const std::string secilen = std::exchange(o.SeciliKod, {});
  o.depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
  if (!secilen.empty()) sirket_->setEditText(Yazi(secilen));
  return !secilen.empty();
}

// The named company is open afterwards; a new one only when the user has agreed to it. A text that means several
// directories becomes the one that the user chooses.
bool startfrm::SirketiAc() {
  Oturum& o = baglam_.oturum;
  const auto uyanlar = UyanSirketler(o.DataPath, Sirket());
  if (uyanlar.size() > 1) {
    baglam_.bildirim.KusuruGoster(SirketBul(o.DataPath, Sirket()).Kusuru());
    return SirketSectir(uyanlar.front()) && Acildi(SirketAc(o, Sirket()));
  }
  if (!uyanlar.empty()) return Acildi(SirketAc(o, uyanlar.front()));
  if (const Durum erisim = VeriYolu(o.DataPath).Erisim(); !erisim) return Acildi(erisim);
  if (const auto ad = SirketAdi(Sirket()); !ad) {
    baglam_.bildirim.KusuruGoster(ad.Kusuru());
    return false;
  }
  if (!baglam_.bildirim.Soru("Şirket Bulunamadı\nYeni Şirket Açılacak ?")) return false;
  return Acildi(SirketOlustur(o, Sirket(), Utf8(kullanici_->text()), Utf8(sifre_->text())));
}

bool startfrm::Acildi(const Durum& durum) {
  if (!durum) baglam_.bildirim.KusuruGoster(durum.Kusuru());
  return bool(durum);
}

void startfrm::Gir() {
  if (!tamam_->isEnabled()) return IlkBosAlanaGit();
  if (!SirketiAc()) return sirket_->setFocus(Qt::TabFocusReason);
  const auto acilan = OturumAc(baglam_.oturum, Sirket(), Utf8(kullanici_->text()), Utf8(sifre_->text()));
  for (const Kusur& kusur : acilan ? *acilan : Kusurlar{acilan.Kusuru()}) baglam_.bildirim.KusuruGoster(kusur);
  if (acilan) return accept();
  sifre_->setFocus(Qt::TabFocusReason);
  sifre_->selectAll();
}

void startfrm::reject() {
  baglam_.oturum.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  QDialog::reject();
}

void startfrm::paintEvent(QPaintEvent*) {
  QPainter boya(this);
  boya.setRenderHint(QPainter::Antialiasing);
  const QPainterPath kenar = Kenar(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
  boya.fillPath(kenar, palette().window());
  QPainterPath marka;
  marka.addRect(0, 0, MarkaEni, height());
  boya.fillPath(kenar.intersected(marka), palette().highlight());
  boya.strokePath(kenar, RenkYap(RenkAl(GecerliRenkler(baglam_.oturum), Renk::Cerceve)));
}

// Where nothing blends windows, the corners must be cut.
void startfrm::resizeEvent(QResizeEvent* olay) {
  QDialog::resizeEvent(olay);
  setMask(Kenar(rect()).toFillPolygon().toPolygon());
}

void startfrm::mousePressEvent(QMouseEvent* olay) {
  if (olay->button() != Qt::LeftButton) return;
  tutulan_ = olay->globalPosition().toPoint() - pos();
  windowHandle()->startSystemMove();  // where the system moves windows itself
}

void startfrm::mouseMoveEvent(QMouseEvent* olay) {
  if (olay->buttons() & Qt::LeftButton) move(olay->globalPosition().toPoint() - tutulan_);
}

GirisSonucu GirisYap(EkranBaglami& baglam) {
  startfrm pencere(baglam);
  return pencere.exec() == QDialog::Accepted ? GirisSonucu::Girildi : GirisSonucu::Cikis;
}

}  // namespace belvani
