// BelgeTanimi: all that makes a paper a part of the program besides the paper itself. Its entry of the menu, its
// screen, its command with options and help, its settings and the tests of all papers follow from this one row,
// which its room gives to the registry (registry/belgeler.h).
//
//   {.ekran = "agibrd", .komut = "agi", .menu = "Bordro", …,
//    .alanlar = {{DonemAlanlari("Bordro Yılı", "Bordro Ayı"), AralikAlanlari(true, "Sicil No")}},
//    .secim = Secenekleri(AgiBelgesi)}
//
// AgiBelgesi(kaynak, const DefterSecim&) makes the paper. What it takes besides the source are the records that the
// fields fill in: their types are the paper's choices, their initial values what stands there at first.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <tuple>

#include "core/sonuc.h"
#include "core/store/motor.h"
#include "core/tables/alansatiri.h"
#include "core/tables/brd.h"
#include "core/tables/firma.h"
#include "core/veriyolu.h"
#include "payroll/parametre/parametreler.h"
#include "printing/belge.h"

namespace belvani {

// What papers are made from.
struct BelgeKaynagi {
  Motor& motor;
  const YasalParametreler& yasal;
  const Firma& firma;            // the company's card
  VeriYolu sirket;               // its place, where its parameter files lie
  Ilerleme* ilerleme = nullptr;  // shows and stops the making
};

// The font of a list. A paper that takes it has "Yazıcı Fontu" on its screen.
struct BelgeYazisi {
  std::string yaziTipi = "tahoma";
  int punto = 8;
};

// Of when a paper is: the month whose law its figures are of, and what its files are named by.
struct BelgeZamani {
  int yil = 0;
  int ay = 0;
  std::string metin;  // "2009-07"
};

inline std::string AyMetni(int yil, int ay) {
  return std::to_string(yil) + (ay < 10 ? "-0" : "-") + std::to_string(ay);
}

// The choices of one paper. Of its records, which are plain structs, one may know more:
//
//   void AyKoy(int yil, int ay);            // the company's working month, in the choices of a time
//   void FirmaKoy(const Firma& firma);      // what the company's card says, before the user says otherwise
//   BelgeZamani Zaman() const;              // the time that they stand for
//   std::optional<Kusur> Kusuru() const;    // what is wrong with them together, at the field where it can be mended
class BelgeSecimi {
 public:
  virtual ~BelgeSecimi() = default;

  // Throws MotorHatasi, TutarTasmasi, and Vazgecilmis when it was stopped. A period without records gives a paper
  // without rows.
  virtual std::unique_ptr<Belge> BelgeYap(const BelgeKaynagi& kaynak) const = 0;

  virtual void AyKoy(int yil, int ay) = 0;
  virtual void FirmaKoy(const Firma& firma) = 0;
  virtual std::optional<BelgeZamani> Zaman() const = 0;  // nothing for a paper of no time
  virtual std::optional<Kusur> Kusuru() const = 0;

  // The record of a type, that fields of `Alan::kayitTuru` read and write; null when the paper has none.
  virtual void* Kayit(std::type_index tur) = 0;
  template <class Parca>
  Parca* Bul() {
    return static_cast<Parca*>(Kayit(typeid(Parca)));
  }
};

template <class... Parcalar>
class ParcaliSecim final : public BelgeSecimi {
 public:
  using Yapan = std::unique_ptr<Belge> (*)(const BelgeKaynagi&, const Parcalar&...);
  explicit ParcaliSecim(Yapan yapan) : yapan_(yapan) {}

  std::unique_ptr<Belge> BelgeYap(const BelgeKaynagi& kaynak) const override {
    return std::apply([&](const auto&... parca) { return yapan_(kaynak, parca...); }, parcalar_);
  }
  void AyKoy(int yil, int ay) override {
    Her(parcalar_, [&](auto& parca) {
      if constexpr (requires { parca.AyKoy(yil, ay); }) parca.AyKoy(yil, ay);
    });
  }
  void FirmaKoy(const Firma& firma) override {
    Her(parcalar_, [&](auto& parca) {
      if constexpr (requires { parca.FirmaKoy(firma); }) parca.FirmaKoy(firma);
    });
  }
  std::optional<BelgeZamani> Zaman() const override {
    std::optional<BelgeZamani> zaman;
    Her(parcalar_, [&](const auto& parca) {
      if constexpr (requires { parca.Zaman(); }) zaman = parca.Zaman();
    });
    return zaman;
  }
  std::optional<Kusur> Kusuru() const override {
    std::optional<Kusur> kusur;
    Her(parcalar_, [&](const auto& parca) {
      if constexpr (requires { parca.Kusuru(); })
        if (!kusur) kusur = parca.Kusuru();
    });
    return kusur;
  }
  void* Kayit(std::type_index tur) override {
    void* bulunan = nullptr;
    ((tur == typeid(Parcalar) ? void(bulunan = &std::get<Parcalar>(parcalar_)) : void()), ...);
    return bulunan;
  }

