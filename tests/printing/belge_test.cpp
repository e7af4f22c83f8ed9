// A document on all its ways: heads as the settings want them, pages of the text form, printers and ports.
#include "printing/belge.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "bildirim.h"
#include "core/dosya.h"
#include "core/ortam.h"
#include "gecici.h"
#include "printing/ayardenetimi.h"
#include "printing/cupskuyrugu.h"
#include "printing/form/formbelgesi.h"
#include "printing/kayittuvali.h"
#include "printing/metincizimi.h"
#include "printing/ornek.h"
#include "printing/ozelcups.h"
#include "printing/sahtekuyruk.h"
#include "printing/sahteport.h"
#include "printing/yazdir.h"

namespace belvani {
namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

Rapor Liste() {
  Rapor rapor = test::KalemRaporu({{.ad = "Işıl", .tutar = Tutar(1.0)}});
  rapor.ustSatirlar = {
      {.orta = "Şubat"}, {.sol = "ÜNVANI : Çınar", .sirket = true}, {.sag = "Sayfa : ", .sayfaNo = true}};
  return rapor;
}

std::vector<std::string> UstMetinleri(const Rapor& rapor) {
  std::vector<std::string> metinler{rapor.baslik};
  for (const auto& s : rapor.ustSatirlar) metinler.push_back(s.sol + "|" + s.orta + "|" + UstSagMetni(s, 1, 1));
  return metinler;
}

TEST(Belge, HeadsFollowTheSettings) {
  const Tarih gun(2008, 3, 9);
  YzcAyarlari ayar;
  ayar.YzcBaslik = "BENİM LİSTEM";
  EXPECT_THAT(UstMetinleri(BasligiAyarla(Liste(), ayar, "Çınar", gun)),
              ElementsAre("BENİM LİSTEM", "|Şubat|Tarih : 09.03.2008", "ÜNVANI : Çınar||", "||Sayfa : 1"));
  EXPECT_THAT(UstMetinleri(BasligiAyarla(test::KalemRaporu({}), ayar, "Çınar", gun)),
              ElementsAre("BENİM LİSTEM", "Çınar||Sayfa No : 1", "||Tarih : 09.03.2008"));
  ayar.YzcBaslikYaz = ayar.YzcTarihYaz = ayar.YzcSayfaNoYaz = ayar.YzcSirketYaz = false;
  EXPECT_THAT(UstMetinleri(BasligiAyarla(Liste(), ayar, "Çınar", gun)), ElementsAre("", "|Şubat|"));
}

TEST(Belge, SettingsDoNotChangeAStatutoryForm) {
  FormBelgesi form({}, {FormKurucu(A4(KagitYonu::Yatay)).Sayfa()}, "Işıl\n");
  EXPECT_EQ(form.Destek(), YzcDestegi{});
  test::AyarlariDenetle(form);
  YzcAyarlari ilk;
  ilk.YzcBaslik = "KALEMLER";
  RaporBelgesi liste(test::KalemRaporu(std::vector<test::Kalem>(30, {.ad = "Işıl", .tutar = Tutar(1.0)})), ilk);
  EXPECT_FALSE(liste.Destek().sirket) << "no company is known";
  test::AyarlariDenetle(liste);
}

TEST(Belge, TextPagesAreAsThePrinterHasThem) {
  const std::string genis(100, 'x');
  const MetinCizimi dar("bir\nAdı│Işıl\n\fiki\n", 66);
  const MetinCizimi sikisik(genis + "\n", 66);
  test::KayitTuvali tuval;
  SayfalariCiz(dar, tuval);
  SayfalariCiz(sikisik, tuval);
  ASSERT_EQ(tuval.sayfalar.size(), 3u);
  EXPECT_THAT(tuval.sayfalar[0].Satirlar(), ElementsAre("bir", "Adı│Işıl"));
  EXPECT_NEAR(tuval.sayfalar[0].boy.boy, 11 * 25.4, 1e-6);
  EXPECT_NEAR(tuval.sayfalar[0].ogeler[0].kutu.en, 3 * 2.54, 0.01);
  EXPECT_NEAR(tuval.sayfalar[2].ogeler[0].kutu.en, 100 * 25.4 / 17.1, 0.5);
  EXPECT_EQ(MetinCizimi("", 66).SayfaSayisi(), 0);
}

struct Ortam {
  test::SahteKuyruk kuyruk;
  test::SahtePort port;
  test::ToplayanBildirim bildirim;
  test::GeciciDizin dizin;
  BaskiOrtami baski{.kuyruk = kuyruk, .port = port, .programDizini = dizin.Yol(), .dosyaAc = {}, .adresAc = {}};

