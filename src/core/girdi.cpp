#include "core/girdi.h"

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

}  // namespace

void SayiGirdisi::Yukle(const Deger& deger) {
  ilkTus_ = true;
  ham_ = HamMetin(TutarDegeri(deger), bicim_.ondalik);
  yuklenen_ = NullMu(deger) ? Deger(Tutar()) : deger;
}

Deger SayiGirdisi::Oku() const {
  return yuklenen_ ? *yuklenen_ : HamDeger(ham_);
}

std::string SayiGirdisi::Metin() const {
  const Tutar tutar = HamDeger(ham_);
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
  ham_ = SifirsizHam(std::move(ham));
  yuklenen_.reset();
  ilkTus_ = false;
}

TusSonucu SayiGirdisi::Yaz(char32_t harf, bool hepsiSecili) {
  // Only a loaded number can be below zero; typing begins anew behind it.
  const bool eksi = ham_.starts_with('-');
  std::string ham = Bastan(hepsiSecili) || eksi ? std::string() : ham_;
  switch (harf) {
    case U'.':
    case U',':
      if (bicim_.ondalik == 0 || ham.find('.') != std::string::npos) return TusSonucu::Gecildi;
      ham += ham.empty() ? "0." : ".";
      break;
    case U'+':
      // Makes thousands of the number that is there, so it never begins a new one.
      if (ham_.empty() || eksi) return TusSonucu::Gecildi;
      ham = ham_ + "000";
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
  if (ham_.empty()) return TusSonucu::Gecildi;
  HamKoy(hepsiSecili ? std::string() : ham_.substr(0, ham_.size() - 1));
  return TusSonucu::Alindi;
}

TusSonucu SayiGirdisi::Yapistir(std::string_view metin) {
  const auto tutar = TutarOku(metin);
  if (!tutar || *tutar < Tutar()) return TusSonucu::Reddedildi;
  std::string ham = HamMetin(*tutar, bicim_.ondalik);
  if (!ham.empty() && !Sigar(ham)) return TusSonucu::Reddedildi;
  HamKoy(std::move(ham));
  return TusSonucu::Alindi;
}

void SayiGirdisi::Bosalt() {
  ham_.clear();
  yuklenen_.reset();
}

void TarihGirdisi::Yukle(const Deger& deger) {
  ilkTus_ = true;
  metin_ = TarihDegeri(deger).Metin();
}

Deger TarihGirdisi::Oku() const {
  const Tarih tarih = Tarih::MetinOku(metin_);
  return tarih.Bos() ? Deger(Null{}) : Deger(tarih);
}

TusSonucu TarihGirdisi::Yaz(char32_t harf, bool hepsiSecili) {
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
  const Tarih tarih = Tarih::MetinOku(Kirp(metin));
  if (tarih.Bos()) return TusSonucu::Reddedildi;
  metin_ = tarih.Metin();
  ilkTus_ = false;
  return TusSonucu::Alindi;
}

void TarihGirdisi::Birakildi() {
  if (!metin_.empty() && NullMu(Oku())) metin_ = Maske;
}

}  // namespace belvani
