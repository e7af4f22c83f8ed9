// Law codes and wages of many people, and a person into another company.
#include "core/asama.h"
#include "personnel/aktarim.h"
#include "personnel/etiket.h"
#include "personnel/kanundegistir.h"
#include "personnel/kart.h"
#include "personnel/personeltransfer.h"
#include "personnel/ucretduzenle.h"
#include "sirket.h"

namespace belvani {
namespace {

using test::Kart;
using testing::ElementsAre;
using testing::HasSubstr;

struct TopluTest : test::SirketTesti {
  void Kisi(const std::string& kod, const std::string& kanun = "00000", bool kimlikli = true) {
    Sicil s = Kart(kod);
    s.kanun = kanun;
    Yaz(s);
    if (!kimlikli) return;
    Kimlik k;
    k.kod = kod;
    k.tcno = "1" + kod;
    Yaz(k);
  }
  std::vector<std::string> Liste(const KanunSecimi& secim) {
    std::vector<std::string> kodlar;
    const auto liste = KanunluKisiler(o, secim);
    for (const auto& kisi : liste->kisiler) kodlar.push_back(kisi.kod);
    return kodlar;
  }
  std::string Kanunlar() {
    std::string metin;
    for (const Sicil& s : Hepsi<Sicil>()) metin += s.kod + ":" + s.kanun + " ";
    return metin;
  }
};

TEST_F(TopluTest, ListsOfALaw) {
  Kisi("1", "05510");
  Kisi("2", "5510");
  Kisi("3", "");
  Kisi("4", "00000");
  Kisi("5", "yok");
  Kisi("6", "05510", false);
  EXPECT_THAT(Liste({}), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_EQ(KanunluKisiler(o, {})->kimliksiz, 1u);
  EXPECT_THAT(Liste({.eskiyeGore = true, .eski = "5510"}), ElementsAre("1")) << "as it stands, in five digits";
  EXPECT_EQ(KanunluKisiler(o, {.eskiyeGore = true, .eski = "5510"})->kimliksiz, 1u);
  EXPECT_THAT(Liste({.eskiyeGore = true, .eski = "0"}), ElementsAre("3", "4", "5"));
  EXPECT_THAT(Liste({.eskiyeGore = false, .eski = "5510"}), ElementsAre("1", "2", "3", "4", "5"));
  EXPECT_EQ(KanunluKisiler(o, {.eskiyeGore = true, .eski = "abc"}).KusurMetni(), "Kanun No Hatalı");
  EXPECT_EQ(*KanunOku("506", {}), "00506");
  EXPECT_FALSE(KanunOku("", {}));
}

TEST_F(TopluTest, LawsAreWrittenAllOrNone) {
  for (const char* kod : {"1", "2", "3"}) Kisi(kod);
  auto kisiler = KanunluKisiler(o, {})->kisiler;
  struct Soran : Bildirim {
    std::string sorular;
    void Bilgi(std::string_view) override {}
    void Uyari(std::string_view) override {}
    bool Soru(std::string_view metin) override {
      sorular += metin;
      return !metin.ends_with("2 Ali Veli");
    }
  } soran;
  const auto secilen = KanunuDegisecekler(kisiler, true, soran);
  EXPECT_THAT(soran.sorular, testing::StartsWith("Bu Personel Kanunu Değişecek\n1 Ali Veli"));
  EXPECT_EQ(secilen.size(), 2u);
  EXPECT_EQ(KanunuDegisecekler(kisiler, false, bildirim).size(), 3u);
  EXPECT_EQ(KanunDegistir(o, secilen, "05084")->degisen, 2u);
  EXPECT_EQ(Kanunlar(), "1:05084 2:00000 3:05084 ");

  const auto eskiler = kisiler;
  kisiler = KanunluKisiler(o, {})->kisiler;
  struct Duran : Ilerleme {
    bool Adim(std::size_t biten, std::size_t) override { return biten < 2; }
  } duran;
  EXPECT_THROW((void)KanunDegistir(o, kisiler, "05921", &duran), Vazgecilmis);
  o.depo.db.IcMotor().Calistir(
      "create trigger engel before update on sicil when old.kod = '3' begin select raise(abort, 'x'); end");
  EXPECT_EQ(KanunDegistir(o, kisiler, "05921").KusurMetni(), "Personel Kayıt Değişikliği Yapılamadı\n Kod:3");
  EXPECT_EQ(Kanunlar(), "1:05084 2:00000 3:05084 ") << "nothing of either";

  o.depo.db.IcMotor().Calistir("drop trigger engel; delete from sicil where kod = '2'");
  const auto degisim = KanunDegistir(o, kisiler, "05921");
  EXPECT_EQ(degisim->degisen, 2u);
  ASSERT_EQ(degisim->yazilmayan.size(), 1u);
  EXPECT_EQ(degisim->yazilmayan[0].kod, "2");

  // By a list of before: laws that were given since stay.
  const auto gec = KanunDegistir(o, eskiler, "05084");
  EXPECT_EQ(gec->degisen, 0u);
  ASSERT_EQ(gec->yazilmayan.size(), 3u);
  EXPECT_EQ(gec->yazilmayan[0].metin, "Kayıt bu arada başka bir kullanıcı tarafından değiştirilmiş (" +
                                          std::string(AlanEtiketi("sicil", sicil::kanun.ad)) + ")");
  EXPECT_EQ(Kanunlar(), "1:05921 3:05921 ");
}

TEST_F(TopluTest, WagesAreWrittenAndTakenBack) {
  Sicil saatlik = Kart("3"), cikan = Kart("4");
  saatlik.ucretags = 2;
  cikan.cikiskodu = 3;
  for (const Sicil& s : {Kart("2"), Kart("1"), saatlik, cikan}) Yaz(s);
  auto kisiler = *UcretliKisiler(o, 0);
  ASSERT_EQ(kisiler.size(), 2u);
  EXPECT_EQ(kisiler[0].kod, "1");

  UcretDuzenleme duzenleme(o);
  const auto yaz = [&](const Sicil& kart, Tutar ucret, std::uint8_t tip) {
    Okunan<Sicil> okunan{.ilk = kart, .simdi = kart};
    okunan.simdi.ucret = ucret;
    okunan.simdi.ucrettipi = tip;
    const auto yazilan = duzenleme.Yaz(okunan);
    EXPECT_TRUE(yazilan);
    return *yazilan;
  };
  EXPECT_FALSE(duzenleme.GeriAl());
  const Sicil bir = yaz(kisiler[0], Tutar(900), 0);
  yaz(bir, Tutar(900), 1);
  yaz(kisiler[1], Tutar(800.1234), 0);
  yaz(*KartBul(o, "2"), Tutar(800.1234), 0);  // nothing new: nothing to take back

  EXPECT_EQ(duzenleme.GeriAl()->kod, "2");
  EXPECT_EQ(KartBul(o, "2")->ucret, Tutar());
  o.depo.db.IcMotor().Calistir("update sicil set verda = 'Konak', ucrettipi = 2 where kod = '1'");
  EXPECT_FALSE(duzenleme.GeriAl()) << "another user has changed that field since";
  EXPECT_EQ(KartBul(o, "1")->ucrettipi, 2);
  EXPECT_EQ(duzenleme.GeriAl()->ucret, Tutar());
  EXPECT_EQ(KartBul(o, "1")->verda, "Konak");
  EXPECT_EQ(KartBul(o, "1")->ucrettipi, 2);
  EXPECT_EQ(duzenleme.GeriAl().KusurMetni(), "Geri alınacak değişiklik yok");
}

TEST_F(TopluTest, WagesOutOfAFile) {
  for (const char* kod : {"1", "2"}) Yaz(Kart(kod));
  const auto sorunlar = [&](const char* csv) {
    std::string metin;
    const auto sonuc = UcretAktar(o, csv, AktarimKipi::Kaydet);
    for (const Kusur& k : sonuc->sorunlar) metin += std::to_string(k.satir) + " " + k.metin + "|";
    return metin;
  };
  EXPECT_EQ(sorunlar("kod,ucret\n1,1500\n9,1600\n"), "3 kod: bu kodla personel yok: 9|");
  EXPECT_THAT(sorunlar("kod,ucret,ucrettipi\n1,,0\n2,5,7\n"),
              testing::AllOf(HasSubstr("2 ucret: boş bırakılamaz|"), HasSubstr("3 ucrettipi: ")));
  EXPECT_EQ(sorunlar("kod,adi\n1,Veli\n"), "1 adi: ücret dosyasında olamaz (ucret, ucrettipi, ucretags)|");
  EXPECT_EQ(sorunlar("kod\n1\n"), "1 ucret: bu sütun dosyada olmalı|");
  EXPECT_EQ(KartBul(o, "1")->ucret, Tutar()) << "nothing of them was saved";
  EXPECT_EQ(UcretAktar(o, "kod,ucret\n1,1500\n", AktarimKipi::YalnizDene)->degisen, 1);
  EXPECT_EQ(KartBul(o, "1")->ucret, Tutar());
  EXPECT_EQ(sorunlar("kod,ucret,ucrettipi,ucretags\n1,\"1250,50\",1,2\n"), "");
  const Sicil bir = *KartBul(o, "1");
  EXPECT_EQ(bir.ucret, Tutar(1250.5));
  EXPECT_EQ(bir.ucrettipi, 1);
  EXPECT_EQ(bir.ucretags, 2);
  EXPECT_EQ(bir.adi, "Ali");
}

struct TransferTesti : TopluTest {
  TransferFormu form{.kod = "1", .hedef = "yeni", .yeniKod = "77", .yeniGiris = Tarih(2009, 7, 1)};

  void SetUp() override {
    TopluTest::SetUp();
    Oturum hedef;
    hedef.DataPath = hedef.PrgPath = dizin.Yol();
    ASSERT_TRUE(SirketOlustur(hedef, "YENİ", "a", ""));
    SirketKapat(hedef);
    Kisi("1", "05510");
  }
  std::unique_ptr<Motor> Hedef() { return MotorAc(dizin.Yol() + "YENİ/tolu.dat"); }
  std::string Kusuru() {
    const auto transfer = PersonelTransfer(o, form);
    return transfer ? transfer->Uyari() : transfer.KusurMetni();
  }
  std::size_t HedefKisi() { return KayitlariOku<Sicil>(*Hedef()).size() + KayitlariOku<Kimlik>(*Hedef()).size(); }
};

TEST_F(TransferTesti, CardAndIdentityAreCopiedAndHeLeaves) {
  form.cikisYap = true;
  form.ciktar = Tarih(2009, 6, 30);
  form.cikiskodu = 16;
  form.cikissebebi = "Nakil";
  EXPECT_EQ(Kusuru(), "");
  const auto kartlar = KayitlariOku<Sicil>(*Hedef());
  ASSERT_EQ(kartlar.size(), 1u);
  Sicil beklenen = Kart("77");
  beklenen.kanun = "05510";
  beklenen.girtar = Tarih(2009, 7, 1);
  EXPECT_TRUE(kartlar[0] == beklenen) << "the rest of the card as it was here, and he is employed there";
  EXPECT_EQ(KayitlariOku<Kimlik>(*Hedef()).at(0).tcno, "11");
  const Sicil burada = *KartBul(o, "1");
  EXPECT_EQ(burada.ciktar, Tarih(2009, 6, 30));
  EXPECT_EQ(burada.cikiskodu, 16);
  EXPECT_EQ(burada.girtar, Tarih(2005, 1, 1));
  EXPECT_EQ(Kusuru(), "Yeni Şirkette Bu Kodda Bir Personel Var..");
  form.yeniKod = "78";
  EXPECT_THAT(Kusuru(), HasSubstr("daha önce işten çıkmış"));
}

TEST_F(TransferTesti, WhatIsRefusedWritesNothing) {
  struct Durum {
    const char* kusur;
    std::function<void(TransferFormu&)> boz;
  };
  const auto cikisli = [](auto boz) {
    return [=](TransferFormu& f) {
      f.cikisYap = true;
      f.ciktar = Tarih(2009, 6, 30);
      f.cikiskodu = 16;
      boz(f);
    };
  };
  const Durum durumlar[] = {
      {"Personel Bulunamadı...", [](auto& f) { f.kod = "9"; }},
      {"Çıkış Kodu Seçilmemiş..", cikisli([](auto& f) { f.cikiskodu = 0; })},
      {"Çıkış Tarihi Hatalı..", cikisli([](auto& f) { f.ciktar = {}; })},
      {"Çıkış Tarihi Giriş Tarihinden Küçük", cikisli([](auto& f) { f.ciktar = Tarih(2004, 12, 31); })},
      {"Çıkış Sebebi: en çok 20 harf olabilir", cikisli([](auto& f) { f.cikissebebi = std::string(21, 'a'); })},
      {"Transfer Şirketi ile Şirketiniz Aynı..", [](auto& f) { f.hedef = "deneme"; }},
      {"Personelin Yeni Kodu Yazılmamış.", [](auto& f) { f.yeniKod = " "; }},
      {"Giriş Tarihi Hatalı", [](auto& f) { f.yeniGiris = {}; }},
  };
  for (const Durum& d : durumlar) {
    const TransferFormu saglam = form;
    d.boz(form);
    EXPECT_EQ(Kusuru(), d.kusur);
    form = saglam;
  }
  form.hedef = "yok";
  EXPECT_THAT(Kusuru(), testing::StartsWith("Transfer Şirketi Açılamıyor.\n"));
  form.hedef = "YENİ";
  Hedef()->Calistir("insert into kimlik (kod) values ('77')");
  EXPECT_EQ(Kusuru(), "Yeni Şirkette Bu Kodun Eski Kayıtları Var: kimlik 1");
  Hedef()->Calistir("delete from kimlik; create trigger e before insert on kimlik begin select raise(abort, 'x'); end");
  EXPECT_EQ(Kusuru(), "Kimlik Bligileri Kaydedilemedi.");
  Hedef()->Calistir("drop trigger e");
  EXPECT_EQ(HedefKisi(), 0u);
  EXPECT_TRUE(KartBul(o, "1")->ciktar.Bos());

  Engelle("update on sicil");
  form.cikisYap = true;
  form.ciktar = Tarih(2009, 6, 30);
  form.cikiskodu = 16;
  EXPECT_THAT(Kusuru(), testing::StartsWith("Personel Çıkışı Yapılamadı.."));
  EXPECT_EQ(HedefKisi(), 2u) << "he is there already";
}

TEST_F(TransferTesti, AnOlderCompanyTakesWhatItHas) {
  Hedef()->Calistir("alter table sicil drop column meslekkod; alter table kimlik drop column kayitno");
  EXPECT_THAT(Kusuru(), testing::StartsWith("YENİ önceki sürümden, aktarılmayan alanlar: Meslek Kodu, "));
  EXPECT_EQ(HedefKisi(), 2u);
}

TEST_F(TransferTesti, ALockedCompanyIsLeftAlone) {
  const auto baskasi = MotorAc(dizin.Yol() + "YENİ/tolu.dat");
  baskasi->IslemBaslat(std::chrono::seconds(1));
  EXPECT_THAT(Kusuru(), testing::StartsWith("Transfer Şirketine Yazılamıyor: "));
  baskasi->IslemGeriAl();
  EXPECT_EQ(HedefKisi(), 0u);
}

}  // namespace
}  // namespace belvani
