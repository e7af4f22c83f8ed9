// The checks before the declaration leaves the program, and the bytes of the electronic one.
#include <filesystem>
#include <pugixml.hpp>
#include <rapidcheck.h>

#include "core/dosya.h"
#include "core/sayi.h"
#include "core/turkce.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::BildirgeSirketi;
using test::Iletiler;
using test::Satir;
using test::Sigortali;
using testing::ElementsAre;
using testing::HasSubstr;

// One row and an employer without fault.
struct Dogru {
  Bildirge b;
  IsyeriBilgileri isyeri;

  Dogru() {
    b.secim = {.yil = 2009, .ay = 2};
    b.satirlar = {
        Satir("sigkol=01|sskno=34|tcno=10000000146|adi=Işıl|soyadi=Çağ|primkazanc=1250.50|ikramiye=0|"
              "gun=30|ui=0|uiucret=0|kanun=0")};
    isyeri = {"217210101103456703412", "07", "000", "Şık Örgü", "Ümraniye", "", "05510"};
  }
  BildirgeSatiri& Ilk() { return b.satirlar.front(); }
  Kusurlar Kontrol() const { return BildirgeKontrol(b, isyeri); }
  BildirgeDosyasi Xml() const { return BildirgeXml(b, isyeri, Yuvarlayici(2)); }
};

TEST(BildirgeKontrol, TheFirstFaultIsTold) {
  const std::string kisi = "\nIşıl Çağ";
  const struct {
    std::string ileti;  // "" when the check passes
    void (*boz)(Dogru&);
  } ornekler[] = {
      {"E-Bildirge İçin Hesaplatılmamış yada Giriş Yapılmamış",
       [](Dogru& d) { d.b.satirlar.clear(), d.b.secim.yil = 1; }},
      {"Bordro Yılı Hatalı", [](Dogru& d) { d.b.secim.yil = 2002, d.isyeri.IsyeriAdres = ""; }},
      {"Hatalı İşyeri Adresi", [](Dogru& d) { d.isyeri.IsyeriAdres = d.isyeri.IsyeriUnvan = ""; }},
      {"Hatalı İşyeri Ünvanı", [](Dogru& d) { d.isyeri.IsyeriUnvan = d.isyeri.KontrolNo = ""; }},
      {"İşyeri Ünvanı 50 Harften Fazla olamaz.", [](Dogru& d) { d.isyeri.IsyeriUnvan = std::string(51, 'a'); }},
      {"", [](Dogru& d) { d.isyeri.IsyeriUnvan = "Ş" + std::string(49, 'a'); }},
      {"Hatalı İşyeri Kontrol Kodu..  01 ile 99 arası olmalı",
       [](Dogru& d) { d.isyeri.KontrolNo = "00", d.isyeri.IsyeriSicil = ""; }},
      {"Hatalı İşyeri Kontrol Kodu..  01 ile 99 arası olmalı", [](Dogru& d) { d.isyeri.KontrolNo = "100"; }},
      {"", [](Dogru& d) { d.isyeri.KontrolNo = "99"; }},
      {"İşyeri Sicil Bilgisi 21 Karakter Olmalıdır",
       [](Dogru& d) { d.isyeri.IsyeriSicil.pop_back(), d.Ilk().sigkol = 0; }},
      {"Sigorta Kolu Bilgisi Hatalı 01 ile 41 Arası olmalıdır" + kisi,
       [](Dogru& d) { d.Ilk().sigkol = 93, d.Ilk().sskno = ""; }},
      {"SSK Sicil No Hatalı veya Yok" + kisi, [](Dogru& d) { d.Ilk().sskno = "34-1", d.Ilk().tcno = ""; }},
      {"SSK Sicil No Hatalı veya Yok" + kisi, [](Dogru& d) { d.Ilk().sskno = "12345678901234"; }},
      {"T.C. Kimlik No 11 Rakamdan Oluşmalıdır" + kisi,
       [](Dogru& d) { d.Ilk().tcno = "1000000014", d.Ilk().adi = "Işıl"; }},
      {"", [](Dogru& d) { d.Ilk().tcno = "", d.Ilk().sigkol = 10; }},
      {"", [](Dogru& d) { d.Ilk().tcno = "", d.Ilk().sigkol = 15; }},
      {"Sigortalı İsmi Yok", [](Dogru& d) { d.Ilk().adi = d.Ilk().soyadi = ""; }},
      {"Sigortalı Soyismi Yok", [](Dogru& d) { d.Ilk().soyadi = "", d.Ilk().adi = std::string(19, 'a'); }},
      {"Sigortalı İsmi En Fazla 18 Harf Olmalı", [](Dogru& d) { d.Ilk().adi = "İ" + std::string(18, 'a'); }},
      {"Sigortalı Soyismi En Fazla 18 Harf Olmalı",
       [](Dogru& d) { d.Ilk().soyadi = std::string(19, 'a'), d.Ilk().primkazanc.reset(); }},
      {"", [](Dogru& d) { d.Ilk().adi = d.Ilk().soyadi = "Ş" + std::string(17, 'a'); }},
      {"Kazanç Hanesinde Tutar Olmalı" + kisi, [](Dogru& d) { d.Ilk().primkazanc = Tutar(); }},
      {"Kazanç Gün 1 il 30 gün arasında olmalı" + kisi, [](Dogru& d) { d.Ilk().gun = 0; }},
      {"Kazanç Gün 1 il 30 gün arasında olmalı" + kisi, [](Dogru& d) { d.Ilk().gun = 31; }},
      {"", [](Dogru& d) { d.Ilk().gun = 0, d.Ilk().primkazanc = Tutar(), d.Ilk().sigkol = 92; }},
      {"", [](Dogru& d) { d.Ilk().gun = 31, d.b.secim.belgeTuru = 1; }},
      {"İşten Çıkmış Personelin Çıkış Sebebi Yok" + kisi, [](Dogru& d) { d.Ilk().ciktar = Tarih(2009, 2, 14); }},
  };
  for (const auto& o : ornekler) {
    Dogru d;
    o.boz(d);
    const Kusurlar kusurlar = d.Kontrol();
    EXPECT_EQ(kusurlar.empty() ? "" : kusurlar.front().metin, o.ileti);
    if (kusurlar.empty()) continue;
    EXPECT_EQ(kusurlar.front().derece, o.ileti.starts_with("T.C.") ? Derece::Uyari : Derece::Hata) << o.ileti;
  }
}

