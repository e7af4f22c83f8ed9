#include "printing/raporsatirlari.h"

#include <limits>

namespace belvani {
namespace {

// The kinds of a cell as they are kept.
enum Tur : std::uint8_t { BosHucre, MetinHucresi, TamHucre, TutarHucre, TarihHucresi };
constexpr std::int64_t BosGun = std::numeric_limits<std::int64_t>::min();
static_assert(std::variant_size_v<Hucre> == TarihHucresi + 1);

}  // namespace

void RaporSatirlari::Ekle(const RaporSatiri& satir) {
  if (size() % BlokBoyu == 0) bloklar_.emplace_back();
  Blok& blok = bloklar_.back();
  for (std::size_t k = 0; k < kolonSayisi_; ++k) {
    const Hucre& hucre = satir.hucreler[k];
    blok.turler.push_back(std::uint8_t(hucre.index()));
    std::int64_t deger = 0;
    if (const auto* metin = std::get_if<std::string>(&hucre)) {
      deger = std::int64_t(blok.metinler.size());
      (blok.metinler += *metin) += '\0';
    } else if (const auto* tam = std::get_if<std::int64_t>(&hucre)) {
      deger = *tam;
    } else if (const auto* tutar = std::get_if<Tutar>(&hucre)) {
      deger = tutar->Ham();
    } else if (const auto* tarih = std::get_if<Tarih>(&hucre)) {
      deger = tarih->Bos() ? BosGun : tarih->SeriNo();
    }
    blok.degerler.push_back(deger);
  }
  yeniSayfa_.push_back(satir.yeniSayfa);
  if (size() % BlokBoyu == 0) blok.metinler.shrink_to_fit();
}

Hucre RaporSatirlari::Hucresi(std::size_t sira, std::size_t kolon) const {
  const Blok& blok = bloklar_[sira / BlokBoyu];
  const std::size_t yer = sira % BlokBoyu * kolonSayisi_ + kolon;
  const std::int64_t deger = blok.degerler[yer];
  switch (Tur(blok.turler[yer])) {
    case BosHucre:
      return Null{};
    case MetinHucresi:
      return std::string(blok.metinler.c_str() + deger);
    case TamHucre:
      return deger;
    case TutarHucre:
      return Tutar::Hamdan(deger);
    case TarihHucresi:
      return deger == BosGun ? Tarih() : Tarih::SeriNodan(double(deger));
  }
  return Null{};
}

RaporSatiri RaporSatirlari::operator[](std::size_t sira) const {
  RaporSatiri satir{.hucreler = {}, .yeniSayfa = yeniSayfa_[sira]};
  satir.hucreler.reserve(kolonSayisi_);
  for (std::size_t k = 0; k < kolonSayisi_; ++k) satir.hucreler.push_back(Hucresi(sira, k));
  return satir;
}

}  // namespace belvani
