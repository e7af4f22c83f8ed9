#include "printing/cairotuval.h"

#include <algorithm>
#include <cairo-pdf.h>
#include <cairo.h>
#include <cmath>
#include <cstring>
#include <utility>

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

// Texts of one look are shown by one call: the library takes longer over a call than over the letters of a cell.
struct CairoTuval::MetinYigini {
  YaziBicimi yazi;
  bool yaziSecildi = false;  // `yazi` is the font of the drawing
  std::string utf8;
  std::vector<cairo_glyph_t> sekiller;
  std::vector<cairo_text_cluster_t> kumeler;

  void Ekle(Nokta yer, const CozulmusMetin& metin) {
    HarfTablosu& tablo = HarfTablosu::Al(yazi.aile, yazi.kalinlik);
    const double boy = yazi.punto * PuntoMm;
    for (std::size_t i = 0; i < metin.kodlar.size(); ++i) {
      const Harf& harf = tablo.Bul(metin.kodlar[i]);
      sekiller.push_back({harf.sekil, yer.x, yer.y + tablo.ustBoy * boy});
      kumeler.push_back({metin.uzunluklar[i], 1});
      yer.x += harf.en * boy * yazi.genislik;
    }
    utf8 += metin.utf8;
  }

  void Bas(cairo_t* cizim) {
    if (sekiller.empty()) return;
    cairo_show_text_glyphs(cizim, utf8.data(), int(utf8.size()), sekiller.data(), int(sekiller.size()), kumeler.data(),
                           int(kumeler.size()), cairo_text_cluster_flags_t(0));
    utf8.clear();
    sekiller.clear();
    kumeler.clear();
  }
};

CairoTuval::CairoTuval() : yigin_(std::make_unique<MetinYigini>()) {}

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
  yigin_->yaziSecildi = false;
}

void CairoTuval::CizimiBitir() {
  if (Cizim() != nullptr) cairo_destroy(cizim_);
  cizim_ = nullptr;
}

_cairo* CairoTuval::Cizim() {
  if (cizim_ != nullptr) yigin_->Bas(cizim_);
  return cizim_;
}

void CairoTuval::YaziSec(const YaziBicimi& yazi) {
  if (yigin_->yaziSecildi && yazi == yigin_->yazi) return;
  cairo_t* cizim = Cizim();
  cairo_set_font_face(cizim, HarfTablosu::Al(yazi.aile, yazi.kalinlik).Tip());
  const double boy = yazi.punto * PuntoMm;
  cairo_matrix_t m;
  cairo_matrix_init(&m, boy * yazi.genislik, 0, yazi.durus == YaziDurusu::Egik ? -EgimOrani * boy : 0, boy, 0, 0);
  cairo_set_font_matrix(cizim, &m);
  yigin_->yazi = yazi;
  yigin_->yaziSecildi = true;
}

void CairoTuval::Metin(Nokta yer, std::string_view metin, const YaziBicimi& yazi) {
  if (cizim_ == nullptr || yazi.punto <= 0 || yazi.genislik <= 0) return;
  const CozulmusMetin& cozulmus = Coz(metin);
  if (cozulmus.kodlar.empty()) return;
  YaziSec(yazi);
  yigin_->Ekle(yer, cozulmus);
}

void CairoTuval::Cizgi(Nokta bas, Nokta son, double kalinlik) {
  cairo_t* cizim = Cizim();
  if (cizim == nullptr) return;
  cairo_set_line_width(cizim, kalinlik);
  cairo_move_to(cizim, bas.x, bas.y);
  cairo_line_to(cizim, son.x, son.y);
  cairo_stroke(cizim);
}

void CairoTuval::Kutu(const Dikdortgen& kutu, double kalinlik) {
  cairo_t* cizim = Cizim();
  if (cizim == nullptr) return;
  cairo_set_line_width(cizim, kalinlik);
  cairo_rectangle(cizim, kutu.x, kutu.y, kutu.en, kutu.boy);
  cairo_stroke(cizim);
}

void CairoTuval::DoluKutu(const Dikdortgen& kutu, BoyaRengi renk) {
  cairo_t* cizim = Cizim();
  if (cizim == nullptr) return;
  const auto pay = [&](int kaydir) { return double((renk >> kaydir) & 0xFF) / 255; };
  cairo_set_source_rgb(cizim, pay(16), pay(8), pay(0));
  cairo_rectangle(cizim, kutu.x, kutu.y, kutu.en, kutu.boy);
  cairo_fill(cizim);
  cairo_set_source_rgb(cizim, 0, 0, 0);
}

bool CairoTuval::Resim(const Dikdortgen& kutu, std::string_view png) {
  PngKaynagi kaynak{png};
  cairo_surface_t* resim = cairo_image_surface_create_from_png_stream(&PngOku, &kaynak);
  const bool okundu = cairo_surface_status(resim) == CAIRO_STATUS_SUCCESS;
  if (cairo_t* cizim = Cizim(); okundu && cizim != nullptr) ResmiBoya(cizim, resim, kutu);
  cairo_surface_destroy(resim);
  return okundu;
}

// Draws into a recording, which a PDF holds once however many pages show it.
class PdfTuvali::KalipTuvali final : public CairoTuval {
 public:
  KalipTuvali(KagitBoyu boy, const std::string& ad) {
    const cairo_rectangle_t sayfa{0, 0, boy.en / PuntoMm, boy.boy / PuntoMm};
    yuzey_ = cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, &sayfa);
    auto* kopya = new std::string(ad);
    cairo_surface_set_mime_data(
        yuzey_, CAIRO_MIME_TYPE_UNIQUE_ID, reinterpret_cast<unsigned char*>(kopya->data()), kopya->size(),
        [](void* s) { delete static_cast<std::string*>(s); }, kopya);
    CizimeBasla(yuzey_, 1 / PuntoMm);
  }
  ~KalipTuvali() override {
    CizimiBitir();
    cairo_surface_destroy(yuzey_);
  }

  void SayfaBasla(KagitBoyu) override {}
  void SayfaBitir() override {}

  void Bas(cairo_t* sayfa) {
    CizimiBitir();
    cairo_save(sayfa);
    cairo_identity_matrix(sayfa);
    cairo_set_source_surface(sayfa, yuzey_, 0, 0);
    cairo_paint(sayfa);
    cairo_restore(sayfa);
  }

 private:
  cairo_surface_t* yuzey_;
};

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
  boy_ = boy;
  cairo_pdf_surface_set_size(yuzey_, boy.en / PuntoMm, boy.boy / PuntoMm);
  CizimeBasla(yuzey_, 1 / PuntoMm);
  ++sayfalar_;
}

void PdfTuvali::SayfaBitir() {
  cairo_t* cizim = Cizim();
  if (cizim == nullptr) return;
  for (KalipTuvali* kalip : std::exchange(sayfadakiler_, {})) kalip->Bas(cizim);
  cairo_show_page(cizim);
  CizimiBitir();
}

Tuval& PdfTuvali::Kalip(std::string_view anahtar) {
  auto yer = kaliplar_.find(anahtar);
  if (yer == kaliplar_.end())
    yer = kaliplar_.emplace(anahtar, std::make_unique<KalipTuvali>(boy_, std::to_string(kaliplar_.size()))).first;
  KalipTuvali* kalip = yer->second.get();
  if (std::ranges::find(sayfadakiler_, kalip) == sayfadakiler_.end()) sayfadakiler_.push_back(kalip);
  return *kalip;
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
