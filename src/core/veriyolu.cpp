#include "core/veriyolu.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "core/dizinmakinesi.h"
#include "core/erisilmezyer.h"
#include "core/sunucuadresi.h"

namespace belvani {
namespace {

// A name that stays in its place.
bool Ad(std::string_view ad) {
  return !ad.empty() && ad.front() != '.' && ad.find('/') == std::string_view::npos &&
         ad.find('\0') == std::string_view::npos;
}

bool YarimAd(std::string_view ad) {
  return ad.starts_with('.') && Ad(ad.substr(1));
}

VeriMakinesiYapici sunucuYapicisi = nullptr;

std::shared_ptr<const VeriMakinesi> SunucuYeri(const std::string& metin) {
  const auto adres = SunucuAdresiCoz(metin);
  if (!adres) return ErisilmezYer("postgresql://#", adres.Kusuru());  // it may hold a password, which nobody shall see
  if (sunucuYapicisi == nullptr)
    return ErisilmezYer(adres->Yer(), Kusur{adres->Ad() + ": bu program sunucudaki veriyle çalışmaz"});
  return sunucuYapicisi(*adres);
}

}  // namespace

VeriMakinesiYapici SunucuYapicisiKoy(VeriMakinesiYapici yapici) {
  return std::exchange(sunucuYapicisi, yapici);
}

VeriYolu::VeriYolu(const std::string& adres) : makine_(SunucuAdresiMi(adres) ? SunucuYeri(adres) : DizinYeri(adres)) {}

std::optional<std::string> VeriYolu::Oku(std::string_view ad, std::size_t enCok) const {
  DosyaHali hal = Bak(ad, enCok);
  if (!hal.var || hal.okunamadi || hal.boy > hal.baytlar.size()) return std::nullopt;
  return std::move(hal.baytlar);
}

DosyaHali VeriYolu::Bak(std::string_view ad, std::size_t enCok) const {
  assert(Ad(ad));
  return makine_->Bak(ad, enCok);
}

std::optional<DosyaIzi> VeriYolu::Iz(std::string_view ad) const {
  assert(Ad(ad));
  return makine_->Iz(ad);
}

Durum VeriYolu::Yaz(std::string_view ad, std::string_view baytlar) const {
  assert(Ad(ad));
  return makine_->Yaz(ad, baytlar);
}

Durum VeriYolu::YazHepsi(const std::vector<AdliDosya>& dosyalar) const {
  assert(std::all_of(dosyalar.begin(), dosyalar.end(), [](const AdliDosya& d) { return Ad(d.ad); }));
  return makine_->YazHepsi(dosyalar);
}

std::vector<DosyaHali> VeriYolu::BakHepsi(const std::vector<std::string_view>& adlar, std::size_t enCok) const {
  assert(std::all_of(adlar.begin(), adlar.end(), Ad));
  return makine_->BakHepsi(adlar, enCok);
}

Durum VeriYolu::DosyayaAl(std::string_view ad, const std::string& yol) const {
  assert(Ad(ad));
  return makine_->DosyayaAl(ad, yol);
}

Durum VeriYolu::DosyadanKoy(std::string_view ad, const std::string& yol) const {
  assert(Ad(ad));
  return makine_->DosyadanKoy(ad, yol);
}

Durum VeriYolu::Sil(std::string_view ad) const {
  assert(Ad(ad));
  return makine_->Sil(ad);
}

Durum VeriYolu::IsaretKoy(std::string_view ad, std::string_view baytlar) const {
  assert(Ad(ad));
  return makine_->IsaretKoy(ad, baytlar);
}

Durum VeriYolu::IsaretKaldir(std::string_view ad) const {
  assert(Ad(ad));
  return makine_->IsaretKaldir(ad);
}

Sonuc<std::unique_ptr<YolKilidi>> VeriYolu::Kilitle(std::chrono::milliseconds enCok) const {
  return makine_->Kilitle(enCok);
}

VeriYolu VeriYolu::Alt(std::string_view ad) const {
  assert(Ad(ad));
  return VeriYolu(makine_->Alt(ad));
}

Sonuc<std::unique_ptr<YarimYer>> VeriYolu::YarimAlt(std::string_view ad, YarimTuru tur) const {
  assert(Ad(ad));
  return makine_->YarimAlt(ad, tur);
}

Sonuc<std::string> VeriYolu::YarimaCevir(std::string_view ad) const {
  assert(Ad(ad));
  return makine_->YarimaCevir(ad);
}

Durum VeriYolu::YarimSil(std::string_view ad) const {
  assert(YarimAd(ad));
  return makine_->YarimSil(ad);
}

bool VeriYolu::AltVar(std::string_view ad) const {
  return Ad(ad) && makine_->AltVar(ad);
}

}  // namespace belvani
