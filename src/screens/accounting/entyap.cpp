#include "screens/accounting/entyap.h"

#include <QStyle>

#include "accounting/entegrasyonayari.h"
#include "accounting/fisbelgesi.h"
#include "accounting/fisoku.h"
#include "accounting/kardesdepo.h"
#include "core/hedef.h"
#include "core/sayi.h"
#include "core/store/koru.h"
#include "ui/basim.h"
#include "ui/listedoldur.h"
#include "ui/uzunis.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

struct FisFormu {
  std::int32_t grup = 0;  // position in the list
  Tarih tarih;
  std::int32_t fisno = 0;
};

namespace fisalani {
constexpr auto grup = Uye("grup", &FisFormu::grup);
constexpr auto tarih = Uye("tarih", &FisFormu::tarih);
constexpr auto fisno = Uye("fisno", &FisFormu::fisno);
}  // namespace fisalani

const std::string OkunamayanMuhasebe = std::string(MuhasebeAcilamadi) + "\n";

AlanGrubu Alanlar() {
  return {"Fiş",
          {{fisalani::grup, "Grup Kodu", {.liste = SonraDolar, .harf = 10, .kayitDisi = true}},
           {fisalani::tarih, "Fiş Tarihi", {.kayitDisi = true}},
           {fisalani::fisno, "Fiş No", {.kayitDisi = true}}},
          3};
}

}  // namespace

entyap::entyap(EkranBaglami& baglam)
    : Form(baglam, "entyap", QStringLiteral("Entegrasyon İşlemleri")),
      yil_(baglam.oturum.firma.firmayil),
      ay_(baglam.oturum.firma.firmaay),
      liste_(new dclist(baglam.bildirim, this)) {
  Govde()->addWidget(GrupYap(Alanlar()));
  eksikler_ = YaziEkle({}, "hata");
  eksikler_->setObjectName("eksikler");
  eksikler_->setWordWrap(true);
  ListeyiKur();
  Govde()->addWidget(liste_, 1);
  Govde()->addWidget(ToplamSatiri());
  Komutlar({{.tus = Qt::Key_F5, .dugme = "İşle", .simge = "kaydet", .islev = [this] { Isle(); }, .ad = "isle"},
            {.tus = Qt::Key_F6,
             .dugme = " Ekrana Listele",
             .simge = "liste",
             .islev =
                 [this] {
                   if (const auto belge = FisiVer()) BelgeEkranaListele(Baglam(), belge);
                 }},
            {.tus = Qt::Key_F8,
             .dugme = " Yazıcıya Yazdır",
             .simge = "yazici",
             .islev =
                 [this] {
                   if (const auto belge = FisiVer()) BelgeBas(Baglam(), *belge);
                 }},
            {.tus = Qt::Key_F9,
             .dugme = " Excel'e Gönder",
             .simge = "tablo",
             .islev =
                 [this] {
                   if (const auto belge = FisiVer()) BelgeExceleGonder(Baglam(), *belge);
                 }},
            {.tus = Qt::Key_F11, .dugme = " Yevmiye Dosyası", .simge = "indir", .islev = [this] { YevmiyeYaz(); }}});
  if (auto gruplar = Koru([&] { return EntegreGruplari(Oturumu().depo.db.IcMotor()); }); Oldu(gruplar))
    gruplar_ = std::move(*gruplar);
  gruplar_.insert(gruplar_.begin(), ButunGruplar);
  SecenekleriKoy(Denetim(fisalani::grup), gruplar_);
  Yukle(FisFormu{.tarih = FisTarihi(yil_, ay_)});
  MuhasebeyiOku();
  FisiYap();
  AlanDegisti = [this](AlanDenetimi& d) {
    if (d.Satir().Tutamak() == fisalani::grup) FisiYap();
  };
}

void entyap::FirmaDegisti() {
  Form::FirmaDegisti();
  Goster();
}

