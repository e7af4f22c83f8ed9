// The places of the accounting integration: what of a month's payroll a posting line takes. The order is part of the
// data, `entpar.yer` holds the position.
//
//   YerAdlari[12] == "DV Tutarı", and its sum over a group is that of brd.dvtutar
#pragma once

#include <array>
#include <string_view>

#include "payroll/hesap/kayittoplami.h"

namespace belvani {

inline constexpr int YerYok = 0;
inline constexpr int YerNetOdenen = 16;
inline constexpr std::size_t YerSayisi = 22;

inline constexpr std::array<std::string_view, YerSayisi> YerAdlari{"Yok",
                                                                   "Ücret",
                                                                   "Ek Ücret",
                                                                   "Brüt Ücret",
                                                                   "Yardım",
                                                                   "Toplam Kazanç",
                                                                   "SSK Matrahı (işçi)",
                                                                   "SSK Kesinti (işçi)",
                                                                   "İşsizlik (işçi)",
                                                                   "SSK+İşsizlik (işçi)",
                                                                   "GV Matrahı",
                                                                   "GV Tutarı",
                                                                   "DV Tutarı",
                                                                   "GV+DV Tutarı",
                                                                   "Toplam Kesinti (işçi)",
                                                                   "İndirim",
                                                                   "Net Ödenen",
                                                                   "SSK Matrah (işveren)",
                                                                   "SSK Kesinti (işveren)",
                                                                   "İşsizlik (işveren)",
                                                                   "SSK+İşsizlik (işveren)",
                                                                   "Toplam Ödenecek SSK"};

namespace yer {
inline constexpr Ifade isciPrimi = Ifade(brd::sskkesinti) + brd::issizisci;

// From place 1 on. "Brüt Ücret" is the wage's complement in the gross, not the gross itself.
inline constexpr std::array<Ifade, YerSayisi - 1> Ifadeler{brd::ucret,
                                                           toplam::fazlaMesai,
                                                           Ifade(brd::brutkaz) - brd::ucret,
                                                           brd::topyardim,
                                                           brd::brutkaz,
                                                           brd::sskmatrah,
                                                           brd::sskkesinti,
                                                           brd::issizisci,
                                                           isciPrimi,
                                                           brd::gvmatrah,
                                                           brd::gvtutar,
                                                           brd::dvtutar,
                                                           toplam::vergiler,
                                                           toplam::isciToplam,
                                                           brd::ogv,
                                                           toplam::yasalNet + brd::ogv,
                                                           brd::sskmatrahisveren,
                                                           brd::sskkesintiisveren,
                                                           brd::issizisveren,
                                                           toplam::isverenToplam,
                                                           isciPrimi + toplam::isverenToplam};
}  // namespace yer

// The sums of a group, by place; those of the places that are told as sums of others follow from the records too.
class YerToplamlari {
 public:
  void Ekle(const Brd& brd) {
    for (std::size_t i = 0; i < yer::Ifadeler.size(); ++i) toplamlar_[i + 1] += Degeri(yer::Ifadeler[i], brd);
  }
  Tutar operator[](int yer) const { return toplamlar_[std::size_t(yer)]; }

 private:
  std::array<Tutar, YerSayisi> toplamlar_{};
};

}  // namespace belvani
