// docs/glossary.md has the word of every screen, with its caption.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <regex>
#include <set>

#include "app/ekranlar.h"
#include "gecici.h"
#include "registry/belgeler.h"

namespace belvani::test {
namespace {

// Word and caption of each row of the table; a row may have several words.
std::map<std::string, std::string> EkranSozcukleri() {
  std::ifstream dosya(KaynakYolu("docs/glossary.md"));
  const std::regex satirBicimi("\\| (`.+`) \\| ([^|]*)\\|.*"), sozcukBicimi("`([A-Za-z0-9]+)`");
  std::map<std::string, std::string> sozcukler;
  bool tabloda = false;
  for (std::string satir; std::getline(dosya, satir);) {
    std::smatch parca;
    if (satir.starts_with("## ")) tabloda = satir == "## Words of the screens";
    if (!tabloda || !std::regex_match(satir, parca, satirBicimi)) continue;
    const std::string adlar = parca[1], baslik = parca[2];
    for (std::sregex_iterator i(adlar.begin(), adlar.end(), sozcukBicimi), son; i != son; ++i)
      EXPECT_TRUE(sozcukler.emplace((*i)[1], baslik).second) << (*i)[1] << " stands there twice";
  }
  return sozcukler;
}

// The words that screens give themselves when they are made.
std::set<std::string> KaynaktakiSozcukler() {
  const std::regex kurucu("(Form|Ekrani?)\\(baglam, (parametreler, )?\"([A-Za-z0-9]+)\"");
  std::set<std::string> sozcukler;
  for (const auto& yer : std::filesystem::recursive_directory_iterator(KaynakYolu("src"))) {
    if (yer.path().extension() != ".cpp") continue;
    std::ifstream dosya(yer.path());
    const std::string metin(std::istreambuf_iterator<char>(dosya), {});
    for (std::sregex_iterator i(metin.begin(), metin.end(), kurucu), son; i != son; ++i) sozcukler.insert((*i)[3]);
  }
  return sozcukler;
}

TEST(Sozluk, HasEveryScreenAndNoneThatIsGone) {
  std::set<std::string> ekranlar = KaynaktakiSozcukler();
  EXPECT_GT(ekranlar.size(), 50u);
  for (const EkranKaydi& kayit : Ekranlar())
    if (kayit.yap != nullptr) ekranlar.emplace(kayit.kelime);
  for (const char* pencere : {"startfrm", "anamenu", "Form1", "yardim", "frmAbout"}) ekranlar.insert(pencere);
  std::set<std::string> yazilanlar;
  for (const auto& [sozcuk, baslik] : EkranSozcukleri()) {
    yazilanlar.insert(sozcuk);
    EXPECT_TRUE(!baslik.empty() || sozcuk == "startfrm") << sozcuk << " has no caption";
  }
  // What a paper is, its row says.
  for (auto* sozcukler : {&yazilanlar, &ekranlar})
    std::erase_if(*sozcukler, [](const std::string& sozcuk) { return BelgeBul(sozcuk) != nullptr; });
  EXPECT_EQ(yazilanlar, ekranlar);
}

}  // namespace
}  // namespace belvani::test
