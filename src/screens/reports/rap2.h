// rap2 ("Bordro Raporlama"): designs reports over pay records, for a range of months and people.
#pragma once

#include "reports/raporalani.h"
#include "screens/reports/raporekrani.h"

namespace belvani {

class rap2 : public RaporEkrani<BordroKolonu> {
 public:
  explicit rap2(EkranBaglami& baglam);

 private:
  std::vector<std::string> Raporlar() const override { return BordroRaporlari(Oturumu().DataPath); }
  Sonuc<BordroKolonlari> Al(const std::string& ad) const override { return BordroRaporuAl(Oturumu().DataPath, ad); }
  Durum Yaz(const std::string& ad, const BordroKolonlari& kolonlar) const override;
  std::string_view Uzanti() const override { return BordroUzantisi; }
  std::string IlkAlan() const override { return BordroAlanlari().front().dosyadaki; }
  std::size_t EnCokKolon() const override { return EnCokBordroKolonu; }
  BordroKolonu Baslayan(const BordroKolonu& secilen) const override;
  std::optional<Rapor> RaporYap(const RaporBicimi& bicim, bool onizleme, Ilerleme* ilerleme) override;
};

}  // namespace belvani
