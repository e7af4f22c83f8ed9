// The vocabulary of the schema: field types, flags, columns, tables, indexes.
//
// Each table is written down once, as rows of `<table>.def`. From them come the record struct, a named constant for
// each column (`sicil::ucret`), the table's definition for the store, and the limits that screens and imports check.
#pragma once

#include <cstdint>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/deger.h"
#include "core/kusur.h"
#include "core/tarih.h"
#include "core/tek.h"
#include "core/tutar.h"

namespace belvani {

enum class AlanTipi {
  Metin,   // text of a limited number of letters
  Byte,    // 0 to 255
  Kisa,    // 16-bit signed
  Uzun,    // 32-bit signed
  Tutar,   // money
  Tek,     // single precision
  Tarih,   // day
  Mantik,  // true or false
  Ikili,   // bytes
};

enum class AlanNiteligi {
  Serbest,   // may be Null
  Zorunlu,   // refuses Null
  Otomatik,  // numbered by the store on insertion
  Sonradan,  // not made with the table: added when the store is first opened
};

// What a column of each type is in a record struct.
template <AlanTipi>
struct UyeTipi;
template <>
struct UyeTipi<AlanTipi::Metin> {
  using T = std::string;
};
template <>
struct UyeTipi<AlanTipi::Byte> {
  using T = std::uint8_t;
};
template <>
struct UyeTipi<AlanTipi::Kisa> {
  using T = std::int16_t;
};
template <>
struct UyeTipi<AlanTipi::Uzun> {
  using T = std::int32_t;
};
template <>
struct UyeTipi<AlanTipi::Tutar> {
  using T = Tutar;
};
template <>
struct UyeTipi<AlanTipi::Tek> {
  using T = Tek;
};
template <>
struct UyeTipi<AlanTipi::Tarih> {
  using T = Tarih;
};
template <>
struct UyeTipi<AlanTipi::Mantik> {
  using T = bool;
};
template <>
struct UyeTipi<AlanTipi::Ikili> {
  using T = Baytlar;
};

// What may be entered into a column of numbers, where that is less than its type holds: from screens, files and lists
// alike. The store itself keeps whatever the type holds.
struct AlanSiniri {
  double enAz = -std::numeric_limits<double>::infinity();
  double enCok = std::numeric_limits<double>::infinity();
  bool sira = false;  // a position or number out of a range: the range is told
};

// As the tables write them.
namespace sinir {
constexpr double EnCokTutar = 99'999'999'999'999;

constexpr AlanSiniri Aralik(int enAz, int enCok) {
  return {double(enAz), double(enCok), true};
}
// A position in a list of `sayi` choices, from 0.
constexpr AlanSiniri Secim(int sayi) {
  return Aralik(0, sayi - 1);
}
// A quantity.
constexpr AlanSiniri EnCok(double enCok) {
  return {0, enCok, false};
}
}  // namespace sinir

// A column by name; `boyut` counts letters and is 0 for everything but text.
struct AlanTanimi {
  std::string_view ad;
  AlanTipi tip;
  int boyut;
  AlanNiteligi nitelik;
  AlanSiniri sinir = {};
};

// Does the column end where a list of that many choices does? For the asserts beside the lists.
constexpr bool ListeyeUyar(const AlanTanimi& alan, std::size_t secenek) {
  return alan.sinir.enAz == 0 && alan.sinir.enCok == double(secenek - 1);
}

// A column of a record struct: Kolon<Sicil, Tutar> is a member of Sicil.
template <class Kayit, class Uye>
struct Kolon : AlanTanimi {
  using UyeTuru = Uye;
  Uye Kayit::*uye;

  operator AlanTutamagi() const { return {typeid(Kayit), this->ad}; }  // NOLINT: a column names its field
};

struct IndeksTanimi {
  std::string_view ad;  // as `KayitBul` and `IndeksSec` know it
  std::vector<std::string_view> alanlar;
  bool tekil = false;
  bool birincil = false;
};

struct TabloTanimi {
  std::string_view ad;
  std::vector<AlanTanimi> alanlar;
  std::vector<IndeksTanimi> indeksler;        // of the schema
  std::vector<IndeksTanimi> sorguIndeksleri;  // of the engine's own queries; never named by logic

  const AlanTanimi* AlanBul(std::string_view alan) const;  // case ignored; null when there is none
  const IndeksTanimi* IndeksBul(std::string_view indeks) const;
};

// Tells why the column cannot hold a value ("en çok 8 harf olabilir", "0 ile 255 arasında bir tam sayı olmalı"); ""
// when it can.
std::string TipKusuru(const AlanTanimi& alan, const Deger& deger);
// Why a value may not be entered: the column cannot hold it, or it is beyond the column's limit ("en çok 30 olabilir").
std::string DegerKusuru(const AlanTanimi& alan, const Deger& deger);

// The largest number that may be entered: the column's limit, else what its type has room for.
double EnBuyukGirdi(const AlanTanimi& alan);

// A text as a value that the column can hold: dates dd.MM.yyyy, booleans 0/1, "" is Null for dates and zero or empty
// otherwise. On failure `kusur` tells why and the value is Null.
Deger MetniCevir(const AlanTanimi& alan, std::string_view metin, std::string& kusur);
// The same for the text of a file or list, whose value may be entered.
Deger MetindenDeger(const AlanTanimi& alan, std::string_view metin, std::string& kusur);

}  // namespace belvani
