// From the start of the program to a login, with settings in a directory of the test.
#include "core/session/oturum.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

#include "core/ayarlar.h"
#include "core/dizinmakinesi.h"
#include "core/dosya.h"
#include "core/saat.h"
#include "core/session/ornekoturum.h"
#include "core/session/sirket.h"
#include "core/sinamalar.h"
#include "core/store/satirlar.h"
#include "core/sunucuadresi.h"
#include "core/tables/firma.h"
#include "core/tables/peruser.h"
#include "surec.h"

namespace belvani {
namespace {

using namespace testing;
using test::Iletiler;
using test::OrtamKoy;
using test::Sinamalar;
using I = std::int64_t;

struct OturumTest : test::OrnekOturum {
  // Whether the program goes on; what the start has to say is told.
  bool Basla(const std::string& program, const std::string& komut) {
    const auto basladi = Baslat(o, program, komut, b);
    for (const Kusur& soz : !basladi ? Kusurlar{basladi.Kusuru()} : basladi->value_or(Kusurlar())) b.KusuruGoster(soz);
    return basladi && basladi->has_value();
  }
};

mode_t Izin(const std::string& yol) {
  struct stat s {};
  return ::stat(yol.c_str(), &s) == 0 ? s.st_mode & 0777 : 0;
}

TEST_F(OturumTest, FirstRunThenRecordedPaths) {
  YALNIZ_DIZINDE("the directory that a first run makes");
  const std::string prg = d.Yol() + "prg", data = prg + "/PerData/";
  ASSERT_TRUE(DizinYarat(prg));
  ASSERT_TRUE(Basla(prg, "/komut/satiri"));
  EXPECT_EQ(b.Al(), Iletiler{"Bilgi: Yeni Data Dizini Yaratıldı\n" + data});
  EXPECT_EQ(o.PrgPath + "|" + o.DataPath, prg + "/|" + data);
  EXPECT_EQ(MakineAyari("PrgPath") + "|" + MakineAyari("DataPath"), prg + "/|" + data);
  EXPECT_EQ(Izin(data), mode_t(0770));
  EXPECT_EQ(o.Versiyon, Tek(2003.7));
  EXPECT_EQ(o.BilgisayarAdi, BilgisayarAdiBul());
  EXPECT_EQ(o.Kullanici + o.ParaBirimi + o.KurusBirimi + o.ResimYolu, "BELVANITLKRimage/soft/");
  EXPECT_TRUE(o.ResimKullan && o.ListeSirasi == 5);
  // {command line, data path of this run}; the record does not change.
  for (const auto& [komut, yol] :
       Sinamalar<std::string, std::string>{{"", data}, {"/baska yer", "/baska yer/"}, {"/x/", "/x/"}}) {
    ASSERT_TRUE(Basla("/hic/onemli/degil", komut));
    EXPECT_EQ(o.PrgPath + "|" + o.DataPath, prg + "/|" + yol);
    EXPECT_EQ(MakineAyari("DataPath"), data);
    EXPECT_EQ(b.Al(), Iletiler{});
  }
}

// A program directory that is not ours to write, a data directory that cannot be made, settings that cannot be kept.
TEST_F(OturumTest, FirstRunUnderDifficulties) {
  YALNIZ_DIZINDE("the directory that a first run makes");
  const std::string dosya = d.Yol() + "PerData";
  ASSERT_TRUE(DosyaYaz(dosya, ""));
  EXPECT_FALSE(Basla(d.Yol(), ""));
  EXPECT_EQ(b.Al(), Iletiler{"Uyarı: Data Dizini Yaratılamıyor.\n" + dosya + "/\nHata Kodu:0"});
  EXPECT_EQ(MakineAyari("PrgPath"), "");
  const auto yazilmaz = OrtamKoy("BELVANI_MAKINE_AYAR", (dosya + "/makine.ini").c_str());
  EXPECT_TRUE(Basla("/proc/belvani", ""));
  EXPECT_EQ(o.DataPath, d.Yol() + "ayar/veri/PerData/");
  EXPECT_TRUE(DizinVar(o.DataPath));
  const auto iletiler = b.Al();
  ASSERT_EQ(iletiler.size(), 3u);
  EXPECT_EQ(iletiler[0], "Bilgi: Yeni Data Dizini Yaratıldı\n" + o.DataPath);
  EXPECT_TRUE(iletiler[1].starts_with("Uyarı: ") && iletiler[2].starts_with("Uyarı: "));
}

struct Sunuculu {
  explicit Sunuculu(VeriMakinesiYapici yapici) : onceki(SunucuYapicisiKoy(yapici)) {}
  ~Sunuculu() { SunucuYapicisiKoy(onceki); }
  VeriMakinesiYapici onceki;
};

std::string sunucuDizini;  // stands for the server of the test

// The address of a server is kept from the first run on; nothing is made, and nothing recorded, for it.
TEST_F(OturumTest, AnAddressIsAWholeInstallation) {
  sunucuDizini = d.Yol() + "sunucu/";
  const Sunuculu sunucu([](const SunucuAdresi& adres) { return DizinYeri(sunucuDizini + adres.yol); });
  ASSERT_TRUE(Basla(d.Yol(), " postgresql://s/belvani/ "));
  EXPECT_EQ(o.PrgPath + "|" + o.DataPath, d.Yol() + "|postgresql://s/belvani#");
  EXPECT_EQ(MakineAyari("PrgPath") + MakineAyari("DataPath"), "");
  EXPECT_FALSE(DizinVar(d.Yol() + "PerData") || DizinVar(d.Yol() + "postgresql:"));
  Kur("izmir");
  EXPECT_EQ(Sirketler(o.DataPath), std::vector<std::string>{"İZMİR"});
  EXPECT_TRUE(VeriYolu(sunucuDizini).Alt("İZMİR").Var(DepoDosyasi)) << "all of it goes through the place's maker";
  EXPECT_EQ(b.Al(), Iletiler{});
  // Recorded for all its computers, it is no first run's to overwrite.
  ASSERT_TRUE(MakineAyariYaz("DataPath", "postgresql://s/belvani"));
  ASSERT_TRUE(Basla(d.Yol(), ""));
  EXPECT_EQ(o.DataPath + MakineAyari("PrgPath"), "postgresql://s/belvani#");
}

TEST_F(OturumTest, AnAddressThatLeadsNowhereEndsTheStart) {
  const Sunuculu sunucusuz(nullptr);
  b.cevap = false;
  EXPECT_FALSE(Basla(d.Yol(), "postgresql://s/belvani"));
  EXPECT_THAT(b.Al(), ElementsAre(AllOf(StartsWith("Soru: s/belvani: "), HasSubstr("\nYeniden Denensin mi ?"))));
  for (const auto& [adres, neden] :
       Sinamalar<const char*, const char*>{{"postgresql://ayse:gizli@s/b", "şifre bulunamaz"},
                                           {"postgresql://s/b?password=gizli", "şifre bulunamaz"},
                                           {"postgresql://s", "veritabanının adı"},
                                           {"postgresql://s/b#ORNEK", "bir şirketin adresi"}}) {
    EXPECT_FALSE(Basla(d.Yol(), adres)) << adres;
    EXPECT_THAT(b.Al(), ElementsAre(AllOf(StartsWith("Uyarı: "), HasSubstr(neden), Not(HasSubstr("gizli"))))) << adres;
  }
  EXPECT_EQ(MakineAyari("PrgPath") + MakineAyari("DataPath"), "");
  o.DataPath = "postgresql://s/belvani#";
  EXPECT_THAT(SirketAc(o, "deneme").KusurMetni(), StartsWith("s/belvani: ")) << "nobody can tell what is there";
  EXPECT_THAT(SirketOlustur(o, "deneme", "Ayşe", "").KusurMetni(), HasSubstr("s/belvani: "));
}

TEST_F(OturumTest, NewCompanyIsOpenAndComplete) {
  const auto maske = test::Maske(0777);
  Kur(" izmir ");
  EXPECT_EQ(o.FirmaKod + "|" + o.FirmaDizini, "İZMİR|" + veriYeri.Yer() + "İZMİR/");
  if (!test::SunucudaMi()) {
    EXPECT_EQ(Izin(o.FirmaDizini), mode_t(0770));
    EXPECT_EQ(Izin(o.FirmaDizini + "tolu.dat"), mode_t(0660));
  }
  const auto kullanicilar = KayitlariOku<Peruser>(o.depo.db.IcMotor());
  EXPECT_EQ(kullanicilar, (std::vector<Peruser>{{"Ayşe", "gizli'", true}}));
  EXPECT_TRUE(o.depo.kaztan.AcikMi() && VersiyonKontrol(o));
  EXPECT_EQ(b.iletiler, Iletiler{});
}

// Every column: text is empty unless told, the rest is Null unless told. A record that is there is filled anew.
TEST_F(OturumTest, FirstCompanyRecordFieldByField) {
  Kur();
  Sql("update firma set unvan = 'Eski', tersfirma = null, verda = 'Konak', issaati = 3");
  const Tarih bugun(2007, 11, 30);
  const SabitGun gun(bugun);
  ASSERT_TRUE(FirmaIlkKayit(o));
  const std::string unvan = "Yeni Şirket (2007)";
  // clang-format off
  const std::map<std::string_view, Deger> yazilan{
      {"unvan", unvan}, {"kurtar", bugun}, {"iskodu", I(1)}, {"yuvar", 0.0}, {"issaati", 8.0}, {"paraonda", I(2)},
      {"firmayil", I(2007)}, {"firmaay", I(11)}, {"tehlike", I(0)}, {"sinif", 0.0},
      {"ondeger", std::string("Personel")}, {"kanun", std::string("00000")}, {"versiyon", 2003.7}};
  // clang-format on
  ASSERT_TRUE(o.depo.firma.KayitSayisi() == 1 && o.depo.firma.IlkKayit());
  Firma::HerKolon([&](const AlanTanimi& alan) {
    const auto i = yazilan.find(alan.ad);
    const bool metin = alan.tip == AlanTipi::Metin, bos = i == yazilan.end();
    Imlec s;
    EXPECT_EQ(o.depo.db.SqlAc(s, "select 1 from firma where " + std::string(alan.ad) + " is null"), bos && !metin)
        << alan.ad;
    EXPECT_EQ(o.depo.firma.AlanOku(alan.ad), !bos ? i->second : metin ? Deger(std::string()) : Deger(I(0))) << alan.ad;
  });
  EXPECT_EQ(o.firma.unvan + o.firma.ondeger, unvan + "Personel");
  EXPECT_EQ(o.firma.firmayil * 100 + o.firma.firmaay, bugun.Yil() * 100 + bugun.Ay());
  Sql("drop table firma");
  EXPECT_EQ(FirmaIlkKayit(o).KusurMetni(), "Firma Bilgileri Güncellenemedi");
}

TEST_F(OturumTest, NewCompanyRefusedLeavesNoTrace) {
  using Metin = const char*;
  for (const auto& [ad, kod, sifre, metin] :
       Sinamalar<Metin, Metin, Metin, Metin>{{"..", "a", "b", "Şirket adında kullanılamayan bir harf var"},
                                             {"yeni", "", "b", "Kullanıcı adı boş olamaz"},
                                             {"yeni", " \t", "b", "Kullanıcı adı boş olamaz"},
                                             {"yeni", "çokuzunad", "b", "Kullanıcı adı: en çok 8 harf olabilir"},
                                             {"yeni", "\xFF", "b", "Kullanıcı adı: okunamayan harf var"},
                                             {"yeni", "a", "123456789", "Şifre: en çok 8 harf olabilir"}}) {
    const auto sonuc = SirketOlustur(o, ad, kod, sifre);
    ASSERT_FALSE(sonuc) << metin;
    EXPECT_TRUE(sonuc.KusurMetni().starts_with(metin)) << sonuc.KusurMetni();
    EXPECT_TRUE(VeriYolu(o.DataPath).Altlar().empty());
  }
  EXPECT_EQ(o.FirmaKod, "");
  EXPECT_EQ(b.iletiler, Iletiler{});
}

TEST_F(OturumTest, NewCompanyLeavesWhatStandsInItsWay) {
  YALNIZ_DIZINDE("what else may stand under a company's name");
  ASSERT_TRUE(DizinYarat(o.DataPath + "izmir") && DosyaYaz(o.DataPath + "DOSYA", "x"));
  EXPECT_EQ(SirketOlustur(o, "İzmir", "a", "b").KusurMetni(), "Bu adda bir şirket var: İZMİR");
  EXPECT_TRUE(std::filesystem::is_empty(o.DataPath + "izmir"));
  EXPECT_EQ(SirketOlustur(o, "dosya", "a", "b").KusurMetni(), "Şirket Dizini Yaratılamıyor: " + o.DataPath +
                                                                  "DOSYA/\n" + o.DataPath +
                                                                  "DOSYA: dizin yaratılamadı (bu adda bir dosya var)");
  EXPECT_EQ(DosyaOku(o.DataPath + "DOSYA"), "x");
  EXPECT_EQ(o.FirmaKod, "");
  EXPECT_EQ(b.iletiler, Iletiler{});
}

TEST_F(OturumTest, NewCompanyOnAFullDisk) {
  YALNIZ_DIZINDE("a disk of this computer");
  int kurulan = 0, kurulamayan = 0;
  for (rlim_t sinir = 0; sinir < 2'000'000; sinir = sinir * 5 / 4 + 2000) {
    Oturum yeni;
    yeni.DataPath = d.Yol() + std::to_string(sinir) + "/";
    const auto dar = test::DarDisk(sinir);
    const auto sonuc = SirketOlustur(yeni, "dar", "a", "b");
    const bool kuruldu = bool(sonuc);
    b.Al();
    EXPECT_TRUE(kuruldu || !sonuc.KusurMetni().empty()) << sinir;
    ++(kuruldu ? kurulan : kurulamayan);
    EXPECT_EQ(yeni.FirmaKod, kuruldu ? "DAR" : "");
    EXPECT_EQ(yeni.depo.db.AcikMi(), kuruldu);
    EXPECT_EQ(std::filesystem::exists(yeni.DataPath + "DAR"), kuruldu) << sinir;
    EXPECT_TRUE(!kuruldu || (SirketAc(yeni, "dar") && yeni.depo.peruser.KayitSayisi() == 1)) << sinir;
  }
  EXPECT_TRUE(kurulan > 2 && kurulamayan > 9) << kurulan << " " << kurulamayan;
}

// The one that loses must not take the winner's company away with its own.
TEST_F(OturumTest, ManyMakeTheSameCompanyAtOnce) {
  for (int kez = 0; kez < 10; ++kez) {
    const std::string ad = "ortak" + std::to_string(kez);
    std::vector<test::Surec> surecler;
    for (const char* kod : {"1", "2", "3", "4"})
      surecler.emplace_back([&, kod] { return SirketOlustur(o, ad, kod, "") ? 0 : 1; });
    int kuran = 0;
    for (auto& s : surecler) kuran += s.Bekle() == 0;
    EXPECT_EQ(kuran, 1);
    EXPECT_TRUE(SirketAc(o, ad) && o.depo.peruser.KayitSayisi() == 1 && FirmaYukle(o));
    o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
  }
}

TEST_F(OturumTest, CompanyThatCannotBeOpened) {
  Kur();
  Sql("drop table peruser");
  const std::string acilamadi = "Database Açılamadı: " + o.DataPath;
  Sinamalar<const char*, std::string> durumlar{
      {"yok", "Şirket Bulunamadı: YOK"},
      {"../deneme", "Şirket adında kullanılamayan bir harf var"},
      {"deneme", acilamadi + "DENEME/tolu.dat\nPErUser SQL Tablosu Açılamadı\nTablo yok: peruser"}};
  if (!test::SunucudaMi()) {
    ASSERT_TRUE(DizinYarat(o.DataPath + "BOS") && DizinYarat(o.DataPath + "COP/tolu.dat"));
    for (const char* ad : {"BOS", "COP"})
      durumlar.emplace_back(ad, acilamadi + ad + "/tolu.dat\nVeritabanı dosyası açılamadı");
  }
  for (const auto& [ad, metin] : durumlar) {
    Oturum yeni;
    yeni.DataPath = o.DataPath;
    const auto sonuc = SirketAc(yeni, ad);
    ASSERT_FALSE(sonuc) << ad;
    EXPECT_TRUE(sonuc.KusurMetni().starts_with(metin)) << sonuc.KusurMetni();
    EXPECT_FALSE(yeni.depo.db.AcikMi());
    EXPECT_EQ(yeni.FirmaKod + yeni.FirmaDizini, "");
  }
  EXPECT_TRUE(test::SunucudaMi() || std::filesystem::is_empty(o.DataPath + "BOS"));
}

TEST_F(OturumTest, Login) {
  Kur();
  Sql("insert into peruser (kod, pasw) values ('bos', ''), ('null', null), ('BIR', '1'), ('x'';--', 'x'' or ''1')");
  Sql("update firma set unvan = 'Ünvan', firmayil = 2008, firmaay = 10, paraonda = 0, ondeger = 'Memur'");
  // {company, user, password, true: lets in}
  // clang-format off
  const Sinamalar<const char*, const char*, const char*, bool> durumlar{
      {"deneme", "Ayşe", "gizli'", true}, {" Deneme ", "AYŞE", "gizli'", true}, {"deneme", "Ayşe", "Gizli'", false},
      {"deneme", "Ayşe", "", false}, {"deneme", "Ayse", "gizli'", false}, {"deneme", "", "", false}, {"deneme", "bos", "", true},
      {"deneme", "null", "", true}, {"deneme", "null", "0", false}, {"deneme", "bir", "1", false}, {"deneme", "bır", "1", true},
      {"deneme", "Ayşe", "' or '1'='1", false}, {"deneme", "x';--", "x' or '1", true}, {"deneme", "' or 1=1 --", "", false}};
  // clang-format on
  for (const auto& [sirket, kod, sifre, girer] : durumlar) {
    SCOPED_TRACE(std::string(kod) + "/" + sifre);
    ASSERT_TRUE(SirketAc(o, "deneme"));
    o.firma.unvan = o.firma.ondeger = "";
    const std::string onceki = KullaniciAyari("lastuser", "BELVANI");
    const auto acilan = OturumAc(o, sirket, kod, sifre);
    ASSERT_EQ(bool(acilan), girer);
    if (girer)
      EXPECT_TRUE(acilan->empty());
    else
      EXPECT_EQ(acilan.KusurMetni(), "Kullanıcı Adı veya Kullanıcı Şifresi\n           HATALI");
    EXPECT_TRUE(o.depo.db.AcikMi());
    EXPECT_EQ(o.depo.peruser.AcikMi() && o.depo.cari.AcikMi(), girer);
    EXPECT_EQ(KullaniciAyari("lastuser", "BELVANI"), girer ? kod : onceki);
    EXPECT_EQ(o.firma.unvan + o.firma.ondeger, girer ? "ÜnvanMemur" : "");
    if (!girer) continue;
    EXPECT_EQ(o.Kullanici + o.FirmaKod + KullaniciAyari("lastfirm", ""), std::string(kod) + "DENEMEDENEME");
    EXPECT_EQ(o.firma.firmayil * 1000 + o.firma.firmaay * 10 + o.firma.paraonda, 2'008'100);
  }
}

TEST_F(OturumTest, LoginWithoutCompanyRecordAndSettings) {
  Kur();
  Sql("delete from firma");
  o.firma.firmayil = 1999, o.firma.firmaay = 3, o.firma.paraonda = 1, o.firma.unvan = "Kalan", o.firma.ondeger = "x";
  ASSERT_TRUE(DosyaYaz(d.Yol() + "dosya", ""));
  const auto yazilmaz = OrtamKoy("BELVANI_KULLANICI_DIZIN", (d.Yol() + "dosya/x").c_str());
  const auto acilan = OturumAc(o, "deneme", "ayşe", "gizli'");
  ASSERT_TRUE(acilan);
  ASSERT_EQ(acilan->size(), 3u);  // two settings that could not be kept, and
  EXPECT_EQ(acilan->back().metin, "Firma Bilgilerini Vermeyi Unutmayınız.");
  EXPECT_EQ(o.firma.firmayil * 1000 + o.firma.firmaay * 10 + o.firma.paraonda, 1'999'031);
  EXPECT_EQ(o.Kullanici + o.firma.unvan + o.firma.ondeger, "ayşeKalanPersonel");
}

TEST_F(OturumTest, Versions) {
  Kur();
  for (const std::string versiyon : {"2003.7", "2003.6", "2003.75", "2004.1", "0"}) {
    Sql("update firma set versiyon = " + versiyon);
    const bool ayni = versiyon == "2003.7";
    const Durum kontrol = VersiyonKontrol(o);
    ASSERT_EQ(bool(kontrol), ayni) << versiyon;
    if (ayni) continue;
    EXPECT_EQ(kontrol.KusurMetni(),
              "Program Versiyonu ile Database Versiyonu Farklı...\nProgram Versiyon:2003.7\nDatabase Versiyon:" +
                  versiyon + "\nUpdate Programını Çalıştırınız...");
  }
}

}  // namespace
}  // namespace belvani
