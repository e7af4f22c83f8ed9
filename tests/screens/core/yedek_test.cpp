// The screen of backups: made by a key, listed, brought back under a new code or in the open company's place.
#include <gmock/gmock.h>

#include "core/session/sirket.h"
#include "ekran/ortam.h"
#include "screens/core/yedekfrm.h"

namespace belvani::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Yedekfrm, MakesListsAndBringsBack) {
  EkranOrtami o;
  auto& form = o.Ac<yedekfrm>();
  auto& liste = *form.findChild<dclist*>();
  EXPECT_EQ(liste.ListCount(), 0);
  o.Bas(Qt::Key_F9);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{}) << "there is nothing to bring back";
  o.Bas(Qt::Key_F8);
  EXPECT_THAT(o.bildirim.Al().at(0), StartsWith("Bilgi: Yedek alındı: "));
  ASSERT_EQ(liste.ListCount(), 1);
  EXPECT_EQ(Utf8(liste.TextByName(0, "tur")), "elle");
  EXPECT_TRUE(o.oturum.depo.sicil.AcikMi()) << "the session's store is left alone";

  o.Bas(Qt::Key_F9, Qt::ControlModifier);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Yedeğin yükleneceği yeni şirketin kodunu yazınız"});
  o.Yaz("kopya");
  o.Bas(Qt::Key_F9, Qt::ControlModifier);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Yedek geri yüklendi: KOPYA"});
  EXPECT_EQ(Sirketler(o.oturum.DataPath), (std::vector<std::string>{"KOPYA", "TEST"}));

  // A file that is none is told; one of the open company closes the screen, which says what was chosen.
  o.dialoglar.dosya = "/dev/null";
  o.Bas(Qt::Key_F4);
  EXPECT_THAT(o.bildirim.Al().at(0), HasSubstr("Dosya bir şirket yedeği değil"));
  EXPECT_TRUE(form.isVisible() && !form.Secilen());
  o.Bas(Qt::Key_F9);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.Secilen(), SirketYedekleri(o.oturum.DataPath, "TEST").front().yol);
}

TEST(Yedekfrm, TheOpenCompanyIsLeftAndReplaced) {
  EkranOrtami o;
  const std::string yedek = YedekAl(o.oturum.DataPath, "TEST")->yol;
  o.oturum.depo.db.IcMotor().Calistir("update firma set unvan = 'sonraki'");
  bool kapanir = false;
  const auto getir = [&] { return AcikSirketeGetir(o.ekran, yedek, [&] { return kapanir; }); };
  EXPECT_FALSE(getir()) << "a screen stays with what was typed into it";
  EXPECT_THAT(o.bildirim.Al().at(0), StartsWith("Soru: TEST şirketinin şimdiki hali"));
  EXPECT_TRUE(o.oturum.depo.sicil.AcikMi());
  kapanir = true;
  EXPECT_TRUE(getir());
  EXPECT_THAT(o.bildirim.Al().at(1), StartsWith("Bilgi: Yedek geri yüklendi: TEST\nÖnceki hali yedeklendi:"));
  EXPECT_FALSE(o.oturum.depo.db.AcikMi());
  ASSERT_TRUE(SirketAc(o.oturum, "TEST") && FirmaYukle(o.oturum));
  EXPECT_NE(o.oturum.firma.unvan, "sonraki");
}

}  // namespace
}  // namespace belvani::test
