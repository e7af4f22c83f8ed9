#include "core/store/bekleyenkayit.h"

#include <algorithm>

#include "core/store/brdozet.h"
#include "core/store/donusum.h"
#include "core/store/islem.h"
#include "core/tables/brd.h"

namespace belvani {

void BekleyenKayit::Basla(Tur tur, std::size_t alanSayisi) {
  tur_ = tur;
  yeni_.assign(alanSayisi, std::nullopt);
  bilinmeyenAlan_.clear();
}

void BekleyenKayit::AlanKoy(std::size_t sira, const AlanTanimi& alan, const Deger& deger) {
  YeniDeger& yeni = yeni_[sira].emplace();
  yeni.deger = Uydur(alan, deger, yeni.kusur);
  if (!yeni.kusur.empty()) yeni.deger = deger;
}

const Deger* BekleyenKayit::Alan(std::size_t sira) const {
  return tur_ != Tur::Yok && yeni_[sira] ? &yeni_[sira]->deger : nullptr;
}

std::string BekleyenKayit::Kusuru(const TabloGezgini& kayit) const {
  if (!bilinmeyenAlan_.empty()) return "Alan yok: " + bilinmeyenAlan_;
  for (std::size_t i = 0; i < yeni_.size(); ++i)
    if (yeni_[i] && !yeni_[i]->kusur.empty()) return kayit.Alanlar()[i].ad + ": " + yeni_[i]->kusur;
  return {};
}

// Parameters are the new values in the order of the fields, then, for an update, the row's number.
std::string BekleyenKayit::YazmaMetni(Motor& motor, const TabloGezgini& kayit) const {
  std::string adlar, sorular, atamalar;
  for (std::size_t i = 0; i < yeni_.size(); ++i) {
    if (!yeni_[i]) continue;
    const std::string ayrac = adlar.empty() ? "" : ", ";
    const std::string& ad = kayit.Alanlar()[i].ad;
    adlar += ayrac + ad;
    sorular += ayrac + "?";
    atamalar += ayrac + ad + " = ?";
  }
  const std::string tablo(kayit.Tanim().ad);
  if (tur_ == Tur::Duzeltme)
    return "update " + tablo + " set " + atamalar + " where " + motor.KimlikKolonu(tablo) + " = ?";
  if (adlar.empty()) return "insert into " + tablo + " default values";
  return "insert into " + tablo + " (" + adlar + ") values (" + sorular + ")";
}

void BekleyenKayit::Yaz(Motor& motor, const TabloGezgini& kayit) {
  if (const std::string kusur = Kusuru(kayit); !kusur.empty()) throw MotorHatasi(MotorKusuru::Kisit, kusur);
  const bool duzeltme = tur_ == Tur::Duzeltme;
  const bool bos = std::none_of(yeni_.begin(), yeni_.end(), [](const auto& d) { return d.has_value(); });
  if (!bos || !duzeltme) {
    // The record and its checksum are one.
    std::optional<KatilanIslem> islem;
    const bool ozetli = kayit.Tanim().ad == Brd::TabloAdi;
    if (ozetli) islem.emplace(motor);
    const auto komut = motor.Hazirla(YazmaMetni(motor, kayit));
    int no = 0;
    for (const auto& yeni : yeni_)
      if (yeni) komut->Bagla(++no, yeni->deger);
    if (duzeltme) komut->TamBagla(++no, kayit.Kimlik());
    komut->Calistir();
    if (duzeltme && motor.DegisenSatir() == 0)
      throw MotorHatasi(MotorKusuru::Diger, "Kayıt bu arada başka bir kullanıcı tarafından silinmiş");
    if (ozetli) {
      BrdOzetleri(motor).Yenile(duzeltme ? kayit.Kimlik() : motor.SonKimlik());
      islem->Onayla();
    }
  }
  tur_ = Tur::Yok;
}

}  // namespace belvani
