// Paper forms to test with: a company with a subcontractor, and people who are alike.
#pragma once

#include "declarations/bildirgekagidi.h"
#include "sirket.h"

namespace belvani::test {

// The n-th person, from 1, has 30 days and 1000.25 + n lira, of them 100 as a bonus, and 2 days of leave for 50.50. The
// totals are of another declaration, so that what is printed can be told from what is added up.
inline BildirgeKagidi Kagit(int kisi) {
  BildirgeKagidi k{.yil = 2009, .ay = 7, .belgeTuru = "01", .kanun = "05510"};
  k.firma.unvan = "Şık Örgü";
  k.firma.adr1 = "Sanayi Cad.";
  k.firma.adr2 = "Kat 2";
  k.firma.semt = "Dudullu";
  k.firma.adril = "İstanbul";
  k.firma.il = "34";
  k.firma.sube = "0101";
  k.firma.verno = "1234567890";
  k.arac.kod = "007";
  k.arac.isim1 = "Ada";
  k.arac.isim2 = "Taşeron";
  k.arac.vergi = "99";
  k.muhasebeci = {.adsoyad = "Ömer Güneş", .tcno = "", .sicil = "34-77"};
  for (int n = 1; n <= kisi; ++n)
    k.satirlar.push_back(
        Satir("sigkol=01|sskno=1601200254336|tcno=89238471844|adi=Abdurrahman Gazi|soyadi=Karaosmanoğlu"
              "lar|primkazanc=" +
              YalinMetin(Tutar(1000.25 + n)) + "|primdisi=100|gun=30|ui=2|uiucret=50.5|farkmivar=0"));
  if (kisi == 0) return k;
  k.toplamlar = {.sigortali = 8,
                 .gun = 225,
                 .giren = 1,
                 .ayrilan = 2,
                 .ucretliIzinli = 3,
                 .ucretliKazanc = Tutar(404.0),
                 .ucretliGun = 16};
  const auto brans = [](double matrah, double oran, double prim) {
    return KagitBransi{.matrah = Tutar(matrah), .oran = Tek(oran), .prim = Tutar(prim)};
  };
  k.branslar = {brans(1000, 1, 10),   brans(0, 0, 0), brans(1001, 12.5, 125),
                brans(1002, 20, 200), brans(0, 0, 0), brans(1003, 3, 30)};
  k.genelToplam = Tutar(365.0);
  return k;
}

}  // namespace belvani::test
