#include "isyeri/numaradenetimi.h"

#include "core/turkce.h"

namespace belvani {

std::vector<std::string> NumaraEksikleri(const Firma& firma) {
  const struct {
    const char* ad;
    const std::string& deger;
    std::size_t hane;
    bool tamamlanir = false;  // with zeros in front
  } bolumler[] = {{"Sektör", firma.sektor, 1}, {"Meslek", firma.meslek, 4}, {"Şube", firma.sube, 4},
                  {"Dosya", firma.dosya, 7},   {"İl", firma.il, 3, true},   {"İlçe", firma.ilce, 2}};
  std::vector<std::string> eksikler;
  for (const auto& b : bolumler) {
    const std::size_t yazili = HarfSayisi(Kirp(b.deger));
    if (yazili == b.hane || (b.tamamlanir && yazili > 0 && yazili < b.hane)) continue;
    eksikler.push_back(std::string(b.ad) + ": " + std::to_string(b.hane) + " hane olmalı, " +
                       (yazili == 0 ? "boş" : std::to_string(yazili) + " hane yazılı"));
  }
  return eksikler;
}

std::string NumaraKusuru(const Firma& firma) {
  std::string kusur;
  for (const std::string& eksik : NumaraEksikleri(firma)) kusur += "\n" + eksik;
  return kusur.empty() ? kusur : "İşyeri Sicil Bilgisi 21 Karakter Olmalıdır" + kusur;
}

bool NumaraYazilmis(const Firma& firma) {
  const std::string hepsi = firma.sektor + firma.meslek + firma.sube + firma.dosya + firma.il + firma.ilce;
  return !Kirp(hepsi).empty();
}

}  // namespace belvani
