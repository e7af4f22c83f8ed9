// The screen of a paper that shows its rows: a list that follows its fields.
#include <QLabel>
#include <gmock/gmock.h>

#include "documents/listebelgesi.h"
#include "documents/tariharaligi.h"
#include "ekran/ortam.h"
#include "printing/kolonlar.h"
#include "screens/documents/listelibelgeekrani.h"
#include "ui/dclist.h"

namespace belvani::test {
namespace {

using testing::ElementsAre;

struct GunSatiri {
  Tarih gun;
  int sira;
  Tutar tutar;
};

// A row for each day of the range, at most forty; leaves out the last day of a month.
std::unique_ptr<Belge> GunBelgesi(const BelgeKaynagi& kaynak, const TarihAraligi& aralik) {
  struct GunListesi final : RaporBelgesi {
    using RaporBelgesi::RaporBelgesi;
    std::string eksikler;
    std::string Eksikler() const override { return eksikler; }
  };
  std::vector<GunSatiri> satirlar;
  std::string eksikler;
  for (Tarih gun = aralik.bas; gun <= aralik.bit && satirlar.size() < 40; gun = gun.Ekle(1))
    if (gun.Gun() == 31)
      eksikler = "Listede yok: " + gun.Metin();
    else
      satirlar.push_back({gun, gun.Gun(), Tutar(1000.5)});
  Rapor rapor =
      RaporYap(Kolonlar<GunSatiri>{{"gun", "Günü", 10, [](auto& s) { return s.gun; }},
                                   {"Sıra", 6, [](auto& s) { return s.sira; }},
                                   {"tutar", "Tutarı", 12, [](auto& s) { return s.tutar; }, KolonNiteligi::Toplanir}},
               satirlar, kaynak.firma.paraonda);
  auto belge = std::make_unique<GunListesi>(std::move(rapor));
  belge->eksikler = eksikler;
  return belge;
}

BelgeTanimi Tanim(BelgeListesi liste) {
  return {.ekran = "gunler",
          .komut = "gunler",
          .menu = "Raporlar",
          .menuBasligi = "Günler",
          .pencereBasligi = "Günler",
          .simge = "liste",
          .komutYardimi = "",
          .alanlar = {{TarihAraligiAlanlari("Başlangıç Tarih", "Bitiş Tarih")}},
          .secim = Secenekleri(GunBelgesi),
          .liste = std::move(liste),
          .kayitYok = "Gün yok"};
}

struct ListeOrtami : EkranOrtami {
  explicit ListeOrtami(BelgeListesi liste) : tanim(Tanim(std::move(liste))) {
    form = &Ac<ListeliBelgeEkrani>(parametreler, tanim);
    dc = form->findChild<dclist*>("dclist1");
  }
  std::string Yazisi(const char* ad) const {
    const auto* etiket = form->findChild<QLabel*>(ad);
    return etiket == nullptr || etiket->isHidden() ? "" : Utf8(etiket->text());
  }
  BelgeTanimi tanim;
  Form* form;
  dclist* dc;
};

TEST(ListeliBelge, FollowsItsFields) {
  ListeOrtami o({.komut = " Listele"});
  EXPECT_EQ(AlanMetni(*o.form, "bas"), "01.07.2009") << "the working month";
  EXPECT_EQ(o.dc->ListCount(), 30);
  EXPECT_EQ(Utf8(o.dc->TextByName(4, "gun")), "05.07.2009");
  EXPECT_EQ(Utf8(o.dc->TextByName(4, "tutar")), "1,000.50");
  EXPECT_EQ(Utf8(o.dc->CaptionByName("tutar")), "Tutarı");
  EXPECT_EQ(o.Yazisi("kayitSayisi"), "30 kayıt");
  EXPECT_EQ(o.Yazisi("toplam.tutar"), "30,015.00");
  EXPECT_EQ(o.Yazisi("sozler"), "Listede yok: 31.07.2009");

  o.Yaz("0707200");
  QTest::qWait(300);
  EXPECT_EQ(o.dc->ListCount(), 30) << "half a date lists nothing";
  EXPECT_THAT(o.Yazisi("sozler"), testing::StartsWith("Liste bu seçimin değil"));
  o.Yaz("9");
  EXPECT_TRUE(QTest::qWaitFor([&] { return o.dc->ListCount() == 24; }));
  EXPECT_EQ(o.Yazisi("sozler"), "Listede yok: 31.07.2009");
  EXPECT_EQ(o.Odak(), "bas") << "the keyboard stays";
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(QApplication::focusWidget(), o.dc);
  EXPECT_THAT(o.bildirim.Al(), ElementsAre());
}

TEST(ListeliBelge, FaultsOfTheChoicesAndNoRecords) {
  ListeOrtami o({.komut = " Listele", .degisince = false, .toplamlar = {"Para"}, .sutunlar = {{"Ay", {"tutar"}}}});
  EXPECT_EQ(o.dc->ListCount(), 0) << "at its command alone";
  YaziBul(*o.form, "bit").setFocus();
  o.Yaz("31022009\n");
  o.Bas(Qt::Key_F5);
  EXPECT_THAT(o.bildirim.Al(), ElementsAre("Bilgi: Bitiş Tarihi Hatalı"));
  EXPECT_EQ(o.Odak(), "bit");
  o.Yaz("05012009");
  o.Bas(Qt::Key_F5);
  EXPECT_THAT(o.bildirim.Al(), ElementsAre()) << "an end before the beginning is an empty list";
  EXPECT_EQ(o.Yazisi("sozler"), "Gün yok");
  YaziBul(*o.form, "bas").setFocus();
  o.Yaz("01012009");
  EXPECT_THAT(o.Yazisi("sozler"), testing::StartsWith("Liste bu seçimin değil"));
  QTest::qWait(300);
  EXPECT_EQ(o.dc->ListCount(), 0);
  o.Bas(Qt::Key_F5);
  EXPECT_EQ(o.dc->ListCount(), 5);
  EXPECT_EQ(o.Yazisi("toplam.tutar"), "5,002.50");
  o.DonemYaz(2010, 1);
  o.gosterici.FirmaDegisti();
  EXPECT_THAT(o.Yazisi("sozler"), testing::StartsWith("Liste bu seçimin değil"));
}

}  // namespace
}  // namespace belvani::test
