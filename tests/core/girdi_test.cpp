// Typing into numbers and dates, key by key, without a screen.
#include "core/girdi.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "core/sayi.h"

namespace belvani {
namespace {

// "<" is Backspace, "#" Delete, "|" a move of the caret, ">" the field is entered; "@" selects all for the next key.
template <class G>
void Bas(G& girdi, std::string_view tuslar) {
  bool secili = false;
  for (const char t : tuslar) {
    const bool hepsi = std::exchange(secili, t == '@');
    if (t == '<')
      girdi.GeriSil(hepsi);
    else if (t == '#')
      girdi.Bosalt();
    else if (t == '|')
      girdi.Gezildi();
    else if (t == '>')
      girdi.Girildi();
    else if (t != '@')
      girdi.Yaz(char32_t(static_cast<unsigned char>(t)), hepsi);
  }
}

TEST(SayiGirdisi, EditsWhatIsThereOrBeginsAnew) {
  struct {
    Deger yuklenen;
    const char* tuslar;
    const char* metin;
    Deger deger;
  } const durumlar[] = {
      {Tutar(1250), "7", "7.00", Tutar(7)},  // the first key begins anew
      {Tutar(1250), "|7", "12,507.00", Tutar(12507)},
      {Tutar(1250), "|@7", "7.00", Tutar(7)},
      {Tutar(1250), "<", "125.00", Tutar(125)},
      {Tutar(1250), "@<", "", Tutar()},
      {Tutar(1250), "0", "", Tutar()},
      {Tutar(1250), "0007", "7.00", Tutar(7)},
      {Tutar(1250), ".5<", "", Tutar()},
      {Tutar(1250), "+", "1,250,000.00", Tutar(1'250'000)},  // thousands of what is there, even of a fresh number
      {Tutar(), "+", "", Tutar()},
      {Tutar(-12), "|5", "5.00", Tutar(5)},  // no sign is typed
      {Tutar(-5), "<", "", Tutar()},
      {Null{}, "", "", Tutar()},
      {12.004, "+", "12,000.00", Tutar(12000)},
      {12.004, "1>", "1.00", Tutar(1)},
      {12.004, "", "12.00", 12.004},
      {0.001, "<", "", 0.001},  // nothing to be seen, nothing to be taken back
      {0.001, "#", "", Tutar()},
      // Refused keys: not a digit, above the limit, decimals that cannot be shown.
      {12.004, "a-x", "12.00", 12.004},
      {Tutar(1'999'999), "@a", "1,999,999.00", Tutar(1'999'999)},
      {Tutar(1'999'999), "+", "1,999,999.00", Tutar(1'999'999)},
      {Tutar::Hamdan(12'345'600), "|7", "1,234.56", Tutar::Hamdan(12'345'600)},
      {Tutar(12.5), "a7", "7.00", Tutar(7)},  // the refused key does not count as the first
      {Tutar(12.5), "|..,5", "12.55", Tutar(12.55)},
      // A mark alone empties nothing; with a digit behind it a new number has begun.
      {Tutar(1250), ".", "1,250.00", Tutar(1250)},
      {Tutar(1250), "..5", "0.50", Tutar(0.5)},
      {Tutar(1250), ".>7", "7.00", Tutar(7)},
  };
  for (const auto& d : durumlar) {
    SayiGirdisi girdi({.enCok = 2'000'000, .ondalik = 2});
    girdi.Yukle(d.yuklenen);
    Bas(girdi, d.tuslar);
    EXPECT_EQ(girdi.Metin(), d.metin) << d.tuslar;
    EXPECT_EQ(girdi.Oku(), d.deger) << d.tuslar << " on " << MetinDegeri(d.yuklenen);
  }
}

TEST(SayiGirdisi, AWholeValueIsPastedIfItFits) {
  struct {
    const char* metin;
    TusSonucu sonuc;
    Tutar deger;
  } const durumlar[] = {
      {" 1,250.50 ", TusSonucu::Alindi, Tutar(1250.5)},  {"0", TusSonucu::Alindi, Tutar()},
      {"7.125", TusSonucu::Reddedildi, Tutar(3.0004)},   {"1.250,50", TusSonucu::Alindi, Tutar(1250.5)},
      {"1.250", TusSonucu::Alindi, Tutar(1250)},         {"12,5", TusSonucu::Alindi, Tutar(12.5)},
      {"12.5000", TusSonucu::Alindi, Tutar(12.5)},       {"1.25,50", TusSonucu::Reddedildi, Tutar(3.0004)},
      {"1,2,3", TusSonucu::Reddedildi, Tutar(3.0004)},   {"12 TL", TusSonucu::Reddedildi, Tutar(3.0004)},
      {"-5", TusSonucu::Reddedildi, Tutar(3.0004)},      {"2000", TusSonucu::Alindi, Tutar(2000)},
      {"2000.01", TusSonucu::Reddedildi, Tutar(3.0004)}, {"", TusSonucu::Reddedildi, Tutar(3.0004)},
  };
  for (const auto& d : durumlar) {
    SayiGirdisi girdi({.enCok = 2000, .ondalik = 2});
    girdi.Yukle(Tutar(3.0004));
    EXPECT_EQ(girdi.Yapistir(d.metin), d.sonuc) << d.metin;
    EXPECT_EQ(TutarDegeri(girdi.Oku()), d.deger) << d.metin;
  }
}

TEST(SayiGirdisi, APasteThatMayBeTwoNumbersIsRefused) {
  SayiGirdisi girdi({.enCok = 9000, .ondalik = 3});
  EXPECT_EQ(girdi.Yapistir("1,250"), TusSonucu::Reddedildi);
  EXPECT_EQ(girdi.Yapistir("1,250.000"), TusSonucu::Alindi);
  EXPECT_EQ(girdi.Metin(), "1,250.000");
}

TEST(Girdi, WhatStoodThereOnEntryComesBack) {
  SayiGirdisi sayi({.enCok = 2000, .ondalik = 2});
  sayi.Yukle(12.004);
  for (const char* tuslar : {"99", "#", "@<", ".", "|5"}) {
    Bas(sayi, tuslar);
    EXPECT_EQ(sayi.GeriAl(), TusSonucu::Alindi) << tuslar;
    EXPECT_EQ(sayi.Oku(), Deger(12.004)) << tuslar;
    EXPECT_EQ(sayi.GeriAl(), TusSonucu::Gecildi) << tuslar;
  }
  Bas(sayi, "7>8");
  sayi.GeriAl();
  EXPECT_EQ(sayi.Oku(), Deger(Tutar(7))) << "not further back than the last entry";
  TarihGirdisi tarih;
  tarih.Yukle(Tarih(2005, 3, 12));
  Bas(tarih, "1");
  EXPECT_EQ(tarih.GeriAl(), TusSonucu::Alindi);
  EXPECT_EQ(tarih.Oku(), Deger(Tarih(2005, 3, 12)));
}

TEST(TarihGirdisi, EditsWhatIsThereOrBeginsAnew) {
  struct {
    Tarih yuklenen;
    const char* tuslar;
    const char* metin;
    const char* birakilinca;
  } const durumlar[] = {
      {Tarih(2005, 3, 12), "1", "1", "??.??.????"},
      {Tarih(2005, 3, 12), "|<6", "12.03.2006", "12.03.2006"},
      {Tarih(2005, 3, 12), "|6", "12.03.2005", "12.03.2005"},  // full
      {Tarih(2005, 3, 12), "x./", "12.03.2005", "12.03.2005"},
      {Tarih(2005, 3, 12), "@x01", "01.", "??.??.????"},
      {Tarih(2005, 3, 12), "|<<<<<<<<", "", ""},
      {Tarih(2005, 3, 12), "|@<", "", ""},
      {Tarih(), "<29022008", "29.02.2008", "29.02.2008"},
      {Tarih(), "29022009", "29.02.2009", "??.??.????"},
      {Tarih(), "1.3.2005", "01.03.2005", "01.03.2005"},
      {Tarih(), "12.3,29", "12.03.29", "12.03.2029"},
      {Tarih(), "1.3/30", "01.03.30", "01.03.1930"},
      {Tarih(), "12030526", "12.03.0526", "??.??.????"},
      {Tarih(), "120305", "12.03.05", "12.03.2005"},
      {Tarih(), "1203200", "12.03.200", "??.??.????"},
      {Tarih(), "0.0.05", "00.00.05", "??.??.????"},
      {Tarih(1871, 5, 6), "", "06.05.1871", "06.05.1871"},  // what was loaded stays, however old
  };
  for (const auto& d : durumlar) {
    TarihGirdisi girdi;
    girdi.Yukle(d.yuklenen);
    Bas(girdi, d.tuslar);
    EXPECT_EQ(girdi.Metin(), d.metin) << d.tuslar;
    girdi.Birakildi();
    EXPECT_EQ(girdi.Metin(), d.birakilinca) << d.tuslar;
    // The mask is no text to go on with.
    if (girdi.Metin() != TarihGirdisi::Maske) continue;
    TarihGirdisi silinen = girdi;
    girdi.Gezildi();
    Bas(girdi, "3");
    EXPECT_EQ(girdi.Metin(), "3");
    silinen.GeriSil(false);
    EXPECT_EQ(silinen.Metin(), "");
  }
  TarihGirdisi girdi;
  EXPECT_EQ(girdi.Yapistir("1.2"), TusSonucu::Reddedildi);
  for (const char* metin : {" 1.2.2008 ", "2008-02-01", "01/02/08"}) {
    girdi.Bosalt();
    EXPECT_EQ(girdi.Yapistir(metin), TusSonucu::Alindi) << metin;
    EXPECT_EQ(girdi.Oku(), Deger(Tarih(2008, 2, 1))) << metin;
  }
}

std::string RastgeleTuslar(const std::string& harfler) {
  return *rc::gen::container<std::string>(rc::gen::elementOf(harfler));
}

RC_GTEST_PROP(SayiGirdisi, NoKeysTakeItOutOfItsLimits, ()) {
  const SayiGirdisi::Bicim bicim{
      .enCok = double(*rc::gen::elementOf(std::vector<int>{0, 7, 31, 255, 99'999, 2'147'483'647})),
      .ondalik = *rc::gen::inRange(0, 5),
      .grup = *rc::gen::elementOf(std::vector<int>{0, 3})};
  SayiGirdisi girdi(bicim);
  girdi.Yukle(Tutar::Hamdan(*rc::gen::inRange<std::int64_t>(0, std::int64_t(bicim.enCok) * Tutar::Olcek + 1)));
  const Deger yuklenen = girdi.Oku();
  bool yazildi = false;
  for (const char tus : RastgeleTuslar("0123456789009.,+<<|>a-#@")) {
    const SayiGirdisi once = girdi;
    const bool secili = *rc::gen::weightedElement<bool>({{9, false}, {1, true}});
    TusSonucu sonuc = TusSonucu::Alindi;
    if (tus == '<')
      sonuc = girdi.GeriSil(secili);
    else if (tus == '#' || tus == '|' || tus == '>')
      Bas(girdi, std::string_view(&tus, 1));
    else
      sonuc = girdi.Yaz(char32_t(tus), secili);
    if (sonuc != TusSonucu::Alindi) RC_ASSERT(girdi == once);
    // A waiting mark changes nothing yet.
    yazildi = yazildi || (girdi.Oku() != once.Oku() && tus != '|' && tus != '>');
    RC_ASSERT(yazildi || girdi.Oku() == yuklenen);
    if (!yazildi) continue;

    const std::string metin = girdi.Metin();
    const Tutar deger = TutarDegeri(girdi.Oku());
    RC_ASSERT(deger.Sayi() <= bicim.enCok);
    RC_ASSERT(deger == *TutarOku(TutarMetni(deger, bicim.ondalik)));  // no decimal that is not shown
    RC_ASSERT((metin.empty() ? Tutar() : *TutarOku(metin)) == deger);
  }
}

RC_GTEST_PROP(TarihGirdisi, NoKeysMakeAnythingButAShortDateText, ()) {
  TarihGirdisi girdi;
  girdi.Yukle(*rc::gen::elementOf(std::vector<Tarih>{Tarih(), Tarih(2009, 1, 31)}));
  for (const char tus : RastgeleTuslar("0123456789012<<|>.a#!")) {
    const TarihGirdisi once = girdi;
    const bool secili = *rc::gen::weightedElement<bool>({{9, false}, {1, true}});
    TusSonucu sonuc = TusSonucu::Alindi;
    if (tus == '<')
      sonuc = girdi.GeriSil(secili);
    else if (tus == '!')
      girdi.Birakildi();
    else if (tus == '#' || tus == '|' || tus == '>')
      Bas(girdi, std::string_view(&tus, 1));
    else
      sonuc = girdi.Yaz(char32_t(tus), secili);
    if (sonuc != TusSonucu::Alindi) RC_ASSERT(girdi == once);
    const std::string metin = girdi.Metin();
    RC_ASSERT(metin.size() <= 10u);
    if (metin == TarihGirdisi::Maske) continue;
    for (std::size_t i = 0; i < metin.size(); ++i) RC_ASSERT((metin[i] == '.') == (i == 2 || i == 5));
  }
}

}  // namespace
}  // namespace belvani
