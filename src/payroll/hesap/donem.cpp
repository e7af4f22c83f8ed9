#include "payroll/hesap/donem.h"

#include "core/sayi.h"

namespace belvani {
namespace {

constexpr int TamAy = 30;
constexpr int TersDonemGunu = 15;
constexpr int Subat = 2;

// The rule counts every fourth year as a leap year.
int SubatGunu(int yil) {
  return yil % 4 == 0 ? 29 : 28;
}

Tarih SonrakiAyinGunu(int yil, int ay, int gun) {
  return ay == 12 ? Tarih(yil + 1, 1, gun) : Tarih(yil, ay + 1, gun);
}

}  // namespace

Tarih BordroDonemi::Bas() const {
  return Tarih(yil, ay, tur == DonemTuru::Ters ? TersDonemGunu : 1);
}

Tarih BordroDonemi::Son() const {
  return SonrakiAyinGunu(yil, ay, tur == DonemTuru::Ters ? TersDonemGunu : 1).Ekle(-1);
}

CalismaGunu GunSayisiBul(const BordroDonemi& donem, Tarih girtar, Tarih ciktar) {
  if (girtar.Bos()) return {0, DonemUygunlugu::GirisTarihiHatali};
  const Tarih son = ciktar.Bos() ? donem.Son() : ciktar;
  if (girtar > donem.Son() || son < donem.Bas()) return {};
  int gun = GunSayisi(std::max(girtar, donem.Bas()), std::min(son, donem.Son()));
  if (donem.ay == Subat && gun == SubatGunu(donem.yil)) gun = TamAy;
  return {std::min(gun, TamAy), DonemUygunlugu::Uygun};
}

int AyGunuBul(int ay, int yil, int CalismaGun) {
  if (CalismaGun != TamAy) return CalismaGun;
  return ay == Subat ? SubatGunu(yil) : AyinGunSayisi(yil, ay);
}

int EksikSebepSec(int kod) {
  for (std::size_t i = 0; i < EksikSebepleri.size(); ++i)
    if (BastakiSayi(EksikSebepleri[i].substr(0, 2)) == kod) return int(i);
  return -1;
}

EksikGun EksikGunDenetle(int SskGun, int CalismaGun, int AyGunu, int sebep, int ucretsizizin) {
  if (SskGun == CalismaGun) return {0, 0, true};
  return {sebep, ucretsizizin, sebep != 0 && ucretsizizin + SskGun == AyGunu};
}

int UcretsizIzinOnerisi(int SskGun, int AyGunu) {
  return SskGun == TamAy ? 0 : AyGunu - SskGun;
}

}  // namespace belvani
