// The monthly declaration of a whole company: reading the month and the one before it, rows, totals and premiums; the
// totals anew after an edit; the checks and the bytes of the electronic file.
#include <benchmark/benchmark.h>

#include "declarations/aylikbildirge.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000;

class Sessiz : public Bildirim {
 public:
  void Bilgi(std::string_view) override {}
  void Uyari(std::string_view) override {}
  bool Soru(std::string_view) override { return true; }
};

// Ten years of pay records for everyone.
struct BildirgeSirketi {
  Sirket sirket{Kisi, 2009, 7, 120};
  Sessiz bildirim;
  AylikBildirge bildirge{sirket.o, sirket.kosullar.yasal, bildirim};

  BildirgeSirketi() {
    Motor& motor = sirket.o.depo.db.IcMotor();
    motor.Calistir(
        "update firma set unvan = 'Deneme', adr1 = 'Ümraniye', sektor = '2', meslek = '1721', sube = '0101', "
        "dosya = '1034567', il = '34', ilce = '12', kontrol = '07'");
    if (!bildirge.Ac()) std::abort();
    bildirge.Secim().yil = 2009;
    bildirge.Secim().ay = 6;
    if (!bildirge.Hesapla()) std::abort();
  }
};

AylikBildirge& Ortak() {
  static BildirgeSirketi sirket;
  return sirket.bildirge;
}

void Hesapla(benchmark::State& durum) {
  AylikBildirge& bildirge = Ortak();
  for (auto _ : durum)
    if (!bildirge.Hesapla() || bildirge.Tamami().satirlar.size() != Kisi) durum.SkipWithError("not everyone is in it");
}

void SatirDuzeltme(benchmark::State& durum) {
  AylikBildirge& bildirge = Ortak();
  BildirgeSatiri satir = bildirge.Tamami().satirlar[Kisi / 2];
  for (auto _ : durum) {
    satir.gun = 59 - satir.gun.value_or(0);
    if (!bildirge.SatirYaz(satir)) durum.SkipWithError("not taken");
  }
}

void Xml(benchmark::State& durum) {
  AylikBildirge& bildirge = Ortak();
  for (auto _ : durum)
    if (!bildirge.XmlHazirla()) durum.SkipWithError("no file");
}

BENCHMARK(Hesapla)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(SatirDuzeltme)->Unit(benchmark::kMillisecond);
BENCHMARK(Xml)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
