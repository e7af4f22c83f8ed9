// Slips drawn on A4 sheets: one, two or four on each, with lines to cut along.
//
//                     ÜCRET PUSULASI
//                   Ocak 2008 Dönemi
//   Firma İsmi   Çınar Tekstil
//   -------------------------------------------------------------------------------------------
//   Ücreti    608.40   Ssk Matrahı    608.40   SSK Muafiyet   0.00   Sendika             0.00
//   -------------------------------------------------------------------------------------------
//   Ücret hesap pusulasını, …
//
// Unlike the text form it has room for `ek`, in two more blocks: beside the others on half a sheet, below them else.
// All slips have the same columns and size of letters, as large as the widest and the tallest slip let them be; nothing
// is cut.
#pragma once

#include <array>
#include <vector>

#include "printing/cizilenbelge.h"
#include "printing/yaprak.h"

namespace belvani {

enum class SayfadaYaprak { Bir = 1, Iki = 2, Dort = 4 };

// The document must outlive it.
class GrafikYapraklar final : public CizilenBelge {
 public:
  GrafikYapraklar(const YaprakBelgesi& belge, SayfadaYaprak sayfada, Ilerleme* ilerleme = nullptr);

  int SayfaSayisi() const override;
  void SayfaCiz(int no, Tuval& tuval) const override;
  // Of letters too small to be read with ease.
  std::string Uyari() const override;

  static constexpr std::size_t BlokSayisi = 4;
  // Millimetres that labels and values of a block take, over all slips.
  struct BlokEni {
    double etiket = 0;
    double deger = 0;
  };

 private:
  double Olc(Ilerleme* ilerleme);
  double SigmaOrani(double enCokSatir) const;
  void YaprakCiz(const Yaprak& yaprak, const Dikdortgen& yer, Tuval& tuval, Tuval& kalip) const;
  Dikdortgen Yer(int sira) const;

  const YaprakBelgesi& belge_;
  int sayfada_;
  YaziBicimi yazi_;
  std::array<BlokEni, BlokSayisi> enler_ = {};
  double basEtiketi_ = 0;
};

}  // namespace belvani