// What may be let through does not hide the next fault of the same row, nor one row those of the others.
TEST(BildirgeKontrol, EachRowHasItsFault) {
  Dogru d;
  d.b.satirlar.resize(3, d.Ilk());
  d.b.satirlar[0].tcno = "";
  d.b.satirlar[0].adi = "";
  d.b.satirlar[2].kod = "007";
  d.b.satirlar[2].gun = 31;
  const Kusurlar kusurlar = d.Kontrol();
  ASSERT_EQ(kusurlar.size(), 3u);
  EXPECT_EQ(kusurlar[1].metin, "Sigortalı İsmi Yok");
  EXPECT_EQ(kusurlar[1].satir, 1);
  EXPECT_EQ(std::tuple(kusurlar[2].kod, kusurlar[2].satir, kusurlar[2].alan.ad), std::tuple("007", 3, "gun"));
}

TEST(BildirgeKontrol, FactsOfTheWorkplace) {
  Firma f;
  f.sektor = "2 ";
  f.sube = " 0101";
  f.dosya = "1034567";
  f.il = "6 ";
  f.adr1 = "Ümraniye " + std::string(50, 'x');
  f.adr2 = "y";
  const IsyeriBilgileri i = IsyeriniHazirla(f, "012");
  EXPECT_EQ(i.IsyeriSicil, "201011034567006");
  EXPECT_EQ(i.IsyeriAdres, "Ümraniye " + std::string(41, 'x'));
  EXPECT_EQ(IsyeriniHazirla({}, "").IsyeriAdres, "");
}

