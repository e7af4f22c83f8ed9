// A store with all tables of the schema, in a data path of its own.
#pragma once

#include "core/store/imlec.h"
#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "veriyeri.h"

namespace belvani::test {

struct OrnekDepo {
  VeriYeri veriYeri;
  std::string sirket = BosSirket(veriYeri.Yer(), "DENEME");
  std::string yol = sirket + "tolu.dat";
  Veritabani db;

  OrnekDepo() {
    bool tamam = db.DbYarat(yol);
    for (const auto& tablo : Tablolar()) {
      tamam = tamam && db.TabloEkle(tablo);
      for (const auto& alan : tablo.alanlar)
        if (alan.nitelik == AlanNiteligi::Sonradan) tamam = tamam && db.AlanEkle(tablo.ad, alan);
    }
    if (!tamam) throw std::runtime_error(db.SonHata());
  }
};

struct TabloImleci : Imlec {
  TabloImleci(Veritabani& db, std::string_view tablo) {
    if (!db.TabloAc(*this, tablo)) throw std::runtime_error(db.SonHata());
  }
};

inline bool Ekle(Imlec& rs, const std::vector<std::pair<std::string_view, Deger>>& degerler) {
  rs.KayitEkle();
  for (const auto& [alan, deger] : degerler) rs.AlanYaz(alan, deger);
  return rs.KayitYaz();
}

inline std::vector<std::string> Ileri(Imlec& rs, std::string_view alan) {
  std::vector<std::string> gorulen;
  for (bool var = rs.IlkKayit(); var; var = rs.SonrakiKayit()) gorulen.push_back(rs.MetinOku(alan));
  return gorulen;
}

// From the last record to the first, told in the order from first to last.
inline std::vector<std::string> Geri(Imlec& rs, std::string_view alan) {
  std::vector<std::string> gorulen;
  for (bool var = rs.SonKayit(); var; var = rs.OncekiKayit()) gorulen.insert(gorulen.begin(), rs.MetinOku(alan));
  return gorulen;
}

}  // namespace belvani::test
