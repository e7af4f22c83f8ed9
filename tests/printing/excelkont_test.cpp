#include "printing/excelkont.h"

#include <gmock/gmock.h>

#include "core/dosya.h"
#include "gecici.h"
#include "printing/xlscevir.h"
#include "printing/xlsxkitap.h"
#include "printing/xlsxoku.h"

namespace belvani {
namespace {

using test::XlsxOku;

constexpr const char* ExcelYok = "Excell Yüklü Değil veya Desteklenmeyen Versiyon";

struct Excel {
  test::GeciciDizin dizin;
  std::vector<std::string> acilan;
  bool acilir = true;
  excelkont excel{{.ac =
                       [this](const std::string& dosya) {
                         acilan.push_back(dosya);
                         return acilir;
                       },
                   .yolSor =
                       [this] {
                         ++soruldu;
                         return yol;
                       }}};
  std::optional<std::string> yol = dizin.Yol() + "cikti.xlsx";
  int soruldu = 0;

  ~Excel() {
    const std::filesystem::path dosya = excel.Dosya();
    if (dosya.parent_path().filename().string().starts_with("belvani-"))
      std::filesystem::remove_all(dosya.parent_path());
  }

  test::XlsxHucreleri Hucreler() const { return XlsxOku(DosyaOku(excel.Dosya()).value_or("")); }
  // An executable that stands for the office program.
  std::string Program(const std::string& govde) const {
    const std::string program = dizin.Yol() + "cevirici";
    EXPECT_TRUE(DosyaYaz(program, "#!/bin/sh\n" + govde));
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    return program;
  }
};

TEST(Excelkont, ANewWorkbookFillsCellByCell) {
  Excel e;
  EXPECT_FALSE(e.excel.SetExcell(1, 1, std::string("kapalı"))) << "nothing is open";
  ASSERT_TRUE(e.excel.OpenExcell());
  e.excel.Baslik = "TAZMİNAT/TABLO";
  EXPECT_TRUE(e.excel.SetExcell(3, 2, Tutar(1250.5)));
  EXPECT_TRUE(e.excel.SetExcell(1, 1, e.excel.Baslik, ExcelYazisi::Koyu));
  EXPECT_TRUE(e.excel.SetExcel("b2", std::int64_t(2009)));
  EXPECT_TRUE(e.excel.SetExcel("B3", Tutar(-0.25), ExcelYazisi::Koyu)) << "written over";
  EXPECT_TRUE(e.excel.SetExcell(40, 213, Tarih(2008, 2, 29)));
  EXPECT_TRUE(e.excel.SetExcel("C1", std::string("=1+1")));
  e.excel.KolonEni(3, 41);
  ASSERT_TRUE(e.excel.CloseExcell());
  EXPECT_EQ(e.acilan, std::vector{e.excel.Dosya()});
  EXPECT_EQ(std::filesystem::path(e.excel.Dosya()).filename(), "TAZMİNAT_TABLO.xlsx");
  EXPECT_EQ(e.soruldu, 0) << "the program has it";
  auto hucreler = e.Hucreler();
  EXPECT_EQ(hucreler.size(), 5u);
  EXPECT_EQ(hucreler["A1"].deger, "TAZMİNAT/TABLO");
  EXPECT_EQ(hucreler["B2"].deger, "2009");
  EXPECT_EQ(hucreler["B3"].Sayi(), Tutar(-0.25));
  EXPECT_EQ(hucreler["HE40"].deger, std::to_string(Tarih(2008, 2, 29).SeriNo())) << "row 40, column 213";
  EXPECT_TRUE(hucreler["C1"].metin) << "a text is no formula";
  const std::string stiller = test::XlsxParcasi(*DosyaOku(e.excel.Dosya()), "xl/styles.xml");
  EXPECT_NE(stiller.find("dd.mm.yyyy"), std::string::npos);
  EXPECT_NE(stiller.find("#,##0.00;-#,##0.00;"), std::string::npos) << "zero stays empty, as on paper";
  EXPECT_THAT(test::XlsxParcasi(*DosyaOku(e.excel.Dosya()), "xl/worksheets/sheet1.xml"),
              testing::ContainsRegex("<col min=\"3\" max=\"3\" width=\"41"))
      << "as asked for";
  EXPECT_NE(hucreler["A1"].stil, hucreler["C1"].stil) << "bold and plain";
}

TEST(Excelkont, ABrokenCellStaysOutAndIsToldOnClosing) {
  for (const auto& [satir, kolon] : {std::pair(0, 1), {1, 0}, {-5, 3}, {1'048'577, 1}, {1, 16'385}}) {
    Excel e;
    ASSERT_TRUE(e.excel.OpenExcell());
    EXPECT_FALSE(e.excel.SetExcell(satir, kolon, Tutar(1.0))) << satir << "," << kolon;
    EXPECT_FALSE(e.excel.SetExcel("1A", Null{}));
    EXPECT_EQ(e.excel.CloseExcell().KusurMetni(),
              "Sayfada satır " + std::to_string(satir) + ", kolon " + std::to_string(kolon) + " yok")
        << "the first one";
    EXPECT_TRUE(e.acilan.empty() && e.excel.Dosya().empty());
  }
}

// Made once: a workbook bears the second of its making.
const std::string& Form() {
  static const std::string form = [] {
    XlsxKitap kitap("Form");
    kitap.Yaz(0, 0, std::string("Başlık"), kitap.StilEkle({.koyu = true}));
    kitap.Yaz(1, 1, Tarih(2000, 1, 1), kitap.StilEkle({.sayiBicimi = XlsxTarihBicimi}));
    return *kitap.Bitir();
  }();
  return form;
}

TEST(Excelkont, ATemplateKeepsItsLook) {
  Excel e;
  const std::string sablon = e.dizin.Yol() + "aylik.xlsx";
  ASSERT_TRUE(DosyaYaz(sablon, Form()));
  ASSERT_TRUE(e.excel.OpenExcell(sablon));
  EXPECT_TRUE(e.excel.SetExcell(2, 2, Tarih(2009, 7, 1), ExcelYazisi::Koyu));
  EXPECT_TRUE(e.excel.SetExcel("d9", Tutar(5.5)));
  e.excel.ExVisible(false);
  ASSERT_TRUE(e.excel.CloseExcell());
  EXPECT_TRUE(e.acilan.empty()) << "written, not shown";
  const auto once = XlsxOku(Form());
  auto sonra = e.Hucreler();
  EXPECT_EQ(sonra["B2"].deger, std::to_string(Tarih(2009, 7, 1).SeriNo()));
  EXPECT_EQ(sonra["B2"].stil, once.at("B2").stil);
  EXPECT_EQ(sonra["D9"].Sayi(), Tutar(5.5));
  EXPECT_EQ(DosyaOku(sablon), Form()) << "the form itself stays";
}

TEST(Excelkont, AWorkbookAndAProgramThatDoNotOpen) {
  Excel e;
  EXPECT_FALSE(e.excel.OpenExcell(e.dizin.Yol() + "yok.xlsx"));
  ASSERT_TRUE(DosyaYaz(e.dizin.Yol() + "bozuk.xlsx", "PK bozuk"));
  EXPECT_FALSE(e.excel.OpenExcell(e.dizin.Yol() + "bozuk.xlsx"));
  EXPECT_FALSE(e.excel.CloseExcell()) << "nothing is open after a failure";
  e.acilir = false;
  ASSERT_TRUE(e.excel.OpenExcell());
  EXPECT_TRUE(e.excel.SetExcel("A1", std::string("x")));
  EXPECT_TRUE(e.excel.CloseExcell());
  EXPECT_EQ(e.excel.Dosya(), e.yol) << "it goes where the user wants it";
  EXPECT_EQ(e.Hucreler()["A1"].deger, "x");
  EXPECT_FALSE(std::filesystem::exists(e.acilan[0])) << "nothing stays among the temporary files";
}

TEST(Excelkont, AFinishedWorkbookIsHandedOver) {
  Excel e;
  e.excel.Baslik = "../ÜCRET: a/b";
  e.excel.HazirKitap(Form());
  EXPECT_FALSE(e.excel.SetExcell(1, 1, Tutar(1.0))) << "it is finished";
  ASSERT_TRUE(e.excel.CloseExcell());
  const std::filesystem::path dosya = e.excel.Dosya();
  EXPECT_EQ(dosya.filename(), "_._ÜCRET_ a_b.xlsx");
  EXPECT_EQ(dosya.parent_path().parent_path(), std::filesystem::temp_directory_path());
  EXPECT_EQ(DosyaOku(dosya), Form()) << "byte for byte";

  Excel vazgecen;
  vazgecen.acilir = false;
  vazgecen.yol = std::nullopt;
  vazgecen.excel.HazirKitap(Form());
  EXPECT_TRUE(vazgecen.excel.CloseExcell()) << "given up is no failure";
  EXPECT_EQ(vazgecen.excel.Dosya(), "");
  vazgecen.yol = "/proc/olmaz/tablo.xlsx";
  EXPECT_EQ(vazgecen.excel.CloseExcell().KusurMetni(), "/proc/olmaz/tablo.xlsx: dosya yazılamadı (dizin bulunamadı)");
  excelkont sorusuz;
  sorusuz.HazirKitap(Form());
  EXPECT_EQ(sorusuz.CloseExcell().KusurMetni(), ExcelYok);
}

// The arguments go to the program as they are, whatever the file is called.
TEST(Excelkont, AnOldWorkbookIsConvertedFirst) {
  Excel e;
  const std::string eski = e.dizin.Yol() + "-o $(touch kaçtı) ;'\".xls";
  ASSERT_TRUE(DosyaYaz(eski, "\xd0\xcf\x11\xe0 eski"));
  ASSERT_TRUE(DosyaYaz(e.dizin.Yol() + "hazir.xlsx", Form()));
  struct {
    const char* ad;
    std::string program;
    bool olur;
  } const durumlar[] = {
      {"a program that converts",
       e.Program("[ \"$2$3$4$5\" = --headless--convert-toxlsx--outdir ] && ad=${7##*/} && cp '" + e.dizin.Yol() +
                 "hazir.xlsx' \"$6/${ad%.xls}.xlsx\"\n"),
       true},
      {"no program", e.dizin.Yol() + "yok", false},
      {"a program that leaves nothing", "true", false},
      {"a program that fails", "false", false},
  };
  for (const auto& d : durumlar) {
    excelkont excel({.ac = nullptr, .yolSor = nullptr, .donusturucu = d.program});
    const Durum acildi = excel.OpenExcell(eski);
    ASSERT_EQ(bool(acildi), d.olur) << d.ad;
    if (acildi) continue;
    EXPECT_EQ(acildi.KusurMetni(), ExcelYok) << d.ad;
  }
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(e.dizin.Yol()), {}), 3) << "nothing else came about";
}

}  // namespace
}  // namespace belvani
