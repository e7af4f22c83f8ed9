// The company card, the subcontractor, the accountant, and the paths of the installation.
#include "core/session/firmabilgi.h"

#include "core/ayarlar.h"
#include "core/session/aracibilgi.h"
#include "core/session/muhasebecibilgi.h"
#include "core/session/ornekoturum.h"
#include "core/session/yapiayari.h"
#include "core/sinamalar.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Sinamalar;

struct FirmaBilgi : test::OrnekOturum {
  Yazim<Firma> Kaydet(const Firma& f) { return FirmaKaydet(o, {.ilk = FirmaDuzenle(o).ilk, .simdi = f}); }
};

TEST(KanunMetni, LastFiveDigits) {
  // clang-format off
  for (const auto& [metin, kanun] : Sinamalar<const char*, const char*>{
           {"5510", "05510"}, {"506", "00506"}, {"05084", "05084"}, {" 5510 ", "05510"}, {"1234567", "34567"}, {"", "00000"},
           {"-5510", "00000"}, {"55.5", "00000"}, {"5510a", "00000"}})
    // clang-format on
    EXPECT_EQ(KanunMetni(metin), kanun) << metin;
}

TEST_F(FirmaBilgi, CardKeepsTheVersionOfTheStore) {
  Kur();
  Sql("update firma set versiyon = 2003.6, verda = 'Konak'; alter table firma drop column epos");
  ASSERT_TRUE(SirketAc(o, "deneme"));
  Firma f = FirmaDuzenle(o).simdi;  // of an earlier version: what it lacks reads as empty
  EXPECT_EQ(f.verda + f.epos, "Konak");
  f.unvan = "Örgü Ltd.";
  f.kanun = "5510";
  f.firmayil = 2009;
  f.firmaay = 7;
  f.ondeger = "Memur";
  f.kurtar = {};
  f.versiyon = Tek(1);
  ASSERT_TRUE(Kaydet(f));
  EXPECT_EQ(AnaPencereBasligi(o) + o.firma.ondeger, "Örgü Ltd. (Temmuz.2009)Memur");
  f.kanun = "05510";
  f.versiyon = Tek(2003.6);
  EXPECT_EQ(FirmaDuzenle(o).simdi, f);

  Sql("delete from firma");
  EXPECT_EQ(FirmaDuzenle(o).simdi, YeniFirma());
  ASSERT_TRUE(Kaydet(f));
  f.versiyon = o.Versiyon;
  EXPECT_EQ(FirmaDuzenle(o).simdi, f);
  Firma uzun;
  uzun.unvan = std::string(41, 'x');
  const auto kaydedilen = Kaydet(uzun);
  EXPECT_EQ(kaydedilen.KusurMetni(), "Firma Bilgileri Güncellenemedi");
  EXPECT_EQ(kaydedilen.Kusuru().derece, Derece::Hata);
  EXPECT_EQ(AnaPencereBasligi(o), uzun.unvan);  // the session stays written, here without a month
  EXPECT_EQ(FirmaDuzenle(o).simdi, f);
}

TEST_F(FirmaBilgi, SubcontractorAndAccountant) {
  Kur();
  Arac a = AraciOku(o);
  EXPECT_EQ(a.kod, "000");
  for (const char* kod : {"001", "007"}) {
    a.kod = kod;
    ASSERT_TRUE(AraciKaydet(o, {.ilk = AraciDuzenle(o).ilk, .simdi = a}));
  }
  EXPECT_TRUE(AraciOku(o) == a && o.depo.arac.KayitSayisi() == 1);
  a.kod = "1234";
  EXPECT_EQ(AraciKaydet(o, {.ilk = AraciDuzenle(o).ilk, .simdi = a}).KusurMetni(), "Aracı Bilgileri Kaydedilemedi");
  const Muhasebeci m{"Şükrü Çağlar", "12345678901", " 42"};
  ASSERT_TRUE(MuhasebeciOku(o) == Muhasebeci() && MuhasebeciKaydet(o, m));
  EXPECT_EQ(MuhasebeciOku(o), m);
  o.FirmaDizini = "/proc/yok/";
  EXPECT_FALSE(MuhasebeciKaydet(o, m));
}

TEST_F(FirmaBilgi, AnotherUsersCardIsNotOverwrittenAndTheSessionWaits) {
  Kur();
  Okunan<Firma> f = FirmaDuzenle(o);
  Sql("update firma set verda = 'Konak', firmaay = 3");
  f.simdi.firmaay = 4;
  const int ay = o.firma.firmaay;
  const auto engel = FirmaKaydet(o, f);
  ASSERT_TRUE(!engel && engel.Kusuru().cakisma);
  EXPECT_EQ(engel.Kusuru().cakisma->alanlar, std::vector<AlanTutamagi>{firma::firmaay});
  EXPECT_EQ(o.firma.firmaay, ay);
  Uzlastir(f, *engel.Kusuru().cakisma, Galip::Benimki);
  ASSERT_TRUE(FirmaKaydet(o, f));
  EXPECT_EQ(FirmaDuzenle(o).simdi.verda + std::to_string(o.firma.firmaay), "Konak4");
}

TEST_F(FirmaBilgi, PathsOfTheInstallation) {
  EXPECT_EQ(YapiAyariKaydet({" ", ""}).KusurMetni(), "Bir Çalışma Dizini Verilmelidir.");
  EXPECT_TRUE(YapiAyariKaydet({"/a", " "}).Kusuru().alan == yapiayari::data);
  EXPECT_TRUE(YapiAyariKaydet({"/opt/belvani", " /veri/ "}));
  EXPECT_EQ(MakineAyari("PrgPath") + MakineAyari("DataPath"), "/opt/belvani//veri/");
  EXPECT_TRUE(YapiAyariKaydet({"/opt/belvani", "postgresql://s/belvani/"}));
  EXPECT_EQ(MakineAyari("DataPath"), "postgresql://s/belvani");
  for (const char* adres : {"postgresql://ayse:gizli@s/b", "postgresql://s", "postgresql://s/b#ORNEK"}) {
    const auto kusur = YapiAyariKaydet({"/opt/baska", adres});
    ASSERT_FALSE(kusur) << adres;
    EXPECT_TRUE(kusur.Kusuru().alan == yapiayari::data && kusur.KusurMetni().find("gizli") == std::string::npos);
  }
  EXPECT_EQ(MakineAyari("PrgPath") + MakineAyari("DataPath"), "/opt/belvani/postgresql://s/belvani");
}

}  // namespace
}  // namespace belvani
