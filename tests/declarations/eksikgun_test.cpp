// The missing-days form: who is listed, the daily earnings, and its pages.
#include "declarations/eksikgun.h"

#include <gmock/gmock.h>

#include "documents/doludepo.h"

namespace belvani {
namespace {

using testing::HasSubstr;

const Yuvarlayici kurusYuvarla(2);

std::string EksikGunDegeri(const FormSayfasi& sayfa, const std::string& ad) {
  const auto alan = std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad);
  return alan == sayfa.alanlar.end() ? "-" : alan->deger;
}

TEST(EksikGun, DailyEarnings) {
  const struct {
    const char* ad;
    int ng, ui;
    double matrah, taban, beklenen;
  } ornekler[] = {
      {"base over the days", 18, 2, 500, 693, 25},
      {"rounded to the books", 7, 0, 100, 0, 14.29},
      {"the floor, not rounded", 20, 0, 300, 700, 23.3333},
      {"no days, and no floor", 0, 0, 300, 693, 0},
  };
  for (const auto& o : ornekler) {
    Brd brd;
    brd.ng = std::uint8_t(o.ng);
    brd.ui = std::uint8_t(o.ui);
    brd.sskmatrah = Tutar(o.matrah);
    EXPECT_EQ(GunlukKazanc(brd, Tutar(o.taban), kurusYuvarla), Tutar(o.beklenen)) << o.ad;
  }
}

// Random records with a reason for some of them, and an identity for most people.
struct EksikDepo : test::DoluDepo {
  YasalParametreler yasal;
  Firma firma;
  BelgeKaynagi kaynak{.motor = db.IcMotor(), .yasal = yasal, .firma = firma, .sirket = sirket};

  explicit EksikDepo(unsigned tohum) : DoluDepo(tohum, 60) {
    yasal.oranlar.SskTaban = Tutar(693.0);
    firma.paraonda = 2;
    firma.unvan = "Çınar Tekstil";
    kaynak.motor.Calistir("update brd set eksiksebebi = (oto * 7) % 5 where oto % 3 = 0");
    kaynak.motor.Calistir(
        "insert into kimlik (kod, tcno) select kod, '1' || kod from sicil where kod not in ('P103', 'P109')");
  }
  std::int64_t Sayi(const std::string& sql) {
    const auto komut = kaynak.motor.Hazirla(sql);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
};

TEST(EksikGun, ListsThoseWithAReason) {
  for (const unsigned tohum : {3u, 4u}) {
    EksikDepo d(tohum);
    for (int ay = 1; ay <= 12; ++ay) {
      SCOPED_TRACE(ay);
      const EksikGunListesi liste = EksikGunHesapla(d.kaynak, test::Yil, ay);
      const std::string kosul = " from brd where eksiksebebi > 0 and yil = " + std::to_string(test::Yil) +
                                " and ay = " + std::to_string(ay) + " and kod in (select kod from sicil)";
      const std::string kimlikli = kosul + " and kod in (select kod from kimlik)";
      EXPECT_EQ(std::int64_t(liste.satirlar.size()), d.Sayi("select count(*)" + kimlikli));
      EXPECT_EQ(std::int64_t(liste.satirlar.size() + liste.kimliksizler.size()), d.Sayi("select count(*)" + kosul));
      std::int64_t eksik = 0, sebep = 0;
      for (const EksikGunSatiri& s : liste.satirlar) {
        eksik += s.kisi.eksikGun;
        sebep += s.kisi.sebep;
        EXPECT_TRUE(s.kisi.tcno.starts_with("1P"));
        EXPECT_TRUE(s.kisi.gun == 0 ? s.prim == Tutar() : s.prim >= Tutar(23.1));
      }
      EXPECT_EQ(eksik, d.Sayi("select coalesce(sum(ucretsizizin), 0)" + kimlikli));
      EXPECT_EQ(sebep, d.Sayi("select coalesce(sum(eksiksebebi), 0)" + kimlikli));
    }
  }
}

TEST(EksikGun, WhoIsLeftOutIsNamed) {
  EksikDepo d(5);
  d.kaynak.motor.Calistir("update brd set eksiksebebi = 13, ucretsizizin = 0 where kod in ('P103', 'P104')");
  DefterSecim secim;
  secim.AyKoy(test::Yil, test::Ay);
  const auto belge = EksikGunBelgesi(d.kaynak, secim);
  EXPECT_THAT(belge->Eksikler(), HasSubstr("P103"));
  EXPECT_THAT(belge->Eksikler(), testing::Not(HasSubstr("P104")));
  EXPECT_THAT(belge->Metin(), HasSubstr("1P104")) << "a reason lists a person, even without missing days";
  EXPECT_EQ(belge->Tablo()->Kolonlar()[0].Adi(), "sskno");
  d.kaynak.motor.Calistir("insert into kimlik (kod, tcno) values ('P103', '11'), ('P109', '12')");
  EXPECT_EQ(EksikGunBelgesi(d.kaynak, secim)->Eksikler(), "");
  const std::string ayinki =
      " from brd where yil = " + std::to_string(test::Yil) + " and ay = " + std::to_string(test::Ay);
  for (const int kisi : {8, 9}) {
    const std::string kodlar = "(select kod" + ayinki + " order by kod limit " + std::to_string(kisi) + ")";
    d.kaynak.motor.Calistir("update brd set eksiksebebi = 13 where kod in " + kodlar);
    d.kaynak.motor.Calistir("delete from kimlik where kod in " + kodlar);
    const std::string soz = EksikGunBelgesi(d.kaynak, secim)->Eksikler();
    EXPECT_THAT(soz, HasSubstr(" " + std::to_string(kisi) + " kişi: "));
    EXPECT_EQ(soz.ends_with(", …"), kisi == 9) << soz;
  }
}

TEST(EksikGun, TwentyPeopleAPage) {
  for (const auto& [kisi, sayfa] : {std::pair(0, 1), {1, 1}, {20, 1}, {21, 2}, {41, 3}}) {
    EksikGunKagidi kagit;
    for (int n = 1; n <= kisi; ++n) {
      kagit.form.kisiler.push_back({.tcno = "10000000146", .adi = "Işıl", .soyadi = "Çağ", .eksikGun = 3, .sebep = 12});
      kagit.primler.emplace_back(20.0 + n);
    }
    const auto sayfalar = EksikGunSayfalari(kagit);
    ASSERT_EQ(int(sayfalar.size()), sayfa) << kisi;
    EXPECT_EQ(EksikGunDegeri(sayfalar.back(), "sayfasayisi"), std::to_string(sayfa));
    if (kisi == 0) {
      EXPECT_EQ(EksikGunDegeri(sayfalar[0], "toplam.prim"), "");
    }
    if (kisi != 21) continue;
    EXPECT_EQ(EksikGunDegeri(sayfalar[0], "toplam.prim"), "610.00");
    EXPECT_EQ(EksikGunDegeri(sayfalar[1], "toplam.prim"), "41.00") << "of its page alone";
    EXPECT_EQ(EksikGunDegeri(sayfalar[1], "kisi21.adsoyad"), "Işıl Çağ");
    EXPECT_EQ(EksikGunDegeri(sayfalar[1], "kisi21.sebep"), "12");
  }
}

}  // namespace
}  // namespace belvani
