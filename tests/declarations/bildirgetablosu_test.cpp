// The spreadsheet form: which cell gets what, that the shipped form has a box there, and where forms are looked for.
#include "declarations/bildirgetablosu.h"

#include <filesystem>
#include <set>

#include "core/dosya.h"
#include "gecici.h"
#include "kagit.h"
#include "printing/xlsxoku.h"
#include "printing/xlsxsablon.h"
#include "printing/xlsxsayfa.h"

namespace belvani {
namespace {

using test::Kagit;
using test::XlsxOku;
using testing::HasSubstr;

std::string Sablon() {
  return DosyaOku(test::KaynakYolu("data/sablon/aylik.xlsx")).value();
}

// What is shipped is what its drawer draws.
TEST(BildirgeTablosu, TheShippedFormIsDrawnByItsProgram) {
  const test::GeciciDizin dizin;
  const std::string cizilen = dizin.Yol() + "aylik.xlsx";
  ASSERT_EQ(std::system((BELVANI_SABLON " " + cizilen).c_str()), 0);
  EXPECT_TRUE(DosyaOku(cizilen).value() == Sablon());
}

TEST(BildirgeTablosu, CellsStandAtTheirAddresses) {
  BildirgeKagidi kagit = Kagit(2);
  kagit.satirlar.push_back(test::Satir("sigkol=|tcno=1|primkazanc=5000|gun=9"));
  kagit.satirlar.push_back(
      test::Satir("sigkol=01|tcno=10000000146|adi=Işıl|soyadi=Çağ|ilksoyadi=Öz|primkazanc=1250.5|primdisi=0|gun=15|"
                  "girtar=05.07.2009|ciktar=20.12.2009|eksik=6|ciksebeb=3"));
  const auto tablo = BildirgeTablosuYap(Sablon(), kagit);
  ASSERT_TRUE(tablo) << tablo.KusurMetni();
  const auto bos = XlsxOku(Sablon());
  auto dolu = XlsxOku(*tablo);
  const std::pair<const char*, const char*> beklenen[] = {{"HE8", "2009"},
                                                          {"HE12", "07"},
                                                          {"HE18", "X"},
                                                          {"HE27", "01"},
                                                          {"HE32", "05510"},
                                                          {"HE40", "1"},
                                                          {"HE46", "1"},
                                                          {"AX61", "8"},
                                                          {"AX65", "225"},
                                                          {"AX69", "1"},
                                                          {"AX73", "2"},
                                                          {"AX77", "3"},
                                                          {"AX81", "16"},
                                                          {"AX85", "404.00"},
                                                          {"EM65", "1000.00"},
                                                          {"EM69", "1002.00"},
                                                          {"EM73", "1001.00"},
                                                          {"EM77", "0.00"},
                                                          {"EM81", "1003.00"},
                                                          {"GN65", "1.00"},
                                                          {"GN69", "20.00"},
                                                          {"GN73", "12.50"},
                                                          {"GN77", "0.00"},
                                                          {"GN81", "3.00"},
                                                          {"HL65", "10.00"},
                                                          {"HL69", "200.00"},
                                                          {"HL73", "125.00"},
                                                          {"HL77", "0.00"},
                                                          {"HL81", "30.00"},
                                                          {"HL85", "365.00"},
                                                          {"DC151", "8"},
                                                          {"DJ151", "3054.00"},
                                                          {"EA151", "200.00"},
                                                          {"ES151", "16"},
                                                          {"FC151", "404.00"},
                                                          {"BZ19", "X"},
                                                          {"DP19", "X"},
                                                          {"AW23", "Şık Örgü"},
                                                          {"AW29", "Sanayi Cad. Kat 2"},
                                                          {"AW34", "Semt: Dudullu"},
                                                          {"BT37", "İl: İstanbul"},
                                                          {"BT34", "İlçe:"},
                                                          {"BT40", "Posta Kodu:"},
                                                          {"AW47", "1234567890"},
                                                          {"CP23", "Ada"},
                                                          {"CP34", "Semt:"},
                                                          {"EF37", "İl:"},
                                                          {"EF34", "İlçe:"},
                                                          {"EF40", "Posta Kodu:"},
                                                          {"EF47", "99"},
                                                          {"CG178", "Ömer Güneş"},
                                                          {"CG183", "34-77"},
                                                          {"I101", "89238471844"},
                                                          {"AP101", "Abdurrahman Gazi"},
                                                          {"DC101", "30"},
                                                          {"DJ101", "901.25"},
                                                          {"EA101", "100.00"},
                                                          {"ES101", "2"},
                                                          {"FC101", "50.50"},
                                                          {"FQ101", ""},
                                                          {"DJ106", "902.25"},
                                                          {"I111", "10000000146"},
                                                          {"BN111", "Çağ"},
                                                          {"CL111", "Öz"},
                                                          {"DC111", "15"},
                                                          {"DJ111", "1250.50"},
                                                          {"EA111", ""},
                                                          {"ES111", ""},
                                                          {"FQ111", "05"},
                                                          {"GB111", "07"},
                                                          {"GM111", "20"},
                                                          {"GX111", "12"},
                                                          {"HI111", "6"},
                                                          {"HZ111", "3"},
                                                          {"I116", ""},
                                                          {"I151", bos.at("I151").deger.c_str()}};
  for (const auto& [adres, deger] : beklenen) {
    EXPECT_EQ(dolu[adres].deger, deger) << adres;
    EXPECT_EQ(dolu[adres].stil, bos.at(adres).stil) << adres;
    dolu.erase(adres);
  }
  // Written too: texts of the parties that are empty here, and people's cells.
  for (const auto& [adres, hucre] : dolu) {
    const int satir = XlsxYeriOku(adres)->satir;
    const bool kisi = satir >= 101 && satir < 151 && (satir - 101) % 5 == 0;
    const bool numara = satir == 13;
    EXPECT_TRUE(kisi || numara || hucre.deger == bos.at(adres).deger) << adres;
  }
  EXPECT_EQ(dolu.size() + std::size(beklenen), bos.size()) << "no cell is new: all addresses are of the form";
}

// In a merged box only the upper left cell is seen.
TEST(BildirgeTablosu, TheTemplateHasABoxForEachAddress) {
  std::set<std::string> kutular;
  pugi::xml_document sayfa;
  const std::string xml = test::XlsxParcasi(Sablon(), "xl/worksheets/sheet1.xml");
  ASSERT_TRUE(sayfa.load_string(xml.c_str()));
  for (const auto kutu : sayfa.child("worksheet").child("mergeCells").children()) {
    const std::string yer = kutu.attribute("ref").value();
    kutular.insert(yer.substr(0, yer.find(':')));
  }
  std::vector<std::string> adresler{"HE8",  "HE12", "HE18", "HE27", "HE32", "HE40",  "HE46", "HL85",
                                    "BZ19", "DP19", "AW23", "AW29", "AW34", "BT37",  "BT34", "BT40",
                                    "AW43", "BT43", "AW47", "CP23", "CP29", "CP34",  "EF37", "EF34",
                                    "EF40", "CP43", "EF43", "CP47", "EF47", "CG178", "CG183"};
  for (int satir = 61; satir <= 85; satir += 4) adresler.push_back("AX" + std::to_string(satir));
  for (int satir = 65; satir <= 81; satir += 4)
    for (const char* kolon : {"EM", "GN", "HL"}) adresler.push_back(kolon + std::to_string(satir));
  for (int satir = 101; satir <= 151; satir += 5)
    for (const char* kolon : {"I", "AP", "BN", "CL", "DC", "DJ", "EA", "ES", "FC", "FQ", "GB", "GM", "GX", "HI", "HZ"})
      adresler.push_back(kolon + std::to_string(satir));
  for (const auto& adres : adresler) EXPECT_EQ(kutular.count(adres), 1u) << adres;
  EXPECT_STREQ(sayfa.child("worksheet").child("pageSetup").attribute("orientation").value(), "landscape");
}

TEST(BildirgeTablosu, OldRemainsAndEmptyForm) {
  auto eski = XlsxSablon::Ac(Sablon());
  for (const char* adres : {"AP101", "HZ146", "DP19", "HE18"}) ASSERT_TRUE(eski->Yaz("", adres, std::string("eski")));
  BildirgeKagidi kagit = Kagit(1);
  kagit.arac = {};
  kagit.arac.kod = "000";
  kagit.mahiyet = BelgeMahiyeti::Iptal;
  auto hucreler = XlsxOku(*BildirgeTablosuYap(*eski->Bitir(), kagit));
  EXPECT_EQ(hucreler["AP101"].deger, "Abdurrahman Gazi");
  for (const char* adres : {"HZ146", "DP19", "HE18"}) EXPECT_EQ(hucreler[adres].deger, "") << adres;

  EXPECT_EQ(*BildirgeTablosuYap(Sablon(), Kagit(0)), Sablon());
  EXPECT_FALSE(BildirgeTablosuYap("tablo değil", Kagit(1)));
}

// Each sheet has its people and its sums; the declaration's totals stand on the first, the sums of all on the last.
TEST(BildirgeTablosu, FurtherPeopleStandOnFurtherSheets) {
  const auto kitap = BildirgeTablosuYap(Sablon(), Kagit(22));
  ASSERT_TRUE(kitap) << kitap.KusurMetni();
  auto ilk = XlsxOku(*kitap, "xl/worksheets/sheet1.xml");
  auto ikinci = XlsxOku(*kitap, "xl/worksheets/sheet1k2.xml");
  auto son = XlsxOku(*kitap, "xl/worksheets/sheet1k3.xml");
  EXPECT_EQ(ilk["HE40"].deger + ikinci["HE40"].deger + son["HE40"].deger, "123");
  EXPECT_EQ(ikinci["HE46"].deger, "3");
  EXPECT_EQ(ilk["DJ101"].deger, "901.25");
  EXPECT_EQ(ikinci["DJ101"].deger, "911.25");
  EXPECT_EQ(son["DJ106"].deger, "922.25");
  EXPECT_EQ(son["DJ111"].deger, "");
  EXPECT_EQ(ikinci["E101"].deger, "11");
  EXPECT_EQ(ilk["HL85"].deger, "365.00");
  EXPECT_EQ(ikinci["HL85"].deger + ikinci["AX61"].deger + son["EM65"].deger, "");
  EXPECT_EQ(ilk["DC151"].deger, "10");
  EXPECT_EQ(ilk["EA151"].deger, "1000.00");
  EXPECT_EQ(ikinci["DJ151"].deger, "9157.50");
  EXPECT_EQ(son["DC151"].deger, "8") << "all, as the declaration counts them";
  EXPECT_EQ(son["EA151"].deger, "2200.00");
  EXPECT_EQ(son["ES151"].deger, "16");
  EXPECT_EQ(ilk["FC151"].deger, "505.00");
  // The number of the workplace, digit by digit: unit 0101, province 034, subcontractor 007.
  for (const char* adres : {"AU13", "BJ13"}) EXPECT_EQ(son[adres].deger, "0") << adres;
  const std::string tanim = test::XlsxParcasi(*kitap, "xl/workbook.xml");
  EXPECT_THAT(tanim, HasSubstr("localSheetId=\"2\">'Bildirge 3'!$D$1:$IL$190"));
  EXPECT_THAT(BildirgeTablosuYap(Sablon(), Kagit(501)).KusurMetni(), HasSubstr("en çok 500 kişi"));
}

TEST(BildirgeTablosu, PlaceOfTheTemplate) {
  const test::GeciciDizin d;
  const std::string kullanici = d.Yol() + "veri/", program = d.Yol() + "program/";
  const std::vector dizinler{kullanici, program};
  ASSERT_TRUE(DizinYarat(kullanici) && DizinYarat(program));
  EXPECT_THAT(TabloSablonu(dizinler).KusurMetni(), HasSubstr(program + "aylik.xlsx"));
  ASSERT_TRUE(DosyaYaz(program + "aylik.xlsx", "kurulu"));
  EXPECT_EQ(*TabloSablonu(dizinler), "kurulu");

  // An office program of our own: what it is given, as the workbook.
  const std::string ofis = d.Yol() + "ofis";
  ASSERT_TRUE(DosyaYaz(ofis,
                       "#!/bin/sh\nfor a; do s=$a; done\nwhile [ \"$1\" != --outdir ]; do shift; done\n"
                       "cp \"$s\" \"$2/aylik.xlsx\"\n"));
  std::filesystem::permissions(ofis, std::filesystem::perms::owner_all);
  ASSERT_TRUE(DosyaYaz(kullanici + "aylik.xls", "\xd0\xcf\x11\xe0 eski"));
  EXPECT_EQ(*TabloSablonu(dizinler, ofis), "\xd0\xcf\x11\xe0 eski");
  EXPECT_THAT(TabloSablonu(dizinler, ofis + "yok").KusurMetni(), HasSubstr(".xlsx olarak kaydediniz"));

  ASSERT_TRUE(DosyaYaz(kullanici + "aylik.xlsx", "kullanıcının"));
  EXPECT_EQ(*TabloSablonu(dizinler), "kullanıcının");
}

}  // namespace
}  // namespace belvani
