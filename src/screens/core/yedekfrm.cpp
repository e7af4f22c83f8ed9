#include "screens/core/yedekfrm.h"

#include "core/kaynak.h"
#include "core/turkce.h"
#include "ui/listedoldur.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr const char* DosyaTuru = "Şirket Yedeği (*.zip)|*.zip";

Yurutucu DonusYurutucu(EkranBaglami& baglam) {
  return UzunYurutucu(baglam, QStringLiteral("Yedek geri yükleniyor…"));
}

void SonucuBildir(Bildirim& bildirim, const Donus& donus) {
  for (const Kusur& uyari : donus.uyarilar) bildirim.Uyari("Önceki hali: " + uyari.metin);
  bildirim.Bilgi("Yedek geri yüklendi: " + donus.ad +
                 (donus.onceki.empty() ? "" : "\nÖnceki hali yedeklendi:\n" + donus.onceki));
}

}  // namespace

yedekfrm::yedekfrm(EkranBaglami& baglam)
    : Form(baglam, "yedekfrm", QStringLiteral("Yedekleme")),
      liste_(new dclist(baglam.bildirim, this)),
      kod_(new xtext(this)) {
  liste_->CreateNewCaption('m', "zaman", "Tarih", 150);
  liste_->CreateNewCaption('m', "tur", "Nedeni", 190);
  liste_->CreateNewCaption('m', "boy", "Boyu", 90);
  liste_->CreateNewCaption('m', "dosya", "Dosya", 260);
  liste_->setObjectName("dclist1");
  liste_->GenisKolon("dosya");
  liste_->setMinimumSize(720, 280);
  liste_->Secildi = [this](int) { GeriYukle(SeciliYedek()); };
  kod_->setObjectName("Text1");
  kod_->setMaxLength(64);
  kod_->setPlaceholderText(QStringLiteral("Yedek bu adla yeni bir şirket olur"));
  Izle(kod_);

  Govde()->addWidget(liste_, 1);
  SunucuNotuKoy();
  auto* satir = new QHBoxLayout;
  auto* etiket = new QLabel(QStringLiteral("Yeni Şirket Kodu"), this);
  etiket->setBuddy(kod_);
  satir->addWidget(etiket);
  satir->addWidget(kod_, 1);
  Govde()->addLayout(satir);
  setTabOrder(liste_, kod_);
  Komutlar(
      {{.tus = Qt::Key_F8, .dugme = "Yedekle", .simge = "kaydet", .islev = [this] { Yedekle({}); }, .ad = "yedekle"},
       {.tus = Qt::CTRL | Qt::Key_F8,
        .dugme = "Dosyaya Yedekle",
        .simge = "klasor",
        .islev = [this] { DosyayaYedekle(); }},
       {.tus = Qt::Key_F9, .dugme = "Geri Yükle", .simge = "degistir", .islev = [this] { GeriYukle(SeciliYedek()); }},
       {.tus = Qt::CTRL | Qt::Key_F9, .dugme = "Başka Koda", .simge = "yeni", .islev = [this] { BaskaKoda(); }},
       {.tus = Qt::Key_F4, .dugme = "Dosyadan", .simge = "klasor", .islev = [this] { DosyadanYukle(); }}});
  ListeyiDoldur();
  IlkOdak(liste_);
}

// Whose backups these are not, and where they lie.
void yedekfrm::SunucuNotuKoy() {
  const VeriYolu veri = Oturumu().DataPath;
  if (!veri.Sunucuda()) return;
  auto* yazi = new QLabel(this);
  yazi->setObjectName("sunucuNotu");
  yazi->setTextFormat(Qt::PlainText);
  yazi->setWordWrap(true);
  yazi->setText(
      Yazi("Şirketin verileri sunucuda: çıkışta günlük yedek alınmaz, sunucuyu yöneticisi yedekler. Burada "
           "alınan yedekler bu bilgisayarda durur: " +
           veri.Yedekler().Alt(Oturumu().FirmaKod).Adres()));
  Govde()->addWidget(yazi);
}

