// Turkish letters: case, order, equality, and the code pages that files and printers use.
//
// Texts are UTF-8 inside. Case and order are those of the Turkish alphabet whatever the computer's locale is:
// i pairs with İ and ı with I, ç follows c. Equality ignores case only: "ISPARTA" equals "ısparta", not "isparta".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace belvani {

std::string BuyukHarf(std::string_view metin);
std::string KucukHarf(std::string_view metin);

// Negative, zero or positive, as in the Turkish dictionary, case ignored. Broken UTF-8 sorts too, by its bytes.
int TurkceKarsilastir(std::string_view a, std::string_view b);
bool TurkceEsit(std::string_view a, std::string_view b);

// Names that programs give (files' keys, tables, columns): the case of A-Z alone is ignored.
bool AdEsit(std::string_view a, std::string_view b);

// Changes whenever the order does (another version of the library): stored indexes must then be rebuilt.
std::uint32_t TurkceSiraSurumu();

// Without blanks at both ends.
std::string_view Kirp(std::string_view metin);

bool GecerliUtf8(std::string_view metin);

// Letters (code points) of a text; a broken byte counts as one.
std::size_t HarfSayisi(std::string_view metin);

// At most `harf` letters from the front.
std::string_view IlkHarfler(std::string_view metin, std::size_t harf);

// Without the control characters (below blank, and DEL), which no field of the store keeps.
std::string DenetimsizMetin(std::string_view metin);

enum class KodSayfasi {
  Windows1254,  // parameter and settings files
  Dos857,       // dot-matrix printers
  Iso8859_9,    // electronic declarations
};

// A letter that the code page lacks becomes "?"; KodSayfasinaSigar tells beforehand.
std::string KodSayfasina(std::string_view utf8, KodSayfasi sayfa);
bool KodSayfasinaSigar(std::string_view utf8, KodSayfasi sayfa);
std::string KodSayfasindan(std::string_view baytlar, KodSayfasi sayfa);

}  // namespace belvani
