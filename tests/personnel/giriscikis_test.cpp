// Hiring and leaving: the order of the checks and their words, what is written and what is left alone.
#include "personnel/isegiris.h"
#include "personnel/istencikis.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::Iletiler;
using test::Kart;

const Tarih Dun(2009, 3, 2);
const Tarih Bugun(2009, 3, 3);
const Tutar AsgariUcret(666.0);
constexpr auto Dikkat =
    "Uyarı: * * *  D İ K K A T * * * \nİşe giriş tarihi işlem tarihinden en az 1 gün sonra olması tavsiye edilir";

GirisFormu Yeni(const std::string& kod) {
  GirisFormu form = BosGirisFormu(Dun);
  form.sicil.kod = kod;
  form.sicil.girtar = Bugun;
  return form;
}

struct IseGiris : test::SirketTesti {
  bool Kaydet(const GirisFormu& form) {
    const auto kayitlar = GirisHazirla(o, form, AsgariUcret);
    return Bildir(kayitlar) && Bildir(GirisYaz(o, *kayitlar));
  }
};

TEST_F(IseGiris, ChecksStopTheFirstThatFails) {
  const struct {
    const char* kod;
    Tarih giris;
    Tarih islem;
    Iletiler iletiler;
  } satirlar[] = {
      {"", {}, {}, {"Uyarı: İşe Giriş Tarihi Hatalı"}},
      {"", Bugun, {}, {"Uyarı: İşlem Tarihi Hatalı"}},
      {"", Bugun, Bugun, {Dikkat}},
      {"1", Dun, Bugun, {Dikkat}},
      {" ", Bugun, Dun, {"Bilgi: Personel Sicil Kodu Hatalı"}},
      {"123456789", Bugun, Dun, {"Bilgi: Sicil No: en çok 8 harf olabilir"}},
      {"1", Bugun, Dun, {}},
  };
  for (const auto& [kod, giris, islem, iletiler] : satirlar) {
    GirisFormu form = Yeni(kod);
    form.sicil.girtar = giris;
    form.ek.islemTarihi = islem;
    EXPECT_EQ(Kaydet(form), iletiler.empty());
    EXPECT_EQ(bildirim.Al(), iletiler);
  }
  EXPECT_EQ(Hepsi<Sicil>().size(), 1u) << "only the last";
}

TEST_F(IseGiris, OneWhoHasLeftIsHiredAgainWithoutHisOldLeaving) {
  Sicil eski = Kart("1");
  eski.ciktar = Dun;
  eski.cikiskodu = 3;
  eski.cikissebebi = "İstifa";
  eski.ucret = Tutar(900.0);
  Yaz(eski);
  GirisFormu form = *GirisBul(o, "1", Dun);
  form.sicil.girtar = Dun;
  EXPECT_EQ(YenidenGirisSorusu(form), "") << "the day itself belongs to the old time";
  form.sicil.girtar = Bugun;
  EXPECT_NE(YenidenGirisSorusu(form), "");
  EXPECT_FALSE(Kaydet(form));
  EXPECT_EQ(bildirim.Al(), Iletiler{"Bilgi: Bu personel 02.03.2009 tarihinde işten çıkmış, kaydedilmedi"});
  EXPECT_EQ(Hepsi<Sicil>(), std::vector{eski});
  form.cikisSilinir = true;
  EXPECT_TRUE(Kaydet(form));
  eski.girtar = Bugun;
  eski.ciktar = {};
  eski.cikiskodu = 0;
  eski.cikissebebi.clear();
  EXPECT_EQ(Hepsi<Sicil>(), std::vector{eski});
}

TEST_F(IseGiris, ANewPersonGetsBothRecordsWithTheirDefaults) {
  o.firma.ondeger = "İşçi";
  GirisFormu form = Yeni(" a1 ");
  form.sicil.adi = "Işıl";
  form.sicil.sskdurum = 1;
  form.sicil.tahsisno = "77";
  form.sicil.ucret = Tutar(5000.0);  // not a field of this screen
  form.kimlik.uyruk = "Azerbaycan";
  form.kimlik.tahsil = 4;
  form.kimlik.medeni = 1;
  ASSERT_TRUE(Kaydet(form));
  Sicil sicil;
  sicil.kod = "a1";
  sicil.adi = "Işıl";
  sicil.girtar = Bugun;
  sicil.sskdurum = 1;
  sicil.tahsisno = "77";
  sicil.ucret = AsgariUcret;
  sicil.hesap = "İşçi";
  sicil.agi = true;
  Kimlik kimlik;
  kimlik.kod = "a1";
  kimlik.uyruk = "Azerbaycan";
  kimlik.tahsil = 4;
  EXPECT_EQ(Hepsi<Sicil>(), std::vector{sicil});
  EXPECT_EQ(Hepsi<Kimlik>(), std::vector{kimlik});
}

