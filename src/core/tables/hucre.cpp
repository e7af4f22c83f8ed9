#include "core/tables/hucre.h"

#include "core/sayi.h"

namespace belvani {
namespace {

enum class Icerik { Tam, Ondalikli, Baska };

Icerik AlanIcerigi(AlanTipi tip) {
  switch (tip) {
    case AlanTipi::Byte:
    case AlanTipi::Kisa:
    case AlanTipi::Uzun:
    case AlanTipi::Mantik:
      return Icerik::Tam;
    case AlanTipi::Tutar:
    case AlanTipi::Tek:
      return Icerik::Ondalikli;
    case AlanTipi::Metin:
    case AlanTipi::Tarih:
    case AlanTipi::Ikili:
      return Icerik::Baska;
  }
  return Icerik::Baska;
}

}  // namespace

// What is no number in any notation is told in the column's own words where those name its range.
Deger HucredenDeger(const AlanTanimi& alan, std::string_view metin, OndalikImi im, std::string& kusur) {
  const Icerik icerik = AlanIcerigi(alan.tip);
  if (icerik == Icerik::Baska) return MetindenDeger(alan, metin, kusur);
  kusur.clear();
  const std::string duz = SayiyiDuzelt(metin, im, kusur);
  if (kusur.empty()) return MetindenDeger(alan, duz, kusur);
  return icerik == Icerik::Tam && !SayiOku(metin) ? MetindenDeger(alan, metin, kusur) : Deger(Null{});
}

}  // namespace belvani
