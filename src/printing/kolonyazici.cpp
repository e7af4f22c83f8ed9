#include "printing/kolonyazici.h"

#include <algorithm>

#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokKolon = 255;
constexpr int BaslikAlani = 17;  // letters in whose middle the title stands
constexpr int SagAlan = 21;      // letters of "Tarih    : 01.01.2008" at the right end
constexpr int SayfaNoHaneleri = 5;

std::string TarihAlani(const Hucre& deger, xprnTuru tur, int en) {
  const auto* tarih = std::get_if<Tarih>(&deger);
  if (tarih == nullptr) return SolBosluk("", en);
  return SolBosluk(tur == xprnTuru::Tarih ? tarih->Metin() : tarih->KisaMetin(), en);
}

std::string Alan(const xprnKolonu& kolon, const Hucre& deger) {
  switch (kolon.tur) {
    case xprnTuru::Metin:
      return SagBosluk(DuzMetin(deger), kolon.en);
    case xprnTuru::Sayi:
      return SolBosluk(SayiFormat(DuzMetin(deger), kolon.ondalik, BinlikGruplama), kolon.en);
    case xprnTuru::Tarih:
    case xprnTuru::KisaTarih:
      return TarihAlani(deger, kolon.tur, kolon.en);
    case xprnTuru::Bos:
      return {};
  }
  return {};
}

}  // namespace

KolonYazici::KolonYazici(const YzcAyarlari& ayar, std::string unvan, std::function<Tarih()> bugun)
    : ayar_(ayar), unvan_(std::move(unvan)), bugun_(std::move(bugun)) {}

void KolonYazici::AddKolon(xprnKolonu kolon) {
  if (kolonlar_.size() >= EnCokKolon) return;
  if (!Kirp(kolon.baslik2).empty()) ikiSatirBaslik_ = true;
  kolonlar_.push_back({std::move(kolon)});
}

void KolonYazici::xprnReset() {
  kolonlar_.clear();
  ikiSatirBaslik_ = false;
  sayfaNo_ = 0;
  satir_ = 0;
  sonuSoylendi_ = false;
  acik_ = true;
}

bool KolonYazici::xprnOpen(int mod) {
  mod_ = mod == 1 || mod == MetinModu ? prnxTuru(ayar_) : mod;
  if (mod_ == MetinModu) YoluAc();
  satir_ = 0;
  int en = int(kolonlar_.size()) - 2;
  for (const auto& kolon : kolonlar_) en += kolon.tanim.en;
  xprnYzcEn = std::max(en, 0);
  return acik_;
}

Durum KolonYazici::xprnClose() {
  const Durum durum = mod_ == MetinModu ? YoluKapat() : Tamam();
  acik_ = false;
  return durum;
}

void KolonYazici::Bilgi(int kolon, Hucre deger) {
  if (kolon >= 0 && kolon < int(kolonlar_.size())) kolonlar_[std::size_t(kolon)].deger = std::move(deger);
}

void KolonYazici::Bilgi(int kolon, DosBicem bicem, Hucre deger) {
  Bilgi(kolon, std::move(deger));
  if (kolon >= 0 && kolon < int(kolonlar_.size())) kolonlar_[std::size_t(kolon)].bicem = bicem;
}

Hucre KolonYazici::Bilgi(int kolon) const {
  return kolon >= 0 && kolon < int(kolonlar_.size()) ? kolonlar_[std::size_t(kolon)].deger : Hucre();
}

void KolonYazici::xprnOnda(int kolon, int ondalik) {
  if (kolon >= 0 && kolon < int(kolonlar_.size())) kolonlar_[std::size_t(kolon)].tanim.ondalik = ondalik;
}

