// Gezgin: walks over records, one of them current. The base of the walk over a table and of that over a query's rows.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/store/motor.h"
#include "core/store/yon.h"

namespace belvani {

class Gezgin {
 public:
  // Belirsiz: a search found nothing, or the engine failed in a move.
  enum class Konum { Bos, Basta, Kayitta, Sonda, Silinmis, Belirsiz };

  struct AlanBilgisi {
    std::string ad;
    AlanTipi tip;
    AlanTanimi tanim;  // of the schema, or made from the type
  };

  virtual ~Gezgin() = default;

  virtual int KayitSayisi() = 0;
  // To the first or the last record, and from the current one to its neighbour; false: there is none.
  virtual bool UcaGit(Yon uc) = 0;
  virtual bool Yuru(Yon yon) = 0;
  // Counted from 0; it stays where it is when there is no such record.
  virtual bool Konuma(int sira) = 0;
  // Of the current record.
  virtual const Deger& Alan(std::size_t sira) const = 0;

  Konum Konumu() const { return konum_; }
  const std::vector<AlanBilgisi>& Alanlar() const { return alanlar_; }
  int AlanSirasi(std::string_view alan) const;  // case ignored; -1: no such field

 protected:
  std::vector<AlanBilgisi> alanlar_;
  Konum konum_ = Konum::Bos;
};

}  // namespace belvani
