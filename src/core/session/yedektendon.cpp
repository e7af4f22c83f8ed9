#include "core/session/yedektendon.h"

#include <fcntl.h>
#include <unistd.h>

#include "core/session/depoyukle.h"
#include "core/session/paylasim.h"
#include "core/session/sirket.h"
#include "core/session/sirketyedegi.h"
#include "core/session/tekbasina.h"
#include "core/store/koru.h"
#include "core/yarimdizin.h"
#include "core/yedek/arsiv.h"

namespace belvani {
namespace {

struct DonusYeri {
  std::string ad;
  bool dolu = false;  // a company stands there
};

Sonuc<DonusYeri> YeriBul(const VeriYolu& veri, const DonusIstegi& istek, const YedekKunyesi& kunye) {
  const std::string& istenen = istek.yeniKod.empty() ? kunye.sirket : istek.yeniKod;
  const auto uyanlar = UyanSirketler(veri, istenen);
  if (uyanlar.empty()) {
    const auto ad = SirketAdi(istenen);
    return ad ? Sonuc<DonusYeri>(DonusYeri{*ad}) : ad.Kusuru();
  }
  if (!istek.yeniKod.empty()) return Kusur{"Bu adda bir şirket var: " + uyanlar.front()};
  const auto ad = SirketBul(veri, istenen);
  if (!ad) return ad.Kusuru();
  if (veri.Alt(*ad).BagMi())
    return Kusur{"Şirketin dizini başka yere giden bir bağ, yerine yedek konamaz; başka bir koda yükleyiniz: " + *ad};
  return DonusYeri{*ad, true};
}

// "2026-11-20 17:30:00" -> "20.11.2026 17:30"; of a hostile record whatever it says, in one line.
std::string ZamanMetni(const std::string& zaman) {
  const Tarih gun = Tarih::IsoOku(std::string_view(zaman).substr(0, 10));
  return gun.Bos() || zaman.size() < 16 ? zaman : gun.Metin() + " " + zaman.substr(11, 5);
}

bool Sor(const VeriYolu& veri, const DonusYeri& yer, const YedekKunyesi& kunye, Bildirim& bildirim) {
  return bildirim.SilinsinMi(yer.ad + " şirketinin şimdiki hali (son değişiklik: " + SonDegisim(veri.Alt(yer.ad)) +
                                 ") yerine yedekteki hali (" + ZamanMetni(kunye.zaman) +
                                 ") konulacak.\nŞimdiki hali önce yedeklenir. Eminmisiniz ?",
                             {});
}

// Opened once, so that what is no store never takes a company's place; laid out for those who work there, whoever
// worked where it comes from.
Durum DepoyuHazirla(const std::string& dizin, DepoYeri yer) {
  return Koru(
      [&] {
        const auto motor = MotorAc(dizin + DepoDosyasi, AcilisKipi::Tek);
        motor->YerKoy(yer);
        if (motor->Kolonlar("firma").empty()) throw MotorHatasi(MotorKusuru::Bozuk, "firma tablosu yok");
      },
      "Yedekteki veritabanı açılamadı: ");
}

// On a server the files go in one by one, out of a directory of this computer that goes afterwards.
Durum SunucuyaCikar(const YedekArsivi& arsiv, const VeriYolu& veri, const VeriYolu& yeni, Ilerleme* ilerleme) {
  const std::string yerel = veri.YerelDizin();
  VeriYolu(yerel).Toparla();
  auto is = YarimDizin::Ac(yerel, "yedekten", YarimTuru::Donen);
  if (!is) return is.Kusuru();
  if (Durum cikti = arsiv.Cikar(is->Yol(), ilerleme); !cikti) return cikti;
  if (Durum hazir = DepoyuHazirla(is->Yol(), DepoYeri::Paylasilan); !hazir) return hazir;
  for (const YedekDosyasi& dosya : arsiv.Kunye().dosyalar) {
    if (dosya.ad.starts_with(DepoDosyasi)) continue;
    if (Durum kondu = yeni.DosyadanKoy(dosya.ad, is->Yol() + dosya.ad); !kondu) return kondu;
  }
  return DepoYukle(is->Yol() + DepoDosyasi, yeni, ilerleme);
}

Durum Cikar(const YedekArsivi& arsiv, const VeriYolu& veri, const VeriYolu& yeni, DepoYeri depoYeri,
            Ilerleme* ilerleme) {
  if (yeni.Sunucuda()) return SunucuyaCikar(arsiv, veri, yeni, ilerleme);
  if (Durum cikti = arsiv.Cikar(yeni.Adres(), ilerleme); !cikti) return cikti;
  return DepoyuHazirla(yeni.Adres(), depoYeri);
}

// A program that has opened the replaced store but not yet read from it must not go on in a file that is nobody's: it
// finds that this is no store.
void DepoyuGecersizKil(const std::string& yol) {
  const int no = ::open(yol.c_str(), O_WRONLY | O_CLOEXEC);
  if (no < 0) return;
  constexpr char bos[100] = {};  // the engine's header
  (void)!::pwrite(no, bos, sizeof bos, 0);
  ::close(no);
}

Sonuc<Donus> Don(const VeriYolu& veri, const YedekArsivi& arsiv, const DonusYeri& yer, Ilerleme* ilerleme) {
  Donus donus{yer.ad};
  std::unique_ptr<Motor> simdiki;
  if (yer.dolu) {
    auto motor = TekBasinaAc(veri.Alt(yer.ad), "yedek geri yüklenmedi");
    if (!motor) return motor.Kusuru();
    simdiki = std::move(*motor);
  }
  const auto yarim = veri.YarimAlt(yer.ad, YarimTuru::Donen);
  if (!yarim) return yarim.Kusuru();
  const DepoYeri depoYeri = simdiki ? simdiki->Yeri() : YeniDepoYeri(veri);
  if (Durum cikti = Cikar(arsiv, veri, (*yarim)->Adres(), depoYeri, ilerleme); !cikti) return cikti.Kusuru();
  if (yer.dolu) {
    auto onceki = YedekAl(veri, yer.ad, {.tur = YedekTuru::Donus, .depo = simdiki.get()}, ilerleme);
    if (!onceki) return Kusur{"Şimdiki hali yedeklenemedi, yedek geri yüklenmedi:\n" + onceki.KusurMetni()};
    donus.onceki = onceki->yol;
    donus.uyarilar = std::move(onceki->uyarilar);
  }
  if (ilerleme != nullptr && !ilerleme->Kesin()) throw Vazgecilmis{};
  if (Durum kondu = yer.dolu ? (*yarim)->YerineGec() : (*yarim)->Adlandir(); !kondu) return kondu.Kusuru();
  if (simdiki && !veri.Sunucuda()) DepoyuGecersizKil(DepoAdresi((*yarim)->Adres()));
  return donus;
}

}  // namespace

Sonuc<std::optional<Donus>> YedektenDon(const VeriYolu& veri, const DonusIstegi& istek, Bildirim& bildirim,
                                        const Yurutucu& yurut) {
  const auto arsiv = YedekArsivi::Ac(istek.dosya);
  if (!arsiv) return arsiv.Kusuru();
  veri.Toparla();
  const auto yer = YeriBul(veri, istek, arsiv->Kunye());
  if (!yer) return yer.Kusuru();
  if (yer->dolu && !Sor(veri, *yer, arsiv->Kunye(), bildirim)) return std::optional<Donus>();
  std::optional<Sonuc<Donus>> donus;
  const bool bitti = yurut([&](Ilerleme* ilerleme) { donus.emplace(Don(veri, *arsiv, *yer, ilerleme)); });
  if (!bitti || !donus) return std::optional<Donus>();
  if (!*donus) return donus->Kusuru();
  return std::optional(std::move(**donus));
}

Sonuc<std::string> YedeginYeri(const VeriYolu& veri, const std::string& dosya) {
  const auto arsiv = YedekArsivi::Ac(dosya);
  if (!arsiv) return arsiv.Kusuru();
  const auto yer = YeriBul(veri, {.dosya = dosya}, arsiv->Kunye());
  if (!yer) return yer.Kusuru();
  return yer->dolu ? yer->ad : std::string();
}

}  // namespace belvani
