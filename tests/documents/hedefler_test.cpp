// One document, many targets: the amounts of every paper are the same on drawn pages, in text, in the spreadsheet and
// as plain values, and they are the sums of the stored records; for random companies.
#include <gmock/gmock.h>

#include "bol.h"
#include "core/sayi.h"
#include "core/turkce.h"
#include "documents/agilistesi.h"
#include "documents/doludepo.h"
#include "documents/izin.h"
#include "documents/ozelbordro.h"
#include "documents/pusula.h"
#include "printing/csvyazici.h"
#include "printing/kayittuvali.h"
#include "printing/metinyazici.h"
#include "printing/xlsxoku.h"

namespace belvani {
namespace {

using test::Ay;
using test::Bol;
using test::Yil;

Tutar HucreTutari(const Hucre& hucre) {
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) return *tutar;
  if (const auto* tam = std::get_if<std::int64_t>(&hucre)) return Tutar(double(*tam));
  return Tutar();
}

// What the totals of the summed columns must be: the rows added up here.
std::vector<std::pair<std::size_t, Tutar>> Toplamlar(const Rapor& rapor) {
  std::vector<std::pair<std::size_t, Tutar>> toplamlar;
  for (std::size_t k = 0; k < rapor.Kolonlar().size(); ++k) {
    if (!rapor.Kolonlar()[k].toplanir) continue;
    Tutar toplam;
    for (const auto& satir : rapor.Satirlar()) toplam += HucreTutari(satir.hucreler[k]);
    toplamlar.emplace_back(k, toplam);
  }
  return toplamlar;
}

Tutar OkunanTutar(std::string_view metin) {
  return Kirp(metin).empty() ? Tutar() : TutarOku(metin).value();
}

// The fields of the last line of a text page that has all columns.
std::vector<std::string> MetinToplami(const Rapor& rapor) {
  std::vector<std::string> son;
  for (const auto& satir : Bol(MetinRaporu(rapor, {.en = 400, .kolonArasi = KolonArasi::DikCizgi}), "\n"))
    if (auto alanlar = Bol(satir, "│"); alanlar.size() == rapor.Kolonlar().size()) son = std::move(alanlar);
  return son;
}

// The numbers of the last line of columns on the drawn pages, in the order of the columns.
std::string CizilenToplam(const Rapor& rapor) {
  test::KayitTuvali tuval;
  SayfalariCiz(GrafikRapor(rapor, {}), tuval);
  const int gruplama = GrafikRapor(rapor, {}).Bicim().kagit.gruplama;
  std::string beklenen;
  const auto toplam = rapor.Toplam();
  for (std::size_t k = 0; k < toplam.size(); ++k)
    if (const auto metin = HucreMetni(toplam[k], rapor.Kolonlar()[k], gruplama); !metin.empty())
      beklenen += (beklenen.empty() ? "" : "|") + metin;
  for (const auto& sayfa : tuval.sayfalar)
    for (const auto& satir : sayfa.Satirlar())
      if (satir == beklenen) return satir;
  return "on no page: " + beklenen;
}

// The row of the totals: below the heads and the rows.
std::size_t ToplamSatiri(const test::XlsxHucreleri& hucreler, const Rapor& rapor) {
  for (std::size_t satir = 1; satir < 20; ++satir)
    if (const auto yer = hucreler.find("A" + std::to_string(satir));
        yer != hucreler.end() && yer->second.deger == rapor.Kolonlar()[0].kisaBaslik)
      return satir + rapor.Satirlar().size() + 1;
  return 0;
}

Tutar XlsxTutari(const test::XlsxHucreleri& hucreler, std::size_t kolon, std::size_t satir) {
  const auto yer = hucreler.find(std::string(1, char('A' + kolon)) + std::to_string(satir));
  return yer == hucreler.end() ? Tutar() : yer->second.Sayi();
}

void HedefleriDenetle(const Belge& belge) {
  const Rapor& rapor = *belge.Tablo();
  SCOPED_TRACE(rapor.ekranBasligi);
  ASSERT_FALSE(rapor.Satirlar().empty());
  const auto metin = MetinToplami(rapor);
  const auto xlsx = test::XlsxOku(*belge.Xlsx());
  const std::size_t xlsxSatiri = ToplamSatiri(xlsx, rapor);
  const auto csv = Bol(CsvRaporu(rapor), "\r\n");
  ASSERT_EQ(metin.size(), rapor.Kolonlar().size());
  for (const auto& [k, beklenen] : Toplamlar(rapor)) {
    SCOPED_TRACE(rapor.Kolonlar()[k].baslik);
    EXPECT_EQ(HucreTutari(rapor.Toplam()[k]), beklenen);
    EXPECT_EQ(OkunanTutar(metin[k]), beklenen);
    EXPECT_EQ(XlsxTutari(xlsx, k, xlsxSatiri), beklenen);
    Tutar csvde;
    for (std::size_t i = 1; i + 1 < csv.size(); ++i) csvde += OkunanTutar(Bol(csv[i], ",")[k]);
    EXPECT_EQ(csvde, beklenen);
  }
  EXPECT_THAT(CizilenToplam(rapor), testing::Not(testing::StartsWith("on no page")));
}

Tutar HedefToplami(const Rapor& rapor, std::string_view baslik) {
  for (std::size_t k = 0; k < rapor.Kolonlar().size(); ++k)
    if (rapor.Kolonlar()[k].kisaBaslik == baslik) return HucreTutari(rapor.Toplam()[k]);
  ADD_FAILURE() << "no column " << baslik;
  return {};
}

TEST(Hedefler, EveryPaperHasTheSameAmountsOnEveryRoad) {
  for (const unsigned tohum : {1u, 7u, 42u, 2009u}) {
    SCOPED_TRACE(tohum);
    test::DoluDepo depo(tohum, 8 + int(tohum % 40));
    YasalParametreler yasal;
    yasal.oranlar.DamgaOran = Tek(6);
    yasal.oranlar.AsgariUcret = Tutar(638.7);
    Firma firma;
    firma.paraonda = 2;
    const BelgeKaynagi kaynak{.motor = depo.db.IcMotor(), .yasal = yasal, .firma = firma, .sirket = depo.sirket};
    DefterSecim secim;
    secim.yil = Yil;
    secim.ay = Ay;
    DefterSecenek hepsi;
    hepsi.kolonlar.fill(true);
    const auto defter = DefterBelgesi(kaynak, secim, hepsi, {});
    const auto ozel = OzelBordroBelgesi(kaynak, secim, {}, {});
    const auto agi = AgiBelgesi(kaynak, secim);
    HedefleriDenetle(*defter);
    HedefleriDenetle(*ozel);
    HedefleriDenetle(*agi);
    for (const auto tip : {IzinRaporu::Icmal, IzinRaporu::Personel, IzinRaporu::Donemsel})
      HedefleriDenetle(*IzinBelgesi(kaynak, secim, {.tip = tip}, {}));

    for (const auto& [baslik, alan] : {std::pair("Top.Kazanç", "brutkaz"),
                                       {"SSK Matrah", "sskmatrah"},
                                       {"SSK Kesinti", "sskkesinti"},
                                       {"GV Tutar", "gvtutar"},
                                       {"A.G.İ.", "ogv"}})
      EXPECT_EQ(HedefToplami(*defter->Tablo(), baslik).Ham(), depo.Topla(alan)) << baslik;
    EXPECT_EQ(HedefToplami(*agi->Tablo(), "İnd.Tutarı").Ham(), depo.Topla("ogv", "yil = 2008 and ay <= 7"));
    const auto pusulalar = UcretPusulalari(kaynak, secim, {})->Veri();
    const Rapor& pusula = *pusulalar;
    EXPECT_EQ(HedefToplami(pusula, "Net Ödenen"), HedefToplami(*defter->Tablo(), "Net Ödenen"));
    EXPECT_EQ(HedefToplami(pusula, "Net Ödenen"), HedefToplami(*ozel->Tablo(), "Agi+Net Ödeme"));
  }
}

}  // namespace
}  // namespace belvani
