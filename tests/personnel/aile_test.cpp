#include "personnel/aile.h"

#include "sirket.h"

namespace belvani {
namespace {

using test::Iletiler;
using AileTesti = test::SirketTesti;

Esco Satir(std::string_view yakinlik) {
  Esco e;
  e.kod = "1";
  e.yakinlik = KodSayisi(yakinlik);
  return e;
}

TEST_F(AileTesti, ANewRowGetsItsNumberAndChangingItEditsTheSameRecord) {
  Esco cocuk = Satir("4-1.Çocuk");
  cocuk = *AileKaydet(o, {.simdi = cocuk});
  const auto es = AileKaydet(o, {.simdi = Satir("1")});
  EXPECT_TRUE(AileOku(o, "1").back().dogtar.Bos());
  Okunan<Esco> tarihli{.ilk = cocuk, .simdi = cocuk};
  cocuk.dogtar = tarihli.simdi.dogtar = Tarih(2001, 2, 3);
  EXPECT_EQ(*AileKaydet(o, tarihli), cocuk);
  Okunan<Esco> tarihsiz{.ilk = cocuk, .simdi = cocuk};
  tarihsiz.simdi.dogtar = Tarih();
  EXPECT_EQ(*AileKaydet(o, tarihsiz), cocuk);
  const auto aile = AileOku(o, "1");
  ASSERT_EQ(aile.size(), 2u);
  EXPECT_EQ(aile[0], *es) << "in the order of kinship";
  EXPECT_EQ(aile[1], cocuk) << "no date leaves the date";
}

TEST_F(AileTesti, RowsAreDeletedOnceAndADeletedOneIsNotAddedUnseen) {
  Esco satir = Satir("");
  satir.adi = "Can";
  satir = *AileKaydet(o, {.simdi = satir});
  Engelle("delete on esco");
  EXPECT_FALSE(Bildir(AileSil(o, satir.oto, bildirim)));
  Engelle("insert on esco");
  EXPECT_TRUE(Bildir(AileSil(o, satir.oto, bildirim)));
  EXPECT_FALSE(Bildir(AileSil(o, satir.oto, bildirim)));
  Okunan<Esco> silinen{.ilk = satir, .simdi = satir};
  silinen.simdi.adi = "Efe";
  const auto engel = AileKaydet(o, silinen);
  ASSERT_TRUE(!engel && engel.Kusuru().cakisma);
  Uzlastir(silinen, *engel.Kusuru().cakisma, Galip::Benimki);
  EXPECT_FALSE(Bildir(AileKaydet(o, silinen)));
  const std::string soru = "Soru: Kayıt Silinecek ?";
  const std::string adli = soru + "\n" + satir.adi;
  EXPECT_EQ(bildirim.Al(), (Iletiler{adli, "Uyarı: Kayıt Silinemedi", adli, soru, "Bilgi: Silinecek Kayıt Bulunamadı",
                                     "Uyarı: Eş ve Çocuk Bilgileri Güncellenemedi"}));
  Engelle("");
  EXPECT_NE(AileKaydet(o, silinen)->oto, satir.oto) << "a record of its own";
}

}  // namespace
}  // namespace belvani
