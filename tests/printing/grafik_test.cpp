// Pages: what a PDF says when it is read back, and where things stand.
#include <cmath>
#include <cstdio>
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "core/sayi.h"
#include "gecici.h"
#include "printing/cairotuval.h"
#include "printing/form/formbelgesi.h"
#include "printing/grafikyaprak.h"
#include "printing/grafikyazici.h"
#include "printing/kayittuvali.h"
#include "printing/ornek.h"

// fontconfig keeps a little of its settings for ever.
extern "C" const char* __lsan_default_suppressions();   // NOLINT: the name is the sanitizer's
extern "C" const char* __lsan_default_suppressions() {  // NOLINT
  return "leak:libfontconfig";
}

namespace belvani {
namespace {

using test::Kalem;
using test::KalemRaporu;
using test::KayitTuvali;
using test::OgeTuru;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

std::string Calistir(const std::string& komut) {
  std::string cikti;
  FILE* boru = popen(komut.c_str(), "r");
  if (boru == nullptr) return cikti;
  char blok[4096];
  for (std::size_t n; (n = fread(blok, 1, sizeof blok, boru)) > 0;) cikti.append(blok, n);
  pclose(boru);
  return cikti;
}

std::vector<Kalem> Kalemler(int adet) {
  std::vector<Kalem> kalemler;
  for (int i = 1; i <= adet; ++i)
    kalemler.push_back({.ad = "Kalem " + std::to_string(i), .gun = Tarih(2008, 1, 1), .adet = 1, .tutar = Tutar(1.5)});
  return kalemler;
}

Rapor GenisRapor(int kolonSayisi) {
  RaporKolonu kolon;
  kolon.tur = KolonTuru::Tutar;
  kolon.ondalik = 2;
  const std::vector<RaporKolonu> kolonlar(std::size_t(kolonSayisi), kolon);
  Rapor rapor(kolonlar);
  rapor.Ekle({std::vector<Hucre>(kolonlar.size(), Tutar(-1234567.89))});
  return rapor;
}

TEST(Grafik, TextAndBytesOfThePdf) {
  const std::string harfler = "Işıl Öğütçü İğneadalı ŞÜKRÜYE ĞÇ │ 1,234.50";
  const auto ciz = [&] {
    PdfTuvali pdf({.baslik = "ÜCRET BORDROSU"});
    for (const auto yon : {KagitYonu::Dikey, KagitYonu::Yatay}) {
      pdf.SayfaBasla(A4(yon));
      pdf.Metin({20, 20}, harfler, {.punto = 9});
      pdf.Metin({20, 40}, "Eğik Ç\x80\n", {.aile = YaziAilesi::EsEnli, .durus = YaziDurusu::Egik, .genislik = 0.7});
      pdf.DoluKutu({20, 60, 30, 10}, 0x336699);
      pdf.SayfaBitir();
    }
    return *pdf.Belge();
  };
  const test::GeciciDizin dizin;
  const std::string yol = dizin.Yol() + "a.pdf";
  ASSERT_TRUE(DosyaYaz(yol, ciz()));
  const std::string metin = Calistir("pdftotext -layout " + yol + " -");
  EXPECT_THAT(metin, HasSubstr(harfler));
  EXPECT_THAT(metin, HasSubstr("Eğik Ç?"));
  const std::string bilgi = Calistir("pdfinfo -l 2 " + yol);
  for (const char* satir : {"ÜCRET BORDROSU", "Pages:           2", "Page    1 size:  595.276 x 841.89 pts (A4)",
                            "Page    2 size:  841.89 x 595.276 pts (A4)"})
    EXPECT_THAT(bilgi, HasSubstr(satir));
  EXPECT_THAT(Calistir("pdffonts " + yol), HasSubstr("DejaVuSansMono"));
  EXPECT_THAT(Calistir("pdffonts " + yol), Not(HasSubstr(" no  ")));  // all embedded
  EXPECT_EQ(ciz(), ciz());
  EXPECT_EQ(PdfTuvali().Belge().KusurMetni(), "Yazdırılacak sayfa yok");
}

std::string SayfaMetni(const std::string& yol, int sayfa) {
  const std::string no = std::to_string(sayfa);
  return Calistir("pdftotext -layout -f " + no + " -l " + no + " " + yol + " -");
}

// What pages have in common stands on each that asks for it and on no other, at its place, readable; a page that draws
// through looks the same.
TEST(Grafik, AFormIsSharedByItsPages) {
  const test::GeciciDizin dizin;
  const auto sayfaYap = [](Tuval& sayfa, Tuval& kalip, const std::string& deger) {
    kalip.Kutu({20, 20, 60, 10});
    MetinKutuya(kalip, {20, 20, 30, 10}, "İşsizlik Ğ", {.punto = 9}, MetinHizasi::Sol);
    MetinKutuya(sayfa, {50, 20, 30, 10}, deger, {.punto = 9}, MetinHizasi::Sag);
    MetinKutuya(kalip, {20, 40, 30, 10}, "Eğik", {.durus = YaziDurusu::Egik}, MetinHizasi::Sol);
  };
  const auto belge = [&](const std::string& ad, bool kalipli) {
    PdfTuvali pdf;
    for (const char* deger : {"11.25", "", "22.50"}) {
      pdf.SayfaBasla(A4(KagitYonu::Dikey));
      if (*deger != '\0') sayfaYap(pdf, kalipli ? pdf.Kalip("kutu") : pdf, deger);
      pdf.SayfaBitir();
    }
    const std::string yol = dizin.Yol() + ad;
    EXPECT_TRUE(DosyaYaz(yol, *pdf.Belge()));
    return yol;
  };
  const std::string kalipli = belge("kalipli.pdf", true);
  EXPECT_THAT(SayfaMetni(kalipli, 1), AllOf(HasSubstr("İşsizlik Ğ"), HasSubstr("11.25"), HasSubstr("Eğik")));
  EXPECT_THAT(SayfaMetni(kalipli, 2), Not(HasSubstr("İşsizlik")));
  EXPECT_THAT(SayfaMetni(kalipli, 3), AllOf(HasSubstr("İşsizlik Ğ"), HasSubstr("22.50"), Not(HasSubstr("11.25"))));
  EXPECT_EQ(Calistir("pdftoppm -r 100 -gray " + kalipli), Calistir("pdftoppm -r 100 -gray " + belge("duz.pdf", false)));
}

// Slips, forms and lists share what is the same and nothing else.
TEST(Grafik, DoesNotMixUpForms) {
  const test::GeciciDizin dizin;
  const auto yaz = [&](const CizilenBelge& belge) {
    PdfTuvali pdf;
    SayfalariCiz(belge, pdf);
    const std::string yol = dizin.Yol() + "a.pdf";
    EXPECT_TRUE(DosyaYaz(yol, *pdf.Belge()));
    return yol;
  };
  std::vector<Yaprak> yapraklar;
  for (const char* etiket : {"Ücreti :", "Ücreti :", "Yevmiyesi :"})
    yapraklar.push_back(
        {.altBaslik = {}, .bas = {{etiket, Tutar(1.5)}}, .sol = {}, .sag = {}, .ek = {}, .cumleler = {}});
  const YaprakBelgesi fisler{.baslik = "FİŞ", .yapraklar = yapraklar};
  const std::string fis = yaz(GrafikYapraklar(fisler, SayfadaYaprak::Bir));
  EXPECT_THAT(SayfaMetni(fis, 2), HasSubstr("Ücreti"));
  EXPECT_THAT(SayfaMetni(fis, 3), AllOf(HasSubstr("Yevmiyesi"), Not(HasSubstr("Ücreti")), HasSubstr("FİŞ")));

  std::vector<FormSayfasi> sayfalar;
  for (const char* etiket : {"Sicil No", "Sicil No", "Adı Soyadı"}) {
    FormKurucu form(A4(KagitYonu::Dikey));
    form.Etiket({10, 10, 30, 8}, etiket);
    form.Alan("deger", {40, 10, 30, 8}, "Işıl " + std::to_string(sayfalar.size()));
    form.SayfaAdi({10, 30, 40, 8}, std::to_string(sayfalar.size() + 1) + ". SAYFA", 12);
    sayfalar.push_back(form.Sayfa());
  }
  const std::string form = yaz(*FormBelgesi({}, sayfalar, "").Cizim());
  EXPECT_THAT(SayfaMetni(form, 2), AllOf(HasSubstr("Sicil No"), HasSubstr("Işıl 1"), HasSubstr("2. SAYFA")));
  EXPECT_THAT(SayfaMetni(form, 3), AllOf(HasSubstr("Adı Soyadı"), HasSubstr("Işıl 2"), Not(HasSubstr("Sicil"))));
  KayitTuvali tuval;
  SayfalariCiz(*FormBelgesi({}, sayfalar, "").Cizim(), tuval);
  EXPECT_EQ(tuval.kaliplar.size(), 2u) << "pages that differ in values and name alone share their frame";

  const Rapor rapor = KalemRaporu(Kalemler(150));
  const std::string liste = yaz(GrafikRapor(rapor, {.yon = {}, .kolonArasi = KolonArasi::DikCizgi}));
  for (const int sayfa : {1, 2, 3}) EXPECT_THAT(SayfaMetni(liste, sayfa), HasSubstr("Birikmiş")) << sayfa;
}

// The preview shows the asked page alone, with dots where the page has ink.
TEST(Grafik, PageOfThePreview) {
  ResimTuvali resim(254, 2);
  for (int sayfa = 1; sayfa <= 3; ++sayfa) {
    resim.SayfaBasla(A4(KagitYonu::Yatay));
    resim.DoluKutu({10.0 * sayfa, 10, 5, 5}, 0xFF0000);
    resim.SayfaBitir();
  }
  EXPECT_EQ(resim.SayfaSayisi(), 3);
  ASSERT_EQ(resim.En(), 2970);
  ASSERT_EQ(resim.Boy(), 2100);
  const auto nokta = [&](int x, int y) { return resim.Noktalar()[std::size_t(y * resim.En() + x)]; };
  EXPECT_EQ(nokta(225, 125), 0xFFFF0000);
  EXPECT_EQ(nokta(125, 125), 0xFFFFFFFF);
  EXPECT_FALSE(resim.Resim({0, 0, 10, 10}, "png değil"));
  EXPECT_EQ(ResimTuvali(100, 9).En(), 0);
}

TEST(Grafik, FitsIntoTheBox) {
  KayitTuvali tuval;
  tuval.SayfaBasla(A4(KagitYonu::Dikey));
  MetinKutuya(tuval, {10, 10, 8, 5}, "123,456,789.00", {.punto = 10}, MetinHizasi::Sag);
  const auto& oge = tuval.sayfalar[0].ogeler[0];
  EXPECT_EQ(oge.metin, "123,456,789.00");
  EXPECT_NEAR(oge.kutu.x, 10, 1e-6);
  EXPECT_NEAR(oge.Sag(), 18, 1e-6);
}

TEST(GrafikYazici, RowsOfThePage) {
  Rapor rapor = KalemRaporu({{.ad = "Işıl", .gun = Tarih(2008, 2, 29), .adet = 2, .tutar = Tutar(1234.5)}});
  rapor.ustSatirlar = {{.orta = "Şubat 2008"},
                       {.sol = "ÜNVANI : Çınar", .sag = "Sayfa : ", .sayfaNo = true, .sayfaSayisi = true}};
  rapor.toplamEtiketi = "TOPLAM";
  rapor.sonBlok = {{"Tutar :", Tutar(1224.5)}};
  KayitTuvali tuval;
  const GrafikRapor sayfalar(rapor, {});
  SayfalariCiz(sayfalar, tuval);
  ASSERT_EQ(sayfalar.SayfaSayisi(), 1);
  EXPECT_EQ(sayfalar.Uyari(), "");
  EXPECT_THAT(tuval.sayfalar[0].Satirlar(),
              testing::ElementsAre("KALEM LİSTESİ", "Şubat 2008", "ÜNVANI : Çınar|Sayfa : 1/1", "Toplam",
                                   "Adı|Gün|Adet|Tutar|Birikmiş|İmza", "Işıl|29.02.08|2|1,234.50", "TOPLAM|2|1,234.50",
                                   "Tutar :|1,224.50"));
  EXPECT_EQ(GrafikRapor(KalemRaporu({}), {}).SayfaSayisi(), 1) << "the heads alone";
}

// At the border: as many rows as leave ten lines free fill one page; one more begins the next, with its own head and
// sums. Everything lies inside the printable part of the sheet, and columns do not overlap.
TEST(GrafikYazici, BordersOfThePage) {
  const GrafikDuzeni duzen{.yon = {}, .punto = 10, .kolonArasi = KolonArasi::DikCizgi};
  const auto sayfala = [&](int adet) {
    KayitTuvali tuval;
    const Rapor rapor = KalemRaporu(Kalemler(adet));
    SayfalariCiz(GrafikRapor(rapor, duzen), tuval);
    return tuval;
  };
  const int satir = GrafikBicimle(KalemRaporu(Kalemler(200)), duzen).satirSayisi;
  const int bas = 5;  // title, rule, two lines of heads, rule
  EXPECT_EQ(satir, 61);
  const GrafikBicimi bicim = GrafikBicimle(KalemRaporu(Kalemler(200)), duzen);
  EXPECT_DOUBLE_EQ(bicim.kagit.satirBoyu * bicim.satirBoyu, 7) << "millimetres to sign in";
  EXPECT_GE(bicim.kolonlar.back().en, 20);
  const int imzali = int(std::ceil((satir - 10 - bas) / bicim.kagit.satirBoyu));
  const auto toplam = [](int adet) { return std::to_string(adet) + "|" + TutarMetni(Tutar(1.5 * adet), 2); };
  EXPECT_EQ(sayfala(imzali).sayfalar.size(), 1u);
  const KayitTuvali iki = sayfala(imzali + 1);
  ASSERT_EQ(iki.sayfalar.size(), 2u);
  EXPECT_EQ(iki.sayfalar[0].Satirlar().back(), toplam(imzali));
  EXPECT_EQ(iki.sayfalar[1].Satirlar().back(), toplam(imzali + 1));
  EXPECT_THAT(iki.sayfalar[1].Satirlar(),
              testing::Contains("Kalem " + std::to_string(imzali + 1) + "|01.01.08|1|1.50"));
  for (const auto& oge : iki.sayfalar[0].ogeler) {
    EXPECT_GE(oge.kutu.x, KenarMm - 1e-6);
    EXPECT_LE(oge.Sag(), 210 - KenarMm + 1e-6);
    EXPECT_LE(oge.Alt(), 297 - KenarMm + 1e-6);
  }
}

TEST(GrafikYazici, WidthChoosesOrientationAndSize) {
  const struct {
    const char* ad;
    int kolon;
    std::optional<KagitYonu> yon;
    KagitYonu beklenenYon;
    bool okunur;
    int gruplama;
  } ornekler[] = {
      {"few columns", 6, {}, KagitYonu::Dikey, true, BinlikGruplama},
      {"more than upright letters can hold", 12, {}, KagitYonu::Yatay, true, BinlikGruplama},
      {"the user's choice stands", 6, KagitYonu::Yatay, KagitYonu::Yatay, true, BinlikGruplama},
      {"narrow letters, no thousands marks", 27, {}, KagitYonu::Yatay, true, 0},
      {"wider than a sheet can be read", 60, {}, KagitYonu::Yatay, false, 0},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    KayitTuvali tuval;
    const Rapor rapor = GenisRapor(o.kolon);
    const GrafikRapor sayfalar(rapor, {.yon = o.yon});
    SayfalariCiz(sayfalar, tuval);
    EXPECT_EQ(sayfalar.Bicim().yon, o.beklenenYon);
    EXPECT_EQ(sayfalar.Uyari().empty(), o.okunur);
    EXPECT_EQ(sayfalar.Bicim().kagit.gruplama, o.gruplama);
    double sag = 0;
    for (const auto& oge : tuval.sayfalar[0].ogeler) {
      if (oge.metin != (o.gruplama ? "-1,234,567.89" : "-1234567.89")) continue;
      EXPECT_GT(oge.kutu.x, sag);
      EXPECT_EQ(oge.yazi.genislik, sayfalar.Bicim().yazi.genislik);
      sag = oge.Sag();
    }
    EXPECT_GT(sag, 0);
    EXPECT_LE(sag, A4(o.beklenenYon).en - KenarMm + 1e-6);
    EXPECT_EQ(sayfalar.Bicim().yazi.punto >= EnKucukPunto * 0.999, o.okunur);
  }
}

// One very long text is narrowed in its own cell; nothing is cut, and the others keep their size.
TEST(GrafikYazici, ALongTextIsNotCut) {
  const std::string uzun = "Abdurrahmanoğulları Çelebizadeoğlu";
  KayitTuvali tuval;
  const Rapor rapor = KalemRaporu({{.ad = uzun, .tutar = Tutar(1.0)}, {.ad = "Ali"}});
  SayfalariCiz(GrafikRapor(rapor, {}), tuval);
  bool var = false;
  for (const auto& oge : tuval.sayfalar[0].ogeler) {
    if (oge.metin != uzun) {
      EXPECT_EQ(oge.yazi.genislik, 1) << oge.metin;
      continue;
    }
    var = true;
    EXPECT_LT(oge.yazi.genislik, 1);
    EXPECT_GT(oge.yazi.genislik, 0.55);
  }
  EXPECT_TRUE(var);
}

}  // namespace
}  // namespace belvani
