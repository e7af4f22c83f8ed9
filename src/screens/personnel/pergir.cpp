#include "screens/personnel/pergir.h"

#include <QBuffer>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QImage>

#include "core/dosya.h"
#include "core/tckimlik.h"
#include "ozluk/girisbildirgesi.h"
#include "personnel/kart.h"
#include "screens/personnel/pergiralanlar.h"
#include "screens/personnel/sigortakollari.h"
#include "ui/basim.h"
#include "ui/cakisma.h"
#include "ui/metin.h"

namespace belvani {
namespace {

constexpr const char* AmblemYeri = "Image";
constexpr const char* AmblemUzantilari[] = {".png", ".jpg", ".jpeg", ".bmp"};

// The picture as the paper takes it, a PNG; nothing for what is no picture.
std::optional<std::string> PngYap(const std::string& baytlar) {
  const QImage resim = QImage::fromData(QByteArray::fromStdString(baytlar));
  if (resim.isNull()) return std::nullopt;
  QByteArray png;
  QBuffer yazilan(&png);
  if (!resim.save(&yazilan, "PNG")) return std::nullopt;
  return png.toStdString();
}

// The company's own picture, `logo` in its directory, else the emblem of all companies. "": there is none.
std::string AmblemOku(const Oturum& oturum, Bildirim& bildirim) {
  const VeriYolu firma(oturum.FirmaDizini);
  const VeriYolu genel = VeriYolu(VeriYolu(oturum.DataPath).YerelDizin()).Alt(AmblemYeri);  // pictures stay here
  for (const auto& [yer, ad] : {std::pair(&firma, "logo"), std::pair(&genel, "ssklogo")})
    for (const char* uzanti : AmblemUzantilari) {
      const std::string dosya = std::string(ad) + uzanti;
      const auto baytlar = yer->Oku(dosya);
      if (!baytlar) continue;
      if (auto png = PngYap(*baytlar)) return std::move(*png);
      bildirim.Uyari(yer->Adres(dosya) + ": resim okunamadı, bildirge amblemsiz basılıyor");
      return {};
    }
  return {};
}

}  // namespace

pergir::pergir(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : PersonelFormu(baglam, "pergir", QStringLiteral("Sigortalı İşe Giriş Formu")), parametreler_(parametreler) {
  Yerlestir();
  SigortaKollariniKoy(Denetim(sicil::sskdurum), parametreler.yasal.hesapTurleri);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = " Kaydet ", .islev = [this] { Kaydet(); }},
            {.tus = Qt::Key_F8, .dugme = " Yazdır ", .simge = "yazici", .islev = [this] { Yazdir(); }}});
  PersonelKomutlari(sicil::kod);
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().Tutamak() == giriseki::emekliTercihi) TahsisNoyuAcKapat();
  };
  Goster(BosGirisFormu(Tarih::Bugun()));
}

// The keyboard goes through the paper's numbers: down each column, from left to right.
void pergir::Yerlestir() {
  Govde()->addLayout(YanYana({{GrupYap(GirisBasligi()), GrupYap(GirisKimligi())},
                              {GrupYap(GirisNufusKaydi()), GrupYap(GirisAdresi()), SandiklariYap()},
                              {GrupYap(GirisEskiIsyeri()), GrupYap(GirisBilgileri())}}));
}

// A body, its number of the person beside it, its pension below.
QWidget* pergir::SandiklariYap() {
  auto* kutu = new QGroupBox(QString::fromUtf8(SandikBasligi), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setHorizontalSpacing(10);
  izgara->setVerticalSpacing(6);
  for (std::size_t i = 0; i < SandikSayisi; ++i) {
    const SandikAlanlari alanlar = SandikSatiri(i);
    const int satir = int(i) * 2;
    izgara->addWidget(DenetimEkle(alanlar.uye, kutu).Parca(), satir, 0);
    AlanDenetimi& no = DenetimEkle(alanlar.no, kutu);
    auto* etiket = new QLabel(Yazi(alanlar.no.etiket), kutu);
    etiket->setBuddy(no.Odak());
    izgara->addWidget(etiket, satir, 1);
    izgara->addWidget(no.Parca(), satir, 2, Qt::AlignLeft);
    izgara->addWidget(DenetimEkle(alanlar.aylik, kutu).Parca(), satir + 1, 0, 1, 3);
  }
  izgara->setColumnStretch(2, 1);
  return kutu;
}

bool pergir::Bul(const std::string& kod) {
  const Tarih bugun = Tarih::Bugun();
  auto bulunan = GirisBul(Oturumu(), kod, bugun);
  GirisFormu form = bulunan ? std::move(*bulunan) : BosGirisFormu(bugun);
  if (!bulunan) form.sicil.kod = kod;
  Goster(form);
  return bulunan.has_value();
}

void pergir::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Bul(kart->kod);
}

