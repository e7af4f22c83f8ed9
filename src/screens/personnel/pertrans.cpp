#include "screens/personnel/pertrans.h"

#include "core/session/sirket.h"
#include "personnel/kart.h"

namespace belvani {
namespace {

// Shown of the person.
struct Kopyalanan {
  std::string sskno, adi, soyadi;
  Tarih girtar;
};

// The chosen one of the companies.
struct SirketSecimi {
  std::int16_t sira = 0;
};
constexpr auto SirketAlani = Uye("hedef", &SirketSecimi::sira);

AlanGrubu GidenPersonelGrubu() {
  return {"Personel",
          {{transferformu::kod, "Personel Kodu", {.anahtar = true}},
           {Uye("sskno", &Kopyalanan::sskno, sicil::sskno.boyut), "S.S.K. Sicil No", {.kapali = true}},
           {Uye("adi", &Kopyalanan::adi, sicil::adi.boyut), "Adı", {.kapali = true}},
           {Uye("soyadi", &Kopyalanan::soyadi, sicil::soyadi.boyut), "Soyadı", {.kapali = true}},
           {Uye("girtar", &Kopyalanan::girtar), "Giriş Tarihi", {.kapali = true}}}};
}

AlanGrubu HedefGrubu() {
  return {"Yeni Şirket",
          {{SirketAlani, "Giriş Yapılacak Şirket", {.liste = SonraDolar, .harf = 24, .kayitDisi = true}},
           {transferformu::yeniKod, "Yeni Personel Kodu", {.kayitDisi = true}},
           {transferformu::yeniGiris, "(Yeni Şirkete Giriş Tarihi)", {.kayitDisi = true}}}};
}

AlanGrubu BuradanCikisGrubu() {
  return {"Buradan Çıkış",
          {{transferformu::cikisYap, "Bu Şirketten Çıkışı Yapılsın", {.kayitDisi = true}},
           {transferformu::ciktar, "Çıkış Tarihi", {.kayitDisi = true}},
           {transferformu::cikiskodu, "Çıkış Kodu", {.liste = CikisKodlari, .harf = 48, .kayitDisi = true}},
           {transferformu::cikissebebi, "Çıkış Sebebi", {.kayitDisi = true}}}};
}

}  // namespace

pertrans::pertrans(EkranBaglami& baglam)
    : PersonelFormu(baglam, "pertrans", QStringLiteral("Şirketler Arası Personel Kopyalama")),
      sirketler_(Sirketler(baglam.oturum.DataPath)) {
  AlanlariDiz({{GidenPersonelGrubu(), HedefGrubu(), BuradanCikisGrubu()}});
  YaziEkle(QStringLiteral("Bordro, aile kayıtları ve resim kopyalanmaz."), "soluk");
  SecenekleriKoy(Denetim(SirketAlani), sirketler_);
  Komutlar({{.komut = FormKomutu::Kaydet, .dugme = "Kopyala", .islev = [this] { Kopyala(); }, .ad = "CommandButton1"}});
  PersonelKomutlari(transferformu::kod);
  AlanDegisti = [this](AlanDenetimi& alan) {
    if (alan.Satir().Tutamak() == transferformu::cikisYap) CikisiAcKapat();
  };
  CikisiAcKapat();
}

void pertrans::CikisiAcKapat() {
  const bool acik = MantikDegeri(Denetim(transferformu::cikisYap).Oku());
  for (const AlanTutamagi alan : {AlanTutamagi(transferformu::ciktar), AlanTutamagi(transferformu::cikiskodu),
                                  AlanTutamagi(transferformu::cikissebebi)})
    Denetim(alan).Kapat(!acik);
}

bool pertrans::Bul(const std::string& kod) {
  const auto kart = KartBul(Oturumu(), kod);
  Yukle(kart ? Kopyalanan{kart->sskno, kart->adi, kart->soyadi, kart->girtar} : Kopyalanan());
  AnahtarKoy(kart ? kart->kod : kod);
  Denetim(transferformu::yeniKod).Koy(kart ? kart->kod : std::string());
  AlaniSec();
  return kart.has_value();
}

void pertrans::Git(Yon yon) {
  if (const auto kart = KartGit(Oturumu(), yon, SonAnahtar())) Bul(kart->kod);
}

// A date that is none goes on as an empty one: the checks have their own words for it.
TransferFormu pertrans::Okunan() const {
  TransferFormu form;
  for (const auto& d : Denetimler())
    if (d->Satir().kayitTuru == typeid(TransferFormu)) d->Satir().yaz(&form, d->Oku());
  const auto sira = std::size_t(TamDegeri(Denetim(SirketAlani).Oku()));
  if (sira < sirketler_.size()) form.hedef = sirketler_[sira];
  return form;
}

void pertrans::Kopyala() {
  if (!EkrandakiMi()) return;
  const auto transfer = PersonelTransfer(Oturumu(), Okunan());
  if (!transfer) {
    Kusur kusur = transfer.Kusuru();
    if (kusur.alan == transferformu::hedef) kusur.alan = SirketAlani;
    return Bildir(kusur);
  }
  ZoomEfekt(QStringLiteral("Kopyalandı"));
  if (const std::string uyari = transfer->Uyari(); !uyari.empty()) Bildirimi().Uyari(uyari);
  KoddanBasla();
}

}  // namespace belvani
