// The monthly declaration on the command line.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "calistir.h"

namespace belvani {
namespace {

using test::CliKomutu;
using testing::HasSubstr;
using testing::StartsWith;

// Two people in July 2009, the second without a national number.
struct BildirgeSirketi : CliKomutu {
  BildirgeSirketi() {
    Tamam("sirket-ac deneme --kullanici a --yil 2009 --ay 7");
    Tamam("parametre-kur --donem 2009-07");
    Yaz("f.csv",
        "unvan;adr1;sektor;meslek;sube;dosya;il;ilce;kontrol;kanun\n"
        "Şık Örgü;Ümraniye;2;1721;0101;1034567;34;12;07;05510\n");
    Tamam("tanim-al deneme firma @f.csv");
    Yaz("p.csv",
        "kod;adi;soyadi;ucret;girtar;tcno;sskno;kanun\n"
        "001;Işıl;Çağlar;1000;01.01.2009;10000000146;3401;05510\n"
        "002;Gökçe;Şahin;2,500.50;01.07.2009;;3402;00000\n");
    Tamam("personel-al deneme @p.csv");
    Tamam("hazirla deneme --yil 2009 --ay 7");
  }
  std::string Tamam(const std::string& degerler) const {
    const test::Cikti c = (*this)(degerler);
    EXPECT_EQ(c.durum, 0) << degerler << ": " << c.mesaj;
    return c.cikti;
  }
};

TEST(Bildirge, CalculationAndFile) {
  const BildirgeSirketi s;
  const std::string komut = "bildirge deneme --yil 2009 --ay 7";
  const auto json = s(komut).Json();
  ASSERT_EQ(json["satirlar"].size(), 2u);
  EXPECT_EQ(json["satirlar"][0]["primkazanc"], "2500.50");
  EXPECT_EQ(json["satirlar"][0]["girtar"], "01.07.2009");
  EXPECT_EQ(json["toplamlar"]["gun"], 60);
  EXPECT_EQ(json["branslar"]["saglik"]["matrah"], "3500.50");
  EXPECT_EQ(s(komut + " --belge 1 --kanun 5510").Json()["satirlar"].size(), 1u);

  const auto reddedilen = s(komut + " --bicim xml -o @b.xml");
  EXPECT_EQ(reddedilen.durum, 1);
  EXPECT_THAT(reddedilen.mesaj, HasSubstr("Gökçe Şahin\nBu Haliyle Kabul Edilsin mi ? (hayır)"));
  EXPECT_EQ(s.Oku("b.xml"), "");
  const auto yazilan = s(komut + " --bicim xml -o @b.xml --evet --mahiyet I");
  EXPECT_EQ(yazilan.durum, 0);
  EXPECT_THAT(yazilan.mesaj, HasSubstr("(evet)\nXML Dosya Hazırlandı\n"));
  EXPECT_THAT(s.Oku("b.xml"), StartsWith("<?xml version=\"1.0\" encoding=\"iSO-8859-9\" ?>\r\n"));
  EXPECT_THAT(s.Oku("b.xml"), HasSubstr("BELGEMAHIYET=\"I\" />\r\n"));
  EXPECT_EQ(s.Tamam(komut + " --bicim xml --evet --mahiyet I"), s.Oku("b.xml"));

  const struct {
    const char* ek;
    int durum;
    const char* mesaj;
  } hatalar[] = {
      {" --belge 99", 1, "99 belge türü yok, tanımlı olanlar:\n  01-"},
      {" --kanun 6111", 1, "6111 kanununa bağlı kişi yok, kişilerin kanunları:\n  00000\n  05510\n"},
      {" --bicim xml --belge 01", 1, "Bildirgeyi  Tüm Sigorta Kolları İçin Hesaplatın"},
      {" --bicim csv", 2, "csv olamaz"},
      {" --mahiyet X", 2, "X olamaz"},
  };
  for (const auto& h : hatalar) {
    const auto c = s(komut + h.ek);
    EXPECT_EQ(c.durum, h.durum) << h.ek;
    EXPECT_THAT(c.mesaj, HasSubstr(h.mesaj));
  }
  EXPECT_THAT(s("bildirge deneme --yil 2009 --ay 6 --bicim xml").mesaj, HasSubstr("Bildirge Hesaplatılmamış\n"));
}

TEST(Bildirge, PaperAndSpreadsheet) {
  const BildirgeSirketi s;
  const std::string ay = "bildirge deneme --yil 2009 --ay 7";
  const struct {
    std::string komut;
    int durum;
    const char* mesaj;
    const char* basi;  // of the file
  } ornekler[] = {
      {ay + " --bicim pdf", 2, "pdf ekrana yazılmaz", ""},
      {ay + " --bicim pdf -o @c", 1, "Bildirge Yazılımında Tümünü Birden Alamazsınız\nSigorta Kollarına Göre Alınız",
       ""},
      {ay + " --belge 1 --bicim xlsx -o @c", 1, "kanunların Tümünü Birden Alamazsınız", ""},
      {ay + " --belge 1 --kanun 00000 --bicim pdf -o @c", 1, "Bu Haliyle Kabul Edilsin mi ? (hayır)", ""},
      {"bildirge deneme --yil 2009 --ay 6 --bicim pdf -o @c", 1, "Boş Bildirge Basılsın mı ? (hayır)", ""},
      {"bildirge deneme --yil 2009 --ay 6 --bicim pdf -o @c --evet", 0, "(evet)", "%PDF"},
      {ay + " --belge 1 --kanun 5510 --bicim pdf -o @c", 0, "", "%PDF"},
      {ay + " --belge 1 --kanun 5510 --bicim xlsx -o @c", 0, "", "PK"},
      {ay + " --belge 1 --kanun 5510 --bicim metin -o @c", 0, "Matbu Evraka Basım Yapılabilir", "\n"},
  };
  for (const auto& o : ornekler) {
    s.Yaz("c", "");
    const auto c = s(o.komut);
    EXPECT_EQ(c.durum, o.durum) << o.komut << c.mesaj;
    EXPECT_THAT(c.mesaj, HasSubstr(o.mesaj)) << o.komut;
    EXPECT_THAT(s.Oku("c"), StartsWith(o.basi)) << o.komut;
    EXPECT_EQ(s.Oku("c").empty(), o.durum != 0) << o.komut;
  }
  EXPECT_THAT(s.Oku("c"), HasSubstr("Çağlar"));
}

}  // namespace
}  // namespace belvani
