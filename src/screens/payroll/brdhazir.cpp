#include "screens/payroll/brdhazir.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QTimer>

#include "core/turkce.h"
#include "screens/payroll/brckes.h"
#include "screens/payroll/brdhaziralanlar.h"
#include "ui/kusurlistesi.h"
#include "ui/metin.h"
#include "ui/pencere.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

// Of a list that is reached by a key and stands outside the walk of Enter.
QComboBox* Liste(QWidget* ust) {
  auto* liste = new QComboBox(ust);
  liste->setFocusPolicy(Qt::ClickFocus);
  return liste;
}

}  // namespace

brdhazir::brdhazir(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : Form(baglam, "brdhazir", QStringLiteral("Bordro Hazırlık")),
      giris_(baglam.oturum, parametreler, baglam.bildirim),
      ay_(Liste(this)),
      bordroNo_(Liste(this)),
      kaynak_(Liste(this)),
      kisi_(new QLabel(this)),
      uyari_(new QLabel(this)),
      girisler_(new QHBoxLayout),
      kusur_(new QLabel(this)),
      muafiyet_(new QLabel(this)),
      neden_(new NedenPaneli(this)) {
  giris_.MevzuatNasilGetirilir(UzunYurutucu(baglam, QStringLiteral("Parametre indiriliyor…")));
  const auto acildi = giris_.Ac();
  acik_ = Oldu(acildi) && Soyle(Gelisme<bool>(true, *acildi));
  UstSatirYap();
  GovdeYap();
  TuslariBagla();
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (std::ranges::find(degisen_, &alan) == degisen_.end()) degisen_.push_back(&alan);
  };
  Goster();
}

void brdhazir::TuslariBagla() {
  const auto yardimda = [this] { return YardimSirasi(SimdikiAlan()).has_value(); };
  const auto girisSatirinda = [this, yardimda] { return KazancSirasi(SimdikiAlan()) || yardimda(); };
  Komutlar({{.komut = FormKomutu::Rehber, .islev = [this] { RehberAc(); }},
            {.komut = FormKomutu::Sil, .islev = [this] { Sil(); }},
            {.tus = Qt::Key_F5, .ipucu = "Sicil No", .islev = [this] { KodaDon(); }},
            {.tus = Qt::CTRL | Qt::Key_F7, .ipucu = "Ayı Sil", .islev = [this] { AyiSil(); }},
            {.tus = Qt::CTRL | Qt::Key_F8, .ipucu = "Ayı Geri Al", .islev = [this] { AyiGeriAl(); }},
            {.tus = Qt::Key_F9, .ipucu = "Netten Brüte", .islev = [this] { NettenBrute(); }, .gecerli = yardimda},
            {.tus = Qt::CTRL | Qt::Key_B, .ipucu = "Borç", .islev = [this] { BorcSor(); }, .gecerli = girisSatirinda},
            {.tus = Qt::Key_F4, .ipucu = "Neden?", .islev = [this] { SonuclaraGit(); }},
            {.tus = Qt::CTRL | Qt::Key_Down, .islev = [this] { neden_->Kaydir(2); }},
            {.tus = Qt::CTRL | Qt::Key_Up, .islev = [this] { neden_->Kaydir(-2); }},
            {.tus = Qt::Key_F6, .ipucu = "Ay", .islev = [this] { ay_->setFocus(); }},
            {.tus = Qt::CTRL | Qt::Key_F6, .ipucu = "Ayın Parametreleri", .islev = [this] { ParametreleriGetir(); }},
            {.tus = Qt::Key_F8, .ipucu = "Puantaj", .islev = [this] { PuantajaGit(); }}});
  RehberBagla(YaziKutusu(bordroalani::kod));
}

void brdhazir::RehberAc() {
  const auto kod = PersonelSec(Baglam(), giris_.Kod());
  if (!kod) return;
  // Going back to the code closes whoever is being entered; the one that was picked comes next.
  if (SimdikiAlan() == BordroAlani::Kod)
    YaziKutusu(bordroalani::kod).DegerKoy(*kod);
  else
    rehberden_ = *kod;
  KodaDon();
}

