#include "core/gecici.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string_view>
#include <unistd.h>

#include "core/dosya.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view OnEk = ".belvani-";
constexpr auto EnUzunYazim = std::chrono::hours(24);

// ".belvani-muhasebe-"
std::string BuBilgisayar() {
  std::string ad = BilgisayarAdiBul();
  std::replace(ad.begin(), ad.end(), '/', '_');
  return std::string(OnEk) + ad + "-";
}

bool YazaniGitti(const std::string& ad) {
  const std::string bilgisayar = BuBilgisayar();
  if (!ad.starts_with(bilgisayar)) return false;
  pid_t surec = 0;
  const char* const son = ad.data() + ad.size();
  const auto okunan = std::from_chars(ad.data() + bilgisayar.size(), son, surec);
  if (okunan.ec != std::errc() || okunan.ptr == son || *okunan.ptr != '-' || surec <= 0) return false;
  return ::kill(surec, 0) != 0 && errno == ESRCH;
}

bool Birakilmis(const fs::directory_entry& girdi) {
  const std::string ad = girdi.path().filename();
  std::error_code hata;
  if (!ad.starts_with(OnEk) || girdi.symlink_status(hata).type() != fs::file_type::regular) return false;
  const auto yas = fs::file_time_type::clock::now() - girdi.last_write_time(hata);
  return !hata && (yas > EnUzunYazim || YazaniGitti(ad));
}

}  // namespace

DosyaTutamagi GeciciAc(const std::string& hedef, std::string& gecici) {
  const auto ayrac = hedef.rfind('/') + 1;  // without one: the working directory
  gecici = hedef.substr(0, ayrac) + BuBilgisayar() + std::to_string(::getpid()) + "-XXXXXX";
  return DosyaTutamagi(::mkostemp(gecici.data(), O_CLOEXEC));
}

void GecicileriSupur(const std::string& dizin) {
  std::error_code hata;
  for (fs::directory_iterator i(dizin, hata), son; !hata && i != son; i.increment(hata))
    if (Birakilmis(*i)) ::unlink(i->path().c_str());
}

}  // namespace belvani
