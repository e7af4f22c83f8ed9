#include "screens/payroll/brdhazir.h"

#include <QScrollBar>
#include <QTextBrowser>

#include "core/store/satirlar.h"
#include "ekran/ortam.h"
#include "payroll/hazirlik/tanimlar.h"
#include "personnel/kart.h"

namespace belvani::test {
namespace {

struct Bordro : EkranOrtami {
  Bordro() {
    Kisi("001", "Işıl", Tarih(2007, 3, 1));
    Kisi("002", "Gökçe", Tarih(2009, 7, 20));
    Kisi("003", "Ümit", Tarih(2009, 8, 1));  // does not belong to July
    KazancBayraklari acik = parametreler.firma.Parametreler().varsayilan;
    acik.k[2] = 15;  // paid leave
    acik.y[0] = 15;
    EXPECT_TRUE(KazancGrubuKaydet({oturum, parametreler, bildirim}, oturum.firma.ondeger, acik));
    bildirim.Al();
  }
  void Kisi(const char* kod, const char* adi, Tarih giris) {
    Sicil s;
    s.kod = kod;
    s.adi = adi;
    s.soyadi = "Çağlar";
    s.ucret = Tarih(2007, 3, 1) == giris ? Tutar(1250) : Tutar(900);
    s.girtar = giris;
    s.agi = true;
    EXPECT_TRUE(KartKaydet(oturum, {.simdi = s}));
  }
  std::vector<Brd> Kayitlar() { return KayitlariOku<Brd>(oturum.depo.db.IcMotor(), "order by kod"); }
};

TEST(Brdhazir, AMonthIsTypedFromTheFirstPersonToTheLast) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  EXPECT_EQ(o.Odak(), "kod");
  o.Yaz("001\n");
  EXPECT_EQ(o.Odak(), "ng");
  EXPECT_EQ(AlanMetni(form, "net"), "945.57");
  o.Yaz("20\n\n6\n");  // 20 days worked, 4 rest days, 6 of paid leave
  EXPECT_EQ(o.Odak(), "yrd01") << "lines that the group does not open are passed over";
  o.Yaz("100");
  EXPECT_EQ(AlanMetni(form, "yardimlar"), "") << "an amount counts when the field is left";
  o.Yaz("\n");
  EXPECT_EQ(o.Odak(), "kod");
  ASSERT_EQ(o.Kayitlar().size(), 1u) << "coming back to the code saves";
  EXPECT_EQ(o.Kayitlar()[0].brutkaz, Tutar(1350));
  EXPECT_EQ(o.Kayitlar()[0].ui, 6);
  EXPECT_EQ(AlanMetni(form, "kod"), "002");

  // Someone hired in the month: his days stand in the first line, the rest are outside his period.
  o.Yaz("\n");
  EXPECT_EQ(AlanMetni(form, "ng"), "12");
  EXPECT_EQ(AlanMetni(form, "ht"), "");
  EXPECT_TRUE(form.Giris().CalismaPaneli().has_value());
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Bordro Hazırlık Sona Erdi"});
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(o.Kayitlar().size(), 2u);
}

TEST(Brdhazir, APersonPickedInTheMiddleOfAnEntryComesNext) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  o.Yaz("001\n");
  o.Bas(Qt::Key_Tab);
  const auto sec = [&](const char* kod) {
    o.ModaldaYap([&o, kod] { o.Yaz((std::string(kod) + "\n").c_str()); });
    o.Bas(Qt::Key_F2);
  };
  sec("003");
  EXPECT_EQ(o.Kayitlar().size(), 1u) << "the one who was being entered is saved";
  EXPECT_EQ(AlanMetni(form, "kod"), "003") << "and not whoever follows him";
  o.Yaz("002\n");
  o.Yaz("10\n");  // days are missing, without a reason
  sec("001");
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Eksik Gün Bildirildi\nEksik Gün Sebebini giriniz"}) << "told once";
  EXPECT_EQ(AlanMetni(form, "kod"), "002");
  EXPECT_EQ(form.Giris().Kod(), "002") << "an entry that cannot close stays";
  EXPECT_EQ(AlanMetni(form, "ng"), "10");
}

