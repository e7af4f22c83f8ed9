// The store on a server: a copy of 10,000 pay records as the measure, the month of as many people new and over a saved
// one against it, a person brought up and saved, seeks, the list of 1,000 companies. On a private server of this
// computer (bench/olc.sh starts it), which writes nothing through to the disk.
#include <benchmark/benchmark.h>

#include "core/session/sirketlistesi.h"
#include "core/store/islem.h"
#include "core/store/satirlar.h"
#include "sirketuret.h"
#include "sunucu/sablon.h"

namespace belvani::bench {
namespace {

constexpr int KisiSayisi = 10'000;

std::string SunucuDizini() {
  const char* dizin = std::getenv("BELVANI_TEST_SUNUCU");
  if (dizin != nullptr) return std::filesystem::canonical(dizin);
  std::cerr << "to be run by: ozelsunucu bench_sunucu\n";
  std::exit(1);
}

std::string YeniVeri(const std::string& ad) {
  test::SablondanYarat(SunucuDizini(), ad);
  return "postgresql:///" + ad + "?host=" + SunucuDizini() + "#";
}

Sirket& BuyukSirket() {
  static Sirket sirket(KisiSayisi, 2009, 7, 3, YeniVeri("buyuk"));
  return sirket;
}

// The least that the month costs there: its records, and nothing else.
void Kopya(benchmark::State& durum) {
  Motor& motor = BuyukSirket().o.depo.db.IcMotor();
  std::vector<Brd> kayitlar = KayitlariOku<Brd>(motor, "where yil = 2009 and ay = 6");
  for (Brd& b : kayitlar) b.yil = 1999;
  YazilanKolonlar kolonlar{.tablo = Brd::TabloAdi, .adlar = {}};
  Brd::HerKolon([&](const AlanTanimi& k) {
    if (k.nitelik != AlanNiteligi::Otomatik) kolonlar.adlar.emplace_back(k.ad);
  });
  for (auto _ : durum) {
    Islem islem(motor);
    const auto yazici = motor.SatirYaziciAc(kolonlar, YazmaTuru::Ekle);
    for (const Brd& b : kayitlar) {
      int no = 0;
      Brd::HerKolon([&](const auto& k) {
        if (k.nitelik != AlanNiteligi::Otomatik) KolonBagla(*yazici, ++no, b.*k.uye);
      });
      yazici->Yaz();
    }
    islem.Onayla();
    durum.PauseTiming();
    motor.Calistir("delete from brd where yil = 1999");
    durum.ResumeTiming();
  }
}

void Ay(benchmark::State& durum, bool ustune) {
  Sirket& sirket = BuyukSirket();
  Motor& motor = sirket.o.depo.db.IcMotor();
  if (ustune) (void)TopluHazirla(sirket.o, sirket.kosullar);
  for (auto _ : durum) {
    if (ustune) {  // a record that comes out as it stands would not be written
      durum.PauseTiming();
      motor.Calistir("update sicil set ucret = ucret + 10000");
      durum.ResumeTiming();
    }
    auto sonuc = TopluHazirla(sirket.o, sirket.kosullar);
    if (!sonuc || sonuc->kaydedilen != KisiSayisi) durum.SkipWithError("not everyone was saved");
    if (ustune) continue;
    durum.PauseTiming();
    (void)BordroSil(sirket.o, 2009, 7);
    durum.ResumeTiming();
  }
}

void BirKisi(benchmark::State& durum) {
  Sirket& sirket = BuyukSirket();
  int i = 0;
  for (auto _ : durum)
    benchmark::DoNotOptimize(
        KisiOku(sirket.o.depo.db.IcMotor(), sirket.kosullar.donem, OrnekKisi(i++ * 7919 % KisiSayisi).kod));
}

void Arama(benchmark::State& durum) {
  Motor& motor = BuyukSirket().o.depo.db.IcMotor();
  const auto komut = motor.Hazirla("select ucret from sicil where kod = ?");
  int i = 0;
  for (auto _ : durum) {
    komut->MetinBagla(1, OrnekKisi(i++ * 7919 % KisiSayisi).kod);
    if (!komut->Adim()) durum.SkipWithError("not found");
    komut->Birak();
  }
}

// The schemas of 999 companies are copies of the first one's card and nothing else.
void SirketListesi1000(benchmark::State& durum) {
  static const std::string veri = [] {
    const std::string adres = YeniVeri("liste");
    static const Sirket ilk(1, 2009, 7, 0, adres);
    constexpr int adim = 50;  // schemas in one transaction, which locks all of their tables
    for (int bas = 2; bas <= 1000; bas += adim)
      test::YoneticiSql(SunucuDizini(), "liste",
                        "set role belvani_sahip; do $$ begin for i in " + std::to_string(bas) + ".." +
                            std::to_string(std::min(bas + adim - 1, 1000)) +
                            " loop insert into belvani.sirket (kod) values ('S' || i); "
                            "execute format('create schema s%s', i); "
                            "execute format('create table s%s.firma (like s1.firma including all)', i); "
                            "execute format('insert into s%s.firma select * from s1.firma', i); end loop; end $$");
    return adres;
  }();
  for (auto _ : durum)
    if (SirketListesi(veri).size() != 1000) durum.SkipWithError("not all companies");
}

BENCHMARK(Kopya)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Ay, yeni, false)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(Ay, ustune, true)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BirKisi)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(Arama)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(SirketListesi1000)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace belvani::bench

BENCHMARK_MAIN();
