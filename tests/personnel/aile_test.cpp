#include "personnel/aile.h"

#include "sirket.h"

namespace belvani {
namespace {

using test::Iletiler;
using Aile = test::SirketTesti;

Esco Satir(std::string_view yakinlik) {
  Esco e;
  e.kod = "1";
  e.yakinlik = KodSayisi(yakinlik);
  return e;
}

TEST_F(Aile, ANewRowGetsItsNumberAndChangingItEditsTheSameRecord) {
  Esco cocuk = Satir("4-1.Çocuk");
  cocuk.oto = AileKaydet(o, cocuk, bildirim).value();
  const auto es = AileKaydet(o, Satir("1"), bildirim);
  EXPECT_TRUE(AileOku(o, "1").back().dogtar.Bos());
  cocuk.dogtar = Tarih(2001, 2, 3);
  EXPECT_EQ(AileKaydet(o, cocuk, bildirim), cocuk.oto);
  Esco tarihsiz = cocuk;
  tarihsiz.dogtar = Tarih();
  EXPECT_EQ(AileKaydet(o, tarihsiz, bildirim), cocuk.oto);
  const auto aile = AileOku(o, "1");
  ASSERT_EQ(aile.size(), 2u);
  EXPECT_EQ(aile[0].oto, es) << "in the order of kinship";
  EXPECT_EQ(aile[1], cocuk) << "no date leaves the date";
}

TEST_F(Aile, RowsAreDeletedOnceAndADeletedOneIsAddedAnew) {
  Esco satir = Satir("");
  satir.oto = AileKaydet(o, satir, bildirim).value();
  Engelle("delete on esco");
  EXPECT_FALSE(AileSil(o, satir.oto, bildirim));
  Engelle("insert on esco");
  EXPECT_TRUE(AileSil(o, satir.oto, bildirim));
  EXPECT_FALSE(AileSil(o, satir.oto, bildirim));
  EXPECT_FALSE(AileKaydet(o, satir, bildirim));
  const char* const soru = "Soru: Kayıt Silinecek ?";
  EXPECT_EQ(bildirim.Al(), (Iletiler{soru, "Uyarı: Kayıt Silinemedi", soru, soru, "Bilgi: Silinecek Kayıt Bulunamadı",
                                     "Uyarı: Eş ve Çocuk Bilgileri Güncellenemedi"}));
  Engelle("");
  EXPECT_NE(AileKaydet(o, satir, bildirim).value(), satir.oto);
}

}  // namespace
}  // namespace belvani
