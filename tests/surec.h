// Processes of a test. A store must not be open in the test while it starts one.
#pragma once

#include <csignal>
#include <cstdlib>
#include <functional>
#include <sys/wait.h>
#include <unistd.h>

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
  Surec(Surec&& s) noexcept : no_(s.no_) { s.no_ = 0; }
  Surec& operator=(Surec&&) = delete;

  // The number with which it ended; -1 when it was killed.
  int Bekle() {
    int durum = 0;
    ::waitpid(no_, &durum, 0);
    no_ = 0;
    return WIFEXITED(durum) ? WEXITSTATUS(durum) : -1;
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
  ~Kapi() {
    ::close(uc_[0]);
    ::close(uc_[1]);
  }
  Kapi(const Kapi&) = delete;
  Kapi& operator=(const Kapi&) = delete;

  void Ac() {
    if (::write(uc_[1], "", 1) != 1) std::abort();
  }
  void Bekle() {
    char bos = 0;
    while (::read(uc_[0], &bos, 1) < 0) {
    }
  }

 private:
  int uc_[2];
};

}  // namespace belvani::test
