// The summary of a staff: who is in it, and that each row is the person's own sheet.
#include "severance/kidemicmali.h"

#include <random>

#include "payroll/parametre/dosyalar.h"
#include "severance/kidembelgesi.h"
#include "severance/sirket.h"

namespace belvani {
namespace {

using testing::ElementsAre;

struct IcmalTesti : test::KidemSirketi {
  KidemIcmalSecimi icmal{.baz = Tarih(2009, 8, 1)};
  DefterSecim secim;

  std::unique_ptr<Belge> Belge_() { return KidemIcmalBelgesi(Kaynak(), secim, icmal); }
  std::vector<std::string> Kodlar() {
    std::vector<std::string> kodlar;
    const auto tablo = Belge_()->Tablo();
    for (const auto& satir : tablo->Satirlar()) kodlar.push_back(DuzMetin(satir.hucreler[0]));
    return kodlar;
  }
};

TEST_F(IcmalTesti, WhoIsInTheList) {
  Ekle(Kisi("1BAZDA", 900, Tarih(2009, 8, 1)));  // hired on the day itself
  Ekle(Kisi("2ONCE", 900, Tarih(2009, 7, 31)));
  Ekle(Kisi("3ONCEKI", 900, Tarih(2005, 1, 1), Tarih(2009, 7, 31)));  // had left
  Ekle(Kisi("4AYNI", 900, Tarih(2005, 1, 1), Tarih(2009, 8, 1)));
  Ekle(Kisi("5SONRA", 900, Tarih(2005, 1, 1), Tarih(2009, 8, 2)));
  Yaz(Kisi("6KIMLIK", 900));  // without a record of identity
  Ekle(Kisi("7GIRIS", 900, {}));
  EXPECT_THAT(Kodlar(), ElementsAre("2ONCE", "4AYNI", "5SONRA"));
  EXPECT_EQ(Belge_()->Eksikler(),
            "1 kişi: listede yok, giriş tarihi yazılmamış.\n1 kişi: listede yok, kimlik bilgileri yazılmamış.");
  secim.kod = {"4", "5"};
  EXPECT_THAT(Kodlar(), ElementsAre("4AYNI"));
  EXPECT_EQ(Belge_()->Eksikler(), "");
}

TEST_F(IcmalTesti, RangesOfGroupTypeAndOwnCode) {
  for (const auto& [kod, grup, tip, ozel] :
       {std::array{"A", "G1", "T1", "O1"}, std::array{"B", "G2", "T2", "O2"}, std::array{"C", "g1", "T9", ""}}) {
    Sicil s = Kisi(kod, 900);
    s.grup = grup;
    s.tip = tip;
    s.ozel = ozel;
    Ekle(s);
  }
  secim.grup = {"G1", "G1"};
  EXPECT_THAT(Kodlar(), ElementsAre("A", "C"));
  secim.tip = {"T2", "ZZZZ"};
  EXPECT_THAT(Kodlar(), ElementsAre("C"));
  secim.ozel = {"O", "ZZZZ"};
  EXPECT_THAT(Kodlar(), testing::IsEmpty());
  EXPECT_TRUE(Belge_()->Kayitsiz());
}

// Every row is what the sheet of that person says on that day, and the totals are their sums.
TEST_F(IcmalTesti, EachRowIsThePersonsSheet) {
  std::mt19937 rastgele(7);
  const auto zar = [&](int enAz, int enCok) { return std::uniform_int_distribution(enAz, enCok)(rastgele); };
  for (int i = 0; i < 60; ++i) {
    Sicil s = Kisi("P" + std::to_string(100 + i), zar(0, 400000) / 100.0, Tarih(2009, 7, 31).Ekle(-zar(0, 9000)));
    s.ucrettipi = std::uint8_t(zar(0, 2));
    s.ucretags = std::uint8_t(zar(0, 2));
    if (s.ucretags != 0) s.ucret = Tutar(double(zar(0, 99)));
    Ekle(s);
    for (int ay = zar(1, 8); ay <= 9; ++ay) Bordro(s.kod, 2009, ay, zar(0, 300000) / 100.0, 100, zar(1, 2));
  }
  const auto belge = Belge_();
  const Rapor& rapor = *belge->Tablo();
  ASSERT_EQ(rapor.Satirlar().size(), 60u);
  KidemHesabi hesap(motor(), KidemKosullariYukle(Kaynak()));
  const auto tutar = [](const Hucre& h) { return std::get<Tutar>(h); };
  Tutar toplam;
  for (const auto& [h, yeni] : rapor.Satirlar()) {
    ASSERT_TRUE(hesap.KisiBul(DuzMetin(h[0])));
    hesap.CikisKoy(icmal.baz);
    const KidemCizelgesi c = hesap.Cizelge();
    SCOPED_TRACE(c.form.kod);
    EXPECT_EQ(tutar(h[6]), c.form.AylikUcret);
    EXPECT_EQ(std::get<std::int64_t>(h[7]), c.sonuc.CalismaGunu);
    EXPECT_EQ(std::get<std::int64_t>(h[12]), c.sonuc.IhbarGun);
    ASSERT_EQ(c.sonuc.tutarlar.has_value(), tutar(h[6]) > Tutar());
    const KidemTutarlari t = c.sonuc.tutarlar.value_or(KidemTutarlari{});
    // What the sheet holds, rounded as money; the sheet itself rounds for the eye alone.
    const std::pair<std::size_t, double> kolonlar[] = {
        {9, t.brutKidem},  {10, t.kidemDamga.Sayi()},        {11, t.netKidem},
        {13, t.brutIhbar}, {14, t.ihbarGelirVergisi.Sayi()}, {15, t.ihbarDamga.Sayi()},
        {16, t.netIhbar}};
    for (const auto& [kolon, deger] : kolonlar) EXPECT_EQ(tutar(h[kolon]), Yuvarlayici(2)(deger)) << kolon;
    EXPECT_EQ(tutar(h[8]), KidemTutariBul(c, "gunlukEsas").value_or(Tutar()));
    EXPECT_EQ(tutar(h[17]), tutar(h[11]) + tutar(h[16]));
    toplam += tutar(h[17]);
  }
  EXPECT_EQ(tutar(rapor.Toplam()[17]), toplam);
  EXPECT_EQ(rapor.baslik, "KIDEM-İHBAR ICMAL LISTESI");
  EXPECT_EQ(icmal.Zaman().metin, "2009-08-01");
  EXPECT_FALSE(icmal.Kusuru());
  icmal.baz = {};
  EXPECT_EQ(icmal.Kusuru()->metin, "Hatalı Baz Tarihi");
  EXPECT_EQ(BelgePdf(*belge).KusurMetni(), "Yazıcı Bölümü Kapatılmış");
}

// A person without a wage has his days and no amounts; another half year's ceiling and untaxed pay are told on top.
TEST_F(IcmalTesti, WhatTheListTells) {
  Ekle(Kisi("A", 0));
  Ekle(Kisi("B", 9000));
  icmal.baz = Tarih(2009, 6, 1);
  ASSERT_TRUE(KidemParKaydet(o.FirmaDizini, {365, 0, 0}));
  const auto notlar = [&] {
    std::vector<std::string> sozler;
    const auto tablo = Belge_()->Tablo();
    for (const UstSatir& s : tablo->ustSatirlar) sozler.push_back(s.sol);
    return sozler;
  };
  EXPECT_THAT(notlar(), ElementsAre(testing::_, testing::HasSubstr("2,260.05"),
                                    testing::HasSubstr("2 kişi: Kıdemin puantaj yerinde damga"),
                                    testing::HasSubstr("gelir vergisi")));
  const auto tablo = Belge_()->Tablo();
  const auto& satirlar = tablo->Satirlar();
  EXPECT_EQ(DuzMetin(satirlar[0].hucreler[7]), "304");
  EXPECT_EQ(std::get<Tutar>(satirlar[0].hucreler[17]), Tutar());
  icmal.tavan = KidemTavaniSecimi::Yariyil;
  EXPECT_EQ(std::get<Tutar>(Belge_()->Tablo()->Satirlar()[1].hucreler[8]), Tutar(75.34));
}

}  // namespace
}  // namespace belvani
