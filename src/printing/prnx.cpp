#include "printing/prnx.h"

#include <algorithm>

#include "core/turkce.h"
#include "printing/doskod.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

constexpr int EnCokSatir = 255;
constexpr int AltCizgiOrani = 8;  // an underline lies an eighth of the line above its lower edge

int KolonSayisi(const prnxAcilis& acilis) {
  if (acilis.kolon != 0) return std::max(acilis.kolon, 1);
  return acilis.large ? 228 : acilis.condensed ? 132 : 80;
}

// As many blanks before as behind, so one letter short of n where they cannot be shared.
std::string Ortala(std::string_view metin, int n) {
  const std::string bos = Yinele(" ", (n - int(HarfSayisi(metin))) / 2);
  return std::string(IlkHarfler(bos + std::string(metin) + bos, std::size_t(std::max(n, 0))));
}

std::string HamAlan(std::string_view metin, int en, MetinHizasi hiza) {
  if (en < 1) return std::string(metin);
  switch (hiza) {
    case MetinHizasi::Sol:
      return SagBosluk(metin, en);
    case MetinHizasi::Sag:
      return SolBosluk(metin, en);
    case MetinHizasi::Orta:
      return Ortala(metin, en);
  }
  return {};
}

}  // namespace

bool prnx::OpenPrinter(int tur, const std::string& baslik, prnxAcilis acilis) {
  tur_ = Tur::Kapali;
  sayfa_ = 0;
  satir_ = 0;
  sayfaAcik_ = false;
  harfIzgarasi_ = false;
  sonHata_.clear();
  if (tur == 1) return GrafikAc(acilis);
  if (tur == 2) return HamAc(baslik, acilis);
  if (tur == 3 || tur == 4) tur_ = Tur::Bos;
  return tur_ == Tur::Bos;
}

prnxIzgara prnx::AyarinIzgarasi(const prnxAcilis& acilis) const {
  const KagitBoyu kagit = A4(ayar_.YzcYon);
  const YaziBicimi yazi{.punto = std::max(Font.fontsize, 1.0), .aile = AileBul(Font.fontname)};
  YaziBicimi kalin = yazi;
  kalin.kalinlik = YaziKalinligi::Kalin;
  return {.kagit = kagit,
          .bas = {KenarMm, KenarMm},
          .harfEni = (kagit.en - 2 * KenarMm) / KolonSayisi(acilis),
          .satirBoyu = SatirBoyu(kalin),
          .yazi = yazi};
}

bool prnx::GrafikAc(const prnxAcilis& acilis) {
  if (tuval_ == nullptr) return false;
  tur_ = Tur::Grafik;
  harfIzgarasi_ = acilis.izgara.has_value();
  izgara_ = acilis.izgara ? *acilis.izgara : AyarinIzgarasi(acilis);
  if (!harfIzgarasi_) ayar_.YzcSatir = std::min(int((izgara_.kagit.boy - 2 * KenarMm) / izgara_.satirBoyu), EnCokSatir);
  return true;
}

bool prnx::HamAc(const std::string& baslik, const prnxAcilis& acilis) {
  if (ham_ == nullptr) return false;
  tampon_ = acilis.condensed ? DosSikisik.ac : "";
  const Durum durum = ham_->Ac(ayar_.yazici, ayar_.YzcBaslik.empty() ? baslik : ayar_.YzcBaslik, ayar_.YzcKopya);
  if (!durum) sonHata_ = durum.KusurMetni();
  if (durum) tur_ = Tur::Ham;
  return bool(durum);
}

Durum prnx::ClosePrinter() {
  if (tur_ == Tur::Grafik && sayfaAcik_) SayfaBitti(SayfaDibi::Birak);
  if (std::exchange(tur_, Tur::Kapali) != Tur::Ham) return Tamam();
  if (!tampon_.empty()) ham_->Yaz(std::exchange(tampon_, {}));
  return ham_->Kapat();
}

