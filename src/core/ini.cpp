#include "core/ini.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <vector>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::size_t EnCokDegerHarfi = 254;
constexpr std::size_t EnCokDosyaBayti = 1u << 20;
constexpr std::string_view Utf8Imi = "\xEF\xBB\xBF";

std::string_view BosluklariKirp(std::string_view s) {
  const auto bosluk = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
  while (!s.empty() && bosluk(s.front())) s.remove_prefix(1);
  while (!s.empty() && bosluk(s.back())) s.remove_suffix(1);
  return s;
}

// A line that says nothing (blank, comment) has neither section nor key.
struct Satir {
  std::optional<std::string_view> bolum;
  std::optional<std::string_view> anahtar;
  std::string_view deger;
};

Satir SatirCoz(std::string_view metin) {
  metin = BosluklariKirp(metin);
  if (metin.empty() || metin.front() == ';' || metin.front() == '#') return {};
  if (metin.front() == '[') return {BosluklariKirp(metin.substr(1, metin.find(']') - 1)), {}, {}};
  const auto esittir = metin.find('=');
  if (esittir == std::string_view::npos) return {};
  std::string_view deger = BosluklariKirp(metin.substr(esittir + 1));
  const bool tirnakli =
      deger.size() >= 2 && (deger.front() == '"' || deger.front() == '\'') && deger.back() == deger.front();
  if (tirnakli) deger = deger.substr(1, deger.size() - 2);
  return {{}, BosluklariKirp(metin.substr(0, esittir)), deger};
}

// A file as lines of bytes, each with its line end: a write changes one of them and cannot touch the others.
struct IniMetni {
  bool im = false;
  std::vector<std::string> satirlar;
};

IniMetni SatirlaraAyir(std::string_view baytlar) {
  IniMetni m;
  m.im = baytlar.starts_with(Utf8Imi);
  if (m.im) baytlar.remove_prefix(Utf8Imi.size());
  while (!baytlar.empty()) {
    const auto n = std::min(baytlar.find('\n'), baytlar.size() - 1) + 1;
    m.satirlar.emplace_back(baytlar.substr(0, n));
    baytlar.remove_prefix(n);
  }
  return m;
}

bool Utf8Harfli(std::string_view baytlar) {
  return GecerliUtf8(baytlar) && std::any_of(baytlar.begin(), baytlar.end(), [](char c) { return c < 0; });
}

// Each line tells its own code: Turkish letters of the code page are never valid UTF-8.
std::string SatirMetni(const std::string& satir) {
  return GecerliUtf8(satir) ? satir : KodSayfasindan(satir, KodSayfasi::Windows1254);
}

// A new line in the code of the file; in UTF-8 too when the code page lacks a letter or its bytes would mislead a read.
std::string SatirBaytlari(const IniMetni& m, const std::string& metin) {
  const bool utf8 = m.im || std::any_of(m.satirlar.begin(), m.satirlar.end(), Utf8Harfli);
  if (utf8 || !KodSayfasinaSigar(metin, KodSayfasi::Windows1254)) return metin;
  const std::string baytlar = KodSayfasina(metin, KodSayfasi::Windows1254);
  return Utf8Harfli(baytlar) ? metin : baytlar;
}

std::string SatirSonu(std::string_view satir) {
  return satir.ends_with("\r\n") ? "\r\n" : satir.ends_with('\n') ? "\n" : "";
}

void SatirEkle(IniMetni& m, std::size_t yer, const std::string& metin) {
  std::string son = m.satirlar.empty() ? "" : SatirSonu(m.satirlar.front());
  if (son.empty()) son = "\r\n";
  if (yer > 0 && SatirSonu(m.satirlar[yer - 1]).empty()) m.satirlar[yer - 1] += son;
  m.satirlar.insert(m.satirlar.begin() + std::ptrdiff_t(yer), SatirBaytlari(m, metin) + son);
}

void DegeriKoy(IniMetni& m, std::string_view bolum, std::string_view anahtar, const std::string& yeni) {
  bool bolumde = false;
  std::optional<std::size_t> bolumSonu;
  for (std::size_t i = 0; i < m.satirlar.size(); ++i) {
    const std::string metin = SatirMetni(m.satirlar[i]);
    const Satir s = SatirCoz(metin);
    if (s.bolum) bolumde = AdEsit(*s.bolum, bolum);
    if (!bolumde) continue;
    if (s.anahtar && AdEsit(*s.anahtar, anahtar)) {
      m.satirlar[i] = SatirBaytlari(m, yeni) + SatirSonu(m.satirlar[i]);
      return;
    }
    if (s.bolum || s.anahtar) bolumSonu = i + 1;
  }
  if (!bolumSonu) {
    SatirEkle(m, m.satirlar.size(), "[" + std::string(bolum) + "]");
    bolumSonu = m.satirlar.size();
  }
  SatirEkle(m, *bolumSonu, yeni);
}

}  // namespace

IniDosyasi::IniDosyasi(const std::string& dosyaYolu)
    : IniDosyasi(std::filesystem::path(dosyaYolu).parent_path().string(),
                 std::filesystem::path(dosyaYolu).filename().string()) {}

std::string IniOku(std::string_view bolum, std::string_view anahtar, std::string_view varsayilan,
                   const IniDosyasi& dosya) {
  const auto baytlar = dosya.yol.Oku(dosya.ad, EnCokDosyaBayti);
  if (!baytlar) return std::string(varsayilan);
  bool bolumde = false;
  for (const auto& satir : SatirlaraAyir(*baytlar).satirlar) {
    const std::string metin = SatirMetni(satir);
    const Satir s = SatirCoz(metin);
    if (s.bolum) bolumde = AdEsit(*s.bolum, bolum);
    if (bolumde && s.anahtar && AdEsit(*s.anahtar, anahtar)) return std::string(IlkHarfler(s.deger, EnCokDegerHarfi));
  }
  return std::string(varsayilan);
}

Durum IniYaz(std::string_view bolum, std::string_view anahtar, std::string_view deger, const IniDosyasi& dosya) {
  if (!GecerliUtf8(deger)) return Kusur{dosya.Adres() + ": yazılacak değerde okunamayan harf var"};
  const auto kilit = dosya.yol.Kilitle();
  if (!kilit) return kilit.Kusuru();
  const DosyaHali eski = dosya.yol.Bak(dosya.ad, EnCokDosyaBayti);
  if (eski.okunamadi || eski.boy > EnCokDosyaBayti) return Kusur{dosya.Adres() + ": dosya okunamadı, değiştirilmedi"};
  IniMetni m = SatirlaraAyir(eski.baytlar);
  const std::string duz = DenetimsizMetin(deger);
  // Blanks and quotes at the ends would be lost by the next read.
  const bool tirnak = !duz.empty() && (duz != BosluklariKirp(duz) || duz.front() == '"' || duz.front() == '\'');
  DegeriKoy(m, bolum, anahtar, std::string(anahtar) + "=" + (tirnak ? "\"" + duz + "\"" : duz));
  std::string baytlar(m.im ? Utf8Imi : "");
  for (const auto& satir : m.satirlar) baytlar += satir;
  if (baytlar.size() > EnCokDosyaBayti) return Kusur{dosya.Adres() + ": dosya çok büyük"};  // no read would take it
  return dosya.yol.Yaz(dosya.ad, baytlar);
}

}  // namespace belvani
