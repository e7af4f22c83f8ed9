#include "core/yaziile.h"

#include <array>
#include <cstdlib>
#include <string_view>

namespace belvani {
namespace {

using Sozcukler = std::array<std::string_view, 10>;

constexpr Sozcukler Birler{"", "bir", "iki", "üç", "dört", "beş", "altı", "yedi", "sekiz", "dokuz"};
constexpr Sozcukler Onlar{"", "on", "yirmi", "otuz", "kırk", "elli", "altmış", "yetmiş", "seksen", "doksan"};
constexpr std::array<std::string_view, 6> GrupAdlari{"", "bin", "milyon", "milyar", "trilyon", "trilyar"};

// Three digits; `grup` counts the groups of three to the right of this one.
void GrupYaz(std::string& yazi, unsigned deger, unsigned grup) {
  if (deger == 0) return;
  const unsigned yuzler = deger / 100;
  if (yuzler > 1) yazi += Birler[yuzler];
  if (yuzler > 0) yazi += "yüz";
  yazi += Onlar[deger / 10 % 10];
  const bool tekBin = grup == 1 && deger == 1;  // "bin", not "birbin"
  if (!tekBin) yazi += Birler[deger % 10];
  yazi += GrupAdlari.at(grup);
}

std::string TamKismiYaz(std::uint64_t tam) {
  std::string yazi;
  std::uint64_t birim = 1;
  unsigned grup = 0;
  while (tam / birim >= 1000) {
    birim *= 1000;
    ++grup;
  }
  for (;; birim /= 1000, --grup) {
    GrupYaz(yazi, unsigned(tam / birim % 1000), grup);
    if (grup == 0) return yazi;
  }
}

}  // namespace

std::string YaziIleTutar(Tutar tutar, Yuvarlayici yuvarla, const std::string& paraBirimi,
                         const std::string& kurusBirimi) {
  const auto ham = std::uint64_t(std::llabs(yuvarla(tutar).Ham()));
  const auto kurus = unsigned(ham % Tutar::Olcek / 100);
  std::string yazi = TamKismiYaz(ham / Tutar::Olcek) + " " + paraBirimi;
  if (ham % Tutar::Olcek == 0) return yazi;
  yazi += " ";
  yazi += Onlar[kurus / 10];
  yazi += Birler[kurus % 10];
  return yazi + " " + kurusBirimi;
}

}  // namespace belvani
