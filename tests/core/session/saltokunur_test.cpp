// Companies that cannot be written, and looks that change nothing.
#include <fcntl.h>
#include <map>
#include <sys/stat.h>

#include "core/dosya.h"
#include "core/session/firmabilgi.h"
#include "core/session/ornekoturum.h"
#include "core/session/sirketlistesi.h"
#include "core/session/yukseltme.h"
#include "core/store/tablo.h"
#include "surec.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

// Root may write anything: as long as it lives, this process has another user's rights.
test::Sonunda BaskaKullanici() {
  constexpr uid_t kimse = 65534;
  const uid_t eski = ::geteuid();
  EXPECT_TRUE(eski != 0 || ::seteuid(kimse) == 0);
  return {[eski] { EXPECT_EQ(::seteuid(eski), 0); }};
}

struct SaltOkunurTest : test::OrnekOturum {
  std::string sirket = d.Yol() + "veri/DENEME/";
  std::string gecici = d.Yol() + "gecici/";
  test::Sonunda ortam = test::OrtamKoy("TMPDIR", gecici.c_str());

  SaltOkunurTest() {
    fs::create_directory(gecici);
    ::chmod(gecici.c_str(), 0777);
  }
  ~SaltOkunurTest() override { ::chmod(sirket.c_str(), 0770); }

  // A program is killed while its last change waits in the journal.
  void KesilenYazi(const std::string& sql) {
    SirketKapat(o);
    const test::Kapi yazdi;
    test::Surec yazan([&] {
      if (SirketAc(o, "deneme")) o.depo.db.IcMotor().Calistir(sql);
      yazdi.Ac();
      return ::pause();
    });
    yazdi.Bekle();
    yazan.Oldur();
  }
  void Yazilmaz() {
    for (const char* dizin : {"", "veri"}) ::chmod((d.Yol() + dizin).c_str(), 0755);
    for (const auto& dosya : fs::directory_iterator(sirket)) ::chmod(dosya.path().c_str(), 0444);
    ::chmod(sirket.c_str(), 0555);
  }
  // Names, bytes and times of the company's files.
  std::map<std::string, std::pair<std::string, fs::file_time_type>> Dosyalar() const {
    std::map<std::string, std::pair<std::string, fs::file_time_type>> hepsi;
    for (const auto& dosya : fs::directory_iterator(sirket))
      hepsi[dosya.path().filename()] = {DosyaOku(dosya.path()).value_or("-"), dosya.last_write_time()};
    return hepsi;
  }
};

constexpr const char* Kopyalanan = "a file that cannot be written is shown from a copy";

TEST_F(SaltOkunurTest, WhatCannotBeWrittenIsShown) {
  YALNIZ_DIZINDE(Kopyalanan);
  Kur();
  KesilenYazi("update firma set unvan = 'Arşiv', firmaay = 7, firmayil = 2009; drop table kaztan");
  ASSERT_TRUE(fs::file_size(sirket + "tolu.dat-wal") > 0);
  Yazilmaz();
  const auto once = Dosyalar();
  const auto kimse = BaskaKullanici();
  ASSERT_TRUE(SirketAc(o, "deneme"));
  EXPECT_TRUE(o.SaltOkunur);
  EXPECT_TRUE(fs::is_empty(gecici)) << "nothing is left of the copy, whatever becomes of the program";
  const auto acilan = OturumAc(o, "deneme", "Ayşe", "gizli'");
  ASSERT_TRUE(acilan && !acilan->empty());
  EXPECT_EQ(acilan->at(0).metin, SaltOkunurUyarisi);
  EXPECT_EQ(AnaPencereBasligi(o), "Arşiv (Temmuz.2009) (salt okunur)");
  EXPECT_TRUE(o.depo.kaztan.AcikMi()) << "the store of an earlier version, as it grows";
  EXPECT_EQ(SirketListesi(o.DataPath), (std::vector<SirketSatiri>{{"DENEME", "Arşiv", 2009, 7}}));

  Okunan<Firma> kart = FirmaDuzenle(o);
  kart.simdi.unvan = "Başka";
  EXPECT_FALSE(FirmaKaydet(o, kart));
  for (const char* sql : {"update firma set unvan = 'x'", "create table t (a)"}) {
    const auto yazilan = o.depo.db.Koru(false, [&] {
      o.depo.db.IcMotor().Calistir(sql);
      return true;
    });
    EXPECT_TRUE(!yazilan && o.depo.db.SonHata() == "Şirket salt okunur açıldı, değişiklikler kaydedilemez")
        << o.depo.db.SonHata();
  }
  EXPECT_THROW(Islem(o.depo.db.IcMotor()), MotorHatasi);
  AdimIsaretleri isaretli{};
  isaretli[6] = true;
  const auto yukseltme = AdimlariYurut(o, isaretli, Tutar());
  EXPECT_EQ(yukseltme.hal, GuncellemeSonucu::IsaretYok);
  ASSERT_EQ(yukseltme.sozler.size(), 1u);
  EXPECT_EQ(yukseltme.sozler[0].metin, SaltOkunurUyarisi);
  EXPECT_EQ(Tablo<Firma>(o.depo.db.IcMotor()).Bul()->unvan, "Arşiv");
  SirketKapat(o);
  EXPECT_TRUE(Dosyalar() == once && fs::is_empty(gecici));
}

