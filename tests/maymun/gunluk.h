// The journal of a play: what was done last, where, and what was found wrong. It lies in memory that the playing
// process shares with the one that watches it, so it outlives a crash and shows a hang.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <sys/mman.h>

namespace belvani::test {

class Gunluk {
 public:
  Gunluk() {
    void* yer = ::mmap(nullptr, sizeof(Icerik), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (yer == MAP_FAILED) std::abort();
    icerik_ = new (yer) Icerik;
  }
  ~Gunluk() { ::munmap(icerik_, sizeof(Icerik)); }
  Gunluk(const Gunluk&) = delete;
  Gunluk& operator=(const Gunluk&) = delete;

  // The next line; from now on until the next one the program is at it.
  void Yaz(std::string_view metin) {
    Koy(icerik_->satirlar[icerik_->satir % Satir], metin);
    ++icerik_->satir;
    Ilerledi();
  }
  // The program is not hanging.
  void Ilerledi() { ++icerik_->nabiz; }
  // One more of what the play counts.
  void Say() { ++icerik_->sayilan; }
  // The first fault stays.
  void KusurYaz(std::string_view metin) {
    if (icerik_->kusur[0] == '\0') Koy(icerik_->kusur, metin);
  }

  unsigned Nabiz() const { return icerik_->nabiz; }
  std::string Kusur() const { return icerik_->kusur; }
  // The last lines, numbered from the beginning of the play.
  std::string SonSatirlar() const {
    std::string metin;
    const unsigned son = icerik_->satir;
    for (unsigned no = son - std::min(son, Satir); no < son; ++no)
      metin += "  " + std::to_string(no) + " " + icerik_->satirlar[no % Satir] + "\n";
    return metin;
  }
  unsigned Sayilan() const { return icerik_->sayilan; }

 private:
  static constexpr unsigned Satir = 60;
  struct Icerik {
    std::atomic<unsigned> nabiz{0};
    std::atomic<unsigned> satir{0};
    std::atomic<unsigned> sayilan{0};
    char satirlar[Satir][200]{};
    char kusur[2000]{};
  };

  template <std::size_t N>
  static void Koy(char (&hedef)[N], std::string_view metin) {
    const std::size_t boy = std::min(metin.size(), N - 1);
    std::memcpy(hedef, metin.data(), boy);
    hedef[boy] = '\0';
  }

  Icerik* icerik_;
};

}  // namespace belvani::test
