#include "core/session/firmabilgi.h"

#include "core/sayi.h"
#include "core/session/ilksatir.h"

namespace belvani {
namespace {

constexpr std::size_t KanunHanesi = 5;

void OturumaYaz(Oturum& o, const Firma& firma) {
  o.unvan = firma.unvan;
  o.firmaay = firma.firmaay;
  o.firmayil = firma.firmayil;
  o.ondeger = firma.ondeger;
  o.paraonda = firma.paraonda;
}

std::string SonHaneler(const std::string& rakamlar, std::size_t hane) {
  const std::string dolu = std::string(hane, '0') + rakamlar;
  return dolu.substr(dolu.size() - hane);
}

}  // namespace

Firma YeniFirma() {
  const Tarih bugun = Tarih::Bugun();
  Firma f;
  f.unvan = "Yeni Şirket (" + std::to_string(bugun.Yil()) + ")";
  f.kurtar = bugun;
  f.iskodu = 1;
  f.issaati = Tek(8);
  f.paraonda = 2;
  f.firmayil = std::int16_t(bugun.Yil());
  f.firmaay = std::uint8_t(bugun.Ay());
  f.ondeger = "Personel";
  f.kanun = "00000";
  return f;
}

Firma FirmaOku(Oturum& o) {
  return IlkSatir<Firma>(o.depo.db, o.depo.firma).value_or(YeniFirma());
}

bool FirmaKaydet(Oturum& o, const Firma& firma, Bildirim& bildirim) {
  OturumaYaz(o, firma);
  Firma yazilan = firma;
  yazilan.kanun = KanunMetni(firma.kanun);
  auto& rs = o.depo.firma;
  const bool var = rs.IlkKayit();
  var ? rs.KayitDuzelt() : rs.KayitEkle();
  AlanlariYaz(rs, yazilan, {"versiyon"});
  if (!var) rs.AlanYaz("versiyon", o.Versiyon.Sayi());
  if (rs.KayitYaz()) return true;
  bildirim.Uyari("Firma Bilgileri Güncellenemedi");
  return false;
}

std::string KanunMetni(std::string_view metin) {
  const auto sayi = TamSayiOku(metin);
  return SonHaneler(sayi && *sayi > 0 ? std::to_string(*sayi) : "", KanunHanesi);
}

std::string AnaPencereBasligi(const Oturum& o) {
  if (o.firmaay < 1 || o.firmaay > 12) return o.unvan;
  return o.unvan + " (" + std::string(AyAdi(o.firmaay)) + "." + SonHaneler(std::to_string(o.firmayil), 4) + ")";
}

}  // namespace belvani