TEST(BildirgeXml, ByteForByte) {
  Dogru d;
  d.Ilk().ilksoyadi = "Öz ";
  d.b.satirlar.push_back(
      Satir("sigkol=01|sskno=35|adi=Abdurrahmangaziali  Can|soyadi=Gün|primkazanc=1,000.555|"
            "ikramiye=250|gun=12|girtar=01.02.2009|ciktar=13.02.2009|ui=2|uiucret=66.7|eksik=7|eksikgunsayisi= 16 |"
            "ciksebeb=4|meslekkod= 2411.03|rapcalismadi=1"));
  d.b.satirlar.push_back(Satir("sigkol=02|sskno=36|tcno=1|adi=A|soyadi=B|primkazanc=3000|gun=30|kanun=05510"));
  d.b.satirlar.push_back(d.b.satirlar[2]);
  d.b.satirlar[3].kanun = " 05084 ";
  d.b.secim.mahiyet = BelgeMahiyeti::Ek;
  const char* const beklenen =
      "<?xml version=\"1.0\" encoding=\"iSO-8859-9\" ?>\r\n"
      "<AYLIKBILDIRGELER>\r\n"
      "\t<ISYERI ISYERISICIL=\"217210101103456703412\" KONTROLNO=\"07\" ISYERIARACINO=\"000\" "
      "ISYERIUNVAN=\"\xDE\xFDk \xD6rg\xFC\" ISYERIADRES=\"\xDCmraniye\" />\r\n"
      "\t<BORDRO DONEMAY=\"02\" DONEMYIL=\"2009\" BELGEMAHIYET=\"E\" />\r\n"
      "\t<BILDIRGELER BELGETURU=\"01\" KANUN=\"05510\">\r\n"
      "\t\t<SIGORTALILAR>\r\n"
      "\t\t\t<SIGORTALI SIRA=\"1\" SIGORTALISICIL=\"34\" TCKNO=\"10000000146\" AD=\"I\xFE\xFDl\" "
      "SOYAD=\"\307a\xF0\" ILKSOYAD=\"\xD6z\" PEK=\"1250.5\" PRIM_IKRAMIYE=\"0\" GUN=\"30\" />\r\n"
      "\t\t\t<SIGORTALI SIRA=\"2\" SIGORTALISICIL=\"35\" AD=\"Abdurrahmangaziali\" SOYAD=\"G\xFCn\" PEK=\"1000.56\" "
      "PRIM_IKRAMIYE=\"250\" GUN=\"12\" GIRISGUN=\"0102\" CIKISGUN=\"1302\" UCRETLIIZINGUN=\"2\" UIPEK=\"66.7\" "
      "EKSIKGUNSAYISI=\"16\" EKSIKGUNNEDENI=\"7\" ISTENCIKISNEDENI=\"4\" MESLEKKOD=\"2411.03\" RAPCALISTI=\"2\" />\r\n"
      "\t\t</SIGORTALILAR>\r\n"
      "\t</BILDIRGELER>\r\n"
      "\t<BILDIRGELER BELGETURU=\"02\" KANUN=\"05510\">\r\n"
      "\t\t<SIGORTALILAR>\r\n"
      "\t\t\t<SIGORTALI SIRA=\"1\" SIGORTALISICIL=\"36\" TCKNO=\"1\" AD=\"A\" SOYAD=\"B\" PEK=\"3000\" "
      "PRIM_IKRAMIYE=\"0\" GUN=\"30\" />\r\n"
      "\t\t</SIGORTALILAR>\r\n"
      "\t</BILDIRGELER>\r\n"
      "\t<BILDIRGELER BELGETURU=\"02\" KANUN=\"05084\">\r\n"
      "\t\t<SIGORTALILAR>\r\n"
      "\t\t\t<SIGORTALI SIRA=\"1\" SIGORTALISICIL=\"36\" TCKNO=\"1\" AD=\"A\" SOYAD=\"B\" PEK=\"3000\" "
      "PRIM_IKRAMIYE=\"0\" GUN=\"30\" />\r\n"
      "\t\t</SIGORTALILAR>\r\n"
      "\t</BILDIRGELER>\r\n"
      "</AYLIKBILDIRGELER>\r\n";
  const BildirgeDosyasi dosya = d.Xml();
  EXPECT_EQ(dosya.icerik, beklenen);
  EXPECT_TRUE(dosya.sorunlar.empty());
  d.isyeri.IsyeriVergiNo = "123";
  EXPECT_THAT(d.Xml().icerik, HasSubstr("\xDCmraniye\" ISYERIVERGINO=\"123\" />\r\n"));
  EXPECT_EQ(XmlDosyaAdi({.yil = 2003, .ay = 11, .kanun = 2}), "Bordro2112003.xml");
}

