// A process whose system calls are watched one by one: it can be killed before any of them, or told that the call has
// failed without the system having done it.
//
//   Izle([] { ::execv(…); }, [&](const Cagri& c) { return YazanMi(c) && ++sayi == 7 ? Cevap::Oldur : Cevap::Birak; });
#pragma once

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <functional>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

namespace belvani::test {

#if defined(__x86_64__)
inline constexpr bool IzlenirMi = true;
#else
inline constexpr bool IzlenirMi = false;  // another processor has other registers
#endif

struct Cagri {
  long no;
  std::array<unsigned long, 3> deger;

  bool Biri(std::initializer_list<long> nolar) const { return std::ranges::find(nolar, no) != nolar.end(); }
};

enum class Cevap { Birak, Oldur, DiskDolu, DiskHatasi };

#if defined(__x86_64__)

// Files and directories come into being, change, go, or are brought to the disk; output to the terminal is none of it.
inline bool YazanMi(const Cagri& c) {
  if (c.no == SYS_openat) return (c.deger[2] & (O_CREAT | O_TRUNC)) != 0;
  if (c.Biri({SYS_write, SYS_writev})) return c.deger[0] > STDERR_FILENO;
  return c.Biri({SYS_pwrite64,        SYS_pwritev, SYS_fsync,    SYS_fdatasync, SYS_ftruncate,
                 SYS_fallocate,       SYS_rename,  SYS_renameat, SYS_renameat2, SYS_unlink,
                 SYS_unlinkat,        SYS_mkdir,   SYS_mkdirat,  SYS_rmdir,     SYS_link,
                 SYS_linkat,          SYS_symlink, SYS_chmod,    SYS_fchmod,    SYS_fchmodat,
                 SYS_copy_file_range, SYS_sendfile});
}

inline bool KaldiranMi(const Cagri& c) {
  return c.Biri({SYS_unlink, SYS_unlinkat, SYS_rmdir, SYS_rename, SYS_renameat, SYS_renameat2});
}

// What a full disk refuses; a removal it does not.
inline bool YerIster(const Cagri& c) {
  return YazanMi(c) && (c.no == SYS_openat || c.Biri({SYS_write, SYS_writev, SYS_pwrite64, SYS_pwritev, SYS_fallocate,
                                                      SYS_mkdir, SYS_mkdirat, SYS_copy_file_range, SYS_sendfile}));
}

inline bool OkuyanMi(const Cagri& c) {
  return c.Biri({SYS_openat, SYS_read, SYS_pread64, SYS_fcntl, SYS_flock, SYS_newfstatat, SYS_fstat, SYS_getdents64});
}

// Runs `is` in a process of its own, asking before each call what becomes of it. Gives the number with which it ended;
// -1 when it was killed.
inline int Izle(const std::function<void()>& is, const std::function<Cevap(const Cagri&)>& karar) {
  const pid_t surec = ::fork();
  if (surec < 0) std::abort();
  if (surec == 0) {
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    is();
    ::_exit(0);
  }
  int durum = 0, sinyal = 0;
  ::waitpid(surec, &durum, 0);
  ::ptrace(PTRACE_SETOPTIONS, surec, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
  bool giriste = false;  // a call stops twice, on its way in and out
  unsigned long long hata = 0;
  while (true) {
    if (::ptrace(PTRACE_SYSCALL, surec, nullptr, sinyal) != 0) std::abort();
    ::waitpid(surec, &durum, 0);
    if (WIFEXITED(durum)) return WEXITSTATUS(durum);
    if (WIFSIGNALED(durum)) return -1;
    const bool cagrida = WSTOPSIG(durum) == (SIGTRAP | 0x80);
    sinyal = cagrida || WSTOPSIG(durum) == SIGTRAP ? 0 : WSTOPSIG(durum);
    if (!cagrida) continue;
    giriste = !giriste;
    user_regs_struct yazmac{};
    if (giriste || hata != 0) ::ptrace(PTRACE_GETREGS, surec, nullptr, &yazmac);
    if (!giriste) {
      if (hata == 0) continue;
      yazmac.rax = 0ULL - std::exchange(hata, 0);
      ::ptrace(PTRACE_SETREGS, surec, nullptr, &yazmac);
      continue;
    }
    switch (karar({long(yazmac.orig_rax), {yazmac.rdi, yazmac.rsi, yazmac.rdx}})) {
      case Cevap::Birak:
        continue;
      case Cevap::Oldur:
        ::kill(surec, SIGKILL);
        ::waitpid(surec, &durum, 0);
        return -1;
      case Cevap::DiskDolu:
        hata = ENOSPC;
        break;
      case Cevap::DiskHatasi:
        hata = EIO;
        break;
    }
    yazmac.orig_rax = ~0ULL;  // no call of this number: nothing is done
    ::ptrace(PTRACE_SETREGS, surec, nullptr, &yazmac);
  }
}

#else

inline bool YazanMi(const Cagri&) {
  return false;
}
inline bool KaldiranMi(const Cagri&) {
  return false;
}
inline bool YerIster(const Cagri&) {
  return false;
}
inline bool OkuyanMi(const Cagri&) {
  return false;
}
inline int Izle(const std::function<void()>&, const std::function<Cevap(const Cagri&)>&) {
  std::abort();
}

#endif

// Kills `is` when it makes its system call number `no`. Gives the number of calls made; fewer than `no`: it came to its
// end.
inline int KesilenCagri(const std::function<void()>& is, int no) {
  int sayi = 0;
  Izle(is, [&](const Cagri&) { return ++sayi > no ? Cevap::Oldur : Cevap::Birak; });
  return std::min(sayi, no);
}

}  // namespace belvani::test
