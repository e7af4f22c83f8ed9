#include "screens/personnel/percik.h"

#include <QGroupBox>

#include "core/store/koru.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "ozluk/ibraname.h"
#include "personnel/kart.h"
#include "screens/personnel/odemetablosu.h"
#include "severance/kidemodemesi.h"
#include "ui/basim.h"
#include "ui/cakisma.h"

namespace belvani {
namespace {

constexpr int AdSoyadHarfi = sicil::adi.boyut + 1 + sicil::soyadi.boyut;
constexpr int AdresHarfi = 30;

AlanGrubu PersonelGrubu() {
  return {"Personel",
          {{cikisformu::kod, "Sicil No", {.anahtar = true}},
           {Uye("adSoyad", &CikisFormu::adSoyad, AdSoyadHarfi), "Adı Soyadı", {.harf = AdSoyadHarfi, .kapali = true}},
           {Uye("sskno", &CikisFormu::sskno, sicil::sskno.boyut), "SSK Sicil No", {.kapali = true}}},
          3};
}

AlanGrubu CikisGrubu() {
  return {"Çıkış",
          {{cikisformu::girtar, "Giriş Tarihi", {.ipucu = "İbranameye basılır; kartı değiştirmez"}},
           {cikisformu::ciktar, "Çıkış Tarihi"},
           {cikisformu::cikiskodu, "Çıkış Kodu", {.liste = CikisKodlari}},
           {cikisformu::cikissebebi, "Çıkış Sebebi"}}};
}

AlanGrubu AdresGrubu() {
  return {"Tebligat Adresi",
          {{Uye("adr1", &CikisFormu::adr1, kimlik::adr1.boyut), "Adresi", {.harf = AdresHarfi}},
           {Uye("adr2", &CikisFormu::adr2, kimlik::adr2.boyut), "", {.harf = AdresHarfi}},
           {Uye("tel", &CikisFormu::tel, kimlik::tel.boyut), "Telefon"}}};
}

// How the release is printed as text; of this print alone.
struct BaskiSecimi {
  bool duzCerceve = false;
};

AlanGrubu BaskiGrubu() {
  return {
      "İbraname Baskısı",
      {{Uye("duzcerceve", &BaskiSecimi::duzCerceve),
        "Düz Çerçeve",
        {.kayitDisi = true, .ipucu = "Metin baskıda çerçeve + - | ile çizilir: kutu harfi olmayan yazıcılar için"}}}};
}

std::size_t OdemeSirasi(std::string_view satir) {
  return std::size_t(std::ranges::find(OdemeSatirlari, satir) - std::begin(OdemeSatirlari));
}

std::string CikisDili(std::string_view alan, const Deger& deger) {
  const bool kodlu = alan == sicil::cikiskodu.ad;
  return kodlu ? std::string(CikisKoduMetni(std::uint8_t(TamDegeri(deger)))) : MetinDegeri(deger);
}

}  // namespace

percik::percik(EkranBaglami& baglam, ParametreDeposu& parametreler)
    : PersonelFormu(baglam, "percik", QStringLiteral("Personel İşten Çıkış Formu")), parametreler_(parametreler) {
  Yerlestir();
  Komutlar(
      {{.komut = FormKomutu::Kaydet, .dugme = "Çıkış Kaydet", .islev = [this] { Kaydet(); }},
       {.dugme = "Çıkış Geri Al", .simge = "degistir", .islev = [this] { GeriAl(); }},
       {.tus = Qt::Key_F6, .dugme = "Tazminatları Getir", .simge = "bordro", .islev = [this] { TazminatlariGetir(); }},
       {.tus = Qt::Key_F8, .dugme = " Yazdır ", .simge = "yazici", .islev = [this] { Yazdir(); }}});
  PersonelKomutlari(cikisformu::kod);
  Goster({});
}

void percik::Yerlestir() {
  Govde()->addWidget(GrupYap(PersonelGrubu()));
  Govde()->addWidget(GrupYap(CikisGrubu()));
  auto* yatay = new QHBoxLayout;
  yatay->setSpacing(12);
  auto* sol = new QVBoxLayout;
  sol->addWidget(GrupYap(AdresGrubu()));
  yatay->addLayout(sol);
  auto* kutu = new QGroupBox(QStringLiteral("İbraname Ödemeleri"), this);
  auto* icerik = new QVBoxLayout(kutu);
  odemeler_ = new OdemeTablosu(Bildirimi(), Oturumu().firma.paraonda, kutu);
  icerik->addWidget(odemeler_, 0, Qt::AlignLeft | Qt::AlignTop);
  yatay->addWidget(kutu, 1);
  sol->addWidget(GrupYap(BaskiGrubu()));
  Govde()->addLayout(yatay);
}

bool percik::Bul(const std::string& kod) {
  const auto bulunan = CikisBul(Oturumu(), kod);
  CikisFormu form = bulunan.value_or(CikisFormu());
  if (!bulunan) form.kod = kod;
  Goster(form);
  return bulunan.has_value();
}

void percik::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Bul(kart->kod);
}

