// The yearly carry-over of 10,000 people with 48 months of records, the account of 10,000 movements, the months of one
// person in a year.
#include <benchmark/benchmark.h>

#include "core/store/satirlar.h"
#include "payroll/devir/aylikbilgi.h"
#include "payroll/devir/cari.h"
#include "payroll/devir/yillikdevir.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000, AySayisi = 48, HareketSayisi = 10'000;
constexpr int SonYil = 2008;

Sirket& Ortak() {
  static Sirket sirket(Kisi, SonYil + 1, 1, AySayisi);
  return sirket;
}

void Devret(benchmark::State& durum) {
  if (Al(YillikDevir(Ortak().o, SonYil)).kisi < Kisi / 2) durum.SkipWithError("too few people");
}

// The first run of a year, which adds a row for each person.
void YilinIlkDevri(benchmark::State& durum) {
  for (auto _ : durum) {
    durum.PauseTiming();
    Ortak().o.depo.db.IcMotor().Calistir("delete from dvr");
    durum.ResumeTiming();
    Devret(durum);
  }
}
BENCHMARK(YilinIlkDevri)->Unit(benchmark::kMillisecond);

// A repeated one, after all records have changed.
void YilinYenidenDevri(benchmark::State& durum) {
  Devret(durum);
  for (auto _ : durum) {
    durum.PauseTiming();
    Ortak().o.depo.db.IcMotor().Calistir("update dvr set gvmatrah = gvmatrah + 1");
    durum.ResumeTiming();
    Devret(durum);
  }
}
BENCHMARK(YilinYenidenDevri)->Unit(benchmark::kMillisecond);

void HesapOku(benchmark::State& durum) {
  Motor& motor = Ortak().o.depo.db.IcMotor();
  const std::string kod = OrnekKisi(1).kod;
  Islem islem(motor);
  motor.Calistir("delete from cari");
  KayitYazici<Cari> yazici(motor);
  Cari c;
  c.kod = kod;
  for (int i = 0; i < HareketSayisi; ++i) {
    c.tarih = Tarih(2009, 1, 1).Ekle(i * 7919 % 3000);
    c.islem = std::uint8_t(i % 3 == 0 ? CariIslem::Alacak : CariIslem::Borc);
    c.tutar = Tutar(i % 977 + 0.25);
    yazici.Ekle(c);
  }
  islem.Onayla();
  for (auto _ : durum)
    if (Bakiyeler(CariOku(Ortak().o, kod)).size() != HareketSayisi) durum.SkipWithError("movements are missing");
}
BENCHMARK(HesapOku)->Unit(benchmark::kMillisecond);

void YilinAylari(benchmark::State& durum) {
  int i = 0;
  for (auto _ : durum) benchmark::DoNotOptimize(AylikBilgiler(Ortak().o, OrnekKisi(++i * 7919 % Kisi).kod, SonYil));
}
BENCHMARK(YilinAylari)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
