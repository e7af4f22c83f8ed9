// Companies that several computers open, and archives.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>

#include "calistir.h"
#include "core/store/motor.h"

namespace belvani {
namespace {

using test::Cikti;
using test::CliKomutu;
using testing::HasSubstr;

DepoYeri Yeri(const CliKomutu& komut, const std::string& ad) {
  return MotorAc(komut.dizin.Yol() + "veri/" + ad + "/tolu.dat")->Yeri();
}

TEST(Paylas, OpensAStoreToOtherComputers) {
  const CliKomutu komut;
  const std::string ortam = "BELVANI_BAGLAMALAR=" + komut.dizin.Yol() + "baglamalar";
  komut.Yaz("baglamalar", "22 1 0:9 / / rw - cifs //sunucu/veri rw\n");
  for (const char* ad : {"bir", "iki"}) ASSERT_EQ(komut(std::string("sirket-ac ") + ad + " --kullanici a").durum, 0);
  EXPECT_EQ(Yeri(komut, "BİR"), DepoYeri::BuBilgisayar);
  const std::string liste = komut("sirketler").cikti;

  const Cikti red = komut("bordro-sil bir --yil 2009 --ay 7", "", ortam);
  EXPECT_EQ(red.durum, 1);
  EXPECT_THAT(red.mesaj, HasSubstr("belvani-cli paylas KOD"));
  EXPECT_EQ(komut("paylas bir", "", ortam).cikti, "Paylaşılan: BİR\n");
  EXPECT_EQ(Yeri(komut, "BİR"), DepoYeri::Paylasilan);
  EXPECT_EQ(Yeri(komut, "İKİ"), DepoYeri::BuBilgisayar);
  EXPECT_EQ(komut("denetle bir", "", ortam).durum, 0);
  EXPECT_THAT(komut("paylas bir --yerel", "", ortam).mesaj, HasSubstr("yalnız bu bilgisayar için kurulamaz"));

  EXPECT_EQ(komut("paylas --hepsi").cikti, "Paylaşılan: BİR\nPaylaşılan: İKİ\n");
  ASSERT_EQ(komut("sirket-ac uc --kullanici a").durum, 0);
  EXPECT_EQ(Yeri(komut, "UC"), DepoYeri::Paylasilan) << "companies to come, too";
  EXPECT_EQ(komut("paylas uc --yerel").cikti, "Bu bilgisayar: UC\n");
  EXPECT_EQ(Yeri(komut, "UC"), DepoYeri::BuBilgisayar);
  EXPECT_THAT(komut("sirketler").cikti, HasSubstr(liste));
  EXPECT_THAT(komut("paylas yok").mesaj, HasSubstr("Şirket Bulunamadı: YOK"));
  for (const char* yanlis : {"paylas", "paylas bir --hepsi"}) EXPECT_EQ(komut(yanlis).durum, 2) << yanlis;
}

}  // namespace
}  // namespace belvani
