// A company is backed up while others work and comes back with the same rows; whenever it is killed, it is the one or
// the other.
#include <atomic>
#include <gmock/gmock.h>

#include "core/dosya.h"
#include "core/saat.h"
#include "core/session/ornekoturum.h"
#include "core/session/sirket.h"
#include "core/session/sirketlistesi.h"
#include "core/session/sirketyedegi.h"
#include "core/session/yedektendon.h"
#include "core/tables/tablolar.h"
#include "core/yarimdizin.h"
#include "core/yedek/arsiv.h"
#include "kesinti.h"
#include "surec.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;
using test::Iletiler;
using testing::HasSubstr;
using testing::StartsWith;

// Every table of a store with all its rows, as text.
std::string Icerik(const std::string& sirket) {
  const auto motor = MotorAc(sirket + "tolu.dat");
  std::string icerik;
  for (const TabloTanimi& tanim : Tablolar()) {
    const std::string tablo(tanim.ad);
    icerik += "== " + tablo + "\n";
    const std::string kimlik = motor->KimlikKolonu(tablo);
    const std::vector<MotorKolonu> olan = motor->Kolonlar(tablo);
    std::string kolonlar = kimlik;
    for (const AlanTanimi& alan : tanim.alanlar)
      if (std::ranges::find(olan, alan.ad, &MotorKolonu::ad) != olan.end()) kolonlar += ", " + std::string(alan.ad);
    if (kolonlar == kimlik) continue;
    const auto satir = motor->Hazirla("select " + kolonlar + " from " + tablo + " order by " + kimlik);
    while (satir->Adim())
      for (int i = 0; i < satir->KolonSayisi(); ++i) icerik += std::string(satir->Metin(i)) + "|";
  }
  return icerik;
}

struct SirketYedegi : test::OrnekOturum {
  SabitGun gun{Tarih(2026, 11, 22)};

  // A company with `kisi` people and a file of its own, closed.
  std::string Sirket(const char* ad, int kisi) {
    Kur(ad);
    Sql("with recursive s(i) as (select 1 union all select i + 1 from s where i < " + std::to_string(kisi) +
        ") insert into sicil(kod, adi, ucret) select cast(i as text), 'Işıl', i * 10000 from s; update firma set unvan "
        "= 'Şık Örgü'");
    const std::string dizin = std::exchange(o.FirmaDizini, {});
    EXPECT_TRUE(VeriYolu(dizin).Yaz("bordro.ini", "[Bordro]\na=1\n"));
    o.depo.TablolariKapat(KapatmaKapsami::VeritabaniDa);
    return dizin;
  }
  AlinanYedek Al(const std::string& ad, const std::string& hedef = {}) {
    auto alinan = YedekAl(o.DataPath, ad, {.hedef = hedef});
    EXPECT_TRUE(alinan) << alinan.KusurMetni();
    return alinan ? *alinan : AlinanYedek{};
  }
  void Degistir(const std::string& dizin) {
    const auto motor = MotorAc(dizin + "tolu.dat");
    motor->Calistir("update sicil set ucret = ucret + 1; delete from sicil where kod = '2'");
  }
  std::vector<YedekTuru> Turler(const std::string& ad) {
    std::vector<YedekTuru> turler;
    for (const YedekSatiri& y : SirketYedekleri(o.DataPath, ad)) turler.push_back(y.ad.tur);
    return turler;
  }
  std::vector<std::string> Gizliler() {
    std::vector<std::string> adlar;
    for (const auto& g : fs::recursive_directory_iterator(d.Yol()))
      if (const std::string ad = g.path().filename(); ad.front() == '.' && ad != ".yedek") adlar.push_back(ad);
    return adlar;
  }
};

