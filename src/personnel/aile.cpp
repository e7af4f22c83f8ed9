#include "personnel/aile.h"

#include "core/store/satirlar.h"
#include "core/turkce.h"

namespace belvani {

std::vector<Esco> AileOku(Oturum& o, std::string_view kod) {
  return o.depo.db.Koru(std::vector<Esco>(), [&] {
    return KayitlariOku<Esco>(o.depo.db.IcMotor(), "where kod = ? order by yakinlik, oto", {TemizKod(kod)});
  });
}

Yazim<Esco> AileKaydet(Oturum& o, const Okunan<Esco>& satir) {
  Okunan<Esco> yazilan = satir;
  yazilan.simdi.kod = TemizKod(satir.simdi.kod);
  if (yazilan.simdi.kod.empty()) return {Kusur{"Personel Kodu Bulunamadı..", esco::kod}};
  if (yazilan.ilk && yazilan.simdi.dogtar.Bos()) yazilan.simdi.dogtar = yazilan.ilk->dogtar;
  return KayitYaz(o, yazilan, "Eş ve Çocuk Bilgileri Güncellenemedi");
}

Sonuc<Silme> AileSil(Oturum& o, std::int32_t oto, Bildirim& bildirim) {
  const auto satir = o.depo.db.Koru(std::optional<Esco>(), [&] { return KisiTablosu<Esco>(o).Bul(std::int64_t(oto)); });
  const std::string kim = satir ? satir->adi + " " + satir->soyadi : std::string();
  if (!bildirim.SilinsinMi("Kayıt Silinecek ?", Kirp(kim), SoruDugmeleri::TamamIptal)) return Silme::Silinmedi;
  const Sonuc<bool> silinemedi{Kusur{"Kayıt Silinemedi"}};
  const auto vardi =
      o.depo.db.Koru(silinemedi, [&]() -> Sonuc<bool> { return KisiTablosu<Esco>(o).Sil(std::int64_t(oto)); });
  if (!vardi) return vardi.Kusuru();
  if (!*vardi) return KuralKusuru("Silinecek Kayıt Bulunamadı");
  return Silme::Silindi;
}

}  // namespace belvani
