#include "notices/isgucu.h"

#include <algorithm>
#include <optional>

#include "core/store/satirlar.h"
#include "core/turkce.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"

namespace belvani {
namespace {

enum class Grup : std::size_t { GecenAySonu, Alinan, Ayrilan, AySonu };

struct AyUclari {
  Tarih ilk;
  Tarih son;
};

// The groups that a person is in.
std::array<bool, 4> Gruplari(Tarih girtar, Tarih ciktar, const AyUclari& ay) {
  std::array<bool, 4> gruplar{};
  const auto icinde = [&](Tarih gun) { return gun >= ay.ilk && gun <= ay.son; };
  gruplar[std::size_t(Grup::GecenAySonu)] = girtar < ay.ilk && (ciktar.Bos() || ciktar >= ay.ilk);
  gruplar[std::size_t(Grup::Alinan)] = icinde(girtar);
  gruplar[std::size_t(Grup::Ayrilan)] = icinde(ciktar);
  gruplar[std::size_t(Grup::AySonu)] = girtar <= ay.son && (ciktar.Bos() || ciktar > ay.son);
  return gruplar;
}

constexpr std::uint8_t KadinSirasi = 1;

void Say(IsgucuSayisi& sayi, const std::optional<std::uint8_t>& cins) {
  ++sayi.toplam;
  if (cins) ++(*cins == KadinSirasi ? sayi.kadin : sayi.erkek);
}

void SayiUyarisi(Kusurlar& uyarilar, int sayi, const char* metin) {
  if (sayi > 0) uyarilar.push_back({.metin = std::to_string(sayi) + metin, .derece = Derece::Uyari});
}

}  // namespace

IsgucuCizelgesi BosCizelge(const Firma& firma) {
  const auto adres = FirmaAdresi(firma);
  IsgucuCizelgesi cizelge{.unvan = firma.unvan};
  cizelge.baslik = {.isyeriNo = IsyeriSicilNo(firma),
                    .yil = firma.firmayil,
                    .ay = std::clamp<std::uint8_t>(firma.firmaay, 1, 12),
                    .adres = std::string(Kirp(adres[0] + " " + adres[1])),
                    .telefon = firma.tel,
                    .eposta = firma.epos};
  return cizelge;
}

Kusurlar CizelgeyiDoldur(Motor& motor, IsgucuCizelgesi& cizelge) {
  const auto& [yil, ay] = std::pair(int(cizelge.baslik.yil), int(cizelge.baslik.ay));
  const AyUclari uclar{Tarih(yil, ay, 1), Tarih(yil, ay, AyinGunSayisi(yil, ay))};
  IsgucuSatiri& herkes = cizelge.satirlar[BelirsizSureliSirasi] = {};
  IsgucuSatiri& ozurluler = cizelge.satirlar[OzurluSirasi] = {};
  int kimliksiz = 0, girissiz = 0;
  const auto komut = motor.Hazirla(
      "select s.girtar, s.ciktar, s.sakatdrc, k.kod is not null, k.cins from sicil s left join kimlik k on k.kod = "
      "s.kod");
  while (komut->Adim()) {
    Tarih girtar, ciktar;
    KolonAl(*komut, 0, girtar);
    KolonAl(*komut, 1, ciktar);
    const auto gruplar = Gruplari(girtar, ciktar, uclar);
    if (std::ranges::find(gruplar, true) == gruplar.end()) continue;
    const bool kimlikli = komut->Tam(3) != 0;
    const auto cins = kimlikli ? std::optional(komut->TamSigan<std::uint8_t>(4)) : std::nullopt;
    kimliksiz += kimlikli ? 0 : 1;
    girissiz += girtar.Bos() ? 1 : 0;
    for (std::size_t g = 0; g < gruplar.size(); ++g) {
      if (!gruplar[g]) continue;
      Say(herkes[g], cins);
      if (komut->Tam(2) > 0) Say(ozurluler[g], cins);
    }
  }
  Kusurlar uyarilar;
  SayiUyarisi(uyarilar, kimliksiz, " kişinin kimlik kaydı yok, cinsiyeti bilinmiyor: yalnız toplamda sayıldı");
  SayiUyarisi(uyarilar, girissiz, " kişinin giriş tarihi yok: önceki aydan beri çalışıyor sayıldı");
  return uyarilar;
}

}  // namespace belvani
