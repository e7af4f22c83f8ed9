#include "core/session/paylasim.h"

#include "core/ini.h"
#include "core/session/sirket.h"
#include "core/session/tekbasina.h"
#include "core/store/depokopyasi.h"
#include "core/store/dosyasistemi.h"
#include "core/store/koru.h"

namespace belvani {
namespace {

constexpr const char* AyarDosyasi = "paylasim.ini";
constexpr const char* Bolum = "Veri";
constexpr const char* Anahtar = "Yer";
constexpr const char* Paylasilan = "paylasilan";
constexpr const char* BuBilgisayar = "bubilgisayar";

}  // namespace

DepoYeri YeniDepoYeri(const VeriYolu& veri) {
  if (PaylasilanDiskte(veri.Adres())) return DepoYeri::Paylasilan;
  const std::string ayar = IniOku(Bolum, Anahtar, BuBilgisayar, {veri, AyarDosyasi});
  return ayar == Paylasilan ? DepoYeri::Paylasilan : DepoYeri::BuBilgisayar;
}

Durum YeniDepoYeriYaz(const VeriYolu& veri, DepoYeri yer) {
  return IniYaz(Bolum, Anahtar, yer == DepoYeri::Paylasilan ? Paylasilan : BuBilgisayar, {veri, AyarDosyasi});
}

Durum DepoYeriDegistir(const VeriYolu& veri, std::string_view ad, DepoYeri yer) {
  const VeriYolu sirket = veri.Alt(ad);
  const std::string yol = DepoAdresi(sirket);
  if (yer == DepoYeri::BuBilgisayar && PaylasilanDiskte(sirket.Adres()))
    return Kusur{"Paylaşılan diskteki şirket yalnız bu bilgisayar için kurulamaz:\n" + yol};
  if (!DepoYazilir(yol)) return Kusur{"Şirketin dosyaları yazılamıyor, değiştirilmedi:\n" + yol};
  const auto motor = TekBasinaAc(sirket, "değiştirilmedi");
  if (!motor) return motor.Kusuru();
  if (*motor == nullptr) return Kusur{"Veritabanı açılamadı:\n" + yol};
  return Koru([&] { (*motor)->YerKoy(yer); }, yol + "\n");
}

}  // namespace belvani
