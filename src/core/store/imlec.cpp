#include "core/store/imlec.h"

#include "core/store/sorgugezgini.h"

namespace belvani {
namespace {

using Tur = BekleyenKayit::Tur;

const Deger OkunamayanDeger = std::int64_t(1);

Deger NullOkunusu(AlanTipi tip) {
  if (tip == AlanTipi::Metin || tip == AlanTipi::Tarih) return std::string();
  return std::int64_t(0);
}

}  // namespace

void Imlec::RsKapat() {
  gezgin_.reset();
  tablo_ = nullptr;
  db_ = nullptr;
  bekleyen_.Birak();
}

void Imlec::TabloyaBagla(Veritabani& db, const TabloTanimi& tanim) {
  auto tablo = std::make_unique<TabloGezgini>(db.IcMotor(), tanim);
  tablo_ = tablo.get();
  gezgin_ = std::move(tablo);
  db_ = &db;
  acilisNo_ = db.AcilisNo();
}

void Imlec::SorguyaBagla(Veritabani& db, Komut& komut, const std::vector<SonucTipi>& tipler) {
  gezgin_ = std::make_unique<SorguGezgini>(komut, tipler);
  db_ = &db;
  acilisNo_ = db.AcilisNo();
}

int Imlec::KayitSayisi() {
  if (!AcikMi()) return 0;
  return db_->Koru(0, [&] { return gezgin_->KayitSayisi(); });
}

bool Imlec::UcaGit(Yon uc) {
  bekleyen_.Birak();
  return gezgin_->UcaGit(uc);
}

bool Imlec::Yuru(Yon yon) {
  bekleyen_.Birak();
  return gezgin_->Yuru(yon);
}

bool Imlec::IlkKayit() {
  return AcikMi() && db_->Koru(false, [&] { return UcaGit(Yon::Ilk); });
}

bool Imlec::SonKayit() {
  return AcikMi() && db_->Koru(false, [&] { return UcaGit(Yon::Son); });
}

bool Imlec::SonrakiKayit() {
  if (!AcikMi() || SonMu()) return false;
  return db_->Koru(false, [&] { return BasMi() ? UcaGit(Yon::Ilk) : Yuru(Yon::Sonraki); });
}

bool Imlec::OncekiKayit() {
  if (!AcikMi() || BasMi()) return false;
  return db_->Koru(false, [&] { return SonMu() ? UcaGit(Yon::Son) : Yuru(Yon::Onceki); });
}

bool Imlec::Konuma(int sira) {
  if (!AcikMi() || sira < 0) return false;
  return db_->Koru(false, [&] {
    if (!gezgin_->Konuma(sira)) return false;
    bekleyen_.Birak();
    return true;
  });
}

bool Imlec::KayitBul(std::string_view indeks, const Deger& anahtar) {
  const IndeksTanimi* tanim = AcikMi() && tablo_ != nullptr ? tablo_->Tanim().IndeksBul(indeks) : nullptr;
  if (tanim == nullptr) return false;
  return db_->Koru(false, [&] {
    bekleyen_.Birak();
    tablo_->SiraSec(*tanim);
    return tablo_->Bul(anahtar);
  });
}

bool Imlec::IndeksSec(std::string_view indeks) {
  const IndeksTanimi* tanim = AcikMi() && tablo_ != nullptr ? tablo_->Tanim().IndeksBul(indeks) : nullptr;
  if (tanim == nullptr) return false;
  if (!tablo_->SiraSec(*tanim)) return true;
  return db_->Koru(false, [&] {
    UcaGit(Yon::Ilk);
    return true;
  });
}

Deger Imlec::AlanOku(std::string_view alan) {
  const int yer = AcikMi() ? gezgin_->AlanSirasi(alan) : -1;
  if (yer < 0) return OkunamayanDeger;
  const auto sira = std::size_t(yer);
  const AlanTipi tip = gezgin_->Alanlar()[sira].tip;
  const auto goster = [&](const Deger& d) { return NullMu(d) ? NullOkunusu(tip) : d; };
  if (const Deger* yeni = bekleyen_.Alan(sira)) return goster(*yeni);
  if (bekleyen_.Turu() == Tur::Ekleme) return NullOkunusu(tip);
  return Konum() == Gezgin::Konum::Kayitta ? goster(gezgin_->Alan(sira)) : OkunamayanDeger;
}

void Imlec::KayitDuzelt() {
  if (!AcikMi() || tablo_ == nullptr) return;
  bekleyen_.Basla(Konum() == Gezgin::Konum::Kayitta ? Tur::Duzeltme : Tur::Yok, gezgin_->Alanlar().size());
}

void Imlec::KayitEkle() {
  if (!AcikMi() || tablo_ == nullptr) return;
  bekleyen_.Basla(Tur::Ekleme, gezgin_->Alanlar().size());
}

void Imlec::AlanYaz(std::string_view alan, const Deger& deger) {
  if (bekleyen_.Turu() == Tur::Yok) return;
  const int sira = gezgin_->AlanSirasi(alan);
  if (sira >= 0)
    bekleyen_.AlanKoy(std::size_t(sira), gezgin_->Alanlar()[std::size_t(sira)].tanim, deger);
  else if (tablo_->Tanim().AlanBul(alan) == nullptr)
    bekleyen_.BilinmeyenAlan(alan);
}

bool Imlec::KayitYaz() {
  if (!AcikMi() || bekleyen_.Turu() == Tur::Yok) return false;
  return db_->Koru(false, [&] {
    const bool duzeltme = bekleyen_.Turu() == Tur::Duzeltme;
    bekleyen_.Yaz(db_->IcMotor(), *tablo_);
    if (duzeltme) tablo_->YenidenOku();
    return true;
  });
}

void Imlec::KayitSil() {
  if (!AcikMi() || tablo_ == nullptr || Konum() != Gezgin::Konum::Kayitta) return;
  db_->Koru(false, [&] {
    Motor& motor = db_->IcMotor();
    const auto komut = motor.Hazirla("delete from " + std::string(tablo_->Tanim().ad) + " where " +
                                     motor.KimlikKolonu(tablo_->Tanim().ad) + " = ?");
    komut->TamBagla(1, tablo_->Kimlik());
    komut->Calistir();
    bekleyen_.Birak();
    tablo_->Silindi();
    return true;
  });
}

}  // namespace belvani