int prnx::YeniSayfa() {
  if (tur_ == Tur::Grafik) {
    if (sayfaAcik_) tuval_->SayfaBitir();
    tuval_->SayfaBasla(izgara_.kagit);
  }
  sayfaAcik_ = true;
  satir_ = 0;
  x_ = izgara_.bas.x;
  y_ = izgara_.bas.y;
  return ++sayfa_;
}

void prnx::SayfaBitti(SayfaDibi dip) {
  if (tur_ == Tur::Grafik && sayfaAcik_) tuval_->SayfaBitir();
  if (tur_ == Tur::Ham) {
    if (dip == SayfaDibi::Birak) return;
    if (dip == SayfaDibi::At) tampon_ += DosSayfaAt;
    while (dip == SayfaDibi::Doldur && satir_ <= ayar_.YzcSatir) Lprint(" ", 0, SatirSonu::Var);
  }
  sayfaAcik_ = false;
  satir_ = 0;
}

void prnx::SatirAtla() {
  ++satir_;
  x_ = izgara_.bas.x;
  y_ += izgara_.satirBoyu;
}

void prnx::Lprint(std::string_view metin, int en, SatirSonu sonu, MetinHizasi hiza, HucreBicem bicem) {
  if (tur_ == Tur::Ham) return HamHucre(metin, en, sonu, hiza, bicem);
  if (tur_ != Tur::Grafik) return;
  GrafikHucre(metin, en < 1 ? int(HarfSayisi(metin)) : en, hiza, bicem);
  if (sonu == SatirSonu::Var) SatirAtla();
}

void prnx::GrafikHucre(std::string_view metin, int en, MetinHizasi hiza, HucreBicem bicem) {
  YaziBicimi yazi = izgara_.yazi;
  if (BicemVar(bicem, HucreBicem::Kalin)) yazi.kalinlik = YaziKalinligi::Kalin;
  if (BicemVar(bicem, HucreBicem::Egik)) yazi.durus = YaziDurusu::Egik;
  const Dikdortgen hucre{x_, y_, izgara_.harfEni * en, izgara_.satirBoyu};
  MetinKutuya(*tuval_, hucre, metin, yazi, hiza);
  const auto ciz = [&](double y) {
    const double metinEni = std::min(MetinEni(metin, yazi), hucre.en);
    const double pay = hiza == MetinHizasi::Sol ? 0 : hiza == MetinHizasi::Sag ? 1 : 0.5;
    const double bas = hucre.x + (hucre.en - metinEni) * pay;
    tuval_->Cizgi({bas, y}, {bas + metinEni, y});
  };
  if (BicemVar(bicem, HucreBicem::UstuCizili)) ciz(y_ + hucre.boy / 2);
  if (BicemVar(bicem, HucreBicem::AltiCizili)) ciz(y_ + hucre.boy - hucre.boy / AltCizgiOrani);
  x_ += hucre.en;
}

void prnx::HamHucre(std::string_view metin, int en, SatirSonu sonu, MetinHizasi hiza, HucreBicem bicem) {
  std::string baytlar = DosBaytlari(HamAlan(metin, en, hiza));
  if (BicemVar(bicem, HucreBicem::Kalin)) baytlar = DosSar(baytlar, DosKalin);
  if (BicemVar(bicem, HucreBicem::Egik)) baytlar = DosSar(baytlar, prnxEgik);
  if (BicemVar(bicem, HucreBicem::UstuCizili)) baytlar = DosSar(baytlar, prnxUcuncu);
  tampon_ += baytlar;
  if (sonu == SatirSonu::Yok) return;
  ham_->Yaz(std::exchange(tampon_, {}).append(DosSatirSonu));
  ++satir_;
}

void prnx::LinePrint(int en, SatirSonu sonu) {
  if (tur_ == Tur::Ham || harfIzgarasi_) return Lprint(Yinele("_", en), 0, sonu);
  if (tur_ != Tur::Grafik) return;
  const double sag = x_ + izgara_.harfEni * en;
  const double orta = y_ + izgara_.satirBoyu / 2;
  tuval_->Cizgi({x_, orta}, {sag, orta});
  x_ = sag;
  if (sonu == SatirSonu::Var) SatirAtla();
}

}  // namespace belvani
