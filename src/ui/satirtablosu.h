// SatirTablosu: values shown as the rows of a dclist, declared column by column.
//
//   SatirTablosu<FazlaMesai> tablo(liste, {UyeKolonu("oran", "Oran", 80, &FazlaMesai::oran),
//                                          UyeKolonu("limit", "Limit", 80, &FazlaMesai::limit)});
//   tablo.Doldur(satirlar);              // 1.5 shows as "1.50"
//   const auto yeni = tablo.Oku(satirlar);
//
// A cell whose text is still that of the value leaves the value alone: a figure with more decimals than the cell shows
// stays whole. A value of zero shows as an empty cell, a date as dd.MM.yyyy, a choice by its name.
#pragma once

#include <QHeaderView>
#include <functional>
#include <span>
#include <type_traits>
#include <vector>

#include "core/sayi.h"
#include "core/tables/uye.h"
#include "ui/dclist.h"
#include "ui/metin.h"

namespace belvani {

template <class Satir>
struct SatirKolonu {
  char tip;  // of dclist
  const char* ad;
  const char* baslik;
  int genislik;
  std::function<std::string(const Satir&, std::size_t)> metin;  // of the row at this place
  std::function<void(Satir&, const std::string&)> al = {};      // none: shown, not typed into
  double enCok = 0;
  int ondalik = 0;
  std::span<const std::string_view> liste = {};
  int grup = 3;
};

struct KolonEki {
  double enCok = 0;  // largest number, longest text
  int ondalik = 2;
  int grup = 3;                                  // digits of a group; 0: none, as in a year
  std::span<const std::string_view> liste = {};  // choices of a whole number
};

// A number as a cell shows it.
inline std::string SayiHucresi(double sayi, int ondalik, int grup = 3) {
  std::string metin = sayi == 0 ? std::string() : TutarMetni(Tutar(sayi), ondalik);
  if (grup == 0) std::erase(metin, ',');
  return metin;
}

// A column of a member: a pointer to it, or a function of the row that gives a reference to it.
template <class Satir, class Erisim>
SatirKolonu<Satir> UyeKolonuYap(const char* ad, const char* baslik, int genislik, Erisim erisim, KolonEki ek) {
  using U = std::remove_cvref_t<std::invoke_result_t<Erisim, Satir&>>;
  constexpr bool tam = std::is_integral_v<U>;
  const auto metin = [=](const Satir& satir, std::size_t) -> std::string {
    const U& deger = std::invoke(erisim, satir);
    if constexpr (std::is_same_v<U, std::string>)
      return deger;
    else if constexpr (std::is_same_v<U, Tarih>)
      return deger.Metin();
    else if constexpr (!tam)
      return SayiHucresi(deger.Sayi(), ek.ondalik, ek.grup);
    else if (ek.liste.empty())
      return SayiHucresi(double(deger), 0, ek.grup);
    else
      return std::size_t(deger) < ek.liste.size() ? std::string(ek.liste[std::size_t(deger)]) : std::to_string(deger);
  };
  const auto al = [=](Satir& satir, const std::string& yazi) {
    U& hedef = std::invoke(erisim, satir);
    if constexpr (std::is_same_v<U, std::string>)
      hedef = yazi;
    else if constexpr (std::is_same_v<U, Tarih>)
      hedef = Tarih::MetinOku(yazi);
    else if constexpr (!tam)
      UyeyeYaz(hedef, TutarOku(yazi).value_or(Tutar()));
    else if (ek.liste.empty())
      hedef = U(TutarOku(yazi).value_or(Tutar()).Sayi());
    else if (const auto yer = std::ranges::find(ek.liste, yazi); yer != ek.liste.end())
      hedef = U(yer - ek.liste.begin());
  };
  const char tip = std::is_same_v<U, std::string> ? 'a' : std::is_same_v<U, Tarih> ? 't' : ek.liste.empty() ? 'n' : 's';
  return {tip, ad, baslik, genislik, metin, al, ek.enCok, tam ? 0 : ek.ondalik, ek.liste, ek.grup};
}

template <class Satir, class U>
SatirKolonu<Satir> UyeKolonu(const char* ad, const char* baslik, int genislik, U Satir::*uye, KolonEki ek = {}) {
  return UyeKolonuYap<Satir>(ad, baslik, genislik, uye, ek);
}

// The same of a member that is a column of a table, which has its name and limits.
template <class Satir, class U>
SatirKolonu<Satir> UyeKolonu(const Kolon<Satir, U>& kolon, const char* baslik, int genislik, KolonEki ek = {}) {
  ek.enCok = kolon.tip == AlanTipi::Metin ? kolon.boyut : EnBuyukGirdi(kolon);
  return UyeKolonuYap<Satir>(kolon.ad.data(), baslik, genislik, kolon.uye, ek);
}

// A column of names, one for each row by its place.
template <class Satir>
SatirKolonu<Satir> AdKolonu(const char* baslik, int genislik, std::span<const std::string_view> adlar) {
  return {'m', "ad", baslik, genislik, [adlar](const Satir&, std::size_t sira) { return std::string(adlar[sira]); }};
}

template <class Satir>
class SatirTablosu {
 public:
  SatirTablosu(dclist& liste, std::vector<SatirKolonu<Satir>> kolonlar)
      : liste_(liste), kolonlar_(std::move(kolonlar)) {
    for (const auto& k : kolonlar_) {
      liste_.CreateNewCaption(k.tip, k.ad, k.baslik, k.genislik, k.enCok, k.ondalik, k.grup);
      QStringList secenekler;
      for (const std::string_view secenek : k.liste) secenekler += Yazi(secenek);
      if (!secenekler.isEmpty()) liste_.SecenekKoy(k.ad, secenekler);
    }
  }