 private:
  template <class Demet, class Is>
  static void Her(Demet& demet, Is is) {
    std::apply([&](auto&... parca) { (is(parca), ...); }, demet);
  }

  Yapan yapan_;
  std::tuple<Parcalar...> parcalar_;
};

using SecimYapan = std::function<std::unique_ptr<BelgeSecimi>()>;

// Fresh choices for the paper that `yapan` makes.
template <class... Parcalar>
SecimYapan Secenekleri(std::unique_ptr<Belge> (*yapan)(const BelgeKaynagi&, const Parcalar&...)) {
  return [yapan] { return std::make_unique<ParcaliSecim<Parcalar...>>(yapan); };
}

// Choices that outlive a run, in a file of the company's directory.
struct BelgeAyari {
  void (*oku)(const VeriYolu& sirket, BelgeSecimi& secim) = nullptr;
  Durum (*yaz)(const VeriYolu& sirket, BelgeSecimi& secim) = nullptr;  // writes nothing when nothing changed
};

// A figure of a paper that is not in its records but comes from the installed law.
struct MevzuatRakami {
  std::string_view ad = {};   // in the words of the paper; "": there is none
  bool agiOdenmisse = false;  // only where the allowance was paid in the month
};

// A column of sums below the list: its head, and the columns of the paper that it sums, by name.
struct ToplamSutunu {
  std::string_view baslik;
  std::vector<std::string_view> kolonlar;
};

// The rows of a paper on its screen: its table as a list below the fields, with its sums. The list follows what stands
// in the fields, or only its command.
struct BelgeListesi {
  const char* komut = "";                        // the button of that command (F5); "": the screen shows no rows
  bool degisince = true;                         // anew with each change of a field
  std::vector<std::string_view> toplamlar = {};  // captions of the lines of sums; none: one line of all that is summed
  std::vector<ToplamSutunu> sutunlar = {};       // of these lines
};

// A further entry of the menu that opens the same screen for another product of it.
struct BelgeGirisi {
  std::string_view ad;  // names the entry beside the screen's word
  std::string_view pencereTip;
  std::string_view menuBasligi;
  std::string_view pencereBasligi;
  void (*sec)(BelgeSecimi& secim);  // makes the choices those of the product
};

struct BelgeTanimi {
  std::string_view ekran;  // the screen's word; also its page of the guide
  std::string_view komut;  // of the command line; "": another paper's command makes it
  std::string_view menu;   // "Bordro"; papers whose caption the menu does not place stand at its end, in this order
  std::string_view menuBasligi;     // caption of the entry
  std::string_view pencereBasligi;  // title of the screen
  std::string_view simge;           // picture of the entry
  std::string_view komutYardimi;    // what the command does
  AlanSutunlari alanlar;
  SecimYapan secim;
  std::vector<Alan> komutAlanlari = {};    // options of the command alone: what the menu chooses for a screen
  std::vector<BelgeGirisi> girisler = {};  // besides the one of `menuBasligi`
  MevzuatRakami mevzuat = {};
  BelgeAyari ayar = {};
  BelgeListesi liste = {};
  // What its user must know besides the paper, told once beside it; "" where there is nothing. Throws MotorHatasi.
  std::string (*soz)(const BelgeKaynagi& kaynak, BelgeSecimi& secim) = nullptr;
  // What screen and command line say of a paper that is made of no records; "" keeps them silent.
  std::string_view kayitYok = "Bu dönemde bordro kaydı yok";
  // For a paper whose JSON is not its table but the pay records with all their fields: gives them one by one.
  void (*kayitlar)(const BelgeKaynagi& kaynak, BelgeSecimi& secim, const std::function<void(const Brd&)>& al) = nullptr;
};

}  // namespace belvani
