// The approved record of a paper: a file below tests/altin/kayit. A paper that says something else fails its test with
// the lines that differ; with BELVANI_ALTIN=yaz the file is written anew instead, and its diff is read.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include "bol.h"
#include "core/dosya.h"
#include "core/turkce.h"
#include "gecici.h"

namespace belvani::test {

// The directory of papers that only a screen makes; their tests are those of its room.
constexpr const char* EkranKayitlari = "ekran";

inline std::string KayitYolu(const std::string& ad) {
  return KaynakYolu("tests/altin/kayit/" + ad);
}

inline bool KayitYazilsin() {
  const char* deger = std::getenv("BELVANI_ALTIN");
  return deger != nullptr && std::string_view(deger) == "yaz";
}

// From the first line that differs to the last, with what stands before; "-" is the record, "+" the paper.
class KayitFarki {
 public:
  KayitFarki(const std::string& kayit, const std::string& kagit) : eski_(Satirlar(kayit)), yeni_(Satirlar(kagit)) {
    const std::size_t kisa = std::min(eski_.size(), yeni_.size());
    while (bas_ < kisa && eski_[bas_] == yeni_[bas_]) ++bas_;
    while (son_ < kisa - bas_ && eski_[eski_.size() - 1 - son_] == yeni_[yeni_.size() - 1 - son_]) ++son_;
  }

  std::string Metin() {
    metin_ = "line " + std::to_string(bas_ + 1) + ":\n";
    for (std::size_t i = bas_ - std::min(bas_, Baglam); i < bas_; ++i) Satir("  ", eski_[i]);
    eski_.size() == yeni_.size() ? SatirSatir() : OncekiSonraki();
    return metin_;
  }

 private:
  static constexpr std::size_t Baglam = 4;
  static constexpr std::size_t EnCok = 12;

  static std::vector<std::string> Satirlar(const std::string& metin) {
    return Bol(GecerliUtf8(metin) ? metin : KodSayfasindan(metin, KodSayfasi::Iso8859_9), "\n");
  }

  void Satir(const char* isaret, const std::string& satir) { metin_ += isaret + satir + "\n"; }

  void SatirSatir() {
    std::size_t sayi = 0;
    for (std::size_t i = bas_; i < eski_.size() - son_; ++i) {
      if (eski_[i] == yeni_[i] || ++sayi > EnCok) continue;
      Satir("- ", eski_[i]);
      Satir("+ ", yeni_[i]);
    }
    metin_ += std::to_string(sayi) + " lines differ\n";
  }

  void OncekiSonraki() {
    Parca("- ", eski_);
    Parca("+ ", yeni_);
    metin_ += std::to_string(eski_.size()) + " lines before, " + std::to_string(yeni_.size()) + " now\n";
  }

  void Parca(const char* isaret, const std::vector<std::string>& satirlar) {
    const std::size_t son = satirlar.size() - son_;
    for (std::size_t i = bas_; i < std::min(son, bas_ + EnCok); ++i) Satir(isaret, satirlar[i]);
  }

  std::vector<std::string> eski_, yeni_;
  std::size_t bas_ = 0;  // equal lines at the front, and at the end
  std::size_t son_ = 0;
  std::string metin_;
};

inline testing::AssertionResult KayittakiGibi(const std::string& ad, const std::string& kagit) {
  const std::string yol = KayitYolu(ad);
  if (KayitYazilsin()) {
    std::filesystem::create_directories(std::filesystem::path(yol).parent_path());
    const Durum yazildi = DosyaYaz(yol, kagit);
    std::filesystem::permissions(yol, std::filesystem::perms(0644));
    return yazildi ? testing::AssertionSuccess() : testing::AssertionFailure() << yazildi.KusurMetni();
  }
  const auto kayit = DosyaOku(yol);
  if (!kayit) return testing::AssertionFailure() << ad << " has no record; make altin writes it";
  if (*kayit == kagit) return testing::AssertionSuccess();
  return testing::AssertionFailure() << ad << " is not as it was approved (make altin approves it), "
                                     << KayitFarki(*kayit, kagit).Metin();
}

}  // namespace belvani::test
