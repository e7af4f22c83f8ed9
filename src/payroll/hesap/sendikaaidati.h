// Union dues taken from net pay.
//
// Law 2821, article 61: the employer withholds the dues that the union has told. Each union's row says from which
// amount, at which rate or as which fixed sum, and between which limits.
// Example: dues of 50.00 with a floor of 60.00 on a net of 55.00 -> 60.00 exceeds the net, so nothing is taken.
#pragma once

#include <array>
#include <string_view>

#include "core/tables/sendika.h"
#include "core/yuvarlama.h"

namespace belvani {

enum class KesintiYeri : std::uint8_t { Sabit = 0, NetOdenen = 1, SskMatrahi = 2, BrutKazanc = 3, Ucret = 4 };

// As the screen lists them; the position is what is stored.
inline constexpr std::array<std::string_view, 5> KesintiYerleri{"Sabit", "Net Ödenen", "SSK Matrahı", "Brüt Kazanç",
                                                                "Ücret"};
static_assert(ListeyeUyar(sendika::yer, KesintiYerleri.size()));

struct SendikaGirdisi {
  Tutar NetOdenen;
  Tutar sskmatrah;
  Tutar brutkaz;
  Tutar ucret;
};

// Never a part of the dues: when the net does not bear them whole, they are 0.
Tutar SendikaHesapla(const Sendika& sendika, const SendikaGirdisi& g, Yuvarlayici yuvarla);

}  // namespace belvani
