// The missing days by keys: listed, and filled into the form that can be changed by hand. The declaration of
// pensioners.
#include "screens/declarations/eksikgun.h"

#include <gmock/gmock.h>

#include "core/store/satirlar.h"
#include "core/tables/kimlik.h"
#include "ekran/ortam.h"
#include "screens/declarations/yaylik.h"
#include "screens/declarations/yzckopy.h"
#include "ui/dclist.h"
#include "ui/yzcsetup.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

struct EksikOrtami : EkranOrtami {
  EksikOrtami() {
    for (const auto& [kod, tcno, ay] :
         {std::tuple("001", "10000000146", 7), {"002", "10000000214", 8}, {"003", "", 7}}) {
      Sicil sicil;
      sicil.kod = kod;
      sicil.adi = "Işıl";
      Ekle(sicil);
      Brd brd;
      brd.kod = kod;
      brd.yil = 2009;
      brd.ay = std::uint8_t(ay);
      brd.no = 1;
      brd.ng = 20;
      brd.ucretsizizin = 10;
      brd.eksiksebebi = 15;
      brd.sskmatrah = Tutar(1000.0);
      Ekle(brd);
      if (*tcno == '\0') continue;
      Kimlik kimlik;
      kimlik.kod = kod;
      kimlik.tcno = tcno;
      Ekle(kimlik);
    }
  }
  template <class Kayit>
  void Ekle(const Kayit& kayit) {
    KayitYazici<Kayit>(oturum.depo.db.IcMotor()).Ekle(kayit);
  }
};

TEST(Eksikgun, ListAndForm) {
  EksikOrtami o;
  auto& form = o.Ac<eksikgun>(o.parametreler);
  auto& liste = *form.findChild<dclist*>("dclist1");
  ASSERT_EQ(liste.ListCount(), 1);
  EXPECT_EQ(Utf8(liste.TextByName(0, "sskno")), "10000000146");
  EXPECT_EQ(Utf8(liste.TextByName(0, "prim")), "50.00");
  EXPECT_THAT(Utf8(form.findChild<QLabel*>("sozler")->text()), HasSubstr("003")) << "without an identity record";
  EkranOrtami::ModaldaYap([&] { o.Bas(Qt::Key_F8); });
  o.Bas(Qt::Key_F11);
  auto* kopya = dynamic_cast<yzckopy*>(o.gosterici.formlar.back().get());
  ASSERT_NE(kopya, nullptr);
  const auto& alanlar = kopya->Yuzey().Sayfalar().at(0).alanlar;
  const auto tcno = std::ranges::find(alanlar, "kisi1.tcno", &FormAlani::ad);
  ASSERT_NE(tcno, alanlar.end());
  EXPECT_EQ(tcno->deger, "10000000146");
  EXPECT_THAT(o.bildirim.Al(), ElementsAre());
}

TEST(Eksikgun, AnEmptyFormIsAskedAbout) {
  EksikOrtami o;
  auto& form = o.Ac<eksikgun>(o.parametreler);
  AlanBul(form, "ay").Odak()->setFocus();
  o.Bas(Qt::Key_Up);
  ASSERT_TRUE(QTest::qWaitFor([&] { return form.findChild<dclist*>("dclist1")->ListCount() == 0; }));
  o.bildirim.cevap = false;
  o.Bas(Qt::Key_F11);
  EXPECT_THAT(o.bildirim.Al(), ElementsAre("Soru: Eksik gün raporu boş\nBoş rapor yazılsın mı?"));
  EXPECT_EQ(o.gosterici.formlar.size(), 1u);
}

TEST(Yaylik, OpensForPensioners) {
  EksikOrtami o;
  o.oturum.PencereTip = "sgdp";
  auto& emekliler = o.Ac<yaylik>(o.parametreler);
  EXPECT_EQ(Utf8(emekliler.windowTitle()), "S.G.D.P. Bildirgesi");
  EXPECT_EQ(emekliler.Bildirge().BelgeTuru(), DestekPrimiBelgesi);
  EXPECT_EQ(Utf8(emekliler.findChild<QLabel*>("oran4")->text()), "30") << "the support premium";
  EXPECT_EQ(o.oturum.PencereTip, "");
  EXPECT_EQ(o.Ac<yaylik>(o.parametreler).Bildirge().BelgeTuru(), 0);
}

}  // namespace
}  // namespace belvani::test
