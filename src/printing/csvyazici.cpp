#include "printing/csvyazici.h"

#include <string_view>

#include "core/csv.h"
#include "core/sayi.h"

namespace belvani {
namespace {

std::string Tirnakla(std::string_view alan) {
  if (alan.find_first_of(",;\"") == std::string_view::npos) return std::string(alan);
  std::string sonuc = "\"";
  for (const char c : alan) {
    if (c == '"') sonuc += '"';
    sonuc += c;
  }
  return sonuc + '"';
}

std::string MetinAlani(const std::string& metin) {
  return Tirnakla(CsvKorumali(metin));
}

std::string Alan(const Hucre& hucre) {
  if (const auto* metin = std::get_if<std::string>(&hucre)) return MetinAlani(*metin);
  if (const auto* tam = std::get_if<std::int64_t>(&hucre)) return std::to_string(*tam);
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) return OndalikMetin(*tutar);
  if (const auto* tarih = std::get_if<Tarih>(&hucre)) return tarih->Metin();
  return {};
}

template <class Dizi, class AlanYap>
void SatirEkle(std::string& csv, const Dizi& dizi, AlanYap alanYap) {
  std::string_view ayrac;
  for (const auto& oge : dizi) {
    csv += ayrac;
    csv += alanYap(oge);
    ayrac = ",";
  }
  csv += "\r\n";
}

}  // namespace

std::string CsvBasligi(const Rapor& rapor) {
  std::string csv;
  SatirEkle(csv, rapor.Kolonlar(), [](const RaporKolonu& kolon) { return MetinAlani(kolon.kisaBaslik); });
  return csv;
}

void CsvSatirlariniVer(const Rapor& rapor, const MetinAlici& al) {
  std::string csv;
  for (const auto& satir : rapor.Satirlar()) {
    csv.clear();
    SatirEkle(csv, satir.hucreler, Alan);
    al(csv);
  }
}

std::string CsvRaporu(const Rapor& rapor) {
  return CsvBasligi(rapor) + MetinTopla([&](const MetinAlici& al) { CsvSatirlariniVer(rapor, al); });
}

}  // namespace belvani
