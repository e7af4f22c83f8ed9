// The box that asks for a server's password.
#include "app/sifrekutusu.h"

#include <QLabel>
#include <QLineEdit>

#include "ekran/ortam.h"

namespace belvani::test {
namespace {

TEST(SifreKutusu, GivesWhatIsTypedAndNothingWhenItIsLeft) {
  EkranOrtami ortam;
  const auto sor = [&](Qt::Key son) {
    EkranOrtami::ModaldaYap([son] {
      QWidget& kutu = *QApplication::activeModalWidget();
      auto& alan = *kutu.findChild<QLineEdit*>();
      EXPECT_EQ(alan.echoMode(), QLineEdit::Password);
      EXPECT_EQ(Utf8(kutu.findChild<QLabel*>()->text()), "Sunucu şifresi (ayşe@sunucu/belvani)");
      alan.setText(Yazi("gİzli ş"));
      EkranOrtami::Bas(son);
    });
    return SifreKutusu("sunucu/belvani", "ayşe");
  };
  EXPECT_EQ(sor(Qt::Key_Return), "gİzli ş");
  EXPECT_EQ(sor(Qt::Key_Escape), std::nullopt);
}

}  // namespace
}  // namespace belvani::test
