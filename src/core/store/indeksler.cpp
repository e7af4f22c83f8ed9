#include "core/store/indeksler.h"

#include <algorithm>

#include "core/store/islem.h"
#include "core/tables/bordronosu.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

void IndeksiTamamla(Motor& motor, const TabloTanimi& tablo, const IndeksTanimi& indeks, const Indeksler& olan,
                    const std::vector<MotorKolonu>& kolonlar) {
  const std::string ad = IndeksAdi(tablo, indeks);
  const auto bu = olan.find(ad);
  const auto kolonYok = [&](std::string_view alan) {
    return std::ranges::find(kolonlar, IndeksKolonu(alan), &MotorKolonu::ad) == kolonlar.end();
  };
  if (std::ranges::any_of(indeks.alanlar, kolonYok)) return;
  if (ad.empty() || (bu != olan.end() && (bu->second || !indeks.tekil))) return;
  if (bu != olan.end()) motor.Calistir("drop index " + ad);
  try {
    AraNokta nokta(motor);
    motor.Calistir(IndeksMetni(tablo, indeks, indeks.tekil));
    nokta.Birak();
  } catch (const MotorHatasi& hata) {
    if (hata.tur != MotorKusuru::Kisit) throw;
    motor.Calistir(IndeksMetni(tablo, indeks, false));
  }
}

}  // namespace

std::string IndeksAdi(const TabloTanimi& tablo, const IndeksTanimi& indeks) {
  for (const IndeksTanimi& sorgu : tablo.sorguIndeksleri)
    if (sorgu.ad == indeks.ad) return std::string(indeks.ad);
  const AlanTanimi* alan = tablo.AlanBul(indeks.alanlar.front());
  if (alan->nitelik == AlanNiteligi::Otomatik) return {};
  return std::string(tablo.ad) + "_" + std::string(indeks.ad);
}

bool BirincilMi(const TabloTanimi& tablo, std::string_view alan) {
  return std::ranges::any_of(tablo.indeksler,
                             [&](const IndeksTanimi& i) { return i.birincil && i.alanlar.front() == alan; });
}

std::string IndeksMetni(const TabloTanimi& tablo, const IndeksTanimi& indeks, bool tekil) {
  std::string sql = tekil ? "create unique index " : "create index ";
  sql += IndeksAdi(tablo, indeks) + " on " + std::string(tablo.ad) + " (";
  for (std::size_t i = 0; i < indeks.alanlar.size(); ++i) sql += (i ? ", " : "") + std::string(indeks.alanlar[i]);
  return sql + ")";
}

void IndeksleriTamamla(Motor& motor) {
  for (const TabloTanimi& tablo : Tablolar()) {
    const auto kolonlar = motor.Kolonlar(tablo.ad);
    if (kolonlar.empty()) continue;
    const Indeksler olan = motor.TabloIndeksleri(tablo.ad);
    for (const auto* indeksler : {&tablo.indeksler, &tablo.sorguIndeksleri})
      for (const IndeksTanimi& indeks : *indeksler) IndeksiTamamla(motor, tablo, indeks, olan, kolonlar);
  }
}

}  // namespace belvani
