// A change of a code takes all of a person along or nothing; the store is sound afterwards, and so is what was kept.
#include "personnel/koddegistir.h"

#include "core/store/bordrokodu.h"
#include "core/store/islem.h"
#include "core/store/yantablolar.h"
#include "payroll/hazirlik/aysaklama.h"
#include "sirket.h"

namespace belvani {
namespace {

struct KodDegisikligiTesti : test::SirketTesti {
  Motor& motor() { return o.depo.db.IcMotor(); }

  void SetUp() override {
    SirketTesti::SetUp();
    Kisi("0012", 24);
    Kisi("0013", 2);
  }
  // A person with everything that bears a code.
  void Kisi(const std::string& kod, int ay) {
    Yaz(test::Kart(kod));
    Kimlik kimlik;
    kimlik.kod = kod;
    Yaz(kimlik);
    Foto foto;
    foto.kod = kod;
    foto.resim = {1, 2};
    Yaz(foto);
    Esco esco;
    esco.kod = kod;
    Yaz(esco);
    Cari cari;
    cari.kod = kod;
    Yaz(cari);
    for (const int yil : {2007, 2008}) {
      Dvr dvr;
      dvr.kod = kod;
      dvr.yil = std::int16_t(yil);
      dvr.yilkod = std::to_string(yil) + kod;
      Yaz(dvr);
    }
    for (int i = 0; i < ay; ++i) {
      Brd b;
      b.kod = kod;
      b.yil = std::int16_t(2008 + i / 12);
      b.ay = std::uint8_t(i % 12 + 1);
      b.no = 1;
      b.brutkaz = Tutar(100 + i);
      Yaz(b);
    }
  }
  // What stands in every table: "sicil 0012,0013; …".
  std::string Kodlar() {
    std::string metin;
    for (const char* tablo : {"sicil", "kimlik", "foto", "brd", "esco", "dvr", "cari"}) {
      metin += std::string(tablo) + " ";
      const auto komut =
          motor().Hazirla(std::string("select kod, count(*) from ") + tablo + " group by kod order by kod");
      while (komut->Adim()) metin += std::string(komut->Metin(0)) + ":" + std::to_string(komut->Tam(1)) + " ";
    }
    return metin;
  }
  std::vector<std::string> Iletiler(const KodDegisikligi& d) {
    const auto sonuc = KodDegistir(o, d);
    if (sonuc) return {sonuc->Metin()};
    std::vector<std::string> metinler;
    for (const Kusur& k : sonuc.Kusuru()) metinler.push_back(k.metin);
    return metinler;
  }
};

using testing::ElementsAre;

TEST_F(KodDegisikligiTesti, CardIdentityPhotographAndPayRecordsGo) {
  o.SonKisi = "0012";
  EXPECT_THAT(Iletiler({" 0012 ", "a1"}),
              ElementsAre("Değiştirme İşlemi Tamamlandı\nEski kodda kalan kayıtlar: eş ve çocuk 1, devir 2, cari 1"));
  EXPECT_EQ(Kodlar(),
            "sicil 0013:1 a1:1 kimlik 0013:1 a1:1 foto 0013:1 a1:1 brd 0013:2 a1:24 esco 0012:1 0013:1 "
            "dvr 0012:2 0013:2 cari 0012:1 0013:1 ");
  EXPECT_TRUE(BrdOzetKusurlari(motor()).empty()) << "no record looks damaged";
  EXPECT_EQ(o.SonKisi, "a1");
}

TEST_F(KodDegisikligiTesti, OnDemandFamilyClosedYearsAndAccountGoToo) {
  EXPECT_THAT(Iletiler({"0012", "7", true}), ElementsAre("Değiştirme İşlemi Tamamlandı"));
  EXPECT_EQ(Kodlar(),
            "sicil 0013:1 7:1 kimlik 0013:1 7:1 foto 0013:1 7:1 brd 0013:2 7:24 esco 0013:1 7:1 dvr 0013:2 7:2 "
            "cari 0013:1 7:1 ");
  EXPECT_EQ(KayitlariOku<Dvr>(motor(), "where yilkod = ?", {std::string("20087")}).size(), 1u);
}

TEST_F(KodDegisikligiTesti, WhatCannotBeIsRefused) {
  const std::string once = Kodlar();
  Esco kalan;
  kalan.kod = "0099";
  Yaz(kalan);
  const std::string zatenVar = "Seçtiğiniz Kodda Zaten Bir Kişi var\nYeni Bir Kod Seçiniz";
  EXPECT_THAT(Iletiler({"yok", "9"}), ElementsAre("Değişecek Kodu Yazınız"));
  EXPECT_THAT(Iletiler({"", "9"}), ElementsAre("Değişecek Kodu Yazınız"));
  EXPECT_THAT(Iletiler({"0012", "0013"}), ElementsAre(zatenVar));
  EXPECT_THAT(Iletiler({"0012", "0012"}), ElementsAre(zatenVar));
  EXPECT_THAT(Iletiler({"0012", "0099"}),
              ElementsAre("Bu Kodun Eski Kayıtları Var: eş ve çocuk 1\nYeni Bir Kod Seçiniz"));
  EXPECT_THAT(Iletiler({"0012", ""}), ElementsAre("Personel Sicil Kodu Hatalı"));
  EXPECT_THAT(Iletiler({"0012", "123456789"}), ElementsAre("Yeni Kod: en çok 8 harf olabilir"));
  motor().Calistir("delete from esco where kod = '0099'");
  EXPECT_EQ(Kodlar(), once);
}

// Each refused record is told, and all goes back.
TEST_F(KodDegisikligiTesti, AFailedStepTakesEverythingBack) {
  const std::string once = Kodlar();
  const std::vector<std::string> bordrolar(24, "Bordro Bilgileri Değiştirilemedi");
  const std::pair<const char*, std::vector<std::string>> arizalar[] = {
      {"update on sicil", {"Sicil Bilgileri Değiştirilemedi"}},
      {"update on kimlik", {"Nufus Bilgileri Değiştirilemedi"}},
      {"update on foto", {"Resim Bilgileri Değiştirilemedi"}},
      {"update on brdozet", bordrolar},
      {"update on dvr", {"Devir Bilgileri Değiştirilemedi"}}};
  for (const auto& [islem, iletiler] : arizalar) {
    Engelle(islem);
    EXPECT_EQ(Iletiler({"0012", "8", true}), iletiler) << islem;
    EXPECT_EQ(Kodlar(), once) << islem;
  }
  Engelle("");
  EXPECT_TRUE(BrdOzetKusurlari(motor()).empty());
}

// A record that was damaged before is not made whole by its new code, and one without a checksum gets none.
TEST_F(KodDegisikligiTesti, DamageStaysDamage) {
  const auto ilk = KayitlariOku<Brd>(motor(), "where kod = ? order by oto", {std::string("0012")});
  motor().Calistir("drop trigger brdozet_degisti; update brd set brutkaz = 5 where oto = " +
                   std::to_string(ilk[3].oto));
  BrdOzetleri tetikliler(motor());
  motor().Calistir("update brd set brutkaz = 6 where oto = " + std::to_string(ilk[4].oto));
  const auto kusurSayisi = [&](Derece derece) {
    const auto kusurlar = BrdOzetKusurlari(motor());
    return std::ranges::count(kusurlar, derece, &Kusur::derece);
  };
  ASSERT_EQ(kusurSayisi(Derece::Hata), 1);
  ASSERT_EQ(kusurSayisi(Derece::Uyari), 1);
  EXPECT_TRUE(KodDegistir(o, {"0012", "5"}));
  EXPECT_EQ(kusurSayisi(Derece::Hata), 1);
  EXPECT_EQ(kusurSayisi(Derece::Uyari), 1);
}

// A month that was kept before the change comes back with the person under his new code.
TEST_F(KodDegisikligiTesti, AKeptMonthComesBackUnderTheNewCode) {
  {
    Islem islem(motor());
    OncekileriHazirla(motor());
    AyiSakla(motor(), 2008, 1, SilinmedenOnce);
    motor().Calistir("delete from brd where yil = 2008 and ay = 1");
    islem.Onayla();
  }
  // Somebody's who was deleted with his card: the code is taken for good.
  EXPECT_THAT(Iletiler({"0013", "0012"}), testing::Each(testing::HasSubstr("Zaten Bir Kişi var")));
  ASSERT_TRUE(KodDegistir(o, {"0012", "77"}));
  bildirim.cevap = true;
  ASSERT_TRUE(AyiGeriAl(o, 2008, 1, bildirim));
  EXPECT_EQ(KayitlariOku<Brd>(motor(), "where kod = ?", {std::string("77")}).size(), 24u);
  EXPECT_EQ(KayitlariOku<Brd>(motor(), "where kod = ?", {std::string("0012")}).size(), 0u);
  EXPECT_TRUE(BrdOzetKusurlari(motor()).empty());
  motor().Calistir("delete from sicil where kod = '77'; delete from kimlik where kod = '77'");
  EXPECT_THAT(Iletiler({"0013", "77"}), testing::Each(testing::HasSubstr("foto")));
}

}  // namespace
}  // namespace belvani
