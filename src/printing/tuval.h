// Tuval: the surface that pages are drawn on, whatever becomes of them: a PDF, the picture of a preview, a record.
//
// Positions and lengths are millimetres from the upper left corner of the sheet, y downwards; sizes of letters are
// points. A text stands with the upper edge of its line at y. Widths are measured alike for all surfaces, so a page
// that fits on one fits on every other.
//
//   PdfTuvali pdf({.baslik = "Liste"});
//   pdf.SayfaBasla(A4(KagitYonu::Dikey));
//   pdf.Metin({20, 20}, "Işıl Öğütçü", {.punto = 10});
//   pdf.SayfaBitir();
//   DosyaYaz("liste.pdf", *pdf.Belge());
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace belvani {

constexpr double PuntoMm = 25.4 / 72;  // a point in millimetres

enum class KagitYonu { Dikey = 1, Yatay = 2 };

struct KagitBoyu {
  double en = 0;
  double boy = 0;

  bool operator==(const KagitBoyu&) const = default;
};

constexpr KagitBoyu A4(KagitYonu yon) {
  return yon == KagitYonu::Yatay ? KagitBoyu{297, 210} : KagitBoyu{210, 297};
}

// Printers leave an edge of the sheet blank.
constexpr double KenarMm = 8;

struct Nokta {
  double x = 0;
  double y = 0;

  bool operator==(const Nokta&) const = default;
};

struct Dikdortgen {
  double x = 0;
  double y = 0;
  double en = 0;
  double boy = 0;

  bool operator==(const Dikdortgen&) const = default;
};

enum class YaziAilesi { Duz, EsEnli, Tirnakli };  // DejaVu Sans, Sans Mono, Serif
enum class YaziKalinligi { Normal, Kalin };
enum class YaziDurusu { Dik, Egik };

struct YaziBicimi {
  double punto = 10;
  YaziKalinligi kalinlik = YaziKalinligi::Normal;
  YaziAilesi aile = YaziAilesi::Duz;
  YaziDurusu durus = YaziDurusu::Dik;
  double genislik = 1;  // letters made narrower (below 1) keep their height

  bool operator==(const YaziBicimi&) const = default;
};

// The family for a font that a user or an old settings file names: "Courier New" is fixed-width, "Times" has serifs,
// anything else ("tahoma") is plain.
YaziAilesi AileBul(std::string_view ad);

enum class MetinHizasi { Sol = 0, Sag = 1, Orta = 2 };

using BoyaRengi = std::uint32_t;  // 0xRRGGBB
constexpr double InceCizgi = 0.15;

class Tuval {
 public:
  virtual ~Tuval() = default;

  virtual void SayfaBasla(KagitBoyu boy) = 0;
  virtual void SayfaBitir() = 0;

  // Letters that do not print are passed over; a broken byte prints as "?".
  virtual void Metin(Nokta yer, std::string_view metin, const YaziBicimi& yazi) = 0;
  virtual void Cizgi(Nokta bas, Nokta son, double kalinlik = InceCizgi) = 0;
  virtual void Kutu(const Dikdortgen& kutu, double kalinlik = InceCizgi) = 0;
  virtual void DoluKutu(const Dikdortgen& kutu, BoyaRengi renk) = 0;
  // A picture (PNG) as large as the box allows, in its middle, not distorted. False when it cannot be read.
  virtual bool Resim(const Dikdortgen& kutu, std::string_view png) = 0;

  // Where the parts of the open page go that other pages have too: frames, heads, captions. A PDF keeps what the first
  // page drew there under the key, lays it over that page and over every later one that asks for the key, and passes
  // over what those draw there; so the key says all that the parts depend on. Any other surface is its own Kalip.
  virtual Tuval& Kalip(std::string_view /*anahtar*/) { return *this; }
};

// Width of a text, and height of a line of it.
double MetinEni(std::string_view metin, const YaziBicimi& yazi);
double SatirBoyu(const YaziBicimi& yazi);

// The most of a text's beginning that is not wider than `en`, whole letters.
std::string_view SiganMetin(std::string_view metin, double en, const YaziBicimi& yazi);

// A text in a box, in the middle of its height. One that is wider is made narrower until it fits: a number that loses
// digits would be another number.
void MetinKutuya(Tuval& tuval, const Dikdortgen& kutu, std::string_view metin, YaziBicimi yazi, MetinHizasi hiza);

}  // namespace belvani