  // The list goes after its owner's members, and may lose the focus then: nobody is there to take its rows any more.
  ~SatirTablosu() {
    liste_.SatirGuncelle = [](int) { return true; };
    liste_.Dogrula = [](int, const QString&, QString&) { return true; };
    liste_.HucreDegisti = [](int, const QString&) {};
  }
  SatirTablosu(const SatirTablosu&) = delete;
  SatirTablosu& operator=(const SatirTablosu&) = delete;

  // The cursor stays where it is when the number of rows does.
  void Doldur(const std::vector<Satir>& satirlar) {
    const bool yeni = liste_.ListCount() != int(satirlar.size());
    if (yeni) {
      liste_.Clear();
      liste_.Model().TopluBasla();
      for (std::size_t i = 0; i < satirlar.size(); ++i) liste_.Add();
    }
    for (std::size_t i = 0; i < satirlar.size(); ++i) Goster(i, satirlar[i]);
    if (yeni) liste_.Model().TopluBitir();
    liste_.YazilaniUnut();
    if (liste_.CurSat() >= 0 || satirlar.empty()) return;
    const auto ilk = std::ranges::find_if(kolonlar_, [](const auto& k) { return bool(k.al); });
    liste_.HucreyeGit(0, (ilk == kolonlar_.end() ? kolonlar_.begin() : ilk)->ad);
  }
  void Goster(std::size_t sira, const Satir& satir) {
    for (std::size_t k = 0; k < kolonlar_.size(); ++k)
      liste_.Text(int(sira), int(k), Yazi(kolonlar_[k].metin(satir, sira)));
    liste_.Model().Degisti(int(sira), false);
  }

  // The row with what was typed into its cells.
  Satir Oku(std::size_t sira, Satir satir) const {
    for (std::size_t k = 0; k < kolonlar_.size(); ++k) {
      if (!kolonlar_[k].al) continue;
      const std::string yazi = Utf8(liste_.Text(int(sira), int(k)));
      if (yazi != kolonlar_[k].metin(satir, sira)) kolonlar_[k].al(satir, yazi);
    }
    return satir;
  }
  // All rows of the list; those that have been added start empty.
  std::vector<Satir> Oku(std::vector<Satir> satirlar) const {
    satirlar.resize(std::size_t(liste_.ListCount()));
    for (std::size_t i = 0; i < satirlar.size(); ++i) satirlar[i] = Oku(i, satirlar[i]);
    return satirlar;
  }

 private:
  dclist& liste_;
  std::vector<SatirKolonu<Satir>> kolonlar_;
};

// Room for all columns and for `satir` rows without scroll bars.
inline void SatirlaraYerAc(dclist& liste, int satir) {
  int en = 2 * liste.frameWidth();
  for (int k = 0; k < liste.Model().columnCount(); ++k) en += liste.columnWidth(k);
  const int boy = liste.horizontalHeader()->sizeHint().height() + 2 * liste.frameWidth() +
                  satir * liste.verticalHeader()->defaultSectionSize();
  liste.setMinimumSize(en + 4, boy + 2);
}

}  // namespace belvani
