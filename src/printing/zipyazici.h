// ZipYazici: a zip archive written part after part. What is written is packed at once, so memory grows with the packed
// file and not with what goes into it. Equal parts give equal bytes.
//
//   ZipYazici zip;
//   zip.ParcaBasla("xl/workbook.xml");
//   zip.Yaz("<workbook/>");
//   std::optional<std::string> baytlar = zip.Bitir();
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace belvani {

class ZipYazici {
 public:
  ZipYazici();
  ~ZipYazici();
  ZipYazici(const ZipYazici&) = delete;
  ZipYazici& operator=(const ZipYazici&) = delete;

  void ParcaBasla(const std::string& ad);  // ends the one before
  void Yaz(std::string_view baytlar);

  // The archive, once; nothing when a part or the whole is larger than an archive of this kind can tell (4 GB).
  std::optional<std::string> Bitir();

 private:
  struct Parca {
    std::string ad;
    std::uint64_t yer = 0;  // of its head in the archive
    std::uint32_t ozet = 0;
    std::uint64_t boy = 0;
    std::uint64_t paketliBoy = 0;
  };
  struct Paketleyici;

  void ParcaBitir();

  std::unique_ptr<Paketleyici> paketleyici_;
  std::string arsiv_;
  std::vector<Parca> parcalar_;
};

}  // namespace belvani
