// The series sheet: who goes to which list, the limit of 500, pages of both forms.
#include "notices/dizipusulasi.h"

#include "core/turkce.h"
#include "notices/dizikagidi.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::BildirimTesti;
using testing::HasSubstr;

using Dizi = BildirimTesti;

TEST(DiziPusulasiKurali, ANumberOfNoValueIsAFirstEntry) {
  for (const char* no : {"", "   ", "0", "000", " 00 ", "yeni", "-", "0A12"}) EXPECT_TRUE(IlkGirisMi(no)) << no;
  for (const char* no : {"1", " 0034", "3401200412345", "99999999999999999999999", "7A"})
    EXPECT_FALSE(IlkGirisMi(no)) << no;
}

TEST(DiziPusulasiKurali, EachListHasItsLimit) {
  DiziPusulasi pusula;
  DiziyeEkle(pusula, {"34", "Tekrar"});
  for (int i = 0; i < 500; ++i) DiziyeEkle(pusula, {"", std::to_string(i)});
  EXPECT_EQ(DiziSinirUyarisi(pusula), "");
  DiziyeEkle(pusula, {"  ", "Sığmayan"});
  EXPECT_EQ(pusula.ilk.size(), 500u);
  EXPECT_EQ(pusula.ilk.back().adsoy, "499");
  EXPECT_EQ(pusula.tekrar.size(), 1u) << "those held already stay";
  EXPECT_EQ(DiziSinirUyarisi(pusula), "Dizi Pusula Limiti Doldu\nPusulaya alınmayan kişi: 1");
  DiziyeEkle(pusula, {"35", "Tekrar"});
  EXPECT_EQ(pusula.tekrar.size(), 2u) << "a full list closes itself alone";
}

TEST_F(Dizi, IsReadInTheOrderOfNumbersWithPeopleOfNoIdentity) {
  const Tarih gun(2009, 7, 1);
  Kisi("1", gun, {}, -1, "35");
  Kisi("2", gun, {}, 0, "34");
  Kisi("3", gun, {}, 0, "   ");
  Kisi("4", gun.Ekle(1), {}, 0, "1");
  const DiziPusulasi pusula = DiziPusulasiOku(motor(), {gun, gun});
  EXPECT_THAT(pusula.ilk, testing::ElementsAre(DiziSatiri{"", "Işıl 3 Çağ"}));
  EXPECT_THAT(pusula.tekrar, testing::ElementsAre(DiziSatiri{"34", "Işıl 2 Çağ"}, DiziSatiri{"35", "Işıl 1 Çağ"}));
  EXPECT_TRUE(DiziPusulasiOku(motor(), {gun, gun.Ekle(-1)}).ilk.empty());
}

// Both lists run side by side; the longer one decides. The closing part stands on the last sheet alone.
TEST_F(Dizi, PagesOfBothForms) {
  const auto yap = [&](std::size_t ilk, std::size_t tekrar) {
    DiziPusulasi pusula;
    pusula.ilk.assign(ilk, {"", "İlk Kişi"});
    pusula.tekrar.assign(tekrar, {"3401", "Tekrar Kişi"});
    return DiziPusulasiBelgesi(firma, {}, pusula);
  };
  const auto metinSayfasi = [](const Belge& b) {
    const std::string metin = b.Metin();
    return std::ranges::count(metin, '\f') + 1;
  };
  for (const auto& [ilk, tekrar, cizilen, yazilan] :
       {std::tuple(0, 0, 1, 1), {32, 5, 1, 1}, {5, 33, 2, 1}, {38, 0, 2, 1}, {39, 39, 2, 2}, {500, 500, 16, 14}}) {
    const auto belge = yap(std::size_t(ilk), std::size_t(tekrar));
    EXPECT_EQ(belge->Cizim()->SayfaSayisi(), cizilen) << ilk << ", " << tekrar;
    EXPECT_EQ(metinSayfasi(*belge), yazilan) << ilk << ", " << tekrar;
    EXPECT_EQ(belge->Tablo()->Satirlar().size(), std::size_t(ilk + tekrar));
  }
  const std::string metin = yap(39, 2)->Metin();
  const std::string ilkSayfa = metin.substr(0, metin.find('\f')), son = metin.substr(metin.find('\f'));
  EXPECT_EQ(std::ranges::count(son, '\n'), 65) << "9 lines of head, 38 rows, 18 lines of the closing part";
  EXPECT_THAT(ilkSayfa, testing::Not(HasSubstr("TESLİM ALAN")));
  EXPECT_THAT(son, HasSubstr("(x) İLK Girenler için Üçer, TEKRAR Girenler İçin Birer Nüsha Bildirge Eklenecektir."));
  EXPECT_THAT(son, HasSubstr("39 ilk, 2 tekrar girene ait işe giriş bildirgeleri ekte sunulmuştur."));
  EXPECT_TRUE(KodSayfasinaSigar(metin, KodSayfasi::Dos857));
}

// Slots of the screen may stay empty between others: they keep their line on the sheet and are no rows elsewhere.
TEST_F(Dizi, EmptySlotsAreNoPeople) {
  const auto belge = DiziPusulasiBelgesi(firma, {}, {.ilk = {{"", "A"}, {}, {"", "B"}}, .tekrar = {}});
  EXPECT_EQ(belge->Tablo()->Satirlar().size(), 2u);
  EXPECT_THAT(belge->Metin(), HasSubstr("2 ilk, 0 tekrar"));
}

}  // namespace
}  // namespace belvani
