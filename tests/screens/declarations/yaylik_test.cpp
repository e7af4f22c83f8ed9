// The monthly declaration by keys: calculated, edited, declared.
#include "screens/declarations/yaylik.h"

#include <QHeaderView>
#include <gmock/gmock.h>
#include <random>
#include <set>

#include "core/dosya.h"
#include "declarations/bildirgekagidi.h"
#include "ekran/ortam.h"
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

// What the list shows is what the declaration holds and what its file says; a row that is just being begun aside.
void ListeBildirgedir(const yaylik& form, dclist& liste, const std::string& iz) {
  const Bildirge& b = form.Bildirge().Tamami();
  std::map<int, int> gosterilen;
  int bos = 0;
  for (int i = 0; i < liste.ListCount(); ++i) {
    const int no = liste.Model().Kimlik(i);
    if (no == 0) {
      ++bos;
      EXPECT_EQ(i, liste.CurSat()) << "an empty row was left behind\n" << iz;
      continue;
    }
    ++gosterilen[no];
    const BildirgeSatiri* satir = form.Bildirge().Satir(no);
    ASSERT_NE(satir, nullptr) << iz;
    for (const BildirgeKolonu& k : BildirgeKolonlari)
      EXPECT_EQ(Utf8(liste.TextByName(i, Yazi(k.ad))), HucreMetni(*satir, k, 2)) << k.ad << "\n" << iz;
  }
  EXPECT_LE(bos, 1) << iz;
  EXPECT_EQ(gosterilen.size(), b.satirlar.size()) << iz;
  std::set<std::string> kodlar;
  std::size_t kisi = 0;
  for (const auto& satir : b.satirlar)
    if (!satir.kod.empty()) ++kisi, kodlar.insert(satir.kod);
  EXPECT_EQ(kodlar.size(), kisi) << "someone is declared twice\n" << iz;
  const std::string xml = BildirgeXml(b, {}, Yuvarlayici(2)).icerik;
  std::size_t satir = 0;
  for (auto yer = xml.find("<SIGORTALI "); yer != std::string::npos; yer = xml.find("<SIGORTALI ", yer + 1)) ++satir;
  EXPECT_EQ(satir, b.satirlar.size()) << iz;
}

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
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("düzeltmeler silinecek")));
  EXPECT_EQ(AlanMetni(form, "sigortali"), "1") << "what was edited stays unless its user lets it go";
  ortam.bildirim.cevap = true;
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(AlanMetni(form, "sigortali"), "2") << "calculated anew out of the store";
}

// Counters are typed over too, and reach the paper; what the totals show is what the calculation gave, or is marked.
TEST(Yaylik, TypedCountersHoldAndAreMarked) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  const auto isaretli = [&](const char* ad) { return YaziBul(form, ad).property("isaretli").toBool(); };
  EXPECT_FALSE(isaretli("giren"));
  YaziBul(form, "giren").setFocus();
  ortam.Yaz("4\n");
  EXPECT_TRUE(isaretli("giren"));
  EXPECT_EQ(Utf8(YaziBul(form, "giren").toolTip()), "Hesaplanan: 0");
  auto& liste = *form.findChild<dclist*>("dclist1");
  liste.setFocus();
  liste.HucreyeGit(0, "ui");
  ortam.Yaz("\n\n\n");  // zeros opened and left
  EXPECT_EQ(KagitHazirla(form.Bildirge(), ortam.oturum).toplamlar.giren, 4);
  EXPECT_FALSE(isaretli("ucretliIzinli"));
  ortam.Bas(Qt::Key_Escape);
  liste.HucreyeGit(0, "gun");
  ortam.Yaz("29\n");
  EXPECT_TRUE(isaretli("gun"));
  EXPECT_TRUE(isaretli("ucretliIzinli")) << "made anew, every row with days counts";
  EXPECT_FALSE(isaretli("saglik"));
}

