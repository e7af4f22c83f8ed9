// The calculation alone, inputs in memory.
#include <benchmark/benchmark.h>

#include "payroll/parametre/mevzuat.h"
#include "sirketuret.h"

namespace belvani::bench {
namespace {

struct Girdiler {
  Kosullar kosullar;
  std::vector<KisiVerisi> kisiler;
  std::vector<BordroGirdi> girdiler;
};

Girdiler Hazirla(int yil, int ay) {
  constexpr int Kisi = 1000;
  Girdiler g;
  g.kosullar.yasal = std::move(*MevzuatYukle(MevzuatDizini(), yil, ay));
  g.kosullar.donem = {yil, ay};
  g.kosullar.uygulama = UygulamaBul(g.kosullar.yasal.kanunlar, ay, yil);
  g.kosullar.TehlikeOran = Tek(1.5);
  TamKurallar(g.kosullar);
  g.kosullar.firma.varsayilan.k.fill(15);
  g.kosullar.firma.varsayilan.y.fill(31);
  g.kosullar.firma.mesailer = VarsayilanFazlaMesailer();
  g.kosullar.firma.sablon = VarsayilanSablon();
  g.kisiler.resize(Kisi);
  for (int i = 0; i < Kisi; ++i) {
    KisiVerisi& kisi = g.kisiler[std::size_t(i)];
    kisi.sicil = OrnekKisi(i);
    kisi.sicil.ucrettipi = kisi.sicil.ucrettipi == 1 ? 0 : kisi.sicil.ucrettipi;
    kisi.aile = {1, i % 4, i % 5};
    kisi.yil.gvmatrah = Tutar(i * 13.57);
    BordroGirdi girdi = PersonelYukle(kisi, g.kosullar, 30);
    girdi.giris.fm1 = Tek(i % 20);
    girdi.giris.yrd01 = Tutar(i % 3 * 100.0);
    girdi.giris.yrd02 = Tutar(52.5);
    girdi.giris.yrd03 = Tutar(40);
    g.girdiler.push_back(girdi);
  }
  return g;
}

void Hesapla(benchmark::State& durum, int yil, int ay) {
  const Girdiler g = Hazirla(yil, ay);
  std::size_t i = 0;
  for (auto _ : durum) {
    benchmark::DoNotOptimize(BrutNetHesapla(g.girdiler[i]));
    if (++i == g.girdiler.size()) i = 0;
  }
  durum.SetItemsProcessed(durum.iterations());
}

void Izli(benchmark::State& durum) {
  const Girdiler g = Hazirla(2009, 7);
  std::size_t i = 0;
  for (auto _ : durum) {
    Iz iz;
    benchmark::DoNotOptimize(BrutNetHesapla(g.girdiler[i], iz));
    if (++i == g.girdiler.size()) i = 0;
  }
  durum.SetItemsProcessed(durum.iterations());
}

BENCHMARK_CAPTURE(Hesapla, uygulama1_2004, 2004, 3);
BENCHMARK_CAPTURE(Hesapla, uygulama2_2006, 2006, 9);
BENCHMARK_CAPTURE(Hesapla, uygulama3_2008, 2008, 3);
BENCHMARK_CAPTURE(Hesapla, uygulama4_2009, 2009, 7);
BENCHMARK(Izli);

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
