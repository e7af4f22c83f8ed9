#include "ui/xtext.h"

#include <QClipboard>

#include "ekran/ortam.h"

namespace belvani::test {
namespace {

// An xtext with the keyboard, and a second field to go to.
struct Alanlar {
  QWidget pencere;
  xtext alan{&pencere};
  xtext sonraki{&pencere};

  Alanlar(xtext::Tip tip, double enCok, int ondalik) {
    alan.setObjectName("alan");
    sonraki.setObjectName("sonraki");
    alan.xTextBicim(tip, enCok, Qt::AlignLeft, true, ondalik);
    pencere.show();
    QApplication::setActiveWindow(&pencere);
    alan.setFocus(Qt::TabFocusReason);
    QCoreApplication::processEvents();
  }
  // "<" is Backspace, "#" Delete, "\n" Enter.
  void Yaz(const char* tuslar) {
    for (const QChar t : QString::fromUtf8(tuslar)) {
      if (t == '<')
        EkranOrtami::Bas(Qt::Key_Backspace);
      else if (t == '#')
        EkranOrtami::Bas(Qt::Key_Delete);
      else
        EkranOrtami::Yaz(QString(t).toUtf8().constData());
    }
  }
  std::string Metin() const { return Utf8(alan.text()); }
};

TEST(Xtext, NumbersAreTypedByTheirRules) {
  struct {
    const char* tuslar;
    const char* metin;
    double deger;
    double enCok = 1e9;
    int ondalik = 2;
  } const durumlar[] = {
      {"1234", "1,234.00", 1234},
      {"1+", "1,000.00", 1000},
      {"12.5", "12.50", 12.5},
      {"12,5.7", "12.57", 12.57},
      {"1.239", "1.23", 1.23},  // a digit that would not be shown is refused
      {"12.5", "125", 125, 1e9, 0},
      {"0", "", 0},
      {".5", "0.50", 0.5},
      {"31", "3", 3, 30, 0},
      {"5", "", 0, 0, 0},  // the largest value is zero
      {"12a-3", "123.00", 123},
      {"123<", "12.00", 12},
      {"123#", "", 0},
      {"123#7", "7.00", 7},
  };
  for (const auto& d : durumlar) {
    Alanlar a(xtext::Tip::Sayi, d.enCok, d.ondalik);
    a.Yaz(d.tuslar);
    EXPECT_EQ(a.Metin(), d.metin) << d.tuslar;
    EXPECT_EQ(TutarDegeri(a.alan.Value()), Tutar(d.deger)) << d.tuslar;
  }
}

TEST(Xtext, TheFirstKeyReplacesAndWhatWasLoadedStaysExact) {
  Alanlar a(xtext::Tip::Sayi, 1e9, 2);
  a.alan.DegerKoy(Tutar::Hamdan(1'234'567));
  EXPECT_EQ(a.Metin(), "123.46");
  EXPECT_EQ(TutarDegeri(a.alan.Value()), Tutar::Hamdan(1'234'567)) << "the hidden decimals are lost without typing";
  a.Yaz("5\n");
  EXPECT_EQ(TutarDegeri(a.alan.Value()), Tutar(5));
  EXPECT_EQ(EkranOrtami::Odak(), "sonraki");
  EkranOrtami::Bas(Qt::Key_Up);
  EXPECT_EQ(EkranOrtami::Odak(), "alan");
  a.Yaz("7");
  EXPECT_EQ(a.Metin(), "7.00");
}

TEST(Xtext, WhatIsSelectedIsTypedOver) {
  Alanlar a(xtext::Tip::Sayi, 1e9, 2);
  for (const char* sonra : {"", "c"}) {  // a copy in between keeps the selection
    a.alan.DegerKoy(Tutar(1250));
    EkranOrtami::Bas(Qt::Key_End);
    EkranOrtami::Bas(Qt::Key_A, Qt::ControlModifier);
    if (*sonra != '\0') EkranOrtami::Bas(Qt::Key_C, Qt::ControlModifier);
    a.Yaz("7");
    EXPECT_EQ(a.Metin(), "7.00");
  }
  EkranOrtami::Bas(Qt::Key_A, Qt::ControlModifier);
  EkranOrtami::Bas(Qt::Key_Backspace);
  EXPECT_EQ(a.Metin(), "");
}

TEST(Xtext, ARefusedKeyLeavesValueAndSelection) {
  Alanlar a(xtext::Tip::Sayi, 1000, 2);
  int degisen = 0;
  QObject::connect(&a.alan, &xtext::Change, [&] { ++degisen; });
  a.alan.DegerKoy(Tutar::Hamdan(1'234'567));
  a.alan.selectAll();
  a.Yaz("a");
  QApplication::clipboard()->setText("1.25,50");
  EkranOrtami::Bas(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(a.alan.selectedText(), "123.46");
  EXPECT_EQ(TutarDegeri(a.alan.Value()), Tutar::Hamdan(1'234'567));
  EXPECT_EQ(degisen, 0);
  QApplication::clipboard()->setText("250.5");
  EkranOrtami::Bas(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(a.Metin(), "250.50");
  EXPECT_EQ(degisen, 1);

  Alanlar t(xtext::Tip::Tarih, 0, 0);
  t.alan.DegerKoy(Tarih(2005, 3, 12));
  t.alan.selectAll();
  t.Yaz(".x");
  EXPECT_EQ(t.alan.selectedText(), "12.03.2005");
}

TEST(Xtext, CtrlZGivesBackTheValueOfTheEntryAndAltTypesNothing) {
  Alanlar a(xtext::Tip::Sayi, 1e9, 2);
  a.alan.DegerKoy(Tutar::Hamdan(1'234'567));
  a.Yaz("77");
  EkranOrtami::Bas(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(TutarDegeri(a.alan.Value()), Tutar::Hamdan(1'234'567));
  a.Yaz("5");
  EXPECT_EQ(a.Metin(), "5.00") << "the next key begins anew";
  for (const auto tip : {xtext::Tip::Metin, xtext::Tip::Sayi, xtext::Tip::Tarih}) {
    Alanlar b(tip, 100, 0);
    TusGonder(&b.alan, Qt::Key_7, Qt::AltModifier, "7");
    EXPECT_EQ(b.Metin(), "");
  }
}

TEST(Xtext, DatesAreTypedByTheirRules) {
  struct {
    const char* tuslar;
    const char* metin;
    Tarih deger;
  } const durumlar[] = {
      {"12032005\n", "12.03.2005", Tarih(2005, 3, 12)},
      {"31022005\n", "??.??.????", Tarih()},
      {"1203<<<\n", "??.??.????", Tarih()},
      {"1203<<<<<01042009\n", "01.04.2009", Tarih(2009, 4, 1)},
      {"12.03.2005x\n", "12.03.2005", Tarih(2005, 3, 12)},
      {"12032005#\n", "", Tarih()},
      {"\n", "", Tarih()},
  };
  for (const auto& d : durumlar) {
    Alanlar a(xtext::Tip::Tarih, 0, 0);
    a.Yaz(d.tuslar);
    EXPECT_EQ(a.Metin(), d.metin) << d.tuslar;
    EXPECT_EQ(TarihDegeri(a.alan.Value()), d.deger) << d.tuslar;
    EXPECT_EQ(a.alan.HataliTarih(), a.Metin() == TarihGirdisi::Maske) << d.tuslar;
  }
  Alanlar a(xtext::Tip::Tarih, 0, 0);
  a.Yaz("12032005\n");
  EXPECT_EQ(a.alan.toolTip(), " 12 Mart 2005 Cumartesi ");
}

TEST(Xtext, BindsToAFieldOfARecord) {
  EkranOrtami ortam;
  Imlec& firma = ortam.oturum.depo.firma;
  ASSERT_TRUE(firma.IlkKayit());
  xtext unvan, kurtar;
  unvan.RecordField("unvan");
  kurtar.xTextBicim(xtext::Tip::Tarih, 0);
  kurtar.RecordField("kurtar");
  kurtar.DegerKoy(Tarih(2001, 2, 3));
  unvan.DegerKoy(std::string("Çağ İşi"));
  firma.KayitDuzelt();
  EXPECT_TRUE(unvan.SetRecord(firma));
  EXPECT_TRUE(kurtar.SetRecord(firma));
  QTest::keyClicks(&kurtar, "3");
  EXPECT_FALSE(kurtar.SetRecord(firma)) << "a text that is no date writes nothing";
  ASSERT_TRUE(firma.KayitYaz());
  unvan.xReset();
  unvan.GetRecord(firma);
  kurtar.GetRecord(firma);
  EXPECT_EQ(unvan.text(), "Çağ İşi");
  EXPECT_EQ(kurtar.text(), "03.02.2001");
}

}  // namespace
}  // namespace belvani::test
