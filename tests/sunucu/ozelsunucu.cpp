#include "sunucu/ozelsunucu.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <grp.h>
#include <libpq-fe.h>
#include <pwd.h>
#include <stdexcept>
#include <sys/file.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "core/dosya.h"

namespace belvani::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;
using Saat = std::chrono::steady_clock;
using Sozler = std::vector<std::string>;

constexpr std::string_view OnEk = "belvani-sunucu-";
constexpr const char* Hesap = "nobody";
// A socket's path has room for 107 bytes, and the server adds its own name to the directory's.
constexpr std::size_t EnUzunDizin = 80;
constexpr auto EnCokBekleme = 60s;

std::string KilitYolu(const std::string& dizin) {
  return dizin + "/sahip";
}

DosyaTutamagi KilidiAl(const std::string& dizin) {
  DosyaTutamagi kilit(::open(KilitYolu(dizin).c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600));
  if (kilit.Acik() && ::flock(kilit.No(), LOCK_EX | LOCK_NB) != 0) kilit.Kapat();
  return kilit;
}

// The last processes of a server that is ending still write there.
void Kaldir(const std::string& dizin) {
  std::error_code hata;
  for (int kez = 0; kez < 100; ++kez, std::this_thread::sleep_for(20ms))
    if (fs::remove_all(dizin, hata); !hata) return;
}

// Directories whose owner has been killed: nobody holds their lock. A young one may be about to take it.
void OlenlerinkiniSupur(const fs::path& ust) {
  std::error_code hata;
  for (fs::directory_iterator i(ust, hata), son; !hata && i != son; i.increment(hata)) {
    struct stat hal {};
    const std::string yol = i->path();
    if (!i->path().filename().string().starts_with(OnEk) || ::lstat(yol.c_str(), &hal) != 0 || !S_ISDIR(hal.st_mode))
      continue;
    // What the server itself does in its directory does not make that younger.
    (void)::stat(KilitYolu(yol).c_str(), &hal);
    if (::time(nullptr) - hal.st_mtime < 60 || !KilidiAl(yol).Acik()) continue;
    Kaldir(yol);
  }
}

// The account must reach it when it is not ours, so root does not ask where scratch files go.
fs::path UstDizin() {
  const fs::path gecici = fs::temp_directory_path();
  return ::geteuid() == 0 || gecici.native().size() > EnUzunDizin - OnEk.size() - 8 ? fs::path("/tmp") : gecici;
}

void HesabaGec() {
  const passwd* hesap = ::getpwnam(Hesap);
  if (hesap == nullptr || ::setgroups(0, nullptr) != 0 || ::setgid(hesap->pw_gid) != 0 || ::setuid(hesap->pw_uid) != 0)
    ::_exit(126);
}

// Starts one of the server's programs; what it says goes to `gunluk`. It is told `olumde` when this thread ends.
pid_t ProgramBaslat(const Sozler& sozler, const std::string& gunluk, int olumde) {
  const pid_t sahip = ::getpid();
  const pid_t surec = ::fork();
  if (surec != 0) return surec;
  const int cikti = ::open(gunluk.c_str(), O_CREAT | O_WRONLY | O_APPEND, 0600);
  const int bos = ::open("/dev/null", O_RDONLY);
  if (cikti < 0 || ::dup2(bos, 0) < 0 || ::dup2(cikti, 1) < 0 || ::dup2(cikti, 2) < 0) ::_exit(126);
  ::close_range(3, ~0u, 0);
  if (::geteuid() == 0) HesabaGec();
  // A change of the account takes the wish back, so it comes after that.
  ::prctl(PR_SET_PDEATHSIG, olumde);
  if (::getppid() != sahip) ::_exit(126);
  ::setenv("LC_ALL", "C.UTF-8", 1);
  ::umask(077);
  std::vector<char*> dizi;
  for (const std::string& soz : sozler) dizi.push_back(const_cast<char*>(soz.c_str()));
  dizi.push_back(nullptr);
  ::execv(dizi[0], dizi.data());
  ::_exit(127);
}

Sozler Postgres(const std::string& dizin) {
  Sozler sozler{BELVANI_POSTGRES "/postgres", "-D", dizin + "/veri", "-k", dizin};
  for (const char* ayar :
       {"listen_addresses=", "fsync=off", "full_page_writes=off", "synchronous_commit=off", "max_connections=200",
        "max_locks_per_transaction=256", "autovacuum=off", "log_timezone=UTC", "unix_socket_permissions=0777",
        "shared_buffers=64MB", "wal_level=minimal", "max_wal_senders=0"}) {
    sozler.emplace_back("-c");
    sozler.emplace_back(ayar);
  }
  return sozler;
}

}  // namespace

OzelSunucu::OzelSunucu() {
  OlenlerinkiniSupur(UstDizin());
  std::string kalip = UstDizin() / (std::string(OnEk) + "XXXXXX");
  if (::mkdtemp(kalip.data()) == nullptr) throw std::runtime_error("no scratch directory for a server: " + kalip);
  dizin_ = kalip;
  kilit_ = KilidiAl(dizin_);
  if (::geteuid() == 0) {
    const passwd* hesap = ::getpwnam(Hesap);
    if (hesap == nullptr || ::chown(dizin_.c_str(), hesap->pw_uid, hesap->pw_gid) != 0)
      throw std::runtime_error(std::string("no account for a server: ") + Hesap);
  }
  const Sozler kur{
      BELVANI_POSTGRES "/initdb", "-D",           dizin_ + "/veri", "-U", SunucuYoneticisi, "--locale=C.UTF-8",
      "--encoding=UTF8",          "--auth=trust", "--no-sync"};
  int sonuc = -1;
  ::waitpid(ProgramBaslat(kur, Gunluk(), SIGKILL), &sonuc, 0);
  if (sonuc != 0) throw std::runtime_error("initdb:\n" + DosyaOku(Gunluk()).value_or(""));
  Baslat();
}

OzelSunucu::~OzelSunucu() {
  Durdur(Durus::Ani);
  Kaldir(dizin_);
}

std::string OzelSunucu::Gunluk() const {
  return dizin_ + "/gunluk";
}

std::string OzelSunucu::Adres(const std::string& veritabani) const {
  return "postgresql:///" + veritabani + "?host=" + dizin_;
}

void OzelSunucu::Durdur(Durus durus) {
  if (surec_ <= 0) return;
  ::kill(surec_, durus == Durus::Ani ? SIGKILL : SIGINT);
  ::waitpid(surec_, nullptr, 0);
  surec_ = 0;
}

// Refused while processes of a killed one are still there: then it is begun again.
void OzelSunucu::Baslat() {
  const std::string baglanti = "host=" + dizin_ + " port=5432 dbname=postgres user=" + SunucuYoneticisi;
  const auto son = Saat::now() + EnCokBekleme;
  for (; Saat::now() < son; std::this_thread::sleep_for(10ms)) {
    if (surec_ <= 0) surec_ = ProgramBaslat(Postgres(dizin_), Gunluk(), SIGQUIT);
    if (::waitpid(surec_, nullptr, WNOHANG) != 0) surec_ = 0;
    if (surec_ > 0 && PQping(baglanti.c_str()) == PQPING_OK) return;
  }
  Durdur(Durus::Ani);
  throw std::runtime_error("postgres:\n" + DosyaOku(Gunluk()).value_or(""));
}

}  // namespace belvani::test
