#include "printing/rapordolgusu.h"

#include <algorithm>
#include <array>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int EnCokOndalik = 4;

KolonTuru TarihTuru(int bicim) {
  static constexpr std::array Turler{KolonTuru::UzunTarih, KolonTuru::Tarih, KolonTuru::KisaTarih,
                                     KolonTuru::GunAy,     KolonTuru::Gun,   KolonTuru::Ay};
  return bicim >= 0 && bicim < int(Turler.size()) ? Turler[std::size_t(bicim)] : KolonTuru::Tarih;
}

KolonTuru Turu(const DolguKolonu& kolon) {
  switch (kolon.tur) {
    case DolguTuru::Metin:
      return KolonTuru::Metin;
    case DolguTuru::Sayi:
    case DolguTuru::ToplananSayi:
      return KolonTuru::Tutar;
    case DolguTuru::Tarih:
      return TarihTuru(kolon.bicim);
  }
  return KolonTuru::Metin;
}

Hucre Uydur(const Hucre& deger, DolguTuru tur) {
  switch (tur) {
    case DolguTuru::Metin:
      return DuzMetin(deger);
    case DolguTuru::Sayi:
    case DolguTuru::ToplananSayi:
      if (const auto tutar = TutarOku(DuzMetin(deger))) return *tutar;
      return Null{};
    case DolguTuru::Tarih:
      if (const Tarih tarih = Tarih::MetinOku(DuzMetin(deger)); !tarih.Bos()) return tarih;
      return Null{};
  }
  return Null{};
}

}  // namespace

void RaporDolgusu::KolonEkle(DolguKolonu kolon) {
  kolonlar_.push_back(std::move(kolon));
  for (auto& satir : satirlar_) satir.hucreler.emplace_back();
}

void RaporDolgusu::SatirAc() {
  if (yeniSayfa_ || satirlar_.empty()) sayfaBaslari_.push_back(int(satirlar_.size()));
  satirlar_.push_back(
      {.hucreler = std::vector<Hucre>(kolonlar_.size()), .yeniSayfa = yeniSayfa_ && !satirlar_.empty()});
  yeniSayfa_ = false;
}

bool RaporDolgusu::Koy(std::size_t satir, std::size_t kolon, const Hucre& deger) {
  if (satir >= satirlar_.size() || kolon >= kolonlar_.size()) return false;
  satirlar_[satir].hucreler[kolon] = Uydur(deger, kolonlar_[kolon].tur);
  return true;
}

RaporKolonu RaporDolgusu::KagitKolonu(std::size_t k) const {
  const DolguKolonu& kolon = kolonlar_[k];
  RaporKolonu kagit{.baslik = kolon.ikinciBaslik.empty() ? kolon.baslik : kolon.ikinciBaslik + " " + kolon.baslik,
                    .kisaBaslik = kolon.baslik,
                    .en = std::max(kolon.en, int(HarfSayisi(kolon.baslik))),
                    .tur = Turu(kolon),
                    .ondalik = std::clamp(kolon.bicim, 0, EnCokOndalik),
                    .toplanir = kolon.tur == DolguTuru::ToplananSayi};
  for (const auto& satir : satirlar_)
    if (const auto* metin = std::get_if<std::string>(&satir.hucreler[k]))
      kagit.en = std::max(kagit.en, int(HarfSayisi(*metin)));
  return kagit;
}

Rapor RaporDolgusu::Yap() const {
  std::vector<RaporKolonu> kolonlar;
  for (std::size_t k = 0; k < kolonlar_.size(); ++k) kolonlar.push_back(KagitKolonu(k));
  Rapor rapor(std::move(kolonlar));
  rapor.baslik = rapor.ekranBasligi = baslik;
  for (const auto& satir : ustSatirlar) rapor.ustSatirlar.push_back({.sol = satir});
  for (const auto& satir : satirlar_) rapor.Ekle(satir);
  return rapor;
}

}  // namespace belvani
