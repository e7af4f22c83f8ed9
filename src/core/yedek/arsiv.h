// The archive of a backup: a zip of the files of one directory, with a KunyeAdi entry first. Files go through in
// pieces; nothing of their size is held in memory. Work that `ilerleme` stops is thrown out of (core/asama.h), and
// leaves no archive that could pass for whole: it counts only once it was read back.
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "core/bildirim.h"
#include "core/sonuc.h"
#include "core/yedek/kunye.h"

struct zip;

namespace belvani {

// Packs all files of `dizin` into the new file `yol`, open to its owner alone, and has it on the disk. `kunye` is given
// its files.
Durum ArsivYaz(const std::string& yol, const std::string& dizin, YedekKunyesi& kunye, Ilerleme* ilerleme);

class YedekArsivi {
 public:
  // Refused is what no backup can be: entries that the record does not name, that stand elsewhere or twice, or that
  // have another size than it says.
  static Sonuc<YedekArsivi> Ac(const std::string& yol);

  const YedekKunyesi& Kunye() const { return kunye_; }
  std::uint64_t AcikBoy() const;  // of all files, unpacked

  // Reads everything and holds it against the digests.
  Durum Dogrula(Ilerleme* ilerleme) const;
  // The same into new files of `dizin`, which must have room for all; what fails leaves some of them there.
  Durum Cikar(const std::string& dizin, Ilerleme* ilerleme) const;

 private:
  struct Kapat {
    void operator()(zip* arsiv) const;
  };
  using Alici = std::function<Durum(const YedekDosyasi&, std::string_view)>;
  YedekArsivi() = default;
  Durum HerDosya(Ilerleme* ilerleme, const std::function<Durum(const YedekDosyasi&)>& basla, const Alici& al,
                 const std::function<Durum(const YedekDosyasi&)>& bitir) const;

  std::unique_ptr<zip, Kapat> arsiv_;
  YedekKunyesi kunye_;
};

}  // namespace belvani
