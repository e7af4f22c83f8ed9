// Of which companies a command speaks: one KOD, several, or all of the data path (--hepsi). A command is a function of
// one company; of several it is called for each of them in processes of their own (cli/topluis.h), -j at a time.
//
//   s->sirketler.SecenekEkle(*komut);
//   komut->callback([&genel, s] { s->sirketler.Calistir(genel, [&](const SirketIsi& isi) { Hazirla(genel, isi, *s); });
//   });
//
// Of several companies files go below the directory of -o, into a folder for each; what goes to the screen comes out
// in the order of the companies. A report at the end says what became of each; the status is 1 when one has failed.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/ortak.h"

namespace belvani::cli {

// One company's part of a command.
struct SirketIsi {
  std::string kod;
  bool toplu = false;  // one of several

  // There is nothing to do: of several companies this one is passed over, and the reason told. One alone goes on.
  void Atla(const std::string& neden) const;
  // The file that the user has named; of several companies that is a directory, and the file is called `ad` in the
  // company's folder there, which is made.
  std::string Dosya(const std::string& secenek, const std::string& ad) const;
};

class SirketSecimi {
 public:
  void SecenekEkle(CLI::App& komut);  // KOD, --hepsi, -j
  // An option that speaks of one company's people or files.
  void YalnizTekSirkette(CLI::Option* secenek) { tekSirketlikler_.push_back(secenek); }

  bool Toplu() const { return hepsi_ || kodlar_.size() > 1; }
  // What the command writes: the forms that the screen can take of several companies are text and JSON.
  void CiktiyiDenetle(const std::string& bicim, const std::string& dosya);
  // A directory of the user's in which every company gets a file.
  void DizinHazirla(const std::string& dizin);

  void Calistir(Genel& genel, const std::function<void(const SirketIsi&)>& is) const;

 private:
  void TekSirketlikleriDenetle() const;
  void TopluCalistir(Genel& genel, const std::function<void(const SirketIsi&)>& is) const;

  std::vector<std::string> kodlar_;
  bool hepsi_ = false;
  int surec_ = 0;  // 0: as the computer has processors
  bool json_ = false;
  std::string dizin_;
  std::vector<CLI::Option*> tekSirketlikler_;
};

}  // namespace belvani::cli
