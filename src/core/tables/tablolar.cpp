#include "core/tables/tablolar.h"

#include <algorithm>

#include "core/tables/bordronosu.h"
#include "core/turkce.h"

namespace belvani {
namespace {

template <class Kayit>
TabloTanimi Tanim(std::vector<IndeksTanimi> indeksler, std::vector<IndeksTanimi> sorguIndeksleri = {}) {
  TabloTanimi t{Kayit::TabloAdi, {}, std::move(indeksler), std::move(sorguIndeksleri)};
  Kayit::HerKolon([&](const AlanTanimi& alan) { t.alanlar.push_back(alan); });
  return t;
}

IndeksTanimi Anahtar(std::string_view alan) {
  return {alan, {alan}, true, true};
}

}  // namespace

const AlanTanimi* TabloTanimi::AlanBul(std::string_view alan) const {
  const auto i = std::find_if(alanlar.begin(), alanlar.end(), [&](const auto& a) { return AdEsit(a.ad, alan); });
  return i == alanlar.end() ? nullptr : &*i;
}

const IndeksTanimi* TabloTanimi::IndeksBul(std::string_view indeks) const {
  const auto i = std::find_if(indeksler.begin(), indeksler.end(), [&](const auto& x) { return AdEsit(x.ad, indeks); });
  return i == indeksler.end() ? nullptr : &*i;
}

const std::vector<TabloTanimi>& Tablolar() {
  static const std::vector<TabloTanimi> tablolar{
      Tanim<Peruser>({Anahtar("kod")}),
      Tanim<Firma>({}),
      Tanim<Sicil>({Anahtar("kod")}),
      Tanim<Foto>({Anahtar("kod")}),
      Tanim<Kimlik>({Anahtar("kod")}),
      // The first serves a month's documents, and lets each record stand once; the second holds all that the
      // year-to-date sums read, of one person or of the whole company, so that they never touch the records themselves.
      Tanim<Brd>({Anahtar("oto")},
                 {{.ad = "brd_ay", .alanlar = {"yil", "ay", "kod", BordroNosu}, .tekil = true},
                  {"brd_yil", {"yil", "kod", "ay", "gvmatrah", "gvtutar", "indirim1", "indirim2", "indirim3"}}}),
      Tanim<Dvr>({Anahtar("yilkod")}, {{"dvr_kod", {"kod", "yil"}}}),
      Tanim<Esco>({Anahtar("oto")}, {{"esco_kod", {"kod", "yakinlik", "agiok"}}}),
      Tanim<Muaf>({Anahtar("no")}),
      Tanim<Arac>({Anahtar("kod")}),
      Tanim<Indir>({Anahtar("no")}),
      Tanim<Kaztan>({Anahtar("grup")}),
      Tanim<Entpar>({Anahtar("grupno")}),
      Tanim<Sendika>({Anahtar("kod")}),
      Tanim<Cari>({Anahtar("oto"), {"kod", {"kod"}}}),
  };
  return tablolar;
}

const TabloTanimi* TabloBul(std::string_view ad) {
  const auto& t = Tablolar();
  const auto i = std::find_if(t.begin(), t.end(), [&](const auto& x) { return AdEsit(x.ad, ad); });
  return i == t.end() ? nullptr : &*i;
}

}  // namespace belvani
