#include "printing/kagit.h"

#include <algorithm>
#include <numeric>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int SayfaNoHarfi = 5;  // " 1234"
constexpr int ImzaHarfi = 20;    // that a signature takes

int Harf(std::string_view metin) {
  return int(HarfSayisi(metin));
}

int KolonEni(const Rapor& rapor, std::size_t k, int gruplama) {
  const RaporKolonu& kolon = rapor.Kolonlar()[k];
  const int gerekli = rapor.GerekliEn(k, gruplama);
  if (kolon.Sayisal()) return std::max(gerekli, kolon.en);
  if (kolon.tur == KolonTuru::Metin) return std::min(std::max(gerekli, Harf(kolon.baslik)), kolon.en);
  return std::max(TarihHarfi(kolon.tur), kolon.en);
}

std::vector<int> Enler(const Rapor& rapor, int gruplama) {
  std::vector<int> enler;
  for (std::size_t k = 0; k < rapor.Kolonlar().size(); ++k) enler.push_back(KolonEni(rapor, k, gruplama));
  return enler;
}

int TabloEni(const std::vector<int>& enler) {
  return std::accumulate(enler.begin(), enler.end(), 0) + std::max(0, int(enler.size()) - 1);
}

// What a column would take of a line that had the room.
int IstenenEn(const Rapor& rapor, std::size_t k, int gruplama) {
  const RaporKolonu& kolon = rapor.Kolonlar()[k];
  if (kolon.tur == KolonTuru::Bos) return std::max(ImzaHarfi, kolon.en);
  if (kolon.tur == KolonTuru::Metin) return std::max(rapor.GerekliEn(k, gruplama), Harf(kolon.baslik));
  return 0;
}

// Letter by letter, so that no long text takes the room of all others.
void BosYeriDagit(const Rapor& rapor, int gruplama, int bos, std::vector<int>& enler) {
  for (bool verildi = true; bos > 0 && verildi;) {
    verildi = false;
    for (std::size_t k = 0; k < enler.size() && bos > 0; ++k) {
      if (enler[k] >= IstenenEn(rapor, k, gruplama)) continue;
      ++enler[k];
      --bos;
      verildi = true;
    }
  }
}

int UstSatirEni(const UstSatir& satir) {
  int en = 0;
  for (const auto& parca : {satir.sol, satir.orta, satir.sag})
    if (!parca.empty()) en += Harf(parca) + 1;
  return en + (satir.sayfaNo ? SayfaNoHarfi : 0) + (satir.sayfaSayisi ? SayfaNoHarfi : 0);
}

}  // namespace

IkiSatir BaslikBol(const std::string& baslik, int en) {
  const std::size_t harf = std::size_t(std::max(en, 0));
  if (HarfSayisi(baslik) <= harf) return {"", baslik};
  std::string_view ust = IlkHarfler(baslik, harf + 1);
  const auto bosluk = ust.rfind(' ');
  const bool bolunur = bosluk != std::string_view::npos && bosluk > 0;
  ust = bolunur ? ust.substr(0, bosluk) : IlkHarfler(baslik, harf);
  const std::string_view kalan = Kirp(std::string_view(baslik).substr(ust.size()));
  return {std::string(ust), std::string(IlkHarfler(kalan, harf))};
}

KagitBicimi KagitBicimle(const Rapor& rapor, const SayfaDuzeni& duzen) {
  KagitBicimi bicim;
  bicim.enler = Enler(rapor, bicim.gruplama);
  if (TabloEni(bicim.enler) > duzen.en) {
    bicim.gruplama = 0;
    bicim.enler = Enler(rapor, bicim.gruplama);
  }
  BosYeriDagit(rapor, bicim.gruplama, duzen.en - TabloEni(bicim.enler), bicim.enler);
  for (std::size_t k = 0; k < bicim.enler.size(); ++k) {
    bicim.basliklar.push_back(BaslikBol(rapor.Kolonlar()[k].baslik, bicim.enler[k]));
    if (!bicim.basliklar.back()[0].empty()) bicim.baslikBoyu = 2;
  }
  bicim.en = std::max(TabloEni(bicim.enler), Harf(rapor.baslik));
  for (const auto& satir : rapor.ustSatirlar) bicim.en = std::max(bicim.en, UstSatirEni(satir));
  return bicim;
}

}  // namespace belvani
