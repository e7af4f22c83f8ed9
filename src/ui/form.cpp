#include "ui/form.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QTimer>

#include "ui/dclist.h"
#include "ui/ipucusatiri.h"
#include "ui/kayangovde.h"
#include "ui/listeciktisi.h"
#include "ui/metin.h"
#include "ui/simge.h"
#include "ui/tus.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct KomutTanimi {
  FormKomutu komut;
  QKeySequence tus;
  const char* simge;
  const char* aciklama;  // in the line of hints, where moves show their buttons instead
};

const KomutTanimi& Tanim(FormKomutu komut) {
  static const std::array<KomutTanimi, 8> tanimlar{{
      {FormKomutu::Kaydet, Qt::Key_F5, "kaydet", "Kaydet"},
      {FormKomutu::Sil, Qt::Key_F7, "sil", "Sil"},
      {FormKomutu::Rehber, Qt::Key_F2, "ara", "Rehber"},
      {FormKomutu::Ilk, QKeySequence(Qt::CTRL | Qt::Key_Home), "ilk", "İlk"},
      {FormKomutu::Onceki, Qt::Key_PageUp, "onceki", "Önceki"},
      {FormKomutu::Sonraki, Qt::Key_PageDown, "sonraki", "Sonraki"},
      {FormKomutu::Son, QKeySequence(Qt::CTRL | Qt::Key_End), "son", "Son"},
      {FormKomutu::Kapat, Qt::Key_Escape, "kapat", "Kapat"},
  }};
  return tanimlar.at(std::size_t(komut));
}

bool GezinmeMi(std::optional<FormKomutu> komut) {
  return komut >= FormKomutu::Ilk && komut <= FormKomutu::Son;
}

QString TusMetni(const QKeySequence& tus) {
  return tus == QKeySequence(Qt::Key_Return) ? QStringLiteral("Enter") : tus.toString(QKeySequence::PortableText);
}

QKeySequence Basilan(const QKeyEvent& olay) {
  const auto degistirici = olay.modifiers() & ~Qt::KeypadModifier;
  return QKeySequence(QKeyCombination(degistirici, EnterMi(olay) ? Qt::Key_Return : Qt::Key(olay.key())));
}

}  // namespace

Form::Form(EkranBaglami& baglam, const QString& kelime, const QString& baslik) : baglam_(baglam) {
  setObjectName(kelime);
  setWindowTitle(baslik);
  setFocusPolicy(Qt::ClickFocus);
  auto* duzen = new QVBoxLayout(this);
  duzen->setContentsMargins(16, 14, 16, 12);
  duzen->setSpacing(12);
  auto* kayan = new KayanGovde(this);
  govde_ = new QVBoxLayout(kayan->widget());
  govde_->setContentsMargins(0, 0, 0, 0);
  govde_->setSpacing(12);
  duzen->addWidget(kayan, 1);
  alt_ = new QVBoxLayout;
  alt_->setSpacing(12);
  duzen->addLayout(alt_);
  KomutSatiriYap();
  duzen->addLayout(komutSatiri_);
  Komutlar({{.komut = FormKomutu::Kapat}});
}

// The key field may lose the focus on its way out; nobody is there to look the key up any more.
Form::~Form() {
  for (const auto& d : denetimler_)
    if (xtext* yazi = d->YaziKutusu()) yazi->disconnect(this);
  for (dclist* liste : findChildren<dclist*>()) liste->SahibiGitti();
}

void Form::KomutSatiriYap() {
  komutSatiri_ = new QHBoxLayout;
  komutSatiri_->setSpacing(8);
  ipucu_ = new IpucuSatiri(this);
  komutSatiri_->addWidget(ipucu_);
  komutSatiri_->addStretch(1);
}

void Form::Kapat() {
  if (std::exchange(kapaniyor_, true)) return;
  for (QWidget* ust = parentWidget(); ust != nullptr; ust = ust->parentWidget()) {
    if (qobject_cast<QMdiSubWindow*>(ust) != nullptr || qobject_cast<QDialog*>(ust) != nullptr) {
      kapaniyor_ = ust->close();
      if (kapaniyor_) Q_EMIT Kapandi();
      return;
    }
  }
  close();
  Q_EMIT Kapandi();
}

