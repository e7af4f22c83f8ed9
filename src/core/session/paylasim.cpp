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

// A server's stores are open to all computers in one way.
Durum DuzenVar(const VeriYolu& veri) {
  if (!veri.Sunucuda()) return Tamam();
  return Kusur{"Sunucudaki şirketler bütün bilgisayarlara açıktır, paylaşılması gerekmez:\n" + veri.Adres()};
}

}  // namespace

DepoYeri YeniDepoYeri(const VeriYolu& veri) {
  if (veri.Sunucuda()) return DepoYeri::Paylasilan;
  if (PaylasilanDiskte(veri.Adres())) return DepoYeri::Paylasilan;
  const std::string ayar = IniOku(Bolum, Anahtar, BuBilgisayar, {veri, AyarDosyasi});
  return ayar == Paylasilan ? DepoYeri::Paylasilan : DepoYeri::BuBilgisayar;
}

Durum YeniDepoYeriYaz(const VeriYolu& veri, DepoYeri yer) {
  if (Durum var = DuzenVar(veri); !var) return var;
  return IniYaz(Bolum, Anahtar, yer == DepoYeri::Paylasilan ? Paylasilan : BuBilgisayar, {veri, AyarDosyasi});
}

Durum DepoYeriDegistir(const VeriYolu& veri, std::string_view ad, DepoYeri yer) {
  if (Durum var = DuzenVar(veri); !var) return var;
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
