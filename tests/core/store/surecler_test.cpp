// Several processes at one store: they wait for each other, lose nothing, and a killed one leaves the store whole.
#include <gtest/gtest.h>
#include <thread>

#include "core/store/ornekdepo.h"
#include "surec.h"

namespace belvani {
namespace {

using test::Ekle;
using test::Kapi;
using test::OrnekDepo;
using test::Surec;
using test::TabloImleci;
using I = std::int64_t;
using std::chrono::milliseconds;

struct KapaliDepo : OrnekDepo {
  KapaliDepo() {
    TabloImleci firma(db, "firma");
    if (!Ekle(firma, {{"iskodu", I(0)}, {"unvan", std::string("Eski")}})) throw std::runtime_error(db.SonHata());
    firma.RsKapat();
    db.DbKapat();
  }
};

int CariSayisi(Veritabani& db) {
  return int(KayitlariOku<Cari>(db.IcMotor()).size());
}

bool FirmaYaz(Imlec& firma, std::string_view alan, const Deger& deger) {
  firma.KayitDuzelt();
  firma.AlanYaz(alan, deger);
  return firma.KayitYaz();
}

// Rows one by one, and a counter that only a transaction can raise without loss.
int YazanSurec(const std::string& yol, int kez) {
  for (int i = 0; i < kez; ++i) {
    Veritabani db;
    if (!db.DbAc(yol)) return 1;
    TabloImleci cari(db, "cari"), firma(db, "firma");
    if (!Ekle(cari, {{"kod", I(i)}})) return 2;
    Islem islem(db.IcMotor());
    if (!firma.IlkKayit() || !FirmaYaz(firma, "iskodu", firma.TamOku("iskodu") + 1)) return 3;
    islem.Onayla();
  }
  return 0;
}

// The first to open it has to rebuild the indexes, too.
TEST(Surecler, NoRowIsLostAmongWriters) {
  constexpr int Surecler = 4, Kez = 20;
  KapaliDepo d;
  ASSERT_TRUE(d.db.DbAc(d.yol));
  if (!test::SunucudaMi()) d.db.IcMotor().Calistir("pragma user_version=7");
  d.db.DbKapat();
  std::vector<Surec> surecler;
  for (int no = 0; no < Surecler; ++no) surecler.emplace_back([&] { return YazanSurec(d.yol, Kez); });
  for (auto& s : surecler) EXPECT_EQ(s.Bekle(), 0);
  ASSERT_TRUE(d.db.DbAc(d.yol));
  EXPECT_EQ(CariSayisi(d.db), Surecler * Kez);
  EXPECT_EQ(KayitlariOku<Firma>(d.db.IcMotor()).at(0).iskodu, Surecler * Kez);
  EXPECT_EQ(d.db.IcMotor().ButunlukKusuru(), "");
}

TEST(Surecler, ReaderSeesTheOldUntilTheWriterApproves) {
  KapaliDepo d;
  const Kapi yazdi, onayla;
  Surec yazar([&] {
    Veritabani db;
    if (!db.DbAc(d.yol)) return 1;
    TabloImleci firma(db, "firma");
    Islem islem(db.IcMotor());
    if (!FirmaYaz(firma, "unvan", std::string("Yeni"))) return 2;
    yazdi.Ac();
    onayla.Bekle();
    std::this_thread::sleep_for(milliseconds(400));
    islem.Onayla();
    return 0;
  });
  yazdi.Bekle();
  ASSERT_TRUE(d.db.DbAc(d.yol)) << d.db.SonHata();
  TabloImleci firma(d.db, "firma"), cari(d.db, "cari");
  EXPECT_EQ(firma.MetinOku("unvan"), "Eski");
  try {
    const Islem islem(d.db.IcMotor(), milliseconds(50));
    (void)CariSayisi(d.db);  // a server is asked for the lock with the first request
    ADD_FAILURE() << "two writers at once";
  } catch (const MotorHatasi& h) {
    EXPECT_EQ(h.tur, MotorKusuru::Kilitli);
    EXPECT_TRUE(std::string(h.what()).starts_with("Veritabanı başka bir kullanıcı tarafından kilitli, ")) << h.what();
  }
  onayla.Ac();
  EXPECT_TRUE(Ekle(cari, {{"kod", std::string("1")}})) << d.db.SonHata();  // after a wait for the writer
  EXPECT_EQ(yazar.Bekle(), 0);
  EXPECT_TRUE(firma.IlkKayit());
  EXPECT_EQ(firma.MetinOku("unvan"), "Yeni");
}

TEST(Surecler, KilledWriterLeavesWholeTransactions) {
  constexpr int Parti = 40;
  KapaliDepo d;
  int onceki = 0;
  for (int kez = 0; kez < 8; ++kez) {
    const Kapi basladi;
    Surec yazar([&] {
      Veritabani db;
      if (!db.DbAc(d.yol)) return 1;
      TabloImleci cari(db, "cari");
      for (basladi.Ac();;) {
        Islem islem(db.IcMotor());
        for (int i = 0; i < Parti; ++i) Ekle(cari, {{"kod", I(i)}});
        islem.Onayla();
      }
    });
    basladi.Bekle();
    std::this_thread::sleep_for(milliseconds(3 + 7 * kez));
    yazar.Oldur();
    ASSERT_TRUE(d.db.DbAc(d.yol)) << d.db.SonHata();
    EXPECT_EQ(d.db.IcMotor().ButunlukKusuru(), "");
    const int sayi = CariSayisi(d.db);
    EXPECT_TRUE(sayi % Parti == 0 && sayi >= onceki) << sayi;
    onceki = sayi;
    EXPECT_NO_THROW(Islem(d.db.IcMotor(), milliseconds(0)).Onayla());  // no lock is left
    d.db.DbKapat();
  }
  EXPECT_GT(onceki, 0);
}

}  // namespace
}  // namespace belvani
