#include "reports/rapordosyalari.h"

#include <algorithm>

#include "core/turkce.h"
#include "reports/hazirraporlar.h"

namespace belvani {
namespace {

constexpr int EnUzunRaporAdi = 60;
constexpr std::size_t EnBuyukRapor = 64 << 10;

template <class Kolonlar>
std::vector<std::string> Adlar(const VeriYolu& veri, std::string_view uzanti,
                               const std::vector<HazirRapor<Kolonlar>>& hazirlar) {
  std::vector<std::string> adlar;
  for (const auto& hazir : hazirlar) adlar.emplace_back(hazir.ad);
  for (const std::string& dosya : veri.Dosyalar()) {
    if (dosya.size() <= uzanti.size() || !AdEsit(dosya.substr(dosya.size() - uzanti.size()), uzanti)) continue;
    const std::string ad = dosya.substr(0, dosya.size() - uzanti.size());
    if (!RaporAdiKusuru(ad) && std::ranges::find(adlar, ad) == adlar.end()) adlar.push_back(ad);
  }
  std::ranges::sort(adlar, [](const auto& a, const auto& b) { return TurkceKarsilastir(a, b) < 0; });
  return adlar;
}

template <class Kolonlar>
Sonuc<Kolonlar> Al(const VeriYolu& veri, const std::string& ad, std::string_view uzanti,
                   const std::vector<HazirRapor<Kolonlar>>& hazirlar, Sonuc<Kolonlar> (*coz)(std::string_view)) {
  if (auto kusur = RaporAdiKusuru(ad)) return *std::move(kusur);
  const DosyaHali hal = veri.Bak(ad + std::string(uzanti), EnBuyukRapor);
  if (hal.okunamadi) return Kusur{"Rapor dosyası okunamıyor: " + ad + std::string(uzanti)};
  if (hal.var) return hal.boy > EnBuyukRapor ? Sonuc<Kolonlar>(KuralKusuru(BozukRapor)) : coz(hal.baytlar);
  const auto hazir = std::ranges::find_if(hazirlar, [&](const auto& h) { return TurkceEsit(h.ad, ad); });
  if (hazir == hazirlar.end()) return KuralKusuru("Rapor bulunamadı: " + ad);
  return hazir->kolonlar;
}

}  // namespace

std::vector<std::string> OzlukRaporlari(const VeriYolu& veri) {
  return Adlar(veri, OzlukUzantisi, HazirOzlukRaporlari({}, {}));
}

std::vector<std::string> BordroRaporlari(const VeriYolu& veri) {
  return Adlar(veri, BordroUzantisi, HazirBordroRaporlari());
}

std::optional<Kusur> RaporAdiKusuru(std::string_view ad) {
  if (Kirp(ad).empty()) return KuralKusuru("Rapor Adının Yazınız.");
  if (ad.find('.') != ad.npos) return KuralKusuru("Rapor İsminde Noktalama Kullanmayınız");
  const bool temiz = Kirp(ad) == ad && GecerliUtf8(ad) && DenetimsizMetin(ad) == ad &&
                     ad.find_first_of("/\\:*?\"<>|") == ad.npos && HarfSayisi(ad) <= std::size_t(EnUzunRaporAdi);
  if (!temiz) return KuralKusuru("Rapor adında bu işaretler kullanılamaz: / \\ : * ? \" < > |");
  return {};
}

Sonuc<OzlukKolonlari> OzlukRaporuAl(const VeriYolu& veri, const std::string& ad, Tarih ilkGun, Tarih sonGun) {
  return Al(veri, ad, OzlukUzantisi, HazirOzlukRaporlari(ilkGun, sonGun), OzlukRaporuCoz);
}

Sonuc<BordroKolonlari> BordroRaporuAl(const VeriYolu& veri, const std::string& ad) {
  return Al(veri, ad, BordroUzantisi, HazirBordroRaporlari(), BordroRaporuCoz);
}

std::optional<std::string> RaporAdiBul(const VeriYolu& veri, const std::string& ad, std::string_view uzanti) {
  const auto adlar = uzanti == OzlukUzantisi ? OzlukRaporlari(veri) : BordroRaporlari(veri);
  const auto yeri = std::ranges::find_if(adlar, [&](const std::string& a) { return TurkceEsit(a, ad); });
  return yeri == adlar.end() ? std::nullopt : std::optional(*yeri);
}

bool RaporDosyasiVar(const VeriYolu& veri, const std::string& ad, std::string_view uzanti) {
  return !RaporAdiKusuru(ad) && veri.Var(ad + std::string(uzanti));
}

Durum OzlukRaporuKaydet(const VeriYolu& veri, const std::string& ad, const OzlukKolonlari& kolonlar) {
  if (auto kusur = RaporAdiKusuru(ad)) return *std::move(kusur);
  return veri.Yaz(ad + std::string(OzlukUzantisi), OzlukRaporuBaytlari(kolonlar));
}

Durum BordroRaporuKaydet(const VeriYolu& veri, const std::string& ad, const BordroKolonlari& kolonlar) {
  if (auto kusur = RaporAdiKusuru(ad)) return *std::move(kusur);
  if (kolonlar.empty()) return KuralKusuru("Kaydedilecek Bilgi Bulunamadı...");
  return veri.Yaz(ad + std::string(BordroUzantisi), BordroRaporuBaytlari(kolonlar));
}

Durum RaporSil(const VeriYolu& veri, const std::string& ad, std::string_view uzanti) {
  if (auto kusur = RaporAdiKusuru(ad)) return *std::move(kusur);
  return veri.Sil(ad + std::string(uzanti));
}

}  // namespace belvani
