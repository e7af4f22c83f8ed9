// A person with all that one calculation reads, in round figures so that a case can be reckoned by hand, and random
// ones that lean towards the borders of the rules.
#pragma once

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <optional>
#include <rapidcheck.h>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "payroll/hesap/bordro.h"

namespace belvani::test {

// Gross wage 1,200 (40 a day, 5 an hour), 26 + 4 days, floor 600, ceiling 3,900, the rules of law 5510.
struct Ornek {
  Sicil sicil;
  YasalParametreler yasal;
  YardimTanimlari yardimlar = VarsayilanYardimlar();
  IndirimTanimlari indirimler;
  std::optional<Sendika> sendika;
  BordroGirdi g;

  Ornek() {
    sicil.ucret = Tutar(1200);
    sicil.agi = true;
    YasalOranlar& o = yasal.oranlar;
    o.AsgariUcret = o.SskTaban = Tutar(600);
    o.SskTavan = Tutar(3900);
    o.MuafTavan = Tutar(7200);
    o.SakatIndirim = {Tutar(600), Tutar(300), Tutar(150)};
    for (OranSatiri& satir : o.IsverenOran) satir.mal = Tek(11);
    yasal.gv.GvLimit = {Tutar(10000), Tutar(25000), Tutar(50000), Tutar(1e9)};
    yasal.gv.GvOran = {Tek(15), Tek(20), Tek(27), Tek(35)};
    yasal.agi = {Tek(50), Tek(10), Tek(7.5), Tek(5), Tek(5), Tutar(600)};
    g.bayraklar = VarsayilanKazancBayraklari();
    g.TehlikeOran = Tek(1);
    g.uygulama = 4;
    Brd& b = g.giris;
    b.ng = 26;
    b.ht = 4;
    b.fmo1 = Tek(1.5);
    b.fmo2 = Tek(2);
    b.fmo3 = Tek(2.5);
    b.sskiscior = Tek(14);
    b.issiziscior = Tek(1);
    b.sskisverenor = Tek(19.5);
    b.issizisverenor = Tek(2);
    b.damgaveror = Tek(6);
  }

  void Gunler(std::uint8_t ng, std::uint8_t ht = 0, std::uint8_t ui = 0) {
    g.giris.ng = ng;
    g.giris.ht = ht;
    g.giris.ui = ui;
  }

  // Points into this object.
  BordroGirdi Girdi() const {
    BordroGirdi girdi = g;
    girdi.sicil = &sicil;
    girdi.yasal = &yasal;
    girdi.yardimlar = &yardimlar;
    girdi.indirimler = &indirimler;
    girdi.sendika = sendika ? &*sendika : nullptr;
    return girdi;
  }
  BordroSonucu Hesapla() const { return BrutNetHesapla(Girdi()); }
};

inline Indir Indirim(int indtip, Tutar sabit, Tek oran) {
  Indir tanim;
  tanim.indtip = std::uint8_t(indtip);
  tanim.sabit = sabit;
  tanim.oran = oran;
  return tanim;
}

inline Sendika Birlik(int yer, Tek oran, Tutar sabit, Tutar taban = {}, Tutar tavan = {}) {
  Sendika birlik;
  birlik.yer = std::uint8_t(yer);
  birlik.oran = oran;
  birlik.sabit = sabit;
  birlik.taban = taban;
  birlik.tavan = tavan;
  return birlik;
}

// Choices read off a list of numbers; when it is used up, or shrunk to zeros, the first choice each time.
class Secici {
 public:
  explicit Secici(std::span<const std::uint32_t> sayilar) : kalan_(sayilar) {}