TEST(Brdhazir, MissingDaysNeedTheirReason) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  o.Yaz("001\n20\n\n\n\n");
  EXPECT_EQ(o.Odak(), "sebep");
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Eksik Gün Bildirildi\nEksik Gün Sebebini giriniz"});
  EXPECT_TRUE(o.Kayitlar().empty());
  EXPECT_EQ(o.Odak(), "sebep");
  o.Yaz("01\n");  // typing chooses from the list
  EXPECT_EQ(o.Odak(), "ucretsizizin");
  EXPECT_EQ(AlanMetni(form, "ucretsizizin"), "7") << "July has 31 days";
  o.Yaz("6");
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al().size(), 1u) << "24 and 6 do not fill the month";
  EXPECT_TRUE(o.Kayitlar().empty());
  AlanBul(form, "ucretsizizin").Odak()->setFocus();
  o.Yaz("7");
  o.Bas(Qt::Key_F5);
  ASSERT_EQ(o.Kayitlar().size(), 1u);
  EXPECT_EQ(o.Kayitlar()[0].eksiksebebi, 1);
  EXPECT_EQ(o.Kayitlar()[0].ucretsizizin, 7);
}

TEST(Brdhazir, SavingAgainAsksAndKeepsTheOldRates) {
  Bordro o;
  o.Ac<brdhazir>(o.parametreler);
  o.Yaz("001\n");
  o.Bas(Qt::Key_F5);
  ASSERT_EQ(o.Kayitlar().size(), 1u);
  o.parametreler.yasal.oranlar.IsciOran[0].mal = Tek(19);
  ++o.parametreler.yasalSurumu;
  o.Yaz("001\n25\n5\n");
  o.bildirim.cevap = true;
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Soru: Puantaj Yeniden Kaydedilecek ?"});
  ASSERT_EQ(o.Kayitlar().size(), 1u);
  EXPECT_EQ(o.Kayitlar()[0].ng, 25);
  EXPECT_EQ(o.Kayitlar()[0].sskiscior, Tek(14));
}

TEST(Brdhazir, DebtGrossedUpAllowanceAndReasonsOfAmounts) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  o.Yaz("001\n\n\n\n100");
  o.Bas(Qt::Key_F9);
  EXPECT_EQ(AlanMetni(form, "yrd01"), "139.57") << "100 net is that much gross";
  o.ModaldaYap([&] {
    o.Yaz("99999\n");
    EXPECT_EQ(o.bildirim.Al().size(), 1u) << "above the net";
    o.Yaz("45.57\n");
  });
  o.Bas(Qt::Key_B, Qt::ControlModifier);
  EXPECT_EQ(AlanMetni(form, "ozelKesinti"), "45.57");
  EXPECT_EQ(o.Odak(), "yrd01");
  o.Bas(Qt::Key_F4);
  const auto* neden = form.findChild<QTextBrowser*>();
  EXPECT_TRUE(neden->toPlainText().contains("Net = brüt")) << neden->toPlainText().toStdString();
  EXPECT_TRUE(neden->toPlainText().contains(YaziBul(form, "net").text()));
  EXPECT_TRUE(neden->toPlainText().contains("A.G.İ.'nin damga vergisi 0.")) << "and what the papers say instead";
  AlanBul(form, "gvtutar").Odak()->setFocus();
  QCoreApplication::processEvents();
  EXPECT_TRUE(neden->toPlainText().contains("Dilimin üstü 8,700.00")) << neden->toPlainText().toStdString();
  AlanBul(form, "brut").Odak()->setFocus();
  QCoreApplication::processEvents();
  for (const char* addend : {"Normal Gün", "Hafta Tatili", "Prim/İkramiye", "SSK, gelir vergisi, damga vergisi"})
    EXPECT_TRUE(neden->toPlainText().contains(addend)) << addend;
  const int once = neden->verticalScrollBar()->value();
  o.Bas(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_GT(neden->verticalScrollBar()->value(), once) << "the rest is read by keys";
  o.Bas(Qt::Key_F4);
  EXPECT_EQ(o.Odak(), "kod");
  ASSERT_EQ(o.Kayitlar().size(), 1u) << "what was entered before the walk over the results is saved";
  EXPECT_EQ(o.Kayitlar()[0].borckes, Tutar(45.57));
  EXPECT_EQ(AlanMetni(form, "kod"), "002");
}

