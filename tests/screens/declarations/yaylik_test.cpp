// The monthly declaration by keys: calculated, edited, declared.
#include "screens/declarations/yaylik.h"

#include <QHeaderView>
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "ekran/ortam.h"
#include "screens/declarations/intefrm.h"
#include "screens/declarations/yzckopy.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

// Two insured people with a finished month, of a company that may declare.
struct BildirgeOrtami : EkranOrtami {
  BildirgeOrtami() {
    Imlec& firma = oturum.depo.firma;
    firma.IlkKayit();
    firma.KayitDuzelt();
    for (const auto& [alan, deger] : {std::pair("unvan", "Çınar Tekstil"),
                                      {"sektor", "2"},
                                      {"meslek", "1711"},
                                      {"sube", "0101"},
                                      {"dosya", "0045678"},
                                      {"il", "016"},
                                      {"ilce", "09"},
                                      {"kontrol", "47"},
                                      {"kanun", "05510"},
                                      {"adr1", "Atatürk Cad. 5"}})
      firma.AlanYaz(alan, std::string(deger));
    EXPECT_TRUE(firma.KayitYaz() && FirmaYukle(oturum));
    KisiEkle("001", "Işıl", "10000000146", 1000);
    KisiEkle("002", "Şükrü", "10000000214", 1500);
  }

  void KisiEkle(const char* kod, const char* ad, const char* tcno, double matrah) {
    Imlec& sicil = oturum.depo.sicil;
    sicil.KayitEkle();
    sicil.AlanYaz("kod", std::string(kod));
    sicil.AlanYaz("adi", std::string(ad));
    sicil.AlanYaz("soyadi", std::string("Gün"));
    sicil.AlanYaz("sskno", std::string("34012004") + kod);
    sicil.AlanYaz("kanun", std::string("05510"));
    sicil.AlanYaz("girtar", Tarih(2008, 1, 1));
    EXPECT_TRUE(sicil.KayitYaz());
    Imlec& kimlik = oturum.depo.kimlik;
    kimlik.KayitEkle();
    kimlik.AlanYaz("kod", std::string(kod));
    kimlik.AlanYaz("tcno", std::string(tcno));
    EXPECT_TRUE(kimlik.KayitYaz());
    Imlec& brd = oturum.depo.brd;
    brd.KayitEkle();
    brd.AlanYaz("kod", std::string(kod));
    brd.AlanYaz("yil", std::int64_t(2009));
    brd.AlanYaz("ay", std::int64_t(7));
    brd.AlanYaz("no", std::int64_t(1));
    brd.AlanYaz("ng", std::int64_t(30));
    brd.AlanYaz("sskmatrah", Tutar(matrah));
    brd.AlanYaz("sskmatrahisveren", Tutar(matrah));
    EXPECT_TRUE(brd.KayitYaz());
  }
};

TEST(Yaylik, CalculatedCorrectedAndDeclared) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  EXPECT_EQ(ortam.Odak(), "yil");
  ortam.Bas(Qt::Key_F11);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Bildirge Hesaplatılmamış"));
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(AlanMetni(form, "sigortali"), "2");
  EXPECT_EQ(AlanMetni(form, "gun"), "60");
  EXPECT_EQ(AlanMetni(form, "saglik"), "2,500.00");
  EXPECT_EQ(form.findChild<QLabel*>("prim2")->text(), "312.50");  // 12.5 %

  // A row changed in the grid: totals, premiums and the file follow it.
  auto& liste = *form.findChild<dclist*>("dclist1");
  liste.setFocus();
  liste.HucreyeGit(0, "gun");
  ortam.Yaz("29");
  ASSERT_TRUE(liste.OkUpdateData());
  EXPECT_EQ(AlanMetni(form, "gun"), "59");
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "bildirge.xml";
  ortam.bildirim.cevap = false;  // not to the web page
  AlanBul(form, "yil").Odak()->setFocus(Qt::TabFocusReason);
  ortam.Bas(Qt::Key_F11);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: XML Dosya Hazırlandı", StartsWith("Soru: E-Bildirgeyi")));
  const std::string xml = DosyaOku(*ortam.dialoglar.dosya).value_or("");
  EXPECT_THAT(xml, HasSubstr("PEK=\"1000\" PRIM_IKRAMIYE=\"0\" GUN=\"29\""));
  EXPECT_THAT(xml, HasSubstr("AD=\"\xDE\xFCkr\xFC\""));

  // The base is typed over: only the premiums change.
  YaziBul(form, "saglik").setFocus();
  ortam.Yaz("1000\n");
  EXPECT_EQ(form.findChild<QLabel*>("prim2")->text(), "125.00");
  // The second row goes.
  liste.setFocus();
  liste.ChngSat(1);
  ortam.Bas(Qt::Key_Delete);
  EXPECT_EQ(AlanMetni(form, "sigortali"), "1");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(AlanMetni(form, "sigortali"), "2") << "calculated anew out of the store";
}

