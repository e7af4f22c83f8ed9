#include "core/store/pgortak.h"

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
    ortak = std::make_shared<PgOrtak>(baglanti);
  }
  return ortak;
}

}  // namespace belvani
