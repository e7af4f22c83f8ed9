#include "core/ini.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <numeric>
#include <rapidcheck/gtest.h>
#include <set>
#include <sstream>
#include <vector>

#include "core/dosya.h"
#include "core/sinamalar.h"
#include "core/turkce.h"
#include "gecici.h"

namespace belvani {
namespace {

using test::GeciciDizin;
using test::Sinamalar;
using Parcalar = std::vector<std::string>;

std::string Birlesik(const Parcalar& parcalar) {
  return std::accumulate(parcalar.begin(), parcalar.end(), std::string());
}

TEST(IniOku, FilesOfManyHands) {
  const Sinamalar<const char*, std::string, std::string> durumlar{
      {"blanks, comments, case", "; k=0\r\n\r\n  [ B ]  \r\n;k=2\r\n#k=3\r\n \t K \t =  iki söz;2 \t\r\n", "iki söz;2"},
      {"no last line end", "[b]\nk=1", "1"},
      {"section and key told twice", "[b]\nx=1\n[a]\nk=2\n[b]\nk=1\nk=3\n", "1"},
      {"equals sign and single quotes", "[b]\nk='a=b'\n", "a=b"},
      {"a lone quote", "[b]\nk=\"\n", "\""},
      {"empty value", "[b]\nk=\n", ""},
      {"longer key, another section", "[a]\nk=1\n[b]\nkk=1\n", "varsayılan"},
      {"open bracket", "[b\nk=1\n", "1"},
      {"code page 1254", "[b]\r\nk=\xDE\xDD\xF0\xFD\r\n", "Şİğı"},
      {"UTF-8", "[b]\nk=Şİğı\n", "Şİğı"},
      {"UTF-8 with mark", "\xEF\xBB\xBF[b]\nk=Şİğı\n", "Şİğı"},
      {"254 letters", "[b]\nk=" + Birlesik(Parcalar(300, "ş")) + "\n", Birlesik(Parcalar(254, "ş"))},
      {"too large for settings", "[b]\nk=1\n" + std::string(1u << 20, ';'), "varsayılan"}};
  const GeciciDizin d;
  for (const auto& [ad, icerik, beklenen] : durumlar) {
    ASSERT_TRUE(DosyaYaz(d.Yol() + "a.ini", icerik));
    EXPECT_EQ(IniOku("b", "k", "varsayılan", d.Yol() + "a.ini"), beklenen) << ad;
  }
  EXPECT_EQ(IniOku("b", "k", "varsayılan", d.Yol() + "yok.ini"), "varsayılan");
}

TEST(IniYaz, ChangesOneLineAndNoOtherByte) {
  const Sinamalar<const char*, std::string, std::string, std::string> durumlar{
      {"new file", "", "Ş", "[b]\r\nk=\xDE\r\n"},
      {"mixed line ends", "[a]\r\n\tx = 1 \n; \n[b]\n K = 1\r\nz=1\n", "5", "[a]\r\n\tx = 1 \n; \n[b]\nk=5\r\nz=1\n"},
      {"replaced at the end", "[b]\nk=1", "5", "[b]\nk=5"},
      {"added behind the section's last key", "[b]\nx=1\n\n; c\n[c]\ny=1\n", "5", "[b]\nx=1\nk=5\n\n; c\n[c]\ny=1\n"},
      {"section added", "[a]\nk=1", "5", "[a]\nk=1\n[b]\nk=5\n"},
      {"code page 1254", "[b]\r\nx=\xFE\x81\r\nk=1\r\n", "ğ", "[b]\r\nx=\xFE\x81\r\nk=\xF0\r\n"},
      {"UTF-8", "[b]\nx=ş\nk=1\n", "ğ", "[b]\nx=ş\nk=ğ\n"},
      {"UTF-8 with mark", "\xEF\xBB\xBF[b]\nk=1\n", "ğ", "\xEF\xBB\xBF[b]\nk=ğ\n"},
      {"a letter that the page lacks", "[b]\r\nx=\xFE\r\nk=1\r\n", "日", "[b]\r\nx=\xFE\r\nk=日\r\n"},
      {"1254 bytes that would read as UTF-8", "[b]\nk=1\n", "Ç»", "[b]\nk=Ç»\n"},
      {"quotes and blanks at the ends", "[b]\nk=1\n", "\"a\" ", "[b]\nk=\"\"a\" \"\n"},
      {"line ends in the value", "[b]\nk=1\n", "a\r\n[c]\n", "[b]\nk=a[c]\n"}};
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "a.ini";
  for (const auto& [ad, once, deger, sonra] : durumlar) {
    ASSERT_TRUE(DosyaYaz(dosya, once));
    ASSERT_TRUE(IniYaz("b", "k", deger, dosya)) << ad;
    EXPECT_EQ(DosyaOku(dosya), sonra) << ad;
    EXPECT_EQ(IniOku("B", "K", "yok", dosya), DenetimsizMetin(deger)) << ad;
  }
}

TEST(IniYaz, WhatCannotBeReadIsNotReplaced) {
  const GeciciDizin d;
  const std::string dosya = d.Yol() + "a.ini";
  const std::string cokBuyuk((1u << 20) + 1, ';');
  ASSERT_TRUE(DosyaYaz(dosya, cokBuyuk));
  EXPECT_EQ(IniYaz("b", "k", "1", dosya).KusurMetni(), dosya + ": dosya okunamadı, değiştirilmedi");
  EXPECT_EQ(DosyaOku(dosya), cokBuyuk);
  ASSERT_TRUE(DosyaYaz(dosya, "[b]\nk=eski\n"));
  EXPECT_FALSE(IniYaz("b", "k", "\xFE\xFF", dosya));
  EXPECT_FALSE(IniYaz("b", "k", cokBuyuk, dosya));
  EXPECT_EQ(IniOku("b", "k", "", dosya), "eski");
}

// The lines of a file without their ends.
std::multiset<std::string> Satirlar(const std::string& metin) {
  std::multiset<std::string> s;
  std::istringstream akis(metin);
  for (std::string satir; std::getline(akis, satir);) s.insert(satir.substr(0, satir.find_last_not_of('\r') + 1));
  return s;
}

rc::Gen<std::string> Parcalardan(const Parcalar& parcalar) {
  return rc::gen::map(rc::gen::container<Parcalar>(rc::gen::elementOf(parcalar)), &Birlesik);
}

// clang-format off
const Parcalar dosyaParcalari{
    "[b]", "[", "]", "k=", "k", "=", "\n", "\r\n", "\r", "[c]\n", "x=1\n", ";", "\"", " ", "\xFE", "\xC5", "\x9F",
    "\xEF\xBB\xBF", std::string(1, '\0'), "\x81"};
const Parcalar degerParcalari{
    "a", "ş", "İ", "\"", "'", " ", ";", "=", "[b]", "#", "€", "日", "Ç", "»", "Ã", "\xC2\x85", "😀"};
// clang-format on

RC_GTEST_PROP(IniYaz, AnyFileTakesAValueAndGivesItBack, ()) {
  static const GeciciDizin d;
  const std::string dosya = d.Yol() + "a.ini";
  const std::string once = *rc::gen::oneOf(rc::gen::arbitrary<std::string>(), Parcalardan(dosyaParcalari));
  const std::string deger =
      *rc::gen::suchThat(Parcalardan(degerParcalari), [](const std::string& s) { return HarfSayisi(s) <= 254; });
  RC_ASSERT(bool(DosyaYaz(dosya, once)));
  RC_ASSERT(bool(IniYaz("b", "k", deger, dosya)));
  RC_ASSERT(IniOku("b", "k", "yok", dosya) == deger);
  const std::string sonra = DosyaOku(dosya).value_or("");
  Parcalar kayip;
  std::ranges::set_difference(Satirlar(once), Satirlar(sonra), std::back_inserter(kayip));
  RC_ASSERT(kayip.size() <= 1u);
  RC_ASSERT(bool(IniYaz("b", "k", deger, dosya)));
  RC_ASSERT(DosyaOku(dosya) == sonra);
}

}  // namespace
}  // namespace belvani
