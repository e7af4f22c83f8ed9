#include "core/dosya.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

#include "core/gecici.h"
#include "core/tutamak.h"
#include "core/yarimdizin.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr mode_t SahibineVeGruba = 0660;

// Settings of a machine, which all its accounts read, must not be closed to them even for a moment: a file that all
// may read, in a directory that all may read, stays so.
mode_t HerkeseAcikligi(const std::string& hedef) {
  struct stat hal {
  }, dizin{};
  const std::string ust = fs::path(hedef).parent_path();
  if (::stat(hedef.c_str(), &hal) != 0 || ::stat(ust.empty() ? "." : ust.c_str(), &dizin) != 0) return 0;
  return hal.st_mode & dizin.st_mode & S_IROTH;
}

// A new file beside `hedef` with this content, on the disk; 0 or the number of the failure, which leaves no file.
int YeniDosya(const std::string& hedef, std::string& gecici, std::string_view icerik) {
  DosyaTutamagi dosya = GeciciAc(hedef, gecici);
  if (!dosya.Acik()) return errno;
  if (::fchmod(dosya.No(), SahibineVeGruba | HerkeseAcikligi(hedef)) == 0 && HepsiniYaz(dosya.No(), icerik) &&
      ::fsync(dosya.No()) == 0 && dosya.Kapat())
    return 0;
  const int kod = errno;
  ::unlink(gecici.c_str());
  return kod;
}

// 0 or the number of the failure, which leaves the old file as it was.
int YerineYaz(const std::string& hedef, std::string_view icerik) {
  std::string gecici;
  int kod = YeniDosya(hedef, gecici, icerik);
  if (kod == 0 && ::rename(gecici.c_str(), hedef.c_str()) != 0) {
    kod = errno;
    ::unlink(gecici.c_str());
  }
  return kod;
}

constexpr std::string_view BekleyenDizin = ".bekleyen";

// Sets that were given up before they were whole.
void YarimlariSupur(const std::string& dizin) {
  std::error_code hata;
  for (fs::directory_iterator i(dizin, hata), son; !hata && i != son; i.increment(hata)) {
    std::error_code gecilen;
    if (i->path().filename().string().starts_with(std::string(BekleyenDizin) + "-")) fs::remove_all(i->path(), gecilen);
  }
}

Durum YarimKumeYaz(const std::string& dizin, const std::string& yarim, const std::vector<AdliDosya>& dosyalar) {
  for (const AdliDosya& dosya : dosyalar) {
    const std::string hedef = dizin + dosya.ad;
    if (DizinVar(hedef)) return DosyaHatasi(hedef, "dosya yazılamadı", EISDIR);
    if (const int kod = YerineYaz(yarim + "/" + dosya.ad, dosya.baytlar); kod != 0)
      return DosyaHatasi(hedef, "dosya yazılamadı", kod);
  }
  DiziniDiskeIndir(yarim);
  return Tamam();
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
    const bool yeni = fs::create_directory(olusan, hata);
    if (hata) return DosyaHatasi(olusan, "dizin yaratılamadı", hata.value());
    if (!yeni) continue;  // it was there, whatever the first look said: its permissions are not ours
    // By steps, so that a group inherited from the directory above stays.
    fs::permissions(olusan, fs::perms(0770), fs::perm_options::add, hata);
    fs::permissions(olusan, fs::perms::others_all, fs::perm_options::remove, hata);
    DiziniDiskeIndir(olusan.parent_path());
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
  if (const int kod = YerineYaz(yol, icerik); kod != 0) return DosyaHatasi(yol, "dosya yazılamadı", kod);
  DiziniDiskeIndir(fs::path(yol).parent_path());
  return Tamam();
}

std::string BekleyenDosya(const std::string& dizin, std::string_view ad) {
  return DizinSonu(dizin) + std::string(BekleyenDizin) + "/" + std::string(ad);
}

Durum BekleyenleriYerlestir(const std::string& dizin) {
  const std::string kok = DizinSonu(dizin), bekleyen = kok + std::string(BekleyenDizin);
  std::error_code hata;
  if (!fs::is_directory(bekleyen, hata)) return Tamam();
  std::vector<std::string> adlar;
  for (fs::directory_iterator i(bekleyen, hata), son; !hata && i != son; i.increment(hata))
    adlar.push_back(i->path().filename());
  for (const std::string& ad : adlar)
    if (::rename((bekleyen + "/" + ad).c_str(), (kok + ad).c_str()) != 0 && errno != ENOENT)
      return DosyaHatasi(kok + ad, "dosya yazılamadı", errno);
  DiziniDiskeIndir(kok);
  fs::remove(bekleyen, hata);
  return Tamam();
}

Durum DosyalariYaz(const std::string& dizin, const std::vector<AdliDosya>& dosyalar) {
  const std::string kok = DizinSonu(dizin), bekleyen = kok + std::string(BekleyenDizin);
  if (auto durum = BekleyenleriYerlestir(kok); !durum) return durum;
  YarimlariSupur(kok);
  std::string yarim = bekleyen + "-XXXXXX";
  if (::mkdtemp(yarim.data()) == nullptr) return DosyaHatasi(kok, "dosya yazılamadı", errno);
  std::error_code hata;
  fs::permissions(yarim, fs::perms(0770), fs::perm_options::add, hata);
  Durum durum = YarimKumeYaz(kok, yarim, dosyalar);
  if (durum && ::rename(yarim.c_str(), bekleyen.c_str()) != 0) durum = DosyaHatasi(kok, "dosya yazılamadı", errno);
  if (!durum) {
    fs::remove_all(yarim, hata);
    return durum;
  }
  DiziniDiskeIndir(kok);
  // The set holds already; what cannot move now is read where it waits, and moves with the next write.
  (void)BekleyenleriYerlestir(kok);
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