TEST_F(SirketYedegi, ComesBackWithTheSameRows) {
  const std::string dizin = Sirket("deneme", 500), once = Icerik(dizin);
  ASSERT_THAT(once, HasSubstr("Işıl"));
  const AlinanYedek yedek = Al("DENEME");
  EXPECT_TRUE(yedek.uyarilar.empty());
  EXPECT_EQ(YedekArsivi::Ac(yedek.yol)->Kunye().unvan, "Şık Örgü");
  Degistir(dizin);
  ASSERT_TRUE(VeriYolu(dizin).Yaz("yeni", "x"));

  const auto yeni = YedektenDon(o.DataPath, {.dosya = yedek.yol, .yeniKod = "kopya"}, b);
  ASSERT_TRUE(yeni && *yeni) << yeni.KusurMetni();
  EXPECT_EQ((*yeni)->ad, "KOPYA");
  EXPECT_EQ(Icerik(o.DataPath + "KOPYA/"), once);
  EXPECT_EQ(VeriYolu(o.DataPath).Alt("KOPYA").Oku("bordro.ini"), "[Bordro]\na=1\n");
  EXPECT_NE(Icerik(dizin), once);
  EXPECT_EQ(b.Al(), Iletiler{});
  EXPECT_EQ(YedektenDon(o.DataPath, {.dosya = yedek.yol, .yeniKod = "Kopya"}, b).KusurMetni(),
            "Bu adda bir şirket var: KOPYA");

  const std::string degisen = Icerik(dizin);
  b.cevap = false;
  EXPECT_FALSE(*YedektenDon(o.DataPath, {.dosya = yedek.yol}, b));
  EXPECT_THAT(b.Al().front(), StartsWith("Soru: DENEME şirketinin şimdiki hali (son değişiklik: "));
  EXPECT_EQ(Icerik(dizin), degisen);
  b.cevap = true;
  const auto donus = YedektenDon(o.DataPath, {.dosya = yedek.yol}, b);
  ASSERT_TRUE(donus && *donus) << donus.KusurMetni();
  EXPECT_THAT(b.Al().front(), HasSubstr(") yerine yedekteki hali (22.11.2026 "));
  EXPECT_EQ(Icerik(dizin), once);
  EXPECT_FALSE(VeriYolu(dizin).Var("yeni"));
  EXPECT_EQ(Turler("DENEME"), (std::vector{YedekTuru::Donus, YedekTuru::Elle}));

  ASSERT_TRUE(*YedektenDon(o.DataPath, {.dosya = (*donus)->onceki, .yeniKod = "eskisi"}, b));
  EXPECT_EQ(Icerik(o.DataPath + "ESKİSİ/"), degisen) << "what stood there is kept";
  EXPECT_EQ(VeriYolu(o.DataPath).Alt("ESKİSİ").Oku("yeni"), "x");
  EXPECT_EQ(Gizliler(), std::vector<std::string>{});
}

TEST_F(SirketYedegi, ChosenPlaces) {
  Sirket("deneme", 3);
  ASSERT_TRUE(DizinYarat(d.Yol() + "usb"));
  EXPECT_EQ(Al("DENEME", d.Yol() + "usb/a.zip").yol, d.Yol() + "usb/a.zip");
  Al("DENEME", d.Yol() + "usb/a.zip");
  EXPECT_THAT(Al("DENEME", d.Yol() + "usb").yol, StartsWith(d.Yol() + "usb/DENEME-2026-11-22-"));
  EXPECT_TRUE(Turler("DENEME").empty());
  EXPECT_EQ(YedekAl(o.DataPath, "DENEME", {.hedef = "/dev/null"}).KusurMetni(),
            "Yedek yalnızca bir dosyaya yazılır: /dev/null");
  fs::create_symlink(d.Yol() + "usb/a.zip", d.Yol() + "bag.zip");
  EXPECT_FALSE(YedekAl(o.DataPath, "DENEME", {.hedef = d.Yol() + "bag.zip"}));
  EXPECT_FALSE(YedekAl(o.DataPath, "DENEME", {.hedef = d.Yol() + "yok/a.zip"}));
  EXPECT_FALSE(fs::exists(d.Yol() + "yok"));
  EXPECT_EQ(YedekAl(o.DataPath, "YOK").KusurMetni(), "Şirket Bulunamadı: YOK");
  EXPECT_EQ(Gizliler(), std::vector<std::string>{});
}

// Somebody moves money from one to the other all the time: the backup holds a moment between two moves.
TEST_F(SirketYedegi, MadeWhileOthersWrite) {
  const std::string dizin = Sirket("deneme", 4000);
  test::Kapi basladi;
  test::Surec yazan([&] {
    const auto motor = MotorAc(dizin + "tolu.dat");
    for (int i = 0;; ++i) {
      Islem islem(*motor);
      motor->Calistir("update sicil set ucret = ucret - 1 where kod = (select min(kod) from sicil)");
      motor->Calistir("update sicil set ucret = ucret + 1 where kod = (select max(kod) from sicil)");
      islem.Onayla();
      if (i == 3) basladi.Ac();
    }
    return 0;
  });
  basladi.Bekle();
  for (int i = 0; i < 3; ++i) Al("DENEME");
  yazan.Oldur();
  for (const YedekSatiri& y : SirketYedekleri(o.DataPath, "DENEME")) {
    const std::string kod = "k" + std::to_string(y.ad.sira) + y.ad.saat;
    ASSERT_TRUE(*YedektenDon(o.DataPath, {.dosya = y.yol, .yeniKod = kod}, b));
    const auto motor = MotorAc(DepoAdresi(VeriYolu(o.DataPath).Alt(*SirketBul(o.DataPath, kod))));
    EXPECT_EQ(motor->ButunlukKusuru(), "");
    const auto toplam = motor->Hazirla("select sum(ucret) from sicil");
    ASSERT_TRUE(toplam->Adim());
    EXPECT_EQ(toplam->Tam(0), std::int64_t(4000) * 4001 / 2 * 10000);
  }
}

