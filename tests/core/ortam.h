// The surroundings of a test, put back at the end of the scope: environment, mask of new files, room on the disk.
#pragma once

#include <csignal>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>

namespace belvani::test {

struct Sonunda {
  std::function<void()> islev;
  ~Sonunda() { islev(); }
};

// Sets a variable of the environment, or takes it away.
inline Sonunda OrtamKoy(const char* ad, const char* deger) {
  const char* eski = std::getenv(ad);
  const auto metin = eski == nullptr ? std::nullopt : std::optional<std::string>(eski);
  deger == nullptr ? ::unsetenv(ad) : ::setenv(ad, deger, 1);
  return Sonunda{[=] { metin ? ::setenv(ad, metin->c_str(), 1) : ::unsetenv(ad); }};
}

inline Sonunda Maske(mode_t maske) {
  return Sonunda{[eski = ::umask(maske)] { ::umask(eski); }};
}

// No file takes more than `bayt`: a full disk that also stops root.
inline Sonunda DarDisk(rlim_t bayt) {
  rlimit eski{};
  ::getrlimit(RLIMIT_FSIZE, &eski);
  const rlimit dar{bayt, eski.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &dar);
  return Sonunda{[eski, isleyici = std::signal(SIGXFSZ, SIG_IGN)] {
    ::setrlimit(RLIMIT_FSIZE, &eski);
    std::signal(SIGXFSZ, isleyici);
  }};
}

}  // namespace belvani::test
