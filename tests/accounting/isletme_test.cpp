// The business ledger: two lines, each for itself.
#include "accounting/isletme.h"

#include "accounting/kardestablolar.h"
#include "core/store/satirlar.h"
#include "muhasebe.h"

namespace belvani {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

struct Isletme : test::KardesTesti {
  std::shared_ptr<Motor> isletme = Kur(KardesTuru::Isletme);
  IsletmeKaydi kayit{.tarih = Tarih(2009, 12, 31),
                     .ack = "Aralık 2009 Ücret Tahakkuku",
                     .brut = Tutar(100.25),
                     .ucretgrup = "ucr",
                     .prim = Tutar(20),
                     .sskgrup = "SSK"};

  std::string Kusur() {
    IsletmeKaydi islenen = kayit;
    const Durum d = IsletmeyeIsle(*isletme, islenen);
    return d ? "" : d.KusurMetni();
  }
  std::vector<Isltra> Hareketler() { return KayitlariOku<Isltra>(*isletme, "order by rowid"); }
};

TEST_F(Isletme, TwoLines) {
  EXPECT_EQ(Kusur(), "");
  const auto hareketler = Hareketler();
  ASSERT_EQ(hareketler.size(), 2u);
  EXPECT_TRUE(hareketler[0] == (Isltra{.tarih = kayit.tarih,
                                       .hartip = 2,
                                       .kdvtip = 0,
                                       .defter = false,
                                       .grup = "ucr",
                                       .fisno = "",
                                       .ack = kayit.ack,
                                       .hizmet = Tutar(100.25),
                                       .emtea = {},
                                       .kdv = {},
                                       .miktar = {}}));
  EXPECT_TRUE(hareketler[1].grup == "SSK" && hareketler[1].hizmet == Tutar(20));
  EXPECT_EQ(AyniHareketler(*isletme, kayit.ack), 2);
  EXPECT_THAT(AyniHareketSorusu(2, kayit.ack), HasSubstr("2 hareket var"));
  EXPECT_EQ(AyniHareketSorusu(AyniHareketler(*isletme, "Ocak"), "Ocak"), "");
  EXPECT_EQ(Kusur(), "");
  EXPECT_EQ(Hareketler().size(), 4u) << "posting twice writes twice";
}

TEST_F(Isletme, Faults) {
  const IsletmeKaydi tam = kayit;
  kayit.tarih = {};
  EXPECT_EQ(Kusur(), "Hatalı Tarih");
  kayit = tam;
  kayit.brut = kayit.prim = {};
  EXPECT_EQ(Kusur(), "Entegre Edilecek Tutar Yok");
  kayit = tam;
  kayit.ucretgrup = "%";
  EXPECT_EQ(Kusur(), "Ücretler Grubu Bulunamadı..");
  isletme->Calistir("create trigger engel before insert on isltra begin select raise(abort, 'x'); end");
  kayit = tam;
  EXPECT_THAT(Kusur(), StartsWith("Ücretler Kaydedilemedi..\n"));
  EXPECT_EQ(Hareketler().size(), 0u);
  isletme->Calistir(
      "drop trigger engel; create trigger engel before insert on isltra when new.grup = 'SSK' "
      "begin select raise(abort, 'x'); end");
  EXPECT_THAT(Kusur(), StartsWith("SSK Tutarı İşletme Defterine Yazılamadı..\n"));
  EXPECT_THAT(Kusur(), testing::EndsWith("Ücretler deftere yazıldı, yerinde kaldı"));
  kayit.sskgrup = "";
  EXPECT_EQ(Kusur(), "SSK Grubu Bulunamadı..\nÜcretler deftere yazıldı, yerinde kaldı");
  EXPECT_EQ(Hareketler().size(), 3u) << "the wages of each try";
}

// After a failure only what is left is written.
TEST_F(Isletme, TriedAgain) {
  kayit.sskgrup = "yok";
  EXPECT_FALSE(IsletmeyeIsle(*isletme, kayit));
  EXPECT_EQ(kayit.brut, Tutar());
  EXPECT_EQ(IsletmeyeIsle(*isletme, kayit).KusurMetni(), "SSK Grubu Bulunamadı..");
  kayit.sskgrup = "SSK";
  EXPECT_TRUE(IsletmeyeIsle(*isletme, kayit));
  EXPECT_EQ(Hareketler().size(), 2u);
  EXPECT_EQ(IsletmeyeIsle(*isletme, kayit).KusurMetni(), "Entegre Edilecek Tutar Yok");
}

TEST_F(Isletme, SumsOfTheMonth) {
  test::OrnekDepo depo;
  Motor& motor = depo.db.IcMotor();
  Sicil s;
  s.kod = "1";
  KayitYazici<Sicil>(motor).Ekle(s);
  Brd b = test::Kayit("1", 1000.1);
  b.sskkesintiisveren = Tutar(195.5);
  b.issizisveren = Tutar(20);
  KayitYazici<Brd> kayitlar(motor);
  kayitlar.Ekle(b);
  b.no = 2;
  kayitlar.Ekle(b);
  b.kod = "gitti";
  kayitlar.Ekle(b);
  const IsletmeKaydi toplam = IsletmeKaydiYap(motor, 2009, 12, Tarih(2010, 1, 4));
  EXPECT_EQ(toplam.brut, Tutar(2000.2));
  EXPECT_EQ(toplam.prim, Tutar(431));
  EXPECT_EQ(toplam.ack, "Aralık 2009 Ücret Tahakkuku");
  EXPECT_EQ(toplam.tarih, Tarih(2010, 1, 4));
  EXPECT_EQ(IsletmeKaydiYap(motor, 2009, 11, {}).brut, Tutar());
}

}  // namespace
}  // namespace belvani
