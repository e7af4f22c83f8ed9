// The workforce chart: the month's counts against a look at each person, and its forms.
#include "notices/isgucu.h"

#include <random>

#include "notices/isgucukagidi.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::BildirimTesti;
using Isgucu = BildirimTesti;

constexpr std::size_t GecenAySonu = 0, Alinan = 1, Ayrilan = 2, AySonu = 3;

TEST_F(Isgucu, EndsOfTheMonth) {
  const Tarih ilk(2009, 2, 1), son(2009, 2, 28);
  Kisi("eski", ilk.Ekle(-1));
  Kisi("ilkgun", ilk, {}, 1);
  Kisi("songun", son, son);
  Kisi("sonra", son.Ekle(1));
  Kisi("gitmis", ilk.Ekle(-9), ilk.Ekle(-1));
  Kisi("ilkgungiden", ilk.Ekle(-9), ilk, 1);
  Kisi("sonragiden", ilk.Ekle(-9), son.Ekle(1));
  IsgucuCizelgesi c;
  c.baslik.yil = 2009;
  c.baslik.ay = 2;
  c.satirlar[1][0].erkek = 7;
  EXPECT_TRUE(CizelgeyiDoldur(motor(), c).empty());
  const IsgucuSatiri& herkes = c.satirlar[BelirsizSureliSirasi];
  EXPECT_EQ(herkes[GecenAySonu], (IsgucuSayisi{2, 1, 3}));
  EXPECT_EQ(herkes[Alinan], (IsgucuSayisi{1, 1, 2}));
  EXPECT_EQ(herkes[Ayrilan], (IsgucuSayisi{1, 1, 2}));
  EXPECT_EQ(herkes[AySonu], (IsgucuSayisi{2, 1, 3}));
  EXPECT_EQ(c.satirlar[1][0].erkek, 7) << "what the store does not know stays as it was typed";
}

// Whatever the company: those of the last month, with the hires and without the leaves, are those of its end; the
// disabled are some of them.
TEST_F(Isgucu, TheGroupsAddUp) {
  std::mt19937 rastgele(11);
  const Tarih ilk(2008, 1, 1);
  int kimliksiz = 0;
  motor().IslemBaslat({});
  for (int i = 0; i < 300; ++i) {
    const int gun = int(rastgele() % 600);
    const int cins = i % 13 == 0 ? -1 : i % 2;
    kimliksiz += cins < 0 ? 1 : 0;
    Kisi(std::to_string(i), i % 29 == 0 ? Tarih() : ilk.Ekle(gun),
         i % 2 == 0 ? ilk.Ekle(gun + int(rastgele() % 200)) : Tarih(), cins);
  }
  motor().Calistir("update sicil set sakatdrc = 2 where kod like '%7'");
  motor().IslemOnayla();
  for (int ay = 0; ay < 24; ++ay) {
    IsgucuCizelgesi c;
    c.baslik.yil = std::int16_t(2008 + ay / 12);
    c.baslik.ay = std::uint8_t(ay % 12 + 1);
    const auto uyarilar = CizelgeyiDoldur(motor(), c);
    EXPECT_EQ(uyarilar.size(), 2u) << "people without a sex, and without a hire date";
    for (const std::size_t satir : {BelirsizSureliSirasi, OzurluSirasi})
      for (const auto uye : {&IsgucuSayisi::erkek, &IsgucuSayisi::kadin, &IsgucuSayisi::toplam}) {
        const IsgucuSatiri& s = c.satirlar[satir];
        EXPECT_EQ(s[GecenAySonu].*uye + s[Alinan].*uye - s[Ayrilan].*uye, s[AySonu].*uye) << ay;
        EXPECT_LE(c.satirlar[OzurluSirasi][AySonu].*uye, c.satirlar[BelirsizSureliSirasi][AySonu].*uye);
      }
    const IsgucuSayisi& son = c.satirlar[BelirsizSureliSirasi][AySonu];
    EXPECT_GE(son.toplam, son.erkek + son.kadin);
    EXPECT_LE(son.toplam - son.erkek - son.kadin, kimliksiz);
  }
}

TEST_F(Isgucu, HeadingAndForms) {
  firma.firmayil = 2009;
  firma.firmaay = 7;
  firma.tel = "0216 555";
  firma.sektor = "2";
  firma.meslek = "1721";
  IsgucuCizelgesi c = BosCizelge(firma);
  EXPECT_EQ(c.baslik.isyeriNo, "2 1721");
  c.satirlar[0][0] = {3, 4, 7};
  c.ayrimlar[1][3] = {0, 2, 2};
  const auto belge = IsgucuBelgesi(c);
  EXPECT_FALSE(belge->Ayar().YzcDosAcik);
  const Rapor& rapor = *belge->Tablo();
  EXPECT_EQ(rapor.Kolonlar().size(), 13u);
  EXPECT_EQ(rapor.Satirlar().size(), 6u + 1 + 8);
  EXPECT_EQ(HucreMetni(rapor.Satirlar()[0].hucreler[3], rapor.Kolonlar()[3]), "7");
  EXPECT_EQ(HucreMetni(rapor.Satirlar().Hucresi(rapor.Satirlar().size() - 1, 11), rapor.Kolonlar()[11]), "2");
  const FormSayfasi sayfa = IsgucuCiz(c);
  const auto deger = [&](std::string_view ad) { return std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad)->deger; };
  EXPECT_EQ(deger("satir1.t1") + "," + deger("ayrim2.k4") + "," + deger("ay"), "7,2,Temmuz");
  for (const auto& k : sayfa.kutular) EXPECT_LE(k.yer.y + k.yer.boy, 210 - KenarMm);
}

}  // namespace
}  // namespace belvani
