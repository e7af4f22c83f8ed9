// The papers that send a person, or one of his family, to the institution's medical service: who he is, which relative
// is ill, and for how many days premiums were paid in the twelve months before. Law: 506, articles 32 to 42, 90.
//
// The months of a visit in May 2004 are May 2003 to April 2004. Those of a visit in December are January to December of
// the same year, its own month among them.
//
// Everything that is read here stands in fields that their user may type over; the paper takes what stands there.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "core/session/oturum.h"
#include "core/sonuc.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"

namespace belvani {

enum class ViziteTuru : std::uint8_t {
  Sigortali = 1,  // the insured person himself
  EsVeCocuk,      // his spouse or a child
  AltiAylik,      // the certificate of his spouse, a child or a parent, good for six months
};

// The person, and the day on which he goes.
struct ViziteFormu {
  static constexpr int AdSoyadHarfi = sicil::adi.boyut + 1 + sicil::soyadi.boyut;
  static constexpr int SaatHarfi = 5;

  std::string kod{};
  Tarih bugun{};
  std::string sskno{};
  std::string adSoyad{};
  Tarih girtar{};
  Tarih ciktar{};
  Tarih vizite{};
  std::string saat{};  // of leaving for the visit, "09:15"
  Tarih dogtar{};
  std::string tcno{};
};

// Its fields, as far as the rules know them.
namespace viziteformu {
// clang-format off
inline constexpr Kolon<ViziteFormu, std::string> kod{sicil::kod, &ViziteFormu::kod};
inline constexpr Kolon<ViziteFormu, Tarih> girtar{sicil::girtar, &ViziteFormu::girtar};
inline constexpr Kolon<ViziteFormu, Tarih> ciktar{sicil::ciktar, &ViziteFormu::ciktar};
inline constexpr Kolon<ViziteFormu, Tarih> vizite{{"vizite", AlanTipi::Tarih, 0, AlanNiteligi::Serbest},
                                                  &ViziteFormu::vizite};
// clang-format on
}  // namespace viziteformu

struct ViziteKisisi {
  ViziteFormu form;
  std::optional<Kimlik> kimlik;  // what the drawn papers take besides; nothing: it is left to the pen
};

// The person of this code; the visit is today and now. Nothing when there is no such card.
std::optional<ViziteKisisi> KisiDoldur(Oturum& o, std::string_view kod, Tarih bugun);

// The computer's time, "09:15".
std::string SimdikiSaat();

// ---- the relative

// What the list says of a kinship; its position is the number of the family record.
inline constexpr std::string_view ViziteYakinliklari[] = {"",         "EŞİ",      "ANNESİ",   "BABASI",   "1.ÇOCUĞU",
                                                          "2.ÇOCUĞU", "3.ÇOCUĞU", "4.ÇOCUĞU", "5.ÇOCUĞU", "6.ÇOCUĞU"};
inline constexpr std::uint8_t AnneYakinligi = 2;
inline constexpr std::uint8_t BabaYakinligi = 3;

// The sexes as the paper's list has them: nobody's is not known.
inline constexpr std::string_view YakinCinsiyetleri[] = {"", "Erkek", "Kadın"};

struct ViziteYakini {
  std::uint8_t yakinlik = 0;  // position in ViziteYakinliklari
  std::string adi{};
  std::string soyadi{};
  std::string adSoyad{};  // both, where they are one field
  std::uint8_t cins = 0;  // position in YakinCinsiyetleri
  std::string dogyer{};
  Tarih dogtar{};
  std::string tcno{};
  std::string adr{};

  bool operator==(const ViziteYakini&) const = default;
};

// The first relative of that kinship; an empty one, to be filled by hand, when there is none or no kinship is asked.
ViziteYakini YakinBul(Oturum& o, std::string_view kod, std::uint8_t yakinlik);

// Mother or father: the certificate speaks of them in other words.
constexpr bool AnaBabaMi(std::uint8_t yakinlik) {
  return yakinlik == AnneYakinligi || yakinlik == BabaYakinligi;
}

// ---- the twelve months

struct ViziteAyi {
  int yil = 0;
  int ay = 0;
  bool kayitli = false;  // it has a pay record
  int gun = 0;           // premium days
  Tutar ucret{};         // the employer's base, in the present unit of money
  Tutar ekodeme{};       // this and the next are typed
  Tutar prim{};
  int izin = 0;  // days of paid leave

  // "2004/OCAK"; "" for a month that is none.
  std::string Adi() const;
};
using ViziteAylari = std::array<ViziteAyi, 12>;

// The months alone. `vizite` must be a day.
ViziteAylari OnIkiAy(Tarih vizite);

// The months with what the pay records hold of them; several records of a month are added up. Fails when the visit or
// the hiring is no date.
Sonuc<ViziteAylari> GunTablosuYap(Oturum& o, const ViziteFormu& form);

// What was typed into the months of `eski` that are in `yeni` too.
void YazilaniTasi(const ViziteAylari& eski, ViziteAylari& yeni);

struct ViziteToplami {
  int gun = 0;
  Tutar ucret{};
  Tutar ekodeme{};
  Tutar prim{};
  int izin = 0;

  Tutar Tutarlar() const { return ucret + ekodeme + prim; }
};
// Throws TutarTasmasi.
ViziteToplami Topla(const ViziteAylari& aylar);

// ---- lines of the papers

inline constexpr const char* PrimDevamEdiyor = "Devam Ediyor";

// The day on which the payment of premiums ended, or that it goes on. The six months' certificate takes a leaving only
// when it is above the hiring, both as they are written: 05.03.2009 is below 10.01.2004.
std::string PrimDurumu(ViziteTuru tur, Tarih girtar, Tarih ciktar);

// The last day of the certificate: six months on, at the month's end where it lacks the day. The drawn paper counts
// every fourth year as a leap year.
// Example: 31.08.2004 -> 28.02.2005.
std::string MetindeSonGecerlilik(Tarih vizite);
Sonuc<std::string> CizimdeSonGecerlilik(Tarih vizite);

}  // namespace belvani
