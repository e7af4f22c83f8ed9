// Checksums of pay records: every way of writing keeps them, what other programs write is told apart from damage, and
// no changed bit goes unseen.
#include "core/store/brdozet.h"

#include <gtest/gtest.h>
#include <random>
#include <set>

#include "core/dosya.h"
#include "core/store/depodenetimi.h"
#include "core/store/engel.h"
#include "core/store/ornekdepo.h"
#include "core/store/tablo.h"

namespace belvani {
namespace {

Brd OrnekBordro(int sira) {
  Brd b;
  int n = sira * 7 + 1;
  Brd::HerKolon([&](const auto& kolon) {
    auto& uye = b.*kolon.uye;
    ++n;
    if constexpr (std::is_same_v<std::decay_t<decltype(uye)>, std::string>)
      uye = "Şğ" + std::to_string(sira);
    else if constexpr (std::is_same_v<std::decay_t<decltype(uye)>, Tutar>)
      uye = n % 5 == 0 ? Tutar() : Tutar::Hamdan(n * 123'457ll * (n % 7 == 0 ? -1 : 1));
    else if constexpr (std::is_same_v<std::decay_t<decltype(uye)>, Tek>)
      uye = n % 3 == 0 ? Tek(-0.0) : Tek(n * 0.1);
    else
      uye = std::decay_t<decltype(uye)>(n % 30);
  });
  b.yil = std::int16_t(2005 + sira / 12);
  b.ay = std::uint8_t(sira % 12 + 1);
  b.no = 1;
  b.oto = 0;
  return b;
}

struct BrdOzetTest : testing::Test, test::OrnekDepo {
  Motor& motor() { return db.IcMotor(); }
  void Sql(const std::string& sql) { ASSERT_NO_THROW(motor().Calistir(sql)) << sql; }
  // One a line; remarks are marked.
  std::string Bulunan() {
    std::string metin;
    for (const Kusur& k : BrdOzetKusurlari(motor()))
      metin += (k.derece == Derece::Uyari ? "? " : "") + k.kod + "|" + k.metin + "\n";
    return metin;
  }
};

TEST_F(BrdOzetTest, EveryWriterKeepsThem) {
  KayitYazici<Brd> yazici(motor());
  std::vector<std::int64_t> nolar;
  for (int i = 0; i < 30; ++i) nolar.push_back(yazici.Ekle(OrnekBordro(i)));
  EXPECT_EQ(Bulunan(), "") << "records in numbers";
  yazici.Degistir(OrnekBordro(99), nolar[2]);
  EXPECT_EQ(Bulunan(), "") << "a record over another";
  Brd yerinde = OrnekBordro(98);
  yerinde.kod = OrnekBordro(7).kod;
  KayitYazici<Brd>(motor(), {"kod"}).Degistir(yerinde, nolar[7]);
  EXPECT_EQ(Bulunan(), "") << "a record whose key stays";

  Tablo<Brd> tablo(motor());
  Okunan<Brd> okunan{.ilk = tablo.Bul(nolar[3]), .simdi = *tablo.Bul(nolar[3])};
  okunan.simdi.fm1 = Tek(7.3);
  ASSERT_TRUE(tablo.Yaz(okunan) && tablo.Yaz({.simdi = OrnekBordro(40)}));
  ASSERT_TRUE(tablo.Sil(nolar[4]));
  EXPECT_EQ(Bulunan(), "") << "one record";

  test::TabloImleci rs(db, "brd");
  ASSERT_TRUE(Ekle(rs, {{"kod", std::string("x")}, {"brutkaz", Tutar(5)}, {"fm1", 0.5}}));  // all else is Null
  ASSERT_TRUE(rs.KayitBul("oto", nolar[5]));
  rs.KayitDuzelt();
  rs.AlanYaz("borckes", Tutar(12));
  ASSERT_TRUE(rs.KayitYaz());
  ASSERT_TRUE(rs.KayitBul("oto", nolar[6]));
  rs.KayitSil();
  EXPECT_EQ(Bulunan(), "") << "the named operations";
}

// A column that an older store lacks changes no checksum when it comes.
TEST_F(BrdOzetTest, HoldOverTheGrowthOfAStore) {
  Sql("alter table brd drop column rapcalismadi");
  KayitYazici<Brd>(motor()).Ekle(OrnekBordro(1));
  EXPECT_EQ(Bulunan(), "");
  ASSERT_TRUE(db.AlanEkle("brd", brd::rapcalismadi));
  EXPECT_EQ(Bulunan(), "");
}

TEST_F(BrdOzetTest, OtherProgramsAreToldApartFromDamage) {
  const std::string ekle = "insert into brd (yil, kod, ay) values (2009, 'eski', ";
  Sql(ekle + "1)");
  EXPECT_EQ(Bulunan(), "? |brd: 1 kayıt özetsiz (önceki sürümden), bozulsa anlaşılmaz\n") << "no table yet";
  std::vector<std::string> bizim;
  for (int i = 1; i <= 4; ++i) bizim.push_back(std::to_string(KayitYazici<Brd>(motor()).Ekle(OrnekBordro(i))));
  // An earlier version adds, changes and deletes.
  Sql(ekle + "2)");
  const auto bozVeSil = [&](const std::string& bozulan, const std::string& silinen) {
    Sql("update brd set brutkaz = brutkaz + 1 where oto = " + bozulan + "; delete from brd where oto = " + silinen);
  };
  bozVeSil(bizim[0], bizim[1]);
  EXPECT_EQ(Bulunan(),
            "? eski|brd: 2 kayıt özetsiz (önceki sürümden), bozulsa anlaşılmaz\n"
            "? Şğ1|brd: 1 kayıt son özetinden sonra önceki bir sürümle veya program dışında değiştirilmiş\n");
  EXPECT_EQ(BrdOzetleri(motor()).EksikleriYaz(), 3u);
  EXPECT_EQ(Bulunan(), "");
  // Past the engine: what no program has done.
  for (const char* tetik : {"brdozet_degisti", "brdozet_silindi"}) test::TetigiKaldir(motor(), tetik, "brd");
  bozVeSil(bizim[2], bizim[3]);
  EXPECT_EQ(Bulunan(), "Şğ3|brd: 2005/4 kaydı (" + bizim[2] +
                           ") bozulmuş, değerleri özetini tutmuyor\n|brd: " + bizim[3] + " numaralı kayıt kaybolmuş\n");
}

constexpr std::size_t SayfaBoyu = 4096;

// Numbers of the pages of a table, from its first one down.
void SayfalariBul(const std::string& dosya, std::size_t sayfa, std::set<std::size_t>& sayfalar) {
  const auto* baytlar = reinterpret_cast<const unsigned char*>(dosya.data()) + (sayfa - 1) * SayfaBoyu;
  const auto sayi = [&](std::size_t yer, int boy) {
    std::size_t n = 0;
    for (int i = 0; i < boy; ++i) n = n << 8 | baytlar[yer + std::size_t(i)];
    return n;
  };
  sayfalar.insert(sayfa);
  constexpr unsigned char Ic = 5;
  if (baytlar[0] != Ic) return;
  for (std::size_t i = 0; i < sayi(3, 2); ++i) SayfalariBul(dosya, sayi(sayi(12 + 2 * i, 2), 4), sayfalar);
  SayfalariBul(dosya, sayi(8, 4), sayfalar);
}

// All values of all records with their types; "" where they cannot be read.
std::string Dokum(Motor& motor) {
  std::string metin;
  try {
    const auto komut = motor.Hazirla("select rowid, * from brd not indexed");
    while (komut->Adim())
      for (int i = 0; i < komut->KolonSayisi(); ++i) {
        metin += std::to_string(int(komut->Turu(i))) + ":";
        metin += komut->Turu(i) == Komut::Tur::Sayi ? std::to_string(std::bit_cast<std::int64_t>(komut->Sayi(i)))
                                                    : std::string(komut->Metin(i));
        metin += '\n';
      }
  } catch (const MotorHatasi&) {
    metin.clear();
  }
  return metin;
}

TEST(BrdOzet, NoFlippedBitOfARecordGoesUnseen) {
  YALNIZ_DIZINDE("the bits of its file");
  constexpr int Kayit = 60, Deneme = 300;
  test::OrnekDepo depo;
  {
    Islem islem(depo.db.IcMotor());
    KayitYazici<Brd> yazici(depo.db.IcMotor());
    for (int i = 0; i < Kayit; ++i) yazici.Ekle(OrnekBordro(i));
    islem.Onayla();
  }
  const std::string saglam = Dokum(depo.db.IcMotor());
  std::size_t kok = 0;
  {
    const auto komut = depo.db.IcMotor().Hazirla("select rootpage from sqlite_master where name = 'brd'");
    ASSERT_TRUE(komut->Adim());
    kok = std::size_t(komut->Tam(0));
  }
  depo.db.DbKapat();
  const std::string dosya = DosyaOku(depo.yol).value();
  std::set<std::size_t> kume;
  SayfalariBul(dosya, kok, kume);
  const std::vector<std::size_t> sayfalar(kume.begin(), kume.end());
  ASSERT_GT(sayfalar.size(), 3u);

  std::mt19937 rasgele(2009);
  int degisen = 0, yalnizOzet = 0;
  for (int i = 0; i < Deneme; ++i) {
    const std::size_t yer = (sayfalar[rasgele() % sayfalar.size()] - 1) * SayfaBoyu + rasgele() % SayfaBoyu;
    std::string bozuk = dosya;
    bozuk[yer] = char(bozuk[yer] ^ (1 << rasgele() % 8));
    MotorDosyasiniSil(depo.yol);
    ASSERT_TRUE(DosyaYaz(depo.yol, bozuk));
    try {
      const auto motor = MotorAc(depo.yol);
      if (Dokum(*motor) == saglam) continue;
      ++degisen;
      const Kusurlar bulunan = DepoKusurlari(*motor);
      EXPECT_TRUE(std::ranges::any_of(bulunan, [](const Kusur& k) { return k.derece == Derece::Hata; })) << yer;
      if (std::ranges::all_of(bulunan, [](const Kusur& k) { return k.metin.ends_with("özetini tutmuyor"); }))
        ++yalnizOzet;
    } catch (const MotorHatasi&) {  // refused in words
    }
  }
  EXPECT_GT(degisen, Deneme / 3);
  EXPECT_GT(yalnizOzet, Deneme / 10) << "which nothing else has seen";
}

}  // namespace
}  // namespace belvani