TEST_F(SaltOkunurTest, ALookChangesNothing) {
  YALNIZ_DIZINDE(Kopyalanan);
  Kur();
  KesilenYazi("update firma set unvan = 'Yeni'; drop table kaztan");
  const auto once = Dosyalar();
  {
    Oturum bakan;
    bakan.DataPath = o.DataPath;
    ASSERT_TRUE(SirketAc(bakan, "deneme", SirketErisimi::YalnizBakis));
    EXPECT_TRUE(bakan.SaltOkunur && FirmaYukle(bakan));
    EXPECT_EQ(bakan.firma.unvan, "Yeni");
  }
  EXPECT_TRUE(Dosyalar() == once);
  EXPECT_TRUE(fs::is_empty(gecici));
  ASSERT_TRUE(SirketAc(o, "deneme"));
  EXPECT_FALSE(o.SaltOkunur);
  Sql("delete from firma");
}

// Nothing is said to be saved where there was nothing to change.
TEST_F(SaltOkunurTest, WhoLooksCannotBeginToWrite) {
  Kur();
  SirketKapat(o);
  ASSERT_TRUE(SirketAc(o, "deneme", SirketErisimi::YalnizBakis));
  const auto islem = o.depo.db.Koru(false, [&] {
    Islem(o.depo.db.IcMotor()).Onayla();
    return true;
  });
  EXPECT_FALSE(islem);
  EXPECT_EQ(o.depo.db.SonHata().find("Şirket salt okunur açıldı, değişiklikler kaydedilemez"), 0u)
      << o.depo.db.SonHata();
  EXPECT_EQ(o.depo.db.Koru(0, [&] { return int(Tablo<Firma>(o.depo.db.IcMotor()).KayitSayisi()); }), 1);
}

// A store that others write without a pause has no moment; one with pauses is caught in one.
TEST_F(SaltOkunurTest, ACopyIsOfOneMoment) {
  YALNIZ_DIZINDE(Kopyalanan);
  Kur();
  Sql("create table sayac (a integer, b text); insert into sayac values (0, ''), (0, '')");
  SirketKapat(o);
  test::Surec yazan([&] {
    if (!SirketAc(o, "deneme")) return 1;
    for (;; ::usleep(60'000))
      for (int i = 0; i < 5; ++i)
        o.depo.db.IcMotor().Calistir("update sayac set a = a + 1, b = hex(randomblob(20000))");
  });
  for (int kez = 0; kez < 5; ++kez) {
    Oturum bakan;
    bakan.DataPath = o.DataPath;
    const auto acildi = SirketAc(bakan, "deneme", SirketErisimi::YalnizBakis);
    ASSERT_TRUE(acildi) << acildi.KusurMetni();
    Motor& motor = bakan.depo.db.IcMotor();
    EXPECT_EQ(motor.ButunlukKusuru(), "");
    const auto komut = motor.Hazirla("select count(distinct a) from sayac");
    ASSERT_TRUE(komut->Adim());
    EXPECT_EQ(komut->Tam(0), 1);
  }
}

}  // namespace
}  // namespace belvani
