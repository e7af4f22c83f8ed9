#include "ui/alandenetimi.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QStylePainter>

#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr int EnGenisHarf = 34;

int Ondalik(const belvani::Alan& alan, int paraOndalik) {
  if (alan.ek.ondalik == ParaOndalik) return paraOndalik;
  if (alan.ek.ondalik >= 0) return alan.ek.ondalik;
  switch (alan.tanim.tip) {
    case AlanTipi::Tutar:
      return paraOndalik;
    case AlanTipi::Tek:
      return 2;
    case AlanTipi::Metin:
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
    case AlanTipi::Tarih:
    case AlanTipi::Mantik:
    case AlanTipi::Ikili:
      return 0;
  }
  return 0;
}

// The longest text, or the largest number.
double EnCok(const belvani::Alan& alan) {
  if (alan.tanim.tip == AlanTipi::Metin) return alan.tanim.boyut;
  const double enCok = EnBuyukGirdi(alan.tanim);
  return alan.ek.enCok > 0 ? std::min(alan.ek.enCok, enCok) : enCok;
}

int HarfGenisligi(const belvani::Alan& alan) {
  if (alan.ek.harf > 0) return alan.ek.harf;
  switch (alan.tanim.tip) {
    case AlanTipi::Metin:
      return std::clamp(alan.tanim.boyut, 4, EnGenisHarf);
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
      return 6;
    case AlanTipi::Uzun:
    case AlanTipi::Tek:
      return 9;
    case AlanTipi::Tutar:
      return 15;
    case AlanTipi::Tarih:
    case AlanTipi::Mantik:
    case AlanTipi::Ikili:
      return 11;
  }
  return 10;
}

class YaziDenetimi final : public AlanDenetimi {
 public:
  YaziDenetimi(const belvani::Alan& alan, QWidget* ust, int paraOndalik) : AlanDenetimi(alan), yazi_(new xtext(ust)) {
    Bicimle(paraOndalik);
    yazi_->RecordField(std::string(alan.tanim.ad));
    const int harf = HarfGenisligi(alan) + (alan.ek.anahtar || alan.ek.rehber ? 3 : 0);
    yazi_->setFixedWidth(yazi_->fontMetrics().horizontalAdvance('0') * harf + 18);
    if (alan.ek.sifre) yazi_->Maskele();
    if (alan.ek.anahtar || alan.ek.rehber) yazi_->ButonKoy("Rehber");
    QObject::connect(yazi_, &xtext::Change, yazi_, [this] { Degisti(); });
  }
  QWidget* Parca() override { return yazi_; }
  void Koy(const Deger& deger) override { yazi_->DegerKoy(deger); }
  Deger Oku() const override {
    const Deger deger = yazi_->Value();
    if (yazi_->TextTip() != xtext::Tip::Sayi || alan_.tanim.tip == AlanTipi::Tutar) return deger;
    if (alan_.tanim.tip == AlanTipi::Tek) return SayiDegeri(deger);
    return std::int64_t(TutarDegeri(deger).Sayi());
  }
  void Temizle() override { yazi_->xReset(); }
  void ParaOndaligi(int ondalik) override {
    if (yazi_->TextTip() != xtext::Tip::Sayi || Ondalik(alan_, ondalik) == yazi_->Onda()) return;
    const Deger deger = yazi_->Value();
    Bicimle(ondalik);
    yazi_->DegerKoy(deger);
  }
  void Kapat(bool kapali) override {
    yazi_->setReadOnly(kapali);
    yazi_->setFocusPolicy(kapali ? Qt::NoFocus : Qt::StrongFocus);
  }

 private:
  void Bicimle(int paraOndalik) {
    const bool tarih = alan_.tanim.tip == AlanTipi::Tarih;
    const bool sayi = !tarih && alan_.tanim.tip != AlanTipi::Metin;
    const auto tip = tarih ? xtext::Tip::Tarih : sayi ? xtext::Tip::Sayi : xtext::Tip::Metin;
    const bool parali = alan_.tanim.tip == AlanTipi::Tutar || alan_.tanim.tip == AlanTipi::Tek;
    yazi_->xTextBicim(tip, EnCok(alan_), Qt::AlignLeft, true, Ondalik(alan_, paraOndalik), parali ? 3 : 0);
  }

  xtext* yazi_;
};

// A list that is narrower than its choices: the closed one ends in "…".
class DarListe final : public QComboBox {
 public:
  using QComboBox::QComboBox;

 protected:
  void paintEvent(QPaintEvent*) override {
    QStyleOptionComboBox ayar;
    initStyleOption(&ayar);
    const QRect yer = style()->subControlRect(QStyle::CC_ComboBox, &ayar, QStyle::SC_ComboBoxEditField, this);
    ayar.currentText = fontMetrics().elidedText(ayar.currentText, Qt::ElideRight, yer.width() - 2);
    QStylePainter boya(this);
    boya.drawComplexControl(QStyle::CC_ComboBox, ayar);
    boya.drawControl(QStyle::CE_ComboBoxLabel, ayar);
  }
};

