#include "core/dizinkilidi.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "core/tutamak.h"
#include "core/veriyolu.h"

namespace belvani {
namespace {

using Saat = std::chrono::steady_clock;

constexpr std::chrono::milliseconds YoklamaAraligi{20};

class DizinKilidi final : public YolKilidi {
 public:
  DosyaTutamagi dizin;
  DosyaTutamagi dosya;
};

enum class Kilit { Alindi, Baskasinda, Olmaz };

template <class Dene>
Kilit Bekle(Saat::time_point son, Dene dene) {
  while (dene() != 0) {
    if (errno != EWOULDBLOCK && errno != EACCES && errno != EINTR) return Kilit::Olmaz;
    if (Saat::now() >= son) return Kilit::Baskasinda;
    std::this_thread::sleep_for(YoklamaAraligi);
  }
  return Kilit::Alindi;
}

// Of the whole file, and of the descriptor: two threads of a program exclude each other too.
int DosyayiKilitle(int no) {
  struct flock hepsi {};
  hepsi.l_type = F_WRLCK;
  hepsi.l_whence = SEEK_SET;
  return ::fcntl(no, F_OFD_SETLK, &hepsi);
}

// Who only finds the file cares for it too: a computer on which the directory itself can be locked (the server) must
// wait for the others.
DosyaTutamagi KilitDosyasi(const std::string& dizin, bool yaratilir) {
  const std::string yol = dizin + ".kilit";
  DosyaTutamagi dosya(::open(yol.c_str(), O_RDWR | O_CLOEXEC | O_NOFOLLOW | (yaratilir ? O_CREAT : 0), 0660));
  if (dosya.Acik() && yaratilir) ::fchmod(dosya.No(), 0660);  // its group's, whatever the mask; only the owner may
  return dosya;
}

}  // namespace

Sonuc<std::unique_ptr<YolKilidi>> DiziniKilitle(const std::string& dizin, std::chrono::milliseconds enCok) {
  const Saat::time_point son = Saat::now() + enCok;
  const Kusur baskasinda{dizin + ": başka bir program yazıyor"};
  auto kilit = std::make_unique<DizinKilidi>();
  kilit->dizin = DosyaTutamagi(::open(dizin.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (!kilit->dizin.Acik()) return std::unique_ptr<YolKilidi>();
  const Kilit dizinin = Bekle(son, [&] { return ::flock(kilit->dizin.No(), LOCK_EX | LOCK_NB); });
  if (dizinin == Kilit::Baskasinda) return baskasinda;
  kilit->dosya = KilitDosyasi(dizin, dizinin == Kilit::Olmaz);
  const Kilit dosyanin =
      kilit->dosya.Acik() ? Bekle(son, [&] { return DosyayiKilitle(kilit->dosya.No()); }) : Kilit::Olmaz;
  if (dosyanin == Kilit::Baskasinda) return baskasinda;
  if (dizinin == Kilit::Olmaz && dosyanin == Kilit::Olmaz) return std::unique_ptr<YolKilidi>();
  return std::unique_ptr<YolKilidi>(std::move(kilit));
}

}  // namespace belvani
