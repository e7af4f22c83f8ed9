#include "personnel/ara.h"

#include "sirket.h"

namespace belvani {
namespace {

using Ara = test::SirketTesti;

TEST_F(Ara, FindsInTurkishCaseAndTakesEverythingTypedAsText) {
  Sicil ayrilan = test::Kart("i20", "Işıl", "Çağ");
  ayrilan.ciktar = Tarih(2009, 1, 1);
  for (const Sicil& s :
       {ayrilan, test::Kart("A%1", "İşcan", "Tan"), test::Kart("I10"), test::Kart("a_2", "KIS", "Ali")})
    Yaz(s);
  const auto liste = KisiListesi::Oku(o);
  ASSERT_TRUE(liste);
  const std::tuple<AramaTuru, const char*, const char*> aramalar[] = {
      {AramaTuru::KodBastan, "", " a_2 A%1 I10 i20"},
      {AramaTuru::KodBastan, "ı", " I10"},
      {AramaTuru::KodBastan, "1", ""},
      {AramaTuru::KodIcinde, "1", " A%1 I10"},
      {AramaTuru::KodIcinde, "_", " a_2"},
      {AramaTuru::KodIcinde, "*", ""},
      {AramaTuru::AdBastan, "IŞ", " i20"},
      {AramaTuru::AdBastan, "iş", " A%1"},
      {AramaTuru::AdBastan, "ÇAĞ", ""},
      {AramaTuru::AdIcinde, "ÇAĞ", " i20"},
      {AramaTuru::AdIcinde, "cag", ""},
      {AramaTuru::AdIcinde, "ALİ", " a_2 I10"},
      {AramaTuru::AdBastan, "aliv", " I10"},
      {AramaTuru::AdBastan, "Ali V", " I10"},
      {AramaTuru::Hepsi, "", " a_2 A%1 I10 i20"},
      {AramaTuru::Hepsi, "cag", " i20"},
      {AramaTuru::Hepsi, "ÇAĞ ısı", " i20"},  // any order, with marks or without
      {AramaTuru::Hepsi, "ali", " a_2 I10"},  // in either name
      {AramaTuru::Hepsi, "I1 veli", " I10"},  // the code and a name
      {AramaTuru::Hepsi, "aliveli", ""},
      {AramaTuru::Hepsi, "*", ""},
  };
  for (const auto& [tur, metin, beklenen] : aramalar) {
    std::string kodlar;
    for (const std::size_t i : liste->Ara(tur, metin)) kodlar += " " + liste->Kisiler()[i].kod;
    EXPECT_EQ(kodlar, beklenen) << metin;
  }
  EXPECT_EQ(liste->Kisiler().back().ciktar, ayrilan.ciktar);
}

}  // namespace
}  // namespace belvani
