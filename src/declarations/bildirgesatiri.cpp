#include "declarations/bildirgesatiri.h"

#include <algorithm>
#include <cmath>

#include "core/sayi.h"
#include "core/tables/kimlik.h"
#include "core/tables/sicil.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int EnBuyukTam = 9999;

std::string TamMetni(int sayi, int hane) {
  std::string metin = std::to_string(sayi);
  if (const auto enAz = std::size_t(hane); metin.size() < enAz) metin.insert(0, enAz - metin.size(), '0');
  return metin;
}

std::optional<Tutar> SayiOlarak(std::string_view metin, std::optional<Tutar>) {
  const auto tutar = TutarOku(metin);
  return tutar && std::fabs(tutar->Sayi()) < Tutar::Sinir ? tutar : std::nullopt;
}

std::optional<int> SayiOlarak(std::string_view metin, std::optional<int>) {
  const auto sayi = TamSayiOku(metin);
  return sayi && std::abs(*sayi) <= EnBuyukTam ? std::optional(int(*sayi)) : std::nullopt;
}

bool Al(std::string& hucre, std::string_view metin) {
  hucre = metin;
  return true;
}

bool Al(Tarih& hucre, std::string_view metin) {
  const Tarih gun = Tarih::MetinOku(Kirp(metin));
  if (gun.Bos() && !Kirp(metin).empty()) return false;
  hucre = gun;
  return true;
}

template <class Sayi>
bool Al(std::optional<Sayi>& hucre, std::string_view metin) {
  if (Kirp(metin).empty()) {
    if (hucre != Sayi()) hucre.reset();
    return true;
  }
  const auto sayi = SayiOlarak(metin, hucre);
  if (sayi) hucre = sayi;
  return sayi.has_value();
}

const char* HucreKusuru(const BildirgeKolonu& kolon) {
  const bool tarih = std::holds_alternative<Tarih BildirgeSatiri::*>(kolon.hucre);
  return tarih ? "Hatalı Tarih Girildi.\nDüzeltiniz." : "Bir Sayi Girmelisiniz.";
}

}  // namespace

AlanTutamagi KaynakAlani(std::string_view kolon) {
  static const std::pair<std::string_view, AlanTutamagi> kaynaklar[] = {
      {"sigkol", sicil::sskdurum}, {"sskno", sicil::sskno},        {"tcno", kimlik::tcno},
      {"adi", sicil::adi},         {"soyadi", sicil::soyadi},      {"ilksoyadi", sicil::ilksoyadi},
      {"girtar", sicil::girtar},   {"ciktar", sicil::ciktar},      {"ciksebeb", sicil::cikiskodu},
      {"kanun", sicil::kanun},     {"meslekkod", sicil::meslekkod}};
  const auto kaynak = std::ranges::find(kaynaklar, kolon, [](const auto& k) { return k.first; });
  return kaynak == std::end(kaynaklar) ? AlanTutamagi{} : kaynak->second;
}

const BildirgeKolonu* BildirgeKolonuBul(std::string_view ad) {
  const auto kolon = std::ranges::find(BildirgeKolonlari, ad, &BildirgeKolonu::ad);
  return kolon == BildirgeKolonlari.end() ? nullptr : &*kolon;
}

std::string HucreMetni(const BildirgeSatiri& satir, const BildirgeKolonu& kolon, int paraonda) {
  struct {
    const BildirgeKolonu& kolon;
    int paraonda;
    std::string operator()(const std::string& metin) const { return metin; }
    std::string operator()(Tarih gun) const { return gun.Metin(); }
    std::string operator()(std::optional<int> sayi) const { return sayi ? TamMetni(*sayi, kolon.hane) : ""; }
    std::string operator()(std::optional<Tutar> tutar) const { return tutar ? TutarMetni(*tutar, paraonda) : ""; }
  } const metni{kolon, paraonda};
  return std::visit([&](auto hucre) { return metni(satir.*hucre); }, kolon.hucre);
}

Durum HucreYaz(BildirgeSatiri& satir, const BildirgeKolonu& kolon, std::string_view metin) {
  if (std::visit([&](auto hucre) { return Al(satir.*hucre, metin); }, kolon.hucre)) return Tamam();
  Kusur kusur = KuralKusuru(HucreKusuru(kolon), {typeid(BildirgeSatiri), kolon.ad});
  kusur.kod = satir.kod;
  return kusur;
}

std::string YalinMetin(Tutar tutar) {
  std::string metin = OndalikMetin(tutar);
  metin.erase(metin.find_last_not_of('0') + 1);
  if (metin.ends_with('.')) metin.pop_back();
  return metin;
}

std::string IkiHane(int sayi) {
  return TamMetni(sayi, 2);
}

std::string SatirSahibi(const BildirgeSatiri& satir) {
  return satir.adi + " " + satir.soyadi;
}

}  // namespace belvani
