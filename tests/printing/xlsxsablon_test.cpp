#include "printing/xlsxsablon.h"

#include <gmock/gmock.h>

#include "printing/xlsxkitap.h"
#include "printing/xlsxoku.h"
#include "printing/xlsxsayfa.h"

namespace belvani {
namespace {

using test::XlsxOku;
using test::XlsxParcasi;
using testing::HasSubstr;
using testing::Not;

constexpr const char* Sayfa1 = "xl/worksheets/sheet1.xml";
constexpr const char* Sayfa2 = "xl/worksheets/ikinci.xml";
constexpr const char* Ns = "xmlns=\"http://schemas.openxmlformats.org/spreadsheetml/2006/main\"";

// A form of two sheets with a formula, an order of calculation, a date format (style 1) and a row without places.
std::string Form() {
  XlsxKitap kitap("Bildirge");
  const auto tarih = kitap.StilEkle({.sayiBicimi = "dd\\.mm\\.yyyy"});
  kitap.Yaz(0, 0, Tarih(2008, 1, 1), tarih);
  auto zip = ZipDosyasi::Ac(*kitap.Bitir());
  const auto degistir = [&](const char* parca, const std::string& once, const std::string& ek) {
    std::string xml = *zip->Oku(parca);
    xml.insert(xml.find(once), ek);
    zip->Degistir(parca, xml);
  };
  degistir("xl/workbook.xml", "</sheets>", "<sheet name=\"İKİNCİ\" sheetId=\"2\" r:id=\"rId90\"/>");
  const std::string tur = "http://schemas.openxmlformats.org/officeDocument/2006/relationships/";
  degistir("xl/_rels/workbook.xml.rels", "</Relationships>",
           "<Relationship Id=\"rId90\" Type=\"" + tur + "worksheet\" Target=\"/xl/worksheets/ikinci.xml\"/>" +
               "<Relationship Id=\"rId91\" Type=\"" + tur + "calcChain\" Target=\"calcChain.xml\"/>");
  degistir("[Content_Types].xml", "</Types>", "<Override PartName=\"/xl/calcChain.xml\" ContentType=\"c\"/>");
  std::string kitapXml = *zip->Oku("xl/workbook.xml");
  const auto calc = kitapXml.find("<calcPr");
  zip->Degistir("xl/workbook.xml", kitapXml.erase(calc, kitapXml.find("/>", calc) + 2 - calc));
  zip->Degistir("xl/calcChain.xml", "<calcChain/>");
  zip->Degistir("xl/media/amblem.bin", std::string("\0\x01\r\n\xff", 5));
  zip->Degistir(Sayfa1, std::string("<?xml version=\"1.0\"?>\r\n<worksheet ") + Ns +
                            "><dimension ref=\"A1:D9\"/><cols><col min=\"5\" max=\"6\" style=\"1\"/></cols><sheetData>"
                            "<row r=\"2\" spans=\"2:4\" ht=\"30\"><c r=\"B2\" s=\"7\" t=\"s\"><v>0</v></c>"
                            "<c r=\"D2\" s=\"1\"><v>5</v></c></row>"
                            "<row r=\"9\" s=\"4\" customFormat=\"1\"><c r=\"A9\"><f>B2+1</f><v>3</v></c>"
                            "<c r=\"B9\"><f t=\"shared\" ref=\"B9:C9\" si=\"0\">A9</f><v>1</v></c></row></sheetData>"
                            "<mergeCells><mergeCell ref=\"B2:C2\"/></mergeCells></worksheet>");
  zip->Degistir(Sayfa2, std::string("<worksheet ") + Ns +
                            "><sheetData><row><c><v>1</v></c><c><v>2</v></c></row><row/></sheetData></worksheet>");
  return *zip->Bitir();
}

TEST(XlsxSablon, Fills) {
  const std::string once = Form();
  auto sablon = XlsxSablon::Ac(once);
  ASSERT_TRUE(sablon) << sablon.KusurMetni();
  const std::pair<const char*, Hucre> yazilanlar[] = {
      {"B2", std::string(" Işıl <&> Çağ ")},
      {"D2", Tarih(2008, 2, 29)},
      {"C2", Tutar(-1234.5)},
      {"b1", std::string("baş")},
      {"AA5", std::int64_t(42)},
      {"E5", Tarih(2008, 2, 29)},
      {"F5", Tarih(1899, 5, 19)},
      {"Z5", Tarih(2008, 2, 29)},
      {"C9", Tutar(0.25)},
      {"A9", std::int64_t(0)},
      {"B5", std::string("eski")},
      {"B5", Null{}},
  };
  for (const auto& [adres, deger] : yazilanlar) ASSERT_TRUE(sablon->Yaz("", adres, deger)) << adres;
  ASSERT_TRUE(sablon->Yaz("ikinci", "C1", Tutar(3.0)));
  ASSERT_TRUE(sablon->Yaz("İKİNCİ", "A2", Tutar(4.0)));
  const std::string sonra = *sablon->Bitir();

  auto h = XlsxOku(sonra);
  const std::pair<const char*, const char*> beklenenler[] = {
      {"B2", " Işıl <&> Çağ "}, {"D2", "39507"}, {"C2", "-1234.50"},   {"B1", "baş"},  {"AA5", "42"}, {"E5", "39507"},
      {"F5", "19.05.1899"},     {"A9", "0"},     {"Z5", "29.02.2008"}, {"C9", "0.25"}, {"B5", ""},    {"B9", "1"}};
  for (const auto& [adres, deger] : beklenenler) EXPECT_EQ(h[adres].deger, deger) << adres;
  EXPECT_EQ(h["B2"].stil, "7");
  EXPECT_EQ(h["E5"].stil, "1") << "of the column";
  EXPECT_EQ(h["C9"].stil, "4") << "of the row";
  const std::string xml = XlsxParcasi(sonra, Sayfa1);
  EXPECT_THAT(xml, HasSubstr("<row r=\"1\"><c r=\"B1\" t=\"inlineStr\">"));
  EXPECT_THAT(xml, HasSubstr("<row r=\"2\" ht=\"30\"><c r=\"B2\""));
  for (const char* sira :
       {"<c r=\"B2\".*<c r=\"C2\".*<c r=\"D2\".*<row r=\"5\".*<c r=\"E5\".*<c r=\"Z5\".*<c r=\"AA5\"",
        "<c r=\"B9\".*<c r=\"C9\".*</sheetData><mergeCells>"})
    EXPECT_THAT(xml, testing::ContainsRegex(sira));
  auto ikinci = XlsxOku(sonra, Sayfa2);
  EXPECT_EQ(ikinci["B1"].deger, "2");
  EXPECT_EQ(ikinci["C1"].deger, "3.00");
  EXPECT_EQ(ikinci["A2"].deger, "4.00");

  // The order of calculation is gone without a trace; everything else is as it was.
  EXPECT_THAT(XlsxParcasi(sonra, "xl/workbook.xml"), HasSubstr("<calcPr fullCalcOnLoad=\"1\"/>"));
  EXPECT_THAT(XlsxParcasi(sonra, "[Content_Types].xml"), Not(HasSubstr("calcChain")));
  EXPECT_THAT(XlsxParcasi(sonra, "xl/_rels/workbook.xml.rels"), Not(HasSubstr("calcChain")));
  const auto eski = ZipDosyasi::Ac(once);
  const auto yeni = ZipDosyasi::Ac(sonra);
  EXPECT_EQ(yeni->Adlar().size(), eski->Adlar().size() - 1);
  for (const char* parca : {"xl/styles.xml", "xl/theme/theme1.xml", "xl/media/amblem.bin", "docProps/app.xml"})
    EXPECT_EQ(yeni->Oku(parca), eski->Oku(parca)) << parca;
}

TEST(XlsxSablon, AnUntouchedFileStaysTheSame) {
  const std::string once = Form();
  EXPECT_EQ(*XlsxSablon::Ac(once)->Bitir(), once);
}

TEST(XlsxSablon, Refuses) {
  const std::string form = Form();
  const auto parcasiz = [&](const char* parca) {
    auto zip = ZipDosyasi::Ac(form);
    zip->Sil(parca);
    return *zip->Bitir();
  };
  const std::pair<std::string, const char*> dosyalar[] = {
      {"", "değil ya da bozuk"},
      {"PK\x03\x04 yarım", "değil ya da bozuk"},
      {form.substr(0, form.size() / 2), "değil ya da bozuk"},
      {std::string("\xd0\xcf\x11\xe0\xa1\xb1\x1a\xe1", 8), "eski biçimde (.xls)"},
      {parcasiz("_rels/.rels"), "içinde sayfa yok"},
      {parcasiz("xl/workbook.xml"), "içinde sayfa yok"},
      {parcasiz("xl/_rels/workbook.xml.rels"), "içinde sayfa yok"},
  };
  for (const auto& [baytlar, neden] : dosyalar) {
    const auto sablon = XlsxSablon::Ac(baytlar);
    ASSERT_FALSE(sablon) << neden;
    EXPECT_THAT(sablon.KusurMetni(), HasSubstr(neden));
  }
  auto sablon = XlsxSablon::Ac(form);
  EXPECT_THAT(sablon->Yaz("Üçüncü", "A1", Null{}).KusurMetni(), HasSubstr("'Üçüncü' sayfası yok"));
  EXPECT_THAT(sablon->Yaz("", "B9", std::int64_t(1)).KusurMetni(), HasSubstr("başka hücrelerle ortak"));
  for (const char* adres :
       {"", "A", "1", "A0", "A01", "1A", "A1B", "A-1", "XFE1", "A1048577", "ABCD1", "Ç1", "A99999999"})
    EXPECT_THAT(sablon->Yaz("", adres, Null{}).KusurMetni(), HasSubstr("Hücre adresi değil")) << adres;
  EXPECT_TRUE(sablon->Yaz("", "xfd1048576", std::int64_t(1)));
  auto bozuk = XlsxSablon::Ac(parcasiz(Sayfa2));
  EXPECT_THAT(bozuk->Yaz("ikinci", "A1", Null{}).KusurMetni(), HasSubstr("sayfası bozuk"));
}

// Small as files, without end when they are unpacked or gone through.
TEST(XlsxSablon, HostileWorkbooksAreRefusedAtOnce) {
  const std::string form = Form();
  const auto degisik = [&](const std::vector<std::pair<std::string, std::string>>& parcalar) {
    auto zip = ZipDosyasi::Ac(form);
    for (const auto& [ad, icerik] : parcalar) zip->Degistir(ad, icerik);
    return *zip->Bitir();
  };
  const auto cok = [](const std::string& ne, int kac) {
    std::string hepsi;
    for (int i = 0; i < kac; ++i) hepsi += ne;
    return hepsi;
  };
  std::string sayfalar = XlsxParcasi(form, "xl/workbook.xml");
  sayfalar.insert(sayfalar.find("</sheets>"), cok("<sheet name=\"x\" sheetId=\"9\" r:id=\"rId90\"/>", 300));
  std::vector<std::pair<std::string, std::string>> parcalar;
  for (int i = 0; i < 2'000; ++i) parcalar.emplace_back("xl/p" + std::to_string(i), "");
  const std::pair<std::string, const char*> dosyalar[] = {
      {degisik({{Sayfa1, cok("<a b='>'>", 100'000)}}), "sheet1.xml içinde ögeler çok derin"},
      {degisik({{Sayfa1, "<a " + cok("b='' ", 2'000'001) + "/>"}}), "sheet1.xml içinde çok fazla öge var"},
      {degisik({{Sayfa2, cok("<c/>", 1'000'001)}}), "ikinci.xml içinde çok fazla öge var"},
      {degisik({{Sayfa2, std::string(17u << 20, ' ')}}), "ikinci.xml açılınca 16 MB sınırını aşıyor"},
      {degisik({{"xl/media/1", std::string(70u << 20, ' ')}, {"xl/media/2", std::string(70u << 20, ' ')}}),
       "açılınca 128 MB sınırını aşıyor"},
      {degisik(parcalar), "en çok 2000 parçası olabilir"},
      {degisik({{"xl/workbook.xml", sayfalar}}), "en çok 256 sayfası olabilir"},
  };
  for (const auto& [baytlar, neden] : dosyalar) {
    EXPECT_LT(baytlar.size(), 1u << 20) << neden;
    const auto sablon = XlsxSablon::Ac(baytlar);
    EXPECT_THAT(sablon ? "açıldı" : sablon.KusurMetni(), HasSubstr(neden));
  }
  EXPECT_TRUE(XlsxSablon::Ac(degisik({{Sayfa2, "<!-- " + cok("<a>", 1'000) + " --><![CDATA[" + cok("<a>", 1'000) +
                                                   "]]><worksheet><sheetData/></worksheet>"}})))
      << "what looks deep and is not";
}

TEST(XlsxSablon, Addresses) {
  const std::pair<const char*, std::pair<int, int>> ornekler[] = {
      {"A1", {0, 0}},   {"Z9", {8, 25}},   {"AA10", {9, 26}},  {"AZ1", {0, 51}},
      {"BA1", {0, 52}}, {"ZZ1", {0, 701}}, {"AAA1", {0, 702}}, {"XFD1048576", {1'048'575, 16'383}}};
  for (const auto& [adres, yer] : ornekler) {
    EXPECT_EQ(XlsxAdresi(yer.first, yer.second), adres);
    const auto okunan = XlsxYeriOku(adres);
    ASSERT_TRUE(okunan) << adres;
    EXPECT_EQ(std::pair(okunan->satir - 1, okunan->kolon - 1), yer) << adres;
  }
}

}  // namespace
}  // namespace belvani
