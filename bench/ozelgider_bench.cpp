// The lists of the personal-expense refund over a whole company: made for the screen, and as a PDF.
#include <benchmark/benchmark.h>

#include "core/store/satirlar.h"
#include "core/tables/tablolar.h"
#include "deductions/ogilistesi.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000;

// Everybody has declared an expense of the year before, and has pay records of all months.
struct OgiSirketi {
  Sirket sirket{Kisi, 2009, 12, 13};

  OgiSirketi() {
    Motor& motor = sirket.o.depo.db.IcMotor();
    motor.IslemBaslat({});
    KayitYazici<Dvr> yazici(motor);
    for (const Sicil& kisi : KayitlariOku<Sicil>(motor)) {
      Dvr d;
      d.kod = kisi.kod;
      d.yilkod = "2008" + kisi.kod;
      d.yil = 2008;
      d.gvmatrah = Tutar(12000);
      d.ogimatrah = Tutar(3500);
      d.ogitutar = Tutar(270);
      yazici.Ekle(d);
    }
    motor.IslemOnayla();
  }
  BelgeKaynagi Kaynak() {
    return {.motor = sirket.o.depo.db.IcMotor(),
            .yasal = sirket.kosullar.yasal,
            .firma = sirket.o.firma,
            .sirket = sirket.o.FirmaDizini};
  }
  std::unique_ptr<Belge> Bordro() {
    const DefterSecim secim{.yil = 2009, .ay = 6, .kod = {}, .grup = {}, .tip = {}, .ozel = {}};
    return OgiBordroBelgesi(Kaynak(), secim, {}, {}, {});
  }
};

OgiSirketi& Ortak() {
  static OgiSirketi sirket;
  return sirket;
}

void Ekranda(benchmark::State& durum) {
  OgiSirketi& sirket = Ortak();
  std::size_t satir = 0;
  for (auto _ : durum) satir = sirket.Bordro()->Tablo()->Satirlar().size();
  durum.counters["kisi"] = double(satir);
}

void Pdf(benchmark::State& durum) {
  OgiSirketi& sirket = Ortak();
  for (auto _ : durum)
    if (!BelgePdf(*sirket.Bordro())) durum.SkipWithError("no pages");
}

BENCHMARK(Ekranda)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Pdf)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
