// YarimDizin: a directory that comes into being whole or not at all, over a kill and a power cut too. It is made under
// a name that begins with a point, filled, and given its name in one step when all is in it; what has not got its name
// goes with the object. One that a killed program has left stays below its point, where no list of companies sees it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/sonuc.h"
#include "core/veriyolu.h"

namespace belvani {

class YarimDizin {
 public:
  // Below `ust`, which is made where there is none.
  static Sonuc<YarimDizin> Ac(const std::string& ust, const std::string& ad, YarimTuru tur = YarimTuru::Kurulan);
  YarimDizin(YarimDizin&& y) noexcept;
  YarimDizin& operator=(YarimDizin&&) = delete;
  ~YarimDizin();

  // Ends in a separator.
  std::string Yol() const { return ust_ + yarim_ + "/"; }

  // Gives it its name. What stands there already, a file or an empty directory too, is never replaced.
  Durum Adlandir();
  // Takes the place of the directory that bears its name; that one is then the half one, and goes with the object.
  // Where the file system cannot exchange two names, a kill in between is mended by YarimDegisimleriBitir.
  Durum YerineGec();

 private:
  YarimDizin(std::string ust, std::string ad, std::string yarim);

  std::string ust_, ad_, yarim_;  // `yarim_` is empty once the name is given
  int kilit_;                     // tells others that someone is at it
};

// Names of the directories below `ust` that were never finished and that nobody is at.
std::vector<std::string> YarimDizinler(const std::string& ust);
bool YarimDizinAdi(std::string_view ad);
bool YarimDizinAdi(std::string_view ad, std::string_view kimin);  // one that was to bear the name `kimin`

// Makes a finished directory, which holds files alone, a half one again, whole and in one step, and gives its new name:
// no list of companies sees it any more, and what may go wrong while it is removed leaves no half company.
Sonuc<std::string> YarimDizineCevir(const std::string& ust, const std::string& ad);

// Removes such a directory with all in it; refused while someone is at it.
Durum YarimDiziniSil(const std::string& ust, const std::string& ad);

// At a program's start: a directory whose place was about to be taken when a program was killed gets its name back, and
// what such programs have left goes. Those that someone is at stay.
void YarimDegisimleriBitir(const std::string& ust);

// A new name, and one that is gone, lasts only once its directory is on the disk.
void DiziniDiskeIndir(const std::string& dizin);

}  // namespace belvani
