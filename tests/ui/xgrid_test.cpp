#include "ui/xgrid.h"

#include <QClipboard>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>

#include "core/ayarlar.h"
#include "ekran/ortam.h"
#include "printing/ornek.h"
#include "ui/perekr.h"

namespace belvani::test {
namespace {

QString Yapistir() {
  return QApplication::clipboard()->text();
}

// Names of the rows of the page, top to bottom.
QString Adlar(const xgrid& grid) {
  QStringList adlar;
  for (int sira = 0; sira < grid.Model().rowCount(); ++sira) adlar += grid.Model().Metin(sira, 0);
  return adlar.join(' ');
}

std::shared_ptr<const Rapor> Kalemler(int sayfali = 1) {
  Rapor rapor = KalemRaporu({{.ad = "Çınar", .gun = Tarih(2008, 2, 29), .adet = 10, .tutar = Tutar(900.0)},
                             {.ad = "IŞIK", .gun = {}, .adet = 9, .tutar = Tutar(-1250.5)},
                             {.ad = "Cem", .gun = Tarih(2007, 12, 31), .adet = 100, .tutar = Tutar(1000.0)},
                             {.ad = "İpek", .gun = Tarih(2008, 3, 1), .adet = 9, .tutar = {}, .grup = sayfali},
                             {.ad = "ıtır", .gun = Tarih(2009, 1, 1), .adet = 1, .tutar = Tutar(50.0), .grup = sayfali},
                             {.ad = "deniz", .gun = {}, .adet = 2, .tutar = Tutar(7.0), .grup = 2 * sayfali}});
  rapor.toplamEtiketi = "TOPLAM";
  rapor.ustSatirlar = {{.sol = "BELVANİ LTD.", .orta = " ", .sag = "2008"},
                       {.sol = "Sf", .sag = "No ", .sayfaNo = true}};
  rapor.sonBlok = {{"İşveren Payı :", Tutar(12.5)}, {"Kişi Sayısı :", std::int64_t(6)}};
  return std::make_shared<const Rapor>(std::move(rapor));
}

struct Ekran : EkranOrtami {
  int yazdirma = 0, excel = 0;
  perekr* form = nullptr;

