#include "payroll/hazirlik/tanimlar.h"

#include <algorithm>

#include "core/store/tablo.h"
#include "core/turkce.h"

namespace belvani {
namespace {

bool Tazele(TanimOrtami ortam) {
  const auto durum = ortam.parametreler.firma.Yukle();
  if (!durum) ortam.bildirim.Uyari(durum.KusurMetni());
  return bool(durum);
}

// Runs `is` in a transaction; a failure is told in the words of the screen.
template <class Is>
bool Yaz(TanimOrtami ortam, std::string_view hataMetni, Is&& is) {
  Veritabani& db = ortam.oturum.depo.db;
  const bool yazildi = db.Koru(false, [&] {
    Islem islem(db.IcMotor());
    is(db.IcMotor());
    islem.Onayla();
    return true;
  });
  if (yazildi) return Tazele(ortam);
  ortam.bildirim.Uyari(hataMetni);
  return false;
}

// Each row over the one with its key, or as a new one.
template <class Kayit, class Uye, class Satirlar>
bool AnahtarlaYaz(TanimOrtami ortam, const Kolon<Kayit, Uye>& anahtar, const Satirlar& satirlar,
                  std::string_view hataMetni) {
  for (const Kayit& satir : satirlar)
    if (const Kusurlar kusurlar = KayitKusurlari(satir, AlanAdi); !kusurlar.empty()) {
      ortam.bildirim.KusuruGoster(kusurlar.front());
      return false;
    }
  return Yaz(ortam, hataMetni, [&](Motor& motor) {
    Tablo<Kayit> tablo(motor);
    for (const Kayit& satir : satirlar)
      if (const auto y = tablo.Yaz({.ilk = tablo.Bul(UyeDegeri(satir.*anahtar.uye)), .simdi = satir}); !y)
        throw MotorHatasi(MotorKusuru::Kisit, y.KusurMetni());
  });
}

template <class Kayit>
bool AnahtarlaSil(TanimOrtami ortam, const Deger& anahtar, std::string_view hataMetni) {
  return Yaz(ortam, hataMetni, [&](Motor& motor) { Tablo<Kayit>(motor).Sil(anahtar); });
}

constexpr std::string_view SilinemediMetni = "Kayıt Silinemedi";

}  // namespace

std::vector<std::string> KazancGruplari(const FirmaParametreleri& firma) {
  std::vector<std::string> adlar;
  for (const Kaztan& satir : firma.gruplar) adlar.push_back(satir.grup);
  std::sort(adlar.begin(), adlar.end(), [](const auto& a, const auto& b) { return TurkceKarsilastir(a, b) < 0; });
  return adlar;
}

bool KazancGrubuKaydet(TanimOrtami ortam, std::string_view grup, const KazancBayraklari& bayraklar) {
  if (Kirp(grup).empty()) {
    ortam.bildirim.Bilgi("Grup adı boş bırakılamaz");
    return false;
  }
  return AnahtarlaYaz(ortam, kaztan::grup, std::array{GrupSatiri(Kirp(grup), bayraklar)},
                      "Kazanç Kayıtları Kaydedilemedi");
}

bool KazancGrubuSil(TanimOrtami ortam, std::string_view grup) {
  const std::string ad(Kirp(grup));
  if (TurkceEsit(ad, Kirp(ortam.oturum.firma.ondeger))) {
    ortam.bildirim.Bilgi("Varsayılan Hesap Silinemez\nYeniden Düzenlenir");
    return false;
  }
  if (!ortam.bildirim.Soru(ad + " Grubu\nKazanç Tanımlamalarını Silmek İstiyormusunuz ?")) return false;
  return AnahtarlaSil<Kaztan>(ortam, ad, SilinemediMetni);
}

bool IndirimleriKaydet(TanimOrtami ortam, const std::array<Indir, 3>& satirlar) {
  auto numarali = satirlar;
  for (std::size_t i = 0; i < numarali.size(); ++i) numarali[i].no = std::uint8_t(i + 1);
  return AnahtarlaYaz(ortam, indir::no, numarali, "İndirim Kayıtları Kaydedilemedi");
}

bool YardimlariKaydet(TanimOrtami ortam, const YardimTanimlari& yardimlar) {
  std::array<Muaf, YardimSayisi> satirlar;
  for (std::size_t i = 0; i < satirlar.size(); ++i) {
    const YardimTanimi& y = yardimlar[i];
    satirlar[i].no = std::uint8_t(i + 1);
    satirlar[i].adi = y.adi;
    satirlar[i].indtip = y.indtip;
    satirlar[i].sabit = y.sabit;
    satirlar[i].oran = y.oran;
  }
  return AnahtarlaYaz(ortam, muaf::no, satirlar, "Yardım Kayıtları Kaydedilemedi");
}

bool SendikaKaydet(TanimOrtami ortam, const Sendika& sendika) {
  Sendika satir = sendika;
  satir.kod = Kirp(sendika.kod);
  if (satir.kod.empty()) {
    ortam.bildirim.Bilgi("Sendika No boş bırakılamaz");
    return false;
  }
  return AnahtarlaYaz(ortam, sendika::kod, std::array{satir}, "Sendika Bilgileri Güncellenemedi..");
}

bool SendikaSil(TanimOrtami ortam, std::string_view kod) {
  if (!ortam.bildirim.Soru("Kaydı Silmek İstiyormusunuz ?")) return false;
  return AnahtarlaSil<Sendika>(ortam, std::string(Kirp(kod)), SilinemediMetni);
}

}  // namespace belvani
