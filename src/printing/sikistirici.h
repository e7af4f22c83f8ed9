// Sikistirici: packs a text as it is written, so that it never stands in memory as a whole. What several have packed
// may stand one behind the other in a part of a zip archive: a piece that ends `Suren` goes on with the next one.
//
//   Sikistirici s;
//   s.Ekle("<sheetData>");
//   SikisikParca parca = s.Bitir(ParcaSonu::Suren) + …;
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace belvani {

struct SikisikParca {
  std::string baytlar;  // deflated, without a frame
  std::uint32_t crc = 0;
  std::uint64_t boy = 0;  // of what was packed

  // The text of both, one behind the other.
  SikisikParca& operator+=(const SikisikParca& b);
};

enum class ParcaSonu { Suren, Son };

class Sikistirici {
 public:
  Sikistirici();
  ~Sikistirici();
  Sikistirici(const Sikistirici&) = delete;
  Sikistirici& operator=(const Sikistirici&) = delete;

  void Ekle(std::string_view metin);
  SikisikParca Bitir(ParcaSonu son);  // once

 private:
  struct Ic;
  void Pompala(std::string_view metin, int bitis);

  std::unique_ptr<Ic> ic_;
  SikisikParca parca_;
};

SikisikParca Sikistir(std::string_view metin, ParcaSonu son);

}  // namespace belvani
