// Screens of the carry-over: the next month, a closed year, and the rows of a person: closed years, account, past
// months.
#include "screens/payroll/devir.h"

#include "ekran/kisiler.h"
#include "ekran/ortam.h"
#include "payroll/devir/aylikbilgi.h"
#include "payroll/devir/cari.h"
#include "payroll/devir/devirkaydi.h"
#include "payroll/hazirlik/hazirlik.h"
#include "screens/payroll/devkon.h"
#include "screens/payroll/kartxfrm.h"
#include "screens/payroll/otokes.h"
#include "screens/payroll/percari.h"
#include "screens/payroll/perdev.h"

namespace belvani::test {
namespace {

struct DevirEkranlari : testing::Test {
  EkranOrtami ortam;
  Oturum& o = ortam.oturum;

  void SetUp() override { IkiKisiKaydet(o); }
  void Ay(const char* kod, int yil, int ay, double matrah) {
    Brd b;
    b.kod = kod;
    b.yil = std::int16_t(yil);
    b.ay = std::uint8_t(ay);
    b.no = 1;
    b.gvmatrah = Tutar(matrah);
    ASSERT_TRUE(BordroKaydet(o.depo.db.IcMotor(), {.simdi = b}));
  }
  void Sql(const char* komut) { o.depo.db.IcMotor().Calistir(komut); }
  static std::string Hucre(const dclist& liste, int satir, const char* kolon) {
    return Utf8(liste.TextByName(satir, kolon));
  }
};

TEST_F(DevirEkranlari, TheCompanyGoesOnByOneMonth) {
  ortam.DonemYaz(2008, 12);
  auto& form = ortam.Ac<devir>(ortam.parametreler);
  EXPECT_EQ(AlanMetni(form, "simdiki"), " Aralık 2008 ");
  EXPECT_EQ(AlanMetni(form, "gecilecek"), " Ocak 2009 ");
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_F5);
  EXPECT_TRUE(form.isVisible());
  EXPECT_EQ(o.firma.firmayil, 2008);
  ortam.bildirim.cevap = true;
  ortam.Bas(Qt::Key_Return);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(ortam.bildirim.Al().back(), "Soru: Şirket Dönemini Değiştirmeye Eminmisiniz ?");
  EXPECT_EQ(o.firma.firmaay, 1);
  o.firma = {};
  FirmaYukle(o);
  EXPECT_EQ(o.firma.firmayil * 100 + o.firma.firmaay, 200901) << "in the store too";
}

TEST_F(DevirEkranlari, AYearIsCheckedAndTold) {
  Ay("001", 2008, 1, 100.4);
  Ay("002", 2008, 1, 200);
  auto& form = ortam.Ac<devkon>();
  ortam.Yaz("2002");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Hatalı Dönem Seçilmiş.."});
  YaziBul(form, "yil").selectAll();
  ortam.Yaz("2008");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Kontrol Tamamlandı.."});
  EXPECT_EQ(DevirBilgileri(o, "001").at(0).gvmatrah, Tutar(100.4));
  Sql("create trigger engel before update on dvr begin select raise(abort, 'x'); end; update brd set gvtutar = 10000 "
      "where "
      "kod = '002'");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(),
            (Iletiler{"Uyarı: Kod : 002\nDataBase Güncellenemedi.", "Bilgi: Kontrol Tamamlandı.."}));

  const auto ondalik = [&] {
    for (const QLabel* yazi : form.findChildren<QLabel*>())
      if (yazi->text().startsWith("Tutar Ondalık Hanesi")) return Utf8(yazi->text());
    return std::string();
  };
  EXPECT_EQ(ondalik(), "Tutar Ondalık Hanesi: 2");
  o.firma.paraonda = 0;
  form.FirmaDegisti();
  EXPECT_EQ(ondalik(), "Tutar Ondalık Hanesi: 0");
}

TEST_F(DevirEkranlari, ClosedYearsAreTypedChangedAndDeleted) {
  auto& form = ortam.Ac<perdev>();
  auto& liste = *form.findChild<dclist*>();
  ortam.Yaz("001\n");
  EXPECT_EQ(AlanMetni(form, "adsoy"), "Işıl Öz");
  ortam.Bas(Qt::Key_Insert);
  EXPECT_EQ(Hucre(liste, 0, "yil"), "2008") << "the last closed year, without a thousands mark";
  ortam.Yaz("2007\n100.5\n15\n\n\n\n\n");
  auto satirlar = DevirBilgileri(o, "001");
  ASSERT_EQ(satirlar.size(), 1u);
  EXPECT_EQ(satirlar[0].yilkod, "2007001");
  EXPECT_EQ(satirlar[0].gvtutar, Tutar(15));
  liste.HucreyeGit(0, "yil");
  ortam.Yaz("2006\n");
  ortam.Bas(Qt::Key_F5);
  QCoreApplication::processEvents();
  EXPECT_EQ(DevirBilgileri(o, "001").size(), 2u);
  ASSERT_EQ(liste.ListCount(), 2) << "the row of the year that was typed over comes back";
  EXPECT_EQ(Hucre(liste, 0, "yil"), "2006");
  liste.HucreyeGit(0, "yil");
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(DevirBilgileri(o, "001").size(), 1u);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Bu Satırdaki Devir Kaydını Silecekmisiniz ?\n2006"});
  Sql("create trigger engel before update on dvr begin select raise(abort, 'x'); end");
  liste.HucreyeGit(0, "gvmatrah");
  ortam.Yaz("7\n");
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(ortam.bildirim.Al().front(), "Uyarı: Devir Bilgileri Güncellenemedi");
  EXPECT_EQ(AlanMetni(form, "kod"), "001") << "the row stays with its person";
  Sql("drop trigger engel");
}

