#include "payroll/parametre/mevzuatkumesi.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <xxhash.h>

#include "core/derinlik.h"
#include "payroll/parametre/kayitlar.h"

namespace belvani {
namespace {

using Json = nlohmann::json;

constexpr std::size_t EnCokKunyeBayti = 1u << 20;

std::string Ozet(std::string_view baytlar) {
  const XXH128_hash_t ozet = XXH3_128bits(baytlar.data(), baytlar.size());
  constexpr char onalti[] = "0123456789abcdef";
  std::string metin;
  for (const XXH64_hash_t yari : {ozet.high64, ozet.low64})
    for (int kayma = 60; kayma >= 0; kayma -= 4) metin += onalti[(yari >> kayma) & 15];
  return metin;
}

std::string BolumBaytlari(const YasalParametreler& p, MevzuatBolumu bolum) {
  switch (bolum) {
    case MevzuatBolumu::Oranlar:
      return KayitBaytlari<YasalKaydi>(p.oranlar);
    case MevzuatBolumu::Vergi:
      return KayitBaytlari<GvKaydi>(p.gv);
    case MevzuatBolumu::Agi:
      return KayitBaytlari<AgiKaydi>(p.agi);
  }
  return {};
}

// What a confirmation holds for: these figures, as long as they stand against these published ones.
std::string KabulAnahtari(const YasalParametreler& kurulu, const YasalParametreler& yayimlanan) {
  std::string hepsi;
  for (const MevzuatBolumu bolum : MevzuatBolumleri)
    hepsi += BolumBaytlari(kurulu, bolum) + BolumBaytlari(yayimlanan, bolum);
  return Ozet(hepsi);
}

bool AlindigiGibi(const KuruluMevzuat& kurulu, MevzuatBolumu bolum) {
  return kurulu.AlindigiAy(BolumDosyasi(bolum)).has_value();
}

// What the loader has written where there was no agitbl.dat: nobody's figures.
bool HazirAgi(const KuruluMevzuat& kurulu) {
  return !kurulu.kunye.dosyalar.contains(AgiKaydi::Dosya) && kurulu.parametreler.agi.AgiCocuk4 == Tek();
}

// The part holds what somebody has typed or fetched, and not what stands for a file that is absent or broken.
bool RakamVar(const KuruluMevzuat& kurulu, MevzuatBolumu bolum) {
  return std::ranges::find(kurulu.dosyalar, BolumDosyasi(bolum), &AdliDosya::ad) != kurulu.dosyalar.end() &&
         RakamKusurlari(kurulu.parametreler, bolum).empty() && (bolum != MevzuatBolumu::Agi || !HazirAgi(kurulu));
}

// The month that the installed figures are thought to belong to: the one they were fetched for, also when the user has
// changed some since; else the first month with this minimum wage.
std::optional<MevzuatAyi> SahipAy(const KuruluMevzuat& kurulu) {
  const auto not_ = kurulu.kunye.dosyalar.find(YasalKaydi::Dosya);
  if (not_ != kurulu.kunye.dosyalar.end()) return not_->second.ay;
  return IlkUyanAy(kurulu.parametreler, [&](const YasalParametreler& yayimlanan) {
    return yayimlanan.oranlar.AsgariUcret == kurulu.parametreler.oranlar.AsgariUcret;
  });
}

// "yasal2.dat" -> "yasal2-2009-07.dat"
std::string SaklananAd(std::string_view dosya, const std::string& ne) {
  const auto nokta = dosya.rfind('.');
  return std::string(dosya.substr(0, nokta)) + "-" + ne + std::string(dosya.substr(nokta));
}

// Figures of one file, into the set; the text says what is wrong with them.
std::string BolumuCoz(const AdliDosya& dosya, YasalParametreler& p) {
  int gecersiz = 0;
  const auto al = [&]<class Kayit>(Kayit, auto& deger) {
    if (dosya.ad != Kayit::Dosya) return;
    auto cozum = KayitCoz<Kayit>(dosya.baytlar);
    deger = std::move(cozum.deger);
    gecersiz = cozum.gecersiz;
  };
  al(YasalKaydi{}, p.oranlar);
  al(GvKaydi{}, p.gv);
  al(AgiKaydi{}, p.agi);
  al(HesapTurKaydi{}, p.hesapTurleri);
  if (gecersiz > 0) return std::to_string(gecersiz) + " alanı sayı değil";
  for (const MevzuatBolumu bolum : MevzuatBolumleri)
    if (dosya.ad == BolumDosyasi(bolum))
      if (const auto kusurlar = RakamKusurlari(p, bolum); !kusurlar.empty()) return kusurlar.front();
  return {};
}

std::vector<AdliDosya> SaklananKume(const VeriYolu& veri, const std::string& ne) {
  std::vector<std::string> adlar;
  for (const auto dosya : ParametreDosyalari) adlar.push_back(SaklananAd(ParametreDosyaAdi(dosya), ne));
  const auto haller = veri.BakHepsi({adlar.begin(), adlar.end()}, EnCokKunyeBayti);
  std::vector<AdliDosya> kume;
  YasalParametreler p;
  for (std::size_t i = 0; i < haller.size(); ++i) {
    kume.push_back({std::string(ParametreDosyaAdi(ParametreDosyalari[i])), haller[i].baytlar});
    if (!haller[i].var || haller[i].boy != haller[i].baytlar.size() || !BolumuCoz(kume.back(), p).empty()) return {};
  }
  return kume;
}

Sonuc<std::vector<AdliDosya>> Getir(const std::vector<ParametreDosyasi>& hangileri, const std::string& kaynak,
                                    const IndirmeSiniri& sinir) {
  std::vector<AdliDosya> gelen;
  YasalParametreler p;
  for (const ParametreDosyasi hangisi : hangileri) {
    auto dosya = ParametreDosyasiAl(hangisi, kaynak, sinir);
    if (!dosya) return dosya.Kusuru();
    if (const std::string kusur = BolumuCoz(*dosya, p); !kusur.empty())
      return Kusur{"Parametre dosyası hatalı, kurulmadı: " + GorunenAdres(kaynak) + ", " + dosya->ad + ": " + kusur};
    gelen.push_back(std::move(*dosya));
  }
  return gelen;
}

}  // namespace

MevzuatKunyesi MevzuatKunyesi::Coz(const std::string& metin) {
  MevzuatKunyesi kunye;
  if (JsonDerinligi(metin) > EnCokDerinlik) return kunye;
  const Json kok = Json::parse(metin, nullptr, false);
  if (!kok.is_object()) return kunye;
  const auto metinAl = [](const Json& nesne, const char* ad) {
    const auto uye = nesne.is_object() ? nesne.find(ad) : nesne.end();
    return nesne.is_object() && uye != nesne.end() && uye->is_string() ? uye->get<std::string>() : std::string();
  };
  if (const auto dosyalar = kok.find("dosyalar"); dosyalar != kok.end() && dosyalar->is_object())
    for (const auto& [ad, kayit] : dosyalar->items())
      if (const auto ay = MevzuatAyi::IsoOku(metinAl(kayit, "donem")))
        kunye.dosyalar[ad] = {*ay, metinAl(kayit, "ozet")};
  if (const auto kabuller = kok.find("kabul"); kabuller != kok.end() && kabuller->is_array())
    for (const Json& kabul : *kabuller)
      if (kabul.is_string()) kunye.kabuller.insert(kabul.get<std::string>());
  return kunye;
}

std::string MevzuatKunyesi::Metin() const {
  Json kok{{"dosyalar", Json::object()}, {"kabul", kabuller}};
  for (const auto& [ad, kayit] : dosyalar) kok["dosyalar"][ad] = {{"donem", kayit.ay.Iso()}, {"ozet", kayit.ozet}};
  return kok.dump(2) + "\n";
}

std::optional<MevzuatAyi> KuruluMevzuat::AlindigiAy(std::string_view ad) const {
  const auto kayit = kunye.dosyalar.find(ad);
  const auto dosya = std::ranges::find(dosyalar, ad, &AdliDosya::ad);
  if (kayit == kunye.dosyalar.end() || dosya == dosyalar.end() || Ozet(dosya->baytlar) != kayit->second.ozet)
    return std::nullopt;
  return kayit->second.ay;
}

KuruluMevzuat KuruluMevzuatOku(const VeriYolu& veri) {
  const DosyaHalleri haller = YasalDosyalariOku(veri, MevzuatKunyesi::Dosya);
  KuruluMevzuat kurulu;
  kurulu.kunye = MevzuatKunyesi::Coz(haller.find(MevzuatKunyesi::Dosya)->second.baytlar);
  for (const auto dosya : ParametreDosyalari)
    if (const DosyaHali& hal = haller.find(ParametreDosyaAdi(dosya))->second; hal.var && !hal.okunamadi)
      kurulu.dosyalar.push_back({std::string(ParametreDosyaAdi(dosya)), hal.baytlar});
  auto yukleme = YasalDosyalariCoz(veri, haller);
  kurulu.parametreler = std::move(yukleme.deger);
  kurulu.uyarilar = std::move(yukleme.uyarilar);
  return kurulu;
}

std::string MevzuatGorusu::Metin(std::size_t enCok) const {
  std::string metin = baslik;
  for (std::size_t i = 0; i < std::min(enCok, satirlar.size()); ++i) metin += "\n" + satirlar[i];
  if (satirlar.size() > enCok) metin += "\n… ve " + std::to_string(satirlar.size() - enCok) + " satır daha";
  return metin;
}

MevzuatGorusu KullanilabilirMi(const KuruluMevzuat& kurulu) {
  if (!kurulu.uyarilar.empty())
    return {MevzuatHali::Kullanilamaz, "Yasal parametre dosyaları kullanılamıyor:", kurulu.uyarilar};
  if (auto kusurlar = RakamKusurlari(kurulu.parametreler); !kusurlar.empty())
    return {MevzuatHali::Kullanilamaz, "Yasal parametreler eksik veya hatalı:", std::move(kusurlar)};
  return {};
}

MevzuatGorusu MevzuataBak(const KuruluMevzuat& kurulu, MevzuatAyi ay) {
  if (auto gorus = KullanilabilirMi(kurulu); gorus.hal != MevzuatHali::Uygun) return gorus;
  const YasalParametreler& p = kurulu.parametreler;
  const auto yayimlanan = YayimlananRakamlar(p, ay);
  if (!yayimlanan) return {};

  MevzuatGorusu gorus{MevzuatHali::BaskaAy, {}, {}};
  std::string aylar;
  for (const MevzuatBolumu bolum : MevzuatBolumleri) {
    auto farklar = RakamFarklari(p, *yayimlanan);
    std::erase_if(farklar, [&](const RakamFarki& fark) { return fark.bolum != bolum; });
    const auto alinan = kurulu.AlindigiAy(BolumDosyasi(bolum));
    if (farklar.empty() || alinan == ay) continue;
    const auto sahip = alinan ? alinan : YayimlandigiAy(p, bolum);
    if (!sahip && RakamVar(kurulu, bolum)) gorus.hal = MevzuatHali::Kullanici;
    if (sahip && aylar.find(sahip->Metin()) == std::string::npos) aylar += (aylar.empty() ? "" : ", ") + sahip->Metin();
    for (const RakamFarki& fark : farklar) gorus.satirlar.push_back(fark.Metin());
  }
  if (gorus.satirlar.empty() || kurulu.kunye.kabuller.contains(KabulAnahtari(p, *yayimlanan))) return {};
  gorus.baslik = gorus.hal == MevzuatHali::BaskaAy
                     ? "Kurulu yasal parametreler " + ay.Metin() + " döneminin değil" +
                           (aylar.empty() ? "" : " (" + aylar + ")") + ":"
                     : "Kurulu yasal parametrelerde " + ay.Metin() + " için yayımlanandan farklı rakamlar var:";
  return gorus;
}

Durum MevzuatiKabulEt(const VeriYolu& veri, MevzuatAyi ay) {
  const auto kilit = veri.Kilitle();
  if (!kilit) return kilit.Kusuru();
  KuruluMevzuat kurulu = KuruluMevzuatOku(veri);
  const auto gorus = MevzuataBak(kurulu, ay);
  if (gorus.hal == MevzuatHali::Uygun) return Tamam();
  if (gorus.hal == MevzuatHali::Kullanilamaz) return Kusur{gorus.Metin()};
  kurulu.kunye.kabuller.insert(KabulAnahtari(kurulu.parametreler, *YayimlananRakamlar(kurulu.parametreler, ay)));
  return veri.Yaz(MevzuatKunyesi::Dosya, kurulu.kunye.Metin());
}

std::vector<RakamFarki> KullanicininRakamlari(const KuruluMevzuat& kurulu) {
  const auto sahip = SahipAy(kurulu);
  const auto yayimlanan = YayimlananRakamlar(kurulu.parametreler, sahip.value_or(MevzuatAyi{}));
  if (!yayimlanan) return {};
  auto farklar = RakamFarklari(kurulu.parametreler, *yayimlanan);
  std::erase_if(farklar, [&](const RakamFarki& fark) {
    return AlindigiGibi(kurulu, fark.bolum) || !RakamVar(kurulu, fark.bolum);
  });
  return farklar;
}

bool SaklananVar(const VeriYolu& veri, MevzuatAyi ay) {
  return !SaklananKume(veri, ay.Iso()).empty();
}

Sonuc<MevzuatKurulumu> MevzuatKur(const VeriYolu& veri, MevzuatAyi ay, const std::string& kaynak,
                                  const MevzuatIstegi& istek) {
  const std::vector<ParametreDosyasi> hangileri =
      istek.yalniz ? std::vector{*istek.yalniz}
                   : std::vector<ParametreDosyasi>(ParametreDosyalari.begin(), ParametreDosyalari.end());
  auto gelen = Getir(hangileri, kaynak, istek.sinir);
  if (!gelen) return gelen.Kusuru();

  const auto kilit = veri.Kilitle();
  if (!kilit) return kilit.Kusuru();
  KuruluMevzuat kurulu = KuruluMevzuatOku(veri);
  MevzuatKurulumu sonuc;
  std::vector<AdliDosya> yazilacak;
  const bool butun = kurulu.dosyalar.size() == ParametreDosyalari.size();
  if (butun && !KullanicininRakamlari(kurulu).empty()) {
    for (const AdliDosya& dosya : kurulu.dosyalar)
      yazilacak.push_back({SaklananAd(dosya.ad, SahipAy(kurulu)->Iso()), dosya.baytlar});
    sonuc.sakladi = true;
  }
  for (const AdliDosya& dosya : *gelen) kurulu.kunye.dosyalar[dosya.ad] = {ay, Ozet(dosya.baytlar)};
  if (istek.saklanan == Saklanan::GeriGelir && !istek.yalniz)
    if (auto saklanan = SaklananKume(veri, ay.Iso()); !saklanan.empty()) {
      *gelen = std::move(saklanan);
      sonuc.geriGeldi = true;
    }
  std::ranges::move(*gelen, std::back_inserter(yazilacak));
  yazilacak.push_back({std::string(MevzuatKunyesi::Dosya), kurulu.kunye.Metin()});
  if (auto durum = veri.YazHepsi(yazilacak); !durum) return durum.Kusuru();
  return sonuc;
}

}  // namespace belvani
