// Records that several users may have on their screens at once: a record with what was read of it, and what stands
// against its being written.
//
//   ilk         {ucret 1000, verda Konak}
//   simdi       {ucret 1200, verda Konak}     this user
//   stored now  {ucret 1000, verda Bornova}   another one: both changes are kept
//   stored now  {ucret 1100, verda Konak}     another one: Cakisma in `ucret`
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"

namespace belvani {

// A record as it was read (nothing: there was none) and as it shall be.
template <class Kayit>
struct Okunan {
  std::optional<Kayit> ilk{};
  Kayit simdi{};
};

enum class CakismaTuru {
  Degismis,  // columns that this user changed, another one has changed too
  Silinmis,  // the record is gone
  Eklenmis,  // the new record's key has been given meanwhile
};

template <class Kayit>
struct Cakisma {
  CakismaTuru tur = CakismaTuru::Degismis;
  std::vector<AlanTutamagi> alanlar;  // that hold different values; none when the record is gone
  Kayit onunki{};                     // the record as it is stored now
};

// Why a record was not written. The fault tells it in words with the record's key; where another user stands behind
// it, `cakisma` is what a screen needs to ask whose values shall stay.
template <class Kayit>
struct YazmaEngeli : Kusur {
  YazmaEngeli(Kusur kusur, std::optional<Cakisma<Kayit>> c = {})  // NOLINT: a fault stands in the way
      : Kusur(std::move(kusur)), cakisma(std::move(c)) {}

  std::optional<Cakisma<Kayit>> cakisma;
};

// What a write gives: the record as it stands in the store now.
template <class Kayit>
using Yazim = Sonuc<Kayit, YazmaEngeli<Kayit>>;

// "Kayıt bu arada başka bir kullanıcı tarafından değiştirilmiş: 0012 (Adı, Ücreti)".
std::string CakismaMetni(CakismaTuru tur, std::string_view anahtar, const std::vector<std::string>& etiketler);

enum class Galip { Onunki, Benimki };

// The next attempt to write `kayit`: what only one of the two has changed stays as he has it, the rest is as `galip`
// has it. A record that is gone becomes a new one.
template <class Kayit>
void Uzlastir(Okunan<Kayit>& kayit, const Cakisma<Kayit>& cakisma, Galip galip) {
  if (cakisma.tur == CakismaTuru::Silinmis) {
    kayit.ilk.reset();
    return;
  }
  const Kayit ilk = kayit.ilk.value_or(Kayit{});
  Kayit::HerKolon([&](const auto& kolon) {
    const auto uye = kolon.uye;
    if (galip == Galip::Onunki && kayit.simdi.*uye != ilk.*uye && cakisma.onunki.*uye != ilk.*uye)
      kayit.simdi.*uye = cakisma.onunki.*uye;
    if (kayit.simdi.*uye == ilk.*uye) kayit.simdi.*uye = cakisma.onunki.*uye;
  });
  kayit.ilk = cakisma.onunki;
}

}  // namespace belvani
