#include "core/session/programdosyasi.h"

#include <filesystem>

#include "core/ayarlar.h"
#include "core/dosya.h"

namespace belvani {
namespace {

std::string KullaniciKopyasi(std::string_view ad) {
  return KullaniciDizini() + std::string(ad);
}

}  // namespace

std::string ProgramDosyasi(const std::string& dizin, std::string_view ad) {
  const std::string kopya = KullaniciKopyasi(ad);
  std::error_code hata;
  return std::filesystem::exists(kopya, hata) ? kopya : dizin + std::string(ad);
}

Durum ProgramDosyasiYaz(const std::string& dizin, std::string_view ad, std::string_view icerik) {
  if (const Durum d = DosyaYaz(ProgramDosyasi(dizin, ad), icerik); d) return d;
  if (const Durum d = DizinYarat(KullaniciDizini()); !d) return d;
  return DosyaYaz(KullaniciKopyasi(ad), icerik);
}

}  // namespace belvani
