// A process that is killed in the middle of what it does.
#pragma once

#include <csignal>
#include <cstdlib>
#include <functional>
#include <sys/ptrace.h>
#include <sys/wait.h>
#include <unistd.h>

namespace belvani::test {

// Runs `is` in a process of its own that is killed when it makes its system call number `no`. Gives the number of calls
// made; fewer than `no`: it came to its end.
inline int KesilenCagri(const std::function<void()>& is, int no) {
  const pid_t surec = ::fork();
  if (surec == 0) {
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    is();
    ::_exit(0);
  }
  int durum = 0;
  ::waitpid(surec, &durum, 0);
  for (int adim = 0;; ++adim) {  // a call stops twice, on its way in and out
    if (adim / 2 >= no) {
      ::kill(surec, SIGKILL);
      ::waitpid(surec, &durum, 0);
      return no;
    }
    if (::ptrace(PTRACE_SYSCALL, surec, nullptr, nullptr) != 0) std::abort();
    ::waitpid(surec, &durum, 0);
    if (WIFEXITED(durum) || WIFSIGNALED(durum)) return adim / 2;
  }
}

}  // namespace belvani::test
