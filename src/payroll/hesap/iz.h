// Iz: the steps of one calculation, so that every amount can be explained: which rule, on which values, with what
// result. In Turkish, for the user.
//
// A calculation is a template over its watcher. Izsiz drops every step before it is made, so a run without a trace
// pays nothing for it; Izli keeps them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "core/sayi.h"
#include "core/tek.h"

namespace belvani {

struct IzGirdi {
  IzGirdi(std::string_view girdiAdi, Tutar t) : ad(girdiAdi), deger(OndalikMetin(t)) {}
  IzGirdi(std::string_view girdiAdi, Tek t) : ad(girdiAdi), deger(SayiMetni(t.Sayi())) {}
  IzGirdi(std::string_view girdiAdi, double s) : ad(girdiAdi), deger(SayiMetni(s)) {}
  IzGirdi(std::string_view girdiAdi, int s) : ad(girdiAdi), deger(std::to_string(s)) {}
  IzGirdi(std::string_view girdiAdi, std::string metin) : ad(girdiAdi), deger(std::move(metin)) {}

  std::string ad;
  std::string deger;
};

struct IzAdimi {
  IzAdimi(std::string_view alanAdi, std::string_view kuralMetni, std::initializer_list<IzGirdi> g, Tutar s)
      : alan(alanAdi), kural(kuralMetni), girdiler(g), sonuc(OndalikMetin(s)) {}
  IzAdimi(std::string_view alanAdi, std::string_view kuralMetni, std::initializer_list<IzGirdi> g, int s)
      : alan(alanAdi), kural(kuralMetni), girdiler(g), sonuc(std::to_string(s)) {}
  IzAdimi(std::string_view alanAdi, std::string_view kuralMetni, std::initializer_list<IzGirdi> g, Tek s)
      : alan(alanAdi), kural(kuralMetni), girdiler(g), sonuc(SayiMetni(s.Sayi())) {}

  std::string alan;   // stored name of the amount ("dvtutar"), or of the working value ("GunlukUcret")
  std::string kural;  // "Damga vergisi = damga matrahı × oran / 1000"
  std::vector<IzGirdi> girdiler;
  std::string sonuc;
};

using Iz = std::vector<IzAdimi>;

struct Izsiz {
  template <class AdimYapan>
  void operator()(AdimYapan&&) const {}
};

struct Izli {
  Iz* adimlar;
  template <class AdimYapan>
  void operator()(AdimYapan&& yap) const {
    adimlar->push_back(yap());
  }
};

}  // namespace belvani
