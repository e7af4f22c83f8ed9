#include "core/ayarlar.h"

#include <cstdlib>
#include <filesystem>
#include <pwd.h>
#include <unistd.h>

#include "core/dosya.h"
#include "core/ini.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr const char* OrtakDosya = "/etc/belvani/personel.ini";
constexpr const char* KullanicininMakineDosyasi = "makine.ini";

std::string Ortam(const char* ad) {
  const char* deger = std::getenv(ad);
  return deger == nullptr ? std::string() : std::string(deger);
}

std::string Ev() {
  if (std::string ev = Ortam("HOME"); ev.starts_with('/')) return ev;
  const passwd* hesap = ::getpwuid(::geteuid());
  return hesap == nullptr || hesap->pw_dir == nullptr ? "/" : hesap->pw_dir;
}

std::string XdgDizini(const char* degisken, const char* evdeki) {
  std::string kok = Ortam(degisken);
  if (!kok.starts_with('/')) kok = DizinSonu(Ev()) + evdeki;
  return DizinSonu(kok) + "belvani/";
}

std::string MakineDosyasi() {
  if (const std::string verilen = Ortam("BELVANI_MAKINE_AYAR"); !verilen.empty()) return verilen;
  std::error_code hata;
  if (fs::exists(OrtakDosya, hata) || ::access("/etc", W_OK) == 0) return OrtakDosya;
  return KullaniciDizini() + KullanicininMakineDosyasi;
}

Durum Yaz(const std::string& dosya, std::string_view bolum, std::string_view anahtar, std::string_view deger) {
  if (const fs::path dizin = fs::path(dosya).parent_path(); !dizin.empty())
    if (auto d = DizinYarat(dizin); !d) return d;
  return IniYaz(bolum, anahtar, deger, dosya);
}

}  // namespace

std::string MakineAyari(std::string_view anahtar) {
  return IniOku(AnaBolum, anahtar, "", MakineDosyasi());
}

// The settings of the machine are those of all its accounts; with those of one user for want of better, they stay his.
Durum MakineAyariYaz(std::string_view anahtar, std::string_view deger) {
  const std::string dosya = MakineDosyasi();
  const fs::path dizin = fs::path(dosya).parent_path();
  const bool herkesin = dosya != KullaniciDizini() + KullanicininMakineDosyasi;
  const bool dizinVardi = DizinVar(dizin);
  const Durum yazildi = Yaz(dosya, AnaBolum, anahtar, deger);
  if (!yazildi || !herkesin) return yazildi;
  std::error_code hata;
  constexpr auto oku = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
  constexpr auto gir = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
  fs::permissions(dosya, oku, fs::perm_options::add, hata);
  if (!dizinVardi) fs::permissions(dizin, oku | gir, fs::perm_options::add, hata);
  return yazildi;
}

std::string KullaniciAyari(std::string_view anahtar, std::string_view varsayilan, std::string_view bolum) {
  return IniOku(bolum, anahtar, varsayilan, KullaniciDizini() + "personel.ini");
}

Durum KullaniciAyariYaz(std::string_view anahtar, std::string_view deger, std::string_view bolum) {
  return Yaz(KullaniciDizini() + "personel.ini", bolum, anahtar, deger);
}

std::string KullaniciDizini() {
  const std::string verilen = Ortam("BELVANI_KULLANICI_DIZIN");
  return verilen.empty() ? XdgDizini("XDG_CONFIG_HOME", ".config") : DizinSonu(verilen);
}

std::string KullaniciVeriDizini() {
  const std::string verilen = Ortam("BELVANI_KULLANICI_DIZIN");
  return verilen.empty() ? XdgDizini("XDG_DATA_HOME", ".local/share") : DizinSonu(verilen) + "veri/";
}

}  // namespace belvani
