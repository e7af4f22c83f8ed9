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

// The choices of one paper.
class BelgeSecimi {
 public:
  virtual ~BelgeSecimi() = default;

  // Throws MotorHatasi, TutarTasmasi, and Vazgecilmis when it was stopped. A period without records gives a paper
  // without rows.
  virtual std::unique_ptr<Belge> BelgeYap(const BelgeKaynagi& kaynak) const = 0;

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
  void* Kayit(std::type_index tur) override {
    void* bulunan = nullptr;
    ((tur == typeid(Parcalar) ? void(bulunan = &std::get<Parcalar>(parcalar_)) : void()), ...);
    return bulunan;
  }

 private:
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

struct BelgeTanimi {
  std::string_view ekran;  // the screen's word; also its page of the guide
  std::string_view komut;  // of the command line
  std::string_view menu;   // "Bordro"; papers whose caption the menu does not place stand at its end, in this order
  std::string_view menuBasligi;     // caption of the entry
  std::string_view pencereBasligi;  // title of the screen
  std::string_view simge;           // picture of the entry
  std::string_view komutYardimi;    // what the command does
  AlanSutunlari alanlar;
  SecimYapan secim;
  MevzuatRakami mevzuat = {};
  BelgeAyari ayar = {};
  // What screen and command line say of a paper that is made of no records; "" keeps them silent.
  std::string_view kayitYok = "Bu dönemde bordro kaydı yok";
  // For a paper whose JSON is not its table but the pay records with all their fields: gives them one by one.
  void (*kayitlar)(const BelgeKaynagi& kaynak, BelgeSecimi& secim, const std::function<void(const Brd&)>& al) = nullptr;
};

}  // namespace belvani
