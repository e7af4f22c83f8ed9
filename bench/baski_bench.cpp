// A ledger of 10,000 people with all its columns, and 1,000 slips, on each of their ways, without the calculation.
#include <benchmark/benchmark.h>

#include "defteruret.h"
#include "printing/cairotuval.h"
#include "printing/grafikyaprak.h"
#include "printing/grafikyazici.h"
#include "printing/metinyazici.h"
#include "printing/xlsxyazici.h"

namespace belvani {
namespace {

const Rapor& Defter() {
  static const Rapor rapor = bench::OrnekDefter(10'000);
  return rapor;
}

void Pdf(benchmark::State& durum) {
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
  for (auto _ : durum) benchmark::DoNotOptimize(XlsxRaporu(Defter()));
}

YaprakBelgesi Pusulalar(int adet) {
  YaprakBelgesi belge{.baslik = "ÜCRET PUSULASI", .yapraklar = {}};
  const auto blok = [](std::size_t satir) {
    return std::vector<BlokSatiri>(satir, {"İşsizlik Kesintisi :", Tutar(1841.26)});
  };
  belge.yapraklar.assign(std::size_t(adet), {.altBaslik = "Ocak 2008 Dönemi",
                                             .bas = blok(5),
                                             .sol = blok(13),
                                             .sag = blok(11),
                                             .ek = blok(22),
                                             .cumleler = {"Ücret hesap pusulasını aldım.", "İMZA"}});
  return belge;
}

void PusulaPdf(benchmark::State& durum) {
  const YaprakBelgesi belge = Pusulalar(int(durum.range(0)));
  for (auto _ : durum) {
    PdfTuvali pdf;
    SayfalariCiz(GrafikYapraklar(belge, SayfadaYaprak::Iki), pdf);
    benchmark::DoNotOptimize(pdf.Belge());
  }
}

void Metin(benchmark::State& durum) {
  for (auto _ : durum) benchmark::DoNotOptimize(MetinRaporu(Defter(), {}));
}

BENCHMARK(Pdf)->Unit(benchmark::kMillisecond);
BENCHMARK(Onizleme)->Unit(benchmark::kMillisecond);
BENCHMARK(Metin)->Unit(benchmark::kMillisecond);
BENCHMARK(Xlsx)->Unit(benchmark::kMillisecond);
BENCHMARK(PusulaPdf)->Arg(1'000)->Arg(2'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani

BENCHMARK_MAIN();
