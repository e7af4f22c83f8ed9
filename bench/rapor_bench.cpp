// Designed reports: twenty columns over a staff, and over its records of twelve months, to the table and to the
// spreadsheet.
#include <benchmark/benchmark.h>

#include "printing/xlsxyazici.h"
#include "reports/bordroraporu.h"
#include "reports/raporalani.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr std::size_t KolonSayisi = 20;

struct RaporSirketi {
  explicit RaporSirketi(int kisi) : sirket(kisi, 2009, 1, 12) {
    sirket.o.depo.db.IcMotor().Calistir(
        "insert into kimlik (kod) select kod from sicil where kod not in (select kod from kimlik)");
  }
  Motor& Deposu() { return sirket.o.depo.db.IcMotor(); }

  Sirket sirket;
};

void Ozluk(benchmark::State& durum) {
  RaporSirketi sirket(int(durum.range(0)));
  OzlukKolonlari kolonlar;
  for (const RaporAlani& alan : OzlukAlanlari().first(KolonSayisi))
    kolonlar.push_back({.alan = alan.dosyadaki, .baslik = std::string(alan.baslik), .en = 12});
  for (auto _ : durum)
    if (OzlukRaporu(sirket.Deposu(), kolonlar, {}, {}, 2).Satirlar().empty()) durum.SkipWithError("nobody is in it");
}

BordroKolonlari Kolonlar() {
  BordroKolonlari kolonlar;
  for (const char* ad : {"*sno",
                         "brd.kod",
                         "*adsoy",
                         "sskno",
                         "yil",
                         "ay",
                         "ng",
                         "ui",
                         "ht",
                         "*ucret",
                         "topyardim",
                         "brutkaz",
                         "sskmatrah",
                         "sskkesinti",
                         "issizisci",
                         "gvmatrah",
                         "gvtutar",
                         "dvtutar",
                         "sskkesintiisveren",
                         "ogv"})
    kolonlar.push_back({.alan = ad, .baslik = ad, .en = 12, .ondalik = 2, .toplanir = true});
  return kolonlar;
}

void Bordro(benchmark::State& durum) {
  RaporSirketi sirket(int(durum.range(0)));
  for (auto _ : durum)
    if (BordroRaporu(sirket.Deposu(), Kolonlar(), {.ilkYil = 2008, .sonYil = 2008}, {}).Satirlar().empty())
      durum.SkipWithError("no records");
}

void BordroTablosu(benchmark::State& durum) {
  RaporSirketi sirket(int(durum.range(0)));
  const Rapor rapor = BordroRaporu(sirket.Deposu(), Kolonlar(), {.ilkYil = 2008, .sonYil = 2008}, {});
  for (auto _ : durum)
    if (!XlsxRaporu(rapor)) durum.SkipWithError("no workbook");
}

BENCHMARK(Ozluk)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Bordro)->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(BordroTablosu)->Arg(10'000)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
