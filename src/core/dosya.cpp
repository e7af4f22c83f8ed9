#include "core/dosya.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr mode_t SahibineVeGruba = 0660;

// The message of a failed system call, in Turkish where the user can do something about it.
std::string SistemHatasi(int kod) {
  switch (kod) {
    case ENOSPC:
    case EDQUOT:
      return "disk dolu";
    case EACCES:
    case EPERM:
      return "yazma izni yok";
    case EROFS:
      return "disk salt okunur";
    case ENOENT:
      return "dizin bulunamadı";
    case EISDIR:
      return "bu adda bir dizin var";
    case EEXIST:
      return "bu adda bir dosya var";
    case ENOTDIR:
      return "yoldaki bir ad dizin değil";
    case EFBIG:
      return "dosya çok büyük";
    case ENAMETOOLONG:
      return "ad çok uzun";
    case EIO:
      return "disk hatası";
    default:
      return "sistem hatası " + std::to_string(kod);
  }
}

Kusur DosyaHatasi(const std::string& yol, const char* ne, int kod) {
  return Kusur{yol + ": " + ne + " (" + SistemHatasi(kod) + ")"};
}

class DosyaTutamagi {
 public:
  explicit DosyaTutamagi(int no) : no_(no) {}
  ~DosyaTutamagi() { Kapat(); }
  DosyaTutamagi(const DosyaTutamagi&) = delete;
  DosyaTutamagi& operator=(const DosyaTutamagi&) = delete;

  int No() const { return no_; }
  bool Kapat() {
    const bool tamam = no_ < 0 || ::close(no_) == 0;
    no_ = -1;
    return tamam;
  }

 private:
  int no_;
};

bool HepsiniYaz(int no, std::string_view icerik) {
  while (!icerik.empty()) {
    const ssize_t n = ::write(no, icerik.data(), icerik.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    icerik.remove_prefix(std::size_t(n));
  }
  return true;
}

// The new name of a file lasts only once its directory is on the disk.
void DiziniDiskeIndir(const std::string& dosya) {
  const fs::path dizin = fs::path(dosya).parent_path();
  const DosyaTutamagi d(::open(dizin.empty() ? "." : dizin.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (d.No() >= 0) ::fsync(d.No());
}

}  // namespace

bool DizinVar(const std::string& yol) {
  std::error_code hata;
  return fs::is_directory(yol, hata);
}

Durum DizinYarat(const std::string& yol) {
  std::error_code hata;
  fs::path olusan;
  for (const auto& parca : fs::path(yol)) {
    olusan /= parca;
    if (fs::is_directory(olusan, hata)) continue;
    fs::create_directory(olusan, hata);
    if (hata) return DosyaHatasi(olusan, "dizin yaratılamadı", hata.value());
    // By steps, so that a group inherited from the directory above stays.
    fs::permissions(olusan, fs::perms(0770), fs::perm_options::add, hata);
    fs::permissions(olusan, fs::perms::others_all, fs::perm_options::remove, hata);
  }
  return Tamam();
}

std::optional<std::string> DosyaOku(const std::string& yol, std::size_t enCokBayt) {
  std::error_code hata;
  if (!fs::is_regular_file(yol, hata)) return std::nullopt;
  std::ifstream dosya(yol, std::ios::binary);
  if (!dosya) return std::nullopt;
  std::string icerik;
  char blok[65536];
  while (dosya.read(blok, sizeof blok) || dosya.gcount() > 0) {
    icerik.append(blok, std::size_t(dosya.gcount()));
    if (icerik.size() > enCokBayt) return std::nullopt;
  }
  if (dosya.bad()) return std::nullopt;
  return icerik;
}

Durum DosyaYaz(const std::string& yol, std::string_view icerik) {
  std::string gecici = yol + ".XXXXXX";
  DosyaTutamagi dosya(::mkostemp(gecici.data(), O_CLOEXEC));
  if (dosya.No() < 0) return DosyaHatasi(yol, "dosya yazılamadı", errno);
  const bool yazildi = ::fchmod(dosya.No(), SahibineVeGruba) == 0 && HepsiniYaz(dosya.No(), icerik) &&
                       ::fsync(dosya.No()) == 0 && dosya.Kapat() && ::rename(gecici.c_str(), yol.c_str()) == 0;
  if (!yazildi) {
    const int kod = errno;
    ::unlink(gecici.c_str());
    return DosyaHatasi(yol, "dosya yazılamadı", kod);
  }
  DiziniDiskeIndir(yol);
  return Tamam();
}

std::string GeciciDosya() {
  std::error_code hata;
  const fs::path dizin = fs::temp_directory_path(hata);
  if (hata) return {};
  std::string ad = dizin / "prnXXXXXX";
  const DosyaTutamagi dosya(::mkostemp(ad.data(), O_CLOEXEC));
  return dosya.No() < 0 ? std::string() : ad;
}

std::string DizinSonu(std::string yol) {
  if (yol.empty()) return "./";
  while (yol.ends_with("//")) yol.pop_back();
  if (yol.back() != '/') yol += '/';
  return yol;
}

std::string BilgisayarAdiBul() {
  char ad[256] = {};
  return ::gethostname(ad, sizeof ad - 1) == 0 ? std::string(ad) : std::string();
}

}  // namespace belvani
