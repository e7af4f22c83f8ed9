#include "screens/reports/rap1.h"

#include "screens/reports/alansecimi.h"

namespace belvani {
namespace {

AlanSutunlari OzlukRaporuAlanlari() {
  static const auto adlar = SunulanAdlar(OzlukAlanlari());
  return {
      {{"Rapor",
        {{Uye("ad", &RaporAdi::ad, 60), "Rapor Adı", {.anahtar = true, .harf = 30, .rehber = true, .kayitDisi = true}},
         {Uye("baslik", &RaporAdi::baslik, 60), "Başlık", {.harf = 30, .kayitDisi = true}},
         {Uye("aciklama", &RaporAdi::aciklama, 80), "Açıklama", {.harf = 30, .kayitDisi = true}}}}},
      {{"Kolon",
        {AlanSecimi<OzlukKolonu>(OzlukAlanlari(), adlar),
         {Uye("baslik", &OzlukKolonu::baslik, RaporMetniHarfi), "Kolon Adı"},
         {Uye("en", &OzlukKolonu::en), "Uzunluk", {.enCok = EnGenisOzlukKolonu, .ipucu = "Max(40)"}},
         {Uye("baslangic", &OzlukKolonu::baslangic, RaporMetniHarfi),
          "Başlangıç",
          {.ipucu = "En küçük değer; boşsa sınır yok. Tarih gg.aa.yyyy"}},
         {Uye("bitis", &OzlukKolonu::bitis, RaporMetniHarfi),
          "Bitiş",
          {.ipucu = "En büyük değer; boşsa sınır yok. Tarih gg.aa.yyyy"}}}}}};
}

}  // namespace

rap1::rap1(EkranBaglami& baglam)
    : RaporEkrani(baglam, "rap1", QStringLiteral("Özlük Bilgi Raporu"),
                  {{"ack", "Kolon", 150, 'a', [](const OzlukKolonu& k) { return k.baslik; }},
                   {"dbase", "DBase", 140, 'm', [](const OzlukKolonu& k) { return k.alan; }},
                   {"uzunluk", "Uzunluk", 70, 'b', [](const OzlukKolonu& k) { return std::to_string(k.en); }},
                   {"baslangic", "Başlangıç", 110, 'm', [](const OzlukKolonu& k) { return k.baslangic; }},
                   {"bitis", "Bitiş", 110, 'm', [](const OzlukKolonu& k) { return k.bitis; }}}) {
  Ac(OzlukRaporuAlanlari());
}

std::vector<std::string> rap1::Raporlar() const {
  return OzlukRaporlari(Oturumu().DataPath);
}

Sonuc<OzlukKolonlari> rap1::Al(const std::string& ad) const {
  const int yil = Oturumu().firma.firmayil;
  return OzlukRaporuAl(Oturumu().DataPath, ad, Tarih(yil, 1, 1), Tarih(yil, 12, 31));
}

Durum rap1::Yaz(const std::string& ad, const OzlukKolonlari& kolonlar) const {
  return OzlukRaporuKaydet(Oturumu().DataPath, ad, kolonlar);
}

OzlukKolonu rap1::Baslayan(const OzlukKolonu& secilen) const {
  const RaporAlani* alan = RaporAlaniBul(OzlukAlanlari(), secilen.alan);
  if (alan == nullptr) return secilen;
  return {.alan = secilen.alan,
          .baslik = std::string(alan->baslik),
          .en = std::uint8_t(alan->TercihEni(EnGenisOzlukKolonu))};
}

std::optional<Rapor> rap1::RaporYap(const RaporBicimi& bicim, bool, Ilerleme* ilerleme) {
  return OzlukRaporu(Oturumu().depo.db.IcMotor(), Tasarim(), {}, bicim, Oturumu().firma.paraonda, ilerleme);
}

}  // namespace belvani
