#include "personnel/kontrol.h"

#include "personnel/aktarim.h"
#include "personnel/kart.h"
#include "sirket.h"

namespace belvani {
namespace {

struct Kontrol : test::SirketTesti {
  // Saves a person without a fault, but for what `boz` does to him.
  template <class Boz>
  void Kisi(const char* kod, Boz boz) {
    Sicil s = test::Kart(kod);
    s.sskno = "3401200712345";
    s.ucret = Tutar(1000);
    Kimlik k;
    k.kod = kod;
    k.tcno = "10000000146";
    k.dogtar = Tarih(1980, 1, 1);
    boz(s, k);
    Yaz(s);
    if (!k.kod.empty()) Yaz(k);
  }
};

// Group and union by their codes: stored ones are told, typed ones refused, imported ones warned of.
TEST_F(Kontrol, CodesThatNobodyHasDefined) {
  Kisi("1", [](Sicil& s, Kimlik&) { s.hesap = "YOK"; });
  Kisi("2", [](Sicil& s, Kimlik&) { s.tasno = "99"; });
  Kisi("3", [](Sicil& s, Kimlik&) { s.hesap = "personel"; });  // the company's own
  EXPECT_EQ(*KontrolRaporu(o), (std::vector<KontrolSatiri>{{"1", "Ali Veli", "Hesap grubu tanımlı değil: YOK"},
                                                           {"2", "Ali Veli", "Sendika tanımlı değil: 99"}}));
  Okunan<Sicil> kart{.ilk = KartBul(o, "1"), .simdi = *KartBul(o, "1")};
  kart.simdi.ucret = Tutar(1200);
  EXPECT_TRUE(KartKaydet(o, kart)) << "what stands already passes";
  kart = {.ilk = KartBul(o, "1"), .simdi = *KartBul(o, "1")};
  kart.simdi.hesap = "BAŞKA";
  const auto yazilan = KartKaydet(o, kart);
  ASSERT_FALSE(yazilan);
  EXPECT_TRUE(yazilan.Kusuru().alan == sicil::hesap);
  EXPECT_EQ(KartBul(o, "1")->hesap, "YOK");
  const auto alinan =
      PersonelAktar(o, "kod,girtar,hesap,tasno\n4,01.01.2009,Personel,7\n1,01.01.2009,yok,\n", AktarimKipi::Kaydet);
  ASSERT_EQ(alinan->uyarilar.size(), 1u);
  EXPECT_TRUE(alinan->uyarilar[0].alan == sicil::tasno && alinan->uyarilar[0].kod == "4" &&
              alinan->uyarilar[0].satir == 2);
  EXPECT_EQ(KartBul(o, "4")->tasno, "7");
}

TEST_F(Kontrol, TellsEveryFaultInOrder) {
  Kisi("1", [](Sicil&, Kimlik&) {});
  EXPECT_EQ(*KontrolRaporu(o), (std::vector<KontrolSatiri>{{"", "", "Hata Bulunamadı"}}));
  Kisi("d", [](Sicil& s, Kimlik& k) {
    s = Sicil();
    s.kod = "d";
    s.sskdurum = 1;
    s.tahsisno = "Ş";
    k.kod.clear();
  });
  Kisi("C", [](Sicil& s, Kimlik& k) {
    s.ciktar = s.girtar;
    s.ucret = Tutar();
    k = Kimlik();
    k.kod = "c";
    k.tcno = "1234567890";
  });
  Kisi("ç", [](Sicil& s, Kimlik& k) {
    k.tcno = "10000000147";
    s.sskdurum = 1;
    s.tahsisno = "12";
    s.ucrettipi = 2;
    s.ucret = Tutar();
  });
  Kisi("A", [](Sicil& s, Kimlik& k) {
    s.sskno = "34-12";
    k.tcno = "1234567890X";
  });
  Kimlik kartsiz;  // nobody's fault here
  kartsiz.kod = "b";
  Yaz(kartsiz);
  std::string bulunan;
  const auto rapor = KontrolRaporu(o);
  for (const auto& s : *rapor) bulunan += s.kod + " " + s.adsoy + ": " + s.sonuc + "\n";
  EXPECT_EQ(bulunan, R"(A Ali Veli: SSK Sicil No Rakamlardan Oluşmalı
A Ali Veli: TC Kimlik No Rakamlardan Oluşmalı
C Ali Veli: Çıkış Nedeni Kodu Yok
C Ali Veli: TC Kimlik Nosu 11 Rakamdan Oluşmalı
C Ali Veli: Doğum Tarihi Yok
ç Ali Veli: TC Kimlik No Kontrol Basamakları Tutmuyor
d  : SSK Sicil No Rakamlardan Oluşmalı
d  : SSK Sicil No Bulunamadı
d  : Giriş Tarihi Bulunamadı
d  : Personel Adı Bulunamadı
d  : Personel SoyAdı Bulunamadı
d  : Personelin Maaşı Yok
d  : Emekli için Tahsis No Yok
d  : Personelin Nufus Kimlik Bilgileri Yok
)");
}

}  // namespace
}  // namespace belvani
