// Kolonlar: a list declared as its columns, in print order.
//
//   const Kolonlar<BordroSatiri> kolonlar{
//       {"Kod No", 8, [](auto& s) { return s.brd.kod; }},
//       {{"SSK Prim", "SSK Kesinti"}, 9, [](auto& s) { return s.brd.sskkesinti; }, Toplanir},
//   };
//   Rapor rapor = RaporYap(kolonlar, satirlar, paraonda);
//
// A column is a head (or two: paper, screen), a width in letters, what it shows of a row, and what is special about it.
// Where other programs know it by a name of its own, that stands first: {"sskno", "SİCİL NO", 13, …}.
// The kind of the column follows from the type that its reader gives: text, whole number, Tutar, Tek (a rate), Tarih,
// or any of them as std::optional, whose absence is an empty cell; Null makes an empty column for the pen.
#pragma once

#include <algorithm>
#include <concepts>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <type_traits>

#include "core/tek.h"
#include "printing/rapor.h"

namespace belvani {

enum class KolonNiteligi : unsigned {
  Yok = 0,
  Toplanir = 1,   // summed
  KisaTarih = 2,  // two-digit year
  HerZaman = 4,   // not among the columns that the user may switch off
};

constexpr KolonNiteligi operator|(KolonNiteligi a, KolonNiteligi b) {
  return KolonNiteligi(unsigned(a) | unsigned(b));
}
constexpr bool NiteligiVar(KolonNiteligi hepsi, KolonNiteligi biri) {
  return (unsigned(hepsi) & unsigned(biri)) != 0;
}

struct KolonBasligi {
  KolonBasligi(const char* baslik) : uzun(baslik), kisa(baslik) {}             // NOLINT: a text is a head
  KolonBasligi(std::string baslik) : uzun(baslik), kisa(std::move(baslik)) {}  // NOLINT: the same
  KolonBasligi(const char* kagitta, const char* ekranda) : uzun(kagitta), kisa(ekranda) {}

  std::string uzun;
  std::string kisa;
};

constexpr int OranOndaligi = 1;  // "67.5" percent

template <class Deger>
struct Secmeli : std::false_type {};
template <class Deger>
struct Secmeli<std::optional<Deger>> : std::true_type {};

template <class Deger>
constexpr KolonTuru DegerinKolonTuru(KolonNiteligi nitelik) {
  static_assert(!std::same_as<Deger, bool>, "a truth value has no printed form");
  if constexpr (Secmeli<Deger>::value)
    return DegerinKolonTuru<typename Deger::value_type>(nitelik);
  else if constexpr (std::same_as<Deger, Null>)
    return KolonTuru::Bos;
  else if constexpr (std::same_as<Deger, Tutar> || std::same_as<Deger, Tek>)
    return KolonTuru::Tutar;
  else if constexpr (std::same_as<Deger, Tarih>)
    return NiteligiVar(nitelik, KolonNiteligi::KisaTarih) ? KolonTuru::KisaTarih : KolonTuru::Tarih;
  else if constexpr (std::integral<Deger>)
    return KolonTuru::Tam;
  else
    return KolonTuru::Metin;
}

template <class Satir>
class Kolonlar {
 public:
  struct Tanim {
    template <class Okur>
    Tanim(KolonBasligi baslik, int en, Okur okur,  // NOLINT: the head is moved from
          KolonNiteligi nitelikler = KolonNiteligi::Yok)
        : kolon{.baslik = std::move(baslik.uzun),
                .kisaBaslik = std::move(baslik.kisa),
                .en = en,
                .tur = DegerinKolonTuru<std::decay_t<std::invoke_result_t<Okur, const Satir&>>>(nitelikler),
                .toplanir = NiteligiVar(nitelikler, KolonNiteligi::Toplanir)},
          nitelik(nitelikler),
          oran(std::same_as<std::decay_t<std::invoke_result_t<Okur, const Satir&>>, Tek>),
          oku([okur](const Satir& satir) { return HucreYap(okur(satir)); }) {}
    template <class Okur>
    Tanim(const char* ad, KolonBasligi baslik, int en, Okur okur, KolonNiteligi nitelikler = KolonNiteligi::Yok)
        : Tanim(std::move(baslik), en, std::move(okur), nitelikler) {
      kolon.ad = ad;
    }

