#include "payroll/hazirlik/hazirlik.h"

#include <algorithm>

#include "core/asama.h"
#include "core/session/kilitnotu.h"
#include "core/session/yukseltmeadimlari.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/store/yantablolar.h"
#include "core/tables/bordronosu.h"
#include "core/turkce.h"
#include "payroll/hazirlik/aysaklama.h"
#include "payroll/hazirlik/mahsupkaybi.h"
#include "payroll/hazirlik/uyarilar.h"
#include "payroll/hesap/satirlar.h"

namespace belvani {
namespace {

constexpr std::chrono::seconds KilitBekleme{60};  // another mass run is waited for
constexpr std::size_t IlerlemeAraligi = 32;       // people

const std::set<std::string_view> AnahtarKolonlari{brd::yil.ad, brd::ay.ad, brd::no.ad, brd::kod.ad};

bool AyniAnahtar(const Brd& a, const Brd& b) {
  return a.yil == b.yil && a.ay == b.ay && a.no == b.no && a.kod == b.kod;
}

void GirisiUygula(Brd& brd, const GirisSatiri& giris) {
  Brd::HerKolon([&](const auto& kolon) {
    if (giris.verilen.contains(kolon.ad)) brd.*kolon.uye = giris.deger.*kolon.uye;
  });
}

// Entries by person, in any order, found once each.
class GirisListesi {
 public:
  GirisListesi(const std::vector<GirisSatiri>& girisler, Kusurlar& sorunlar) {
    for (const GirisSatiri& g : girisler) sirali_.push_back(&g);
    std::stable_sort(sirali_.begin(), sirali_.end(),
                     [](const auto* a, const auto* b) { return TurkceKarsilastir(a->kod, b->kod) < 0; });
    for (std::size_t i = 1; i < sirali_.size(); ++i)
      if (TurkceEsit(sirali_[i - 1]->kod, sirali_[i]->kod))
        sorunlar.push_back(Sorun(*sirali_[i], "bu kişi listede iki kez var"));
    bulundu_.resize(sirali_.size());
  }

  const GirisSatiri* Bul(const std::string& kod) {
    const auto i =
        std::lower_bound(sirali_.begin(), sirali_.end(), kod,
                         [](const GirisSatiri* g, const std::string& k) { return TurkceKarsilastir(g->kod, k) < 0; });
    if (i == sirali_.end() || !TurkceEsit((*i)->kod, kod)) return nullptr;
    bulundu_[std::size_t(i - sirali_.begin())] = true;
    return *i;
  }

  void BulunmayanlariYaz(Kusurlar& sorunlar) const {
    for (std::size_t i = 0; i < sirali_.size(); ++i)
      if (!bulundu_[i] && (i == 0 || !TurkceEsit(sirali_[i - 1]->kod, sirali_[i]->kod)))
        sorunlar.push_back(Sorun(*sirali_[i], "bu kodla personel yok"));
  }

 private:
  static Kusur Sorun(const GirisSatiri& g, const char* metin) {
    return {.metin = metin, .kod = g.kod, .satir = g.satirNo};
  }

  std::vector<const GirisSatiri*> sirali_;
  std::vector<bool> bulundu_;
};

// One run over the company.
class TopluIs {
 public:
  TopluIs(Motor& motor, const Kosullar& k, const std::vector<GirisSatiri>& girisler)
      : motor_(motor), k_(k), girisler_(girisler, sonuc_.sorunlar), yazici_(motor), yerinde_(motor, AnahtarKolonlari) {}

  void Kisi(const KisiVerisi& kisi) {
    const GirisSatiri* giris = girisler_.Bul(kisi.sicil.kod);
    const CalismaGunu gun = GunSayisiBul(k_.donem, kisi.sicil.girtar, kisi.sicil.ciktar);
    if (gun.uygunluk == DonemUygunlugu::GirisTarihiHatali) {
      Yaz(kisi, giris, "Personel Giriş Tarihi Hatalı", sicil::girtar);
      return;
    }
    if (gun.uygunluk == DonemUygunlugu::DonemDisi) {
      ++sonuc_.donemDisi;
      if (giris != nullptr) Yaz(kisi, giris, "Bu İşçinin Giriş veya Çıkış Tarihleri Döneme Uygun Değil", sicil::girtar);
      return;
    }
    const Durum hesaplandi = TasmaKoru([&] { Hesapla(kisi, giris, gun.CalismaGun); });
    if (!hesaplandi) Yaz(kisi, giris, hesaplandi.KusurMetni());
  }

  HazirlikSonucu Bitir() {
    girisler_.BulunmayanlariYaz(sonuc_.sorunlar);
    sonuc_.kaydedildi = std::none_of(sonuc_.sorunlar.begin(), sonuc_.sorunlar.end(),
                                     [](const Kusur& s) { return s.derece == Derece::Hata; });
    return std::move(sonuc_);
  }

