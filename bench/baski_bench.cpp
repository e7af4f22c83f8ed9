// A ledger of 10,000 people with all its columns, to a PDF and to the text printer, without its calculation.
#include <benchmark/benchmark.h>

#include "documents/defter.h"
#include "printing/cairotuval.h"
#include "printing/grafikyazici.h"
#include "printing/metinyazici.h"
#include "sirketuret.h"

namespace belvani {
namespace {

BordroSatiri Satir(int sira) {
  BordroSatiri satir;
  satir.sicil = bench::OrnekKisi(sira);
  satir.tcno = "10000000146";
  const double brut = 608.40 + 7.31 * (sira % 900);
  satir.brd.kod = satir.sicil.kod;
  satir.brd.ng = 26;
  satir.brd.ht = 4;
  for (Tutar Brd::*alan : {&Brd::brutkaz, &Brd::sskmatrah, &Brd::devgvmatrah, &Brd::gvmatrah})
    satir.brd.*alan = Tutar(brut);
  for (Tutar Brd::*alan : {&Brd::sskkesinti, &Brd::gvtutar, &Brd::dvtutar, &Brd::issizisci, &Brd::ogv})
    satir.brd.*alan = Tutar(brut / 10);
  return satir;
}

const Rapor& Defter() {
  static const Rapor rapor = [] {
    std::vector<BordroSatiri> satirlar;
    for (int i = 0; i < 10'000; ++i) satirlar.push_back(Satir(i));
    DefterBaslik baslik;
    baslik.yil = 2008;
    baslik.ay = 1;
    baslik.firma.unvan = "BELVANİ ÖRNEK SANAYİ VE TİCARET LTD. ŞTİ.";
    DefterSecenek secenek;
    secenek.kolonlar.fill(true);
    return DefterRaporu(satirlar, baslik, secenek);
  }();
  return rapor;
}

void Pdf(benchmark::State& durum) {
  GrafikSonucu sonuc;
  std::size_t bayt = 0;
  for (auto _ : durum) {
    PdfTuvali pdf;
    sonuc = GrafikRaporu(Defter(), {}, pdf);
    bayt = pdf.Belge()->size();
  }
  durum.counters["sayfa"] = sonuc.sayfaSayisi;
  durum.counters["punto"] = sonuc.bicim.yazi.punto;
  durum.counters["bayt"] = double(bayt);
}

void Onizleme(benchmark::State& durum) {
  for (auto _ : durum) {
    ResimTuvali resim(100, 150);
    benchmark::DoNotOptimize(GrafikRaporu(Defter(), {}, resim));
  }
}

void Metin(benchmark::State& durum) {
  for (auto _ : durum) benchmark::DoNotOptimize(MetinRaporu(Defter(), {}));
}

BENCHMARK(Pdf)->Unit(benchmark::kMillisecond);
BENCHMARK(Onizleme)->Unit(benchmark::kMillisecond);
BENCHMARK(Metin)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani

BENCHMARK_MAIN();
