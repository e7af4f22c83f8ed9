// Lists of hires and leaves: against SQL of the test's own on random companies, and on their forms.
#include "notices/giriscikis.h"

#include <random>
#include <sstream>

#include "core/turkce.h"
#include "notices/ekbelgeleri.h"
#include "notices/ekkagidi.h"
#include "printing/kayittuvali.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::BildirimTesti;
using test::KayitTuvali;
using test::OgeTuru;
using testing::HasSubstr;

struct GirisCikis : BildirimTesti {
  std::size_t SqlSayisi(const std::string& alan, const TarihAraligi& a) {
    const auto k = motor().Hazirla("select count(*) from sicil where " + alan + " between '" + a.bas.Iso() + "' and '" +
                                   a.bit.Iso() + "' and kod in (select kod from kimlik)");
    return k->Adim() ? std::size_t(k->Tam(0)) : 0;
  }
  std::unique_ptr<Belge> Giris(const TarihAraligi& a) { return GirisListesiBelgesi(kaynak, a, {.isi = firma.isi}); }
};

std::vector<std::string> Metinler(const CizilenBelge& cizim, int sayfa) {
  KayitTuvali tuval;
  cizim.SayfaCiz(sayfa, tuval);
  std::vector<std::string> metinler;
  for (const auto& oge : tuval.sayfalar.front().ogeler)
    if (oge.tur == OgeTuru::Metin) metinler.push_back(oge.metin);
  return metinler;
}

std::vector<std::string> Satirlar(const std::string& metin) {
  std::vector<std::string> satirlar;
  std::istringstream akis(metin);
  for (std::string satir; std::getline(akis, satir);) satirlar.push_back(satir);
  return satirlar;
}

TEST_F(GirisCikis, AreThePeopleOfTheDaysWithAnIdentity) {
  std::mt19937 rastgele(7);
  const Tarih ilk(2008, 1, 1);
  motor().IslemBaslat({});
  for (int i = 0; i < 400; ++i) {
    const int girisGunu = int(rastgele() % 700);
    const Tarih girtar = i % 17 == 0 ? Tarih() : ilk.Ekle(girisGunu);
    const Tarih ciktar = i % 3 == 0 ? ilk.Ekle(girisGunu + int(rastgele() % 300)) : Tarih();
    Kisi(std::to_string(1000 + i), girtar, ciktar, i % 11 == 0 ? -1 : 0);
  }
  motor().IslemOnayla();
  for (int deneme = 0; deneme < 60; ++deneme) {
    const TarihAraligi aralik{ilk.Ekle(int(rastgele() % 700)), ilk.Ekle(int(rastgele() % 1000))};
    SCOPED_TRACE(AralikMetni(aralik));
    const auto girenler = GirenleriOku(motor(), aralik);
    const auto cikanlar = CikanlariOku(motor(), aralik);
    EXPECT_EQ(girenler.size(), SqlSayisi("girtar", aralik));
    EXPECT_EQ(cikanlar.size(), SqlSayisi("ciktar", aralik));
    if (aralik.bas > aralik.bit) {
      EXPECT_TRUE(girenler.empty() && cikanlar.empty());
    }
    EXPECT_TRUE(std::ranges::is_sorted(girenler, {}, &GirenSatiri::girtar));
    EXPECT_TRUE(std::ranges::all_of(
        cikanlar, [&](const CikanSatiri& s) { return s.ciktar >= aralik.bas && s.ciktar <= aralik.bit; }));
  }
}

TEST_F(GirisCikis, BothEndsAreIncludedAndRowsSayWhatTheCardsSay) {
  const TarihAraligi gun{Tarih(2009, 7, 1), Tarih(2009, 7, 31)};
  Sicil s = Kisi("1", gun.bas, gun.bit, 1, "3401200412345");
  Kisi("2", gun.bas.Ekle(-1), gun.bit.Ekle(1));
  motor().Calistir("update sicil set cikiskodu = 4, cikissebebi = 'İstifa' where kod = '1'");
  const auto girenler = GirenleriOku(motor(), gun);
  ASSERT_EQ(girenler.size(), 1u);
  EXPECT_EQ(girenler[0].adsoy + girenler[0].baba + girenler[0].dogyer + girenler[0].sskno,
            "Işıl 1 ÇağÖmerMuş3401200412345");
  EXPECT_EQ(girenler[0].cins, 1);
  const auto cikanlar = CikanlariOku(motor(), gun);
  ASSERT_EQ(cikanlar.size(), 1u);
  EXPECT_EQ(cikanlar[0].CikisNedeni(), "04 İstifa");
  EXPECT_EQ((CikanSatiri{.cikiskodu = 22}.CikisNedeni()), "22") << "no blank behind a code alone";
  EXPECT_EQ(cikanlar[0].AdSoyadi(), "Işıl 1 Çağ");
}