    RaporKolonu kolon;
    KolonNiteligi nitelik;
    bool oran;  // its decimals are not those of money
    std::function<Hucre(const Satir&)> oku;

   private:
    template <class Deger>
    static Hucre HucreYap(Deger deger) {
      if constexpr (Secmeli<Deger>::value)
        return deger ? HucreYap(*deger) : Hucre(Null{});
      else if constexpr (std::same_as<Deger, Tek>)
        return Tutar(deger.Sayi());
      else if constexpr (std::integral<Deger>)
        return std::int64_t(deger);
      else if constexpr (std::constructible_from<std::string, Deger>)
        return std::string(std::move(deger));
      else
        return deger;
    }
  };

  Kolonlar(std::initializer_list<Tanim> tanimlar) : tanimlar_(tanimlar) {}

  void Ekle(Tanim tanim) { tanimlar_.push_back(std::move(tanim)); }
  friend Kolonlar operator+(Kolonlar a, const Kolonlar& b) {
    a.tanimlar_.insert(a.tanimlar_.end(), b.tanimlar_.begin(), b.tanimlar_.end());
    return a;
  }

  // Heads of the columns that the user may switch off, in the order of the switches.
  std::vector<std::string> AnahtarAdlari() const {
    std::vector<std::string> adlar;
    for (const auto& tanim : tanimlar_)
      if (Anahtarli(tanim)) adlar.push_back(tanim.kolon.baslik);
    return adlar;
  }

  // The columns that are switched on, and those without a switch. A switch that is not given is on.
  Kolonlar Secilen(std::span<const bool> anahtarlar) const {
    Kolonlar secilen{};
    std::size_t sira = 0;
    for (const auto& tanim : tanimlar_) {
      const bool acik = !Anahtarli(tanim) || sira >= anahtarlar.size() || anahtarlar[sira];
      if (Anahtarli(tanim)) ++sira;
      if (acik) secilen.tanimlar_.push_back(tanim);
    }
    return secilen;
  }

  // An amount has at most four decimals, whatever the company's record says.
  Rapor BosRapor(int ondalik) const {
    const int paraOndaligi = std::clamp(ondalik, 0, 4);
    std::vector<RaporKolonu> kolonlar;
    for (const auto& tanim : tanimlar_) {
      kolonlar.push_back(tanim.kolon);
      if (tanim.kolon.tur == KolonTuru::Tutar) kolonlar.back().ondalik = tanim.oran ? OranOndaligi : paraOndaligi;
    }
    Rapor rapor(std::move(kolonlar));
    rapor.paraOndaligi = paraOndaligi;
    return rapor;
  }

  std::vector<Hucre> Hucreler(const Satir& satir) const {
    std::vector<Hucre> hucreler;
    hucreler.reserve(tanimlar_.size());
    for (const auto& tanim : tanimlar_) hucreler.push_back(tanim.oku(satir));
    return hucreler;
  }

  // The row as labelled values, for a slip.
  std::vector<BlokSatiri> Blok(const Satir& satir) const {
    std::vector<BlokSatiri> blok;
    for (const auto& tanim : tanimlar_) blok.push_back({tanim.kolon.baslik, tanim.oku(satir)});
    return blok;
  }

 private:
  static bool Anahtarli(const Tanim& tanim) { return !NiteligiVar(tanim.nitelik, KolonNiteligi::HerZaman); }

  std::vector<Tanim> tanimlar_;
};

// The report of all rows. `yeniSayfa` tells, of two rows that follow each other, whether the second starts a page.
template <class Satir>
Rapor RaporYap(
    const Kolonlar<Satir>& kolonlar, const std::vector<Satir>& satirlar, int paraOndaligi,
    const std::type_identity_t<std::function<bool(const Satir& onceki, const Satir& satir)>>& yeniSayfa = nullptr) {
  Rapor rapor = kolonlar.BosRapor(paraOndaligi);
  const Satir* onceki = nullptr;
  for (const auto& satir : satirlar) {
    rapor.Ekle({kolonlar.Hucreler(satir), yeniSayfa && onceki != nullptr && yeniSayfa(*onceki, satir)});
    onceki = &satir;
  }
  return rapor;
}

}  // namespace belvani
