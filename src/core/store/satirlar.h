// Rows of the store as record structs, for work on many rows at once. All of it throws MotorHatasi.
//
// A store of an earlier version may lack columns: they read as Null and are left out of writes.
#pragma once

#include <algorithm>
#include <cassert>
#include <set>
#include <string>

#include "core/store/brdozet.h"
#include "core/store/motor.h"

namespace belvani {

// One column of the row that stands ready, into a member. Null reads as zero, empty text, no date.
// clang-format off
inline void KolonAl(const Komut& k, int i, std::string& d) { d.assign(k.Metin(i)); }
inline void KolonAl(const Komut& k, int i, std::uint8_t& d) { d = k.TamSigan<std::uint8_t>(i); }
inline void KolonAl(const Komut& k, int i, std::int16_t& d) { d = k.TamSigan<std::int16_t>(i); }
inline void KolonAl(const Komut& k, int i, std::int32_t& d) { d = k.TamSigan<std::int32_t>(i); }
inline void KolonAl(const Komut& k, int i, Tutar& d) { d = Tutar::Hamdan(k.Tam(i)); }
inline void KolonAl(const Komut& k, int i, Tek& d) { d = Tek(k.Sayi(i)); }
inline void KolonAl(const Komut& k, int i, Tarih& d) { d = Tarih::IsoOku(k.Metin(i)); }
inline void KolonAl(const Komut& k, int i, bool& d) { d = k.Tam(i) != 0; }
inline void KolonAl(const Komut& k, int i, Baytlar& d) { d = k.Bayt(i); }

// The same way back, to whatever takes values one after the other: a statement, a checksum.
template <class H> void KolonBagla(H& k, int no, const std::string& d) { k.MetinBagla(no, d); }
template <class H> void KolonBagla(H& k, int no, std::uint8_t d) { k.TamBagla(no, d); }
template <class H> void KolonBagla(H& k, int no, std::int16_t d) { k.TamBagla(no, d); }
template <class H> void KolonBagla(H& k, int no, std::int32_t d) { k.TamBagla(no, d); }
template <class H> void KolonBagla(H& k, int no, Tutar d) { k.TamBagla(no, d.Ham()); }
template <class H> void KolonBagla(H& k, int no, Tek d) { k.SayiBagla(no, d.Sayi()); }
template <class H> void KolonBagla(H& k, int no, Tarih d) { d.Bos() ? k.NullBagla(no) : k.MetinBagla(no, d.Iso()); }
template <class H> void KolonBagla(H& k, int no, bool d) { k.TamBagla(no, d ? 1 : 0); }
template <class H> void KolonBagla(H& k, int no, const Baytlar& d) { k.BaytBagla(no, d); }
// clang-format on

// Which columns of `Kayit` the store's table has. It is asked once, and told by the place of the column, so that no
// name is sought row by row.
template <class Kayit>
class VarolanKolonlar {
 public:
  explicit VarolanKolonlar(Motor& motor) {
    const auto kolonlar = motor.Kolonlar(Kayit::TabloAdi);
    Kayit::HerKolon([&](const AlanTanimi& alan) {
      var_.push_back(std::any_of(kolonlar.begin(), kolonlar.end(), [&](const auto& k) { return k.ad == alan.ad; }));
    });
  }

  // From now on `kolon` counts as missing when `gecilir(kolon)`.
  template <class Gecilir>
  void Cikar(Gecilir&& gecilir) {
    std::size_t yer = 0;
    Kayit::HerKolon([&](const auto& kolon) {
      if (gecilir(kolon)) var_[yer] = false;
      ++yer;
    });
  }

  // islev(column, whether it is there), in the order of the schema.
  template <class Islev>
  void Her(Islev&& islev) const {
    std::size_t yer = 0;
    Kayit::HerKolon([&](const auto& kolon) { islev(kolon, bool(var_[yer++])); });
  }

