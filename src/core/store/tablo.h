// Tablo<Kayit>: the one gateway to a record: found, walked to, written and deleted by the key of its table.
//
//   Tablo<Sicil> kartlar(motor, AlanEtiketi);
//   auto kart = kartlar.Bul("0012");                    // nothing: no such person
//   Okunan<Sicil> okunan{kart, *kart};
//   okunan.simdi.ucret = Tutar(1200);
//   if (const auto yazilan = kartlar.Yaz(okunan); !yazilan) Bildir(yazilan.Kusuru());
//
// A write is given the record as it was read. Only the columns that have been changed since are written, so what two
// users change in different columns is kept of both; where they have changed the same column nothing is written, and
// the refusal holds the other one's record (core/store/cakisma.h). Records whose columns follow from one another are
// written whole, and not at all once anything in them has changed. All of it is judged inside the write transaction:
// the one that is open, else one of its own.
//
// Columns that an older store lacks read as empty and are passed over in writing. Failures of the engine are
// MotorHatasi; values that do not fit their columns, and other users, come back as values.
#pragma once

#include <cassert>

#include "core/store/cakisma.h"
#include "core/store/islem.h"
#include "core/store/satirlar.h"
#include "core/store/yon.h"
#include "core/tables/kayitkusuru.h"
#include "core/tables/tablolar.h"

namespace belvani {

// Used through their first record alone, whatever its key.
template <class Kayit>
constexpr bool TekKayitli = std::is_same_v<Kayit, Firma> || std::is_same_v<Kayit, Arac>;

// Their columns follow from one another: a mixture of two would be wrong.
template <class Kayit>
constexpr bool ButunYazilir = std::is_same_v<Kayit, Brd> || std::is_same_v<Kayit, Dvr>;

template <class Kayit>
class Tablo {
 public:
  // `etiket`: what the user calls the columns, for the words of refusals.
  explicit Tablo(Motor& motor, EtiketIslevi etiket = AlanAdi)
      : motor_(motor), etiket_(etiket), kolonlar_(motor), anahtar_(AnahtarKolonu()) {}

  // Text keys ignore case.
  std::optional<Kayit> Bul(const Deger& anahtar) {
    auto satir = SatirBul(anahtar);
    return satir ? std::optional(std::move(satir->kayit)) : std::nullopt;
  }
  // The record of a table that has one.
  std::optional<Kayit> Bul() {
    static_assert(TekKayitli<Kayit>, "by its key");
    return Bul(Deger(Null{}));
  }

  // The record before or after `anahtar`, which need not be there; first and last of all, whatever it is.
  std::optional<Kayit> Komsu(const Deger& anahtar, Yon yon) {
    const std::string kosul = UcaMi(yon) ? "" : " where " + anahtar_ + (GeriyeMi(yon) ? " < ?" : " > ?");
    auto satir = TekSatir(kosul + " order by " + anahtar_ + (GeriyeMi(yon) ? " desc" : ""),
                          UcaMi(yon) ? Deger(Null{}) : anahtar);
    return satir ? std::optional(std::move(satir->kayit)) : std::nullopt;
  }

  std::size_t KayitSayisi() {
    const auto komut = motor_.Hazirla("select count(*) from " + tablo_);
    return komut->Adim() ? std::size_t(komut->Tam(0)) : 0;
  }

  // Gives the record as it stands in the store now, with its automatic number and what others have changed in it. A key
  // may be spelled anew ("a1" for "A1"), not changed.
  Yazim<Kayit> Yaz(const Okunan<Kayit>& kayit) {
    Okunan<Kayit> temiz = kayit;
    DenetimleriAt(temiz.simdi);
    if (const Kusurlar k = KayitKusurlari(temiz.simdi, etiket_, temiz.ilk.value_or(Kayit{})); !k.empty())
      return {Birlestir(k)};
    KatilanIslem islem(motor_);
    const auto yazilan = IslemdeYaz(temiz);
    if (yazilan) islem.Onayla();
    return yazilan;
  }

  // False: there is no such record.
  bool Sil(const Deger& anahtar) {
    const auto komut = motor_.Hazirla("delete from " + tablo_ + " where " + anahtar_ + " = ?");
    komut->Bagla(1, anahtar);
    komut->Calistir();
    return motor_.DegisenSatir() != 0;
  }

 private:
  struct Satir {
    std::int64_t kimlik = 0;
    Kayit kayit;
  };

  static std::string AnahtarKolonu() {
    for (const IndeksTanimi& indeks : TabloBul(Kayit::TabloAdi)->indeksler)
      if (indeks.birincil) return std::string(indeks.alanlar.front());
    return {};
  }

  bool AnahtarOtomatik() const {
    const AlanTanimi* alan = TabloBul(Kayit::TabloAdi)->AlanBul(anahtar_);
    return alan != nullptr && alan->nitelik == AlanNiteligi::Otomatik;
  }

  Deger Anahtari(const Kayit& kayit) const {
    Deger deger;
    Kayit::HerKolon([&](const auto& kolon) {
      if (kolon.ad == anahtar_) deger = UyeDegeri(kayit.*kolon.uye);
    });
    return deger;
  }

  std::optional<Satir> SatirBul(const Deger& anahtar) {
    if constexpr (TekKayitli<Kayit>) return TekSatir(" order by " + motor_.KimlikKolonu(tablo_), Null{});
    return TekSatir(" where " + anahtar_ + " = ?", anahtar);
  }

