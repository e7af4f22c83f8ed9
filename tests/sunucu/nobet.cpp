// ozelsunucu: a private server, prepared for the tests, around whatever uses it.
//
//   ozelsunucu KOMUT …              lives as long as the command, which finds it by BELVANI_TEST_SUNUCU
//   ozelsunucu --ac BAG             starts one that lives until --kapat, at most as long as the caller; BAG becomes a
//   ozelsunucu --kapat BAG          link to its directory
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "core/store/sunucukurulumu.h"
#include "sunucu/sablon.h"

namespace belvani::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

void VeriYoluKur(const std::string& adres) {
  if (const Durum kurulan = SunucuyuKur(adres); !kurulan) throw std::runtime_error(kurulan.KusurMetni());
}

struct HazirSunucu : OzelSunucu {
  HazirSunucu() { SablonHazirla(*this, VeriYoluKur, "belvani_sahip"); }
};

int Birlikte(char** komut) {
  const HazirSunucu sunucu;
  ::setenv("BELVANI_TEST_SUNUCU", sunucu.Dizin().c_str(), 1);
  // The terminal's signals are the command's to answer; the server goes after it in any case.
  for (const int sinyal : {SIGINT, SIGQUIT}) std::signal(sinyal, SIG_IGN);
  const pid_t surec = ::fork();
  if (surec == 0) {
    for (const int sinyal : {SIGINT, SIGQUIT}) std::signal(sinyal, SIG_DFL);
    ::execvp(komut[0], komut);
    ::_exit(127);
  }
  int durum = 0;
  ::waitpid(surec, &durum, 0);
  return WIFEXITED(durum) ? WEXITSTATUS(durum) : 128 + WTERMSIG(durum);
}

void BagKoy(const std::string& bag, const std::string& hedef) {
  const std::string yeni = bag + "." + std::to_string(::getpid());
  fs::create_symlink(hedef, yeni);
  fs::rename(yeni, bag);
}

bool BagDuruyor(const std::string& bag, const std::string& hedef) {
  std::error_code hata;
  return fs::read_symlink(bag, hata) == fs::path(hedef) && !hata;
}

// The link is the sign: whoever removes it, or puts another in its place, sends the server away.
void Bekle(const std::string& bag, const std::string& hedef, pid_t sahip) {
  while (BagDuruyor(bag, hedef) && (::kill(sahip, 0) == 0 || errno != ESRCH)) std::this_thread::sleep_for(100ms);
  if (BagDuruyor(bag, hedef)) fs::remove(bag);
}

// In a session of its own, so that an interrupted run does not take it along before it has tidied up.
int Nobetci(const std::string& bag, pid_t sahip, int haber) {
  ::setsid();
  const int bos = ::open("/dev/null", O_RDWR);
  for (int i = 0; i < 3; ++i) ::dup2(bos, i);
  std::string soz = "+";
  try {
    const HazirSunucu sunucu;
    BagKoy(bag, sunucu.Dizin());
    if (::write(haber, soz.data(), soz.size()) < 0 || ::close(haber) != 0) return 1;
    Bekle(bag, sunucu.Dizin(), sahip);
    return 0;
  } catch (const std::exception& h) {
    soz = h.what();
    return ::write(haber, soz.data(), soz.size()) < 0 ? 2 : 1;
  }
}

int Ac(const std::string& bag) {
  const pid_t sahip = ::getppid();
  int uc[2];
  if (::pipe2(uc, O_CLOEXEC) != 0) return 1;
  const pid_t nobetci = ::fork();
  if (nobetci == 0) {
    ::close(uc[0]);
    ::_exit(Nobetci(bag, sahip, uc[1]));
  }
  ::close(uc[1]);
  std::string soz;
  char parca[4096];
  for (ssize_t n = 0; (n = ::read(uc[0], parca, sizeof parca)) > 0;) soz.append(parca, std::size_t(n));
  if (soz == "+") return 0;
  std::cerr << soz << "\n";
  return 1;
}

int Kapat(const std::string& bag) {
  std::error_code hata;
  const fs::path dizin = fs::read_symlink(bag, hata);
  fs::remove(bag, hata);
  for (int i = 0; i < 300 && !dizin.empty() && fs::exists(dizin, hata); ++i) std::this_thread::sleep_for(50ms);
  return dizin.empty() || !fs::exists(dizin, hata) ? 0 : 1;
}

int Kullanim() {
  std::cerr << "ozelsunucu KOMUT … | --ac BAG | --kapat BAG\n";
  return 2;
}

}  // namespace
}  // namespace belvani::test

int main(int argc, char** argv) {
  using namespace belvani::test;
  const std::string_view ilk = argc > 1 ? argv[1] : "";
  try {
    if (ilk == "--ac" && argc == 3) return Ac(argv[2]);
    if (ilk == "--kapat" && argc == 3) return Kapat(argv[2]);
    return ilk.empty() || ilk.starts_with("-") ? Kullanim() : Birlikte(argv + 1);
  } catch (const std::exception& h) {
    std::cerr << h.what() << "\n";
    return 1;
  }
}
