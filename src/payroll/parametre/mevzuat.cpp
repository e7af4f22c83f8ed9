#include "payroll/parametre/mevzuat.h"

#include <algorithm>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string_view>

#include "core/derinlik.h"
#include "core/dosya.h"
#include "core/sayi.h"
#include "core/veridizini.h"
#include "payroll/parametre/uyeler.h"

namespace belvani {
namespace {

using Json = nlohmann::json;

constexpr std::size_t EnCokMevzuatBayti = 1u << 20;
constexpr std::size_t EskiLiraSifirlari = 6;

// What is wrong with a file, on its way out of the reading functions below.
struct MevzuatKusuru {
  std::string metin;
};

const Json& Uye(const Json& nesne, const char* ad) {
  const auto uye = nesne.is_object() ? nesne.find(ad) : nesne.end();
  if (!nesne.is_object() || uye == nesne.end()) throw MevzuatKusuru{std::string(ad) + " bilgisi yok"};
  return *uye;
}

const Json& Dizi(const Json& nesne, const char* ad) {
  const Json& dizi = Uye(nesne, ad);
  if (!dizi.is_array()) throw MevzuatKusuru{std::string(ad) + " bir liste değil"};
  return dizi;
}

std::string Metin(const Json& nesne, const char* ad) {
  const Json& uye = Uye(nesne, ad);
  if (!uye.is_string()) throw MevzuatKusuru{std::string(ad) + " bir metin değil"};
  return uye.get<std::string>();
}

// "327.58329" -> "327583290": the published amount has more decimals in new lira than a Tutar holds.
std::string EskiLiraMetni(const std::string& metin) {
  const auto nokta = metin.find('.');
  const std::string tam = metin.substr(0, nokta);
  std::string kesir = nokta == std::string::npos ? std::string() : metin.substr(nokta + 1);
  if (kesir.size() < EskiLiraSifirlari) kesir.resize(EskiLiraSifirlari, '0');
  return tam + kesir.substr(0, EskiLiraSifirlari) + "." + kesir.substr(EskiLiraSifirlari);
}

Tutar Para(const Json& nesne, const char* ad, Lira lira) {
  const std::string metin = Metin(nesne, ad);
  const auto tutar = TutarOku(lira == Lira::Eski ? EskiLiraMetni(metin) : metin);
  if (!tutar) throw MevzuatKusuru{std::string(ad) + " bir tutar değil: \"" + metin + "\""};
  return *tutar;
}

Tek Oran(const Json& nesne, const char* ad) {
  const std::string metin = Metin(nesne, ad);
  const auto sayi = SayiOku(metin);
  if (!sayi) throw MevzuatKusuru{std::string(ad) + " bir oran değil: \"" + metin + "\""};
  return Tek(*sayi);
}

Tarih Gun(const Json& nesne, const char* ad) {
  const std::string metin = Metin(nesne, ad);
  const Tarih gun = Tarih::IsoOku(metin);
  if (gun.Bos()) throw MevzuatKusuru{std::string(ad) + " bir tarih değil: \"" + metin + "\""};
  return gun;
}

// A figure is an object with its value beside certainty and sources.
void RakamOku(const Json& donem, const char* ad, Lira lira, Tutar& tutar) {
  tutar = Para(Uye(donem, ad), "deger", lira);
}
void RakamOku(const Json& donem, const char* ad, Lira, Tek& oran) {
  oran = Oran(Uye(donem, ad), "deger");
}
template <std::size_t N>
void RakamOku(const Json& donem, const char* ad, Lira lira, std::array<Tutar, N>& dizi) {
  for (std::size_t i = 0; i < N; ++i) RakamOku(donem, (ad + std::to_string(i + 1)).c_str(), lira, dizi[i]);
}

// The members that are figures of the law, by their names there.
template <class Kayit>
void RakamlariOku(const Json& donem, Lira lira, Kayit& kayit) {
  HerUye<Kayit>([&](const auto& uye) {
    auto& deger = kayit.*uye.uye;
    if constexpr (requires { RakamOku(donem, uye.mevzuat, lira, deger); })
      if (*uye.mevzuat != '\0') RakamOku(donem, uye.mevzuat, lira, deger);
  });
}

// The last bracket has no limit.
void DilimOku(const Json& dilim, const char* ad, Lira lira, Tutar& limit) {
  limit = Uye(dilim, ad).is_null() ? AcikDilimLimiti(lira) : Para(dilim, ad, lira);
}
void DilimOku(const Json& dilim, const char* ad, Lira, Tek& oran) {
  oran = Oran(dilim, ad);
}

GvTablosu GvOku(const Json& tarife, Lira lira) {
  const Json& dilimler = Dizi(tarife, "dilimler");
  GvTablosu tablo;
  if (dilimler.empty() || dilimler.size() > tablo.GvLimit.size())
    throw MevzuatKusuru{"gelir vergisi tarifesi 1 ile 8 dilim arasında olmalı"};
  for (std::size_t i = 0; i < dilimler.size(); ++i)
    HerUye<GvTablosu>([&](const auto& uye) { DilimOku(dilimler[i], uye.mevzuat, lira, (tablo.*uye.uye)[i]); });
  return tablo;
}

OranSatiri OranlarOku(const Json& taraf) {
  OranSatiri oranlar;
  HerUye<OranSatiri>([&](const auto& uye) { oranlar.*uye.uye = Oran(taraf, uye.mevzuat); });
  return oranlar;
}

void PrimleriOku(const Json& satirlar, YasalOranlar& oranlar) {
  for (const Json& satir : satirlar) {
    const Json& dal = Uye(satir, "dal");
    if (!dal.is_number_integer() || dal < 1 || dal > DalSayisi) throw MevzuatKusuru{"dal 1 ile 32 arasında olmalı"};
    const std::size_t sira = dal.get<std::size_t>() - 1;
    HerUye<YasalOranlar>([&](const auto& uye) {
      if constexpr (std::is_same_v<decltype(uye.uye), decltype(&YasalOranlar::IsciOran)>)
        (oranlar.*uye.uye)[sira] = OranlarOku(Uye(satir, uye.mevzuat));
    });
  }
}

YasalOranlar OranlariOku(const Json& donem, Lira lira) {
  YasalOranlar oranlar;
  RakamlariOku(donem, lira, oranlar);
  PrimleriOku(Dizi(donem, "primOranlari"), oranlar);
  return oranlar;
}

AgiTablosu AgiOku(const Json& donem, Lira lira) {
  AgiTablosu agi;
  if (donem.contains("agi")) RakamlariOku(donem["agi"], lira, agi);  // from 2008 on
  return agi;
}

YasalParametreler DonemOku(const Json& donem, Lira lira) {
  const YasalOranlar oranlar = OranlariOku(donem, lira);
  return {oranlar, GvOku(Uye(donem, "gelirVergisi"), lira), AgiTabaniIle(AgiOku(donem, lira), oranlar.AsgariUcret),
          VarsayilanHesapTurleri(), VarsayilanKanunlar()};
}

// The period that holds the month's first day.
const Json& DonemBul(const Json& kok, Tarih ilkGun) {
  for (const Json& donem : Dizi(kok, "donemler"))
    if (Gun(donem, "bas") <= ilkGun && ilkGun <= Gun(donem, "bit")) return donem;
  throw MevzuatKusuru{ilkGun.Metin() + " gününü kapsayan bir dönem yok"};
}

// What `oku` takes out of the period that holds the month.
template <class Oku>
auto DonemdenOku(const std::string& dizin, int yil, int ay, Oku&& oku) -> Sonuc<decltype(oku(Json()))> {
  const Tarih ilkGun(yil, ay, 1);
  if (ilkGun.Bos()) return Kusur{"Dönem hatalı: " + std::to_string(ay) + "/" + std::to_string(yil)};
  const std::string ad = std::to_string(yil) + (ay <= 6 ? "-1.json" : "-2.json");
  const auto metin = DosyaOku(DizinSonu(dizin) + ad, EnCokMevzuatBayti);
  const std::string donemAdi = std::string(AyAdi(ay)) + " " + std::to_string(yil);
  if (!metin) return Kusur{donemAdi + " için yasal parametre yok (" + DizinSonu(dizin) + ad + " okunamadı)."};
  const Json kok =
      JsonDerinligi(*metin) > EnCokDerinlik ? Json(Json::value_t::discarded) : Json::parse(*metin, nullptr, false);
  if (kok.is_discarded()) return Kusur{"Yasal parametre dosyası bozuk: " + DizinSonu(dizin) + ad};
  try {
    return oku(DonemBul(kok, ilkGun));
  } catch (const MevzuatKusuru& kusur) {
    return Kusur{donemAdi + " yasal parametreleri okunamadı (" + ad + "): " + kusur.metin};
  }
}

}  // namespace

Tutar AcikDilimLimiti(Lira lira) {
  switch (lira) {
    case Lira::Yeni:
      return Tutar::Hamdan(9'999'999'999'900);  // 999,999,999.99
    case Lira::Eski:
      return Tutar::Hamdan(999'999'999'999'999'900);  // 99,999,999,999,999.99: the most that keeps well inside a Tutar
  }
  return {};
}

Sonuc<YasalParametreler> MevzuatYukle(const std::string& dizin, int yil, int ay, Lira lira) {
  return DonemdenOku(dizin, yil, ay, [lira](const Json& donem) { return DonemOku(donem, lira); });
}

Sonuc<GvTablosu> OzelGvMevzuati(const std::string& dizin, int yil, Lira lira) {
  constexpr int Aralik = 12, OzelTarifeninIlkYili = 2004;
  if (yil < OzelTarifeninIlkYili)
    return DonemdenOku(dizin, yil, Aralik,
                       [lira](const Json& donem) { return GvOku(Uye(donem, "gelirVergisi"), lira); });
  const Kusur yok{std::to_string(yil) + " yılı için özel gider indirimi tablosu yok"};
  auto tablo = DonemdenOku(dizin, yil, Aralik, [](const Json& donem) {
    const Json tarife = donem.value("ozelGiderIndirimi", Json());
    return tarife.is_null() || Dizi(tarife, "dilimler").empty() ? GvTablosu() : GvOku(tarife, Lira::Yeni);
  });
  if (tablo && *tablo == GvTablosu()) return yok;
  return tablo;
}

std::string MevzuatDizini() {
  return VeriDizini("mevzuat");
}

}  // namespace belvani
