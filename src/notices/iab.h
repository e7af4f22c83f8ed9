// "İşten Ayrılma Bildirgesi (İAB)": what the notice to the employment agency says of a person who leaves: who he is,
// his last net pay, his days with unemployment insurance over the last three years, his last pay records.
//
// Months count from the same one three years before the leaving, or before the day of the paper for one who is still
// employed, up to that day's own, both included. Left on 15.07.2009: records of 2006-07 to 2009-07.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/kusur.h"
#include "core/store/motor.h"
#include "core/tables/brd.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "core/tarih.h"
#include "core/tutar.h"

namespace belvani {

constexpr std::size_t IabKayitSayisi = 5;  // records on the paper, newest first
constexpr int IabYili = 3;                 // of the days

// A row of "Son 120 Gün Kayıtları".
struct IabKaydi {
  std::int16_t yil = 0;
  std::string ay;  // its name
  Tutar pek;       // base of the premiums
  std::int16_t gun = 0;
  std::string ekseb;  // reason of missing days, in words

  bool operator==(const IabKaydi&) const = default;
};

struct IabFormu {
  std::string kod{};
  std::string adsoyad{};
  std::string sskno{};
  std::string tcno{};
  Tarih dogtar{};
  std::string dogyer{};
  Tarih girtar{};
  Tarih ciktar{};
  std::string cikissebebi{};
  std::string gorevi{};           // typed: no record knows it
  Tutar sonNet{};                 // "Son Net Ücret"
  std::int32_t issizlikGunu = 0;  // "Son 3 Yıllık İşsizlik Sigortası Günü"
  Tarih duzenleme{};              // "Düzenleme Tarihi"
  Tarih teblig{};                 // "Sigortalıya Tebliğ Tarihi"
  std::vector<IabKaydi> kayitlar{};
  // For the paper alone.
  std::string ana{};
  std::string baba{};
  std::array<std::string, 2> adres{};
  std::string tel{};
  std::uint8_t sakatdrc = 0;
};

// The form's fields, as far as the rules know them.
namespace iabformu {
// clang-format off
inline constexpr Kolon<IabFormu, std::string> kod{sicil::kod, &IabFormu::kod};
inline constexpr Kolon<IabFormu, Tarih> girtar{sicil::girtar, &IabFormu::girtar};
inline constexpr Kolon<IabFormu, Tarih> ciktar{sicil::ciktar, &IabFormu::ciktar};
inline constexpr Kolon<IabFormu, Tarih> duzenleme{{"duzenleme", AlanTipi::Tarih, 0, AlanNiteligi::Serbest}, &IabFormu::duzenleme};
// clang-format on
}  // namespace iabformu

// The person's fields; nothing when there is no card of this code. Without an identity record its fields are empty.
// Throws MotorHatasi.
std::optional<IabFormu> KisiDoldur(Motor& motor, std::string_view kod);

// What the person's dates lack: warnings, and the work goes on.
Kusurlar IabUyarilari(const IabFormu& form);

// The last net pay, the days and the records, by the person's code and the dates of the form. The net pay is that of
// the newest record in range that has any; the records are the newest five of all. Throws MotorHatasi and TutarTasmasi.
void IabKayitlari(Motor& motor, IabFormu& form);
// The same of these records, oldest first.
void IabKayitlari(const std::vector<Brd>& bordrolar, IabFormu& form);

}  // namespace belvani
