#include "core/ayarlar.h"

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "core/dosya.h"
#include "core/ini.h"

namespace belvani {
namespace {

namespace fs = std::filesystem;

constexpr const char* OrtakDosya = "/etc/belvani/personel.ini";

std::string Ortam(const char* ad) {
  const char* deger = std::getenv(ad);
  return deger == nullptr ? std::string() : std::string(deger);
}

std::string XdgDizini(const char* degisken, const char* evdeki) {
  std::string kok = Ortam(degisken);
  if (!kok.starts_with('/')) kok = DizinSonu(Ortam("HOME")) + evdeki;
  return DizinSonu(kok) + "belvani/";
}

std::string MakineDosyasi() {
  if (const std::string verilen = Ortam("BELVANI_MAKINE_AYAR"); !verilen.empty()) return verilen;
  std::error_code hata;
  if (fs::exists(OrtakDosya, hata) || ::access("/etc", W_OK) == 0) return OrtakDosya;
  return KullaniciDizini() + "makine.ini";
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

Durum MakineAyariYaz(std::string_view anahtar, std::string_view deger) {
  return Yaz(MakineDosyasi(), AnaBolum, anahtar, deger);
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

std::string OnbellekDizini() {
  const std::string verilen = Ortam("BELVANI_KULLANICI_DIZIN");
  return verilen.empty() ? XdgDizini("XDG_CACHE_HOME", ".cache") : DizinSonu(verilen) + "onbellek/";
}

}  // namespace belvani
