#include "core/store/depokopyasi.h"

#include <array>
#include <chrono>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <utility>

#include "core/store/pgmotor.h"
#include "core/store/sqlitemotor.h"
#include "core/sunucuadresi.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr const char* KopyaAdi = "depo";
// The file and what the engine keeps of it beside it. Its shared memory is made anew for the copy.
constexpr std::array<const char*, 3> Ekler{"", "-wal", "-journal"};

struct KopyaIzi {
  dev_t disk;
  ino_t no;
  off_t boy;
  std::int64_t saniye;
  std::int64_t nano;

  bool operator==(const KopyaIzi&) const = default;
};
using Izler = std::array<std::optional<KopyaIzi>, Ekler.size()>;

// Opened for it: a network file system looks anew at a file that is opened, and may remember what it once saw of
// others.
std::optional<KopyaIzi> IzAl(const std::string& yol) {
  const int no = ::open(yol.c_str(), O_RDONLY | O_CLOEXEC);
  if (no < 0) return std::nullopt;
  struct stat s {};
  const bool okundu = ::fstat(no, &s) == 0;
  ::close(no);
  if (!okundu) return std::nullopt;
  return KopyaIzi{s.st_dev, s.st_ino, s.st_size, s.st_mtim.tv_sec, s.st_mtim.tv_nsec};
}

Izler IzleriAl(const std::string& yol) {
  Izler izler;
  for (std::size_t i = 0; i < Ekler.size(); ++i) izler[i] = IzAl(yol + Ekler[i]);
  return izler;
}

Durum Kopyala(const std::string& kaynak, const std::string& hedef) {
  std::error_code hata;
  fs::remove(hedef, hata);
  fs::copy_file(kaynak, hedef, hata);
  if (hata == std::errc::no_space_on_device) return Kusur{"Kopyası için geçici dizinde yer yok: " + hedef};
  if (hata) return Kusur{"Kopyası alınamadı: " + kaynak};
  fs::permissions(hedef, fs::perms::owner_read | fs::perms::owner_write, hata);
  return Tamam();
}

}  // namespace

bool DepoYazilir(const std::string& yol) {
  if (SunucuAdresiMi(yol)) {
    const auto adres = SunucuAdresiCoz(yol);
    return !adres || PgYazilir(*adres);
  }
  const std::string ust = fs::path(yol).parent_path();
  const auto yazilmaz = [](const std::string& ne) {
    return ::faccessat(AT_FDCWD, ne.c_str(), F_OK, AT_EACCESS) == 0 &&
           ::faccessat(AT_FDCWD, ne.c_str(), W_OK, AT_EACCESS) != 0;
  };
  return !yazilmaz(yol) && !yazilmaz(ust.empty() ? "." : ust);
}

DepoKopyasi::DepoKopyasi(DepoKopyasi&& k) noexcept : dizin_(std::exchange(k.dizin_, {})) {}

DepoKopyasi::~DepoKopyasi() {
  std::error_code hata;
  if (!dizin_.empty()) fs::remove_all(dizin_, hata);
}

std::string DepoKopyasi::Yol() const {
  return dizin_ + "/" + KopyaAdi;
}

std::unique_ptr<Motor> DepoKopyasi::Ac() const {
  return SqliteKopyasiAc(Yol());
}

// The files are looked at before and after; a pause in front lets a clock pass that counts in steps, so that a write
// between two reads cannot bear the time of one before them.
Sonuc<DepoKopyasi> DepoKopyasi::Al(const std::string& yol) {
  constexpr int enCokDeneme = 40;
  constexpr std::chrono::milliseconds ara{25};
  std::error_code hata;
  std::string dizin = fs::temp_directory_path(hata) / "belvani-XXXXXX";
  if (hata || ::mkdtemp(dizin.data()) == nullptr) return Kusur{"Geçici dizin yaratılamadı: " + dizin};
  DepoKopyasi kopya(std::move(dizin));
  for (int deneme = 0; deneme < enCokDeneme; ++deneme) {
    const Izler once = IzleriAl(yol);
    std::this_thread::sleep_for(ara);
    Durum alindi = Tamam();
    for (std::size_t i = 0; i < Ekler.size(); ++i) {
      fs::remove(kopya.Yol() + Ekler[i], hata);
      if (alindi && (once[i] || i == 0)) alindi = Kopyala(yol + Ekler[i], kopya.Yol() + Ekler[i]);
    }
    if (IzleriAl(yol) != once) continue;
    if (!alindi) return alindi.Kusuru();
    return kopya;
  }
  return Kusur{"Kopyası alınamadı, başkaları aralıksız yazıyor: " + yol};
}

std::unique_ptr<Motor> MotorBak(const std::string& yol) {
  try {
    auto motor = MotorAc(yol);
    motor->SaltOkunurYap();
    return motor;
  } catch (const MotorHatasi&) {
    if (SunucuAdresiMi(yol) || DepoYazilir(yol)) throw;
  }
  auto kopya = DepoKopyasi::Al(yol);
  if (!kopya) throw MotorHatasi(MotorKusuru::Acilamadi, kopya.KusurMetni());
  auto motor = kopya->Ac();
  motor->SaltOkunurYap();
  return motor;
}

}  // namespace belvani
