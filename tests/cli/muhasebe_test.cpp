// The books on the command line: stores made, lines brought in, voucher given, month posted.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::CliKomutu;
using testing::HasSubstr;
using testing::StartsWith;

struct MuhasebeKomutlari : testing::Test {
  CliKomutu k;

  std::string Tamam(const std::string& komut) {
    const auto c = k(komut);
    EXPECT_EQ(c.durum, 0) << komut << ": " << c.mesaj;
    return c.cikti;
  }
  std::string Kusur(const std::string& komut) {
    const auto c = k(komut);
    EXPECT_EQ(c.durum, 1) << komut << ": " << c.cikti;
    return c.mesaj;
  }
  void SetUp() override {
    Tamam("sirket-ac d --kullanici a --unvan 'Şık Örgü' --yil 2009 --ay 7");
    Tamam("parametre-kur --donem 2009-07");
    k.Yaz("p.csv", "kod;adi;soyadi;ucret;girtar;ozel\n1;Işıl;Çağ;1000;01.01.2009;A\n2;Ali;Ak;2000;01.01.2009;B\n");
    Tamam("personel-al d @p.csv");
    Tamam("hazirla d --yil 2009 --ay 7");
    k.Yaz("e.csv", "grup;no;yer;ba;hesap\nA;0;5;0;770.01\nA;1;5;1;335.01\nB;0;5;0;720.01\n");
    EXPECT_THAT(k("tanim-al d entpar @e.csv").mesaj, HasSubstr("hesap kodları denetlenmedi"));
  }
};

TEST_F(MuhasebeKomutlari, VoucherInItsForms) {
  const auto json = k("muhasebe-fisi d --bicim json").Json();
  const auto& satirlar = json["satirlar"];
  ASSERT_EQ(satirlar.size(), 3u);
  EXPECT_EQ(satirlar[0]["kod"], "770.01");
  EXPECT_EQ(satirlar[0]["ack"], "Temmuz 2009 Ücret Tahakkuku");
  EXPECT_EQ(satirlar[0]["ba"], "B");
  EXPECT_EQ(satirlar[1]["ba"], "A");
  EXPECT_EQ(satirlar[1]["tutar"], satirlar[0]["tutar"]);
  EXPECT_EQ(json["icmal"]["bakiye"], satirlar[2]["tutar"]);
  EXPECT_EQ(k("muhasebe-fisi d --grup a --bicim json").Json()["satirlar"].size(), 2u);
  EXPECT_THAT(Kusur("muhasebe-fisi d --grup C"), StartsWith("Bu grubun entegrasyon parametresi yok: C"));
  const auto journal = k("muhasebe-fisi d --bicim journal --tarih 15.08.2009");
  EXPECT_THAT(journal.cikti,
              StartsWith("; Şık Örgü - Temmuz 2009\n2009-08-15 Temmuz 2009 Ücret Tahakkuku\n    770.01"));
  EXPECT_THAT(journal.cikti, HasSubstr("\n    Denkleşmeyen"));
  EXPECT_THAT(journal.mesaj, HasSubstr("fark Denkleşmeyen satırına yazıldı"));
  Tamam("muhasebe-fisi d --bicim pdf -o @fis.pdf");
  EXPECT_THAT(k.Oku("fis.pdf"), StartsWith("%PDF"));
  const auto bos = k("muhasebe-fisi d --ay 6 --bicim csv");
  EXPECT_EQ(bos.cikti, "kod,ack,ba,tutar\r\n");
  EXPECT_THAT(bos.mesaj, HasSubstr("Entegre Edilecek Hesap Yok..."));
  EXPECT_EQ(k("muhasebe-fisi d --bicim pdf").durum, 2);
  EXPECT_EQ(k("muhasebe-fisi d --tarih 31.02.2009").durum, 2);
}

TEST_F(MuhasebeKomutlari, Posting) {
  EXPECT_THAT(Kusur("muhasebe-isle d"), StartsWith("Muhasebe Dosyaları Açılamıyor..\nMuhasebe Şirketi Bulunamadı..\n"));
  EXPECT_THAT(Tamam("muhasebe-ac @m"), StartsWith("Kuruldu: "));
  EXPECT_THAT(Kusur("muhasebe-ac @m"), StartsWith("Bu dizinde zaten var: "));
  k.Yaz("veri/D/genel.dat", "[firma]\r\nentegrasyon=../../m\r\n");
  EXPECT_EQ(Tamam("muhasebe-isle d"), "1\n");
  EXPECT_THAT(Kusur("muhasebe-isle d"),
              HasSubstr("Muhasebede bu ayın fişi var: Temmuz 2009 Ücret Tahakkuku, fiş no 1"));
  EXPECT_EQ(Tamam("muhasebe-isle d --fis 9 --evet --tarih 31.07.2009"), "9\n");
  EXPECT_EQ(Kusur("muhasebe-isle d --fis 9 --evet"), "Bu Fiş Kullanılmış Yeni Bir Fiş No Seçiniz\n");
  EXPECT_THAT(Tamam("muhasebe-isle d --evet --bicim metin"), HasSubstr("Fiş No : 10"));
  EXPECT_EQ(Kusur("muhasebe-isle d --ay 6"), "Entegre Edilecek Hesap Yok...\n");
  k.Yaz("e.csv", "grup;no;yer;ba;hesap\nA;0;5;0;999\n");
  EXPECT_THAT(Kusur("tanim-al d entpar @e.csv"), HasSubstr("999 Hesabı Muhasebede Bulunamadı.."));
}

TEST_F(MuhasebeKomutlari, Ledger) {
  Tamam("isletme-ac @i");
  EXPECT_THAT(Kusur("isletme-isle d"), StartsWith("İşletme Defteri Dosyası Açılamıyor.."));
  const std::string isle = "isletme-isle d --isletme @i --ucret-grup UCR ";
  EXPECT_THAT(Kusur(isle + "--ssk-grup yok"), HasSubstr("SSK Grubu Bulunamadı..\nÜcretler deftere yazıldı"));
  EXPECT_THAT(Kusur(isle + "--ssk-grup SSK"), HasSubstr("1 hareket var: Temmuz 2009 Ücret Tahakkuku"));
  EXPECT_THAT(Tamam(isle + "--ssk-grup SSK --evet"), StartsWith("İşletme defterine işlendi: UCR 3,000.00, SSK "));
}

}  // namespace
}  // namespace belvani