// A grid that was made for another selection says so, and leaves only after it was calculated anew.
TEST(Yaylik, AnOutdatedGridIsNotDeclared) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  ortam.Bas(Qt::Key_F5);
  const QLabel& eskime = *form.findChild<QLabel*>("eskime");
  EXPECT_FALSE(eskime.isVisible());
  ortam.Yaz("2008\n");
  EXPECT_TRUE(eskime.isVisible());
  EXPECT_THAT(Utf8(eskime.text()), StartsWith("Liste Temmuz 2009, 00-Tümü, Tümü için hesaplandı"));
  ortam.bildirim.cevap = false;
  ortam.dialoglar.dosya = ortam.dizin.Yol() + "bildirge.xml";
  for (const Qt::Key cikis : {Qt::Key_F8, Qt::Key_F9, Qt::Key_F11}) {
    ortam.Bas(cikis);
    EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Bildirge Yeniden Hesaplansın mı ?")));
  }
  EXPECT_FALSE(std::filesystem::exists(*ortam.dialoglar.dosya));
  AlanBul(form, "yil").Odak()->setFocus(Qt::TabFocusReason);
  ortam.Yaz("2009\n");
  EXPECT_FALSE(eskime.isVisible()) << "the selection is the grid's again";
  // A list changed over edits asks; refused, the grid stays and is outdated.
  auto& liste = *form.findChild<dclist*>("dclist1");
  liste.setFocus();
  liste.HucreyeGit(0, "gun");
  ortam.Yaz("29\n");
  ortam.Bas(Qt::Key_Escape);
  AlanBul(form, "belgeTuru").Odak()->setFocus();
  ortam.Bas(Qt::Key_Down);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("düzeltmeler silinecek")));
  EXPECT_EQ(form.Bildirge().Tamami().satirlar[0].gun, 29);
  EXPECT_TRUE(eskime.isVisible());
  ortam.Bas(Qt::Key_Escape);
  EXPECT_THAT(ortam.bildirim.Al(), ElementsAre(HasSubstr("Ekran Kapatılsın mı ?")));
  EXPECT_TRUE(form.isVisible()) << "nothing edited goes unasked";
}

// Another month's law is told before the declaration is priced with it.
TEST(Yaylik, TheInstalledLawIsAskedAbout) {
  BildirgeOrtami ortam;
  auto& form = ortam.Ac<yaylik>(ortam.parametreler);
  AlanBul(form, "ay").Odak()->setFocus();
  ortam.bildirim.cevap = false;
  ortam.Bas(Qt::Key_Up, Qt::NoModifier);
  for (int i = 0; i < 5; ++i) ortam.Bas(Qt::Key_Up);  // January 2009 had another floor
  EXPECT_THAT(ortam.bildirim.Al(), testing::Contains(HasSubstr("Ocak 2009 parametreleri getirilsin mi ?")));
  ortam.Bas(Qt::Key_F5);
  EXPECT_THAT(ortam.bildirim.Al(), testing::IsEmpty()) << "asked once a month";
}

// Whatever keys are pressed: the rows shown are those of the declaration and of its file, and nobody is in it twice.
TEST(Yaylik, RandomKeysNeverPartListAndDeclaration) {
  const std::vector<std::function<void()>> tuslar = {[] { EkranOrtami::Bas(Qt::Key_Down); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Up); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Escape); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Insert); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Delete); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Return); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Tab); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Backtab); },
                                                     [] { EkranOrtami::Bas(Qt::Key_F5); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Right); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Home); },
                                                     [] { EkranOrtami::Bas(Qt::Key_PageDown); },
                                                     [] { EkranOrtami::Yaz("1"); },
                                                     [] { EkranOrtami::Yaz("27"); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Down); },
                                                     [] { EkranOrtami::Bas(Qt::Key_Insert); }};
  for (unsigned tohum = 1; tohum <= 4; ++tohum) {
    BildirgeOrtami ortam;
    ortam.KisiEkle("003", "Ömer", "10000000382", 2000);
    ortam.KisiEkle("004", "Ece", "10000000450", 2500);
    auto& form = ortam.Ac<yaylik>(ortam.parametreler);
    ortam.Bas(Qt::Key_F5);
    auto& liste = *form.findChild<dclist*>("dclist1");
    std::mt19937 zar(tohum);
    std::string iz = "seed " + std::to_string(tohum) + ":";
    for (int i = 0; i < 150; ++i) {
      if (!liste.hasFocus() && !liste.isAncestorOf(QApplication::focusWidget())) liste.setFocus();
      const std::size_t n = zar() % tuslar.size();
      iz += " " + std::to_string(n);
      if (zar() % 12 == 0) BasligaTikla(liste, zar() % 2 == 0 ? "gun" : "adi");
      tuslar[n]();
      QCoreApplication::processEvents();
      ASSERT_TRUE(form.isVisible()) << iz;
      ListeBildirgedir(form, liste, iz);
      if (testing::Test::HasFailure()) return;
    }
  }
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
  ortam.Bas(Qt::Key_F8);  // the dialog has been answered: nothing asks again
  ASSERT_EQ(ortam.kuyruk.isler.size(), 1u);
  EXPECT_EQ(ortam.kuyruk.isler[0].ad, "AYLIK BİLDİRGE EK-3");
}

}  // namespace
}  // namespace belvani::test
