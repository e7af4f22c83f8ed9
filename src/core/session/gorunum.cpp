#include "core/session/gorunum.h"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/ini.h"
#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::string_view Bolum = "gorunum";
constexpr std::string_view YaziBolumu = "quick";
constexpr std::string_view SirketDosyalari[] = {"tolu", "kazanc", "yardim", "fmesai", "sablon", "genel"};
constexpr int EnKucukYazi = 4, EnBuyukYazi = 96;
constexpr std::uint32_t EnBuyukRenk = 0xFFFFFF;

int YaziBoyu(std::string_view metin, int varsayilan) {
  const int boy = BastakiSayi(metin);
  return boy < EnKucukYazi || boy > EnBuyukYazi ? varsayilan : boy;
}

std::string YazilirRenk(const std::string& metin, const std::string& varsayilan) {
  return RenkOku(metin) ? metin : varsayilan;
}

// A path below PrgPath with separators of ours, or the default.
std::string AltYol(std::string yol, const std::string& varsayilan) {
  std::replace(yol.begin(), yol.end(), '\\', '/');
  while (yol.starts_with('/')) yol.erase(0, 1);
  if (yol.empty() || ("/" + yol + "/").find("/../") != std::string::npos) return varsayilan;
  return DizinSonu(yol);
}

constexpr const char* Evet(bool deger) {
  return deger ? "1" : "0";
}

YaziTipi YaziOku(const std::string& on, const YaziTipi& varsayilan) {
  const auto oku = [&](const char* son, std::string_view yoksa) { return KullaniciAyari(on + son, yoksa, YaziBolumu); };
  YaziTipi y = varsayilan;
  y.ad = oku("fontname", varsayilan.ad);
  y.boyut = YaziBoyu(oku("fontsize", ""), varsayilan.boyut);
  const std::string kalin = oku("fontbold", "");
  if (!kalin.empty()) y.kalinlik = AdEsit(kalin, "Bold") ? Kalinlik::Kalin : Kalinlik::Normal;
  return y;
}

Durum YaziYaz(const std::string& on, const YaziTipi& y) {
  for (const auto& [son, deger] : {std::pair("fontname", y.ad), std::pair("fontsize", std::to_string(y.boyut)),
                                   std::pair("fontbold", std::string(y.kalinlik == Kalinlik::Kalin ? "Bold" : "Norm"))})
    if (auto d = KullaniciAyariYaz(on + son, deger, YaziBolumu); !d) return d;
  return Tamam();
}

}  // namespace

IniDosyasi IstasyonDosyasi(const Oturum& o) {
  std::string ad = o.BilgisayarAdi;
  std::replace(ad.begin(), ad.end(), '/', '-');
  const auto ayni = [&](std::string_view dosya) { return AdEsit(dosya, ad); };
  const bool karisir =
      ad.empty() || ad.front() == '.' || std::any_of(std::begin(SirketDosyalari), std::end(SirketDosyalari), ayni);
  return {o.FirmaDizini, (karisir ? "bilgisayar-" : "") + ad + ".dat"};
}

GorunumAyari GorunumOku(const Oturum& o) {
  const IniDosyasi dosya = IstasyonDosyasi(o);
  const auto oku = [&](const char* anahtar, std::string_view yoksa) { return IniOku(Bolum, anahtar, yoksa, dosya); };
  const GorunumAyari ilk;
  GorunumAyari a;
  a.backcolor = YazilirRenk(oku("backcolor", ""), ilk.backcolor);
  a.backresimvarmi = oku("backresimvarmi", Evet(ilk.backresimvarmi)) == "1";
  a.backresim = oku("backresim", o.PrgPath + "image/Quick.jpg");
  a.formbackcolor = YazilirRenk(oku("formbackcolor", ""), ilk.formbackcolor);
  a.imagepath = AltYol(oku("imagepath", ""), ilk.imagepath);
  a.imagekullan = oku("imagekullan", Evet(ilk.imagekullan)) == "1";
  a.yazilansor = oku("yazilansor", Evet(ilk.yazilansor)) == "1";
  a.labelback = YazilirRenk(oku("labelback", ""), ilk.labelback);
  a.labelfore = YazilirRenk(oku("labelfore", ""), ilk.labelfore);
  a.labelfont = oku("labelfont", ilk.labelfont);
  a.labelfontsize = YaziBoyu(oku("labelfontsize", ""), ilk.labelfontsize);
  return a;
}

