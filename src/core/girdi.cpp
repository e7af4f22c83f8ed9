#include "core/girdi.h"

#include <algorithm>
#include <utility>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr std::size_t TarihBoyu = 10;

bool Rakam(char32_t harf) {
  return harf >= U'0' && harf <= U'9';
}

// Digits that stand for zero are no digits: the next one begins the number.
std::string SifirsizHam(std::string ham) {
  return ham == "0" || ham == "-" || ham == "-0" ? std::string() : ham;
}

// The amount as it would have been typed: without grouping and without zeros at its end.
std::string HamMetin(Tutar tutar, int ondalik) {
  std::string metin = TutarMetni(tutar, ondalik);
  std::erase(metin, ',');
  if (metin.find('.') != std::string::npos) {
    metin.erase(metin.find_last_not_of('0') + 1);
    if (metin.back() == '.') metin.pop_back();
  }
  return SifirsizHam(std::move(metin));
}

Tutar HamDeger(const std::string& ham) {
  return TutarOku(ham).value_or(Tutar());
}

// A number written with these marks, as it would be typed: "1.250,50" with "." between thousands is "1250.50".
std::optional<std::string> IsaretleOku(std::string_view metin, char ondalikIsareti, char grupIsareti) {
  const auto isaret = metin.find(ondalikIsareti);
  const std::string_view kesir = isaret == std::string_view::npos ? std::string_view() : metin.substr(isaret + 1);
  std::string ham;
  std::size_t grup = 0;  // digits since the last mark
  bool gruplu = false;
  for (const char harf : metin.substr(0, isaret)) {
    if (harf == grupIsareti) {
      if (grup == 0 || grup > 3 || (gruplu && grup != 3)) return std::nullopt;
      gruplu = true;
      grup = 0;
      continue;
    }
    if (!Rakam(char32_t(harf))) return std::nullopt;
    ham += harf;
    ++grup;
  }
  if (gruplu && grup != 3) return std::nullopt;
  if (kesir.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  if (ham.empty() && kesir.empty()) return std::nullopt;
  if (ham.empty()) ham = "0";
  return kesir.empty() ? ham : ham + "." + std::string(kesir);
}

std::string SifirsizKesir(std::string ham) {
  if (ham.find('.') == std::string::npos) return ham;
  ham.erase(ham.find_last_not_of('0') + 1);
  if (ham.back() == '.') ham.pop_back();
  return ham;
}

}  // namespace

void SayiGirdisi::Yukle(const Deger& deger) {
  ilkTus_ = true;
  isaretBekler_ = false;
  icerik_.ham = HamMetin(TutarDegeri(deger), bicim_.ondalik);
  icerik_.yuklenen = NullMu(deger) ? Deger(Tutar()) : deger;
  girilen_ = icerik_;
}

Deger SayiGirdisi::Oku() const {
  return icerik_.yuklenen ? *icerik_.yuklenen : HamDeger(icerik_.ham);
}

std::string SayiGirdisi::Metin() const {
  const Tutar tutar = HamDeger(icerik_.ham);
  if (tutar == Tutar()) return {};
  std::string metin = TutarMetni(tutar, bicim_.ondalik);
  if (bicim_.grup == 0) std::erase(metin, ',');
  return metin;
}

bool SayiGirdisi::Sigar(const std::string& ham) const {
  const auto nokta = ham.find('.');
  if (nokta != std::string::npos && ham.size() - nokta - 1 > std::size_t(bicim_.ondalik)) return false;
  const auto deger = TutarOku(ham);
  return deger && deger->Sayi() <= bicim_.enCok;
}

void SayiGirdisi::HamKoy(std::string ham) {
  icerik_.ham = SifirsizHam(std::move(ham));
  icerik_.yuklenen.reset();
  ilkTus_ = false;
  isaretBekler_ = false;
}

TusSonucu SayiGirdisi::Yaz(char32_t harf, bool hepsiSecili) {
  // Only a loaded number can be below zero; typing begins anew behind it.
  const bool eksi = icerik_.ham.starts_with('-');
  std::string ham = Bastan(hepsiSecili) || eksi ? std::string() : icerik_.ham;
  if (isaretBekler_) ham = "0.";
  switch (harf) {
    case U'.':
    case U',':
      if (bicim_.ondalik == 0 || ham.find('.') != std::string::npos) return TusSonucu::Gecildi;
      if (ham.empty()) {
        isaretBekler_ = true;
        return TusSonucu::Alindi;
      }
      ham += ".";
      break;
    case U'+':
      // Makes thousands of the number that is there, so it never begins a new one.
      if (icerik_.ham.empty() || eksi || isaretBekler_) return TusSonucu::Gecildi;
      ham = icerik_.ham + "000";
      break;
    default:
      if (!Rakam(harf)) return TusSonucu::Reddedildi;
      ham += char(harf);
      break;
  }
  if (!Sigar(ham)) return TusSonucu::Reddedildi;
  HamKoy(std::move(ham));
  return TusSonucu::Alindi;
}

TusSonucu SayiGirdisi::GeriSil(bool hepsiSecili) {
  if (std::exchange(isaretBekler_, false)) return TusSonucu::Alindi;
  if (icerik_.ham.empty()) return TusSonucu::Gecildi;
  HamKoy(hepsiSecili ? std::string() : icerik_.ham.substr(0, icerik_.ham.size() - 1));
  return TusSonucu::Alindi;
}

