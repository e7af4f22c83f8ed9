#include "core/bagyolu.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <linux/magic.h>
#include <optional>
#include <string_view>
#include <sys/stat.h>
#include <sys/vfs.h>
#include <unistd.h>

#include "core/sayi.h"
#include "core/tutamak.h"

namespace belvani {
namespace {

constexpr int EnCokBag = 40;

std::string UstDizin(const std::string& yol) {
  const auto ayrac = yol.rfind('/') + 1;
  return ayrac == 0 ? "." : yol.substr(0, ayrac);
}

std::optional<std::string> BagOku(const std::string& yol) {
  std::string hedef(PATH_MAX, '\0');
  const ssize_t n = ::readlink(yol.c_str(), hedef.data(), hedef.size());
  if (n <= 0) return std::nullopt;
  hedef.resize(std::size_t(n));
  return hedef;
}

// A link below /proc/PID/fd stands for an open file, whatever its text says.
bool AcikDosyaBagi(const std::string& ust) {
  struct statfs dizge {};
  return ust.ends_with("/fd/") && ::statfs(ust.c_str(), &dizge) == 0 && dizge.f_type == PROC_SUPER_MAGIC;
}

BagSonu AcikDosya(const std::string& ust, const std::string& ad) {
  const auto no = TamSayiOku(ad);
  const bool bizim = ust == "/proc/" + std::to_string(::getpid()) + "/fd/";
  return {.yol = ust + ad, .tanim = bizim && no ? int(*no) : -1, .acikDosya = true};
}

// The path before the name at hand has no links any more; the rest still may.
class Yuruyus {
 public:
  explicit Yuruyus(const std::string& yol) : ust_(yol.starts_with('/') ? "/" : ""), kalan_(yol) {}

  // 0 or the number of the failure.
  int Yuru() {
    while (AdAl()) {
      struct stat hal {};
      const bool var = ::lstat((ust_ + ad_).c_str(), &hal) == 0;
      if (!var && (errno != ENOENT || !SonAd())) return errno;
      if (var && S_ISLNK(hal.st_mode)) {
        if (AcikDosyaBagi(ust_) && SonAd()) return 0;
        if (const int kod = BagaGir(); kod != 0) return kod;
      } else if (!SonAd()) {
        ust_ += ad_ + "/";
      } else {
        return 0;
      }
    }
    return EISDIR;  // nothing but separators and points
  }

  bool Tuzak() const { return tuzak_; }
  BagSonu Sonu() const { return AcikDosyaBagi(ust_) ? AcikDosya(ust_, ad_) : BagSonu{.yol = ust_ + ad_}; }

 private:
  bool AdAl() {
    do {
      kalan_.erase(0, std::min(kalan_.find_first_not_of('/'), kalan_.size()));
      ad_ = kalan_.substr(0, kalan_.find('/'));
      kalan_.erase(0, ad_.size());
    } while (ad_ == ".");
    return !ad_.empty();
  }
  // What is left are separators and points.
  bool SonAd() const {
    std::string_view kalan = kalan_;
    while (kalan.starts_with('/')) {
      kalan.remove_prefix(1);
      if (kalan == "." || kalan.starts_with("./")) kalan.remove_prefix(1);
    }
    return kalan.empty();
  }

  int BagaGir() {
    if (++bag_ > EnCokBag) return ELOOP;
    tuzak_ = BaskasininTuzagi(ust_ + ad_);
    const auto hedef = BagOku(ust_ + ad_);
    if (tuzak_ || !hedef) return EACCES;
    kalan_ = *hedef + "/" + kalan_;
    if (hedef->starts_with('/')) ust_ = "/";
    return 0;
  }

  std::string ust_, ad_, kalan_;
  int bag_ = 0;
  bool tuzak_ = false;
};

}  // namespace

bool BaskasininTuzagi(const std::string& yol) {
  struct stat hal {
  }, ust{};
  if (::lstat(yol.c_str(), &hal) != 0 || ::stat(UstDizin(yol).c_str(), &ust) != 0) return false;
  const bool ortak = (ust.st_mode & S_ISVTX) != 0;
  return ortak && hal.st_uid != ::geteuid() && hal.st_uid != ust.st_uid;
}

Sonuc<BagSonu> BagSonunuBul(const std::string& yol) {
  Yuruyus yuruyus(yol);
  const int kod = yuruyus.Yuru();
  if (yuruyus.Tuzak()) return Kusur{yol + ": dosya yazılamadı (ortak bir dizine başkasının koyduğu bir bağ)"};
  if (kod != 0) return DosyaHatasi(yol, "dosya yazılamadı", kod);
  return yuruyus.Sonu();
}

}  // namespace belvani
