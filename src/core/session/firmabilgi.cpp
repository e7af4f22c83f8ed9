#include "core/session/firmabilgi.h"

#include "core/sayi.h"
#include "core/session/ilksatir.h"

namespace belvani {
namespace {

constexpr std::size_t KanunHanesi = 5;

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

Durum FirmaKaydet(Oturum& o, const Firma& firma) {
  auto& rs = o.depo.firma;
  const bool var = rs.IlkKayit();
  o.firma = firma;
  o.firma.kanun = KanunMetni(firma.kanun);
  o.firma.versiyon = var ? DepoVersiyonu(o) : o.Versiyon;
  var ? rs.KayitDuzelt() : rs.KayitEkle();
  AlanlariYaz(rs, o.firma, {});
  if (!rs.KayitYaz()) return Kusur{"Firma Bilgileri Güncellenemedi"};
  o.firmaVar = true;
  return Tamam();
}

std::string KanunMetni(std::string_view metin) {
  const auto sayi = TamSayiOku(metin);
  return SonHaneler(sayi && *sayi > 0 ? std::to_string(*sayi) : "", KanunHanesi);
}

std::string AnaPencereBasligi(const Oturum& o) {
  if (o.firma.firmaay < 1 || o.firma.firmaay > 12) return o.firma.unvan;
  return o.firma.unvan + " (" + std::string(AyAdi(o.firma.firmaay)) + "." +
         SonHaneler(std::to_string(o.firma.firmayil), 4) + ")";
}

}  // namespace belvani
