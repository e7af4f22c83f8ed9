// Posting lines: kept, proposed, brought in from a file; the settings beside them.
#include "accounting/entegrasyonayari.h"
#include "accounting/entparaktarim.h"
#include "accounting/entparkayit.h"
#include "muhasebe.h"
#include "personnel/sirket.h"

namespace belvani {
namespace {

using testing::HasSubstr;

struct EntparTesti : test::SirketTesti {
  Motor& Depo() { return o.depo.db.IcMotor(); }
  Sonuc<AktarimSonucu> Al(const char* csv) { return EntparAktar(o, csv, AktarimKipi::Kaydet); }
  std::string Sorun(const char* csv) {
    const auto sonuc = Al(csv);
    if (!sonuc) return sonuc.KusurMetni();
    return sonuc->sorunlar.empty() ? "" : sonuc->sorunlar[0].metin;
  }
  std::string MuhasebeKur() {
    const std::string yer = dizin.Yol() + "defter";
    EXPECT_TRUE(KardesYarat(KardesTuru::Muhasebe, yer));
    EXPECT_TRUE(MuhasebeSirketiYaz(o, yer));
    return yer;
  }
};

TEST_F(EntparTesti, TenRowsUnderTheirKeys) {
  EntparGrubu grup = EntparOku(Depo(), "Ü'1");
  grup.satirlar[9].simdi.yer = 5;
  grup.satirlar[9].simdi.hesap = "770";
  for (const auto& satir : grup.satirlar) EXPECT_TRUE(EntparYaz(Depo(), satir));
  const auto kayitlar = KayitlariOku<Entpar>(Depo(), "order by no");
  ASSERT_EQ(kayitlar.size(), 10u);
  EXPECT_EQ(kayitlar[0].grupno, "Ü'1000");
  EXPECT_TRUE(kayitlar[9] == (Entpar{.no = 9, .yer = 5, .ba = 0, .hesap = "770", .grup = "Ü'1", .grupno = "Ü'1009"}));

  // Another user has changed the line meanwhile.
  grup = EntparOku(Depo(), "Ü'1");
  Okunan<Entpar> benim = grup.satirlar[9], onun = grup.satirlar[9];
  benim.simdi.hesap = "720";
  onun.simdi.hesap = "760";
  EXPECT_TRUE(EntparYaz(Depo(), onun));
  EXPECT_TRUE(EntparYaz(Depo(), benim).Kusuru().cakisma.has_value());
  Engelle("update on entpar");
  grup = EntparOku(Depo(), "Ü'1");
  grup.satirlar[9].simdi.ba = 1;
  EXPECT_THAT(EntparYaz(Depo(), grup.satirlar[9]).KusurMetni(),
              testing::StartsWith("9 Nolu Enflasyon Parametresi Yazılamadı.\n"));
  Engelle("");
  EXPECT_EQ(EntparSil(Depo(), "Ü'1"), 10);
  EXPECT_TRUE(Hepsi<Entpar>().empty());
}

TEST_F(EntparTesti, AccountsAreChecked) {
  const HesapPlani plan({{.kod = "770", .isim = "", .yisim = ""}});
  EntparSatirlari satirlar;
  satirlar[1] = test::Satir("A", 1, 5, 0, "770");
  satirlar[2] = test::Satir("A", 2, 0, 0, "yok");
  EXPECT_TRUE(HesaplariDenetle(satirlar, plan));
  satirlar[3] = test::Satir("A", 3, 16, 1, "335");
  const Durum d = HesaplariDenetle(satirlar, plan);
  EXPECT_EQ(d.KusurMetni(), "335 Hesabı Muhasebede Bulunamadı..\nHesap Kodlarını Düzeltiniz..");
  EXPECT_EQ(d.Kusuru().satir, 4);
}

// Whatever the record, what is proposed balances.
TEST_F(EntparTesti, ProposalBalances) {
  const HesapPlani anaHesaplar({{.kod = "770", .isim = "", .yisim = ""}});
  for (const HesapPlani* plan : {static_cast<const HesapPlani*>(nullptr), &anaHesaplar}) {
    EntparSatirlari oneri = EntparOnerisi(plan);
    EXPECT_EQ(oneri[0].hesap, plan == nullptr ? "770.01" : "770");
    for (std::size_t i = 0; i < oneri.size(); ++i) {
      oneri[i].grup = "A";
      oneri[i].no = std::uint8_t(i);
    }
    Brd b = test::Kayit("1", 1000.11);
    std::int64_t ham = 12345;
    for (const auto uye : {&Brd::sskkesinti, &Brd::issizisci, &Brd::gvtutar, &Brd::dvtutar, &Brd::ogv,
                           &Brd::sskkesintiisveren, &Brd::issizisveren})
      b.*uye = Tutar::Hamdan(ham += 100'003);
    const Fis fis = test::FisYap({{"A", b}}, {oneri.begin(), oneri.end()});
    EXPECT_EQ(fis.Bakiye(), Tutar());
    EXPECT_TRUE(fis.borc > Tutar(1000) && fis.uyarilar.empty());
  }
}

TEST_F(EntparTesti, BroughtInFromAFile) {
  const auto ilk = Al("grup;no;yer;ba;hesap\nA;0;5;0;770.01\nA;1;16;1;335.01\n");
  EXPECT_EQ(ilk->eklenen, 2);
  ASSERT_EQ(ilk->uyarilar.size(), 1u);
  EXPECT_THAT(ilk->uyarilar[0].metin, HasSubstr("hesap kodları denetlenmedi"));
  MuhasebeKur();
  const auto ikinci = Al("grup,no,hesap\na,1,335\n");
  EXPECT_TRUE(ikinci->degisen == 1 && ikinci->uyarilar.empty());
  const auto kayitlar = KayitlariOku<Entpar>(Depo(), "order by no");
  EXPECT_EQ(kayitlar.size(), 2u);
  EXPECT_TRUE(kayitlar[1].yer == 16 && kayitlar[1].hesap == "335");
  EXPECT_THAT(Sorun("grup,no,yer,ba,hesap\nB,0,5,0,999\n"), HasSubstr("999 Hesabı Muhasebede Bulunamadı.."));
  EXPECT_EQ(Sorun("grup,no,yer,ba,hesap\nB,0,0,0,\n"), "") << "a place of none has no account";
}

TEST_F(EntparTesti, FaultsOfAFileWriteNothing) {
  for (const auto& [csv, kusur] : {std::pair("grup,yer\nA,5\n", "no: bu sütun dosyada olmalı"),
                                   {"grup,grupno,no\nA,A000,0\n", "grupno: dosyada verilmez"},
                                   {"grup,no\nA,10\n", "no: 0 ile 9 arasında olmalı"},
                                   {"grup,no,yer\nA,1,22\n", "yer: 0 ile 21 arasında olmalı"},
                                   {"grup,no,ba\nA,1,2\n", "ba: 0 ile 1 arasında olmalı"},
                                   {"grup,no\nA,1\na,1\n", "no: dosyada iki kez var: A001"},
                                   {"grup,no\nABCDE,1\n", "grup: en çok 4 harf"},
                                   {"grup,no\n,1\n", "grup: boş bırakılamaz"},
                                   {"grup,no,xyz\nA,1,2\n", "xyz"}})
    EXPECT_THAT(Sorun(csv), HasSubstr(kusur)) << csv;
  EXPECT_TRUE(Hepsi<Entpar>().empty());
  const std::string yer = MuhasebeKur();
  std::filesystem::remove(yer + "/belmuh.dat");
  EXPECT_THAT(Sorun("grup,no\nA,1\n"), HasSubstr("Muhasebe Şirketi Bulunamadı.."));
}

TEST_F(EntparTesti, Settings) {
  EXPECT_EQ(MuhasebeSirketi(o), "");
  EXPECT_EQ(KardesDizini(o, ""), "");
  EXPECT_TRUE(MuhasebeSirketiYaz(o, "/srv/Şık Muhasebe/"));
  EXPECT_EQ(MuhasebeSirketi(o), "/srv/Şık Muhasebe/");
  EXPECT_EQ(KardesDizini(o, "../.m"), o.FirmaDizini + "../.m");
  const IsletmeAyari ayar{.islfirma = "/a", .ucretgrup = "Ü1", .sskgrup = "S"};
  EXPECT_TRUE(IsletmeAyariYaz(o, ayar));
  EXPECT_TRUE(IsletmeAyariOku(o) == ayar);
  EXPECT_FALSE(MuhasebeSirketiYaz(o, std::string(255, 'x'))) << "it would be read back shorter";
  EXPECT_EQ(MuhasebeSirketi(o), "/srv/Şık Muhasebe/");
}

}  // namespace
}  // namespace belvani
