// Severance: the summary of a whole staff from the store, and one person anew after a change on his screen.
#include <benchmark/benchmark.h>

#include "severance/kidemhesabi.h"
#include "severance/kidemicmali.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

// A year of pay records for everyone.
struct KidemSirketi {
  explicit KidemSirketi(int kisi) : sirket(kisi, 2009, 7, 12) {
    Motor& motor = sirket.o.depo.db.IcMotor();
    motor.Calistir("insert into kimlik (kod) select kod from sicil where kod not in (select kod from kimlik)");
    sirket.o.firma.issaati = Tek(7.5);
  }
  BelgeKaynagi Kaynak() {
    return {.motor = sirket.o.depo.db.IcMotor(),
            .yasal = sirket.kosullar.yasal,
            .firma = sirket.o.firma,
            .sirket = sirket.o.FirmaDizini};
  }

  Sirket sirket;
};

void Icmal(benchmark::State& durum) {
  KidemSirketi sirket(int(durum.range(0)));
  for (auto _ : durum) {
    const auto belge = KidemIcmalBelgesi(sirket.Kaynak(), {}, {.baz = Tarih(2009, 7, 31)});
    if (belge->Kayitsiz()) durum.SkipWithError("nobody is in it");
  }
}

void AlanDegisti(benchmark::State& durum) {
  KidemSirketi sirket(1'000);
  KidemHesabi hesap(sirket.sirket.o.depo.db.IcMotor(), KidemKosullariYukle(sirket.Kaynak()));
  const auto kisi = sirket.sirket.o.depo.db.IcMotor().Hazirla("select kod from sicil order by kod limit 1");
  if (!kisi->Adim() || !hesap.KisiBul(std::string(kisi->Metin(0)))) durum.SkipWithError("no such person");
  for (int ay = 0; auto _ : durum) hesap.CikisKoy(Tarih(2009, 1 + ay++ % 12, 15));
}

BENCHMARK(Icmal)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(AlanDegisti)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
