#include "core/session/sirketlistesi.h"

#include <algorithm>
#include <iterator>

#include "core/asama.h"
#include "core/session/sirket.h"
#include "core/store/tablo.h"
#include "core/yarimdizin.h"

namespace belvani {
namespace {

SirketSatiri SatirOku(const VeriYolu& veri, const std::string& ad) {
  Veritabani db;
  db.DbAc(DepoAdresi(veri.Alt(ad)));
  const auto kart = db.Koru(std::optional<Firma>(), [&] { return Tablo<Firma>(db.IcMotor()).Bul(); });
  if (!kart) return {ad, "Database'e Ulaşılamadı", ""};
  const std::string ay = std::to_string(kart->firmaay);
  return {ad, kart->unvan, (ay.size() < 2 ? "0" + ay : ay) + "-" + std::to_string(kart->firmayil)};
}

// The company's store with everybody else kept out, as long as the result lives; null when the file is no store, which
// nobody can have open. A connection of another computer or program, even an idle one, is told by its hold on the
// write-ahead log, which leaving that journal mode asks for.
Sonuc<std::unique_ptr<Motor>> TekBasinaAc(const std::string& yol) {
  try {
    auto motor = MotorAc(yol);
    motor->Calistir("pragma journal_mode=delete; begin exclusive");
    return motor;
  } catch (const MotorHatasi& h) {
    if (h.tur == MotorKusuru::Kilitli) return Kusur{"Bu şirket şu anda kullanılıyor, hiçbir dosya silinmedi:\n" + yol};
    return std::unique_ptr<Motor>();
  }
}

Durum Kaldir(const VeriYolu& veri, const std::string& ad) {
  if (YarimDizinAdi(ad)) return YarimDiziniSil(veri.Adres(), ad);
  const VeriYolu sirket = veri.Alt(ad);
  const auto depo = TekBasinaAc(DepoAdresi(sirket));
  if (!depo) return depo.Kusuru();
  if (Durum bosaldi = sirket.Bosalt(DepoDosyasi); !bosaldi) return bosaldi;
  return sirket.Kaldir();
}

}  // namespace

std::vector<SirketSatiri> SirketListesi(const VeriYolu& veri, Ilerleme* ilerleme) {
  std::vector<SirketSatiri> satirlar;
  const auto adlar = Sirketler(veri);
  Asama asama(ilerleme, adlar.size());
  for (const auto& ad : adlar) {
    asama.Adim();
    satirlar.push_back(SatirOku(veri, ad));
  }
  return satirlar;
}

std::vector<std::string> YarimSirketler(const VeriYolu& veri) {
  return YarimDizinler(veri.Adres());
}

std::vector<std::string> SilinebilirSirketler(const VeriYolu& veri, const Oturum& o) {
  std::vector<std::string> adlar = Sirketler(veri);
  const std::string acik = o.FirmaDizini.empty() ? std::string() : VeriYolu(o.FirmaDizini).Kimlik();
  std::erase_if(adlar, [&](const std::string& ad) {
    const VeriYolu sirket = veri.Alt(ad);
    return sirket.BagMi() || sirket.Kimlik() == acik;
  });
  std::ranges::move(YarimSirketler(veri), std::back_inserter(adlar));
  return adlar;
}

Sonuc<Silme> SirketSil(const VeriYolu& veri, std::string_view ad, const Oturum& o, Bildirim& bildirim) {
  const auto adlar = SilinebilirSirketler(veri, o);
  if (std::find(adlar.begin(), adlar.end(), ad) == adlar.end())
    return Kusur{"Silinebilecek şirketler arasında yok: " + std::string(ad)};
  if (!bildirim.SilinsinMi("Firmayı Silmeye Eminmisiniz ?", ad, SoruDugmeleri::TamamIptal)) return Silme::Silinmedi;
  if (const Durum silindi = Kaldir(veri, std::string(ad)); !silindi) return silindi.Kusuru();
  return Silme::Silindi;
}

}  // namespace belvani
