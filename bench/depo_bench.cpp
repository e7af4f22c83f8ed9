// The store: seeks and sequential reads of a cursor on a card file of 10,000 people; a bare insert as the floor of what
// a mass run can cost.
#include <benchmark/benchmark.h>

#include "core/store/satirlar.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000;

Sirket& Ortak() {
  static Sirket sirket(Kisi, 2009, 1, 0);
  return sirket;
}

void KayitBul(benchmark::State& durum) {
  Imlec& rs = Ortak().o.depo.sicil;
  std::vector<Deger> kodlar;
  for (int i = 0; i < Kisi; ++i) kodlar.emplace_back(OrnekKisi(i * 7919 % Kisi).kod);
  std::size_t i = 0;
  for (auto _ : durum) {
    if (!rs.KayitBul("kod", kodlar[i])) durum.SkipWithError("not found");
    if (++i == kodlar.size()) i = 0;
  }
  durum.SetItemsProcessed(durum.iterations());
}

void SonrakiKayit(benchmark::State& durum) {
  Imlec& rs = Ortak().o.depo.sicil;
  rs.IndeksSec("kod");
  rs.IlkKayit();
  for (auto _ : durum) {
    if (!rs.SonrakiKayit()) rs.IlkKayit();
    benchmark::DoNotOptimize(rs.AlanOku("soyadi"));
  }
  durum.SetItemsProcessed(durum.iterations());
}

void YalinEkleme(benchmark::State& durum) {
  Motor& motor = Ortak().o.depo.db.IcMotor();
  Brd brd;
  brd.yil = 1999;
  for (auto _ : durum) {
    Islem islem(motor);
    KayitYazici<Brd> yazici(motor);
    for (int i = 0; i < Kisi; ++i) {
      brd.kod = OrnekKisi(i).kod;
      yazici.Ekle(brd);
    }
    islem.Onayla();
    durum.PauseTiming();
    motor.Calistir("delete from brd where yil = 1999");
    durum.ResumeTiming();
  }
}

BENCHMARK(KayitBul);
BENCHMARK(SonrakiKayit);
BENCHMARK(YalinEkleme)->Unit(benchmark::kMillisecond)->Iterations(5);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