TEST_F(GirisCikis, FourteenPeopleAPage) {
  const TarihAraligi ay{Tarih(2009, 7, 1), Tarih(2009, 7, 31)};
  EXPECT_TRUE(Giris(ay)->Kayitsiz());
  EXPECT_EQ(Giris(ay)->Cizim()->SayfaSayisi(), 1) << "the empty form";
  for (int i = 1; i <= 15; ++i) {
    Kisi(std::to_string(100 + i), ay.bas, {}, i % 2, i == 3 ? "" : "34012004123" + std::to_string(10 + i));
    EXPECT_EQ(Giris(ay)->Cizim()->SayfaSayisi(), i <= 14 ? 1 : 2);
  }
  const auto belge = Giris(ay);
  const auto ilk = Metinler(*belge->Cizim(), 1), ikinci = Metinler(*belge->Cizim(), 2);
  EXPECT_THAT(
      ilk, testing::IsSupersetOf({"EK - 1   İŞÇİ GİRİŞ  BİLDİRİM LİSTESİ", "1721", "34/5566", "Örme Kumaş", "(1)",
                                  "(10)", "(7) GÖREV KODU", "(9) SOSYAL GÜVENLİK KURULUŞ KODU", "SSK", "EMEKLİ SANDIĞI",
                                  "BANKA ve DİĞERLERİ", "BAĞ-KUR", "1 / 2", "Işıl 114 Çağ", "E"}));
  EXPECT_THAT(ikinci, testing::IsSupersetOf({"2 / 2", "15", "Işıl 115 Çağ", "K"}));
  EXPECT_THAT(ikinci, testing::Not(testing::Contains("Işıl 114 Çağ")));
  EXPECT_EQ(KurulusKodu("  "), "") << "nobody is insured with a body without his number there";
}

// Every letter that the store can hold has its room in the text form, which ends its rows at line 48.
TEST_F(GirisCikis, TextHoldsTheLongestValuesInItsLines) {
  const auto uzun = [](int harf) {
    std::string metin;
    for (int i = 0; i < harf; ++i) metin += "ğ";
    return metin;
  };
  for (std::string Firma::*uye : {&Firma::unvan, &Firma::adr1, &Firma::adr2}) firma.*uye = uzun(40);
  firma.bolcal = uzun(20);
  firma.dosya = uzun(15);
  firma.semt = firma.adrilce = firma.adril = uzun(12);
  Sicil s;
  s.kod = "1";
  s.adi = s.soyadi = s.cikissebebi = uzun(20);
  s.sskno = uzun(25);
  s.girtar = s.ciktar = Tarih(2009, 7, 1);
  Yaz(s);
  Kimlik k;
  k.kod = "1";
  k.baba = k.dogyer = uzun(15);
  k.dogtar = Tarih(1980, 1, 1);
  Yaz(k);
  const TarihAraligi gun{s.girtar, s.girtar};
  for (const auto& belge : {Giris(gun), CikisListesiBelgesi(kaynak, gun, {.isi = uzun(EsasIs::Harf)})}) {
    const auto satirlar = Satirlar(belge->Metin());
    ASSERT_GT(satirlar.size(), std::size_t(EkSonSatiri));
    EXPECT_LE(satirlar.size(), 65u);
    for (const std::string& satir : satirlar) EXPECT_EQ(HarfSayisi(satir), HarfSayisi(satirlar[0])) << satir;
    EXPECT_THAT(satirlar[EkSonSatiri - 1], testing::StartsWith("├────┴"));
    EXPECT_TRUE(KodSayfasinaSigar(belge->Metin(), KodSayfasi::Dos857));
    for (const int harf : {41 - 21, 15, 25}) EXPECT_THAT(belge->Metin(), HasSubstr("│" + uzun(harf)));
    EXPECT_THAT(belge->Metin(), HasSubstr(firma.adr2 + " " + firma.semt + " " + firma.adrilce + " " + firma.adril));
  }
}

}  // namespace
}  // namespace belvani