TEST(BildirgeXml, ValuesThatCannotBeWrittenAreAsked) {
  Dogru d;
  d.isyeri.IsyeriUnvan = "Ali & Veli";
  d.Ilk().adi = "I\001ş\x7F\xC2\x85ıl\r\n";
  d.Ilk().soyadi = "Çağ \"\xE2\x82\xAC\"";
  const BildirgeDosyasi dosya = d.Xml();
  EXPECT_THAT(dosya.icerik, HasSubstr("ISYERIUNVAN=\"Ali & Veli\""));
  EXPECT_THAT(dosya.icerik, HasSubstr("AD=\"I\xFE\xFDl\" SOYAD=\"\307a\xF0 \"?\"\""));
  ASSERT_EQ(dosya.sorunlar.size(), 3u);
  EXPECT_THAT(dosya.sorunlar[0].metin, HasSubstr("İşyeri: ISYERIUNVAN"));
  EXPECT_THAT(dosya.sorunlar[2].metin, HasSubstr("SOYAD bilgisinde dosyaya yazılamayan harf"));
  EXPECT_EQ(std::tuple(dosya.sorunlar[0].satir, dosya.sorunlar[2].satir), std::tuple(0, 1));
}

TEST(XmlYaz, QuestionsAndAFileThatCannotBeWritten) {
  BildirgeSirketi s;
  for (int i = 0; i < 12; ++i) {
    Sigortali p(std::to_string(i + 10));
    p.sicil.soyadi = "<" + p.sicil.kod + ">";
    if (i == 0) p.tcno = "";
    s.Ekle(p);
  }
  s.Hesapla();
  const std::string dosya = s.dizin.Yol() + "b.xml";
  EXPECT_TRUE(test::SunucudaMi() || s.bildirge.XmlYolu() == s.o.FirmaDizini + "Bordro0072009.xml");
  EXPECT_EQ(*s.bildirge.XmlYaz(dosya), AylikBildirge::Karar::Devam);
  Iletiler iletiler = s.bildirim.Al();
  ASSERT_EQ(iletiler.size(), 2u);
  EXPECT_THAT(iletiler[0], HasSubstr("T.C. Kimlik No"));
  EXPECT_THAT(iletiler[1], testing::AllOf(HasSubstr("Işıl <10>: SOYAD"), HasSubstr("… ve 2 bilgi daha\nBu Haliyle")));

  ASSERT_TRUE(DosyaYaz(dosya, "önceki"));
  s.bildirim.cevap = false;
  EXPECT_EQ(*s.bildirge.XmlYaz(dosya), AylikBildirge::Karar::Vazgecildi);
  EXPECT_THAT(s.bildirim.Al(), ElementsAre(HasSubstr("T.C. Kimlik No")));
  s.bildirim.cevap = true;
  const auto yazilmadi = s.bildirge.XmlYaz(s.dizin.Yol() + "yok/b.xml");
  ASSERT_FALSE(yazilmadi);
  EXPECT_EQ(yazilmadi.KusurMetni().find("Verilen Dosya Adı Hatalı. (Örnek: c:\\bordro112003.xml)\n"), 0u);
  EXPECT_EQ(DosyaOku(dosya), "önceki");
}