void brdhazir::Sil() {
  GirisiOku();
  if (!Silindi(giris_.KayitSil())) return;
  Goster();
  KodaDon();
}

void brdhazir::AyiSil() {
  if (!Silindi(giris_.AyinBordrosunuSil(UzunYurutucu(Baglam(), QStringLiteral("Ayın bordrosu siliniyor…"))))) return;
  Bildirimi().Bilgi("Bordro Tamamen Silindi");
  BordroNoDoldur();
  Goster();
  KodaDon();
}

void brdhazir::AyiGeriAl() {
  if (!YazilanBirakilir()) return;
  const auto gelen = giris_.AyiGeriAl(UzunYurutucu(Baglam(), QStringLiteral("Ayın bordrosu geri alınıyor…")));
  if (!Oldu(gelen) || !*gelen) return;
  Bildirimi().Bilgi("Ayın Bordrosu Geri Alındı: " + std::to_string(**gelen) + " kayıt");
  BordroNoDoldur();
  Goster();
  KodaDon();
}

void brdhazir::NettenBrute() {
  if (!YardimSirasi(SimdikiAlan())) return;
  GirisiOku();
  const Durum cevrildi = giris_.NettenBruteCevir(SimdikiAlan());
  Goster();
  Oldu(cevrildi);
}

// To the source of the entries; from there on to the mass run.
void brdhazir::PuantajaGit() {
  if (kaynak_->hasFocus() && kaynak_->currentIndex() == int(PuantajKaynagi::Sablondan)) return TopluHazirla();
  kaynak_->setFocus();
}

void brdhazir::ParametreleriGetir() {
  Soyle(giris_.MevzuatiGetir());
  Goster();
}

void brdhazir::UyariRengi(bool kirmizi) {
  uyari_->setProperty("hata", kirmizi);
  uyari_->style()->polish(uyari_);
}

QString brdhazir::Para(Tutar tutar) const {
  return Yazi(TutarMetni(tutar, Oturumu().firma.paraonda));
}

AlanDenetimi* brdhazir::Sahibi(const QObject* nesne) const {
  for (const auto& d : Denetimler())
    if (d->Parca() == nesne) return d.get();
  return nullptr;
}

BordroAlani brdhazir::SimdikiAlan() const {
  return simdiki_ == nullptr ? BordroAlani::Sonuc : BordroAlaniBul(simdiki_->Satir());
}

// The person of the typed code; the entry fields open.
bool brdhazir::KisiyiGetir() {
  xtext& kod = YaziKutusu(bordroalani::kod);
  const std::string yazilan(Kirp(Utf8(kod.text())));
  if (!yazilan.empty() && !TurkceEsit(yazilan, giris_.Kod()) && !YazilanBirakilir()) {
    kod.DegerKoy(giris_.Kod());
    return false;
  }
  kod.DegerKoy(yazilan);
  const KodSonucu sonuc = Soyle(giris_.KodAl(yazilan));
  if (sonuc == KodSonucu::Bos) return false;
  degisen_.clear();
  if (sonuc == KodSonucu::Yuklendi) Oturumu().SonKisi = giris_.Kod();
  Goster();
  return sonuc == KodSonucu::Yuklendi;
}

void brdhazir::Git(Yon yon) {
  const std::string simdiki = giris_.Kod();
  if (!YazilanBirakilir()) return;
  if (giris_.Kod() != simdiki)
    Soyle(giris_.KodAl(simdiki));  // a save goes on to the next person; the move begins at its own
  if (Soyle(giris_.Git(yon)) == KodSonucu::Bos) return;
  Oturumu().SonKisi = giris_.Kod();
  YaziKutusu(bordroalani::kod).DegerKoy(giris_.Kod());
  YaziKutusu(bordroalani::kod).selectAll();
  degisen_.clear();
  Goster();
}

