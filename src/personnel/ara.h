// The search of the lookup window: all people of the company in memory, narrowed with every key that is typed.
//
// Case is that of the Turkish alphabet, as in the store: "ış" finds IŞIL, not İŞCAN; "ali" finds ALİ. Marks count:
// "cag" does not find ÇAĞ. The search over all of them (Hepsi) is the lenient one: each word may stand in the code or
// in either name, and letters with and without marks are the same. What is typed is plain text, "*", "%" and "_"
// included. People who have left are listed too.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/session/oturum.h"
#include "core/tarih.h"

namespace belvani {

struct KisiSatiri {
  std::string kod;
  std::string adi;
  std::string soyadi;
  Tarih ciktar;  // Null while employed
};

enum class AramaTuru { KodBastan, KodIcinde, AdBastan, AdIcinde, Hepsi };

class KisiListesi {
 public:
  // The people in the order of their codes.
  static Sonuc<KisiListesi> Oku(Oturum& o);

  const std::vector<KisiSatiri>& Kisiler() const { return kisiler_; }

  // Positions in Kisiler() of those who are found, in its order. A name is first and family name joined; with a blank
  // between them it is found as well ("Ali V" finds Ali Veli).
  std::vector<std::size_t> Ara(AramaTuru tur, std::string_view metin) const;

 private:
  // In small letters; `ad` has a blank between the names.
  struct Anahtar {
    std::string kod, ad, bitisikAd;
    std::string hepsi;  // code and names, without marks
  };

  void Ekle(KisiSatiri kisi);

  std::vector<KisiSatiri> kisiler_;
  std::vector<Anahtar> anahtarlar_;  // of the person at the same position
};

}  // namespace belvani
