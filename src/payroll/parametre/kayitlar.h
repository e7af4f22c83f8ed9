// The records of the parameter files: name of the file, bytes of the record, and the value that it holds.
//
//   yasal2.dat    1368  employee rates, employer rates (each 32 rows × 5 singles, column after column), minimum wage,
//                       floor, ceiling, severance ceiling, stamp duty (single), deduction ceiling, 16 bytes kept as
//                       read, 3 disability deductions, deduction rate (single)
//   gvtbl.dat       96  8 limits, then 8 rates
//   agitbl.dat      28  5 rates, base
//   hestur.dat    4050  50 × (number, text of 79, work-accident mark)
//   kanun.dat       18  a row: first day, last day, era; the file holds any number of rows
//   ozgvtbl.dat     96  8 × (limit, rate): this table keeps limit and rate of a row side by side
//   ozgvpar.dat     12  rate (single), month, year (16 bits each), stamp duty (single)
//   fmesai.dat       8  a line: multiplier, limit; the file holds three
//   kazanc.dat       9  flag bytes of the earnings
//   yardim.dat      11  flag bytes of the allowances
//   kidpar.dat       4  days of the year of service (16 bits), two positions among the allowances (a byte each)
//   ihbsure.dat     32  8 × (months, days of notice), 16 bits each
//   sablon.dat     135  9 singles of days and hours, 11 amounts, 11 bytes of spreading kind
//
// Example: row r, column c of the employee rates stands at byte (r + 32c) × 4; the minimum wage at byte 1280.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "payroll/parametre/ozelgiderparametreleri.h"
#include "payroll/parametre/parametreler.h"
#include "payroll/parametre/tazminatparametreleri.h"

namespace belvani {

// clang-format off
struct YasalKaydi      { using Deger = YasalOranlar; static constexpr std::size_t Boy = 1368; static constexpr std::string_view Dosya = "yasal2.dat"; };
struct GvKaydi         { using Deger = GvTablosu;    static constexpr std::size_t Boy = 96;   static constexpr std::string_view Dosya = "gvtbl.dat"; };
struct AgiKaydi        { using Deger = AgiTablosu;   static constexpr std::size_t Boy = 28;   static constexpr std::string_view Dosya = "agitbl.dat"; };
struct HesapTurKaydi   { using Deger = HesapTurleri; static constexpr std::size_t Boy = 4050; static constexpr std::string_view Dosya = "hestur.dat"; };
struct KanunKaydi      { using Deger = KanunSatiri;  static constexpr std::size_t Boy = 18;   static constexpr std::string_view Dosya = "kanun.dat"; };
struct OzelGvKaydi     { using Deger = GvTablosu;    static constexpr std::size_t Boy = 96;   static constexpr std::string_view Dosya = "ozgvtbl.dat"; };
struct OzelGiderKaydi  { using Deger = OzelGiderParametreleri; static constexpr std::size_t Boy = 12; static constexpr std::string_view Dosya = "ozgvpar.dat"; };
struct FazlaMesaiKaydi { using Deger = FazlaMesai;   static constexpr std::size_t Boy = 8;    static constexpr std::string_view Dosya = "fmesai.dat"; };
struct KazancKaydi     { using Deger = decltype(KazancBayraklari::k); static constexpr std::size_t Boy = 9;  static constexpr std::string_view Dosya = "kazanc.dat"; };
struct YardimKaydi     { using Deger = decltype(KazancBayraklari::y); static constexpr std::size_t Boy = 11; static constexpr std::string_view Dosya = "yardim.dat"; };
struct KidemParKaydi   { using Deger = KidemParametreleri; static constexpr std::size_t Boy = 4; static constexpr std::string_view Dosya = "kidpar.dat"; };
struct IhbarSureKaydi  { using Deger = IhbarSureleri; static constexpr std::size_t Boy = 32;  static constexpr std::string_view Dosya = "ihbsure.dat"; };
struct SablonKaydi     { using Deger = Sablon;       static constexpr std::size_t Boy = 135;  static constexpr std::string_view Dosya = "sablon.dat"; };
// clang-format on

// A record read from bytes, and how many of its fields held no number (they read as 0) or no day (Null).
template <class Deger>
struct Cozum {
  Deger deger;
  int gecersiz = 0;
};

// Exactly Kayit::Boy bytes.
template <class Kayit>
std::string KayitBaytlari(const typename Kayit::Deger& deger);

// `baytlar` holds Kayit::Boy bytes; what is missing reads as zero.
template <class Kayit>
Cozum<typename Kayit::Deger> KayitCoz(std::string_view baytlar);

}  // namespace belvani
