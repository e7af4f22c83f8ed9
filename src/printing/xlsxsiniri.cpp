// What a workbook of a user's may hold at most: unpacked, a file of a few kilobytes can be larger than any memory, or
// nest so deep that going through it overflows the stack.
#include "core/derinlik.h"
#include "core/kaynak.h"
#include "printing/xlsxsablonic.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokParca = 2'000;
constexpr std::size_t EnBuyukXml = 16u << 20;
constexpr std::size_t EnCokToplam = 128u << 20;
constexpr std::size_t EnCokDugum = 2'000'000;

Kusur Buyuk(const std::string& ne) {
  return Kusur{"Çalışma kitabı çok büyük: " + ne};
}

bool XmlMi(const std::string& ad) {
  return ad.ends_with(".xml") || ad.ends_with(".rels");
}

}  // namespace

Durum KitapSinirlari(const ZipDosyasi& zip) {
  if (zip.Adlar().size() > EnCokParca) return Buyuk("en çok " + std::to_string(EnCokParca) + " parçası olabilir");
  std::size_t toplam = 0;
  for (const std::string& ad : zip.Adlar()) {
    const std::size_t enCok = XmlMi(ad) ? EnBuyukXml : EnCokToplam;
    const auto boy = zip.Boyu(ad, enCok);
    if (!boy) continue;  // a broken part is told by whoever needs it
    toplam += *boy;
    if (*boy > enCok || toplam > EnCokToplam)
      return Buyuk(ad + " açılınca " + BoyMetni(*boy > enCok ? enCok : EnCokToplam) + " sınırını aşıyor");
    if (!XmlMi(ad)) continue;
    const XmlOlcusu olcu = XmlOlc(zip.Oku(ad).value_or(""));
    if (olcu.derinlik > EnCokDerinlik) return Buyuk(ad + " içinde ögeler çok derin");
    if (olcu.dugum > EnCokDugum) return Buyuk(ad + " içinde çok fazla öge var");
  }
  return Tamam();
}

}  // namespace belvani
