// The store: files, tables, queries, foreign words in its SQL, the alphabet's version.
#include "core/store/veritabani.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/stat.h>

#include "core/dosya.h"
#include "core/sinamalar.h"
#include "core/store/ornekdepo.h"
#include "surec.h"

namespace belvani {
namespace {

using test::Ekle;
using test::GeciciDizin;
using test::Ileri;
using test::OrnekDepo;
using test::Sinamalar;
using test::TabloImleci;
using I = std::int64_t;
using Metinler = std::vector<std::string>;

mode_t Izin(const std::string& yol) {
  struct stat s {};
  return ::stat(yol.c_str(), &s) == 0 ? s.st_mode & 07777 : 0;
}

TEST(Veritabani, OpenToOwnerAndGroupWhateverTheUmask) {
  YALNIZ_DIZINDE("permissions of files");
  for (const mode_t maske : {0, 022, 0777}) {
    const GeciciDizin d;
    const mode_t eski = ::umask(maske);
    const std::string yol = d.Yol() + "tolu.dat";
    Veritabani db;
    EXPECT_TRUE(db.DbYarat(yol) && db.TabloEkle(*TabloBul("sicil"))) << db.SonHata();
    for (const char* ek : {"", "-wal", "-shm"}) EXPECT_EQ(Izin(yol + ek), mode_t(0660)) << maske << ek;
    ::umask(eski);
  }
}

TEST(Veritabani, WhatCannotBeOpenedOrMade) {
  YALNIZ_DIZINDE("what else may stand under a store's name");
  const GeciciDizin d;
  ASSERT_TRUE(DosyaYaz(d.Yol() + "cop", std::string(5000, 'x')) && DizinYarat(d.Yol() + "dizin"));
  const std::string acilamadi = "Veritabanı dosyası açılamadı [";
  Veritabani db;
  for (const auto& [ad, metin] :
       Sinamalar<const char*, std::string>{{"cop", "Dosya bozuk veya bir şirket veritabanı değil ["},
                                           {"yok", acilamadi},
                                           {"dizin", acilamadi},
                                           {"", acilamadi}}) {
    EXPECT_FALSE(db.DbAc(d.Yol() + ad)) << ad;
    EXPECT_TRUE(db.SonHata().starts_with(metin)) << ad << ": " << db.SonHata();
    EXPECT_FALSE(db.AcikMi());
  }
  for (const char* ad : {"cop", "dizin", "yok/x"}) {
    EXPECT_FALSE(db.DbYarat(d.Yol() + ad)) << ad;
    EXPECT_TRUE(db.SonHata().starts_with(acilamadi)) << db.SonHata();
  }
  EXPECT_EQ(DosyaOku(d.Yol() + "cop"), std::string(5000, 'x'));
  EXPECT_FALSE(std::filesystem::exists(d.Yol() + "yok"));
  EXPECT_FALSE(db.TabloVarMi("sicil") || db.AlanVarMi("sicil", "kod") || db.TabloEkle(*TabloBul("sicil")));
}

// Data can still be read; every write is refused in words. Permissions do not bind root, so another user tries.
TEST(Veritabani, StoreThatMayNotBeWritten) {
  YALNIZ_DIZINDE("permissions of files");
  OrnekDepo d;
  d.db.IcMotor().Calistir("insert into sicil (kod) values ('1')");
  d.db.DbKapat();
  const auto dene = [&] {
    if (::geteuid() == 0 && (::setgid(65534) != 0 || ::setuid(65534) != 0)) return 9;
    Veritabani db;
    if (!db.DbAc(d.yol)) return 1;
    TabloImleci rs(db, "sicil");
    if (Ileri(rs, "kod") != Metinler{"1"} || Ekle(rs, {{"kod", std::string("2")}})) return 2;
    return db.SonHata().starts_with("Veritabanına yazma izni yok [") ? 0 : 3;
  };
  ::chmod(d.veriYeri.Yer().c_str(), 0755);
  for (const mode_t dizinIzni : {0777, 0555}) {
    ASSERT_EQ(::chmod(d.yol.c_str(), 0444) | ::chmod(d.sirket.c_str(), dizinIzni), 0);
    EXPECT_EQ(test::Surec(dene).Bekle(), 0) << dizinIzni;
  }
  ::chmod(d.sirket.c_str(), 0700);
}

// A field that only a later store has: not there to read, passed over when written.
TEST(Veritabani, TablesAndFields) {
  const test::VeriYeri yer;
  const TabloTanimi& sicil = *TabloBul("sicil");
  Veritabani db;
  ASSERT_TRUE(db.DbYarat(test::BosSirket(yer.Yer(), "DENEME") + "tolu.dat") && db.TabloEkle(sicil));
  TabloImleci rs(db, "sicil");
  EXPECT_TRUE(Ekle(rs, {{"kod", std::string("1")}, {"meslekkod", std::string("2341.01")}}) && rs.IlkKayit());
  EXPECT_EQ(rs.AlanOku("meslekkod"), Deger(I(1)));
  KayitYazici<Sicil>(db.IcMotor()).Ekle(Sicil());
  EXPECT_TRUE(db.AlanEkle("sicil", *sicil.AlanBul("meslekkod")) && db.TabloAc(rs, "sicil"));
  EXPECT_EQ(rs.AlanOku("meslekkod"), Deger(std::string()));
  EXPECT_EQ(KayitlariOku<Sicil>(db.IcMotor(), "where kod <= ?", {std::string("1")}).size(), 2u);

  EXPECT_TRUE(db.TabloVarMi("SICIL") && db.AlanVarMi("Sicil", "MESLEKKOD"));
  EXPECT_FALSE(db.TabloVarMi("firma") || db.AlanVarMi("sicil", "meslek") || db.AlanVarMi("firma", "unvan"));
  EXPECT_TRUE(db.AlanEkle("sicil", {"yeni", AlanTipi::Byte, 0, AlanNiteligi::Zorunlu}));  // Null in rows that stand
  EXPECT_FALSE(db.TabloEkle(sicil) || db.AlanEkle("sicil", *sicil.AlanBul("meslekkod")));
  for (const char* yok : {"firma", "yok"}) {
    EXPECT_FALSE(db.AlanEkle(yok, *sicil.AlanBul("adi")) || db.TabloAc(rs, yok));
    EXPECT_EQ(db.SonHata(), std::string("Tablo yok: ") + yok);
    EXPECT_FALSE(rs.AcikMi());
  }
}

TEST(SqlAc, ResultTypes) {
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil");
  ASSERT_TRUE(Ekle(rs, {{"kod", std::string("1")}, {"ucret", 100.5}, {"agi", true}, {"girtar", Tarih(2008, 2, 29)}}));
  ASSERT_TRUE(Ekle(rs, {{"kod", std::string("2")}, {"ucret", 200}, {"sskdurum", I(3)}}));
  Imlec s;
  ASSERT_TRUE(
      d.db.SqlAc(s,
                 "select s.kod as no, ucret, agi, girtar, sskdurum, ucret * 2 as ciftucret, count(*) over () as "
                 "adet, null as bos, null as bostarih, ucret as tam, 2.5 as oran from sicil s order by s.kod",
                 {}, {{"CIFTUCRET", AlanTipi::Tutar}, {"bostarih", AlanTipi::Tarih}, {"tam", AlanTipi::Uzun}}));
  EXPECT_EQ(s.KayitSayisi(), 2);
  for (const auto& [alan, ilk, ikinci] :
       Sinamalar<const char*, Deger, Deger>{{"no", std::string("1"), std::string("2")},
                                            {"ucret", Tutar(100.5), Tutar(200.0)},
                                            {"agi", true, I(0)},
                                            {"girtar", Tarih(2008, 2, 29), std::string()},
                                            {"sskdurum", I(0), I(3)},
                                            {"ciftucret", Tutar(201.0), Tutar(400.0)},
                                            {"adet", I(2), I(2)},
                                            {"bos", I(0), I(0)},
                                            {"bostarih", std::string(), std::string()},
                                            {"tam", I(1'005'000), I(2'000'000)},
                                            {"oran", 2.5, 2.5},
                                            {"yok", I(1), I(1)}}) {
    ASSERT_TRUE(s.IlkKayit());
    EXPECT_EQ(s.AlanOku(alan), ilk) << alan;
    ASSERT_TRUE(s.SonrakiKayit());
    EXPECT_EQ(s.AlanOku(alan), ikinci) << alan;
  }
  EXPECT_FALSE(Ekle(s, {{"no", std::string("9")}}));
  s.KayitSil();
  EXPECT_EQ(rs.KayitSayisi(), 2);
}

TEST(SqlAc, BoundValuesNoRowsFailures) {
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil");
  for (const char* kod : {"Ş1", "i"})
    ASSERT_TRUE(Ekle(rs, {{"kod", std::string(kod)}, {"ucret", 0.1}, {"agi", false}, {"girtar", Tarih(2008, 1, 31)}}));
  Imlec s;
  for (const auto& [kosul, deger, adet] :
       Sinamalar<std::string, Deger, int>{{"kod = ?", std::string("ş1"), 1},
                                          {"kod > ?", std::string("İ"), 1},
                                          {"ucret = ?", Tutar(0.1), 2},
                                          {"agi = ?", false, 2},
                                          {"girtar < ?", Tarih(2008, 2, 1), 2},
                                          {"girtar = ?", Tarih(), 0},
                                          {"kod = ?", std::string("' or '1'='1"), 0}}) {
    EXPECT_EQ(d.db.SqlAc(s, "select kod from sicil where " + kosul, {deger}), adet > 0) << kosul;
    EXPECT_TRUE(s.AcikMi() && s.KayitSayisi() == adet && s.SonMu() == (adet == 0)) << kosul;
  }
  for (const char* sql : {"", "-- hiç", "secim", "select yok from sicil", "select kod from sicil where adi = '"}) {
    EXPECT_FALSE(d.db.SqlAc(s, sql) || s.AcikMi()) << sql;
    EXPECT_TRUE(d.db.SonHata().starts_with("Veritabanı işlemi yapılamadı [")) << d.db.SonHata();
  }
  EXPECT_FALSE(d.db.SqlAc(s, "select kod from sicil", {std::string("fazla")}));
}

TEST(Veritabani, QuotesNeverReachSql) {
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil");
  const AlanTanimi adi = *TabloBul("sicil")->AlanBul("adi");
  for (const std::string soz :
       {"'", "''", "\"", "' or 1=1", "');--", "%", "x;--", "?1", ":a", "\\'", "a'||'b", "`kod`"}) {
    EXPECT_TRUE(Ekle(rs, {{"kod", soz}, {"adi", soz}}) && rs.KayitBul("kod", soz)) << soz << d.db.SonHata();
    EXPECT_EQ(rs.MetinOku("adi"), soz);
    Imlec s;
    EXPECT_TRUE(d.db.SqlAc(s, "select adi from sicil where adi = ?", {soz}) && s.KayitSayisi() == 1) << soz;
    const std::string ad = "sicil" + soz;
    EXPECT_FALSE(d.db.TabloAc(s, ad) || d.db.TabloVarMi(ad) || d.db.AlanVarMi("sicil", ad) || d.db.AlanEkle(ad, adi));
    EXPECT_FALSE(rs.KayitBul(soz, soz) || rs.IndeksSec(soz));
    EXPECT_EQ(rs.AlanOku(soz), Deger(I(1)));
  }
  EXPECT_FALSE(d.db.AlanEkle("sicil add x; drop table sicil; --", adi));
  EXPECT_EQ(rs.KayitSayisi(), 12);
}

// The store as another version of the Unicode library would have left it: its indexes in another order.
void BaskaSiraylaYaz(const std::string& yol, const std::string& surum) {
  sqlite3* db = nullptr;
  ASSERT_EQ(sqlite3_open(yol.c_str(), &db), SQLITE_OK);
  const auto tersSira = [](void*, int na, const void* a, int nb, const void* b) {
    return std::string_view(static_cast<const char*>(b), std::size_t(nb))
        .compare({static_cast<const char*>(a), std::size_t(na)});
  };
  sqlite3_create_collation_v2(db, "turkce", SQLITE_UTF8, nullptr, tersSira, nullptr);
  const std::string sql = "insert into sicil (kod) values ('c'), ('Ç'), ('d'), ('ı'), ('i'), ('z');" + surum;
  EXPECT_EQ(sqlite3_exec(db, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(db);
  sqlite3_close(db);
}

TEST(Veritabani, IndexesFollowTheAlphabetsVersion) {
  YALNIZ_DIZINDE("the version a file is stamped with");
  for (const auto& [surum, yenilenir] : Sinamalar<const char*, bool>{
           {"", false}, {"pragma user_version=7", true}, {"pragma user_version=7; pragma application_id=1", false}}) {
    SCOPED_TRACE(surum);
    OrnekDepo d;
    d.db.DbKapat();
    BaskaSiraylaYaz(d.yol, surum);
    for (int kez = 0; kez < 2; ++kez) {
      ASSERT_TRUE(d.db.DbAc(d.yol)) << d.db.SonHata();
      EXPECT_EQ(d.db.IcMotor().ButunlukKusuru().empty(), yenilenir);
      TabloImleci rs(d.db, "sicil");
      rs.IndeksSec("kod");
      EXPECT_EQ(Ileri(rs, "kod") == (Metinler{"c", "Ç", "d", "ı", "i", "z"}), yenilenir);
      EXPECT_EQ(rs.KayitBul("kod", std::string("ç")) && rs.KayitBul("kod", std::string("i")), yenilenir);
    }
  }
}

}  // namespace
}  // namespace belvani
