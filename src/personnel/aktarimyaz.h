// How a checked file goes into the store: its columns over a record, its rows in one transaction.
#pragma once

#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "personnel/hucreler.h"

namespace belvani {

inline constexpr std::chrono::seconds AktarimKilitBekleme{60};

// The columns of the file that belong to the record's table.
template <class Kayit>
void HucreleriKoy(Kayit& kayit, const AktarimDosyasi& dosya, const AktarimSatiri& satir) {
  for (std::size_t i = 0; i < dosya.kolonlar.size(); ++i) {
    const AktarimKolonu& hucre = dosya.kolonlar[i];
    Kayit::HerKolon([&](const auto& kolon) {
      // `kod` belongs to both tables of a person.
      const bool buTablo = hucre.tablo->ad == Kayit::TabloAdi || hucre.alan->ad == "kod";
      if (buTablo && hucre.alan->ad == kolon.ad) UyeyeYaz(kayit.*kolon.uye, satir.degerler[i]);
    });
  }
}

// A fault names the row.
template <class Kayit>
Durum SatirYaz(Tablo<Kayit>& tablo, const Okunan<Kayit>& kayit, const AktarimSatiri& satir) {
  const auto yazilan = Koru([&] { return tablo.Yaz(kayit); });
  if (yazilan) return Tamam();
  Kusur kusur = yazilan.Kusuru();
  kusur.metin = "satır " + std::to_string(satir.satirNo) + ": kayıt yazılamadı: " + kusur.metin;
  kusur.satir = satir.satirNo;
  return kusur;
}

// Runs `is` in one transaction, unless the file has problems or is only tried out.
template <class Is>
Sonuc<AktarimSonucu> AktarimiKaydet(Oturum& o, AktarimDosyasi& dosya, AktarimKipi kip, Is&& is) {
  return Koru([&]() -> Sonuc<AktarimSonucu> {
    AktarimSonucu sonuc;
    Islem islem(o.depo.db.IcMotor(), AktarimKilitBekleme);
    if (const Durum yazildi = is(sonuc); !yazildi) return yazildi.Kusuru();
    sonuc.sorunlar = std::move(dosya.sorunlar);
    if (sonuc.sorunlar.empty() && kip == AktarimKipi::Kaydet) islem.Onayla();
    return sonuc;
  });
}

}  // namespace belvani
