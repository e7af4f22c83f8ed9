// Letters: case, order, code pages.
#include "core/turkce.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <rapidcheck/gtest.h>
#include <unicode/ucol.h>
#include <vector>

#include "core/sinamalar.h"

namespace belvani {
namespace {

struct HarfCifti {
  const char* kucuk;
  const char* buyuk;
};

// clang-format off
constexpr HarfCifti Alfabe[] = {
    {"a", "A"}, {"b", "B"}, {"c", "C"}, {"ç", "Ç"}, {"d", "D"}, {"e", "E"}, {"f", "F"}, {"g", "G"}, {"ğ", "Ğ"},
    {"h", "H"}, {"ı", "I"}, {"i", "İ"}, {"j", "J"}, {"k", "K"}, {"l", "L"}, {"m", "M"}, {"n", "N"}, {"o", "O"},
    {"ö", "Ö"}, {"p", "P"}, {"r", "R"}, {"s", "S"}, {"ş", "Ş"}, {"t", "T"}, {"u", "U"}, {"ü", "Ü"}, {"v", "V"},
    {"y", "Y"}, {"z", "Z"}};
// clang-format on

// A word: the places of its letters in the alphabet.
using Sozcuk = std::vector<std::size_t>;

rc::Gen<Sozcuk> Sozcukler() {
  return rc::gen::container<Sozcuk>(rc::gen::inRange<std::size_t>(0, std::size(Alfabe)));
}

std::string Yaz(const Sozcuk& sozcuk, const char* HarfCifti::*hal) {
  std::string s;
  for (const auto h : sozcuk) s += Alfabe[h].*hal;
  return s;
}

TEST(Harf, CaseOfOtherLetters) {
  EXPECT_EQ(BuyukHarf("kâğıt q-w 1 straße"), "KÂĞIT Q-W 1 STRASSE");
  EXPECT_EQ(BuyukHarf(std::string_view("a\0b", 3)), std::string("A\0B", 3));
}

RC_GTEST_PROP(Alfabe, CaseAndOrder, ()) {
  const Sozcuk a = *Sozcukler();
  const Sozcuk b = *Sozcukler();
  const std::string kucuk = Yaz(a, &HarfCifti::kucuk);
  const std::string buyuk = Yaz(a, &HarfCifti::buyuk);
  RC_ASSERT(BuyukHarf(kucuk) == buyuk);
  RC_ASSERT(KucukHarf(buyuk) == kucuk);
  RC_ASSERT(TurkceEsit(kucuk, buyuk));
  const int sira = TurkceKarsilastir(kucuk, Yaz(b, &HarfCifti::buyuk));
  RC_ASSERT((sira < 0) == (a < b));
  RC_ASSERT((sira == 0) == (a == b));
}

// Plain letters and digits are compared without the library; what it would say is asked here.
RC_GTEST_PROP(Sira, OfPlainCodesIsThatOfTheLibrary, ()) {
  const auto harf = rc::gen::elementOf(std::string("0123456789ABCHIJQWXYZabchijqwxyz"));
  const auto a = *rc::gen::container<std::string>(harf);
  const auto b = *rc::gen::container<std::string>(harf);
  UErrorCode kod = U_ZERO_ERROR;
  const std::unique_ptr<UCollator, decltype(&ucol_close)> siralayici(ucol_open("tr", &kod), &ucol_close);
  ucol_setStrength(siralayici.get(), UCOL_SECONDARY);
  const int beklenen = ucol_strcollUTF8(siralayici.get(), a.data(), int(a.size()), b.data(), int(b.size()), &kod);
  const int sira = TurkceKarsilastir(a, b);
  RC_ASSERT((sira < 0) == (beklenen < 0));
  RC_ASSERT((sira > 0) == (beklenen > 0));
}

TEST(Sira, EqualityIgnoresCaseOnly) {
  for (const auto& [a, b] : test::Sinamalar<const char*, const char*>{
           {"ISPARTA", "isparta"}, {"Şule", "Sule"}, {"kâr", "kar"}, {"a b", "ab"}, {"a-b", "ab"}, {"", " "}})
    EXPECT_FALSE(TurkceEsit(a, b)) << a;
}

TEST(BozukUtf8, IsToldAndHarmsNothing) {
  const std::string bozuklar[] = {"\xFF", "\xC4", "a\xE2\x82z", "\xED\xA0\x80", "\xC0\xAF", "\xF5\x80\x80", "ş\xC5"};
  for (const auto& bozuk : bozuklar) {
    EXPECT_FALSE(GecerliUtf8(bozuk));
    EXPECT_FALSE(KodSayfasinaSigar(bozuk, KodSayfasi::Windows1254));
    for (const auto& obur : bozuklar) EXPECT_EQ(TurkceEsit(bozuk, obur), bozuk == obur);
  }
  EXPECT_TRUE(GecerliUtf8("ağ €😀"));
  EXPECT_EQ(BuyukHarf("a\xE2\x82i"), "A\xE2\x82İ");
  EXPECT_EQ(KucukHarf("I\xFFİ"), "ı\xFFi");
}

RC_GTEST_PROP(BozukUtf8, OrderHoldsForAnyBytes, ()) {
  const auto metin = rc::gen::container<std::string>(rc::gen::elementOf(std::string("aA\xC5\x9F\x9E\xFFi")));
  const std::string a = *metin, b = *metin, c = *metin;
  RC_ASSERT((TurkceKarsilastir(a, b) < 0) == (TurkceKarsilastir(b, a) > 0));
  if (TurkceKarsilastir(a, b) <= 0 && TurkceKarsilastir(b, c) <= 0) RC_ASSERT(TurkceKarsilastir(a, c) <= 0);
}

RC_GTEST_PROP(IlkHarfler, CutsAsManyLettersAsAreCounted, (const std::string& metin)) {
  const auto n = *rc::gen::inRange<std::size_t>(0, metin.size() + 3);
  const std::string_view ilk = IlkHarfler(metin, n);
  RC_ASSERT(std::string_view(metin).starts_with(ilk));
  RC_ASSERT(HarfSayisi(ilk) == std::min(n, HarfSayisi(metin)));
}

TEST(Metin, LettersBlanksControls) {
  EXPECT_EQ(HarfSayisi("Şİ€😀"), 4u);
  EXPECT_EQ(IlkHarfler("Şİrket", 2), "Şİ");
  EXPECT_EQ(Kirp("  a b  "), "a b");
  EXPECT_EQ(Kirp("   "), "");
  EXPECT_EQ(DenetimsizMetin("a\tb\r\n\x7Fş \x1F"), "abş ");
}

TEST(KodSayfasi, BytesOfTheTurkishLetters) {
  std::string ascii;
  for (char c = ' '; c < '\x7F'; ++c) ascii += c;
  const std::string harfler = "ÇĞÖÜİŞçğöüış" + ascii;
  const std::string latin5 = "\xC7\xD0\xD6\xDC\xDD\xDE\xE7\xF0\xF6\xFC\xFD\xFE" + ascii;
  const std::string dos = "\x80\xA6\x99\x9A\x98\x9E\x87\xA7\x94\x81\x8D\x9F" + ascii;
  for (const auto& [sayfa, baytlar] : test::Sinamalar<KodSayfasi, std::string>{
           {KodSayfasi::Windows1254, latin5}, {KodSayfasi::Iso8859_9, latin5}, {KodSayfasi::Dos857, dos}}) {
    EXPECT_EQ(KodSayfasina(harfler, sayfa), baytlar);
    EXPECT_EQ(KodSayfasindan(baytlar, sayfa), harfler);
    EXPECT_TRUE(KodSayfasinaSigar(harfler, sayfa));
    EXPECT_EQ(KodSayfasina("a日b😀c", sayfa), "a?b?c");
    EXPECT_FALSE(KodSayfasinaSigar("a日", sayfa));
  }
  EXPECT_EQ(KodSayfasina("€ –", KodSayfasi::Windows1254), "\x80 \x96");
  EXPECT_FALSE(KodSayfasinaSigar("€", KodSayfasi::Iso8859_9));
}

RC_GTEST_PROP(KodSayfasi, AnyBytesAreReadAsText, (const std::string& baytlar)) {
  for (const auto sayfa : {KodSayfasi::Windows1254, KodSayfasi::Dos857, KodSayfasi::Iso8859_9}) {
    const std::string metin = KodSayfasindan(baytlar, sayfa);
    RC_ASSERT(GecerliUtf8(metin));
    RC_ASSERT(HarfSayisi(metin) == baytlar.size());
  }
  RC_ASSERT(KodSayfasina(KodSayfasindan(baytlar, KodSayfasi::Windows1254), KodSayfasi::Windows1254) == baytlar);
}

}  // namespace
}  // namespace belvani
