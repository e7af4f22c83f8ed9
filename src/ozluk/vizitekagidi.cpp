#include "ozluk/vizitekagidi.h"

#include "core/session/aracibilgi.h"
#include "ozluk/viziteparcalari.h"
#include "ozluk/vizitesozleri.h"
#include "printing/rapor.h"

namespace belvani {
namespace {

// The columns of the person's own paper; those of a relative have the first three.
std::vector<RaporKolonu> VeriKolonlari(ViziteTuru tur, int paraonda) {
  using enum KolonTuru;
  std::vector<RaporKolonu> kolonlar{
      {"Yıl", "yil", 4, Tam}, {"Ay", "ay", 2, Tam}, {"Gün Sayısı", "gun", 4, Tam, 0, true}};
  if (tur != ViziteTuru::Sigortali) return kolonlar;
  kolonlar.push_back({"Ücret", "ucret", 14, Tutar, paraonda, true});
  kolonlar.push_back({"Ek Ödeme", "ekodeme", 14, Tutar, paraonda, true});
  kolonlar.push_back({"Prim İkramiye", "prim", 14, Tutar, paraonda, true});
  kolonlar.push_back({"Ü.İ.G.", "izin", 4, Tam, 0, true});
  return kolonlar;
}

RaporSatiri VeriSatiri(const ViziteAyi& ay, std::size_t kolonSayisi) {
  const auto varsa = [&](auto deger) {
    return ay.kayitli || deger != decltype(deger){} ? Hucre(deger) : Hucre(Null{});
  };
  RaporSatiri satir{.hucreler = {std::int64_t(ay.yil), std::int64_t(ay.ay), varsa(std::int64_t(ay.gun)),
                                 varsa(ay.ucret), ay.ekodeme, ay.prim, varsa(std::int64_t(ay.izin))}};
  satir.hucreler.resize(kolonSayisi);
  return satir;
}

void BilgileriEkle(Rapor& rapor, const ViziteKagidi& k) {
  const auto gun = [](Tarih t) { return t.Bos() ? Hucre(Null{}) : Hucre(t); };
  rapor.sonBlok = {{"kod", k.form.kod},
                   {"adsoy", k.form.adSoyad},
                   {"sskno", k.form.sskno},
                   {"tcno", k.form.tcno},
                   {"girtar", gun(k.form.girtar)},
                   {"vizite", gun(k.form.vizite)},
                   {"durum", PrimDurumu(k.tur, k.form.girtar, k.form.ciktar)}};
  if (k.tur == ViziteTuru::Sigortali) return rapor.sonBlok.push_back({"saat", k.form.saat});
  rapor.sonBlok.push_back({"yakinlik", vizite::YakinlikSozu(k.yakin)});
  rapor.sonBlok.push_back({"hasta", vizite::YakinAdi(k)});
  if (k.tur == ViziteTuru::AltiAylik) rapor.sonBlok.push_back({"songecerlilik", MetindeSonGecerlilik(k.form.vizite)});
}

std::shared_ptr<const Rapor> Veri(const ViziteKagidi& kagit) {
  auto rapor = std::make_shared<Rapor>(VeriKolonlari(kagit.tur, kagit.firma.paraonda));
  rapor->ekranBasligi = ViziteBaskiAdi(kagit.tur);
  for (const ViziteAyi& ay : kagit.aylar) rapor->Ekle(VeriSatiri(ay, rapor->Kolonlar().size()));
  BilgileriEkle(*rapor, kagit);
  return rapor;
}

// The printer is made ready for each page of the certificate but the first.
FormBasimi MetinBasimi(ViziteTuru tur) {
  switch (tur) {
    case ViziteTuru::Sigortali:
      return {.acilamadi = "Yazıcı Dosyası Yaratılamıyor"};
    case ViziteTuru::EsVeCocuk:
      return {};
    case ViziteTuru::AltiAylik:
      return {.sayfaSozu = [](int sayfa) {
        return sayfa == 1 ? std::string() : std::to_string(sayfa) + ". Sayfa İçin Yazıcınızı Hazırlayınız";
      }};
  }
  return {};
}

}  // namespace

ViziteKagidi BosViziteKagidi(Oturum& o, ViziteTuru tur) {
  return {.tur = tur,
          .firma = o.firma,
          .araciKodu = AraciOku(o).kod,
          .paraBirimi = o.ParaBirimi,
          .kurusBirimi = o.KurusBirimi};
}

std::string_view ViziteBaskiAdi(ViziteTuru tur) {
  switch (tur) {
    case ViziteTuru::Sigortali:
      return "Sigortalı Vizite Kağıdı";
    case ViziteTuru::EsVeCocuk:
      return "Eş ve Çocuklar için Vizite Kağıdı";
    case ViziteTuru::AltiAylik:
      return "Altı Aylık Vizite Kağıdı";
  }
  return {};
}

Sonuc<std::vector<FormSayfasi>> ViziteCiz(const ViziteKagidi& kagit) {
  if (kagit.tur == ViziteTuru::Sigortali) return std::vector{vizite::SigortaliSayfasi(kagit)};
  if (kagit.tur == ViziteTuru::EsVeCocuk) return std::vector{vizite::YakinSayfasi(kagit, {})};
  const auto sonGun = CizimdeSonGecerlilik(kagit.form.vizite);
  if (!sonGun) return sonGun.Kusuru();
  return std::vector{vizite::YakinSayfasi(kagit, *sonGun)};
}

std::string ViziteYazdir(const ViziteKagidi& kagit) {
  return kagit.tur == ViziteTuru::Sigortali ? vizite::SigortaliMetni(kagit) : vizite::YakinMetni(kagit);
}

std::unique_ptr<Belge> ViziteBelgesi(const ViziteKagidi& kagit) {
  YzcAyarlari ayar;
  ayar.YzcBaslik = ViziteBaskiAdi(kagit.tur);
  const auto sayfalar = ViziteCiz(kagit);
  auto belge = std::make_unique<FormBelgesi>(ayar, sayfalar ? *sayfalar : std::vector<FormSayfasi>(),
                                             ViziteYazdir(kagit), Veri(kagit), MetinBasimi(kagit.tur));
  belge->Donem(kagit.form.kod + " " + kagit.form.vizite.Iso());
  return belge;
}

}  // namespace belvani
