#include "core/session/sirketlistesi.h"

#include <algorithm>
#include <iterator>

#include "core/asama.h"
#include "core/session/sirket.h"
#include "core/session/sirketkartlari.h"
#include "core/session/sirketyedegi.h"
#include "core/session/tekbasina.h"

namespace belvani {
namespace {

SirketSatiri SatirYap(const std::string& ad, const std::optional<Firma>& kart) {
  if (!kart) return {ad, "Database'e Ulaşılamadı"};
  return {ad, kart->unvan, kart->firmayil, kart->firmaay};
}

constexpr const char* Silinmedi = "hiçbir dosya silinmedi";

// Nobody else may have the store open while it is backed up and goes out of sight; then it is closed, for a network
// file system keeps the name of an open file.
Sonuc<std::string> Ayir(const VeriYolu& veri, const std::string& ad, Ilerleme* ilerleme) {
  if (ad.starts_with('.')) return ad;  // a half one
  const auto depo = TekBasinaAc(veri.Alt(ad), Silinmedi);
  if (!depo) return depo.Kusuru();
  const auto yedek = YedekAl(veri, ad, {.tur = YedekTuru::Silme, .depo = depo->get()}, ilerleme);
  if (!yedek) return Kusur{std::string("Silmeden önce yedek alınamadı, ") + Silinmedi + ":\n" + yedek.KusurMetni()};
  if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
  return veri.YarimaCevir(ad);
}

Durum Kaldir(const VeriYolu& veri, const std::string& ad, Ilerleme* ilerleme) {
  const auto ayrilan = Ayir(veri, ad, ilerleme);
  if (!ayrilan) return ayrilan.Kusuru();
  return veri.YarimSil(*ayrilan);
}

}  // namespace

std::vector<SirketSatiri> SirketListesi(const VeriYolu& veri, Ilerleme* ilerleme) {
  const auto adlar = Sirketler(veri);
  const auto kartlar = SirketKartlari(veri, adlar, ilerleme);
  auto icerde = AltIcerdekiler(veri);
  std::vector<SirketSatiri> satirlar;
  for (std::size_t i = 0; i < adlar.size(); ++i) {
    satirlar.push_back(SatirYap(adlar[i], kartlar[i]));
    if (const auto olan = icerde.find(adlar[i]); olan != icerde.end()) satirlar.back().icerde = std::move(olan->second);
  }
  return satirlar;
}

bool AcikSirketMi(const Oturum& o, const VeriYolu& sirket) {
  if (o.FirmaDizini.empty()) return false;
  if (sirket.Sunucuda()) return sirket.Adres() == o.FirmaDizini;  // a place there has one name
  const std::string acik = VeriYolu(o.FirmaDizini).Kimlik();
  return !acik.empty() && sirket.Kimlik() == acik;
}

std::vector<std::string> YarimSirketler(const VeriYolu& veri) {
  return veri.YarimAltlar();
}

std::vector<std::string> SilinebilirSirketler(const VeriYolu& veri, const Oturum& o) {
  std::vector<std::string> adlar = Sirketler(veri);
  std::erase_if(adlar, [&](const std::string& ad) {
    const VeriYolu sirket = veri.Alt(ad);
    return sirket.BagMi() || AcikSirketMi(o, sirket);
  });
  std::ranges::move(YarimSirketler(veri), std::back_inserter(adlar));
  return adlar;
}

Sonuc<Silme> SirketSil(const VeriYolu& veri, std::string_view ad, const Oturum& o, Bildirim& bildirim,
                       const Yurutucu& yurut) {
  const auto adlar = SilinebilirSirketler(veri, o);
  if (std::find(adlar.begin(), adlar.end(), ad) == adlar.end())
    return Kusur{"Silinebilecek şirketler arasında yok: " + std::string(ad)};
  if (!bildirim.SilinsinMi("Firmayı Silmeye Eminmisiniz ?", ad, SoruDugmeleri::TamamIptal)) return Silme::Silinmedi;
  Durum silindi = Tamam();
  if (!yurut([&](Ilerleme* ilerleme) { silindi = Kaldir(veri, std::string(ad), ilerleme); })) return Silme::Silinmedi;
  if (!silindi) return silindi.Kusuru();
  return Silme::Silindi;
}

}  // namespace belvani
