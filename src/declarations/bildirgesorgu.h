// What the monthly declaration reads from the store. All of it throws MotorHatasi.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "core/turkce.h"
#include "declarations/bildirgehesap.h"

namespace belvani {

// The laws of all people, each once, in order.
std::vector<std::string> KisiKanunlari(Motor& motor);

// The records of one month that the next is compared with: of each person the one that was made first.
class OncekiAyKayitlari {
 public:
  // Of the month before `ay`, all in one query; January is compared with December.
  OncekiAyKayitlari(Motor& motor, int yil, int ay, Ilerleme* ilerleme = nullptr);

  // Whether the person's days, paid-leave days or employer's base (as stored, in whatever currency) differ from then;
  // also when there was no record.
  bool FarkVarmi(std::string_view kod, int gun, int ui, Tutar matrah) const;

 private:
  struct Kayit {
    int gun = 0;
    int ui = 0;
    Tutar matrah;
  };
  struct KodSirasi {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return TurkceKarsilastir(a, b) < 0; }
  };
  std::map<std::string, Kayit, KodSirasi> kayitlar_;
};

// Which records are declared.
struct BildirgeSuzgeci {
  int yil = 0;
  int ay = 0;                                       // 1 to 12
  int belgeTuru = 0;                                // 0: all
  std::optional<std::string> kanun = std::nullopt;  // none: all
};

// Calls `her` for each record, by law, status, social-security number (the shorter first, so that numbers are in their
// order) and run. People on the board-fee payroll and people whose card is gone are not among them.
// Two queries, however many people there are; the record that `her` gets holds until its next call. Throws
// Vazgecilmis when `ilerleme` stops it.
void BildirgeKayitlariOku(Motor& motor, const BildirgeSuzgeci& suzgec,
                          const std::function<void(const BildirgeKaydi&)>& her, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
