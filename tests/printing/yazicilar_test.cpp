// The writers: what they make of a report, and that none of them adds anything up.
#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include "bol.h"
#include "core/sayi.h"
#include "core/turkce.h"
#include "printing/csvyazici.h"
#include "printing/metinyazici.h"
#include "printing/ornek.h"

namespace belvani {
namespace {

using test::Bol;
using test::Kalem;
using test::KalemRaporu;

const std::vector<Kalem> ikiKalem = {
    {.ad = "Işıl", .gun = Tarih(2008, 2, 29), .adet = 2, .tutar = Tutar(1234.5), .birikmis = Tutar(0.5)},
    {.ad = "Şükrüye Öğütçü", .adet = 0, .tutar = Tutar(-10.0)},
};

TEST(MetinYazici, PageWithRules) {
  Rapor rapor = KalemRaporu(ikiKalem);
  rapor.ustSatirlar = {{.orta = "Şubat 2008"}, {.sol = "ÜNVANI : Çınar", .sag = "Sayfa : ", .sayfaNo = true}};
  rapor.sonBlok = {{"Toplam Kalem : ", std::int64_t(2)}, {"Tutar :", Tutar(1224.5)}, {"Katkı :", Tutar()}};
  SayfaDuzeni duzen{.en = 49};  // what is declared and no more
  duzen.satirArasi = SatirArasi::CizgiCek;
  duzen.kolonArasi = KolonArasi::DikCizgi;
  EXPECT_TRUE(KodSayfasinaSigar(MetinRaporu(rapor, duzen), KodSayfasi::Dos857));  // the printer has every letter
  EXPECT_EQ(MetinRaporu(rapor, duzen),
            "                  KALEM LİSTESİ\n"
            "                   Şubat 2008\n"
            "ÜNVANI : Çınar                          Sayfa : 1\n"
            "──────────┬────────┬────┬────────┬────────┬──────\n"
            "          │        │    │  Toplam│        │\n"
            "Adı       │Gün     │Adet│   Tutar│Birikmiş│İmza\n"
            "──────────┼────────┼────┼────────┼────────┼──────\n"
            "Işıl      │29.02.08│   2│1,234.50│     .50│\n"
            "──────────┼────────┼────┼────────┼────────┼──────\n"
            "Şükrüye Öğ│        │    │  -10.00│        │\n"
            "──────────┼────────┼────┼────────┼────────┼──────\n"
            "          │        │   2│1,224.50│        │\n"
            "──────────┴────────┴────┴────────┴────────┴──────\n"
            "Toplam Kalem :         2\n"
            "Tutar :         1,224.50\n"
            "Katkı :\n");
}

TEST(MetinYazici, PagesSeparatedByBlanks) {
  const Rapor rapor = KalemRaporu({{.ad = "a", .tutar = Tutar(1.0)}, {.ad = "b", .tutar = Tutar(2.0), .grup = 1}});
  EXPECT_EQ(MetinRaporu(rapor, {}),
            "                      KALEM LİSTESİ\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "                    Toplam\n"
            "Adı Gün      Adet    Tutar Birikmiş İmza\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "a                     1.00\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "                      1.00\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "\f"
            "                      KALEM LİSTESİ\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "                    Toplam\n"
            "Adı Gün      Adet    Tutar Birikmiş İmza\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "b                     2.00\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "                      3.00\n"
            "--- -------- ---- -------- -------- --------------------\n");
  EXPECT_EQ(MetinRaporu(KalemRaporu({}), {}),
            "                      KALEM LİSTESİ\n"
            "--- -------- ---- -------- -------- --------------------\n"
            "                    Toplam\n"
            "Adı Gün      Adet    Tutar Birikmiş İmza\n"
            "--- -------- ---- -------- -------- --------------------\n");
}

// A name is cut only where the line would pass the paper's width, and then no more than has to be.
TEST(MetinYazici, TextsHaveTheRoomOfTheLine) {
  const std::string uzun = "Mehmet Abdurrahman Karaosmanoğulları Hacıahmetoğlu";
  const Rapor rapor = KalemRaporu({{.ad = uzun}});
  EXPECT_THAT(MetinRaporu(rapor, {}), testing::HasSubstr(uzun));
  const KagitBicimi dar = KagitBicimle(rapor, {.en = 70});
  EXPECT_EQ(dar.en, 70);
  EXPECT_GT(dar.enler[0], rapor.Kolonlar()[0].en);
  EXPECT_LT(dar.enler[0], int(HarfSayisi(uzun)));
  EXPECT_EQ(KagitBicimle(rapor, {.en = 40}).enler[0], rapor.Kolonlar()[0].en) << "the declared width stays";
}

TEST(MetinYazici, ControlLettersDoNotReachThePrinter) {
  Rapor rapor = KalemRaporu({{.ad = "A\x1b\x40li\f"}});
  rapor.baslik = "B\fAŞLIK";
  rapor.ustSatirlar = {{.sol = "\x1bsol", .sag = "sa\nğ"}};
  rapor.sonBlok = {{"so\fn", std::string("de\fğer")}};
  const std::string metin = MetinRaporu(rapor, {});
  EXPECT_EQ(metin.find_first_of("\x1b\f"), std::string::npos);
  EXPECT_THAT(metin, testing::HasSubstr("\n---- -------- ---- -------- -------- --------------------\nA@li\n"));
  EXPECT_THAT(metin, testing::HasSubstr("son değer\n"));
}

TEST(CsvYazici, Rows) {
  EXPECT_EQ(CsvRaporu(KalemRaporu(ikiKalem)),
            "Ad,Gün,Adet,Tutar,Birikmiş,İmza\r\n"
            "Işıl,29.02.2008,2,1234.50,0.50,\r\n"
            "Şükrüye Öğütçü,,0,-10.00,0.00,\r\n");
  EXPECT_EQ(CsvRaporu(KalemRaporu({})), "Ad,Gün,Adet,Tutar,Birikmiş,İmza\r\n");
}

TEST(CsvYazici, TextFields) {
  const struct {
    std::string metin;
    std::string alan;
  } ornekler[] = {
      {"Ali, Veli", "\"Ali, Veli\""},
      {"Ali \"Can\" Öz", "\"Ali \"\"Can\"\" Öz\""},
      {"00012", "00012"},
      {"a=b", "a=b"},
      {"=1+2", "'=1+2"},
      {"=HYPERLINK(\"http://a\",\"b\")", "\"'=HYPERLINK(\"\"http://a\"\",\"\"b\"\")\""},
      {"+cmd|' /C calc'!A0", "'+cmd|' /C calc'!A0"},
      {"-2+3", "'-2+3"},
      {"@SUM(A1)", "'@SUM(A1)"},
      {"  =1+2", "'  =1+2"},
      {"\r\n\t=1+2", "'=1+2"},
      {"-", "'-"},
      {"Ali;=1+2;3", "\"Ali;'=1+2;3\""},
      {"'=1", "''=1"},
      {"-5", "-5"},
      {"+12.50", "+12.50"},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.metin);
    EXPECT_EQ(CsvRaporu(KalemRaporu({{.ad = o.metin}})),
              "Ad,Gün,Adet,Tutar,Birikmiş,İmza\r\n" + o.alan + ",,0,0.00,0.00,\r\n");
  }
}

// Amounts of two decimals, so that a printed row loses nothing against its sum.
Kalem RastgeleKalem() {
  return {.ad = *rc::gen::element<std::string>("Işıl", "Öğütçü", "a", "", "İğneadalı Şükrüye"),
          .gun = Tarih(2008, *rc::gen::inRange(1, 13), 15),
          .adet = *rc::gen::inRange(0, 400),
          .tutar = Tutar::Hamdan(100 * *rc::gen::inRange<std::int64_t>(-5'000'000'000, 9'000'000'000)),
          .birikmis = Tutar::Hamdan(100 * *rc::gen::inRange<std::int64_t>(0, 500'000)),
          .grup = *rc::gen::weightedElement<int>({{20, 0}, {1, 1}})};
}

std::string Kirpik(const std::string& metin) {
  return std::string(Kirp(metin));
}

// An empty field is zero: zero amounts are not printed.
Tutar Okunan(const std::string& metin) {
  return Kirp(metin).empty() ? Tutar() : TutarOku(metin).value();
}

RC_GTEST_PROP(Yazicilar, SatirlarTutarinaToplamlarinaEsit, ()) {
  std::vector<Kalem> kalemler(*rc::gen::inRange<std::size_t>(1, 200));
  for (auto& kalem : kalemler) kalem = RastgeleKalem();
  const Rapor rapor = KalemRaporu(kalemler);
  SayfaDuzeni duzen{.satirSayisi = *rc::gen::element(22, 44, 66), .en = *rc::gen::element(40, 57, 132)};
  duzen.kolonArasi = KolonArasi::DikCizgi;

  Tutar metinde, csvde, beklenen;
  int csvdeAdet = 0;
  for (const auto& kalem : kalemler) beklenen += kalem.tutar;

  std::size_t genislik = 0;
  for (const auto& satir : Bol(MetinRaporu(rapor, duzen), "\n")) {
    const auto alanlar = Bol(satir, "│");
    const bool baslik = alanlar.size() < 6 || Kirp(alanlar[3]) == "Toplam" || Kirp(alanlar[3]) == "Tutar" ||
                        Kirpik(alanlar[0]) == "Adı";
    if (baslik) continue;
    // Every column stands at the same letter in all lines.
    const std::size_t buGenislik = HarfSayisi(satir.substr(0, satir.rfind("│")));
    if (genislik == 0) genislik = buGenislik;
    RC_ASSERT(buGenislik == genislik);
    // Only body rows have a date; the others are the sums so far.
    if (Kirp(alanlar[1]).empty())
      RC_ASSERT(Okunan(alanlar[3]) == metinde);
    else
      metinde += Okunan(alanlar[3]);
  }
  const auto csv = Bol(CsvRaporu(rapor), "\r\n");
  for (std::size_t i = 1; i + 1 < csv.size(); ++i) {
    const auto alanlar = Bol(csv[i], ",");
    csvde += Okunan(alanlar[3]);
    csvdeAdet += int(TamSayiOku(alanlar[2]).value());
  }
  RC_ASSERT(metinde == beklenen);
  RC_ASSERT(csvde == beklenen);
  RC_ASSERT(rapor.Toplam()[3] == Hucre(beklenen));
  RC_ASSERT(rapor.Toplam()[2] == Hucre(std::int64_t(csvdeAdet)));
}

}  // namespace
}  // namespace belvani
