// What ends the entry of a person or of the month: checking and saving, the walk to the next person, deleting, the mass
// run.
#include "core/session/kilitnotu.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/turkce.h"
#include "payroll/hazirlik/aysaklama.h"
#include "payroll/hazirlik/giris.h"
#include "payroll/hazirlik/mahsupkaybi.h"
#include "payroll/hazirlik/uyarilar.h"

namespace belvani {
namespace {

struct Aranan {
  std::string kod;  // "": nobody further belongs to the period
  bool tarihHatali = false;
};

constexpr int AramaAdimi = 32;  // cards; the next person is mostly among the first

// The cards behind a code, sent for along with what is asked next.
std::unique_ptr<Komut> SonrakileriIste(Motor& motor, std::string_view kod) {
  auto komut = motor.Hazirla("select kod, girtar, ciktar from sicil where kod > ? order by kod limit ?");
  komut->MetinBagla(1, kod);
  komut->TamBagla(2, AramaAdimi);
  komut->Gonder();
  return komut;
}

Aranan SonrakiUygun(Motor& motor, const BordroDonemi& donem, std::unique_ptr<Komut> komut) {
  Aranan aranan;
  while (true) {
    int okunan = 0;
    std::string son;
    while (komut->Adim()) {
      ++okunan;
      son = komut->Metin(0);
      Tarih girtar, ciktar;
      KolonAl(*komut, 1, girtar);
      KolonAl(*komut, 2, ciktar);
      const DonemUygunlugu uygunluk = GunSayisiBul(donem, girtar, ciktar).uygunluk;
      if (uygunluk == DonemUygunlugu::GirisTarihiHatali) aranan.tarihHatali = true;
      if (uygunluk != DonemUygunlugu::Uygun) continue;
      aranan.kod = son;
      komut->Birak();
      return aranan;
    }
    if (okunan < AramaAdimi) return aranan;
    komut = SonrakileriIste(motor, son);
  }
}

// "Temmuz 2009"
std::string AyMetni(const BordroDonemi& donem) {
  return std::string(AyAdi(donem.ay)) + " " + std::to_string(donem.yil);
}

}  // namespace

// The days are all worked, or the rest has its reason and fills the month.
bool BordroGirisi::EksikGunTamam(Kusurlar& sozler) {
  Brd& b = g_.giris;
  const EksikGun eksik = EksikGunDenetle(sonuc_.SskGun, g_.CalismaGun, ayGunu_, b.eksiksebebi, b.ucretsizizin);
  b.eksiksebebi = std::uint8_t(eksik.sebep);
  b.ucretsizizin = std::uint8_t(eksik.ucretsizizin);
  if (sonuc_.SskGun == g_.CalismaGun) return true;
  const bool doldurmuyor = !eksik.tamam && eksik.sebep != 0;
  sozler.push_back(KuralKusuru("Eksik Gün Bildirildi\n" + (doldurmuyor ? "Ücretsiz İzin ile Toplam Gün birlikte " +
                                                                             std::to_string(ayGunu_) + " olmalı"
                                                                       : std::string("Eksik Gün Sebebini giriniz"))));
  return eksik.tamam;
}

std::optional<KapanisSonucu> BordroGirisi::Kalma(Kusurlar& sozler) {
  if (Hesapla()) {
    sozler.push_back(*kusur_);
    return KapanisSonucu::KaldiHesapsiz;
  }
  if (sonuc_.gunFazla) {
    sozler.push_back(
        KuralKusuru("Bu Personel " + std::to_string(g_.CalismaGun) + " Gün Çalışmış\nÇalışma Gününü Fazla Girmişiniz"));
    return KapanisSonucu::KaldiGunFazla;
  }
  if (!EksikGunTamam(sozler)) {
    if (sonAlan_ < BordroAlani::EksikSebep) uyari_.reset();
    return KapanisSonucu::KaldiEksikGun;
  }
  if (sonuc_.NetOdenen > Tutar()) return std::nullopt;
  sozler.push_back(KuralKusuru("Net Ödenen Sıfırın Üstünde Değil, Bordrosu Kaydedilmedi\n" + NetsizNedeni(g_, sonuc_) +
                               (KayitVar() ? "\nDaha önce kaydedilen bordrosu olduğu gibi duruyor" : "")));
  return KapanisSonucu::KaldiNetsiz;
}

bool BordroGirisi::SoyleyipSor(Kusurlar& sozler, const std::string& soru) {
  for (const Kusur& soz : std::exchange(sozler, {})) bildirim_.KusuruGoster(soz);
  return bildirim_.Soru(soru);
}

Gelisme<KapanisSonucu> BordroGirisi::Kapat() {
  const bool girildi = sonAlan_ != BordroAlani::Kod || g_.giris != acilis_;
  if (hal_ != Hal::KisiSecili || !girildi) return KapanisSonucu::Kapanmadi;
  auto [uygun, sozler] = MevzuatUygun();
  if (!uygun) return {KapanisSonucu::KaydetmeHatasi, std::move(sozler)};
  if (const auto kalma = Kalma(sozler)) return {*kalma, std::move(sozler)};
  const std::string kayip = KaydinKaybi();
  const bool kaydet =
      !KayitVar() || SoyleyipSor(sozler, "Puantaj Yeniden Kaydedilecek ?" + (kayip.empty() ? "" : "\n" + kayip));
  auto sonrakiler = Koru([&] { return SonrakileriIste(o_.depo.db.IcMotor(), kisi_.sicil.kod); });
  if (kaydet)
    if (auto kalan = Kaydet()) return std::move(*kalan).Sonra(std::move(sozler));
  return SonrakineGec(std::move(sonrakiler)).Sonra(std::move(sozler));
}

std::optional<Gelisme<KapanisSonucu>> BordroGirisi::Kaydet() {
  Brd brd = sonuc_.brd;
  brd.eksiksebebi = g_.giris.eksiksebebi;
  brd.ucretsizizin = g_.giris.ucretsizizin;
  const auto yaz = [&] { return BordroKaydet(o_.depo.db.IcMotor(), {.ilk = kisi_.kayit, .simdi = brd}); };
  const auto yazilan = Koru([&] { return KilitliyseSoyle(o_, yaz); }, "Bordro Kayıtları Güncellenemiyor: ");
  if (yazilan) return std::nullopt;
  if (!yazilan.Kusuru().cakisma) return Gelisme<KapanisSonucu>{KapanisSonucu::KaydetmeHatasi, yazilan.Kusuru()};
  // A mixture of the two would be no payroll: one of them must go.
  if (!bildirim_.SilinsinMi(yazilan.KusurMetni() + "\nEkrandaki Giriş Bırakılsın ve Kişi Yeniden Getirilsin mi ?", {}))
    return KapanisSonucu::KaydetmeHatasi;
  return Gelisme<KapanisSonucu>{KapanisSonucu::YenidenGeldi, Getir(kod_, DonemDisiMetni::Gosterilir).sozler};
}

Gelisme<KapanisSonucu> BordroGirisi::SonrakineGec(belvani::Sonuc<std::unique_ptr<Komut>> sonrakiler) {
  hal_ = Hal::Kaydedildi;
  const auto ara = [&]() -> belvani::Sonuc<Aranan> {
    if (!sonrakiler) return sonrakiler.Kusuru();
    return SonrakiUygun(o_.depo.db.IcMotor(), kosullar_.donem, std::move(*sonrakiler));
  };
  const auto sonraki = Koru(ara);
  if (!sonraki) return {KapanisSonucu::OkumaHatasi, sonraki.Kusuru()};
  Kusurlar sozler;
  if (sonraki->tarihHatali) sozler.push_back(KuralKusuru("Personel Giriş Tarihi Hatalı"));
  if (sonraki->kod.empty()) {
    sozler.push_back(KuralKusuru("Bordro Hazırlık Sona Erdi"));
    return {KapanisSonucu::Bitti, std::move(sozler)};
  }
  kod_ = BuyukHarf(Kirp(sonraki->kod));
  return {KapanisSonucu::SonrakiVar, std::move(sozler)};
}

belvani::Sonuc<Silme> BordroGirisi::KayitSil() {
  if (hal_ != Hal::KisiSecili || !KayitVar()) return Silme::Silinmedi;
  const Sicil& kisi = kisi_.sicil;
  if (!bildirim_.SilinsinMi("Kayıt Silinecek Eminmisiniz ?",
                            kisi.kod + " " + kisi.adi + " " + kisi.soyadi + ", " + AyMetni(kosullar_.donem)))
    return Silme::Silinmedi;
  const Deger oto = std::int64_t(kisi_.kayit->oto);
  const auto silindi = Koru([&] { return Tablo<Brd>(o_.depo.db.IcMotor()).Sil(oto); }, "Kayıt Silinemedi\n");
  if (!silindi) return silindi.Kusuru();
  if (!*silindi) return Kusur{"Kayıt Silinemedi"};
  EkranTemizle();
  return Silme::Silindi;
}

belvani::Sonuc<std::int64_t> BordroGirisi::KayitSayisi() {
  return Koru([&] {
    const auto komut = o_.depo.db.IcMotor().Hazirla("select count(*) from brd where yil = ? and ay = ?");
    komut->TamBagla(1, kosullar_.donem.yil);
    komut->TamBagla(2, kosullar_.donem.ay);
    return komut->Adim() ? komut->Tam(0) : std::int64_t();
  });
}

belvani::Sonuc<Silme> BordroGirisi::AyinBordrosunuSil(const Yurutucu& yurut) {
  const auto sayi = KayitSayisi();
  if (!sayi) return sayi.Kusuru();
  const std::string giden = AyMetni(kosullar_.donem) + ", " + std::to_string(*sayi) + " kişi";
  if (!bildirim_.SilinsinMi("Bordro Tamamen Silinecek Eminmisiniz ?", giden)) return Silme::Silinmedi;
  std::optional<belvani::Sonuc<int>> silinen;
  yurut([&](Ilerleme* ilerleme) { silinen.emplace(BordroSil(o_, kosullar_.donem.yil, kosullar_.donem.ay, ilerleme)); });
  if (!silinen) return Silme::Silinmedi;
  if (!*silinen) return silinen->Kusuru();
  EkranTemizle();
  return Silme::Silindi;
}

belvani::Sonuc<std::optional<int>> BordroGirisi::AyiGeriAl(const Yurutucu& yurut) {
  auto gelen = belvani::AyiGeriAl(o_, kosullar_.donem.yil, kosullar_.donem.ay, bildirim_, yurut);
  if (gelen && *gelen) EkranTemizle();
  return gelen;
}

belvani::Sonuc<bool> BordroGirisi::MahsupSilinsinMi() {
  const BordroDonemi& donem = kosullar_.donem;
  const auto kayip =
      Koru([&] { return AyinMahsupKaybi(o_.depo.db.IcMotor(), donem.yil, donem.ay, kosullar_.paraonda); });
  if (!kayip) return kayip.Kusuru();
  return !*kayip || bildirim_.SilinsinMi((*kayip)->metin + "\nYine de hazırlansın mı ?", {});
}

belvani::Sonuc<HazirlikSonucu> BordroGirisi::SablondanHazirla(Ilerleme* ilerleme) {
  const MevzuatGorusu gorus = parametreler_.MevzuataBak(o_, {kosullar_.donem.yil, kosullar_.donem.ay});
  if (gorus.hal == MevzuatHali::Kullanilamaz) return Kusur{gorus.Metin()};
  ParametreleriTazele();
  EkranTemizle();
  auto sonuc = TopluHazirla(o_, kosullar_, {}, ilerleme);
  if (sonuc && gorus.hal != MevzuatHali::Uygun)
    sonuc->sorunlar.insert(sonuc->sorunlar.begin(), Kusur{.metin = gorus.Metin(), .derece = Derece::Uyari});
  return sonuc;
}

}  // namespace belvani
