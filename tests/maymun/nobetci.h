// Watches a play, which runs in a process of its own: it ends well, finds a fault, crashes, or hangs.
#pragma once

#include <chrono>
#include <ctime>
#include <optional>
#include <string>
#include <thread>

#include "ekran/uygulama.h"
#include "maymun/gunluk.h"
#include "surec.h"

namespace belvani::test {

// No key keeps the program longer: by its own clock, which stands still while others have the processor; a program that
// waits for something that never comes is told by the clock on the wall.
inline constexpr double EnUzunTusIslem = 20, EnUzunTusDuvar = 60;  // s; the sanitizers slow a key down several times

class Nobetci {
 public:
  // Empty: it went well. Otherwise what went wrong, and the last moves before it.
  std::string Izle(const std::function<void(Gunluk&)>& oyun) {
    Surec surec([&] {
      int sayi = 1;
      char ad[] = "maymun", *degerler[] = {ad, nullptr};
      const EkranUygulamasi uygulama(sayi, degerler);
      oyun(gunluk_);
      return 0;
    });
    const auto sonuc = Bekle(surec);
    std::string kusur = gunluk_.Kusur();
    if (!sonuc) kusur = "it hangs";
    if (kusur.empty() && *sonuc != 0) kusur = "it crashes";
    return kusur.empty() ? kusur : kusur + "; the last moves:\n" + gunluk_.SonSatirlar();
  }
  const Gunluk& Kayit() const { return gunluk_; }

 private:
  // Nothing: it had to be killed.
  std::optional<int> Bekle(Surec& surec) {
    using Saat = std::chrono::steady_clock;
    unsigned nabiz = gunluk_.Nabiz();
    auto duvar = Saat::now();
    double islem = surec.IslemSaniyesi();
    while (true) {
      if (const auto sonuc = surec.BittiyseSonuc()) return sonuc;
      std::this_thread::sleep_for(std::chrono::milliseconds(20));
      if (const unsigned simdi = gunluk_.Nabiz(); simdi != nabiz) {
        nabiz = simdi;
        duvar = Saat::now();
        islem = surec.IslemSaniyesi();
      }
      const bool asildi = surec.IslemSaniyesi() - islem > EnUzunTusIslem ||
                          Saat::now() - duvar > std::chrono::duration<double>(EnUzunTusDuvar);
      if (!asildi) continue;
      surec.Oldur();
      return std::nullopt;
    }
  }

  Gunluk gunluk_;
};

}  // namespace belvani::test