bool brdhazir::eventFilter(QObject* nesne, QEvent* olay) {
  AlanDenetimi* alan = Sahibi(nesne);
  if (olay->type() == QEvent::FocusIn && alan != nullptr) {
    // After the move is complete: messages may come up.
    QMetaObject::invokeMethod(
        this, [this, alan] { AlanaGirildi(alan); }, Qt::QueuedConnection);
    return Form::eventFilter(nesne, olay);
  }
  if (olay->type() != QEvent::KeyPress || alan == nullptr) return Form::eventFilter(nesne, olay);
  const int tus = static_cast<QKeyEvent*>(olay)->key();
  const bool duz = static_cast<QKeyEvent*>(olay)->modifiers() == Qt::NoModifier ||
                   static_cast<QKeyEvent*>(olay)->modifiers() == Qt::KeypadModifier;
  const bool enter = tus == Qt::Key_Return || tus == Qt::Key_Enter;
  const BordroAlani no = BordroAlaniBul(alan->Satir());
  if (no == BordroAlani::Kod && duz) {
    static const std::map<int, Yon> yonler{{Qt::Key_Home, Yon::Ilk},
                                           {Qt::Key_End, Yon::Son},
                                           {Qt::Key_PageUp, Yon::Onceki},
                                           {Qt::Key_PageDown, Yon::Sonraki}};
    if (const auto yon = yonler.find(tus); yon != yonler.end()) {
      Git(yon->second);
      return true;
    }
    // Fields open only when a person has come up, so the first one is gone to from here.
    if (enter || tus == Qt::Key_Tab || tus == Qt::Key_Down) {
      if (KisiyiGetir()) focusNextPrevChild(true);
      return true;
    }
  }
  if (no == BordroAlani::EksikSebep && enter) {
    SebepSecildi();
    return true;
  }
  return Form::eventFilter(nesne, olay);
}

void brdhazir::AlanaGirildi(AlanDenetimi* yeni) {
  // Passed through on the way to another field.
  if (!yeni->Parca()->hasFocus()) return;
  AlanDenetimi* eski = std::exchange(simdiki_, yeni);
  if (eski == yeni) return;
  if (eski != nullptr) GirisiOku();
  giris_.AlanaGirildi(SimdikiAlan());
  IpucuYaz();
  const std::string_view ad = yeni->Satir().tanim.ad;
  neden_->Goster(giris_.HesapIzi(), ad, Yazi(yeni->Satir().etiket), Yazi(giris_.KagittakiTutar(ad)));
  if (SimdikiAlan() == BordroAlani::Kod && eski != nullptr) KodaGirildi();
}

// Back on the code field: the person's entry closes.
void brdhazir::KodaGirildi() {
  const std::string rehberden = std::exchange(rehberden_, {});
  const KapanisSonucu sonuc = Soyle(giris_.Kapat());
  const bool secilenGelir = !rehberden.empty() && KapanisTamam(sonuc);
  if (sonuc == KapanisSonucu::Bitti && !secilenGelir) return Kapat();
  KapanisiGoster(sonuc);
  if (!secilenGelir) return;
  YaziKutusu(bordroalani::kod).DegerKoy(rehberden);
  YaziKutusu(bordroalani::kod).selectAll();
}

void brdhazir::KapanisiGoster(KapanisSonucu sonuc) {
  switch (sonuc) {
    case KapanisSonucu::SonrakiVar:
      YaziKutusu(bordroalani::kod).DegerKoy(giris_.Kod());
      YaziKutusu(bordroalani::kod).selectAll();
      BordroNoDoldur();
      break;
    case KapanisSonucu::KaldiEksikGun:
      Goster();
      OdakVer(giris_.SonGirisAlani() >= BordroAlani::EksikSebep ? AlanTutamagi(bordroalani::sebep) : bordroalani::kod);
      return;
    case KapanisSonucu::Bitti:
    case KapanisSonucu::Kapanmadi:
    case KapanisSonucu::KaldiGunFazla:
    case KapanisSonucu::KaldiNetsiz:
    case KapanisSonucu::KaldiHesapsiz:
    case KapanisSonucu::KaydetmeHatasi:
    case KapanisSonucu::YenidenGeldi:
    case KapanisSonucu::OkumaHatasi:
      break;
  }
  Goster();
}

