// Shortcuts: added, changed and deleted through the desktop, started by keyboard, kept over a restart.
#include "app/masaustu.h"

#include <set>

#include "app/anaortam.h"
#include "app/kyol.h"
#include "core/dosya.h"
#include "screens/core/firbil.h"

namespace belvani::test {
namespace {

const QPoint BosYer(900, 300);

// The desktop with these two and nothing else.
struct MasaustuTest : testing::Test {
  MasaustuTest() {
    EXPECT_TRUE(KisayollariYaz(ortam.oturum, {{"Firma", KisayolProgrami("Firma Bilgileri"), "", ""},
                                              {"Aşkın", KisayolProgrami("Tutanak (İşe Gelmeme)"), "", ""}}));
    ortam.Yeniden();
  }
  std::vector<std::string> Adlar() {
    std::vector<std::string> adlar;
    for (const Kisayol& k : ortam.pencere->Masaustu().Kisayollar()) adlar.push_back(k.ad);
    return adlar;
  }
  using Adlari = std::vector<std::string>;

  AnaOrtam ortam;
};

TEST_F(MasaustuTest, EditedByKeyboardAndKept) {
  ortam.ModaldaYap([this] {
    EXPECT_EQ(ortam.Odak(), "ad");
    ortam.Bas(Qt::Key_F5);  // no caption: refused, and stays
    ortam.Yaz("Ödünç\n\nsimge/yok.png\n7\n");
    ortam.Bas(Qt::Key_F5);
  });
  ortam.Bas(Qt::Key_Insert);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Kısa yolun adı boş olamaz"});
  ortam.Yeniden();
  EXPECT_EQ(Adlar(), (Adlari{"Firma", "Aşkın", "Ödünç"}));
  EXPECT_EQ(ortam.pencere->Masaustu().Kisayollar().back(), (Kisayol{"Ödünç", 0, "simge/yok.png", "7"}));

  ortam.ModaldaYap([this] {
    ortam.Yaz("Çok");  // the caption is selected, and is typed over
    ortam.Bas(Qt::Key_F5);
  });
  ortam.MenudenSec(ortam.SimgeYeri(0), "Düzelt");
  ortam.MenudenSec(BosYer, "Simgeleri Diz");
  EXPECT_EQ(Adlar(), (Adlari{"Aşkın", "Çok", "Ödünç"})) << "Ç stands behind C, not behind z";

  ortam.OneAl();
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_Delete);
  ortam.bildirim.cevap = true;
  ortam.Bas(Qt::Key_Delete);
  ortam.Bas(Qt::Key_Down, Qt::AltModifier);
  ortam.Yeniden();
  EXPECT_EQ(Adlar(), (Adlari{"Ödünç", "Çok"}));
}

TEST_F(MasaustuTest, StartsWhatIsThereAndSaysWhatIsNot) {
  ortam.Yaz("\n");
  ASSERT_NE(ortam.Onde<firbil>(), nullptr);
  ortam.Bas(Qt::Key_F6);
  ortam.Bas(Qt::Key_Down);
  ortam.Yaz("\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Tutanak (İşe Gelmeme)\nBu ekran bu sürümde yok."});
  ortam.Bas(Qt::Key_F6);
  EXPECT_EQ(ortam.Odak(), "unvan") << "the same key leads back to the screen";
  ortam.Yaz("x");
  ortam.pencere->Calistir({"", KisayolProgrami("Firma Bilgileri"), "", ""});
  EXPECT_EQ(ortam.Alan().subWindowList().size(), 1) << "an open screen comes to the front";
}

