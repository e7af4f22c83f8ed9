#include "declarations/bildirgehesap.h"

#include "core/turkce.h"
#include "documents/turetilen.h"
#include "payroll/hesap/oran.h"

namespace belvani {
namespace {

constexpr int TamAyGunu = 30;
constexpr std::size_t UzunVadeBransi = 3;

// Columns of the rate tables for the branches 1 to 5.
constexpr std::array<Tek OranSatiri::*, BransSayisi - 1> OranKolonlari{
    &OranSatiri::ana, &OranSatiri::has, &OranSatiri::mal, &OranSatiri::sgdp, &OranSatiri::isz};

// Of both sides; `durum` from 0. A status beyond the table has none.
double BransOrani(const YasalOranlar& oranlar, int durum, std::size_t brans) {
  if (durum < 0 || durum >= DalSayisi) return 0;
  const auto kolon = OranKolonlari[brans - 1];
  const auto satir = std::size_t(durum);
  return (oranlar.IsciOran[satir].*kolon).Sayi() + (oranlar.IsverenOran[satir].*kolon).Sayi();
}

bool BransaGirer(const YasalParametreler& yasal, int durum, std::size_t brans) {
  if (brans > 0) return BransOrani(yasal.oranlar, durum, brans) > 0;
  return durum >= 0 && durum < int(yasal.hesapTurleri.size()) && yasal.hesapTurleri[std::size_t(durum)].isKazasi != 0;
}

void MatrahEkle(BildirgeToplamlari& t, const YasalParametreler& yasal, int durum, Tutar matrah) {
  for (std::size_t brans = 0; brans < BransSayisi; ++brans)
    if (BransaGirer(yasal, durum, brans)) t.*BransMatrahlari[brans] += matrah;
}

bool DonemIcinde(const BordroDonemi& donem, Tarih gun) {
  return !gun.Bos() && donem.Bas() <= gun && gun <= donem.Son();
}

std::optional<int> Pozitif(int sayi) {
  return sayi > 0 ? std::optional(sayi) : std::nullopt;
}

BildirgeSatiri SatirYap(const BildirgeKaydi& kayit, const BildirgeKosullari& k) {
  const Brd& brd = kayit.brd;
  const Sicil& sicil = kayit.sicil;
  const auto tutar = [&](Tutar t) { return TutarCevir(t, k.donem.yil, k.yuvarla); };
  const bool ayrildi = DonemIcinde(k.donem, sicil.ciktar);
  const Tutar yardimlar = tutar(brd.topyardim);
  return {
      .kod = brd.kod,
      .sigkol = sicil.sskdurum + 1,
      .sskno = sicil.sskno,
      .tcno = kayit.tcno,
      .adi = sicil.adi,
      .soyadi = sicil.soyadi,
      .ilksoyadi = sicil.ilksoyadi,
      .primkazanc = tutar(brd.sskmatrahisveren),
      .ikramiye = yardimlar,
      .gun = GunToplami(brd),
      .ui = brd.ui,
      .uiucret = tutar(brd.ucrizmatrah),
      .girtar = DonemIcinde(k.donem, sicil.girtar) ? sicil.girtar : Tarih(),
      .ciktar = ayrildi ? sicil.ciktar : Tarih(),
      .eksik = brd.ucretsizizin > 0 ? std::optional<int>(brd.eksiksebebi) : std::nullopt,
      .eksikgunsayisi = Pozitif(brd.ucretsizizin),
      .ciksebeb = ayrildi ? Pozitif(sicil.cikiskodu) : std::nullopt,
      .farkmivar = kayit.farkVar ? 1 : 0,
      .kanun = std::string(Kirp(sicil.kanun)),
      .primdisi = yardimlar,
      .meslekkod = sicil.meslekkod,
      .rapcalismadi = brd.rapcalismadi,
  };
}

void ToplamlaraEkle(BildirgeToplamlari& t, const BildirgeKaydi& kayit, const BildirgeKosullari& k) {
  const Brd& brd = kayit.brd;
  const int gun = GunToplami(brd);
  t.sigortali += brd.sskmatrah > Tutar();
  t.gun += gun;
  t.giren += DonemIcinde(k.donem, kayit.sicil.girtar);
  t.ayrilan += DonemIcinde(k.donem, kayit.sicil.ciktar);
  if (brd.ucretsizizin > 0 && brd.ucretsizizin < TamAyGunu) {
    ++t.ucretsizIzinli;
    t.ucretsizGun += brd.ucretsizizin;
  }
  if (brd.ui > 0) {
    ++t.ucretliIzinli;
    t.ucretliGun += brd.ui;
    t.ucretliKazanc += TutarCevir(brd.ucrizmatrah, k.donem.yil, k.yuvarla);
  }
  if (gun > 0) MatrahEkle(t, k.yasal, kayit.sicil.sskdurum, TutarCevir(brd.sskmatrahisveren, k.donem.yil, k.yuvarla));
}

}  // namespace

int SatirEkle(Bildirge& bildirge, BildirgeSatiri satir) {
  satir.no = ++bildirge.sonNo;
  bildirge.satirlar.push_back(std::move(satir));
  return bildirge.sonNo;
}

void KaydiEkle(Bildirge& bildirge, const BildirgeKaydi& kayit, const BildirgeKosullari& kosullar) {
  if (!kayit.kimlikVar) {
    bildirge.kimliksizler.push_back(kayit.brd.kod);
    return;
  }
  SatirEkle(bildirge, SatirYap(kayit, kosullar));
  ToplamlaraEkle(bildirge.toplamlar, kayit, kosullar);
  bildirge.DevletKatki += TutarCevir(kayit.brd.katki, kosullar.donem.yil, kosullar.yuvarla);
}

BildirgeToplamlari ToplamlariYenile(const std::vector<BildirgeSatiri>& satirlar, const YasalParametreler& yasal) {
  BildirgeToplamlari t;
  for (const auto& satir : satirlar) {
    const int belgeTuru = satir.sigkol.value_or(0);
    if (belgeTuru <= 0) continue;
    const int gun = satir.gun.value_or(0);
    ++t.sigortali;
    t.gun += gun;
    t.giren += !satir.girtar.Bos();
    t.ayrilan += !satir.ciktar.Bos();
    if (const int sebep = satir.eksik.value_or(0); sebep > 0) {
      ++t.ucretsizIzinli;
      t.ucretsizGun += sebep;
    }
    if (gun > 0) {
      ++t.ucretliIzinli;
      t.ucretliGun += satir.ui.value_or(0);
      t.ucretliKazanc += satir.uiucret.value_or(Tutar());
    }
    MatrahEkle(t, yasal, belgeTuru - 1, satir.primkazanc.value_or(Tutar()));
  }
  return t;
}

BransOranlari PrimOranlari(const YasalParametreler& yasal, int belgeTuru, Tek tehlikeOrani) {
  BransOranlari PrimOran{tehlikeOrani};
  for (std::size_t brans = 1; brans < BransSayisi; ++brans) {
    const int tumu = brans == UzunVadeBransi ? 1 : 0;
    PrimOran[brans] = Tek(BransOrani(yasal.oranlar, belgeTuru > 0 ? belgeTuru - 1 : tumu, brans));
  }
  return PrimOran;
}

BildirgePrimleri PrimleriHesapla(const BildirgeToplamlari& toplamlar, const BransOranlari& PrimOran, Tutar DevletKatki,
                                 Yuvarlayici yuvarla) {
  BildirgePrimleri prim;
  for (std::size_t brans = 0; brans < BransSayisi; ++brans) {
    prim.primler[brans] = PrimPayi(toplamlar.*BransMatrahlari[brans], PrimOran[brans], yuvarla);
    prim.genelToplam += prim.primler[brans];
  }
  prim.primler[AnalikBransi] = Tutar() - DevletKatki;
  return prim;
}

}  // namespace belvani
