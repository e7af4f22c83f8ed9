#include "core/store/pgortak.h"

#include <chrono>
#include <unistd.h>

#include "core/store/pgsunucu.h"

namespace belvani {

PgOrtak::PgOrtak(const std::string& baglanti) : b(baglanti) {
  PgSunucuyuDenetle(b);
  b.Yurut("listen belvani_dosya");
}

const DosyaHali* PgOrtak::Bilinen(const std::string& ad) {
  if (b.DuyuruGeldi()) dosyalar_.clear();
  const auto bilinen = dosyalar_.find(ad);
  return bilinen == dosyalar_.end() ? nullptr : &bilinen->second;
}

namespace {

using Saat = std::chrono::steady_clock;

constexpr std::chrono::seconds YavasHata{2};  // a network that does not answer
constexpr std::chrono::seconds HatayiHatirla{5};

// A way that was long in failing is not tried again by each of the questions that follow at once.
struct YavasKopus {
  Saat::time_point an;
  MotorHatasi hata;
};

std::shared_ptr<PgOrtak> Baglan(const std::string& baglanti) {
  static std::map<std::string, YavasKopus> kopuslar;
  if (const auto kopus = kopuslar.find(baglanti); kopus != kopuslar.end()) {
    if (Saat::now() - kopus->second.an < HatayiHatirla) throw kopus->second.hata;
    kopuslar.erase(kopus);
  }
  const auto bas = Saat::now();
  try {
    return std::make_shared<PgOrtak>(baglanti);
  } catch (const MotorHatasi& h) {
    if (h.tur == MotorKusuru::Koptu && Saat::now() - bas > YavasHata) kopuslar.insert({baglanti, {Saat::now(), h}});
    throw;
  }
}

}  // namespace

std::shared_ptr<PgOrtak> PgOrtakAl(const std::string& baglanti) {
  // Connections of the program that this one was forked from are left to it: closing them would end them for it.
  static pid_t surec = ::getpid();
  static auto* ortaklar = new std::map<std::string, std::shared_ptr<PgOrtak>>;
  if (surec != ::getpid()) {
    surec = ::getpid();
    ortaklar = new std::map<std::string, std::shared_ptr<PgOrtak>>;
  }
  std::shared_ptr<PgOrtak>& ortak = (*ortaklar)[baglanti];
  if (ortak == nullptr || !ortak->b.Acik()) {
    ortak.reset();
    ortak = Baglan(baglanti);
  }
  return ortak;
}

}  // namespace belvani
