#include "documents/sikisatirlar.h"

#include <bit>
#include <concepts>
#include <cstdint>

namespace belvani {
namespace {

// Seven bits a byte, small numbers of either sign first: most columns of a record are zero and take one byte.
void TamKoy(std::string& b, std::int64_t sayi) {
  auto n = (std::uint64_t(sayi) << 1) ^ std::uint64_t(sayi >> 63);
  for (; n >= 0x80; n >>= 7) b += char(n | 0x80);
  b += char(n);
}

std::int64_t TamAl(std::string_view& b) {
  std::uint64_t n = 0;
  for (int kayma = 0;; kayma += 7) {
    const auto bayt = std::uint8_t(b.front());
    b.remove_prefix(1);
    n |= std::uint64_t(bayt & 0x7f) << kayma;
    if (bayt < 0x80) return std::int64_t(n >> 1) ^ -std::int64_t(n & 1);
  }
}

template <std::integral T>
void Koy(std::string& b, T sayi) {
  TamKoy(b, sayi);
}
void Koy(std::string& b, Tutar tutar) {
  TamKoy(b, tutar.Ham());
}
void Koy(std::string& b, Tarih gun) {
  TamKoy(b, gun.Bos() ? 0 : gun.SeriNo() + std::int64_t(gun.SeriNo() >= 0));  // 0 is none, and no day's number
}
void Koy(std::string& b, Tek sayi) {
  TamKoy(b, std::int64_t(std::bit_cast<std::uint32_t>(sayi.Kayan())));
}
void Koy(std::string& b, const std::string& metin) {
  TamKoy(b, std::int64_t(metin.size()));
  b += metin;
}

template <std::integral T>
void Al(std::string_view& b, T& sayi) {
  sayi = T(TamAl(b));
}
void Al(std::string_view& b, Tutar& tutar) {
  tutar = Tutar::Hamdan(TamAl(b));
}
void Al(std::string_view& b, Tarih& gun) {
  const std::int64_t seri = TamAl(b);
  gun = seri == 0 ? Tarih() : Tarih::SeriNodan(double(seri - std::int64_t(seri > 0)));
}
void Al(std::string_view& b, Tek& sayi) {
  sayi = Tek(std::bit_cast<float>(std::uint32_t(TamAl(b))));
}
void Al(std::string_view& b, std::string& metin) {
  const auto boy = std::size_t(TamAl(b));
  metin = b.substr(0, boy);
  b.remove_prefix(boy);
}

template <class Kayit>
void KayitKoy(std::string& b, const Kayit& kayit) {
  Kayit::HerKolon([&](const auto& kolon) { Koy(b, kayit.*kolon.uye); });
}
template <class Kayit>
void KayitAl(std::string_view& b, Kayit& kayit) {
  Kayit::HerKolon([&](const auto& kolon) { Al(b, kayit.*kolon.uye); });
}

}  // namespace

void SikiSatirlar::Ekle(const BordroSatiri& satir) {
  yerler_.push_back(baytlar_.size());
  KayitKoy(baytlar_, satir.brd);
  KayitKoy(baytlar_, satir.sicil);
  Koy(baytlar_, satir.tcno);
}

BordroSatiri SikiSatirlar::operator[](std::size_t sira) const {
  std::string_view b = std::string_view(baytlar_).substr(yerler_[sira]);
  BordroSatiri satir;
  KayitAl(b, satir.brd);
  KayitAl(b, satir.sicil);
  Al(b, satir.tcno);
  return satir;
}

}  // namespace belvani
