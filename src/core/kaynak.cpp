#include "core/kaynak.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "core/tutamak.h"

namespace belvani {
namespace {

std::string OkumaHatasi(int kod) {
  switch (kod) {
    case ENOENT:
      return "dosya bulunamadı";
    case EACCES:
    case EPERM:
      return "okuma izni yok";
    case EISDIR:
      return "bu bir dizin";
    default:
      return SistemHatasi(kod);
  }
}

// 0 or the number of the failure.
int SonunaKadarOku(int no, std::size_t enCok, std::string& icerik) {
  std::vector<char> blok(1u << 18);
  while (true) {
    const ssize_t n = ::read(no, blok.data(), blok.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) return errno;
    if (n == 0) return 0;
    icerik.append(blok.data(), std::size_t(n));
    if (icerik.size() > enCok) return EFBIG;
  }
}

Sonuc<std::string> Oku(int no, const std::string& ad, std::size_t enCok) {
  std::string icerik;
  struct stat hal {};
  int kod = no < 0 ? errno : ::fstat(no, &hal) != 0 ? errno : 0;
  if (kod == 0 && S_ISREG(hal.st_mode) && std::size_t(hal.st_size) > enCok) kod = EFBIG;
  if (kod == 0) kod = SonunaKadarOku(no, enCok, icerik);
  if (kod == EFBIG) return Kusur{ad + " (" + BoyMetni(enCok) + " sınırından büyük)"};
  if (kod != 0) return Kusur{ad + " (" + OkumaHatasi(kod) + ")"};
  return icerik;
}

}  // namespace

Sonuc<std::string> KaynakOku(const std::string& yol, std::size_t enCok) {
  const DosyaTutamagi dosya(::open(yol.c_str(), O_RDONLY | O_CLOEXEC | O_NOCTTY));
  return Oku(dosya.No(), "Dosya okunamadı: " + yol, enCok);
}

Sonuc<std::string> StandartGirdiOku(std::size_t enCok) {
  return Oku(STDIN_FILENO, "Standart girdi okunamadı", enCok);
}

std::string BoyMetni(std::uint64_t bayt) {
  constexpr std::uint64_t kilo = 1024, onda = 10;
  if (bayt < kilo) return std::to_string(bayt) + " bayt";
  if (bayt < kilo * kilo) return std::to_string(bayt / kilo) + " KB";
  const std::uint64_t ondalik = bayt * onda / (kilo * kilo);
  const std::string kesir = ondalik % onda == 0 ? "" : "." + std::to_string(ondalik % onda);
  return std::to_string(ondalik / onda) + kesir + " MB";
}

}  // namespace belvani
