// Comma-separated files as other programs write them.
#include "core/csv.h"

#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

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
      {"a\n\xFF\n", "hata: dosya UTF-8 değil"},
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

}  // namespace
}  // namespace belvani
