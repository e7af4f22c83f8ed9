#include "core/tarih.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>

namespace belvani {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::sys_days;
using std::chrono::year;
using std::chrono::year_month_day;

constexpr sys_days SeriBaslangici = year{1899} / 12 / 30;
constexpr int EnKucukYil = 100;
constexpr int EnBuyukYil = 9999;

year_month_day Takvim(std::int32_t seri) {
  return SeriBaslangici + std::chrono::days{seri};
}

// A run of 1 to `enCok` digits at the front of `metin`, which it is cut from; -1 when there is none.
int SayiKopar(std::string_view& metin, std::size_t enCok) {
  std::size_t n = 0;
  int sayi = 0;
  while (n < metin.size() && n < enCok && metin[n] >= '0' && metin[n] <= '9') sayi = sayi * 10 + (metin[n++] - '0');
  metin.remove_prefix(n);
  return n == 0 ? -1 : sayi;
}

bool IsaretKopar(std::string_view& metin, char isaret) {
  if (metin.empty() || metin.front() != isaret) return false;
  metin.remove_prefix(1);
  return true;
}

// `sayi` in exactly `hane` digits; the callers' numbers fit.
void HaneYaz(std::string& metin, unsigned sayi, int hane) {
  const std::size_t son = metin.size() + std::size_t(hane);
  metin.resize(son, '0');
  for (std::size_t i = son; sayi > 0; sayi /= 10) metin[--i] = char('0' + sayi % 10);
}

std::string GunAyYil(Tarih t, int yilHanesi) {
  std::string metin;
  if (t.Bos()) return metin;
  const auto g = Takvim(t.SeriNo());
  HaneYaz(metin, unsigned(g.day()), 2);
  metin += '.';
  HaneYaz(metin, unsigned(g.month()), 2);
  metin += '.';
  const unsigned yil = unsigned(int(g.year()));
  HaneYaz(metin, yilHanesi == 2 ? yil % 100 : yil, yilHanesi);
  return metin;
}

}  // namespace

Tarih::Tarih(int yil, int ay, int gun) {
  if (yil < EnKucukYil || yil > EnBuyukYil || ay < 1 || ay > 12 || gun < 1 || gun > 31) return;
  const year_month_day g{year{yil}, month{unsigned(ay)}, day{unsigned(gun)}};
  if (g.ok()) seri_ = std::int32_t((sys_days{g} - SeriBaslangici).count());
}

Tarih Tarih::SeriNodan(double seri) {
  const double tam = std::trunc(seri);  // the fraction is the clock, on either side of day 0
  Tarih t;
  if (!(tam >= Tarih(EnKucukYil, 1, 1).seri_ && tam <= Tarih(EnBuyukYil, 12, 31).seri_)) return t;
  t.seri_ = std::int32_t(tam);
  return t;
}

Tarih Tarih::IsoOku(std::string_view metin) {
  const int yil = SayiKopar(metin, 4);
  if (!IsaretKopar(metin, '-')) return {};
  const int ay = SayiKopar(metin, 2);
  if (!IsaretKopar(metin, '-')) return {};
  const int gun = SayiKopar(metin, 2);
  return metin.empty() ? Tarih(yil, ay, gun) : Tarih();
}

Tarih Tarih::MetinOku(std::string_view metin) {
  const int gun = SayiKopar(metin, 2);
  if (!IsaretKopar(metin, '.')) return {};
  const int ay = SayiKopar(metin, 2);
  if (!IsaretKopar(metin, '.')) return {};
  if (metin.size() != 4) return {};
  const int yil = SayiKopar(metin, 4);
  return metin.empty() ? Tarih(yil, ay, gun) : Tarih();
}

int Tarih::Yil() const {
  return Bos() ? 0 : int(Takvim(seri_).year());
}
int Tarih::Ay() const {
  return Bos() ? 0 : int(unsigned(Takvim(seri_).month()));
}
int Tarih::Gun() const {
  return Bos() ? 0 : int(unsigned(Takvim(seri_).day()));
}

std::string Tarih::Iso() const {
  std::string metin;
  if (Bos()) return metin;
  const auto g = Takvim(seri_);
  HaneYaz(metin, unsigned(int(g.year())), 4);
  metin += '-';
  HaneYaz(metin, unsigned(g.month()), 2);
  metin += '-';
  HaneYaz(metin, unsigned(g.day()), 2);
  return metin;
}

std::string Tarih::Metin() const {
  return GunAyYil(*this, 4);
}
std::string Tarih::KisaMetin() const {
  return GunAyYil(*this, 2);
}

std::string Tarih::UzunMetin() const {
  if (Bos()) return {};
  const std::string gun = std::to_string(Gun());
  return (gun.size() < 2 ? "0" : "") + gun + " " + std::string(AyAdi(Ay())) + " " + Metin().substr(6) + " " +
         std::string(GunAdi());
}

std::string_view Tarih::GunAdi() const {
  // Day 0, 30.12.1899, was a Saturday.
  static constexpr std::array<std::string_view, 7> adlar{"Cumartesi", "Pazar",    "Pazartesi", "Salı",
                                                         "Çarşamba",  "Perşembe", "Cuma"};
  return Bos() ? std::string_view() : adlar[std::size_t(((seri_ % 7) + 7) % 7)];
}

Tarih Tarih::Ekle(int gun) const {
  return Bos() ? *this : SeriNodan(double(seri_) + gun);
}

int GunSayisi(Tarih a, Tarih b) {
  return b.SeriNo() - a.SeriNo() + 1;
}

int AyinGunSayisi(int yil, int ay) {
  return int(unsigned((year{yil} / month{unsigned(ay)} / std::chrono::last).day()));
}

std::string_view AyAdi(int ay) {
  return AyAdlari.at(std::size_t(ay - 1));
}

}  // namespace belvani
