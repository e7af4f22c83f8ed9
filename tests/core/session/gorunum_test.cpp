// Appearance: the workstation file, the fonts of grids, the colour table.
#include "core/session/gorunum.h"

#include <cmath>

#include "core/ayarlar.h"
#include "core/dosya.h"
#include "core/ini.h"
#include "core/session/ornekoturum.h"
#include "core/sinamalar.h"

namespace belvani {
namespace {

using test::Sinamalar;
using GorunumTest = test::OrnekOturum;

// Relative luminance and contrast as WCAG 2.1 defines them.
double Parlaklik(std::uint32_t bgr) {
  const auto kanal = [&](int bit) {
    const double c = double(bgr >> bit & 0xFF) / 255;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * kanal(0) + 0.7152 * kanal(8) + 0.0722 * kanal(16);
}

double Karsitlik(std::uint32_t a, std::uint32_t b) {
  const auto [az, cok] = std::minmax({Parlaklik(a), Parlaklik(b)});
  return (cok + 0.05) / (az + 0.05);
}

// Text and the background that it may stand on.
constexpr std::pair<Renk, Renk> YaziZeminleri[] = {
    {Renk::GridBaslikText, Renk::GridBaslik},
    {Renk::GridZebraText, Renk::GridZebra},
    {Renk::GridSeciliText, Renk::GridSecili},
    {Renk::GridAktifText, Renk::GridAktif},
    {Renk::SorguBaslikText, Renk::SorguBaslik},
    {Renk::SorguText, Renk::Sorgu},
    {Renk::Yazi, Renk::FormArka},
    {Renk::Yazi, Renk::TextArka},
    {Renk::Yazi, Renk::TextOdakArka},
    {Renk::Yazi, Renk::PencereArka},
    {Renk::SolukYazi, Renk::FormArka},
    {Renk::SolukYazi, Renk::TextArka},
    {Renk::SolukYazi, Renk::PencereArka},
    {Renk::VurguText, Renk::Vurgu},
    {Renk::GridText, Renk::GridArka},
    {Renk::PasifText, Renk::PasifArka},
    {Renk::HataText, Renk::HataArka},
    {Renk::MenuText, Renk::MenuArka},
    {Renk::IpucuText, Renk::IpucuArka},
    {Renk::ToplamText, Renk::ToplamArka},
};

TEST(Renkler, EveryTextIsReadable) {
  EXPECT_NEAR(Karsitlik(0, 0xFFFFFF), 21, 0.01);
  for (const auto& tablo : {AcikRenkler(), KoyuRenkler()}) {
    for (const auto& [yazi, zemin] : YaziZeminleri)
      EXPECT_GE(Karsitlik(RenkAl(tablo, yazi), RenkAl(tablo, zemin)), 4.5) << int(yazi) << " on " << int(zemin);
    for (const auto renk : tablo) EXPECT_TRUE(renk != 0 && renk <= 0xFFFFFF);
  }
  EXPECT_EQ(RenkAl(AcikRenkler(), Renk::FormArka), 0xF5F7F8u) << "blue stands above red";
}

TEST_F(GorunumTest, ColourTable) {
  using Uc = std::array<std::uint32_t, 3>;
  o.PrgPath = d.Yol();
  const std::string dizin = d.Yol() + o.ResimYolu, yol = dizin + "renk.dat";
  const auto ilkIkiSon = [&] {
    o.Renkler.fill(9);
    RenkYukle(o);
    return Uc{o.Renkler[0], o.Renkler[1], o.Renkler[41]};
  };
  EXPECT_EQ(ilkIkiSon(), Uc{});
  ASSERT_TRUE(!std::filesystem::exists(dizin) && DizinYarat(dizin));
  EXPECT_EQ(ilkIkiSon(), Uc{});
  EXPECT_EQ(DosyaOku(yol), "");
  const std::string kayit =
      "\x01\x02\x03\xF4\xFF\xFF\xFF\xFF" + std::string(156, '\0') + std::string("\x05\0\0\x80", 4);
  const Uc tam{0xF4030201, 0xFFFFFFFF, 0x80000005};
  for (const auto& [icerik, renkler] : Sinamalar<std::string, Uc>{
           {kayit, tam}, {kayit + "fazla", tam}, {kayit.substr(0, 6), {0xF4030201, 0xFFFF, 0}}}) {
    ASSERT_TRUE(DosyaYaz(yol, icerik));
    EXPECT_EQ(ilkIkiSon(), renkler);
    EXPECT_EQ(DosyaOku(yol), icerik);
  }
  const std::string buyuk(65u << 20, 'x');  // what is not read is not replaced
  ASSERT_TRUE(DosyaYaz(yol, buyuk));
  EXPECT_EQ(ilkIkiSon(), Uc{});
  EXPECT_EQ(std::filesystem::file_size(yol), buyuk.size());
}

TEST_F(GorunumTest, ColourTableIsWrittenWhereItCanBe) {
  o.PrgPath = d.Yol() + "prg/";
  const std::string yol = o.PrgPath + o.ResimYolu + "renk.dat", kopya = KullaniciDizini() + "renk.dat";
  EXPECT_EQ(GecerliRenkler(o), AcikRenkler());
  const auto yazVeOku = [&](const RenkTablosu& tablo) {
    o.Renkler = tablo;
    EXPECT_TRUE(RenkKaydet(o));
    o.Renkler = {};
    RenkYukle(o);
    EXPECT_EQ(GecerliRenkler(o), tablo);
  };
  ASSERT_TRUE(DizinYarat(o.PrgPath + o.ResimYolu));
  yazVeOku(AcikRenkler());
  EXPECT_EQ(std::filesystem::file_size(yol), 168u);
  EXPECT_EQ(DosyaOku(yol)->substr(0, 4), std::string("\xF8\xF7\xF5\0", 4));
  EXPECT_FALSE(std::filesystem::exists(kopya));
  o.PrgPath = "/proc/belvani/";
  yazVeOku(KoyuRenkler());
  EXPECT_EQ(std::filesystem::file_size(kopya), 168u);
  o.PrgPath = d.Yol() + "prg/";
  yazVeOku(AcikRenkler());  // the user's copy is read first, and so is what is written
}

TEST_F(GorunumTest, WorkstationFile) {
  const VeriYolu sirket(test::BosSirket(veriYeri.Yer(), "DENEME"));
  o.FirmaDizini = sirket.Adres();
  o.PrgPath = "/prg/";
  o.BilgisayarAdi = "masa.ofis";
  GorunumAyari a;
  a.backresim = "/prg/image/Quick.jpg";
  EXPECT_EQ(GorunumOku(o), a);
  a = {"&H00112233&", false, "/ev/şık.jpg", "&H00FFFFFF&", "image/yeni/", false, false, "&H1&", "&H2&", "Arial", 14};
  ASSERT_TRUE(GorunumYaz(o, a));
  EXPECT_EQ(GorunumOku(o), a);
  EXPECT_TRUE(sirket.Oku("masa.ofis.dat")->starts_with("[gorunum]\r\nbackcolor=&H00112233&\r\nbackresimvarmi=0"));
  // What cannot be reads as the default.
  for (const auto& [anahtar, deger] : Sinamalar<const char*, const char*>{
           {"imagepath", "image/../../etc"}, {"labelfontsize", "-3"}, {"backcolor", "mavi"}})
    ASSERT_TRUE(IniYaz("gorunum", anahtar, deger, IstasyonDosyasi(o)));
  EXPECT_EQ(GorunumOku(o).imagepath + GorunumOku(o).backcolor, "image/soft/&H00ECFAE4&");
  EXPECT_EQ(GorunumOku(o).labelfontsize, 10);
  o.BilgisayarAdi = "TOLU";  // a computer named like the store must not write into it
  EXPECT_EQ(IstasyonDosyasi(o).Adres(), sirket.Adres("bilgisayar-TOLU.dat"));
}

TEST_F(GorunumTest, FontsAndColourTexts) {
  const GridYazilari yeni{{"Arial", 12, Kalinlik::Normal}, {"DejaVu Sans", 8, Kalinlik::Kalin}};
  EXPECT_EQ(GridYazilariOku(), GridYazilari());
  ASSERT_TRUE(GridYazilariYaz(yeni));
  EXPECT_EQ(GridYazilariOku(), yeni);
  EXPECT_EQ(KullaniciAyari("gridbaslikfontbold", "", "quick"), "Norm");
  EXPECT_EQ(RenkOku("&h8000000f"), 0x8000000F);
  EXPECT_EQ(RenkMetni(*RenkOku("&H00ECFAE4&")), "&H00ECFAE4&");
  for (const char* metin : {"", "&H&", "ECFAE4", "&H1FFFFFFFF&", "&H12G&"}) EXPECT_FALSE(RenkOku(metin)) << metin;
}

}  // namespace
}  // namespace belvani
