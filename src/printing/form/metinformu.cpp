#include "printing/form/metinformu.h"

#include <algorithm>
#include <cassert>

#include "core/turkce.h"
#include "printing/metincizimi.h"

namespace belvani {
namespace {

std::vector<std::string> Harfler(std::string_view metin) {
  std::vector<std::string> harfler;
  while (!metin.empty()) {
    const std::string_view harf = IlkHarfler(metin, 1);
    harfler.emplace_back(harf);
    metin.remove_prefix(harf.size());
  }
  return harfler;
}

std::vector<std::string> DegerHarfleri(std::string_view metin) {
  return Harfler(Kirp(DenetimsizMetin(metin)));
}

constexpr std::string_view IsaretBasi = "«";
constexpr std::string_view IsaretSonu = "»";
constexpr std::string_view TekHarf = "☐";
constexpr std::string_view HucreArasi = "│";

// The plain letter for one of a frame; nothing for any other letter.
std::string_view DuzHarf(std::string_view harf) {
  if (harf == "─") return "-";
  if (harf == "│") return "|";
  static constexpr std::string_view koseler[] = {"┌", "┬", "┐", "├", "┼", "┤", "└", "┴", "┘"};
  return std::ranges::find(koseler, harf) != std::end(koseler) ? "+" : "";
}

}  // namespace

MetinFormu::MetinFormu(std::string_view sablon, const std::vector<std::string_view>& kutular) {
  for (const std::string_view satir : Parcala(sablon, '\n')) satirlar_.push_back(Harfler(satir));
  auto kutu = kutular.begin();
  for (int satir = 1; satir <= int(satirlar_.size()); ++satir) {
    auto& harfler = satirlar_[std::size_t(satir) - 1];
    for (int kolon = 1; kolon <= int(harfler.size()); ++kolon) {
      std::string& harf = harfler[std::size_t(kolon) - 1];
      if (harf == IsaretBasi) IsaretAl(satir, kolon);
      if (harf != TekHarf) continue;
      assert(kutu != kutular.end());
      isaretler_.push_back({std::string(*kutu++), {satir, kolon, 1}});
      harf = " ";
    }
  }
  assert(kutu == kutular.end());
}

// The mark that begins at this letter; its place is blank then.
void MetinFormu::IsaretAl(int satir, int kolon) {
  const auto ilk = satirlar_[std::size_t(satir) - 1].begin() + kolon - 1;
  const auto son = std::find(ilk, satirlar_[std::size_t(satir) - 1].end(), IsaretSonu);
  assert(son != satirlar_[std::size_t(satir) - 1].end());
  const int adim = *(ilk + 1) == HucreArasi ? 2 : 1;
  Isaret isaret{.yer = {satir, kolon, int(son - ilk) / adim + 1}, .adim = adim};
  for (auto harf = ilk; harf <= son; harf += adim) {
    if (harf != ilk && harf != son) isaret.ad += *harf;
    *harf = " ";
    if (harf == son) break;
  }
  isaret.sagda = isaret.adim == 1 && isaret.ad.starts_with('.');
  isaret.ad.erase(0, isaret.ad.find_first_not_of('.'));
  isaret.ad.erase(isaret.ad.find_last_not_of('.') + 1);
  isaretler_.push_back(std::move(isaret));
}

void MetinFormu::IsaretDoldur(Isaret& isaret, std::string_view deger) {
  isaret.dolu = true;
  const MetinYeri& yer = isaret.yer;
  if (isaret.sagda) return KoySagda(yer, deger);
  if (isaret.adim == 1) return Koy(yer, deger);
  const auto harfler = DegerHarfleri(deger);
  const int harf = int(harfler.size());
  if (harf > yer.en) return KoySagda({yer.satir, yer.kolon, isaret.adim * (yer.en - 1) + 1}, deger);
  for (int i = 0; i < harf; ++i)
    Koy({yer.satir, yer.kolon + isaret.adim * (yer.en - harf + i), 1}, harfler[std::size_t(i)]);
}

void MetinFormu::Koy(std::string_view ad, std::string_view deger) {
  [[maybe_unused]] bool bulundu = false;
  for (auto& isaret : isaretler_) {
    if (isaret.ad != ad) continue;
    IsaretDoldur(isaret, deger);
    bulundu = true;
  }
  assert(bulundu);
}

void MetinFormu::Doldur(const FormSayfasi& sayfa) {
  for (auto& isaret : isaretler_) {
    const auto alan = std::ranges::find(sayfa.alanlar, isaret.ad, &FormAlani::ad);
    if (alan != sayfa.alanlar.end()) IsaretDoldur(isaret, alan->deger);
  }
}

void MetinFormu::Koy(const MetinYeri& yer, std::string_view metin) {
  if (yer.satir < 1 || yer.satir > int(satirlar_.size()) || yer.kolon < 1) return;
  auto& satir = satirlar_[std::size_t(yer.satir) - 1];
  auto harfler = DegerHarfleri(metin);
  const int sigan = std::min(yer.en, int(satir.size()) - yer.kolon + 1);
  if (sigan <= 0) return;
  harfler.resize(std::min(harfler.size(), std::size_t(sigan)));
  std::ranges::move(harfler, satir.begin() + yer.kolon - 1);
}

void MetinFormu::KoySagda(const MetinYeri& yer, std::string_view metin) {
  const int harf = std::min(int(DegerHarfleri(metin).size()), yer.en);
  Koy({yer.satir, yer.kolon + yer.en - harf, harf}, metin);
}

std::string MetinFormu::Metin() const {
  assert(std::ranges::all_of(isaretler_, &Isaret::dolu));
  std::string metin;
  for (const auto& harfler : satirlar_) {
    std::string satir;
    for (const auto& harf : harfler) satir += harf;
    satir.erase(satir.find_last_not_of(' ') + 1);
    metin += satir + '\n';
  }
  return metin;
}

std::string SayfalariBirlestir(std::span<const std::string> sayfalar) {
  std::string metin;
  for (const auto& sayfa : sayfalar) {
    if (!metin.empty()) metin += '\f';
    metin += sayfa;
  }
  return metin;
}

std::string DuzCerceveli(std::string_view metin) {
  std::string duz;
  for (const auto& harf : Harfler(metin)) {
    const std::string_view yerine = DuzHarf(harf);
    duz += yerine.empty() ? std::string_view(harf) : yerine;
  }
  return duz;
}

}  // namespace belvani
