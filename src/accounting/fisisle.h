// Posting a voucher into the accounting store: head, lines and the accounts' monthly totals, all of it or nothing.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "accounting/fis.h"
#include "accounting/kardestablolar.h"
#include "core/sonuc.h"
#include "core/store/motor.h"
#include "core/tarih.h"

namespace belvani {

inline constexpr const char* IslenecekHesapYok = "Entegre Edilecek Hesap Yok...";
inline constexpr const char* HataliTarih = "Hatalı Tarih";

// The accounting store, to post into it.
Sonuc<std::shared_ptr<Motor>> MuhasebeyiAc(const std::string& dizin);

// The last day of the month.
Tarih FisTarihi(int yil, int ay);

// The highest voucher number plus one. Throws MotorHatasi; a fault when there is no number left.
Sonuc<std::int32_t> SiradakiFisNo(Motor& muhasebe);

// The vouchers in the books that bear this text. Throws MotorHatasi.
std::vector<std::int32_t> AyniFisler(Motor& muhasebe, const std::string& ack);
// Asked before a month is posted that the books hold already; "": they do not.
std::string AyniFisSorusu(const std::vector<std::int32_t>& fisler, const std::string& ack);

struct FisIstegi {
  Tarih tarih;
  std::optional<std::int32_t> fisno = {};  // none: the next one, whatever others post at the same moment
  // Vouchers of the same text that the user has been asked about; another one refuses the posting. None: he wants it
  // posted whatever the books hold.
  std::optional<std::vector<std::int32_t>> bilinenler = {};
};

// What keeps the voucher from being posted whatever the books are; asked again by the posting itself.
Durum FisDenetle(const Fis& fis, Tarih tarih);

// Gives the voucher's number. After a fault the store is as it was.
Sonuc<std::int32_t> FisIsle(Motor& muhasebe, const Fis& fis, const FisIstegi& istek);

// Eight bytes that tell a line: day, month, hour, minute and second, each plus one, and three random ones from 1 to
// 254. `rastgele(n)` gives a number from 0 to n - 1.
Baytlar ReferansYap(std::int64_t an, const std::function<int(int)>& rastgele);

}  // namespace belvani
