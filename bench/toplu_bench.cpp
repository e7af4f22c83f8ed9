// Work on many records of a company of 10,000 people: another code for a person with 120 months of pay records, a
// person's records looked up, another law for everybody.
#include <benchmark/benchmark.h>

#include "core/store/kisibordrolari.h"
#include "core/store/satirlar.h"
#include "core/tables/sicil.h"
#include "personnel/kanundegistir.h"
#include "personnel/koddegistir.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

constexpr int KisiSayisi = 10'000;
constexpr int AySayisi = 48;
constexpr const char* EskiKod = "ESKI";

// Months of 10,000 people, and one more person with records of ten years.
Sirket& DoluSirket() {
  static Sirket sirket(KisiSayisi, 2009, 7, AySayisi);
  static const bool yazildi = [] {
    Motor& motor = sirket.o.depo.db.IcMotor();
    Islem islem(motor);
    Sicil kart = OrnekKisi(1);
    kart.kod = EskiKod;
    KayitYazici<Sicil>(motor).Ekle(kart);
    KayitYazici<Brd> yazici(motor);
    Brd kayit = KisininBordrolari(motor, OrnekKisi(1).kod).front();
    kayit.kod = EskiKod;
    for (int ay = 0; ay < 120; ++ay) {
      kayit.yil = std::int16_t(2000 + ay / 12);
      kayit.ay = std::uint8_t(ay % 12 + 1);
      yazici.Ekle(kayit);
    }
    islem.Onayla();
    return true;
  }();
  (void)yazildi;
  return sirket;
}

void KodDegisimiSuresi(benchmark::State& durum) {
  Oturum& o = DoluSirket().o;
  static KodDegisikligi d{.eski = EskiKod, .yeni = "YENI", .bagli = true};
  for (auto _ : durum) {
    const auto degisim = KodDegistir(o, d);
    if (!degisim || degisim->bordro != 120) durum.SkipWithError("not all records were changed");
    std::swap(d.eski, d.yeni);
  }
}

void KisininBordrolariSuresi(benchmark::State& durum) {
  Motor& motor = DoluSirket().o.depo.db.IcMotor();
  int i = 0;
  for (auto _ : durum) benchmark::DoNotOptimize(KisininBordrolari(motor, OrnekKisi(i++ * 7919 % KisiSayisi).kod));
}

void HerkesinKanunu(benchmark::State& durum) {
  Oturum& o = DoluSirket().o;
  int kez = 0;
  for (auto _ : durum) {
    const auto liste = Al(KanunluKisiler(o, {}));
    const auto degisim = Al(KanunDegistir(o, liste.kisiler, ++kez % 2 == 0 ? "05510" : "05084"));
    if (degisim.degisen != KisiSayisi) durum.SkipWithError("not everybody was changed");
  }
}

BENCHMARK(KodDegisimiSuresi)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(KisininBordrolariSuresi)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(HerkesinKanunu)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
