#include "declarations/ebildirgeadresi.h"

#include "core/ini.h"

namespace belvani {
namespace {

constexpr const char* Dosya = "belvani.ini";
constexpr std::string_view Bolum = "Internet";
constexpr std::string_view Anahtar = "EBildirge";
constexpr const char* VarsayilanAdres = "https://ebildirge.sgk.gov.tr/";

bool WebAdresiMi(std::string_view adres) {
  return (adres.starts_with("https://") || adres.starts_with("http://")) && !adres.ends_with("//") &&
         adres.find_first_of(" \t\r\n\"") == std::string_view::npos;
}

}  // namespace

std::string EBildirgeAdresi(const VeriYolu& veri) {
  const std::string adres = IniOku(Bolum, Anahtar, VarsayilanAdres, {veri, Dosya});
  return WebAdresiMi(adres) ? adres : VarsayilanAdres;
}

Durum EBildirgeAdresiYaz(const VeriYolu& veri, const std::string& adres) {
  if (adres.substr(0, adres.find('/', adres.find("//") + 2)).find('@') != std::string::npos)
    return Kusur{"Adreste kullanıcı adı ve şifre olamaz, bu ayarı şirketlerin bütün kullanıcıları okur"};
  if (!WebAdresiMi(adres)) return Kusur{"Adres http:// veya https:// ile başlamalıdır"};
  return IniYaz(Bolum, Anahtar, adres, {veri, Dosya});
}

}  // namespace belvani
