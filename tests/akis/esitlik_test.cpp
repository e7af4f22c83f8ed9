// Screen and command line over the same company full of faults: whatever the command prints on standard error, the
// desktop has said as well, in a box or in its list of warnings and faults.
#include <QAbstractButton>
#include <QComboBox>
#include <gmock/gmock.h>
#include <sstream>

#include "cli/calistir.h"
#include "core/dosya.h"
#include "core/session/oturum.h"
#include "ekran/ortam.h"
#include "screens/declarations/yaylik.h"
#include "screens/payroll/brdhazir.h"
#include "screens/personnel/kontfrm.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

struct KusurluSirket : EkranParcalari {
  CliKomutu komut;

  KusurluSirket() {
    Tamam("sirket-ac KUSUR --kullanici ayse --sifre gizli --unvan 'Şık Örgü' --yil 2009 --ay 7");
    Tamam("parametre-kur --donem 2009-07");
    komut.Yaz("f.csv",
              "adr1;sektor;meslek;sube;dosya;il;ilce;kontrol;kanun\nÜmraniye;2;1721;0101;1034567;34;12;07;05510\n");
    Tamam("tanim-al KUSUR firma @f.csv");
    std::string kisiler = "kod;adi;soyadi;ucret;girtar;tcno;sskno;kanun\n";
    for (int i = 1; i <= 16; ++i) {
      const std::string no = std::to_string(i + 10);
      kisiler += "0" + no + ";Işıl;Çağ" + no + ";1000;01.01.2009;10000000146;34010" + no + ";05510\n";
    }
    komut.Yaz("p.csv", kisiler);
    Tamam("personel-al KUSUR @p.csv");
    oturum.PrgPath = oturum.DataPath = komut.dizin.Yol() + "veri/";
    EXPECT_TRUE(SirketAc(oturum, "KUSUR"));
    EXPECT_TRUE(OturumAc(oturum, "KUSUR", "ayse", "gizli"));
    parametreler.YasalYukle(oturum.DataPath);
    EXPECT_TRUE(parametreler.firma.Yukle());
    Sql("update sicil set hesap = 'YOK' where kod = '011'");
    Sql("update sicil set girtar = null where kod = '012'");
    Sql("update kimlik set tcno = '123' where kod = '014'");
    Sql("update sicil set adi = 'Ali & Co' where kod in ('015', '016')");
    // More people without an identity than a line of the screen holds.
    Sql("delete from kimlik where kod > '016'");
    bildirim.Al();
  }

  ~KusurluSirket() { gosterici.formlar.clear(); }  // before the directory that they stand on

  void Sql(const char* komutMetni) { oturum.depo.db.IcMotor().Calistir(komutMetni); }
  void Tamam(const std::string& degerler) {
    const Cikti c = komut(degerler);
    EXPECT_EQ(c.durum, 0) << degerler << ": " << c.mesaj;
  }

  // All that the desktop has said since the last call: boxes, and the rows of its lists of findings.
  std::string Soylenen() {
    std::string metin;
    for (const std::string& ileti : bildirim.Al()) metin += ileti + "\n";
    for (const auto& form : gosterici.formlar) {
      if ((form->Kelime() != "kusurlar" && form->Kelime() != "kontfrm") || !form->isVisible()) continue;
      dclist& liste = *form->findChild<dclist*>();
      const int son = liste.Model().columnCount() - 1;
      for (int i = 0; i < liste.ListCount(); ++i)
        metin += Utf8(liste.TextByName(i, "kod") + " " + liste.Text(i, son)) + "\n";
    }
    return metin;
  }
};

// The words of a line on standard error, without what only a line needs: its degree, the answer to its question.
std::string Yalin(std::string satir) {
  for (const std::string on : {"Uyarı: ", "Hata: "})
    if (satir.starts_with(on)) satir.erase(0, on.size());
  if (const auto yer = satir.find(" (evet)"); yer != std::string::npos) satir.resize(yer);
  return satir;
}

// Lines of the command that the desktop has not said. "011: metin" is a row of its lists.
std::vector<std::string> Eksikler(const std::string& mesaj, const std::string& ekran) {
  std::vector<std::string> eksikler;
  std::istringstream satirlar(mesaj);
  for (std::string satir; std::getline(satirlar, satir);) {
    satir = Yalin(satir);
    if (satir.empty() || ekran.find(satir) != std::string::npos) continue;
    const auto ayrac = satir.find(": ");
    const std::string kod = satir.substr(0, ayrac);
    const std::string metin = ayrac == std::string::npos ? "" : satir.substr(ayrac + 2);
    if (!metin.empty() && ekran.find(kod + " " + metin) != std::string::npos) continue;
    eksikler.push_back(satir);
  }
  return eksikler;
}