  // The first row; a value that is not Null is bound.
  std::optional<Satir> TekSatir(const std::string& kosul, const Deger& deger) {
    const auto komut = motor_.Hazirla("select " + motor_.KimlikKolonu(tablo_) + ", " + SecimListesi(kolonlar_) +
                                      " from " + tablo_ + kosul + " limit 1");
    if (!NullMu(deger)) komut->Bagla(1, deger);
    if (!komut->Adim()) return std::nullopt;
    Satir satir{komut->Tam(0), {}};
    KayitAl(*komut, 1, satir.kayit);
    return satir;
  }

  Yazim<Kayit> IslemdeYaz(const Okunan<Kayit>& kayit) {
    if (!kayit.ilk && anahtarOtomatik_) return Ekle(kayit.simdi);  // its key is yet to be given
    const auto simdiki = SatirBul(Anahtari(kayit.ilk ? *kayit.ilk : kayit.simdi));
    if (!kayit.ilk) return simdiki ? Engel(CakismaTuru::Eklenmis, kayit, simdiki->kayit) : Ekle(kayit.simdi);
    if (!simdiki) return Engel(CakismaTuru::Silinmis, kayit, {});
    auto engel = Engel(CakismaTuru::Degismis, kayit, simdiki->kayit);
    const bool cakisti = ButunYazilir<Kayit> ? simdiki->kayit != *kayit.ilk : !engel.Kusuru().cakisma->alanlar.empty();
    return cakisti ? std::move(engel) : Degistir(kayit, *simdiki);
  }

  Yazim<Kayit> Ekle(Kayit kayit) {
    const std::int64_t kimlik = KayitYazici<Kayit>(motor_).Ekle(kayit);
    Kayit::HerKolon([&](const auto& kolon) {
      if (kolon.nitelik == AlanNiteligi::Otomatik) UyeyeYaz(kayit.*kolon.uye, Deger(kimlik));
    });
    return kayit;
  }

  // What differs from what was read goes into the row, column by column.
  // Records that are written whole go as such, with their checksum.
  Yazim<Kayit> Degistir(const Okunan<Kayit>& kayit, const Satir& simdiki) {
    const Kayit& ilk = *kayit.ilk;
    Kayit sonuc = simdiki.kayit;
    VarolanKolonlar<Kayit> yazilan = kolonlar_;
    std::string atamalar;
    yazilan.Cikar([&](const auto& kolon) { return kayit.simdi.*kolon.uye == ilk.*kolon.uye; });
    yazilan.Her([&](const auto& kolon, bool yazilir) {
      if (!yazilir) return;
      atamalar += (atamalar.empty() ? "" : ", ") + std::string(kolon.ad) + " = ?";
      sonuc.*kolon.uye = kayit.simdi.*kolon.uye;
    });
    if (atamalar.empty()) return sonuc;
    if constexpr (ButunYazilir<Kayit>) {
      KayitYazici<Kayit>(motor_).Degistir(sonuc, simdiki.kimlik);
      return sonuc;
    }
    const auto komut =
        motor_.Hazirla("update " + tablo_ + " set " + atamalar + " where " + motor_.KimlikKolonu(tablo_) + " = ?");
    int no = 0;
    yazilan.Her([&](const auto& kolon, bool yazilir) {
      if (yazilir) KolonBagla(*komut, ++no, sonuc.*kolon.uye);
    });
    komut->TamBagla(no + 1, simdiki.kimlik);
    komut->Calistir();
    return sonuc;
  }

  // The refusal, with the columns that both have changed, each in another way.
  Yazim<Kayit> Engel(CakismaTuru tur, const Okunan<Kayit>& kayit, const Kayit& onunki) const {
    Cakisma<Kayit> cakisma{.tur = tur, .alanlar = {}, .onunki = onunki};
    std::vector<std::string> etiketler;
    const Kayit ilk = kayit.ilk.value_or(Kayit{});
    Kayit::HerKolon([&](const auto& kolon) {
      const auto& benim = kayit.simdi.*kolon.uye;
      const auto& onun = onunki.*kolon.uye;
      const bool anahtar = kolon.ad == anahtar_ && !TekKayitli<Kayit>;
      if (tur == CakismaTuru::Silinmis || anahtar || benim == onun) return;
      if (benim == ilk.*kolon.uye || onun == ilk.*kolon.uye) return;
      cakisma.alanlar.push_back(kolon);
      etiketler.emplace_back(etiket_(Kayit::TabloAdi, kolon.ad));
    });
    const Deger anahtar = Anahtari(kayit.ilk ? *kayit.ilk : kayit.simdi);
    Kusur kusur{.metin = CakismaMetni(tur, MetinDegeri(anahtar), etiketler)};
    if (!cakisma.alanlar.empty()) kusur.alan = cakisma.alanlar.front();
    return YazmaEngeli<Kayit>(std::move(kusur), std::move(cakisma));
  }

  Motor& motor_;
  EtiketIslevi etiket_;
  VarolanKolonlar<Kayit> kolonlar_;
  std::string anahtar_;  // "": the table has none
  bool anahtarOtomatik_ = AnahtarOtomatik();
  std::string tablo_ = std::string(Kayit::TabloAdi);
};

}  // namespace belvani
