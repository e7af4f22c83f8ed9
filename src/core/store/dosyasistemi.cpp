#include "core/store/dosyasistemi.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

namespace belvani {
namespace {

constexpr std::array<std::string_view, 24> PaylasilanTurler{
    "nfs",   "nfs4",   "cifs",   "smb3",   "smbfs",    "ncpfs",    "afs",   "9p",
    "ceph",  "lustre", "beegfs", "gfs2",   "ocfs2",    "orangefs", "pvfs2", "coda",
    "davfs", "vboxsf", "vmhgfs", "prl_fs", "virtiofs", "drvfs",    "gpfs",  "glusterfs"};

// Programs serve these file systems. Most of them reach over the network, so one that is not known does; these do not.
constexpr std::string_view ProgramOnEki = "fuse.";
constexpr std::array<std::string_view, 12> YerelProgramlar{"bindfs",   "encfs",     "cryfs",          "gocryptfs",
                                                           "mergerfs", "ntfs-3g",   "lxcfs",          "unionfs",
                                                           "exfat",    "veracrypt", "fuse-overlayfs", "ecryptfs"};

std::vector<std::string_view> Sozcukler(std::string_view satir) {
  std::vector<std::string_view> sozcukler;
  for (std::size_t i = 0; i < satir.size();) {
    const std::size_t son = std::min(satir.find(' ', i), satir.size());
    if (son > i) sozcukler.push_back(satir.substr(i, son - i));
    i = son + 1;
  }
  return sozcukler;
}

// The table writes blanks and backslashes of a path as three octal digits.
std::string YoluCoz(std::string_view yazilan) {
  const auto rakam = [](char c) { return c >= '0' && c <= '7'; };
  std::string yol;
  for (std::size_t i = 0; i < yazilan.size(); ++i) {
    const std::string_view kalan = yazilan.substr(i);
    if (kalan.size() >= 4 && kalan[0] == '\\' && std::all_of(kalan.begin() + 1, kalan.begin() + 4, rakam)) {
      yol += char((kalan[1] - '0') * 64 + (kalan[2] - '0') * 8 + (kalan[3] - '0'));
      i += 3;
    } else {
      yol += yazilan[i];
    }
  }
  return yol;
}

bool Icinde(std::string_view yol, std::string_view dizin) {
  if (!yol.starts_with(dizin)) return false;
  return dizin.ends_with('/') || yol.size() == dizin.size() || yol[dizin.size()] == '/';
}

}  // namespace

// A line: number, parent, device, root, place, options, any further words up to "-", type, source, …
std::string DosyaSistemiTuru(std::string_view tablo, std::string_view yol) {
  std::string tur;
  std::size_t enUzun = 0;
  for (std::size_t i = 0; i < tablo.size();) {
    const std::size_t son = std::min(tablo.find('\n', i), tablo.size());
    const auto sozcukler = Sozcukler(tablo.substr(i, son - i));
    i = son + 1;
    const auto ayrac = std::find(sozcukler.begin(), sozcukler.end(), "-");
    if (ayrac - sozcukler.begin() < 5 || sozcukler.end() - ayrac < 2) continue;
    const std::string yer = YoluCoz(sozcukler[4]);
    if (!Icinde(yol, yer) || yer.size() < enUzun) continue;
    enUzun = yer.size();
    tur = *(ayrac + 1);
  }
  return tur;
}

bool PaylasilanTur(std::string_view tur) {
  if (!tur.starts_with(ProgramOnEki))
    return std::find(PaylasilanTurler.begin(), PaylasilanTurler.end(), tur) != PaylasilanTurler.end();
  const std::string_view program = tur.substr(ProgramOnEki.size());
  return std::find(YerelProgramlar.begin(), YerelProgramlar.end(), program) == YerelProgramlar.end();
}

bool PaylasilanDiskte(const std::string& yol) {
  std::error_code hata;
  const std::string gercek = std::filesystem::canonical(yol, hata);
  if (hata) return false;
  const char* ortam = std::getenv("BELVANI_BAGLAMALAR");
  std::ifstream dosya(ortam == nullptr ? "/proc/self/mountinfo" : ortam, std::ios::binary);
  const std::string tablo{std::istreambuf_iterator<char>(dosya), {}};
  return PaylasilanTur(DosyaSistemiTuru(tablo, gercek));
}

}  // namespace belvani
