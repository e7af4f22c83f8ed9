// The payroll screen without the screen: who comes up, and what is calculated of what is typed.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "girisekrani.h"

namespace belvani {
namespace {

using test::GirisEkrani;
using testing::ElementsAre;

TEST(BordroGirisi, WalksOverWhoDoesNotBelongToThePeriod) {
  GirisEkrani e;
  e.Kisi("a1", 900);
  e.Kisi("B", 900, Tarih(2009, 5, 1));
  e.Kisi("C", 900, Tarih());
  e.Kisi("D", 900, Tarih(2009, 1, 20));
  e.motor().Calistir("update firma set issaati = 0");
  e.Ac(2009, 1);
  EXPECT_EQ(e.KodAl(" A1 "), KodSonucu::Yuklendi);
  EXPECT_TRUE(e.giris.AlanAcik(BordroAlani::HaftaTatili));
  EXPECT_FALSE(e.giris.AlanAcik(BordroAlani::UcretliIzin)) << "the built-in group opens the first two lines alone";
  e.giris.AlanaGirildi(BordroAlani::NormalGun);
  EXPECT_EQ(e.Kapat(), KapanisSonucu::SonrakiVar);
  EXPECT_EQ(e.giris.Kod(), "D");
  EXPECT_EQ(e.Kapat(), KapanisSonucu::Kapanmadi) << "who is saved is closed";
  EXPECT_EQ(e.KodAl("d"), KodSonucu::Yuklendi);
  EXPECT_EQ(e.giris.CalismaPaneli()->gun, 12);
  e.giris.Giris().ng = 7;
  e.KodAl("D");
  EXPECT_EQ(e.giris.Giris().ng, 7) << "who is being entered is not read again";
  EXPECT_EQ(e.KodAl("B"), KodSonucu::DonemDisi);
  EXPECT_FALSE(e.giris.AlanAcik(BordroAlani::NormalGun));
  EXPECT_EQ(e.KodAl("yok"), KodSonucu::Bilinmiyor);
  EXPECT_THAT(e.bildirim.Al(),
              ElementsAre("Bilgi: Firma Bilgilerinde İş Saati Yazılmamış", "Bilgi: Personel Giriş Tarihi Hatalı",
                          "Bilgi: Bu İşçinin Giriş veya Çıkış Tarihleri Döneme Uygun Değil",
                          "Bilgi: Bu kodla personel yok: YOK"));
  e.motor().Calistir("delete from firma");
  EXPECT_FALSE(FirmaYukle(e.o));
  EXPECT_EQ(e.giris.Ac().KusurMetni(), "İşyeri Tanımlamaları Yapılmamış");
}

// Another month's law is asked about once and may stay, the user's own figures are confirmed for good, and without law
// nobody comes up.
TEST(BordroGirisi, NoMonthIsPaidUnderAnotherMonthsLawWithoutAWord) {
  GirisEkrani e;
  for (const char* kod : {"1", "2"}) e.Kisi(kod, 900);
  e.Ac(2009, 1);
  const auto kur = [&](MevzuatAyi ay) { test::Al(MevzuatKur(e.o.DataPath, ay, *ParametreAdresi(ay.yil, ay.ay))); };
  kur({2009, 7});  // a colleague has fetched another month meanwhile
  e.bildirim.cevap = false;
  EXPECT_EQ(e.KodAl("1"), KodSonucu::Yuklendi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::AllOf(testing::StartsWith("Soru: Kurulu yasal parametreler Ocak"),
                                                          testing::HasSubstr("(Temmuz 2009)"),
                                                          testing::HasSubstr("693.00 (yayımlanan 666.00)"))));
  EXPECT_EQ(e.depo.yasal.oranlar.AsgariUcret, Tutar(693)) << "what is installed holds here too";
  EXPECT_EQ(e.KodAl("2"), KodSonucu::Yuklendi);
  EXPECT_THAT(e.bildirim.Al(), testing::IsEmpty()) << "answered once";

  e.bildirim.cevap = true;
  kur({2009, 7});
  e.depo.YasalYukle(e.o.DataPath);
  EXPECT_TRUE(e.MevzuatUygun());
  EXPECT_EQ(e.depo.yasal.oranlar.AsgariUcret, Tutar(666)) << "fetched";
  EXPECT_EQ(e.bildirim.Al().size(), 2u);

  YasalOranlar kendi = e.depo.yasal.oranlar;
  kendi.KidemTavan = Tutar(3000);
  ASSERT_TRUE(YasalOranlarKaydet(e.o.DataPath, kendi));
  EXPECT_TRUE(e.MevzuatUygun());
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::HasSubstr("Kıdem T. Tavan: 3,000.00 (yayımlanan 2,260.05)")));
  EXPECT_TRUE(e.MevzuatUygun());
  EXPECT_THAT(e.bildirim.Al(), testing::IsEmpty()) << "confirmed";

  ASSERT_TRUE(VeriYolu(e.o.DataPath).Sil("gvtbl.dat"));
  e.bildirim.cevap = false;
  EXPECT_EQ(e.KodAl("1"), KodSonucu::Yuklenemedi);
  EXPECT_THAT(e.bildirim.Al(), ElementsAre(testing::HasSubstr("gvtbl.dat yok")));
  EXPECT_FALSE(e.giris.SablondanHazirla());
  EXPECT_TRUE(e.Kayitlar(2009, 1).empty());
}

