#include "core/sunucuadresi.h"

#include <algorithm>
#include <array>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::array<std::string_view, 2> Onekler{"postgresql://", "postgres://"};

std::string_view Onek(std::string_view adres) {
  for (const std::string_view onek : Onekler)
    if (adres.starts_with(onek)) return onek;
  return {};
}

// The names of the connection's options, of which one must not be there: "a=1&b=2".
bool SifreSecenegi(std::string_view secenekler) {
  while (!secenekler.empty()) {
    const std::string_view secenek = secenekler.substr(0, secenekler.find('&'));
    secenekler.remove_prefix(std::min(secenekler.size(), secenek.size() + 1));
    const std::string_view ad = secenek.substr(0, secenek.find('='));
    if (ad == "password" || ad == "sslpassword") return true;
  }
  return false;
}

std::string_view Soyun(std::string_view yol) {
  while (yol.starts_with('/')) yol.remove_prefix(1);
  while (yol.ends_with('/')) yol.remove_suffix(1);
  return yol;
}

constexpr const char* SifreliAdres =
    "Adreste şifre bulunamaz: adres ekranda görünür ve ayarlarda saklanır. Şifre girişte sorulur ya da kullanıcının "
    "parola dosyasından (.pgpass) okunur";

SifreSorucu& Sorucu() {
  static SifreSorucu sorucu;
  return sorucu;
}

}  // namespace

std::string SunucuAdresi::Yer() const {
  return baglanti + "#" + (yol.empty() ? "" : yol + "/");
}

std::string SunucuAdresi::Ad() const {
  std::string_view ad = baglanti;
  ad.remove_prefix(Onek(ad).size());
  ad = ad.substr(0, ad.find('?'));
  if (const auto kullanici = ad.find('@'); kullanici != ad.npos) ad.remove_prefix(kullanici + 1);
  return std::string(ad.starts_with('/') ? ad.substr(1) : ad);
}

bool SunucuAdresiMi(std::string_view adres) {
  return !Onek(Kirp(adres)).empty();
}

Sonuc<SunucuAdresi> SunucuAdresiCoz(std::string_view adres) {
  const std::string_view metin = Kirp(adres);
  const std::string_view onek = Onek(metin);
  if (onek.empty()) return Kusur{"Sunucu adresi postgresql:// ile başlar: " + std::string(metin)};
  const std::size_t ayrac = std::min(metin.find('#'), metin.size());
  std::string_view baglanti = metin.substr(0, ayrac);
  const std::string_view secenekler = baglanti.substr(std::min(baglanti.find('?'), baglanti.size()));
  const std::string_view govde = baglanti.substr(onek.size(), baglanti.size() - onek.size() - secenekler.size());
  const std::string_view sunucu = govde.substr(0, govde.find('/'));
  if (const auto kullanici = sunucu.rfind('@');
      kullanici != sunucu.npos && sunucu.substr(0, kullanici).find(':') != sunucu.npos)
    return Kusur{SifreliAdres};
  if (!secenekler.empty() && SifreSecenegi(secenekler.substr(1))) return Kusur{SifreliAdres};
  const std::string_view veritabani = Soyun(govde.substr(sunucu.size()));
  if (veritabani.empty() || veritabani.find('/') != veritabani.npos)
    return Kusur{"Sunucu adresinde veritabanının adı olmalı: postgresql://sunucu/belvani"};
  // The separator that ends a path of a directory is no part of the options, nor of the database's name.
  while (baglanti.ends_with('/')) baglanti.remove_suffix(1);
  const std::string_view yol = ayrac == metin.size() ? std::string_view() : metin.substr(ayrac + 1);
  return SunucuAdresi{std::string(baglanti), std::string(Soyun(yol))};
}

void SifreSorucuKoy(SifreSorucu sorucu) {
  Sorucu() = std::move(sorucu);
}

std::optional<std::string> SifreSor(const std::string& sunucu, const std::string& kullanici) {
  return Sorucu() ? Sorucu()(sunucu, kullanici) : std::nullopt;
}

}  // namespace belvani
