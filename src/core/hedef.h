// HedefDosya: the file that a user has named for what he asked for, written piece by piece.
//
//   auto hedef = HedefDosya::Ac("/home/ayşe/bordro.csv");
//   hedef->Ekle(satir);
//   hedef->Bitir();   // only now is the old file gone
//
// An ordinary file is replaced by a whole new one with its mode, and its owner where that is allowed; through a link,
// the file at its end. A device, a pipe, a socket and an open descriptor (/dev/stdout) take the bytes themselves. A
// link that somebody else has laid into a directory open to all (/tmp) is not followed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>

#include "core/sonuc.h"
#include "core/tutamak.h"

namespace belvani {

class HedefDosya {
 public:
  static Sonuc<HedefDosya> Ac(const std::string& yol);
  static HedefDosya StandartCikti();
  HedefDosya(HedefDosya&& h) noexcept;
  HedefDosya& operator=(HedefDosya&&) = delete;
  // Without Bitir the old file stays as it was.
  ~HedefDosya();

  bool Terminal() const;
  Durum Ekle(std::string_view baytlar);
  Durum Bitir();

 private:
  struct Eski {
    mode_t kip;
    uid_t sahip;
    gid_t grup;
  };

  explicit HedefDosya(std::string ad) : ad_(std::move(ad)) {}
  int Baglan(const std::string& yol, mode_t kip);
  int YeniniAc(const std::string& yol, const std::optional<Eski>& eski);
  int YerineKoy();
  Kusur Hata(int kod) const;
  void Birak();

  std::string ad_;      // as the user has named it; empty for standard output
  std::string yol_;     // the file at the end of the links
  std::string gecici_;  // empty: the bytes go through
  DosyaTutamagi dosya_;
};

// In one go.
Durum HedefeYaz(const std::string& yol, std::string_view baytlar);

}  // namespace belvani
