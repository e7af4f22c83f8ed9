// SorguMetni: the SQL of a document's records with the values that it binds, put together from the user's selection.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "core/store/motor.h"
#include "core/store/satirlar.h"
#include "documents/defter.h"

namespace belvani {

// A query that needs a few columns of a wide table names them in a tuple: reading all of them costs ten times as much.
//
//   constexpr auto kolonlar = std::tuple{brd::kod, brd::ng};
//   "select " + KolonListesi(kolonlar, "b.") + " from brd b"          // "b.kod, b.ng"
//   const int sonraki = KolonlariAl(*komut, 0, kolonlar, kayit);       // into the record; the column after them
template <class Kolonlar>
std::string KolonListesi(const Kolonlar& kolonlar, const std::string& on) {
  std::string liste;
  const auto ekle = [&](const AlanTanimi& kolon) { liste += (liste.empty() ? "" : ", ") + on + std::string(kolon.ad); };
  std::apply([&](const auto&... kolon) { (ekle(kolon), ...); }, kolonlar);
  return liste;
}

template <class Kolonlar, class Kayit>
int KolonlariAl(const Komut& komut, int ilk, const Kolonlar& kolonlar, Kayit& kayit) {
  std::apply([&](const auto&... kolon) { (KolonAl(komut, ilk++, kayit.*kolon.uye), ...); }, kolonlar);
  return ilk;
}

class SorguMetni {
 public:
  SorguMetni(std::string sql, std::vector<Deger> degerler) : sql_(std::move(sql)), degerler_(std::move(degerler)) {}

  void Ekle(std::string_view sql) { sql_ += sql; }
  void Ekle(std::string_view sql, Deger deger) {
    sql_ += sql;
    degerler_.push_back(std::move(deger));
  }

  // " and alan between …"; nothing for a range that is left as it comes, which takes also people whose field is empty.
  void Aralik(const std::string& alan, const MetinAraligi& aralik) {
    if (aralik.bas.empty() && aralik.bit == MetinAraligi{}.bit) return;
    sql_ += " and (coalesce(" + alan + ", '')) collate turkce between ? and ?";
    degerler_.emplace_back(aralik.bas);
    degerler_.emplace_back(aralik.bit);
  }

  // Run numbers and people of a selection; tables `brd` b and `sicil` s.
  void Secim(const DefterSecim& secim) {
    Ekle(" and b.no >= ?", std::int64_t(secim.noBas));
    Ekle(" and b.no <= ?", std::int64_t(secim.noBit));
    Aralik("b.kod", secim.kod);
    Aralik("s.grup", secim.grup);
    Aralik("s.tip", secim.tip);
    Aralik("s.ozel", secim.ozel);
  }

  // Ready to step. Throws MotorHatasi.
  std::unique_ptr<Komut> Hazirla(Motor& motor) const {
    auto komut = motor.Hazirla(sql_);
    int no = 0;
    for (const Deger& d : degerler_) komut->Bagla(++no, d);
    return komut;
  }

 private:
  std::string sql_;
  std::vector<Deger> degerler_;
};

}  // namespace belvani
