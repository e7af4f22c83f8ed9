// The way to a printer: a real print server, and what is told when there is none.
#include "printing/kuyruk.h"

#include <gmock/gmock.h>

#include "printing/belprnislem.h"
#include "printing/cairotuval.h"
#include "printing/cupskuyrugu.h"
#include "printing/dosprint.h"
#include "printing/ozelcups.h"
#include "printing/sahtekuyruk.h"

namespace belvani {
namespace {

using namespace std::string_literals;

const std::string hamBaytlar = "\x9E\x1B\x00\x0C son\r\n"s;

TEST(Kuyruk, JobsOfCups) {
  const test::OzelCups cups;
  if (!cups.Hazir()) GTEST_SKIP() << "no print server on this computer";
  CupsKuyrugu kuyruk(cups.Soket());
  const auto yazicilar = kuyruk.Yazicilar();
  ASSERT_TRUE(yazicilar) << yazicilar.KusurMetni();
  ASSERT_EQ(yazicilar->size(), 3u);
  EXPECT_EQ(YaziciSec(kuyruk, "")->aciklama, "Kuyruk matris");
  EXPECT_EQ(YaziciSec(kuyruk, "")->aygit, "kayit:/matris");

  const auto ham = kuyruk.Gonder({.tur = IsTuru::Ham, .yazici = "", .ad = "ŞUBAT", .icerik = hamBaytlar, .kopya = 2});
  ASSERT_TRUE(ham) << ham.KusurMetni();
  EXPECT_EQ(cups.Basilan(*ham), hamBaytlar + hamBaytlar);

  PdfTuvali tuval;
  tuval.SayfaBasla(A4(KagitYonu::Dikey));
  tuval.SayfaBitir();
  const std::string pdf = *tuval.Belge();
  const auto no = kuyruk.Gonder({.tur = IsTuru::Pdf, .yazici = "kagitsiz", .ad = "", .icerik = pdf, .kopya = 1});
  ASSERT_TRUE(no) << no.KusurMetni();
  EXPECT_EQ(cups.Basilan(*no), pdf);
  EXPECT_EQ(YaziciSec(kuyruk, "kagitsiz")->bekleyen, "Yazıcıda Kağıt Yok");

  for (const auto& [ad, hata] :
       {std::pair("kapali"s, "kapali: yazıcı yeni iş kabul etmiyor"s), std::pair("yok"s, "yok adında bir yazıcı yok"s)})
    EXPECT_EQ(kuyruk.Gonder({.tur = IsTuru::Ham, .yazici = ad, .ad = "", .icerik = "a", .kopya = 1}).KusurMetni(),
              hata);
}

TEST(Kuyruk, NoServerAndNoPrinter) {
  CupsKuyrugu kapali("/tmp/belvani-olmayan-soket");
  EXPECT_EQ(kapali.Yazicilar().KusurMetni(), "Yazıcı servisine ulaşılamıyor (CUPS çalışmıyor)");
  test::SahteKuyruk kuyruk;
  kuyruk.yazicilar[1].varsayilan = false;
  EXPECT_EQ(YaziciSec(kuyruk, "")->ad, "lazer");
  kuyruk.yazicilar.clear();
  EXPECT_EQ(dosprint(kuyruk).Ac("", "İŞ").KusurMetni(), YaziciYok);
}

TEST(Belprn, SendsTheFile) {
  const test::GeciciDizin dizin;
  const std::string dosya = dizin.Yol() + "prnA";
  ASSERT_TRUE(DosyaYaz(dosya, hamBaytlar));
  test::SahteKuyruk kuyruk;
  kuyruk.hata = "disk dolu";
  EXPECT_EQ(Belprn({dosya, "--sil"}, kuyruk).KusurMetni(), "disk dolu");
  EXPECT_TRUE(DosyaOku(dosya));  // nothing is lost
  kuyruk.hata.clear();
  ASSERT_TRUE(Belprn({dosya, "--yazici", "lazer", "--ad", "ÜCRET PUSULASI", "--sil"}, kuyruk));
  EXPECT_EQ(kuyruk.isler.at(0).ad, "ÜCRET PUSULASI");
  EXPECT_EQ(kuyruk.isler.at(0).icerik, hamBaytlar);
  EXPECT_EQ(kuyruk.isler[0].yazici, "lazer");
  EXPECT_FALSE(DosyaOku(dosya));
  EXPECT_EQ(Belprn({dosya}, kuyruk).KusurMetni(), dosya + ": dosya okunamadı");
  for (const auto& arguman : {std::vector<std::string>{}, {"--bilinmeyen"}, {dosya, "--yazici"}, {"a", "b"}})
    EXPECT_THAT(Belprn(arguman, kuyruk).KusurMetni(), testing::StartsWith("Kullanım: belprn"));
  EXPECT_THAT(BelprnBaslat(dizin.Yol(), {.dosya = dosya}, kuyruk).KusurMetni(),
              testing::EndsWith("program bulunamadı"));
}

}  // namespace
}  // namespace belvani
