#include "core/session/firmabilgi.h"

#include "core/sayi.h"
#include "core/store/tablo.h"

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

Okunan<Firma> FirmaDuzenle(Oturum& o) {
  Veritabani& db = o.depo.db;
  Okunan<Firma> firma{.ilk = db.Koru(std::optional<Firma>(), [&] { return Tablo<Firma>(db.IcMotor()).Bul(); }),
                      .simdi = {}};
  firma.simdi = firma.ilk.value_or(YeniFirma());
  return firma;
}

Yazim<Firma> FirmaKaydet(Oturum& o, const Okunan<Firma>& firma) {
  Okunan<Firma> yazilan = firma;
  if (!firma.ilk || firma.simdi.kanun != firma.ilk->kanun) yazilan.simdi.kanun = KanunMetni(firma.simdi.kanun);
  yazilan.simdi.versiyon = firma.ilk ? firma.ilk->versiyon : o.Versiyon;
  const Yazim<Firma> yazilamadi{YazmaEngeli<Firma>(Kusur{"Firma Bilgileri Güncellenemedi"})};
  Veritabani& db = o.depo.db;
  auto sonuc = db.Koru(yazilamadi, [&] {
    auto yazim = Tablo<Firma>(db.IcMotor()).Yaz(yazilan);
    if (!yazim) db.HataYaz(yazim.KusurMetni());
    return yazim || yazim.Kusuru().cakisma ? std::move(yazim) : yazilamadi;
  });
  if (!sonuc && sonuc.Kusuru().cakisma) return sonuc;
  o.firma = sonuc ? *sonuc : yazilan.simdi;
  if (sonuc) o.firmaVar = true;
  return sonuc;
}

std::string KanunMetni(std::string_view metin) {
  const auto sayi = TamSayiOku(metin);
  return SonHaneler(sayi && *sayi > 0 ? std::to_string(*sayi) : "", KanunHanesi);
}

std::string CalismaAyiMetni(int yil, int ay) {
  return yil == 0 ? std::string() : (ay < 10 ? "0" : "") + std::to_string(ay) + "-" + std::to_string(yil);
}

std::string AnaPencereBasligi(const Oturum& o) {
  const std::string hal = o.SaltOkunur ? " (salt okunur)" : "";
  if (o.firma.firmaay < 1 || o.firma.firmaay > 12) return o.firma.unvan + hal;
  return o.firma.unvan + " (" + std::string(AyAdi(o.firma.firmaay)) + "." +
         SonHaneler(std::to_string(o.firma.firmayil), 4) + ")" + hal;
}

}  // namespace belvani
