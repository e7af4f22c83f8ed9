#include "printing/rapordolgusu.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int EnCokOndalik = 4;

bool Var(std::size_t adet, int sira) {
  return sira >= 0 && std::size_t(sira) < adet;
}

KolonTuru Turu(DolguTuru tur, int bicim) {
  static constexpr std::array tarihler{KolonTuru::UzunTarih, KolonTuru::Tarih, KolonTuru::KisaTarih,
                                       KolonTuru::GunAy,     KolonTuru::Gun,   KolonTuru::Ay};
  switch (tur) {
    case DolguTuru::Metin:
      return KolonTuru::Metin;
    case DolguTuru::Sayi:
    case DolguTuru::ToplananSayi:
      return KolonTuru::Tutar;
    case DolguTuru::Tarih:
      return Var(tarihler.size(), bicim) ? tarihler[std::size_t(bicim)] : KolonTuru::Tarih;
  }
  return KolonTuru::Metin;
}

Hucre Uydur(const Hucre& deger, KolonTuru tur) {
  std::string metin = DuzMetin(deger);
  if (metin.empty()) return Null{};
  if (tur == KolonTuru::Metin) return metin;
  if (TarihMi(tur)) {
    const Tarih tarih = Tarih::MetinOku(metin);
    return tarih.Bos() ? Hucre(Null{}) : Hucre(tarih);
  }
  const auto tutar = TutarOku(metin);
  return tutar ? Hucre(*tutar) : Hucre(Null{});
}

}  // namespace

void RaporDolgusu::Basliklar(std::string baslik, const std::vector<std::string>& ustSatirlar) {
  baslik_ = std::move(baslik);
  ustSatirlar_.clear();
  for (const std::string& satir : ustSatirlar) ustSatirlar_.push_back({.sol = satir});
}

void RaporDolgusu::AddColons(std::string_view baslik, DolguTuru tur, std::string_view ikinci, int bicim, int en) {
  const std::string kisa(baslik);
  kolonlar_.push_back({{.baslik = ikinci.empty() ? kisa : std::string(ikinci) + " " + kisa,
                        .kisaBaslik = kisa,
                        .en = std::max(en, int(HarfSayisi(baslik))),
                        .tur = Turu(tur, bicim),
                        .ondalik = std::clamp(bicim, 0, EnCokOndalik),
                        .toplanir = tur == DolguTuru::ToplananSayi},
                       en <= 0});
  for (RaporSatiri& satir : satirlar_) satir.hucreler.emplace_back();
}

void RaporDolgusu::NewPage() {
  yeniSayfa_ = !satirlar_.empty();
}

void RaporDolgusu::CreateRow(GridSatiri tur, int adet) {
  if (tur == GridSatiri::SayfaBasi) NewPage();
  if (adet < 1) return;
  for (int i = 0; i < adet; ++i)
    satirlar_.push_back(
        {.hucreler = std::vector<Hucre>(kolonlar_.size()), .yeniSayfa = std::exchange(yeniSayfa_, false)});
  satir_ = int(satirlar_.size()) - 1;
  kolon_ = 0;
}

void RaporDolgusu::Koy(int satir, int kolon, const Hucre& deger) {
  if (Var(satirlar_.size(), satir) && Var(kolonlar_.size(), kolon))
    satirlar_[std::size_t(satir)].hucreler[std::size_t(kolon)] = Uydur(deger, kolonlar_[std::size_t(kolon)].tanim.tur);
}

void RaporDolgusu::Add(int kolon, const Hucre& deger) {
  if (satir_ < 0 || !Var(kolonlar_.size(), kolon)) return;
  Koy(satir_, kolon, deger);
  kolon_ = kolon;
}

void RaporDolgusu::AddbyName(std::string_view baslik, const Hucre& deger) {
  const auto k = std::ranges::find(kolonlar_, baslik, [](const auto& kolon) { return kolon.tanim.kisaBaslik; });
  if (k != kolonlar_.end()) Add(int(k - kolonlar_.begin()), deger);
}

void RaporDolgusu::data(int sayfa, int satir, int kolon, const Hucre& deger) {
  Koy(SayfadakiSatir(YeniSayfalar(), sayfa, satir), kolon, deger);
}

std::vector<bool> RaporDolgusu::YeniSayfalar() const {
  std::vector<bool> sayfalar;
  for (const RaporSatiri& satir : satirlar_) sayfalar.push_back(satir.yeniSayfa);
  return sayfalar;
}

void RaporDolgusu::Konum(int satir, int kolon) {
  satir_ = satir;
  kolon_ = kolon;
}

Rapor RaporDolgusu::Yap() const {
  std::vector<RaporKolonu> kagit;
  for (std::size_t k = 0; k < kolonlar_.size(); ++k) {
    kagit.push_back(kolonlar_[k].tanim);
    if (!kolonlar_[k].yettigince) continue;
    for (const RaporSatiri& satir : satirlar_)
      if (const auto* metin = std::get_if<std::string>(&satir.hucreler[k]))
        kagit[k].en = std::max(kagit[k].en, int(HarfSayisi(*metin)));
  }
  Rapor rapor(std::move(kagit));
  rapor.baslik = rapor.ekranBasligi = baslik_;
  rapor.ustSatirlar = ustSatirlar_;
  for (const RaporSatiri& satir : satirlar_) rapor.Ekle(satir);
  return rapor;
}

std::vector<int> SayfaBaslari(const std::vector<bool>& yeniSayfalar) {
  std::vector<int> baslar;
  for (std::size_t i = 0; i < yeniSayfalar.size(); ++i)
    if (i == 0 || yeniSayfalar[i]) baslar.push_back(int(i));
  return baslar;
}

int SayfadakiSatir(const std::vector<bool>& yeniSayfalar, int sayfa, int satir) {
  const auto baslar = SayfaBaslari(yeniSayfalar);
  if (!Var(baslar.size(), sayfa) || satir < 0) return -1;
  const int son = Var(baslar.size(), sayfa + 1) ? baslar[std::size_t(sayfa) + 1] : int(yeniSayfalar.size());
  const int no = baslar[std::size_t(sayfa)] + satir;
  return no < son ? no : -1;
}

}  // namespace belvani