 private:
  std::vector<char> var_;  // one a column; bits would cost more to read than they spare
};

// "s.kod, s.adi, …, null" for `Kayit`, in the order in which KayitAl reads them.
template <class Kayit>
std::string SecimListesi(const VarolanKolonlar<Kayit>& kolonlar, const std::string& takmaAd = {}) {
  const std::string on = takmaAd.empty() ? "" : takmaAd + ".";
  std::string liste;
  kolonlar.Her([&](const auto& kolon, bool var) {
    liste += liste.empty() ? "" : ", ";
    liste += var ? on + std::string(kolon.ad) : std::string("null");
  });
  return liste;
}
template <class Kayit>
std::string SecimListesi(Motor& motor, const std::string& takmaAd = {}) {
  return SecimListesi(VarolanKolonlar<Kayit>(motor), takmaAd);
}

// The record whose columns start at `ilk`; returns the column after it.
template <class Kayit>
int KayitAl(const Komut& komut, int ilk, Kayit& kayit) {
  Kayit::HerKolon([&](const auto& kolon) { KolonAl(komut, ilk++, kayit.*kolon.uye); });
  return ilk;
}

// All rows of a table that meet `kosul` ("where … order by …").
template <class Kayit>
std::vector<Kayit> KayitlariOku(Motor& motor, const std::string& kosul = {}, const std::vector<Deger>& degerler = {}) {
  const auto komut =
      motor.Hazirla("select " + SecimListesi<Kayit>(motor) + " from " + std::string(Kayit::TabloAdi) + " " + kosul);
  int no = 0;
  for (const Deger& d : degerler) komut->Bagla(++no, d);
  std::vector<Kayit> kayitlar;
  while (komut->Adim()) KayitAl(*komut, 0, kayitlar.emplace_back());
  return kayitlar;
}

// Writes whole records of one table, many at a time, with the automatic number left to the store, and with the
// checksums of those that carry one.
template <class Kayit>
class KayitYazici {
 public:
  // `duran`: columns that Degistir leaves alone, for they hold in the store what they hold in the record; an index on
  // them is spared. Such a writer adds no records.
  explicit KayitYazici(Motor& motor, const std::set<std::string_view>& duran = {}) : var_(motor), yazilan_(var_) {
    yazilan_.Cikar([&](const AlanTanimi& alan) { return alan.nitelik == AlanNiteligi::Otomatik; });
    YazilanKolonlar kolonlar{.tablo = Kayit::TabloAdi, .adlar = {}, .tetiksiz = Ozetli<Kayit>};
    yazilan_.Her([&](const auto& kolon, bool yazilir) {
      if (!yazilir) return;
      kolonlar.adlar.emplace_back(kolon.ad);
      kolonlar.duran.push_back(duran.contains(kolon.ad));
    });
    if constexpr (Ozetli<Kayit>) ozetler_.emplace(motor);
    if (duran.empty()) ekle_ = motor.SatirYaziciAc(kolonlar, YazmaTuru::Ekle);
    degistir_ = motor.SatirYaziciAc(kolonlar, YazmaTuru::Degistir);
  }

  // Gives the new record's number.
  std::int64_t Ekle(const Kayit& kayit) {
    assert(ekle_ != nullptr);
    return Yaz(*ekle_, kayit, 0);
  }
  void Degistir(const Kayit& kayit, std::int64_t kimlik) { Yaz(*degistir_, kayit, kimlik); }

 private:
  std::int64_t Yaz(SatirYazici& yazici, const Kayit& kayit, std::int64_t kimlik) {
    int no = 0;
    yazilan_.Her([&](const auto& kolon, bool yazilir) {
      if (yazilir) KolonBagla(yazici, ++no, kayit.*kolon.uye);
    });
    const std::int64_t yazilan = yazici.Yaz(kimlik);
    if constexpr (Ozetli<Kayit>) ozetler_->Yaz(yazilan, Ozeti(kayit));
    return yazilan;
  }

  // A column that the store lacks reads as Null.
  std::int64_t Ozeti(const Kayit& kayit) {
    ozet_.Bosalt();
    var_.Her([&](const auto& kolon, bool var) {
      if (kolon.nitelik == AlanNiteligi::Otomatik) return;
      var ? KolonBagla(ozet_, 0, kayit.*kolon.uye) : ozet_.NullBagla(0);
    });
    return ozet_.Deger();
  }

  VarolanKolonlar<Kayit> var_;
  VarolanKolonlar<Kayit> yazilan_;
  std::unique_ptr<SatirYazici> ekle_;  // null: it only changes
  std::unique_ptr<SatirYazici> degistir_;
  KayitOzeti ozet_;
  std::optional<BrdOzetleri> ozetler_;  // of records that carry a checksum
};

}  // namespace belvani
