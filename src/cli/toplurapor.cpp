#include "cli/toplurapor.h"

#include <algorithm>
#include <iostream>
#include <map>

#include "core/adlar.h"

namespace belvani::cli {
namespace {

using SirketSatirlari = std::vector<const TopluSatir*>;

// Its own words, then those about it; without the line end.
std::string Soz(const TopluSatir& satir) {
  std::string soz = satir.mesaj.Metin();
  if (!satir.kusur.empty() && !soz.empty() && soz.back() != '\n') soz += '\n';
  soz += satir.kusur;
  soz.erase(soz.find_last_not_of('\n') + 1);
  return soz;
}

std::vector<SirketSatirlari> SozeGoreTopla(const SirketSatirlari& sirketler) {
  std::vector<SirketSatirlari> gruplar;
  std::map<std::size_t, std::vector<std::size_t>> ozetler;  // of the words, to the groups: no words stay in memory
  for (const TopluSatir* satir : sirketler) {
    const std::string soz = Soz(*satir);
    auto& adaylar = ozetler[std::hash<std::string>()(soz)];
    const auto grup = std::ranges::find_if(adaylar, [&](std::size_t i) { return Soz(*gruplar[i].front()) == soz; });
    if (grup != adaylar.end()) {
      gruplar[*grup].push_back(satir);
    } else {
      adaylar.push_back(gruplar.size());
      gruplar.push_back({satir});
    }
  }
  return gruplar;
}

std::string Kodlar(const SirketSatirlari& sirketler) {
  std::string metin;
  for (const TopluSatir* satir : sirketler) metin += (metin.empty() ? "" : ", ") + satir->kod;
  return metin;
}

// "A, B: words", lines below the first one indented.
std::string GrupMetni(const SirketSatirlari& grup) {
  std::string metin = "  " + Kodlar(grup);
  const std::string soz = Soz(*grup.front());
  if (!soz.empty()) metin += ": ";
  for (const char c : soz) {
    metin += c;
    if (c == '\n') metin += "    ";
  }
  return metin + "\n";
}

void BolumYaz(const char* baslik, const SirketSatirlari& sirketler) {
  if (sirketler.empty()) return;
  std::cerr << baslik << "\n";
  for (const SirketSatirlari& grup : SozeGoreTopla(sirketler)) std::cerr << TerminalMetni(GrupMetni(grup));
}

}  // namespace

std::string RaporuYaz(const std::vector<TopluSatir>& satirlar) {
  const auto olanlar = [&](auto uyar) {
    SirketSatirlari olan;
    for (const TopluSatir& satir : satirlar)
      if (uyar(satir)) olan.push_back(&satir);
    return olan;
  };
  const auto halinde = [&](TopluSatir::Hal hal) {
    return olanlar([hal](const TopluSatir& s) { return s.hal == hal; });
  };
  const auto yapilmayan = halinde(TopluSatir::Hal::Yapilamadi), atlanan = halinde(TopluSatir::Hal::Atlandi),
             kalan = halinde(TopluSatir::Hal::Baslanmadi);
  BolumYaz("Söylenenler:",
           olanlar([](const TopluSatir& s) { return s.hal == TopluSatir::Hal::Yapildi && s.mesaj.Boy() != 0; }));
  BolumYaz("Atlananlar:", atlanan);
  BolumYaz("Başlanmayanlar:", kalan);
  BolumYaz("Yapılamayanlar:", yapilmayan);
  std::string ozet = std::to_string(satirlar.size()) +
                     " şirket: " + std::to_string(halinde(TopluSatir::Hal::Yapildi).size()) + " yapıldı, " +
                     std::to_string(atlanan.size()) + " atlandı, " + std::to_string(yapilmayan.size()) + " yapılamadı";
  if (!kalan.empty()) ozet += ", " + std::to_string(kalan.size()) + " başlanmadı";
  return ozet;
}

}  // namespace belvani::cli
