#include "screens/personnel/ucrdeg.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeyEvent>
#include <QScrollBar>

#include "personnel/etiket.h"
#include "personnel/listeler.h"
#include "ui/cakisma.h"
#include "ui/metin.h"
#include "ui/tus.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr std::string_view UcretTurleri[] = {"Aylık Ücret", "Günlük Ücret", "Saatlik Ücret"};

struct UcretTuruSecimi {
  std::uint8_t tur = 0;
};
constexpr auto TurAlani = Uye("tur", &UcretTuruSecimi::tur);

// The fields of the lines, by their places.
struct UcretSayfasi {
  std::array<std::string, ucrdeg::SatirSayisi> kod{}, adsoyad{};
  std::array<std::uint8_t, ucrdeg::SatirSayisi> tip{};
  std::array<Tutar, ucrdeg::SatirSayisi> ucret{};
};

constexpr int TipSirasi = 2, UcretSirasi = 3;

// Names of the fields stay as long as the program.
std::string_view SatirAdi(const char* kolon, int satir) {
  static std::map<std::pair<std::string, int>, std::string> adlar;
  return adlar.try_emplace({kolon, satir}, kolon + std::to_string(satir + 1)).first->second;
}

std::vector<Alan> SatirAlanlari(int satir) {
  const auto sira = std::size_t(satir);
  constexpr int adSoyadHarfi = sicil::adi.boyut + 1 + sicil::soyadi.boyut;
  return {
      DiziAlani(SatirAdi("kod", satir), &UcretSayfasi::kod, sira, "Sicil", {.kapali = true}, sicil::kod.boyut),
      DiziAlani(SatirAdi("adsoyad", satir), &UcretSayfasi::adsoyad, sira, "Adı Soyadı", {.kapali = true}, adSoyadHarfi),
      DiziAlani(SatirAdi("ucrettipi", satir), &UcretSayfasi::tip, sira, "Ücret Tipi",
                {.liste = UcretTipleri, .kayitDisi = true}),
      DiziAlani(SatirAdi("ucret", satir), &UcretSayfasi::ucret, sira, "Ücreti",
                {.ondalik = ParaOndalik, .enCok = EnBuyukGirdi(sicil::ucret), .kayitDisi = true})};
}

std::string UcretDili(std::string_view alan, const Deger& deger) {
  const auto sira = std::size_t(alan == sicil::ucrettipi.ad ? TamDegeri(deger) : -1);
  return sira < std::size(UcretTipleri) ? std::string(UcretTipleri[sira]) : MetinDegeri(deger);
}

}  // namespace

ucrdeg::ucrdeg(EkranBaglami& baglam)
    : Form(baglam, "ucrdeg", QStringLiteral("Ucretleri Düzenleme")), duzenleme_(baglam.oturum) {
  Govde()->addWidget(GrupYap({"", {{TurAlani, "Ücret Türü", {.liste = UcretTurleri, .kayitDisi = true}}}}));
  Yerlestir();
  YaziEkle(QStringLiteral("Alandan çıkılınca kaydedilir."), "soluk");
  Komutlar({{.komut = FormKomutu::Kaydet, .islev = [this] { KendiligindenKaydet(); }},
            {.tus = QKeySequence(Qt::CTRL | Qt::Key_Z),
             .dugme = "Geri Al",
             .simge = "degistir",
             .islev = [this] { GeriAl(); }},
            {.komut = FormKomutu::Ilk, .islev = [this] { Git(0); }},
            {.komut = FormKomutu::Onceki, .islev = [this] { Git(ilk_ - SatirSayisi); }},
            {.komut = FormKomutu::Sonraki, .islev = [this] { Git(ilk_ + SatirSayisi); }},
            {.komut = FormKomutu::Son, .islev = [this] { Git(int(kisiler_.size())); }}});
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().Tutamak() != TurAlani) return;
    KendiligindenKaydet() ? Listele() : Yukle(UcretTuruSecimi{tur_});
  };
  Listele();
}

