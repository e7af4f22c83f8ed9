// The voucher of a month's payroll: records and posting lines in, voucher out. Nothing here knows a store or a clock.
//
//   FisKurucu kurucu(satirlar);
//   kurucu.Ekle("A", brd);              // records in the order of their groups
//   const Fis fis = kurucu.Bitir({2009, 12, "Tümü"});
//
// The records of a group are summed by place; then each posting line of the group puts its place's sum on its account,
// as debit or as credit. The side of an account follows from the sign of what has come together there, so two opposite
// lines on one account leave only their difference.
//
// Example: a group of gross 1,000 and net 800 with the lines "Toplam Kazanç" B 770 and "Net Ödenen" A 335 gives
// 770 B 1,000 and 335 A 800, and a balance of 200.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "accounting/entegreyerleri.h"
#include "core/kusur.h"
#include "core/tables/entpar.h"
#include "core/turkce.h"

namespace belvani {

inline constexpr const char* ButunGruplar = "Tümü";
inline constexpr std::size_t EnCokHesap = 50;
inline constexpr std::uint8_t BorcTarafi = 0;
inline constexpr std::uint8_t AlacakTarafi = 1;

struct FisSatiri {
  std::string kod;  // account
  std::string ack;
  std::uint8_t ba = BorcTarafi;
  Tutar tutar;  // never negative

  bool operator==(const FisSatiri&) const = default;
};

// Of when and whom.
struct FisDonemi {
  int yil = 0;
  int ay = 0;
  std::string grup = ButunGruplar;
};

struct Fis {
  FisDonemi donem;
  std::string ack;  // "Aralık 2009 Ücret Tahakkuku"
  std::vector<FisSatiri> satirlar;
  Tutar borc;
  Tutar alacak;
  Kusurlar dusenler;  // a posting line each, dropped for want of room
  Kusurlar uyarilar;  // what else did not get into it, and why
  bool Bos() const { return borc == Tutar() && alacak == Tutar(); }
  Tutar Bakiye() const { return borc - alacak; }
};

std::string FisAciklamasi(int yil, int ay);
std::string_view TarafHarfi(std::uint8_t ba);  // "B", "A"

class FisKurucu {
 public:
  explicit FisKurucu(const std::vector<Entpar>& satirlar);

  // The records of one group follow each other.
  void Ekle(std::string_view ozel, const Brd& brd);
  Fis Bitir(const FisDonemi& donem);  // throws TutarTasmasi, as Ekle does

 private:
  struct HesapTutari {
    std::string hesap;
    Tutar tutar;  // debit above zero, credit below
  };
  struct Kucuk {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return TurkceKarsilastir(a, b) < 0; }
  };

  void GrubuDagit();
  void SatiriDagit(const Entpar& satir);
  HesapTutari* HesapBul(const std::string& hesap);

  std::map<std::string, std::vector<Entpar>, Kucuk> satirlar_;  // by group, in the order of their numbers
  std::optional<std::string> ozel_;                             // of the group that is being summed
  YerToplamlari toplamlar_;
  std::vector<HesapTutari> hesaplar_;
  Kusurlar dusenler_;
  Kusurlar uyarilar_;
};

}  // namespace belvani