// The columns of all rows by their numbers: "002:30:1500.00".
std::vector<std::string> Satirlar(const yaylik& form) {
  std::vector<std::string> satirlar;
  for (const auto& s : form.Bildirge().Tamami().satirlar)
    satirlar.push_back(s.sskno + ":" + (s.gun ? std::to_string(*s.gun) : "") + ":" +
                       (s.primkazanc ? YalinMetin(*s.primkazanc) : ""));
  return satirlar;
}

void BasligaTikla(dclist& liste, const char* kolon) {
  const int sira = liste.Model().KolonBul(QString(kolon));
  QTest::mouseClick(liste.horizontalHeader()->viewport(), Qt::LeftButton, {},
                    {liste.horizontalHeader()->sectionViewportPosition(sira) + 5, 5});
}

// Whatever is done between two edits, each of them reaches the row that it was typed into.
TEST(Yaylik, AnEditSurvivesSortingAndDeleting) {
  BildirgeOrtami ortam;
  ortam.KisiEkle("003", "Ömer", "10000000382", 2000);
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  auto& liste = *form.findChild<dclist*>("dclist1");
  liste.setFocus();
  liste.HucreyeGit(0, "gun");
  ortam.Yaz("11");  // the cell is still open when the order changes
  for (int i = 0; i < 2; ++i) BasligaTikla(liste, "primkazanc");
  EXPECT_EQ(liste.Model().GosterilenSatir(0), 2) << "the largest base first";
  EXPECT_THAT(Satirlar(form), ElementsAre("34012004001:11:1000", "34012004002:30:1500", "34012004003:30:2000"));
  EXPECT_EQ(AlanMetni(form, "gun"), "71");

  liste.HucreyeGit(1, "gun");
  ortam.Yaz("12\n");
  ortam.Bas(Qt::Key_Escape);
  liste.setFocus();
  liste.ChngSat(0);
  ortam.Bas(Qt::Key_Delete);
  EXPECT_THAT(Satirlar(form), ElementsAre("34012004002:12:1500", "34012004003:30:2000"));
  // A new row, begun and left, then one that is filled.
  ortam.Bas(Qt::Key_Insert);
  ortam.Bas(Qt::Key_Escape);
  ortam.Bas(Qt::Key_Up);
  ortam.Bas(Qt::Key_Insert);
  ortam.Yaz("1\n777\n");
  liste.HucreyeGit(1, "gun");
  ortam.Yaz("13\n");
  EXPECT_THAT(Satirlar(form), ElementsAre("34012004002:12:1500", "34012004003:13:2000", "777::"));
  EXPECT_EQ(form.Bildirge().Tamami().satirlar.back().sigkol, 1);
  EXPECT_TRUE(form.isVisible());
}

TEST(Yaylik, WhatIsNoNumberIsRefusedAtItsCell) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  auto& liste = *form.findChild<dclist*>("dclist1");
  liste.setFocus();
  liste.HucreyeGit(0, "sigkol");
  ortam.Yaz("x\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Bir Sayi Girmelisiniz."));
  ortam.Bas(Qt::Key_Escape);
  liste.HucreyeGit(0, "girtar");
  ortam.Yaz("31022009\n");
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Bilgi: Hatalı Tarih Girildi.\nDüzeltiniz."));
  ortam.Bas(Qt::Key_Escape);
  EXPECT_EQ(liste.TextByName(0, "sigkol"), "01");
  EXPECT_EQ(liste.TextByName(0, "girtar"), "");
  // To walk through cells that show nothing is no edit, and no reason to add up anew.
  YaziBul(form, "saglik").setFocus();
  ortam.Yaz("1000\n");
  liste.setFocus();
  liste.HucreyeGit(0, "ui");
  ortam.Yaz("\n\n\n\n\n\n");
  EXPECT_EQ(liste.TextByName(0, "ui"), "0");
  EXPECT_EQ(AlanMetni(form, "saglik"), "1,000.00");
}

