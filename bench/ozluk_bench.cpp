// A medical paper of one person in a company of 10,000 people with 48 months of records: from his code to its rows and
// both of its forms, and the PDF besides.
#include <benchmark/benchmark.h>

#include "ozluk/vizitekagidi.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000;
constexpr int AySayisi = 48;

Sirket& BuyukSirket() {
  static Sirket sirket(Kisi, 2009, 5, AySayisi);
  return sirket;
}

std::unique_ptr<Belge> Kagit(Oturum& o, ViziteTuru tur) {
  ViziteKagidi kagit = BosViziteKagidi(o, tur);
  auto kisi = KisiDoldur(o, OrnekKisi(Kisi / 2).kod, Tarih(2009, 5, 15));
  if (!kisi) std::exit(1);
  kagit.form = std::move(kisi->form);
  kagit.kimlik = std::move(kisi->kimlik);
  kagit.yakin = YakinBul(o, kagit.form.kod, 1);
  kagit.aylar = Al(GunTablosuYap(o, kagit.form));
  return ViziteBelgesi(kagit);
}

void Vizite(benchmark::State& durum) {
  Oturum& o = BuyukSirket().o;
  for (auto _ : durum) benchmark::DoNotOptimize(Kagit(o, ViziteTuru(durum.range(0))));
}

void VizitePdf(benchmark::State& durum) {
  Oturum& o = BuyukSirket().o;
  for (auto _ : durum) benchmark::DoNotOptimize(Al(BelgePdf(*Kagit(o, ViziteTuru(durum.range(0))))).baytlar.size());
}

BENCHMARK(Vizite)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);
BENCHMARK(VizitePdf)->DenseRange(1, 3)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