class ListeDenetimi final : public AlanDenetimi {
 public:
  ListeDenetimi(const belvani::Alan& alan, QWidget* ust)
      : AlanDenetimi(alan), liste_(alan.ek.harf > 0 ? new DarListe(ust) : new QComboBox(ust)) {
    for (const std::string_view secenek : alan.ek.liste) liste_->addItem(Yazi(secenek));
    liste_->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    liste_->setMaxVisibleItems(20);
    if (alan.ek.harf > 0) liste_->setFixedWidth(liste_->fontMetrics().horizontalAdvance('0') * alan.ek.harf + 36);
    QObject::connect(liste_, &QComboBox::activated, liste_, [this] { Degisti(); });
  }
  QWidget* Parca() override { return liste_; }
  void Koy(const Deger& deger) override {
    disaridaki_ = deger;
    liste_->setCurrentIndex(SecenekSirasi(alan_, deger, std::size_t(liste_->count())));
  }
  Deger Oku() const override {
    const int sira = liste_->currentIndex();
    return sira < 0 ? disaridaki_ : std::int64_t(sira + alan_.ek.listeTabani);
  }
  void Temizle() override { Koy(std::int64_t(alan_.ek.listeTabani)); }
  void Kapat(bool kapali) override { liste_->setEnabled(!kapali); }
  QComboBox* Liste() { return liste_; }

 private:
  QComboBox* liste_;
  Deger disaridaki_;  // a stored value that the list does not know stays as it is
};

class KutuDenetimi final : public AlanDenetimi {
 public:
  KutuDenetimi(const belvani::Alan& alan, QWidget* ust)
      : AlanDenetimi(alan), kutu_(new QCheckBox(Yazi(alan.etiket), ust)) {
    QObject::connect(kutu_, &QCheckBox::clicked, kutu_, [this] { Degisti(); });
  }
  QWidget* Parca() override { return kutu_; }
  void Koy(const Deger& deger) override { kutu_->setChecked(MantikDegeri(deger)); }
  Deger Oku() const override {
    return alan_.tanim.tip == AlanTipi::Mantik ? Deger(kutu_->isChecked()) : Deger(std::int64_t(kutu_->isChecked()));
  }
  void Temizle() override { kutu_->setChecked(false); }
  void Kapat(bool kapali) override { kutu_->setEnabled(!kapali); }
  bool KendiBasligi() const override { return true; }

 private:
  QCheckBox* kutu_;
};

class SecenekDenetimi final : public AlanDenetimi {
 public:
  SecenekDenetimi(const belvani::Alan& alan, QWidget* ust)
      : AlanDenetimi(alan), parca_(new QWidget(ust)), grup_(new QButtonGroup(parca_)) {
    auto* duzen = new QHBoxLayout(parca_);
    duzen->setContentsMargins(0, 0, 0, 0);
    duzen->setSpacing(14);
    for (const std::string_view secenek : alan.ek.liste) {
      auto* dugme = new QRadioButton(Yazi(secenek), parca_);
      grup_->addButton(dugme, int(grup_->buttons().size()));
      duzen->addWidget(dugme);
    }
    duzen->addStretch();
    // Tab stops at the chosen one.
    QObject::connect(grup_, &QButtonGroup::buttonToggled, parca_, [](QAbstractButton* dugme, bool secildi) {
      dugme->setFocusPolicy(secildi ? Qt::StrongFocus : Qt::ClickFocus);
    });
    for (QAbstractButton* dugme : grup_->buttons()) dugme->setFocusPolicy(Qt::ClickFocus);
    QObject::connect(grup_, &QButtonGroup::idClicked, parca_, [this] { Degisti(); });
    Koy(std::int64_t(0));
  }
  QWidget* Parca() override { return parca_; }
  QWidget* Odak() override { return grup_->checkedButton(); }
  std::vector<QWidget*> Odaklar() override {
    const auto dugmeler = grup_->buttons();
    return {dugmeler.begin(), dugmeler.end()};
  }
  void Koy(const Deger& deger) override {
    const int sira = SecenekSirasi(alan_, deger, std::size_t(grup_->buttons().size()));
    grup_->button(std::max(0, sira))->setChecked(true);
  }
  Deger Oku() const override { return std::int64_t(grup_->checkedId() + alan_.ek.listeTabani); }
  void Temizle() override { Koy(std::int64_t(alan_.ek.listeTabani)); }
  void Kapat(bool kapali) override { parca_->setEnabled(!kapali); }

 private:
  QWidget* parca_;
  QButtonGroup* grup_;
};

}  // namespace

xtext* AlanDenetimi::YaziKutusu() {
  return dynamic_cast<xtext*>(Odak());
}

std::optional<Kusur> AlanDenetimi::Kusuru() const {
  const std::string kusur = AlanKusuru(alan_, Oku());
  if (kusur.empty()) return std::nullopt;
  return KuralKusuru(alan_.etiket + ": " + kusur, alan_.Tutamak());
}

std::unique_ptr<AlanDenetimi> DenetimYap(const belvani::Alan& alan, QWidget* ust, int paraOndalik) {
  std::unique_ptr<AlanDenetimi> denetim;
  if (alan.ek.secenek)
    denetim = std::make_unique<SecenekDenetimi>(alan, ust);
  else if (alan.ek.liste.data() != nullptr)
    denetim = std::make_unique<ListeDenetimi>(alan, ust);
  else if (alan.tanim.tip == AlanTipi::Mantik || alan.ek.kutu)
    denetim = std::make_unique<KutuDenetimi>(alan, ust);
  else
    denetim = std::make_unique<YaziDenetimi>(alan, ust, paraOndalik);
  denetim->Parca()->setObjectName(Yazi(alan.tanim.ad));
  denetim->Parca()->setToolTip(QString::fromUtf8(alan.ek.ipucu));
  if (alan.ek.kapali) denetim->Kapat(true);
  return denetim;
}

void SecenekleriKoy(AlanDenetimi& denetim, const std::vector<std::string>& secenekler) {
  QComboBox* liste = dynamic_cast<ListeDenetimi&>(denetim).Liste();
  const Deger deger = denetim.Oku();
  liste->clear();
  for (const std::string& secenek : secenekler) liste->addItem(Yazi(secenek));
  denetim.Koy(deger);
}

}  // namespace belvani