  explicit Ekran(std::shared_ptr<const Rapor> rapor) {
    form =
        &Ac<perekr>(std::move(rapor), PerekrIslevleri{.yazdir = [this] { ++yazdirma; }, .excel = [this] { ++excel; }});
  }
  xgrid& Grid() const { return form->Xgrid1(); }
  QString Hucre() const { return Grid().Model().Metin(Grid().currentIndex().row(), Grid().CurrentColon()); }
};

TEST(Xgrid, FillsStepByStep) {
  xgrid grid;
  grid.Reset();
  grid.AddColons("Adı", DolguTuru::Metin);
  grid.AddColons("Tutar", DolguTuru::ToplananSayi, "Net", 2);
  const char* bicimler[] = {"29 Şubat 2008", "29.02.2008", "29.02.08", "29.02", "29", "02"};
  for (int b = 0; b < 6; ++b) grid.AddColons("T" + QString::number(b), DolguTuru::Tarih, {}, b);
  grid.Basliklar("Liste", {"Birinci", "İkinci"});
  grid.Refresh();
  EXPECT_EQ(grid.Model().rowCount(), 0) << "an empty grid has only its captions";
  EXPECT_EQ(grid.Model().Baslik(1), "Net\nTutar");
  EXPECT_EQ(grid.Model().Baslik(0), "Adı");

  grid.NewPage();
  for (int s = 0; s < 2; ++s) {
    grid.CreateRow(GridSatiri::Normal);
    grid.Add(0, std::string(s == 0 ? "Işıl" : "Çağ"));
    grid.AddbyName("Tutar", s == 0 ? belvani::Hucre(Tutar(1250.5)) : belvani::Hucre(std::int64_t(2)));
    for (int b = 0; b < 6; ++b) grid.Add(2 + b, s == 0 ? belvani::Hucre(Tarih(2008, 2, 29)) : belvani::Hucre("yarın"));
    grid.AddbyName("Yok", Tutar(9.0));
  }
  grid.CreateRow(GridSatiri::SayfaBasi, 2);
  EXPECT_EQ(std::tuple(grid.CurrentPage(), grid.CurrentRow(), grid.GetListCount()), std::tuple(1, 1, 4));
  grid.data(0, 1, 0, std::string("Çağrı"));
  grid.data(0, 2, 0, std::string("not in that page"));
  grid.CurrentRow(0);
  grid.Add(0, Tutar(5.25));
  grid.Refresh();

  for (int b = 0; b < 6; ++b) {
    EXPECT_EQ(grid.GetFormatData(0, 2 + b), bicimler[b]);
    EXPECT_EQ(grid.GetFormatData(1, 2 + b), "") << "a cell that is no date";
  }
  EXPECT_EQ(grid.GetFormatData(0, 1) + "|" + grid.GetFormatData(1, 1) + "|" + grid.GetFormatData(9, 1),
            "1,250.50|2.00|");
  EXPECT_EQ(grid.GetFormatData(1, 0) + "|" + grid.GetFormatData(2, 0), "Çağrı|5.25");
  EXPECT_EQ(grid.data(0, 0, 1), belvani::Hucre(Tutar(1250.5)));
  EXPECT_EQ(grid.data(5, 0, 0), belvani::Hucre(Null{}));
  EXPECT_EQ(grid.GetAck1() + grid.GetAck2() + grid.GetBaslikPrint(1),
            "Birinciİkinci"
            "Net Tutar");
  EXPECT_EQ(grid.Model().SayfaSayisi(), 2);
  grid.CurrentPage(1);
  EXPECT_EQ(grid.Model().Metin(grid.Model().rowCount() - 1, 1), "1,252.50") << "the sums, below the last page";
  EXPECT_EQ(grid.Belgesi().Kolonlar()[0].en, 5) << "paper cuts no text";

  grid.RaporKoy(Kalemler());
  grid.Add(0, std::string("x"));
  EXPECT_EQ(grid.GetFormatData(0, 0), "Çınar") << "a report that came as a whole stays";
}

TEST(Xgrid, SortsByValueWithTheTotalAtTheBottom) {
  Ekran e(Kalemler(0));
  const QString ilk = "Çınar IŞIK Cem İpek ıtır deniz TOPLAM  İşveren Payı : Kişi Sayısı :";
  const QString son = " TOPLAM  İşveren Payı : Kişi Sayısı :";
  EXPECT_EQ(Adlar(e.Grid()), ilk);
  struct {
    int kolon;
    const char* artan;
    const char* azalan;
  } const siralar[] = {
      {0, "Cem Çınar deniz IŞIK ıtır İpek", "İpek ıtır IŞIK deniz Çınar Cem"},
      {1, "IŞIK deniz Cem Çınar İpek ıtır", "ıtır İpek Çınar Cem IŞIK deniz"},
      {2, "ıtır deniz IŞIK İpek Çınar Cem", "Cem Çınar IŞIK İpek deniz ıtır"},
      {3, "IŞIK İpek deniz ıtır Çınar Cem", "Cem Çınar ıtır deniz İpek IŞIK"},
  };
  for (const auto& s : siralar) {
    e.Grid().CurrentRow(1);
    e.Grid().CurrentColon(s.kolon);
    e.Bas(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Adlar(e.Grid()), s.artan + son) << s.kolon;
    EXPECT_EQ(e.Grid().CurrentRow(), 1) << "the cursor stays on its record";
    EXPECT_EQ(e.Grid().selectionModel()->selectedRows(), QModelIndexList{e.Grid().currentIndex().siblingAtColumn(0)});
    EXPECT_TRUE(e.Grid().Model().headerData(s.kolon, Qt::Horizontal, Qt::DisplayRole).toString().endsWith("▲"));
    e.Bas(Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(Adlar(e.Grid()), s.azalan + son) << s.kolon;
    Q_EMIT e.Grid().horizontalHeader()->sectionClicked(s.kolon);
    EXPECT_EQ(Adlar(e.Grid()), ilk) << "the report's order is back";
  }
}

TEST(Xgrid, KeysTurnThePages) {
  Ekran e(Kalemler());
  auto* secici = e.form->findChild<QComboBox*>();
  EXPECT_TRUE(secici->isVisible());
  EXPECT_EQ(secici->currentText(), "Sayfa 1 / 3");
  const auto yer = [&] { return std::pair(e.Grid().CurrentPage(), e.Hucre()); };
  using Yer = std::pair<int, QString>;
  EXPECT_EQ(yer(), Yer(0, "Çınar")) << "the keyboard is in the grid";
  e.Bas(Qt::Key_PageDown);
  EXPECT_EQ(yer(), Yer(0, "Cem")) << "first to the end of the page";
  e.Bas(Qt::Key_PageDown);
  EXPECT_EQ(yer(), Yer(1, "İpek"));
  e.Bas(Qt::Key_PageUp);
  EXPECT_EQ(yer(), Yer(0, "Cem"));
  e.Bas(Qt::Key_PageDown, Qt::ControlModifier);
  e.Bas(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(yer(), Yer(2, "deniz"));
  EXPECT_EQ(secici->currentText(), "Sayfa 3 / 3");
  EXPECT_EQ(Adlar(e.Grid()), "deniz TOPLAM  İşveren Payı : Kişi Sayısı :");
  e.Bas(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(yer(), Yer(2, "deniz")) << "there is no further page";
  e.Grid().Sirala(0);
  e.Bas(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(Adlar(e.Grid()), "ıtır İpek") << "sorted within the page";
  Q_EMIT secici->activated(0);
  EXPECT_EQ(yer(), Yer(0, "Cem"));
  Ekran tek(Kalemler(0));
  EXPECT_FALSE(tek.form->findChild<QComboBox*>()->isVisible()) << "one page needs no selector";
}

TEST(Xgrid, FindsInTurkishAcrossPages) {
  Ekran e(Kalemler());
  const auto yer = [&] { return Utf8(e.Hucre()); };
  const auto bulunamadi = [&] {
    for (const QLabel* etiket : e.form->findChildren<QLabel*>())
      if (etiket->text() == "Bulunamadı") return etiket->isVisible();
    return false;
  };
  e.Yaz("ı");
  EXPECT_EQ(e.form->findChild<QLineEdit*>()->text(), "ı") << "a letter begins the search";
  EXPECT_EQ(yer(), "Çınar") << "the cell of the cursor counts while typing";
  e.Yaz("ş");
  EXPECT_EQ(yer(), "IŞIK");
  e.Bas(Qt::Key_Backspace);
  e.Yaz("\n");
  EXPECT_EQ(yer(), "ıtır") << "İpek has no ı; on the next page";
  e.Bas(Qt::Key_F3);
  EXPECT_EQ(yer(), "Çınar") << "round the end";
  e.Bas(Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(yer(), "ıtır");
  e.Bas(Qt::Key_F, Qt::ControlModifier);
  e.Yaz("1250.5");
  EXPECT_EQ(yer(), "-1,250.50") << "without commas";
  e.Bas(Qt::Key_F, Qt::ControlModifier);
  e.Yaz("1,250");
  EXPECT_EQ(yer(), "-1,250.50");
  EXPECT_FALSE(bulunamadi());
  e.Yaz("x");
  EXPECT_TRUE(bulunamadi());
  EXPECT_EQ(yer(), "-1,250.50") << "what is not found moves nothing";
  e.Bas(Qt::Key_Down);
  EXPECT_EQ(QApplication::focusWidget(), &e.Grid());
  e.Grid().CurrentPage(2);
  e.Bas(Qt::Key_PageDown);
  EXPECT_TRUE(e.Grid().Bul("deniz", xgrid::Yon::Geri)) << "from the sums back";
  EXPECT_EQ(yer(), "deniz");
}

TEST(Xgrid, CopiesTheSelectedRows) {
  Ekran e(Kalemler(0));
  e.Bas(Qt::Key_Down, Qt::ShiftModifier);
  e.Bas(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Yapistir(), "Çınar\t29.02.08\t10\t900.00\t\t\nIŞIK\t\t9\t-1,250.50\t\t");
  e.Bas(Qt::Key_End, Qt::ControlModifier);
  e.Bas(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(Utf8(Yapistir()), "Ad\tGün\tAdet\tTutar\tBirikmiş\tİmza\nKişi Sayısı :\t\t6\t\t\t");
}

TEST(Perekr, CommandsComeByKeys) {
  Ekran e(Kalemler());
  EXPECT_EQ(e.form->windowTitle(), "Kalemler");
  EXPECT_EQ(e.Grid().GetAck1(), "BELVANİ LTD.   2008");
  EXPECT_EQ(e.Grid().GetAck2(), "Sf") << "a page number belongs to paper";
  EXPECT_EQ(&e.form->Belgesi(), &e.Grid().Belgesi());
  e.Bas(Qt::Key_F8);
  e.Bas(Qt::Key_F9);
  e.Bas(Qt::Key_F, Qt::ControlModifier);
  e.Bas(Qt::Key_F9);
  e.Grid().yazdosprint();
  e.Grid().yazexcell();
  EXPECT_EQ(std::pair(e.yazdirma, e.excel), std::pair(2, 3));
  e.Bas(Qt::Key_Escape);
  EXPECT_FALSE(e.form->isVisible()) << "Esc leaves from the search box too";
}

TEST(Xgrid, FontsStayWithTheUser) {
  xgrid grid;
  grid.RaporKoy(Kalemler());
  grid.show();
  const int onceki = grid.rowHeight(0);
  GridYazilari yazilar = xgrid::Yazilar();
  const GridYazilari eski = yazilar;
  yazilar.detay.boyut = 20;
  ASSERT_TRUE(xgrid::Yazilar(yazilar));
  QEvent degisti(QEvent::ApplicationFontChange);  // which only a running program sends
  QCoreApplication::sendEvent(&grid, &degisti);
  EXPECT_EQ(KullaniciAyari("griddetayfontsize", "", "quick"), "20");
  EXPECT_GT(grid.rowHeight(0), onceki) << "a grid on show follows";
  ASSERT_TRUE(xgrid::Yazilar(eski));
}

}  // namespace
}  // namespace belvani::test
