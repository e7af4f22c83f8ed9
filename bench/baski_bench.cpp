// A ledger of 10,000 people with all its columns, and slips, on each of their ways, without the calculation; beside
// the slips what the drawing library takes on its own, and the memory that each way needs.
#include <benchmark/benchmark.h>
#include <cairo-pdf.h>
#include <fstream>
#include <utility>

#include "defteruret.h"
#include "printing/cairotuval.h"
#include "printing/grafikyaprak.h"
#include "printing/grafikyazici.h"
#include "printing/metinyazici.h"
#include "printing/xlsxyazici.h"

namespace belvani {
namespace {

// The most memory that the process has while it lives, as a counter: with what was there before, and what it grew by.
class TepeBellek {
 public:
  explicit TepeBellek(benchmark::State& durum) : durum_(durum) {
    std::ofstream("/proc/self/clear_refs") << "5";  // the mark starts again at what is in use
    once_ = Oku();
  }
  ~TepeBellek() {
    durum_.counters["tepeMB"] = Oku();
    durum_.counters["artanMB"] = Oku() - once_;
  }

 private:
  static double Oku() {
    std::ifstream dosya("/proc/self/status");
    for (std::string satir; std::getline(dosya, satir);)
      if (satir.starts_with("VmHWM:")) return std::stod(satir.substr(6)) / 1024;
    return 0;
  }

  benchmark::State& durum_;
  double once_ = 0;
};

const Rapor& Defter() {
  static const Rapor rapor = bench::OrnekDefter(10'000);
  return rapor;
}

void Pdf(benchmark::State& durum) {
  Defter();
  const TepeBellek tepe(durum);
  std::size_t bayt = 0;
  for (auto _ : durum) {
    PdfTuvali pdf;
    SayfalariCiz(GrafikRapor(Defter(), {}), pdf);
    bayt = pdf.Belge()->size();
  }
  durum.counters["bayt"] = double(bayt);
}

// One page of the preview, the document laid out already.
void Onizleme(benchmark::State& durum) {
  const GrafikRapor sayfalar(Defter(), {});
  for (auto _ : durum) {
    ResimTuvali resim(100, 1);
    sayfalar.SayfaCiz(sayfalar.SayfaSayisi() / 2, resim);
  }
}

void Xlsx(benchmark::State& durum) {
  Defter();
  const TepeBellek tepe(durum);
  for (auto _ : durum) benchmark::DoNotOptimize(XlsxRaporu(Defter()));
}

// Slips as a month has them: the same words on each, values of its own.
YaprakBelgesi Pusulalar(int adet) {
  const auto yap = [](std::size_t i) {
    const auto blok = [i](int satir) {
      std::vector<BlokSatiri> satirlar;
      for (int s = 0; s < satir; ++s)
        satirlar.push_back({"İşsizlik Kesintisi :", Tutar(608.40 + 7.31 * double(i) + 31.17 * s)});
      return satirlar;
    };
    return Yaprak{.altBaslik = "Ocak 2008 Dönemi",
                  .bas = blok(5),
                  .sol = blok(13),
                  .sag = blok(11),
                  .ek = blok(22),
                  .cumleler = {"Ücret hesap pusulasını aldım.", "İMZA"}};
  };
  return {.baslik = "ÜCRET PUSULASI", .yapraklar = {std::size_t(adet), yap}};
}

void PusulaPdf(benchmark::State& durum) {
  const YaprakBelgesi belge = Pusulalar(int(durum.range(0)));
  const TepeBellek tepe(durum);
  for (auto _ : durum) {
    PdfTuvali pdf;
    SayfalariCiz(GrafikYapraklar(belge, SayfadaYaprak::Iki), pdf);
    benchmark::DoNotOptimize(pdf.Belge());
  }
  durum.SetItemsProcessed(durum.iterations() * durum.range(0));
}

void PusulaXlsx(benchmark::State& durum) {
  const YaprakBelgesi belge = Pusulalar(int(durum.range(0)));
  const TepeBellek tepe(durum);
  for (auto _ : durum) benchmark::DoNotOptimize(XlsxYapraklari(belge));
}

// Keeps the texts of a document.
struct MetinToplayan final : Tuval {
  struct Yazi {
    int sayfa;
    Nokta yer;
    std::string metin;
    YaziBicimi bicim;
  };
  int sayfa = 0;
  std::vector<Yazi> yazilar;

  void SayfaBasla(KagitBoyu) override { ++sayfa; }
  void SayfaBitir() override {}
  void Metin(Nokta yer, std::string_view metin, const YaziBicimi& yazi) override {
    yazilar.push_back({sayfa, yer, std::string(metin), yazi});
  }
  void Cizgi(Nokta, Nokta, double) override {}
  void Kutu(const Dikdortgen&, double) override {}
  void DoluKutu(const Dikdortgen&, BoyaRengi) override {}
  bool Resim(const Dikdortgen&, std::string_view) override { return true; }
};

cairo_status_t Topla(void* hedef, const unsigned char* veri, unsigned uzunluk) {
  static_cast<std::string*>(hedef)->append(reinterpret_cast<const char*>(veri), uzunluk);
  return CAIRO_STATUS_SUCCESS;
}

// What the library alone takes over the texts of the same slips, each shown at its known place: the measure of
// PusulaPdf.
void YalinCairo(benchmark::State& durum) {
  const YaprakBelgesi belge = Pusulalar(int(durum.range(0)));
  MetinToplayan toplayan;
  SayfalariCiz(GrafikYapraklar(belge, SayfadaYaprak::Iki), toplayan);
  for (auto _ : durum) {
    std::string baytlar;
    cairo_surface_t* yuzey = cairo_pdf_surface_create_for_stream(&Topla, &baytlar, 595.276, 841.89);
    cairo_t* cizim = cairo_create(yuzey);
    int sayfa = 1;
    for (const auto& yazi : toplayan.yazilar) {
      if (std::exchange(sayfa, yazi.sayfa) != yazi.sayfa) cairo_show_page(cizim);
      const bool kalin = yazi.bicim.kalinlik == YaziKalinligi::Kalin;
      cairo_select_font_face(cizim, "DejaVu Sans", CAIRO_FONT_SLANT_NORMAL,
                             kalin ? CAIRO_FONT_WEIGHT_BOLD : CAIRO_FONT_WEIGHT_NORMAL);
      cairo_set_font_size(cizim, yazi.bicim.punto);
      cairo_move_to(cizim, yazi.yer.x / PuntoMm, yazi.yer.y / PuntoMm + yazi.bicim.punto);
      cairo_show_text(cizim, yazi.metin.c_str());
    }
    cairo_show_page(cizim);
    cairo_destroy(cizim);
    cairo_surface_destroy(yuzey);
    benchmark::DoNotOptimize(baytlar);
  }
  durum.SetItemsProcessed(durum.iterations() * durum.range(0));
}

void Metin(benchmark::State& durum) {
  for (auto _ : durum) benchmark::DoNotOptimize(MetinRaporu(Defter(), {}));
}

BENCHMARK(Pdf)->Unit(benchmark::kMillisecond);
BENCHMARK(Onizleme)->Unit(benchmark::kMillisecond);
BENCHMARK(Metin)->Unit(benchmark::kMillisecond);
BENCHMARK(Xlsx)->Unit(benchmark::kMillisecond);
BENCHMARK(PusulaPdf)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(YalinCairo)->Arg(1'000)->Unit(benchmark::kMillisecond);
BENCHMARK(PusulaXlsx)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani

BENCHMARK_MAIN();
