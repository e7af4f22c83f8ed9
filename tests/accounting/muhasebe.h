// A company with groups, pay records and posting lines, and books beside it.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "accounting/fisoku.h"
#include "accounting/kardesdepo.h"
#include "core/store/ornekdepo.h"

namespace belvani::test {

inline Brd Kayit(const std::string& kod, double brut, double ucret = 0) {
  Brd b;
  b.yil = 2009;
  b.ay = 12;
  b.no = 1;
  b.kod = kod;
  b.brutkaz = Tutar(brut);
  b.ucret = Tutar(ucret);
  return b;
}

inline Entpar Satir(const char* grup, int no, int yer, int ba, const char* hesap) {
  return {.no = std::uint8_t(no),
          .yer = std::uint8_t(yer),
          .ba = std::uint8_t(ba),
          .hesap = hesap,
          .grup = grup,
          .grupno = std::string(grup) + "00" + std::to_string(no)};
}

inline Fis FisYap(const std::vector<std::pair<std::string, Brd>>& kayitlar, const std::vector<Entpar>& satirlar) {
  FisKurucu kurucu(satirlar);
  for (const auto& [ozel, brd] : kayitlar) kurucu.Ekle(ozel, brd);
  return kurucu.Bitir({.yil = 2009, .ay = 12});
}

// "770 B 1000.00, 335 A 800.00".
inline std::string Ozet(const Fis& fis) {
  std::string ozet;
  for (const FisSatiri& s : fis.satirlar)
    ozet += (ozet.empty() ? "" : ", ") + s.kod + " " + std::string(TarafHarfi(s.ba)) + " " +
            std::to_string(s.tutar.Ham() / Tutar::Olcek);
  return ozet;
}

struct KardesTesti : testing::Test {
  GeciciDizin dizin;

  std::shared_ptr<Motor> Ac(KardesTuru tur) {
    auto motor = KardesAc(tur, dizin.Yol());
    EXPECT_TRUE(motor) << (motor ? "" : motor.KusurMetni());
    return motor ? *motor : nullptr;
  }
  std::shared_ptr<Motor> Kur(KardesTuru tur) {
    const Durum kuruldu = KardesYarat(tur, dizin.Yol());
    EXPECT_TRUE(kuruldu) << (kuruldu ? "" : kuruldu.KusurMetni());
    return Ac(tur);
  }
  static std::int64_t Sayi(Motor& motor, const std::string& sql) {
    const auto komut = motor.Hazirla(sql);
    return komut->Adim() ? komut->Tam(0) : -1;
  }
};

}  // namespace belvani::test
