// The papers beside the ledger. Their totals are held against the store's own sums over the same records.
#include <gmock/gmock.h>

#include "documents/agilistesi.h"
#include "documents/doludepo.h"
#include "documents/icmal.h"
#include "documents/icmalgrafigi.h"
#include "documents/icmalserisi.h"
#include "documents/izin.h"
#include "documents/ornekler.h"
#include "documents/ozelbordro.h"
#include "documents/pusula.h"
#include "documents/turetilen.h"
#include "payroll/hesap/muafiyet.h"
#include "printing/kayittuvali.h"
#include "printing/metinyazici.h"

namespace belvani {
namespace {

using testing::HasSubstr;
using testing::Not;

using test::Ay;
using test::DoluDepo;
using test::Yil;

const Yuvarlayici kurus(2);

DoluDepo& Depo() {
  static DoluDepo depo(20080701);
  return depo;
}

std::int64_t Ham(const Hucre& hucre) {
  if (const auto* tutar = std::get_if<Tutar>(&hucre)) return tutar->Ham();
  return std::get<std::int64_t>(hucre);
}

std::int64_t Toplam(const Rapor& rapor, std::string_view baslik) {
  for (std::size_t k = 0; k < rapor.Kolonlar().size(); ++k)
    if (rapor.Kolonlar()[k].kisaBaslik == baslik) return Ham(rapor.Toplam()[k]);
  ADD_FAILURE() << "no column " << baslik;
  return 0;
}

PusulaBaslik Baslik() {
  return {.defter = test::OrnekBaslik(),
          .yardimAdlari = {"Y1", "Yemek", "Y3", "Y4", "Y5", "Y6", "Y7", "Y8", "Yol", "Y10", "Y11"}};
}

constexpr const char* Gunler = "ng + ht + rt + ui + ha + mi";

TEST(Belgeler, TotalsAreTheSumsOfTheRecords) {
  const Rapor pusula = PusulaRaporu(Depo().Satirlar(DefterSirasi::Kisi), Baslik());
  const Rapor ozel = OzelBordroRaporu(Depo().Satirlar(DefterSirasi::SskNo), test::OrnekBaslik());
  const struct {
    const Rapor& rapor;
    const char* baslik;
    const char* ifade;
  } ornekler[] = {
      {pusula, "Ücreti", "ucret"},
      {pusula, "Fazla Mesai", "brutkaz - ucret - topyardim"},
      {pusula, "Toplam Kazanç", "brutkaz"},
      {pusula, "Hafta Sonu", "ht"},
      {pusula, "Hasta  Gün", "ha"},
      {pusula, "Mazeret İzni", "mi"},
      {pusula, "Eksik Gün", "ucretsizizin"},
      {pusula, "Ssk Kesintisi", "sskkesinti"},
      {pusula, "D.V. Matrahı", "dvmatrah"},
      {pusula, "Ö.G.İ. Ödemesi", "ogv"},
      {pusula, "SSK İşveren İşsizlik", "issizisveren"},
      {pusula, "SSK Muafiyet", "muaftutar"},
      {pusula, "Y1", "yrd01"},
      {pusula, "Yol", "yrd09"},
      {pusula, "Y11", "yrd11"},
      {pusula, "Sakatlık İndirimi", "sakindir"},
      {pusula, "İndirim 3", "indirim3"},
      {ozel, "Mİ.", "mi"},
      {ozel, "Top.", Gunler},
      {ozel, "Brüt Kazanç", "brutkaz - yrd02 - yrd09"},
      {ozel, "Yemek", "yrd02"},
      {ozel, "Yol", "yrd09"},
      {ozel, "Pek İndirim", "muaftutar"},
      {ozel, "PEK", "sskmatrah"},
      {ozel, "Kümüle G.V.M.", "devgvmatrah"},
      {ozel, "G.Vergisi", "gvtutar"},
  };
  for (const auto& o : ornekler) EXPECT_EQ(Toplam(o.rapor, o.baslik), Depo().Topla(o.ifade)) << o.baslik;
  EXPECT_EQ(Ham(ozel.sonBlok[1].deger), Depo().Topla("sskkesintiisveren"));
  EXPECT_EQ(Toplam(pusula, "Net Ödenen"), Depo().Topla("brutkaz + ogv") - Toplam(pusula, "Toplam Kesinti"));
  EXPECT_EQ(Toplam(pusula, "Net Ödenen"), Toplam(ozel, "Agi+Net Ödeme"));
}

TEST(Belgeler, TheSummaryIsTheSumOfTheRecords) {
  const auto ay = IcmalGirdileriOku(Depo().db.IcMotor(), Yil, Ay);
  const Icmal i = IcmalHesapla(ay, Tutar(638.7), kurus);
  const std::string gunlu = "yil = 2008 and ay = 7 and " + std::string(Gunler) + " > 0";
  const std::string destek = gunlu + " and kod in (select kod from sicil where sskdurum = 1)";
  EXPECT_EQ(i.destek.sskkesintiisveren.Ham(), Depo().Topla("sskkesintiisveren", destek));
  EXPECT_EQ((i.olagan.sskkesinti + i.destek.sskkesinti).Ham(), Depo().Topla("sskkesinti", gunlu));
  EXPECT_EQ(i.Toplami(toplam::isverenToplam).Ham(), Depo().Topla("sskkesintiisveren + issizisveren", gunlu));
  EXPECT_EQ(i.Toplami(toplam::odenen).Ham(),
            Depo().Topla("brutkaz - sskkesinti - issizisci - gvtutar - dvtutar - sendika - borckes", gunlu));
  EXPECT_EQ(i.ToplamGun(), Depo().Topla(Gunler, gunlu));
  EXPECT_EQ(i.asgariUcretli + i.ucretli, Depo().Topla("1", gunlu));
  EXPECT_LT(i.ucretli, int(ay.size())) << "records without days are in the sample";

  const auto seri = IcmalSerisiOku(Depo().db.IcMotor(), Yil, Ay, {Tek(6.0f), kurus});
  EXPECT_EQ(seri.front().ay, Ay + 1);
  EXPECT_EQ(seri.back().ay, Ay);
  EXPECT_EQ(seri.back().brut, i.Toplami(brd::brutkaz));
  Tutar net;  // the ledger's, of the records with days
  for (const auto& satir : Depo().Satirlar(DefterSirasi::Kod))
    if (GunToplami(satir.brd) > 0) net += NetOdenen(satir.brd, Tek(6.0f), kurus);
  EXPECT_EQ(seri.back().net, net);
  EXPECT_EQ(seri.back().maliyet, i.Toplami(toplam::isverenMaliyeti));
  EXPECT_LT(seri.back().kisi, i.asgariUcretli + i.ucretli) << "people, not records: some have two runs";
  Tutar brut;
  for (const auto& a : seri) brut += a.brut;
  EXPECT_EQ(brut.Ham(), Depo().Topla("brutkaz", "(yil = 2008 and ay <= 7 or yil = 2007 and ay > 7) and " +
                                                    std::string(Gunler) + " > 0"));

  // The chart: three bars and a bar of people for each month, on one scale.
  test::KayitTuvali tuval;
  tuval.SayfaBasla(A4(KagitYonu::Dikey));
  IcmalGrafigi(seri, tuval, {10, 10, 190, IcmalGrafigiBoyu});
  const auto& sayfa = tuval.sayfalar[0];
  EXPECT_EQ(sayfa.Say(test::OgeTuru::DoluKutu), 4u + 6u + 12u * 3u)
      << "legend, axis, bars; the random nets lie below zero";
  for (const auto& oge : sayfa.ogeler)
    EXPECT_TRUE(oge.kutu.y >= 10 && oge.Alt() <= 10 + IcmalGrafigiBoyu + 1e-6) << oge.metin;
  EXPECT_THAT(sayfa.Satirlar(), testing::Contains(HasSubstr("07.08")));
  for (const auto& [enBuyuk, uc] : {std::pair(6840.0, 7500.0), {0.0, 1.0}, {1000.0, 1000.0}, {99.9, 100.0}})
    EXPECT_DOUBLE_EQ(EksenUcu(enBuyuk), uc);

  const Rapor rapor = IcmalRaporu(i, test::OrnekBaslik());
  ASSERT_EQ(rapor.Satirlar().size(), 14u);
  EXPECT_EQ(rapor.Satirlar()[11].hucreler[0], Hucre(std::string("Ödemeler Toplamı ")));
  EXPECT_EQ(std::get<Tutar>(rapor.Satirlar()[11].hucreler[1]).Ham(),
            Depo().Topla("sskkesinti + issizisci + gvtutar + dvtutar", gunlu));
  EXPECT_EQ(rapor.Satirlar()[3].hucreler[2], Hucre(Null{})) << "income tax has no employer's side";
}

TEST(Belgeler, AllowanceAndLeaveAreTheSumsOfTheRecords) {
  Motor& motor = Depo().db.IcMotor();
  DefterSecim secim;
  secim.yil = Yil;
  secim.ay = Ay;
  const Rapor agi = AgiListesi(AgiKisileriOku(motor, secim), {.unvan = "Çınar", .yil = Yil, .agiTaban = Tutar(608.4)});
  EXPECT_EQ(agi.Satirlar().size(), 39u);
  EXPECT_EQ(Toplam(agi, "Mart"), Depo().Topla("ogv", "yil = 2008 and ay = 3"));
  EXPECT_EQ(Toplam(agi, "Ağustos"), 0);
  EXPECT_EQ(Toplam(agi, "İnd.Tutarı"), Depo().Topla("ogv", "yil = 2008 and ay <= 7"));
  secim.noBit = 1;
  secim.kod = {.bas = "p110", .bit = "P119"};
  EXPECT_EQ(Toplam(AgiListesi(AgiKisileriOku(motor, secim), {}), "Mart"),
            Depo().Topla("ogv", "yil = 2008 and ay = 3 and no = 1 and kod between 'P110' and 'P119'"));

  const auto kisiler = IzinleriOku(motor, Yil, {});
  const Rapor ozet = IzinListesi(kisiler, Yil, IzinRaporu::Icmal);
  EXPECT_EQ(ozet.Satirlar().size(), 39u);
  EXPECT_EQ(Toplam(ozet, "Ö.İ.Gün"), Depo().Topla("ui", "yil < 2008"));
  EXPECT_EQ(Toplam(ozet, "T.İ.Gün"), Depo().Topla("ui", "yil <= 2008"));
  EXPECT_EQ(Toplam(IzinListesi(kisiler, Yil, IzinRaporu::Personel), "İ.Gün"), Depo().Topla("ui", "yil <= 2008"));
  const Rapor donem = IzinListesi(kisiler, Yil, IzinRaporu::Donemsel);
  EXPECT_EQ(Toplam(donem, "Aralık"), Depo().Topla("ui", "yil = 2008 and ay = 12"));
  EXPECT_EQ(Toplam(donem, "T.İ.Gün"), Toplam(ozet, "Bu Yıl"));
}

TEST(Pusula, TextSlip) {
  PusulaBaslik baslik = Baslik();
  baslik.defter.firma.tersfirma = true;
  const YaprakBelgesi belge = PusulaBelgesi({test::AsgariUcretli(), test::Ayrilan()}, baslik);
  const std::string metin = MetinYapraklari(belge, {.satirSayisi = 30});
  const auto ayrac = metin.find('\f');
  ASSERT_NE(ayrac, std::string::npos);
  const std::string ilk = metin.substr(0, ayrac);
  const std::string ikinci = metin.substr(ayrac);
  for (const char* parca :
       {"ÜCRET PUSULASI\n", "15.01.2008 ile 14.02.2008 Dönemi\n", "Firma İsmi    : Çınar Tekstil San. ve Tic. A.Ş.\n",
        "İşyeri Sicil  : 2 1721 01 1034567 034 12 77\n", "İşten Çıkış Tarihi :  Çalışıyor    Ssk Kesintisi      :  ",
        "Yardımlar          :       0.00    ", "Ücretli İzin       :          0    ", "Net Ödenen    ***  :   481.28\n",
        "istinaden müesseseniz\n", "   İ M Z A\n"})
    EXPECT_THAT(ilk, HasSubstr(parca));
  EXPECT_THAT(ikinci, HasSubstr("İşten Çıkış Tarihi : 20.01.2008    "));
  EXPECT_THAT(ikinci, Not(HasSubstr("Çalışıyor")));
  EXPECT_EQ(belge.yapraklar[0].ek.size(), 5u + 11 + 7);
  EXPECT_EQ(belge.yapraklar[0].ek[6].etiket, "Yemek");
  const Brd& brd = test::AsgariUcretli().brd;
  EXPECT_EQ(belge.yapraklar[0].ek[4].deger, Hucre(brd.devgvmatrah + brd.gvmatrah)) << "carried and of the month";
}

TEST(Icmal, WhoEarnsTheMinimumIsCountedToTheDay) {
  const struct {
    const char* ad;
    double ucret;
    int ng;
    int asgari;
  } ornekler[] = {
      {"the minimum wage of a whole month", 608.40, 30, 1},
      {"half a month of it counts as another wage", 304.20, 15, 0},
      {"its whole amount for fewer days", 608.40, 15, 1},
      {"a kuruş that a day does not show", 608.41, 30, 1},
      {"more", 700.00, 30, 0},
  };
  for (const auto& o : ornekler) {
    IcmalGirdisi g;
    g.brd.ucret = Tutar(o.ucret);
    g.brd.ng = std::uint8_t(o.ng);
    const Icmal i = IcmalHesapla({&g, 1}, Tutar(608.4), kurus);
    EXPECT_EQ(i.asgariUcretli, o.asgari) << o.ad;
    EXPECT_EQ(i.ucretli, 1 - o.asgari) << o.ad;
  }
}

TEST(AgiListesi, PeopleAndHeading) {
  AgiKisisi var{.kod = "1", .adSoyad = "Işıl Güneş", .agioran = Tek(67.5), .agimatrah = Tutar(608.4)};
  var.aylar[0] = Tutar(61.6);
  const AgiKisisi yok{.kod = "2", .adSoyad = "Ali Can", .agioran = {}, .agimatrah = {}};
  const Rapor rapor = AgiListesi({var, yok}, {.unvan = "Çınar", .yil = 2008, .agiTaban = Tutar(608.4)});
  const std::string metin = MetinRaporu(rapor, {});
  for (const char* parca : {"2008 YILI\n", "Asgari Ücretin Yıllık Brüt Tutarı : 7,300.80 ", "Shf : 1/1\n",
                            "   1 Işıl Güneş            67.5     608.40      61.60      61.60\n", "   2 Ali Can\n",
                            "     T O P L A M                                61.60      61.60\n"})
    EXPECT_THAT(metin, HasSubstr(parca));
}

TEST(OzelBordro, ARecordWithoutDays) {
  BordroSatiri satir = test::AsgariUcretli();
  satir.brd.ucret = Tutar(300.0);
  satir.brd.ng = satir.brd.ht = 0;
  const auto gunluk = [&] { return OzelBordroRaporu({satir}, test::OrnekBaslik()).Satirlar()[0].hucreler[10]; };
  EXPECT_EQ(gunluk(), Hucre(Tutar()));
  satir.brd.ha = 7;
  EXPECT_EQ(gunluk(), Hucre(Tutar(42.86)));
  EXPECT_TRUE(OzelBordroRaporu({}, test::OrnekBaslik()).sonBlok.empty());
}

TEST(Pusula, NamesOfTheAllowances) {
  test::OrnekDepo depo;
  Muaf satir;
  satir.no = 2;
  satir.adi = "Öğle Yemeği";
  KayitYazici<Muaf>(depo.db.IcMotor()).Ekle(satir);
  const auto adlar = YardimAdlariOku(depo.db.IcMotor());
  EXPECT_EQ(adlar[1], "Öğle Yemeği");
  EXPECT_EQ(adlar[0], VarsayilanYardimlar()[0].adi);
}

}  // namespace
}  // namespace belvani