void pergir::Goster(const GirisFormu& form) {
  Temizle();
  KayitlariGoster(form);
  Yukle(form.ek);
  AnahtarKoy(form.sicil.kod);
  TahsisNoyuAcKapat();
  AlaniSec();
}

void pergir::KayitlariGoster(const GirisFormu& form) {
  ilkSicil_ = form.ilkSicil;
  ilkKimlik_ = form.ilkKimlik;
  Yukle(form.sicil);
  Yukle(form.kimlik);
}

void pergir::TahsisNoyuAcKapat() {
  Denetim(sicil::tahsisno).Kapat(!TahsisNoAcik(std::uint8_t(TamDegeri(Denetim(giriseki::emekliTercihi).Oku()))));
}

// What was typed, when its dates can stand. They are judged first, and by the rules of the declaration.
std::optional<GirisFormu> pergir::Okunan() {
  GirisFormu form;
  form.sicil.girtar = TarihDegeri(Denetim(sicil::girtar).Oku());
  form.ek.islemTarihi = TarihDegeri(Denetim(giriseki::islemTarihi).Oku());
  if (!Oldu(GirisDenetle(form))) return std::nullopt;
  form.ilkSicil = ilkSicil_;
  form.ilkKimlik = ilkKimlik_;
  if (!Oku(form.sicil) || !Oku(form.kimlik) || !Oku(form.ek)) return std::nullopt;
  return form;
}

// The person stays on the screen, to be printed; the code of the next one may be typed over his.
void pergir::Kaydet() {
  if (!EkrandakiMi()) return;
  auto form = Okunan();
  if (!form) return;
  if (const std::string soru = YenidenGirisSorusu(*form); !soru.empty()) form->cikisSilinir = Bildirimi().Soru(soru);
  const auto kayitlar = GirisHazirla(Oturumu(), *form, parametreler_.yasal.oranlar.AsgariUcret);
  if (!Oldu(kayitlar) || !KayitlariYaz(*kayitlar)) return;
  if (const auto simdiki = GirisBul(Oturumu(), form->sicil.kod, Tarih::Bugun())) KayitlariGoster(*simdiki);
  KoddanBasla();
  ZoomEfekt();
  if (const std::string uyari = TcUyarisi(form->kimlik.tcno); !uyari.empty()) Bildirimi().Uyari(uyari);
}

// Asks for as long as another user's change stands against either record.
bool pergir::KayitlariYaz(GirisKayitlari kayitlar) {
  while (true) {
    const auto yazilan = GirisYaz(Oturumu(), kayitlar);
    if (yazilan) return true;
    const GirisEngeli& engel = yazilan.Kusuru();
    if (!engel.sicil && !engel.kimlik) return Oldu(yazilan);
    if (engel.sicil && !CakismayiCoz(Baglam(), *this, kayitlar.sicil, *engel.sicil)) return false;
    if (engel.kimlik && !CakismayiCoz(Baglam(), *this, kayitlar.kimlik, *engel.kimlik)) return false;
  }
}

void pergir::Yazdir() {
  if (!EkrandakiMi()) return;
  auto form = Okunan();
  if (!form) return;
  const auto& sskDurumu = dynamic_cast<QComboBox&>(*Denetim(sicil::sskdurum).Odak());
  const auto belge = GirisBildirgesiBelgesi({.form = std::move(*form),
                                             .firma = Oturumu().firma,
                                             .sskDurumu = Utf8(sskDurumu.currentText()),
                                             .amblemPng = AmblemOku(Oturumu(), Bildirimi())});
  BelgeBas(Baglam(), *belge);
}

}  // namespace belvani