Durum GorunumYaz(const Oturum& o, const GorunumAyari& a) {
  const std::pair<const char*, std::string> degerler[] = {
      {"backcolor", a.backcolor},
      {"backresimvarmi", Evet(a.backresimvarmi)},
      {"backresim", a.backresim},
      {"formbackcolor", a.formbackcolor},
      {"imagepath", a.imagepath},
      {"imagekullan", Evet(a.imagekullan)},
      {"yazilansor", Evet(a.yazilansor)},
      {"labelback", a.labelback},
      {"labelfore", a.labelfore},
      {"labelfont", a.labelfont},
      {"labelfontsize", std::to_string(a.labelfontsize)},
  };
  for (const auto& [anahtar, deger] : degerler)
    if (auto d = IniYaz(Bolum, anahtar, deger, IstasyonDosyasi(o)); !d) return d;
  return Tamam();
}

std::vector<std::string> ResimSetleri(const Oturum& o) {
  std::vector<std::string> setler{"image/soft/", "image/renkli/"};
  std::vector<std::string> bulunan;
  std::error_code hata;
  for (const auto& yer : std::filesystem::directory_iterator(o.PrgPath + "image", hata))
    if (const std::string ad = yer.path().filename(); yer.is_directory(hata) && !ad.starts_with('.'))
      bulunan.push_back("image/" + ad + "/");
  std::ranges::sort(bulunan);
  for (const std::string& set : bulunan)
    if (std::ranges::find(setler, set) == setler.end()) setler.push_back(set);
  return setler;
}

void GorunumUygula(Oturum& o, const GorunumAyari& ayar) {
  o.ResimYolu = AltYol(ayar.imagepath, GorunumAyari().imagepath);
  o.ResimKullan = ayar.imagekullan;
  o.YazilanSorulsun = ayar.yazilansor;
}

RenkTablosu GecerliRenkler(const Oturum& o, const GorunumAyari& ayar) {
  RenkTablosu tablo = GecerliRenkler(o);
  const auto form = RenkOku(ayar.formbackcolor);
  if (form && *form <= EnBuyukRenk) tablo[std::size_t(Renk::FormArka)] = *form;
  return tablo;
}

std::optional<std::uint32_t> RenkOku(std::string_view metin) {
  metin = Kirp(metin);
  if (metin.ends_with('&')) metin.remove_suffix(1);
  if (!AdEsit(metin.substr(0, 2), "&H")) return std::nullopt;
  metin.remove_prefix(2);
  std::uint32_t renk = 0;
  const auto [son, hata] = std::from_chars(metin.data(), metin.data() + metin.size(), renk, 16);
  return hata == std::errc() && son == metin.data() + metin.size() ? std::optional(renk) : std::nullopt;
}

std::string RenkMetni(std::uint32_t renk) {
  constexpr std::string_view Rakamlar = "0123456789ABCDEF";
  std::string metin;
  for (int bit = 28; bit >= 0; bit -= 4) metin += Rakamlar[renk >> bit & 0xF];
  return "&H" + metin + "&";
}

GridYazilari GridYazilariOku() {
  const GridYazilari ilk;
  return {YaziOku("gridbaslik", ilk.baslik), YaziOku("griddetay", ilk.detay)};
}

Durum GridYazilariYaz(const GridYazilari& yazilar) {
  if (auto d = YaziYaz("gridbaslik", yazilar.baslik); !d) return d;
  return YaziYaz("griddetay", yazilar.detay);
}

}  // namespace belvani
