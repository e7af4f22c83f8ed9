#include "core/hedef.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include "core/bagyolu.h"
#include "core/gecici.h"
#include "core/yarimdizin.h"

namespace belvani {
namespace {

constexpr mode_t SahibineVeGruba = 0660;
constexpr mode_t KimlikKipleri = S_ISUID | S_ISGID;

DosyaTutamagi SoketAc(const std::string& yol) {
  sockaddr_un adres{};
  adres.sun_family = AF_UNIX;
  if (yol.size() >= sizeof adres.sun_path) {
    errno = ENAMETOOLONG;
    return DosyaTutamagi();
  }
  std::memcpy(adres.sun_path, yol.data(), yol.size());
  DosyaTutamagi soket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
  if (!soket.Acik() || ::connect(soket.No(), reinterpret_cast<const sockaddr*>(&adres), sizeof adres) == 0)
    return soket;
  const int kod = errno;
  soket.Kapat();
  errno = kod;
  return soket;
}

DosyaTutamagi TanimAc(int no) {
  return DosyaTutamagi(::fcntl(no, F_DUPFD_CLOEXEC, STDERR_FILENO + 1));
}

}  // namespace

HedefDosya::HedefDosya(HedefDosya&& h) noexcept
    : ad_(std::move(h.ad_)),
      yol_(std::move(h.yol_)),
      gecici_(std::exchange(h.gecici_, {})),
      dosya_(std::move(h.dosya_)) {}

HedefDosya::~HedefDosya() {
  Birak();
}

HedefDosya HedefDosya::StandartCikti() {
  HedefDosya hedef{std::string()};
  hedef.dosya_ = TanimAc(STDOUT_FILENO);
  return hedef;
}

Sonuc<HedefDosya> HedefDosya::Ac(const std::string& yol) {
  HedefDosya hedef(yol);
  const auto son = BagSonunuBul(yol);
  if (!son) return son.Kusuru();
  hedef.yol_ = son->yol;
  struct stat hal {};
  const bool var = ::stat(son->yol.c_str(), &hal) == 0;
  int kod = 0;
  if (!var && errno != ENOENT) {
    kod = errno;
  } else if (son->tanim >= 0) {
    hedef.dosya_ = TanimAc(son->tanim);
    kod = hedef.dosya_.Acik() ? 0 : errno;
  } else if (var && S_ISDIR(hal.st_mode)) {
    kod = EISDIR;
  } else if (!var || (S_ISREG(hal.st_mode) && !son->acikDosya)) {
    kod = hedef.YeniniAc(yol, var ? std::optional(Eski{hal.st_mode & 07777, hal.st_uid, hal.st_gid}) : std::nullopt);
  } else {
    kod = hedef.Baglan(son->yol, hal.st_mode);
  }
  if (kod != 0) return hedef.Hata(kod);
  return hedef;
}

// The bytes go where the path leads. Another's pipe in a directory open to all is the same trap as a link there.
int HedefDosya::Baglan(const std::string& yol, mode_t kip) {
  if (BaskasininTuzagi(yol)) return EACCES;
  dosya_ =
      S_ISSOCK(kip) ? SoketAc(yol) : DosyaTutamagi(::open(yol.c_str(), O_WRONLY | O_APPEND | O_NOCTTY | O_CLOEXEC));
  return dosya_.Acik() ? 0 : errno;
}

// A file that its user may not write is not replaced either, though its directory would allow that.
int HedefDosya::YeniniAc(const std::string& yol, const std::optional<Eski>& eski) {
  if (yol.ends_with('/')) return ENOTDIR;
  if (eski && ::faccessat(AT_FDCWD, yol_.c_str(), W_OK, AT_EACCESS) != 0) return errno;
  dosya_ = GeciciAc(yol_, gecici_);
  if (!dosya_.Acik()) {
    gecici_.clear();
    return errno;
  }
  mode_t kip = SahibineVeGruba;
  if (eski) {
    const int no = dosya_.No();
    const bool sahibi = ::fchown(no, eski->sahip, eski->grup) == 0;
    kip = sahibi || ::fchown(no, uid_t(-1), eski->grup) == 0 ? eski->kip : eski->kip & ~KimlikKipleri;
    if (!sahibi) kip &= ~mode_t(S_ISUID);
  }
  return ::fchmod(dosya_.No(), kip) == 0 ? 0 : errno;
}

bool HedefDosya::Terminal() const {
  return ::isatty(dosya_.No()) == 1;
}

Kusur HedefDosya::Hata(int kod) const {
  if (ad_.empty()) return Kusur{"Çıktı yazılamadı (" + SistemHatasi(kod) + ")"};
  return DosyaHatasi(ad_, "dosya yazılamadı", kod);
}

Durum HedefDosya::Ekle(std::string_view baytlar) {
  if (!HepsiniYaz(dosya_.No(), baytlar)) return Hata(errno);
  return Tamam();
}

Durum HedefDosya::Bitir() {
  const int kod = gecici_.empty() ? (dosya_.Kapat() ? 0 : errno) : YerineKoy();
  if (kod != 0) return Hata(kod);
  return Tamam();
}

int HedefDosya::YerineKoy() {
  if (::fsync(dosya_.No()) != 0 || !dosya_.Kapat() || ::rename(gecici_.c_str(), yol_.c_str()) != 0) return errno;
  gecici_.clear();
  DiziniDiskeIndir(std::filesystem::path(yol_).parent_path());
  return 0;
}

void HedefDosya::Birak() {
  if (!gecici_.empty()) ::unlink(gecici_.c_str());
  gecici_.clear();
}

Durum HedefeYaz(const std::string& yol, std::string_view baytlar) {
  auto hedef = HedefDosya::Ac(yol);
  if (!hedef) return hedef.Kusuru();
  if (Durum durum = hedef->Ekle(baytlar); !durum) return durum;
  return hedef->Bitir();
}

}  // namespace belvani
