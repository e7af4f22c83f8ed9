#include "screens/personnel/perkart.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>

#include "payroll/hazirlik/tanimlar.h"
#include "personnel/kart.h"
#include "ui/kodrehberi.h"
#include "screens/personnel/resimkutusu.h"
#include "screens/personnel/sigortakollari.h"
#include "ui/cakisma.h"
#include "ui/metin.h"
#include "ui/xtext.h"

namespace belvani {
namespace {

constexpr auto FotoFiltresi = "Resim Dosyası(*.bmp,*.gif,*.jpg)|*.bmp;*.gif;*.jpg";

AlanGrubu KimlikGrubu() {
  return {"Personel",
          {EtiketliAlan(sicil::kod, {.anahtar = true}), EtiketliAlan(sicil::adi, {.harf = 26}),
           EtiketliAlan(sicil::soyadi, {.harf = 26}), EtiketliAlan(sicil::ilksoyadi, {.harf = 26}),
           EtiketliAlan(sicil::sskno, {.harf = 26}), EtiketliAlan(sicil::sskdurum, {.liste = SonraDolar, .harf = 26})}};
}

AlanGrubu UcretGrubu() {
  return {"Ücret",
          {EtiketliAlan(sicil::ucrettipi, {.liste = UcretTipleri, .harf = 14}),
           EtiketliAlan(sicil::ucret, {.ondalik = ParaOndalik}),
           {sicil::ucretags, "Ücret Esası", {.liste = UcretEsaslari, .secenek = true}}}};
}

AlanGrubu TarihGrubu() {
  return {"Tarihler", {EtiketliAlan(sicil::girtar), EtiketliAlan(sicil::ciktar)}, 2};
}

AlanGrubu KodGrubu() {
  return {"Gruplar",
          {EtiketliAlan(sicil::grup), EtiketliAlan(sicil::tip), EtiketliAlan(sicil::ozel),
           EtiketliAlan(sicil::hesap, {.rehber = true}), EtiketliAlan(sicil::iskolu),
           EtiketliAlan(sicil::kanun, {.harf = 8})},
          2};
}

AlanGrubu VergiGrubu() {
  return {"Vergi, Sendika, Emeklilik",
          {EtiketliAlan(sicil::tasno, {.harf = 20, .rehber = true}), EtiketliAlan(sicil::verda, {.harf = 20}),
           EtiketliAlan(sicil::verno, {.harf = 20}),
           EtiketliAlan(sicil::tahsisno, {.harf = 20, .ipucu = "Sadece Emeklilerde Kullanılacaktır"}),
           EtiketliAlan(sicil::sakatdrc, {.liste = SakatlikDereceleri, .harf = 14})}};
}

// What the company calls its deduction; `no` from 0.
std::string IndirimAdi(const IndirimTanimlari& tanimlar, std::size_t no) {
  const bool adli = tanimlar[no] && !tanimlar[no]->adi.empty();
  return adli ? tanimlar[no]->adi : "İndirim " + std::to_string(no + 1);
}

AlanGrubu BordroGrubu() {
  return {"Bordro",
          {{sicil::agi, " Asgari Geçim İndirimi "}, {sicil::tur, " Huzur Hakkı Bordrosuna Aitlik ", {.kutu = true}}}};
}

}  // namespace

perkart::perkart(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : PersonelFormu(baglam, "perkart", QStringLiteral("Personel Kartları")), parametreler_(parametreler) {
  Yerlestir();
  SigortaKollariniKoy(Denetim(sicil::sskdurum), parametreler.yasal.hesapTurleri);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kaydet", .islev = [this] { Kaydet(); }},
            {.komut = FormKomutu::Sil, .dugme = "Sil", .islev = [this] { Sil(); }}});
  PersonelKomutlari(sicil::kod);
  for (const AlanTutamagi alan : {AlanTutamagi(sicil::hesap), AlanTutamagi(sicil::tasno)})
    RehberBagla(YaziKutusu(alan));
  Komutlar({{.tus = Qt::CTRL | Qt::Key_R, .ipucu = "Resim Ekle", .islev = [this] { ResimEkle(); }},
            {.tus = Qt::CTRL | Qt::SHIFT | Qt::Key_R, .ipucu = "Resim Sil", .islev = [this] { ResimSil(); }}});
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().Tutamak() == sicil::ucrettipi) UcretTipiDegisti();
  };
  Bosalt();
}

// What every new card needs stands first, in the left column.
void perkart::Yerlestir() {
  Govde()->addLayout(YanYana({{GrupYap(KimlikGrubu()), GrupYap(UcretGrubu()), GrupYap(BordroGrubu())},
                              {GrupYap(TarihGrubu()), GrupYap(KodGrubu()), GrupYap(VergiGrubu())},
                              {IndirimleriYap(), ResmiYap()}}));
}

QWidget* perkart::IndirimleriYap() {
  auto* kutu = new QGroupBox(QStringLiteral("İndirimler"), this);
  auto* izgara = new QGridLayout(kutu);
  izgara->setHorizontalSpacing(14);
  izgara->setVerticalSpacing(6);
  const auto ekle = [&](int no, const auto& isaret, const auto& tutar) {
    const std::string ad = IndirimAdi(parametreler_.firma.Parametreler().indirimler, std::size_t(no));
    izgara->addWidget(DenetimEkle({isaret, ad.c_str()}, kutu).Parca(), no, 0);
    izgara->addWidget(
        DenetimEkle({tutar, ad.c_str(), {.ondalik = ParaOndalik, .harf = 12, .ipucu = "İndirim tutarı"}}, kutu).Parca(),
        no, 1);
  };
  ekle(0, sicil::indirim1, sicil::indtut1);
  ekle(1, sicil::indirim2, sicil::indtut2);
  ekle(2, sicil::indirim3, sicil::indtut3);
  izgara->setColumnStretch(0, 1);
  return kutu;
}

