// Tutar: money. A signed 64-bit count of ten-thousandths of a lira.
//
// The store, the parameter files and every calculation use this one type, so an amount never changes between them.
// Sums and differences are exact. Products and quotients with a rate go through double, exactly where a rule says so,
// and come back by Tutar(double), which rounds to four decimals, ties to even. Range: about ±922 trillion lira;
// whatever leaves it throws TutarTasmasi rather than giving a wrong amount.
//
// Example: Tutar(693.0).Sayi() * 6 / 1000 == 4.158, and Tutar(4.158).Ham() == 41580.
#pragma once

#include <cmath>
#include <compare>
#include <cstdint>
#include <stdexcept>

namespace belvani {

// An amount left the range of the type. Caught where a person's calculation or an input row is handled.
struct TutarTasmasi : std::overflow_error {
  TutarTasmasi() : std::overflow_error("Tutar sınırı aşıldı") {}
};

class Tutar {
 public:
  static constexpr std::int64_t Olcek = 10'000;
  static constexpr double Sinir = 9.2e14;  // a number of lira at or beyond it is refused

  constexpr Tutar() = default;
  explicit Tutar(double sayi) : ham_(Yuvarlanmis(sayi * double(Olcek))) {}

  // From the scaled integer of the store and of the parameter files: Hamdan(6'930'000) is 693 lira.
  static constexpr Tutar Hamdan(std::int64_t ham) {
    Tutar t;
    t.ham_ = ham;
    return t;
  }

  constexpr std::int64_t Ham() const { return ham_; }
  constexpr double Sayi() const { return double(ham_) / double(Olcek); }

  constexpr auto operator<=>(const Tutar&) const = default;

  friend constexpr Tutar operator+(Tutar a, Tutar b) {
    std::int64_t s = 0;
    if (__builtin_add_overflow(a.ham_, b.ham_, &s)) throw TutarTasmasi();
    return Hamdan(s);
  }
  friend constexpr Tutar operator-(Tutar a, Tutar b) {
    std::int64_t s = 0;
    if (__builtin_sub_overflow(a.ham_, b.ham_, &s)) throw TutarTasmasi();
    return Hamdan(s);
  }
  // By a whole number (days, pieces): exact.
  friend constexpr Tutar operator*(int adet, Tutar a) {
    std::int64_t s = 0;
    if (__builtin_mul_overflow(std::int64_t(adet), a.ham_, &s)) throw TutarTasmasi();
    return Hamdan(s);
  }
  constexpr Tutar& operator+=(Tutar b) { return *this = *this + b; }
  constexpr Tutar& operator-=(Tutar b) { return *this = *this - b; }

 private:
  // Nearest integer, ties to even (the processor's default rounding mode).
  static std::int64_t Yuvarlanmis(double olcekli) {
    if (!(std::fabs(olcekli) < Sinir * double(Olcek))) throw TutarTasmasi();
    return std::llrint(olcekli);
  }

  std::int64_t ham_ = 0;
};

}  // namespace belvani
