#include "documents/turetilen.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "documents/ornekler.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {
namespace {

const Yuvarlayici kurusYuvarla(2);

TEST(Turetilen, StampDutyAndNet) {
  const struct {
    const char* ad;
    Brd brd;
    int paraonda;
    double damga, kesintiler, net;
  } ornekler[] = {
      // 3.65 + 45.63 × 6 / 1000 = 3.65 + 0.27; the net lies 0.27 below 481.55 of the payroll screen.
      {"duty of the allowance", test::AsgariUcretli().brd, 2, 3.92, 172.75, 481.28},
      {"no allowance: the duty is dvtutar", test::Ayrilan().brd, 2, 6.00, 418.25, 581.75},
      // Rounded twice: 70 × 6 / 1000 = .42 -> 0, then 3.30 -> 3. Once would give 3.72 -> 4.
      {"no decimals", {.kod = "", .ogv = Tutar(70.0), .dvtutar = Tutar(3.3)}, 0, 3.00, 3.00, 67.00},
      {"nothing", {.kod = ""}, 2, 0, 0, 0},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    const Yuvarlayici yuvarla(o.paraonda);
    EXPECT_EQ(AgiDahilDamga(o.brd, Tek(6), yuvarla), Tutar(o.damga));
    EXPECT_EQ(Kesintiler(o.brd, Tek(6), yuvarla), Tutar(o.kesintiler));
    EXPECT_EQ(NetOdenen(o.brd, Tek(6), yuvarla), Tutar(o.net));
  }
}

TEST(Turetilen, TheOthers) {
  const Brd brd = test::Ayrilan().brd;
  EXPECT_EQ(Degeri(toplam::gvIndirimi, brd), Tutar(185.0));
  EXPECT_EQ(Degeri(toplam::odenecekPrim, brd), Tutar(140.0 + 195 + 10 + 20 - 50));
  Sicil sicil;
  EXPECT_EQ(AdSoyad(sicil), "");
  sicil.soyadi = "Öz";
  EXPECT_EQ(AdSoyad(sicil), "Öz");
}

RC_GTEST_PROP(Turetilen, OdenenVeKesilenBrutuTutar, ()) {
  Brd brd;
  for (auto* alan : {&brd.brutkaz, &brd.sskkesinti, &brd.issizisci, &brd.gvtutar, &brd.dvtutar, &brd.ogv, &brd.sendika,
                     &brd.borckes})
    *alan = Tutar::Hamdan(100 * *rc::gen::inRange<std::int64_t>(0, 10'000'000));
  const Tek oran(*rc::gen::element(0.0, 6.0, 7.59));
  RC_ASSERT(NetOdenen(brd, oran, kurusYuvarla) + Kesintiler(brd, oran, kurusYuvarla) == brd.brutkaz + brd.ogv);
  const Tutar ekDamga = AgiDahilDamga(brd, oran, kurusYuvarla) - brd.dvtutar;
  RC_ASSERT(std::abs(ekDamga.Sayi() - brd.ogv.Sayi() * oran.Sayi() / 1000) <= 0.0051);
}

}  // namespace
}  // namespace belvani
