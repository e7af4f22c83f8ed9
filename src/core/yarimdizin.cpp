#include "core/yarimdizin.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "core/dosya.h"
#include "core/tutamak.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view OnEk = ".kurulan-";
constexpr std::string_view DonenOnEk = ".donen-";
constexpr std::string_view DegisenOnEk = ".degisen-";  // what another takes the place of, between two renames
constexpr std::size_t RastgeleEk = std::string_view("-XXXXXX").size();

// The directory with its lock, -1 when it is not there or someone is at it.
int Kilitle(const std::string& yol) {
  const int no = ::open(yol.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (no < 0 || ::flock(no, LOCK_EX | LOCK_NB) == 0) return no;
  ::close(no);
  return -1;
}

// 0, or the number of the failure. Where the file system knows no such rename, the name is taken by an empty directory
// of ours first: nobody else can take it meanwhile, and only a kill in between leaves it behind.
int UzerineYazmadanAdlandir(const std::string& eski, const std::string& yeni) {
  if (::renameat2(AT_FDCWD, eski.c_str(), AT_FDCWD, yeni.c_str(), RENAME_NOREPLACE) == 0) return 0;
  if (errno != EINVAL && errno != ENOSYS) return errno;
  if (::mkdir(yeni.c_str(), 0700) != 0) return errno;
  if (::rename(eski.c_str(), yeni.c_str()) == 0) return 0;
  const int kod = errno;
  ::rmdir(yeni.c_str());
  return kod;
}

// The new one into the place of the old one, which is at `yan` afterwards; 0, or the number of the failure.
int IkiAdimdaDegis(const std::string& yeni, const std::string& yer, const std::string& yan) {
  const int kilit = Kilitle(yer);  // the next start leaves it alone while this program lives
  if (kilit < 0) return EBUSY;
  int kod = ::rename(yer.c_str(), yan.c_str()) == 0 ? 0 : errno;
  if (kod == 0 && ::rename(yeni.c_str(), yer.c_str()) != 0) {
    kod = errno;
    ::rename(yan.c_str(), yer.c_str());
  }
  ::close(kilit);
  return kod;
}

Durum YalnizDosyaVar(const std::string& yol) {
  std::error_code hata;
  for (fs::directory_iterator i(yol, hata), son; !hata && i != son; i.increment(hata))
    if (i->symlink_status(hata).type() == fs::file_type::directory)
      return Kusur{"Şirket dizininde alt dizin var, hiçbir dosya silinmedi:\n" + i->path().string()};
  return hata ? Durum(Kusur{"Şirket dizini okunamadı, hiçbir dosya silinmedi:\n" + yol}) : Tamam();
}

}  // namespace

