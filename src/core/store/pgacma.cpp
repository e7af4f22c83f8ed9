// Stores on a server opened, made and removed by their addresses.

#include "core/store/pgdeger.h"
#include "core/store/pgmotor.h"
#include "core/store/pgortak.h"
#include "core/store/pgsunucu.h"
#include "core/store/pgyarimyer.h"

namespace belvani {
namespace {

std::string SirketAdi(const SunucuAdresi& adres) {
  return adres.yol.substr(0, adres.yol.rfind('/'));
}

}  // namespace

std::unique_ptr<Motor> PgMotorAc(const SunucuAdresi& adres, AcilisKipi kip) {
  auto motor = std::make_unique<PgMotor>(adres, kip);
  if (motor->Katalog().Bul("firma") == nullptr && motor->Katalog().Bul("brd") == nullptr &&
      motor->Katalog().Bul("durum") == nullptr)
    throw MotorHatasi(MotorKusuru::Bozuk, "Sunucuda şirketin tabloları yok: " + SirketAdi(adres));
  return motor;
}

std::unique_ptr<Motor> PgMotorYarat(const SunucuAdresi& adres) {
  const std::string ad = SirketAdi(adres);
  const auto ortak = PgOrtakAl(adres.baglanti);
  if (!PgSirketNo(ortak->b, ad)) PgSirketAyir(ortak->b, ad, {}, false);
  auto motor = std::make_unique<PgMotor>(adres, AcilisKipi::Ortak);
  if (motor->Katalog().Bul("firma") != nullptr || motor->Katalog().Bul("brd") != nullptr)
    throw MotorHatasi(MotorKusuru::Acilamadi, "Sunucuda bu adda bir şirket var: " + ad);
  return motor;
}

void PgMotorSil(const SunucuAdresi& adres) {
  const auto ortak = PgOrtakAl(adres.baglanti);
  const std::string ad = SirketAdi(adres);
  const auto no = PgSirketNo(ortak->b, ad);
  // A half company goes with who is making it.
  if (no && !PgYarimNo(ad)) PgYarimiSil(ortak->b, PgYarimaCevir(ortak->b, ad));
  ortak->sirketler.clear();
}

bool PgYazilir(const SunucuAdresi& adres) {
  try {
    return PgMotor(adres, AcilisKipi::Ortak).Yazilabilir();
  } catch (const MotorHatasi&) {
    return true;  // the opening tells why not
  }
}

}  // namespace belvani
