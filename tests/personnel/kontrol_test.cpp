#include "personnel/kontrol.h"

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
    k.tcno = "12345678901";
    k.dogtar = Tarih(1980, 1, 1);
    boz(s, k);
    Yaz(s);
    if (!k.kod.empty()) Yaz(k);
  }
};

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
  Kisi("ç", [](Sicil& s, Kimlik&) {
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
