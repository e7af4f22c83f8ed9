// The cursor's borders, seeks, order and pending record. imlec_model_test.cpp has its moves in any order.
#include "core/store/imlec.h"

#include <gtest/gtest.h>

#include "core/sinamalar.h"
#include "core/store/ornekdepo.h"

namespace belvani {
namespace {

using test::Ekle;
using test::Geri;
using test::Ileri;
using test::OrnekDepo;
using test::Sinamalar;
using test::TabloImleci;
using I = std::int64_t;
using Metinler = std::vector<std::string>;

const Deger Okunamayan = I(1);

bool Bul(Imlec& rs, const char* kod) {
  return rs.KayitBul("kod", std::string(kod));
}

TEST(Imlec, EmptyOrClosed) {
  OrnekDepo d;
  TabloImleci bos(d.db, "sicil");
  Imlec kapali, sorgu;
  EXPECT_FALSE(d.db.SqlAc(sorgu, "select kod from sicil"));
  for (Imlec* rs : {static_cast<Imlec*>(&bos), &kapali, &sorgu}) {
    EXPECT_EQ(rs->AcikMi(), rs != &kapali);
    EXPECT_FALSE(rs->IlkKayit() || rs->SonKayit() || rs->SonrakiKayit() || rs->OncekiKayit() || rs->Konuma(0));
    EXPECT_TRUE(rs->SonMu() && rs->BasMi());
    EXPECT_EQ(rs->KayitSayisi(), 0);
    EXPECT_EQ(rs->AlanOku("kod"), Okunamayan);
    EXPECT_FALSE(Bul(*rs, "1"));
    rs->KayitSil();
    rs->KayitDuzelt();
    rs->AlanYaz("kod", std::string("1"));
    EXPECT_FALSE(rs->KayitYaz());
  }
  EXPECT_FALSE(kapali.IndeksSec("kod") || sorgu.IndeksSec("kod"));
  EXPECT_TRUE(Ekle(bos, {{"kod", std::string("1")}}));
  EXPECT_EQ(Ileri(bos, "kod"), Metinler{"1"});
  for (int i = 0; i < 2; ++i) bos.RsKapat();
  EXPECT_FALSE(bos.AcikMi() || bos.IlkKayit());
}

TEST(Imlec, BordersAndSeeks) {
  OrnekDepo d;
  TabloImleci tablo(d.db, "sicil");
  for (const char* kod : {"5", "1", "3"}) ASSERT_TRUE(Ekle(tablo, {{"kod", std::string(kod)}}));
  Imlec sorgu;
  ASSERT_TRUE(d.db.SqlAc(sorgu, "select kod from sicil order by kod") && tablo.IndeksSec("KOD"));
  for (Imlec* rs : {static_cast<Imlec*>(&tablo), &sorgu}) {
    SCOPED_TRACE(rs == &sorgu);
    EXPECT_EQ(Ileri(*rs, "kod"), (Metinler{"1", "3", "5"}));
    EXPECT_TRUE(rs->SonMu() && !rs->BasMi() && !rs->SonrakiKayit());
    EXPECT_EQ(rs->AlanOku("kod"), Okunamayan);
    EXPECT_TRUE(rs->OncekiKayit());
    EXPECT_EQ(rs->MetinOku("KOD"), "5");
    EXPECT_EQ(Geri(*rs, "kod"), (Metinler{"1", "3", "5"}));
    EXPECT_TRUE(rs->BasMi() && !rs->SonMu() && !rs->OncekiKayit());
    EXPECT_EQ(rs->AlanOku("kod"), Okunamayan);
    EXPECT_TRUE(rs->SonrakiKayit());
    EXPECT_EQ(rs->MetinOku("kod"), "1");
    EXPECT_TRUE(rs->Konuma(2) && rs->Konuma(1));
    EXPECT_FALSE(rs->Konuma(3) || rs->Konuma(-1));
    EXPECT_EQ(rs->MetinOku("kod"), "3");
    EXPECT_EQ(rs->AlanOku("ko"), Okunamayan);
  }
  EXPECT_FALSE(tablo.KayitBul("yok", std::string("5")) || tablo.IndeksSec("yok"));
  EXPECT_EQ(tablo.MetinOku("kod"), "3");
  for (const Deger& yok : {Deger(std::string("4")), Deger(Null{}), Deger(std::string("' or 1=1 --"))}) {
    EXPECT_FALSE(tablo.KayitBul("kod", yok));
    EXPECT_EQ(tablo.AlanOku("kod"), Okunamayan);
    EXPECT_TRUE(tablo.SonMu() && tablo.BasMi() && !tablo.SonrakiKayit() && !tablo.OncekiKayit());
    tablo.KayitSil();
    EXPECT_EQ(tablo.KayitSayisi(), 3);
  }
  EXPECT_TRUE(Bul(tablo, "3") && tablo.SonrakiKayit());
  EXPECT_EQ(tablo.MetinOku("kod"), "5");
}

TEST(Imlec, TurkishOrder) {
  const Metinler alfabe{"",  "1",  "10", "2", "a", "B", "c", "Ç", "d", "g", "Ğ", "h", "I", "I1",
                        "i", "İ1", "j",  "o", "Ö", "p", "s", "ş", "t", "u", "ü", "v", "z"};
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil");
  for (std::size_t i = 0; i < alfabe.size(); ++i)
    ASSERT_TRUE(Ekle(rs, {{"kod", alfabe[i * 7 % alfabe.size()]}})) << d.db.SonHata();
  EXPECT_EQ(Ileri(rs, "kod")[1], alfabe[7]);  // as they came
  ASSERT_TRUE(rs.IndeksSec("kod"));
  EXPECT_EQ(rs.MetinOku("kod"), alfabe.front());
  EXPECT_EQ(Ileri(rs, "kod"), alfabe);
  EXPECT_EQ(Geri(rs, "kod"), alfabe);
  for (const auto& [aranan, bulunan] :
       Sinamalar<const char*, const char*>{{"ç", "Ç"}, {"İ", "i"}, {"ı", "I"}, {"i1", "İ1"}, {"ı1", "I1"}, {"", ""}}) {
    EXPECT_TRUE(Bul(rs, aranan)) << aranan;
    EXPECT_EQ(rs.MetinOku("kod"), bulunan) << aranan;
    EXPECT_FALSE(Ekle(rs, {{"kod", std::string(aranan)}})) << aranan;
    EXPECT_TRUE(d.db.SonHata().starts_with("Kayıt veritabanının kurallarına uymuyor [")) << d.db.SonHata();
  }
}

// More rows than are read ahead at once, and turns among them.
TEST(Imlec, LongRunsOverEqualKeys) {
  OrnekDepo d;
  TabloImleci rs(d.db, "cari");
  Metinler s, ss;  // "ş" and "Ş" are one key
  std::optional<Islem> islem(d.db.IcMotor());
  for (int i = 0; i < 900; ++i) {
    ASSERT_TRUE(Ekle(rs, {{"kod", std::string(std::array{"ş", "S", "Ş"}[std::size_t(i % 3)])}, {"ack", I(i)}}));
    (i % 3 == 1 ? s : ss).push_back(std::to_string(i));
  }
  s.insert(s.end(), ss.begin(), ss.end());
  ASSERT_TRUE(rs.IndeksSec("kod"));
  EXPECT_EQ(Ileri(rs, "ack"), s);
  EXPECT_EQ(Geri(rs, "ack"), s);
  ASSERT_TRUE(Bul(rs, "ş") && rs.OncekiKayit());
  EXPECT_EQ(rs.MetinOku("ack"), "898");
  for (int i = 0; i < 200; ++i) rs.SonrakiKayit();
  for (int i = 0; i < 200; ++i) rs.OncekiKayit();
  EXPECT_EQ(rs.MetinOku("ack"), "898");
  EXPECT_TRUE(rs.KayitBul("oto", I(500)) && rs.SonrakiKayit());
  EXPECT_EQ(rs.MetinOku("ack"), "500");
  for (int i = 0; i < 9; ++i) rs.SonrakiKayit();
  islem.reset();  // the rows are taken back, those read ahead too
  EXPECT_FALSE(rs.SonrakiKayit());
}

TEST(Imlec, PendingRecord) {
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil"), baska(d.db, "sicil");
  rs.KayitEkle();
  rs.AlanYaz("kod", std::string("1"));
  EXPECT_EQ(rs.MetinOku("kod"), "1");
  EXPECT_EQ(rs.AlanOku("girtar"), Deger(std::string()));
  EXPECT_EQ(rs.AlanOku("ucret"), Deger(I(0)));
  rs.IlkKayit();  // left without saving
  rs.AlanYaz("kod", std::string("1"));
  EXPECT_FALSE(rs.KayitYaz());
  rs.KayitEkle();
  EXPECT_FALSE(rs.KayitYaz());  // a key is needed
  rs.KayitDuzelt();             // on no record: nothing to save, the addition neither
  rs.AlanYaz("kod", std::string("1"));
  EXPECT_FALSE(rs.KayitYaz());
  EXPECT_FALSE(Ekle(rs, {{"sicilno", std::string("1")}, {"kod", std::string("1")}}));
  EXPECT_EQ(d.db.SonHata(), "Alan yok: sicilno");
  EXPECT_EQ(rs.KayitSayisi(), 0);

  ASSERT_TRUE(Ekle(rs, {{"kod", std::string("1")}, {"adi", std::string("Ali")}}) && Bul(rs, "1") && Bul(baska, "1"));
  rs.KayitDuzelt();
  EXPECT_TRUE(rs.KayitYaz());  // with nothing changed
  rs.KayitDuzelt();
  rs.AlanYaz("adi", Null{});
  EXPECT_EQ(rs.MetinOku("adi") + baska.MetinOku("adi"), "Ali");
  baska.KayitSil();
  EXPECT_FALSE(rs.KayitYaz());
  EXPECT_EQ(d.db.SonHata(), "Kayıt bu arada başka bir kullanıcı tarafından silinmiş");
}

// A cursor belongs to one opening of the store.
TEST(Imlec, StoreClosedUnderACursor) {
  OrnekDepo d;
  TabloImleci rs(d.db, "sicil");
  Imlec sorgu;
  ASSERT_TRUE(Ekle(rs, {{"kod", std::string("1")}}) && d.db.SqlAc(sorgu, "select kod from sicil") && Bul(rs, "1"));
  const auto kapaliMi = [](Imlec& x) {
    return !x.AcikMi() && x.AlanOku("kod") == Okunamayan && !x.IlkKayit() && !x.SonrakiKayit() && !Bul(x, "1") &&
           !Ekle(x, {{"kod", std::string("2")}}) && x.KayitSayisi() == 0;
  };
  d.db.DbKapat();
  EXPECT_TRUE(kapaliMi(rs) && kapaliMi(sorgu));
  Imlec yeni;
  EXPECT_FALSE(d.db.TabloAc(yeni, "sicil"));
  EXPECT_EQ(d.db.SonHata(), "Veritabanı açık değil");
  ASSERT_TRUE(d.db.DbAc(d.yol));
  EXPECT_TRUE(kapaliMi(rs) && kapaliMi(sorgu));
  EXPECT_TRUE(d.db.TabloAc(rs, "sicil") && Bul(rs, "1"));
}

}  // namespace
}  // namespace belvani