void entyap::ListeyiKur() {
  liste_->setObjectName("dclist1");
  liste_->CreateNewCaption('m', "kod", "Hesap Kodu", 110);
  liste_->CreateNewCaption('m', "isim", "Hesap Adı", 240);
  liste_->CreateNewCaption('m', "ack", "Açıklama", 220);
  liste_->CreateNewCaption('m', "ba", "B/A", 40);
  liste_->CreateNewCaption('b', "tutar", "Tutar", 120);
  liste_->GenisKolon("isim");
  liste_->TercihBoyu(760, 320);
}

QWidget* entyap::ToplamSatiri() {
  auto* satir = new QWidget(this);
  auto* duzen = new QHBoxLayout(satir);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSpacing(8);
  duzen->addStretch(1);
  const auto toplam = [&](const char* baslik, const char* ad) {
    duzen->addWidget(new QLabel(QString::fromUtf8(baslik), satir));
    auto* deger = new QLabel(satir);
    deger->setObjectName(ad);
    deger->setMinimumWidth(130);
    deger->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    duzen->addWidget(deger);
    return deger;
  };
  borc_ = toplam("Borç", "borc");
  alacak_ = toplam("Alacak", "alacak");
  bakiye_ = toplam("Bakiye", "bakiye");
  return satir;
}

// The next number and the names of accounts. Books that cannot be opened are told; the voucher is made all the same.
// Whoever has chosen none keeps them elsewhere: a line says so, and no box at every opening.
void entyap::MuhasebeyiOku() {
  if (MuhasebeSirketi(Oturumu()).empty()) return;
  const auto muhasebe = MuhasebeyiAc(KardesDizini(Oturumu(), MuhasebeSirketi(Oturumu())));
  if (!Oldu(muhasebe)) return;
  if (auto plan = Koru([&] { return HesapPlani::Oku(**muhasebe); }, OkunamayanMuhasebe); Oldu(plan))
    plan_ = std::move(*plan);
  FisNoKoy(**muhasebe);
}

void entyap::FisNoKoy(Motor& muhasebe) {
  const auto no = Koru([&] { return SiradakiFisNo(muhasebe); }, OkunamayanMuhasebe);
  if (Oldu(no)) Denetim(fisalani::fisno).Koy(std::int64_t(*no));
}

// Stopped, the list stays empty.
void entyap::FisiYap() {
  const auto sira = std::size_t(TamDegeri(Denetim(fisalani::grup).Oku()));
  const FisDonemi donem{.yil = yil_, .ay = ay_, .grup = gruplar_[sira < gruplar_.size() ? sira : 0]};
  fis_ = {};
  auto fis = UzunIs(Baglam(), QStringLiteral("Fiş hazırlanıyor…"), [&](Ilerleme& ilerleme) {
    return Koru([&] { return FisOku(Oturumu().depo.db.IcMotor(), donem, &ilerleme); });
  });
  if (fis && Oldu(*fis)) fis_ = std::move(**fis);
  fis_.donem = donem;
  Goster();
  for (const Kusur& dusen : fis_.dusenler) Bildir(dusen);
}

QString entyap::TutarYaz(Tutar tutar) const {
  return Yazi(TutarMetni(tutar, std::clamp<int>(Oturumu().firma.paraonda, 0, 4)));
}

void entyap::Goster() {
  ListeDoldur(*liste_, fis_.satirlar, [this](const FisSatiri& s) {
    return std::array{s.kod, plan_.Adi(s.kod), s.ack, std::string(TarafHarfi(s.ba)), Utf8(TutarYaz(s.tutar))};
  });
  borc_->setText(TutarYaz(fis_.borc));
  alacak_->setText(TutarYaz(fis_.alacak));
  bakiye_->setText(TutarYaz(fis_.Bakiye()));
  bakiye_->setProperty("hata", fis_.Bakiye() != Tutar());
  bakiye_->style()->unpolish(bakiye_);
  bakiye_->style()->polish(bakiye_);
  QStringList eksikler;
  if (MuhasebeSirketi(Oturumu()).empty()) eksikler += QStringLiteral("Muhasebe şirketi seçilmemiş, fiş işlenemez");
  for (const Kusur& kusur : fis_.uyarilar) eksikler += Yazi(kusur.metin);
  eksikler_->setText(eksikler.join('\n'));
  eksikler_->setVisible(!eksikler.isEmpty());
}

