// prnx: one interface, cell by cell and line by line, to a drawn page and to the raw spool of a printer, so that a
// tabular document has one writer for both.
//
//   prnx yazici(ayar, &pdf, &ham);
//   if (!yazici.OpenPrinter(prnxTuru(ayar), "LİSTE")) return;
//   yazici.YeniSayfa();
//   yazici.Lprint("Adı Soyadı", 24, SatirSonu::Yok, MetinHizasi::Sol, HucreBicem::Kalin);
//   yazici.Lprint("1,234.50", 12, SatirSonu::Var, MetinHizasi::Sag);
//   yazici.SayfaBitti(SayfaDibi::Doldur);
//   yazici.ClosePrinter();
#pragma once

#include <optional>

#include "printing/dosprint.h"
#include "printing/tuval.h"
#include "printing/xprn.h"
#include "printing/yzcayar.h"

namespace belvani {

enum class HucreBicem : unsigned { Duz = 0, Kalin = 1, Egik = 2, UstuCizili = 4, AltiCizili = 8 };
constexpr HucreBicem operator|(HucreBicem a, HucreBicem b) {
  return HucreBicem(unsigned(a) | unsigned(b));
}
constexpr bool BicemVar(HucreBicem hepsi, HucreBicem biri) {
  return (unsigned(hepsi) & unsigned(biri)) != 0;
}

enum class SayfaDibi { Birak, Doldur, At };

struct prnxFont {
  std::string fontname = "Tahoma";
  double fontsize = 8.25;
  int fontchar = 162;  // Turkish letters
};

// The cells of letters that a drawn page is divided into, for papers that look as a text printer prints them.
struct prnxIzgara {
  KagitBoyu kagit;
  Nokta bas;  // upper left corner of the first cell
  double harfEni = 0;
  double satirBoyu = 0;
  YaziBicimi yazi;
};

struct prnxAcilis {
  bool condensed = false;
  bool large = false;
  int kolon = 0;                          // columns of a drawn page; 0: 80, condensed 132, large 228
  std::optional<prnxIzgara> izgara = {};  // nothing: as font, columns and print settings make it
};

class prnx {
 public:
  // A kind whose destination is null is refused.
  prnx(YzcAyarlari& ayar, Tuval* tuval, HamCikis* ham) : ayar_(ayar), tuval_(tuval), ham_(ham) {}

  prnxFont Font;

  // Kind 1 drawn, 2 raw text; 3 and 4 open and write nothing; any other is refused. The drawn kind sets YzcSatir to
  // the lines that the font allows, unless the caller brings a grid.
  bool OpenPrinter(int tur, const std::string& baslik, prnxAcilis acilis = {});
  Durum ClosePrinter();

  int SatirSayisi() const { return satir_; }
  int SayfaSayisi() const { return sayfa_; }
  int YeniSayfa();
  // A raw page that is to end with its paper must be filled, or its paper thrown out; left as it is, the next one runs
  // on from it.
  void SayfaBitti(SayfaDibi dip);

  // A cell of `en` columns; below 1, as wide as its text. On a drawn page a text that is wider is made narrower.
  void Lprint(std::string_view metin, int en, SatirSonu sonu, MetinHizasi hiza = MetinHizasi::Sol,
              HucreBicem bicem = HucreBicem::Duz);
  // A rule of as many columns: "_" letters on a raw page and on a grid of letters, else a line.
  void LinePrint(int en, SatirSonu sonu);

  const std::string& SonHata() const { return sonHata_; }  // why OpenPrinter gave False

 private:
  enum class Tur { Kapali, Grafik, Ham, Bos };

  bool GrafikAc(const prnxAcilis& acilis);
  bool HamAc(const std::string& baslik, const prnxAcilis& acilis);
  void GrafikHucre(std::string_view metin, int en, MetinHizasi hiza, HucreBicem bicem);
  void HamHucre(std::string_view metin, int en, SatirSonu sonu, MetinHizasi hiza, HucreBicem bicem);
  prnxIzgara AyarinIzgarasi(const prnxAcilis& acilis) const;
  void SatirAtla();

  YzcAyarlari& ayar_;
  Tuval* tuval_;
  HamCikis* ham_;
  Tur tur_ = Tur::Kapali;
  int sayfa_ = 0;
  int satir_ = 0;
  bool sayfaAcik_ = false;
  prnxIzgara izgara_;
  bool harfIzgarasi_ = false;  // the caller's own
  double x_ = 0;
  double y_ = 0;
  std::string tampon_;  // the raw line
  std::string sonHata_;
};

}  // namespace belvani
