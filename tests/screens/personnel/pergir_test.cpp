// Hiring, by keys.
#include "screens/personnel/pergir.h"

#include <QComboBox>
#include <QDir>
#include <QImage>

#include "core/saat.h"
#include "core/session/sirket.h"
#include "ekran/ortam.h"
#include "personnel/kart.h"
#include "personnel/kimlik.h"
#include "screens/personnel/kaydetve.h"
#include "screens/personnel/metinbas.h"

namespace belvani::test {
namespace {

const std::string Bugun = "31.03.2009";
const std::string Yarin = "01.04.2009";
constexpr auto Dikkat =
    "Uyarı: * * *  D İ K K A T * * * \nİşe giriş tarihi işlem tarihinden en az 1 gün sonra olması tavsiye edilir";

struct Pergir : testing::Test {
  const SabitGun gun{Tarih(2009, 3, 31)};
  EkranOrtami ortam;
  pergir* form = nullptr;

  void SetUp() override { form = &ortam.Ac<pergir>(ortam.parametreler); }
  std::string Metin(std::string_view ad) { return AlanMetni(*form, ad); }
  void Alana(std::string_view ad, const std::string& metin) {
    AlanBul(*form, ad).Odak()->setFocus();
    metin.empty() ? ortam.Bas(Qt::Key_Delete) : ortam.Yaz((metin + "\n").c_str());
  }
};

TEST_F(Pergir, ANewPersonIsEnteredInTheOrderOfThePaper) {
  EXPECT_EQ(ortam.Odak(), "kod");
  EXPECT_EQ(Metin("girtar") + Metin("islemTarihi") + Metin("dogtar"), Bugun + Bugun);
  ortam.Yaz("001\n3401200412345\nT\nA12\n10000000146\nÇağlar\n\nIşıl\nÖmer\nŞükran\nİzmir\n31121975\nK\nAzerbaycan\n");
  ortam.Yaz("Iğdır\nTuzluca\nGüneyli\n1\n2\n3\nGül Sok.\nÇankaya\nL\n");
  ortam.Bas(Qt::Key_Space);
  ortam.Yaz("\n77\n\n\n\n\n\n\n\nEski A.Ş.\nYeni Cad.\nAnkara\nÇankaya\n1234567890\n");
  EXPECT_EQ(ortam.Odak(), "girtar");
  ortam.Yaz((Yarin + "\n\n02\n").c_str());
  EXPECT_EQ(ortam.Odak(), "emekliTercihi");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  EXPECT_EQ(ortam.Odak(), "kod");

  const auto kart = KartBul(ortam.oturum, "001");
  const auto kimlik = KimlikBul(ortam.oturum, "001");
  ASSERT_TRUE(kart && kimlik) << "both records at once";
  EXPECT_EQ(kart->adi + kart->soyadi + kart->sskno, "IşılÇağlar3401200412345");
  EXPECT_EQ(kart->girtar.Metin(), Yarin);
  EXPECT_EQ(kart->sskdurum, 1);
  EXPECT_EQ(kart->ucret, Tutar(693.0));
  EXPECT_EQ(kimlik->serino + kimlik->baba + kimlik->uyruk + kimlik->kutuk + kimlik->adr2, "A12ÖmerAzerbaycan3Çankaya");
  EXPECT_EQ(kimlik->dogtar, Tarih(1975, 12, 31));
  EXPECT_EQ(std::pair(kimlik->cins, kimlik->tahsil), std::pair(std::uint8_t(1), std::uint8_t(3)));

  EXPECT_EQ(Metin("eskiUnvan") + Metin("sandikNo0"), "Eski A.Ş.77") << "still to be printed";
  ortam.Yaz("002\n");
  EXPECT_EQ(Metin("kod") + Metin("adi") + Metin("uyruk"), "002T.C.");
  ortam.Bas(Qt::Key_PageUp);
  EXPECT_EQ(Metin("adi") + Metin("eskiUnvan") + Metin("sandikNo0"), "Işıl") << "of the paper alone, not kept";
  EXPECT_FALSE(MantikDegeri(AlanBul(*form, "sandik0").Oku()));
}

TEST_F(Pergir, BothDatesAreJudgedBeforeSavingAndPrinting) {
  const struct {
    std::string giris, islem, ileti, odak;
  } satirlar[] = {
      {"31022009", Bugun, "Uyarı: İşe Giriş Tarihi Hatalı", "girtar"},
      {Yarin, "99", "Uyarı: İşlem Tarihi Hatalı", "islemTarihi"},
      {Bugun, Bugun, Dikkat, "girtar"},
  };
  ortam.Yaz("001\n");
  for (const auto& [giris, islem, ileti, odak] : satirlar) {
    Alana("girtar", giris);
    Alana("islemTarihi", islem);
    for (const Qt::Key tus : {Qt::Key_F5, Qt::Key_F8}) {
      ortam.Bas(tus);
      EXPECT_EQ(ortam.bildirim.Al(), Iletiler{ileti});
      EXPECT_EQ(ortam.Odak(), odak);
    }
  }
  Alana("girtar", Yarin);
  Alana("islemTarihi", Bugun);
  Alana("dogtar", "31022009");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: 9-Doğum Tarihi Hatalı"}) << "would be lost";
  Alana("dogtar", "");
  Alana("kod", " ");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Bilgi: Personel Sicil Kodu Hatalı"});
  EXPECT_EQ(ortam.Odak(), "kod");
  EXPECT_FALSE(KartBul(ortam.oturum, "001"));
}

TEST_F(Pergir, AKnownPersonKeepsWhatTheScreenDoesNotShow) {
  Sicil kart;
  kart.kod = "001";
  kart.adi = "Işıl";
  kart.girtar = Tarih(2005, 1, 1);
  kart.ucret = Tutar(1500.0);
  kart.tahsisno = "55";
  ASSERT_TRUE(KartKaydet(ortam.oturum, {.simdi = kart}));
  ortam.Yaz("001");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{}) << "a person who is not seen yet is shown, not overwritten";
  EXPECT_EQ(Metin("adi") + Metin("girtar"), "Işıl01.01.2005");