TEST_F(IseGiris, AKnownPersonChangesOnlyInTheFieldsOfTheScreen) {
  Sicil sicil = Kart("A1");
  sicil.ucret = Tutar(1500.0);
  sicil.meslekkod = "2411.01";
  sicil.ciktar = Bugun.Ekle(30);
  sicil.cikiskodu = 3;
  Yaz(sicil);
  Kimlik kimlik;
  kimlik.kod = "A1";
  kimlik.medeni = 1;
  kimlik.tel = "0212";
  kimlik.tcno = "1";
  Yaz(kimlik);
  auto form = GirisBul(o, "a1", Bugun).value();
  EXPECT_EQ(form.sicil, sicil);
  EXPECT_EQ(form.kimlik, kimlik);
  EXPECT_EQ(form.ek.islemTarihi, Bugun);
  form.sicil.soyadi = sicil.soyadi = "Şen";
  form.sicil.girtar = sicil.girtar = Bugun.Ekle(1);
  form.kimlik.tcno = kimlik.tcno = "10000000146";
  form.sicil.ucret = Tutar();
  form.kimlik.tel.clear();
  form.ek.vergiNo = "9";
  ASSERT_TRUE(Kaydet(form));
  EXPECT_EQ(Hepsi<Sicil>(), std::vector{sicil});
  EXPECT_EQ(Hepsi<Kimlik>(), std::vector{kimlik});
  EXPECT_EQ(GirisBul(o, "A1", Bugun)->ek.vergiNo, "") << "of the paper alone";
}

TEST_F(IseGiris, BothRecordsOrNeither) {
  EXPECT_FALSE(GirisBul(o, "1", Bugun));
  for (const auto& [islem, ileti] : {std::pair{"insert on sicil", "Uyarı: Personel Sicil Bilgileri Kaydedilemedi"},
                                     std::pair{"insert on kimlik", "Uyarı: Personel Kimlik Bilgileri Kaydedilemedi"}}) {
    Engelle(islem);
    EXPECT_FALSE(Kaydet(Yeni("1")));
    EXPECT_EQ(bildirim.Al(), Iletiler{ileti});
    EXPECT_TRUE(Hepsi<Sicil>().empty() && Hepsi<Kimlik>().empty());
  }
  Engelle("");
  Kimlik yalniz;
  yalniz.kod = "k1";
  yalniz.baba = "Ömer";
  Yaz(yalniz);
  auto form = GirisBul(o, "K1", Bugun).value();
  EXPECT_EQ(form.sicil.kod, "k1") << "an identity without a card comes up, so that it is not overwritten with blanks";
  form.sicil.girtar = Bugun.Ekle(1);
  ASSERT_TRUE(Kaydet(form));
  EXPECT_EQ(KimlikBul(o, "k1")->baba, "Ömer");
}

TEST(GirisListeleri, OnlyTheSupportPremiumOpensTheAllocationNumber) {
  for (std::uint8_t i = 0; i < 3; ++i) EXPECT_EQ(TahsisNoAcik(i), EmekliTercihleri[i] == "S.G.D.P.");
}

TEST(Uyruk, TurkInAnyCase) {
  for (const char* turk : {"T.C.", "t.c.", "tc", "Tc.", " T.C "}) EXPECT_TRUE(UyrukTurkMu(turk)) << turk;
  for (const char* yabanci : {"", "T C", "KKTC", "T.C.."}) EXPECT_FALSE(UyrukTurkMu(yabanci)) << yabanci;
}

struct IstenCikis : test::SirketTesti {
  CikisFormu form{.kod = " A1",
                  .adSoyad = {},
                  .sskno = {},
                  .girtar = Bugun,
                  .ciktar = Bugun,
                  .cikiskodu = 4,
                  .cikissebebi = "İstifa",
                  .adr1 = {},
                  .adr2 = {},
                  .tel = {},
                  .kart = {}};
  Sicil Kayit() { return KartBul(o, "a1").value(); }
  bool Kaydet(const CikisFormu& f) {
    const auto kart = CikisHazirla(o, f);
    return Bildir(kart) && Bildir(CikisYaz(o, *kart));
  }
};

