// What a command found wrong in what it was given. A file of a hundred thousand people may be wrong in every row: the
// screen shows the first hundred and says how many there are, `--sorunlar DOSYA` has them all.
#pragma once

#include <string>
#include <vector>

#include "cli/sirketsecimi.h"

namespace belvani::cli {

class SorunListesi {
 public:
  void SecenekEkle(CLI::App& komut);  // --sorunlar
  const std::string& Dosya() const { return dosya_; }
  // The list of one company; of several each has its file in its folder.
  SorunListesi Sirketinki(const SirketIsi& isi) const;

  // The lines that are shown, each behind a line end; all of them go into the user's file.
  std::string Metin(const std::vector<std::string>& satirlar) const;
  // Faults end the command, under `baslik`, one line each: "satır 3, girtar: boş bırakılamaz".
  void SatirKusurlariylaBitir(const std::string& baslik, const Kusurlar& kusurlar) const;
  // Warnings, or what a mass run found, one line each.
  void Soyle(Bildirim& bildirim, const std::vector<std::string>& satirlar) const;

 private:
  std::string dosya_;
};

}  // namespace belvani::cli
