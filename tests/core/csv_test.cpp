// Comma-separated files as other programs write them.
#include "core/csv.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <sstream>

#include "core/okunus.h"
#include "core/sayi.h"

namespace belvani {
namespace {

// Rows as "line: cell|cell", the header first.
std::string Duz(const Sonuc<CsvTablosu>& tablo) {
  if (!tablo) return "hata: " + tablo.KusurMetni();
  std::string metin;
  for (const auto& b : tablo->basliklar) metin += b + "|";
  for (const auto& satir : tablo->satirlar) {
    metin += " " + std::to_string(satir.satirNo) + ":";
    for (const auto& h : satir.hucreler) metin += h + "|";
  }
  return metin;
}

TEST(CsvOku, ReadsWhatSpreadsheetsWrite) {
  const std::pair<std::string, const char*> durumlar[] = {
      {"a,b\n1,2\n", "a|b| 2:1|2|"},
      {"a;b;c\r\n1,5;x;\r\n", "a|b|c| 2:1,5|x||"},
      {"\xEF\xBB\xBF a , b\n1,2", "a|b| 2:1|2|"},
      {"a,b\n\n  ,\n3\n", "a|b| 4:3||"},
      {"a,b\n\"x,\"\"y\"\"\nz\",2\n5,6\n", "a|b| 2:x,\"y\"\nz|2| 4:5|6|"},
      {"a\n5\"x\n", "a| 2:5\"x|"},
      {"a\n", "a|"},
      {"", "hata: satır 1: 1. sütunun başlığı yok"},
      {"a,,b\n", "hata: satır 1: 2. sütunun başlığı yok"},
      {"a,b,a\n", "hata: satır 1: başlık iki kez var: a"},
      {"a\n1,2\n", "hata: satır 2: başlıklardan çok alan var"},
      {"a\n\"1\n2", "hata: kapanmamış bir tırnak var"},
      {"ad\n\xDE\xFDk\n", "ad| 2:Şık|"},
      {"a;'=b\n'+90 5;'-5\n''=x;a;'@b\n", "hata: satır 3: başlıklardan çok alan var"},
      {"a,b\n'+90 5,'-5\n''=x,a;'@b\n", "a|b| 2:+90 5|'-5| 3:'=x|a;@b|"},
      {"a\n\xC4\n\x81\n", "hata: dosya ne UTF-8 ne de Windows-1254"},
      {"\xEF\xBB\xBF"
       "a\n\xFD\n",
       "hata: dosya UTF-8 değil"},
      {std::string("a\n\0\n", 4), "hata: dosya bir metin dosyası değil"},
  };
  for (const auto& [girdi, beklenen] : durumlar) EXPECT_EQ(Duz(CsvOku(girdi)), beklenen) << girdi;
}

RC_GTEST_PROP(CsvOku, GivesBackAnyCells, ()) {
  const auto hucre = rc::gen::container<std::string>(rc::gen::elementOf(std::string("ab,;\"\n 1")));
  const auto hucreler = *rc::gen::nonEmpty(rc::gen::container<std::vector<std::string>>(hucre));
  std::string csv;
  std::string satir;
  for (std::size_t i = 0; i < hucreler.size(); ++i) {
    csv += (i ? ";k" : "k") + std::to_string(i);
    std::string tirnakli;
    for (const char c : hucreler[i]) tirnakli += c == '"' ? std::string("\"\"") : std::string(1, c);
    satir += (i ? ";\"" : "\"") + tirnakli + "\"";
  }
  const auto tablo = CsvOku(csv + ";son\n" + satir + ";x\n");
  RC_ASSERT(bool(tablo));
  RC_ASSERT(std::vector(tablo->satirlar[0].hucreler.begin(), tablo->satirlar[0].hucreler.end() - 1) == hucreler);
}

// Whatever the text: in a field of a file it is no formula, and it comes back.
RC_GTEST_PROP(CsvKorumali, ComesBackAndNoFieldIsAFormula, ()) {
  const auto metin = *rc::gen::container<std::string>(rc::gen::elementOf(std::string("=+-@;' a1.")));
  const std::string korumali = CsvKorumali(metin);
  RC_ASSERT(CsvKorumasiz(korumali) == metin);
  std::istringstream alanlar(korumali);
  for (std::string alan; std::getline(alanlar, alan, ';');) {
    const auto ilk = alan.find_first_not_of(' ');
    RC_ASSERT(ilk == alan.npos || std::string_view("=@").find(alan[ilk]) == std::string_view::npos);
    RC_ASSERT(ilk == alan.npos || std::string_view("+-").find(alan[ilk]) == std::string_view::npos || SayiOku(alan));
  }
}

// Each of them would take minutes, or all memory.
TEST(CsvOku, HostileFilesEndSoon) {
  std::string basliklar;
  for (int i = 0; i < 300'000; ++i) basliklar += "k" + std::to_string(i) + ",";
  std::string bin;
  for (int i = 0; i < 1000; ++i) bin += (i ? ";k" : "k") + std::to_string(i);
  std::string kisaSatirlar;
  for (int i = 0; i < 1'100'000; ++i) kisaSatirlar += "x\n";
  EXPECT_EQ(CsvOku(basliklar).KusurMetni(), "satır 1: en çok 1000 sütun olabilir");
  EXPECT_EQ(CsvOku(bin + "\n" + kisaSatirlar).KusurMetni(), "satır 20002: dosya çok uzun, birkaç dosyaya bölünüz");
  EXPECT_EQ(CsvOku("a\n" + kisaSatirlar).KusurMetni(), "satır 1048578: dosya çok uzun, birkaç dosyaya bölünüz");
  EXPECT_EQ(Duz(CsvOku("a\n\"" + std::string(1'000'000, '\n'))), "hata: kapanmamış bir tırnak var");
}

TEST(SayiyiDuzelt, OneReadingIsTakenAndTwoAreRefused) {
  const struct {
    const char* metin;
    const char* belirsiz;  // as each mark is told: "" where it is no number so, "?" where there are two readings
    const char* nokta;
    const char* virgul;
  } durumlar[] = {
      {"1250,50", "1250.50", "", "1250.50"},
      {"1.250,50", "1250.50", "", "1250.50"},
      {"1250.50", "1250.50", "1250.50", ""},
      {"7.5", "7.5", "7.5", ""},
      {"1,250.50", "1250.50", "1250.50", ""},
      {"1.250", "?", "1.250", "1250"},
      {"1,250", "?", "1250", "1.250"},
      {"-12.345", "?", "-12.345", "-12345"},
      {"1.250.000", "1250000", "", "1250000"},
      {"0.125", "0.125", "0.125", ""},
      {"0,125", "0.125", "", "0.125"},
      {"1250.500", "1250.500", "1250.500", ""},
      {"1.2500", "1.2500", "1.2500", ""},
      {" 30 ", "30", "30", "30"},
      {"", "", "", ""},
      {",5", ".5", "", ".5"},
      {"1.23.456", "", "", ""},
      {"1.250.00", "", "", ""},
      {"1e3", "", "", ""},
      {"12 TL", "", "", ""},
  };
  for (const auto& d : durumlar)
    for (const auto& [im, beklenen] :
         {std::pair(OndalikImi::Belirsiz, d.belirsiz), std::pair(OndalikImi::Nokta, d.nokta),
          std::pair(OndalikImi::Virgul, d.virgul)}) {
      std::string kusur;
      const std::string sonuc = SayiyiDuzelt(d.metin, im, kusur);
      const bool iki = kusur.find("iki türlü okunur") != std::string::npos;
      EXPECT_EQ(iki ? "?" : kusur.empty() ? sonuc : "", beklenen) << d.metin << " " << int(im);
      EXPECT_EQ(kusur.empty(), !iki && (*beklenen != '\0' || *d.metin == '\0')) << d.metin << " " << int(im);
    }
}

}  // namespace
}  // namespace belvani
