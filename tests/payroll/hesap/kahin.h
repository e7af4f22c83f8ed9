// A second telling of the whole calculation, straight down and naive, to judge the engine by: same arithmetic
// convention (a product in double, a store to four decimals, a money rounding only where a rule names it), own code.
#pragma once

#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "payroll/hesap/bordro.h"
#include "payroll/hesap/netbrut.h"

namespace belvani::test {

// A number of lira that keeps four decimals, ties to even, whenever it is stored.
class Para {
 public:
  Para(double sayi = 0) : sayi_(std::nearbyint(sayi * 10000) / 10000) {}
  Para(Tutar t) : Para(double(t.Ham()) / 10000) {}
  operator double() const { return sayi_; }
  Para& operator+=(double d) { return *this = Para(sayi_ + d); }
  Para& operator-=(double d) { return *this = Para(sayi_ - d); }

 private:
  double sayi_;
};

inline double ParaYuvarla(double deger, int paraonda) {
  const double carpan = std::pow(10.0, paraonda);
  return std::nearbyint((deger + 0.00005) * carpan) / carpan;
}

// The tax of a year-to-date base, bracket by bracket.
inline Para KahinVergi(const GvTablosu& tablo, Para m) {
  Para vergi;
  Para onceki;
  for (std::size_t i = 0; i < 8; ++i) {
    const Para limit = tablo.GvLimit[i];
    const double oran = tablo.GvOran[i].Sayi();
    if (limit <= 0) continue;
    if (limit > m) {
      vergi += Para(Para(m - onceki) * oran / 100);
      break;
    }
    vergi += Para(Para(limit - onceki) * oran / 100);
    onceki = limit;
  }
  return vergi;
}

// An amount: what the two walks differ by.
inline Para KahinAylikVergi(const GvTablosu& tablo, Para devmatrah, Para matrah) {
  return KahinVergi(tablo, devmatrah + matrah) - KahinVergi(tablo, devmatrah);
}

// The net that a month of plain wage leaves of a gross.
inline Para KahinNet(const GvTablosu& tablo, double brut, const NettenBrutKosullari& k) {
  const auto yuv = [&](double d) { return Para(ParaYuvarla(d, k.paraonda)); };
  const Para ssk = yuv(std::fmin(brut, Para(k.SskTavan)) * k.oran / 100);
  Para kalan = yuv(Para(brut - ssk));
  kalan = yuv(Para(kalan - yuv(KahinAylikVergi(tablo, k.devmatrah, kalan))));
  return yuv(Para(kalan - yuv(brut * k.damgaoran / 1000)));
}

inline Para KahinNettenBrut(const GvTablosu& tablo, Para net, const NettenBrutKosullari& k) {
  Para ust = 5 * net;
  Para alt = 0;
  for (;;) {
    const std::pair<double, double> once{alt, ust};
    const Para orta = ParaYuvarla((ust + alt) / 2, k.paraonda);
    const Para kalan = KahinNet(tablo, orta, k);
    if (kalan == net) return ParaYuvarla(orta, k.paraonda);
    (kalan > net ? ust : alt) = ParaYuvarla(orta, k.paraonda);
    if (alt >= ust) return ParaYuvarla(orta, k.paraonda);
    if (once == std::pair<double, double>{alt, ust}) return ParaYuvarla(orta, k.paraonda);  // stands still for ever
  }
}

class Kahin {
 public:
  explicit Kahin(const BordroGirdi& girdi) : g(girdi) {}

  BordroSonucu Anlat(const Sablon* sablon = nullptr) {
    const Brd& b = g.giris;
    gunler = {b.ng, b.ht, b.ui, b.rt, b.mi, b.ha};
    for (const int gun : gunler) SskGun += gun;
    yardim = {b.yrd01, b.yrd02, b.yrd03, b.yrd04, b.yrd05, b.yrd06, b.yrd07, b.yrd08, b.yrd09, b.yrd10, b.yrd11};
    if (sablon != nullptr) SablonuYay(*sablon);
    era = g.uygulama == 1 || g.uygulama == 3 || g.uygulama == 4 ? g.uygulama : 2;
    tabanGun = Yuv(sskTaban / 30 * SskGun);
    tavanGun = Yuv(sskTavan / 30 * SskGun);
    UcretVeGunler();
    MesaiVeYardim();
    IsciVeVergi();
    Isveren();
    NetVeSendika();
    return Kayit();
  }

 private:
  Para Yuv(double d) const { return ParaYuvarla(d, g.paraonda); }

