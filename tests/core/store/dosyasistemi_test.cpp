// Where a store lies, and how it is laid out for that.
#include "core/store/dosyasistemi.h"

#include <gtest/gtest.h>

#include "core/dosya.h"
#include "core/ortam.h"
#include "core/sinamalar.h"
#include "core/store/ornekdepo.h"

namespace belvani {
namespace {

using test::Sinamalar;

TEST(DosyaSistemi, TheDeepestMountHolds) {
  const std::string tablo =
      "22 1 8:1 / / rw,relatime shared:1 - ext4 /dev/sda1 rw\n"
      "30 22 0:40 / /srv/veri rw,relatime shared:5 master:2 - cifs //sunucu/veri rw\n"
      "31 30 0:41 / /srv/veri/yerel rw - tmpfs tmpfs rw\n"
      "32 22 0:42 / /mnt/iki\\040ayr\\134i rw - fuse.sshfs a@b:/ rw\n"
      "33 22 0:43 / /mnt/ust rw - ext4 /dev/sdb1 rw\n"
      "34 22 0:44 / /mnt/ust rw - nfs4 sunucu:/ rw\n"
      "bozuk satır\n";
  for (const auto& [yol, tur] : Sinamalar<const char*, const char*>{{"/home/a/tolu.dat", "ext4"},
                                                                    {"/srv/veri", "cifs"},
                                                                    {"/srv/veri/ŞİLE/tolu.dat", "cifs"},
                                                                    {"/srv/veriler/tolu.dat", "ext4"},
                                                                    {"/srv/veri/yerel/tolu.dat", "tmpfs"},
                                                                    {"/mnt/iki ayr\\i/x", "fuse.sshfs"},
                                                                    {"/mnt/ust/x", "nfs4"}})
    EXPECT_EQ(DosyaSistemiTuru(tablo, yol), tur) << yol;
  EXPECT_EQ(DosyaSistemiTuru("", "/x"), "");
  for (const char* tur : {"nfs4", "smb3", "9p", "ceph", "fuse.sshfs", "fuse.rclone", "vboxsf", "virtiofs"})
    EXPECT_TRUE(PaylasilanTur(tur)) << tur;
  for (const char* tur : {"", "ext4", "overlay", "tmpfs", "fuseblk", "fuse.gocryptfs"})
    EXPECT_FALSE(PaylasilanTur(tur)) << tur;
}

// Everything lies on a share from here on.
test::Sonunda Paylasilan(const test::GeciciDizin& d) {
  EXPECT_TRUE(DosyaYaz(d.Yol() + "baglamalar", "22 1 0:9 / / rw - cifs //sunucu/veri rw\n"));
  return test::OrtamKoy("BELVANI_BAGLAMALAR", (d.Yol() + "baglamalar").c_str());
}

TEST(DepoYeri, NoOpeningChangesIt) {
  YALNIZ_DIZINDE("layouts of a file");
  test::OrnekDepo d;
  EXPECT_EQ(d.db.IcMotor().Yeri(), DepoYeri::BuBilgisayar);
  d.db.DbKapat();
  MotorAc(d.yol, AcilisKipi::Tek)->YerKoy(DepoYeri::Paylasilan);
  for (int kez = 0; kez < 2; ++kez) {
    const auto motor = MotorAc(d.yol);
    motor->Calistir("insert into cari (kod) values ('1')");
    EXPECT_EQ(motor->Yeri(), DepoYeri::Paylasilan);
    EXPECT_FALSE(std::filesystem::exists(d.yol + "-wal"));
  }
  MotorAc(d.yol, AcilisKipi::Tek)->YerKoy(DepoYeri::BuBilgisayar);
  EXPECT_EQ(MotorAc(d.yol)->Yeri(), DepoYeri::BuBilgisayar);
}

TEST(DepoYeri, OfOneComputerIsNotOpenedFromAShare) {
  YALNIZ_DIZINDE("layouts of a file");
  test::OrnekDepo d;
  const test::GeciciDizin tablo;
  d.db.DbKapat();
  const auto paylasim = Paylasilan(tablo);
  ASSERT_FALSE(d.db.DbAc(d.yol));
  EXPECT_NE(d.db.SonHata().find("belvani-cli paylas KOD"), std::string::npos) << d.db.SonHata();
  MotorAc(d.yol, AcilisKipi::Tek)->YerKoy(DepoYeri::Paylasilan);
  EXPECT_TRUE(d.db.DbAc(d.yol)) << d.db.SonHata();
  ASSERT_TRUE(d.db.DbYarat(d.sirket + "yeni.dat"));
  EXPECT_EQ(d.db.IcMotor().Yeri(), DepoYeri::Paylasilan);
}

// Also by who has it open without doing anything: of a store for one computer the engine knows.
TEST(DepoYeri, AloneMeansAlone) {
  test::OrnekDepo d;
  const auto kilitli = [&](AcilisKipi kip) {
    try {
      MotorAc(d.yol, kip);
      return false;
    } catch (const MotorHatasi& h) {
      return h.tur == MotorKusuru::Kilitli;
    }
  };
  EXPECT_TRUE(kilitli(AcilisKipi::Tek));
  d.db.DbKapat();
  for (const DepoYeri yer : {DepoYeri::Paylasilan, DepoYeri::BuBilgisayar}) {
    const auto tek = MotorAc(d.yol, AcilisKipi::Tek);
    if (!test::SunucudaMi()) tek->YerKoy(yer);
    EXPECT_TRUE(kilitli(AcilisKipi::Tek));
  }
  EXPECT_NO_THROW(MotorAc(d.yol, AcilisKipi::Tek));
}

}  // namespace
}  // namespace belvani
