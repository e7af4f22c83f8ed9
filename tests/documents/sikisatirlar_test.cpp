#include "documents/sikisatirlar.h"

#include <gtest/gtest.h>
#include <random>

#include "core/tables/uye.h"

namespace belvani {
namespace {

// Values at both ends of a type, and in between.
template <class Kayit>
void Doldur(Kayit& kayit, std::mt19937_64& zar) {
  Kayit::HerKolon([&](const auto& kolon) {
    using Tur = typename std::decay_t<decltype(kolon)>::UyeTuru;
    Tur& uye = kayit.*kolon.uye;
    const auto n = std::int64_t(zar());
    const bool uc = zar() % 3 == 0;
    if constexpr (std::is_same_v<Tur, std::string>)
      uye = std::string(zar() % 40, 'x') + (uc ? "ş" : "");
    else if constexpr (std::is_same_v<Tur, Tutar>)
      uye = Tutar::Hamdan(uc ? n : n % 100'000);
    else if constexpr (std::is_same_v<Tur, Tek>)
      uye = Tek(double(n % 100'000) / (uc ? 7 : 10));
    else if constexpr (std::is_same_v<Tur, Tarih>)
      uye = uc ? Tarih() : Tarih::SeriNodan(double(n % 60'000));
    else
      uye = Tur(n);
  });
}

template <class Kayit>
void Ayni(const Kayit& a, const Kayit& b) {
  Kayit::HerKolon([&](const auto& kolon) { EXPECT_EQ(a.*kolon.uye, b.*kolon.uye) << kolon.ad; });
}

TEST(SikiSatirlar, GiveBackWhatWasPutIn) {
  std::mt19937_64 zar(2009);
  std::vector<BordroSatiri> satirlar(200);
  SikiSatirlar siki;
  for (BordroSatiri& satir : satirlar) {
    if (&satir != &satirlar.front()) {  // the first one is empty
      Doldur(satir.brd, zar);
      Doldur(satir.sicil, zar);
      satir.tcno = std::to_string(zar());
    }
    siki.Ekle(satir);
  }
  ASSERT_EQ(siki.size(), satirlar.size());
  for (const std::size_t i : {199u, 0u, 7u, 100u, 42u, 1u}) {
    Ayni(siki[i].brd, satirlar[i].brd);
    Ayni(siki[i].sicil, satirlar[i].sicil);
    EXPECT_EQ(siki[i].tcno, satirlar[i].tcno);
  }
}

}  // namespace
}  // namespace belvani
