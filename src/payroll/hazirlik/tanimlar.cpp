#include "payroll/hazirlik/tanimlar.h"

#include <algorithm>

#include "core/store/tablo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

// Runs `is` in a transaction, and looks at the parameters anew; a failure is told in the words of the screen.
template <class Is>
Durum Yaz(TanimOrtami ortam, const char* hataMetni, Is&& is) {
  Veritabani& db = ortam.oturum.depo.db;
  const Durum yazildi = db.Koru(Durum(Kusur{hataMetni}), [&] {
    Islem islem(db.IcMotor());
    is(db.IcMotor());
    islem.Onayla();
    return Tamam();
  });
  return yazildi ? ortam.parametreler.firma.Yukle() : yazildi;
}

// Each row over the one with its key, or as a new one.
template <class Kayit, class Uye, class Satirlar>
Durum AnahtarlaYaz(TanimOrtami ortam, const Kolon<Kayit, Uye>& anahtar, const Satirlar& satirlar,
                   const char* hataMetni) {
  for (const Kayit& satir : satirlar)
    if (Kusurlar kusurlar = KayitKusurlari(satir, AlanAdi); !kusurlar.empty()) return std::move(kusurlar.front());
  return Yaz(ortam, hataMetni, [&](Motor& motor) {
    Tablo<Kayit> tablo(motor);
    for (const Kayit& satir : satirlar)
      if (const auto y = tablo.Yaz({.ilk = tablo.Bul(UyeDegeri(satir.*anahtar.uye)), .simdi = satir}); !y)
        throw MotorHatasi(MotorKusuru::Kisit, y.KusurMetni());
  });
}

// Each has the number of its place, from 1.
template <class Satirlar>
Satirlar Numarali(Satirlar satirlar) {
  for (std::size_t i = 0; i < satirlar.size(); ++i) satirlar[i].no = std::uint8_t(i + 1);
  return satirlar;
}

template <class Kayit>
Sonuc<Silme> AnahtarlaSil(TanimOrtami ortam, const Deger& anahtar) {
  const Durum silindi = Yaz(ortam, "Kayıt Silinemedi", [&](Motor& motor) { Tablo<Kayit>(motor).Sil(anahtar); });
  if (!silindi) return silindi.Kusuru();
  return Silme::Silindi;
}

}  // namespace

std::vector<std::string> KazancGruplari(const FirmaParametreleri& firma) {
  std::vector<std::string> adlar;
  for (const Kaztan& satir : firma.gruplar) adlar.push_back(satir.grup);
  std::sort(adlar.begin(), adlar.end(), [](const auto& a, const auto& b) { return TurkceKarsilastir(a, b) < 0; });
  return adlar;
}

Durum KazancGrubuKaydet(TanimOrtami ortam, std::string_view grup, const KazancBayraklari& bayraklar) {
  if (Kirp(grup).empty()) return KuralKusuru("Grup adı boş bırakılamaz", kaztan::grup);
  return AnahtarlaYaz(ortam, kaztan::grup, std::array{GrupSatiri(Kirp(grup), bayraklar)},
                      "Kazanç Kayıtları Kaydedilemedi");
}

Sonuc<Silme> KazancGrubuSil(TanimOrtami ortam, std::string_view grup) {
  const std::string ad(Kirp(grup));
  if (TurkceEsit(ad, Kirp(ortam.oturum.firma.ondeger)))
    return KuralKusuru("Varsayılan Hesap Silinemez\nYeniden Düzenlenir");
  if (!ortam.bildirim.SilinsinMi(ad + " Grubu\nKazanç Tanımlamalarını Silmek İstiyormusunuz ?", {}))
    return Silme::Silinmedi;
  return AnahtarlaSil<Kaztan>(ortam, ad);
}

Durum IndirimleriKaydet(TanimOrtami ortam, const std::array<Indir, 3>& satirlar) {
  return AnahtarlaYaz(ortam, indir::no, Numarali(satirlar), "İndirim Kayıtları Kaydedilemedi");
}

Durum YardimlariKaydet(TanimOrtami ortam, const YardimTanimlari& yardimlar) {
  return AnahtarlaYaz(ortam, muaf::no, Numarali(yardimlar), "Yardım Kayıtları Kaydedilemedi");
}

Durum SendikaKaydet(TanimOrtami ortam, const Sendika& sendika) {
  Sendika satir = sendika;
  satir.kod = Kirp(sendika.kod);
  if (satir.kod.empty()) return KuralKusuru("Sendika No boş bırakılamaz", sendika::kod);
  return AnahtarlaYaz(ortam, sendika::kod, std::array{satir}, "Sendika Bilgileri Güncellenemedi..");
}

Sonuc<Silme> SendikaSil(TanimOrtami ortam, std::string_view kod) {
  if (!ortam.bildirim.SilinsinMi("Kaydı Silmek İstiyormusunuz ?", Kirp(kod))) return Silme::Silinmedi;
  return AnahtarlaSil<Sendika>(ortam, std::string(Kirp(kod)));
}

}  // namespace belvani