// Other programs write "1,250.50" or "1.250,50". What fits the field in one way only is taken; "1,250" in a field of
// three decimals may be either, and is refused. Zeros beyond the field's decimals count where nothing else fits.
TusSonucu SayiGirdisi::Yapistir(std::string_view metin) {
  std::optional<std::string> alinan;
  for (const bool fazlaSifirli : {false, true}) {
    if (alinan) break;
    for (const auto& [ondalikIsareti, grupIsareti] : {std::pair('.', ','), std::pair(',', '.')}) {
      const auto yazilan = IsaretleOku(Kirp(metin), ondalikIsareti, grupIsareti);
      if (!yazilan) continue;
      const std::string sade = SifirsizKesir(*yazilan);
      if (!Sigar(fazlaSifirli ? sade : *yazilan)) continue;
      if (alinan && alinan != sade) return TusSonucu::Reddedildi;
      alinan = sade;
    }
  }
  if (!alinan) return TusSonucu::Reddedildi;
  HamKoy(HamMetin(HamDeger(*alinan), bicim_.ondalik));
  return TusSonucu::Alindi;
}

void SayiGirdisi::Bosalt() {
  icerik_ = {};
  isaretBekler_ = false;
}

TusSonucu SayiGirdisi::GeriAl() {
  if (icerik_ == girilen_ && !isaretBekler_) return TusSonucu::Gecildi;
  icerik_ = girilen_;
  isaretBekler_ = false;
  ilkTus_ = true;
  return TusSonucu::Alindi;
}

void SayiGirdisi::Girildi() {
  Girdi::Girildi();
  isaretBekler_ = false;
  girilen_ = icerik_;
}

void SayiGirdisi::Gezildi() {
  Girdi::Gezildi();
  isaretBekler_ = false;
}

Tarih YazilanTarih(std::string_view metin) {
  constexpr int enKucukYil = 1900;
  constexpr int buYuzyilinSonYili = 29;
  const auto yilBasi = metin.rfind('.');
  if (yilBasi == std::string_view::npos) return {};
  std::string tam(metin.substr(0, yilBasi + 1));
  const std::string_view yil = metin.substr(yilBasi + 1);
  if (yil.size() == 2) tam += BastakiSayi(yil) <= buYuzyilinSonYili ? "20" : "19";
  const Tarih tarih = Tarih::MetinOku(tam + std::string(yil));
  return tarih.Yil() < enKucukYil ? Tarih() : tarih;
}

void TarihGirdisi::Yukle(const Deger& deger) {
  ilkTus_ = true;
  yuklenen_ = TarihDegeri(deger);
  metin_ = girilen_ = yuklenen_.Metin();
}

Deger TarihGirdisi::Oku() const {
  const Tarih tarih = metin_ == yuklenen_.Metin() ? yuklenen_ : YazilanTarih(metin_);
  return tarih.Bos() ? Deger(Null{}) : Deger(tarih);
}

// Ends a day or month of one digit; behind one of two the dot stands already.
TusSonucu TarihGirdisi::AyracYaz(bool bastan) {
  const bool tekHane = metin_.size() == 1 || metin_.size() == 4;
  if (bastan || metin_ == Maske || !tekHane) return TusSonucu::Gecildi;
  metin_.insert(metin_.size() - 1, "0");
  metin_ += '.';
  return TusSonucu::Alindi;
}

TusSonucu TarihGirdisi::Yaz(char32_t harf, bool hepsiSecili) {
  if (harf == U'.' || harf == U',' || harf == U'/') return AyracYaz(Bastan(hepsiSecili));
  if (!Rakam(harf)) return TusSonucu::Gecildi;
  std::string metin = Bastan(hepsiSecili) || metin_ == Maske ? std::string() : metin_;
  if (metin.size() >= TarihBoyu) return TusSonucu::Reddedildi;
  metin += char(harf);
  if (metin.size() == 2 || metin.size() == 5) metin += '.';
  metin_ = std::move(metin);
  ilkTus_ = false;
  return TusSonucu::Alindi;
}

TusSonucu TarihGirdisi::GeriSil(bool hepsiSecili) {
  if (metin_.empty()) return TusSonucu::Gecildi;
  if (hepsiSecili || metin_ == Maske) {
    metin_.clear();
  } else {
    // A dot goes with the digit that brought it.
    if (metin_.back() == '.') metin_.pop_back();
    metin_.pop_back();
  }
  ilkTus_ = false;
  return TusSonucu::Alindi;
}

TusSonucu TarihGirdisi::Yapistir(std::string_view metin) {
  std::string noktali(Kirp(metin));
  std::replace(noktali.begin(), noktali.end(), '/', '.');
  const Tarih iso = Tarih::IsoOku(noktali);
  const Tarih tarih = iso.Bos() ? YazilanTarih(noktali) : iso;
  if (tarih.Bos()) return TusSonucu::Reddedildi;
  metin_ = tarih.Metin();
  ilkTus_ = false;
  return TusSonucu::Alindi;
}

TusSonucu TarihGirdisi::GeriAl() {
  if (metin_ == girilen_) return TusSonucu::Gecildi;
  metin_ = girilen_;
  ilkTus_ = true;
  return TusSonucu::Alindi;
}

void TarihGirdisi::Girildi() {
  Girdi::Girildi();
  girilen_ = metin_;
}

void TarihGirdisi::Birakildi() {
  if (metin_.empty()) return;
  const Tarih tarih = TarihDegeri(Oku());
  metin_ = tarih.Bos() ? std::string(Maske) : tarih.Metin();
}

}  // namespace belvani
