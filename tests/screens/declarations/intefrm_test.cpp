// The service for the declaration's file is opened where its user says.
#include "screens/declarations/intefrm.h"

#include <gmock/gmock.h>

#include "ekran/ortam.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(Intefrm, TheAddressIsSavedAndOpened) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<intefrm>("/tmp/a/bildirge.xml");
  ortam.Yaz("ftp://a");
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("http:// veya https://")));
  YaziBul(form, "adres").selectAll();
  ortam.Yaz("https://ornek.gov.tr/b");
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.acilanlar, ElementsAre("https://ornek.gov.tr/b"));
  EXPECT_EQ(AlanMetni(ortam.Ac<intefrm>("x"), "adres"), "https://ornek.gov.tr/b");
}

}  // namespace
}  // namespace belvani::test