TEST_F(SirketYedegi, RefusedWhileSomebodyIsIn) {
  const std::string dizin = Sirket("deneme", 3), once = Icerik(dizin);
  const AlinanYedek yedek = Al("DENEME");
  test::Kapi acildi;
  test::Surec baskasi([&] {
    (void)SirketAc(o, "deneme");
    acildi.Ac();
    return ::pause();
  });
  acildi.Bekle();
  EXPECT_THAT(YedektenDon(o.DataPath, {.dosya = yedek.yol}, b).KusurMetni(), HasSubstr("şu anda kullanılıyor"));
  baskasi.Oldur();
  EXPECT_EQ(Icerik(dizin), once);
  EXPECT_EQ(Gizliler(), std::vector<std::string>{});
}

// A damaged company is backed up as it lies and told; what is no store never takes a company's place.
TEST_F(SirketYedegi, DamageIsTold) {
  YALNIZ_DIZINDE("a file that is no store");
  const std::string dizin = Sirket("deneme", 3);
  const AlinanYedek saglam = Al("DENEME");
  ASSERT_TRUE(DosyaYaz(dizin + "tolu.dat", std::string(5000, 'x')));
  ASSERT_TRUE(DizinYarat(dizin + "alt"));
  const AlinanYedek bozuk = Al("DENEME");
  ASSERT_EQ(bozuk.uyarilar.size(), 2u);
  EXPECT_THAT(bozuk.uyarilar[1].metin, StartsWith("Veritabanı bozuk ya da bir veritabanı değil"));
  EXPECT_THAT(YedektenDon(o.DataPath, {.dosya = bozuk.yol}, b).KusurMetni(),
              StartsWith("Yedekteki veritabanı açılamadı: "));
  EXPECT_EQ(DosyaOku(dizin + "tolu.dat"), std::string(5000, 'x'));
  fs::remove(dizin + "alt");
  const auto donus = YedektenDon(o.DataPath, {.dosya = saglam.yol}, b);
  ASSERT_TRUE(donus && *donus) << donus.KusurMetni();
  EXPECT_EQ((*donus)->uyarilar.size(), 1u);
  EXPECT_THAT(Icerik(dizin), HasSubstr("Işıl"));
  EXPECT_EQ(Gizliler(), std::vector<std::string>{});
}

TEST_F(SirketYedegi, OneADayWhenSomethingHasChanged) {
  YALNIZ_DIZINDE("a server is backed up by its administrator");
  const std::string dizin = Sirket("deneme", 3);
  const auto gunluk = [&] {
    const auto alinan = GunlukYedekAl(o.DataPath, "DENEME");
    EXPECT_TRUE(alinan) << alinan.KusurMetni();
    return alinan && alinan->has_value();
  };
  EXPECT_TRUE(gunluk());
  EXPECT_FALSE(gunluk());
  Icerik(dizin);  // opened, read, closed
  EXPECT_FALSE(gunluk());
  Degistir(dizin);
  EXPECT_TRUE(gunluk());
  EXPECT_EQ(Turler("DENEME"), std::vector{YedekTuru::Gunluk}) << "the day's earlier one goes";
  ASSERT_TRUE(DosyaYaz(dizin + "bordro.ini", "b"));
  EXPECT_TRUE(gunluk());
  for (int i = 1; i < 14; ++i) {
    const SabitGun sonraki(Tarih(2026, 11, 22).Ekle(i));
    Degistir(dizin);
    EXPECT_TRUE(gunluk());
  }
  EXPECT_EQ(Turler("DENEME").size(), 11u) << "ten days, and the last of November before them";
}

