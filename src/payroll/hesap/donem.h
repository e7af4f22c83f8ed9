// The pay period and the days a person belongs to it.
//
// A period is the calendar month, or, in a company whose period straddles the month (`tersfirma`), the 15th of the
// month to the 14th of the next. Every whole month counts 30 days: a 31-day month, and February when it is whole.
// Example: hired on 02.01 -> 30 days; hired on 02.02 of a common year -> 27; hired on 01.02 -> 30.
#pragma once

#include <array>
#include <string_view>

#include "core/tarih.h"

namespace belvani {

enum class DonemTuru { Takvim, Ters };  // `firma.tersfirma` false and true

struct BordroDonemi {
  int yil = 0;
  int ay = 0;  // 1 to 12
  DonemTuru tur = DonemTuru::Takvim;

  Tarih Bas() const;
  Tarih Son() const;  // included
};

enum class DonemUygunlugu { Uygun, DonemDisi, GirisTarihiHatali };

struct CalismaGunu {
  int CalismaGun = 0;  // days the person may work in the period, at most 30; negative: left before hired
  DonemUygunlugu uygunluk = DonemUygunlugu::DonemDisi;
};

// `ciktar` Null: still employed.
CalismaGunu GunSayisiBul(const BordroDonemi& donem, Tarih girtar, Tarih ciktar);

// Length of the month for the missing-day check: 28 to 31, or CalismaGun when that is not 30.
int AyGunuBul(int ay, int yil, int CalismaGun);

// Reasons for missing days, in list order; the code is the first two digits.
inline constexpr std::array<std::string_view, 20> EksikSebepleri{
    "00-Tam Gün Çalışıyor",
    "01-İstirahat",
    "03-Disiplin Cezası",
    "04-Gözaltına Alınma",
    "05-Tutukluluk",
    "06-Kısmi İstihdam",
    "07-Puantaj Kayıtları",
    "08-Grev",
    "09-Lokavt",
    "10-Genel Hayatı Etkileyen Olaylar",
    "11-Doğal Afet",
    "12-Birden Fazla",
    "13-Diğer",
    "15-Devamsızlık",
    "16-Fesih Tarihinde Çalışmamış",
    "17-Ev Hizmetlerinde 30 G.A.Ç.",
    "18-Kısa Çalışma Ödeneği",
    "19-Ücretsiz Doğum İzni",
    "20-Ücretsiz Yol İzni",
    "21-Diğer Ücretsiz İzin",
};

// Position in the list of the reason with this stored code; -1 when there is none.
int EksikSebepSec(int kod);

// What the entry of a person says about days not worked, and whether it is complete.
struct EksikGun {
  int sebep = 0;  // code
  int ucretsizizin = 0;
  bool tamam = false;
};

// All days worked: reason 0 and no unpaid days, complete. Otherwise a reason must be given, and the unpaid days must
// fill the month (AyGunu); then it is complete.
EksikGun EksikGunDenetle(int SskGun, int CalismaGun, int AyGunu, int sebep, int ucretsizizin);

// The unpaid days that choosing a reason fills in: AyGunu less SskGun; 0 with 30 premium days.
int UcretsizIzinOnerisi(int SskGun, int AyGunu);

}  // namespace belvani