AlanDenetimi& Form::Denetim(AlanTutamagi alan) const {
  AlanDenetimi* denetim = DenetimBul(alan);
  Q_ASSERT_X(denetim != nullptr, "no such field on the screen", std::string(alan.ad).c_str());
  return *denetim;
}

AlanDenetimi* Form::DenetimBul(AlanTutamagi alan) const {
  for (const auto& d : denetimler_)
    if (d->Satir().Tutamak() == alan) return d.get();
  return nullptr;
}

xtext& Form::YaziKutusu(AlanTutamagi alan) const {
  return *Denetim(alan).YaziKutusu();
}

AlanDenetimi& Form::DenetimEkle(const belvani::Alan& alan, QWidget* ust) {
  auto& denetim = *denetimler_.emplace_back(DenetimYap(alan, ust, baglam_.oturum.firma.paraonda));
  denetim.Degisti = [this, &denetim] {
    if (!denetim.Satir().ek.anahtar && !denetim.Satir().ek.kayitDisi) yazilan_.insert(&denetim);
    AlanDegisti(denetim);
  };
  gelen_[&denetim] = denetim.Oku();
  for (QWidget* odak : denetim.Odaklar()) Izle(odak);
  return denetim;
}

QWidget* Form::GrupYap(const AlanGrubu& grup) {
  auto* kutu = new QGroupBox(Yazi(grup.baslik), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setHorizontalSpacing(10);
  izgara->setVerticalSpacing(satirAraligi_);
  if (satirAraligi_ < 6) izgara->setContentsMargins(4, 0, 4, 0);
  int sira = 0;
  for (const belvani::Alan& alan : grup.alanlar) {
    AlanDenetimi& denetim = DenetimEkle(alan, kutu);
    const int satir = sira / grup.sutun;
    const int sutun = (sira % grup.sutun) * 3;
    ++sira;
    if (!denetim.KendiBasligi()) {
      auto* etiket = new QLabel(Yazi(alan.etiket), kutu);
      etiket->setBuddy(denetim.Odak());
      izgara->addWidget(etiket, satir, sutun, Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (denetim.KendiBasligi())
      izgara->addWidget(denetim.Parca(), satir, sutun, 1, 2, Qt::AlignLeft | Qt::AlignVCenter);
    else
      izgara->addWidget(denetim.Parca(), satir, sutun + 1, Qt::AlignLeft | Qt::AlignVCenter);
    if (sutun > 0) izgara->setColumnMinimumWidth(sutun - 1, 14);
  }
  izgara->setColumnStretch(grup.sutun * 3 - 1, 1);
  izgara->setRowStretch((sira + grup.sutun - 1) / grup.sutun, 1);
  return kutu;
}

void Form::AlanlariDiz(const AlanSutunlari& sutunlar) {
  std::vector<std::vector<QWidget*>> parcalar;
  for (const auto& sutun : sutunlar) {
    auto& dikey = parcalar.emplace_back();
    for (const AlanGrubu& grup : sutun) dikey.push_back(GrupYap(grup));
  }
  govde_->addLayout(YanYana(parcalar));
}

QHBoxLayout* Form::YanYana(const std::vector<std::vector<QWidget*>>& sutunlar) {
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  for (const auto& sutun : sutunlar) {
    auto* dikey = new QVBoxLayout;
    dikey->setSpacing(10);
    for (QWidget* parca : sutun) dikey->addWidget(parca);
    dikey->addStretch(1);
    yatay->addLayout(dikey);
  }
  return yatay;
}

QLabel* Form::YaziEkle(const QString& metin, const char* gorunus) {
  auto* yazi = new QLabel(metin, this);
  yazi->setProperty(gorunus, true);
  govde_->addWidget(yazi);
  return yazi;
}

xButton* Form::DugmeYap(const QString& metin, const QString& simge, std::function<void()> islev) {
  auto* dugme = new xButton(metin, simge, this);
  connect(dugme, &QPushButton::clicked, this, [islev = std::move(islev)] { islev(); });
  Izle(dugme);
  return dugme;
}

void Form::Komutlar(const std::vector<KomutSatiri>& satirlar) {
  for (KomutSatiri satir : satirlar) {
    QString aciklama = QString::fromUtf8(satir.ipucu);
    if (satir.komut) {
      const KomutTanimi& tanim = Tanim(*satir.komut);
      satir.tus = tanim.tus;
      satir.simge = tanim.simge;
      aciklama = QString::fromUtf8(tanim.aciklama);
      if (satir.komut == FormKomutu::Kaydet) kaydet_ = satir.islev;
      if (GezinmeMi(satir.komut)) satir.islev = Korunan(satir.islev);
      if (satir.komut == FormKomutu::Kapat)
        satir.islev = [this] {
          if (KapanabilirMi()) Kapat();
        };
    } else if (!satir.tus.isEmpty() && *satir.dugme != '\0') {
      aciklama = QString::fromUtf8(satir.dugme).remove('&').trimmed();
    }
    if (!satir.tus.isEmpty()) {
      TusBagla(satir.tus, GezinmeMi(satir.komut) ? QString() : aciklama, satir.islev, satir.gecerli);
    } else if (*satir.dugme != '\0') {
      satir.tus = SiradakiTus();
      if (aciklama.isEmpty()) aciklama = QString::fromUtf8(satir.dugme).remove('&').trimmed();
      TusBagla(satir.tus, {}, satir.islev);  // its tool tip tells it
    }
    if (*satir.dugme != '\0' || GezinmeMi(satir.komut)) DugmeEkle(satir, aciklama);
  }
}

// A button without a key of its own has Alt and its number among those.
QKeySequence Form::SiradakiTus() const {
  int no = 1;
  const auto dolu = [this](const QKeySequence& tus) { return std::ranges::count(tuslar_, tus, &TusIslevi::tus) > 0; };
  while (dolu(QKeySequence(Qt::ALT | Qt::Key(Qt::Key_0 + no)))) ++no;
  return QKeySequence(Qt::ALT | Qt::Key(Qt::Key_0 + no));
}

void Form::DugmeEkle(const KomutSatiri& satir, const QString& aciklama) {
  xButton* dugme = DugmeYap(QString::fromUtf8(satir.dugme), satir.simge, satir.islev);
  dugme->setObjectName(satir.ad);
  dugme->setToolTip(satir.tus.isEmpty() ? aciklama : aciklama + " (" + TusMetni(satir.tus) + ")");
  if (satir.dugmesi != nullptr) *satir.dugmesi = dugme;
  if (satir.ilkOdak) IlkOdak(dugme);
  if (GezinmeMi(satir.komut)) {
    dugme->setFocusPolicy(Qt::NoFocus);
    komutSatiri_->insertWidget(int(*satir.komut) - int(FormKomutu::Ilk), dugme);
  } else {
    komutSatiri_->addWidget(dugme);
  }
}

void Form::TusBagla(const QKeySequence& tus, const QString& aciklama, std::function<void()> islev,
                    std::function<bool()> gecerli) {
  std::erase_if(tuslar_, [&](const TusIslevi& t) { return t.tus == tus; });
  tuslar_.push_back({tus, aciklama, std::move(islev), std::move(gecerli)});
  IpucuYaz();
}

void Form::ListedeGezin(dclist& liste) {
  for (const Qt::Key tus : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp})
    TusBagla(QKeySequence(tus), {}, [&liste, tus] { liste.Gezin(tus); });
}

void Form::IpucuYaz() {
  QStringList parcalar, sonda;
  for (const TusIslevi& t : tuslar_) {
    if (t.aciklama.isEmpty() || (t.gecerli && !t.gecerli())) continue;
    (t.tus == Tanim(FormKomutu::Kapat).tus ? sonda : parcalar) +=
        "<b>" + TusMetni(t.tus) + "</b>&nbsp;" + t.aciklama.toHtmlEscaped();
  }
  ipucu_->Yaz(parcalar + sonda);
}

void Form::Izle(QWidget* parca) {
  parca->installEventFilter(this);
}

bool Form::TusuIsle(const QKeyEvent& olay) {
  const QKeySequence basilan = Basilan(olay);
  for (const TusIslevi& t : tuslar_) {
    if (t.tus != basilan) continue;
    const auto islev = t.islev;  // the screen may be gone afterwards
    islev();
    return true;
  }
  return false;
}

bool Form::eventFilter(QObject* nesne, QEvent* olay) {
  if (olay->type() != QEvent::KeyPress) return QWidget::eventFilter(nesne, olay);
  const auto& tus = *static_cast<QKeyEvent*>(olay);
  if (TusuIsle(tus)) return true;
  const bool enterAtlar = qobject_cast<QComboBox*>(nesne) != nullptr || qobject_cast<QCheckBox*>(nesne) != nullptr ||
                          nesne->inherits("QRadioButton");
  if (enterAtlar && EnterMi(tus)) {
    focusNextPrevChild(true);
    return true;
  }
  return QWidget::eventFilter(nesne, olay);
}

void Form::keyPressEvent(QKeyEvent* olay) {
  if (!TusuIsle(*olay)) QWidget::keyPressEvent(olay);
}

bool Form::AlanlarSaglam(std::type_index kayitTuru) {
  for (const auto& d : denetimler_) {
    if (d->Satir().kayitTuru != kayitTuru || d->Satir().ek.kapali) continue;
    const xtext* yazi = d->YaziKutusu();
    const bool hataliTarih = yazi != nullptr && yazi->HataliTarih();
    const auto kusur = hataliTarih ? KuralKusuru(d->Satir().etiket + " Hatalı", d->Satir().Tutamak()) : d->Kusuru();
    if (!kusur) continue;
    Bildir(*kusur);
    return false;
  }
  return true;
}

void Form::Bildir(const Kusur& kusur) {
  Bildirimi().KusuruGoster(kusur);
  if (AlanDenetimi* alan = DenetimBul(kusur.alan)) alan->Odak()->setFocus(Qt::TabFocusReason);
}

void Form::FirmaDegisti() {
  for (const auto& d : denetimler_) d->ParaOndaligi(baglam_.oturum.firma.paraonda);
}

void Form::Temizle() {
  for (const auto& d : denetimler_) d->Temizle();
  YazilaniUnut();
  sonAnahtar_.clear();
}

void Form::IlkAlanaGit() {
  for (const auto& d : denetimler_) {
    if (d->Satir().ek.kapali) continue;
    d->Odak()->setFocus(Qt::TabFocusReason);
    return;
  }
}

// What was loaded into the field with the keyboard is typed over by the next key.
void Form::SecimiYenile() {
  if (auto* yazi = qobject_cast<xtext*>(focusWidget())) yazi->selectAll();
}

void Form::OdakVer(AlanTutamagi alan) {
  Denetim(alan).Odak()->setFocus(Qt::TabFocusReason);
}

void Form::showEvent(QShowEvent* olay) {
  QWidget::showEvent(olay);
  if (std::exchange(acildi_, true)) return;
  for (dclist* liste : findChildren<dclist*>()) ListeCiktisiBagla(baglam_, *liste, [this] { return windowTitle(); });
  if (ilkOdak_ != nullptr) return ilkOdak_->setFocus(Qt::TabFocusReason);
  if (focusWidget() == nullptr || focusWidget() == this) IlkAlanaGit();
}

void Form::closeEvent(QCloseEvent* olay) {
  if (KapanabilirMi())
    QWidget::closeEvent(olay);
  else
    olay->ignore();
}

void Form::ZoomEfekt(const QString& olan) {
  YazilaniUnut();
  ipucu_->Soyle(QStringLiteral("✓ ") + olan);
  QTimer::singleShot(1500, this, [this] { IpucuYaz(); });
}

}  // namespace belvani