  int operator()(int adet) {
    if (kalan_.empty()) return 0;
    const std::uint32_t sayi = kalan_.front();
    kalan_ = kalan_.subspan(1);
    return int(sayi % std::uint32_t(adet));
  }
  bool Evet(int kacta) { return (*this)(kacta) == kacta - 1; }
  double Biri(std::initializer_list<double> degerler) { return degerler.begin()[(*this)(int(degerler.size()))]; }
  std::uint8_t Bayt(std::initializer_list<double> degerler) { return std::uint8_t(Biri(degerler)); }
  Tek Oran() { return Evet(4) ? Tek((*this)(60'000) / 1000.0) : Tek(Biri({14, 0, 1, 15, 33.6, 14.85, 0.1, 2.005})); }
  Tutar Para() {
    if (Evet(3)) return Tutar::Hamdan((*this)(60'000'000));       // four decimals
    if (Evet(2)) return Tutar::Hamdan((*this)(600'000) * 100LL);  // kuruş
    return Tutar(Biri({0, 600, 599.99, 600.01, 3900, 3899.99, 3900.01, 200, 199.99, 1000, 0.01, 50, -10.5, 1e7}));
  }

 private:
  std::span<const std::uint32_t> kalan_;
};

inline void RastgeleKart(Secici& s, Ornek& o) {
  o.sicil.ucret = s.Para();
  o.sicil.ucrettipi = s.Bayt({0, 1, 2, 3});
  o.sicil.ucretags = s.Bayt({0, 1, 2, 0, 3});
  if (o.sicil.ucretags == 2) o.sicil.ucret = Tutar(o.sicil.ucret.Sayi() / 200);
  o.sicil.sskdurum = s.Bayt({0, 6, 31, 5, 7, 0});
  o.sicil.tur = s.Bayt({0, 0, 0, 1});
  o.sicil.kanun = std::array{"",      "5510",  "5921",  "44479", "14447", "24447",
                             "34447", "44447", "54447", "4447",  "506",   " 5510"}[std::size_t(s(12))];
  o.sicil.sakatdrc = s.Bayt({0, 0, 1, 2, 3});
  o.sicil.agi = !s.Evet(4);
  const std::pair<bool Sicil::*, Tutar Sicil::*> indirimler[] = {
      {&Sicil::indirim1, &Sicil::indtut1}, {&Sicil::indirim2, &Sicil::indtut2}, {&Sicil::indirim3, &Sicil::indtut3}};
  for (std::size_t i = 0; i < 3; ++i) {
    o.sicil.*indirimler[i].first = s.Evet(2);
    if (s.Evet(2)) o.sicil.*indirimler[i].second = s.Para();
    if (!s.Evet(4)) o.indirimler[i] = Indirim(s.Bayt({0, 1, 2, 3, 4, 9}), s.Evet(2) ? s.Para() : Tutar(), s.Oran());
    if (s.Evet(2)) o.g.yilIndirimi[i] = Tutar(s.Biri({7200, 7199.99, 7150, 6000, 0}));
  }
  if (s.Evet(2)) o.sendika = Birlik(s.Bayt({0, 1, 2, 3, 4, 7}), s.Oran(), s.Para());
  if (o.sendika && s.Evet(2)) o.sendika->taban = s.Para();
  if (o.sendika && s.Evet(2)) o.sendika->tavan = s.Para();
  for (int i = s(8); i > 0; --i) o.g.aile.Ekle(int(s.Biri({1, 2, 4, 5, 4})), s(2));
}

inline void RastgeleAy(Secici& s, Ornek& o) {
  Brd& b = o.g.giris;
  const int tur = s(4);
  if (tur == 1) o.Gunler(0);
  if (tur > 1)
    for (std::uint8_t Brd::*gun : {&Brd::ng, &Brd::ht, &Brd::ui, &Brd::rt, &Brd::mi, &Brd::ha})
      b.*gun = std::uint8_t(s(tur == 2 ? 6 : 2));
  for (Tek Brd::*saat : {&Brd::fm1, &Brd::fm2, &Brd::fm3}) b.*saat = Tek(s.Biri({0, 0, 10, 7.25, 0.01, 240}));
  for (Tutar Brd::*y : {&Brd::yrd01, &Brd::yrd02, &Brd::yrd03, &Brd::yrd06, &Brd::yrd10, &Brd::yrd11})
    if (s.Evet(3)) b.*y = s.Para();
  for (Tek Brd::*oran : {&Brd::sskiscior, &Brd::sskisverenor, &Brd::issiziscior, &Brd::issizisverenor})
    if (s.Evet(2)) b.*oran = s.Oran();
  b.damgaveror = Tek(s.Biri({6, 0, 7.5, 6.6}));
  b.devgvmatrah = Tutar(s.Biri({0, 9999.99, 9500, 24123.45, 120000, 999'999'999}));
  b.borckes = s.Evet(3) ? s.Para() : Tutar();
  for (auto& k : o.g.bayraklar.k) k = s.Bayt({15, 14, 2, 4, 8, 6, 0, 31});
  for (std::size_t i = 0; i < 11; ++i) {
    o.g.bayraklar.y[i] = std::uint8_t(s(32));
    o.yardimlar[i].indtip = s.Bayt({0, 1, 2, 3, 4, 5, 9});
    o.yardimlar[i].oran = s.Oran();
    if (s.Evet(2)) o.yardimlar[i].sabit = s.Para();
  }
  o.g.uygulama = int(s.Biri({4, 3, 2, 1, 0, 7, -1}));
  o.g.paraonda = int(s.Biri({2, 2, 0, 1, 3, 4}));
  o.g.IsSaati = Tek(s.Biri({8, 7.5, 0.1}));
  o.g.TehlikeOran = Tek(s.Biri({1, 1.5, 6.5, 3.2}));
  if (s.Evet(2)) o.yasal.oranlar.SskTaban = Tutar(s.Biri({531.0, 608.4, 638.7, 0, 327'583'290}));
  if (s.Evet(2)) o.yasal.oranlar.SskTavan = Tutar(s.Biri({3451.5, 4151.7, 0}));
  if (s.Evet(2)) o.yasal.oranlar.AsgariUcret = Tutar(s.Biri({638.7, 500, 0}));
  if (s.Evet(4)) o.yasal.gv.GvLimit[std::size_t(s(4))] = Tutar();
  if (s.Evet(4)) o.yasal.oranlar.IsverenOran[o.sicil.sskdurum].mal = Tek(s.Biri({0, 0.0001}));
  if (s.Evet(4)) o.yasal.agi = {Tek(33.3), Tek(7.7), Tek(1.1), Tek(2.2), Tek(4.4), Tutar(666.6666)};
}

inline rc::Gen<std::vector<std::uint32_t>> SayiListesi(std::size_t adet) {
  return rc::gen::container<std::vector<std::uint32_t>>(
      adet, rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint32_t>()));
}

inline Ornek RastgeleOrnek() {
  const std::vector<std::uint32_t> sayilar = *SayiListesi(160);
  Secici s(sayilar);
  Ornek o;
  RastgeleKart(s, o);
  RastgeleAy(s, o);
  return o;
}

// Runs a property more often than the hundred times that suit most.
template <class Ozellik>
void CokDene(int kez, Ozellik&& ozellik) {
  const auto* test = testing::UnitTest::GetInstance()->current_test_info();
  rc::detail::TestMetadata ad;
  ad.id = ad.description = std::string(test->test_suite_name()) + "/" + test->name();
  rc::detail::TestParams ayar = rc::detail::configuration().testParams;
  ayar.maxSuccess = std::max(ayar.maxSuccess, kez);
  const auto sonuc = rc::detail::checkTestable(std::forward<Ozellik>(ozellik), ad, ayar);
  std::ostringstream metin;
  rc::detail::printResultMessage(sonuc, metin);
  EXPECT_TRUE(sonuc.template is<rc::detail::SuccessResult>()) << metin.str();
}

}  // namespace belvani::test
