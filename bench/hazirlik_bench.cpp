// A month of a whole company end to end (load, calculate, save, commit with synchronous=FULL), new and over a saved
// one, for several sizes; one person in a store of 120,000 pay records.
#include <benchmark/benchmark.h>

#include "sirketuret.h"

namespace belvani::bench {
namespace {

void Toplu(benchmark::State& durum, bool ustune) {
  const int kisi = int(durum.range(0));
  Sirket sirket(kisi, 2009, 7, 3);
  if (ustune) (void)TopluHazirla(sirket.o, sirket.kosullar);
  for (auto _ : durum) {
    auto sonuc = TopluHazirla(sirket.o, sirket.kosullar);
    if (!sonuc || sonuc->kaydedilen != kisi) durum.SkipWithError("not everyone was saved");
    if (ustune) continue;
    durum.PauseTiming();
    (void)BordroSil(sirket.o, 2009, 7);
    durum.ResumeTiming();
  }
  durum.counters["milyon_kisi"] = benchmark::Counter(double(kisi) * double(durum.iterations()) / 1e6,
                                                     benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void BirKisi(benchmark::State& durum) {
  static Sirket sirket(10'000, 2009, 1, 12);
  Motor& motor = sirket.o.depo.db.IcMotor();
  int i = 0;
  for (auto _ : durum) {
    const auto kisi = KisiOku(motor, sirket.kosullar.donem, OrnekKisi(i++ * 7919 % 10'000).kod);
    benchmark::DoNotOptimize(BordroHesapla(PersonelYukle(*kisi, sirket.kosullar, 30), &sirket.kosullar.firma.sablon));
  }
}

BENCHMARK_CAPTURE(Toplu, yeni, false)
    ->Unit(benchmark::kMillisecond)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(50'000)
    ->UseRealTime();
BENCHMARK_CAPTURE(Toplu, ustune, true)
    ->Unit(benchmark::kMillisecond)
    ->Arg(1'000)
    ->Arg(10'000)
    ->Arg(50'000)
    ->UseRealTime();
BENCHMARK(BirKisi)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
