// A print server of the tests' own: queues without drivers whose jobs end up as files.
#pragma once

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "core/dosya.h"
#include "gecici.h"

namespace belvani::test {

class OzelCups {
 public:
  // Queues: "matris" (the default), "kapali" (takes no jobs), "kagitsiz" (out of paper from its first job on).
  OzelCups() {
    if (::access(Program, X_OK) != 0) return;
    std::error_code hata;
    // The server runs nothing out of a directory that others may write to.
    ::umask(022);
    for (const char* alt : {"bin/backend", "kok", "is/gecici", "onbellek", "durum", "cikti"})
      std::filesystem::create_directories(dizin_.Yol() + alt, hata);
    std::filesystem::create_symlink("/usr/lib/cups/daemon", dizin_.Yol() + "bin/daemon", hata);
    AyarlariYaz();
    sunucu_ = ::fork();
    if (sunucu_ == 0) Calistir();
    for (int i = 0; i < 100 && !Hazir(); ++i) ::usleep(50'000);
  }
  ~OzelCups() {
    if (sunucu_ <= 0) return;
    ::kill(sunucu_, SIGTERM);
    ::waitpid(sunucu_, nullptr, 0);
  }
  OzelCups(const OzelCups&) = delete;
  OzelCups& operator=(const OzelCups&) = delete;

  bool Hazir() const { return ::access(Soket().c_str(), F_OK) == 0; }
  std::string Soket() const { return dizin_.Yol() + "soket"; }

  // The bytes that the printer got; waits for them. "" when they do not come.
  std::string Basilan(int isNo) const {
    const std::string dosya = dizin_.Yol() + "cikti/" + std::to_string(isNo);
    for (int i = 0; i < 200; ++i) {
      if (const auto icerik = DosyaOku(dosya)) return *icerik;
      ::usleep(50'000);
    }
    return {};
  }

 private:
  static constexpr const char* Program = "/usr/sbin/cupsd";

  [[noreturn]] void Calistir() const {
    ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    const int bos = ::open("/dev/null", O_RDWR);
    for (const int no : {0, 1, 2}) ::dup2(bos, no);
    const std::string ayar = dizin_.Yol() + "kok/cupsd.conf", dosyalar = dizin_.Yol() + "kok/cups-files.conf";
    ::execl(Program, Program, "-f", "-c", ayar.c_str(), "-s", dosyalar.c_str(), nullptr);
    ::_exit(127);
  }

  void AyarlariYaz() const {
    const std::string d = dizin_.Yol();
    (void)DosyaYaz(d + "kok/cupsd.conf", "Listen " + Soket() +
                                             "\nBrowsing No\nWebInterface No\nDefaultAuthType None\n"
                                             "<Location />\nAllow all\n</Location>\n"
                                             "<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n");
    (void)DosyaYaz(d + "kok/cups-files.conf",
                   "ServerRoot " + d + "kok\nServerBin " + d + "bin\nRequestRoot " + d + "is\nTempDir " + d +
                       "is/gecici\nCacheDir " + d + "onbellek\nStateDir " + d + "durum\nErrorLog " + d +
                       "hata.log\nAccessLog " + d + "erisim.log\nPageLog " + d + "sayfa.log\n");
    const auto kuyruk = [](const std::string& ad, const std::string& kabul) {
      return "Printer " + ad + ">\nInfo Kuyruk " + ad + "\nDeviceURI kayit:/" + ad + "\nState Idle\nAccepting " +
             kabul + "\n</Printer>\n";
    };
    (void)DosyaYaz(d + "kok/printers.conf", "<Default" + kuyruk("matris", "Yes") + "<" + kuyruk("kapali", "No") + "<" +
                                                kuyruk("kagitsiz", "Yes"));
    // Job number, user, title, copies, options, and a file or the standard input.
    const std::string surucu = d + "bin/backend/kayit";
    (void)DosyaYaz(surucu,
                   "#!/bin/sh\n[ $# -eq 0 ] && exit 0\n[ -n \"$6\" ] && exec <\"$6\"\n"
                   "case \"$DEVICE_URI\" in *kagitsiz) echo 'STATE: +media-empty-error' >&2 ;; esac\n"
                   "cd " +
                       d + "cikti && cat >\"$1.yarim\" && mv \"$1.yarim\" \"$1\"\n");
    std::filesystem::permissions(surucu, std::filesystem::perms::owner_all);
  }

  GeciciDizin dizin_;
  pid_t sunucu_ = -1;
};

}  // namespace belvani::test
