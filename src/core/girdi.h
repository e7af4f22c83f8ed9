// Typing into a field as a state machine: a key goes in, the new state or a refusal comes out. A key that is refused or
// passed over leaves everything as it was: digits, loaded value, and whether the next key starts anew.
//
// Both kinds are edited at their end. What is selected whole is typed over, and so is what stood there when the field
// was entered, until the user moves the caret. The selection is the view's own and comes with the key.
//
//   SayiGirdisi   digits, one decimal mark ("." or ","), "+" for three zeros; "1250.5" shows as "1,250.50", zero as ""
//   TarihGirdisi  digits; the dots come by themselves; "12032005" shows as "12.03.2005"
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "core/deger.h"

namespace belvani {

enum class TusSonucu {
  Alindi,      // the state is a new one
  Gecildi,     // means nothing here; passed over in silence
  Reddedildi,  // no letter of the field, or beyond its limits
};

class Girdi {
 public:
  virtual ~Girdi() = default;

  virtual void Yukle(const Deger& deger) = 0;
  // The value; what was loaded and not typed over comes back as it was, with decimals that are not shown.
  virtual Deger Oku() const = 0;
  virtual std::string Metin() const = 0;  // as it is shown

  virtual TusSonucu Yaz(char32_t harf, bool hepsiSecili) = 0;
  virtual TusSonucu GeriSil(bool hepsiSecili) = 0;
  // A whole value, as other programs copy it; it takes the place of what was there.
  virtual TusSonucu Yapistir(std::string_view metin) = 0;
  virtual void Bosalt() = 0;

  void Girildi() { ilkTus_ = true; }   // the field was entered
  void Gezildi() { ilkTus_ = false; }  // the caret was moved: what is there is edited
  virtual void Birakildi() {}          // the field was left

  bool operator==(const Girdi&) const = default;

 protected:
  // Does the next letter begin a new value?
  bool Bastan(bool hepsiSecili) const { return ilkTus_ || hepsiSecili; }

  bool ilkTus_ = true;
};

class SayiGirdisi final : public Girdi {
 public:
  struct Bicim {
    double enCok = 0;  // largest number that can be typed; there is no sign
    int ondalik = 0;
    int grup = 3;  // digits of a thousands group; 0: none
    bool operator==(const Bicim&) const = default;
  };

  explicit SayiGirdisi(Bicim bicim) : bicim_(bicim) {}

  void Yukle(const Deger& deger) override;
  Deger Oku() const override;
  std::string Metin() const override;
  TusSonucu Yaz(char32_t harf, bool hepsiSecili) override;
  TusSonucu GeriSil(bool hepsiSecili) override;
  TusSonucu Yapistir(std::string_view metin) override;
  void Bosalt() override;

  bool operator==(const SayiGirdisi&) const = default;

 private:
  bool Sigar(const std::string& ham) const;
  void HamKoy(std::string ham);

  Bicim bicim_;
  std::string ham_;                // as it would be typed, without zeros in front: "", "0.", "1250.5"
  std::optional<Deger> yuklenen_;  // loaded and not yet typed over
};

class TarihGirdisi final : public Girdi {
 public:
  // What a field shows that was left with a text that is no date.
  static constexpr std::string_view Maske = "??.??.????";

  void Yukle(const Deger& deger) override;
  Deger Oku() const override;
  std::string Metin() const override { return metin_; }
  TusSonucu Yaz(char32_t harf, bool hepsiSecili) override;
  TusSonucu GeriSil(bool hepsiSecili) override;
  TusSonucu Yapistir(std::string_view metin) override;
  void Bosalt() override { metin_.clear(); }
  void Birakildi() override;

  bool operator==(const TarihGirdisi&) const = default;

 private:
  std::string metin_;
};

}  // namespace belvani
