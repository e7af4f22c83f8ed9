// The checked cells of an import file: every column found in the schema, every cell a value of its column.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/csv.h"
#include "core/tables/tablolar.h"
#include "personnel/aktarim.h"

namespace belvani {

struct AktarimKolonu {
  const TabloTanimi* tablo = nullptr;  // first of the file's tables that has the field
  const AlanTanimi* alan = nullptr;
};

struct AktarimSatiri {
  int satirNo = 0;
  std::vector<Deger> degerler;  // one for each column
};

struct AktarimDosyasi {
  std::vector<AktarimKolonu> kolonlar;
  std::vector<AktarimSatiri> satirlar;
  Kusurlar sorunlar;
  std::set<std::pair<int, std::string_view>> soylenenler;  // row and column of each

  // "girtar: boş bırakılamaz", of the row's person.
  void SorunEkle(const AktarimSatiri& satir, std::string_view alan, const std::string& neden);
  bool Soylendi(int satirNo, std::string_view kolon) const;          // has this cell a fault already?
  void KolonIste(std::string_view alan);                             // a fault of the heads where it is not in the file
  void KolonYasakla(std::string_view alan, std::string_view neden);  // one where it is
  int KolonSirasi(std::string_view alan) const;                      // -1: not in the file
  std::string Metin(const AktarimSatiri& satir, std::string_view alan) const;  // "" when not in the file
};

// Reads a cell that is written otherwise than its column is stored; nothing: as any other.
using HucreOkuyan = std::optional<Deger> (*)(const AlanTanimi& alan, std::string_view metin, std::string& kusur);

enum class AnahtarKurali { Tekil, TekrarEder };

// `tablolar`: whose fields the header may name. `anahtar` must be a column and filled, and different in every row
// unless the rule lets it repeat.
Sonuc<AktarimDosyasi> AktarimDosyasiOku(const AktarilanCsv& csv, const std::vector<const TabloTanimi*>& tablolar,
                                        std::string_view anahtar, AnahtarKurali kural, HucreOkuyan okuyan = nullptr);

}  // namespace belvani
