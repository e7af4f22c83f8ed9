// Kusur: why something did not go, as a value that names its place.
//
// The logic gives it back (Sonuc<T>, or a list of them); one place tells it and puts the cursor where it can be mended:
// Form::Bildir on the desktop, a line on standard error in a batch run. Its text is Turkish, for the user, and never
// empty.
//
//   return KuralKusuru("Giriş Tarihi Hatalı", sicil::girtar);   // a broken rule, at its field
//   return Kusur{"dosya yazılamadı: " + yol};                   // a failure without a field
#pragma once

#include <string>
#include <string_view>
#include <typeindex>
#include <typeinfo>
#include <utility>
#include <vector>

namespace belvani {

// A field by its record and column; made from a column constant (`sicil::kod`), never from a text.
struct AlanTutamagi {
  std::type_index kayit = typeid(void);
  std::string_view ad = {};

  explicit operator bool() const { return !ad.empty(); }
  friend bool operator==(const AlanTutamagi&, const AlanTutamagi&) = default;
};

enum class Derece {
  Bilgi,  // a broken rule: the user mends it and goes on
  Uyari,  // it was done, but the user should look at something
  Hata,   // it was not done
};

struct Kusur {
  std::string metin;
  AlanTutamagi alan = {};  // where it can be mended; none when it is no field
  std::string kod = {};    // of the person
  int satir = 0;           // of the list or file, from 1; 0: no row
  Derece derece = Derece::Hata;
};

using Kusurlar = std::vector<Kusur>;

// A rule that was broken at this field.
inline Kusur KuralKusuru(std::string metin, AlanTutamagi alan = {}) {
  return {.metin = std::move(metin), .alan = alan, .derece = Derece::Bilgi};
}

}  // namespace belvani