TEST_F(SirketYedegi, MadeBeforeADeletion) {
  const std::string dizin = Sirket("deneme", 3), once = Icerik(dizin);
  if (!test::SunucudaMi()) {
    // Nobody may write there (a file stands in the way, which holds for the administrator too).
    ASSERT_TRUE(DosyaYaz(o.DataPath + ".yedek", ""));
    EXPECT_THAT(SirketSil(o.DataPath, "DENEME", o, b).KusurMetni(),
                StartsWith("Silmeden önce yedek alınamadı, hiçbir dosya silinmedi:"));
    EXPECT_EQ(Icerik(dizin), once);
    fs::remove(o.DataPath + ".yedek");
  }
  ASSERT_TRUE(SirketSil(o.DataPath, "DENEME", o, b));
  EXPECT_FALSE(VeriYolu(o.DataPath).AltVar("DENEME"));
  EXPECT_EQ(*YedekliSirketBul(o.DataPath, "Deneme"), "DENEME");
  ASSERT_EQ(Turler("DENEME"), std::vector{YedekTuru::Silme});
  ASSERT_TRUE(*YedektenDon(o.DataPath, {.dosya = SirketYedekleri(o.DataPath, "DENEME").front().yol}, b));
  EXPECT_EQ(Icerik(dizin), once);
}

// Killed at any system call: every file that bears a backup's name is whole, and the next one cleans up.
TEST_F(SirketYedegi, KilledBackupLeavesNoHalfOne) {
  YALNIZ_DIZINDE("writes to files are watched");
  Sirket("deneme", 3);
  const auto kes = [&](int no) { return test::KesilenCagri([&] { (void)YedekAl(o.DataPath, "DENEME"); }, no); };
  const int hepsi = kes(1'000'000);
  ASSERT_GT(hepsi, 100);
  std::size_t yarim = 0;
  for (int no = 1; no < hepsi; no += 1 + hepsi / 40) {
    kes(no);
    yarim += Gizliler().size();
    for (const YedekSatiri& y : SirketYedekleri(o.DataPath, "DENEME")) {
      const auto arsiv = YedekArsivi::Ac(y.yol);
      ASSERT_TRUE(arsiv && arsiv->Dogrula(nullptr)) << no;
    }
  }
  EXPECT_GT(yarim, 20u);
  Al("DENEME");
  EXPECT_EQ(Gizliler(), std::vector<std::string>{});
}

TEST_F(SirketYedegi, KilledReturnIsTheOldOneOrTheNewOne) {
  YALNIZ_DIZINDE("writes to files are watched");
  const std::string dizin = Sirket("deneme", 3), yeni = Icerik(dizin);
  const AlinanYedek yedek = Al("DENEME", d.Yol() + "y.zip");
  Degistir(dizin);
  const auto kes = [&](int no) {
    return test::KesilenCagri([&] { (void)YedektenDon(o.DataPath, {.dosya = yedek.yol}, b); }, no);
  };
  const int hepsi = kes(1'000'000);
  ASSERT_EQ(Icerik(dizin), yeni);
  int eskiKez = 0, yeniKez = 0;
  const auto aralik = [&](int no) { return no < hepsi - 40 ? 1 + hepsi / 25 : 1; };  // the swap is near the end
  for (int no = 1; no < hepsi; no += aralik(no)) {
    SCOPED_TRACE(no);
    { MotorAc(dizin + "tolu.dat")->Calistir("delete from sicil; insert into sicil(kod) values('eski')"); }
    const std::string once = Icerik(dizin);
    kes(no);
    YarimDegisimleriBitir(o.DataPath);
    const std::string simdi = Icerik(dizin);
    EXPECT_TRUE(simdi == once || simdi == yeni);
    ++(simdi == yeni ? yeniKez : eskiKez);
    EXPECT_EQ(Sirketler(o.DataPath), std::vector<std::string>{"DENEME"});
    EXPECT_TRUE(YarimSirketler(o.DataPath).empty());
  }
  EXPECT_TRUE(eskiKez > 20 && yeniKez > 2) << eskiKez << " " << yeniKez;
}

// Where two names cannot be exchanged, a kill between the two renames leaves the company aside.
TEST_F(SirketYedegi, ACompanyAsideComesBack) {
  YALNIZ_DIZINDE("names of directories that change");
  const std::string dizin = Sirket("deneme", 3), once = Icerik(dizin);
  const std::string yan = o.DataPath + ".degisen-DENEME";
  fs::rename(o.DataPath + "DENEME", yan);
  fs::create_directory(o.DataPath + ".donen-DENEME-abcdef");
  YarimDegisimleriBitir(o.DataPath);
  EXPECT_EQ(Icerik(dizin), once);
  fs::copy(o.DataPath + "DENEME", yan, fs::copy_options::recursive);  // killed after the second rename
  YarimDegisimleriBitir(o.DataPath);
  EXPECT_EQ(Icerik(dizin), once);
  EXPECT_EQ(Gizliler(), std::vector<std::string>{});
}

}  // namespace
}  // namespace belvani
