#include "printing/rapor.h"

#include <gmock/gmock.h>

#include "printing/kagit.h"
#include "printing/ornek.h"
#include "printing/xlsxkitap.h"

namespace belvani {
namespace {

using test::Kalem;
using test::KalemRaporu;

TEST(Rapor, KindsOfColumnsFollowTheirValues) {
  const Kolonlar<Kalem> kolonlar{
      {"a", 1, [](auto&) { return "metin"; }},
      {"b", 1, [](auto&) { return std::uint8_t(255); }},
      {"c", 1, [](auto& k) { return k.gun; }},
      {"d", 1, [](auto& k) { return k.gun; }, KolonNiteligi::KisaTarih | KolonNiteligi::HerZaman},
      {"e", 1, [](auto& k) { return k.tutar; }},
      {"f", 1, [](auto&) { return Null{}; }},
  };
  const Rapor rapor = RaporYap(kolonlar, {Kalem{}}, 255);
  std::vector<KolonTuru> turler;
  for (const auto& k : rapor.Kolonlar()) turler.push_back(k.tur);
  EXPECT_THAT(turler, testing::ElementsAre(KolonTuru::Metin, KolonTuru::Tam, KolonTuru::Tarih, KolonTuru::KisaTarih,
                                           KolonTuru::Tutar, KolonTuru::Bos));
  EXPECT_EQ(rapor.Satirlar()[0].hucreler[0], Hucre(std::string("metin")));
  EXPECT_EQ(rapor.Satirlar()[0].hucreler[1], Hucre(std::int64_t(255)));
  EXPECT_EQ(rapor.Kolonlar()[4].ondalik, 4);
  EXPECT_FALSE(rapor.ToplamVar());
  EXPECT_THAT(kolonlar.AnahtarAdlari(), testing::ElementsAre("a", "b", "c", "e", "f"));
}

// Rows of every kind come back as they were put in, and sums of any stretch are those of its rows, also where rows are
// packed together.
TEST(Rapor, RowsAndSumsOfManyRows) {
  std::vector<Kalem> kalemler;
  for (int i = 0; i < 2 * int(RaporSatirlari::BlokBoyu) + 3; ++i)
    kalemler.push_back({.ad = "Işıl " + std::to_string(i),
                        .gun = i % 3 == 0 ? Tarih() : Tarih(1899, 12, 1 + i % 31),
                        .adet = i % 7,
                        .tutar = Tutar::Hamdan(i % 5 == 0 ? -7 * i : 13 * i),
                        .grup = i / 100});
  Rapor rapor = KalemRaporu(kalemler);
  ASSERT_EQ(rapor.Satirlar().size(), kalemler.size());
  Tutar toplam;
  std::vector<Tutar> once{toplam};
  std::size_t sira = 0;
  for (const auto& [hucreler, yeniSayfa] : rapor.Satirlar()) {
    const Kalem& k = kalemler[sira];
    EXPECT_THAT(hucreler, testing::ElementsAre(k.ad, k.gun, std::int64_t(k.adet), k.tutar, k.birikmis, Null{})) << sira;
    EXPECT_EQ(yeniSayfa, sira > 0 && k.grup != kalemler[sira - 1].grup) << sira;
    once.push_back(toplam += k.tutar);
    ++sira;
  }
  for (std::size_t son = 0; son < once.size(); son += 51) {
    EXPECT_EQ(rapor.AraToplam(son)[3], Hucre(once[son])) << son;
    EXPECT_EQ(rapor.SayfaToplami(son / 2, son)[3], Hucre(once[son] - once[son / 2])) << son;
  }
  EXPECT_EQ(rapor.Toplam()[3], Hucre(toplam));
  const Rapor kopya = rapor;
  rapor.Ekle(rapor.Satirlar()[1]);
  EXPECT_EQ(kopya.Satirlar().size(), kalemler.size()) << "a copy has rows of its own";
  EXPECT_EQ(kopya.Toplam()[3], Hucre(toplam));
}

TEST(Rapor, Subtotals) {
  const Rapor rapor = KalemRaporu({{.ad = "a", .adet = 2, .tutar = Tutar(10.25), .birikmis = Tutar(5.0)},
                                   {.ad = "b", .adet = 3, .tutar = Tutar(-0.25), .grup = 1}});
  EXPECT_THAT(rapor.AraToplam(1), testing::ElementsAre(Null{}, Null{}, std::int64_t(2), Tutar(10.25), Null{}, Null{}));
  EXPECT_THAT(rapor.Toplam(), testing::ElementsAre(Null{}, Null{}, std::int64_t(5), Tutar(10.0), Null{}, Null{}));
  EXPECT_FALSE(rapor.Satirlar()[0].yeniSayfa);
  EXPECT_TRUE(rapor.Satirlar()[1].yeniSayfa);
  const Tutar enBuyuk = Tutar::Hamdan(std::numeric_limits<std::int64_t>::max());
  EXPECT_THROW(KalemRaporu({{.ad = "a", .tutar = enBuyuk}, {.ad = "b", .tutar = enBuyuk}}), TutarTasmasi);
}

TEST(Rapor, TextOfACell) {
  const auto kolon = [](KolonTuru tur, int ondalik) {
    RaporKolonu k;
    k.tur = tur;
    k.ondalik = ondalik;
    return k;
  };
  const Tarih gun(2008, 2, 29);
  EXPECT_EQ(HucreMetni(Tutar(1234.5), kolon(KolonTuru::Tutar, 2)), "1,234.50");
  EXPECT_EQ(HucreMetni(Tutar(1234.5), kolon(KolonTuru::Tutar, 2), 0), "1234.50");
  EXPECT_EQ(HucreMetni(Tutar(-1234567.0), kolon(KolonTuru::Tutar, 0)), "-1,234,567");
  EXPECT_EQ(HucreMetni(Tutar(), kolon(KolonTuru::Tutar, 2)), "");
  EXPECT_EQ(HucreMetni(std::int64_t(0), kolon(KolonTuru::Tam, 0)), "");
  EXPECT_EQ(HucreMetni(gun, kolon(KolonTuru::KisaTarih, 0)), "29.02.08");
  EXPECT_EQ(HucreMetni(gun, kolon(KolonTuru::Tarih, 0)), "29.02.2008");
  EXPECT_EQ(HucreMetni(Tarih(), kolon(KolonTuru::Tarih, 0)), "");
}

TEST(Kagit, BreaksAHeading) {
  const struct {
    const char* baslik;
    int en;
    IkiSatir beklenen;
  } ornekler[] = {
      {"Sendika", 7, {"", "Sendika"}},
      {"Toplam Brüt", 9, {"Toplam", "Brüt"}},
      {"GV İndir.", 6, {"GV", "İndir."}},      // letters, not bytes
      {"Borç Kes. A", 9, {"Borç Kes.", "A"}},  // the blank may stand right behind the width
      {"Kesintiler", 6, {"Kesint", "iler"}},   // a word that must be broken
      {"Sigortalı Kimlik Numarası", 9, {"Sigortalı", "Kimlik Nu"}},
      {"Ad", 0, {"", ""}},
  };
  for (const auto& o : ornekler) EXPECT_EQ(BaslikBol(o.baslik, o.en), o.beklenen) << o.baslik;
}

// On paper no column is too narrow for its days, whatever was asked for; a spreadsheet shows them in the same form.
TEST(Kagit, FormatsOfDates) {
  struct {
    KolonTuru tur;
    const char* metin;
    int en;
    const char* xlsx;
  } const ornekler[] = {
      {KolonTuru::Tarih, "05.08.2009", 10, "dd.mm.yyyy"},
      {KolonTuru::KisaTarih, "05.08.09", 8, "dd.mm.yy"},
      {KolonTuru::GunAy, "05.08", 5, "dd.mm"},
      {KolonTuru::UzunTarih, "05 Ağustos 2009", 15, "[$-41F]dd mmmm yyyy"},
      {KolonTuru::Gun, "05", 3, "dd"},
      {KolonTuru::Ay, "08", 3, "mm"},
  };
  for (const auto& o : ornekler) {
    Rapor rapor({{.baslik = "T", .kisaBaslik = "T", .en = 3, .tur = o.tur}});
    rapor.Ekle({{Tarih(2009, 8, 5)}});
    rapor.Ekle({{Tarih()}});
    EXPECT_EQ(HucreMetni(rapor.Satirlar()[0].hucreler[0], rapor.Kolonlar()[0]), o.metin);
    EXPECT_EQ(HucreMetni(rapor.Satirlar()[1].hucreler[0], rapor.Kolonlar()[0]), "");
    EXPECT_EQ(KagitBicimle(rapor, {}).enler[0], o.en) << o.metin;
    EXPECT_EQ(KolonStili(rapor.Kolonlar()[0]).sayiBicimi, o.xlsx);
  }
}

TEST(Kagit, NumbersAreNotCut) {
  const auto enler = [](const std::vector<Kalem>& kalemler, int en) {
    SayfaDuzeni duzen;
    duzen.en = en;
    return KagitBicimle(KalemRaporu(kalemler), duzen);
  };
  EXPECT_THAT(enler({{.ad = "Işık"}}, 80).enler, testing::ElementsAre(4, 8, 4, 8, 8, 20));
  const std::vector<Kalem> genis = {{.ad = "Çok uzun bir ad", .adet = 9999, .tutar = Tutar(999999.99)},
                                    {.ad = "b", .adet = 1, .tutar = Tutar(0.01), .birikmis = Tutar(-123456.78)}};
  // Sums count, and so does the sign.
  EXPECT_THAT(enler(genis, 80).enler, testing::ElementsAre(15, 8, 6, 12, 11, 20));
  // Not enough room: all numbers lose their thousands marks, none a digit.
  const KagitBicimi dar = enler(genis, 57);
  EXPECT_EQ(dar.gruplama, 0);
  EXPECT_THAT(dar.enler, testing::ElementsAre(12, 8, 5, 10, 10, 7));
  EXPECT_EQ(dar.en, 57);
  EXPECT_EQ(enler(genis, 58).gruplama, BinlikGruplama);
  // A sum can be wider on the way than at the end.
  EXPECT_EQ(enler({{.ad = "a", .tutar = Tutar(9999999.0)}, {.ad = "b", .tutar = Tutar(-9999998.0)}}, 80).enler[3], 13);
}

// Another order has the same sums at the end and starts its pages where they were.
TEST(Rapor, RowsInAnotherOrder) {
  const Rapor rapor = test::KalemRaporu({{.ad = "c", .tutar = Tutar(1.0)},
                                         {.ad = "a", .tutar = Tutar(2.0)},
                                         {.ad = "b", .tutar = Tutar(4.0), .grup = 1}});
  const Rapor sirali = rapor.Sirali(std::vector{1, 0, 2});
  EXPECT_EQ(sirali.Satirlar()[0].hucreler[0], Hucre(std::string("a")));
  EXPECT_TRUE(sirali.Satirlar()[2].yeniSayfa);
  EXPECT_EQ(sirali.AraToplam(1)[3], Hucre(Tutar(2.0)));
  EXPECT_EQ(sirali.Toplam(), rapor.Toplam());
}

}  // namespace
}  // namespace belvani