TEST(Brdhazir, ADetourOverListsAndResultsLosesNoClosing) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  o.Bas(Qt::Key_Home);  // 001 comes up, and nobody enters him
  for (int i = 0; i < 2; ++i) o.Bas(Qt::Key_F4);
  EXPECT_EQ(o.Odak(), "kod");
  o.Bas(Qt::Key_F8);
  o.Bas(Qt::Key_F5);
  EXPECT_TRUE(o.Kayitlar().empty()) << "the results alone close nothing";
  o.Yaz("\n\n");
  EXPECT_EQ(o.Odak(), "ht");
  o.Bas(Qt::Key_F4);
  o.Bas(Qt::Key_F8);
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.Odak(), "kod");
  EXPECT_EQ(o.Kayitlar().size(), 1u);
  EXPECT_EQ(AlanMetni(form, "kod"), "002");
}

TEST(Brdhazir, ARateIsTypedOverAndAnUnknownCodeAnswered) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  o.Yaz("001\n");
  AlanBul(form, "sskiscior").Odak()->setFocus();
  QCoreApplication::processEvents();
  o.Yaz("10");
  o.Bas(Qt::Key_F5);
  ASSERT_EQ(o.Kayitlar().size(), 1u);
  EXPECT_EQ(o.Kayitlar()[0].sskiscior, Tek(10));
  EXPECT_EQ(o.Kayitlar()[0].sskkesinti, Tutar(125)) << "10 % of 1250";
  o.bildirim.Al();
  o.Yaz("999\n");
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Bu kodla personel yok: 999"});
  EXPECT_EQ(o.Odak(), "kod");
}

TEST(Brdhazir, MassPreparationAndDeletion) {
  Bordro o;
  auto& form = o.Ac<brdhazir>(o.parametreler);
  o.Bas(Qt::Key_F8);
  o.Bas(Qt::Key_Down);
  o.Bas(Qt::Key_F8);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Bilgi: Bordro Hazırlık Tamamlandı\n2 kişi kaydedildi, 1 kişi dönem dışı, 0 kişi netsiz"});
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(o.Kayitlar().size(), 2u);

  o.Ac<brdhazir>(o.parametreler);
  o.Bas(Qt::Key_End);
  o.Bas(Qt::Key_PageUp);
  o.Bas(Qt::Key_F7);
  EXPECT_EQ(o.bildirim.Al(), Iletiler{"Soru: Kayıt Silinecek Eminmisiniz ?\n002 Gökçe Çağlar, Temmuz 2009"});
  ASSERT_EQ(o.Kayitlar().size(), 1u);
  EXPECT_EQ(o.Kayitlar()[0].kod, "001");
  o.Bas(Qt::Key_F7, Qt::ControlModifier);
  EXPECT_TRUE(o.Kayitlar().empty());
  o.bildirim.Al();
  o.Bas(Qt::Key_F8, Qt::ControlModifier);
  ASSERT_EQ(o.bildirim.iletiler.size(), 2u);
  EXPECT_EQ(o.bildirim.iletiler[1], "Bilgi: Ayın Bordrosu Geri Alındı: 1 kayıt");
  EXPECT_EQ(o.Kayitlar().size(), 1u);
}

}  // namespace
}  // namespace belvani::test