  // A belprn that keeps what it is told.
  Ortam() {
    const std::string program = dizin.Yol() + "belprn";
    EXPECT_TRUE(DosyaYaz(program, "#!/bin/sh\nexec 2>/dev/null\ncp \"$1\" '" + dizin.Yol() +
                                      "basilan.yeni'\nrm \"$1\"\nmv '" + dizin.Yol() + "basilan.yeni' '" + dizin.Yol() +
                                      "basilan'\n"));
    ::chmod(program.c_str(), 0700);
  }
  std::string Basilan() const {
    for (int i = 0; i < 500; ++i) {
      if (const auto baytlar = DosyaOku(dizin.Yol() + "basilan")) return *baytlar;
      ::usleep(10'000);
    }
    return {};
  }
  Sonuc<YazdirmaSonucu> Yazdir(const YzcAyarlari& ayar, Ilerleme* ilerleme = nullptr) {
    RaporBelgesi belge(Liste());
    belge.Ayarla(ayar);
    return BelgeYazdir(belge, baski, bildirim, ilerleme);
  }
};

TEST(BelgeYazdir, ADrawnJobGoesToTheQueue) {
  Ortam o;
  YzcAyarlari ayar;
  ayar.YzcBaslik = "LİSTE";
  ayar.YzcKopya = 2;
  EXPECT_FALSE(o.Yazdir(ayar)->gonderildi) << "the dialog was given up";
  ayar.YzcTamam = true;
  o.kuyruk.yazicilar[1].bekleyen = "Yazıcıda Kağıt Yok";
  EXPECT_EQ(o.Yazdir(ayar)->uyari, "Yazıcıda Kağıt Yok");
  ASSERT_EQ(o.kuyruk.isler.size(), 1u);
  EXPECT_THAT(o.kuyruk.isler[0].icerik, StartsWith("%PDF"));
  EXPECT_EQ(o.kuyruk.isler[0].kopya, 2);
  EXPECT_EQ(o.kuyruk.isler[0].ad, "LİSTE");
  o.kuyruk.yazicilar.clear();
  EXPECT_EQ(o.Yazdir(ayar).KusurMetni(), YaziciYok);
}

TEST(BelgeYazdir, TextGoesThroughBelprn) {
  Ortam o;
  YzcAyarlari ayar;
  ayar.YzcTamam = ayar.YzcDosMod = true;
  ayar.YzcKopya = 2;
  ASSERT_TRUE(o.Yazdir(ayar)->gonderildi);
  const std::string bir = o.Basilan();
  EXPECT_THAT(bir, HasSubstr("\r\nI\x9F\x8Dl "));
  EXPECT_THAT(bir, EndsWith("-\r\n\f"));
  EXPECT_EQ(std::ranges::count(bir, '\f'), 2);
  struct Vazgecen final : Ilerleme {
    bool Adim(std::size_t, std::size_t) override { return false; }
  } vazgecen;
  EXPECT_FALSE(o.Yazdir(ayar, &vazgecen)->gonderildi);
  ayar.YzcDosMod = false;
  EXPECT_FALSE(o.Yazdir(ayar, &vazgecen)->gonderildi);
  EXPECT_TRUE(o.kuyruk.isler.empty());
}

// The whole road of a text: temporary file, belprn, print server, printer.
TEST(BelgeYazdir, TextReachesARealServer) {
  const test::OzelCups cups;
  if (!cups.Hazir()) GTEST_SKIP() << "no print server on this computer";
  const auto sunucu = test::OrtamKoy("CUPS_SERVER", cups.Soket().c_str());
  CupsKuyrugu kuyruk;
  Ortam o;
  BaskiOrtami baski{
      .kuyruk = kuyruk, .port = o.port, .programDizini = BELVANI_BELPRN_DIZINI, .dosyaAc = {}, .adresAc = {}};
  YzcAyarlari ayar;
  ayar.YzcTamam = ayar.YzcDosMod = true;
  RaporBelgesi belge(Liste());
  belge.Ayarla(ayar);
  ASSERT_TRUE(BelgeYazdir(belge, baski, o.bildirim)->gonderildi);
  const std::string basilan = cups.Basilan(1);
  EXPECT_THAT(basilan, HasSubstr("\r\nI\x9F\x8Dl "));
  EXPECT_THAT(basilan, EndsWith("-\r\n\f"));
}

TEST(BelgeYazdir, OnAFullDiskTheOldFileStays) {
  Ortam o;
  YzcAyarlari ayar;
  ayar.YzcTamam = ayar.YzcDosMod = true;
  RaporBelgesi belge(Liste());
  const std::string pdf = BelgePdf(belge)->baytlar;
  const std::string dosya = o.dizin.Yol() + "liste.pdf";
  ASSERT_TRUE(DosyaYaz(dosya, "eski"));
  std::string metinHatasi, pdfHatasi, xlsxHatasi;
  {
    const auto dolu = test::DarDisk(64);
    metinHatasi = o.Yazdir(ayar).KusurMetni();
    pdfHatasi = DosyaYaz(dosya, pdf).KusurMetni();
    const auto xlsx = belge.Xlsx();
    xlsxHatasi = xlsx ? "" : xlsx.KusurMetni();
  }
  EXPECT_THAT(metinHatasi, HasSubstr("yazılamadı"));
  EXPECT_THAT(pdfHatasi, HasSubstr("yazılamadı"));
  EXPECT_FALSE(xlsxHatasi.empty());
  EXPECT_EQ(DosyaOku(dosya), "eski");
  const auto gecici = test::OrtamKoy("TMPDIR", "/yok");
  EXPECT_EQ(o.Yazdir(ayar).KusurMetni(), "Dos Yazıcı Dosyası Açılamıyor");
  FormBelgesi form({}, {}, "Işıl\n", nullptr, {.acilamadi = "Yazıcı Dosyası Yaratılamıyor"});
  form.Ayarla(ayar);
  EXPECT_EQ(BelgeYazdir(form, o.baski, o.bildirim).KusurMetni(), "Yazıcı Dosyası Yaratılamıyor");
}

TEST(BelgeYazdir, ToAPort) {
  Ortam o;
  o.port.portSayisi = 1;
  EXPECT_THAT(YaziciListesi(o.baski)->back().ad, "LPT1:");
  YzcAyarlari ayar;
  ayar.YzcTamam = true;
  ayar.yazici = "LPT1:";
  EXPECT_THAT(o.Yazdir(ayar).KusurMetni(), HasSubstr("yalnız Dot Matrix"));
  ayar.YzcDosMod = true;
  ASSERT_TRUE(o.Yazdir(ayar)->gonderildi);
  EXPECT_THAT(o.port.alinan, HasSubstr("\r\nI\x9F\x8Dl "));
  o.port.durumlar = {port::KagitYok};
  o.bildirim.cevap = false;
  EXPECT_FALSE(o.Yazdir(ayar)->gonderildi);
  EXPECT_THAT(o.bildirim.iletiler.back(), HasSubstr("Yazıcıda Kağıt Yok"));
}

}  // namespace
}  // namespace belvani