QWidget* perkart::ResmiYap() {
  auto* kutu = new QGroupBox(QStringLiteral("Fotoğraf"), this);
  auto* icerik = new QHBoxLayout(kutu);
  resim_ = new ResimKutusu(kutu);
  icerik->addWidget(resim_, 0, Qt::AlignHCenter);
  resim_->Ekle = [this] { ResimEkle(); };
  resim_->Sil = [this] { ResimSil(); };
  Izle(resim_);
  return kutu;
}

// Groups and unions are chosen from the company's own.
bool perkart::AlanRehberi() {
  const FirmaParametreleri& firma = parametreler_.firma.Parametreler();
  std::vector<KodSecenegi> secenekler;
  xtext* alan = qobject_cast<xtext*>(focusWidget());
  if (alan == &YaziKutusu(sicil::hesap))
    for (std::string& grup : KazancGruplari(firma)) secenekler.push_back({std::move(grup), ""});
  else if (alan == &YaziKutusu(sicil::tasno))
    for (const Sendika& s : firma.sendikalar) secenekler.push_back({s.kod, s.adi});
  else
    return false;
  const auto baslik = alan == &YaziKutusu(sicil::hesap) ? "Hesap Grupları" : "Sendikalar";
  if (const auto secilen = KodSec(Baglam(), baslik, secenekler, Utf8(alan->text()))) {
    alan->selectAll();
    alan->insert(Yazi(*secilen));
  }
  alan->setFocus();
  return true;
}

bool perkart::Bul(const std::string& kod) {
  if (const auto kart = KartBul(Oturumu(), kod)) {
    Goster(*kart);
    return true;
  }
  Bosalt();
  AnahtarKoy(kod);
  return false;
}

void perkart::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Goster(*kart);
}

void perkart::Goster(const Sicil& kart) {
  Bosalt();
  okunan_ = kart;
  Sicil gosterilen = kart;
  gosterilen.ucret = GosterilenUcret(kart, parametreler_.yasal.oranlar.AsgariUcret);
  Yukle(gosterilen);
  AnahtarKoy(kart.kod);
  yaziliUcret_ = kart.ucret;
  UcretiAcKapat();
  if (const auto dosya = FotoOku(Oturumu(), kart.kod)) resim_->Goster(*dosya);
  AlaniSec();
}

void perkart::Bosalt() {
  Temizle();
  okunan_.reset();
  yeniResim_.clear();
  yaziliUcret_ = {};
  resim_->Bosalt();
  UcretiAcKapat();
}

// The minimum wage is shown and not typed; the wage that stood there comes back with another kind.
void perkart::UcretTipiDegisti() {
  Sicil kart;
  AlanDenetimi& ucret = Denetim(sicil::ucret);
  const bool asgariydi = ucret.YaziKutusu()->isReadOnly();
  if (!asgariydi) yaziliUcret_ = TutarDegeri(ucret.Oku());
  kart.ucrettipi = std::uint8_t(TamDegeri(Denetim(sicil::ucrettipi).Oku()));
  kart.ucret = yaziliUcret_;
  ucret.Koy(GosterilenUcret(kart, parametreler_.yasal.oranlar.AsgariUcret));
  UcretiAcKapat();
}

void perkart::UcretiAcKapat() {
  Denetim(sicil::ucret).Kapat(TamDegeri(Denetim(sicil::ucrettipi).Oku()) == AsgariUcretSirasi);
}

void perkart::Kaydet() {
  if (!EkrandakiMi()) return;
  Okunan<Sicil> kart{.ilk = okunan_, .simdi = okunan_.value_or(Sicil{})};
  if (!Oku(kart.simdi)) return;
  const auto yazim = SorarakKaydet(Baglam(), *this, kart,
                                   [this](const Okunan<Sicil>& k) { return KartKaydet(Oturumu(), k, yeniResim_); });
  if (!yazim) return;
  for (const Kusur& uyari : yazim->uyarilar) Bildir(uyari);
  Bosalt();
  KoddanBasla();
  ZoomEfekt();
}

void perkart::Sil() {
  if (!EkrandakiMi() || !Silindi(KartSil(Oturumu(), YazilanAnahtar(), Bildirimi()))) return;
  Bosalt();
  KoddanBasla();
}

void perkart::ResimEkle() {
  const std::string dizin =
      yeniResim_.empty() ? Utf8(QDir::homePath()) : Utf8(QFileInfo(Yazi(yeniResim_)).absolutePath());
  const auto dosya = Baglam().dialoglar.DosyaAc("Resim Seçiniz", dizin, FotoFiltresi);
  if (!dosya) return;
  if (resim_->Goster(*dosya))
    yeniResim_ = *dosya;
  else
    Bildirimi().Bilgi("Resim Dosyası Okunamadı\n" + *dosya);
}

void perkart::ResimSil() {
  if (!EkrandakiMi() || !Oldu(FotoSil(Oturumu(), YazilanAnahtar()))) return;
  yeniResim_.clear();
  resim_->Bosalt();
}

}  // namespace belvani