 private:
  void Hesapla(const KisiVerisi& kisi, const GirisSatiri* giris, int CalismaGun) {
    BordroGirdi g = PersonelYukle(kisi, k_, CalismaGun);
    if (const auto kusur = GirdiKusuru(g)) return Yaz(kisi, giris, kusur->metin, kusur->alan);
    for (Kusur& uyari : TanimUyarilari(k_, kisi.sicil)) sonuc_.sorunlar.push_back(std::move(uyari));
    if (giris != nullptr) GirisiUygula(g.giris, *giris);
    BordroSonucu s = BordroHesapla(g, &k_.firma.sablon);
    if (s.gunFazla) {
      return Yaz(kisi, giris,
                 "Bu Personel " + std::to_string(CalismaGun) + " Gün Çalışmış, Çalışma Gününü Fazla Girmişiniz (" +
                     std::to_string(s.SskGun) + " gün)");
    }
    EksikGunuIsle(kisi, giris, CalismaGun, s);
    if (giris != nullptr) YayilanlariBildir(kisi, *giris, s.brd);
    if (s.NetOdenen <= Tutar()) {
      ++sonuc_.netsiz;
      return Yaz(kisi, nullptr,
                 "Net sıfırın üstünde değil, bordrosu kaydedilmedi: " + NetsizNedeni(g, s) +
                     (kisi.kayit ? "; önceki kaydı duruyor" : ""));
    }
    if (kisi.kayit)
      if (const std::string kayip = MahsupKaybi(*kisi.kayit, s.brd, k_.paraonda); !kayip.empty())
        Yaz(kisi, nullptr, kayip, brd::ogv);
    s.brd.gocindir = kisi.kayit ? kisi.kayit->gocindir : Tutar();  // kept, not calculated
    // A record that comes out as it stands is left alone: a month that is run again over itself writes nothing.
    if (!kisi.kayit || *kisi.kayit != s.brd) Kaydet(s.brd, kisi.kayit);
    ++sonuc_.kaydedilen;
  }

  void Kaydet(const Brd& brd, const std::optional<Brd>& eski) {
    if (!std::exchange(saklandi_, true)) AyiSakla(motor_, k_.donem.yil, k_.donem.ay, TopluHazirliktanOnce);
    if (!eski)
      yazici_.Ekle(brd);
    else
      (AyniAnahtar(*eski, brd) ? yerinde_ : yazici_).Degistir(brd, brd.oto);
  }

  // The template knows no reason for missing days, so only an entry list must give one.
  void EksikGunuIsle(const KisiVerisi& kisi, const GirisSatiri* giris, int CalismaGun, BordroSonucu& s) {
    const int ayGunu = AyGunuBul(k_.donem.ay, k_.donem.yil, CalismaGun);
    if (giris != nullptr && !giris->verilen.contains(brd::ucretsizizin.ad))
      s.brd.ucretsizizin = std::uint8_t(std::max(0, UcretsizIzinOnerisi(s.SskGun, ayGunu)));
    const EksikGun eksik = EksikGunDenetle(s.SskGun, CalismaGun, ayGunu, s.brd.eksiksebebi, s.brd.ucretsizizin);
    s.brd.eksiksebebi = std::uint8_t(eksik.sebep);
    s.brd.ucretsizizin = std::uint8_t(eksik.ucretsizizin);
    if (EksikSebepSec(eksik.sebep) < 0)
      Yaz(kisi, giris, "Eksik gün sebebi listede yok: " + std::to_string(eksik.sebep));
    else if (!eksik.tamam && eksik.sebep != 0)
      Yaz(kisi, giris,
          "Eksik Gün Bildirildi, Ücretsiz İzin ile Toplam Gün birlikte " + std::to_string(ayGunu) + " olmalı",
          brd::ucretsizizin);
    else if (!eksik.tamam)
      Yaz(kisi, giris, "Eksik Gün Bildirildi, Eksik Gün Sebebini giriniz");
  }

  // A line that the template spreads over the days follows the template, here as on the payroll screen.
  void YayilanlariBildir(const KisiVerisi& kisi, const GirisSatiri& giris, const Brd& brd) {
    for (const auto& kolon : YardimKolonlari)
      if (giris.verilen.contains(kolon.ad) && giris.deger.*kolon.uye != brd.*kolon.uye)
        Yaz(kisi, nullptr, std::string(kolon.ad) + " şablondan günlere yayılır, listedeki tutar kullanılmadı");
  }

  // What an entry list has wrong keeps the month from being saved; the rest is told and passed over.
  void Yaz(const KisiVerisi& kisi, const GirisSatiri* giris, const std::string& metin, AlanTutamagi alan = {}) {
    sonuc_.sorunlar.push_back({.metin = metin,
                               .alan = alan,
                               .kod = kisi.sicil.kod,
                               .satir = giris == nullptr ? 0 : giris->satirNo,
                               .derece = giris == nullptr ? Derece::Uyari : Derece::Hata});
  }

