// The leaving notice: last net pay, days of three years, newest records; its page.
#include "notices/iab.h"

#include <random>

#include "notices/iabkagidi.h"
#include "printing/kayittuvali.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::BildirimTesti;

using Iab = BildirimTesti;

// 30 days, a net pay of the month's own: year and month as a number.
Brd Bordro(int yil, int ay) {
  Brd b;
  b.kod = "1";
  b.yil = std::int16_t(yil);
  b.ay = std::uint8_t(ay);
  b.no = 1;
  b.ng = 20, b.ht = 4, b.rt = 3, b.ui = 1, b.ha = 1, b.mi = 1;
  b.brutkaz = Tutar(1000.0 + yil * 100 + ay);
  b.sskkesinti = Tutar(400.0);
  b.gvtutar = Tutar(300.0);
  b.dvtutar = Tutar(200.0);
  b.issizisci = Tutar(100.0);
  b.sskmatrah = Tutar(yil + ay / 100.0);
  b.sendika = b.borckes = b.ogv = Tutar(77.0);  // no part of this net pay
  return b;
}

std::vector<Brd> Bordrolar(int ilkYil, int ilkAy, int ay) {
  std::vector<Brd> hepsi;
  for (int i = 0; i < ay; ++i) hepsi.push_back(Bordro(ilkYil + (ilkAy - 1 + i) / 12, (ilkAy - 1 + i) % 12 + 1));
  return hepsi;
}

TEST(IabKurali, CountsTheThreeYearsUpToTheLeaving) {
  IabFormu form{.ciktar = Tarih(2009, 7, 15), .duzenleme = Tarih(2009, 12, 1)};
  IabKayitlari(Bordrolar(2005, 1, 60), form);
  EXPECT_EQ(form.issizlikGunu, 37 * 30) << "2006-07 to 2009-07, both included";
  EXPECT_EQ(form.sonNet, Tutar(2009 * 100 + 7)) << "of the month of leaving";
  ASSERT_EQ(form.kayitlar.size(), IabKayitSayisi);
  EXPECT_EQ(form.kayitlar.front(),
            (IabKaydi{.yil = 2009, .ay = "Aralık", .pek = Tutar(2009.12), .gun = 30, .ekseb = ""}))
      << "records after the leaving are shown, and counted nowhere";
  EXPECT_EQ(form.kayitlar.back().ay, "Ağustos");
  form.ciktar = {};
  IabKayitlari(Bordrolar(2005, 1, 60), form);
  EXPECT_EQ(form.sonNet, Tutar(2009 * 100 + 12)) << "still employed: up to the day of the paper";
}

TEST(IabKurali, TheNetPayIsOfTheNewestMonthThatHasAny) {
  auto kayitlar = Bordrolar(2009, 1, 3);
  kayitlar[2].brutkaz = Tutar(900.0);  // less than its deductions
  IabFormu form{.ciktar = Tarih(2009, 3, 31)};
  IabKayitlari(kayitlar, form);
  EXPECT_EQ(form.sonNet, Tutar(2009 * 100 + 2));
  EXPECT_EQ(form.kayitlar.size(), 3u);
  for (Brd& b : kayitlar) b.brutkaz = Tutar(1000.0);
  IabKayitlari(kayitlar, form);
  EXPECT_EQ(form.sonNet, Tutar());
}

TEST(IabKurali, ReasonsOfMissingDays) {
  const auto sebep = [](int kod) {
    auto kayitlar = Bordrolar(2009, 1, 1);
    kayitlar[0].eksiksebebi = std::uint8_t(kod);
    IabFormu form;
    IabKayitlari(kayitlar, form);
    return form.kayitlar[0].ekseb;
  };
  EXPECT_EQ(sebep(0), "");
  EXPECT_EQ(sebep(1), "01-İstirahat");
  EXPECT_EQ(sebep(2), "02-Ücretsiz İzin");
  EXPECT_EQ(sebep(13), "13-Diğer");
  EXPECT_EQ(sebep(21), "21-Diğer Ücretsiz İzin");
  EXPECT_EQ(sebep(99), "99") << "a code of no list shows as it is";
}

