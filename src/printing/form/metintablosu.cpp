#include "printing/form/metintablosu.h"

#include <set>

#include "core/turkce.h"
#include "printing/rapor.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

// Where the upright lines of a row of cells stand, from 0.
std::set<int> Dikler(const HucreEnleri& enler) {
  if (enler.empty()) return {};
  std::set<int> yerler{0};
  for (const int en : enler) yerler.insert(*yerler.rbegin() + en + 1);
  return yerler;
}

std::string_view Kavsak(bool yukari, bool asagi, bool sola, bool saga) {
  if (!sola) return yukari && asagi ? "├" : yukari ? "└" : "┌";
  if (!saga) return yukari && asagi ? "┤" : yukari ? "┘" : "┐";
  if (yukari && asagi) return "┼";
  return yukari ? "┴" : asagi ? "┬" : "─";
}

}  // namespace

std::string CizgiSatiri(const HucreEnleri& ust, const HucreEnleri& alt) {
  const std::set<int> yukarilar = Dikler(ust);
  const std::set<int> asagilar = Dikler(alt);
  const int son = *(ust.empty() ? asagilar : yukarilar).rbegin();
  std::string satir;
  for (int yer = 0; yer <= son; ++yer)
    satir += Kavsak(yukarilar.contains(yer), asagilar.contains(yer), yer > 0, yer < son);
  return satir;
}

std::string HucreSatiri(const std::vector<std::string>& hucreler) {
  std::string satir = "│";
  for (const std::string& hucre : hucreler) satir += hucre + "│";
  return satir;
}

std::string OrtaHucre(std::string_view metin, int n) {
  const int bosluk = std::max(0, (n - int(HarfSayisi(metin))) / 2);
  return SagBosluk(Yinele(" ", bosluk).append(metin), n);
}

std::string SagHucre(std::string_view sayi, int n) {
  return int(HarfSayisi(sayi)) > n ? Yinele("#", n) : Sagda(sayi, n);
}

std::string TutarHucresi(Tutar tutar, int n, int ondalik) {
  return SagHucre(TutarFormat(tutar, n, ondalik, BinlikGruplama), n);
}

}  // namespace belvani
