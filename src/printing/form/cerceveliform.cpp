#include "printing/form/cerceveliform.h"

#include <cassert>

#include "core/turkce.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

std::string Noktalar(std::string_view ad, int en) {
  const int nokta = en - 2 - int(HarfSayisi(ad));
  assert(nokta >= 0);
  return Yinele(".", nokta);
}

}  // namespace

std::string Yer(std::string_view ad, int en) {
  return "«" + std::string(ad) + Noktalar(ad, en) + "»";
}

std::string SagYer(std::string_view ad, int en) {
  return "«" + Noktalar(ad, en) + std::string(ad) + "»";
}

void CerceveliForm::Satir(std::string_view metin) {
  Ekle("│" + SagBosluk(metin, ic_) + "│");
}

void CerceveliForm::Satirlar(const std::vector<std::string>& metinler) {
  for (const std::string& metin : metinler) Satir(metin);
}

void CerceveliForm::Ortala(std::string_view metin) {
  Satir(OrtalaMetin(metin, ic_));
}

void CerceveliForm::Kenar() {
  Cizgi({ic_}, "┌", "", "┐");
}

void CerceveliForm::Ara() {
  Cizgi({ic_}, "├", "", "┤");
}

void CerceveliForm::Son() {
  Cizgi({ic_}, "└", "", "┘");
}

void CerceveliForm::TabloSatiri(const Enler& enler, const std::vector<std::string>& hucreler) {
  std::string satir;
  for (std::size_t i = 0; i < enler.size(); ++i) satir += (i == 0 ? "" : "│") + SagBosluk(hucreler[i], enler[i]);
  Satir(satir);
}

void CerceveliForm::Cizgi(const Enler& enler, std::string_view sol, std::string_view orta, std::string_view sag) {
  std::string cizgi(sol);
  for (std::size_t i = 0; i < enler.size(); ++i) {
    if (i > 0) cizgi += orta;
    cizgi += Yinele("─", enler[i]);
  }
  cizgi += sag;
  Ekle(cizgi);
}

void CerceveliForm::Ekle(const std::string& satir) {
  if (!sablon_.empty()) sablon_ += '\n';
  sablon_ += satir;
}

}  // namespace belvani
