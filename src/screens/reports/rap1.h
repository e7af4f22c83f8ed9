// rap1 ("Özlük Bilgi Raporu"): designs reports over cards and identities.
#pragma once

#include "reports/raporalani.h"
#include "screens/reports/raporekrani.h"

namespace belvani {

class rap1 : public RaporEkrani<OzlukKolonu> {
 public:
  explicit rap1(EkranBaglami& baglam);

 private:
  std::vector<std::string> Raporlar() const override;
  Sonuc<OzlukKolonlari> Al(const std::string& ad) const override;
  Durum Yaz(const std::string& ad, const OzlukKolonlari& kolonlar) const override;
  std::string_view Uzanti() const override { return OzlukUzantisi; }
  std::string IlkAlan() const override { return OzlukAlanlari().front().dosyadaki; }
  std::size_t EnCokKolon() const override { return EnCokOzlukKolonu; }
  OzlukKolonu Baslayan(const OzlukKolonu& secilen) const override;
  std::optional<Rapor> RaporYap(const RaporBicimi& bicim, bool onizleme, Ilerleme* ilerleme) override;
};

}  // namespace belvani
