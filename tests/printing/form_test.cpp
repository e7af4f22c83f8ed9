// Fixed forms: where letters and digits land, drawn and in lines of text, and that nothing is cut or lost.
#include <gmock/gmock.h>

#include "printing/formbelgesi.h"
#include "printing/kayittuvali.h"
#include "printing/metinformu.h"

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

TEST(MetinFormu, ValuesOverTheTemplate) {
  const struct {
    const char* ad;
    std::function<void(MetinFormu&)> yaz;
    const char* beklenen;
  } ornekler[] = {
      {"counted in letters",
       [](auto& f) {
         f.Koy({2, 4, 3}, "ığ");
       },
       "│ş:ığ │ │ │"},
      {"cut at its end",
       [](auto& f) {
         f.Koy({2, 4, 3}, "İşÇöp");
       },
       "│ş:İşÇ│ │ │"},
      {"right, blanks around it",
       [](auto& f) {
         f.KoySagda({2, 4, 3}, " 42 ");
       },
       "│ş: 42│ │ │"},
      {"no commands to the printer",
       [](auto& f) {
         f.Koy({2, 4, 3}, "a\x1b\f\nb");
       },
       "│ş:ab │ │ │"},
      {"outside",
       [](auto& f) {
         f.Koy({9, 1, 3}, "a"), f.Koy({2, 0, 1}, "a"), f.Koy({2, 99, 1}, "a");
       },
       "│ş:   │ │ │"},
      {"over the right end",
       [](auto& f) {
         f.Koy({2, 10, 5}, "abc");
       },
       "│ş:   │ │ab"},
      {"a digit a cell", [](auto& f) { f.Basamaklar(2, 8, 2, 2, "7"); }, "│ş:   │ │7│"},
      {"close together", [](auto& f) { f.Basamaklar(2, 8, 2, 2, "789"); }, "│ş:   │789│"},
  };
  for (const auto& o : ornekler) {
    MetinFormu form("┌     ┬─┬─┐\n│ş:   │ │ │\n    ");
    o.yaz(form);
    EXPECT_EQ(form.Metin(), "┌     ┬─┬─┐\n" + std::string(o.beklenen) + "\n\n") << o.ad;
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