// Days of the template and results are no work of the user's.
bool brdhazir::Kaydedilmemis() const {
  if (giris_.Durumu() != BordroGirisi::Hal::KisiSecili) return false;
  const auto farkli = [this](const AlanDenetimi* alan) {
    const bool kayitta = alan->Satir().kayitTuru == typeid(Brd);
    return kayitta && alan->Oku() != alan->Satir().oku(&giris_.Giris());
  };
  return giris_.Yazildi() || std::ranges::any_of(degisen_, farkli);
}

bool brdhazir::YazilaniKaydet() {
  GirisiOku();
  KapanisiGoster(Soyle(giris_.Kapat()));
  return giris_.Durumu() != BordroGirisi::Hal::KisiSecili;
}

// What was typed goes into the entry, and the calculation is run.
void brdhazir::GirisiOku() {
  if (giris_.Durumu() != BordroGirisi::Hal::KisiSecili) return degisen_.clear();
  for (AlanDenetimi* alan : degisen_) {
    if (alan->Satir().kayitTuru == typeid(Brd)) alan->Satir().yaz(&giris_.Giris(), alan->Oku());
    if (BordroAlaniBul(alan->Satir()) == BordroAlani::EksikSebep) giris_.SebepSec(int(TamDegeri(alan->Oku())));
  }
  degisen_.clear();
  giris_.Hesapla();
  Goster();
}

void brdhazir::Goster() {
  kisi_->setText(giris_.Durumu() == BordroGirisi::Hal::KisiYok ? QString() : Yazi(giris_.Baslik()));
  setWindowTitle(Yazi(giris_.Baslik()));
  if (giris_.Durumu() == BordroGirisi::Hal::KisiYok) {
    for (const auto& d : Denetimler())
      if (d->Satir().Tutamak() != bordroalani::kod) d->Temizle();
    neden_->Bosalt();
  } else {
    Yukle(giris_.Giris());
    Yukle(giris_.Sonuc());
    Yukle(giris_.Toplamlar());
    Denetim(bordroalani::sebep).Koy(std::int64_t(std::max(0, EksikSebepSec(giris_.Giris().eksiksebebi))));
  }
  const auto& panel = giris_.CalismaPaneli();
  uyari_->setText(panel ? "Giriş Tarihi " + Yazi(panel->girisTarihi) + "  Çıkış Tarihi " + Yazi(panel->cikisTarihi) +
                              "  Çalışabileceği Gün " + QString::number(panel->gun)
                        : Yazi(giris_.CalismaSatiri()));
  UyariRengi(panel.has_value());
  const auto& kusur = giris_.HesapKusuru();
  KusurYaz(Yazi(kusur ? kusur->metin : giris_.KisiUyarisi()));
  const MuafiyetPaneli& muafiyet = giris_.Toplamlar().panel;
  muafiyet_->setText("SSK'dan muaf " + Para(muafiyet.muaf) + "\nVergi indirimleri " + Para(muafiyet.indirim) +
                     "\nToplam " + Para(muafiyet.toplam));
  muafiyet_->setVisible(muafiyet.toplam > Tutar());
  AcikAlanlariKur();
}

void brdhazir::AcikAlanlariKur() {
  const bool secili = giris_.Durumu() == BordroGirisi::Hal::KisiSecili;
  const bool eksik = secili && giris_.Toplamlar().SskGun != giris_.CalismaGun();
  for (const auto& d : Denetimler()) {
    const BordroAlani no = BordroAlaniBul(d->Satir());
    if (KazancSirasi(no) || YardimSirasi(no)) d->Parca()->setEnabled(giris_.AlanAcik(no));
    // With all days worked there is nothing to give a reason for: Enter goes from the last line to the code.
    if (no == BordroAlani::EksikSebep || no == BordroAlani::UcretsizIzin)
      d->Parca()->setEnabled(secili && (eksik || d->Parca()->hasFocus()));
    if (OranMi(no)) d->Parca()->setEnabled(secili);
  }
  Denetim(brd::rapcalismadi).Odak()->setFocusPolicy(eksik ? Qt::StrongFocus : Qt::ClickFocus);
  Denetim(brd::rapcalismadi).Parca()->setEnabled(secili);
}

