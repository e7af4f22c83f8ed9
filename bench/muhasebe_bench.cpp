// The voucher of a month: made of 10,000 people's pay records, and posted into the accounting store.
#include <benchmark/benchmark.h>

#include "accounting/entparkayit.h"
#include "accounting/fisisle.h"
#include "accounting/fisoku.h"
#include "accounting/kardesdepo.h"
#include "core/store/satirlar.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int Kisi = 10'000;
constexpr int Yil = 2009;
constexpr int Ay = 1;

// People in five groups, each with the lines that are proposed.
struct MuhasebeliSirket : Sirket {
  MuhasebeliSirket() : Sirket(Kisi, Yil, Ay + 1, 1) {
    Motor& motor = o.depo.db.IcMotor();
    motor.Calistir("update sicil set ozel = 'G' || (rowid % 5)");
    Islem islem(motor);
    for (int grup = 0; grup < 5; ++grup) {
      const std::string ad = "G" + std::to_string(grup);
      EntparGrubu satirlar = EntparOku(motor, ad);
      const EntparSatirlari oneri = EntparOnerisi(nullptr);
      for (std::size_t i = 0; i < EntparSatiri; ++i) {
        Okunan<Entpar>& satir = satirlar.satirlar[i];
        satir.simdi.yer = oneri[i].yer;
        satir.simdi.ba = oneri[i].ba;
        satir.simdi.hesap = oneri[i].hesap.empty() ? "" : oneri[i].hesap + "." + ad;
        if (!EntparYaz(motor, satir)) std::exit(1);
      }
    }
    islem.Onayla();
  }
};

MuhasebeliSirket& Ortak() {
  static MuhasebeliSirket sirket;
  return sirket;
}

void FisYap(benchmark::State& durum) {
  Motor& motor = Ortak().o.depo.db.IcMotor();
  for (auto _ : durum) {
    const Fis fis = FisOku(motor, {.yil = Yil, .ay = Ay});
    if (fis.Bos() || fis.Bakiye() != Tutar()) durum.SkipWithError("no voucher");
  }
}

void Isle(benchmark::State& durum) {
  const std::string dizin = Ortak().o.DataPath + ".muhasebe";
  if (const Durum kuruldu = KardesYarat(KardesTuru::Muhasebe, dizin); !kuruldu) durum.SkipWithError("no books");
  const auto muhasebe = Al(MuhasebeyiAc(dizin));
  Fis fis = FisOku(Ortak().o.depo.db.IcMotor(), {.yil = Yil, .ay = Ay});
  int no = 0;
  for (auto _ : durum) {
    fis.ack = std::to_string(++no);
    if (!FisIsle(*muhasebe, fis, {.tarih = FisTarihi(Yil, Ay)})) durum.SkipWithError("not posted");
  }
  MotorDosyasiniSil(KardesDosyasi(KardesTuru::Muhasebe, dizin));
}

BENCHMARK(FisYap)->Unit(benchmark::kMillisecond);
BENCHMARK(Isle)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