  void SablonuYay(const Sablon& sablon) {
    double toplam = 0;
    for (std::size_t i = 0; i < 6; ++i) toplam += sablon.SablonGun[i].Sayi();
    const double ng = sablon.SablonGun[0].Sayi();
    for (std::size_t i = 0; i < 11; ++i) {
      const double tutar = Para(sablon.SablonYardim[i]);
      if (sablon.SablonYardimTip[i] == 1) yardim[i] = toplam > 0 ? double(Yuv(tutar / toplam * SskGun)) : 0;
      if (sablon.SablonYardimTip[i] == 2) yardim[i] = ng > 0 ? double(Yuv(tutar / ng * gunler[0])) : 0;
    }
  }

  void UcretVeGunler() {
    if (s.ucretags == 1) ucret = ucret * 30;
    if (s.ucretags == 2) ucret = ucret * 30 * isSaati;
    if (s.ucrettipi == 1) {
      const Tek oran(s.tur == 0 ? g.giris.sskiscior.Sayi() + g.giris.issiziscior.Sayi() : 0);
      ucret = KahinNettenBrut(
          g.yasal->gv, ucret,
          {oran.Sayi(), g.giris.damgaveror.Sayi(), g.giris.devgvmatrah, g.yasal->oranlar.SskTavan, g.paraonda});
    }
    if (s.ucrettipi == 2) ucret = cirak ? asgari / 3 : double(asgari);
    if (cirak && ucret < asgari / 3) ucret = asgari / 3;
    ucret = Yuv(ucret);
    gunluk = ucret / 30;
    saatlik = gunluk / isSaati;
    for (std::size_t i = 0; i < 6; ++i) Ekle(g.bayraklar.k[i], gunler[i] * gunluk);
    brutkaz = Yuv(sskmatrah);
    if (brutkaz > 0) ucret = brutkaz;
    if (s.tur != 0) sskmatrah = 0;
    if (sskmatrah > tavanGun) sskmatrah = tavanGun;
    if (SskGun < 1) return;
    if (era == 1 || sskmatrah >= sskTaban / 30 * SskGun)
      ucrizmatrah = Yuv(gunler[2] * sskmatrah / SskGun);
    else
      ucrizmatrah = Yuv(gunler[2] * sskTaban / 30);
  }

  void MesaiVeYardim() {
    const Brd& b = g.giris;
    const double mesai[3] = {b.fm1.Sayi() * b.fmo1.Sayi(), b.fm2.Sayi() * b.fmo2.Sayi(), b.fm3.Sayi() * b.fmo3.Sayi()};
    for (std::size_t i = 0; i < 3; ++i) {
      const double deger = mesai[i] * saatlik;
      Ekle(g.bayraklar.k[6 + i], deger);
      brutkaz += Yuv(deger);
    }
    for (std::size_t i = 0; i < 11; ++i) {
      Ekle(g.bayraklar.y[i], yardim[i]);
      if (g.bayraklar.y[i] & 16) Muafiyet(i);
      topyardim += yardim[i];
      brutkaz += yardim[i];
    }
    sskmatrah = Yuv(Para(sskmatrah - muaftutar));
    const Para tavan = SskGun < 1 ? sskTavan : tavanGun;
    if (sskmatrah > tavan) sskmatrah = tavan;
  }

  void Muafiyet(std::size_t i) {
    const Muaf& m = (*g.yardimlar)[i];
    const double gunlukTaban = sskTaban / 30;
    const double oran = m.oran.Sayi();
    const int cocuk = g.aile.cocuk > 2 ? 2 : g.aile.cocuk;
    Para sinir;
    if (m.indtip == 1) {
      if (!(gunler[0] > 0)) return;
      sinir = Yuv(gunler[0] * gunlukTaban * oran / 100);
    } else if (SskGun < 1) {
      return;
    }
    if (m.indtip == 4) muaftutar = Yuv(yardim[i] * oran / 100);
    if (m.indtip == 0 || m.indtip == 4 || m.indtip > 5) return;
    if (m.indtip == 2) sinir = Yuv(cocuk * gunlukTaban * oran / 100 * SskGun);
    if (m.indtip == 3) sinir = Yuv(gunlukTaban * oran / 100 * SskGun);
    if (m.indtip == 5) sinir = m.sabit;
    Para kalem = Yuv(yardim[i]);
    if (kalem > sinir) kalem = sinir;
    muaftutar += kalem;
  }

