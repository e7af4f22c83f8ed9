// The shipped sample company, typed in person by person, has the records of the mass run.
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

#include "core/csv.h"
#include "core/tables/uye.h"
#include "girisekrani.h"

namespace belvani {
namespace {

using test::GirisEkrani;

// Rows of a file of the sample company; columns of other tables are passed over.
template <class Kayit>
std::vector<GirisSatiri> OrnekOku(const std::string& ad, std::vector<Kayit>& kayitlar) {
  std::ifstream dosya(test::KaynakYolu("data/ornek/" + ad), std::ios::binary);
  const CsvTablosu csv = test::Al(CsvOku(std::string(std::istreambuf_iterator<char>(dosya), {})));
  std::vector<GirisSatiri> girisler;
  std::string kusur;
  for (const CsvSatiri& satir : csv.satirlar) {
    Kayit& kayit = kayitlar.emplace_back();
    GirisSatiri& giris = girisler.emplace_back();
    for (std::size_t i = 0; i < csv.basliklar.size(); ++i)
      Kayit::HerKolon([&](const auto& kolon) {
        if (kolon.ad != csv.basliklar[i]) return;
        UyeyeYaz(kayit.*kolon.uye, MetindenDeger(kolon, satir.hucreler[i], kusur));
        if (kolon.ad != "kod") giris.verilen.insert(kolon.ad);
      });
  }
  return girisler;
}

template <class Kayit>
void OrnekTablo(GirisEkrani& e, const std::string& ad) {
  std::vector<Kayit> kayitlar;
  OrnekOku(ad, kayitlar);
  e.motor().Calistir("delete from " + std::string(Kayit::TabloAdi));
  for (const Kayit& k : kayitlar) e.Yaz(k);
}

std::vector<GirisSatiri> OrnekGirisleri(int yil, int ay) {
  std::vector<Brd> degerler;
  auto girisler =
      OrnekOku("giris/" + std::to_string(yil) + (ay < 10 ? "-0" : "-") + std::to_string(ay) + ".csv", degerler);
  for (std::size_t i = 0; i < girisler.size(); ++i) {
    girisler[i].deger = degerler[i];
    girisler[i].kod = degerler[i].kod;
  }
  return girisler;
}

// Types the month as a user would, from the first person to the last.
void AyiGir(GirisEkrani& e, const std::vector<GirisSatiri>& girisler) {
  BordroGirisi& giris = e.giris;
  auto ilk = e.Soyle(giris.Git(Yon::Ilk));
  while (ilk == KodSonucu::DonemDisi) ilk = e.Soyle(giris.Git(Yon::Sonraki));
  auto sonuc = KapanisSonucu::SonrakiVar;
  while (sonuc == KapanisSonucu::SonrakiVar) {
    e.KodAl(giris.Kod());
    for (const GirisSatiri& g : girisler) {
      if (g.kod != giris.Kod()) continue;
      Brd::HerKolon([&](const auto& kolon) {
        if (g.verilen.contains(kolon.ad) && kolon.ad != "eksiksebebi" && kolon.ad != "borckes")
          giris.Giris().*kolon.uye = g.deger.*kolon.uye;
      });
      giris.Hesapla();
      if (g.deger.eksiksebebi != 0) giris.SebepSec(EksikSebepSec(g.deger.eksiksebebi));
      test::Al(giris.BorcAyarla(g.deger.borckes));
    }
    const auto& panel = giris.Toplamlar().panel;
    EXPECT_EQ(panel.toplam, panel.muaf + panel.indirim) << giris.Kod();
    giris.AlanaGirildi(BordroAlani::NormalGun);
    sonuc = e.Kapat();
  }
  EXPECT_EQ(sonuc, KapanisSonucu::Bitti) << giris.Kod();
}

TEST(BordroGirisi, GivesTheSampleCompanyTheRecordsOfTheMassRun) {
  GirisEkrani e;
  if (!test::SunucudaMi()) e.motor().Calistir("pragma synchronous = off");
  OrnekTablo<Firma>(e, "firma.csv");
  OrnekTablo<Sicil>(e, "personel.csv");
  OrnekTablo<Esco>(e, "aile.csv");
  OrnekTablo<Kaztan>(e, "kaztan.csv");
  OrnekTablo<Muaf>(e, "muaf.csv");
  OrnekTablo<Indir>(e, "indir.csv");
  OrnekTablo<Sendika>(e, "sendika.csv");
  std::size_t sayi = 0;
  for (const int yil : {2006, 2008, 2009}) {
    Sablon sablon = VarsayilanSablon();
    sablon.SablonYardim = {Tutar(30), Tutar(78), Tutar(33.33)};
    sablon.SablonYardimTip = {0, std::uint8_t(yil - 2007), 1};  // each kind in turn; that of 2006 is none
    ASSERT_TRUE(SablonKaydet(e.o.FirmaDizini, sablon));
    for (int ay = 1; ay <= 12; ++ay) {
      e.Ac(yil, ay);
      const auto girisler = OrnekGirisleri(yil, ay);
      AyiGir(e, girisler);
      const auto ekrandan = e.Kayitlar(yil, ay);
      ASSERT_TRUE(BordroSil(e.o, yil, ay));
      ASSERT_TRUE(test::Al(TopluHazirla(e.o, e.Kosul(yil, ay), girisler)).kaydedildi);
      auto topludan = e.Kayitlar(yil, ay);
      ASSERT_EQ(ekrandan.size(), topludan.size()) << yil << "-" << ay;
      for (std::size_t i = 0; i < topludan.size(); ++i) {
        topludan[i].oto = ekrandan[i].oto;
        EXPECT_EQ(ekrandan[i], topludan[i]) << yil << "-" << ay << " " << topludan[i].kod;
      }
      sayi += topludan.size();
    }
  }
  EXPECT_GT(sayi, 700u);
}

}  // namespace
}  // namespace belvani
