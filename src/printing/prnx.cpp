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

double YazilirEn(const YzcAyarlari& ayar) {
  return A4(ayar.YzcYon).en - 2 * KenarMm;
}

// As many blanks before as behind, so one letter short of n where they cannot be shared.
std::string Ortala(std::string_view metin, int n) {
  const int bosluk = std::max(0, (n - int(HarfSayisi(metin))) / 2);
  const std::string bos(std::size_t(bosluk), ' ');
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
  sonHata_.clear();
  if (tur == 1) return GrafikAc(acilis);
  if (tur == 2) return HamAc(baslik, acilis);
  if (tur == 3 || tur == 4) tur_ = Tur::Bos;
  return tur_ == Tur::Bos;
}

bool prnx::GrafikAc(const prnxAcilis& acilis) {
  tur_ = Tur::Grafik;
  kolon_ = KolonSayisi(acilis);
  yazi_ = {.punto = std::max(Font.fontsize, 1.0), .aile = AileBul(Font.fontname)};
  YaziBicimi kalin = yazi_;
  kalin.kalinlik = YaziKalinligi::Kalin;
  satirBoyu_ = SatirBoyu(kalin);
  ayar_.YzcSatir = std::min(int((A4(ayar_.YzcYon).boy - 2 * KenarMm) / satirBoyu_), EnCokSatir);
  return true;
}

bool prnx::HamAc(const std::string& baslik, const prnxAcilis& acilis) {
  tampon_ = acilis.condensed ? DosSikisik.ac : "";
  const Durum durum = ham_.Ac(ayar_.yazici, ayar_.YzcBaslik.empty() ? baslik : ayar_.YzcBaslik, ayar_.YzcKopya);
  if (!durum) sonHata_ = durum.KusurMetni();
  if (durum) tur_ = Tur::Ham;
  return bool(durum);
}

Durum prnx::ClosePrinter() {
  if (tur_ == Tur::Grafik && sayfaAcik_) SayfaBitti(SayfaDibi::Birak);
  return std::exchange(tur_, Tur::Kapali) == Tur::Ham ? ham_.Kapat() : Tamam();
}

int prnx::YeniSayfa() {
  if (tur_ == Tur::Grafik) {
    if (sayfaAcik_) tuval_.SayfaBitir();
    tuval_.SayfaBasla(A4(ayar_.YzcYon));
  }
  sayfaAcik_ = true;
  satir_ = 0;
  x_ = KenarMm;
  y_ = KenarMm;
  return ++sayfa_;
}

void prnx::SayfaBitti(SayfaDibi dip) {
  if (tur_ == Tur::Grafik && sayfaAcik_) tuval_.SayfaBitir();
  if (tur_ == Tur::Ham) {
    if (dip == SayfaDibi::Birak) return;
    while (satir_ <= ayar_.YzcSatir) Lprint(" ", 0, SatirSonu::Var);
  }
  sayfaAcik_ = false;
  satir_ = 0;
}

double prnx::HucreEni(int en) const {
  return YazilirEn(ayar_) / kolon_ * en;
}

void prnx::SatirAtla() {
  ++satir_;
  x_ = KenarMm;
  y_ += satirBoyu_;
}

void prnx::Lprint(std::string_view metin, int en, SatirSonu sonu, MetinHizasi hiza, HucreBicem bicem) {
  if (tur_ == Tur::Ham) return HamHucre(metin, en, sonu, hiza, bicem);
  if (tur_ != Tur::Grafik) return;
  GrafikHucre(metin, en < 1 ? int(HarfSayisi(metin)) : en, hiza, bicem);
  if (sonu == SatirSonu::Var) SatirAtla();
}

void prnx::GrafikHucre(std::string_view metin, int en, MetinHizasi hiza, HucreBicem bicem) {
  YaziBicimi yazi = yazi_;
  if (BicemVar(bicem, HucreBicem::Kalin)) yazi.kalinlik = YaziKalinligi::Kalin;
  if (BicemVar(bicem, HucreBicem::Egik)) yazi.durus = YaziDurusu::Egik;
  const Dikdortgen hucre{x_, y_, HucreEni(en), satirBoyu_};
  MetinKutuya(tuval_, hucre, metin, yazi, hiza);
  const double metinEni = std::min(MetinEni(metin, yazi), hucre.en);
  const double pay = hiza == MetinHizasi::Sol ? 0 : hiza == MetinHizasi::Sag ? 1 : 0.5;
  const double bas = x_ + (hucre.en - metinEni) * pay;
  const auto ciz = [&](double y) { tuval_.Cizgi({bas, y}, {bas + metinEni, y}); };
  if (BicemVar(bicem, HucreBicem::UstuCizili)) ciz(y_ + satirBoyu_ / 2);
  if (BicemVar(bicem, HucreBicem::AltiCizili)) ciz(y_ + satirBoyu_ - satirBoyu_ / AltCizgiOrani);
  x_ += hucre.en;
}

void prnx::HamHucre(std::string_view metin, int en, SatirSonu sonu, MetinHizasi hiza, HucreBicem bicem) {
  std::string baytlar = DosBaytlari(HamAlan(metin, en, hiza));
  if (BicemVar(bicem, HucreBicem::Kalin)) baytlar = DosSar(baytlar, DosKalin);
  if (BicemVar(bicem, HucreBicem::Egik)) baytlar = DosSar(baytlar, prnxEgik);
  if (BicemVar(bicem, HucreBicem::UstuCizili)) baytlar = DosSar(baytlar, prnxUcuncu);
  tampon_ += baytlar;
  if (sonu == SatirSonu::Yok) return;
  ham_.Yaz(std::exchange(tampon_, {}).append(DosSatirSonu));
  ++satir_;
}

void prnx::LinePrint(int en, SatirSonu sonu) {
  if (tur_ == Tur::Ham) return HamHucre(std::string(std::size_t(std::max(en, 0)), '_'), 0, sonu, MetinHizasi::Sol, {});
  if (tur_ != Tur::Grafik) return;
  const double sag = x_ + HucreEni(en);
  tuval_.Cizgi({x_, y_ + satirBoyu_ / 2}, {sag, y_ + satirBoyu_ / 2});
  x_ = sag;
  if (sonu == SatirSonu::Var) SatirAtla();
}

}  // namespace belvani