  void IsciVeVergi() {
    const Brd& b = g.giris;
    sskkesinti = Yuv(sskmatrah * b.sskiscior.Sayi() / 100);
    issizisci = Yuv(sskmatrah * b.issiziscior.Sayi() / 100);
    gvmatrah = Yuv(gvmatrah) - (sskkesinti + issizisci);
    if (gvmatrah < 0) gvmatrah = 0;
    if (dvmatrah < 0) dvmatrah = 0;
    kalan = gvmatrah;
    if (s.sakatdrc > 0) {
      sakindir = Yuv(Para(g.yasal->oranlar.SakatIndirim.at(s.sakatdrc - 1u)) / 30 * SskGun);
      kalan -= sakindir;
      if (kalan < 0) kalan = 0;
      sakindir = gvmatrah - kalan;
    }
    if (s.indirim1) Indirim(0, s.indtut1);
    if (s.indirim2) Indirim(1, s.indtut2);
    if (s.indirim3) Indirim(2, s.indtut3);
    if (kalan > 0) gvtutar = Yuv(KahinAylikVergi(g.yasal->gv, b.devgvmatrah, kalan));
    dvtutar = Yuv(dvmatrah * b.damgaveror.Sayi() / 1000);
    if (gvtutar < 0) gvtutar = 0;
    if (dvtutar < 0) dvtutar = 0;
  }

  void Indirim(std::size_t n, Para kisinin) {
    const auto& tanim = (*g.indirimler)[n];
    if (!tanim || tanim->indtip < 1 || tanim->indtip > 4) return;
    Para ind = kisinin;
    if (tanim->indtip != 4) {
      if (ind == 0) ind = tanim->sabit;
      if (ind == 0) ind = Yuv(tanim->oran.Sayi() * gvmatrah / 100);
      const Para sinir = tanim->indtip == 2 ? Yuv(brutkaz / 20) : Yuv(brutkaz / 10);
      if (ind > sinir) ind = sinir;
      const Para yil = g.yilIndirimi[n];
      const Para tavan = g.yasal->oranlar.MuafTavan;
      if (Para(yil + ind) > tavan) ind = tavan - (yil + ind);
    }
    if (ind < 0) ind = 0;
    if (ind > kalan) ind = kalan;
    kalan -= ind;
    indirim[n] = ind;
  }

  void Isveren() {
    const double r34 = g.giris.sskisverenor.Sayi();
    const double r36 = g.giris.issizisverenor.Sayi();
    isvMatrah = sskmatrah;
    if (era == 1 && isvMatrah < sskTaban / 30 * SskGun) katki = tabanGun - sskmatrah;
    if (era != 1 && isvMatrah < tabanGun) isvMatrah = tabanGun;
    isvIssiz = isvMatrah * r36 / 100;
    if (era >= 3) isvIssiz = Yuv(isvMatrah * r36 / 100);
    isvKesinti = Yuv(isvMatrah * r34 / 100);
    // Without days there is no leave to relieve.
    if (era <= 3 && SskGun >= 1) isvKesinti -= gunler[2] * (isvMatrah / SskGun) * g.TehlikeOran.Sayi() / 100;
    if (era == 2 && sskmatrah < tabanGun) {
      isvKesinti += Yuv(isvMatrah * g.giris.sskiscior.Sayi() / 100 - sskkesinti);
      isvIssiz += Yuv(isvMatrah * g.giris.issiziscior.Sayi() / 100 - issizisci);
    }
    kanun = std::atoi(s.kanun.c_str());
    if (era != 4) return;
    const double mal = g.yasal->oranlar.IsverenOran.at(s.sskdurum).mal.Sayi();
    if (kanun == 5510 && Yuv(isvMatrah * mal / 100) > 0) katki = Yuv(isvMatrah * 5 / 100);
    if (kanun == 5921 || kanun == 44479) katki = Yuv(tabanGun * r34 / 100);
    if (kanun == 14447) katki = isvKesinti;
    if (kanun == 24447) katki = Yuv(isvKesinti * 80 / 100);
    if (kanun == 34447) katki = Yuv(isvKesinti * 60 / 100);
    if (kanun == 44447) katki = Yuv(isvKesinti * 40 / 100);
    if (kanun == 54447) katki = Yuv(isvKesinti * 20 / 100);
  }

  void NetVeSendika() {
    net = brutkaz - (sskkesinti + gvtutar + dvtutar + issizisci);
    Agi();
    net += ogv;
    if (g.sendika != nullptr) sendika = Aidat(*g.sendika);
    if (cirak) {
      brutkaz = sskmatrah;
      sskkesinti = issizisci = gvmatrah = gvtutar = dvtutar = katki = isvMatrah = isvIssiz = isvKesinti = ogv = 0;
      net = brutkaz;
    }
    net -= sendika + borckes;
  }

  void Agi() {
    const AgiTablosu& a = g.yasal->agi;
    agioran = a.AgiKendisi.Sayi();
    if (era < 3 || !s.agi || !(brutkaz > 0)) return;
    if (g.aile.agiEs > 0) agioran += a.AgiEsi.Sayi();
    const int cocuk = g.aile.agiCocuk > 4 ? 4 : g.aile.agiCocuk;
    if (cocuk > 2)
      agioran += 2 * a.AgiCocuk12.Sayi() + a.AgiCocuk3.Sayi() + (cocuk - 3) * a.AgiCocuk4.Sayi();
    else
      agioran += cocuk * a.AgiCocuk12.Sayi();
    agioran = Tek(agioran).Sayi();
    ogv = Yuv(Para(a.AgiTaban) * (agioran / 100) * (g.yasal->gv.GvOran[0].Sayi() / 100));
    if (ogv >= gvtutar) ogv = gvtutar;
  }

