// Lists of a year's hires and leaves, and the leaving notice of one person, in a company of 10,000 people with 48
// months.
#include <benchmark/benchmark.h>

#include "core/session/oturum.h"
#include "notices/dizipusulasi.h"
#include "notices/ekbelgeleri.h"
#include "notices/iabkagidi.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

// A fifth of the people come in the year and leave in it.
struct BildirimSirketi {
  Sirket sirket{10'000, 2009, 7, 48};
  TarihAraligi yil{Tarih(2008, 1, 1), Tarih(2008, 12, 31)};
  BelgeKaynagi kaynak{.motor = sirket.o.depo.db.IcMotor(),
                      .yasal = sirket.kosullar.yasal,
                      .firma = sirket.o.firma,
                      .sirket = sirket.o.FirmaDizini};
  std::string kod;

  BildirimSirketi() {
    kaynak.motor.Calistir(
        "insert into kimlik (kod, baba) select kod, 'Ömer' from sicil where kod not in (select kod from kimlik); "
        "update sicil set girtar = '2008-03-01', ciktar = '2008-11-30' where rowid % 5 = 0");
    const auto komut = kaynak.motor.Hazirla("select max(kod) from sicil");
    if (komut->Adim()) kod = komut->Metin(0);
  }
};

BildirimSirketi& Ortak() {
  static BildirimSirketi sirket;
  return sirket;
}

void GirisListesi(benchmark::State& durum) {
  for (auto _ : durum)
    if (GirisListesiBelgesi(Ortak().kaynak, Ortak().yil, {})->Kayitsiz()) durum.SkipWithError("nobody is in it");
}

void CikisListesi(benchmark::State& durum) {
  for (auto _ : durum)
    if (CikisListesiBelgesi(Ortak().kaynak, Ortak().yil, {})->Kayitsiz()) durum.SkipWithError("nobody is in it");
}

void DiziPusulasiOkuma(benchmark::State& durum) {
  for (auto _ : durum) benchmark::DoNotOptimize(DiziPusulasiOku(Ortak().kaynak.motor, Ortak().yil));
}

void Iab(benchmark::State& durum) {
  Motor& motor = Ortak().kaynak.motor;
  for (auto _ : durum) {
    IabFormu form = KisiDoldur(motor, Ortak().kod).value();
    form.duzenleme = Tarih(2009, 7, 31);
    IabKayitlari(motor, form);
    if (form.kayitlar.empty()) durum.SkipWithError("no records");
    benchmark::DoNotOptimize(IabBelgesi({.form = form, .firma = Ortak().kaynak.firma}));
  }
}

BENCHMARK(GirisListesi)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(CikisListesi)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(DiziPusulasiOkuma)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(Iab)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