TEST(BordroGirisi, TotalsDebtAndNetToGross) {
  GirisEkrani e;
  e.Kisi("1", 693);
  e.Ac(2009, 7);
  e.KodAl("1");
  const EkranToplamlari& t = e.giris.Toplamlar();
  EXPECT_EQ(t.yasalKesinti, Tutar(189.54)) << "premium, income tax, stamp duty";
  EXPECT_EQ(t.isciToplam, Tutar(196.47)) << "and unemployment";
  EXPECT_EQ(t.isverenToplam, Tutar(149));
  EXPECT_EQ(t.net, Tutar(546.48));
  EXPECT_EQ(e.giris.BorcAyarla(Tutar(546.49)).KusurMetni(), "Kesinti Limit Aşıldı \n En fazla 546.48 Kesebilirsiniz.");
  EXPECT_TRUE(e.giris.BorcAyarla(Tutar(46.48)));
  EXPECT_EQ(t.net, Tutar(500));
  EXPECT_EQ(e.giris.BorcLimiti(), Tutar(546.48));

  e.giris.Giris().yrd02 = Tutar(477);
  EXPECT_TRUE(e.giris.NettenBruteCevir(YardimAlani(1)));
  EXPECT_EQ(e.giris.Giris().yrd02, Tutar(665.73));
  e.giris.Giris().fm1 = Tek(241);
  EXPECT_EQ(e.Kapat(), KapanisSonucu::KaldiHesapsiz);
  EXPECT_TRUE(e.giris.HesapKusuru()->alan == brd::fm1);
  EXPECT_EQ(t.net, Tutar());
}

// The rates on the screen are those of the calculation, and the record keeps them.
TEST(BordroGirisi, OvertypedRatesAreCalculatedSavedAndComeBack) {
  GirisEkrani e;
  e.Kisi("1", 900);
  e.Ac(2009, 1);
  e.KodAl("1");
  EXPECT_EQ(e.giris.KisiUyarisi(), "");
  Brd& b = e.giris.Giris();
  b.sskiscior = Tek(9);
  b.sskisverenor = Tek(10);
  b.issiziscior = Tek(2);
  b.issizisverenor = Tek(3);
  b.damgaveror = Tek(7);
  EXPECT_EQ(e.Kapat(), KapanisSonucu::Bitti) << "a changed rate alone is an entry";
  const Brd k = e.Kayit("1", 2009, 1);
  EXPECT_EQ(k.sskkesinti, Tutar(81));
  EXPECT_EQ(k.sskkesintiisveren, Tutar(90));
  EXPECT_EQ(k.issizisci, Tutar(18));
  EXPECT_EQ(k.issizisveren, Tutar(27));
  EXPECT_EQ(k.dvtutar, Tutar(6.3));
  e.KodAl("1");
  for (const OranKolonu& oran : OranKolonlari) EXPECT_EQ(e.giris.Giris().*oran.kolon.uye, k.*oran.kolon.uye) << oran.ad;
  EXPECT_EQ(e.giris.KisiUyarisi(),
            "Kayıttaki oranlar kullanılıyor; tablodakiler: SSK İşçi % 14, SSK İşveren % 19.5, İşsizlik İşçi % 1, "
            "İşsizlik İşvr. % 2, Damga V. Binde 6");
  b.sskiscior = Tek(101);
  EXPECT_TRUE(e.giris.Hesapla()->alan == brd::sskiscior);
}

// Nobody goes without pay because the company's card names no group, and nothing of another company is calculated with.
TEST(BordroGirisi, CompanyWithoutADefaultGroupOrReadableParameters) {
  GirisEkrani e;
  e.Kisi("1", 900);
  e.motor().Calistir("update firma set ondeger = ''");
  e.motor().Calistir("delete from kaztan");
  ASSERT_TRUE(e.o.firma.ondeger.empty() || FirmaYukle(e.o));
  const HazirlikSonucu toplu = e.Hazirla(2009, 1);
  EXPECT_EQ(toplu.kaydedilen, 1);
  ASSERT_EQ(toplu.sorunlar.size(), 1u);
  EXPECT_EQ(toplu.sorunlar[0].metin,
            "Hesap Kodu boş, Firma Bilgilerinde Öndeğer Hesap da yazılmamış: \"Personel\" grubuyla hesaplanır");
  e.Ac(2009, 1);
  e.KodAl("1");
  EXPECT_EQ(e.giris.KisiUyarisi(), toplu.sorunlar[0].metin);
  EXPECT_GT(e.giris.Toplamlar().net, Tutar());

  const std::string dizin = e.o.FirmaDizini;
  e.o.FirmaDizini = dizin + "baska/";
  EXPECT_FALSE(e.depo.firma.Gecerli());
  e.motor().Calistir("alter table kaztan rename to kaztan2");
  e.bildirim.Al();
  EXPECT_FALSE(e.giris.Ac());
  EXPECT_TRUE(e.depo.firma.Parametreler().gruplar.empty()) << "those of the company before are gone";
}

// What somebody typed into a template is not written over unseen.
TEST(BordroGirisi, ABrokenTemplateIsReplacedOnlyWhenAsked) {
  GirisEkrani e;
  e.Kisi("1", 900);
  const VeriYolu sirket(e.o.FirmaDizini);
  ASSERT_TRUE(sirket.Yaz("sablon.dat", "x"));
  e.bildirim.cevap = false;
  e.Ac(2009, 1);
  EXPECT_EQ(sirket.Oku("sablon.dat").value_or(""), "x");
  EXPECT_EQ(e.giris.Kosul().firma.sablon, VarsayilanSablon());
  e.bildirim.cevap = true;
  e.Ac(2009, 1);
  EXPECT_EQ(e.bildirim.Al().size(), 2u);
  EXPECT_EQ(sirket.Oku("sablon.dat").value_or("").size(), 135u);
}

}  // namespace
}  // namespace belvani
