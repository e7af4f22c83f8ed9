#include "documents/agilistesi.h"

#include "core/sayi.h"
#include "core/store/izlenenokuma.h"
#include "core/store/satirlar.h"
#include "documents/listebelgesi.h"
#include "documents/sorgumetni.h"
#include "documents/turetilen.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

constexpr int AyKolonuEni = 10;

struct AgiSatiri {
  const AgiKisisi& kisi;
  int sira;
  Tutar toplam;
};

Kolonlar<AgiSatiri> ListeKolonlari() {
  Kolonlar<AgiSatiri> kolonlar{
      {"Sira", 4, [](auto& s) { return s.sira; }},
      {"Ücretlinin Adı Soyadı", 30, [](auto& s) { return s.kisi.adSoyad; }},
      {"AGİ Oran", 4, [](auto& s) { return s.kisi.agioran; }},
      {"İ.E.Tutar", AyKolonuEni, [](auto& s) { return s.kisi.agimatrah; }},
      {"İnd.Tutarı", AyKolonuEni, [](auto& s) { return s.toplam; }, Toplanir},
  };
  for (std::size_t ay = 0; ay < AyAdlari.size(); ++ay)
    kolonlar.Ekle({std::string(AyAdlari[ay]), AyKolonuEni, [ay](auto& s) { return s.kisi.aylar[ay]; }, Toplanir});
  return kolonlar;
}

std::vector<AgiSatiri> Satirlar(const std::vector<AgiKisisi>& kisiler) {
  std::vector<AgiSatiri> satirlar;
  for (const auto& kisi : kisiler) {
    AgiSatiri& satir = satirlar.emplace_back(AgiSatiri{kisi, int(satirlar.size()) + 1, {}});
    for (const Tutar ay : kisi.aylar) satir.toplam += ay;
  }
  return satirlar;
}

// Goes to printers only as drawn pages; other programs may have its lines.
class AgiBordrosu final : public RaporBelgesi {
 public:
  using RaporBelgesi::RaporBelgesi;
  std::string MetinYok() const override { return AgiMetinYok; }
};

}  // namespace

std::vector<AgiKisisi> AgiKisileriOku(Motor& motor, const DefterSecim& secim, Ilerleme* ilerleme) {
  SorguMetni sorgu(
      "select s.kod, s.adi, s.soyadi, b.ay, b.ogv, b.agioran, b.agimatrah from brd b join sicil s on s.kod = b.kod "
      "where b.yil = ? and b.ay <= ? and b.ay between 1 and 12",
      {std::int64_t(secim.yil), std::int64_t(secim.ay)});
  sorgu.Secim(secim);
  sorgu.Ekle(" order by s.kod, b.ay, b.no");
  const auto komut = sorgu.Hazirla(motor);
  std::vector<AgiKisisi> kisiler;
  for (IzlenenOkuma okuma(*komut, ilerleme); okuma.Adim();) {
    if (kisiler.empty() || kisiler.back().kod != komut->Metin(0)) {
      Sicil sicil;
      KolonAl(*komut, 1, sicil.adi);
      KolonAl(*komut, 2, sicil.soyadi);
      kisiler.push_back(
          {.kod = std::string(komut->Metin(0)), .adSoyad = AdSoyad(sicil), .agioran = {}, .agimatrah = {}});
    }
    AgiKisisi& kisi = kisiler.back();
    Tutar ogv;
    KolonAl(*komut, 4, ogv);
    KolonAl(*komut, 5, kisi.agioran);
    KolonAl(*komut, 6, kisi.agimatrah);
    kisi.aylar[std::size_t(komut->Tam(3) - 1)] += ogv;
  }
  return kisiler;
}

Rapor AgiListesi(const std::vector<AgiKisisi>& kisiler, const AgiBaslik& baslik) {
  Rapor rapor = RaporYap(ListeKolonlari(), Satirlar(kisiler), baslik.paraonda);
  rapor.baslik = "ASGARİ GEÇİM İNDİRİMİ BORDROSU";
  rapor.ekranBasligi = "Asgari Geçim İndirimi Bordrosu";
  rapor.toplamEtiketi = "T O P L A M";
  rapor.sayfaToplamEtiketi = "SAYFA TOPLAMI";
  rapor.ustSatirlar = {
      {.sol = baslik.unvan, .orta = std::to_string(baslik.yil) + " YILI", .sirket = true},
      {.sol = "Asgari Ücretin Yıllık Brüt Tutarı : " + TutarMetni(12 * baslik.agiTaban, rapor.paraOndaligi),
       .sag = "Shf : ",
       .sayfaNo = true,
       .sayfaSayisi = true}};
  return rapor;
}

std::unique_ptr<Belge> AgiBelgesi(const BelgeKaynagi& kaynak, const DefterSecim& secim) {
  const YasalParametreler& yasal = kaynak.yasal;
  const AgiBaslik baslik{.unvan = kaynak.firma.unvan,
                         .yil = secim.yil,
                         .agiTaban = AgiTabaniIle(yasal.agi, yasal.oranlar.AsgariUcret).AgiTaban,
                         .paraonda = kaynak.firma.paraonda};
  Rapor rapor = AgiListesi(AgiKisileriOku(kaynak.motor, secim, kaynak.ilerleme), baslik);
  YzcAyarlari ayar = BaskiAyari(rapor.baslik, KagitYonu::Yatay);
  ayar.YzcDosAcik = false;
  return std::make_unique<AgiBordrosu>(std::move(rapor), ayar);
}

}  // namespace belvani
