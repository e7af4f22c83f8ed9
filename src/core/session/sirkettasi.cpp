#include "core/session/sirkettasi.h"

#include "core/session/sirket.h"
#include "core/session/sirketyedegi.h"
#include "core/session/tekbasina.h"
#include "core/session/yedektendon.h"
#include "core/store/depoaktarimi.h"
#include "core/store/koru.h"

namespace belvani {
namespace {

// The target has no company of this name, so nothing is asked.
class SorusuzBildirim final : public Bildirim {
 public:
  void Bilgi(std::string_view) override {}
  void Uyari(std::string_view) override {}
  bool Soru(std::string_view) override { return false; }
};

Durum DosyaFarki(const VeriYolu& kaynak, const VeriYolu& hedef) {
  for (const std::string& ad : kaynak.Dosyalar()) {
    if (ad.starts_with(DepoDosyasi)) continue;
    const DosyaHali eski = kaynak.Bak(ad), yeni = hedef.Bak(ad);
    if (!yeni.var || eski.okunamadi || eski.boy != yeni.boy || eski.baytlar != yeni.baytlar)
      return Kusur{"Dosya hedefte kaynaktaki gibi değil: " + ad};
  }
  return Tamam();
}

Durum Karsilastir(Motor& depo, const VeriYolu& kaynak, const VeriYolu& hedef) {
  if (Durum dosyalar = DosyaFarki(kaynak, hedef); !dosyalar) return dosyalar;
  const auto fark = Koru([&] { return DepoFarki(depo, *MotorAc(DepoAdresi(hedef), AcilisKipi::Tek)); });
  if (!fark) return fark.Kusuru();
  return fark->empty() ? Tamam() : Durum(Kusur{"Kayıtlar hedefte kaynaktaki gibi değil: " + *fark});
}

Durum Kaldir(const VeriYolu& veri, const std::string& ad) {
  const auto yarim = veri.YarimaCevir(ad);
  return yarim ? veri.YarimSil(*yarim) : Durum(yarim.Kusuru());
}

}  // namespace

Sonuc<Tasima> SirketTasi(const VeriYolu& kaynak, const VeriYolu& hedef, const TasimaIstegi& istek, Ilerleme* ilerleme) {
  const auto ad = SirketBul(kaynak, istek.kod);
  if (!ad) return ad.Kusuru();
  if (Durum erisim = hedef.Erisim(); !erisim) return erisim.Kusuru();
  if (!UyanSirketler(hedef, *ad).empty()) return Kusur{"Hedefte bu adda bir şirket var: " + *ad};
  auto depo = TekBasinaAc(kaynak.Alt(*ad), "şirket taşınmadı");
  if (!depo) return depo.Kusuru();
  if (*depo == nullptr) return Kusur{"Veritabanı açılamadı, şirket taşınmadı:\n" + DepoAdresi(kaynak.Alt(*ad))};
  auto yedek = YedekAl(kaynak, *ad, {.tur = YedekTuru::Silme, .depo = depo->get()}, ilerleme);
  if (!yedek) return Kusur{"Yedeği alınamadı, şirket taşınmadı:\n" + yedek.KusurMetni()};
  SorusuzBildirim sorusuz;
  const auto donus = YedektenDon(hedef, {.dosya = yedek->yol, .yeniKod = *ad}, sorusuz,
                                 [&](const auto& is) { return is(ilerleme), true; });
  if (!donus) return donus.Kusuru();
  if (Durum esit = Karsilastir(**depo, kaynak.Alt(*ad), hedef.Alt(*ad)); !esit) {
    const Durum kaldirildi = Kaldir(hedef, *ad);
    return Kusur{esit.KusurMetni() + "\nŞirket taşınmadı" +
                 (kaldirildi ? std::string() : "; hedefte kalanı siliniz: " + kaldirildi.KusurMetni())};
  }
  Tasima tasima{*ad, yedek->yol, std::move(yedek->uyarilar)};
  if (istek.kaynakKalsin) return tasima;
  depo->reset();
  if (Durum kaldirildi = Kaldir(kaynak, *ad); !kaldirildi)
    tasima.uyarilar.push_back(
        {.metin = "Şirket hedefte; kaynaktan kaldırılamadı: " + kaldirildi.KusurMetni(), .derece = Derece::Uyari});
  return tasima;
}

}  // namespace belvani
