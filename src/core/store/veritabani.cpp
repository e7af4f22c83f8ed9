#include "core/store/veritabani.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include "core/store/imlec.h"
#include "core/store/indeksler.h"
#include "core/tables/tablolar.h"
#include "core/turkce.h"

namespace belvani {
namespace {

void Gunluge(const std::string& metin) {
  const char* yol = std::getenv("BELVANI_GUNLUK");
  if (yol == nullptr || *yol == '\0') return;
  std::ofstream(yol, std::ios::app) << metin << '\n';
}

}  // namespace

Veritabani::Veritabani() = default;
Veritabani::~Veritabani() = default;

void Veritabani::HataYaz(std::string metin) {
  Gunluge(metin);
  sonHata_ = std::move(metin);
}

bool Veritabani::DbAc(const std::string& yol) {
  DbKapat();
  try {
    motor_ = MotorAc(yol);
    return true;
  } catch (const std::exception& h) {
    HataYaz(h.what());
    return false;
  }
}

bool Veritabani::DbYarat(const std::string& yol) {
  DbKapat();
  try {
    motor_ = MotorYarat(yol);
    return true;
  } catch (const std::exception& h) {
    HataYaz(h.what());
    return false;
  }
}

void Veritabani::DbKapat() {
  motor_.reset();
  ++acilisNo_;
}

bool Veritabani::TabloAc(Imlec& rs, std::string_view tablo) {
  rs.RsKapat();
  const bool acildi = Koru(false, [&] {
    const TabloTanimi* tanim = TabloBul(tablo);
    if (tanim == nullptr) throw MotorHatasi(MotorKusuru::Diger, "Tablo yok: " + std::string(tablo));
    rs.TabloyaBagla(*this, *tanim);
    return true;
  });
  if (!acildi) rs.RsKapat();
  return acildi;
}

bool Veritabani::SqlAc(Imlec& rs, std::string_view sql, const std::vector<Deger>& degerler,
                       const std::vector<SonucTipi>& tipler) {
  rs.RsKapat();
  return Koru(false, [&] {
    const auto komut = motor_->Hazirla(sql);
    int no = 0;
    for (const Deger& d : degerler) komut->Bagla(++no, d);
    rs.SorguyaBagla(*this, *komut, tipler);
    return rs.KayitSayisi() > 0;
  });
}

bool Veritabani::TabloVarMi(std::string_view tablo) {
  return Koru(false, [&] { return !motor_->Kolonlar(tablo).empty(); });
}

bool Veritabani::AlanVarMi(std::string_view tablo, std::string_view alan) {
  return Koru(false, [&] {
    const auto kolonlar = motor_->Kolonlar(tablo);
    return std::any_of(kolonlar.begin(), kolonlar.end(), [&](const MotorKolonu& k) { return AdEsit(k.ad, alan); });
  });
}

bool Veritabani::AlanEkle(std::string_view tablo, const AlanTanimi& alan) {
  return Koru(false, [&] {
    if (motor_->Kolonlar(tablo).empty()) throw MotorHatasi(MotorKusuru::Diger, "Tablo yok: " + std::string(tablo));
    // A column added to rows that stand already is Null in them, whatever it is to be later.
    AlanTanimi serbest = alan;
    serbest.nitelik = AlanNiteligi::Serbest;
    motor_->Calistir("alter table " + std::string(tablo) + " add column " + motor_->KolonTanimi(serbest, false));
    return true;
  });
}

bool Veritabani::TabloEkle(const TabloTanimi& tanim) {
  return Koru(false, [&] {
    Islem islem(*motor_);
    std::string kolonlar;
    for (const AlanTanimi& alan : tanim.alanlar)
      if (alan.nitelik != AlanNiteligi::Sonradan)
        kolonlar += (kolonlar.empty() ? "" : ", ") + motor_->KolonTanimi(alan, BirincilMi(tanim, alan.ad));
    motor_->Calistir(motor_->TabloMetni(tanim.ad, kolonlar));
    for (const auto* indeksler : {&tanim.indeksler, &tanim.sorguIndeksleri})
      for (const IndeksTanimi& indeks : *indeksler)
        if (!IndeksAdi(tanim, indeks).empty()) motor_->Calistir(IndeksMetni(tanim, indeks, indeks.tekil));
    islem.Onayla();
    return true;
  });
}

bool Veritabani::IndeksleriKur() {
  return Koru(false, [&] {
    Islem islem(*motor_);
    IndeksleriTamamla(*motor_);
    islem.Onayla();
    return true;
  });
}

}  // namespace belvani
