#include "documents/turetilen.h"

#include "core/turkce.h"
#include "payroll/hesap/bordro.h"
#include "payroll/hesap/kayittoplami.h"

namespace belvani {
int GunToplami(const Brd& brd) {
  return SskGunu(brd);
}

Tutar GunlukBrut(const Brd& brd, Yuvarlayici yuvarla) {
  const int gun = GunToplami(brd);
  return gun == 0 ? Tutar() : yuvarla(brd.ucret.Sayi() / gun);
}

Tutar AgiDahilDamga(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return yuvarla(brd.dvtutar + yuvarla(brd.ogv.Sayi() * damgaOran.Sayi() / 1000));
}

Tutar AgiNeti(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return brd.ogv + brd.dvtutar - AgiDahilDamga(brd, damgaOran, yuvarla);
}

Tutar Kesintiler(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return Degeri(toplam::kesintiler, brd) + brd.ogv - AgiNeti(brd, damgaOran, yuvarla);
}

Tutar NetOdenen(const Brd& brd, Tek damgaOran, Yuvarlayici yuvarla) {
  return Degeri(toplam::odenen, brd) + AgiNeti(brd, damgaOran, yuvarla);
}

std::string AdSoyad(const Sicil& sicil) {
  const std::string tamami = sicil.adi + " " + sicil.soyadi;
  return std::string(Kirp(tamami));
}

}  // namespace belvani
