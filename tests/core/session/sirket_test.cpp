// Company names and their directories.
#include "core/session/sirket.h"

#include <gtest/gtest.h>

#include "core/dosya.h"
#include "core/sinamalar.h"
#include "gecici.h"
#include "veriyeri.h"

namespace belvani {
namespace {

using test::GeciciDizin;
using test::Sinamalar;

std::string Kez(const char* harf, int kez) {
  std::string s;
  for (; kez > 0; --kez) s += harf;
  return s;
}

TEST(SirketAdi, KeptInUpperCase) {
  for (const auto& [metin, ad] : Sinamalar<std::string, std::string>{{"izmir", "İZMİR"},
                                                                     {"ISPARTA", "ISPARTA"},
                                                                     {"  Şişli ğüçö ", "ŞİŞLİ ĞÜÇÖ"},
                                                                     {"a.b", "A.B"},
                                                                     {"S\u0327I\u0307R\u0049\u0307N", "ŞİRİN"},
                                                                     {"concept", "CONCEPT"},
                                                                     {"O'Neil; --", "O'NEİL; --"},
                                                                     {Kez("ş", 64), Kez("Ş", 64)}}) {
    const auto sonuc = SirketAdi(metin);
    ASSERT_TRUE(sonuc) << metin << sonuc.KusurMetni();
    EXPECT_EQ(*sonuc, ad);
  }
}

TEST(SirketAdi, Refused) {
  const std::string bos = "Şirket adı boş olamaz", uzun = "Şirket adı çok uzun (en çok 64 harf)",
                    gorunmez = "Şirket adında görünmeyen bir harf var, adı klavyeden yazınız",
                    nokta = "Şirket adı nokta ile bitemez",
                    harf =
                        "Şirket adında kullanılamayan bir harf var: nokta ile başlayamaz, / \\ : * ? \" < > | içeremez";
  // clang-format off
  const Sinamalar<std::string, std::vector<std::string>> durumlar{
      {bos, {"", "  "}}, {nokta, {"A.", "A.. ", "A. ."}},
      {gorunmez, {"A\u200BB", "\uFEFFA", "A\u202E", "A\u00ADB", "A\u00A0B", "A\u2028", "A\u0085", "\u3164"}}, {uzun, {std::string(65, 'a'), Kez("ş", 65), Kez("😀", 51), std::string(100'000, 'a')}},
      {harf, {".", "..", "../A", "A/B", "/", "/etc", "A\\B", "..\\A", "C:", "A*", "A?", "\"A\"", "<A>", "A|B", ".gizli", "A\nB",
              "A\t", std::string("A\0B", 3), "A\x7F", "A\x1B[2J", "\xFF", "A\xC3"}}};
  // clang-format on
  for (const auto& [kusur, adlar] : durumlar)
    for (const auto& ad : adlar) {
      ASSERT_FALSE(SirketAdi(ad)) << ad;
      EXPECT_EQ(SirketAdi(ad).KusurMetni(), kusur) << ad;
      EXPECT_FALSE(SirketBul("/tmp/", ad)) << ad;
    }
}

TEST(SirketAdi, DevicesOfOtherSystemsAreRefused) {
  for (const char* ad : {"con", "Aux", "NUL.txt", "com1", "LPT9 .x"})
    EXPECT_TRUE(SirketAdi(ad).KusurMetni().starts_with("Bu ad bazı bilgisayarlarda bir aygıtındır")) << ad;
}

TEST(SirketBul, FoundInAnyTurkishCase) {
  const test::VeriYeri d;
  const VeriYolu veri(d.Adres());
  for (const char* ad : {"izmir", "Isparta", "ÇORUM", "Şile", "Samsun"}) test::BosSirket(d.Yer(), ad);
  ASSERT_TRUE(veri.Yaz("DOSYA", ""));
  ASSERT_TRUE(test::SunucudaMi() || DizinYarat(d.Yer() + ".gizli"));
  EXPECT_EQ(Sirketler(d.Yer()), (std::vector<std::string>{"ÇORUM", "Isparta", "izmir", "Samsun", "Şile"}));
  EXPECT_TRUE(Sirketler(d.Yer() + "yok/").empty() && Sirketler(d.Yer() + "DOSYA").empty());
  for (const auto& [ad, dizin] : Sinamalar<const char*, const char*>{
           {"İZMİR", "izmir"}, {" İzmir ", "izmir"}, {"ısparta", "Isparta"}, {"çorum", "ÇORUM"}}) {
    const auto sonuc = SirketBul(d.Yer(), ad);
    ASSERT_TRUE(sonuc) << ad;
    EXPECT_EQ(*sonuc, dizin);
  }
  for (const auto& [ad, buyuk] :
       Sinamalar<const char*, std::string>{{"isparta", "İSPARTA"}, {"IZMIR", "IZMIR"}, {"dosya", "DOSYA"}})
    EXPECT_EQ(SirketBul(d.Yer(), ad).KusurMetni(), "Şirket Bulunamadı: " + buyuk);
}

// Exactly the name, else all that it may mean: never one of them unasked.
TEST(SirketBul, OfSeveralOnlyTheExactName) {
  YALNIZ_DIZINDE("a server has no two companies of one name");
  const GeciciDizin d;
  const std::string ayrik = "S\u0327I\u0307LE";  // the same letters in pieces
  for (const std::string& ad :
       {std::string("izmir"), std::string("İZMİR"), ayrik, std::string("ŞİLE"), std::string("A..")})
    ASSERT_TRUE(DizinYarat(d.Yol() + ad));
  for (const std::string& ad :
       {std::string("izmir"), std::string("İZMİR"), ayrik, std::string("ŞİLE"), std::string("A..")})
    EXPECT_EQ(*SirketBul(d.Yol(), ad), ad);
  EXPECT_EQ(*SirketBul(d.Yol(), " izmir "), "izmir");
  EXPECT_EQ(UyanSirketler(d.Yol(), "İzmir"), (std::vector<std::string>{"izmir", "İZMİR"}));
  EXPECT_EQ(SirketBul(d.Yol(), "İzmir").KusurMetni(),
            "Bu ada uyan birden çok şirket var, adı dizininki gibi yazınız:\nizmir\nİZMİR");
  EXPECT_EQ(UyanSirketler(d.Yol(), "şile").size(), 2u);
}

}  // namespace
}  // namespace belvani
