// The walk over a table, in the order of an index or of insertion. It asks the store for the record after the one it
// stands on, so it needs no lock and sees what others have written; in a sequential run it reads ahead, and forgets
// what it has read ahead as soon as this process writes.
#pragma once

#include "core/store/gezgin.h"

namespace belvani {

class TabloGezgini final : public Gezgin {
 public:
  TabloGezgini(Motor& motor, const TabloTanimi& tanim);

  int KayitSayisi() override;
  bool UcaGit(Yon uc) override;
  bool Yuru(Yon yon) override;
  bool Konuma(int sira) override;
  const Deger& Alan(std::size_t sira) const override { return satir_.alanlar[sira]; }

  const TabloTanimi& Tanim() const { return tanim_; }
  // The walk's order from now on; true when it was another one.
  bool SiraSec(const IndeksTanimi& indeks);
  // Seeks one key value on the index that gives the order.
  bool Bul(const Deger& anahtar);

  std::int64_t Kimlik() const { return satir_.kimlik; }
  // After the current record was written or deleted.
  void YenidenOku();
  void Silindi() { konum_ = Konum::Silinmis; }

 private:
  struct Satir {
    std::int64_t kimlik = 0;
    std::vector<Deger> alanlar;
  };

  bool OnOkumadanAl(Yon yon);
  void OnOku(Yon yon);
  void OnOkumayiBirak();
  std::string SecimMetni() const;
  std::string SiraMetni(Yon yon) const;
  void SatirAl(const Komut& komut, Satir& satir) const;
  Komut& YuruKomutu(Yon yon);
  void SiraDegisti();
  void SonrakiDenetle(const Satir& once, const Satir& sonra, Yon yon) const;

  Motor& motor_;
  const TabloTanimi& tanim_;
  const IndeksTanimi* indeks_ = nullptr;  // null: order of insertion
  int indeksAlani_ = -1;                  // position of the index's field in alanlar_
  Satir satir_;

  std::vector<Satir> okunan_;  // read ahead in direction okunanYon_
  std::size_t okunanSira_ = 0;
  std::size_t okunanBoy_ = 0;
  Yon okunanYon_ = Yon::Sonraki;
  std::uint64_t okunanSurum_ = 0;
  int ardisik_ = 0;

  std::unique_ptr<Komut> bul_;
  std::unique_ptr<Komut> yuru_[2];  // on and back
};

}  // namespace belvani
