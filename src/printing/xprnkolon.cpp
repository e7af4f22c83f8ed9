// The column mode of xprn.
#include <algorithm>

#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/doskod.h"
#include "printing/xprn.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokKolon = 255;
constexpr int MetinModu = 2;
constexpr int AdliPort = 4;      // the fifth port is chosen by its number only
constexpr int BaslikAlani = 17;  // letters in whose middle the title stands
constexpr int SagAlan = 21;      // letters of "Tarih    : 01.01.2008" at the right end
constexpr int SayfaNoHaneleri = 5;

std::string TarihAlani(const Hucre& deger, xprnTuru tur, int en) {
  const auto* tarih = std::get_if<Tarih>(&deger);
  if (tarih == nullptr) return SolBosluk("", en);
  return SolBosluk(tur == xprnTuru::Tarih ? tarih->Metin() : tarih->KisaMetin(), en);
}

}  // namespace

void xprn::AddKolon(xprnKolonu kolon) {
  if (kolonlar_.size() >= EnCokKolon) return;
  if (!Kirp(kolon.baslik2).empty()) ikiSatirBaslik_ = true;
  kolonlar_.push_back({std::move(kolon)});
}

void xprn::xprnReset() {
  kolonlar_.clear();
  ikiSatirBaslik_ = false;
  sayfaNo_ = 0;
  satir_ = 0;
  sonuSoylendi_ = false;
  acik_ = true;
}

bool xprn::xprnOpen(int mod) {
  mod_ = mod == 1 || mod == 2 ? prnxTuru(ayar_) : mod;
  if (mod_ == 1 || mod_ == MetinModu) satir_ = 0;
  if (mod_ == MetinModu) {
    if (const int no = PortNo(ortam_.portAdi); no >= 0 && no < AdliPort) portNo_ = no;
    acik_ = CheckDosPrint() && (!dosya_.empty() || OpenDosPrint());
    if (acik_ && xprnCondencePrint) DosDirectPrint(DosSikisik.ac, SatirSonu::Yok);
  }
  int en = int(kolonlar_.size()) - 2;
  for (const auto& kolon : kolonlar_) en += kolon.tanim.en;
  xprnYzcEn = std::max(en, 0);
  return acik_;
}

Durum xprn::xprnClose() {
  Durum durum = Tamam();
  if (mod_ == MetinModu) {
    if (acik_ && xprnCondencePrint) DosDirectPrint(std::string(DosSikisik.kapat).append(DosSayfaAt), SatirSonu::Yok);
    durum = CloseDosPrint();
  }
  acik_ = false;
  return durum;
}

void xprn::Bilgi(int kolon, Hucre deger) {
  if (kolon >= 0 && kolon < int(kolonlar_.size())) kolonlar_[std::size_t(kolon)].deger = std::move(deger);
}

void xprn::Bilgi(int kolon, DosBicem bicem, Hucre deger) {
  Bilgi(kolon, std::move(deger));
  if (kolon >= 0 && kolon < int(kolonlar_.size())) kolonlar_[std::size_t(kolon)].bicem = bicem;
}

Hucre xprn::Bilgi(int kolon) const {
  return kolon >= 0 && kolon < int(kolonlar_.size()) ? kolonlar_[std::size_t(kolon)].deger : Hucre();
}

void xprn::xprnOnda(int kolon, int ondalik) {
  if (kolon >= 0 && kolon < int(kolonlar_.size())) kolonlar_[std::size_t(kolon)].tanim.ondalik = ondalik;
}

std::string xprn::Alan(const Kolon& kolon) const {
  const int en = kolon.tanim.en;
  if (BicemVar(kolon.bicem, DosBicem::TireDizisi)) return Yinele("-", en);
  switch (kolon.tanim.tur) {
    case xprnTuru::Metin:
      return SagBosluk(DuzMetin(kolon.deger), en);
    case xprnTuru::Sayi:
      return SolBosluk(SayiFormat(DuzMetin(kolon.deger), kolon.tanim.ondalik, BinlikGruplama), en);
    case xprnTuru::Tarih:
    case xprnTuru::KisaTarih:
      return TarihAlani(kolon.deger, kolon.tanim.tur, en);
    case xprnTuru::Bos:
      return {};
  }
  return {};
}

bool xprn::LPrn() {
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
    satir += Alan(kolonlar_[k]);
    kod(DosBicem::Ucuncu, xprnUcuncu.kapat);
    kod(DosBicem::Ikinci, xprnIkinci.kapat);
    kod(DosBicem::Kalin, DosKalin.kapat);
  }
  return SatirYaz(satir);
}

bool xprn::LPrn(std::string_view harf) {
  return SatirYaz(Cizgi(IlkHarfler(harf, 1)));
}

std::string xprn::Cizgi(std::string_view harf) const {
  std::string satir;
  for (const Kolon& kolon : kolonlar_) satir += (&kolon == &kolonlar_[0] ? "" : " ") + Yinele(harf, kolon.tanim.en);
  return satir;
}

// An owner that prints no head gets the plain one: otherwise he would be asked without end.
bool xprn::SatirYaz(const std::string& satir) {
  if (!acik_ || mod_ != MetinModu) return false;
  if (satir_ == 0 && SayfaBasi) SayfaBasi(sayfaNo_);
  if (acik_ && satir_ == 0) xPrnNewPage("");
  if (!DosDirectPrint(satir, SatirSonu::Var)) return false;
  ++satir_;
  if (!sonuSoylendi_ && satir_ >= ayar_.YzcSatir - SonSat) {
    sonuSoylendi_ = true;
    if (SayfaSonu) SayfaSonu(satir_);
  }
  return true;
}

void xprn::xPrnNewPage(const std::string& baslik) {
  ++sayfaNo_;
  if (mod_ != MetinModu) return;
  sonuSoylendi_ = false;
  SayfaBasligi(baslik);
}

void xprn::SayfaBasligi(const std::string& baslik) {
  const auto satir = [&](const std::string& metin) {
    if (DosDirectPrint(metin, SatirSonu::Var)) ++satir_;
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
  satir(ikiUc(ayar_.YzcSirketYaz ? ortam_.unvan : "", ayar_.YzcTarihYaz ? "Tarih    : " + ortam_.bugun().Metin() : ""));
  std::string no = std::to_string(sayfaNo_);
  no.insert(0, Yinele("0", SayfaNoHaneleri - int(no.size())));
  satir(ikiUc(baslik, ayar_.YzcSayfaNoYaz ? "Sayfa No : " + no + "     " : ""));
  if (ikiSatirBaslik_) satir(basliklar(&xprnKolonu::baslik2));
  satir(basliklar(&xprnKolonu::baslik1));
  satir(Cizgi("-"));
  satir("");
}

void xprn::xPrnEndPage() {
  if (mod_ != MetinModu) return;
  for (; satir_ < ayar_.YzcSatir; ++satir_)
    if (!DosDirectPrint("", SatirSonu::Var)) break;
  satir_ = 0;
}

}  // namespace belvani
