// The text printers as bytes.
#include <gmock/gmock.h>
#include <unistd.h>

#include "bildirim.h"
#include "core/dosya.h"
#include "gecici.h"
#include "printing/doskod.h"
#include "printing/kayittuvali.h"
#include "printing/kolonmetni.h"
#include "printing/ornek.h"
#include "printing/prnx.h"
#include "printing/sahtekuyruk.h"
#include "printing/sahteport.h"
#include "printing/xprn.h"
#include "printing/yzccnt.h"

namespace belvani {
namespace {

using namespace std::string_literals;
using test::SahtePort;
using testing::ElementsAre;
using testing::HasSubstr;

struct Duzenek {
  test::GeciciDizin dizin;
  test::ToplayanBildirim bildirim;
  SahtePort port;
  YzcAyarlari ayar;
  std::string gonderilen;  // bytes of the file that was handed over
  int escdenOnce = -1;     // letters until Esc is held down; negative: never

  xprn Yazici() {
    return xprn(ayar, {.bildirim = bildirim,
                       .port = port,
                       .belprn =
                           [this](const std::string& dosya) {
                             gonderilen = *DosyaOku(dosya);
                             ::unlink(dosya.c_str());
                             return Tamam();
                           },
                       .escBasili = [this] { return escdenOnce >= 0 && escdenOnce-- == 0; },
                       .bugun = [] { return Tarih(2008, 2, 29); },
                       .unvan = "ÇINAR",
                       .portAdi = "LPT2:"});
  }
};

TEST(Yzccnt, Fields) {
  EXPECT_EQ(SagBosluk("Işık", 6), "Işık  ");
  EXPECT_EQ(SagBosluk("Öğütçü", 3), "Öğü");
  EXPECT_EQ(SolBosluk("Işık", 6), "  Işık");
  EXPECT_EQ(SolBosluk("Öğütçü", 3), "tçü");
  EXPECT_EQ(TutarAlan(Tutar(1234.5), 10, 2, 3), "  1,234.50");
  EXPECT_EQ(TutarAlan(Tutar(1234567.89), 10, 2, 3), "1234567.89");  // the marks go first
  EXPECT_EQ(TutarAlan(Tutar(1234567.89), 8, 2, 3), "34567.89");     // then digits, from the left
  EXPECT_EQ(OrtalaMetin("  ÜCRET  ", 11), "   ÜCRET");              // 5 - 2
  EXPECT_EQ(OrtalaMetin("uzun metin", 4), "uzun metin");
  struct {
    Deger AlanOku(std::string_view alan) { return alan == "ucret" ? Deger(Tutar(1234.5)) : Deger(std::int64_t(7)); }
  } kayit;
  EXPECT_EQ(AlanSayi(kayit, "ucret", 9, 2, 3) + AlanSayi(kayit, "ng", 3, 0, 0), " 1,234.50  7");
}

TEST(Yzccnt, FreePage) {
  test::KayitTuvali tuval;
  tuval.SayfaBasla(A4(KagitYonu::Dikey));
  yzccnt yaz(tuval);
  yaz.YzcKutu(50, 40, 10, 20);
  yaz.YzcHizali("Öğütçü", 100, 10, 8, 12, YaziKalinligi::Kalin, MetinHizasi::Sol);
  yaz.YzcHizali("Öğütçü", 100, 20, 1, 0, YaziKalinligi::Normal, MetinHizasi::Sag);
  yaz.YzcHizali("Öğütçü", 100, 30, 1, 0, YaziKalinligi::Normal, MetinHizasi::Orta);
  const auto& o = tuval.sayfalar[0].ogeler;
  EXPECT_EQ(o[0].kutu.x, 10);
  EXPECT_EQ(o[0].Alt(), 40);
  EXPECT_EQ(o[1].metin, "Öğ");
  EXPECT_LE(o[1].kutu.en, 8);
  EXPECT_EQ(o[2].metin, "Öğütçü");  // width plays no part
  EXPECT_EQ(o[2].yazi.punto, 12);   // as before
  EXPECT_NEAR(o[2].Sag(), 100, 1e-9);
  EXPECT_NEAR(o[3].kutu.x + o[3].kutu.en / 2, 100, 1e-9);
}

TEST(Doskod, Letters) {
  EXPECT_EQ(DosBaytlari("ÇçĞğÖöÜüİıŞş"), "\x80\x87\xA6\xA7\x99\x94\x9A\x81\x98\x8D\x9E\x9F");
  EXPECT_EQ(CevrilmemisBaytlar("ÇçĞğÖöÜüİıŞş│"), "\xC7\xE7\xD0\xF0\xD6\xF6\xDC\xFC\xDD\xFD\xDE\xFE\xB3");
  EXPECT_EQ(DosBaytlari("│─┌┐└┘├┤┬┴┼"), "\xB3\xC4\xDA\xBF\xC0\xD9\xC3\xB4\xC2\xC1\xC5");
  std::string denetim;
  for (char c = 0; c >= 0 && c < 127; ++c) denetim += c;
  EXPECT_EQ(DosBaytlari(denetim + "\x7F"), denetim + "\x7F");  // none is swapped, the byte 0 is no end
}

TEST(Xprn, PlainBytes) {
  Duzenek d;
  xprn yazici = d.Yazici();
  EXPECT_FALSE(yazici.DosDirectPrint("açık değil", SatirSonu::Var));
  ASSERT_TRUE(yazici.OpenDosPrint());
  EXPECT_TRUE(yazici.DosDirectPrint("", SatirSonu::Var));
  EXPECT_TRUE(yazici.DosDirectPrint("İş", SatirSonu::Yok, DosBicem::Kalin | DosBicem::Ikinci | DosBicem::Ucuncu));
  EXPECT_TRUE(yazici.DosDirectPrint("\f", SatirSonu::Yok));
  ASSERT_TRUE(yazici.CloseDosPrint());
  EXPECT_EQ(d.gonderilen, " \r\n"s + "\x1B\x04" + "\x1B\x01" + "\x1B" + "G" + "\x98\x9F" + "\x1B" + "H" + "\x1B" +
                              "\0"s + "\x1B\x05" + "\f");
}

// What follows the key in its piece stays unconverted; every later call fails until the control is reset.
TEST(Xprn, EscCutsItOff) {
  Duzenek d;
  xprn yazici = d.Yazici();
  ASSERT_TRUE(yazici.OpenDosPrint());
  d.escdenOnce = 2;
  EXPECT_TRUE(yazici.DosDirectPrint("şişş", SatirSonu::Var));
  EXPECT_FALSE(yazici.DosDirectPrint("a", SatirSonu::Var));
  ASSERT_TRUE(yazici.CloseDosPrint());
  EXPECT_EQ(d.gonderilen,
            "\x9F"
            "i"
            "\xFE\xFE\r\n");
  ASSERT_TRUE(yazici.OpenDosPrint());
  EXPECT_FALSE(yazici.DosDirectPrint("a", SatirSonu::Var));
  yazici.xprnReset();
  EXPECT_TRUE(yazici.DosDirectPrint("a", SatirSonu::Var));
  ASSERT_TRUE(yazici.CloseDosPrint());
}

TEST(Xprn, StatesOfAPort) {
  const struct {
    const char* ad;
    std::vector<std::uint8_t> durumlar;
    bool cevap;  // OK or Cancel
    bool tamam;
    std::string alinan;
    test::Iletiler iletiler;
  } ornekler[] = {
      {"taken", {16}, true, true, "\r\n\x9E", {}},
      {"busy: sent again without a word", {0, 0, 16}, true, true, "\r\n\x9E", {}},
      {"paper put in", {16, 32, 16}, true, true, "\r\n\x9E", {"Soru: Kağıt Yok"}},
      {"paper before error", {16, 32 | 8, 16}, false, false, "\r", {"Soru: Kağıt Yok"}},
      {"error given up", {8}, false, false, "", {"Soru: Printer Error"}},
      {"the other error bit", {1, 16}, true, true, "\r\n\x9E", {"Soru: Printer Error"}},
  };
  for (const auto& o : ornekler) {
    SCOPED_TRACE(o.ad);
    Duzenek d;
    xprn yazici = d.Yazici();
    d.port.durumlar = o.durumlar;
    d.bildirim.cevap = o.cevap;
    EXPECT_EQ(yazici.DosDirectPrint2("Ş", SatirSonu::Var), o.tamam);
    EXPECT_EQ(d.port.alinan, o.alinan);
    EXPECT_EQ(d.bildirim.iletiler, o.iletiler);
  }
  Duzenek d;
  xprn yazici = d.Yazici();
  d.port.durumlar = {32, 32 | 16, 8};
  EXPECT_FALSE(yazici.CheckDosPrint());
  EXPECT_THAT(d.bildirim.Al(),
              ElementsAre("Soru: Yazıcıda Kağıt Yok\nveya\nYazıcı Kapalı",
                          "Soru: Yazıcıda Kağıt Yok\nveya\nYazıcı Kapalı", "Uyarı: Printer Error\n Status : 8"));
  d.port.durumlar = {0};
  d.escdenOnce = 5;  // a dead device does not hold the program
  EXPECT_FALSE(yazici.DosDirectPrint2("a", SatirSonu::Yok));
}

TEST(Xprn, ColumnMode) {
  Duzenek d;
  d.ayar.YzcBaslik = "LİSTE";
  d.ayar.YzcDosMod = true;
  d.ayar.YzcSatir = 11;
  xprn yazici = d.Yazici();
  yazici.AddKolon({xprnTuru::Metin, "Adı", "", 20, 0});
  yazici.AddKolon({xprnTuru::Sayi, "Tutar", "", 9, 2});
  yazici.AddKolon({xprnTuru::KisaTarih, "Gün", "", 8, 0});
  yazici.SonSat = 3;
  std::vector<int> sayfalar;
  yazici.SayfaBasi = [&](int& no) {
    sayfalar.push_back(no);
    yazici.xPrnNewPage("Şubat");
  };
  int dip = 0;
  yazici.SayfaSonu = [&](int&) { ++dip; };
  ASSERT_TRUE(yazici.xprnOpen(1));
  EXPECT_EQ(yazici.xprnYzcEn, 38);
  EXPECT_EQ(d.port.portlar, std::vector<int>{1});
  yazici.Bilgi(0, DosBicem::Kalin, "Işıl"s);
  yazici.Bilgi(1, Tutar(1234.5));
  yazici.Bilgi(2, Tarih(2008, 2, 29));
  yazici.Bilgi(3, "yok"s);
  EXPECT_TRUE(yazici.LPrn());
  EXPECT_EQ(yazici.SatirSayaci(), 8);
  EXPECT_EQ(dip, 1);
  yazici.Bilgi(1, DosBicem::TireDizisi, Null{});
  yazici.Bilgi(2, "tarih değil"s);
  yazici.LPrn();
  EXPECT_EQ(dip, 1);
  yazici.xPrnEndPage();
  yazici.LPrn("─");
  EXPECT_THAT(sayfalar, ElementsAre(0, 1));
  ASSERT_TRUE(yazici.xprnClose());
  const std::string bas = " \r\n      L\x98STE\r\n\x80INAR            Tarih    : 29.02.2008\r\n";
  const std::string kolonlar = "Ad\x8D                  Tutar     G\x81n     \r\n" + std::string(20, '-') + " " +
                               std::string(9, '-') + " " + std::string(8, '-') + "\r\n \r\n";
  const std::string ad = "\x1BGI\x9F\x8Dl                \x1BH";
  EXPECT_EQ(d.gonderilen, "\x0F" + bas + "\x9Eubat            Sayfa No : 00001     \r\n" + kolonlar + ad +
                              "  1,234.50 29.02.08\r\n" + ad + " ---------         \r\n" + " \r\n \r\n" + bas +
                              "\x9Eubat            Sayfa No : 00002     \r\n" + kolonlar + std::string(20, '\xC4') +
                              " " + std::string(9, '\xC4') + " " + std::string(8, '\xC4') + "\r\n\x12\f");
  EXPECT_FALSE(yazici.LPrn());
}

// The pages of a list: the settings choose what stands above the heads, a head that is too long breaks.
TEST(KolonMetni, PagesOfAList) {
  Rapor rapor({{.baslik = "Adı", .kisaBaslik = "Adı", .en = 6},
               {.baslik = "Net Ücret", .kisaBaslik = "Net", .en = 6, .tur = KolonTuru::Tutar, .ondalik = 2},
               {.baslik = "Gün", .kisaBaslik = "Gün", .en = 5, .tur = KolonTuru::GunAy}});
  YzcAyarlari ayar;
  ayar.YzcBaslik = "ÜCRETLER";
  ayar.YzcSatir = 11;
  const Tarih bugun(2008, 2, 29);
  const std::string bas = "\n    ÜCRETLER\nTarih    : 29.02.2008\nSayfa No : 0000";
  const std::string tablo = "\n     Net\nAdı  Ücret  Gün\n---- ------ -----\n\n";
  EXPECT_EQ(KolonMetni(rapor, ayar, bugun), bas + "1\n    Net\nAdı Ücret  Gün\n--- ------ -----\n\n") << "heads alone";
  for (int i = 0; i < 4; ++i) rapor.Ekle({{"Işıl"s, Tutar(10.5 + i), Tarih(2008, 3, 1 + i)}});
  EXPECT_EQ(KolonMetni(rapor, ayar, bugun), bas + "1" + tablo + "Işıl  10.50 01.03\nIşıl  11.50 02.03\n" +
                                                "Işıl  12.50 03.03\n\f" + bas + "2" + tablo + "Işıl  13.50 04.03\n");
  ayar.YzcBaslikYaz = ayar.YzcTarihYaz = ayar.YzcSayfaNoYaz = false;
  ayar.YzcSatir = 66;
  EXPECT_THAT(KolonMetni(rapor, ayar, bugun), testing::StartsWith("\n\n\n" + tablo));
}

TEST(LpPortu, WithoutTheDeviceAFault) {
  const test::GeciciDizin dizin;
  ASSERT_TRUE(DosyaYaz(dizin.Yol() + "lp1", ""));
  LpPortu portlar(dizin.Yol() + "lp");
  EXPECT_EQ(portlar.GetStatus(0), 8);
  EXPECT_EQ(portlar.DosPrint(9, 'a'), 8);
  EXPECT_EQ(portlar.DosPrint(1, 0x9E), port::Alindi);
  EXPECT_EQ(*DosyaOku(dizin.Yol() + "lp1"), "\x9E");
}

TEST(Prnx, RawQueue) {
  test::SahteKuyruk kuyruk;
  test::KayitTuvali tuval;
  dosprint ham(kuyruk);
  YzcAyarlari ayar;
  ayar.YzcBaslik = "TAZMİNAT";
  ayar.YzcSatir = 3;
  prnx yazici(ayar, &tuval, &ham);
  ASSERT_TRUE(yazici.OpenPrinter(2, "", {.condensed = true}));
  EXPECT_EQ(yazici.YeniSayfa(), 1);
  yazici.Lprint("Şükrüye", 4, SatirSonu::Yok, MetinHizasi::Sol, HucreBicem::Kalin | HucreBicem::Egik);
  yazici.Lprint("12", 4, SatirSonu::Yok, MetinHizasi::Sag, HucreBicem::UstuCizili);
  yazici.Lprint("ab", 5, SatirSonu::Yok, MetinHizasi::Orta);
  yazici.Lprint("serbest", 0, SatirSonu::Var);
  yazici.LinePrint(3, SatirSonu::Var);
  EXPECT_EQ(yazici.SatirSayisi(), 2);
  yazici.SayfaBitti(SayfaDibi::Doldur);
  ASSERT_TRUE(yazici.ClosePrinter());
  ASSERT_EQ(kuyruk.isler.size(), 1u);
  EXPECT_EQ(kuyruk.isler[0].yazici, "matris");
  EXPECT_EQ(kuyruk.isler[0].ad, "TAZMİNAT");
  EXPECT_EQ(kuyruk.isler[0].icerik, "\x0F\x1B"s + "4\x1BG\x9E\x81kr\x1BH\x1B" + "5\x1B\x01  12\x1B\0"s +
                                        " ab serbest\r\n" + "___\r\n \r\n \r\n");
  EXPECT_EQ(ayar.YzcSatir, 3);
  ayar.yazici = "yok";
  EXPECT_FALSE(yazici.OpenPrinter(2, ""));
  EXPECT_EQ(yazici.SonHata(), "yok adında bir yazıcı yok");
  EXPECT_TRUE(yazici.OpenPrinter(3, ""));
  EXPECT_FALSE(yazici.OpenPrinter(9, ""));
  yazici.Lprint("a", 1, SatirSonu::Var);
  EXPECT_TRUE(yazici.ClosePrinter());
  EXPECT_EQ(kuyruk.isler.size(), 1u);
}

TEST(Prnx, DrawnGrid) {
  test::KayitTuvali tuval;
  YzcAyarlari ayar;
  ayar.YzcYon = KagitYonu::Yatay;
  prnx yazici(ayar, &tuval, nullptr);
  yazici.Font.fontsize = 10;
  EXPECT_FALSE(yazici.OpenPrinter(2, "")) << "no way to a raw printer";
  ASSERT_TRUE(yazici.OpenPrinter(1, "", {.condensed = true, .large = true, .kolon = 100}));
  EXPECT_EQ(ayar.YzcSatir, 47);  // of 194 mm, at 10 points
  yazici.YeniSayfa();
  yazici.Lprint("Adı", 50, SatirSonu::Yok);
  yazici.Lprint("12", 50, SatirSonu::Var, MetinHizasi::Sag, HucreBicem::AltiCizili);
  yazici.LinePrint(100, SatirSonu::Var);
  ASSERT_TRUE(yazici.ClosePrinter());
  EXPECT_FALSE(tuval.sayfaAcik);
  const auto& o = tuval.sayfalar.at(0).ogeler;
  ASSERT_EQ(o.size(), 4u);
  EXPECT_NEAR(o[0].kutu.x, KenarMm, 1e-9);
  EXPECT_NEAR(o[1].Sag(), 297 - KenarMm, 1e-9);
  EXPECT_NEAR(o[2].kutu.x, o[1].kutu.x, 1e-9);
  EXPECT_NEAR(o[3].kutu.en, 281, 1e-9);
  EXPECT_GT(o[3].kutu.y, o[1].Alt());
}

// A grid of letters looks as a text printer prints: a rule is letters too, and the settings keep their lines.
TEST(Prnx, RulesOnAGridOfLetters) {
  test::KayitTuvali tuval;
  YzcAyarlari ayar;
  prnx yazici(ayar, &tuval, nullptr);
  ASSERT_TRUE(yazici.OpenPrinter(
      1, "",
      {.izgara =
           prnxIzgara{.kagit = A4(KagitYonu::Dikey), .bas = {10, 10}, .harfEni = 2, .satirBoyu = 5, .yazi = {}}}));
  yazici.YeniSayfa();
  yazici.LinePrint(3, SatirSonu::Yok);
  yazici.Lprint("ab", 2, SatirSonu::Var);
  ASSERT_TRUE(yazici.ClosePrinter());
  EXPECT_THAT(tuval.sayfalar.at(0).Satirlar(), ElementsAre("___|ab"));
  EXPECT_EQ(ayar.YzcSatir, 66);
}

}  // namespace
}  // namespace belvani
