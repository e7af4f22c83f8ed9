// The tables of parameters: saved by key, and the session knows it at once.
#include "payroll/hazirlik/tanimlar.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/ortam.h"
#include "core/store/engel.h"
#include "payroll/parametre/mevzuatkumesi.h"
#include "sirket.h"

namespace belvani {
namespace {

using testing::ElementsAre;

struct Tanimlar : test::Sirket {
  ParametreDeposu depo{o};
  TanimOrtami ortam{o, depo, bildirim};
  Tanimlar() { test::Al(depo.firma.Yukle()); }
};

TEST(KazancGruplari, AreSavedAndDeletedByName) {
  Tanimlar t;
  KazancBayraklari b;
  EXPECT_TRUE(KazancGrubuKaydet(t.ortam, " Usta ", b));
  b.k[0] = 7;
  b.y[10] = 31;
  EXPECT_TRUE(KazancGrubuKaydet(t.ortam, "USTA", b)) << "the same group, case ignored";
  EXPECT_TRUE(KazancGrubuKaydet(t.ortam, "personel", b));
  EXPECT_THAT(KazancGruplari(t.depo.firma.Parametreler()), ElementsAre("personel", "USTA"));
  EXPECT_EQ(KazancGrupYukle(t.depo.firma.Parametreler(), "usta"), b);
  EXPECT_EQ(t.depo.firma.Parametreler().varsayilan, b) << "the default group holds for people without one";
  EXPECT_EQ(KazancGrubuSil(t.ortam, "PERSONEL").KusurMetni(), "Varsayılan Hesap Silinemez\nYeniden Düzenlenir");
  EXPECT_EQ(test::Al(KazancGrubuSil(t.ortam, "usta")), Silme::Silindi);
  test::Engelle(t.motor(), "update", "kaztan");
  EXPECT_EQ(KazancGrubuKaydet(t.ortam, "Personel", {}).KusurMetni(), "Kazanç Kayıtları Kaydedilemedi");
  EXPECT_TRUE(KazancGrubuKaydet(t.ortam, " ", b).Kusuru().alan == kaztan::grup);
  EXPECT_THAT(t.bildirim.Al(), ElementsAre("Soru: usta Grubu\nKazanç Tanımlamalarını Silmek İstiyormusunuz ?"));
  EXPECT_THAT(KazancGruplari(t.depo.firma.Parametreler()), ElementsAre("personel"));
}

TEST(Tanimlar, OfDeductionsAllowancesAndUnionsReachTheSession) {
  Tanimlar t;
  std::array<Indir, 3> indirimler;
  indirimler[2].indtip = 4;
  YardimTanimlari yardimlar = VarsayilanYardimlar();
  yardimlar[10] = {11, "Kıdem", 5, Tutar(100), Tek(1.5)};
  Sendika s;
  s.kod = "01";
  for (int kez = 0; kez < 2; ++kez)
    EXPECT_TRUE(IndirimleriKaydet(t.ortam, indirimler) && YardimlariKaydet(t.ortam, yardimlar) &&
                SendikaKaydet(t.ortam, s));
  EXPECT_EQ(t.depo.firma.Parametreler().indirimler[2]->indtip, 4);
  EXPECT_EQ(t.depo.firma.Parametreler().yardimlar, yardimlar);
  EXPECT_EQ(t.depo.firma.Parametreler().sendikalar.size(), 1u);
  s.adi = "Yirmi harften daha uzun";
  const Durum uzun = SendikaKaydet(t.ortam, s);
  ASSERT_FALSE(uzun);
  EXPECT_EQ(uzun.KusurMetni(), "adi: en çok 20 harf olabilir");
  EXPECT_TRUE(uzun.Kusuru().alan == sendika::adi);
  t.bildirim.cevap = false;
  EXPECT_EQ(test::Al(SendikaSil(t.ortam, "01")), Silme::Silinmedi);
  t.bildirim.cevap = true;
  EXPECT_EQ(test::Al(SendikaSil(t.ortam, "01")), Silme::Silindi);
  EXPECT_EQ(SendikaBul(t.depo.firma.Parametreler(), "01"), nullptr);
}

TEST(ParametreDeposu, TakesOneDownloadedFile) {
  Tanimlar t;
  const auto kullanici = test::OrtamKoy("BELVANI_KULLANICI_DIZIN", t.dizin.Yol().c_str());
  const auto veri = test::OrtamKoy("BELVANI_VERI_DIZIN", test::KaynakYolu("data").c_str());
  t.o.firma.firmayil = 2009;
  t.o.firma.firmaay = 7;
  ASSERT_TRUE(t.depo.MevzuatiGetir(t.o, {t.o.firma.firmayil, t.o.firma.firmaay}, {.yalniz = ParametreDosyasi::Gv}));
  EXPECT_EQ(t.depo.yasal.gv.GvLimit[0], Tutar(8700));
  EXPECT_EQ(t.depo.yasal.oranlar.AsgariUcret, Tutar()) << "that file alone";
}

}  // namespace
}  // namespace belvani