TEST_F(MasaustuTest, MenusOfTheThreePlaces) {
  Form1& masaustu = ortam.pencere->Masaustu();
  EXPECT_EQ(MenuBasliklari(masaustu.MenuYap(BosYer)),
            (QStringList{"Görünüm", "Simgeleri Diz", "Yeni Kısa Yol", "Şirket Değiştir", "Çıkış"}));
  EXPECT_EQ(MenuBasliklari(masaustu.MenuYap(ortam.SimgeYeri(0))),
            (QStringList{"Çalıştır", "Düzelt", "Sil", "Simgeleri Diz", "Görünüm"}));

  QImage resim(400, 300, QImage::Format_RGB32);
  resim.fill(Qt::red);
  const std::string yol = ortam.dizin.Yol() + "resim.png";
  ASSERT_TRUE(resim.save(Yazi(yol)));
  GorunumAyari ayar = GorunumOku(ortam.oturum);
  ayar.backresim = yol;
  ASSERT_TRUE(GorunumYaz(ortam.oturum, ayar));
  ortam.Yeniden();
  const QPoint orta = ortam.pencere->Masaustu().rect().center();
  EXPECT_EQ(ortam.pencere->grab().toImage().pixelColor(ortam.pencere->Masaustu().mapTo(ortam.pencere.get(), orta)),
            QColor(Qt::red));
  EXPECT_EQ(MenuBasliklari(ortam.pencere->Masaustu().MenuYap(orta)), (QStringList{"Resim  Ekle", "Resim Sil"}));
  ortam.dialoglar.dosya = ortam.oturum.FirmaDizini + "tolu.dat";
  ortam.MenudenSec(orta, "Resim  Ekle");
  EXPECT_EQ(ortam.bildirim.Al().size(), 1u) << "a file that is no picture is told";
  ortam.MenudenSec(orta, "Resim Sil");
  EXPECT_EQ(MenuBasliklari(ortam.pencere->Masaustu().MenuYap(orta)).front(), "Görünüm");
  EXPECT_FALSE(GorunumOku(ortam.oturum).backresimvarmi);
}

TEST_F(MasaustuTest, ABrokenFileIsToldOnce) {
  ASSERT_TRUE(DosyaYaz(ortam.oturum.PrgPath + "tolu.icn", "bozuk"));
  ortam.Yeniden();
  EXPECT_EQ(ortam.bildirim.Al().size(), 1u);
  EXPECT_EQ(Adlar(), Adlari{});
  ortam.Bas(Qt::Key_Down);
  ortam.Yaz("\n");
  QCoreApplication::processEvents();
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(MasaustuTest, AnIconFileIsKeptByAPathThatFits) {
  ortam.dialoglar.dosya = ortam.oturum.PrgPath + "ikon/davet.png";
  Kisayol kaydedilen;
  kyol form(ortam.baglam, {"x", 3, "", ""}, [&](const Kisayol& k) {
    kaydedilen = k;
    return Tamam();
  });
  form.show();
  QApplication::setActiveWindow(&form);
  AlanBul(form, "ikon").Odak()->setFocus();
  ortam.Bas(Qt::Key_F2);
  ortam.dialoglar.dosya = "/" + std::string(60, 'a') + ".png";
  ortam.Bas(Qt::Key_F2);
  EXPECT_EQ(ortam.bildirim.Al().size(), 1u);
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(kaydedilen, (Kisayol{"x", 3, "ikon/davet.png", ""}));
}

// A program of the list that has a screen opens it, whatever the menu calls that screen; all others say that they have
// none. The numbers are those that the file keeps.
TEST_F(MasaustuTest, EveryProgramOpensItsScreenOrSaysThatThereIsNone) {
  const std::set<std::string_view> acilmayan{"Tutanak (İşe Gelmeme)", "Tutanak (Fesh Almama)", "İhtarname (Noter ile)",
                                             "İhtarname (İşe Geç Gelme/Gelmeme)", "İşe Davet Yazısı"};
  for (std::size_t i = 0; i < KisayolProgramlari.size(); ++i) {
    const EkranKaydi* ekran = KisayolEkrani(KisayolProgramlari[i]);
    EXPECT_NE(ekran != nullptr && Acilir(*ekran), acilmayan.contains(KisayolProgramlari[i])) << KisayolProgramlari[i];
    if (!acilmayan.contains(KisayolProgramlari[i])) continue;
    ortam.pencere->Calistir({"x", i, "", ""});
    EXPECT_EQ(ortam.bildirim.Al(),
              Iletiler{"Bilgi: " + std::string(KisayolProgramlari[i]) + "\nBu ekran bu sürümde yok."});
  }
}

}  // namespace
}  // namespace belvani::test
