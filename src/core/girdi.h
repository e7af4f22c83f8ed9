// Typing into a field as a state machine: a key goes in, the new state or a refusal comes out. A key that is refused or
// passed over leaves everything as it was: digits, loaded value, and whether the next key starts anew.
//
// Both kinds are edited at their end. What is selected whole is typed over, and so is what stood there when the field
// was entered, until the user moves the caret. The selection is the view's own and comes with the key.
//
//   SayiGirdisi   digits, one decimal mark ("." or ","), "+" for three zeros; "1250.5" shows as "1,250.50", zero as ""
//   TarihGirdisi  digits; the dots come by themselves; "12032005" shows as "12.03.2005". A typed dot ends a day or
//   month
//                 of one digit, and a year may be typed with two: "1.3.05" is 01.03.2005, "1.3.85" is 01.03.1985.
//
// What stood in the field when it was entered can be had back (GeriAl).
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
  // Back to what stood there when the field was entered.
  virtual TusSonucu GeriAl() = 0;

  virtual void Girildi() { ilkTus_ = true; }   // the field was entered
  virtual void Gezildi() { ilkTus_ = false; }  // the caret was moved: what is there is edited
  virtual void Birakildi() {}                  // the field was left

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
  TusSonucu GeriAl() override;
  void Girildi() override;
  void Gezildi() override;
  void Birakildi() override { isaretBekler_ = false; }

  bool operator==(const SayiGirdisi&) const = default;

 private:
  struct Icerik {
    std::string ham;                // as it would be typed, without zeros in front: "", "0.", "1250.5"
    std::optional<Deger> yuklenen;  // loaded and not yet typed over
    bool operator==(const Icerik&) const = default;
  };

  bool Sigar(const std::string& ham) const;
  void HamKoy(std::string ham);

  Bicim bicim_;
  Icerik icerik_;
  Icerik girilen_;             // as the field was entered
  bool isaretBekler_ = false;  // a decimal mark began a new number; without a digit behind it nothing changes
};

// A date as people type it: day and month of one digit or two, a year of two (00 to 29 are of this century) or four
// from 1900 on; Null for anything else.
Tarih YazilanTarih(std::string_view metin);

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
  TusSonucu GeriAl() override;
  void Girildi() override;
  void Birakildi() override;

  bool operator==(const TarihGirdisi&) const = default;

 private:
  TusSonucu AyracYaz(bool bastan);

  std::string metin_;
  std::string girilen_;  // as the field was entered
  Tarih yuklenen_;       // comes back as it was, however old
};

}  // namespace belvani
