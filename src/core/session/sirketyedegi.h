// Backups of a company: one compressed file with its store, as it stands at one moment, and all its other files. They
// are made while others work, written aside, brought to the disk, read back whole and only then given their name.
//
//   .yedek/DENEME/2026-11-22-061011-gunluk.zip    below the data path, or a file that the user has chosen
//
// Of a company on a server they lie on the computer that made them (VeriYolu::Yedekler), and there are no daily ones:
// those of ten clerks would be ten copies of one day, and the server's administrator has better means.
//
// The program makes one at leaving when something has changed, and before it upgrades, deletes or replaces a company;
// of those it keeps what SuresiDolanlar leaves.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/bildirim.h"
#include "core/store/motor.h"
#include "core/veriyolu.h"
#include "core/yedek/yedekadi.h"

namespace belvani {

struct YedekIstegi {
  YedekTuru tur = YedekTuru::Elle;
  std::string hedef = {};  // a file, or a directory in which it gets a name; none: among the company's backups
  Motor* depo = nullptr;   // the company's store where its caller has it open alone
};

struct AlinanYedek {
  std::string yol;
  std::uint64_t boy = 0;
  Kusurlar uyarilar = {};  // it was made, but something is not in it or not sound
};

// Backs up the company in the directory `ad`. A chosen file that is there is replaced by a whole new one. A store that
// is damaged is packed as it lies, and told. Throws Vazgecilmis when `ilerleme` stops it; then there is no new file.
Sonuc<AlinanYedek> YedekAl(const VeriYolu& veri, const std::string& ad, const YedekIstegi& istek = {},
                           Ilerleme* ilerleme = nullptr);

// The day's backup, in the place of an earlier one of that day; nothing when the company is as the last backup has it,
// and on a server.
Sonuc<std::optional<AlinanYedek>> GunlukYedekAl(const VeriYolu& veri, const std::string& ad,
                                                Ilerleme* ilerleme = nullptr);

struct YedekSatiri {
  YedekAdi ad;
  std::string yol;
  std::uint64_t boy = 0;
};

// The company's backups, the newest first. It may be gone itself.
std::vector<YedekSatiri> SirketYedekleri(const VeriYolu& veri, const std::string& ad);

// The directory that a text means, of a company or of one that has only backups left.
Sonuc<std::string> YedekliSirketBul(const VeriYolu& veri, std::string_view metin);

// When anything in the company was changed last, "22.11.2026 06:10"; "" when it has no files.
std::string SonDegisim(const VeriYolu& sirket);

}  // namespace belvani
