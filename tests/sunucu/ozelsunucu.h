// OzelSunucu: a database server of the tests' own, in a scratch directory. It is reached over a socket in that
// directory alone, lets in everybody who gets there (which is its owner), and writes nothing through to the disk. Run
// as root it belongs to an account that owns nothing else, since the server refuses root.
//
// It goes with its object; when the process is killed, the server ends too, and the next one sweeps the directory.
#pragma once

#include <string>
#include <sys/types.h>

#include "core/tutamak.h"

namespace belvani::test {

class OzelSunucu {
 public:
  // Made and started; throws with the server's own words when that fails. The thread that makes it must outlive it.
  OzelSunucu();
  ~OzelSunucu();
  OzelSunucu(const OzelSunucu&) = delete;
  OzelSunucu& operator=(const OzelSunucu&) = delete;

  // Of the socket; what stands as "host" in an address.
  const std::string& Dizin() const { return dizin_; }
  std::string Adres(const std::string& veritabani) const;

  enum class Durus {
    Kibar,  // clients are put out, what they have not approved is taken back, all is written
    Ani,    // killed: clients see the connection break, and the next start recovers
  };
  void Durdur(Durus durus);
  // Waits until it answers. After a kill it waits until the last of the killed server's processes is gone.
  void Baslat();
  bool CalisiyorMu() const { return surec_ > 0; }

 private:
  std::string Gunluk() const;  // what the server has written

  std::string dizin_;
  DosyaTutamagi kilit_;  // held while somebody needs the directory
  pid_t surec_ = 0;
};

// The role as which the server's administrator connects.
inline constexpr const char* SunucuYoneticisi = "postgres";

}  // namespace belvani::test
