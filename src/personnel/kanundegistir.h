// The law code of many people at once: those of one law, or everybody.
//
// A person without an identity record is on none of these lists. Codes are compared as they stand: "5510" is not
// "05510"; "00000" also finds those that are empty or no number.
#pragma once

#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/tables/alansatiri.h"
#include "core/tables/sicil.h"

namespace belvani {

struct KanunSecimi {
  bool eskiyeGore = false;  // only those whose law is `eski`
  std::string eski{};       // this and the next as typed: "5510"
  std::string yeni{};
  bool sorarak = false;  // a question at each person
};

// Its fields, as the rules know them.
namespace kanunsecimi {
// clang-format off
inline constexpr auto eskiyeGore = Uye("eskiyegore", &KanunSecimi::eskiyeGore);
inline constexpr auto eski = Uye("eskikanun", &KanunSecimi::eski, sicil::kanun.boyut);
inline constexpr auto yeni = Uye("yenikanun", &KanunSecimi::yeni, sicil::kanun.boyut);
inline constexpr auto sorarak = Uye("sorarak", &KanunSecimi::sorarak);
// clang-format on
}  // namespace kanunsecimi

struct KanunluKisi {
  std::string kod, sskno, tcno, adsoyad, kanun;
};

struct KanunListesi {
  std::vector<KanunluKisi> kisiler;  // by code
  std::size_t kimliksiz = 0;         // who would be here if they had an identity record
};

// A law as it was typed, in five digits; a text that is no number is a fault of its field.
Sonuc<std::string> KanunOku(const std::string& yazilan, AlanTutamagi alan);

Sonuc<KanunListesi> KanunluKisiler(Oturum& o, const KanunSecimi& secim);

// Those of them whose law shall change: everybody, or who was said yes to.
std::vector<KanunluKisi> KanunuDegisecekler(const std::vector<KanunluKisi>& kisiler, bool sorarak, Bildirim& bildirim);

struct KanunDegisimi {
  std::size_t degisen = 0;
  Kusurlar yazilmayan{};  // who has been deleted meanwhile, or given another law than the one of the list
};

// Writes the law (five digits) of these people in one transaction; the person whose record cannot be written is the
// fault, and nothing has changed. A step is a person; stopped, it throws Vazgecilmis and nothing has changed either.
Sonuc<KanunDegisimi> KanunDegistir(Oturum& o, const std::vector<KanunluKisi>& kisiler, const std::string& kanun,
                                   Ilerleme* ilerleme = nullptr);

}  // namespace belvani
