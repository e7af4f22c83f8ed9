#include "declarations/bildirgekontrol.h"

#include <algorithm>

#include "core/sayi.h"
#include "core/turkce.h"
#include "payroll/hazirlik/hazirlik.h"

namespace belvani {
namespace {

constexpr std::size_t SicilHarfi = 21;
constexpr std::size_t UnvanHarfi = 50;
constexpr std::size_t AdresHarfi = 50;
constexpr std::size_t IsimHarfi = 18;
constexpr std::size_t SskNoHarfi = 13;
constexpr std::size_t TcNoHarfi = 11;
constexpr std::size_t IlHarfi = 3;
constexpr int IlkYil = 2003;
constexpr int SonYil = 2050;
constexpr int SonBelgeTuru = 92;
constexpr int TamAyGunu = 30;

std::string Kirpik(const std::string& metin) {
  return std::string(Kirp(metin));
}

bool SayiMi(std::string_view metin) {
  return SayiOku(metin).has_value();
}

// Statuses of foreigners, who may have no national number.
bool YabanciMi(int belgeTuru) {
  return belgeTuru == 10 || belgeTuru == 15;
}

std::string IsyeriKusuru(const IsyeriBilgileri& isyeri, int yil) {
  if (yil < IlkYil || yil > SonYil) return "Bordro Yılı Hatalı";
  if (isyeri.IsyeriAdres.empty()) return "Hatalı İşyeri Adresi";
  if (isyeri.IsyeriUnvan.empty()) return "Hatalı İşyeri Ünvanı";
  if (HarfSayisi(isyeri.IsyeriUnvan) > UnvanHarfi) return "İşyeri Ünvanı 50 Harften Fazla olamaz.";
  if (const double kod = HucreSayisi(isyeri.KontrolNo); kod < 1 || kod > 99)
    return "Hatalı İşyeri Kontrol Kodu..  01 ile 99 arası olmalı";
  if (HarfSayisi(isyeri.IsyeriSicil) != SicilHarfi) return "İşyeri Sicil Bilgisi 21 Karakter Olmalıdır";
  return {};
}

std::string IsimKusuru(const BildirgeSatiri& satir) {
  if (Kirp(satir.adi).empty()) return "Sigortalı İsmi Yok";
  if (Kirp(satir.soyadi).empty()) return "Sigortalı Soyismi Yok";
  if (HarfSayisi(satir.adi) > IsimHarfi) return "Sigortalı İsmi En Fazla 18 Harf Olmalı";
  if (HarfSayisi(satir.soyadi) > IsimHarfi) return "Sigortalı Soyismi En Fazla 18 Harf Olmalı";
  return {};
}

// A row without earnings and without days is let through.
std::string KazancKusuru(const BildirgeSatiri& satir) {
  const Tutar kazanc = HucreTutari(satir.primkazanc);
  const double gun = HucreSayisi(satir.gun);
  if (kazanc <= Tutar() && gun <= 0) return {};
  if (kazanc <= Tutar()) return "Kazanç Hanesinde Tutar Olmalı";
  if (gun < 1 || gun > TamAyGunu) return "Kazanç Gün 1 il 30 gün arasında olmalı";
  return {};
}

bool Uyar(Bildirim& bildirim, const std::string& kusur, const BildirgeSatiri& satir) {
  bildirim.Uyari(kusur + "\n" + SatirSahibi(satir));
  return false;
}

bool TcNoGecer(const BildirgeSatiri& satir, Bildirim& bildirim) {
  if (YabanciMi(HucreTami(satir.sigkol))) return true;
  if (SayiMi(satir.tcno) && HarfSayisi(Kirp(satir.tcno)) == TcNoHarfi) return true;
  return bildirim.Soru("T.C. Kimlik No 11 Rakamdan Oluşmalıdır\n" + SatirSahibi(satir) +
                       "\nBu Haliyle Kabul Edilsin mi ?");
}

bool SatirKontrol(const BildirgeSatiri& satir, bool tumTurler, Bildirim& bildirim) {
  if (const double belgeTuru = HucreSayisi(satir.sigkol); belgeTuru < 1 || belgeTuru > SonBelgeTuru)
    return Uyar(bildirim, "Sigorta Kolu Bilgisi Hatalı 01 ile 41 Arası olmalıdır", satir);
  if (!SayiMi(satir.sskno) || HarfSayisi(Kirp(satir.sskno)) > SskNoHarfi)
    return Uyar(bildirim, "SSK Sicil No Hatalı veya Yok", satir);
  if (!TcNoGecer(satir, bildirim)) return false;
  if (const std::string kusur = IsimKusuru(satir); !kusur.empty()) {
    bildirim.Uyari(kusur);
    return false;
  }
  if (tumTurler)
    if (const std::string kusur = KazancKusuru(satir); !kusur.empty()) return Uyar(bildirim, kusur, satir);
  if (!HucreTarihi(satir.ciktar).Bos() && HucreSayisi(satir.ciksebeb) == 0)
    return Uyar(bildirim, "İşten Çıkmış Personelin Çıkış Sebebi Yok", satir);
  return true;
}

}  // namespace

IsyeriBilgileri IsyeriniHazirla(const Firma& firma, const std::string& araciKodu) {
  const std::string il = "000" + Kirpik(firma.il);
  const std::string sonHarfler = il.substr(IlkHarfler(il, HarfSayisi(il) - IlHarfi).size());
  const std::string adres = firma.adr1 + " " + firma.adr2 + " " + firma.semt + " " + firma.adrilce + " " + firma.adril;
  return {
      .IsyeriSicil = Kirpik(firma.sektor) + Kirpik(firma.meslek) + Kirpik(firma.sube) + Kirpik(firma.dosya) +
                     sonHarfler + Kirpik(firma.ilce),
      .KontrolNo = firma.kontrol,
      .AraciNo = araciKodu,
      .IsyeriUnvan = Kirpik(firma.unvan),
      .IsyeriAdres = std::string(IlkHarfler(Kirp(adres), AdresHarfi)),
      .IsyeriVergiNo = Kirpik(firma.verno),
      .FirmaKanun = firma.kanun,
  };
}

bool BildirgeKontrol(const Bildirge& bildirge, const IsyeriBilgileri& isyeri, Bildirim& bildirim) {
  const BildirgeSecimi& secim = bildirge.secim;
  if (!BordroTamamMi(secim.ay, secim.yil, 1))
    bildirim.Bilgi("Bordrosu Yapılmamış Kişi veya Kişiler Var\nBordroyu Tamamlayınız..");
  const std::string kusur = bildirge.satirlar.empty() ? "E-Bildirge İçin Hesaplatılmamış yada Giriş Yapılmamış"
                                                      : IsyeriKusuru(isyeri, secim.yil);
  if (!kusur.empty()) {
    bildirim.Uyari(kusur);
    return false;
  }
  return std::ranges::all_of(bildirge.satirlar, [&](const BildirgeSatiri& satir) {
    return SatirKontrol(satir, secim.belgeTuru == 0, bildirim);
  });
}

}  // namespace belvani
