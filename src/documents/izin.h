// "Ücretli İzinler Listesi": paid leave taken, from the pay records of all years up to the chosen one.
//
//   İcmal Rapor         a row for each person: days of earlier years, of the year, of both; also people without leave
//   Personel İzinleri   a row for each month in which a person had leave
//   Dönemsel İzinler    a row for each person who had leave in the year, its months side by side
#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "documents/defter.h"

namespace belvani {

enum class IzinRaporu { Icmal, Personel, Donemsel };  // in the order of "Rapor Tipi"
inline constexpr std::array<std::string_view, 3> IzinRaporAdlari{"İcmal Rapor", "Personel İzinleri",
                                                                 "Dönemsel İzinler"};

struct IzinAyi {
  int yil = 0;
  int ay = 0;
  int gun = 0;
};

struct IzinKisisi {
  std::string kod;
  std::string tcno;
  std::string adSoyad;
  Tarih girtar;
  std::vector<IzinAyi> aylar;  // with leave, in order of time
};

// Everyone in the range who has a card, in the order of codes, with the months up to the end of `yil`. Throws
// MotorHatasi.
std::vector<IzinKisisi> IzinleriOku(Motor& motor, int yil, const MetinAraligi& kod, Ilerleme* ilerleme = nullptr);

struct IzinSecenegi {
  IzinRaporu tip = IzinRaporu::Icmal;
};

// From the store; year and codes of the selection count. Throws MotorHatasi.
std::unique_ptr<Belge> IzinBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim, const IzinSecenegi& secenek,
                                   const BelgeYazisi& yazi);

Rapor IzinListesi(const std::vector<IzinKisisi>& kisiler, int yil, IzinRaporu tip);

}  // namespace belvani
