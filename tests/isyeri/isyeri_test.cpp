// The company on statutory papers: its number and its parties.
#include <gmock/gmock.h>

#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/numaradenetimi.h"
#include "isyeri/taraflar.h"

namespace belvani {
namespace {

using testing::ElementsAre;

std::string Deger(const FormSayfasi& sayfa, std::string_view ad) {
  const auto alan = std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad);
  return alan == sayfa.alanlar.end() ? "-" : alan->deger;
}

TEST(IsyeriNumarasi, GroupsInTextAndBoxes) {
  Firma firma;
  EXPECT_EQ(IsyeriSicilNo(firma), "");
  EXPECT_EQ(IlKodu(firma), "000");
  firma.dosya = " 1034567 ";
  firma.kontrol = "77";
  EXPECT_EQ(IsyeriSicilNo(firma), "1034567 77");
  for (const auto& [il, kod] : {std::pair{"34", "034"}, {"6 ", "006"}, {"0034", "034"}}) {
    firma.il = il;
    EXPECT_EQ(IlKodu(firma), kod);
  }
  FormKurucu f(A4(KagitYonu::Yatay));
  EXPECT_EQ(IsyeriNumarasi(f, 10, 5, firma, "007"), 9);
  EXPECT_EQ(Deger(f.Sayfa(), "firma.dosya"), "1034567");
  EXPECT_EQ(Deger(f.Sayfa(), "firma.il"), "034") << "with its zeros";
  EXPECT_EQ(Deger(f.Sayfa(), "arac.kod"), "007");
  const FormAlani& son = f.Sayfa().alanlar.back();
  EXPECT_LE(son.yer.x + son.yer.en, 10 + IsyeriNumarasiEni);
}

TEST(IsyeriNumarasi, ThePartThatIsShortIsNamed) {
  Firma firma;
  EXPECT_FALSE(NumaraYazilmis(firma));
  firma.sektor = "2";
  firma.meslek = " 171 ";
  firma.sube = "0101";
  firma.dosya = "10345678";
  firma.il = "34";  // its zero is added
  EXPECT_TRUE(NumaraYazilmis(firma));
  EXPECT_THAT(NumaraEksikleri(firma), ElementsAre("Meslek: 4 hane olmalı, 3 hane yazılı",
                                                  "Dosya: 7 hane olmalı, 8 hane yazılı", "İlçe: 2 hane olmalı, boş"));
  EXPECT_TRUE(NumaraKusuru(firma).starts_with("İşyeri Sicil Bilgisi 21 Karakter Olmalıdır\nMeslek"));
  firma.meslek = "1721";
  firma.dosya = "1034567";
  firma.ilce = "12";
  EXPECT_EQ(NumaraKusuru(firma), "");
}

TEST(Taraflar, TheOtherStandsInForAnEmptyOne) {
  Firma firma;
  firma.epos = "a@b";
  firma.tckimlik = "10000000146";
  EXPECT_EQ(Isveren(firma).iletisim, "a@b");
  EXPECT_EQ(Isveren(firma).kimlikNo, "10000000146");
  firma.tel = "0212";
  firma.verno = "123";
  EXPECT_EQ(Isveren(firma).iletisim, "0212");
  EXPECT_EQ(Isveren(firma).kimlikNo, "123");
  Arac arac;
  arac.isim1 = "Ada";
  EXPECT_EQ(Araci(arac).unvan, "Ada");
  firma.adr1 = "Sanayi Cad. 17";
  firma.semt = " Ümraniye ";
  firma.adril = "İstanbul";
  EXPECT_THAT(FirmaAdresi(firma), ElementsAre("Sanayi Cad. 17", "Ümraniye İstanbul"));
}

}  // namespace
}  // namespace belvani