TEST(Esitlik, WhatTheMassRunPrintsStandsInTheListOfTheScreen) {
  KusurluSirket o;
  const Cikti c = o.komut("hazirla KUSUR --yil 2009 --ay 7");
  EXPECT_THAT(c.mesaj, testing::AllOf(testing::HasSubstr("011"), testing::HasSubstr("012")));
  o.gosterici.SerbestGoster(std::make_unique<brdhazir>(o.ekran, o.parametreler));
  Form& form = *o.gosterici.formlar.back();
  QAbstractButton* puantaj = nullptr;
  for (auto* dugme : form.findChildren<QAbstractButton*>())
    if (dugme->text().startsWith("Puantaj")) puantaj = dugme;
  ASSERT_NE(puantaj, nullptr);
  for (auto* kaynak : form.findChildren<QComboBox*>())
    if (const int sira = kaynak->findText(QStringLiteral("Şablondan")); sira >= 0) kaynak->setCurrentIndex(sira);
  puantaj->click();
  EXPECT_THAT(Eksikler(c.mesaj, o.Soylenen()), testing::IsEmpty());
}

TEST(Esitlik, WhatTheCheckOfACompanyPrintsStandsInTheControlReport) {
  KusurluSirket o;
  o.Tamam("hazirla KUSUR --yil 2009 --ay 7");
  o.Sql("update brd set sskiscior = 13 where kod = '013'");
  o.Sql("insert into esco (kod, adi) values ('777', 'Kimsesiz')");
  const Cikti c = o.komut("denetle KUSUR");
  EXPECT_THAT(c.mesaj + c.cikti, testing::AllOf(testing::HasSubstr("011"), testing::HasSubstr("777")));
  o.gosterici.SerbestGoster(std::make_unique<kontfrm>(o.ekran));
  EXPECT_THAT(Eksikler(c.cikti.substr(c.cikti.find('\n')), o.Soylenen()), testing::IsEmpty());
}

TEST(Esitlik, WhatTheDeclarationPrintsIsSaidByTheScreen) {
  KusurluSirket o;
  o.Tamam("hazirla KUSUR --yil 2009 --ay 7");
  o.gosterici.SerbestGoster(std::make_unique<yaylik>(o.ekran, o.parametreler));
  Form& form = *o.gosterici.formlar.back();
  o.dialoglar.dosya = o.dizin.Yol() + "e.xml";
  const auto karsilastir = [&](const char* evre) {
    const Cikti c = o.komut("bildirge KUSUR --yil 2009 --ay 7 --bicim xml -o @k.xml --evet");
    EXPECT_FALSE(c.mesaj.empty());
    for (const Qt::Key tus : {Qt::Key_F5, Qt::Key_F11}) {
      QApplication::setActiveWindow(&form);
      AlanBul(form, "yil").Odak()->setFocus();
      EkranOrtami::Bas(tus);
    }
    const std::string ekran = o.Soylenen();
    for (const std::string& eksik : Eksikler(c.mesaj, ekran)) {
      // One line of the command for all people who are left out, and what it says when it has not written.
      if (eksik.starts_with("Bildirge dosyası yazılmadı")) continue;
      const std::string bas = "Kimlik bilgisi olmayanlar bildirgeye alınmadı:";
      EXPECT_TRUE(eksik.starts_with(bas)) << evre << ": the screen is silent about: " << eksik << "\n" << ekran;
      if (!eksik.starts_with(bas)) continue;
      std::istringstream kodlar(eksik.substr(bas.size()));
      for (std::string kod; kodlar >> kod;)
        EXPECT_THAT(ekran, testing::HasSubstr(kod + " Kimlik bilgisi olmadığı için")) << evre;
    }
    return c;
  };
  o.Sql("update sicil set sskno = 'x' where kod = '015'");
  EXPECT_EQ(karsilastir("refused").durum, 1);
  o.Sql("update sicil set sskno = '3401099' where kod = '015'");
  EXPECT_EQ(karsilastir("with warnings").durum, 0);
  EXPECT_EQ(o.komut.Oku("k.xml"), DosyaOku(*o.dialoglar.dosya).value_or("")) << "the same file both ways";
}

}  // namespace
}  // namespace belvani::test
