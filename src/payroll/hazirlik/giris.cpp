#include "payroll/hazirlik/giris.h"

#include <algorithm>

#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/turkce.h"
#include "payroll/hazirlik/mahsupkaybi.h"
#include "payroll/hazirlik/uyarilar.h"
#include "payroll/hesap/kayittoplami.h"
#include "payroll/hesap/netbrut.h"
#include "payroll/hesap/satirlar.h"

namespace belvani {
namespace {

constexpr int TamAy = 30;

CalismaUyarisi UyariYap(const Sicil& s, int CalismaGun) {
  return {s.girtar.Bos() ? "??.??.????" : s.girtar.Metin(), s.ciktar.Bos() ? "Çalışıyor" : s.ciktar.Metin(),
          CalismaGun};
}

// Lines that the fields themselves limit; a program may hand over anything.
std::optional<Kusur> GirisKusuru(const Brd& brd, const YardimTanimlari& yardimlar) {
  std::optional<Kusur> kusur;
  const auto denetle = [&](const auto& kolon, std::string_view ad) {
    const std::string neden = DegerKusuru(kolon, UyeDegeri(brd.*kolon.uye));
    if (!kusur && !neden.empty()) kusur = KuralKusuru(std::string(ad) + ": " + neden, kolon);
  };
  for (std::size_t i = 0; i < MesaiKolonlari.size(); ++i) denetle(MesaiKolonlari[i], KazancAdlari[GunSatiriSayisi + i]);
  for (std::size_t i = 0; i < YardimKolonlari.size(); ++i) denetle(YardimKolonlari[i], yardimlar[i].adi);
  for (const OranKolonu& oran : OranKolonlari) denetle(oran.kolon, oran.ad);
  return kusur;
}

EkranToplamlari ToplamlariBul(const BordroSonucu& s) {
  const Brd& b = s.brd;
  EkranToplamlari t;
  t.kazanclar = Degeri(toplam::kazanclar, b);
  t.yardimlar = b.topyardim;
  t.brut = b.brutkaz;
  t.ssk = b.sskkesinti;
  t.vergiler = Degeri(toplam::vergiler, b);
  t.yasalKesinti = Degeri(toplam::yasalKesinti, b);
  t.ozelKesinti = Degeri(toplam::ozelKesinti, b);
  t.net = s.NetOdenen;
  t.isciToplam = Degeri(toplam::isciToplam, b);
  t.isverenToplam = Degeri(toplam::isverenToplam, b);
  t.kumuleMatrah = Degeri(toplam::kumuleMatrah, b);
  t.kumuleVergi = Degeri(toplam::kumuleVergi, b);
  t.SskGun = s.SskGun;
  t.agi = b.ogv;
  t.panel.muaf = b.muaftutar;
  t.panel.indirim = Degeri(toplam::gvIndirimi, b);
  t.panel.toplam = t.panel.muaf + t.panel.indirim;
  return t;
}

std::optional<std::size_t> AralikSirasi(BordroAlani alan, BordroAlani ilk, BordroAlani son) {
  if (alan < ilk || alan > son) return std::nullopt;
  return std::size_t(alan) - std::size_t(ilk);
}

}  // namespace

std::optional<std::size_t> KazancSirasi(BordroAlani alan) {
  return AralikSirasi(alan, BordroAlani::NormalGun, BordroAlani::Mesai3);
}

std::optional<std::size_t> YardimSirasi(BordroAlani alan) {
  return AralikSirasi(alan, BordroAlani::Yardim1, BordroAlani::Yardim11);
}

BordroGirisi::BordroGirisi(Oturum& oturum, ParametreDeposu& parametreler, Bildirim& bildirim)
    : o_(oturum), parametreler_(parametreler), bildirim_(bildirim), mevzuat_(oturum, parametreler, bildirim) {}

belvani::Sonuc<Kusurlar> BordroGirisi::Ac() {
  EkranTemizle();
  kod_.clear();
  if (!parametreler_.firma.Gecerli())
    if (const Durum okundu = parametreler_.firma.Yukle(); !okundu) return okundu.Kusuru();
  auto k = KosullariKur(o_, parametreler_.yasal, parametreler_.firma.Parametreler(),
                        parametreler_.firma.Kart().firmayil, parametreler_.firma.Kart().firmaay);
  if (!k) return k.Kusuru();
  kosullar_ = std::move(*k);
  SablonuYukle();
  surum_ = parametreler_.Surum();
  if (kosullar_.IsSaatiYazili) return Kusurlar();
  return Kusurlar{KuralKusuru("Firma Bilgilerinde İş Saati Yazılmamış")};
}

// A broken template holds what somebody typed: it goes only when the user says so.
void BordroGirisi::SablonuYukle() {
  const auto okunan = SablonOku(o_.FirmaDizini);
  const bool yazilir =
      okunan.uyarilar.empty() ||
      bildirim_.Soru("Şablon Puantaj okunamadı\n" + okunan.uyarilar.front() + "\n\nYerine hazır şablon yazılsın mı ?");
  kosullar_.firma.sablon = yazilir ? SablonYukle(o_.FirmaDizini).deger : okunan.deger;
}

void BordroGirisi::AyDegistir(int ay) {
  EkranTemizle();
  kosullar_.donem.ay = ay;
  kosullar_.uygulama = UygulamaBul(kosullar_.yasal.kanunlar, ay, kosullar_.donem.yil);
}

Gelisme<bool> BordroGirisi::MevzuatUygun() {
  auto uygun = mevzuat_.Uygun({kosullar_.donem.yil, kosullar_.donem.ay});
  ParametreleriTazele();
  return uygun;
}

Gelisme<bool> BordroGirisi::MevzuatiGetir() {
  auto geldi = mevzuat_.Getir({kosullar_.donem.yil, kosullar_.donem.ay});
  ParametreleriTazele();
  return geldi;
}

std::vector<std::string> BordroGirisi::BordroNolari() {
  std::vector<std::string> nolar = o_.depo.db.Koru(std::vector<std::string>(), [&] {
    const auto komut =
        o_.depo.db.IcMotor().Hazirla("select no from brd where yil = ? and ay = ? group by no order by no");
    komut->TamBagla(1, kosullar_.donem.yil);
    komut->TamBagla(2, kosullar_.donem.ay);
    std::vector<std::string> bulunan;
    while (komut->Adim()) bulunan.push_back(std::to_string(komut->Tam(0)));
    return bulunan;
  });
  nolar.emplace_back("Yeni");
  return nolar;
}

std::optional<Kusur> BordroGirisi::KapanisDenetimi() {
  if (BordroTamamMi(kosullar_.donem.ay, kosullar_.donem.yil, 1)) return std::nullopt;
  return KuralKusuru("Bordrosu Hazırlanmamış Kişi veya Kişiler Var..\nDaha Sonra Tamamlamayı Unutmayınız..");
}

// What a parameter screen has saved meanwhile holds for the calculations after it.
void BordroGirisi::ParametreleriTazele() {
  if (surum_ == parametreler_.Surum()) return;
  auto k = KosullariKur(o_, parametreler_.yasal, parametreler_.firma.Parametreler(), kosullar_.donem.yil,
                        kosullar_.donem.ay);
  if (!k) return;
  kosullar_ = std::move(*k);
  surum_ = parametreler_.Surum();
  if (hal_ != Hal::KisiYok) KosullaraBagla(g_, kisi_, kosullar_);
}

Gelisme<KodSonucu> BordroGirisi::KodAl(std::string_view metin) {
  const std::string kod = BuyukHarf(Kirp(metin));
  if (kod.empty()) return KodSonucu::Bos;
  if (hal_ == Hal::KisiSecili && TurkceEsit(kod, kod_)) return KodSonucu::Yuklendi;
  return Getir(kod, DonemDisiMetni::Gosterilir);
}

Gelisme<KodSonucu> BordroGirisi::Git(Yon yon) {
  // Before nobody stands the last one.
  const Yon nereye = kod_.empty() && yon == Yon::Onceki ? Yon::Son : yon;
  const auto kisi = Koru([&] { return Tablo<Sicil>(o_.depo.db.IcMotor()).Komsu(kod_, nereye); });
  if (!kisi) return {KodSonucu::Yuklenemedi, kisi.Kusuru()};
  if (!*kisi) return KodSonucu::Bos;
  return Getir(BuyukHarf(Kirp((*kisi)->kod)), DonemDisiMetni::Gosterilmez);
}

Gelisme<KodSonucu> BordroGirisi::Getir(const std::string& kod, DonemDisiMetni metin) {
  auto mevzuat = MevzuatUygun();
  if (!mevzuat.hal) return {KodSonucu::Yuklenemedi, std::move(mevzuat.sozler)};
  return KisiyiGetir(kod, metin).Sonra(std::move(mevzuat.sozler));
}

Gelisme<KodSonucu> BordroGirisi::KisiyiGetir(const std::string& kod, DonemDisiMetni metin) {
  auto okunan = Koru([&] { return KisiOku(o_.depo.db.IcMotor(), kosullar_.donem, kod); });
  if (!okunan) return {KodSonucu::Yuklenemedi, okunan.Kusuru()};
  std::optional<KisiVerisi>& kisi = *okunan;
  EkranTemizle();
  kod_ = kod;
  if (!kisi) return {KodSonucu::Bilinmiyor, KuralKusuru("Bu kodla personel yok: " + kod)};
  const CalismaGunu gun = GunSayisiBul(kosullar_.donem, kisi->sicil.girtar, kisi->sicil.ciktar);
  switch (gun.uygunluk) {
    case DonemUygunlugu::GirisTarihiHatali:
      return {KodSonucu::DonemDisi, KuralKusuru("Personel Giriş Tarihi Hatalı")};
    case DonemUygunlugu::DonemDisi:
      if (metin == DonemDisiMetni::Gosterilmez) return KodSonucu::DonemDisi;
      return {KodSonucu::DonemDisi, KuralKusuru("Bu İşçinin Giriş veya Çıkış Tarihleri Döneme Uygun Değil")};
    case DonemUygunlugu::Uygun:
      break;
  }
  return KisiyiAc(std::move(*kisi), gun.CalismaGun);
}

Gelisme<KodSonucu> BordroGirisi::KisiyiAc(KisiVerisi kisi, int CalismaGun) {
  kisi_ = std::move(kisi);
  const Durum yuklendi = TasmaKoru([&] { g_ = PersonelYukle(kisi_, kosullar_, CalismaGun); });
  if (!yuklendi) {
    // An allowance of the template, spread over the days, is beyond every range.
    EkranTemizle();
    return {KodSonucu::Yuklenemedi, yuklendi.Kusuru()};
  }
  hal_ = Hal::KisiSecili;
  if (CalismaGun != TamAy) uyari_ = UyariYap(kisi_.sicil, CalismaGun);
  ayGunu_ = AyGunuBul(kosullar_.donem.ay, kosullar_.donem.yil, CalismaGun);
  Hesapla();
  acilis_ = g_.giris;
  return KodSonucu::Yuklendi;
}

void BordroGirisi::EkranTemizle() {
  hal_ = Hal::KisiYok;
  sonAlan_ = BordroAlani::Kod;
  g_ = {};
  kisi_ = {};
  uyari_.reset();
  sonuc_ = {};
  toplamlar_ = {};
  kusur_.reset();
  ayGunu_ = 0;
}

void BordroGirisi::AlanaGirildi(BordroAlani alan) {
  if (hal_ == Hal::KisiSecili && GirisAlani(alan)) sonAlan_ = alan;
}

const std::optional<Kusur>& BordroGirisi::Hesapla() {
  if (hal_ != Hal::KisiSecili) return kusur_;
  ParametreleriTazele();
  kusur_ = GirisKusuru(g_.giris, kosullar_.firma.yardimlar);
  if (!kusur_) kusur_ = GirdiKusuru(g_);
  if (!kusur_)
    if (const Durum hesaplandi = HesaplaVeGoster(); !hesaplandi) kusur_ = hesaplandi.Kusuru();
  if (!kusur_ && !sonuc_.gunFazla) return kusur_;
  sonuc_.NetOdenen = toplamlar_.net = Tutar();
  sonuc_.SskGun = toplamlar_.SskGun = SskGunu(g_.giris);
  return kusur_;
}

Durum BordroGirisi::HesaplaVeGoster() {
  return TasmaKoru([&] {
    const BordroSonucu s = BordroHesapla(g_, &kosullar_.firma.sablon);
    sonuc_.gunFazla = s.gunFazla;
    if (s.gunFazla) return;
    toplamlar_ = ToplamlariBul(s);
    sonuc_ = s;
    // The template has spread its allowances over the days.
    for (const auto& kolon : YardimKolonlari) g_.giris.*kolon.uye = s.brd.*kolon.uye;
  });
}

SebepSonrasi BordroGirisi::SebepSec(int sira) {
  if (hal_ != Hal::KisiSecili || sira < 0 || std::size_t(sira) >= EksikSebepleri.size())
    return SebepSonrasi::KodAlanina;
  Brd& b = g_.giris;
  b.eksiksebebi = std::uint8_t(BastakiSayi(EksikSebepleri[std::size_t(sira)].substr(0, 2)));
  b.ucretsizizin = sira == 0 ? 0 : std::uint8_t(std::max(0, UcretsizIzinOnerisi(SskGunu(b), ayGunu_)));
  return sira == 0 ? SebepSonrasi::KodAlanina : SebepSonrasi::UcretsizIzne;
}

Durum BordroGirisi::NettenBruteCevir(BordroAlani alan) {
  const auto sira = YardimSirasi(alan);
  if (hal_ != Hal::KisiSecili || !sira) return Tamam();
  Brd& b = g_.giris;
  Tutar& tutar = b.*YardimKolonlari[*sira].uye;
  const Tek oran(b.sskiscior.Sayi() + b.issiziscior.Sayi());
  Durum cevrildi = TasmaKoru([&] {
    tutar = NettenBrut(
        kosullar_.yasal.gv, tutar,
        {oran.Sayi(), b.damgaveror.Sayi(), b.devgvmatrah, kosullar_.yasal.oranlar.SskTavan, kosullar_.paraonda});
  });
  Hesapla();
  return cevrildi;
}

Tutar BordroGirisi::BorcLimiti() const {
  return sonuc_.NetOdenen + g_.giris.borckes;
}

Durum BordroGirisi::BorcAyarla(Tutar borc) {
  if (hal_ != Hal::KisiSecili) return Tamam();
  if (borc < Tutar()) return KuralKusuru("Kesinti Tutarı eksi olamaz", brd::borckes);
  if (const Tutar limit = BorcLimiti(); borc > limit)
    return KuralKusuru("Kesinti Limit Aşıldı \n En fazla " + TutarMetni(limit, kosullar_.paraonda) + " Kesebilirsiniz.",
                       brd::borckes);
  g_.giris.borckes = borc;
  Hesapla();
  return Tamam();
}

std::string BordroGirisi::Baslik() const {
  if (hal_ == Hal::KisiYok) return "Bordro Hazırlık";
  const Sicil& s = kisi_.sicil;
  return s.adi + " " + s.soyadi + " ( SSK No:" + s.sskno + ")";
}

std::string BordroGirisi::CalismaSatiri() const {
  return hal_ == Hal::KisiYok ? "" : "Personel " + std::to_string(g_.CalismaGun) + " Gün Çalışmış..";
}

std::string BordroGirisi::KagittakiTutar(std::string_view alan) const {
  return hal_ == Hal::KisiYok || kusur_ ? std::string() : belvani::KagittakiTutar(kosullar_, sonuc_, alan);
}

std::string BordroGirisi::KisiUyarisi() const {
  if (hal_ == Hal::KisiYok) return "";
  std::string metin = OranFarki(kosullar_, kisi_.sicil, g_.giris);
  for (const Kusur& uyari : TanimUyarilari(kosullar_, kisi_.sicil))
    metin = uyari.metin + (metin.empty() ? "" : "\n") + metin;
  if (const std::string kayip = KaydinKaybi(); !kayip.empty()) metin = kayip + (metin.empty() ? "" : "\n") + metin;
  return metin;
}

std::string BordroGirisi::KaydinKaybi() const {
  return KayitVar() && !kusur_ ? MahsupKaybi(*kisi_.kayit, sonuc_.brd, kosullar_.paraonda) : std::string();
}

bool BordroGirisi::AlanAcik(BordroAlani alan) const {
  if (hal_ != Hal::KisiSecili) return false;
  const auto acik = [](std::uint8_t bayraklar) { return (bayraklar & bayrak::Acik) != 0; };
  if (const auto sira = KazancSirasi(alan)) return acik(g_.bayraklar.k[*sira]);
  if (const auto sira = YardimSirasi(alan)) return acik(g_.bayraklar.y[*sira]);
  return false;
}

Iz BordroGirisi::HesapIzi() const {
  if (hal_ == Hal::KisiYok || kusur_) return {};
  Iz iz;
  // Something may have been typed since the last calculation: what was done up to a fault is told.
  (void)TasmaKoru([&] { BordroHesapla(g_, &kosullar_.firma.sablon, &iz); });
  return iz;
}

}  // namespace belvani
