#include "ui/form.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QTimer>

#include "core/turkce.h"
#include "ui/dclist.h"
#include "ui/metin.h"
#include "ui/simge.h"

namespace belvani {
namespace {

struct KomutTanimi {
  FormKomutu komut;
  QKeySequence tus;
  const char* simge;
  const char* aciklama;  // in the line of hints; "" keeps it out
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

QKeySequence Basilan(const QKeyEvent& olay) {
  const auto degistirici = olay.modifiers() & ~Qt::KeypadModifier;
  return QKeySequence(QKeyCombination(degistirici, Qt::Key(olay.key())));
}

bool EnterMi(const QKeyEvent& olay) {
  return olay.key() == Qt::Key_Return || olay.key() == Qt::Key_Enter;
}

}  // namespace

Form::Form(EkranBaglami& baglam, const QString& kelime, const QString& baslik) : baglam_(baglam) {
  setObjectName(kelime);
  setWindowTitle(baslik);
  setFocusPolicy(Qt::ClickFocus);
  auto* duzen = new QVBoxLayout(this);
  duzen->setContentsMargins(16, 14, 16, 12);
  duzen->setSpacing(12);
  govde_ = new QVBoxLayout;
  govde_->setSpacing(12);
  duzen->addLayout(govde_, 1);
  KomutSatiriYap();
  duzen->addLayout(komutSatiri_);
  TusBagla(Tanim(FormKomutu::Kapat).tus, Tanim(FormKomutu::Kapat).aciklama, [this] { Kapat(); });
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
  ipucu_ = new QLabel(this);
  ipucu_->setObjectName("ipucu");
  ipucu_->setTextFormat(Qt::RichText);
  komutSatiri_->addWidget(ipucu_);
  komutSatiri_->addStretch(1);
}

void Form::Kapat() {
  for (QWidget* ust = parentWidget(); ust != nullptr; ust = ust->parentWidget()) {
    if (qobject_cast<QMdiSubWindow*>(ust) != nullptr || qobject_cast<QDialog*>(ust) != nullptr) {
      ust->close();
      Q_EMIT Kapandi();
      return;
    }
  }
  close();
  Q_EMIT Kapandi();
}

AlanDenetimi& Form::Denetim(std::string_view ad) const {
  for (const auto& d : denetimler_)
    if (d->Satir().tanim.ad == ad) return *d;
  qFatal("no such field: %s", std::string(ad).c_str());
}

xtext& Form::YaziKutusu(std::string_view ad) const {
  return *Denetim(ad).YaziKutusu();
}

AlanDenetimi& Form::DenetimEkle(const belvani::Alan& alan, QWidget* ust) {
  auto& denetim = *denetimler_.emplace_back(DenetimYap(alan, ust, baglam_.oturum.firma.paraonda));
  denetim.Degisti = [this, &denetim] { AlanDegisti(denetim); };
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
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  for (const auto& sutun : sutunlar) {
    auto* dikey = new QVBoxLayout;
    dikey->setSpacing(10);
    for (const AlanGrubu& grup : sutun) dikey->addWidget(GrupYap(grup));
    dikey->addStretch(1);
    yatay->addLayout(dikey);
  }
  govde_->addLayout(yatay);
}

xButton* Form::DugmeEkle(const QString& metin, const QString& simge, std::function<void()> islev) {
  auto* dugme = new xButton(metin, simge, this);
  connect(dugme, &QPushButton::clicked, this, [islev = std::move(islev)] { islev(); });
  Izle(dugme);
  komutSatiri_->addWidget(dugme);
  return dugme;
}

xButton* Form::DugmeEkle(const QKeySequence& tus, const QString& metin, const QString& simge,
                         std::function<void()> islev) {
  const QString ad = metin.trimmed();
  TusBagla(tus, ad, islev);
  xButton* dugme = DugmeEkle(metin, simge, std::move(islev));
  dugme->setToolTip(ad + " (" + tus.toString(QKeySequence::PortableText) + ")");
  return dugme;
}

void Form::Komut(FormKomutu komut, std::function<void()> islev, const QString& dugme) {
  const KomutTanimi& tanim = Tanim(komut);
  TusBagla(tanim.tus, tanim.aciklama, islev);
  const bool gezinme = komut >= FormKomutu::Ilk && komut <= FormKomutu::Son;
  if (dugme.isEmpty() && !gezinme) return;
  xButton* parca = DugmeEkle(dugme, tanim.simge, std::move(islev));
  parca->setToolTip(QString::fromUtf8(tanim.aciklama) + " (" + tanim.tus.toString(QKeySequence::PortableText) + ")");
  if (!gezinme) return;
  parca->setFocusPolicy(Qt::NoFocus);
  komutSatiri_->removeWidget(parca);
  komutSatiri_->insertWidget(int(komut) - int(FormKomutu::Ilk), parca);
}

void Form::TusBagla(const QKeySequence& tus, const QString& aciklama, std::function<void()> islev) {
  // The latest one wins, so a screen can take over a common key.
  std::erase_if(tuslar_, [&](const TusIslevi& t) { return t.tus == tus; });
  tuslar_.push_back({tus, aciklama, std::move(islev)});
  IpucuYaz();
}

void Form::ListedeGezin(dclist& liste) {
  for (const Qt::Key tus : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp})
    TusBagla(QKeySequence(tus), {}, [&liste, tus] { liste.Gezin(tus); });
}

void Form::IpucuYaz() {
  QStringList parcalar;
  for (const TusIslevi& t : tuslar_) {
    const bool dugmeli = t.tus == Tanim(FormKomutu::Ilk).tus || t.tus == Tanim(FormKomutu::Son).tus ||
                         t.tus == Tanim(FormKomutu::Onceki).tus || t.tus == Tanim(FormKomutu::Sonraki).tus;
    if (dugmeli || t.aciklama.isEmpty()) continue;
    const QString ad =
        t.tus == QKeySequence(Qt::Key_Return) ? QStringLiteral("Enter") : t.tus.toString(QKeySequence::PortableText);
    parcalar += "<b>" + ad + "</b>&nbsp;" + t.aciklama.toHtmlEscaped();
  }
  std::rotate(parcalar.begin(), parcalar.begin() + 1, parcalar.end());  // "Esc" last
  ipucu_->setText(parcalar.join("&nbsp;&nbsp; "));
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

void Form::AnahtarBagla(std::string_view ad, std::function<void(const std::string&)> bulunacak) {
  anahtarAdi_ = ad;
  anahtarBul_ = std::move(bulunacak);
  xtext& alan = YaziKutusu(ad);
  connect(&alan, &xtext::Ayrildi, this, &Form::AnahtarDenetle);
  connect(&alan, &xtext::Lookup, this, [this] {
    QKeyEvent f2(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier);
    TusuIsle(f2);
  });
}

void Form::AnahtarDenetle() {
  const std::string anahtar(Kirp(Utf8(YaziKutusu(anahtarAdi_).text())));
  if (anahtar.empty() || anahtar == sonAnahtar_) return;
  sonAnahtar_ = anahtar;
  anahtarBul_(anahtar);
}

void Form::AnahtarKoy(const std::string& anahtar) {
  sonAnahtar_ = anahtar;
  YaziKutusu(anahtarAdi_).DegerKoy(anahtar);
}

void Form::AnahtarAra(const std::string& anahtar) {
  YaziKutusu(anahtarAdi_).DegerKoy(anahtar);
  sonAnahtar_.clear();
  AnahtarDenetle();
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

AlanDenetimi* Form::DenetimBul(AlanTutamagi alan) const {
  for (const auto& d : denetimler_)
    if (d->Satir().Tutamak() == alan) return d.get();
  return nullptr;
}

void Form::FirmaDegisti() {
  for (const auto& d : denetimler_) d->ParaOndaligi(baglam_.oturum.firma.paraonda);
}

void Form::Temizle() {
  for (const auto& d : denetimler_) d->Temizle();
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

void Form::OdakVer(std::string_view ad) {
  Denetim(ad).Odak()->setFocus(Qt::TabFocusReason);
}

void Form::showEvent(QShowEvent* olay) {
  QWidget::showEvent(olay);
  if (std::exchange(acildi_, true)) return;
  if (ilkOdak_ != nullptr) return ilkOdak_->setFocus(Qt::TabFocusReason);
  if (focusWidget() == nullptr || focusWidget() == this) IlkAlanaGit();
}

void Form::ZoomEfekt(const QString& olan) {
  ipucu_->setText(QStringLiteral("✓ ") + olan);
  QTimer::singleShot(1500, this, [this] { IpucuYaz(); });
}

}  // namespace belvani
