// The company store: made, opened, grown, lost tables, pictures.
#include "core/session/depo.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/dosya.h"
#include "core/sinamalar.h"
#include "core/store/depodenetimi.h"
#include "core/tables/tablolar.h"
#include "core/turkce.h"
#include "gecici.h"
#include "surec.h"
#include "veriyeri.h"

namespace belvani {
namespace {

using test::GeciciDizin;
using test::Sinamalar;
using test::Surec;

// A store that was made, opened once, and closed.
struct YeniDepo {
  test::VeriYeri veri;
  std::string sirket = test::BosSirket(veri.Yer(), "DENEME");
  std::string yol = sirket + "tolu.dat";
  Depo depo;

  YeniDepo() {
    if (!depo.VeritabaniYarat(yol) || !Ac()) throw std::runtime_error(depo.db.SonHata());
    Kapat();
  }
  Durum Ac() { return depo.VeritabaniAc(yol); }
  void Kapat() { depo.TablolariKapat(KapatmaKapsami::VeritabaniDa); }
  void Sql(const std::string& sql) {
    Kapat();
    ASSERT_TRUE(depo.db.DbAc(yol));
    ASSERT_NO_THROW(depo.db.IcMotor().Calistir(sql)) << sql;
    Kapat();
  }
  // The columns of all tables, and the indexes that are missing.
  std::string Sema() {
    std::string sema;
    for (const auto& t : Tablolar())
      for (const MotorKolonu& k : depo.db.IcMotor().Kolonlar(t.ad))
        sema += std::string(t.ad) + "." + KucukHarf(k.ad) + " " + k.tip + "\n";
    for (const Kusur& k : DepoKusurlari(depo.db.IcMotor())) sema += k.metin + "\n";
    return sema;
  }
};

TEST(Depo, MadeThenGrownByTheFirstOpening) {
  const test::VeriYeri veri;
  const std::string yol = test::BosSirket(veri.Yer(), "DENEME") + "tolu.dat";
  Depo depo;
  ASSERT_TRUE(depo.VeritabaniYarat(yol));
  for (const auto& t : Tablolar()) EXPECT_EQ(depo.db.TabloVarMi(t.ad), t.ad != "kaztan" && t.ad != "entpar") << t.ad;
  EXPECT_FALSE(depo.db.AlanVarMi("sicil", "meslekkod") || depo.db.AlanVarMi("brd", "rapcalismadi"));
  ASSERT_TRUE(depo.VeritabaniAc(yol));
  for (const auto& t : Tablolar())
    for (const auto& alan : t.alanlar) EXPECT_TRUE(depo.db.AlanVarMi(t.ad, alan.ad)) << t.ad << "." << alan.ad;
  // clang-format off
  Imlec* const imlecler[] = {&depo.peruser, &depo.firma, &depo.sicil, &depo.foto, &depo.kimlik, &depo.brd, &depo.dvr, &depo.esco,
                             &depo.muaf, &depo.arac, &depo.indir, &depo.kaztan, &depo.entpar, &depo.sendika, &depo.cari};
  // clang-format on
  for (const Imlec* rs : imlecler) EXPECT_TRUE(rs->AcikMi());
  depo.TablolariKapat(KapatmaKapsami::YalnizImlecler);
  for (const Imlec* rs : imlecler) EXPECT_FALSE(rs->AcikMi());
  EXPECT_TRUE(depo.db.AcikMi());
  for (int i = 0; i < 2; ++i) depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  EXPECT_FALSE(depo.db.AcikMi());
}

TEST(Depo, SecondOpeningAddsNothing) {
  YeniDepo d;
  ASSERT_TRUE(d.Ac());
  const std::string once = d.Sema();
  EXPECT_GT(once.size(), 4000u);
  if (!test::SunucudaMi()) d.Sql("alter table brd rename column rapcalismadi to RapCalismadi");
  ASSERT_TRUE(d.Ac());
  EXPECT_EQ(d.Sema(), once);
}

TEST(Depo, LawFieldOnlyInAStoreOfThisVersion) {
  for (const auto& [firma, gelir] :
       Sinamalar<std::string, bool>{{"insert into firma (versiyon) values (2003.7)", true},
                                    {"insert into firma (versiyon) values (2003.6)", false},
                                    {"insert into firma (versiyon) values (null)", false},
                                    {"", false}}) {
    YeniDepo d;
    d.Sql("alter table brd drop column brdkanun;" + firma);
    ASSERT_TRUE(d.Ac()) << d.depo.db.SonHata();
    EXPECT_EQ(d.depo.db.AlanVarMi("brd", "brdkanun"), gelir) << firma;
  }
}

TEST(Depo, LostTables) {
  const std::string sicil = "Sicil SQL Tablosu Açılamadı";
  for (const auto& [tablo, ileti] : Sinamalar<std::string, std::string>{{"peruser", "PErUser SQL Tablosu Açılamadı"},
                                                                        {"firma", "Firma SQL Tablosu Açılamadı"},
                                                                        {"sicil", sicil},
                                                                        {"foto", sicil},
                                                                        {"kimlik", sicil},
                                                                        {"brd", sicil}}) {
    YeniDepo d;
    d.Sql("drop table " + tablo);
    EXPECT_THAT(d.Ac().KusurMetni(), testing::StartsWith(ileti + "\n")) << tablo;
  }
}

TEST(Depo, LateTablesGrowBackOrTellWhyNot) {
  YeniDepo d;
  for (const auto& [tablo, indeks, ad] :
       Sinamalar<std::string, std::string, std::string>{{"dvr", "dvr_yilkod", "Devir SQL"},
                                                        {"esco", "esco_kod", "Eş ve Çocuk SQL"},
                                                        {"muaf", "muaf_no", "Muafiyetler"},
                                                        {"arac", "arac_kod", "Aracı Bilgileri"},
                                                        {"indir", "indir_no", "İndirimler"},
                                                        {"kaztan", "kaztan_grup", "Kazançlar"},
                                                        {"entpar", "entpar_grupno", "Entegrasyon Parametreleri"},
                                                        {"sendika", "sendika_kod", "Sendika Parametreleri"},
                                                        {"cari", "cari_kod", "Cari Modul"}}) {
    d.Sql("drop table " + tablo);
    EXPECT_TRUE(d.Ac() && d.depo.db.TabloVarMi(tablo)) << tablo;
    // Something else bears the name of its index, so that it cannot be made.
    d.Sql("drop table " + tablo + "; create index " + indeks + " on sicil (adi)");
    EXPECT_THAT(d.Ac().KusurMetni(),
                testing::StartsWith(ad + " Tablosu Açılamadı\n" + tablo + " SQL Tablosu Yaratılamadı: "));
    EXPECT_FALSE(d.depo.db.TabloVarMi(tablo)) << tablo;
    d.Sql("drop index " + indeks);
  }
}

TEST(Depo, WhatIsThereIsNotMadeAgain) {
  YeniDepo d;
  ASSERT_TRUE(d.Ac());
  for (const char* tablo : {"sicil", "yok"})
    EXPECT_EQ(d.depo.TabloYarat(tablo).KusurMetni(), std::string(tablo) + " SQL Tablosu Yaratılamadı");
  d.Kapat();
  const auto icerik = DosyaOku(d.yol);
  EXPECT_EQ(d.depo.VeritabaniYarat(d.yol).KusurMetni(), d.yol + "\nDatabase Yaratılamadı");
  EXPECT_EQ(DosyaOku(d.yol), icerik);
  EXPECT_FALSE(d.depo.VeritabaniAc(d.veri.Yer() + "YOK/tolu.dat"));
  EXPECT_FALSE(!test::SunucudaMi() && d.depo.VeritabaniAc(d.sirket)) << "a directory is no store";
  EXPECT_TRUE(d.Ac());
}

TEST(Depo, ManyComputersOpenAnOldStoreAtOnce) {
  YeniDepo d;
  d.Sql("drop table kaztan; drop table entpar; drop table cari; alter table brd drop column rapcalismadi");
  std::vector<Surec> surecler;
  for (int i = 0; i < 6; ++i) surecler.emplace_back([&] { return d.Ac() ? 0 : 1; });
  for (auto& s : surecler) EXPECT_EQ(s.Bekle(), 0);
  EXPECT_TRUE(d.Ac() && d.depo.db.AlanVarMi("brd", "rapcalismadi"));
}

TEST(Depo, Pictures) {
  YeniDepo d;
  const GeciciDizin dizin;
  ASSERT_TRUE(d.Ac());
  const std::string dosya = dizin.Yol() + "resim.jpg", hedef = dizin.Yol() + "gelenres";
  for (const std::size_t boy : {1000u, 70u << 20, 10u, 0u}) {
    const std::string resim = boy == 0 ? "" : std::string("\0'", 2) + std::string(boy, '\xFF');
    ASSERT_TRUE(DosyaYaz(dosya, resim));
    ASSERT_TRUE(d.depo.FotoYaz("Ş'1", dosya) && d.depo.FotoOku("ş'1", hedef)) << boy << d.depo.db.SonHata();
    EXPECT_TRUE(DosyaOku(hedef, 1u << 30) == resim) << boy;
    EXPECT_EQ(d.depo.foto.KayitSayisi(), 1);
  }
  ASSERT_TRUE(DosyaYaz(dosya, "ikinci") && d.depo.FotoYaz("2", dosya));
  EXPECT_FALSE(d.depo.FotoYaz("2", dizin.Yol() + "yok.jpg") || d.depo.FotoYaz("123456789", dosya));
  EXPECT_FALSE(d.depo.FotoOku("2", dizin.Yol()));
  EXPECT_TRUE(d.depo.FotoOku("2", hedef));
  EXPECT_EQ(DosyaOku(hedef), "ikinci");
  EXPECT_FALSE(d.depo.FotoOku("3", hedef));
  EXPECT_EQ(DosyaOku(hedef), "");  // never another person's picture
  d.Kapat();
  EXPECT_FALSE(d.depo.FotoYaz("2", dosya) || d.depo.FotoOku("2", hedef));
}

TEST(Depo, PersonByCode) {
  YeniDepo d;
  d.Sql("insert into sicil (kod) values ('çığ'); insert into kimlik (kod) values ('çığ')");
  ASSERT_TRUE(d.Ac());
  const auto var = [&](Imlec& rs, const char* kod) { return rs.KayitBul("kod", std::string(kod)); };
  EXPECT_TRUE(var(d.depo.sicil, "ÇIĞ") && var(d.depo.kimlik, "Çığ"));
  EXPECT_FALSE(var(d.depo.sicil, "çiğ") || var(d.depo.kimlik, "cığ") || var(d.depo.sicil, "' or 1=1"));
}

}  // namespace
}  // namespace belvani
