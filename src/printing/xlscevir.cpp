#include "printing/xlscevir.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

#include "core/dosya.h"

namespace belvani {
namespace {

constexpr std::string_view BilesikDosya = "\xd0\xcf\x11\xe0";
constexpr auto EnUzunBekleme = std::chrono::seconds(60);
constexpr auto YoklamaAraligi = std::chrono::milliseconds(20);
constexpr const char* Cevrilmedi = "Çalışma kitabı .xlsx biçimine çevrilemedi";

// A directory of one conversion: what comes out of it, and the settings of the office program, so that one which the
// user has open does not take the work over.
class CalismaDizini {
 public:
  CalismaDizini() {
    std::string kalip = (std::filesystem::temp_directory_path(hata_) / "belvani-XXXXXX").string();
    if (!hata_ && ::mkdtemp(kalip.data()) != nullptr) yol_ = kalip;
  }
  ~CalismaDizini() {
    if (!yol_.empty()) std::filesystem::remove_all(yol_, hata_);
  }
  CalismaDizini(const CalismaDizini&) = delete;
  CalismaDizini& operator=(const CalismaDizini&) = delete;

  const std::string& Yol() const { return yol_; }

 private:
  std::error_code hata_;
  std::string yol_;
};

// Without a terminal, in a group of its own, so that the programs which it starts end with it.
pid_t Baslat(std::vector<std::string> komut) {
  std::vector<char*> arguman;
  arguman.reserve(komut.size() + 1);
  for (auto& parca : komut) arguman.push_back(parca.data());
  arguman.push_back(nullptr);
  posix_spawn_file_actions_t dosyalar;
  posix_spawnattr_t nitelik;
  ::posix_spawn_file_actions_init(&dosyalar);
  ::posix_spawnattr_init(&nitelik);
  ::posix_spawn_file_actions_addopen(&dosyalar, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  ::posix_spawn_file_actions_addopen(&dosyalar, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
  ::posix_spawn_file_actions_addopen(&dosyalar, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  ::posix_spawnattr_setflags(&nitelik, POSIX_SPAWN_SETPGROUP);
  ::posix_spawnattr_setpgroup(&nitelik, 0);
  pid_t cocuk = -1;
  if (::posix_spawnp(&cocuk, arguman[0], &dosyalar, &nitelik, arguman.data(), environ) != 0) cocuk = -1;
  ::posix_spawn_file_actions_destroy(&dosyalar);
  ::posix_spawnattr_destroy(&nitelik);
  return cocuk;
}

bool Bekle(pid_t cocuk) {
  const auto son = std::chrono::steady_clock::now() + EnUzunBekleme;
  int durum = 0;
  while (true) {
    const pid_t biten = ::waitpid(cocuk, &durum, WNOHANG);
    if (biten == cocuk) return WIFEXITED(durum) && WEXITSTATUS(durum) == 0;
    if (biten < 0) return false;
    if (std::chrono::steady_clock::now() > son) break;
    std::this_thread::sleep_for(YoklamaAraligi);
  }
  ::kill(-cocuk, SIGKILL);
  ::waitpid(cocuk, &durum, 0);
  return false;
}

}  // namespace

bool XlsMi(std::string_view baytlar) {
  return baytlar.starts_with(BilesikDosya);
}

Sonuc<std::string> XlsxeCevir(const std::string& dosya, const std::string& program) {
  const CalismaDizini dizin;
  std::error_code hata;
  const std::filesystem::path kaynak = std::filesystem::absolute(dosya, hata);
  if (hata || dizin.Yol().empty()) return Kusur{Cevrilmedi};
  const pid_t cocuk = Baslat({program, "-env:UserInstallation=file://" + dizin.Yol() + "/ayar", "--headless",
                              "--convert-to", "xlsx", "--outdir", dizin.Yol(), kaynak.string()});
  if (cocuk < 0 || !Bekle(cocuk)) return Kusur{Cevrilmedi};
  auto baytlar = DosyaOku(dizin.Yol() + "/" + kaynak.stem().string() + ".xlsx");
  if (!baytlar || baytlar->empty()) return Kusur{Cevrilmedi};
  return std::move(*baytlar);
}

}  // namespace belvani