FisBasligi entyap::Baslik() const {
  const auto fisno = TamDegeri(Denetim(fisalani::fisno).Oku());
  return {.unvan = Oturumu().firma.unvan,
          .tarih = TarihDegeri(Denetim(fisalani::tarih).Oku()),
          .fisno = fisno == 0 ? "" : std::to_string(fisno),
          .paraonda = Oturumu().firma.paraonda};
}

std::shared_ptr<Belge> entyap::FisiVer() {
  if (fis_.Bos()) Bildirimi().Bilgi(IslenecekHesapYok);
  return FisBelgesi(fis_, Baslik(), plan_);
}

void entyap::YevmiyeYaz() {
  const FisBasligi baslik = Baslik();
  if (const Durum olur = FisDenetle(fis_, baslik.tarih); !olur) return Bildir(olur.Kusuru());
  const std::string ad = "yevmiye-" + baslik.tarih.Iso() + ".journal";
  const auto dosya = Baglam().dialoglar.DosyaKaydet("Yevmiye Dosyası", ad, "Ledger, hledger (*.journal)|*.journal");
  if (!dosya || !Oldu(HedefeYaz(*dosya, YevmiyeMaddesi(fis_, baslik, plan_)))) return;
  const std::string uyari = YevmiyeUyarisi(fis_);
  Bildirimi().Bilgi("Yevmiye dosyası yazıldı: " + *dosya + (uyari.empty() ? "" : "\n" + uyari));
}

// The voucher in the books under the number of the screen.
Sonuc<std::int32_t> entyap::Islenen(Motor& muhasebe) {
  const Tarih tarih = TarihDegeri(Denetim(fisalani::tarih).Oku());
  if (const Durum olur = FisDenetle(fis_, tarih); !olur) return olur.Kusuru();
  const auto bilinenler = Koru([&] { return AyniFisler(muhasebe, fis_.ack); }, OkunamayanMuhasebe);
  if (!bilinenler) return bilinenler.Kusuru();
  const std::string soru = AyniFisSorusu(*bilinenler, fis_.ack);
  if (!soru.empty() && !Bildirimi().Soru(soru)) return std::int32_t(0);
  FisIstegi istek{.tarih = tarih, .bilinenler = *bilinenler};
  if (const auto fisno = std::int32_t(TamDegeri(Denetim(fisalani::fisno).Oku())); fisno > 0) istek.fisno = fisno;
  return FisIsle(muhasebe, fis_, istek);
}

void entyap::Isle() {
  const auto muhasebe = MuhasebeyiAc(KardesDizini(Oturumu(), MuhasebeSirketi(Oturumu())));
  if (!Oldu(muhasebe)) return;
  const auto islenen = Islenen(**muhasebe);
  if (!islenen) {
    const AlanTutamagi yer = islenen.Kusuru().alan;
    Bildir(islenen.Kusuru());
    if (yer == fisgen::fisno) FisNoKoy(**muhasebe);
    if (yer) OdakVer(yer == fisgen::fisno ? AlanTutamagi(fisalani::fisno) : AlanTutamagi(fisalani::tarih));
    return;
  }
  if (*islenen == 0) return;
  fis_ = {};
  Goster();
  FisNoKoy(**muhasebe);
  ZoomEfekt(QStringLiteral("Fiş %1 işlendi").arg(*islenen));
  OdakVer(fisalani::grup);
}

}  // namespace belvani
