#include "core/store/depodenetimi.h"

#include <algorithm>
#include <set>

#include "core/store/brdozet.h"
#include "core/store/indeksler.h"
#include "core/store/izlenenokuma.h"
#include "core/tables/bordronosu.h"
#include "core/tables/tablolar.h"

namespace belvani {
namespace {

bool KisiliMi(const TabloTanimi& tablo) {
  return tablo.ad != "peruser" && tablo.ad != "arac" && tablo.ad != "sendika" && tablo.AlanBul("kod") != nullptr;
}

class DepoDenetimi {
 public:
  DepoDenetimi(Motor& motor, Ilerleme* ilerleme) : motor_(motor), ilerleme_(ilerleme) {}

  Kusurlar Denetle() {
    if (std::string kusur = motor_.ButunlukKusuru([this] { Asama(ilerleme_).Sor(); }); !kusur.empty())
      Ekle("veritabanı bozuk: " + kusur);
    for (const TabloTanimi& tablo : Tablolar()) {
      kolonlar_.clear();
      for (const MotorKolonu& kolon : motor_.Kolonlar(tablo.ad)) kolonlar_.insert(kolon.ad);
      kolonlar_.empty() ? Ekle(std::string(tablo.ad) + ": tablo yok") : TabloyuDenetle(tablo);
    }
    return std::move(kusurlar_);
  }

 private:
  void Ekle(std::string metin, std::string kod = {}) {
    kusurlar_.push_back({.metin = std::move(metin), .kod = std::move(kod)});
  }

  void TabloyuDenetle(const TabloTanimi& tablo) {
    for (const AlanTanimi& alan : tablo.alanlar) {
      if (kolonlar_.contains(alan.ad))
        TipiDenetle(tablo, alan);
      else
        Ekle(std::string(tablo.ad) + "." + std::string(alan.ad) + ": alan yok");
    }
    IndeksleriDenetle(tablo);
    if (tablo.ad == "firma") TekilligiDenetle(tablo, {});
    for (const auto* indeksler : {&tablo.indeksler, &tablo.sorguIndeksleri})
      for (const IndeksTanimi& indeks : *indeksler)
        if (indeks.tekil) TekilligiDenetle(tablo, indeks.alanlar);
    if (tablo.ad == Brd::TabloAdi)
      std::ranges::move(BrdOzetKusurlari(motor_, ilerleme_), std::back_inserter(kusurlar_));
  }

  void TipiDenetle(const TabloTanimi& tablo, const AlanTanimi& alan) {
    const std::string sql = "select count(*), " + std::string(KisiliMi(tablo) ? "min(kod)" : "''") + " from " +
                            std::string(tablo.ad) + " where " + std::string(alan.ad) + " is not null and (" +
                            motor_.UymayanKosulu(alan.ad, alan.tip) + ")";
    const auto komut = motor_.Hazirla(sql);
    IzlenenOkuma okuma(*komut, ilerleme_);
    if (!okuma.Adim() || komut->Tam(0) == 0) return;
    Ekle(std::string(tablo.ad) + "." + std::string(alan.ad) + ": " + std::to_string(komut->Tam(0)) +
             " kayıtta alanın türünden olmayan bir değer var",
         std::string(komut->Metin(1)));
  }

  void IndeksleriDenetle(const TabloTanimi& tablo) {
    const Indeksler olan = motor_.TabloIndeksleri(tablo.ad);
    for (const auto* indeksler : {&tablo.indeksler, &tablo.sorguIndeksleri})
      for (const IndeksTanimi& indeks : *indeksler) {
        const std::string ad = IndeksAdi(tablo, indeks);
        const auto bu = olan.find(ad);
        if (ad.empty() || (bu != olan.end() && (bu->second || !indeks.tekil))) continue;
        const bool yok = bu == olan.end();
        Ekle(std::string(tablo.ad) + ": " + ad +
             (yok ? " indeksi yok" : " indeksi tekil değil (önceki sürümden), aynı kayıt iki kez yazılabilir"));
        if (!yok) kusurlar_.back().derece = Derece::Uyari;
      }
  }

  // Without columns: the whole table holds one record.
  void TekilligiDenetle(const TabloTanimi& tablo, const std::vector<std::string_view>& alanlar) {
    std::string liste, adlar;
    for (const std::string_view alan : alanlar) {
      const std::string_view kolon = IndeksKolonu(alan);
      if (!kolonlar_.contains(kolon)) return;
      liste += (liste.empty() ? "" : ", ") + std::string(alan);
      adlar += (adlar.empty() ? "" : ", ") + std::string(kolon);
    }
    const std::string tekrar =
        "select count(*), " + std::string(KisiliMi(tablo) && !liste.empty() ? "min(kod)" : "''") + " as kisi from " +
        std::string(tablo.ad) + (liste.empty() ? "" : " group by " + liste) + " having count(*) > 1";
    const auto komut = motor_.Hazirla(tekrar);
    for (IzlenenOkuma okuma(*komut, ilerleme_); okuma.Adim();)
      Ekle(std::string(tablo.ad) + ": aynı kayıt " + std::to_string(komut->Tam(0)) + " kez var" +
               (adlar.empty() ? "" : " (" + adlar + ")"),
           std::string(komut->Metin(1)));
  }

  Motor& motor_;
  Ilerleme* ilerleme_;
  std::set<std::string, std::less<>> kolonlar_;  // of the table that is looked at
  Kusurlar kusurlar_;
};

}  // namespace

Kusurlar DepoKusurlari(Motor& motor, Ilerleme* ilerleme) {
  return DepoDenetimi(motor, ilerleme).Denetle();
}

}  // namespace belvani