bool KolonYazici::LPrn() {
  std::string satir;
  for (std::size_t k = 0; k < kolonlar_.size(); ++k) {
    const DosBicem bicem = kolonlar_[k].bicem;
    const auto kod = [&](DosBicem biri, std::string_view baytlar) {
      if (BicemVar(bicem, biri)) satir += baytlar;
    };
    kod(DosBicem::Kalin, DosKalin.ac);
    kod(DosBicem::Ikinci, xprnIkinci.ac);
    kod(DosBicem::Ucuncu, xprnUcuncu.ac);
    if (k > 0) satir += ' ';
    const xprnKolonu& tanim = kolonlar_[k].tanim;
    satir += BicemVar(bicem, DosBicem::TireDizisi) ? Yinele("-", tanim.en) : Alan(tanim, kolonlar_[k].deger);
    kod(DosBicem::Ucuncu, xprnUcuncu.kapat);
    kod(DosBicem::Ikinci, xprnIkinci.kapat);
    kod(DosBicem::Kalin, DosKalin.kapat);
  }
  return SatirYaz(satir);
}

bool KolonYazici::LPrn(std::string_view harf) {
  return SatirYaz(Cizgi(IlkHarfler(harf, 1)));
}

std::string KolonYazici::Cizgi(std::string_view harf) const {
  std::string satir;
  for (const Kolon& kolon : kolonlar_) satir += (&kolon == &kolonlar_[0] ? "" : " ") + Yinele(harf, kolon.tanim.en);
  return satir;
}

// An owner that prints no head gets the plain one: otherwise he would be asked without end.
bool KolonYazici::SatirYaz(const std::string& satir) {
  if (!SatirAlir()) return false;
  if (satir_ == 0 && SayfaBasi) SayfaBasi(sayfaNo_);
  if (SatirAlir() && satir_ == 0) xPrnNewPage("");
  if (!SatirVer(satir)) return false;
  ++satir_;
  if (!sonuSoylendi_ && satir_ >= ayar_.YzcSatir - SonSat) {
    sonuSoylendi_ = true;
    if (SayfaSonu) SayfaSonu(satir_);
  }
  return true;
}

void KolonYazici::xPrnNewPage(const std::string& baslik) {
  ++sayfaNo_;
  if (!SatirAlir()) return;
  sonuSoylendi_ = false;
  SayfaBasligi(baslik);
}

void KolonYazici::SayfaBasligi(const std::string& baslik) {
  const auto satir = [&](const std::string& metin) {
    if (SatirVer(metin)) ++satir_;
  };
  const auto ikiUc = [&](const std::string& sol, const std::string& sag) {
    return SagBosluk(sol, std::max(xprnYzcEn - SagAlan, 0)) + sag;
  };
  const auto basliklar = [&](std::string xprnKolonu::*hangisi) {
    std::string sonuc;
    for (std::size_t k = 0; k < kolonlar_.size(); ++k)
      sonuc += (k > 0 ? " " : "") + SagBosluk(kolonlar_[k].tanim.*hangisi, kolonlar_[k].tanim.en);
    return sonuc;
  };
  satir_ = 0;
  satir("");
  satir(OrtalaMetin(ayar_.YzcBaslik, BaslikAlani));
  satir(ikiUc(ayar_.YzcSirketYaz ? unvan_ : "", ayar_.YzcTarihYaz ? "Tarih    : " + bugun_().Metin() : ""));
  std::string no = std::to_string(sayfaNo_);
  no.insert(0, Yinele("0", SayfaNoHaneleri - int(no.size())));
  satir(ikiUc(baslik, ayar_.YzcSayfaNoYaz ? "Sayfa No : " + no + "     " : ""));
  if (ikiSatirBaslik_) satir(basliklar(&xprnKolonu::baslik2));
  satir(basliklar(&xprnKolonu::baslik1));
  satir(Cizgi("-"));
  satir("");
}

void KolonYazici::xPrnEndPage() {
  if (!SatirAlir()) return;
  for (; satir_ < ayar_.YzcSatir; ++satir_)
    if (!SatirVer("")) break;
  satir_ = 0;
}

}  // namespace belvani
