#include "printing/excelkont.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "core/dosya.h"
#include "core/hedef.h"
#include "core/turkce.h"
#include "printing/xlscevir.h"
#include "printing/xlsxkitap.h"
#include "printing/xlsxsayfa.h"

namespace belvani {
namespace {

constexpr std::size_t EnUzunAd = 80;  // letters; with Turkish ones well below what a file system takes

std::string Bicim(const Hucre& deger, int paraOndaligi) {
  if (std::holds_alternative<Tutar>(deger)) return XlsxTutarBicimi(paraOndaligi);
  return std::holds_alternative<Tarih>(deger) ? XlsxTarihBicimi : "";
}

int HucreHarfi(const Hucre& deger, int paraOndaligi) {
  RaporKolonu kolon;
  kolon.ondalik = paraOndaligi;
  return int(HarfSayisi(HucreMetni(deger, kolon)));
}

}  // namespace

std::string DosyaAdi(std::string_view baslik) {
  std::string ad = DenetimsizMetin(baslik);
  std::replace_if(
      ad.begin(), ad.end(), [](char c) { return std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos; },
      '_');
  ad = Kirp(IlkHarfler(Kirp(ad), EnUzunAd));
  if (ad.starts_with('.')) ad[0] = '_';
  return ad.empty() ? "tablo" : ad;
}

void excelkont::Birak() {
  hucreler_.clear();
  enler_.clear();
  sablon_.reset();
  sayfa_.clear();
  hazir_.reset();
  sablonAdi_.clear();
  kusur_.reset();
  dosya_.clear();
  acik_ = false;
}

Durum excelkont::OpenExcell(const std::string& dosya) {
  Birak();
  if (dosya.empty()) {
    acik_ = true;
    return Tamam();
  }
  auto baytlar = KitapOku(dosya);
  if (!baytlar) return baytlar.Kusuru();
  const Durum acildi = KitapAc(std::move(*baytlar));
  if (acildi) sablonAdi_ = std::filesystem::path(dosya).stem().string();
  return acildi;
}

Durum excelkont::KitapAc(std::string baytlar) {
  Birak();
  auto sablon = XlsxSablon::Ac(std::move(baytlar));
  if (!sablon) return sablon.Kusuru();
  sablon_ = std::move(*sablon);
  acik_ = true;
  return Tamam();
}

void excelkont::HazirKitap(std::string baytlar) {
  Birak();
  hazir_ = std::move(baytlar);
}

Sonuc<std::string> excelkont::KitapOku(const std::string& dosya) const {
  auto baytlar = DosyaOku(dosya);
  if (!baytlar) return Kusur{dosya + ": dosya okunamadı"};
  if (!XlsMi(*baytlar)) return std::move(*baytlar);
  auto cevrilen = XlsxeCevir(dosya, islevler_.donusturucu);
  if (!cevrilen) return Kusur{ExcelYok};
  return cevrilen;
}

bool excelkont::KusuruTut(const Durum& durum) {
  if (!durum && !kusur_) kusur_ = durum.Kusuru();
  return bool(durum);
}

bool excelkont::SetExcell(int satir, int kolon, const Hucre& deger, ExcelYazisi yazi) {
  if (!acik_) return KusuruTut(Kusur{"Açık bir çalışma kitabı yok"});
  const std::string adres = satir < 1 || kolon < 1 ? "" : XlsxAdresi(satir - 1, kolon - 1);
  if (!XlsxYeriOku(adres))
    return KusuruTut(Kusur{"Sayfada satır " + std::to_string(satir) + ", kolon " + std::to_string(kolon) + " yok"});
  if (sablon_) return KusuruTut(sablon_->Yaz(sayfa_, adres, deger));
  hucreler_.insert_or_assign({satir, kolon}, YeniHucre{deger, yazi});
  return true;
}

bool excelkont::SetExcel(std::string_view adres, const Hucre& deger, ExcelYazisi yazi) {
  const auto yer = XlsxYeriOku(adres);
  if (!yer) return KusuruTut(Kusur{"Hücre adresi değil: '" + std::string(adres) + "'"});
  return SetExcell(yer->satir, yer->kolon, deger, yazi);
}

Sonuc<std::string> excelkont::YeniKitap(Ilerleme* ilerleme) const {
  XlsxKitap kitap(Baslik);
  const int ondalik = std::clamp(ParaOndaligi, 0, 4);
  std::map<int, int> enler;
  // A heading runs over into its empty neighbours and does not widen its column.
  for (const auto& [yer, hucre] : hucreler_)
    if (hucre.yazi == ExcelYazisi::Normal)
      enler[yer.second] = std::max(enler[yer.second], HucreHarfi(hucre.deger, ondalik));
  for (auto& [kolon, en] : enler) en = XlsxKolonEni(en);
  for (const auto& [kolon, en] : enler_) enler[kolon] = en;
  double toplamEn = 0;
  for (const auto& [kolon, en] : enler) {
    kitap.KolonEni(kolon - 1, en);
    toplamEn += en;
  }
  kitap.A4Yazdir(XlsxYonu(toplamEn));
  for (const auto& [yer, hucre] : hucreler_)
    kitap.Yaz(yer.first - 1, yer.second - 1, hucre.deger,
              kitap.StilEkle({.sayiBicimi = Bicim(hucre.deger, ondalik), .koyu = hucre.yazi == ExcelYazisi::Koyu}));
  return kitap.Bitir(ilerleme);
}

Sonuc<std::string> excelkont::Kitap(Ilerleme* ilerleme) {
  if (hazir_) return *hazir_;
  if (!acik_) return Kusur{"Açık bir çalışma kitabı yok"};
  if (kusur_) return *kusur_;
  return sablon_ ? sablon_->Bitir() : YeniKitap(ilerleme);
}

Durum excelkont::KitapYaz(const std::string& yol, const std::string& baytlar) {
  const Durum yazildi = HedefeYaz(yol, baytlar);
  if (yazildi) dosya_ = yol;
  return yazildi;
}

// In a directory of its own, so that a workbook which is still open from before stays as it is. False when the file
// is of no use there and is gone again.
bool excelkont::GeciciYaz(const std::string& baytlar) {
  std::error_code hata;
  std::string dizin = (std::filesystem::temp_directory_path(hata) / "belvani-XXXXXX").string();
  if (hata || ::mkdtemp(dizin.data()) == nullptr) return false;
  const std::string ad = DosyaAdi(Baslik.empty() && sablon_ ? sablonAdi_ : Baslik);
  if (KitapYaz(dizin + "/" + ad + ".xlsx", baytlar) && (!gorunur_ || (islevler_.ac && islevler_.ac(dosya_))))
    return true;
  dosya_.clear();
  std::filesystem::remove_all(dizin, hata);
  return false;
}

Durum excelkont::CloseExcell() {
  const auto baytlar = Kitap();
  if (!baytlar) return baytlar.Kusuru();
  acik_ = false;
  if (GeciciYaz(*baytlar)) return Tamam();
  if (!islevler_.yolSor) return Kusur{ExcelYok};
  const auto yol = islevler_.yolSor();
  return yol ? KitapYaz(*yol, *baytlar) : Tamam();
}

}  // namespace belvani