void DiziniDiskeIndir(const std::string& dizin) {
  const int no = ::open(dizin.empty() ? "." : dizin.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (no < 0) return;
  ::fsync(no);
  ::close(no);
}

YarimDizin::YarimDizin(std::string ust, std::string ad, std::string yarim)
    : ust_(std::move(ust)), ad_(std::move(ad)), yarim_(std::move(yarim)), kilit_(Kilitle(ust_ + yarim_)) {}

YarimDizin::YarimDizin(YarimDizin&& y) noexcept
    : ust_(std::move(y.ust_)),
      ad_(std::move(y.ad_)),
      yarim_(std::exchange(y.yarim_, {})),
      kilit_(std::exchange(y.kilit_, -1)) {}

YarimDizin::~YarimDizin() {
  std::error_code hata;
  if (!yarim_.empty()) fs::remove_all(ust_ + yarim_, hata);
  if (kilit_ >= 0) ::close(kilit_);
}

Sonuc<YarimDizin> YarimDizin::Ac(const std::string& ust, const std::string& ad, YarimTuru tur) {
  const std::string kok = DizinSonu(ust);
  if (auto durum = DizinYarat(kok); !durum) return durum.Kusuru();
  std::string yol = kok + std::string(tur == YarimTuru::Donen ? DonenOnEk : OnEk) + ad + "-XXXXXX";
  if (::mkdtemp(yol.data()) == nullptr) return DosyaHatasi(kok, "dizin yaratılamadı", errno);
  YarimDizin yarim(kok, ad, yol.substr(kok.size()));
  std::error_code hata;
  fs::permissions(yol, fs::perms(0770), fs::perm_options::add, hata);
  return yarim;
}

Durum YarimDizin::Adlandir() {
  DiziniDiskeIndir(Yol());
  if (const int kod = UzerineYazmadanAdlandir(ust_ + yarim_, ust_ + ad_); kod != 0)
    return DosyaHatasi(ust_ + ad_, "dizin yaratılamadı", kod);
  yarim_.clear();
  ::close(std::exchange(kilit_, -1));  // it is a place like any other now
  DiziniDiskeIndir(ust_);
  return Tamam();
}

Durum YarimDizin::YerineGec() {
  DiziniDiskeIndir(Yol());
  const std::string yeni = ust_ + yarim_, yer = ust_ + ad_;
  int kod = ::renameat2(AT_FDCWD, yeni.c_str(), AT_FDCWD, yer.c_str(), RENAME_EXCHANGE) == 0 ? 0 : errno;
  if (kod == EINVAL || kod == ENOSYS) {
    const std::string yan = std::string(DegisenOnEk) + ad_;
    kod = IkiAdimdaDegis(yeni, yer, ust_ + yan);
    if (kod == 0) yarim_ = yan;
  }
  if (kod != 0) return Kusur{yer + ": dizinin yerine yenisi konamadı"};
  ::close(kilit_);
  kilit_ = Kilitle(ust_ + yarim_);
  DiziniDiskeIndir(ust_);
  return Tamam();
}

void YarimDegisimleriBitir(const std::string& ust) {
  const std::string kok = DizinSonu(ust);
  std::vector<std::string> adlar;
  std::error_code hata;
  for (fs::directory_iterator i(kok, hata), son; !hata && i != son; i.increment(hata)) {
    const std::string ad = i->path().filename();
    if (ad.starts_with(DonenOnEk) || ad.starts_with(DegisenOnEk)) adlar.push_back(ad);
  }
  for (const std::string& ad : adlar) {
    const int no = Kilitle(kok + ad);
    if (no < 0) continue;
    const bool geriDondu =
        ad.starts_with(DegisenOnEk) && UzerineYazmadanAdlandir(kok + ad, kok + ad.substr(DegisenOnEk.size())) == 0;
    if (!geriDondu) fs::remove_all(kok + ad, hata);
    ::close(no);
  }
}

bool YarimDizinAdi(std::string_view ad) {
  return ad.starts_with(OnEk) && ad.find('/') == std::string_view::npos;
}

bool YarimDizinAdi(std::string_view ad, std::string_view kimin) {
  return YarimDizinAdi(ad) && ad.size() == OnEk.size() + kimin.size() + RastgeleEk &&
         ad.substr(OnEk.size()).starts_with(kimin);
}

std::vector<std::string> YarimDizinler(const std::string& ust) {
  std::vector<std::string> adlar;
  std::error_code hata;
  for (fs::directory_iterator i(ust, hata), son; !hata && i != son; i.increment(hata)) {
    std::string ad = i->path().filename();
    if (!YarimDizinAdi(ad)) continue;
    const int no = Kilitle(i->path());
    if (no < 0) continue;
    ::close(no);
    adlar.push_back(std::move(ad));
  }
  std::sort(adlar.begin(), adlar.end());
  return adlar;
}

Sonuc<std::string> YarimDizineCevir(const std::string& ust, const std::string& ad) {
  const std::string kok = DizinSonu(ust);
  if (auto durum = YalnizDosyaVar(kok + ad); !durum) return durum.Kusuru();
  std::string yol = kok + std::string(OnEk) + ad + "-XXXXXX";
  if (::mkdtemp(yol.data()) == nullptr || ::rename((kok + ad).c_str(), yol.c_str()) != 0) {
    ::rmdir(yol.c_str());
    return Kusur{"Şirket silinemedi, silinemeyen: " + kok + ad};
  }
  DiziniDiskeIndir(kok);
  return yol.substr(kok.size());
}

Durum YarimDiziniSil(const std::string& ust, const std::string& ad) {
  const std::string yol = DizinSonu(ust) + ad;
  const int no = YarimDizinAdi(ad) ? Kilitle(yol) : -1;
  if (no < 0) return Kusur{"Bu dizin şu anda kullanılıyor, hiçbir dosya silinmedi:\n" + yol};
  std::error_code hata;
  fs::remove_all(yol, hata);
  ::close(no);
  if (hata) return Kusur{"Şirket silinemedi, silinemeyen: " + yol};
  DiziniDiskeIndir(ust);
  return Tamam();
}

}  // namespace belvani
