#include "core/session/muhasebecibilgi.h"

#include "core/ini.h"

namespace belvani {
namespace {

constexpr std::string_view Bolum = "Muhasebe";
constexpr std::pair<const char*, std::string Muhasebeci::*> Anahtarlar[] = {
    {"adsoyad", &Muhasebeci::adsoyad}, {"tcno", &Muhasebeci::tcno}, {"sicil", &Muhasebeci::sicil}};

IniDosyasi Dosya(const VeriYolu& sirket) {
  return {sirket, SirketAyarDosyasi};
}

}  // namespace

Muhasebeci MuhasebeciOku(const VeriYolu& sirket) {
  Muhasebeci m;
  for (const auto& [anahtar, uye] : Anahtarlar) m.*uye = IniOku(Bolum, anahtar, "", Dosya(sirket));
  return m;
}

Muhasebeci MuhasebeciOku(const Oturum& o) {
  return MuhasebeciOku(o.FirmaDizini);
}

Durum MuhasebeciKaydet(const Oturum& o, const Muhasebeci& m) {
  for (const auto& [anahtar, uye] : Anahtarlar)
    if (Durum d = IniYaz(Bolum, anahtar, m.*uye, Dosya(o.FirmaDizini)); !d) return d;
  return Tamam();
}

}  // namespace belvani