// What a program that reads the file adds up.
struct Okunan {
  int kisi = 0;
  int gun = 0;
  Tutar matrah;
  bool siraDogru = true;
};

Okunan XmlOku(const std::string& baytlar) {
  const std::string metin = KodSayfasindan(baytlar, KodSayfasi::Iso8859_9);
  pugi::xml_document belge;
  RC_ASSERT(bool(belge.load_buffer(metin.data(), metin.size(), pugi::parse_default, pugi::encoding_utf8)));
  Okunan o;
  for (const auto& grup : belge.child("AYLIKBILDIRGELER").children("BILDIRGELER")) {
    int sira = 0;
    for (const auto& kisi : grup.child("SIGORTALILAR").children("SIGORTALI")) {
      ++o.kisi;
      o.gun += kisi.attribute("GUN").as_int();
      o.matrah += *TutarOku(kisi.attribute("PEK").value());
      o.siraDogru = o.siraDogru && kisi.attribute("SIRA").as_int() == ++sira;
    }
  }
  return o;
}

std::int64_t Sql(Motor& motor, const char* sql) {
  const auto komut = motor.Hazirla(sql);
  return komut->Adim() ? komut->Tam(0) : -1;
}

TEST(BildirgeXml, TotalsAreTheSameFromTheRecordsToTheFile) {
  static BildirgeSirketi s;
  EXPECT_TRUE(rc::check([] {
    const auto kisiler = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 1'000'000));
    Islem islem(s.motor());
    s.motor().Calistir("delete from sicil; delete from kimlik; delete from brd");
    for (std::size_t i = 0; i < kisiler.size(); ++i) {
      const int zar = kisiler[i];
      Sigortali p(std::to_string(i + 1));
      p.sicil.kanun = std::array{"", "00000", "05510", "05084"}[std::size_t(zar % 4)];
      p.sicil.sskdurum = std::uint8_t(zar / 4 % 3);
      p.brd.ng = std::uint8_t(zar % 26);
      p.brd.ht = std::uint8_t(zar % 7 == 0 ? 0 : 4);
      p.brd.sskmatrahisveren = p.brd.ng + p.brd.ht == 0 ? Tutar() : Tutar::Hamdan(100 * (1 + zar * 37LL));
      s.Ekle(p);
    }
    islem.Onayla();
    const Bildirge& b = s.Hesapla();
    RC_ASSERT(b.satirlar.size() == kisiler.size());
    RC_ASSERT(b.toplamlar.gun == Sql(s.motor(), "select coalesce(sum(ng + ht), 0) from brd"));
    RC_ASSERT(b.toplamlar.saglik.Ham() ==
              Sql(s.motor(),
                  "select coalesce(sum(b.sskmatrahisveren), 0) from brd b join sicil s on s.kod = b.kod "
                  "where s.sskdurum = 0"));
    const BildirgeToplamlari yeniden = ToplamlariYenile(b.satirlar, s.yasal);
    for (const auto brans : BransMatrahlari) RC_ASSERT((yeniden.*brans) == (b.toplamlar.*brans));
    RC_ASSERT(yeniden.gun == b.toplamlar.gun);
    const auto xml = s.bildirge.XmlHazirla();
    RC_ASSERT(bool(xml) == !kisiler.empty());
    if (!xml) return;
    const Okunan o = XmlOku(xml->value());
    RC_ASSERT(o.siraDogru);
    RC_ASSERT(o.kisi == int(kisiler.size()));
    RC_ASSERT(o.gun == b.toplamlar.gun);
    RC_ASSERT(o.matrah.Ham() == Sql(s.motor(), "select sum(sskmatrahisveren) from brd"));
  }));
}

}  // namespace
}  // namespace belvani
