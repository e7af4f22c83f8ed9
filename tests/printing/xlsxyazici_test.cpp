#include "printing/xlsxyazici.h"

#include <clocale>
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include "core/ortam.h"
#include "gecici.h"
#include "printing/ornek.h"
#include "printing/xlsxkitap.h"
#include "printing/xlsxoku.h"
#include "surec.h"

namespace belvani {
namespace {

using test::Kalem;
using test::KalemRaporu;
using test::XlsxOku;
using testing::HasSubstr;

std::string Xlsx(const Rapor& rapor) {
  auto baytlar = XlsxRaporu(rapor);
  EXPECT_TRUE(baytlar) << baytlar.KusurMetni();
  return baytlar ? *baytlar : "";
}

Rapor OrnekRapor() {
  Rapor rapor = KalemRaporu({{.ad = "Işıl", .gun = Tarih(2008, 2, 29), .adet = 2, .tutar = Tutar(1234.5)},
                             {.ad = "=1+1 <Ğüş&İ>", .gun = Tarih(1899, 5, 19), .tutar = Tutar(-0.01)}});
  rapor.ustSatirlar = {{.orta = "Şubat 2008"}, {.sol = "ÜNVANI : Çınar", .sag = "Sayfa : ", .sayfaNo = true}};
  rapor.sonBlok = {{"Toplam Kalem : ", std::int64_t(2)}, {"Tutar :", Tutar(1234.49)}};
  return rapor;
}

TEST(XlsxYazici, CellsAreRealValues) {
  const std::string baytlar = Xlsx(OrnekRapor());
  auto h = XlsxOku(baytlar);
  EXPECT_EQ(h["A1"].deger, "Kalemler");
  EXPECT_EQ(h["A2"].deger, "Şubat 2008");
  EXPECT_EQ(h["A3"].deger, "ÜNVANI : Çınar");
  EXPECT_EQ(h["D4"].deger, "Tutar");
  EXPECT_EQ(h["A5"].deger, "Işıl");
  EXPECT_EQ(h["B5"].deger, "39507");  // 29.02.2008
  EXPECT_FALSE(h["B5"].metin);
  EXPECT_EQ(h["D5"].deger, "1234.5");
  EXPECT_EQ(h["A6"].deger, "=1+1 <Ğüş&İ>");
  EXPECT_TRUE(h["A6"].metin);
  EXPECT_EQ(h["B6"].deger, "19.05.1899");
  EXPECT_EQ(h["D6"].deger, "-0.01");
  EXPECT_EQ(h["C7"].deger, "2");
  EXPECT_EQ(h["D7"].deger, "1234.49");
  EXPECT_FALSE(h.contains("A7"));
  EXPECT_EQ(h["A9"].deger, "Toplam Kalem : ");
  EXPECT_EQ(h["C10"].deger, "1234.49");  // behind the longest label
  EXPECT_EQ(h.count("F5"), 0u);          // for the pen

  const std::string sayfa = test::XlsxParcasi(baytlar, "xl/worksheets/sheet1.xml");
  EXPECT_THAT(sayfa, HasSubstr("topLeftCell=\"A5\""));
  EXPECT_EQ(sayfa.find("<f"), std::string::npos);
  const std::string stiller = test::XlsxParcasi(baytlar, "xl/styles.xml");
  for (const char* bicim : {"#,##0.00;-#,##0.00;", "#,##0;-#,##0;", "dd.mm.yy"})
    EXPECT_THAT(stiller, HasSubstr("formatCode=\"" + std::string(bicim) + "\""));
  EXPECT_THAT(test::XlsxParcasi(baytlar, "xl/workbook.xml"), HasSubstr("<sheet name=\"Kalemler\""));
}

// As it opens it prints on A4, no wider than a page, with the heads and the number on each.
TEST(XlsxYazici, PrintsOnA4) {
  const std::string dar = Xlsx(OrnekRapor());
  const std::string sayfa = test::XlsxParcasi(dar, "xl/worksheets/sheet1.xml");
  for (const char* parca : {"<pageSetUpPr fitToPage=\"1\"/>", "paperSize=\"9\"", "fitToHeight=\"0\"", "&amp;P / &amp;N",
                            "orientation=\"portrait\""})
    EXPECT_THAT(sayfa, HasSubstr(parca));
  EXPECT_THAT(test::XlsxParcasi(dar, "xl/workbook.xml"), HasSubstr("Print_Titles"));
  const std::string genis = Xlsx(KalemRaporu({{.ad = std::string(120, 'x')}, {.ad = "y", .tutar = Tutar(1e11)}}));
  EXPECT_THAT(test::XlsxParcasi(genis, "xl/worksheets/sheet1.xml"), HasSubstr("orientation=\"landscape\""));
}

// Slips: each begins a page.
TEST(XlsxYazici, SlipsStartPages) {
  Yaprak yaprak;
  yaprak.sol = {{"Ad", std::string("Işıl")}};
  YaprakBelgesi belge{.baslik = "PUSULA", .yapraklar = {std::vector<Yaprak>(3, yaprak)}};
  const auto baytlar = XlsxYapraklari(belge);
  ASSERT_TRUE(baytlar);
  const std::string sayfa = test::XlsxParcasi(*baytlar, "xl/worksheets/sheet1.xml");
  EXPECT_THAT(sayfa, HasSubstr("<rowBreaks count=\"2\""));
  EXPECT_THAT(sayfa, HasSubstr("paperSize=\"9\" fitToHeight=\"0\" orientation=\"portrait\""));
  auto h = XlsxOku(*baytlar);
  const auto ilkSatir = [&](const std::string& no) { return h["A" + no].deger; };
  std::size_t yer = sayfa.find("<brk id=\"");
  for (int i = 0; i < 2; ++i, yer = sayfa.find("<brk id=\"", yer + 1)) {
    const int satir = std::atoi(sayfa.c_str() + yer + 9);  // the last row above the break
    EXPECT_EQ(ilkSatir(std::to_string(satir + 1)), "PUSULA");
  }
}

TEST(XlsxYazici, WritesNoDecimalCommas) {
  const test::GeciciDizin dizin;
  std::system(("localedef -i tr_TR -f UTF-8 " + dizin.Yol() + "tr_TR.UTF-8 2>/dev/null").c_str());
  enum { Tamam, VirgulYok, Bozuk, YereliDegisti };
  test::Surec surec([&] {
    ::setenv("LOCPATH", dizin.Yol().c_str(), 1);
    ::setenv("LC_ALL", "tr_TR.UTF-8", 1);
    const auto virgullu = [] { return std::localeconv()->decimal_point == std::string(","); };
    if (std::setlocale(LC_ALL, "") == nullptr || !virgullu()) return int(VirgulYok);
    auto h = XlsxOku(Xlsx(OrnekRapor()));
    if (h["D5"].deger != "1234.5" || h["D7"].deger != "1234.49") return int(Bozuk);
    return int(virgullu() ? Tamam : YereliDegisti);
  });
  EXPECT_EQ(surec.Bekle(), Tamam);
}

TEST(XlsxYazici, InvalidNamesAndBytes) {
  Rapor rapor = KalemRaporu({{.ad = "\xfd\xfe"}});  // "ış" in the Windows code page
  rapor.ekranBasligi = "'Gelir/Gider [2008]: *çok uzun bir başlık?";
  const std::string baytlar = Xlsx(rapor);
  EXPECT_THAT(test::XlsxParcasi(baytlar, "xl/workbook.xml"), HasSubstr("name=\"Gelir Gider  2008    çok uzun b\""));
  EXPECT_EQ(XlsxOku(baytlar)["A3"].deger, "ış");
  rapor.ekranBasligi = "";
  EXPECT_THAT(test::XlsxParcasi(Xlsx(rapor), "xl/workbook.xml"), HasSubstr("name=\"Rapor\""));
}

TEST(XlsxYazici, WhatDoesNotFitIsTold) {
  EXPECT_THAT(XlsxRaporu(KalemRaporu({{.ad = std::string(40'000, 'x')}})).KusurMetni(), HasSubstr("32,767 harf"));
  XlsxKitap kitap("a");
  const auto duz = kitap.StilEkle({});
  kitap.Yaz(1'048'576, 0, std::int64_t(1), duz);
  EXPECT_THAT(kitap.Bitir().KusurMetni(), HasSubstr("1,048,576 satır"));
}

// No room for the temporary files, wherever it ends: a failure is told, and a half workbook never passes for a whole
// one. Rows need no such room.
TEST(XlsxYazici, AFullDiskIsTold) {
  const Rapor rapor = KalemRaporu(std::vector<Kalem>(2000, {.ad = "Şükrüye Öğütçü", .tutar = Tutar(1234.56)}));
  for (const rlim_t sinir : {0ul, 300ul, 700ul, 3'000ul, 5'000ul, 60'000ul}) {
    testing::internal::CaptureStderr();
    const auto sonuc = [&] {
      const auto disk = test::DarDisk(sinir);
      return XlsxRaporu(rapor);
    }();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "told once, by its caller: " << sinir;
    EXPECT_EQ(bool(sonuc), sinir == 60'000) << sinir;
    if (sonuc)
      EXPECT_EQ(XlsxOku(*sonuc)["D2003"].Sayi(), Tutar(2000 * 1234.56));
    else
      EXPECT_THAT(sonuc.KusurMetni(), HasSubstr("Tablo dosyası yazılamadı")) << sinir;
  }
}

RC_GTEST_PROP(XlsxYazici, SatirlarVeToplamlarRaporunkidir, ()) {
  const auto hamlar = *rc::gen::container<std::vector<std::int64_t>>(rc::gen::inRange<std::int64_t>(-1e12, 1e12));
  std::vector<Kalem> kalemler;
  for (const auto ham : hamlar) kalemler.push_back({.ad = "k", .tutar = Tutar::Hamdan(ham)});
  auto h = XlsxOku(Xlsx(KalemRaporu(kalemler)));
  Tutar toplam;
  for (std::size_t i = 0; i < hamlar.size(); ++i) {
    const Tutar tutar = h["D" + std::to_string(i + 3)].Sayi();
    RC_ASSERT(tutar == kalemler[i].tutar);
    toplam += tutar;
  }
  if (!hamlar.empty()) RC_ASSERT(h["D" + std::to_string(hamlar.size() + 3)].Sayi() == toplam);
}

TEST(XlsxYapraklari, TwoBlocksSideBySide) {
  YaprakBelgesi belge{.baslik = "FİŞ", .yapraklar = {}};
  belge.yapraklar = std::vector<Yaprak>(2, {.altBaslik = "Ocak",
                                            .bas = {{"Adı :", std::string("Işıl")}},
                                            .sol = {{"Gün :", std::int64_t(0)}, {"Giriş :", Tarih(2008, 1, 1)}},
                                            .sag = {{"Net :", Tutar()}},
                                            .ek = {{"Katkı :", Tutar(1.5)}, {"Muaf :", Tutar(2.5)}},
                                            .cumleler = {"Aldım."}});
  const auto baytlar = XlsxYapraklari(belge);
  ASSERT_TRUE(baytlar);
  auto h = XlsxOku(*baytlar);
  EXPECT_EQ(h["B3"].deger, "Işıl");
  EXPECT_EQ(h["B5"].deger, "0");
  EXPECT_EQ(h["D5"].deger, "0");
  EXPECT_EQ(h["B6"].deger, "39448");
  EXPECT_EQ(h["D8"].deger, "2.5");
  EXPECT_EQ(h["A9"].deger, "Aldım.");
  EXPECT_EQ(h["A12"].deger, "FİŞ");

  EXPECT_EQ(MetinYapraklari({.baslik = "FİŞ", .yapraklar = std::vector{belge.yapraklar[0]}}, {}),
            "                                     FİŞ\n"
            "                                    Ocak\n"
            "Adı : Işıl\n" +
                std::string(76, '-') +
                "\n"
                "Gün :            0    Net : 0.00\n"
                "Giriş : 01.01.2008\n" +
                std::string(76, '-') +
                "\n"
                "Aldım.\n");
  belge.yapraklar = std::vector(5, belge.yapraklar[0]);  // 8 lines, 3 between: two fit on 20 lines, not on 19
  const auto sayfalar = [&](int satirSayisi) {
    const std::string metin = MetinYapraklari(belge, {.satirSayisi = satirSayisi});
    return std::count(metin.begin(), metin.end(), '\f') + 1;
  };
  EXPECT_EQ(sayfalar(20), 3);
  EXPECT_EQ(sayfalar(19), 5);
  EXPECT_EQ(sayfalar(0), 5);
}

}  // namespace
}  // namespace belvani
