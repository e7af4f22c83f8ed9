// The account of a person: what he owes ("B") and what he has to get ("A"), in the order of the days, with the balance
// after each movement. A debt adds, a credit subtracts.
//
//   01.05.2009 B 100   -> 100
//   15.05.2009 A  30   ->  70
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bildirim.h"
#include "core/session/oturum.h"
#include "core/silme.h"
#include "core/store/cakisma.h"
#include "core/tables/cari.h"
#include "personnel/aktarim.h"
#include "printing/belge.h"

namespace belvani {

// Stored in `cari.islem`: the code of the letter.
enum class CariIslem : std::uint8_t { Alacak = 'A', Borc = 'B' };

inline constexpr const char* CariIslemSozu = "Borcuna ise 'B' \nAlacağına ise 'A' \n Yazınız..";

// "b" -> Borc; nothing for any other text.
std::optional<CariIslem> CariIslemOku(std::string_view metin);
// What a stored byte stands for, a small letter too; nothing for any other one.
std::optional<CariIslem> CariIslemBul(std::uint8_t islem);
std::string CariIslemMetni(std::uint8_t islem);  // "B", "A", ""

// The movements of a person in the order of day, kind and words.
std::vector<Cari> CariOku(Oturum& o, std::string_view kod);

// After each movement; nothing once a balance has left the range of amounts.
std::vector<std::optional<Tutar>> Bakiyeler(const std::vector<Cari>& hareketler);

// A movement needs a day and a kind.
Yazim<Cari> CariKaydet(Oturum& o, const Okunan<Cari>& hareket);

// Asks, and deletes the movement.
Sonuc<Silme> CariSil(Oturum& o, const Cari& hareket, Bildirim& bildirim);

// The account as a list: `tarih`, `islem`, `ack`, `tutar`, `bak`.
Sonuc<std::unique_ptr<Belge>> CariBelgesi(Oturum& o, std::string_view kod);

// Fields of `cari`, `islem` as its letter. The person must have a card. Each row is a new movement; one that stands in
// the account already is taken, and told.
Sonuc<AktarimSonucu> CariAktar(Oturum& o, const AktarilanCsv& csv, AktarimKipi kip);

}  // namespace belvani
