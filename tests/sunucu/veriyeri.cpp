#include "veriyeri.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <unistd.h>

#include "core/veriyolu.h"
#include "sunucu/sablon.h"

namespace belvani::test {
namespace {

constexpr const char* Degisken = "BELVANI_TEST_SUNUCU";

// Of this process and no other one's: several run at once.
std::string YeniAd() {
  static int sayac = 0;
  return "t" + std::to_string(::getpid()) + "_" + std::to_string(++sayac);
}

// Settings of who runs the tests must not lead elsewhere.
void OrtamiTemizle() {
  for (const char* ad : {"PGHOST", "PGHOSTADDR", "PGPORT", "PGUSER", "PGDATABASE", "PGSERVICE", "PGOPTIONS",
                         "PGPASSFILE", "PGPASSWORD", "PGSSLMODE"})
    ::unsetenv(ad);
}

}  // namespace

// What is named may be a link that leads there: a socket's path must be short.
std::string SunucuDizini() {
  return std::filesystem::canonical(std::getenv(Degisken));
}

bool SunucudaMi() {
  const char* deger = std::getenv(Degisken);
  return deger != nullptr && *deger != '\0';
}

VeriYeri::VeriYeri() : dizin_(SunucudaMi() ? nullptr : std::make_unique<GeciciDizin>()) {
  dizin_ ? DizindeAc(dizin_->Yol()) : SunucudaAc();
}

VeriYeri::VeriYeri(const std::string& dizin) {
  SunucudaMi() ? SunucudaAc() : DizindeAc(dizin);
}

void VeriYeri::DizindeAc(const std::string& dizin) {
  adres_ = yer_ = dizin;
}

void VeriYeri::SunucudaAc() {
  OrtamiTemizle();
  veritabani_ = YeniAd();
  const std::string dizin = SunucuDizini();
  SablondanYarat(dizin, veritabani_);
  adres_ = "postgresql:///" + veritabani_ + "?host=" + dizin;
  yer_ = adres_ + "#";
}

// A test that stops its server has taken the database along.
VeriYeri::~VeriYeri() {
  if (veritabani_.empty()) return;
  try {
    VeritabaniniSil(SunucuDizini(), veritabani_);
  } catch (const std::exception& h) {
    std::cerr << "a test's database stays: " << h.what() << "\n";
  }
}

std::string BosSirket(const std::string& veriYolu, std::string_view ad) {
  const VeriYolu veri(veriYolu);
  if (const Durum var = veri.Yarat(); !var) throw std::runtime_error(var.KusurMetni());
  const auto yarim = veri.YarimAlt(ad);
  if (!yarim) throw std::runtime_error(yarim.KusurMetni());
  if (const Durum adli = (*yarim)->Adlandir(); !adli) throw std::runtime_error(adli.KusurMetni());
  return veri.Alt(ad).Adres();
}

}  // namespace belvani::test
