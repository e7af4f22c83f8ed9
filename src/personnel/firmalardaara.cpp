#include "personnel/firmalardaara.h"

#include "core/session/firmabilgi.h"
#include "core/session/sirket.h"
#include "core/store/depokopyasi.h"
#include "core/store/koru.h"
#include "core/store/tablo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

std::vector<BulunanKisi> SirketteAra(const VeriYolu& veri, const std::string& ad, const std::string& aranan) {
  std::vector<BulunanKisi> bulunanlar;
  const auto motor = MotorBak(DepoAdresi(veri.Alt(ad)));
  const Firma firma = Tablo<Firma>(*motor).Bul().value_or(Firma());
  const std::string donem = CalismaAyiMetni(firma.firmayil, firma.firmaay);
  const std::string firmaAdi = firma.unvan.empty() ? ad : ad + " - " + firma.unvan;
  const auto komut = motor->Hazirla("select adi, soyadi from sicil order by kod");
  while (komut->Adim()) {
    std::string adi, soyadi;
    KolonAl(*komut, 0, adi);
    KolonAl(*komut, 1, soyadi);
    std::string adsoy = adi;
    adsoy.append(" ").append(soyadi);
    if (KucukHarf(adsoy).find(aranan) != std::string::npos) bulunanlar.push_back({adsoy, firmaAdi, donem});
  }
  return bulunanlar;
}

}  // namespace

std::vector<BulunanKisi> FirmalardaAra(const VeriYolu& veri, std::string_view adsoy, Ilerleme& ilerleme) {
  std::vector<BulunanKisi> bulunanlar;
  const std::string aranan = KucukHarf(Kirp(DenetimsizMetin(adsoy)));
  if (aranan.empty()) return bulunanlar;
  const auto sirketler = Sirketler(veri);
  for (std::size_t i = 0; i < sirketler.size(); ++i) {
    if (!ilerleme.Adim(i, sirketler.size())) return bulunanlar;
    // A company without a store, or with one that cannot be read, has nobody.
    if (auto kisiler = Koru([&] { return SirketteAra(veri, sirketler[i], aranan); }))
      std::ranges::move(*kisiler, std::back_inserter(bulunanlar));
  }
  ilerleme.Adim(sirketler.size(), sirketler.size());
  return bulunanlar;
}

}  // namespace belvani