void yedekfrm::ListeyiDoldur() {
  yedekler_ = SirketYedekleri(Oturumu().DataPath, Oturumu().FirmaKod);
  ListeDoldur(*liste_, yedekler_, [](const YedekSatiri& y) {
    return std::array{y.ad.Zaman(), std::string(TurMetni(y.ad.tur)), BoyMetni(y.boy), y.ad.Metin()};
  });
}

std::string yedekfrm::SeciliYedek() const {
  const int satir = liste_->CurSat();
  if (satir < 0) return {};
  const std::string ad = Utf8(liste_->TextByName(satir, "dosya"));
  const auto yedek = std::ranges::find_if(yedekler_, [&](const YedekSatiri& y) { return y.ad.Metin() == ad; });
  return yedek == yedekler_.end() ? std::string() : yedek->yol;
}

void yedekfrm::Yedekle(const std::string& hedef) {
  const auto alinan = UzunIs(Baglam(), QStringLiteral("Yedek alınıyor…"), [&](Ilerleme& ilerleme) {
    return YedekAl(Oturumu().DataPath, Oturumu().FirmaKod, {.hedef = hedef}, &ilerleme);
  });
  if (!alinan || !Oldu(*alinan)) return;
  for (const Kusur& uyari : (*alinan)->uyarilar) Bildir(uyari);
  ListeyiDoldur();
  Bildirimi().Bilgi("Yedek alındı: " + (*alinan)->yol + " (" + BoyMetni((*alinan)->boy) + ")");
}

void yedekfrm::DosyayaYedekle() {
  const std::string ad = Oturumu().FirmaKod + "-" + Tarih::Bugun().Iso() + ".zip";
  if (const auto hedef = Baglam().dialoglar.DosyaKaydet("Yedeğin Yazılacağı Dosya", ad, DosyaTuru)) Yedekle(*hedef);
}

void yedekfrm::GeriYukle(const std::string& dosya) {
  if (dosya.empty()) return;
  const auto yer = YedeginYeri(Oturumu().DataPath, dosya);
  if (!Oldu(yer)) return;
  if (*yer != Oturumu().FirmaKod) return Getir({.dosya = dosya});
  secilen_ = dosya;
  Kapat();
}

void yedekfrm::DosyadanYukle() {
  const auto dosya = Baglam().dialoglar.DosyaAc("Yedek Dosyasını Seçiniz", {}, DosyaTuru);
  if (!dosya) return;
  const std::string kod(Kirp(Utf8(kod_->text())));
  kod.empty() ? GeriYukle(*dosya) : Getir({.dosya = *dosya, .yeniKod = kod});
}

void yedekfrm::BaskaKoda() {
  const std::string kod(Kirp(Utf8(kod_->text())));
  if (kod.empty()) {
    Bildirimi().Bilgi("Yedeğin yükleneceği yeni şirketin kodunu yazınız");
    return kod_->setFocus();
  }
  if (const std::string dosya = SeciliYedek(); !dosya.empty()) Getir({.dosya = dosya, .yeniKod = kod});
}

void yedekfrm::Getir(const DonusIstegi& istek) {
  const auto donus = YedektenDon(Oturumu().DataPath, istek, Bildirimi(), DonusYurutucu(Baglam()));
  if (!Oldu(donus) || !*donus) return;
  kod_->clear();
  SonucuBildir(Bildirimi(), **donus);
}

std::optional<std::string> YedekSectir(EkranBaglami& baglam) {
  return ModalCevap(baglam, std::make_unique<yedekfrm>(baglam), &yedekfrm::Secilen);
}

bool AcikSirketeGetir(EkranBaglami& baglam, const std::string& dosya, const std::function<bool()>& birak) {
  bool birakildi = false;
  const auto yurut = [&](const std::function<void(Ilerleme*)>& is) {
    if (!birak()) return false;
    birakildi = true;
    SirketKapat(baglam.oturum);
    return DonusYurutucu(baglam)(is);
  };
  const auto donus = YedektenDon(baglam.oturum.DataPath, {.dosya = dosya}, baglam.bildirim, yurut);
  if (!donus)
    baglam.bildirim.KusuruGoster(donus.Kusuru());
  else if (*donus)
    SonucuBildir(baglam.bildirim, **donus);
  return birakildi;
}

}  // namespace belvani