void percik::Goster(const CikisFormu& form) {
  Temizle();
  Yukle(form);
  kart_ = form.kart;
  odemeler_->Bosalt();
  AnahtarKoy(form.kod);
  AlaniSec();
}

// A date that is none goes on as an empty one: the checks of leaving have their own words for it.
CikisFormu percik::Okunan() const {
  CikisFormu form;
  form.kart = kart_;
  for (const auto& d : Denetimler())
    if (d->Satir().kayitTuru == typeid(CikisFormu)) d->Satir().yaz(&form, d->Oku());
  return form;
}

// The person stays on the screen, for his release; the code of the next one may be typed over his.
void percik::Kaydet() {
  if (!EkrandakiMi()) return;
  CikisFormu form = Okunan();
  const auto kart = CikisHazirla(Oturumu(), form);
  if (!Oldu(kart)) return;
  const auto yazilan = SorarakKaydet(
      Baglam(), *this, *kart, [this](const belvani::Okunan<Sicil>& k) { return CikisYaz(Oturumu(), k); }, CikisDili);
  if (!yazilan) return;
  kart_ = *yazilan;
  form.ciktar = yazilan->ciktar;
  form.cikiskodu = yazilan->cikiskodu;
  form.cikissebebi = yazilan->cikissebebi;
  Yukle(form);
  KoddanBasla();
  ZoomEfekt();
}

void percik::GeriAl() {
  if (!EkrandakiMi()) return;
  const auto alindi = CikisGeriAl(Oturumu(), YazilanAnahtar());
  if (!Oldu(alindi) || !*alindi) return;
  Goster({});
  KoddanBasla();
  ZoomEfekt(QStringLiteral("Çıkış geri alındı"));
}

void percik::TazminatlariGetir() {
  if (!EkrandakiMi() || !odemeler_->Bitir()) return;
  const CikisFormu form = Okunan();
  if (form.ciktar.Bos()) return Bildir(KuralKusuru("Çıkış Tarihi Hatası", cikisformu::ciktar));
  const auto cizelge = Koru([&]() -> Sonuc<KidemCizelgesi> {
    KidemHesabi hesap(Oturumu().depo.db.IcMotor(), KidemKosullariYukle({.motor = Oturumu().depo.db.IcMotor(),
                                                                        .yasal = parametreler_.yasal,
                                                                        .firma = Oturumu().firma,
                                                                        .sirket = Oturumu().FirmaDizini}));
    if (!hesap.KisiBul(YazilanAnahtar())) return KuralKusuru("Giriş Tarihi Hatası", cikisformu::girtar);
    hesap.GirisKoy(form.girtar);
    hesap.CikisKoy(form.ciktar);
    return hesap.Cizelge();
  });
  if (!Oldu(cizelge)) return;
  const auto odemeler = KidemOdemeleriYap(*cizelge);
  if (!odemeler) return Bildirimi().Bilgi("Ücreti olmadığı için tazminatı hesaplanamadı");
  const auto koy = [&](std::size_t satir, const KidemOdemesi& o) {
    odemeler_->Koy(satir, {o.brut, o.kesinti, o.net, {}, o.net});
  };
  koy(OdemeSirasi("İhbar Tazminatı"), odemeler->ihbar);
  koy(OdemeSirasi("Kıdem Tazminatı"), odemeler->kidem);
  std::string notlar;
  for (const std::string& soz : cizelge->notlar) notlar += (notlar.empty() ? "" : "\n") + soz;
  if (!notlar.empty()) Bildirimi().Bilgi(notlar);
}

void percik::Yazdir() {
  if (!EkrandakiMi() || !odemeler_->Bitir()) return;
  BaskiSecimi secim;
  if (!Oku(secim)) return;
  const auto belge = IbranameBelgesi({.form = Okunan(),
                                      .firma = Oturumu().firma,
                                      .odemeler = odemeler_->Oku(),
                                      .tarih = Tarih::Bugun(),
                                      .paraonda = Oturumu().firma.paraonda},
                                     secim.duzCerceve ? CerceveTuru::Duz : CerceveTuru::KutuHarfleri);
  BelgeBas(Baglam(), *belge);
}

}  // namespace belvani
