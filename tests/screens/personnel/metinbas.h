// What a paper's screen prints for a dot-matrix printer.
#pragma once

#include "core/dosya.h"
#include "ekran/ortam.h"
#include "ui/yzcsetup.h"

namespace belvani::test {

// Presses F8 on the screen and saves the text form from the dialog, whose title must be `baslik`; gives the bytes.
inline std::string MetinBas(EkranOrtami& ortam, const std::string& baslik) {
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "kagit.prn";
  EkranOrtami::ModaldaYap([&] {
    auto& ayar = *QApplication::activeModalWidget()->findChild<yzcsetup*>();
    EXPECT_EQ(AlanMetni(ayar, "YzcBaslik"), baslik);
    AlanBul(ayar, "mod").Odaklar()[1]->setFocus();
    ortam.Bas(Qt::Key_Space);
    for (auto* dugme : ayar.findChildren<QPushButton*>())
      if (dugme->text().contains("Dosyaya")) return dugme->click();
  });
  ortam.Bas(Qt::Key_F8);
  return DosyaOku(*ortam.dialoglar.dosya).value_or("");
}

}  // namespace belvani::test
