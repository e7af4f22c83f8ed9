#include "documents/tariharaligi.h"

namespace belvani {
namespace {

constexpr auto BaslangicGunu = Uye("bas", &TarihAraligi::bas);
constexpr auto BitisGunu = Uye("bit", &TarihAraligi::bit);

}  // namespace

void TarihAraligi::AyKoy(int yil, int ay) {
  bas = Tarih(yil, ay, 1);
  bit = Tarih(yil, ay, AyinGunSayisi(yil, ay));
}

BelgeZamani TarihAraligi::Zaman() const {
  return {bit.Yil(), bit.Ay(), bas.Metin() + "-" + bit.Metin()};
}

std::optional<Kusur> TarihAraligi::Kusuru() const {
  if (bas.Bos()) return KuralKusuru("Başlangıç Tarihi Hatalı", BaslangicGunu);
  if (bit.Bos()) return KuralKusuru("Bitiş Tarihi Hatalı", BitisGunu);
  return std::nullopt;
}

AlanGrubu TarihAraligiAlanlari(const char* basEtiketi, const char* bitEtiketi) {
  return {"Dönem",
          {{BaslangicGunu, basEtiketi, {.komut = "--bas", .komutYardimi = "ilk gün, gg.aa.yyyy"}},
           {BitisGunu, bitEtiketi, {.komut = "--bit", .komutYardimi = "son gün, gg.aa.yyyy"}}},
          2};
}

}  // namespace belvani
