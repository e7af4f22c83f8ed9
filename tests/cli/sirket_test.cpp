// A company's road on the command line: opened, filled, prepared, printed, damaged.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <sstream>

#include "calistir.h"
#include "core/store/motor.h"
#include "core/turkce.h"
#include "registry/belgeler.h"

namespace belvani {
namespace {

using test::Cikti;
using test::CliKomutu;
using testing::AllOf;
using testing::HasSubstr;

// A company with three people and the parameters of July 2009.
struct Sirket : CliKomutu {
  Sirket() {
    Tamam("sirket-ac deneme --kullanici ayşe --unvan 'Şık Örgü' --yil 2009 --ay 7");
    Tamam("parametre-kur --donem 2009-07");
    Yaz("p.csv",
        "kod;adi;soyadi;ucret;girtar;agi;tcno;sskno\n"
        "001;Işıl;Çağlar;1000;01.01.2009;1;10000000146;34-1\n"
        "002;Gökçe;Şahin;2,500.50;01.01.2009;0;;\n"
        "003;İnci;Öztürk;700;20.07.2009;1;;\n");
    Tamam("personel-al deneme @p.csv");
  }
  std::string Tamam(const std::string& degerler) const {
    const Cikti c = (*this)(degerler);
    EXPECT_EQ(c.durum, 0) << degerler << ": " << c.mesaj;
    return c.cikti;
  }
  std::string Hata(const std::string& degerler) const {
    const Cikti c = (*this)(degerler);
    EXPECT_EQ(c.durum, 1) << degerler << ": " << c.cikti;
    return c.mesaj;
  }
};

TEST(Sirket, FromOpeningToTheLedger) {
  const Sirket s;
  EXPECT_EQ(s.Tamam("sirketler"), "DENEME\tŞık Örgü\t07-2009\n");
  EXPECT_THAT(s.Hata("sirket-ac Deneme --kullanici b"), HasSubstr("Bu adda bir şirket var: DENEME"));
  EXPECT_THAT(s.Tamam("hazirla DENEME --yil 2009 --ay 7"), HasSubstr("3 kişi kaydedildi, 0 kişi dönem dışı"));
  EXPECT_THAT(s.Tamam("bordro deneme --yil 2009 --ay 7"),
              AllOf(HasSubstr("HİZMET ERBABI ÜCRET BORDROSU"), HasSubstr("Işıl Çağlar"), HasSubstr("2,500.50"),
                    HasSubstr("Toplam Personel : ")));

  // The ledger in the three forms holds the same people and the same gross.
  const auto j = s("bordro deneme --yil 2009 --ay 7 --bicim json").Json();
  ASSERT_EQ(j.size(), 3u);
  EXPECT_EQ(j[2]["ng"], 12);
  EXPECT_EQ(j[2]["brutkaz"], "280.00");
  s.Tamam("bordro deneme --yil 2009 --ay 7 --bicim csv -o @b.csv");
  for (const auto& kayit : j) EXPECT_THAT(s.Oku("b.csv"), HasSubstr("," + kayit["brutkaz"].get<std::string>() + ","));

  EXPECT_EQ(s("hazirla deneme --yil 2009 --ay 08").mesaj, "");
  EXPECT_THAT(s("hazirla deneme --yil 2009 --ay 06").mesaj, HasSubstr("Asgari Ücret: 693.00 (yayımlanan 666.00)"))
      << "parameters of another half year";
  EXPECT_THAT(s.Tamam("bordro-sil deneme --yil 2009 --ay 7"), HasSubstr("3 kayıt"));
  EXPECT_EQ(s.Tamam("bordro deneme --yil 2009 --ay 7 --bicim json"), "[]\n");
  EXPECT_THAT(s.Hata("geri-al deneme --ay 2009-07"), HasSubstr("--onay"));
  EXPECT_EQ(s.Tamam("geri-al deneme --ay 2009-07 --onay"), "Bordro geri alındı: 3 kayıt\n");
  EXPECT_EQ(s("bordro deneme --yil 2009 --ay 7 --bicim json").Json(), j);
  EXPECT_THAT(s.Tamam("denetle deneme"), HasSubstr("sağlam"));
}

// The words of a text without what only fills its lines up.
std::set<std::string> Sozcukler(std::string metin) {
  for (char& c : metin)
    if (std::string_view(":*-\f").find(c) != std::string_view::npos) c = ' ';
  std::istringstream akis(metin);
  return {std::istream_iterator<std::string>(akis), {}};
}

// What the text form of a paper says, its bytes for a printer say letter for letter.
void HamAyni(const Sirket& s, const std::string& komut) {
  std::string metin = s.Tamam(komut);
  s.Tamam(komut + " --bicim ham -o @b.ham");
  std::string ham = s.Oku("b.ham");
  std::erase_if(ham, [](char c) { return c == '\r' || c == '\f' || c == '\x0F' || c == '\x12'; });
  std::erase(metin, '\f');
  EXPECT_EQ(ham, KodSayfasina(metin, KodSayfasi::Dos857));
}

// Of a list the PDF says it too; a form of the law has captions of its own there.
void PdfVeHamAyni(const Sirket& s, const std::string& komut) {
  const std::string metin = s.Tamam(komut);
  s.Tamam(komut + " --bicim pdf -o @b.pdf");
  const std::string yol = s.dizin.Yol();
  ASSERT_EQ(std::system(("pdftotext -layout " + yol + "b.pdf " + yol + "b.txt").c_str()), 0);
  const auto pdf = Sozcukler(s.Oku("b.txt"));
  for (const auto& sozcuk : Sozcukler(metin)) EXPECT_TRUE(sozcuk.size() <= 2 || pdf.contains(sozcuk)) << sozcuk;
  HamAyni(s, komut);
}

// The call of a paper's command, with the period where it asks for one.
std::string BelgeKomutu(const BelgeTanimi& belge) {
  std::string komut = std::string(belge.komut) + " deneme";
  for (const auto& sutun : belge.alanlar)
    for (const AlanGrubu& grup : sutun)
      for (const Alan& alan : grup.alanlar) {
        if (std::string_view(alan.ek.komut) == "--yil") komut += " --yil 2009";
        if (std::string_view(alan.ek.komut) == "--ay") komut += " --ay 7";
        if (std::string_view(alan.ek.komut) == "--donem") komut += " --donem 2";
        if (alan.tanim.tip == AlanTipi::Tarih) komut += " " + std::string(alan.ek.komut) + " 31.07.2009";
      }
  return komut;
}

TEST(Sirket, PapersComeInEveryForm) {
  const Sirket s;
  s.Tamam("hazirla deneme --yil 2009 --ay 7");
  for (const BelgeTanimi& belge : Belgeler()) {
    if (belge.komut.empty()) continue;
    const std::string komut = BelgeKomutu(belge);
    SCOPED_TRACE(komut);
    EXPECT_FALSE(s.Tamam(komut).empty());
    EXPECT_THAT(s.Tamam(komut + " --bicim csv"), HasSubstr("\r\n"));
    EXPECT_FALSE(s(komut + " --bicim json").Json().empty());
    s.Tamam(komut + " --bicim xlsx -o @b.xlsx");
    EXPECT_THAT(s.Oku("b.xlsx"), AllOf(testing::StartsWith("PK\x03\x04"), HasSubstr("xl/worksheets/sheet1.xml")));
    if (belge.menu == "Bordro") PdfVeHamAyni(s, komut);
    if (belge.menu == "Bildirgeler") {
      HamAyni(s, komut);
      s.Tamam(komut + " --bicim pdf -o @b.pdf");
      EXPECT_THAT(s.Oku("b.pdf"), testing::StartsWith("%PDF"));
    }
    EXPECT_THAT(s.Tamam(std::string(belge.komut) + " --help"),
                HasSubstr(std::string(belge.komutYardimi).substr(0, 20)));
  }
  EXPECT_THAT(s.Tamam("izin deneme --yil 2009 --tip donem --bicim csv"), HasSubstr(",Aralık,"))
      << "a head of this form";
  PdfVeHamAyni(s, "bordro deneme --yil 2009 --ay 7");
  EXPECT_THAT(s.Oku("b.ham"), AllOf(testing::StartsWith("\x0F"),
                                    HasSubstr("I\x9F\x8Dl \x80"
                                              "a\xA7lar"),
                                    HasSubstr("\r\n"), testing::EndsWith("\f\x12")))
      << "condensed, in letters of code page 857";
  s.Yaz("veri/DENEME/bordro.ini", "[Bordro]\nBrdfont=Times New Roman\n");
  s.Tamam("bordro deneme --yil 2009 --ay 7 --bicim pdf -o @b.pdf");
  EXPECT_THAT(s.Oku("b.pdf"), HasSubstr("DejaVuSerif")) << "the font of the ledger's settings";
  EXPECT_THAT(s.Hata("pusula deneme --yil 2008 --ay 1 --bicim pdf -o @yok.pdf"), HasSubstr("PDF dosyası yazılmadı"));
  EXPECT_EQ(s.Oku("yok.pdf"), "");
  const auto ozet = s("icmal deneme --yil 2009 --ay 7 --bicim json").Json();
  EXPECT_EQ(ozet["icmal"]["Toplam Brüt Ücret"], "3780.50");
  const auto pusula = s("pusula deneme --yil 2009 --ay 7 --bicim json").Json();
  EXPECT_EQ(pusula["satirlar"][2]["Adı Soyadı"], "İnci Öztürk");
  EXPECT_EQ(pusula["toplam"]["Toplam Kazanç"], "3780.50");
  const auto biri = s("pusula deneme --yil 2009 --ay 7 --kod 002 002 --bicim json").Json();
  ASSERT_EQ(biri["satirlar"].size(), 1u);
  EXPECT_EQ(biri["satirlar"][0]["Adı Soyadı"], pusula["satirlar"][1]["Adı Soyadı"]);
  EXPECT_EQ(s("bordro deneme --yil 2009 --ay 7 --kod 002").durum, 2) << "a range has two ends";
  EXPECT_EQ(s("izin deneme --yil 2009 --tip yok").durum, 2);
  EXPECT_THAT(s("agi deneme --yil 2008 --ay 1").mesaj, HasSubstr("Bu dönemde bordro kaydı yok"));
  EXPECT_THAT(s("agi deneme --yil 2008 --ay 1").mesaj,
              AllOf(HasSubstr("Uyarı: Kurulu yasal parametreler Ocak 2008 döneminin değil"),
                    HasSubstr("ondan gelen: Asgari Ücretin Yıllık Brüt Tutarı")));
  EXPECT_EQ(s("icmal deneme --yil 2009 --ay 7").mesaj, "") << "the law of its own month";
  s.Yaz("eski.xlsx", "eski");
  EXPECT_THAT(s.Hata("bordro deneme --yil 2009 --ay 7 --bicim xlsx -o @yok/b.xlsx"), HasSubstr("dizin bulunamadı"));
  EXPECT_THAT(s.Hata("bordro deneme --yil 2009 --ay 7 --bicim xlsx -o @"), HasSubstr("dosya yazılamadı"));
  const Cikti yersiz = s("bordro deneme --yil 2009 --ay 7 --bicim xlsx -o @eski.xlsx", "", "TMPDIR=/yok");
  EXPECT_EQ(yersiz.durum, 1);
  EXPECT_THAT(yersiz.mesaj, HasSubstr("Tablo dosyası yazılamadı"));
  EXPECT_EQ(s.Oku("eski.xlsx"), "eski");
}

TEST(Sirket, EntriesComeFromAFile) {
  const Sirket s;
  s.Yaz("g.csv", "kod,ng,ht,fm1,yrd01,eksiksebebi,borckes\n002,20,3,4.5,150,7,10\n001,30,,,,,\n");
  s.Tamam("hazirla deneme --yil 2009 --ay 7 --giris @g.csv");
  const auto j = s("bordro deneme --yil 2009 --ay 7 --bicim json").Json();
  EXPECT_EQ(j[0]["ng"], 30);
  EXPECT_EQ(j[0]["ht"], 0) << "an empty cell is entered as zero";
  EXPECT_EQ(j[1]["fm1"], 4.5);
  EXPECT_EQ(j[1]["ucretsizizin"], 8);
  EXPECT_EQ(j[1]["borckes"], "10.00");
  EXPECT_EQ(j[2]["ng"], 12) << "who is not in the file follows the template";

  s.Yaz("g.csv",
        "kod,ng,ht,eksiksebebi,ucretsizizin,rapcalismadi,sskiscior,damgaveror\n002,20,3,7,8,1,10,7.5\n001,30,,,,,,\n");
  s.Tamam("hazirla deneme --yil 2009 --ay 7 --giris @g.csv");
  const auto oranli = s("bordro deneme --yil 2009 --ay 7 --bicim json").Json();
  EXPECT_EQ(oranli[0]["sskiscior"], 14) << "an empty cell is no rate";
  EXPECT_EQ(oranli[1]["sskiscior"], 10);
  EXPECT_EQ(oranli[1]["damgaveror"], 7.5);
  EXPECT_EQ(oranli[1]["ucretsizizin"], 8);
  EXPECT_EQ(oranli[1]["rapcalismadi"], 1);

  s.Yaz("g.csv", "kod,ng,fm1,para\n001,31,241,1\n,5,-1,\n002,x,,\n");
  EXPECT_THAT(s.Hata("hazirla deneme --yil 2009 --ay 7 --giris @g.csv"),
              AllOf(HasSubstr("satır 1, para: giriş listesinde böyle bir alan olamaz"),
                    HasSubstr("satır 2, ng: en çok 30 olabilir"), HasSubstr("satır 2, fm1: en çok 240 olabilir"),
                    HasSubstr("satır 3, kod: boş bırakılamaz"), HasSubstr("satır 3, fm1: eksi olamaz"),
                    HasSubstr("satır 4, ng: 0 ile 255 arasında")));
}

TEST(Sirket, ImportsTellEveryFaultAndSaveNothing) {
  const Sirket s;
  s.Yaz("p.csv",
        "kod,adi,ucret,girtar,cins,yok\n"
        "004,Ad,12;5,01.01.2009,0,\n"
        "005,BuİsimYirmiHarftenUzundur,5,31.02.2009,2,\n"
        "004,Ad,5,,0,\n");
  EXPECT_THAT(s.Hata("personel-al deneme @p.csv"),
              AllOf(HasSubstr("hiçbir kayıt alınmadı"), HasSubstr("satır 1, yok: böyle bir alan yok"),
                    HasSubstr("satır 2, ucret: sayı olmalı"), HasSubstr("satır 3, adi: en çok 20 harf"),
                    HasSubstr("satır 3, girtar: gg.aa.yyyy"), HasSubstr("satır 3, cins: 0 ile 1 arasında"),
                    HasSubstr("satır 4, kod: dosyada iki kez var")));
  s.Yaz("p.csv", "kod,ucret\n006,5\n");
  EXPECT_THAT(s.Hata("personel-al deneme @p.csv"), HasSubstr("satır 2, girtar: Giriş Tarihi Hatalı"));

  s.Yaz("p.csv", "kod,ucret,girtar,uyruk\n001,1100,01.01.2009,\n007,5,01.01.2009,T.C.\n");
  EXPECT_THAT(s.Tamam("personel-al deneme @p.csv --dene"), HasSubstr("1 kayıt eklendi, 1 kayıt değişti (deneme"));
  s.Yaz("a.csv", "kod,yakinlik,agiok\n007,1,1\n");
  EXPECT_THAT(s.Hata("aile-al deneme @a.csv"), HasSubstr("satır 2, kod: bu kodla personel yok: 007"));

  s.Tamam("personel-al deneme @p.csv");
  s.Tamam("aile-al deneme @a.csv");
  EXPECT_THAT(s.Tamam("aile-al deneme @a.csv"), HasSubstr("1 kayıt eklendi")) << "again, and the family is not doubled";
  s.Yaz("p.csv", "kod,agi\n7,1\n007,1\n");
  EXPECT_THAT(s.Hata("personel-al deneme @p.csv"), HasSubstr("satır 2, girtar")) << "7 is not 007";
  s.Yaz("p.csv", "kod,agi,ucret\n007,1,2000\n");
  s.Tamam("personel-al deneme @p.csv");
  s.Tamam("hazirla deneme --yil 2009 --ay 7");
  EXPECT_EQ(s("bordro deneme --yil 2009 --ay 7 --bicim json").Json()[3]["ogv"], "59.94") << "spouse counted once";
}

TEST(Sirket, DefinitionsAreTakenByTheirKey) {
  const Sirket s;
  s.Yaz("k.csv", "grup,k1,k2,y1\nPersonel,15,15,15\nUsta,7,15,0\n");
  EXPECT_THAT(s.Tamam("tanim-al deneme kaztan @k.csv"), HasSubstr("2 kayıt eklendi"));
  EXPECT_THAT(s.Tamam("tanim-al deneme kaztan @k.csv"), HasSubstr("2 kayıt değişti"));
  s.Yaz("f.csv", "verda,issaati\nŞişli,7.5\n");
  s.Tamam("tanim-al deneme firma @f.csv");
  EXPECT_EQ(s.Tamam("sirketler"), "DENEME\tŞık Örgü\t07-2009\n") << "what the file does not name stays";
  EXPECT_THAT(s.Hata("tanim-al deneme peruser @f.csv"), HasSubstr("bu tabloya dosyadan alınamaz"));
}

TEST(Kullanim, IsToldInTurkishWithStatusTwo) {
  const CliKomutu komut;
  for (const char* degerler : {"", "yok", "hazirla", "hazirla a --yil 2009", "hazirla a --yil 2009 --ay 13",
                               "bordro a --yil 2009 --ay 1 --bicim ods", "sirketler --olmaz"}) {
    const Cikti c = komut(degerler);
    EXPECT_EQ(c.durum, 2) << degerler;
    EXPECT_THAT(c.mesaj, HasSubstr("Yanlış kullanım")) << degerler;
  }
  for (const std::string bicim : {"xlsx", "pdf", "ham"}) {
    const Cikti c = komut("bordro a --yil 2009 --ay 1 --bicim " + bicim);
    EXPECT_EQ(c.durum, 2);
    EXPECT_THAT(c.mesaj, HasSubstr(bicim + " ekrana yazılmaz, dosyasını veriniz: -o DOSYA"));
  }
  EXPECT_THAT(komut("--help").cikti, AllOf(HasSubstr("Kullanım:"), HasSubstr("hazirla"), HasSubstr("hesapla")));
  EXPECT_EQ(komut("hesapla --help").durum, 0);
  for (const char* ad : {"../kacak", "a/b", "..", "' '"})
    EXPECT_EQ(komut(std::string("sirket-ac ") + ad + " --kullanici a").durum, 1) << ad;
  EXPECT_THAT(komut("bordro yok --yil 2009 --ay 1").mesaj, HasSubstr("Şirket Bulunamadı: YOK"));
}

// Two directories that one word means, a company that was never finished, a card that cannot be: nothing is guessed,
// and nothing half stays.
TEST(Sirket, CompaniesAreMadeWholeAndNamedExactly) {
  const Sirket s;
  EXPECT_THAT(s.Hata("sirket-ac yeni --kullanici a --unvan " + std::string(41, 'x')), HasSubstr("en çok 40 harf"));
  std::filesystem::copy(s.dizin.Yol() + "veri/DENEME", s.dizin.Yol() + "veri/deneme");
  EXPECT_EQ(s.Hata("denetle Deneme"),
            "Bu ada uyan birden çok şirket var, adı dizininki gibi yazınız:\nDENEME\ndeneme\n");
  EXPECT_THAT(s.Tamam("denetle deneme"), HasSubstr("Veritabanı sağlam: deneme\n"));
  std::filesystem::create_directories(s.dizin.Yol() + "veri/.kurulan-YARIM-abcdef");
  const Cikti liste = s("sirketler");
  EXPECT_EQ(liste.cikti, "DENEME\tŞık Örgü\t07-2009\ndeneme\tŞık Örgü\t07-2009\n");
  EXPECT_THAT(liste.mesaj, HasSubstr("Yarım kalmış şirket: .kurulan-YARIM-abcdef"));
  EXPECT_THAT(s.Hata("sirket-sil deneme"), HasSubstr("--onay"));
  EXPECT_THAT(s.Hata("sirket-sil Deneme --onay"), HasSubstr("arasında yok: Deneme"));
  for (const char* ad : {"deneme", ".kurulan-YARIM-abcdef"}) s.Tamam(std::string("sirket-sil ") + ad + " --onay");
  EXPECT_EQ(s("sirketler").mesaj, "");
  EXPECT_EQ(s.Tamam("sirketler"), "DENEME\tŞık Örgü\t07-2009\n");
}

TEST(Sirket, APasswordComesFromStandardInput) {
  const Sirket s;
  EXPECT_EQ(s("sirket-ac uzun --kullanici a --sifre -", "123456789\n").durum, 1) << "it is read, and is too long";
  EXPECT_EQ(s("sirket-ac kisa --kullanici a --sifre -", "gizli\r\n").durum, 0);
}

TEST(Sirket, TheCheckTellsFaultsFromRemarks) {
  const Sirket s;
  const auto sql = [&](const std::string& komut) { MotorAc(s.dizin.Yol() + "veri/DENEME/tolu.dat")->Calistir(komut); };
  s.Tamam("hazirla deneme --yil 2009 --ay 7");
  EXPECT_EQ(s.Tamam("denetle deneme"), "Veritabanı sağlam: DENEME\n");
  sql("insert into esco (kod) values ('9'); update sicil set hesap = 'YOK' where kod = '002'");
  EXPECT_EQ(s.Tamam("denetle deneme"),
            "Veritabanı sağlam: DENEME\nUyarı: 9: Kartı olmayan personelin 1 eş ve çocuk kaydı var\n"
            "Uyarı: 002: Hesap grubu tanımlı değil: YOK\n");
  sql("update sicil set girtar = 'dün' where kod = '002'; drop index brd_ay");
  EXPECT_EQ(s.Hata("denetle deneme"),
            "Veritabanı bozuk: DENEME\n002: sicil.girtar: 1 kayıtta alanın türünden olmayan bir değer var\n"
            "brd: brd_ay indeksi yok\n");
}

// No word of the library's language in any help.
TEST(Sirket, HelpIsTurkish) {
  const CliKomutu komut;
  for (const char* ad : {"", "sirket-ac", "sirket-sil", "yedekle", "yedekten", "bordro", "bildirge", "hesapla",
                         "parametre-kur", "personel-al"}) {
    const std::string yardim = komut(std::string(ad) + " --help").cikti;
    for (const char* sozcuk : {"Options", "OPTIONS", "Positionals", "TEXT", "Usage", "REQUIRED", " x 2", "Subcommand"})
      EXPECT_EQ(yardim.find(sozcuk), std::string::npos) << ad << ": " << sozcuk;
  }
}

// Garbage in any file: told, status 1, and the file stays as it is.
TEST(Sirket, BrokenFilesAreToldAndKept) {
  const Sirket s;
  const std::string hazirla = "hazirla deneme --yil 2009 --ay 7";
  s.Tamam(hazirla);
  const std::pair<const char*, const char*> dosyalar[] = {
      {"veri/yasal2.dat", "yasal2.dat"},
      {"veri/gvtbl.dat", "gvtbl.dat"},
      {"veri/agitbl.dat", "agitbl.dat"},
      {"veri/hestur.dat", "hestur.dat"},
      {"veri/kanun.dat", "kanun.dat"},
      {"veri/DENEME/sablon.dat", "sablon.dat"},
      {"veri/DENEME/kazanc.dat", "kazanc.dat"},
      {"veri/DENEME/tolu.dat", "Dosya bozuk veya bir şirket veritabanı değil"}};
  for (const auto& [dosya, mesaj] : dosyalar) {
    const std::string eski = s.Oku(dosya);
    s.Yaz(dosya, "çöp");
    for (int kez = 0; kez < 2; ++kez) EXPECT_THAT(s.Hata(hazirla), HasSubstr(mesaj)) << dosya;
    EXPECT_EQ(s.Oku(dosya), "çöp") << dosya;
    s.Yaz(dosya, eski);
  }
  s.Tamam(hazirla);
  EXPECT_THAT(s.Hata("bordro deneme --yil 2009 --ay 7 -o /dev/full/x"), HasSubstr("dosya yazılamadı"));
  EXPECT_THAT(s.Hata("sirketler >/dev/full"), HasSubstr("Çıktı yazılamadı"));
}

// No output depends on the locale of the environment.
TEST(Sirket, SpeaksTheSameInEveryLocale) {
  const Sirket s;
  s.Tamam("hazirla deneme --yil 2009 --ay 7");
  std::system(("localedef -i tr_TR -f UTF-8 " + s.dizin.Yol() +
               "tr_TR.UTF-8 2>/dev/null; localedef -i de_DE -f UTF-8 " + s.dizin.Yol() + "de_DE.UTF-8 2>/dev/null")
                  .c_str());
  const std::string girdi =
      R"({"donem":{"yil":2009,"ay":7},"sicil":{"ucret":"1,250.55","agi":1},"giris":{"ng":30,"fm1":1.5}})";
  for (const char* komut : {"bordro deneme --yil 2009 --ay 7", "bordro deneme --yil 2009 --ay 7 --bicim csv",
                            "bordro deneme --yil 2009 --ay 7 --bicim json", "parametre", "hesapla --iz"}) {
    const std::string c = s(komut, girdi, "LC_ALL=C").cikti;
    EXPECT_FALSE(c.empty());
    for (const char* dil : {"tr_TR.UTF-8", "de_DE.UTF-8"})
      EXPECT_EQ(s(komut, girdi, "LOCPATH=" + s.dizin.Yol() + " LC_ALL=" + dil).cikti, c) << dil << " " << komut;
  }
}

}  // namespace
}  // namespace belvani
