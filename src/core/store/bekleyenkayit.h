// A record that is being edited or added: its new values, before the store gets them.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/store/tablogezgini.h"

namespace belvani {

class BekleyenKayit {
 public:
  enum class Tur { Yok, Ekleme, Duzeltme };

  void Basla(Tur tur, std::size_t alanSayisi);
  void Birak() { tur_ = Tur::Yok; }
  Tur Turu() const { return tur_; }

  // Fits the value to the field. What does not fit stays, and stands against the save until another takes its place.
  void AlanKoy(std::size_t sira, const AlanTanimi& alan, const Deger& deger);
  // A field that the table never had.
  void BilinmeyenAlan(std::string_view alan) { bilinmeyenAlan_ = alan; }
  // Null: this field is left alone.
  const Deger* Alan(std::size_t sira) const;

  // Into the row of the walk's record, or as a new one. Throws MotorHatasi.
  void Yaz(Motor& motor, const TabloGezgini& kayit);

 private:
  struct YeniDeger {
    Deger deger;
    std::string kusur;  // why it does not fit; "" when it does
  };

  std::string Kusuru(const TabloGezgini& kayit) const;
  std::string YazmaMetni(Motor& motor, const TabloGezgini& kayit) const;

  Tur tur_ = Tur::Yok;
  std::vector<std::optional<YeniDeger>> yeni_;
  std::string bilinmeyenAlan_;
};

}  // namespace belvani
