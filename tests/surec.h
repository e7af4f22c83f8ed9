// Processes of a test. No store may be open in the test while it starts one.
#pragma once

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <optional>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

namespace belvani::test {

// Runs `is` in a process of its own, which ends with what `is` returns.
class Surec {
 public:
  explicit Surec(const std::function<int()>& is) : no_(::fork()) {
    if (no_ < 0) std::abort();
    if (no_ == 0) ::_exit(is());
  }
  ~Surec() {
    if (no_ > 0) Oldur();
  }
  Surec(Surec&& s) noexcept : no_(std::exchange(s.no_, 0)) {}

  // The number with which it ended; -1 when it was killed.
  int Bekle() {
    int durum = 0;
    ::waitpid(std::exchange(no_, 0), &durum, 0);
    return WIFEXITED(durum) ? WEXITSTATUS(durum) : -1;
  }
  // The same without waiting: nothing while it runs.
  std::optional<int> BittiyseSonuc() {
    int durum = 0;
    if (::waitpid(no_, &durum, WNOHANG) == 0) return std::nullopt;
    no_ = 0;
    return WIFEXITED(durum) ? WEXITSTATUS(durum) : -1;
  }
  // Of the processor, that it has used.
  double IslemSaniyesi() const {
    clockid_t saat = 0;
    timespec gecen{};
    if (::clock_getcpuclockid(no_, &saat) != 0 || ::clock_gettime(saat, &gecen) != 0) return 0;
    return double(gecen.tv_sec) + double(gecen.tv_nsec) / 1e9;
  }
  void Oldur() {
    ::kill(no_, SIGKILL);
    Bekle();
  }

 private:
  pid_t no_;
};

// A gate between two processes: one opens it, the other waits before it.
class Kapi {
 public:
  Kapi() {
    if (::pipe(uc_) != 0) std::abort();
  }
  void Ac() const {
    if (::write(uc_[1], "", 1) != 1) std::abort();
  }
  void Bekle() const {
    char bos = 0;
    if (::read(uc_[0], &bos, 1) != 1) std::abort();
  }

 private:
  int uc_[2];
};

}  // namespace belvani::test
