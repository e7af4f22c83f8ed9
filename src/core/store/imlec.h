// Imlec: a cursor on a table or on the rows of a query, with one current record.
//
//      BasMi <- first … current … last -> SonMu
//
// A table cursor runs in the order of its index (IndeksSec, KayitBul), or in the order of insertion. It asks the store
// for the record after the one it stands on, so it needs no lock and sees what others have written; in a sequential
// run it reads ahead, and forgets what it has read ahead as soon as its Veritabani writes. A query cursor holds all its
// rows and is read-only.
//
// After KayitSil no record is current: AlanOku gives 1, and the moves go on from where the record was. After a failed
// KayitBul, and after a move that the engine could not make (a broken file), none is either, and both SonMu and BasMi
// hold, so that no loop runs on; IlkKayit, SonKayit, KayitBul and Konuma lead out of it.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

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
  bool SonMu() const { return konum_ == Konum::Sonda || Kayitsiz(); }
  bool BasMi() const { return konum_ == Konum::Basta || Kayitsiz(); }

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

  enum class Konum { Bos, Basta, Kayitta, Sonda, Silinmis, Belirsiz };
  enum class Bekleyen { Yok, Ekleme, Duzeltme };
  enum class Yon { Ileri, Geri };

  struct Satir {
    std::int64_t kimlik = 0;
    std::vector<Deger> alanlar;
  };
  struct YeniDeger {
    Deger deger;
    std::string kusur;  // why it does not fit; "" when it does
  };
  struct AlanBilgisi {
    std::string ad;
    AlanTipi tip;
    AlanTanimi tanim;  // of the schema, or made from the type
  };

  void TabloyaBagla(Veritabani& db, const TabloTanimi& tanim);
  void SorguyaBagla(Veritabani& db, Komut& komut, const std::vector<SonucTipi>& tipler);

  int AlanSirasi(std::string_view alan) const;
  bool Kayitsiz() const { return konum_ == Konum::Bos || konum_ == Konum::Belirsiz; }
  bool UcaGit(Yon yon);
  bool Yuru(Yon yon);
  bool SorgudaYuru(Yon yon);
  bool OnOkumadanAl(Yon yon);
  std::string SecimMetni() const;
  std::string SiraMetni(Yon yon) const;
  void SatirAl(const Komut& komut, Satir& satir) const;
  Komut& YuruKomutu(Yon yon);
  void SiraDegisti();
  void SonrakiDenetle(const Satir& once, const Satir& sonra, Yon yon) const;
  void YenidenOku();
  std::string YazmaKusuru() const;
  std::string YazmaMetni() const;

  Veritabani* db_ = nullptr;
  std::uint64_t acilisNo_ = 0;            // of db_, when the cursor was opened
  const TabloTanimi* tanim_ = nullptr;    // null for a query
  const IndeksTanimi* indeks_ = nullptr;  // null: order of insertion
  int indeksAlani_ = -1;                  // position of the index's field in alanlar_
  std::vector<AlanBilgisi> alanlar_;

  Konum konum_ = Konum::Bos;
  Satir satir_;

  std::vector<Satir> okunan_;  // rows of the query, or what is read ahead in direction okunanYon_
  std::size_t okunanSira_ = 0;
  std::size_t okunanBoy_ = 0;
  Yon okunanYon_ = Yon::Ileri;
  std::uint64_t okunanSurum_ = 0;
  int ardisik_ = 0;

  std::unique_ptr<Komut> bul_;
  const IndeksTanimi* bulIndeksi_ = nullptr;
  std::unique_ptr<Komut> yuru_[2];

  Bekleyen bekleyen_ = Bekleyen::Yok;
  std::vector<std::optional<YeniDeger>> yeni_;
  std::string bilinmeyenAlan_;
};

}  // namespace belvani
