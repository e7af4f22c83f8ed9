// A private copy of a store that cannot be written, or that nobody's look may change: an archive on a read-only disk, a
// company of another user. The engine needs to write beside what it reads (a journal that a killed program has left is
// rolled back, shared memory is laid out, a store of an earlier version grows), so it works on the copy.
#pragma once

#include <memory>
#include <string>

#include "core/sonuc.h"
#include "core/store/motor.h"

namespace belvani {

// Whether this process may write the store file and beside it. What is not there counts as writable: its absence is
// told by whoever opens it.
bool DepoYazilir(const std::string& yol);

// In a directory of its own below the system's temporary one, open to nobody else, and gone with the object; what is
// open by then stays readable.
class DepoKopyasi {
 public:
  // The file and its journal as they stood together at one moment; a fault when others never pause writing them.
  static Sonuc<DepoKopyasi> Al(const std::string& yol);
  DepoKopyasi(DepoKopyasi&& k) noexcept;
  DepoKopyasi& operator=(DepoKopyasi&&) = delete;
  ~DepoKopyasi();

  // Its store, all in the one file; closed again, the file can be opened by its path. Throws MotorHatasi.
  std::unique_ptr<Motor> Ac() const;
  std::string Yol() const;

 private:
  explicit DepoKopyasi(std::string dizin) : dizin_(std::move(dizin)) {}

  std::string dizin_;
};

// The store for looking alone: itself where it can be opened, else a copy. Throws MotorHatasi.
std::unique_ptr<Motor> MotorBak(const std::string& yol);

}  // namespace belvani
