#include "core/tutamak.h"

#include <cerrno>
#include <unistd.h>

namespace belvani {

bool DosyaTutamagi::Kapat() {
  const int no = std::exchange(no_, -1);
  return no < 0 || ::close(no) == 0;
}

bool HepsiniYaz(int no, std::string_view icerik) {
  while (!icerik.empty()) {
    const ssize_t n = ::write(no, icerik.data(), icerik.size());
    if (n < 0 && errno == EINTR) continue;
    if (n == 0) errno = EIO;
    if (n <= 0) return false;
    icerik.remove_prefix(std::size_t(n));
  }
  return true;
}

std::string SistemHatasi(int kod) {
  switch (kod) {
    case ENOSPC:
    case EDQUOT:
      return "disk dolu";
    case EACCES:
    case EPERM:
      return "yazma izni yok";
    case EROFS:
      return "disk salt okunur";
    case ENOENT:
      return "dizin bulunamadı";
    case EISDIR:
      return "bu adda bir dizin var";
    case EEXIST:
      return "bu adda bir dosya var";
    case ENOTDIR:
      return "yoldaki bir ad dizin değil";
    case EFBIG:
      return "dosya çok büyük";
    case ENAMETOOLONG:
      return "ad çok uzun";
    case ELOOP:
      return "bağlar birbirini gösteriyor";
    case EMFILE:
    case ENFILE:
      return "çok fazla dosya açık";
    case ECONNREFUSED:
      return "soketi dinleyen yok";
    case EPIPE:
      return "karşı taraf kapandı";
    case EIO:
      return "disk hatası";
    default:
      return "sistem hatası " + std::to_string(kod);
  }
}

Kusur DosyaHatasi(const std::string& yol, const char* ne, int kod) {
  return Kusur{yol + ": " + ne + " (" + SistemHatasi(kod) + ")"};
}

}  // namespace belvani
