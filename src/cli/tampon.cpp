#include "cli/tampon.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include "cli/ortak.h"

namespace belvani::cli {

Tampon::Tampon() {
  std::error_code hata;
  std::string yol = std::filesystem::temp_directory_path(hata) / "belvani-XXXXXX";
  dosya_ = DosyaTutamagi(::mkostemp(yol.data(), O_APPEND | O_CLOEXEC));
  if (!dosya_.Acik()) throw KomutHatasi{DosyaHatasi(yol, "geçici dosya açılamadı", errno).metin};
  ::unlink(yol.c_str());
}

std::size_t Tampon::Boy() const {
  struct stat hal {};
  return ::fstat(No(), &hal) == 0 ? std::size_t(hal.st_size) : 0;
}

void Tampon::Bosalt() const {
  if (::ftruncate(No(), 0) != 0) return;  // it only keeps its room
}

void Tampon::Ver(std::size_t bas, std::size_t son, const std::function<void(std::string_view)>& al) const {
  std::array<char, 1u << 16> parca{};
  while (bas < son) {
    const ssize_t n = ::pread(No(), parca.data(), std::min(parca.size(), son - bas), off_t(bas));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) throw KomutHatasi{DosyaHatasi("geçici dosya", "okunamadı", errno).metin};
    std::string_view okunan(parca.data(), std::size_t(n));
    if (bas + okunan.size() < son) okunan = okunan.substr(0, okunan.rfind('\n') + 1);
    if (okunan.empty()) okunan = {parca.data(), std::size_t(n)};  // one very long line
    al(okunan);
    bas += okunan.size();
  }
}

void TamponParcasi::Ver(const std::function<void(std::string_view)>& al) const {
  if (tampon != nullptr) tampon->Ver(bas, son, al);
}

std::string TamponParcasi::Metin() const {
  std::string metin;
  Ver([&](std::string_view parca) { metin += parca; });
  return metin;
}

}  // namespace belvani::cli
