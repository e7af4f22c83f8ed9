// Depo: the open store of a company with one cursor for each of its fifteen tables.
//
// The cursors are shared by all screens of a session: a screen that moves `sicil` moves it for every other one.
#pragma once

#include <string>

#include "core/sonuc.h"
#include "core/store/imlec.h"
#include "core/store/veritabani.h"

namespace belvani {

enum class KapatmaKapsami { YalnizImlecler, VeritabaniDa };

struct Depo {
  Veritabani db;
  Imlec peruser, firma, sicil, foto, kimlik, brd, dvr, esco, muaf, arac, indir, kaztan, entpar, sendika, cari;

  // Makes the store file `yol` and its tables; `kaztan` and `entpar` come with the first opening. A failure leaves no
  // file behind.
  Durum VeritabaniYarat(const std::string& yol);

  // Closes everything and removes the store file `yol`.
  void VeritabaniKaldir(const std::string& yol);

  // Makes one table of the schema by its name, with its fields and indexes.
  Durum TabloYarat(std::string_view tablo);

  // Opens the store and all cursors. What an older build lacks grows by itself: the fields `meslekkod`, `rapcalismadi`
  // (`brdkanun` in a store of version 2003.7), and the tables from `dvr` on. A lost peruser, firma, sicil, foto, kimlik
  // or brd is a failure in the words of the table, with the engine's below.
  Durum VeritabaniAc(const std::string& yol);

  // `versiyon` of the `firma` record; 1 where none can be read, as in a store of the oldest versions.
  Tek Versiyon();

  void TablolariKapat(KapatmaKapsami kapsam);

  // Puts the picture file into the person's `foto` record in place of what is there. False: unreadable or unsaved.
  bool FotoYaz(const std::string& kod, const std::string& dosya);
  // Writes the person's picture to `hedef`; false when there is none, and `hedef` is then emptied all the same, so that
  // it never shows another person.
  bool FotoOku(const std::string& kod, const std::string& hedef);
};

}  // namespace belvani
