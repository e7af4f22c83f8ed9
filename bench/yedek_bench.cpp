// A backup of 10,000 people and 48 months, read back whole, and its return under a new code: bytes of the store a
// second, and the archive's share of them. The aim is 50 MB of store a second for the backup.
#include <benchmark/benchmark.h>

#include "core/session/sirketyedegi.h"
#include "core/session/yedektendon.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

struct Hayirli final : Bildirim {
  void Bilgi(std::string_view) override {}
  void Uyari(std::string_view) override {}
  bool Soru(std::string_view) override { return true; }
};

Sirket& Ortak() {
  static Sirket sirket(10'000, 2009, 12, 48);
  return sirket;
}

std::string Hedef() {
  return Ortak().o.DataPath + "olcum.zip";
}

std::int64_t DepoBoyu() {
  return std::int64_t(std::filesystem::file_size(Ortak().o.FirmaDizini + "tolu.dat"));
}

void YedekAl(benchmark::State& durum) {
  Oturum& o = Ortak().o;
  for (auto _ : durum) {
    const auto yedek = Al(belvani::YedekAl(o.DataPath, o.FirmaKod, {.hedef = Hedef()}));
    durum.counters["oran"] = double(yedek.boy) / double(DepoBoyu());
  }
  durum.SetBytesProcessed(durum.iterations() * DepoBoyu());
}

void YedektenDon(benchmark::State& durum) {
  const std::string veri = Ortak().o.DataPath;
  Hayirli bildirim;
  for (auto _ : durum) {
    Al(belvani::YedektenDon(veri, {.dosya = Hedef(), .yeniKod = "KOPYA"}, bildirim));
    durum.PauseTiming();
    std::filesystem::remove_all(veri + "KOPYA");
    durum.ResumeTiming();
  }
  durum.SetBytesProcessed(durum.iterations() * DepoBoyu());
}

BENCHMARK(YedekAl)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();
BENCHMARK(YedektenDon)->Unit(benchmark::kMillisecond)->Iterations(3)->UseRealTime();

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
