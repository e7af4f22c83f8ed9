// Which engine an address is for. Here the room also says who makes the places of a server.

#include "core/store/pgmotor.h"
#include "core/store/pgveriyeri.h"
#include "core/store/sqlitemotor.h"
#include "core/sunucuadresi.h"
#include "core/veriyolu.h"

namespace belvani {
namespace {

const bool sunucuTanitildi = (SunucuYapicisiKoy(&PgVeriYeri), true);

SunucuAdresi Coz(const std::string& adres) {
  auto cozulen = SunucuAdresiCoz(adres);
  if (!cozulen) throw MotorHatasi(MotorKusuru::Acilamadi, cozulen.KusurMetni());
  return *cozulen;
}

}  // namespace

std::unique_ptr<Motor> MotorAc(const std::string& adres, AcilisKipi kip) {
  return SunucuAdresiMi(adres) ? PgMotorAc(Coz(adres), kip) : SqliteAc(adres, kip);
}

std::unique_ptr<Motor> MotorYarat(const std::string& adres) {
  return SunucuAdresiMi(adres) ? PgMotorYarat(Coz(adres)) : SqliteYarat(adres);
}

void MotorDosyasiniSil(const std::string& adres) {
  SunucuAdresiMi(adres) ? PgMotorSil(Coz(adres)) : SqliteSil(adres);
}

MotorSurumu MotorSurumleri() {
  return {SqliteSurumu(), PgKitapligiSurumu()};
}

}  // namespace belvani
