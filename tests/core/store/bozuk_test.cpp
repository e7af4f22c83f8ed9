// Damaged store files: data or a refusal in words, never a crash and never a run without end.
#include <gtest/gtest.h>
#include <rapidcheck.h>

#include "core/dosya.h"
#include "core/store/ornekdepo.h"

namespace belvani {
namespace {

using test::Ekle;
using test::GeciciDizin;

constexpr int Satir = 400;

// The bytes of a store with rows in tables, indexes and overflow pages.
const std::string& SaglamDepo() {
  static const std::string icerik = [] {
    test::OrnekDepo d;
    {
      Islem islem(d.db.IcMotor());
      test::TabloImleci sicil(d.db, "sicil"), cari(d.db, "cari"), foto(d.db, "foto");
      for (int i = 0; i < Satir; ++i) {
        const std::string kod = std::to_string(i * 37 % Satir);
        Ekle(sicil,
             {{"kod", kod}, {"adi", "Şükrü " + kod}, {"ucret", 100.5 + i}, {"girtar", Tarih(2008, 1, 1 + i % 28)}});
        Ekle(cari, {{"kod", std::to_string(i % 9)}, {"tutar", double(i)}});
      }
      Ekle(foto, {{"kod", std::string("1")}, {"resim", Baytlar(30'000, 7)}});
      islem.Onayla();
    }
    d.db.DbKapat();
    return DosyaOku(d.yol).value();
  }();
  return icerik;
}

// Moves until there is no more; false when that never comes.
bool Biter(Imlec& rs, bool (Imlec::*git)()) {
  for (int i = 0; i < 50 * Satir; ++i)
    if (!(rs.*git)()) return true;
  return false;
}

void Dolas(Veritabani& db, std::string_view tablo, const std::vector<std::string>& indeksler) {
  Imlec rs;
  if (!db.TabloAc(rs, tablo)) {
    RC_ASSERT(!rs.AcikMi() && !db.SonHata().empty());
    return;
  }
  for (const auto& indeks : indeksler) {
    rs.IndeksSec(indeks);
    rs.IlkKayit();
    RC_ASSERT(Biter(rs, &Imlec::SonrakiKayit) && rs.SonMu());
    rs.SonKayit();
    RC_ASSERT(Biter(rs, &Imlec::OncekiKayit) && rs.BasMi());
    if (rs.KayitBul(indeks, std::string("17")) || rs.Konuma(Satir / 2))
      for (const auto& alan : TabloBul(tablo)->alanlar) (void)rs.AlanOku(alan.ad);
  }
  rs.KayitDuzelt();
  rs.AlanYaz("kod", std::string("değişti"));
  (void)rs.KayitYaz();
  (void)Ekle(rs, {{"kod", std::string("yeni")}});
  if (rs.KayitBul("kod", std::string("3"))) rs.KayitSil();
}

void Kullan(const std::string& yol) {
  Veritabani db;
  if (!db.DbAc(yol)) {
    RC_ASSERT(!db.AcikMi());
    RC_ASSERT(db.SonHata().starts_with("Dosya bozuk") || db.SonHata().starts_with("Veritaban"));
    return;
  }
  Dolas(db, "sicil", {"", "kod"});
  Dolas(db, "cari", {"", "kod", "oto"});
  Dolas(db, "foto", {"", "kod"});
  Imlec s;
  (void)db.SqlAc(s, "select s.kod, sum(c.tutar) from sicil s join cari c on c.kod = s.kod group by s.kod order by 1");
  (void)db.AlanEkle("sicil", {"yenialan", AlanTipi::Metin, 9, AlanNiteligi::Serbest});
  (void)db.Koru(std::size_t(0), [&] { return KayitlariOku<Sicil>(db.IcMotor()).size(); });
  (void)db.Koru(std::size_t(0), [&] { return KayitlariOku<Foto>(db.IcMotor()).size(); });
  (void)db.Koru(std::string(), [&] { return db.IcMotor().ButunlukKusuru(); });
}

void YazVeKullan(const std::string& icerik, const std::string& wal = {}) {
  static const GeciciDizin d;
  const std::string yol = d.Yol() + "tolu.dat";
  MotorDosyasiniSil(yol);
  RC_ASSERT(bool(DosyaYaz(yol, icerik)));
  if (!wal.empty()) RC_ASSERT(DosyaYaz(yol + "-wal", wal) && DosyaYaz(yol + "-shm", wal));
  Kullan(yol);
}

// Overwrites gather where it hurts: the file header, the heads of pages, the text of the schema.
std::string Boz(std::string icerik) {
  for (int yara = *rc::gen::inRange(1, 12); yara > 0; --yara) {
    const std::size_t sayfa = 4096 * *rc::gen::inRange<std::size_t>(0, icerik.size() / 4096);
    const std::size_t yer =
        sayfa + *rc::gen::oneOf(rc::gen::inRange<std::size_t>(0, 120), rc::gen::inRange<std::size_t>(0, 4096));
    const auto baytlar =
        *rc::gen::oneOf(rc::gen::container<std::string>(rc::gen::arbitrary<char>()),
                        rc::gen::map(rc::gen::inRange(1, 600), [](int n) { return std::string(n, '\0'); }));
    icerik.replace(std::min(yer, icerik.size()), std::min(baytlar.size(), icerik.size() - yer), baytlar);
  }
  return icerik;
}

constexpr const char* DosyaninBaytlari = "the bytes of its file";

TEST(BozukDepo, BytesOverwritten) {
  YALNIZ_DIZINDE(DosyaninBaytlari);
  EXPECT_TRUE(rc::check([] {
    for (int i = 0; i < 4; ++i) YazVeKullan(Boz(SaglamDepo()));
  }));
}

TEST(BozukDepo, CutAnywhere) {
  YALNIZ_DIZINDE(DosyaninBaytlari);
  EXPECT_TRUE(
      rc::check([] { YazVeKullan(SaglamDepo().substr(0, *rc::gen::inRange<std::size_t>(0, SaglamDepo().size()))); }));
}

TEST(BozukDepo, NoStoreAtAll) {
  YALNIZ_DIZINDE(DosyaninBaytlari);
  EXPECT_TRUE(rc::check([](const std::string& cop) {
    YazVeKullan(cop);
    YazVeKullan("SQLite format 3" + std::string(1, '\0') + cop);
  }));
}

TEST(BozukDepo, GarbageBesideAGoodStore) {
  YALNIZ_DIZINDE(DosyaninBaytlari);
  EXPECT_TRUE(rc::check([](const std::string& cop) {
    const std::string wal = *rc::gen::oneOf(rc::gen::just(cop + "x"), rc::gen::just("\x37\x7f\x06\x82" + cop),
                                            rc::gen::just(std::string(8192, '\xFF') + cop));
    YazVeKullan(SaglamDepo(), wal);
  }));
}

// A key changed in the index, so that its order is broken: a run could turn back there and never end.
TEST(BozukDepo, IndexThatLeadsBackEndsTheRun) {
  YALNIZ_DIZINDE(DosyaninBaytlari);
  const GeciciDizin d;
  const std::string yol = d.Yol() + "tolu.dat";
  int geriDonen = 0;
  for (int kod = 100; kod < Satir; ++kod) {
    std::string icerik = SaglamDepo();
    const std::string anahtar = std::to_string(kod);
    for (std::size_t yer = 0; (yer = icerik.find(anahtar, yer)) != std::string::npos; yer += 3)
      if (icerik.compare(yer + 3, 2, "Ş") != 0 && icerik[yer - 1] != ' ') icerik[yer] = '0';
    Veritabani db;
    ASSERT_TRUE(DosyaYaz(yol, icerik) && db.DbAc(yol));
    test::TabloImleci rs(db, "sicil");
    EXPECT_TRUE(rs.IndeksSec("kod") && Biter(rs, &Imlec::SonrakiKayit) && rs.SonMu()) << kod;
    if (db.SonHata().empty()) continue;
    ++geriDonen;
    EXPECT_EQ(db.SonHata(), "Veritabanının indeksi bozuk: sicil");
    EXPECT_TRUE(rs.BasMi());
    EXPECT_EQ(rs.AlanOku("kod"), Deger(std::int64_t(1)));
    EXPECT_TRUE(rs.IlkKayit());
  }
  EXPECT_GT(geriDonen, 0);
}

}  // namespace
}  // namespace belvani
