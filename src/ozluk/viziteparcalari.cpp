#include "ozluk/viziteparcalari.h"

#include "core/turkce.h"
#include "isyeri/firmaadresi.h"
#include "isyeri/isyerinumarasi.h"
#include "printing/form/formparcalari.h"

namespace belvani::vizite {
namespace {

constexpr double EkEni = 26;

std::string Bitisik(const std::string& a, const std::string& b) {
  return std::string(Kirp(std::string(Kirp(a)) + " " + b));
}

}  // namespace

int Baslik(FormKurucu& f, int satir, std::string_view ek, std::string_view baslik, std::string_view altBaslik) {
  constexpr int boy = 4;
  f.Kutu(SatirYeri(KagitSolu, satir, En, boy));
  f.Baslik(SatirYeri(KagitSolu + EkEni, satir, En - 2 * EkEni, 2), baslik, 14);
  f.Baslik(SatirYeri(KagitSolu + EkEni, satir + 2, En - 2 * EkEni), altBaslik, 9);
  f.Bolum(SatirYeri(KagitSolu + En - EkEni, satir, EkEni, 2), ek, 11);
  return satir + boy;
}

int Bolum(FormKurucu& f, int satir, std::string_view metin) {
  f.Bolum(SatirYeri(KagitSolu, satir, En), metin, 7.5, MetinHizasi::Sol);
  return satir + 1;
}

int Kutular(FormKurucu& f, int satir, const std::vector<EtiketliKutu>& kutular) {
  f.EtiketliKutular({KagitSolu, satir * SatirMm}, CiftSatir * SatirMm, kutular);
  return satir + CiftSatir;
}

int Numaralar(FormKurucu& f, int satir, std::string_view tcEtiketi, std::string_view sskEtiketi,
              const ViziteFormu& form) {
  constexpr int tcHanesi = 11;
  constexpr int sskHanesi = 13;
  constexpr double tcEni = 91;
  BasamakliHucre(f, SatirYeri(KagitSolu, satir, tcEni, CiftSatir), tcEtiketi, "tcno", tcHanesi, form.tcno);
  BasamakliHucre(f, SatirYeri(KagitSolu + tcEni, satir, En - tcEni, CiftSatir), sskEtiketi, "sskno", sskHanesi,
                 form.sskno);
  return satir + CiftSatir;
}

int Isyeri(FormKurucu& f, int satir, const ViziteKagidi& kagit) {
  constexpr double etiketEni = 24;
  constexpr int numaraBoyu = 4;
  const auto adres = FirmaAdresi(kagit.firma);
  satir = Kutucuklar(f, KagitSolu, satir, {{En, "Ünvanı", etiketEni, "firma.unvan", kagit.firma.unvan}});
  satir = Kutucuklar(f, KagitSolu, satir, {{En, "Adresi", etiketEni, "firma.adr1", adres[0]}});
  satir = Kutucuklar(f, KagitSolu, satir, {{En, "", etiketEni, "firma.adr2", adres[1]}});
  f.Kutu(SatirYeri(KagitSolu, satir, En, numaraBoyu));
  f.Etiket(SatirYeri(KagitSolu + KagitPayi, satir, etiketEni, numaraBoyu), "İşyeri Sicil No");
  IsyeriNumarasi(f, KagitSolu + etiketEni + 2, satir, kagit.firma, kagit.araciKodu);
  return satir + numaraBoyu;
}

int Imza(FormKurucu& f, int satir, int boy, std::string_view gunEtiketi, std::string_view gun) {
  constexpr double imzaEni = 84;
  constexpr double imzaX = KagitSolu + En - imzaEni;
  f.Kutu(SatirYeri(KagitSolu, satir, En, boy));
  f.Etiket(SatirYeri(imzaX, satir, imzaEni), "İşverenin veya Vekilinin Adı Soyadı, Kaşesi ve İmzası",
           MetinHizasi::Orta);
  f.Cizgi({imzaX + 8, (satir + boy - 1) * SatirMm}, {imzaX + imzaEni - 8, (satir + boy - 1) * SatirMm});
  f.Etiket(SatirYeri(KagitSolu + KagitPayi, satir, TarihEtiketiEni), gunEtiketi);
  f.Alan("belgegunu", SatirYeri(KagitSolu + TarihEtiketiEni + 2 * KagitPayi, satir, 30), gun);
  return satir + boy;
}

std::string BabaAdi(const ViziteKagidi& kagit) {
  return kagit.kimlik ? kagit.kimlik->baba : "";
}

std::string DogumYeri(const ViziteKagidi& kagit) {
  return kagit.kimlik ? kagit.kimlik->dogyer : "";
}

std::string EvAdresi(const ViziteKagidi& kagit) {
  return kagit.kimlik ? Bitisik(kagit.kimlik->adr1, kagit.kimlik->adr2) : "";
}

std::string Telefon(const ViziteKagidi& kagit) {
  return kagit.kimlik ? kagit.kimlik->tel : "";
}

std::string GunMetni(int gun) {
  return gun == 0 ? "" : std::to_string(gun);
}

std::string YakinAdi(const ViziteKagidi& kagit) {
  const ViziteYakini& y = kagit.yakin;
  return kagit.tur == ViziteTuru::AltiAylik ? Bitisik(y.adi, y.soyadi) : y.adSoyad;
}

}  // namespace belvani::vizite
