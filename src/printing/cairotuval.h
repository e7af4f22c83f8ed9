// Surfaces drawn by Cairo: a PDF, and the picture of one page.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/sonuc.h"
#include "core/tarih.h"
#include "printing/tuval.h"

struct _cairo;          // NOLINT: the names are Cairo's
struct _cairo_surface;  // NOLINT

namespace belvani {

// What both have in common. Without an open page nothing is drawn.
class CairoTuval : public Tuval {
 public:
  ~CairoTuval() override;
  CairoTuval(const CairoTuval&) = delete;
  CairoTuval& operator=(const CairoTuval&) = delete;

  void Metin(Nokta yer, std::string_view metin, const YaziBicimi& yazi) override;
  void Cizgi(Nokta bas, Nokta son, double kalinlik) override;
  void Kutu(const Dikdortgen& kutu, double kalinlik) override;
  void DoluKutu(const Dikdortgen& kutu, BoyaRengi renk) override;
  bool Resim(const Dikdortgen& kutu, std::string_view png) override;

 protected:
  CairoTuval();

  void CizimeBasla(_cairo_surface* yuzey, double birimMm);  // `birimMm`: units of the surface in a millimetre
  void CizimiBitir();
  // The open drawing with all its texts; null without one.
  _cairo* Cizim();

 private:
  struct MetinYigini;
  void YaziSec(const YaziBicimi& yazi);

  _cairo* cizim_ = nullptr;
  std::unique_ptr<MetinYigini> yigin_;  // texts that are not drawn yet
};

struct PdfBilgisi {
  std::string baslik;
  Tarih tarih = Tarih(2009, 1, 1);  // fixed, so that the same document always gives the same bytes
};

// Letters are embedded and can be read back out of the file.
class PdfTuvali final : public CairoTuval {
 public:
  explicit PdfTuvali(const PdfBilgisi& bilgi = {});
  ~PdfTuvali() override;

  void SayfaBasla(KagitBoyu boy) override;
  void SayfaBitir() override;
  Tuval& Kalip(std::string_view anahtar) override;

  // Ends the document and gives its bytes. A document without a page is a failure: paper writers print nothing then.
  Sonuc<std::string> Belge();

 private:
  class KalipTuvali;

  std::string baytlar_;
  _cairo_surface* yuzey_;
  int sayfalar_ = 0;
  KagitBoyu boy_;  // of the open page
  std::map<std::string, std::unique_ptr<KalipTuvali>, std::less<>> kaliplar_;
  std::vector<KalipTuvali*> sayfadakiler_;  // asked for by the open page
};

// One page of a document, as dots. The other pages are passed over, so a preview costs the memory of one page.
class ResimTuvali final : public CairoTuval {
 public:
  // `dpi`: dots per inch, 24 to 600; `sayfa` from 1.
  ResimTuvali(double dpi, int sayfa);
  ~ResimTuvali() override;

  void SayfaBasla(KagitBoyu boy) override;
  void SayfaBitir() override;

  int SayfaSayisi() const { return sayfalar_; }  // of the whole document
  int En() const { return en_; }                 // 0 when the document has no such page
  int Boy() const { return boy_; }
  const std::vector<std::uint32_t>& Noktalar() const { return noktalar_; }  // 0xFFRRGGBB, row by row

 private:
  double dpi_;
  int istenen_;
  int sayfalar_ = 0;
  int en_ = 0;
  int boy_ = 0;
  std::vector<std::uint32_t> noktalar_;
  _cairo_surface* yuzey_ = nullptr;
};

}  // namespace belvani