  EXPECT_TRUE(YaziBul(*form, "tahsisno").isReadOnly());
  AlanBul(*form, "emekliTercihi").Odak()->setFocus();
  for (const bool acik : {true, false}) {
    ortam.Bas(Qt::Key_Down);  // "S.G.D.P.", then "Tüm Sigorta Kolları"
    EXPECT_EQ(YaziBul(*form, "tahsisno").isReadOnly(), !acik);
  }
  Alana("soyadi", "Şen");
  Alana("islemTarihi", "31122004");
  ortam.Bas(Qt::Key_F5);
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  kart.soyadi = "Şen";
  EXPECT_EQ(KartBul(ortam.oturum, "001"), kart);
}

// Card and identity are two records: whoever has changed either of them is asked about.
TEST_F(Pergir, AnotherUsersChangeIsAskedAbout) {
  Sicil kart;
  kart.kod = "001";
  kart.girtar = Tarih(2005, 1, 1);
  ASSERT_TRUE(KartKaydet(ortam.oturum, {.simdi = kart}));
  const auto obur = MotorAc(ortam.oturum.FirmaDizini + DepoDosyasi);
  ortam.Yaz("001\n");
  Alana("islemTarihi", "31122004");
  Alana("soyadi", "Şen");
  Alana("baba", "Ömer");
  obur->Calistir("update sicil set soyadi = 'Can'; update kimlik set ana = 'Ayşe'");
  EXPECT_NE(KaydetVe(ortam, *form, "Bak").find("|Can|Şen"), std::string::npos);
  EXPECT_EQ(Metin("soyadi") + KartBul(ortam.oturum, "001")->soyadi, "ŞenCan");
  KaydetVe(ortam, *form, "Onunki");
  EXPECT_EQ(Metin("soyadi") + Metin("ana") + Metin("baba"), "CanAyşeÖmer") << "as it is stored now";

  Alana("baba", "Ali");
  obur->Calistir("update kimlik set baba = 'Cem'");
  KaydetVe(ortam, *form, "Benimki");
  EXPECT_EQ(KimlikBul(ortam.oturum, "001")->baba, "Ali");
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
}

TEST_F(Pergir, ThePaperHasWhatIsOnTheScreen) {
  ortam.Yaz("001\n");
  Alana("adi", "Ali");
  Alana("girtar", Yarin);
  Alana("sskdurum", "02");
  Alana("eskiAdres", "Eski Cad.");
  const std::string kol = Utf8(dynamic_cast<QComboBox&>(*AlanBul(*form, "sskdurum").Odak()).currentText());
  const std::string kagit = MetinBas(ortam, "Sigortalı İşe Giriş Bildirgesi");
  for (const std::string& parca : {std::string("Ali"), Yarin, Bugun, kol.substr(0, 3), std::string("Eski Cad.")})
    EXPECT_NE(kagit.find(parca), kagit.npos) << parca;
  EXPECT_FALSE(KartBul(ortam.oturum, "001")) << "printing saves nothing";
}

// The company's own picture in whatever format it has, else the emblem of all companies; a broken one is told.
TEST_F(Pergir, TheCompanysLogoStandsOnThePaper) {
  const auto resimliBas = [&] {
    QApplication::setActiveWindow(form);
    AlanBul(*form, "kod").Odak()->setFocus();
    EkranOrtami::ModaldaYap([&] { ortam.Bas(Qt::Key_F8); });
    ortam.Bas(Qt::Key_F8);
    return ortam.kuyruk.isler.back().icerik.find("/Image") != std::string::npos;
  };
  ortam.Yaz("001\n");
  Alana("girtar", Yarin);
  EXPECT_FALSE(resimliBas());
  QImage resim(40, 20, QImage::Format_RGB32);
  resim.fill(Qt::blue);
  ASSERT_TRUE(QDir().mkpath(Yazi(ortam.oturum.DataPath + "Image")));
  ASSERT_TRUE(resim.save(Yazi(ortam.oturum.DataPath + "Image/ssklogo.png")));
  EXPECT_TRUE(resimliBas());
  const std::string firma = VeriYolu(ortam.oturum.FirmaDizini).Adres("logo.bmp");
  ASSERT_TRUE(resim.save(Yazi(firma)));
  EXPECT_TRUE(resimliBas());
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{});
  ASSERT_TRUE(DosyaYaz(firma, "resim degil"));
  EXPECT_FALSE(resimliBas());
  EXPECT_EQ(ortam.bildirim.Al(), Iletiler{"Uyarı: " + firma + ": resim okunamadı, bildirge amblemsiz basılıyor"});
}

}  // namespace
}  // namespace belvani::test