  Para Aidat(const Sendika& u) const {
    const double oran = u.oran.Sayi();
    Para aidat = u.sabit;
    if (u.yer == 1) aidat = Yuv(net * oran / 100);
    if (u.yer == 2) aidat = Yuv(sskmatrah * oran / 100);
    if (u.yer == 3) aidat = Yuv(brutkaz * oran / 100);
    if (u.yer == 4) aidat = Yuv(ucret * oran / 100);
    if (Para(u.taban) > 0 && aidat < Para(u.taban)) aidat = u.taban;
    if (Para(u.tavan) > 0 && aidat > Para(u.tavan)) aidat = u.tavan;
    return net < aidat ? Para(0) : aidat;
  }

  void Ekle(int bayraklar, double deger) {
    if (bayraklar & 2) sskmatrah += deger;
    if (bayraklar & 4) gvmatrah += deger;
    if (bayraklar & 8) dvmatrah += deger;
  }

  BordroSonucu Kayit() const {
    // clang-format off
    const std::pair<Tutar Brd::*, double> alanlar[] = {
        {&Brd::yrd01, yardim[0]}, {&Brd::yrd02, yardim[1]}, {&Brd::yrd03, yardim[2]}, {&Brd::yrd04, yardim[3]},
        {&Brd::yrd05, yardim[4]}, {&Brd::yrd06, yardim[5]}, {&Brd::yrd07, yardim[6]}, {&Brd::yrd08, yardim[7]},
        {&Brd::yrd09, yardim[8]}, {&Brd::yrd10, yardim[9]}, {&Brd::yrd11, yardim[10]}, {&Brd::topyardim, topyardim},
        {&Brd::ogv, ogv}, {&Brd::ucret, ucret}, {&Brd::brutkaz, brutkaz}, {&Brd::sskmatrah, sskmatrah},
        {&Brd::gvmatrah, gvmatrah}, {&Brd::sskmatrahisveren, isvMatrah}, {&Brd::sskkesinti, sskkesinti},
        {&Brd::dvmatrah, dvmatrah}, {&Brd::sskkesintiisveren, isvKesinti}, {&Brd::gvtutar, gvtutar},
        {&Brd::dvtutar, dvtutar}, {&Brd::issizisci, issizisci}, {&Brd::issizisveren, isvIssiz},
        {&Brd::yuvarlama, sendika + borckes}, {&Brd::ucrizmatrah, ucrizmatrah}, {&Brd::katki, katki},
        {&Brd::indirim1, indirim[0]}, {&Brd::indirim2, indirim[1]}, {&Brd::indirim3, indirim[2]},
        {&Brd::sakindir, sakindir}, {&Brd::sendika, sendika}, {&Brd::muaftutar, muaftutar},
    };
    // clang-format on
    BordroSonucu sonuc{g.giris, Tutar(double(net)), SskGun, false};
    for (const auto& [alan, deger] : alanlar) sonuc.brd.*alan = Tutar(deger);
    sonuc.brd.agioran = Tek(agioran);
    sonuc.brd.agimatrah = g.yasal->agi.AgiTaban;
    sonuc.brd.brdkanun = kanun;
    return sonuc;
  }

  const BordroGirdi& g;
  const Sicil& s = *g.sicil;
  const bool cirak = s.sskdurum == 6;
  const double isSaati = g.IsSaati.Sayi();
  const Para asgari = g.yasal->oranlar.AsgariUcret;
  const Para sskTaban = g.yasal->oranlar.SskTaban;
  const Para sskTavan = g.yasal->oranlar.SskTavan;
  const Para borckes = g.giris.borckes;

  std::array<int, 6> gunler{};
  std::array<Para, 11> yardim{};
  int SskGun = 0;
  int era = 2;
  int kanun = 0;
  Para tabanGun, tavanGun, ucret = s.ucret, gunluk, saatlik;
  Para brutkaz, topyardim, sskmatrah, gvmatrah, dvmatrah, muaftutar, ucrizmatrah;
  Para sskkesinti, issizisci, kalan, sakindir, gvtutar, dvtutar, katki, ogv, sendika, net;
  Para isvMatrah, isvKesinti, isvIssiz;
  std::array<Para, 3> indirim{};
  double agioran = 0;
};

}  // namespace belvani::test
