// What holds for every person and month: the engine agrees with a second telling of the rules, the parts add up,
// recalculating changes nothing, and the trace explains each amount.
#include <algorithm>

#include "kahin.h"
#include "ornek.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {
namespace {

using test::CokDene;
using test::Kahin;
using test::Ornek;
using test::RastgeleOrnek;

std::string Farklar(const BordroSonucu& bulunan, const BordroSonucu& beklenen) {
  std::string metin;
  Brd::HerKolon([&](const auto& kolon) {
    if (bulunan.brd.*kolon.uye == beklenen.brd.*kolon.uye) return;
    using Uye = typename std::decay_t<decltype(kolon)>::UyeTuru;
    metin += std::string(kolon.ad) + " ";
    if constexpr (std::is_same_v<Uye, Tutar>)
      metin += OndalikMetin(bulunan.brd.*kolon.uye) + " for " + OndalikMetin(beklenen.brd.*kolon.uye) + "; ";
  });
  if (bulunan.NetOdenen != beklenen.NetOdenen)
    metin += "net " + OndalikMetin(bulunan.NetOdenen) + " for " + OndalikMetin(beklenen.NetOdenen);
  return metin + (bulunan.SskGun != beklenen.SskGun ? "; SskGun" : "");
}

TEST(BrutNetHesapla, AgreesWithTheSecondTelling) {
  CokDene(10'000, [] {
    const Ornek o = RastgeleOrnek();
    RC_ASSERT(!GirdiKusuru(o.Girdi()));
    RC_ASSERT(Farklar(o.Hesapla(), Kahin(o.Girdi()).Anlat()) == "");
  });
}

TEST(BordroHesapla, SpreadsTheTemplateAsTheSecondTelling) {
  CokDene(500, [] {
    const Ornek o = RastgeleOrnek();
    const std::vector<std::uint32_t> sayilar = *test::SayiListesi(31);
    test::Secici s(sayilar);
    Sablon sablon;
    for (Tek& gun : sablon.SablonGun) gun = Tek(s.Biri({0, 26, 4, 0, 1}));
    for (Tutar& tutar : sablon.SablonYardim) tutar = s.Para();
    for (auto& tip : sablon.SablonYardimTip) tip = s.Bayt({0, 1, 2, 3});
    RC_ASSERT(Farklar(BordroHesapla(o.Girdi(), &sablon), Kahin(o.Girdi()).Anlat(&sablon)) == "");
  });
}

TEST(BrutNetHesapla, NetIsGrossLessAllDeductionsAndRecalculatingChangesNothing) {
  CokDene(500, [] {
    Ornek o = RastgeleOrnek();
    const BordroSonucu ilk = o.Hesapla();
    const Brd& b = ilk.brd;
    RC_ASSERT(ilk.NetOdenen + b.sskkesinti + b.issizisci + b.gvtutar + b.dvtutar + b.sendika + b.borckes ==
              b.brutkaz + b.ogv);
    RC_ASSERT(ilk.NetOdenen == Degeri(toplam::odenen, b) + b.ogv);
    RC_ASSERT(b.yuvarlama == Degeri(toplam::ozelKesinti, b));
    o.g.giris = b;
    RC_ASSERT(Farklar(o.Hesapla(), ilk) == "");
  });
}

// Amounts of a record that are entered or carried, so no step makes them.
constexpr std::string_view Girilenler[] = {"devgvmatrah", "devgvtutar", "gocindir", "borckes", "agimatrah"};

std::string Aciklanmayanlar(const BordroSonucu& s, const Iz& iz) {
  std::string metin;
  const auto denetle = [&](std::string_view ad, Tutar tutar) {
    const auto son = std::find_if(iz.rbegin(), iz.rend(), [&](const IzAdimi& a) { return a.alan == ad; });
    const bool girilen = std::find(std::begin(Girilenler), std::end(Girilenler), ad) != std::end(Girilenler);
    const std::string sonuc = son != iz.rend() ? son->sonuc : girilen ? OndalikMetin(tutar) : OndalikMetin(Tutar());
    if (sonuc != OndalikMetin(tutar)) metin += std::string(ad) + " " + OndalikMetin(tutar) + " told as " + sonuc + "; ";
  };
  Brd::HerKolon([&](const auto& kolon) {
    using Uye = typename std::decay_t<decltype(kolon)>::UyeTuru;
    if constexpr (std::is_same_v<Uye, Tutar>) denetle(kolon.ad, s.brd.*kolon.uye);
  });
  denetle("NetOdenen", s.NetOdenen);
  return metin;
}

TEST(Iz, ChangesNoResultAndItsLastStepsTellTheStoredAmounts) {
  CokDene(500, [] {
    const Ornek o = RastgeleOrnek();
    Iz iz;
    const BordroSonucu izli = BrutNetHesapla(o.Girdi(), iz);
    RC_ASSERT(Farklar(izli, o.Hesapla()) == "");
    RC_ASSERT(Aciklanmayanlar(izli, iz) == "");
    RC_ASSERT(std::all_of(iz.begin(), iz.end(), [](const IzAdimi& a) { return !a.kural.empty(); }));
  });
}

// A later line of kind 4 replaces the exemption of earlier ones even when it carries no amount.
TEST(Iz, TellsAnExemptionThatAnEmptyLineReplaces) {
  Ornek o;
  o.yardimlar[0].indtip = 5;
  o.yardimlar[0].sabit = Tutar(50);
  o.yardimlar[1].indtip = 4;
  o.g.giris.yrd01 = Tutar(100);
  o.g.bayraklar.y = {18, 16};
  Iz iz;
  const BordroSonucu sonuc = BrutNetHesapla(o.Girdi(), iz);
  EXPECT_EQ(sonuc.brd.muaftutar, Tutar());
  EXPECT_EQ(Aciklanmayanlar(sonuc, iz), "");
}

// Wages beyond the range end in one kind of exception and never in a wrong amount.
TEST(BrutNetHesapla, HugeAmountsAreRefused) {
  for (const double ucret : {9e14, 1e14, -9e14})
    for (const int tip : {0, 1})
      for (const int ags : {1, 2}) {
        Ornek o;
        o.sicil.ucret = Tutar(ucret);
        o.sicil.ucrettipi = std::uint8_t(tip);
        o.sicil.ucretags = std::uint8_t(ags);
        EXPECT_THROW(o.Hesapla(), TutarTasmasi) << ucret << ", " << tip << ", " << ags;
      }
  CokDene(500, [] {
    Ornek o = RastgeleOrnek();
    const auto buyuk = [] { return Tutar::Hamdan(*rc::gen::arbitrary<std::int64_t>()); };
    const int nerede = *rc::gen::inRange(0, 5);
    if (nerede == 0) o.sicil.ucret = buyuk();
    if (nerede == 1) o.g.giris.yrd01 = o.g.giris.yrd02 = buyuk();
    if (nerede == 2) o.g.giris.devgvmatrah = buyuk();
    if (nerede == 3) o.g.giris.borckes = buyuk();
    if (nerede == 4) o.yasal.oranlar.SskTaban = o.yasal.oranlar.SskTavan = buyuk();
    try {
      const BordroSonucu s = o.Hesapla();
      RC_ASSERT(s.brd.yuvarlama == s.brd.sendika + s.brd.borckes);
    } catch (const TutarTasmasi&) {
    }
  });
}

}  // namespace
}  // namespace belvani
