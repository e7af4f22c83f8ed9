#include "accounting/fisbelgesi.h"

#include <optional>

#include "documents/listebelgesi.h"
#include "printing/kolonlar.h"

namespace belvani {
namespace {

using enum KolonNiteligi;

constexpr int TutarEni = 16;

struct BelgeSatiri {
  const FisSatiri& satir;
  std::string hesapAdi;

  std::optional<Tutar> Tarafta(std::uint8_t ba) const {
    return satir.ba == ba ? std::optional(satir.tutar) : std::nullopt;
  }
};

const Kolonlar<BelgeSatiri> FisKolonlari{
    {"Hesap Kodu", 15, [](auto& s) { return s.satir.kod; }},
    {"Hesap Adı", 40, [](auto& s) { return s.hesapAdi; }},
    {"Açıklama", 29, [](auto& s) { return s.satir.ack; }},
    {"Borç", TutarEni, [](auto& s) { return s.Tarafta(BorcTarafi); }, Toplanir},
    {"Alacak", TutarEni, [](auto& s) { return s.Tarafta(AlacakTarafi); }, Toplanir},
};

const Kolonlar<FisSatiri> VeriKolonlari{
    {"kod", 15, [](auto& s) { return s.kod; }},
    {"ack", 29, [](auto& s) { return s.ack; }},
    {"ba", 2, [](auto& s) { return std::string(TarafHarfi(s.ba)); }},
    {"tutar", TutarEni, [](auto& s) { return s.tutar; }},
};

Rapor FisRaporu(const Fis& fis, const FisBasligi& baslik, const HesapPlani& plan) {
  std::vector<BelgeSatiri> satirlar;
  for (const FisSatiri& satir : fis.satirlar) satirlar.push_back({satir, plan.Adi(satir.kod)});
  Rapor rapor = RaporYap(FisKolonlari, satirlar, baslik.paraonda);
  rapor.baslik = "MAHSUP FİŞİ";
  rapor.ekranBasligi = "Mahsup Fişi";
  rapor.toplamEtiketi = "TOPLAM";
  rapor.ustSatirlar = {{.sol = baslik.unvan, .sag = "Fiş Tarihi : " + baslik.tarih.Metin(), .sirket = true},
                       {.sol = fis.ack + (fis.donem.grup == ButunGruplar ? "" : ", " + fis.donem.grup + " grubu"),
                        .sag = baslik.fisno.empty() ? "" : "Fiş No : " + baslik.fisno}};
  if (fis.Bakiye() != Tutar()) rapor.sonBlok = {{"Bakiye : ", fis.Bakiye()}};
  return rapor;
}

Rapor FisVerisi(const Fis& fis, int paraonda) {
  Rapor rapor = RaporYap(VeriKolonlari, fis.satirlar, paraonda);
  rapor.baslik = "MAHSUP FİŞİ";
  rapor.ekranBasligi = "Mahsup Fişi";
  rapor.sonBlok = {{"borc", fis.borc}, {"alacak", fis.alacak}, {"bakiye", fis.Bakiye()}};
  return rapor;
}

class FisKagidi final : public RaporBelgesi {
 public:
  FisKagidi(Rapor kagit, Rapor veri, const YzcAyarlari& ayar, const std::string& unvan)
      : RaporBelgesi(std::move(kagit), ayar, {}, {}, unvan), veri_(std::make_shared<const Rapor>(std::move(veri))) {}

  std::shared_ptr<const Rapor> Veri() const override { return veri_; }

 private:
  std::shared_ptr<const Rapor> veri_;
};

}  // namespace

std::unique_ptr<Belge> FisBelgesi(const Fis& fis, const FisBasligi& baslik, const HesapPlani& plan) {
  Rapor kagit = FisRaporu(fis, baslik, plan);
  const YzcAyarlari ayar = BaskiAyari(kagit.baslik, KagitYonu::Dikey);
  auto belge = std::make_unique<FisKagidi>(std::move(kagit), FisVerisi(fis, baslik.paraonda), ayar, baslik.unvan);
  const std::string ay = std::to_string(fis.donem.ay);
  belge->Donem(std::to_string(fis.donem.yil) + (ay.size() == 1 ? "-0" : "-") + ay);
  return belge;
}

}  // namespace belvani
