// Numbers as text, whatever the locale is.
#include "core/sayi.h"

#include <clocale>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <rapidcheck/gtest.h>

#include "core/dosya.h"
#include "core/sinamalar.h"
#include "core/tarih.h"
#include "core/turkce.h"

namespace belvani {
namespace {

using test::Sinamalar;

constexpr auto EnBuyuk = std::numeric_limits<std::int64_t>::max();
constexpr auto EnKucuk = std::numeric_limits<std::int64_t>::min();

// clang-format off
TEST(TutarOku, WhatIsANumberAndWhatIsNone) {
  const Sinamalar<const char*, std::int64_t> durumlar{
      {" 12,345,678 ", 123'456'780'000}, {"1,234.5", 12'345'000}, {"-7", -70'000}, {"+7.", 70'000}, {"-.5", -5'000},
      {"000012", 120'000}, {"1.00004", 10'000}, {"1.00005", 10'001}, {"-1.00005", -10'001}, {"0.99995", 10'000},
      {"-0", 0}, {"922337203685477.5807", EnBuyuk}, {"-922337203685477.5808", EnKucuk}};
  const char* const kotuler[] = {
      "", " ", "-", "-.", ",", "12,5", "1234,567", "1,2345", "1,234,56", "1,,234", ",123", "0,125", "1.234,50",
      "1.234.567", "1.5,000", "1e3", "0x10", "- 5", "--5", "5-", "1 234", "inf", "٣", "922337203685477.5808",
      "-922337203685477.5809", "99999999999999999999999999"};
  for (const auto& [metin, ham] : durumlar) EXPECT_EQ(TutarOku(metin), Tutar::Hamdan(ham)) << metin;
  for (const char* metin : kotuler) EXPECT_FALSE(TutarOku(metin)) << metin;
  EXPECT_FALSE(TutarOku(std::string_view("5\0", 2)));
}

TEST(SayiOku, PlainAndWhole) {
  EXPECT_EQ(SayiOku("-.125"), -0.125);
  EXPECT_EQ(SayiOku(std::string(400, '9')), std::nullopt);
  const Sinamalar<const char*, long long> tamlar{{"1,234", 1234}, {" -05 ", -5}, {"9223372036854775807", EnBuyuk}};
  for (const auto& [metin, sayi] : tamlar) EXPECT_EQ(TamSayiOku(metin), sayi);
  for (const char* metin : {"", "5.0", ".", "9223372036854775808", "5 5"}) EXPECT_FALSE(TamSayiOku(metin)) << metin;
  const Sinamalar<const char*, int> bastakiler{{"05510", 5510}, {"07-Puantaj", 7}, {" 12", 12}, {"", 0}, {"Puantaj", 0}};
  for (const auto& [metin, sayi] : bastakiler) EXPECT_EQ(BastakiSayi(metin), sayi) << metin;
}

TEST(TutarMetni, DecimalsAndGroups) {
  const Sinamalar<std::int64_t, int, const char*, const char*> durumlar{
      {0, 2, "0.00", "0.00"}, {12'345'678, 2, "1,234.57", "1234.5678"}, {-9'999'950, 2, "-1,000.00", "-999.995"},
      {-5'000, 0, "-1", "-0.50"}, {-40, 2, "0.00", "-0.004"}, {9'990'000, 0, "999", "999.00"},
      {10'000, 9, "1.0000", "1.00"}, {EnKucuk, 4, "-922,337,203,685,477.5808", "-922337203685477.5808"}};
  for (const auto& [ham, ondalik, metin, ondalikMetin] : durumlar) {
    EXPECT_EQ(TutarMetni(Tutar::Hamdan(ham), ondalik), metin);
    EXPECT_EQ(OndalikMetin(Tutar::Hamdan(ham)), ondalikMetin);
  }
}

TEST(SayiFormat, PrintedForms) {
  const Sinamalar<const char*, int, int, const char*> durumlar{
      {"-0.00", 2, 3, ""}, {"", 2, 3, ""}, {"12,5", 2, 3, ""}, {"1,234.5", 2, 3, "1,234.50"}, {"-0.5", 2, 3, "-.50"},
      {"-1234567.891", 2, 3, "-1,234,567.89"}, {"1234567", 0, 0, "1234567"}, {"1234567", 0, 2, "1,23,45,67"},
      {"999.995", 2, 3, "1,000.00"}, {"-0.004", 2, 3, ".00"}, {"-0.4", 0, 3, ""}, {"007", 0, 3, "7"}};
  for (const auto& [metin, ondalik, grup, beklenen] : durumlar)
    EXPECT_EQ(SayiFormat(metin, ondalik, grup), beklenen) << metin;
}

TEST(SayiMetni, ShortestAndNeverWithAnExponent) {
  const Sinamalar<double, const char*> durumlar{
      {7.5, "7.5"}, {30, "30"}, {0.1, "0.1"}, {-0.0, "0"}, {0.00001, "0.00001"}, {1e22, "10000000000000000000000"}};
  for (const auto& [sayi, metin] : durumlar) EXPECT_EQ(SayiMetni(sayi), metin);
}
// clang-format on

RC_GTEST_PROP(Sayilar, WhatIsWrittenReadsBackTheSame, (std::int64_t ham, double sayi)) {
  const Tutar tutar = Tutar::Hamdan(ham);
  RC_ASSERT(TutarOku(OndalikMetin(tutar)) == tutar);
  RC_ASSERT(TutarOku(TutarMetni(tutar, 4)) == tutar);
  RC_ASSERT(SayiOku(SayiMetni(sayi)) == sayi);
}

RC_GTEST_PROP(SayiOku, NoTextBreaksTheReaders, (const std::string& metin)) {
  RC_ASSERT(SayiOku(metin) || (!TutarOku(metin) && !TamSayiOku(metin) && SayiFormat(metin, 2, 3).empty()));
  BastakiSayi(metin);
}

// What readers and writers say under the current locale.
std::vector<std::string> Ornekler() {
  return {TutarMetni(Tutar(1234567.891), 2),
          OndalikMetin(TutarOku("-1,234.5").value_or(Tutar())),
          SayiMetni(SayiOku("1234.5").value_or(0)),
          SayiFormat("1234567.5", 2, 3),
          Tarih(2008, 2, 29).Metin() + Tarih(2008, 2, 29).Iso(),
          BuyukHarf("ılık iğne TITLE title") + KucukHarf("IĞDIR İZMİR"),
          std::to_string(TurkceKarsilastir("ı", "i")),
          DosyaYaz("/dev/null/a", "").KusurMetni()};
}

struct AlmanSayisi : std::numpunct<char> {
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

TEST(Yerel, OutputsAreTheSameUnderEveryLocale) {
  const auto beklenen = Ornekler();
  for (const char* ad : {"tr_TR.UTF-8", "de_DE.UTF-8", "C"})
    EXPECT_TRUE(std::setlocale(LC_ALL, ad) == nullptr || Ornekler() == beklenen) << ad;
  const std::locale eski = std::locale::global(std::locale(std::locale::classic(), new AlmanSayisi));
  EXPECT_EQ(Ornekler(), beklenen) << "numbers of the C++ locale";
  std::locale::global(eski);
}

}  // namespace
}  // namespace belvani
