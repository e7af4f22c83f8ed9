#include "printing/metincizimi.h"

#include <algorithm>

#include "core/turkce.h"
#include "printing/doskod.h"

namespace belvani {
namespace {

constexpr double IncMm = 25.4;
constexpr double NormalHarfMm = IncMm / 10;
constexpr double SikisikHarfMm = IncMm / 17.1;
constexpr double SatirMm = IncMm / 6;
constexpr double EnDarKagitMm = 8.5 * IncMm;
constexpr double MetinPunto = 11;
constexpr int Cizilen = 1, Ham = 2;  // kinds of prnx

void SayfaBas(prnx& yazici, std::string_view sayfa) {
  yazici.YeniSayfa();
  for (const std::string_view satir : SayfaSatirlari(sayfa)) yazici.Lprint(satir, 0, SatirSonu::Var);
  yazici.SayfaBitti(SayfaDibi::At);
}

struct Toplayan final : HamCikis {
  std::string baytlar;

  Durum Ac(const std::string&, const std::string&, int) override { return Tamam(); }
  bool Yaz(std::string_view parca) override {
    baytlar += parca;
    return true;
  }
  Durum Kapat() override { return Tamam(); }
};

}  // namespace

std::vector<std::string_view> Parcala(std::string_view metin, char ayrac) {
  std::vector<std::string_view> parcalar;
  for (std::size_t son; (son = metin.find(ayrac)) != std::string_view::npos; metin.remove_prefix(son + 1))
    parcalar.push_back(metin.substr(0, son));
  parcalar.push_back(metin);
  return parcalar;
}

// The last line of a page ends like the others.
std::vector<std::string_view> SayfaSatirlari(std::string_view sayfa) {
  return Parcala(sayfa.substr(0, sayfa.size() - (sayfa.ends_with('\n') ? 1 : 0)), '\n');
}

std::size_t EnUzunSatir(std::string_view metin) {
  std::size_t harf = 0;
  for (const std::string_view satir : Parcala(metin, '\n')) harf = std::max(harf, HarfSayisi(satir));
  return harf;
}

MetinCizimi::MetinCizimi(std::string metin, int satirSayisi) : metin_(std::move(metin)) {
  if (!metin_.empty()) sayfalar_ = Parcala(metin_, '\f');
  const std::size_t harf = EnUzunSatir(metin_);
  const double harfMm = harf > NormalSatirHarfi ? SikisikHarfMm : NormalHarfMm;
  YaziBicimi yazi{.punto = MetinPunto, .aile = YaziAilesi::EsEnli};
  yazi.genislik = harfMm / MetinEni("0", yazi);
  std::ptrdiff_t satirlar = satirSayisi;
  for (const auto sayfa : sayfalar_) satirlar = std::max(satirlar, std::ranges::count(sayfa, '\n'));
  izgara_ = {.kagit = {std::max(EnDarKagitMm, double(harf) * harfMm + 2 * KenarMm), double(satirlar) * SatirMm},
             .bas = {KenarMm, (SatirBoyu(yazi) - SatirMm) / 2},  // letters of the first line begin at the edge
             .harfEni = harfMm,
             .satirBoyu = SatirMm,
             .yazi = yazi};
}

void MetinCizimi::SayfaCiz(int no, Tuval& tuval) const {
  YzcAyarlari ayar;
  prnx yazici(ayar, &tuval, nullptr);
  yazici.OpenPrinter(Cizilen, {}, {.izgara = izgara_});
  SayfaBas(yazici, sayfalar_[std::size_t(no - 1)]);
}

std::string MetinBaytlari(const std::string& metin) {
  if (metin.empty()) return {};
  YzcAyarlari ayar;
  Toplayan cikis;
  prnx yazici(ayar, nullptr, &cikis);
  const bool sikisik = EnUzunSatir(metin) > NormalSatirHarfi;
  yazici.OpenPrinter(Ham, {}, {.condensed = sikisik});
  for (const std::string_view sayfa : Parcala(metin, '\f')) SayfaBas(yazici, sayfa);
  if (sikisik) yazici.Lprint(DosSikisik.kapat, 0, SatirSonu::Yok);
  return yazici.ClosePrinter() ? std::move(cikis.baytlar) : std::string();
}

}  // namespace belvani
