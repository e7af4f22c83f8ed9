// The stores of the sibling programs: accounting (`belmuh.dat`) and business ledger (`belisl.dat`), each in a directory
// of its own. They are opened beside the company's store for one piece of work, and closed by it.
//
// A store whose tables lack a column that we write, or keep it in another form, is not opened: half a voucher in books
// of another shape would be worse than none.
#pragma once

#include <memory>
#include <string>

#include "core/sonuc.h"
#include "core/store/motor.h"

namespace belvani {

enum class KardesTuru { Muhasebe, Isletme };

enum class KardesErisimi {
  Yazilir,
  YalnizBakis  // whatever the file is, nothing changes in it; one that cannot be written is read all the same
};

inline constexpr const char* MuhasebeAcilamadi = "Muhasebe Dosyaları Açılamıyor..";

// "/srv/muhasebe/2009/belmuh.dat"; a missing separator at the end of the directory is put there.
std::string KardesDosyasi(KardesTuru tur, const std::string& dizin);

// The fault begins with the told message ("Muhasebe Şirketi Bulunamadı.." where the directory holds no store); the
// reason stands on the next line.
Sonuc<std::shared_ptr<Motor>> KardesAc(KardesTuru tur, const std::string& dizin,
                                       KardesErisimi erisim = KardesErisimi::Yazilir);

// Makes the store in the directory, which is made too: all tables, the accounting store with the shipped chart, the
// ledger with two groups. It appears whole or not at all; one that is there stays.
Durum KardesYarat(KardesTuru tur, const std::string& dizin);

}  // namespace belvani