void ucrdeg::Yerlestir() {
  auto* kutu = new QGroupBox(QStringLiteral("Ücretler"), this);
  auto* yatay = new QHBoxLayout(kutu);
  auto* izgara = new QGridLayout;
  izgara->setHorizontalSpacing(10);
  izgara->setVerticalSpacing(4);
  for (int satir = 0; satir < SatirSayisi; ++satir) {
    auto& denetimler = satirlar_.emplace_back();
    for (const belvani::Alan& alan : SatirAlanlari(satir)) {
      const int kolon = int(denetimler.size());
      if (satir == 0) izgara->addWidget(new QLabel(Yazi(alan.etiket), kutu), 0, kolon);
      AlanDenetimi& denetim = DenetimEkle(alan, kutu);
      // A line without a person leaves its room empty.
      QSizePolicy yer = denetim.Parca()->sizePolicy();
      yer.setRetainSizeWhenHidden(true);
      denetim.Parca()->setSizePolicy(yer);
      izgara->addWidget(denetim.Parca(), satir + 1, kolon, Qt::AlignLeft);
      denetimler.push_back(&denetim);
    }
  }
  izgara->setColumnStretch(UcretSirasi, 1);
  dikey_ = new QScrollBar(Qt::Vertical, kutu);
  dikey_->setObjectName("dikey");
  dikey_->setPageStep(SatirSayisi);
  connect(dikey_, &QScrollBar::valueChanged, this, [this](int ilk) {
    if (ilk != ilk_ && !Git(ilk)) dikey_->setValue(ilk_);
  });
  yatay->addLayout(izgara, 1);
  yatay->addWidget(dikey_);
  Govde()->addWidget(kutu);
  Govde()->addStretch(1);
}

void ucrdeg::Listele() {
  UcretTuruSecimi secim;
  Oku(secim);
  const auto kisiler = UcretliKisiler(Oturumu(), secim.tur);
  if (!Oldu(kisiler)) return;
  tur_ = secim.tur;
  kisiler_ = *kisiler;
  ilk_ = 0;
  const int fazla = std::max(0, int(kisiler_.size()) - SatirSayisi);
  dikey_->setRange(0, fazla);
  dikey_->setValue(0);
  dikey_->setEnabled(fazla != 0);
  SayfayiGoster();
}

void ucrdeg::SayfayiGoster() {
  UcretSayfasi sayfa;
  for (int satir = 0; satir < SatirSayisi; ++satir) {
    const bool dolu = std::size_t(ilk_ + satir) < kisiler_.size();
    for (AlanDenetimi* denetim : satirlar_[std::size_t(satir)]) denetim->Parca()->setVisible(dolu);
    if (!dolu) continue;
    const Sicil& kisi = kisiler_[std::size_t(ilk_ + satir)];
    const auto sira = std::size_t(satir);
    sayfa.kod[sira] = kisi.kod;
    sayfa.adsoyad[sira] = kisi.adi + " " + kisi.soyadi;
    sayfa.tip[sira] = kisi.ucrettipi;
    sayfa.ucret[sira] = kisi.ucret;
  }
  Yukle(sayfa);
}

void ucrdeg::SatiriGoster(int satir) {
  const Sicil& kisi = kisiler_[std::size_t(ilk_ + satir)];
  satirlar_[std::size_t(satir)][TipSirasi]->Koy(std::int64_t(kisi.ucrettipi));
  satirlar_[std::size_t(satir)][UcretSirasi]->Koy(kisi.ucret);
}

bool ucrdeg::Git(int ilk) {
  if (!KendiligindenKaydet()) return false;
  ilk_ = std::clamp(ilk, dikey_->minimum(), dikey_->maximum());
  dikey_->setValue(ilk_);
  SayfayiGoster();
  return true;
}

int ucrdeg::SatirBul(const QObject* nesne) const {
  for (std::size_t satir = 0; satir < satirlar_.size(); ++satir)
    for (AlanDenetimi* denetim : satirlar_[satir])
      if (denetim->Odak() == nesne) return int(satir);
  return -1;
}

