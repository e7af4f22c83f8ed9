#include "personnel/aile.h"

#include "personnel/kayit.h"

namespace belvani {
namespace {

bool SatirBul(Depo& depo, std::int32_t oto) {
  return oto != 0 && depo.esco.KayitBul("oto", std::int64_t(oto));
}

std::optional<std::int32_t> SatirYaz(Depo& depo, const Esco& satir) {
  const bool var = SatirBul(depo, satir.oto);
  var ? depo.esco.KayitDuzelt() : depo.esco.KayitEkle();
  AlanlariYaz(depo.esco, satir, satir.dogtar.Bos() ? AlanAdlari{"dogtar"} : AlanAdlari{});
  if (!depo.esco.KayitYaz()) return std::nullopt;
  return var ? satir.oto : std::int32_t(depo.db.IcMotor().SonKimlik());
}

}  // namespace

std::vector<Esco> AileOku(Oturum& o, std::string_view kod) {
  return o.depo.db.Koru(std::vector<Esco>(), [&] {
    return KayitlariOku<Esco>(o.depo.db.IcMotor(), "where kod = ? order by yakinlik, oto", {TemizKod(kod)});
  });
}

std::optional<std::int32_t> AileKaydet(Oturum& o, const Esco& satir, Bildirim& bildirim) {
  Esco temiz = satir;
  temiz.kod = TemizKod(satir.kod);
  if (temiz.kod.empty()) {
    bildirim.Uyari("Personel Kodu Bulunamadı..");
    return std::nullopt;
  }
  if (const std::string kusur = KayitKusuru(temiz); !kusur.empty()) {
    bildirim.Bilgi(kusur);
    return std::nullopt;
  }
  const auto oto = SatirYaz(o.depo, temiz);
  if (!oto) bildirim.Uyari("Eş ve Çocuk Bilgileri Güncellenemedi");
  return oto;
}

bool AileSil(Oturum& o, std::int32_t oto, Bildirim& bildirim) {
  if (!bildirim.Soru("Kayıt Silinecek ?")) return false;
  if (!SatirBul(o.depo, oto)) {
    bildirim.Bilgi("Silinecek Kayıt Bulunamadı");
    return false;
  }
  if (Silindi(o.depo.esco)) return true;
  bildirim.Uyari("Kayıt Silinemedi");
  return false;
}

}  // namespace belvani
