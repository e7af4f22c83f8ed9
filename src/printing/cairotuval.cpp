#include "printing/cairotuval.h"

#include <algorithm>
#include <cairo-pdf.h>
#include <cairo.h>
#include <cmath>
#include <cstring>

#include "printing/harftablosu.h"

namespace belvani {
namespace {

constexpr double InchMm = 25.4;
constexpr double EgimOrani = 0.2;  // of slanted letters

struct PngKaynagi {
  std::string_view kalan;
};

cairo_status_t PngOku(void* kaynak, unsigned char* hedef, unsigned uzunluk) {
  auto& kalan = static_cast<PngKaynagi*>(kaynak)->kalan;
  if (kalan.size() < uzunluk) return CAIRO_STATUS_READ_ERROR;
  std::memcpy(hedef, kalan.data(), uzunluk);
  kalan.remove_prefix(uzunluk);
  return CAIRO_STATUS_SUCCESS;
}

cairo_status_t PdfTopla(void* hedef, const unsigned char* veri, unsigned uzunluk) {
  static_cast<std::string*>(hedef)->append(reinterpret_cast<const char*>(veri), uzunluk);
  return CAIRO_STATUS_SUCCESS;
}

void ResmiBoya(cairo_t* cizim, cairo_surface_t* resim, const Dikdortgen& kutu) {
  const double en = cairo_image_surface_get_width(resim);
  const double boy = cairo_image_surface_get_height(resim);
  if (en <= 0 || boy <= 0) return;
  const double oran = std::min(kutu.en / en, kutu.boy / boy);
  cairo_save(cizim);
  cairo_translate(cizim, kutu.x + (kutu.en - en * oran) / 2, kutu.y + (kutu.boy - boy * oran) / 2);
  cairo_scale(cizim, oran, oran);
  cairo_set_source_surface(cizim, resim, 0, 0);
  cairo_paint(cizim);
  cairo_restore(cizim);
}

}  // namespace

CairoTuval::~CairoTuval() {
  CizimiBitir();
}

void CairoTuval::CizimeBasla(_cairo_surface* yuzey, double birimMm) {
  CizimiBitir();
  cizim_ = cairo_create(yuzey);
  cairo_scale(cizim_, birimMm, birimMm);
  cairo_font_options_t* secenek = cairo_font_options_create();
  cairo_font_options_set_hint_style(secenek, CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(secenek, CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(secenek, CAIRO_ANTIALIAS_GRAY);
  cairo_set_font_options(cizim_, secenek);
  cairo_font_options_destroy(secenek);
  cairo_set_source_rgb(cizim_, 0, 0, 0);
  yaziSecildi_ = false;
}

void CairoTuval::CizimiBitir() {
  if (cizim_ != nullptr) cairo_destroy(cizim_);
  cizim_ = nullptr;
}

void CairoTuval::YaziSec(const YaziBicimi& yazi) {
  if (yaziSecildi_ && yazi == secili_) return;
  cairo_set_font_face(cizim_, HarfTablosu::Al(yazi.aile, yazi.kalinlik).Tip());
  const double boy = yazi.punto * PuntoMm;
  cairo_matrix_t m;
  cairo_matrix_init(&m, boy * yazi.genislik, 0, yazi.durus == YaziDurusu::Egik ? -EgimOrani * boy : 0, boy, 0, 0);
  cairo_set_font_matrix(cizim_, &m);
  secili_ = yazi;
  yaziSecildi_ = true;
}

void CairoTuval::Metin(Nokta yer, std::string_view metin, const YaziBicimi& yazi) {
  const CozulmusMetin& cozulmus = Coz(metin);
  if (cizim_ == nullptr || cozulmus.kodlar.empty() || yazi.punto <= 0 || yazi.genislik <= 0) return;
  HarfTablosu& tablo = HarfTablosu::Al(yazi.aile, yazi.kalinlik);
  const double boy = yazi.punto * PuntoMm;
  std::vector<cairo_glyph_t> sekiller;
  std::vector<cairo_text_cluster_t> kumeler;
  sekiller.reserve(cozulmus.kodlar.size());
  kumeler.reserve(cozulmus.kodlar.size());
  double x = yer.x;
  for (std::size_t i = 0; i < cozulmus.kodlar.size(); ++i) {
    const Harf& harf = tablo.Bul(cozulmus.kodlar[i]);
    sekiller.push_back({harf.sekil, x, yer.y + tablo.ustBoy * boy});
    kumeler.push_back({cozulmus.uzunluklar[i], 1});
    x += harf.en * boy * yazi.genislik;
  }
  YaziSec(yazi);
  cairo_show_text_glyphs(cizim_, cozulmus.utf8.data(), int(cozulmus.utf8.size()), sekiller.data(), int(sekiller.size()),
                         kumeler.data(), int(kumeler.size()), cairo_text_cluster_flags_t(0));
}

void CairoTuval::Cizgi(Nokta bas, Nokta son, double kalinlik) {
  if (cizim_ == nullptr) return;
  cairo_set_line_width(cizim_, kalinlik);
  cairo_move_to(cizim_, bas.x, bas.y);
  cairo_line_to(cizim_, son.x, son.y);
  cairo_stroke(cizim_);
}

void CairoTuval::Kutu(const Dikdortgen& kutu, double kalinlik) {
  if (cizim_ == nullptr) return;
  cairo_set_line_width(cizim_, kalinlik);
  cairo_rectangle(cizim_, kutu.x, kutu.y, kutu.en, kutu.boy);
  cairo_stroke(cizim_);
}

void CairoTuval::DoluKutu(const Dikdortgen& kutu, BoyaRengi renk) {
  if (cizim_ == nullptr) return;
  const auto pay = [&](int kaydir) { return double((renk >> kaydir) & 0xFF) / 255; };
  cairo_set_source_rgb(cizim_, pay(16), pay(8), pay(0));
  cairo_rectangle(cizim_, kutu.x, kutu.y, kutu.en, kutu.boy);
  cairo_fill(cizim_);
  cairo_set_source_rgb(cizim_, 0, 0, 0);
}

bool CairoTuval::Resim(const Dikdortgen& kutu, std::string_view png) {
  PngKaynagi kaynak{png};
  cairo_surface_t* resim = cairo_image_surface_create_from_png_stream(&PngOku, &kaynak);
  const bool okundu = cairo_surface_status(resim) == CAIRO_STATUS_SUCCESS;
  if (okundu && cizim_ != nullptr) ResmiBoya(cizim_, resim, kutu);
  cairo_surface_destroy(resim);
  return okundu;
}

PdfTuvali::PdfTuvali(const PdfBilgisi& bilgi)
    : yuzey_(cairo_pdf_surface_create_for_stream(&PdfTopla, &baytlar_, 1, 1)) {
  const std::string an = bilgi.tarih.Iso() + "T00:00:00Z";
  cairo_pdf_surface_set_metadata(yuzey_, CAIRO_PDF_METADATA_TITLE, bilgi.baslik.c_str());
  cairo_pdf_surface_set_metadata(yuzey_, CAIRO_PDF_METADATA_CREATOR, "Belvani");
  cairo_pdf_surface_set_metadata(yuzey_, CAIRO_PDF_METADATA_CREATE_DATE, an.c_str());
  cairo_pdf_surface_set_metadata(yuzey_, CAIRO_PDF_METADATA_MOD_DATE, an.c_str());
}

PdfTuvali::~PdfTuvali() {
  CizimiBitir();
  cairo_surface_destroy(yuzey_);
}

void PdfTuvali::SayfaBasla(KagitBoyu boy) {
  cairo_pdf_surface_set_size(yuzey_, boy.en / PuntoMm, boy.boy / PuntoMm);
  CizimeBasla(yuzey_, 1 / PuntoMm);
  ++sayfalar_;
}

void PdfTuvali::SayfaBitir() {
  if (Cizim() == nullptr) return;
  cairo_show_page(Cizim());
  CizimiBitir();
}

Sonuc<std::string> PdfTuvali::Belge() {
  SayfaBitir();
  if (sayfalar_ == 0) return Kusur{"Yazdırılacak sayfa yok"};
  if (const Durum durum = YaziTipleriVar(); !durum) return durum.Kusuru();
  cairo_surface_finish(yuzey_);
  if (const auto durum = cairo_surface_status(yuzey_); durum != CAIRO_STATUS_SUCCESS)
    return Kusur{std::string("PDF hazırlanamadı (") + cairo_status_to_string(durum) + ")"};
  return std::move(baytlar_);
}

ResimTuvali::ResimTuvali(double dpi, int sayfa) : dpi_(std::clamp(dpi, 24.0, 600.0)), istenen_(sayfa) {}

ResimTuvali::~ResimTuvali() {
  CizimiBitir();
  if (yuzey_ != nullptr) cairo_surface_destroy(yuzey_);
}

void ResimTuvali::SayfaBasla(KagitBoyu boy) {
  if (++sayfalar_ != istenen_) return;
  en_ = int(std::lround(boy.en * dpi_ / InchMm));
  boy_ = int(std::lround(boy.boy * dpi_ / InchMm));
  noktalar_.assign(std::size_t(en_) * std::size_t(boy_), 0xFFFFFFFF);
  yuzey_ = cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(noktalar_.data()), CAIRO_FORMAT_RGB24,
                                               en_, boy_, en_ * 4);
  CizimeBasla(yuzey_, dpi_ / InchMm);
}

void ResimTuvali::SayfaBitir() {
  CizimiBitir();
  if (yuzey_ == nullptr) return;
  cairo_surface_flush(yuzey_);
  cairo_surface_destroy(yuzey_);
  yuzey_ = nullptr;
  for (auto& nokta : noktalar_) nokta |= 0xFF000000;
}

}  // namespace belvani
