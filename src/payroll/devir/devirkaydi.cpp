#include "payroll/devir/devirkaydi.h"

#include <set>

#include "core/store/satirlar.h"
#include "payroll/devir/satirlar.h"

namespace belvani {
namespace {

constexpr SilmeSozleri DevirSozleri{"Bu Satırdaki Devir Kaydını Silecekmisiniz ?", "Devir Kaydı Silinemedi",
                                    "Devir Kaydı Bulunamadı"};

Durum DevirleriYaz(Oturum& o, AktarimDosyasi& dosya, AktarimSonucu& sonuc) {
  Motor& motor = o.depo.db.IcMotor();
  DosyadakiKisiler kisiler(motor);
  Tablo<Dvr> devirler(motor, AlanEtiketi);
  std::set<std::string> gorulen;
  for (const AktarimSatiri& satir : dosya.satirlar) {
    const auto kod = kisiler.KoduBul(dosya, satir);
    if (!kod) continue;
    Dvr yeni;
    yeni.yilkod = YilKod(int(HucreSayisi(dosya, satir, "yil")), *kod);
    if (!gorulen.insert(yeni.yilkod).second) dosya.SorunEkle(satir, "yil", "kişinin bu yılı dosyada iki kez var");
    if (!dosya.sorunlar.empty()) continue;
    const auto ilk = devirler.Bul(yeni.yilkod);
    Okunan<Dvr> kayit{.ilk = ilk, .simdi = ilk.value_or(yeni)};
    HucreleriKoy(kayit.simdi, dosya, satir);
    kayit.simdi.kod = *kod;
    if (Durum d = SatirYaz(devirler, kayit, satir); !d) return d;
    ++(ilk ? sonuc.degisen : sonuc.eklenen);
  }
  return Tamam();
}

}  // namespace

std::string YilKod(int yil, std::string_view kod) {
  return std::to_string(yil) + std::string(kod);
}

std::vector<Dvr> DevirBilgileri(Oturum& o, std::string_view kod) {
  return o.depo.db.Koru(std::vector<Dvr>(), [&] {
    return KayitlariOku<Dvr>(o.depo.db.IcMotor(), "where kod = ? order by yil, yilkod", {TemizKod(kod)});
  });
}

Yazim<Dvr> DevirKaydet(Oturum& o, const Okunan<Dvr>& satir) {
  Okunan<Dvr> kayit = satir;
  if (const std::string kusur = DegerKusuru(dvr::yil, UyeDegeri(kayit.simdi.yil)); !kusur.empty())
    return {KuralKusuru("Yılı: " + kusur, dvr::yil)};
  const auto kart = KoduBul<Sicil>(o, kayit.simdi.kod);
  if (!kart) return {KuralKusuru("Bu Kodda Personel Yok: " + kayit.simdi.kod, dvr::kod)};
  if (kayit.ilk && kayit.ilk->yil != kayit.simdi.yil) kayit.ilk.reset();
  kayit.simdi.kod = kart->kod;
  kayit.simdi.yilkod = kayit.ilk ? kayit.ilk->yilkod : YilKod(kayit.simdi.yil, kart->kod);
  return KayitYaz(o, kayit, "Devir Bilgileri Güncellenemedi");
}

Sonuc<Silme> DevirSil(Oturum& o, const Dvr& satir, Bildirim& bildirim) {
  return SatirSil<Dvr>(o, satir.yilkod, std::to_string(satir.yil), DevirSozleri, bildirim);
}

Sonuc<AktarimSonucu> DevirAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip) {
  auto dosya = AktarimDosyasiOku(csv, {TabloBul("dvr")}, "kod", AnahtarKurali::TekrarEder);
  if (!dosya) return dosya.Kusuru();
  dosya->KolonIste(dvr::yil.ad);
  dosya->KolonYasakla(dvr::yilkod.ad, "bu anahtarı program yapar, dosyada olamaz");
  return AktarimiKaydet(o, *dosya, kip, [&](AktarimSonucu& sonuc) { return DevirleriYaz(o, *dosya, sonuc); });
}

}  // namespace belvani
