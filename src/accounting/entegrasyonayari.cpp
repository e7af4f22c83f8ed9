#include "accounting/entegrasyonayari.h"

#include "core/ini.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view IsletmeBolumu = "entegrasyon";
constexpr std::pair<const char*, std::string IsletmeAyari::*> IsletmeAnahtarlari[] = {
    {"islfirma", &IsletmeAyari::islfirma},
    {"ucretgrup", &IsletmeAyari::ucretgrup},
    {"sskgrup", &IsletmeAyari::sskgrup}};

constexpr std::size_t EnUzunDeger = 254;  // letters that a read gives back

IniDosyasi Dosya(const Oturum& o) {
  return {o.FirmaDizini, "genel.dat"};
}

Durum Yaz(const Oturum& o, std::string_view bolum, const char* anahtar, const std::string& deger) {
  if (HarfSayisi(deger) > EnUzunDeger) return Kusur{"Dizin adı çok uzun: " + deger};
  if (IniOku(bolum, anahtar, "", Dosya(o)) == deger) return Tamam();
  return IniYaz(bolum, anahtar, deger, Dosya(o));
}

}  // namespace

std::string MuhasebeSirketi(const Oturum& o) {
  return IniOku("firma", "entegrasyon", "", Dosya(o));
}

Durum MuhasebeSirketiYaz(const Oturum& o, const std::string& dizin) {
  return Yaz(o, "firma", "entegrasyon", dizin);
}

IsletmeAyari IsletmeAyariOku(const Oturum& o) {
  IsletmeAyari ayar;
  for (const auto& [anahtar, uye] : IsletmeAnahtarlari) ayar.*uye = IniOku(IsletmeBolumu, anahtar, "", Dosya(o));
  return ayar;
}

Durum IsletmeAyariYaz(const Oturum& o, const IsletmeAyari& ayar) {
  for (const auto& [anahtar, uye] : IsletmeAnahtarlari)
    if (Durum d = Yaz(o, IsletmeBolumu, anahtar, ayar.*uye); !d) return d;
  return Tamam();
}

std::string KardesDizini(const Oturum& o, const std::string& kayitli) {
  return kayitli.empty() || kayitli.starts_with('/') ? kayitli : o.FirmaDizini + kayitli;
}

}  // namespace belvani