TEST_F(IstenCikis, ChecksInTheirOrder) {
  CikisFormu f;
  const auto beklenen = [&](const char* ileti) {
    EXPECT_FALSE(Kaydet(f));
    EXPECT_EQ(bildirim.Al(), Iletiler{std::string("Bilgi: ") + ileti});
  };
  beklenen("Giriş Tarihi Hatası");
  f.girtar = Bugun;
  beklenen("Çıkış Tarihi Hatası");
  f.ciktar = Dun;
  beklenen("Çıkış Tarihi,Giriş Tarihinden Büyük veya Eşit Olmalı");
  f.ciktar = Bugun;
  for (const int kod : {0, 35, 255}) {
    f.cikiskodu = std::uint8_t(kod);
    beklenen("Çıkış Kodunu Seçmelisiniz");
  }
  f.cikiskodu = 34;
  f.cikissebebi = "  ";
  beklenen("Çıkış Sebebini Doldurunuz");
  f.cikissebebi = std::string(21, 'x');
  beklenen("Hatalı Personel Çıkışı");
  Yaz(Kart("A1"));
  f.kod = "a1";
  beklenen("Çıkış Sebebi: en çok 20 harf olabilir");
  f.cikissebebi = "x";
  f.girtar = Dun;  // for the paper; the card says 01.01.2005
  f.ciktar = Tarih(2004, 12, 31);
  f.girtar = Tarih(2004, 1, 1);
  beklenen("Çıkış Tarihi,Giriş Tarihinden Büyük veya Eşit Olmalı\nPersonel kartındaki giriş tarihi: 01.01.2005");
  EXPECT_EQ(Hepsi<Sicil>(), std::vector{Kart("A1")});
}

TEST_F(IstenCikis, RecordedOverwrittenAndTakenBack) {
  Sicil kart = Kart("A1", "Işıl", "Çağ");
  kart.girtar = Bugun;
  Yaz(kart);
  EXPECT_TRUE(Kaydet(form)) << "one day of work";
  form.ciktar = Bugun.Ekle(9);
  form.cikiskodu = 10;
  form.cikissebebi = "Vefat";
  EXPECT_TRUE(Kaydet(form));
  Sicil ayrilan = kart;
  ayrilan.ciktar = Bugun.Ekle(9);
  ayrilan.cikiskodu = 10;
  ayrilan.cikissebebi = "Vefat";
  EXPECT_EQ(Kayit(), ayrilan);
  EXPECT_EQ(CikisBul(o, "a1")->adSoyad, "Işıl Çağ");
  EXPECT_EQ(CikisBul(o, "a1")->ciktar, ayrilan.ciktar);
  Engelle("update on sicil");
  form.cikissebebi = "Ölüm";
  EXPECT_FALSE(Kaydet(form));
  EXPECT_FALSE(Bildir(CikisGeriAl(o, "A1")));
  EXPECT_EQ(bildirim.Al(), (Iletiler{"Uyarı: Sicil Bilgileri Güncellenemedi", "Uyarı: Çıkış Geri Alınamadı"}));
  Engelle("");
  EXPECT_FALSE(*CikisGeriAl(o, "A2"));
  EXPECT_TRUE(*CikisGeriAl(o, " a1 "));
  EXPECT_EQ(Kayit(), kart);
  EXPECT_EQ(bildirim.Al(), Iletiler{});
}

// What was read is known, so another user's change is not overwritten.
TEST_F(IstenCikis, AnotherUsersLeavingIsNamed) {
  Yaz(Kart("A1"));
  CikisFormu okunan = CikisBul(o, "a1").value();
  ASSERT_TRUE(Kaydet(form));
  okunan.ciktar = Bugun.Ekle(3);
  okunan.cikiskodu = form.cikiskodu;
  okunan.cikissebebi = form.cikissebebi;
  const auto engel = CikisYaz(o, *CikisHazirla(o, okunan));
  ASSERT_FALSE(engel);
  EXPECT_EQ(engel.KusurMetni(), "Kayıt bu arada başka bir kullanıcı tarafından değiştirilmiş: A1 (Çıkış Tarihi)");
  EXPECT_EQ(engel.Kusuru().cakisma->onunki.ciktar, Bugun);
  EXPECT_EQ(Kayit().ciktar, Bugun);
}

TEST(CikisKodlari, TheNumberIsThePosition) {
  ASSERT_EQ(std::size(CikisKodlari), 35u);
  for (std::size_t i = 0; i < std::size(CikisKodlari); ++i)
    EXPECT_EQ(CikisKodlari[i].substr(0, 3), std::string(i < 10 ? "0" : "") + std::to_string(i) + "-");
  EXPECT_EQ(CikisKoduMetni(35), "");
}

TEST(IbranameOdemeleri, TotalsByColumn) {
  IbranameOdemeleri odemeler;
  for (std::size_t s = 0; s < odemeler.satirlar.size(); ++s)
    for (std::size_t k = 0; k < 5; ++k) odemeler.satirlar[s][k] = Tutar(double((s + 1) * 10 + k));
  odemeler.satirlar[4][4] = Tutar(-0.5);
  EXPECT_EQ(odemeler.Toplam(), (OdemeSatiri{Tutar(150.0), Tutar(155.0), Tutar(160.0), Tutar(165.0), Tutar(115.5)}));
}

}  // namespace
}  // namespace belvani