// The check's fault takes its user to the cell.
TEST(Yaylik, AFaultLeadsToItsCell) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  auto& liste = *form.findChild<dclist*>("dclist1");
  liste.setFocus();
  liste.HucreyeGit(1, "gun");
  ortam.Yaz("31\n");
  ortam.Bas(Qt::Key_Escape);
  AlanBul(form, "yil").Odak()->setFocus(Qt::TabFocusReason);
  ortam.Bas(Qt::Key_F11);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre("Uyarı: Kazanç Gün 1 il 30 gün arasında olmalı\nŞükrü Gün"));
  EXPECT_EQ(ortam.Odak(), "dclist1");
  EXPECT_EQ(liste.CurSat(), 1);
  EXPECT_EQ(liste.CurrentCol(), liste.Model().KolonBul(u"gun"));
}

// What else the check has found is one list, at the fields of the people's records.
TEST(Yaylik, WhatTheCheckHasFoundIsOneList) {
  BildirgeOrtami ortam;
  ortam.oturum.depo.db.IcMotor().Calistir(
      "update sicil set soyadi = ''; update kimlik set tcno = 'x' where kod = '002'");
  ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  ortam.Bas(Qt::Key_F11);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: Sigortalı Soyismi Yok"});
  Form& liste = *ortam.gosterici.formlar.back();
  ASSERT_EQ(Utf8(liste.Kelime()), "kusurlar");
  const auto& satirlar = *liste.findChild<dclist*>();
  QStringList hucreler;
  for (int i = 0; i < satirlar.ListCount(); ++i)
    for (const char* ad : {"derece", "kod", "alan"}) hucreler += satirlar.TextByName(i, ad);
  EXPECT_EQ(hucreler, (QStringList{"Hata", "001", "Soyadı", "Uyarı", "002", "TC Kimlik", "Hata", "002", "Soyadı"}));
}

TEST(Yaylik, APaperNeedsAChoice) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  ortam.Bas(Qt::Key_F8);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Tümünü Birden Alamazsınız\nSigorta Kollarına Göre Alınız")));
  AlanBul(form, "belgeTuru").Odak()->setFocus();
  ortam.Bas(Qt::Key_Down);
  AlanBul(form, "kanun").Odak()->setFocus();
  ortam.Bas(Qt::Key_Down);
  EXPECT_EQ(form.Bildirge().Tamami().satirlar.size(), 2u) << "a change of a list calculates";
  EkranOrtami::ModaldaYap([&] { ortam.Bas(Qt::Key_F8); });
  ortam.Bas(Qt::Key_F8);
  auto* resim = dynamic_cast<yzckopy*>(ortam.gosterici.formlar.back().get());
  ASSERT_NE(resim, nullptr) << "the drawn form comes up to be looked at";

  // A value moved and changed on the form is printed so, and nothing else changes.
  FormYuzeyi& yuzey = resim->Yuzey();
  const FormAlani once = yuzey.Sayfalar()[0].alanlar[0];
  ortam.Bas(Qt::Key_Right);
  ortam.Yaz("7x\n");
  EXPECT_EQ(yuzey.Sayfalar()[0].alanlar[0].deger, "7x");
  EXPECT_NEAR(yuzey.Sayfalar()[0].alanlar[0].yer.x, once.yer.x + 0.5, 1e-6);
  EkranOrtami::ModaldaYap([&] { ortam.Bas(Qt::Key_F8); });
  ortam.Bas(Qt::Key_F8);
  ASSERT_EQ(ortam.kuyruk.isler.size(), 1u);
  EXPECT_EQ(ortam.kuyruk.isler[0].ad, "AYLIK BİLDİRGE EK-3");
}

TEST(Intefrm, TheAddressIsSavedAndOpened) {
  EkranOrtami ortam;
  auto& form = ortam.Ac<intefrm>("/tmp/a/bildirge.xml");
  ortam.Yaz("ftp://a");
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("http:// veya https://")));
  YaziBul(form, "adres").selectAll();
  ortam.Yaz("https://ornek.gov.tr/b");
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.acilanlar, ElementsAre("https://ornek.gov.tr/b"));
  EXPECT_EQ(AlanMetni(ortam.Ac<intefrm>("x"), "adres"), "https://ornek.gov.tr/b");
}

}  // namespace
}  // namespace belvani::test
