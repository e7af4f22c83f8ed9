// The voucher for those who keep the books elsewhere: on paper, and as a journal that other programs read.
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "accounting/fisbelgesi.h"
#include "muhasebe.h"
#include "printing/ayardenetimi.h"
#include "printing/csvyazici.h"

namespace belvani {
namespace {

using test::Kayit;
using test::Satir;
using testing::HasSubstr;

const FisBasligi Baslik{.unvan = "Çınar: [Tekstil]", .tarih = Tarih(2009, 12, 31), .fisno = "7", .paraonda = 2};

Fis Acik() {
  Brd b = Kayit("1", 1000.01);
  b.gvtutar = Tutar(0.005);
  return test::FisYap({{"A", b}},
                      {Satir("A", 0, 5, 0, "770"), Satir("A", 1, 11, 1, "(360)  ;x"), Satir("A", 2, 1, 1, "335")});
}

HesapPlani Plan() {
  return HesapPlani({{.kod = "770", .isim = "Genel Yönetim: [Giderleri]", .yisim = "overhead_"},
                     {.kod = "100", .isim = "KASA", .yisim = ""},
                     {.kod = "1*0", .isim = "Işık", .yisim = ""}});
}

TEST(FisBelgesi, EveryForm) {
  const auto belge = FisBelgesi(Acik(), Baslik, Plan());
  EXPECT_EQ(CsvRaporu(*belge->Veri()),
            "kod,ack,ba,tutar\r\n770,Aralık 2009 Ücret Tahakkuku,B,1000.01\r\n"
            "\"(360)  ;x\",Aralık 2009 Ücret Tahakkuku,A,0.005\r\n");
  EXPECT_THAT(belge->Metin(), HasSubstr("MAHSUP FİŞİ"));
  EXPECT_THAT(belge->Metin(), HasSubstr("Fiş Tarihi : 31.12.2009"));
  EXPECT_THAT(belge->Metin(), HasSubstr("Fiş No : 7"));
  EXPECT_THAT(belge->Metin(), HasSubstr("TOPLAM"));
  EXPECT_THAT(belge->Metin(), HasSubstr("Genel Yönetim: [Giderleri]"));
  EXPECT_THAT(belge->Metin(), HasSubstr("Bakiye"));
  EXPECT_THAT(BelgePdf(*belge)->baytlar, testing::StartsWith("%PDF"));
  EXPECT_THAT(*belge->Xlsx(), testing::StartsWith("PK"));
  EXPECT_EQ(belge->DosyaBasligi(), "MAHSUP FİŞİ 2009-12");
  EXPECT_TRUE(FisBelgesi(test::FisYap({}, {}), Baslik, {})->Kayitsiz());
  test::AyarlariDenetle(*belge);
}

TEST(Yevmiye, Entry) {
  EXPECT_EQ(YevmiyeMaddesi(Acik(), Baslik, Plan()),
            "; Çınar. (Tekstil) - Aralık 2009\n"
            "2009-12-31 Aralık 2009 Ücret Tahakkuku\n"
            "    770              1000.01 TL  ; Genel Yönetim. (Giderleri)\n"
            "    Hesap (360) ,x     -0.01 TL\n"
            "    Denkleşmeyen    -1000.00 TL  ; borç ve alacak eşit değil\n");
  EXPECT_EQ(YevmiyeUyarisi(Acik()), "Borç ve alacak eşit değil: 1,000.00 fark Denkleşmeyen satırına yazıldı");
  EXPECT_EQ(YevmiyeMaddesi(test::FisYap({}, {}), Baslik, {}), "; Çınar. (Tekstil) - Aralık 2009\n");
}

// Accounts with everything that means something to the readers; their sums come back to the kuruş.
TEST(Yevmiye, ReadByTheProgramsThemselves) {
  const char* const hesaplar[] = {"770.01", "(x)", "[y]", "Ş  ş",  "a;b",        "c:d",  "*1", "!2",
                                  "\"q\"",  "'t'", "@3",  "<v>",   "=4",         "~5",   "%_", "-6",
                                  "#7",     "|8",  "&9",  "12/31", "2009-01-01", "k (z)"};
  std::vector<Entpar> satirlar;
  std::vector<std::pair<std::string, Brd>> kayitlar;
  int sira = 0;
  std::int64_t toplam = 0;
  for (const char* hesap : hesaplar) {
    const std::string grup = "G" + std::to_string(++sira);
    satirlar.push_back(Satir(grup.c_str(), 0, 5, 0, hesap));
    kayitlar.emplace_back(grup, Kayit(grup, sira + 0.01 * sira));
    toplam += 101 * sira;
  }
  const test::GeciciDizin dizin;
  std::ofstream(dizin.Yol() + "fis.journal") << YevmiyeMaddesi(test::FisYap(kayitlar, satirlar), Baslik, Plan());
  int okuyan = 0;
  for (const char* program : {"ledger", "hledger"}) {
    if (std::system((std::string("command -v ") + program + " >/dev/null 2>&1").c_str()) != 0) continue;
    ++okuyan;
    const std::string cikti = dizin.Yol() + program;
    const std::string komut =
        std::string("LC_ALL=C.UTF-8 ") + program + " -f " + dizin.Yol() + "fis.journal bal --flat >" + cikti + " 2>&1";
    ASSERT_EQ(std::system(komut.c_str()), 0) << program << "\n" << std::ifstream(cikti).rdbuf();
    std::ifstream dosya(cikti);
    std::int64_t okunan = 0, fark = 0;
    int hesapSayisi = 0;
    for (std::string satir; std::getline(dosya, satir) && satir.find("--") == satir.npos;) {
      const auto tl = satir.find(" TL");
      ASSERT_NE(tl, satir.npos) << satir;
      const std::int64_t kurus = std::llround(std::stod(satir.substr(0, tl)) * 100);
      (satir.ends_with(FarkHesabi) ? fark : okunan) += kurus;
      ++hesapSayisi;
    }
    EXPECT_EQ(okunan, toplam) << program;
    EXPECT_EQ(fark, -toplam) << program;
    EXPECT_EQ(hesapSayisi, int(std::size(hesaplar)) + 1) << program;
  }
  if (okuyan == 0) GTEST_SKIP() << "neither ledger nor hledger is installed";
}

TEST(HesapPlani, SearchedLetterByLetter) {
  const HesapPlani plan = Plan();
  const auto bulunan = [&](HesapAramaAlani alan, const char* metin, bool icinde) {
    std::string kodlar;
    for (const Hesplan* h : plan.Ara(alan, metin, icinde)) kodlar += h->kod + " ";
    return kodlar;
  };
  using enum HesapAramaAlani;
  EXPECT_EQ(bulunan(Kod, "", false), "1*0 100 770 ");
  EXPECT_EQ(bulunan(Kod, "1", false), "1*0 100 ");
  EXPECT_EQ(bulunan(Kod, "*", true), "1*0 ") << "no wildcard";
  EXPECT_EQ(bulunan(Kod, "?", true) + bulunan(Kod, "%", true) + bulunan(Isim, "#", true), "");
  EXPECT_EQ(bulunan(Isim, "kas", false), "100 ");
  EXPECT_EQ(bulunan(Isim, "ışı", false), "1*0 ");
  EXPECT_EQ(bulunan(Isim, "[", true), "770 ");
  EXPECT_EQ(bulunan(Yisim, "_", true), "770 ");
  EXPECT_NE(plan.Bul("1*0"), nullptr);
}

}  // namespace
}  // namespace belvani
