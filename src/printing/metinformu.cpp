#include "printing/metinformu.h"

#include <algorithm>

#include "core/turkce.h"

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

// The plain letter for one of a frame; nothing for any other letter.
std::string_view DuzHarf(std::string_view harf) {
  if (harf == "─") return "-";
  if (harf == "│") return "|";
  static constexpr std::string_view koseler[] = {"┌", "┬", "┐", "├", "┼", "┤", "└", "┴", "┘"};
  return std::ranges::find(koseler, harf) != std::end(koseler) ? "+" : "";
}

}  // namespace

MetinFormu::MetinFormu(std::string_view sablon) {
  for (std::size_t bas = 0; bas <= sablon.size();) {
    const std::size_t son = std::min(sablon.find('\n', bas), sablon.size());
    satirlar_.push_back(Harfler(sablon.substr(bas, son - bas)));
    bas = son + 1;
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

void MetinFormu::Basamaklar(int satir, int ilkKolon, int adim, int hucre, std::string_view metin) {
  const auto harfler = DegerHarfleri(metin);
  const int harf = int(harfler.size());
  if (harf > hucre) return KoySagda({satir, ilkKolon, adim * (hucre - 1) + 1}, metin);
  for (int i = 0; i < harf; ++i) Koy({satir, ilkKolon + adim * (hucre - harf + i), 1}, harfler[std::size_t(i)]);
}

std::string MetinFormu::Metin() const {
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
