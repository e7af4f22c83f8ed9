#include "core/sayi.h"

#include <algorithm>
#include <charconv>

#include "core/turkce.h"

namespace belvani {
namespace {

constexpr int TutarOndaligi = 4;

// A decimal number taken apart: digits before and after the point, without thousands commas.
struct Rakamlar {
  bool eksi = false;
  std::string tam;
  std::string kesir;

  bool Sifir() const {
    const auto sifir = [](char c) { return c == '0'; };
    return std::all_of(tam.begin(), tam.end(), sifir) && std::all_of(kesir.begin(), kesir.end(), sifir);
  }
};

// A comma is a thousands mark only where it parts groups of three: "12,5" and "0,125" are foreign decimals, not 125.
bool GruplamaDuzgun(std::string_view tam) {
  const auto ilk = tam.find(',');
  if (ilk == std::string_view::npos) return true;
  if (ilk > 3 || tam.front() == '0') return false;
  for (std::size_t i = ilk; i < tam.size(); i += 4)
    if (tam[i] != ',' || tam.size() - i < 4 || tam.substr(i + 1, 3).find(',') != tam.npos) return false;
  return true;
}

std::optional<Rakamlar> RakamlaraAyir(std::string_view metin) {
  metin = Kirp(metin);
  Rakamlar r;
  if (!metin.empty() && (metin.front() == '-' || metin.front() == '+')) {
    r.eksi = metin.front() == '-';
    metin.remove_prefix(1);
  }
  bool noktadanSonra = false;
  for (const char c : metin) {
    if (c >= '0' && c <= '9')
      (noktadanSonra ? r.kesir : r.tam) += c;
    else if (c == '.' && !noktadanSonra)
      noktadanSonra = true;
    else if (c != ',' || noktadanSonra || r.tam.empty())
      return std::nullopt;
  }
  if (r.tam.empty() && r.kesir.empty()) return std::nullopt;
  if (!GruplamaDuzgun(metin.substr(0, metin.find('.')))) return std::nullopt;
  return r;
}

// Rounds to `ondalik` decimals, half away from zero, on the digits themselves.
void KesriYuvarla(Rakamlar& r, std::size_t ondalik) {
  const bool yukari = r.kesir.size() > ondalik && r.kesir[ondalik] >= '5';
  r.kesir.resize(ondalik, '0');
  if (!yukari) return;
  std::string rakamlar = "0" + r.tam + r.kesir;
  auto hane = rakamlar.rbegin();
  while (*hane == '9') *hane++ = '0';
  ++*hane;
  r.kesir = rakamlar.substr(rakamlar.size() - ondalik);
  r.tam = rakamlar.substr(0, rakamlar.size() - ondalik);
}

std::string TamKisim(const Rakamlar& r) {
  const auto ilk = r.tam.find_first_not_of('0');
  return ilk == std::string::npos ? std::string() : r.tam.substr(ilk);
}

std::string Grupla(const std::string& tam, int gruplama) {
  if (gruplama <= 0) return tam;
  std::string sonuc;
  for (std::size_t i = 0; i < tam.size(); ++i) {
    if (i > 0 && (tam.size() - i) % std::size_t(gruplama) == 0) sonuc += ',';
    sonuc += tam[i];
  }
  return sonuc;
}

Rakamlar TutarRakamlari(Tutar tutar) {
  Rakamlar r;
  r.eksi = tutar.Ham() < 0;
  // Negation in the unsigned type holds for the smallest amount too.
  const auto ham = r.eksi ? 0 - std::uint64_t(tutar.Ham()) : std::uint64_t(tutar.Ham());
  r.tam = std::to_string(ham / Tutar::Olcek);
  r.kesir = std::to_string(ham % Tutar::Olcek);
  r.kesir.insert(0, TutarOndaligi - r.kesir.size(), '0');
  return r;
}

std::string Birlestir(const Rakamlar& r, const std::string& tam) {
  std::string sonuc = r.eksi ? "-" : "";
  sonuc += tam;
  if (!r.kesir.empty()) sonuc += "." + r.kesir;
  return sonuc;
}

}  // namespace

std::optional<Tutar> TutarOku(std::string_view metin) {
  auto r = RakamlaraAyir(metin);
  if (!r) return std::nullopt;
  KesriYuvarla(*r, TutarOndaligi);
  const std::string rakamlar = (r->eksi ? "-" : "") + r->tam + r->kesir;
  std::int64_t ham = 0;
  const auto [son, hata] = std::from_chars(rakamlar.data(), rakamlar.data() + rakamlar.size(), ham);
  if (hata != std::errc() || son != rakamlar.data() + rakamlar.size()) return std::nullopt;
  return Tutar::Hamdan(ham);
}

std::optional<double> SayiOku(std::string_view metin) {
  const auto r = RakamlaraAyir(metin);
  if (!r) return std::nullopt;
  const std::string duz = Birlestir(*r, r->tam.empty() ? "0" : r->tam);
  double sayi = 0;
  if (std::from_chars(duz.data(), duz.data() + duz.size(), sayi).ec != std::errc()) return std::nullopt;
  return sayi;
}

std::optional<long long> TamSayiOku(std::string_view metin) {
  const auto r = RakamlaraAyir(metin);
  if (!r || !r->kesir.empty()) return std::nullopt;
  const std::string duz = (r->eksi ? "-" : "") + r->tam;
  long long sayi = 0;
  if (std::from_chars(duz.data(), duz.data() + duz.size(), sayi).ec != std::errc()) return std::nullopt;
  return sayi;
}

int BastakiSayi(std::string_view metin) {
  metin = Kirp(metin);
  int sayi = 0;
  const auto sonuc = std::from_chars(metin.data(), metin.data() + metin.size(), sayi);
  return sonuc.ec == std::errc() ? sayi : 0;
}

std::string TutarMetni(Tutar tutar, int ondalik) {
  Rakamlar r = TutarRakamlari(tutar);
  KesriYuvarla(r, std::size_t(std::clamp(ondalik, 0, TutarOndaligi)));
  if (r.Sifir()) r.eksi = false;
  const std::string tam = TamKisim(r);
  return Birlestir(r, tam.empty() ? "0" : Grupla(tam, 3));
}

std::string OndalikMetin(Tutar tutar) {
  Rakamlar r = TutarRakamlari(tutar);
  while (r.kesir.size() > 2 && r.kesir.back() == '0') r.kesir.pop_back();
  return Birlestir(r, r.tam);
}

std::string SayiMetni(double sayi) {
  char metin[400];          // the smallest number has 323 zeros behind the point
  if (sayi == 0) sayi = 0;  // of the two zeros the one without a sign
  const auto sonuc = std::to_chars(metin, metin + sizeof metin, sayi, std::chars_format::fixed);
  return std::string(metin, sonuc.ptr);
}

std::string SayiFormat(std::string_view metin, int ondalik, int gruplama) {
  auto r = RakamlaraAyir(metin);
  if (!r || r->Sifir()) return {};
  KesriYuvarla(*r, std::size_t(std::max(ondalik, 0)));
  if (r->Sifir()) r->eksi = false;
  return Birlestir(*r, Grupla(TamKisim(*r), gruplama));
}

}  // namespace belvani
