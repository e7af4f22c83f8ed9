#include "core/store/imlec.h"

#include <algorithm>

#include "core/store/donusum.h"
#include "core/tables/tablolar.h"
#include "core/turkce.h"

namespace belvani {
namespace {

const Deger OkunamayanDeger = std::int64_t(1);

Deger NullOkunusu(AlanTipi tip) {
  if (tip == AlanTipi::Metin || tip == AlanTipi::Tarih) return std::string();
  return std::int64_t(0);
}

}  // namespace

void Imlec::RsKapat() {
  bul_.reset();
  yuru_[0].reset();
  yuru_[1].reset();
  db_ = nullptr;
  tanim_ = nullptr;
  indeks_ = bulIndeksi_ = nullptr;
  alanlar_.clear();
  okunan_.clear();
  okunanBoy_ = okunanSira_ = 0;
  konum_ = Konum::Bos;
  bekleyen_ = Bekleyen::Yok;
}

void Imlec::TabloyaBagla(Veritabani& db, const TabloTanimi& tanim) {
  const auto kolonlar = db.IcMotor().Kolonlar(tanim.ad);
  if (kolonlar.empty()) throw MotorHatasi(MotorKusuru::Diger, "Tablo yok: " + std::string(tanim.ad));
  for (const auto& kolon : kolonlar) {
    const AlanTanimi* alan = tanim.AlanBul(kolon.ad);
    const AlanTipi tip = alan != nullptr ? alan->tip : BildirilenTip(kolon.tip);
    alanlar_.push_back({kolon.ad, tip, alan != nullptr ? *alan : AlanTanimi{"", tip, 255, AlanNiteligi::Serbest}});
  }
  db_ = &db;
  acilisNo_ = db.AcilisNo();
  tanim_ = &tanim;
  SiraDegisti();
  UcaGit(Yon::Ileri);
}

void Imlec::SorguyaBagla(Veritabani& db, Komut& komut, const std::vector<SonucTipi>& tipler) {
  std::vector<std::optional<AlanTipi>> kolonTipleri;
  for (int i = 0; i < komut.KolonSayisi(); ++i) {
    const std::string_view ad = komut.KolonAdi(i);
    std::optional<AlanTipi> tip;
    const auto verilen = std::find_if(tipler.begin(), tipler.end(), [&](const auto& t) { return AdEsit(t.ad, ad); });
    const TabloTanimi* tablo = TabloBul(komut.KaynakTablo(i));
    const AlanTanimi* alan = tablo == nullptr ? nullptr : tablo->AlanBul(komut.KaynakKolon(i));
    if (verilen != tipler.end())
      tip = verilen->tip;
    else if (alan != nullptr)
      tip = alan->tip;
    kolonTipleri.push_back(tip);
    alanlar_.push_back({std::string(ad), tip.value_or(AlanTipi::Tek), {}});
  }
  while (komut.Adim()) {
    Satir& satir = okunan_.emplace_back();
    for (int i = 0; i < int(kolonTipleri.size()); ++i) {
      const auto& tip = kolonTipleri[std::size_t(i)];
      satir.alanlar.push_back(tip ? KolondanDeger(komut, i, *tip) : KolondanDeger(komut, i));
    }
  }
  db_ = &db;
  acilisNo_ = db.AcilisNo();
  okunanBoy_ = okunan_.size();
  konum_ = okunan_.empty() ? Konum::Bos : Konum::Kayitta;
}

int Imlec::KayitSayisi() {
  if (!AcikMi()) return 0;
  if (tanim_ == nullptr) return int(okunan_.size());
  return db_->Koru(0, [&] {
    const auto komut = db_->IcMotor().Hazirla("select count(*) from " + std::string(tanim_->ad));
    return komut->Adim() ? int(komut->Tam(0)) : 0;
  });
}

bool Imlec::IlkKayit() {
  return AcikMi() && db_->Koru(false, [&] { return UcaGit(Yon::Ileri); });
}

bool Imlec::SonKayit() {
  return AcikMi() && db_->Koru(false, [&] { return UcaGit(Yon::Geri); });
}

bool Imlec::SonrakiKayit() {
  if (!AcikMi() || SonMu()) return false;
  return db_->Koru(false, [&] { return konum_ == Konum::Basta ? UcaGit(Yon::Ileri) : Yuru(Yon::Ileri); });
}

bool Imlec::OncekiKayit() {
  if (!AcikMi() || BasMi()) return false;
  return db_->Koru(false, [&] { return konum_ == Konum::Sonda ? UcaGit(Yon::Geri) : Yuru(Yon::Geri); });
}

bool Imlec::Konuma(int sira) {
  if (!AcikMi() || sira < 0) return false;
  if (tanim_ == nullptr) {
    if (std::size_t(sira) >= okunan_.size()) return false;
    okunanSira_ = std::size_t(sira);
    konum_ = Konum::Kayitta;
    return true;
  }
  return db_->Koru(false, [&] {
    const auto komut = db_->IcMotor().Hazirla(SecimMetni() + SiraMetni(Yon::Ileri) + " limit 1 offset ?");
    komut->TamBagla(1, sira);
    if (!komut->Adim()) return false;
    bekleyen_ = Bekleyen::Yok;
    okunanBoy_ = 0;
    ardisik_ = 0;
    SatirAl(*komut, satir_);
    konum_ = Konum::Kayitta;
    return true;
  });
}

bool Imlec::KayitBul(std::string_view indeks, const Deger& anahtar) {
  if (!AcikMi() || tanim_ == nullptr) return false;
  const IndeksTanimi* tanim = tanim_->IndeksBul(indeks);
  if (tanim == nullptr) return false;
  return db_->Koru(false, [&] {
    if (indeks_ != tanim) {
      indeks_ = tanim;
      SiraDegisti();
    }
    bekleyen_ = Bekleyen::Yok;
    okunanBoy_ = 0;
    ardisik_ = 0;
    konum_ = Konum::Belirsiz;
    if (bul_ == nullptr || bulIndeksi_ != tanim) {
      bul_ = db_->IcMotor().Hazirla(SecimMetni() + " where " + std::string(tanim->alanlar.front()) + " = ?" +
                                    SiraMetni(Yon::Ileri) + " limit 1");
      bulIndeksi_ = tanim;
    }
    bul_->Bagla(1, anahtar);
    const bool bulundu = bul_->Adim();
    if (bulundu) {
      SatirAl(*bul_, satir_);
      konum_ = Konum::Kayitta;
    }
    bul_->Birak();
    return bulundu;
  });
}

bool Imlec::IndeksSec(std::string_view indeks) {
  if (!AcikMi() || tanim_ == nullptr) return false;
  const IndeksTanimi* tanim = tanim_->IndeksBul(indeks);
  if (tanim == nullptr) return false;
  if (indeks_ == tanim) return true;
  indeks_ = tanim;
  SiraDegisti();
  return db_->Koru(false, [&] {
    UcaGit(Yon::Ileri);
    return true;
  });
}

int Imlec::AlanSirasi(std::string_view alan) const {
  for (std::size_t i = 0; i < alanlar_.size(); ++i)
    if (AdEsit(alanlar_[i].ad, alan)) return int(i);
  return -1;
}

Deger Imlec::AlanOku(std::string_view alan) {
  const int sira = AlanSirasi(alan);
  if (!AcikMi() || sira < 0) return OkunamayanDeger;
  const AlanBilgisi& bilgi = alanlar_[std::size_t(sira)];
  const auto goster = [&](const Deger& d) { return NullMu(d) ? NullOkunusu(bilgi.tip) : d; };
  if (bekleyen_ != Bekleyen::Yok && yeni_[std::size_t(sira)]) return goster(yeni_[std::size_t(sira)]->deger);
  if (bekleyen_ == Bekleyen::Ekleme) return NullOkunusu(bilgi.tip);
  if (konum_ != Konum::Kayitta) return OkunamayanDeger;
  return goster((tanim_ == nullptr ? okunan_[okunanSira_] : satir_).alanlar[std::size_t(sira)]);
}

void Imlec::KayitDuzelt() {
  if (!AcikMi() || tanim_ == nullptr) return;
  bekleyen_ = konum_ == Konum::Kayitta ? Bekleyen::Duzeltme : Bekleyen::Yok;
  yeni_.assign(alanlar_.size(), std::nullopt);
  bilinmeyenAlan_.clear();
}

void Imlec::KayitEkle() {
  if (!AcikMi() || tanim_ == nullptr) return;
  bekleyen_ = Bekleyen::Ekleme;
  yeni_.assign(alanlar_.size(), std::nullopt);
  bilinmeyenAlan_.clear();
}

void Imlec::AlanYaz(std::string_view alan, const Deger& deger) {
  if (bekleyen_ == Bekleyen::Yok) return;
  const int sira = AlanSirasi(alan);
  if (sira < 0) {
    if (tanim_->AlanBul(alan) == nullptr) bilinmeyenAlan_ = alan;
    return;
  }
  YeniDeger& yeni = yeni_[std::size_t(sira)].emplace();
  yeni.deger = Uydur(alanlar_[std::size_t(sira)].tanim, deger, yeni.kusur);
  if (!yeni.kusur.empty()) yeni.deger = deger;
}

std::string Imlec::YazmaKusuru() const {
  if (!bilinmeyenAlan_.empty()) return "Alan yok: " + bilinmeyenAlan_;
  for (std::size_t i = 0; i < yeni_.size(); ++i)
    if (yeni_[i] && !yeni_[i]->kusur.empty()) return alanlar_[i].ad + ": " + yeni_[i]->kusur;
  return {};
}

// Parameters are the new values in the order of the fields, then, for an update, the row's number.
std::string Imlec::YazmaMetni() const {
  std::string adlar, sorular, atamalar;
  for (std::size_t i = 0; i < yeni_.size(); ++i) {
    if (!yeni_[i]) continue;
    const std::string ayrac = adlar.empty() ? "" : ", ";
    adlar += ayrac + alanlar_[i].ad;
    sorular += ayrac + "?";
    atamalar += ayrac + alanlar_[i].ad + " = ?";
  }
  const std::string tablo(tanim_->ad);
  if (bekleyen_ == Bekleyen::Duzeltme)
    return "update " + tablo + " set " + atamalar + " where " + db_->IcMotor().KimlikKolonu() + " = ?";
  if (adlar.empty()) return "insert into " + tablo + " default values";
  return "insert into " + tablo + " (" + adlar + ") values (" + sorular + ")";
}

bool Imlec::KayitYaz() {
  if (!AcikMi() || bekleyen_ == Bekleyen::Yok) return false;
  return db_->Koru(false, [&] {
    if (const std::string kusur = YazmaKusuru(); !kusur.empty()) throw MotorHatasi(MotorKusuru::Kisit, kusur);
    const bool ekleme = bekleyen_ == Bekleyen::Ekleme;
    const bool bos = std::none_of(yeni_.begin(), yeni_.end(), [](const auto& d) { return d.has_value(); });
    if (bos && !ekleme) {
      bekleyen_ = Bekleyen::Yok;
      return true;
    }
    const auto komut = db_->IcMotor().Hazirla(YazmaMetni());
    int no = 0;
    for (const auto& yeni : yeni_)
      if (yeni) komut->Bagla(++no, yeni->deger);
    if (!ekleme) komut->TamBagla(++no, satir_.kimlik);
    komut->Calistir();
    if (!ekleme && db_->IcMotor().DegisenSatir() == 0)
      throw MotorHatasi(MotorKusuru::Diger, "Kayıt bu arada başka bir kullanıcı tarafından silinmiş");
    bekleyen_ = Bekleyen::Yok;
    if (!ekleme) YenidenOku();
    return true;
  });
}

void Imlec::KayitSil() {
  if (!AcikMi() || tanim_ == nullptr || konum_ != Konum::Kayitta) return;
  db_->Koru(false, [&] {
    const auto komut = db_->IcMotor().Hazirla("delete from " + std::string(tanim_->ad) + " where " +
                                              db_->IcMotor().KimlikKolonu() + " = ?");
    komut->TamBagla(1, satir_.kimlik);
    komut->Calistir();
    bekleyen_ = Bekleyen::Yok;
    konum_ = Konum::Silinmis;
    return true;
  });
}

}  // namespace belvani
