// ZipDosyasi: a zip archive in memory, as office documents are. Parts that are not touched keep their stored bytes.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"
#include "printing/sikistirici.h"

namespace belvani {

class ZipDosyasi {
 public:
  // Fails on bytes that are no zip archive.
  static Sonuc<ZipDosyasi> Ac(std::string baytlar);

  const std::vector<std::string>& Adlar() const { return adlar_; }

  // A part as it is now; nothing when there is none, or it cannot be unpacked, or is larger than EnBuyukParca.
  std::optional<std::string> Oku(const std::string& ad) const;
  // How large the part is unpacked, counted up to `enCok` and a little more; nothing as with Oku.
  std::optional<std::size_t> Boyu(const std::string& ad, std::size_t enCok) const;
  // The same piece by piece, of any size; false when it could not be given to its end.
  bool Aktar(const std::string& ad, const std::function<void(std::string_view)>& al) const;

  void Degistir(const std::string& ad, std::string icerik) { degisen_[ad] = std::move(icerik); }
  // By what is packed already. Such a part is read from the finished archive only.
  void Degistir(const std::string& ad, SikisikParca icerik) { sikisik_[ad] = std::move(icerik); }
  void Sil(const std::string& ad) { degisen_[ad] = std::nullopt; }

  // The bytes as they were given.
  std::string Baytlar() && { return std::move(baytlar_); }
  // The archive with its changes. The dates of changed parts stay, so equal changes give equal bytes.
  Sonuc<std::string> Bitir() const;

  static constexpr std::size_t EnBuyukParca = 256u << 20;

 private:
  struct Arsiv;
  // Ends early when `al` has enough.
  bool Gez(const std::string& ad, const std::function<bool(std::string_view)>& al) const;
  explicit ZipDosyasi(std::string baytlar) : baytlar_(std::move(baytlar)) {}

  std::string baytlar_;
  std::vector<std::string> adlar_;
  std::map<std::string, std::optional<std::string>> degisen_;  // nothing: deleted
  std::map<std::string, SikisikParca> sikisik_;
};

}  // namespace belvani
