// Imlec: a cursor on a table or on the rows of a query, with one current record.
//
//      BasMi <- first … current … last -> SonMu
//
// It is one face before a walk over a table (core/store/tablogezgini.h) in the order of its index (IndeksSec, KayitBul)
// or of insertion, or over the rows of a query (core/store/sorgugezgini.h), which are read-only; and a pending record
// (core/store/bekleyenkayit.h). New code reads and writes records through core/store/tablo.h.
//
// After KayitSil no record is current: AlanOku gives 1, and the moves go on from where the record was. After a failed
// KayitBul, and after a move that the engine could not make (a broken file), none is either, and both SonMu and BasMi
// hold, so that no loop runs on; IlkKayit, SonKayit, KayitBul and Konuma lead out of it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/bekleyenkayit.h"
#include "core/store/veritabani.h"

namespace belvani {

class Imlec {
 public:
  Imlec() = default;
  Imlec(const Imlec&) = delete;
  Imlec& operator=(const Imlec&) = delete;

  void RsKapat();
  bool AcikMi() const { return db_ != nullptr && db_->AcilisNo() == acilisNo_; }

  int KayitSayisi();
  bool IlkKayit();
  bool SonKayit();
  bool OncekiKayit();
  bool SonrakiKayit();
  bool Konuma(int sira);  // counted from 0; the cursor stays where it is when there is no such record
  bool SonMu() const { return Konum() == Gezgin::Konum::Sonda || Kayitsiz(); }
  bool BasMi() const { return Konum() == Gezgin::Konum::Basta || Kayitsiz(); }

  // Seeks one key value on an index of the schema, which becomes the cursor's order. Text keys ignore case.
  bool KayitBul(std::string_view indeks, const Deger& anahtar);
  bool IndeksSec(std::string_view indeks);

  // Null reads as "" for text and dates and as 0 for everything else; a read that fails gives the number 1. While a
  // record is edited or added, its new values are read.
  Deger AlanOku(std::string_view alan);
  std::string MetinOku(std::string_view alan) { return MetinDegeri(AlanOku(alan)); }
  std::int64_t TamOku(std::string_view alan) { return TamDegeri(AlanOku(alan)); }
  Tutar TutarOku(std::string_view alan) { return TutarDegeri(AlanOku(alan)); }

  void KayitDuzelt();
  void KayitEkle();
  // The value is fitted to the field (a number for money, digits for a number …). What does not fit stays pending and
  // makes KayitYaz fail until another value takes its place, so that it is not lost unseen. A column of the schema that
  // an older store lacks is passed over.
  void AlanYaz(std::string_view alan, const Deger& deger);
  bool KayitYaz();
  void KayitSil();

 private:
  friend class Veritabani;

  void TabloyaBagla(Veritabani& db, const TabloTanimi& tanim);
  void SorguyaBagla(Veritabani& db, Komut& komut, const std::vector<SonucTipi>& tipler);

  Gezgin::Konum Konum() const { return gezgin_ == nullptr ? Gezgin::Konum::Bos : gezgin_->Konumu(); }
  bool Kayitsiz() const { return Konum() == Gezgin::Konum::Bos || Konum() == Gezgin::Konum::Belirsiz; }
  bool UcaGit(Yon uc);
  bool Yuru(Yon yon);

  Veritabani* db_ = nullptr;
  std::uint64_t acilisNo_ = 0;  // of db_, when the cursor was opened
  std::unique_ptr<Gezgin> gezgin_;
  TabloGezgini* tablo_ = nullptr;  // gezgin_, when it walks over a table
  BekleyenKayit bekleyen_;
};

}  // namespace belvani
