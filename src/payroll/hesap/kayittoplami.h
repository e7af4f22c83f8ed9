// Amounts that follow from those a pay record holds. Each is told once, by its terms; the value of a record, the SQL of
// a sum over records and the steps that explain it come from the row.
//
//   Degeri(toplam::vergiler, brd)          brd.gvtutar + brd.dvtutar
//   "sum(" + Sql(toplam::odenen, "b.")     b.brutkaz - b.sskkesinti - …
//
// Terms are columns or other rows. What depends on a rate as well, as the stamp duty that papers show, is made of these
// in documents/turetilen.h.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "core/tables/brd.h"

namespace belvani {

struct Terim {
  std::string_view kolon = {};
  Tutar Brd::*uye = nullptr;
  bool eksi = false;
};

// A sum and difference of columns.
class Ifade {
 public:
  constexpr Ifade(const Kolon<Brd, Tutar>& kolon) : sayi_(1) { terimler_[0] = {kolon.ad, kolon.uye}; }  // NOLINT

  constexpr std::span<const Terim> Terimler() const { return {terimler_.data(), sayi_}; }

  friend constexpr Ifade operator+(Ifade a, const Ifade& b) {
    for (const Terim& t : b.Terimler()) a.terimler_.at(a.sayi_++) = t;
    return a;
  }
  friend constexpr Ifade operator-(Ifade a, const Ifade& b) {
    for (const Terim& t : b.Terimler()) a.terimler_.at(a.sayi_++) = {t.kolon, t.uye, !t.eksi};
    return a;
  }

 private:
  std::array<Terim, 8> terimler_{};
  std::size_t sayi_;
};

struct KayitToplami : Ifade {
  std::string_view ad;
  const char* etiket;  // as the payroll screen labels it, or the papers

  constexpr KayitToplami(std::string_view toplamAdi, const char* toplamEtiketi, const Ifade& ifade)
      : Ifade(ifade), ad(toplamAdi), etiket(toplamEtiketi) {}
};

// clang-format off
namespace toplam {
inline constexpr KayitToplami kazanclar{"kazanclar", "Kazançlar", Ifade(brd::brutkaz) - brd::topyardim};
inline constexpr KayitToplami fazlaMesai{"fazlaMesai", "Fazla Mesai", kazanclar - brd::ucret};
inline constexpr KayitToplami vergiler{"vergiler", "G.V.+D.V.", Ifade(brd::gvtutar) + brd::dvtutar};
inline constexpr KayitToplami yasalKesinti{"yasalKesinti", "Kesintiler", brd::sskkesinti + vergiler};
inline constexpr KayitToplami isciToplam{"isciToplam", "İşçi TOPLAM", yasalKesinti + brd::issizisci};
// What premiums and taxes leave of the gross.
inline constexpr Ifade yasalNet = brd::brutkaz - isciToplam;
inline constexpr KayitToplami ozelKesinti{"ozelKesinti", "Ö.Kes.", Ifade(brd::sendika) + brd::borckes};
inline constexpr KayitToplami kesintiler{"kesintiler", "Kesintiler Toplamı", isciToplam + ozelKesinti};
// Without the allowance, which is paid on top.
inline constexpr KayitToplami odenen{"odenen", "Personel Ödemeleri", brd::brutkaz - kesintiler};
inline constexpr KayitToplami isverenToplam{"isverenToplam", "İşveren TOPLAM", Ifade(brd::sskkesintiisveren) + brd::issizisveren};
inline constexpr KayitToplami isverenMaliyeti{"isverenMaliyeti", "İşveren Maliyeti", brd::brutkaz + isverenToplam};
inline constexpr Ifade issizlik = Ifade(brd::issizisci) + brd::issizisveren;
// What the employer owes the institution, less what the state contributes.
inline constexpr KayitToplami odenecekPrim{"odenecekPrim", "Ödenecek SSK Primi", brd::sskkesinti + isverenToplam + brd::issizisci - brd::katki};
inline constexpr KayitToplami kumuleMatrah{"kumuleMatrah", "Kümüle Gelir Vergisi", Ifade(brd::devgvmatrah) + brd::gvmatrah};
inline constexpr KayitToplami kumuleVergi{"kumuleVergi", "Kümüle G.V. Tutarı", Ifade(brd::devgvtutar) + brd::gvtutar};
inline constexpr KayitToplami gvIndirimi{"indirim", "Vergi indirimleri", Ifade(brd::sakindir) + brd::indirim1 + brd::indirim2 + brd::indirim3};

inline constexpr std::array Hepsi{kazanclar, fazlaMesai, vergiler, yasalKesinti, isciToplam, ozelKesinti, kesintiler, odenen,
                                  isverenToplam, isverenMaliyeti, odenecekPrim, kumuleMatrah, kumuleVergi, gvIndirimi};
}  // namespace toplam
// clang-format on

inline Tutar Degeri(const Ifade& ifade, const Brd& brd) {
  Tutar sonuc;
  for (const Terim& t : ifade.Terimler()) t.eksi ? sonuc -= brd.*t.uye : sonuc += brd.*t.uye;
  return sonuc;
}

// `on` is the table's name in the query, with its dot.
std::string Sql(const Ifade& ifade, const std::string& on);

// The premium days of a record, as SskGunu counts them.
std::string SskGunuSql(const std::string& on);

}  // namespace belvani
