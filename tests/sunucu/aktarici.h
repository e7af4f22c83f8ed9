// Aktarici: a relay before a private server, on a socket of its own. It makes a network of it: each direction takes its
// time, round trips are counted, and connections break or fall silent when the test says so. It ends with its object.
//
//   Aktarici ag(sunucu.Dizin(), 1ms);            // 2 ms for every answer
//   db.DbAc(ag.Adres("belvani") + "#DENEME/tolu.dat");
//   EXPECT_LE(ag.Turlar(), 3);
#pragma once

#include <atomic>
#include <chrono>
#include <memory>
#include <string>
#include <thread>

#include "core/tutamak.h"
#include "gecici.h"

namespace belvani::test {

class Aktarici {
 public:
  using Sure = std::chrono::microseconds;

  explicit Aktarici(const std::string& sunucuDizini, Sure tekYon = {});
  ~Aktarici();
  Aktarici(const Aktarici&) = delete;
  Aktarici& operator=(const Aktarici&) = delete;

  std::string Adres(const std::string& veritabani) const;

  void SureKoy(Sure tekYon) { tekYon_ = tekYon.count(); }
  // What clients have waited for since the last call: everything up to a request for an answer is one, however many
  // statements it holds. Opening a connection is none.
  int Turlar() { return turlar_.exchange(0); }
  // All connections there are break; new ones come through.
  void Kes();
  // From now on nothing comes and nothing goes, and nobody is told; new connections hang too. False ends it.
  void Sustur(bool sus);

 private:
  struct Ic;

  void Isle();
  void Uyandir();

  GeciciDizin dizin_;
  std::atomic<std::int64_t> tekYon_;
  std::atomic<int> turlar_ = 0;
  std::atomic<bool> sus_ = false, kes_ = false, bitti_ = false;
  DosyaTutamagi uyandiran_;
  std::unique_ptr<Ic> ic_;
  std::thread is_;
};

}  // namespace belvani::test
