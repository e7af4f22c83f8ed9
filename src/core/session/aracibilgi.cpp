#include "core/session/aracibilgi.h"

#include "core/session/ilksatir.h"

namespace belvani {

Arac AraciOku(Oturum& o) {
  Arac yeni;
  yeni.kod = "000";
  return IlkSatir<Arac>(o.depo.db, o.depo.arac).value_or(yeni);
}

bool AraciKaydet(Oturum& o, const Arac& arac, Bildirim& bildirim) {
  auto& rs = o.depo.arac;
  rs.IlkKayit() ? rs.KayitDuzelt() : rs.KayitEkle();
  AlanlariYaz(rs, arac);
  if (rs.KayitYaz()) return true;
  bildirim.Uyari("Aracı Bilgileri Kaydedilemedi");
  return false;
}

}  // namespace belvani
