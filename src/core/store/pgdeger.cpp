#include "core/store/pgdeger.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr const char* Sigmaz = "Kayıt veritabanının kurallarına uymuyor";

template <class T>
T BuyukUctan(std::string_view ham) {
  T sonuc = 0;
  for (const char c : ham) sonuc = T(sonuc << 8 | static_cast<unsigned char>(c));
  return sonuc;
}

template <class T>
void BuyukUca(std::string& hedef, T deger) {
  for (int kay = int(sizeof(T)) * 8 - 8; kay >= 0; kay -= 8) hedef += char(static_cast<unsigned char>(deger >> kay));
}

// A decimal: how many digits to the base of 10,000, the weight of the first, sign, digits behind the point to be shown,
// the digits.
struct Ondalik {
  int weight = 0;
  bool eksi = false;
  std::string_view basamaklar;  // two bytes each

  explicit Ondalik(std::string_view ham) {
    constexpr std::size_t bas = 8;
    if (ham.size() < bas) return;
    weight = std::int16_t(BuyukUctan<std::uint16_t>(ham.substr(2, 2)));
    eksi = BuyukUctan<std::uint16_t>(ham.substr(4, 2)) == 0x4000;
    basamaklar = ham.substr(bas);
  }
  int Basamak(int i) const {
    return std::size_t(i) * 2 + 1 < basamaklar.size()
               ? BuyukUctan<std::uint16_t>(basamaklar.substr(std::size_t(i) * 2, 2))
               : 0;
  }
  // Zeros at the end are not kept, so a fraction shows in the number of the digits.
  bool Kesirli() const { return int(basamaklar.size() / 2) > weight + 1; }
  double Sayi() const {
    double sonuc = 0;
    for (int i = 0; i < int(basamaklar.size() / 2); ++i) sonuc += Basamak(i) * std::pow(10000.0, weight - i);
    return eksi ? -sonuc : sonuc;
  }
  std::int64_t Tam() const {
    std::uint64_t sonuc = 0;
    for (int i = 0; i <= weight; ++i) sonuc = sonuc * 10000 + std::uint64_t(Basamak(i));
    return eksi ? std::int64_t(~sonuc + 1) : std::int64_t(sonuc);
  }
};

double Kayan(unsigned tip, std::string_view ham) {
  return PgTip(tip) == PgTip::Kayan4 ? double(std::bit_cast<float>(BuyukUctan<std::uint32_t>(ham)))
                                     : std::bit_cast<double>(BuyukUctan<std::uint64_t>(ham));
}

}  // namespace

Komut::Tur PgTuru(unsigned tip, std::string_view ham) {
  switch (PgTip(tip)) {
    case PgTip::Mantik:
    case PgTip::Tam2:
    case PgTip::Tam4:
    case PgTip::Tam8:
    case PgTip::No:
      return Komut::Tur::Tam;
    case PgTip::Kayan4:
    case PgTip::Kayan8:
      return Komut::Tur::Sayi;
    case PgTip::Ondalik:
      return Ondalik(ham).Kesirli() ? Komut::Tur::Sayi : Komut::Tur::Tam;
    case PgTip::Bayt:
      return Komut::Tur::Bayt;
    case PgTip::Metin:
      break;
  }
  return Komut::Tur::Metin;
}

std::int64_t PgTam(unsigned tip, std::string_view ham) {
  switch (PgTip(tip)) {
    case PgTip::Mantik:
      return ham == std::string_view("\1", 1) ? 1 : 0;
    case PgTip::Tam2:
      return std::int16_t(BuyukUctan<std::uint16_t>(ham));
    case PgTip::Tam4:
      return std::int32_t(BuyukUctan<std::uint32_t>(ham));
    case PgTip::No:
      return BuyukUctan<std::uint32_t>(ham);
    case PgTip::Tam8:
      return std::int64_t(BuyukUctan<std::uint64_t>(ham));
    case PgTip::Ondalik:
      return Ondalik(ham).Tam();
    case PgTip::Kayan4:
    case PgTip::Kayan8: {
      const double sayi = Kayan(tip, ham);
      return std::fabs(sayi) < 9e18 ? std::int64_t(sayi) : 0;
    }
    case PgTip::Bayt:
    case PgTip::Metin:
      break;
  }
  std::int64_t sayi = 0;
  std::from_chars(ham.data(), ham.data() + ham.size(), sayi);
  return sayi;
}

double PgSayi(unsigned tip, std::string_view ham) {
  if (PgTip(tip) == PgTip::Kayan4 || PgTip(tip) == PgTip::Kayan8) return Kayan(tip, ham);
  if (PgTip(tip) == PgTip::Ondalik) return Ondalik(ham).Sayi();
  return double(PgTam(tip, ham));
}

std::string PgKopyaSatiri::Bas() {
  return std::string("PGCOPY\n\377\r\n\0", 11) + std::string(8, '\0');
}
std::string PgKopyaSatiri::Son() {
  return "\377\377";
}

void PgKopyaSatiri::Basla(int alanSayisi) {
  BuyukUca(hedef_, std::uint16_t(alanSayisi));
}

void PgKopyaSatiri::Null() {
  BuyukUca(hedef_, std::uint32_t(-1));
}

void PgKopyaSatiri::Tam(unsigned tip, std::int64_t deger) {
  const auto yaz = [&]<class T>(T) {
    if (!std::in_range<T>(deger)) throw MotorHatasi(MotorKusuru::Kisit, Sigmaz);
    BuyukUca(hedef_, std::uint32_t(sizeof(T)));
    BuyukUca(hedef_, std::make_unsigned_t<T>(deger));
  };
  switch (PgTip(tip)) {
    case PgTip::Tam2:
      return yaz(std::int16_t());
    case PgTip::Tam4:
      return yaz(std::int32_t());
    case PgTip::Tam8:
      return yaz(std::int64_t());
    case PgTip::Kayan4:
    case PgTip::Kayan8:
      return Sayi(tip, double(deger));
    case PgTip::Mantik:
    case PgTip::Bayt:
    case PgTip::No:
    case PgTip::Metin:
    case PgTip::Ondalik:
      break;
  }
  Metin(std::to_string(deger));
}

void PgKopyaSatiri::Sayi(unsigned tip, double deger) {
  if (PgTip(tip) == PgTip::Tam2 || PgTip(tip) == PgTip::Tam4 || PgTip(tip) == PgTip::Tam8) {
    if (!(std::fabs(deger) < 9e18)) throw MotorHatasi(MotorKusuru::Kisit, Sigmaz);
    return Tam(tip, std::llrint(deger));
  }
  if (PgTip(tip) == PgTip::Metin) return Metin(PgSayiMetni(deger));
  BuyukUca(hedef_, std::uint32_t(sizeof deger));
  BuyukUca(hedef_, std::bit_cast<std::uint64_t>(deger));
}

void PgKopyaSatiri::Metin(std::string_view deger) {
  BuyukUca(hedef_, std::uint32_t(deger.size()));
  hedef_ += deger;
}

std::string_view PgMetni(std::string_view metin) {
  if (metin.find('\0') != metin.npos || !GecerliUtf8(metin))
    throw MotorHatasi(MotorKusuru::Kisit, "Metinde okunamayan bir harf var, kayıt yazılamadı");
  return metin;
}

std::string PgSayiMetni(double sayi) {
  std::array<char, 32> metin{};
  const auto [son, hata] = std::to_chars(metin.data(), metin.data() + metin.size(), sayi);
  return {metin.data(), son};
}

}  // namespace belvani
