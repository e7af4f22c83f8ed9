#include "ui/dclist.h"

#include <QAction>
#include <filesystem>
#include <gmock/gmock.h>

#include "core/saat.h"
#include "ekran/ortam.h"
#include "printing/rapor.h"
#include "ui/listeciktisi.h"

namespace belvani::test {
namespace {

struct ListeOrtami {
  ToplayanBildirim bildirim;
  QWidget pencere;
  dclist liste{bildirim, &pencere};
  xtext baska{&pencere};
  std::vector<std::string> kaydedilen;
  bool alinir = true;

  ListeOrtami() {
    liste.setGeometry(0, 0, 600, 300);
    liste.CreateNewCaption('a', "kod", "Kod", 80, 5, 0, 3, HucreDenetimi::MetinGerek);
    liste.CreateNewCaption('t', "tarih", "Tarih", 90, 0, 0, 3, HucreDenetimi::TarihGerekTatilUyar);
    liste.CreateNewCaption('m', "adi", "Adı", 90);
    liste.CreateNewCaption('n', "tutar", "Tutar", 90, 1000, 2);
    liste.CreateNewCaption('s', "yakinlik", "Yakınlık", 90);
    liste.CreateNewCaption('x', "yok", "Yok", 90);
    liste.SecenekKoy("yakinlik", {"1-Eş", "4-1.Çocuk"});
    liste.Editable(true);
    liste.SatirGuncelle = [this](int satir) {
      std::string metin;
      for (int k = 0; k < 5; ++k) metin += Utf8(liste.Text(satir, k)) + "|";
      kaydedilen.push_back(metin);
      return alinir;
    };
    pencere.show();
    QApplication::setActiveWindow(&pencere);
    liste.setFocus();
    QCoreApplication::processEvents();
  }
};

TEST(Dclist, ARowIsTypedCheckedAndHandedOverOnce) {
  ListeOrtami l;
  EXPECT_EQ(l.liste.Model().columnCount(), 5) << "an unknown kind adds no column";
  EkranOrtami::Bas(Qt::Key_Insert);
  EXPECT_EQ(l.liste.CurrentMode(), dclist::Mod::Ekleme);
  EkranOrtami::Yaz("\n");
  EXPECT_EQ(l.bildirim.Al(), Iletiler{"Bilgi: En Az Bir Harf Girmelisiniz."});
  EkranOrtami::Yaz("Ş1\n99\n");
  EXPECT_EQ(l.bildirim.Al(), Iletiler{"Bilgi: Hatalı Tarih Girildi.\nDüzeltiniz."}) << "the cursor stays";
  EkranOrtami::Bas(Qt::Key_Delete);
  EkranOrtami::Yaz("11072009\n1500\n");
  EXPECT_EQ(l.bildirim.Al(), Iletiler{"Bilgi: 11 Temmuz 2009 Cumartesi\nTatil gününe denk gelen tarih girdiniz."});
  EXPECT_TRUE(l.kaydedilen.empty());
  EkranOrtami::Yaz("4\n");
  EXPECT_EQ(l.kaydedilen, std::vector<std::string>{"Ş1|11.07.2009||150.00|4-1.Çocuk|"}) << "1500 is above the limit";
  EXPECT_EQ(l.liste.CurrentMode(), dclist::Mod::Gezinme);
  EkranOrtami::Bas(Qt::Key_Escape);
  EXPECT_EQ(l.kaydedilen.size(), 1u) << "a row that did not change is not handed over again";
}

TEST(Dclist, TheTailOfADateComesFromToday) {
  const SabitGun gun(Tarih(2007, 5, 31));
  ListeOrtami l;
  EkranOrtami::Bas(Qt::Key_Insert);
  EkranOrtami::Yaz("K\n0203\n");
  EXPECT_EQ(Utf8(l.liste.TextByName(0, "tarih")), "02.03.2007");
}

TEST(Dclist, ARefusedRowStaysAsTypedAndIsOfferedAgain) {
  ListeOrtami l;
  for (const char* kod : {"A", "B"}) {
    const int satir = l.liste.Add();
    l.liste.TextByName(satir, "kod", kod);
    l.liste.TextByName(satir, "tarih", "01.07.2009");
  }
  l.liste.HucreyeGit(0, "tutar");
  l.alinir = false;
  EkranOrtami::Yaz("12\n");
  EkranOrtami::Bas(Qt::Key_Escape);  // leaves the next cell
  l.baska.setFocus();
  EXPECT_EQ(l.kaydedilen.size(), 1u);
  EXPECT_EQ(l.liste.TextByName(0, "tutar"), "12.00");
  l.alinir = true;
  EXPECT_TRUE(l.liste.OkUpdateData());
  EXPECT_EQ(l.kaydedilen.size(), 2u);

  // The owner deletes, or does not.
  l.liste.setFocus();
  EkranOrtami::Bas(Qt::Key_Delete);
  EXPECT_EQ(l.liste.ListCount(), 2);
  l.liste.SatirSil = [](int) { return true; };
  EkranOrtami::Bas(Qt::Key_Delete);
  ASSERT_EQ(l.liste.ListCount(), 1);
  EXPECT_EQ(l.liste.TextByName(0, "kod"), "B");
}

// A box in the middle of a window's end would wait for somebody who is not there.
TEST(Dclist, AWindowThatGoesTellsNothingOfItsOpenCell) {
  for (const bool gizli : {false, true}) {
    ListeOrtami l;
    EkranOrtami::Bas(Qt::Key_Insert);
    EkranOrtami::Yaz("K\n99");
    QWidget* hucre = QApplication::focusWidget();
    ASSERT_NE(qobject_cast<xtext*>(hucre), nullptr);
    if (gizli) l.pencere.hide();
    QFocusEvent olay(QEvent::FocusOut, Qt::OtherFocusReason);
    QApplication::sendEvent(hucre, &olay);
    EXPECT_EQ(l.bildirim.Al().empty(), gizli);
  }
}

TEST(Dclist, SortsAndFiltersByTheTurkishAlphabet) {
  ListeOrtami l;
  for (const char* kod : {"IŞIK", "ilk", "Çan", "Can", "Dal", "İLKE"}) l.liste.Text(l.liste.Add(), 0, kod);
  l.liste.Model().Sirala(0, Qt::AscendingOrder);
  std::string sira;
  for (int i = 0; i < l.liste.Model().rowCount(); ++i)
    sira += Utf8(l.liste.Model().index(i, 0).data().toString()) + " ";
  EXPECT_EQ(sira, "Can Çan Dal IŞIK ilk İLKE ");
  l.liste.Filtrele("İl");
  EXPECT_EQ(l.liste.Model().rowCount(), 2);
  EXPECT_EQ(l.liste.Model().GosterilenSatir(0), 1);
  l.liste.Filtrele("ış");
  EXPECT_EQ(l.liste.Model().rowCount(), 1);
  EXPECT_EQ(l.liste.CurSat(), 0);
  l.liste.Filtrele("");
  EXPECT_EQ(l.liste.Model().rowCount(), 6);
}

// A list goes out as it stands: its order, its filter, its visible columns, values as values.
TEST(Dclist, GoesToTheSpreadsheetAsItStands) {
  EkranOrtami ortam;
  ListeOrtami l;
  for (const auto& [kod, tutar] : {std::pair("b", "1,234.50"), {"a", "2.00"}, {"x", "9.00"}}) {
    const int satir = l.liste.Add();
    l.liste.TextByName(satir, "kod", kod);
    l.liste.TextByName(satir, "tarih", "11.07.2009");
    l.liste.TextByName(satir, "adi", QString(kod) == "x" ? "yok" : "var");
    l.liste.TextByName(satir, "tutar", tutar);
  }
  l.liste.Gizle("adi");
  l.liste.Model().Sirala(0, Qt::AscendingOrder);
  l.liste.ChngSat(0);
  const Rapor rapor = ListeRaporu(l.liste, "Liste");
  EXPECT_EQ(rapor.Kolonlar().size(), 4u);
  ASSERT_EQ(rapor.Satirlar().size(), 3u);
  EXPECT_EQ(rapor.Satirlar()[0].hucreler[0], Hucre(std::string("a")));
  EXPECT_EQ(rapor.Satirlar()[1].hucreler[1], Hucre(Tarih(2009, 7, 11)));
  EXPECT_EQ(rapor.Satirlar()[1].hucreler[2], Hucre(Tutar(1234.5)));
  for (int kez = 0; kez < 2; ++kez) ListeCiktisiBagla(ortam.ekran, l.liste, [] { return QStringLiteral("Liste"); });
  ASSERT_EQ(l.liste.actions().size(), 2) << "both commands once";
  l.alinir = false;
  l.liste.Model().Degisti(0, true);
  l.liste.actions()[1]->trigger();
  EXPECT_TRUE(ortam.acilanlar.empty()) << "a row that cannot be saved";
  l.alinir = true;
  l.liste.actions()[1]->trigger();
  ASSERT_EQ(ortam.acilanlar.size(), 1u);
  EXPECT_THAT(ortam.acilanlar[0], testing::EndsWith(" Liste.xlsx"));
  std::filesystem::remove_all(std::filesystem::path(ortam.acilanlar[0]).parent_path());
}

}  // namespace
}  // namespace belvani::test
