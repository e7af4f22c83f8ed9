#include "printing/belge.h"

#include <algorithm>
#include <utility>

#include "printing/cairotuval.h"
#include "printing/metincizimi.h"
#include "printing/metinyazici.h"
#include "printing/xlsxyazici.h"
#include "printing/xprn.h"

namespace belvani {
namespace {

// The first line whose right end is free; a new one at the end when there is none.
UstSatir& SagiBosSatir(Rapor& rapor) {
  const auto bos = [](const UstSatir& s) { return s.sag.empty() && !s.sayfaNo && !s.sayfaSayisi; };
  const auto yer = std::ranges::find_if(rapor.ustSatirlar, bos);
  return yer != rapor.ustSatirlar.end() ? *yer : rapor.ustSatirlar.emplace_back();
}

void SirketiAyarla(Rapor& rapor, bool yazilsin, const std::string& unvan) {
  const bool var = std::ranges::any_of(rapor.ustSatirlar, &UstSatir::sirket);
  if (!yazilsin) {
    for (auto& satir : rapor.ustSatirlar)
      if (satir.sirket) satir.sol.clear();
  } else if (!var && !unvan.empty()) {
    rapor.ustSatirlar.insert(rapor.ustSatirlar.begin(), {.sol = unvan, .sirket = true});
  }
}

void SayfaNoAyarla(Rapor& rapor, bool yazilsin) {
  const auto numarali = [](const UstSatir& s) { return s.sayfaNo || s.sayfaSayisi; };
  const auto yer = std::ranges::find_if(rapor.ustSatirlar, numarali);
  if (yazilsin && yer == rapor.ustSatirlar.end()) {
    UstSatir& satir = SagiBosSatir(rapor);
    satir.sag = "Sayfa No : ";
    satir.sayfaNo = true;
  } else if (!yazilsin && yer != rapor.ustSatirlar.end()) {
    yer->sag.clear();
    yer->sayfaNo = yer->sayfaSayisi = false;
  }
}

}  // namespace

Rapor BasligiAyarla(Rapor rapor, const YzcAyarlari& ayar, const std::string& unvan, Tarih bugun) {
  rapor.baslik = ayar.YzcBaslikYaz ? ayar.YzcBaslik : std::string();
  SirketiAyarla(rapor, ayar.YzcSirketYaz, unvan);
  SayfaNoAyarla(rapor, ayar.YzcSayfaNoYaz);
  if (ayar.YzcTarihYaz) SagiBosSatir(rapor).sag = "Tarih : " + bugun.Metin();
  std::erase_if(rapor.ustSatirlar, [](const UstSatir& s) {
    return s.sol.empty() && s.orta.empty() && s.sag.empty() && !s.sayfaNo && !s.sayfaSayisi;
  });
  return rapor;
}

void Belge::Ayarla(const YzcAyarlari& ayar) {
  const YzcDestegi destek = Destek();
  const YzcAyarlari ilk = std::exchange(ayar_, ayar);
  const auto birak = [&](bool destekli, auto YzcAyarlari::*uye) {
    if (!destekli) ayar_.*uye = ilk.*uye;
  };
  birak(destek.baslik, &YzcAyarlari::YzcBaslikYaz);
  birak(destek.tarih, &YzcAyarlari::YzcTarihYaz);
  birak(destek.sayfaNo, &YzcAyarlari::YzcSayfaNoYaz);
  birak(destek.sirket, &YzcAyarlari::YzcSirketYaz);
  birak(destek.yon, &YzcAyarlari::YzcYon);
  birak(destek.satir, &YzcAyarlari::YzcSatir);
  AyarDegisti();
}

std::string Belge::Metin(Ilerleme* ilerleme) const {
  return MetinTopla([&](const MetinAlici& al) { MetinYap(al, ilerleme); });
}

std::string Belge::MetinAcilamadi() const {
  return DosDosyasiAcilamiyor;
}

std::string Belge::DosyaBasligi() const {
  const std::string baslik = Baslik().empty() ? ayar_.YzcBaslik : Baslik();
  return donem_.empty() ? baslik : baslik + " " + donem_;
}

RaporBelgesi::RaporBelgesi(Rapor rapor, YzcAyarlari ilk, GrafikDuzeni grafik, SayfaDuzeni sayfa, std::string unvan)
    : Belge(std::move(ilk)),
      ilk_(std::make_shared<const Rapor>(std::move(rapor))),
      tablo_(ilk_),
      kagit_(tablo_),
      grafik_(std::move(grafik)),
      sayfa_(sayfa),
      unvan_(std::move(unvan)) {}

YzcDestegi RaporBelgesi::Destek() const {
  const auto sirketli = [](const UstSatir& s) { return s.sirket && !s.sol.empty(); };
  return {.baslik = true,
          .tarih = true,
          .sayfaNo = true,
          .sirket = !unvan_.empty() || std::ranges::any_of(tablo_->ustSatirlar, sirketli),
          .yon = true,
          .satir = Ayar().YzcDosAcik};
}

void RaporBelgesi::AyarDegisti() {
  kagit_ = std::make_shared<Rapor>(BasligiAyarla(*tablo_, Ayar(), unvan_, Tarih::Bugun()));
  grafik_.yon = Ayar().YzcYon;
  sayfa_.satirSayisi = Ayar().YzcSatir;
}

void RaporBelgesi::Sirala(std::span<const int> sira) {
  tablo_ = std::make_shared<const Rapor>(ilk_->Sirali(sira));
  kagit_ = tablo_;
}

std::unique_ptr<CizilenBelge> RaporBelgesi::CizimYap(Ilerleme* ilerleme) const {
  return std::make_unique<GrafikRapor>(*kagit_, grafik_, ilerleme);
}

void RaporBelgesi::MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const {
  MetinRaporunuVer(*kagit_, sayfa_, al, ilerleme);
}

std::string RaporBelgesi::MetinUyarisi() const {
  const int en = KagitBicimle(*kagit_, sayfa_).en;
  if (en <= sayfa_.en) return {};
  return "Liste yazıcının satırına sığmıyor: satırlar " + std::to_string(en) + " harf, yazıcı en çok " +
         std::to_string(sayfa_.en) + " harf yazar. Kolon sayısını azaltınız.";
}

Sonuc<std::string> RaporBelgesi::XlsxYap(Ilerleme* ilerleme) const {
  return XlsxRaporu(*tablo_, ilerleme);
}

YaprakliBelge::YaprakliBelge(YaprakBelgesi yapraklar, SayfadaYaprak sayfada, YzcAyarlari ilk, VeriVeren veri)
    : Belge(std::move(ilk)), yapraklar_(std::move(yapraklar)), sayfada_(sayfada), veri_(std::move(veri)) {}

void YaprakliBelge::AyarDegisti() {
  yapraklar_.baslik = Ayar().YzcBaslikYaz ? Ayar().YzcBaslik : std::string();
}

std::unique_ptr<CizilenBelge> YaprakliBelge::CizimYap(Ilerleme* ilerleme) const {
  return std::make_unique<GrafikYapraklar>(yapraklar_, sayfada_, ilerleme);
}

void YaprakliBelge::MetinYap(const MetinAlici& al, Ilerleme* ilerleme) const {
  MetinYapraklariniVer(yapraklar_, {.satirSayisi = Ayar().YzcSatir}, al, ilerleme);
}

void YaprakliBelge::VeriyiVer(const RaporAlici& al) const {
  if (veri_) veri_(al);
}

std::shared_ptr<const Rapor> YaprakliBelge::Veri() const {
  std::shared_ptr<Rapor> hepsi;
  VeriyiVer([&](const Rapor& parca) {
    if (hepsi == nullptr)
      hepsi = std::make_shared<Rapor>(parca);
    else
      for (RaporSatiri satir : parca.Satirlar()) hepsi->Ekle(std::move(satir));
  });
  return hepsi;
}

Sonuc<std::string> YaprakliBelge::XlsxYap(Ilerleme* ilerleme) const {
  return XlsxYapraklari(yapraklar_, ilerleme);
}

std::unique_ptr<CizilenBelge> BelgeSayfalari(const Belge& belge, Ilerleme* ilerleme) {
  if (!belge.Ayar().YzcDosMod)
    if (auto cizim = belge.Cizim(ilerleme)) return cizim;
  return std::make_unique<MetinCizimi>(belge.Metin(ilerleme), belge.Ayar().YzcSatir);
}

Sonuc<PdfCiktisi> BelgePdf(const Belge& belge, Ilerleme* ilerleme) {
  if (std::string yok = belge.BaskiYok(); !yok.empty()) return KuralKusuru(std::move(yok));
  const auto sayfalar = BelgeSayfalari(belge, ilerleme);
  if (sayfalar->SayfaSayisi() == 0) return PdfCiktisi{};
  PdfTuvali tuval({.baslik = belge.Baslik()});
  SayfalariCiz(*sayfalar, tuval, ilerleme);
  auto baytlar = tuval.Belge();
  if (!baytlar) return baytlar.Kusuru();
  return PdfCiktisi{std::move(*baytlar), sayfalar->Uyari()};
}

std::string BelgeHam(const Belge& belge, Ilerleme* ilerleme) {
  return MetinBaytlari(belge.Metin(ilerleme));
}

}  // namespace belvani
