// The paper forms of the declaration: where pages break, that their sums agree, and where on the page values land.
#include "declarations/bildirgeformu.h"

#include "core/turkce.h"
#include "declarations/formresimleri.h"
#include "kagit.h"
#include "printing/form/formmetni.h"
#include "printing/form/satirliform.h"

namespace belvani {
namespace {

using test::BildirgeSirketi;
using test::Kagit;
using test::Sigortali;
using testing::ElementsAre;

// Value of a field, "-" when the page has none of that name.
std::string FormDegeri(const FormSayfasi& sayfa, const std::string& ad) {
  const auto alan = std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad);
  return alan == sayfa.alanlar.end() ? "-" : alan->deger;
}

std::vector<std::string> SatirlarDolu(const std::string& metin) {
  std::vector<std::string> satirlar{""};
  for (const char c : metin) c == '\n' ? satirlar.emplace_back() : satirlar.back() += c;
  return satirlar;
}

TEST(BildirgeFormu, PagesAndTheirTotals) {
  const struct {
    int kisi;
    std::vector<std::size_t> sonlar;  // rows up to the end of each page
  } ornekler[] = {{0, {0}}, {1, {1}}, {7, {7}}, {8, {7, 8}}, {32, {7, 32}}, {33, {7, 32, 33}}, {58, {7, 32, 57, 58}}};
  for (const auto& o : ornekler) {
    const BildirgeKagidi kagit = Kagit(o.kisi);
    const auto bolumler = SayfalaraBol(kagit.satirlar);
    const auto sayfalar = BildirgeSayfalari(kagit);
    ASSERT_EQ(sayfalar.size(), o.sonlar.size()) << o.kisi;
    KagitToplami onceki;
    for (std::size_t s = 0; s < sayfalar.size(); ++s) {
      EXPECT_EQ(bolumler[s].son, o.sonlar[s]);
      EXPECT_EQ(bolumler[s].devir, onceki) << "carried as the page before ended";
      onceki = bolumler[s].dahil;
      EXPECT_EQ(FormDegeri(sayfalar[s], "sayfano"), std::to_string(s + 1));
      EXPECT_EQ(FormDegeri(sayfalar[s], "sayfasayisi"), std::to_string(sayfalar.size()));
      if (const std::size_t son = o.sonlar[s]; son > 0) {
        EXPECT_EQ(FormDegeri(sayfalar[s], "satir" + std::to_string(son) + ".sira"), std::to_string(son));
        EXPECT_EQ(FormDegeri(sayfalar[s], "satir" + std::to_string(son + 1) + ".sira"), "-");
      }
    }
    // The n-th person has 1000.25 + n, and 2 days of paid leave for 50.5.
    EXPECT_EQ(onceki.gun, 30 * o.kisi);
    EXPECT_EQ(onceki.kazanc, Tutar(1000.25 * o.kisi + o.kisi * (o.kisi + 1) / 2));
    EXPECT_EQ(onceki.izinGunu, 2 * o.kisi);
    EXPECT_EQ(onceki.izinUcreti, o.kisi * Tutar(50.5));
  }
}

TEST(BildirgeFormu, ValuesStandInTheirPlaces) {
  BildirgeKagidi kagit = Kagit(8);
  kagit.mahiyet = BelgeMahiyeti::Ek;
  kagit.satirlar[7] = test::Satir(
      "sigkol=01|sskno=3401|tcno=10000000146|adi=Işıl|soyadi=Çağ|ilksoyadi=Öz|primkazanc=1250.5|gun=15|ui=2|uiucret=83."
      "37|girtar=05.07.2009|ciktar=20.07.2009|eksik=6|eksikgunsayisi=15|ciksebeb=3|farkmivar=1");
  const auto sayfalar = BildirgeSayfalari(kagit);
  const std::pair<const char*, const char*> ilk[] = {{"mahiyet.asil", ""},
                                                     {"mahiyet.ek", "X"},
                                                     {"yil", "2009"},
                                                     {"ay", "07"},
                                                     {"belgeturu", "01"},
                                                     {"kanun", "05510"},
                                                     {"firma.il", "034"},
                                                     {"firma.sube", "0101"},
                                                     {"arac.kod", "007"},
                                                     {"isveren.unvan", "Şık Örgü"},
                                                     {"araci.unvan", "Ada Taşeron"},
                                                     {"brans3.prim", "200.00"},
                                                     {"brans4.matrah", ""},
                                                     {"geneltoplam", "365.00"},
                                                     {"toplam.izinucreti", "404.00"},
                                                     {"sayfa.gun", "210"},
                                                     {"sayfa.kazanc", "7,029.75"},
                                                     {"devreden.gun", "-"},
                                                     {"muhasebeci.sicil", "34-77"}};
  for (const auto& [ad, deger] : ilk) EXPECT_EQ(FormDegeri(sayfalar[0], ad), deger) << ad;
  const std::pair<const char*, const char*> devam[] = {
      {"isveren.adr", "Sanayi Cad. Kat 2"}, {"devreden.gun", "210"},
      {"devreden.kazanc", "7,029.75"},      {"sayfa.gun", "15"},
      {"sayfa.izinucreti", "83.37"},        {"dahil.gun", "225"},
      {"dahil.kazanc", "8,280.25"},         {"satir8.sira", "8"},
      {"satir8.degisiklik", "X"},           {"satir8.sskno", "3401"},
      {"satir8.ilksoyadi", "Öz"},           {"satir8.girtar", "05 - 07"},
      {"satir8.ciktar", "20 - 07"},         {"satir8.eksik", "6"},
      {"satir8.izinucreti", "83.37"},       {"brans3.prim", "-"}};
  for (const auto& [ad, deger] : devam) EXPECT_EQ(FormDegeri(sayfalar[1], ad), deger) << ad;
}

TEST(BildirgeFormu, AnEmptyFormHasTheCompanyAlone) {
  const auto sayfalar = BildirgeSayfalari(Kagit(0));
  ASSERT_EQ(sayfalar.size(), 1u);
  for (const char* ad : {"sayfa.gun", "sayfa.kazanc", "toplam.sigortali", "brans0.oran", "geneltoplam"})
    EXPECT_EQ(FormDegeri(sayfalar[0], ad), "") << ad;
  EXPECT_EQ(FormDegeri(sayfalar[0], "isveren.unvan"), "Şık Örgü");
}

// Boxes of values lie on the sheet and apart from each other, and each value stands whole on the line and at the letter
// of its box also in the text form.
TEST(BildirgeFormu, TextForThePrintedFormStandsWhereTheDrawingHasIt) {
  EksikGunFormu eksik;
  eksik.kisiler.assign(21, {.sskno = "3401", .adi = "Işıl", .gun = 15, .eksikGun = 15, .sebep = 6});
  std::vector<FormSayfasi> sayfalar = BildirgeSayfalari(Kagit(58));
  std::ranges::move(Ek10Resmi(eksik), std::back_inserter(sayfalar));
  for (const auto& sayfa : sayfalar) {
    const auto satirlar = SatirlarDolu(FormMetni(sayfa));
    for (const auto& a : sayfa.alanlar) {
      EXPECT_GE(a.yer.x, KagitSolu) << a.ad;
      EXPECT_LE(a.yer.x + a.yer.en, sayfa.boy.en - KagitSolu) << a.ad;
      EXPECT_LE(a.yer.y + a.yer.boy, sayfa.boy.boy - KenarMm) << a.ad;
      for (const auto& b : sayfa.alanlar) {
        const bool ayri = a.yer.x + a.yer.en <= b.yer.x || b.yer.x + b.yer.en <= a.yer.x ||
                          a.yer.y + a.yer.boy <= b.yer.y + 0.01 || b.yer.y + b.yer.boy <= a.yer.y + 0.01;
        EXPECT_TRUE(ayri || &a == &b) << a.ad << " " << b.ad;
      }
      if (a.deger.empty() || a.hucre > 0) continue;
      const std::string& satir = satirlar.at(std::size_t((a.yer.y + a.yer.boy / 2) / SatirMm));
      const auto yer = satir.find(a.deger);
      ASSERT_NE(yer, std::string::npos) << a.ad << ": " << a.deger << " / " << satir;
    }
  }
}

TEST(FormMetni, PlacesOfLettersAndDigits) {
  FormKurucu f(A4(KagitYonu::Yatay));
  f.Alan("metin", SatirYeri(KagitSolu, 0, 10 * HarfMm), "Işıl Öğütçü'nün adı");
  f.Alan("sayi", SatirYeri(KagitSolu + 20 * HarfMm, 0, 6 * HarfMm), "1,234.50", MetinHizasi::Sag);
  f.Alan("sagda", SatirYeri(KagitSolu + 30 * HarfMm, 0, 10 * HarfMm), "42.00", MetinHizasi::Sag);
  f.Basamaklar("no", {.x = KagitSolu, .y = SatirMm, .sayi = 3, .en = 3 * HarfMm, .boy = SatirMm}, "ş7");
  const auto satirlar = SatirlarDolu(FormMetni(f.Sayfa()));
  EXPECT_EQ(satirlar[0], "Işıl Öğütç          ######         42.00");
  EXPECT_EQ(satirlar[1], "    ş  7");
  EXPECT_EQ(satirlar.size(), 49u + 1) << "a sheet across";
}

TEST(BildirgeKagidi, FollowsTheScreenAndPremiumsGiveTheTotal) {
  BildirgeSirketi s;
  s.yasal.oranlar.IsverenOran[0].ana = Tek(1.0);
  Sigortali kisi("001");
  kisi.brd.katki = Tutar(12.5);
  s.Ekle(kisi);
  ASSERT_TRUE(s.bildirge.Ac());
  s.bildirge.Secim().belgeTuru = 1;
  s.bildirge.Secim().kanun = 1;
  ASSERT_TRUE(s.bildirge.Hesapla());
  const BildirgeKagidi kagit = KagitHazirla(s.bildirge, s.o);
  EXPECT_EQ(kagit.belgeTuru, "01");
  EXPECT_EQ(kagit.kanun, "05510");
  EXPECT_EQ(kagit.arac.kod, "000");
  EXPECT_EQ(kagit.branslar[AnalikBransi].prim, Tutar(10.0)) << "not the state's contribution";
  Tutar toplam;
  for (const auto& b : kagit.branslar) toplam += b.prim;
  EXPECT_EQ(toplam, kagit.genelToplam);
  EXPECT_THAT(SatirlarDolu(BildirgeYazdir(kagit)), testing::Contains(testing::HasSubstr("Çağ001")));
}

TEST(FormResimleri, PagesOfMissingDays) {
  EksikGunFormu form{.yil = 2009, .ay = 7, .kisiler = {{.adi = "Işıl", .gun = 15, .eksikGun = 15, .sebep = 6}}};
  EXPECT_EQ(FormDegeri(Ek10Resmi(form).at(0), "kisi1.adi"), "Işıl");
  EXPECT_EQ(FormDegeri(Ek10Resmi(form).at(0), "kisi1.eksikgun"), "15");
  for (const auto& [kisi, sayfa] : {std::pair{0, 1}, {20, 1}, {21, 2}}) {
    form.kisiler.resize(std::size_t(kisi));
    EXPECT_EQ(Ek10Resmi(form).size(), std::size_t(sayfa)) << kisi;
  }
  form.kisiler[20].adi = "Çağ";
  EXPECT_EQ(FormDegeri(Ek10Resmi(form).at(1), "kisi21.adi"), "Çağ") << "the next page goes on";
}

}  // namespace
}  // namespace belvani
