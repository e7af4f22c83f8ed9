// The checksums of pay records, in a table of their own beside the schema: brdozet(oto, ozet).
//
// A damaged page may still read well: a bit of an amount that fell over is another amount, and no check of the engine
// sees it. So each record of `brd` has a checksum under its automatic number, written in the transaction that writes
// the record. Programs of an earlier version write records and know nothing of it; two triggers in the store tell what
// they did, so that their work is never taken for damage:
//
//   ozet holds         the record was written by this program, and must agree with it
//   ozet is Null       it was changed since by another program: a remark
//   no row             it is from before, or was added by another program: a remark
//   no record          no program deletes it so: the record was lost
//
// A number is never given twice, so a row belongs to one record for ever. Reading asks for none of it.
#pragma once

#include <memory>
#include <type_traits>

#include "core/bildirim.h"
#include "core/kusur.h"
#include "core/store/kayitozeti.h"
#include "core/store/motor.h"

namespace belvani {

struct Brd;

// Records that carry a checksum.
template <class Kayit>
constexpr bool Ozetli = std::is_same_v<Kayit, Brd>;

// Writes checksums, in the open transaction of the records' writer. All of it throws MotorHatasi.
class BrdOzetleri {
 public:
  // Makes table and triggers in a store that has none.
  explicit BrdOzetleri(Motor& motor);

  void Yaz(std::int64_t oto, std::int64_t ozet);
  // Of the record as it stands in the store.
  void Yenile(std::int64_t oto);
  // Whether the record agrees with its checksum, or has none.
  bool Tutuyor(std::int64_t oto);
  // Gives one to each record that has none; how many there were.
  std::size_t EksikleriYaz();

 private:
  Motor& motor_;
  std::unique_ptr<SatirYazici> yazici_;
};

// Records that do not agree with their checksum and records that are lost are faults, person by person; records without
// one are remarks. Reads all records, and can be given up (Vazgecilmis). Throws MotorHatasi.
Kusurlar BrdOzetKusurlari(Motor& motor, Ilerleme* ilerleme = nullptr);

}  // namespace belvani
