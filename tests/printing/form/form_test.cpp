// Fixed forms: where letters and digits land, drawn and in lines of text, and that nothing is cut or lost.
#include <gmock/gmock.h>

#include "printing/form/formbelgesi.h"
#include "printing/form/metinformu.h"
#include "printing/kayittuvali.h"

namespace belvani {
namespace {

using test::KayitTuvali;
using test::Oge;
using test::OgeTuru;

std::vector<Oge> Metinler(const FormKurucu& form) {
  KayitTuvali tuval;
  FormCiz(form.Sayfa(), tuval);
  EXPECT_FALSE(tuval.sayfaAcik);
  std::vector<Oge> metinler;
  std::ranges::copy_if(tuval.sayfalar.at(0).ogeler, std::back_inserter(metinler),
                       [](auto& o) { return o.tur == OgeTuru::Metin; });
  return metinler;
}

TEST(FormSayfasi, DigitsStandInTheirCells) {
  constexpr HucreDizisi hucreler{.x = 20, .y = 30, .sayi = 5, .en = 6, .boy = 7};
  const struct {
    const char* deger;
    MetinHizasi hiza;
    std::vector<std::pair<std::string, int>> beklenen;  // letter and its cell
  } ornekler[] = {
      {"407", MetinHizasi::Sag, {{"4", 2}, {"0", 3}, {"7", 4}}},
      {"ŞğI", MetinHizasi::Sol, {{"Ş", 0}, {"ğ", 1}, {"I", 2}}},
      {" 12345\n", MetinHizasi::Sag, {{"1", 0}, {"2", 1}, {"3", 2}, {"4", 3}, {"5", 4}}},
      {"", MetinHizasi::Sag, {}},
  };
  for (const auto& o : ornekler) {
    FormKurucu form(A4(KagitYonu::Dikey));
    form.Basamaklar("no", hucreler, o.deger, o.hiza);
    std::vector<std::pair<std::string, int>> bulunan;
    for (const auto& oge : Metinler(form)) {
      const double orta = oge.kutu.x + oge.kutu.en / 2;
      bulunan.emplace_back(oge.metin, int((orta - hucreler.x) / hucreler.en));
      EXPECT_NEAR(std::fmod(orta - hucreler.x, hucreler.en), hucreler.en / 2, 1e-6) << "in the middle";
      EXPECT_NEAR(oge.kutu.y + oge.kutu.boy / 2, hucreler.y + hucreler.boy / 2, 1e-6);
    }
    EXPECT_EQ(bulunan, o.beklenen) << o.deger;
  }
}

TEST(FormSayfasi, WhatIsTooWideIsNarrowedAndWhole) {
  constexpr Dikdortgen yer{20, 30, 12, 6};
  const std::string uzun = "Büyükçelebioğulları 1234567890";
  FormKurucu form(A4(KagitYonu::Dikey));
  form.Alan("deger", yer, uzun);
  form.Basamaklar("hucreler", {.x = 20, .y = 40, .sayi = 2, .en = 6, .boy = 6}, uzun);
  form.Etiket(yer, uzun, MetinHizasi::Sag);
  const auto metinler = Metinler(form);
  ASSERT_EQ(metinler.size(), 3u);
  for (const auto& oge : metinler) {
    EXPECT_EQ(oge.metin, uzun);
    EXPECT_NEAR(oge.kutu.x, yer.x, 1e-6);
    EXPECT_NEAR(oge.kutu.en, yer.en, 1e-6);
  }
}

TEST(FormSayfasi, MarksAndTables) {
  FormKurucu form(A4(KagitYonu::Dikey));
  form.Isaret("evet", {10, 10, 4, 4}, true);
  form.Isaret("hayir", {20, 10, 4, 4}, false);
  const Dikdortgen tablo = form.Tablo({10, 20}, {30, 20, 10}, 5, 4);
  EXPECT_EQ(std::tuple(tablo.x, tablo.y, tablo.en, tablo.boy), std::tuple(10, 20, 60, 20));
  EXPECT_EQ(form.Sayfa().cizgiler.size(), 2u + 3u) << "inner lines";
  EXPECT_EQ(form.Sayfa().kutular.size(), 3u);
  const auto metinler = Metinler(form);
  ASSERT_EQ(metinler.size(), 1u);
  EXPECT_EQ(metinler[0].metin, "X");
  EXPECT_NEAR(metinler[0].kutu.x + metinler[0].kutu.en / 2, 12, 1e-6);
}

TEST(MetinFormu, ValuesInTheirPlaces) {
  const struct {
    const char* deger;
    const char* ad;
    const char* beklenen;
  } ornekler[] = {
      {"ığ", "ad", "│ş:ığ   │ │ │ │"},         {" İşÇöp ", "ad", "│ş:İşÇöp│ │ │ │"},
      {"İşÇöpğü", "ad", "│ş:İşÇöp│ │ │ │"},     // cut at its end
      {"a\x1b\f\nb", "ad", "│ş:ab   │ │ │ │"},  // no commands to the printer
      {"7", "n", "│ş:     │ │ │7│"},           {"789", "n", "│ş:     │7│8│9│"},
      {"7890", "n", "│ş:     │ 7890│"},  // close together, no digit lost
      {"78901234", "n", "│ş:     │78901│"},
  };
  for (const auto& o : ornekler) {
    MetinFormu form("┌     ┬─┬─┐\n│ş:«ad.»│«│n│»│\n    ");
    for (const char* ad : {"ad", "n"}) form.Koy(ad, ad == std::string_view(o.ad) ? o.deger : "");
    EXPECT_EQ(form.Metin(), "┌     ┬─┬─┐\n" + std::string(o.beklenen) + "\n\n") << o.deger;
  }
}

TEST(MetinFormu, MarksByName) {
  MetinFormu form("[☐] Erkek [☐] Kadın\nAdı «kisi.adi» «no»\n«no...»", {"cins0", "cins1"});
  FormKurucu cizim(A4(KagitYonu::Dikey));
  cizim.Isaret("cins0", {}, false);
  cizim.Isaret("cins1", {}, true);
  cizim.Alan("no", {}, "4071");
  cizim.Alan("baska", {}, "x");  // has no place here
  form.Doldur(cizim.Sayfa());
  form.Koy("kisi.adi", "Işıl");
  EXPECT_EQ(form.Metin(), "[ ] Erkek [X] Kadın\nAdı Işıl       4071\n4071\n") << "a name may have two places";

  EXPECT_DEBUG_DEATH(form.Koy("yok", "a"), "bulundu") << "an unknown mark";
  EXPECT_DEBUG_DEATH(static_cast<void>(MetinFormu("«a»").Metin()), "dolu") << "a place that nobody fills";
  EXPECT_DEBUG_DEATH(MetinFormu("[☐]", {}), "kutu") << "a box without a name";
}

TEST(MetinFormu, AmountsEndWhereTheirMarkEnds) {
  MetinFormu form("│«...tutar»│«.k»│");
  form.Koy("tutar", "1,250.75");
  form.Koy("k", "");
  EXPECT_EQ(form.Metin(), "│  1,250.75│    │\n");
}

TEST(MetinFormu, ValuesByPlace) {
  MetinFormu form("│ş:   │ │ │");
  form.KoySagda({1, 4, 3}, " 42 ");
  form.Koy({9, 1, 3}, "a"), form.Koy({1, 0, 1}, "a"), form.Koy({1, 99, 1}, "a");
  form.Koy({1, 10, 5}, "abc");
  EXPECT_EQ(form.Metin(), "│ş: 42│ │ab\n") << "what lies outside is passed over";
}

// Caption and value in one frame: beside each other or one above the other, each inside it.
TEST(FormKurucu, CaptionedBoxes) {
  FormKurucu form(A4(KagitYonu::Dikey));
  EXPECT_EQ(
      form.EtiketliKutular({10, 20}, 10, {{30, "Adı", EtiketUstte, "adi", "Işıl"}, {40, "İli", 12, "il", "Bursa"}}),
      30);
  const FormSayfasi& s = form.Sayfa();
  ASSERT_EQ(std::tuple(s.kutular.size(), s.yazilar.size(), s.alanlar.size()), std::tuple(2u, 2u, 2u));
  EXPECT_EQ(s.kutular[1].yer.x, 40);
  EXPECT_GT(s.alanlar[0].yer.y, s.yazilar[0].yer.y + s.yazilar[0].yer.boy - 1e-6);
  EXPECT_GE(s.alanlar[1].yer.x, s.yazilar[1].yer.x + s.yazilar[1].yer.en - 1e-6);
  for (std::size_t i = 0; i < 2; ++i) {
    EXPECT_LT(s.alanlar[i].yer.x + s.alanlar[i].yer.en, s.kutular[i].yer.x + s.kutular[i].yer.en);
    EXPECT_LT(s.alanlar[i].yer.y + s.alanlar[i].yer.boy, 30 + 1e-6);
  }
}

TEST(MetinFormu, FramesAndPages) {
  EXPECT_EQ(DuzCerceveli("┌─┬┐\n├─┼┤\n│İ││\n└─┴┘"), "+-++\n+-++\n|İ||\n+-++");
  const std::string sayfalar[] = {"a\n", "b\n"};
  EXPECT_EQ(SayfalariBirlestir(sayfalar), "a\n\fb\n");
}

TEST(FormBelgesi, OffersTheFormsThatItHas) {
  const std::vector<FormSayfasi> sayfalar(2, FormKurucu(A4(KagitYonu::Yatay)).Sayfa());
  const struct {
    FormBelgesi belge;
    bool grafik, dos, dosMod;
  } ornekler[] = {{FormBelgesi({}, sayfalar, "a\n"), true, true, false},
                  {FormBelgesi({}, sayfalar, ""), true, false, false},
                  {FormBelgesi({}, {}, "a\n"), false, true, true}};
  for (const auto& [belge, grafik, dos, dosMod] : ornekler) {
    EXPECT_EQ(belge.Ayar().YzcGrafikAcik, grafik);
    EXPECT_EQ(belge.Ayar().YzcDosAcik, dos);
    EXPECT_EQ(belge.Ayar().YzcDosMod, dosMod);
    EXPECT_EQ(BelgeSayfalari(belge)->SayfaSayisi(), grafik ? 2 : 1);
    EXPECT_FALSE(belge.Xlsx());
    KayitTuvali tuval;
    SayfalariCiz(*BelgeSayfalari(belge), tuval);
    EXPECT_EQ(tuval.sayfalar[0].boy.en == 297, grafik);
  }
}

}  // namespace
}  // namespace belvani