  Motor& motor_;
  const Kosullar& k_;
  bool saklandi_ = false;  // the month as it was
  HazirlikSonucu sonuc_;
  GirisListesi girisler_;
  KayitYazici<Brd> yazici_;
  KayitYazici<Brd> yerinde_;  // records whose key stays as it is spelled
};

std::size_t KisiSayisi(Motor& motor) {
  const auto komut = motor.Hazirla("select count(*) from sicil");
  const std::size_t sayi = komut->Adim() ? std::size_t(komut->Tam(0)) : 0;
  komut->Birak();
  return sayi;
}

// The record that the person has in that month by now.
std::optional<Brd> AyinKaydi(Motor& motor, const Brd& brd) {
  auto kayitlar = KayitlariOku<Brd>(
      motor, "where yil = ? and ay = ? and kod = ? and " + std::string(BordroNosu) + " = 1 order by oto limit 1",
      {std::int64_t(brd.yil), std::int64_t(brd.ay), brd.kod});
  return kayitlar.empty() ? std::nullopt : std::optional(std::move(kayitlar.front()));
}

YazmaEngeli<Brd> BordroEngeli(CakismaTuru tur, const Brd& onunki, const Brd& brd) {
  const std::string ay = std::string(AyAdi(brd.ay)) + "." + std::to_string(brd.yil);
  return {Kusur{.metin = CakismaMetni(tur, brd.kod + ", " + ay + " bordrosu", {}), .kod = brd.kod},
          Cakisma<Brd>{.tur = tur, .alanlar = {}, .onunki = onunki}};
}

}  // namespace

std::string HazirlikSonucu::Ozet() const {
  return std::to_string(kaydedilen) + " kişi kaydedildi, " + std::to_string(donemDisi) + " kişi dönem dışı, " +
         std::to_string(netsiz) + " kişi netsiz";
}

Sonuc<HazirlikSonucu> TopluHazirla(Oturum& o, const Kosullar& kosullar, const std::vector<GirisSatiri>& girisler,
                                   Ilerleme* ilerleme) {
  const Kusur iptal{"Bordro hazırlık iptal edildi, hiçbir kayıt değişmedi"};
  const auto hazirla = [&]() -> Sonuc<HazirlikSonucu> {
    Motor& motor = o.depo.db.IcMotor();
    Islem islem(motor, KilitBekleme);
    if (const auto yarim = YarimYukseltmeKusuru(motor)) return *yarim;
    OncekileriHazirla(motor);
    const std::size_t toplam = KisiSayisi(motor);
    std::size_t biten = 0;
    bool suruyor = true;
    TopluIs is(motor, kosullar, girisler);
    KisileriOku(motor, kosullar.donem, [&](KisiVerisi& kisi) {
      suruyor = ilerleme == nullptr || biten % IlerlemeAraligi != 0 || ilerleme->Adim(biten, toplam);
      ++biten;
      if (suruyor) is.Kisi(kisi);
      return suruyor;
    });
    if (!suruyor) return iptal;
    HazirlikSonucu sonuc = is.Bitir();
    if (ilerleme != nullptr) ilerleme->Adim(toplam, toplam);
    if (!sonuc.kaydedildi) return sonuc;
    if (ilerleme != nullptr && !ilerleme->Kesin()) return iptal;
    islem.Onayla();
    return sonuc;
  };
  return Koru([&] { return KilitliyseSoyle(o, hazirla); }, "Bordro Kayıtları Güncellenemiyor: ");
}

Yazim<Brd> BordroKaydet(Motor& motor, const Okunan<Brd>& kayit) {
  Okunan<Brd> yazilan = kayit;
  yazilan.simdi.gocindir = kayit.ilk ? kayit.ilk->gocindir : Tutar();
  yazilan.simdi.oto = kayit.ilk ? kayit.ilk->oto : 0;
  Islem islem(motor);
  if (auto yarim = YarimYukseltmeKusuru(motor)) return YazmaEngeli<Brd>(*std::move(yarim));
  if (!kayit.ilk)
    if (const auto baska = AyinKaydi(motor, kayit.simdi))
      return BordroEngeli(CakismaTuru::Eklenmis, *baska, kayit.simdi);
  const auto sonuc = Tablo<Brd>(motor).Yaz(yazilan);
  if (sonuc) {
    islem.Onayla();
    return sonuc;
  }
  const auto& cakisma = sonuc.Kusuru().cakisma;
  return cakisma ? BordroEngeli(cakisma->tur, cakisma->onunki, kayit.simdi) : sonuc.Kusuru();
}

Sonuc<int> BordroSil(Oturum& o, int yil, int ay, Ilerleme* ilerleme) {
  const auto sil = [&] {
    Motor& motor = o.depo.db.IcMotor();
    Islem islem(motor, KilitBekleme);
    OncekileriHazirla(motor);
    AyiSakla(motor, yil, ay, SilinmedenOnce);
    if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
    const auto komut = motor.Hazirla("delete from brd where yil = ? and ay = ?");
    komut->TamBagla(1, yil);
    komut->TamBagla(2, ay);
    komut->Calistir();
    const int silinen = int(motor.DegisenSatir());
    islem.Onayla();
    return silinen;
  };
  return Koru([&] { return KilitliyseSoyle(o, sil); }, "Bordro silinemedi: ");
}

bool BordroTamamMi(int, int, int) {
  return true;
}

}  // namespace belvani
