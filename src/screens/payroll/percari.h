// percari ("Personel Cari"): the account of one person, with the balance after each movement.
#pragma once

#include "core/tables/cari.h"
#include "screens/personnel/kisisatirlari.h"

namespace belvani {

class percari : public KisiSatirlari<Cari> {
 public:
  explicit percari(EkranBaglami& baglam);

 protected:
  std::vector<Cari> SatirlariOku(const std::string& kod) override;
  Yazim<Cari> Yaz(const Okunan<Cari>& satir) override;
  Sonuc<Silme> Sil(const Cari& satir) override;
  Cari YeniKayit() const override;
  void SatirlarGeliyor(const std::vector<Cari>& satirlar) override;
  void SatirlarDegisti() override;
  DegerDili Dil() const override;

 private:
  static std::vector<SatirKolonu<Cari>> Kolonlar(const percari& ekran, int paraonda);
  std::string BakiyeMetni(std::size_t sira) const;
  bool IslemiDenetle(const QString& kolon, QString& metin);

  std::vector<std::optional<Tutar>> bakiyeler_;  // of the rows as they were read
};

}  // namespace belvani
