#include "core/store/yantablolar.h"

#include <algorithm>

namespace belvani {
namespace {

constexpr AlanTanimi Ayrildi{"ayrildi", AlanTipi::Tarih, 0, AlanNiteligi::Serbest};

// `kendi`: the table's own columns, before those of `brd`.
void Hazirla(Motor& motor, const std::string& tablo, const std::string& kendi) {
  const auto var = motor.Kolonlar(tablo);
  std::string kolonlar = kendi;
  for (const MotorKolonu& kolon : motor.Kolonlar("brd")) {
    const std::string tanim = kolon.ad + " " + kolon.tip;
    if (var.empty())
      kolonlar += ", " + tanim;
    else if (std::ranges::find(var, kolon.ad, &MotorKolonu::ad) == var.end())
      motor.Calistir("alter table " + tablo + " add column " + tanim);
  }
  if (var.empty()) motor.Calistir(motor.TabloMetni(tablo, kolonlar));
}

}  // namespace

void OncekileriHazirla(Motor& motor) {
  Hazirla(motor, "brdonceki",
          "onc_an bigint, onc_neden varchar(40), onc_nesil smallint, onc_ozetoto bigint, onc_ozet bigint");
  // By code within the month, so that one person is found among all that is kept.
  const Indeksler indeksler = motor.TabloIndeksleri("brdonceki");
  if (!indeksler.contains("brdonceki_kisi"))
    motor.Calistir("create index brdonceki_kisi on brdonceki (yil, ay, kod collate turkce)");
  if (indeksler.contains("brdonceki_ay")) motor.Calistir("drop index brdonceki_ay");  // of an earlier version
}

void AyrilanlariHazirla(Motor& motor) {
  Hazirla(motor, "brdayrilan", motor.KolonTanimi(Ayrildi, false));
}

}  // namespace belvani
