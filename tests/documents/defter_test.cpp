#include "documents/defter.h"

#include <gmock/gmock.h>
#include <rapidcheck/gtest.h>

#include "core/dosya.h"
#include "core/sayi.h"
#include "documents/ornekler.h"
#include "gecici.h"
#include "printing/csvyazici.h"
#include "printing/metinyazici.h"

namespace belvani {
namespace {

using testing::HasSubstr;
using testing::Not;

const std::vector<BordroSatiri> ucKisi = {test::AsgariUcretli(), test::Ayrilan(), test::CokKazanan()};

DefterSecenek TumKolonlar() {
  DefterSecenek secenek;
  secenek.kolonlar.fill(true);
  return secenek;
}

std::string Altin(const std::string& ad) {
  return DosyaOku(test::KaynakYolu("tests/documents/" + ad)).value_or("");
}

std::vector<std::string> Basliklar(const Rapor& rapor) {
  std::vector<std::string> basliklar;
  for (const auto& kolon : rapor.Kolonlar()) basliklar.push_back(kolon.baslik);
  return basliklar;
}

TEST(Defter, PaperOfThreePeople) {
  DefterSecenek secenek = TumKolonlar();
  secenek.duzen.satirArasi = SatirArasi::CizgiCek;
  secenek.duzen.kolonArasi = KolonArasi::DikCizgi;
  EXPECT_EQ(MetinRaporu(DefterRaporu(ucKisi, test::OrnekBaslik(), secenek), secenek.duzen),
            Altin("defter_cizgili.txt"));
  EXPECT_EQ(MetinRaporu(DefterRaporu(ucKisi, test::OrnekBaslik(), {}), {}), Altin("defter_sade.txt"));
  EXPECT_EQ(CsvRaporu(DefterRaporu(ucKisi, test::OrnekBaslik(), TumKolonlar())), Altin("defter.csv"));
}

TEST(Defter, SwitchesOfColumns) {
  EXPECT_THAT(Basliklar(DefterRaporu({}, test::OrnekBaslik(), {})),
              testing::ElementsAre("Kod No", "S.S.K. No", "T.C. No", "Adı Soyadı", "N.G.", "TG.", "Toplam Brüt",
                                   "SSK Matrah", "SSK Prim", "İşsizlik", "Kümüle G.V.", "GV Matrahı", "GV Tutar",
                                   "D.Vergisi", "Kesintiler", "Net Ödenen", "İmza"));
  DefterSecenek secenek;
  secenek.kolonlar.fill(false);
  EXPECT_THAT(Basliklar(DefterRaporu({}, test::OrnekBaslik(), secenek)), testing::ElementsAre("Adı Soyadı", "İmza"));
  secenek.kolonlar = DefterAnahtarlariOku("00x");  // shorter than the row of switches: the rest is on
  EXPECT_THAT(Basliklar(DefterRaporu({}, test::OrnekBaslik(), secenek)),
              testing::ElementsAre("Adı Soyadı", "Girişi", "Çıkışı", "N.G.", "TG.", "İG.", "Toplam Brüt", "SSK Matrah",
                                   "SSK Prim", "İşsizlik", "Kümüle G.V.", "GV Matrahı", "GV İndir.", "GV Tutar",
                                   "D.Vergisi", "Sendika", "Borç Kes.", "Kesintiler", "A.G.İ.", "Net Ödenen", "İmza"));
  EXPECT_EQ(DefterAnahtarMetni(secenek.kolonlar), "0001111111111111111111");
  EXPECT_EQ(DefterAnahtarAdlari().size(), DefterAnahtarSayisi);
}

// What makes the net and stands in no column is told below, so that its reader can add up.
TEST(Defter, TheNetIsExplained) {
  const auto etiketler = [](const DefterAnahtarlari& kolonlar, const std::vector<BordroSatiri>& satirlar = ucKisi) {
    std::vector<std::string> liste;
    DefterSecenek secenek;
    secenek.icmal = false;
    secenek.kolonlar = kolonlar;
    for (const auto& satir : DefterRaporu(satirlar, test::OrnekBaslik(), secenek).sonBlok)
      liste.push_back(satir.etiket + " " + DuzMetin(satir.deger));
    return liste;
  };
  Tutar agi;
  for (const auto& satir : ucKisi) agi += satir.brd.ogv;
  ASSERT_NE(agi, Tutar());
  const auto varsayilan = DefterAnahtarlariOku(VarsayilanDefterAnahtarlari);
  EXPECT_THAT(etiketler(varsayilan), testing::ElementsAre("Net Ödenen'e eklenen A.G.İ. : " + DuzMetin(agi)));
  auto agisiz = ucKisi;
  for (auto& satir : agisiz) satir.brd.ogv = {};
  EXPECT_THAT(etiketler(varsayilan, agisiz), testing::IsEmpty());
  const auto adlar = DefterAnahtarAdlari();
  auto kesintisiz = TumKolonlar().kolonlar;
  kesintisiz[std::size_t(std::ranges::find(adlar, "Kesintiler") - adlar.begin())] = false;
  EXPECT_THAT(etiketler(kesintisiz), testing::IsEmpty()) << "its parts stand there";
  kesintisiz[std::size_t(std::ranges::find(adlar, "GV Tutar") - adlar.begin())] = false;
  EXPECT_THAT(etiketler(kesintisiz), testing::ElementsAre(HasSubstr("Net Ödenen'den düşülen GV Tutar :")));
}

TEST(Defter, TextOfThePeriod) {
  EXPECT_EQ(DonemMetni({2008, 1, DonemTuru::Takvim}), "Ocak 2008 DÖNEMİ");
  EXPECT_EQ(DonemMetni({2008, 1, DonemTuru::Ters}), "15.01.2008 İLE 14.02.2008 DÖNEMİ ");
  EXPECT_EQ(DonemMetni({2008, 12, DonemTuru::Ters}), "15.12.2008 İLE 14.01.2009 DÖNEMİ ");
}

TEST(Defter, Options) {
  DefterSecenek secenek;
  secenek.icmal = false;
  secenek.kolonlar.fill(true);
  EXPECT_TRUE(DefterRaporu(ucKisi, test::OrnekBaslik(), secenek).sonBlok.empty());
  secenek.kolonlar = {};
  EXPECT_TRUE(DefterRaporu({}, test::OrnekBaslik(), {}).sonBlok.empty());
  EXPECT_THAT(MetinRaporu(DefterRaporu({}, test::OrnekBaslik(), {}), {}), HasSubstr("Ödenen İmza\n"));

  auto ikiBordro = ucKisi;
  ikiBordro[2].brd.no = 2;
  EXPECT_THAT(MetinRaporu(DefterRaporu(ikiBordro, test::OrnekBaslik(), {}), {}), Not(HasSubstr("\f")));
  secenek.herBordroYeni = true;
  const std::string metin = MetinRaporu(DefterRaporu(ikiBordro, test::OrnekBaslik(), secenek), {});
  EXPECT_EQ(std::count(metin.begin(), metin.end(), '\f'), 1);
  EXPECT_LT(metin.find("Şükrüye"), metin.find('\f'));
  EXPECT_GT(metin.find("İbrahim"), metin.find('\f'));
  EXPECT_THAT(metin, HasSubstr("Sayfa : 2\n"));
}

// Every writer shows the same rows and sums, whatever the records are.
RC_GTEST_PROP(Defter, HerSatirVeToplamTutar, ()) {
  std::vector<BordroSatiri> satirlar(*rc::gen::inRange<std::size_t>(1, 120), test::AsgariUcretli());
  for (auto& satir : satirlar)
    Brd::HerKolon([&](const auto& kolon) {
      if constexpr (std::same_as<typename std::decay_t<decltype(kolon)>::UyeTuru, Tutar>)
        satir.brd.*kolon.uye = Tutar::Hamdan(100 * *rc::gen::inRange<std::int64_t>(0, 3'000'000));
    });
  const Rapor rapor = DefterRaporu(satirlar, test::OrnekBaslik(), TumKolonlar());
  enum { Brut = 9, KesintilerKolonu = 20, Agi = 21, Net = 22 };
  const auto tutar = [](const std::vector<Hucre>& h, int k) { return std::get<Tutar>(h[std::size_t(k)]); };
  const auto tutarli = [&](const std::vector<Hucre>& h) {
    return tutar(h, Net) == tutar(h, Brut) - tutar(h, KesintilerKolonu) + tutar(h, Agi);
  };
  for (const auto& satir : rapor.Satirlar()) RC_ASSERT(tutarli(satir.hucreler));
  RC_ASSERT(tutarli(rapor.Toplam()));

  // The end block against the records; the total line of the paper against the rows of the exchange file.
  Tutar odenecek;
  for (const auto& s : satirlar)
    odenecek += s.brd.sskkesinti + s.brd.sskkesintiisveren + s.brd.issizisci + s.brd.issizisveren - s.brd.katki;
  RC_ASSERT(rapor.sonBlok.back().deger == Hucre(odenecek));
  Tutar net;
  std::istringstream csv(CsvRaporu(rapor));
  std::string satir;
  for (std::getline(csv, satir); std::getline(csv, satir);) {
    satir.resize(satir.rfind(','));  // the signature
    net += TutarOku(satir.substr(satir.rfind(',') + 1)).value();
  }
  RC_ASSERT(Hucre(net) == rapor.Toplam()[Net]);
  const KagitBicimi bicim = KagitBicimle(rapor, {});
  RC_ASSERT(MetinRaporu(rapor, {}).find(HucreMetni(net, rapor.Kolonlar()[Net], bicim.gruplama) + "\n") !=
            std::string::npos);
}

}  // namespace
}  // namespace belvani