// The store's records through the years, against SQL over all of them.
TEST_F(Iab, SumsAreThoseOfTheStore) {
  std::mt19937 rastgele(3);
  Kisi("1", Tarih(2004, 1, 1), Tarih(2009, 5, 20));
  KayitYazici<Brd> yazici(motor());
  for (Brd b : Bordrolar(2004, 1, 72)) {
    b.ng = std::uint8_t(rastgele() % 21);
    yazici.Ekle(b);
    b.kod = "2";
    yazici.Ekle(b);
  }
  for (const Tarih ciktar : {Tarih(2009, 5, 20), Tarih(2006, 12, 31), Tarih(2004, 2, 1), Tarih(2013, 1, 1)}) {
    IabFormu form = KisiDoldur(motor(), " 1 ").value();
    form.ciktar = ciktar;
    IabKayitlari(motor(), form);
    const int ust = ciktar.Yil() * 100 + ciktar.Ay();
    const auto k = motor().Hazirla(
        "select coalesce(sum(ng + ht + rt + ui + ha + mi), 0) from brd where kod = '1' and yil * 100 + ay between ? "
        "and ?");
    k->TamBagla(1, ust - 300);
    k->TamBagla(2, ust);
    ASSERT_TRUE(k->Adim());
    EXPECT_EQ(form.issizlikGunu, k->Tam(0)) << ciktar.Metin();
  }
}

TEST_F(Iab, ThePersonAndWhatIsMissing) {
  EXPECT_FALSE(KisiDoldur(motor(), "1"));
  Kisi("1", {}, {}, -1);
  IabFormu form = KisiDoldur(motor(), "1").value();
  const auto uyarilar = IabUyarilari(form);
  ASSERT_EQ(uyarilar.size(), 2u);
  EXPECT_EQ(uyarilar[0].metin, "İşçi Giriş Tarihi Eksik");
  EXPECT_EQ(uyarilar[1].metin, "İşçi Çıkış Tarihi Eksik");
  IabKayitlari(motor(), form);
  EXPECT_TRUE(form.kayitlar.empty());
}

TEST_F(Iab, ThePageSaysAllAndStaysOnIt) {
  IabFormu form{
      .adsoyad = "Işıl Öz", .tcno = "10000000146", .ciktar = Tarih(2009, 7, 15), .gorevi = "Örücü", .sakatdrc = 2};
  IabKayitlari(Bordrolar(2009, 1, 7), form);
  const auto belge = IabBelgesi({.form = form, .firma = firma});
  EXPECT_EQ(belge->MetinYok(), "Bu Form Sadece Grafik Yazıcıdan Alınır.");
  EXPECT_EQ(belge->Ayar().YzcBaslik, "İŞTEN AYRILMA (İAB)");
  EXPECT_EQ(belge->Metin(), "");
  const auto sayfalar = IabCiz({.form = form, .firma = firma});
  ASSERT_EQ(sayfalar.size(), 1u);
  const FormSayfasi& sayfa = sayfalar[0];
  const auto deger = [&](std::string_view ad) { return std::ranges::find(sayfa.alanlar, ad, &FormAlani::ad)->deger; };
  EXPECT_EQ(deger("kapsam.ozel") + deger("kapsam.kamu"), "X");
  EXPECT_EQ(deger("sakatlik1") + deger("sakatlik2"), "X");
  EXPECT_EQ(deger("sonnet"), "200,907.00");
  EXPECT_EQ(deger("issizlikgunu"), "210");
  EXPECT_EQ(deger("kayit1.ay") + deger("kayit5.ay"), "TemmuzMart");
  for (const auto& k : sayfa.kutular) EXPECT_LE(k.yer.y + k.yer.boy, 297 - KenarMm) << "below the sheet";
  const auto yazi = [&](std::string_view metin) {
    return std::ranges::find(sayfa.yazilar, metin, &FormYazisi::metin) != sayfa.yazilar.end();
  };
  for (const char* no : {"1.", "2.", "3.", "4."})
    EXPECT_EQ(std::ranges::count(sayfa.yazilar, no, &FormYazisi::metin), *no == '4' ? 1 : 2) << no;
  for (const char* metin :
       {"TÜRKİYE İŞ KURUMU", "İŞTEN AYRILMA BİLDİRGESİ", "(İAB)", "1 - İŞVEREN BİLGİLERİ", "2 - SİGORTALI BİLGİLERİ",
        "3 - SANDIK BİLGİLERİ", "Kapsamı:", "Özel:",
        "Son 120 gün içinde işyerindeki prime ilişkin kayıtlar (En son aydan başlayarak geriye doğru "
        "doldurulacaktır.)"})
    EXPECT_TRUE(yazi(metin)) << metin;
}

}  // namespace
}  // namespace belvani