void brdhazir::SebepSecildi() {
  degisen_.push_back(&Denetim(bordroalani::sebep));
  const auto sonra = giris_.SebepSec(int(TamDegeri(Denetim(bordroalani::sebep).Oku())));
  GirisiOku();
  sonra == SebepSonrasi::KodAlanina ? KodaDon() : OdakVer(brd::ucretsizizin);
}

void brdhazir::KodaDon() {
  YaziKutusu(bordroalani::kod).setFocus(Qt::TabFocusReason);
}

void brdhazir::BordroNoDoldur() {
  bordroNo_->clear();
  for (const std::string& no : giris_.BordroNolari()) bordroNo_->addItem(Yazi(no));
}

void brdhazir::TopluHazirla() {
  if (kaynak_->currentIndex() != int(PuantajKaynagi::Sablondan) || !YazilanBirakilir() || !Soyle(giris_.MevzuatUygun()))
    return;
  if (const auto silinir = giris_.MahsupSilinsinMi(); !Oldu(silinir) || !*silinir) return;
  const auto sonuc = UzunIs(Baglam(), QStringLiteral("Bordro hazırlanıyor…"),
                            [this](Ilerleme& ilerleme) { return giris_.SablondanHazirla(&ilerleme); });
  if (!sonuc) return;
  if (*sonuc) {
    const HazirlikSonucu& olan = **sonuc;
    Bildirimi().Bilgi("Bordro Hazırlık Tamamlandı\n" + olan.Ozet());
    EkranBaglami& baglam = Baglam();  // the list comes up where this screen was
    Kapat();
    return KusurlariGoster(baglam, olan.sorunlar, Yazi(olan.Ozet()));
  }
  Bildir(sonuc->Kusuru());
  Goster();
  KodaDon();
}

// The results can be walked as well, to see why each is what it is.
void brdhazir::SonuclaraGit() {
  if (giris_.Durumu() == BordroGirisi::Hal::KisiYok) return;
  const bool sonucta = simdiki_ != nullptr && SonucAlani(simdiki_->Satir());
  for (const auto& d : Denetimler())
    if (SonucAlani(d->Satir())) d->Odak()->setFocusPolicy(sonucta ? Qt::ClickFocus : Qt::StrongFocus);
  sonucta ? KodaDon() : OdakVer(bordroalani::net);
}

void brdhazir::BorcSor() {
  const BordroAlani no = SimdikiAlan();
  if (giris_.Durumu() != BordroGirisi::Hal::KisiSecili || !(KazancSirasi(no) || YardimSirasi(no))) return;
  GirisiOku();
  FormGoster(Baglam(), std::make_unique<brckes>(Baglam(), giris_), FormModu::Modal);
  Goster();
}

void brdhazir::showEvent(QShowEvent* olay) {
  Form::showEvent(olay);
  if (std::exchange(gosterildi_, true)) return;
  YaziKutusu(bordroalani::kod).DegerKoy(Oturumu().SonKisi);  // Enter brings him up
  YaziKutusu(bordroalani::kod).selectAll();
  // Messages and questions come over the screen, not before it.
  QMetaObject::invokeMethod(
      this, [this] { acik_ ? void(Soyle(giris_.MevzuatUygun())) : Kapat(); }, Qt::QueuedConnection);
}

void brdhazir::closeEvent(QCloseEvent* olay) {
  Form::closeEvent(olay);
  if (const auto eksik = olay->isAccepted() && acik_ ? giris_.KapanisDenetimi() : std::nullopt) Bildir(*eksik);
}

}  // namespace belvani