std::optional<Okunan<Sicil>> ucrdeg::Yazilan(int satir) const {
  const auto sira = std::size_t(ilk_ + satir);
  if (sira >= kisiler_.size()) return std::nullopt;
  Okunan<Sicil> kart{.ilk = kisiler_[sira], .simdi = kisiler_[sira]};
  kart.simdi.ucrettipi = std::uint8_t(TamDegeri(satirlar_[std::size_t(satir)][TipSirasi]->Oku()));
  kart.simdi.ucret = TutarDegeri(satirlar_[std::size_t(satir)][UcretSirasi]->Oku());
  if (kart.simdi == *kart.ilk) return std::nullopt;
  return kart;
}

// What cannot be written is gone from the field, and nothing else is.
bool ucrdeg::SatirYaz(int satir) {
  const auto kart = Yazilan(satir);
  if (!kart || yaziyor_) return true;
  yaziyor_ = true;
  const auto yazilan = SorarakKaydet(
      Baglam(), *this, *kart, [this](const Okunan<Sicil>& k) { return duzenleme_.Yaz(k); }, UcretDili);
  yaziyor_ = false;
  if (!yazilan && yazilan.Kusuru().cakisma) {
    satirlar_[std::size_t(satir)][UcretSirasi]->Odak()->setFocus(Qt::TabFocusReason);
    return false;
  }
  if (yazilan) {
    kisiler_[std::size_t(ilk_ + satir)] = *yazilan;
    ZoomEfekt();
  }
  SatiriGoster(satir);
  return bool(yazilan);
}

bool ucrdeg::KendiligindenKaydet() {
  for (int satir = 0; satir < SatirSayisi; ++satir)
    if (!SatirYaz(satir)) return false;
  return true;
}

// The person of the write that was taken back comes up, with the cursor in his field.
void ucrdeg::GeriAl() {
  if (!KendiligindenKaydet()) return;
  const auto kart = duzenleme_.GeriAl();
  if (!Oldu(kart)) return;
  const auto kisi = std::ranges::find(kisiler_, kart->kod, &Sicil::kod);
  if (kisi == kisiler_.end()) return ZoomEfekt(Yazi("Geri alındı: " + kart->kod));
  const bool ucretti = kisi->ucret != kart->ucret;
  *kisi = *kart;
  const int sira = int(kisi - kisiler_.begin());
  if (sira < ilk_ || sira >= ilk_ + SatirSayisi) Git(sira);
  SayfayiGoster();
  satirlar_[std::size_t(sira - ilk_)][ucretti ? UcretSirasi : TipSirasi]->Odak()->setFocus(Qt::TabFocusReason);
  ZoomEfekt(QStringLiteral("Geri alındı"));
}

bool ucrdeg::eventFilter(QObject* nesne, QEvent* olay) {
  const int satir = SatirBul(nesne);
  if (olay->type() == QEvent::FocusOut && satir >= 0 && Yazilan(satir) &&
      static_cast<QFocusEvent*>(olay)->reason() != Qt::PopupFocusReason) {
    // The field finishes its text first, and a message must not come in the middle of the focus going.
    QMetaObject::invokeMethod(
        this, [this, satir] { SatirYaz(satir); }, Qt::QueuedConnection);
    return false;
  }
  // What is typed and not written yet is the field's own to take back.
  if (olay->type() == QEvent::KeyPress && satir >= 0 && Yazilan(satir) &&
      static_cast<QKeyEvent*>(olay)->matches(QKeySequence::Undo))
    return false;
  if (olay->type() == QEvent::KeyPress && SonSatirdanIleri(nesne, *static_cast<QKeyEvent*>(olay))) return true;
  return Form::eventFilter(nesne, olay);
}

// Behind the wage of the last line the next person comes up on it.
bool ucrdeg::SonSatirdanIleri(const QObject* nesne, const QKeyEvent& tus) {
  xtext* ucret = satirlar_.back()[UcretSirasi]->YaziKutusu();
  if (nesne != ucret || !(EnterMi(tus) || tus.key() == Qt::Key_Down) || ilk_ >= dikey_->maximum()) return false;
  if (Git(ilk_ + 1)) ucret->selectAll();
  return true;
}

}  // namespace belvani
