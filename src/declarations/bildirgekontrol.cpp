#include "declarations/bildirgekontrol.h"

#include "core/sayi.h"
#include "core/turkce.h"
#include "isyeri/isyerinumarasi.h"
#include "isyeri/numaradenetimi.h"
#include "payroll/hazirlik/hazirlik.h"

namespace belvani {
namespace {

constexpr std::size_t SicilHarfi = 21;
constexpr std::size_t UnvanHarfi = 50;
constexpr std::size_t AdresHarfi = 50;
constexpr std::size_t IsimHarfi = 18;
constexpr std::size_t SskNoHarfi = 13;
constexpr std::size_t TcNoHarfi = 11;
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
  if (!BildirgeYiliMi(yil)) return "Bordro Yılı Hatalı";
  if (isyeri.IsyeriAdres.empty()) return "Hatalı İşyeri Adresi";
  if (isyeri.IsyeriUnvan.empty()) return "Hatalı İşyeri Ünvanı";
  if (HarfSayisi(isyeri.IsyeriUnvan) > UnvanHarfi) return "İşyeri Ünvanı 50 Harften Fazla olamaz.";
  if (const int kod = BastakiSayi(isyeri.KontrolNo); kod < 1 || kod > 99)
    return "Hatalı İşyeri Kontrol Kodu..  01 ile 99 arası olmalı";
  if (HarfSayisi(isyeri.IsyeriSicil) != SicilHarfi) {
    constexpr const char* kural = "İşyeri Sicil Bilgisi 21 Karakter Olmalıdır";
    return isyeri.SicilKusuru.empty() ? kural : isyeri.SicilKusuru;
  }
  return {};
}

// What a check finds: "" for nothing.
struct Bulgu {
  std::string metin;
  std::string_view kolon;
};

Bulgu IsimKusuru(const BildirgeSatiri& satir) {
  if (Kirp(satir.adi).empty()) return {"Sigortalı İsmi Yok", "adi"};
  if (Kirp(satir.soyadi).empty()) return {"Sigortalı Soyismi Yok", "soyadi"};
  if (HarfSayisi(satir.adi) > IsimHarfi) return {"Sigortalı İsmi En Fazla 18 Harf Olmalı", "adi"};
  if (HarfSayisi(satir.soyadi) > IsimHarfi) return {"Sigortalı Soyismi En Fazla 18 Harf Olmalı", "soyadi"};
  return {};
}

// A row without earnings and without days is let through.
Bulgu KazancKusuru(const BildirgeSatiri& satir) {
  const bool kazancVar = satir.primkazanc > Tutar();
  const int gun = satir.gun.value_or(0);
  if (!kazancVar && gun <= 0) return {};
  if (!kazancVar) return {"Kazanç Hanesinde Tutar Olmalı", "primkazanc"};
  if (gun < 1 || gun > TamAyGunu) return {"Kazanç Gün 1 il 30 gün arasında olmalı", "gun"};
  return {};
}

bool TcNoGecer(const BildirgeSatiri& satir) {
  if (YabanciMi(satir.sigkol.value_or(0))) return true;
  return SayiMi(satir.tcno) && HarfSayisi(Kirp(satir.tcno)) == TcNoHarfi;
}

class SatirKontrolu {
 public:
  SatirKontrolu(Kusurlar& kusurlar, bool tumTurler) : kusurlar_(kusurlar), tumTurler_(tumTurler) {}

  void Bak(const BildirgeSatiri& satir, int sira) {
    satir_ = &satir;
    sira_ = sira;
    if (const int belgeTuru = satir.sigkol.value_or(0); belgeTuru < 1 || belgeTuru > SonBelgeTuru)
      return Ekle({Sahipli("Sigorta Kolu Bilgisi Hatalı 01 ile 41 Arası olmalıdır"), "sigkol"});
    if (!SayiMi(satir.sskno) || HarfSayisi(Kirp(satir.sskno)) > SskNoHarfi)
      return Ekle({Sahipli("SSK Sicil No Hatalı veya Yok"), "sskno"});
    if (!TcNoGecer(satir)) Ekle({Sahipli("T.C. Kimlik No 11 Rakamdan Oluşmalıdır"), "tcno"}, Derece::Uyari);
    if (Bulgu bulgu = IsimKusuru(satir); !bulgu.metin.empty()) return Ekle(std::move(bulgu));
    if (tumTurler_)
      if (const Bulgu bulgu = KazancKusuru(satir); !bulgu.metin.empty())
        return Ekle({Sahipli(bulgu.metin), bulgu.kolon});
    if (!satir.ciktar.Bos() && satir.ciksebeb.value_or(0) == 0)
      Ekle({Sahipli("İşten Çıkmış Personelin Çıkış Sebebi Yok"), "ciksebeb"});
  }

 private:
  std::string Sahipli(const std::string& metin) const { return metin + "\n" + SatirSahibi(*satir_); }
  void Ekle(Bulgu bulgu, Derece derece = Derece::Hata) {
    kusurlar_.push_back({.metin = std::move(bulgu.metin),
                         .alan = {typeid(BildirgeSatiri), bulgu.kolon},
                         .kod = satir_->kod,
                         .satir = sira_,
                         .derece = derece});
  }

  Kusurlar& kusurlar_;
  const bool tumTurler_;
  const BildirgeSatiri* satir_ = nullptr;
  int sira_ = 0;
};

}  // namespace

bool BildirgeYiliMi(int yil) {
  return yil >= IlkYil && yil <= SonYil;
}

IsyeriBilgileri IsyeriniHazirla(const Firma& firma, const std::string& araciKodu) {
  const std::string adres = firma.adr1 + " " + firma.adr2 + " " + firma.semt + " " + firma.adrilce + " " + firma.adril;
  return {
      .IsyeriSicil = Kirpik(firma.sektor) + Kirpik(firma.meslek) + Kirpik(firma.sube) + Kirpik(firma.dosya) +
                     IlKodu(firma) + Kirpik(firma.ilce),
      .KontrolNo = firma.kontrol,
      .AraciNo = araciKodu,
      .IsyeriUnvan = Kirpik(firma.unvan),
      .IsyeriAdres = std::string(IlkHarfler(Kirp(adres), AdresHarfi)),
      .IsyeriVergiNo = Kirpik(firma.verno),
      .FirmaKanun = firma.kanun,
      .SicilKusuru = NumaraKusuru(firma),
  };
}

Kusurlar BildirgeKontrol(const Bildirge& bildirge, const IsyeriBilgileri& isyeri) {
  const BildirgeSecimi& secim = bildirge.secim;
  Kusurlar kusurlar;
  if (!BordroTamamMi(secim.ay, secim.yil, 1))
    kusurlar.push_back(KuralKusuru("Bordrosu Yapılmamış Kişi veya Kişiler Var\nBordroyu Tamamlayınız.."));
  const std::string kusur = bildirge.satirlar.empty() ? "E-Bildirge İçin Hesaplatılmamış yada Giriş Yapılmamış"
                                                      : IsyeriKusuru(isyeri, secim.yil);
  if (!kusur.empty()) kusurlar.push_back({kusur});
  SatirKontrolu kontrol(kusurlar, secim.belgeTuru == 0);
  int sira = 0;
  for (const auto& satir : bildirge.satirlar) kontrol.Bak(satir, ++sira);
  return kusurlar;
}

}  // namespace belvani
