// Papers for the social-security body beside the monthly declaration, of a company of 10,000 people with 48 months of
// records: from the store to the finished list.
#include <benchmark/benchmark.h>

#include "declarations/dortaylik.h"
#include "declarations/eksikgun.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000;

// Every tenth record has missing days, everyone an identity record.
struct BildirimSirketi {
  Sirket sirket{Kisi, 2009, 7, 48};
  BelgeKaynagi kaynak{.motor = sirket.o.depo.db.IcMotor(),
                      .yasal = sirket.kosullar.yasal,
                      .firma = sirket.o.firma,
                      .sirket = sirket.o.FirmaDizini};

  BildirimSirketi() {
    kaynak.motor.Calistir("update brd set eksiksebebi = 15, ucretsizizin = 3 where oto % 10 = 0");
    kaynak.motor.Calistir(
        "insert into kimlik (kod, tcno) select kod, '10000000146' from sicil where kod not in (select kod from "
        "kimlik)");
  }
};

BelgeKaynagi& Kaynak() {
  static BildirimSirketi sirket;
  return sirket.kaynak;
}

void DortAylik(benchmark::State& durum) {
  for (auto _ : durum)
    if (DortAylikBelgesi(Kaynak(), {.yil = 2009, .donem = 1})->Kayitsiz()) durum.SkipWithError("nobody is in it");
}

void EksikGun(benchmark::State& durum) {
  DefterSecim secim;
  secim.AyKoy(2009, 6);
  for (auto _ : durum)
    if (EksikGunBelgesi(Kaynak(), secim)->Kayitsiz()) durum.SkipWithError("nobody is in it");
}

BENCHMARK(DortAylik)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(EksikGun)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
