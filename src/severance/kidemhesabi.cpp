#include "severance/kidemhesabi.h"

#include "severance/kidemkisileri.h"

namespace belvani {
namespace {

Tarih YaDaBugun(Tarih tarih) {
  return tarih.Bos() ? Tarih::Bugun() : tarih;
}

}  // namespace

void KidemHesabi::KosullariKoy(KidemKosullari kosullar) {
  kosullar_ = std::move(kosullar);
  tavanAyi_.reset();
  if (kisi_) CikisKoy(form_.ciktar);
}

bool KidemHesabi::KisiBul(std::string_view kod) {
  kisi_ = KidemKartiOku(motor_, kod);
  form_ = {};
  matrah_ = {};
  sonuc_ = {};
  ucretYazildi_ = false;
  yazilanIhbarGun_.reset();
  if (!kisi_) return false;
  form_.kod = kisi_->kod;
  form_.sskno = kisi_->sskno;
  form_.adi = kisi_->adi;
  form_.soyadi = kisi_->soyadi;
  form_.girtar = YaDaBugun(kisi_->girtar);
  form_.ciktar = YaDaBugun(kisi_->ciktar);
  UcretiYukle();
  Hesapla();
  return true;
}

void KidemHesabi::GirisKoy(Tarih girtar) {
  form_.girtar = YaDaBugun(girtar);
  yazilanIhbarGun_.reset();
  Hesapla();
}

void KidemHesabi::CikisKoy(Tarih ciktar) {
  form_.ciktar = YaDaBugun(ciktar);
  yazilanIhbarGun_.reset();
  UcretiYukle();
  Hesapla();
}

void KidemHesabi::UcretKoy(Tutar AylikUcret) {
  form_.AylikUcret = AylikUcret;
  ucretYazildi_ = true;
  Hesapla();
}

void KidemHesabi::IhbarGunKoy(int gun) {
  yazilanIhbarGun_ = gun;
  Hesapla();
}

void KidemHesabi::HaricKoy(bool kidem, bool ihbar) {
  form_.kidemHaric = kidem;
  form_.ihbarHaric = ihbar;
  Hesapla();
}

void KidemHesabi::TavanKoy(KidemTavaniSecimi tavan) {
  form_.tavan = tavan;
  Hesapla();
}

// What hangs on the leaving day: the year's base, the wage of the card, the published ceiling.
void KidemHesabi::UcretiYukle() {
  if (!kisi_) return;
  matrah_ = KidemMatrahiOku(motor_, kisi_->kod, form_.ciktar);
  if (!ucretYazildi_) form_.AylikUcret = UcretYukle(*kisi_, kosullar_.Kurallar(), matrah_);
  const MevzuatAyi ay{form_.ciktar.Yil(), form_.ciktar.Ay()};
  if (tavanAyi_ == ay) return;
  tavan_ = KidemTavaninaBak(kosullar_.yasal, form_.ciktar);
  tavanAyi_ = ay;
}

KidemGirdisi KidemHesabi::Girdi() const {
  return {.girtar = form_.girtar,
          .ciktar = form_.ciktar,
          .AylikUcret = form_.AylikUcret,
          .IhbarGun = yazilanIhbarGun_,
          .matrah = matrah_,
          .KidemTavan = tavan_.Secilen(form_.tavan),
          .bayraklar = kosullar_.Bayraklar(*kisi_),
          .kidemHaric = form_.kidemHaric,
          .ihbarHaric = form_.ihbarHaric};
}

void KidemHesabi::Hesapla() {
  if (!kisi_) return;
  sonuc_ = {};  // nothing of another calculation stays where this one fails
  sonuc_ = KidemHesapla(kosullar_.Kurallar(), Girdi());
  form_.CalismaGunu = sonuc_.CalismaGunu;
  form_.IhbarGun = sonuc_.IhbarGun;
}

Iz KidemHesabi::IzYap() const {
  Iz iz;
  if (!kisi_) return iz;
  if (!ucretYazildi_) UcretYukle(*kisi_, kosullar_.Kurallar(), matrah_, &iz);
  KidemHesapla(kosullar_.Kurallar(), Girdi(), &iz);
  return iz;
}

KidemCizelgesi KidemHesabi::Cizelge() const {
  KidemCizelgesi c{.form = form_,
                   .matrah = matrah_,
                   .KidemTavan = tavan_.Secilen(form_.tavan),
                   .sonuc = sonuc_,
                   .notlar = {},
                   .paraonda = kosullar_.paraonda};
  if (!kisi_) return c;
  if (const std::string soz = tavan_.Soz(form_.tavan); !soz.empty()) c.notlar.push_back(soz);
  if (sonuc_.tutarlar)
    for (auto& soz : AlinmayanVergiler(kosullar_.Bayraklar(*kisi_))) c.notlar.push_back(std::move(soz));
  return c;
}

}  // namespace belvani
