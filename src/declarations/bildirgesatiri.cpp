#include "declarations/bildirgesatiri.h"

#include <charconv>
#include <cmath>

#include "core/sayi.h"
#include "core/turkce.h"

namespace belvani {
namespace {

constexpr double TamSinir = 10'000;

bool RakamMi(char c) {
  return c >= '0' && c <= '9';
}

double BastakiOndalik(std::string_view metin) {
  metin = Kirp(metin);
  if (metin.starts_with('+')) metin.remove_prefix(1);
  // Words that the library takes for numbers ("inf", "nan") are none.
  const std::size_t ilk = metin.starts_with('-') ? 1 : 0;
  if (metin.size() <= ilk || !(RakamMi(metin[ilk]) || metin[ilk] == '.')) return 0;
  double sayi = 0;
  const auto okunan = std::from_chars(metin.data(), metin.data() + metin.size(), sayi, std::chars_format::fixed);
  return okunan.ec == std::errc() ? sayi : 0;
}

std::string DuzenliHucre(const std::string& hucre, HucreTuru tur) {
  const auto tutar = tur == HucreTuru::Tutar || tur == HucreTuru::Tam ? TutarOku(hucre) : std::nullopt;
  if (!tutar) return hucre;
  return tur == HucreTuru::Tutar ? YalinMetin(*tutar) : std::to_string(tutar->Ham() / Tutar::Olcek);
}

}  // namespace

double HucreSayisi(std::string_view hucre) {
  const double sayi = SayiOku(hucre).value_or(BastakiOndalik(hucre));
  return std::fabs(sayi) < Tutar::Sinir ? sayi : 0;
}

Tutar HucreTutari(std::string_view hucre) {
  const auto tutar = TutarOku(hucre);
  return tutar && std::fabs(tutar->Sayi()) < Tutar::Sinir ? *tutar : Tutar(HucreSayisi(hucre));
}

int HucreTami(std::string_view hucre) {
  const double sayi = HucreSayisi(hucre);
  return std::fabs(sayi) < TamSinir ? int(sayi) : 0;
}

Tarih HucreTarihi(std::string_view hucre) {
  return Tarih::MetinOku(Kirp(hucre));
}

std::string YalinMetin(Tutar tutar) {
  std::string metin = OndalikMetin(tutar);
  metin.erase(metin.find_last_not_of('0') + 1);
  if (metin.ends_with('.')) metin.pop_back();
  return metin;
}

std::string IkiHane(int sayi) {
  const std::string metin = std::to_string(sayi);
  return metin.size() < 2 ? "0" + metin : metin;
}

BildirgeSatiri Duzenli(BildirgeSatiri satir) {
  for (const auto& kolon : BildirgeKolonlari) satir.*kolon.hucre = DuzenliHucre(satir.*kolon.hucre, kolon.tur);
  if (const int belgeTuru = HucreTami(satir.sigkol); belgeTuru > 0) satir.sigkol = IkiHane(belgeTuru);
  return satir;
}

std::string SatirSahibi(const BildirgeSatiri& satir) {
  return satir.adi + " " + satir.soyadi;
}

}  // namespace belvani