TEST_F(DevirEkranlari, TheBalanceFollowsTheAccount) {
  auto& form = ortam.Ac<percari>();
  auto& liste = *form.findChild<dclist*>();
  ortam.Yaz("001\n");
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("01.05.2009\nx\n");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{std::string("Bilgi: ") + CariIslemSozu});
  ortam.Bas(Qt::Key_Backspace);
  ortam.Yaz("b\nAvans\n100\n");
  EXPECT_EQ(Hucre(liste, 0, "islem"), "B");
  EXPECT_EQ(Hucre(liste, 0, "bak"), "100.00");
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("15.05.2009\nA\n\n30\n");
  EXPECT_EQ(Hucre(liste, 1, "bak"), "70.00");
  EXPECT_EQ(CariOku(o, "001").at(1).islem, 65);
  liste.HucreyeGit(0, "tutar");
  ortam.Yaz("130\n");
  EXPECT_EQ(Hucre(liste, 1, "bak"), "100.00") << "below a row that was changed too";
  liste.HucreyeGit(0, "tutar");
  ortam.Bas(Qt::Key_Delete);
  QCoreApplication::processEvents();
  EXPECT_EQ(Hucre(liste, 0, "bak"), "-30.00");
  ortam.Bas(Qt::Key_PageDown);
  EXPECT_EQ(AlanMetni(form, "kod"), "002");
  EXPECT_EQ(liste.ListCount(), 0);
}

TEST_F(DevirEkranlari, PastMonthsAreStoredAsTypedAndToldWhereTheyBreak) {
  Ay("001", 2008, 3, 900);
  Sql("update brd set gocindir = 70000, sskiscior = 14, brutkaz = 10000000");
  auto& form = ortam.Ac<kartxfrm>();
  auto& liste = *form.findChild<dclist*>();
  ortam.Yaz("001\n");
  EXPECT_EQ(AlanMetni(form, "kartyili"), "2009");
  EXPECT_EQ(liste.ListCount(), 0);
  YaziBul(form, "kartyili").setFocus();
  YaziBul(form, "kartyili").selectAll();
  ortam.Yaz("2008\n");
  QCoreApplication::processEvents();
  ASSERT_EQ(liste.ListCount(), 1);
  EXPECT_EQ(Hucre(liste, 0, "gvmatrah"), "900.00");
  liste.setFocus();
  liste.HucreyeGit(0, "sskmatrah");
  ortam.Yaz("500\n80");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: 3. ay yazıldığı gibi saklandı:\nSSK işçi primi 80.00, matrah x oran "
                                          "70.00"});
  const Brd b = AylikBilgiler(o, "001", 2008).at(0);
  EXPECT_EQ(b.sskkesinti, Tutar(80));
  EXPECT_EQ(b.gocindir, Tutar(7)) << "hidden columns ride along";
  liste.HucreyeGit(0, "ogv");
  ortam.Yaz("12.5\n");
  ortam.Bas(Qt::Key_Insert);
  EXPECT_EQ(Hucre(liste, 1, "ay"), "4") << "the next month";
  ortam.Yaz("\n30\n");
  ortam.Bas(Qt::Key_F5);
  const auto aylar = AylikBilgiler(o, "001", 2008);
  ASSERT_EQ(aylar.size(), 2u);
  EXPECT_EQ(aylar[0].ogv, Tutar(12.5));
  EXPECT_EQ(aylar[1].no, 1);
  EXPECT_EQ(aylar[1].ng, 30);
  ortam.bildirim.Al();
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Soru: Bu Satırdaki Bordro Kaydını Silecekmisiniz ?\n001, Nisan.2008"});
  EXPECT_EQ(AylikBilgiler(o, "001", 2008).size(), 1u);
}

// Two screens on the same month: the second one is asked whose values shall stay.
TEST_F(DevirEkranlari, AMonthThatAnotherUserHasChangedIsNotOverwritten) {
  Ay("001", 2009, 3, 900);
  auto& form = ortam.Ac<kartxfrm>();
  auto& liste = *form.findChild<dclist*>();
  ortam.Yaz("001\n");
  liste.setFocus();
  liste.HucreyeGit(0, "ogv");
  Sql("update brd set gvmatrah = 10000");
  ortam.ModaldaYap([&] { ortam.Bas(Qt::Key_Escape); });
  ortam.Yaz("5");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(AylikBilgiler(o, "001", 2009).at(0).ogv, Tutar());
  EXPECT_EQ(Hucre(liste, 0, "ogv"), "5.00") << "what was typed stays";
}

TEST_F(DevirEkranlari, AutomaticDeductionsPointToWhereTheyAreEntered) {
  auto& form = ortam.Ac<otokes>();
  EXPECT_EQ(Utf8(form.windowTitle()), "Otomatik Kesinti");
  ortam.Bas(Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
}

// A cell taken back and its fresh row gone leave nothing to ask about.
TEST_F(DevirEkranlari, ARowThatIsGoneIsAskedAboutNoMore) {
  auto& form = ortam.Ac<perdev>();
  ortam.Yaz("a\n");
  ortam.Bas(Qt::Key_Return);
  ortam.Yaz("7");
  ortam.Bas(Qt::Key_Escape);
  ortam.Bas(Qt::Key_Escape);
  ASSERT_EQ(form.findChild<dclist*>()->ListCount(), 0);
  EXPECT_TRUE(form.KapanabilirMi());
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

}  // namespace
}  // namespace belvani::test
